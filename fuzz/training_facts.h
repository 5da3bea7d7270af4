// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/tagged_value.h"
#include "exercise/settings_record.h"
#include "worksheet/material.h"

namespace vmod17 {

/// What a stored training says, read a second time and in another way than the program does.
struct TrainingFacts {
  int n = 0;
  std::vector<int> entries;               ///< of the material, in its order
  std::vector<int> weights;               ///< by row of the material
  std::vector<std::array<int, 3>> board;  ///< Klangtyp, row, group
  std::vector<std::array<float, 3>> counters;
  std::array<int, 3> captions{};  ///< right, wrong, repeated
  int fehl_max = 0;

  /// Errors: std::exception for a list that is not made like one.
  static TrainingFacts Of(const TaggedValue& a1);
  /// Sum of the columns 0 of the counters: the chords that were asked.
  int Asked() const;
};

/// What is wrong with a training that was taken up with these settings; "" for one that a run can
/// have left.
std::string FaultOf(const TrainingFacts& facts, const ExerciseSettings& settings);

/// What is wrong with the material of a training between two tasks; "" for nothing.
std::string FaultOf(const Material& material);

}  // namespace vmod17

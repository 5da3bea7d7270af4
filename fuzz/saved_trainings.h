// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>
#include <vector>

#include "base/tagged_value.h"
#include "exercise/settings_record.h"

namespace vmod17 {

/// What a run has left in the store.
struct SavedTraining {
  std::string name;
  TaggedValue::Array e1;
  TaggedValue::Array a1;
  ExerciseSettings settings;  ///< of the run that saved it
};

/// Trainings of many settings, each played and saved by the whole program: one just begun, one in
/// its middle, one nearer to its end. Errors: std::runtime_error when one could not be saved.
std::vector<SavedTraining> SavedTrainings();

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <vector>

#include "base/tagged_value.h"
#include "catalogue/chord_board.h"
#include "exercise/counters.h"
#include "exercise/settings_record.h"

namespace vmod17 {

/// The state of a training that was left, as it is kept until it is taken up again.
///
/// With n entries in the material and m on the board, which are equal, the stored list holds
/// 6n + 3m + 6 elements, all texts: "true"; the n entries of the material in its order; their n
/// weights; m; Klangtyp, row and group of each board entry; for each row of the material the entry
/// and its counters in the columns 0 to 2; right, wrong and repeated; `fehl_max`.
struct StoredTraining {
  static constexpr int kSpalten = 3;  ///< columns of the counters that are kept

  std::vector<std::array<int, 2>> mat_tab;  ///< entry and weight, in the order of the material
  std::vector<BoardEntry> akk_tab;          ///< the board; the Klang numbers are not kept
  /// By row of the material: what the counters of its entry hold.
  std::vector<std::array<float, kSpalten>> auswertung;
  int richtig = 0;
  int falsch = 0;
  int wiederholt = 0;
  int fehl_max = 0;

  TaggedValue::Array Write() const;
  /// Reads a stored list. Errors: RunTimeError kTypeMismatch when no run with these settings can
  /// have left this state. What the board may hold is `ChordBoard::Uebernimm`'s to say.
  static StoredTraining Read(const TaggedValue::Array& ablage_ar, const ExerciseSettings& settings);
};

/// What stands in the place of a training that was solved or given up.
inline TaggedValue::Array KeinTraining() { return {"False"}; }

}  // namespace vmod17

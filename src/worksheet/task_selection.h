// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "catalogue/chord_board.h"
#include "platform/random.h"
#include "settings/settings_record.h"
#include "worksheet/run_state.h"

namespace vmod17 {

/// Draws the chords and roots of the tasks.
class TaskSelection {
 public:
  /// Attempts at one slot or one root after which a draw is given up.
  static constexpr int kVersuche = 20000;

  TaskSelection(const ExerciseSettings& settings, const ChordBoard& board, Random& random);

  /// Seeds the generator for a run; `clock` as from `EventLoop::Clock`.
  void Saeen(float clock);
  /// Sets the range of the roots and, for a run on one root, draws it.
  void BereiteVor(RunState& run);
  /// Draws the chords of all slots of the next task, without playing it.
  /// Errors: RunTimeError kNothingToDraw when every draw is refused.
  void Ziehe(RunState& run);

 private:
  void ZieheGrundton(RunState& run);
  void BaueKlang(RunState& run, int slot);
  bool IstWiederholung(const RunState& run, int slot) const;

  const ExerciseSettings& settings_;
  const ChordBoard& board_;
  Random& random_;
};

}  // namespace vmod17

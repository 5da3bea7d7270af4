// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "catalogue/chord_board.h"
#include "exercise/counters.h"
#include "exercise/settings_record.h"
#include "ports/random.h"
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
  /// Begins the material of a test of `aufgaben` tasks, of which the bag covers one half.
  void BeginneTest(RunState& run, Auswertung& auswertung);
  /// Sets the range of the roots and, for a run on one root, draws it.
  void BereiteVor(RunState& run);
  /// Draws the chords of all slots of the next task, without playing it.
  /// From the bag, as long as it gives what can be asked; otherwise, and in free practice, from the
  /// whole board. Errors: RunTimeError kNothingToDraw when every draw is refused.
  void Ziehe(RunState& run);

 private:
  void ZieheSlot(RunState& run, int slot);
  int ZieheEintrag(RunState& run, bool gewichtet);
  int ZieheAusDerTasche(Material& material);
  int ZieheGewichtet(const Material& material);
  /// A whole number from 1 to `n`.
  int Wuerfle(double n);
  void ZieheGrundton(RunState& run);
  void BaueKlang(RunState& run, int slot);
  bool IstWiederholung(const RunState& run, int slot) const;

  const ExerciseSettings& settings_;
  const ChordBoard& board_;
  Random& random_;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "catalogue/chord_board.h"
#include "exercise/counters.h"
#include "exercise/run_events.h"
#include "exercise/settings_record.h"
#include "worksheet/run_state.h"

namespace vmod17 {

/// Points of a right first click, before repeats and slowness take their share.
inline constexpr float kErsterKlickRichtig = -4;

/// Surcharge for a slow right answer.
///
/// `t`     answer time in tenths of a second, as measured from the end of the sound
/// `frei`  time that costs nothing, in tenths of a second
/// Returns points >= 0: 0 up to `frei`, 1.0 for the first tenth over, then 0.1 for each two.
/// Errors: none.
float ZeitZuschlag(float t, int frei);

/// Turns the answers of a finished task into points, weights and counters.
class Scoring {
 public:
  Scoring(const ExerciseSettings& settings, const ChordBoard& board, Auswertung& auswertung)
      : settings_(settings), board_(board), auswertung_(auswertung) {}

  /// Scores the slots 1 to `count` - 1. In a training it changes the weights and puts the material
  /// in order; whether the training goes on is `TrainingStand`.
  void AufgabeWerten(RunState& run, int count);

 private:
  float Endpunkte(const TaskAnswers& answers, int slot) const;
  void Verwechselt(RunState& run, int slot);
  void TrefferBuchen(const RunState& run, int entry, int slot);

  const ExerciseSettings& settings_;
  const ChordBoard& board_;
  Auswertung& auswertung_;
};

/// Tells how the training stands, and brings `mat_rest` of one that has ended to the end of its
/// scale.
TrainingStand PruefeTraining(Material& material);

}  // namespace vmod17

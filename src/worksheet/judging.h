// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "catalogue/chord_board.h"
#include "exercise/counters.h"
#include "exercise/run_events.h"
#include "exercise/settings_record.h"
#include "ports/random.h"
#include "worksheet/run_state.h"
#include "worksheet/scoring.h"

namespace vmod17 {

/// Leads a task from its first slot to its end. Each step moves the state of the run on and tells
/// what it has decided; nothing is shown, played or written down here.
///
///     const AnswerGiven antwort = judging.AntwortSetzen(run, 7, loop.Clock());
///     if (antwort.danach == LaufStatus::kAufgabeFertig) judging.AufgabeBeenden(run);
class Judging {
 public:
  Judging(const ExerciseSettings& settings, const ChordBoard& board, Auswertung& auswertung,
          Random& random);

  /// Opens the first slot of the task that was drawn.
  TaskAsked AufgabeStellen(RunState& run) const;
  /// Judges a click on tile or group button `gewaehlt`, at `uhr` as from `EventLoop::Clock`. The
  /// slot that it closes is followed by the next one; after the last the task is to be ended.
  AnswerGiven AntwortSetzen(RunState& run, int gewaehlt, float uhr) const;
  /// Ends the task: scores it, but in free practice, and tells whether the run goes on.
  TaskClosed AufgabeBeenden(RunState& run);

 private:
  bool NachAkkorden() const { return settings_.best_art == 0; }
  const BoardEntry& Gefragt(const RunState& run, int slot) const {
    return board_[run.task.aufg_akk_ar.at(slot)];
  }
  /// The right choice for a slot: its tile, or the button of its group.
  int RichtigeWahl(const RunState& run, int slot) const;
  void Richtig(RunState& run) const;
  void Falsch(RunState& run, int gewaehlt) const;
  bool IstVerloren(const RunState& run, int slot) const;
  static void WeitererVersuch(RunState& run, int gewaehlt, float uhr);
  void NaechsterAkkord(RunState& run, float uhr) const;
  TrainingStand WerteTraining(RunState& run) const;
  void ZaehleTestaufgabe(RunState& run);

  const ExerciseSettings& settings_;
  const ChordBoard& board_;
  Auswertung& auswertung_;
  Random& random_;
  Scoring scoring_;
};

}  // namespace vmod17

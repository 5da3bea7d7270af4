// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <algorithm>
#include <array>
#include <optional>

#include "exercise/run_events.h"
#include "exercise/settings_record.h"
#include "settings/time_limit.h"
#include "sound/chord_playback.h"
#include "worksheet/material.h"

namespace vmod17 {

/// What a playing is.
enum class SpielArt { kAufgabe = 0, kWiederholung = 1, kKontrolle = 2 };

/// What a run is at.
enum class Phase {
  kAufbau,     ///< the worksheet is being built
  kAngebot,    ///< the next task is offered, by the button or by itself
  kUebergang,  ///< a playing is to begin or to end, and is waited for
  kSpiel,      ///< a playing sounds
  kAntwort,    ///< the open slot can be answered
  kUngehoert,  ///< the task could not be played, and waits to be asked for again
  kOhneKlang,  ///< the sound was lost, and is being looked for
  kZuEnde,     ///< the training or test is over
  kVerlassen,  ///< the worksheet is being left
};

/// What went on when the sound was lost.
enum class KlangVerlust {
  kSpiel,    ///< a playing
  kAntwort,  ///< the student answered
  kAngebot,  ///< neither: the next task was offered
};

/// The answers of the present task, by slot from 1.
struct TaskAnswers {
  std::array<float, kSlots + 1> fehl_ar{};  ///< points of a slot: 2 for each wrong click
  std::array<std::array<int, 5>, kSlots + 1> falsch_ar{};  ///< wrong tiles, by number of the click
  std::array<int, kSlots + 1> whlg_ar{};    ///< repeats asked for while the slot was open
  std::array<float, kSlots + 1> zeit_ar{};  ///< time surcharge of a right first click
  int geloest = 0;                          ///< slots answered rightly, at whichever click
};

/// The clock of the open slot.
struct AnswerClock {
  float antw_start = 0;  ///< seconds since midnight at which it last started
  float antw_ende = 0;   ///< seconds since midnight of the last click or repeat
  float antw_dauer = 0;  ///< seconds gathered so far; from a click on, tenths of a second
  int anz_whlg = 0;      ///< repeats since the last answer
  int antw_frei = 0;     ///< time that costs nothing, in tenths of a second
  int antw_lfd = 0;      ///< number of the present answer within the slot, from 1
};

/// The counters of the run, as the student sees them.
struct RunCount {
  static constexpr int kHoechsteZahl = 32767;  ///< of a stored Integer

  int richtig = 0;
  int falsch = 0;
  int wiederholt = 0;

  /// Adds 1 to one of them, which stops at the highest number that can be stored.
  static void Erhoehe(int& zahl) { zahl = std::min(zahl + 1, kHoechsteZahl); }
};

/// Which chord opened a task; -1 before the first one.
struct LastChord {
  int klangtyp = -1;
  int row = -1;
};

/// The state of a run. It starts anew with each worksheet.
struct RunState {
  PlaybackTask task;
  TaskAnswers answers;
  AnswerClock clock;
  Material material;
  TestRest test;
  RunCount count;
  std::array<int, kBrettGroesse + 1>
      aus_ar{};  ///< 1 for each tile or group struck in the open slot

  int grundton = 0;               ///< root of the chord last built, a MIDI note
  int ton_bereich = 0;            ///< width of the range of roots, in semitones
  std::array<int, 4> oktav_ar{};  ///< octaves of the Tonraum by `oktav_ber`
  LastChord letzt_akk;            ///< the first chord of the previous task
  int letzt_ton = 0;              ///< its lowest note

  int akk_nr = 0;  ///< the open slot; one more than `akk_anzahl` when the task is finished
  LaufStatus lauf_status = LaufStatus::kNochKeine;
  Phase phase = Phase::kAufbau;
  SpielArt spiel_art = SpielArt::kAufgabe;
  float spiel_start = 0;      ///< seconds since midnight at which the last playing began to sound
  bool klang_war_da = false;  ///< there was sound in this run
  std::optional<KlangVerlust> verlust;  ///< what the loss cut off, until that is made up for
  bool stockte = false;        ///< the last playing came to a standstill on an output that is there
  bool abbruch = false;        ///< set with `Phase::kVerlassen`, for what waits
  bool gescheitert = false;    ///< an error has ended the run: nothing of it is to be saved
  bool aufgezeichnet = false;  ///< the record has its end
  int schalter_zaehler = 0;    ///< 1 from the first finished task on
};

/// True between two tasks: none is being played or answered, and none comes by itself or costs
/// time.
bool Wartet(const RunState& run, const ExerciseSettings& settings);
/// What a loss of the sound would cut off now; none where that is dealt with otherwise, or nothing
/// goes on.
std::optional<KlangVerlust> WasLaeuft(const RunState& run);
/// What the loss of the present playing is: of a replay, the same as the loss before it.
KlangVerlust VerlustDesSpiels(const RunState& run);

}  // namespace vmod17

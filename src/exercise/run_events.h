// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <vector>

#include "catalogue/chord_board.h"

// What a run does, as values. Who decides makes one; the screen shows it, the record writes it
// down, and whatever else wants to know of it reads the same value.

namespace vmod17 {

/// Where a run stands.
enum class LaufStatus {
  kNochKeine = 0,        ///< no slot answered yet
  kAufgabeFertig = 1,    ///< the next task may be called
  kNaechsterSlot = 2,    ///< the next slot of the task is open
  kWeitererVersuch = 3,  ///< a wrong click was made, the slot stays open
  kTrainingZuEnde = 4,   ///< solved, or too hard
  kTestZuEnde = 5,       ///< no tasks left
};

/// How a training stands after a task.
enum class TrainingStand { kGehtWeiter, kGeloest, kZuSchwer };

/// One chord of a task.
struct AskedChord {
  int eintrag = 0;  ///< its place on the board
  BoardEntry akkord;
  int tiefster_ton = 0;  ///< a MIDI note
  bool operator==(const AskedChord&) const = default;
};

/// A task was drawn, and its first slot waits for an answer.
struct TaskAsked {
  std::vector<AskedChord> akkorde;  ///< by slot; slot 1 stands first
  bool operator==(const TaskAsked&) const = default;
};

/// A click on a tile or a group button was judged.
struct AnswerGiven {
  int slot = 0;                  ///< the slot that was open, from 1
  int antw_lfd = 0;              ///< number of the click within the slot, from 1
  int gefragt = 0;               ///< the right choice: a tile, or a group button
  int gewaehlt = 0;              ///< the choice that was clicked
  BoardEntry gefragter_akkord;   ///< the chord that was played
  BoardEntry gewaehlter_akkord;  ///< the chord of the tile that was clicked; a button's group alone
  bool richtig = false;
  float antw_dauer =
      0;             ///< tenths of a second since the sound or the click before, without repeats
  int anz_whlg = 0;  ///< repeats since the last answer
  float punkte = 0;  ///< of the slot up to now: 2 for each wrong click, -4 right at the first
  LaufStatus danach = LaufStatus::kNochKeine;  ///< kWeitererVersuch, kNaechsterSlot, kAufgabeFertig

  /// Whether the click closed the slot without its solution.
  bool Verloren() const { return !richtig && danach != LaufStatus::kWeitererVersuch; }
  bool operator==(const AnswerGiven&) const = default;
};

/// The last slot of a task was closed, and the task was scored.
struct TaskClosed {
  int geloest = 0;            ///< slots answered rightly, at whichever click
  std::vector<float> punkte;  ///< by slot, slot 1 first; the lowest are the best
  TrainingStand training = TrainingStand::kGehtWeiter;
  LaufStatus danach = LaufStatus::kNochKeine;  ///< kAufgabeFertig, kTrainingZuEnde, kTestZuEnde
  bool operator==(const TaskClosed&) const = default;
};

}  // namespace vmod17

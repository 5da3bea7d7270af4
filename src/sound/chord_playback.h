// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <functional>

#include "catalogue/chord_board.h"
#include "exercise/settings_record.h"
#include "ports/event_loop.h"
#include "ports/random.h"
#include "shell/app_state.h"
#include "sound/mod_midi.h"
#include "sound/note_queue.h"

namespace vmod17 {

inline constexpr int kSlots = 4;  ///< chords of a task at the most

/// What a playing reads: the chords of a task as MIDI notes, and what was drawn for them. Slots
/// count from 1.
struct PlaybackTask {
  std::array<int, kSlots + 1> aufg_akk_ar{};                ///< board entry by slot
  std::array<std::array<int, 8>, kSlots + 1> akk_ton_ar{};  ///< MIDI notes by slot, root first
  /// By slot: columns 0 to 6 the random order as note indexes, 7 to 13 the marks of used ones.
  std::array<std::array<int, 14>, kSlots + 1> arp_folge_ar{};
  int ton_stimmung = 0;     ///< detuning, -15 to 15 of the 64 steps to each side of the centre
  int ton_stimmung_vz = 0;  ///< its sign, -1 or 1
  int kanal = 0;            ///< channel of the note being queued
};

/// Turns the chords of a task into a queue of timed notes, and starts it.
class ChordPlayback {
 public:
  ChordPlayback(EventLoop& loop, ModMIDI& midi, const AppState& state,
                const ExerciseSettings& settings, const ChordBoard& board);

  /// Queues and starts the task, and returns when it has begun to sound; returns early, with
  /// nothing started, when `abbruch` is set meanwhile. `dauert` is called when the output keeps it
  /// waiting.
  Spielstand SpieleAufgabe(PlaybackTask& task, const bool& abbruch,
                           const std::function<void()>& dauert);

  /// Draws the detuning of a task.
  static void TonhoeheWuerfeln(PlaybackTask& task, Random& random);
  /// Draws the order of the notes 0 to `letzte_note` of a slot.
  static void ArpeggioMischen(PlaybackTask& task, int slot, int letzte_note, Random& random);

 private:
  EventLoop& loop_;
  ModMIDI& midi_;
  const ExerciseSettings& settings_;
  const ChordBoard& board_;
  NoteQueue queue_;
};

}  // namespace vmod17

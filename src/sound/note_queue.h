// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <span>

#include "exercise/settings_record.h"
#include "shell/app_state.h"
#include "sound/mod_midi.h"

namespace vmod17 {

/// Puts chords in the queue of the output, note by note, as tempo, arpeggio, timbre and accent say.
/// Chord follows chord without a gap; every note of a chord ends a tenth of its length before the
/// next one begins.
class NoteQueue {
 public:
  /// `akzent` is the velocity that an accented root gains, up to 127 in all.
  NoteQueue(ModMIDI& midi, const AppState& state, const ExerciseSettings& settings, int akzent);

  /// Queues a chord. `slot` is its place in time, from 1; `noten` its MIDI notes, the root first;
  /// `folge` the order of the note indexes for a random arpeggio, otherwise not read; `kanal` the
  /// channel that one timbre for all plays on, and afterwards the channel of the last note.
  void ReiheEin(int slot, std::span<const int> noten, std::span<const int> folge, int& kanal);

 private:
  void ReiheNoteEin(int slot, int note, int j, int k, int kanal);

  ModMIDI& midi_;
  const AppState& state_;
  const ExerciseSettings& settings_;
  int akzent_;
};

}  // namespace vmod17

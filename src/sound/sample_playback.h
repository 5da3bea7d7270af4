// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <vector>

#include "exercise/settings_record.h"
#include "ports/random.h"
#include "sound/note_queue.h"

namespace vmod17 {

/// The sample of the sound check: stacks of thirds in the timbre and the range of the settings. It
/// is no chord of the exercise.
class SamplePlayback {
 public:
  SamplePlayback(ModMIDI& midi, const AppState& state, const ExerciseSettings& settings,
                 Random& random);

  /// Builds one chord of `noten` notes for each chord of a task.
  void Baue(int noten);
  /// Puts the sample in the queue.
  void ReiheEin();

 private:
  std::vector<int> WuerfleFolge(int noten);

  const ExerciseSettings& settings_;
  Random& random_;
  NoteQueue queue_;
  std::vector<std::vector<int>> klaenge_;  // MIDI notes by slot, from 0
};

}  // namespace vmod17

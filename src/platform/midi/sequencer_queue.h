// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <fluidsynth.h>

#include <atomic>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "platform/midi/midi_message.h"

namespace vmod17 {

/// One playing of the time-stamped queue, in a sequencer of FluidSynth that stands at time 0 until
/// `Advance` moves it. Whoever owns the clock advances it: the audio callback of the synthesiser,
/// counting frames, or the sound thread.
///
/// Messages whose times agree to a hundredth of a millisecond are one event of the sequencer, so
/// they leave in one call, in the order in which they were queued.
///
/// Not synchronised but for `IsOver`: one thread at a time.
class SequencerQueue {
 public:
  using Sink = std::function<void(std::span<const MidiBytes>)>;

  /// `on_over` is called once, inside the `Advance` that sent the last message; for a queue without
  /// messages inside the first one. It may run on the audio thread.
  SequencerQueue(std::vector<TimedMessage> messages, std::function<void()> on_over);

  /// Gives `sink` everything up to `ms` after the start. Time never runs backwards.
  void Advance(double ms, const Sink& sink);

  /// Any thread.
  bool IsOver() const { return told_; }
  /// Milliseconds from the start to the next message; the last one's time when all have left.
  double NextTime() const;

 private:
  struct Group {
    unsigned int tick;
    std::vector<MidiBytes> messages;
  };
  struct DeleteSequencer {
    void operator()(fluid_sequencer_t* sequencer) const { delete_fluid_sequencer(sequencer); }
  };

  static void OnEvent(unsigned int time, fluid_event_t* event, fluid_sequencer_t* sequencer,
                      void* self);
  void FillSequencer();

  std::vector<Group> groups_;
  std::size_t sent_ = 0;
  std::atomic<bool> told_ = false;
  std::function<void()> on_over_;
  const Sink* sink_ = nullptr;  // only inside Advance
  std::unique_ptr<fluid_sequencer_t, DeleteSequencer> sequencer_;
};

}  // namespace vmod17

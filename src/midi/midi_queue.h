// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <atomic>
#include <cstddef>
#include <functional>
#include <set>
#include <span>
#include <vector>

#include "midi/midi_message.h"
#include "ports/midi_output.h"

namespace vmod17 {

/// One playing of the time-stamped queue, which stands at time 0 until `Advance` moves it. Whoever
/// owns the clock advances it: the audio callback of the synthesiser, counting frames, or the sound
/// thread.
///
/// Messages whose times agree to a hundredth of a millisecond leave in one call, in the order in
/// which they were queued.
///
/// Not synchronised but for `IsOver` and `Time`: one thread at a time.
class MidiQueue {
 public:
  using Sink = std::function<void(std::span<const MidiBytes>)>;
  using Tell = std::function<void(MidiQueueStand)>;

  /// `tell` is called once for each stand: kLaeuft inside the first `Advance`, unless the queue is
  /// mute, and kRuht inside the one that sent the last message; for a queue without messages inside
  /// the first one. It may run on the audio thread.
  MidiQueue(std::vector<TimedMessage> messages, Tell tell);

  /// The queue goes on, but cannot be heard any more.
  void Mute();

  /// Gives `sink` everything up to `ms` after the start. Time never runs backwards: a queue that
  /// has been further stays where it is.
  void Advance(double ms, const Sink& sink);

  /// Any thread.
  bool IsOver() const { return over_; }
  /// Any thread: milliseconds from the start that have passed.
  double Time() const { return time_; }
  /// Milliseconds from the start to the next message; the last one's time when all have left.
  double NextTime() const;
  /// The channels that have a message.
  std::set<int> Channels() const;

 private:
  std::vector<double> ticks_;        // when each leaves, the earliest first
  std::vector<MidiBytes> messages_;  // in the order of `ticks_`
  std::size_t sent_ = 0;
  bool begun_ = false;
  bool mute_ = false;
  std::atomic<bool> over_ = false;
  std::atomic<double> time_ = 0;
  const Tell tell_;
};

}  // namespace vmod17

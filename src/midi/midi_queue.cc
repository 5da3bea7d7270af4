// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "midi/midi_queue.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace vmod17 {
namespace {

// Fine enough for the frames of a sound card, and coarse enough to take two times for one that
// differ in their last digits alone.
constexpr double kTicksPerMs = 100;

/// What is no number counts as 0, like what is below it.
double TickOf(double ms) { return std::round(std::max(0.0, ms) * kTicksPerMs); }

}  // namespace

MidiQueue::MidiQueue(std::vector<TimedMessage> messages, Tell tell) : tell_(std::move(tell)) {
  const auto tick_of = [](const TimedMessage& message) { return TickOf(message.zeit); };
  std::ranges::stable_sort(messages, {}, tick_of);
  std::ranges::transform(messages, std::back_inserter(ticks_), tick_of);
  std::ranges::transform(messages, std::back_inserter(messages_), &TimedMessage::bytes);
}

void MidiQueue::Mute() {
  if (!std::exchange(mute_, true)) tell_(MidiQueueStand::kStumm);
}

void MidiQueue::Advance(double ms, const Sink& sink) {
  const double now = std::max(time_.load(), ms);
  while (sent_ < ticks_.size() && ticks_[sent_] <= TickOf(now)) {
    const auto first = ticks_.begin() + static_cast<std::ptrdiff_t>(sent_);
    const auto together = std::upper_bound(first, ticks_.end(), *first) - first;
    sink(std::span(messages_).subspan(sent_, static_cast<std::size_t>(together)));
    sent_ += static_cast<std::size_t>(together);
  }
  time_ = now;
  if (!std::exchange(begun_, true) && !mute_) tell_(MidiQueueStand::kLaeuft);
  if (sent_ == messages_.size() && !over_.exchange(true)) tell_(MidiQueueStand::kRuht);
}

double MidiQueue::NextTime() const {
  if (ticks_.empty()) return 0;
  return ticks_[std::min(sent_, ticks_.size() - 1)] / kTicksPerMs;
}

std::set<int> MidiQueue::Channels() const {
  std::set<int> channels;
  for (const MidiBytes& message : messages_) channels.insert(message.channel());
  return channels;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "midi/midi_queue.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

namespace vmod17 {
namespace {

// The sequencer counts what it is told; left at its scale of one tick for each step of its clock,
// the ticks can be finer than the milliseconds for which it was made. 32 bits last for 11 hours.
constexpr double kTicksPerMs = 100;

unsigned int TickOf(double ms) {
  const double tick = std::round(ms * kTicksPerMs);
  return static_cast<unsigned int>(
      std::clamp(tick, 0.0, double{std::numeric_limits<unsigned int>::max()}));
}

}  // namespace

MidiQueue::MidiQueue(std::vector<TimedMessage> messages, Tell tell)
    : tell_(std::move(tell)), sequencer_(new_fluid_sequencer2(0)) {
  std::ranges::stable_sort(messages, {},
                           [](const TimedMessage& message) { return TickOf(message.zeit); });
  for (const TimedMessage& message : messages) {
    const unsigned int tick = TickOf(message.zeit);
    if (groups_.empty() || groups_.back().tick != tick) groups_.push_back({tick, {}});
    groups_.back().messages.push_back(message.bytes);
  }
  FillSequencer();
}

void MidiQueue::FillSequencer() {
  const fluid_seq_id_t client =
      fluid_sequencer_register_client(sequencer_.get(), "queue", &OnEvent, this);
  std::unique_ptr<fluid_event_t, void (*)(fluid_event_t*)> event(new_fluid_event(),
                                                                 &delete_fluid_event);
  fluid_event_set_source(event.get(), -1);
  fluid_event_set_dest(event.get(), client);
  for (std::size_t i = 0; i < groups_.size(); ++i) {
    fluid_event_timer(event.get(), reinterpret_cast<void*>(static_cast<std::uintptr_t>(i)));
    fluid_sequencer_send_at(sequencer_.get(), event.get(), groups_[i].tick, 1);
  }
}

void MidiQueue::OnEvent(unsigned int, fluid_event_t* event, fluid_sequencer_t*, void* self) {
  if (fluid_event_get_type(event) != FLUID_SEQ_TIMER) return;
  auto* queue = static_cast<MidiQueue*>(self);
  const auto index = reinterpret_cast<std::uintptr_t>(fluid_event_get_data(event));
  (*queue->sink_)(queue->groups_[index].messages);
  ++queue->sent_;
}

void MidiQueue::Mute() {
  if (!std::exchange(mute_, true)) tell_(MidiQueueStand::kStumm);
}

void MidiQueue::Advance(double ms, const Sink& sink) {
  sink_ = &sink;
  fluid_sequencer_process(sequencer_.get(), TickOf(ms));
  sink_ = nullptr;
  time_ = ms;
  if (!std::exchange(begun_, true) && !mute_) tell_(MidiQueueStand::kLaeuft);
  if (sent_ == groups_.size() && !over_.exchange(true)) tell_(MidiQueueStand::kRuht);
}

double MidiQueue::NextTime() const {
  if (groups_.empty()) return 0;
  return groups_[std::min(sent_, groups_.size() - 1)].tick / kTicksPerMs;
}

std::set<int> MidiQueue::Channels() const {
  std::set<int> channels;
  for (const Group& group : groups_) {
    for (const MidiBytes& message : group.messages) channels.insert(message.channel());
  }
  return channels;
}

}  // namespace vmod17

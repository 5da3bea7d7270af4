// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "midi/port_device.h"

#include <cmath>
#include <utility>
#include <vector>

namespace vmod17 {
namespace {

constexpr int kChannelVolume = 7;  // controller of MIDI 1.0
/// What General MIDI gives a channel to begin with. Full volume is this and not 127, so that who
/// changes nothing hears the instrument as it is.
constexpr int kNormalVolume = 100;

}  // namespace

PortDevice::PortDevice(MidiPorts& ports, std::string name, std::function<void()> on_vanished)
    : ports_(ports),
      name_(std::move(name)),
      on_vanished_(std::move(on_vanished)),
      volume_(kNormalVolume) {
  volumes_.fill(kNormalVolume);
}

PortDevice::~PortDevice() { Close(); }

void PortDevice::Open(const Programs& programs) {
  CheckPresence();
  std::vector<MidiBytes> messages;
  if (!port_) {
    port_ = ports_.Open(name_);
    if (!port_) {
      Lose();
      return;
    }
    told_ = false;
    volumes_.fill(kNormalVolume);
    // Only a fresh connection needs the programs: some instruments break off what they play to
    // load a timbre, even the one they have.
    for (int channel = 0; channel < kMidiChannels; ++channel) {
      const int program = programs[static_cast<std::size_t>(channel)];
      if (program >= 0) messages.push_back({MidiBytes::kProgram + channel, program, 0});
    }
  }
  const auto bends = CentredPitchBends();
  messages.insert(messages.end(), bends.begin(), bends.end());
  Send(messages);
}

void PortDevice::Close() {
  std::vector<MidiBytes> offs;
  for (std::size_t channel = 0; channel < sounding_.size(); ++channel) {
    for (std::size_t note = 0; note < sounding_[channel].size(); ++note) {
      if (!sounding_[channel][note]) continue;
      offs.push_back({MidiBytes::kNoteOff + static_cast<int>(channel), static_cast<int>(note), 0});
    }
  }
  Send(offs);
  sounding_ = {};
  used_ = {};
  for (std::size_t channel = 0; channel < volumes_.size(); ++channel) {
    SendVolume(channel, kNormalVolume);
  }
}

void PortDevice::SetVolume(double share) {
  volume_ = static_cast<int>(std::lround(share * kNormalVolume));
  for (std::size_t channel = 0; channel < used_.size(); ++channel) {
    if (used_[channel]) SendVolume(channel, volume_);
  }
}

void PortDevice::SendVolume(std::size_t channel, int volume) {
  if (std::exchange(volumes_[channel], volume) == volume) return;
  SendOne({MidiBytes::kControl + static_cast<int>(channel), kChannelVolume, volume});
}

void PortDevice::Send(std::span<const MidiBytes> messages) {
  for (const MidiBytes& message : messages) {
    if (message.IsChannelMessage()) SendOne(message);
  }
}

void PortDevice::SendOne(const MidiBytes& message) {
  if (message.kind() == MidiBytes::kNoteOn) {
    const auto channel = static_cast<std::size_t>(message.channel());
    used_[channel] = true;
    SendVolume(channel, volume_);
  }
  if (!port_) return;
  if (!port_->Send(message)) {
    Lose();
    return;
  }
  ++sent_;
  Track(message);
}

void PortDevice::Track(const MidiBytes& message) {
  const bool is_on = message.kind() == MidiBytes::kNoteOn && message.data2 > 0;
  const bool is_note =
      message.kind() == MidiBytes::kNoteOn || message.kind() == MidiBytes::kNoteOff;
  if (!is_note) return;
  auto& channel = sounding_[static_cast<std::size_t>(message.channel())];
  channel[static_cast<std::size_t>(message.data1)] = is_on;
}

void PortDevice::Tell(SoundFacts& facts) const {
  facts.port = name_;
  facts.sent = sent_;
  facts.is_there = port_ != nullptr;
}

void PortDevice::CheckPresence() {
  if (port_ && !port_->IsThere()) Lose();
}

void PortDevice::Lose() {
  port_.reset();
  sounding_ = {};
  if (!told_) on_vanished_();
  told_ = true;
}

}  // namespace vmod17

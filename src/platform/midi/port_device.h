// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>

#include "platform/midi/midi_device.h"
#include "platform/midi/midi_ports.h"
#include "platform/midi/sound_facts.h"

namespace vmod17 {

/// A MIDI port of the system. It stays connected while the device is closed and opened again, so a
/// reset sends no more than the note-offs of what sounds and the pitch bends.
class PortDevice : public MidiDevice {
 public:
  /// `on_vanished` is called on the sound thread, once for each time that the port is lost or found
  /// missing.
  PortDevice(MidiPorts& ports, std::string name, std::function<void()> on_vanished);
  ~PortDevice() override;

  void Open(const Programs& programs) override;
  void Close() override;
  void Send(std::span<const MidiBytes> messages) override;
  void CheckPresence() override;

  /// Enters what is known of the port.
  void Tell(SoundFacts& facts) const;

 private:
  void Lose();
  void Track(const MidiBytes& message);

  MidiPorts& ports_;
  const std::string name_;
  const std::function<void()> on_vanished_;
  std::unique_ptr<MidiPort> port_;
  bool told_ = false;
  int sent_ = 0;
  std::array<std::array<bool, 128>, kMidiChannels> sounding_{};
};

}  // namespace vmod17

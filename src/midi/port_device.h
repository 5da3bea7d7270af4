// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>

#include "midi/midi_device.h"
#include "midi/midi_ports.h"
#include "midi/sound_facts.h"

namespace vmod17 {

/// A MIDI port of the system. It stays connected while the device is closed and opened again, so a
/// reset sends no more than the note-offs of what sounds, the pitch bends, and the channel volume
/// where it is not the normal one.
class PortDevice : public MidiDevice {
 public:
  /// `on_vanished` is called on the sound thread, once for each time that the port is lost or found
  /// missing.
  PortDevice(MidiPorts& ports, std::string name, std::function<void()> on_vanished);
  ~PortDevice() override;

  void Open(const Programs& programs) override;
  void Close() override;
  void Send(std::span<const MidiBytes> messages) override;
  bool IsAudible() const override { return port_ != nullptr; }
  void CheckPresence() override;

  /// Sets the volume of the channels that have had a note since `Open`; one that gets its first
  /// note later gets the volume just before it. `share` of the normal volume, 0 to 1.
  void SetVolume(double share);

  /// Enters what is known of the port.
  void Tell(SoundFacts& facts) const;

 private:
  void Lose();
  void SendOne(const MidiBytes& message);
  void SendVolume(std::size_t channel, int volume);
  void Track(const MidiBytes& message);

  MidiPorts& ports_;
  const std::string name_;
  const std::function<void()> on_vanished_;
  std::unique_ptr<MidiPort> port_;
  bool told_ = false;
  int sent_ = 0;
  int volume_;                              // wanted
  std::array<int, kMidiChannels> volumes_;  // as the port has them
  std::array<bool, kMidiChannels> used_{};  // had a note since `Open`
  std::array<std::array<bool, 128>, kMidiChannels> sounding_{};
};

}  // namespace vmod17

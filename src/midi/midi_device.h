// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <span>

#include "midi/midi_message.h"

namespace vmod17 {

/// The messages that put the pitch bend of the channels in use to its centre.
std::array<MidiBytes, kUsedChannels> CentredPitchBends();

/// One device of the list. All members are called on the sound thread alone. None fails: a device
/// that is gone plays nothing.
class MidiDevice {
 public:
  virtual ~MidiDevice() = default;

  /// Centres the pitch bend of the channels in use and sees that `programs` are the device's.
  virtual void Open(const Programs& programs) = 0;
  /// Silences what sounds. May be followed by `Open`, which then is quick.
  virtual void Close() = 0;
  /// Sends now, all together.
  virtual void Send(std::span<const MidiBytes> messages) = 0;
  /// Whether what is sent now can be heard.
  virtual bool IsAudible() const = 0;
  /// Called twice a second or so while the device is open.
  virtual void CheckPresence() {}
};

/// What stands for a device number that names none.
class SilentDevice : public MidiDevice {
 public:
  void Open(const Programs&) override {}
  void Close() override {}
  void Send(std::span<const MidiBytes>) override {}
  bool IsAudible() const override { return false; }
};

}  // namespace vmod17

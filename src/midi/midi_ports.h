// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "midi/midi_message.h"

namespace vmod17 {

/// A connection to one MIDI port of the system. One thread at a time.
class MidiPort {
 public:
  virtual ~MidiPort() = default;
  /// False when the port has taken nothing because it is gone.
  virtual bool Send(const MidiBytes& message) = 0;
  /// Whether the system still knows the port. Costs a fraction of a millisecond.
  virtual bool IsThere() = 0;
};

/// The MIDI ports of the system that take messages. Any thread.
class MidiPorts {
 public:
  virtual ~MidiPorts() = default;
  /// Connects to the system, so that a later `Names` knows all.
  virtual void Prepare() {}
  /// Waits until the system has been asked for its ports, half a second at most.
  virtual void Await() {}
  /// UTF-8, in the order of the system; two ports never have the same name. Where connecting takes
  /// long it goes on beside the program, and the ports are there at a later call.
  virtual std::vector<std::string> Names() = 0;
  /// Null when there is no port of that name or it cannot be opened.
  virtual std::unique_ptr<MidiPort> Open(const std::string& name) = 0;
};

/// A port's name without the number by which ALSA addresses it (" 24:0"), which is another one each
/// time that the device is plugged in.
std::string LastingPortName(const std::string& name);

/// The number of the device of this name among `names`, or of the first whose name holds it; none
/// when there is no such device.
std::optional<int> FindDevice(const std::vector<std::string>& names, const std::string& part);

/// The ports as RtMidi finds them: on Linux those of ALSA, and where ALSA has no sequencer those of
/// a JACK server that runs already. None at all is no error.
std::unique_ptr<MidiPorts> MakeSystemMidiPorts();

}  // namespace vmod17

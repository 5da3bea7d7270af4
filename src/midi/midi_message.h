// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <cstddef>

namespace vmod17 {

inline constexpr int kMidiChannels = 16;
inline constexpr int kUsedChannels = 8;  ///< the program plays on channels 0 to 7 alone

/// One channel message of MIDI 1.0.
struct MidiBytes {
  int status = 0;  ///< kind + channel, 128 to 239; anything else is not sent
  int data1 = 0;   ///< 0 to 127
  int data2 = 0;   ///< 0 to 127; a program change has none

  enum Kind {
    kNoteOff = 0x80,
    kNoteOn = 0x90,
    kKeyPressure = 0xA0,
    kControl = 0xB0,
    kProgram = 0xC0,
    kChannelPressure = 0xD0,
    kPitchBend = 0xE0,
  };

  int kind() const { return status & 0xF0; }
  int channel() const { return status & 0x0F; }
  bool IsChannelMessage() const { return status >= kNoteOff && status < 0xF0; }
  /// Bytes on the wire.
  std::size_t size() const { return kind() == kProgram || kind() == kChannelPressure ? 2 : 3; }
};

/// The program last sent to each channel, -1 where none was.
using Programs = std::array<int, kMidiChannels>;

/// A message of the queue.
struct TimedMessage {
  double zeit = 0;  ///< milliseconds from the start of the queue; below 0 counts as 0
  MidiBytes bytes;
  int marke = 0;
};

}  // namespace vmod17

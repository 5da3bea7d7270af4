// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "midi/midi_device_output.h"
#include "posting_loop.h"

namespace vmod17 {

inline constexpr double kRate = 48000;
inline constexpr int kFullMidiVolume = 65535;

inline MidiOptions RenderedOptions(std::shared_ptr<MidiPorts> ports) {
  MidiOptions options;
  options.audio = SynthAudio::kRendered;
  options.sample_rate = kRate;
  options.ports = std::move(ports);
  return options;
}

/// The real output, rendering into memory.
class RenderedOutput {
 public:
  explicit RenderedOutput(MidiOptions options)
      : output(std::move(options), loop,
               [this](const Notice& notice) { notices.push_back(notice); }) {
    output.QueueEmpty = [this] { ++queue_empty; };
  }

  void Do(MidiBefehl befehl) { output.Set(MidiMember::Befehl, static_cast<int>(befehl)); }
  void Open(int device) {
    output.Set(MidiMember::GeraetNr, device);
    Do(MidiBefehl::kOeffnen);
  }
  /// What the program does before each playing.
  void Reset() {
    Do(MidiBefehl::kStopp);
    Do(MidiBefehl::kSchliessen);
    Do(MidiBefehl::kOeffnen);
  }
  void SetMessage(int status, int data1, int data2) {
    output.Set(MidiMember::Status, status);
    output.Set(MidiMember::Daten1, data1);
    output.Set(MidiMember::Daten2, data2);
  }
  void Send(int status, int data1, int data2) {
    SetMessage(status, data1, data2);
    Do(MidiBefehl::kSenden);
  }
  void Queue(double zeit, int status, int data1, int data2) {
    SetMessage(status, data1, data2);
    output.Set(MidiMember::Zeit, zeit);
    Do(MidiBefehl::kEinreihen);
  }
  void QueueNote(int note, double start, double dauer, int channel = 0, int velocity = 100) {
    Queue(start, 0x90 + channel, note, velocity);
    Queue(start + dauer, 0x80 + channel, note, velocity);
  }
  void Program(int channel, int program) { Send(0xC0 + channel, program, 0); }

  /// Moves the time, delivers what was posted, and returns the left side.
  std::vector<float> Render(double ms) {
    const auto frames = static_cast<std::size_t>(ms * kRate / 1000);
    std::vector<float> left(frames);
    right.assign(frames, 0);
    output.Render(left.data(), right.data(), static_cast<int>(frames));
    loop.Yield();
    return left;
  }

  PostingLoop loop;
  std::vector<Notice> notices;
  int queue_empty = 0;
  std::vector<float> right;  ///< of the last Render
  MidiDeviceOutput output;
};

}  // namespace vmod17

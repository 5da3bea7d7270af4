// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <future>
#include <memory>
#include <string>
#include <vector>

#include "midi/midi_device_output.h"
#include "midi/midi_options.h"
#include "ports/event_loop.h"
#include "programs/host/verdict.h"

namespace melvado {

/// Plays a chord of four notes on one output and tells what became of it.
class SoundTest {
 public:
  using Done = std::function<void(const Verdict&)>;

  /// `options`  for each test; its soundfont is not used
  /// `loop`     outlives the test
  SoundTest(vmod17::MidiOptions options, vmod17::EventLoop& loop)
      : options_(std::move(options)), loop_(loop) {}
  ~SoundTest() { Stop(); }
  SoundTest(const SoundTest&) = delete;
  SoundTest& operator=(const SoundTest&) = delete;

  /// `port`       name of a MIDI port, "" for the synthesiser
  /// `soundfont`  path, "" for the usual ones
  /// `done`       called once, after some two seconds, unless the test is stopped before; a new
  ///              test may be started from there
  void Start(const std::string& port, const std::string& soundfont, Done done);
  /// Ends a test and lets go of the sound device. Waits for that no longer than a device that works
  /// may take.
  void Stop();
  bool runs() const { return done_ != nullptr; }

 private:
  void QueueChord();
  void Send(int status, int data1, int data2);
  void AskForFacts();
  void LosePatience();
  void End(const Verdict& verdict);
  void LetGo();

  const vmod17::MidiOptions options_;
  vmod17::EventLoop& loop_;
  std::unique_ptr<vmod17::MidiDeviceOutput> output_;
  std::future<void> gone_;  // tells that an earlier output has let go of its device
  std::string port_;
  std::vector<vmod17::Notice> troubles_;
  Done done_;
  int patience_ = 0;  // timer
};

}  // namespace melvado

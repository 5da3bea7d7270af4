// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "base/notice.h"
#include "midi/midi_device.h"
#include "midi/midi_ports.h"
#include "midi/midi_queue.h"
#include "midi/port_device.h"
#include "midi/sound_facts.h"
#include "midi/synth_device.h"
#include "ports/midi_output.h"

namespace vmod17 {

/// Which device of the list is meant. A port goes by its name: its number may be another's by now.
struct DeviceChoice {
  enum class Kind { kSynth, kPort, kNone };
  Kind kind = Kind::kNone;
  std::string port;  ///< for kPort
  int number = 0;    ///< for kNone: what was asked for
  int count = 0;     ///< for kNone: how many devices there are

  bool operator==(const DeviceChoice&) const = default;
};

/// The device that is open and the queue that runs on it. Lives on the sound thread.
///
/// A queue runs by the clock of the sound card where the synthesiser plays it, which makes onsets
/// exact to a block, and by the clock of the system on every other device.
class Player {
 public:
  struct Hooks {
    std::function<double()> now;                      ///< milliseconds, evenly
    std::function<void(std::function<void()>)> post;  ///< to the sound thread; any thread
    std::function<void(const Notice&)> notify;
    /// A device that could be heard has gone.
    std::function<void(const Notice&)> lost = [](const Notice&) {};
    /// Whether what is played can be heard; told when it changes.
    std::function<void(MidiKlangStand)> klang = [](MidiKlangStand) {};
  };

  /// `ports` and `volume` outlive the player.
  Player(SynthSetup setup, MidiPorts& ports, const SynthVolume& volume, Hooks hooks);
  /// The sound thread must have ended.
  ~Player() = default;

  void BeginLoading() { synth_.BeginLoading(); }
  void UseSoundfont(const std::string& path) { synth_.UseSoundfont(path); }
  SoundFacts Facts() const;
  void Open(const DeviceChoice& choice, const Programs& programs);
  void Close();
  void Send(const MidiBytes& message);
  /// The volumes have been changed. The synthesiser follows them by itself; a port, whose cable may
  /// take no more than a thousand messages a second, gets the newest one some 50 times a second.
  void ChangeVolume();
  /// A queue begins when its device is ready: a synthesiser that still loads is waited for, and so
  /// are the timbres of the channels that the queue uses.
  void Start(std::shared_ptr<MidiQueue> queue);
  void Stop();

  /// Sends what is due. Returns the milliseconds until the next call is wanted, or infinity.
  double RunDue();

  /// For a caller that renders.
  void Render(float* left, float* right, int frames) { synth_.Render(left, right, frames); }

 private:
  void Choose(const DeviceChoice& choice);
  void GivePortItsVolume();
  void OnSynthLoaded();
  void OnPortVanished();
  void RunOnSynth(std::shared_ptr<MidiQueue> queue);
  void RunInStep(std::shared_ptr<MidiQueue> queue);
  double Pace(double now);
  /// Looks after the device that is open, whether or not it plays.
  double Watch(double now);
  double WatchPort(double now);
  double WatchAudio(double now);
  void LoseAudio();
  void TellKlang();

  const Hooks hooks_;
  MidiPorts& ports_;
  const SynthVolume& volume_;
  SynthDevice synth_;
  SilentDevice silent_;
  std::unique_ptr<PortDevice> port_;
  MidiDevice* device_ = &silent_;
  DeviceChoice choice_;
  bool open_ = false;
  const MidiQueue::Sink sink_;

  double start_ = 0;                    // of the queue that is paced
  std::shared_ptr<MidiQueue> waiting_;  // for the synthesiser to be loaded
  std::shared_ptr<MidiQueue> paced_;    // by the clock of the system
  std::shared_ptr<MidiQueue> on_synth_;
  double volume_due_;  // when a port gets its volume; never while it has the newest
  double looked_ = 0;  // when `Watch` last looked
  double still_ = 0;   // ms that the audio thread has been seen to stand still
  std::uint64_t blocks_ = 0;
  MidiKlangStand klang_ = MidiKlangStand::kUnbekannt;  // as told
};

}  // namespace vmod17

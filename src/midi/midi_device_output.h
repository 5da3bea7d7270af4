// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <atomic>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/notice.h"
#include "midi/midi_message.h"
#include "midi/midi_options.h"
#include "midi/sound_facts.h"
#include "ports/event_loop.h"
#include "ports/midi_output.h"

namespace vmod17 {

class Player;
class MidiQueue;
class SoundThread;
class ProgramLink;
struct DeviceChoice;
struct SynthVolume;

/// The MIDI output of the program: the system's MIDI ports and, always last, the built-in
/// synthesiser. The number -1 is the last device too.
class MidiDeviceOutput : public MidiOutput {
 public:
  /// `loop` outlives the output. `notify` is called on the program's thread, about a damaged or
  /// missing soundfont, missing or lost audio, a port that vanished, a number that names no device.
  MidiDeviceOutput(const MidiOptions& options, EventLoop& loop, Notify notify);
  ~MidiDeviceOutput() override;

  /// From now on the program hears nothing of this output, not even what is under way. It may then
  /// go on any thread, also after the loop.
  void FallSilent();

  /// Loads the synthesiser and looks for ports, beside the program. Meant for the moment at which
  /// the first screen stands; opening the synthesiser does the same where nobody has. Returns at
  /// once; a second call does nothing.
  void BeginLoading();

  /// The soundfont to take first when the synthesiser loads, "" for the usual ones. What is loaded
  /// already plays on.
  void UseSoundfont(const std::string& path);
  /// Answers on the program's thread what was done up to now; not at all once the output is gone.
  void AskFacts(std::function<void(const SoundFacts&)> answer);

  void Set(MidiMember member, double value) override;
  double Get(MidiMember member) const override;
  std::string GeraetName() const override;

  /// All names in the order of their numbers, as the system has them now. Never empty.
  std::vector<std::string> DeviceNames() const;
  /// The number of the device of this name, as the system has them now, or of the first whose name
  /// holds it; none when there is no such device. It goes on naming that device when the list
  /// changes. May wait for the system to tell its ports, half a second at most.
  std::optional<int> NumberOf(const std::string& part) const;

  /// For SynthAudio::kRendered: moves the time by `frames` and writes what sounds.
  void Render(float* left, float* right, int frames);

 private:
  void Command(MidiBefehl befehl);
  void Open();
  void Start();
  void Drop();
  void SendNow();
  void SetVolume(MidiMember member, double value);
  MidiBytes Message() const;
  void Remember(const MidiBytes& message);
  const std::string* NameOf(int number) const;
  DeviceChoice Choice() const;
  int Kennung() const;
  void Take(MidiQueueStand stand);
  void Do(std::function<void()> work);

  const std::shared_ptr<ProgramLink> program_;
  const Notify notify_;
  const SynthAudio audio_;
  const double sample_rate_;
  const std::shared_ptr<MidiPorts> ports_;

  int geraet_nr_ = -1;
  bool open_ = false;
  double volume_links_ = 65535;
  double volume_rechts_ = 65535;
  double status_ = 0;
  double daten1_ = 0;
  double daten2_ = 0;
  double zeit_ = 0;
  double marke_ = 0;
  Programs programs_;
  std::vector<TimedMessage> queue_;
  mutable std::vector<std::string> names_;                          // as last listed
  mutable std::optional<std::pair<int, std::string>> number_told_;  // by `NumberOf`

  MidiKlangStand klang_stand_ = MidiKlangStand::kUnbekannt;
  std::shared_ptr<const MidiQueue> started_;
  MidiQueueStand queue_stand_ = MidiQueueStand::kRuht;
  // Tells what the queue that runs says from what one said that was dropped while the word was
  // under way.
  int generation_ = 0;

  double rendered_ms_ = 0;
  std::unique_ptr<SynthVolume> volume_;
  std::atomic<bool> volume_news_ = false;  // the sound thread is about to look at it
  // The thread object outlives the player: a loader that ends late still posts to it.
  std::unique_ptr<SoundThread> thread_;
  std::unique_ptr<Player> player_;
};

/// Lets an output go beside the program, which hears nothing of it any more. An output goes only
/// when its threads have ended, which takes a moment for a sound card and for ever when a driver
/// hangs; that must not stop the program. The answer tells when it has gone, and need not be waited
/// for: at the end of the process what hangs ends with it.
std::future<void> LetGo(std::unique_ptr<MidiDeviceOutput> output);

std::unique_ptr<MidiDeviceOutput> MakeMidiOutput(const MidiOptions& options, EventLoop& loop,
                                                 Notify notify);

}  // namespace vmod17

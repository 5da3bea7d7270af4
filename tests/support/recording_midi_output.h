// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "ports/event_loop.h"
#include "ports/midi_output.h"

namespace vmod17 {

/// A message as the program handed it over.
struct MidiMessage {
  int status = 0;
  int data1 = 0;
  int data2 = 0;
  double zeit = 0;  ///< milliseconds from the start; what stood in Zeit for one sent at once
  int marke = 0;
  bool queued = false;  ///< put in the queue, not sent at once

  int kind() const { return status & 0xF0; }
  int channel() const { return status & 0x0F; }
  bool IsNoteOff() const { return kind() == 0x80; }
  bool IsNoteOn() const { return kind() == 0x90; }
  bool IsProgram() const { return kind() == 0xC0; }
  bool IsPitchBend() const { return kind() == 0xE0; }

  bool operator==(const MidiMessage&) const = default;
};

/// A MIDI output that plays nothing and remembers all. A queue that was started runs until
/// `FinishQueue`, or, with a loop, until the time of its last message. It begins inside its start,
/// unless the device has still to load.
class RecordingMidiOutput : public MidiOutput {
 public:
  struct VolumeWrite {
    MidiMember member;
    double value;

    bool operator==(const VolumeWrite&) const = default;
  };

  /// With `loop` QueueEmpty comes by itself, when the time of the last message has come.
  explicit RecordingMidiOutput(EventLoop* loop = nullptr) : loop_(loop) {}
  ~RecordingMidiOutput() override { DropRunning(); }

  enum class Device { kReady, kLoads, kMute };

  /// Lets the device load, be ready or unable to sound from now on. A queue that waits for it then
  /// begins, or learns that it cannot be heard.
  void SetDevice(Device device) {
    device_ = device;
    if (stand_ == MidiQueueStand::kWartet) BeginQueue();
  }

  /// The device falls silent for good: a sound card that dies, a port that is pulled out.
  void LoseSound() {
    there_ = false;
    device_ = Device::kMute;
    if (stand_ == MidiQueueStand::kWartet) BeginQueue();
    if (stand_ == MidiQueueStand::kLaeuft) stand_ = MidiQueueStand::kStumm;
    TakeSound(MidiKlangStand::kWeg);
  }
  /// The queue that runs comes no further, which nobody has noticed yet.
  void Stall() { StopTimer(); }
  /// From now on a queue plays so much longer than it should, in ms, as on a machine that is too
  /// slow for it.
  void Lag(double ms) { lag_ = ms; }
  /// Whoever opens it from now on can be heard again.
  void ReturnSound() { there_ = true; }

  /// The devices, to be set by the test; empty for a machine without any.
  std::vector<std::string> geraete = {"Synthesizer"};

  std::vector<MidiMessage> messages;  ///< all, sent at once or queued, in the order of the calls
  std::vector<MidiMessage> sent;      ///< those sent at once
  std::vector<MidiMessage> queued;    ///< the queue as it is being filled
  std::vector<MidiMessage> played;    ///< the queue as it last began, heard or not
  std::vector<MidiBefehl> befehle;    ///< all commands
  std::vector<VolumeWrite> volumes;   ///< all writes of both volumes
  int starts = 0;                     ///< how often a queue was started

  bool IsOpen() const { return open_; }
  bool IsRunning() const {
    return stand_ == MidiQueueStand::kLaeuft || stand_ == MidiQueueStand::kStumm;
  }
  int OpenedDevice() const { return opened_device_; }  ///< GeraetNr of the last kOeffnen

  /// Lets the running queue come to its end and raises QueueEmpty; nothing when none runs.
  void FinishQueue() {
    if (!IsRunning()) return;
    DropRunning();
    if (QueueEmpty) QueueEmpty();
  }

  /// Forgets what was recorded; the state of the device stays.
  void Forget() {
    messages.clear();
    sent.clear();
    played.clear();
    befehle.clear();
    volumes.clear();
    starts = 0;
  }

  /// Of `played`, in the order of their times and for one time of their calls.
  std::vector<MidiMessage> PlayedNoteOns() const { return PlayedOf(0x90); }
  std::vector<MidiMessage> PlayedNoteOffs() const { return PlayedOf(0x80); }

  /// How often a command was given.
  int Count(MidiBefehl befehl) const {
    return static_cast<int>(std::ranges::count(befehle, befehl));
  }

  void Set(MidiMember member, double value) override {
    switch (member) {
      case MidiMember::Befehl:
        Command(static_cast<MidiBefehl>(std::lround(value)));
        break;
      case MidiMember::GeraetNr:
        geraet_nr_ = static_cast<int>(std::lround(value));
        break;
      case MidiMember::VolumeLinks:
      case MidiMember::VolumeRechts:
        volumes.push_back({member, value});
        (member == MidiMember::VolumeLinks ? links_ : rechts_) = std::clamp(value, 0.0, 65535.0);
        break;
      case MidiMember::Status:
        next_.status = static_cast<int>(std::lround(value));
        break;
      case MidiMember::Daten1:
        next_.data1 = static_cast<int>(std::lround(value));
        break;
      case MidiMember::Daten2:
        next_.data2 = static_cast<int>(std::lround(value));
        break;
      case MidiMember::Zeit:
        next_.zeit = value;
        break;
      case MidiMember::Marke:
        next_.marke = static_cast<int>(std::lround(value));
        break;
      case MidiMember::GeraetName:
      case MidiMember::GeraetKennung:
      case MidiMember::GeraeteZahl:
      case MidiMember::OffenStand:
      case MidiMember::QueueStand:
      case MidiMember::KlangStand:
      case MidiMember::QueueZeit:
        break;
    }
  }

  double Get(MidiMember member) const override {
    switch (member) {
      case MidiMember::GeraetNr:
        return geraet_nr_;
      case MidiMember::GeraetKennung:
        return geraet_nr_ == -1 ? -1 : Exists() ? 1000 + geraet_nr_ : 0;
      case MidiMember::VolumeLinks:
        return links_;
      case MidiMember::VolumeRechts:
        return rechts_;
      case MidiMember::GeraeteZahl:
        return static_cast<double>(geraete.size());
      case MidiMember::OffenStand:
        return open_ ? 1 : 0;
      case MidiMember::QueueStand:
        return static_cast<int>(stand_);
      case MidiMember::KlangStand:
        return static_cast<int>(klang_);
      case MidiMember::QueueZeit:
        return loop_ && timer_ > 0 ? (loop_->Clock() - begun_) * 1000 : 0;
      case MidiMember::Befehl:
      case MidiMember::GeraetName:
      case MidiMember::Status:
      case MidiMember::Daten1:
      case MidiMember::Daten2:
      case MidiMember::Zeit:
      case MidiMember::Marke:
        break;
    }
    return 0;
  }

  std::string GeraetName() const override {
    if (!geraete.empty() && geraet_nr_ == -1) return geraete.back();
    return Exists() ? geraete[static_cast<std::size_t>(geraet_nr_)] : "";
  }

 private:
  bool Exists() const { return geraet_nr_ >= 0 && geraet_nr_ < static_cast<int>(geraete.size()); }

  void Command(MidiBefehl befehl) {
    befehle.push_back(befehl);
    switch (befehl) {
      case MidiBefehl::kOeffnen:
        open_ = true;
        opened_device_ = geraet_nr_;
        FindSound();
        break;
      case MidiBefehl::kSchliessen:
        DropRunning();
        open_ = false;
        break;
      case MidiBefehl::kStart:
        Start();
        break;
      case MidiBefehl::kStopp:
        DropRunning();
        queued.clear();
        break;
      case MidiBefehl::kEinreihen:
        next_.queued = true;
        messages.push_back(next_);
        queued.push_back(next_);
        break;
      case MidiBefehl::kSenden:
        next_.queued = false;
        messages.push_back(next_);
        sent.push_back(next_);
        break;
    }
  }

  void FindSound() {
    if (!there_) return;
    if (klang_ == MidiKlangStand::kWeg) device_ = Device::kReady;
    TakeSound(MidiKlangStand::kDa);
  }

  void TakeSound(MidiKlangStand klang) {
    if (std::exchange(klang_, klang) == klang || !KlangWechsel) return;
    if (!loop_) return KlangWechsel();
    // As from another thread. Who is told may have gone by then.
    loop_->Post([this] {
      if (KlangWechsel) KlangWechsel();
    });
  }

  void Start() {
    DropRunning();
    ++starts;
    waiting_ = std::exchange(queued, {});
    stand_ = MidiQueueStand::kWartet;
    BeginQueue();
  }

  void BeginQueue() {
    if (device_ == Device::kLoads) return;
    stand_ = device_ == Device::kReady ? MidiQueueStand::kLaeuft : MidiQueueStand::kStumm;
    played = std::exchange(waiting_, {});
    if (!loop_) return;
    begun_ = loop_->Clock();
    double last = 0;
    for (const MidiMessage& message : played) last = std::max(last, message.zeit);
    timer_ = loop_->StartTimer(static_cast<int>(std::ceil(last + lag_)), EventLoop::Repeat::kOnce,
                               [this] { FinishQueue(); });
  }

  void DropRunning() {
    stand_ = MidiQueueStand::kRuht;
    waiting_.clear();
    StopTimer();
  }

  void StopTimer() {
    if (timer_ > 0) loop_->StopTimer(timer_);
    timer_ = 0;
  }

  std::vector<MidiMessage> PlayedOf(int kind) const {
    std::vector<MidiMessage> found;
    std::ranges::copy_if(played, std::back_inserter(found),
                         [&](const MidiMessage& message) { return message.kind() == kind; });
    std::ranges::stable_sort(found, {}, &MidiMessage::zeit);
    return found;
  }

  EventLoop* const loop_;
  MidiMessage next_;
  int geraet_nr_ = -1;
  int opened_device_ = -1;
  double links_ = 65535;
  double rechts_ = 65535;
  bool open_ = false;
  Device device_ = Device::kReady;
  bool there_ = true;
  MidiKlangStand klang_ = MidiKlangStand::kUnbekannt;
  MidiQueueStand stand_ = MidiQueueStand::kRuht;
  std::vector<MidiMessage> waiting_;
  int timer_ = 0;
  float begun_ = 0;
  double lag_ = 0;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "midi/player.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "midi/midi_notices.h"

namespace vmod17 {
namespace {

constexpr double kNever = std::numeric_limits<double>::infinity();
constexpr double kVolumeStep = 20;      // between two volumes of a port
constexpr double kPresenceCheck = 500;  // how often a port is looked for
constexpr double kAudioCheck = 250;     // how often the audio thread is looked after
// How long it may stand still. Drivers ask for some 20 ms at a time; the rest is for a busy
// machine.
constexpr double kAudioDead = 1500;
// The same until it has flowed for a second: a sound server that was idle fills its buffer of 2 s
// before it comes back for more, and a card that slept takes a while to wake.
constexpr double kAudioBegins = 4000;
constexpr std::uint64_t kFlowing = 48000 / kSynthBlock;  // blocks

}  // namespace

Player::Player(SynthSetup setup, MidiPorts& ports, const SynthVolume& volume, Hooks hooks)
    : hooks_(std::move(hooks)),
      ports_(ports),
      volume_(volume),
      synth_(std::move(setup), volume, {hooks_.post, [this] { OnSynthLoaded(); }, hooks_.notify}),
      sink_([this](std::span<const MidiBytes> messages) {
        if (open_) device_->Send(messages);
      }),
      volume_due_(kNever) {}

void Player::Open(const DeviceChoice& choice, const Programs& programs) {
  Choose(choice);
  open_ = true;
  GivePortItsVolume();
  looked_ = hooks_.now();
  device_->Open(programs);
  TellKlang();
}

void Player::Choose(const DeviceChoice& choice) {
  // The first choice of no device differs from the one that stands before any choice by its count.
  if (choice == choice_) return;
  Stop();
  if (open_) device_->Close();
  choice_ = choice;
  port_.reset();
  switch (choice.kind) {
    case DeviceChoice::Kind::kSynth:
      device_ = &synth_;
      break;
    case DeviceChoice::Kind::kPort:
      port_ = std::make_unique<PortDevice>(ports_, choice.port, [this] { OnPortVanished(); });
      device_ = port_.get();
      break;
    case DeviceChoice::Kind::kNone:
      device_ = &silent_;
      hooks_.notify(NoSuchDeviceNotice(choice.number, choice.count));
      break;
  }
}

SoundFacts Player::Facts() const {
  SoundFacts facts;
  if (device_ == &synth_) facts.device = SoundFacts::Device::kSynth;
  if (port_) facts.device = SoundFacts::Device::kPort;
  synth_.Tell(facts);
  if (port_) port_->Tell(facts);
  return facts;
}

void Player::Close() {
  Stop();
  device_->Close();
  open_ = false;
}

void Player::Send(const MidiBytes& message) {
  if (open_) device_->Send({&message, 1});
}

void Player::ChangeVolume() { volume_due_ = std::min(volume_due_, hooks_.now() + kVolumeStep); }

void Player::GivePortItsVolume() {
  volume_due_ = kNever;
  if (port_) port_->SetVolume((volume_.left + volume_.right) / 2.0);
}

void Player::Start(std::shared_ptr<MidiQueue> queue) {
  Stop();
  if (device_ != &synth_ || !open_) {
    RunInStep(std::move(queue));
  } else if (synth_.state() == SynthDevice::State::kLoading) {
    waiting_ = std::move(queue);
  } else {
    RunOnSynth(std::move(queue));
  }
}

void Player::RunInStep(std::shared_ptr<MidiQueue> queue) {
  start_ = hooks_.now();
  if (!open_ || !device_->IsAudible()) queue->Mute();
  paced_ = std::move(queue);
}

void Player::RunOnSynth(std::shared_ptr<MidiQueue> queue) {
  if (!synth_.IsAudible()) {
    RunInStep(std::move(queue));
    return;
  }
  on_synth_ = std::move(queue);
  synth_.Run(on_synth_);
  start_ = looked_ = hooks_.now();
  still_ = 0;
}

void Player::Stop() {
  if (on_synth_) synth_.Stop();
  on_synth_.reset();
  waiting_.reset();
  paced_.reset();
}

void Player::OnSynthLoaded() {
  looked_ = hooks_.now();
  still_ = 0;
  blocks_ = 0;
  TellKlang();
  if (waiting_) RunOnSynth(std::exchange(waiting_, nullptr));
}

void Player::OnPortVanished() {
  const bool was_heard = klang_ == MidiKlangStand::kDa;
  TellKlang();
  if (paced_) paced_->Mute();
  (was_heard ? hooks_.lost : hooks_.notify)(PortVanishedNotice(choice_.port));
}

double Player::RunDue() {
  const double now = hooks_.now();
  double next = kNever;
  if (on_synth_ && on_synth_->IsOver()) on_synth_.reset();
  next = std::min(next, Watch(now));
  if (paced_) next = std::min(next, Pace(now));
  if (now >= volume_due_) GivePortItsVolume();
  next = std::min(next, volume_due_ - now);
  TellKlang();
  // Not while a queue runs: what is sent to the synthesiser waits until a timbre is loaded.
  if (on_synth_ || !synth_.LoadOneTimbre()) return next;
  // The audio thread waits for it too.
  still_ = 0;
  return 0;
}

double Player::Pace(double now) {
  paced_->Advance(now - start_, sink_);
  if (paced_->IsOver()) {
    paced_.reset();
    return kNever;
  }
  return start_ + paced_->NextTime() - now;
}

double Player::Watch(double now) {
  if (!open_ || !device_->IsAudible()) return kNever;
  return device_ == &synth_ ? WatchAudio(now) : WatchPort(now);
}

double Player::WatchPort(double now) {
  if (now - looked_ >= kPresenceCheck) {
    looked_ = now;
    device_->CheckPresence();
  }
  return looked_ + kPresenceCheck - now;
}

double Player::WatchAudio(double now) {
  // A process that is stopped, or a thread that reads a timbre from the disk, looks late. Only what
  // it has seen counts.
  still_ += std::min(now - looked_, kAudioCheck);
  looked_ = now;
  if (const std::uint64_t blocks = synth_.blocks(); blocks != blocks_) {
    blocks_ = blocks;
    still_ = 0;
  }
  if (still_ >= (blocks_ < kFlowing ? kAudioBegins : kAudioDead)) LoseAudio();
  return kAudioCheck;
}

void Player::LoseAudio() {
  // The audio thread has let go of the queue when `Stop` returns.
  synth_.Stop();
  synth_.Lose();
  hooks_.lost(AudioLostNotice());
  TellKlang();
  if (!on_synth_) return;
  on_synth_->Mute();
  paced_ = std::exchange(on_synth_, nullptr);
}

/// Before a queue tells that it is mute, so that who hears that knows whether the device is gone.
/// While the device is closed, which is for a moment only, what was told last holds.
void Player::TellKlang() {
  if (!open_) return;
  MidiKlangStand klang = MidiKlangStand::kWeg;
  if (device_->IsAudible()) {
    klang = MidiKlangStand::kDa;
  } else if (device_ == &synth_ && synth_.state() == SynthDevice::State::kLoading) {
    klang = MidiKlangStand::kUnbekannt;
  }
  if (std::exchange(klang_, klang) != klang) hooks_.klang(klang);
}

}  // namespace vmod17

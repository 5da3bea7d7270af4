// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/midi/player.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "platform/midi/midi_notices.h"

namespace vmod17 {
namespace {

constexpr double kNever = std::numeric_limits<double>::infinity();
constexpr double kVolumeStep = 20;      // between two volumes of a port
constexpr double kPresenceCheck = 500;  // how often a port that plays is looked for
constexpr double kAudioCheck = 250;     // how often the audio thread is looked after
// How long it may stand still: sound servers buffer up to 2 s, and a busy machine adds to that.
constexpr double kAudioDead = 4000;

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
  device_->Open(programs);
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

void Player::Start(std::shared_ptr<SequencerQueue> queue) {
  Stop();
  if (device_ != &synth_ || !open_) {
    RunInStep(std::move(queue));
  } else if (synth_.state() == SynthDevice::State::kLoading) {
    waiting_ = std::move(queue);
  } else {
    RunOnSynth(std::move(queue));
  }
}

void Player::RunInStep(std::shared_ptr<SequencerQueue> queue) {
  start_ = checked_ = hooks_.now();
  if (!open_ || !device_->IsAudible()) queue->Mute();
  paced_ = std::move(queue);
}

void Player::RunOnSynth(std::shared_ptr<SequencerQueue> queue) {
  if (!synth_.IsAudible()) {
    RunInStep(std::move(queue));
    return;
  }
  on_synth_ = std::move(queue);
  synth_.Run(on_synth_);
  start_ = checked_ = hooks_.now();
  blocks_ = synth_.blocks();
}

void Player::Stop() {
  if (on_synth_) synth_.Stop();
  on_synth_.reset();
  waiting_.reset();
  paced_.reset();
}

void Player::OnSynthLoaded() {
  if (waiting_) RunOnSynth(std::exchange(waiting_, nullptr));
}

void Player::OnPortVanished() {
  if (paced_) paced_->Mute();
  hooks_.notify(PortVanishedNotice(choice_.port));
}

double Player::RunDue() {
  const double now = hooks_.now();
  double next = kNever;
  if (paced_) next = Pace(now);
  if (on_synth_) next = Watch(now);
  if (now >= volume_due_) GivePortItsVolume();
  next = std::min(next, volume_due_ - now);
  // Not while a queue runs: what is sent to the synthesiser waits until a timbre is loaded.
  return !on_synth_ && synth_.LoadOneTimbre() ? 0 : next;
}

double Player::Pace(double now) {
  paced_->Advance(now - start_, sink_);
  if (paced_->IsOver()) {
    paced_.reset();
    return kNever;
  }
  const double next = start_ + paced_->NextTime() - now;
  if (!port_) return next;
  if (now - checked_ >= kPresenceCheck) {
    checked_ = now;
    port_->CheckPresence();
  }
  return std::min(next, checked_ + kPresenceCheck - now);
}

double Player::Watch(double now) {
  if (on_synth_->IsOver()) {
    on_synth_.reset();
    return kNever;
  }
  if (const std::uint64_t blocks = synth_.blocks(); blocks != blocks_) {
    blocks_ = blocks;
    checked_ = now;
  } else if (now - checked_ >= kAudioDead) {
    // The audio thread has let go of the queue when `Stop` returns.
    synth_.Stop();
    synth_.Lose();
    on_synth_->Mute();
    paced_ = std::exchange(on_synth_, nullptr);
    return Pace(now);
  }
  return kAudioCheck;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "midi/synth_device.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace vmod17 {

SynthDevice::SynthDevice(SynthSetup setup, const SynthVolume& volume, Hooks hooks)
    : setup_(std::move(setup)), volume_(volume), hooks_(std::move(hooks)) {
  programs_.fill(-1);
  loaded_.fill(-1);
}

SynthDevice::~SynthDevice() {
  if (loader_.joinable()) loader_.join();
}

void SynthDevice::BeginLoading() {
  if (state_ == State::kLoading || state_ == State::kReady) return;
  state_ = State::kLoading;
  auto load = [this, setup = setup_, lost = std::shared_ptr(std::move(engine_))]() mutable {
    lost.reset();  // may wait for the dead driver
    auto loaded = std::make_shared<SynthLoad>(LoadSynth(setup, volume_));
    hooks_.post([this, loaded] { Finish(std::move(*loaded)); });
  };
  if (setup_.beside) {
    setup_.beside(std::move(load));
    return;
  }
  if (loader_.joinable()) loader_.join();
  loader_ = std::thread(std::move(load));
}

void SynthDevice::Finish(SynthLoad load) {
  engine_ = std::move(load.engine);
  loaded_.fill(-1);
  state_ = engine_ ? State::kReady : State::kSilent;
  // Who has been told that there is no sound needs no second message while it stays so.
  if (load.trouble && !trouble_told_) hooks_.notify(*load.trouble);
  trouble_told_ = load.trouble.has_value();
  if (engine_) {
    const std::vector<MidiBytes> early = std::move(early_);
    early_.clear();
    if (open_) Open(Programs(programs_));
    Send(early);
  }
  hooks_.on_loaded();
}

void SynthDevice::Open(const Programs& programs) {
  open_ = true;
  programs_ = programs;
  if (LostItsSoundfont()) state_ = State::kSilent;
  BeginLoading();
  if (state_ != State::kReady) {
    early_.clear();
    return;
  }
  const auto bends = CentredPitchBends();
  engine_->renderer().Send(bends);
}

/// Timbres are read from the file when they are first played, and stay silent without it.
bool SynthDevice::LostItsSoundfont() const {
  std::error_code error;
  return state_ == State::kReady && !std::filesystem::exists(engine_->soundfont(), error);
}

void SynthDevice::Close() {
  open_ = false;
  early_.clear();
  if (engine_) engine_->renderer().Silence();
}

bool SynthDevice::LoadTimbre(int channel) {
  const auto i = static_cast<std::size_t>(channel);
  if (programs_[i] == loaded_[i]) return false;
  loaded_[i] = programs_[i];
  fluid_synth_program_change(engine_->synth(), channel, programs_[i]);
  return true;
}

bool SynthDevice::LoadOneTimbre() {
  if (state_ != State::kReady) return false;
  for (int channel = 0; channel < kMidiChannels; ++channel) {
    if (LoadTimbre(channel)) return true;
  }
  return false;
}

void SynthDevice::Send(std::span<const MidiBytes> messages) {
  std::vector<MidiBytes> rest;
  for (const MidiBytes& message : messages) {
    if (!message.IsChannelMessage()) continue;
    const bool is_note =
        message.kind() == MidiBytes::kNoteOn || message.kind() == MidiBytes::kNoteOff;
    if (message.kind() == MidiBytes::kProgram) {
      programs_[static_cast<std::size_t>(message.channel())] = message.data1;
      if (IsAudible() && playing_.contains(message.channel())) LoadTimbre(message.channel());
    } else if (IsAudible()) {
      if (is_note) LoadTimbre(message.channel());
      rest.push_back(message);
    } else if (state_ == State::kLoading && !is_note) {
      early_.push_back(message);
    }
  }
  if (!rest.empty()) engine_->renderer().Send(rest);
}

void SynthDevice::Run(std::shared_ptr<MidiQueue> queue) {
  playing_ = queue->Channels();
  for (const int channel : playing_) LoadTimbre(channel);
  engine_->renderer().Run(std::move(queue));
}

void SynthDevice::Stop() {
  playing_.clear();
  if (engine_) engine_->renderer().Stop();
}

void SynthDevice::Lose() {
  state_ = State::kSilent;
  trouble_told_ = true;
}

void SynthDevice::Tell(SoundFacts& facts) const {
  if (!engine_) return;
  facts.driver = engine_->driver();
  facts.soundfont = engine_->soundfont();
  facts.frames = blocks() * kSynthBlock;
  facts.peak = engine_->renderer().peak();
  facts.notes = engine_->renderer().notes();
}

void SynthDevice::Render(float* left, float* right, int frames) {
  if (engine_) {
    engine_->renderer().Render(left, right, frames);
    return;
  }
  std::fill_n(left, frames, 0.0f);
  std::fill_n(right, frames, 0.0f);
}

}  // namespace vmod17

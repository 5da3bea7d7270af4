// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "midi/synth_renderer.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vmod17 {
namespace {

constexpr float kFadeBlocks = 4;    // 5 ms: no click, and no later than anybody would notice
constexpr float kVolumeBlocks = 4;  // blocks from silence to full volume
constexpr float kSynthGain =
    0.33f;  // seven notes at full velocity in the loudest timbre stay below 1

}  // namespace

SynthRenderer::SynthRenderer(fluid_synth_t* synth, double sample_rate, const SynthVolume& volume)
    : synth_(synth),
      sample_rate_(sample_rate),
      volume_(volume),
      emit_([this](std::span<const MidiBytes> messages) { Emit(messages); }),
      left_{volume.left, 0},
      right_{volume.right, 0} {
  fluid_synth_set_gain(synth_, kSynthGain);
  pending_.reserve(256);
}

SynthRenderer::~SynthRenderer() {
  if (ticks_) delete_fluid_sequencer(ticks_);
}

void SynthRenderer::Render(float* left, float* right, int frames) {
  for (int done = 0; done < frames;) {
    if (block_pos_ == 0) {
      BeginBlock(static_cast<double>(frame_) * 1000.0 / sample_rate_);
      constexpr float kStep = 1 / kVolumeBlocks;
      const float to_left = Towards(left_.now, volume_.left * fade_, kStep);
      const float to_right = Towards(right_.now, volume_.right * fade_, kStep);
      left_.step = (to_left - left_.now) / kSynthBlock;
      right_.step = (to_right - right_.now) / kSynthBlock;
    }
    const int piece = std::min(frames - done, kSynthBlock - block_pos_);
    fluid_synth_write_float(synth_, piece, left + done, 0, 1, right + done, 0, 1);
    ApplyVolume(left + done, right + done, piece);
    NotePeak(left + done, right + done, piece);
    done += piece;
    block_pos_ = (block_pos_ + piece) % kSynthBlock;
    frame_ += static_cast<std::uint64_t>(piece);
  }
}

void SynthRenderer::ApplyVolume(float* left, float* right, int frames) {
  const auto apply = [frames](Gain& gain, float* samples) {
    for (int i = 0; i < frames; ++i) {
      samples[i] = std::clamp(samples[i] * gain.now, -1.0f, 1.0f);
      gain.now += gain.step;
    }
  };
  apply(left_, left);
  apply(right_, right);
}

void SynthRenderer::NotePeak(const float* left, const float* right, int frames) {
  float peak = peak_.load(std::memory_order_relaxed);
  for (int i = 0; i < frames; ++i) {
    peak = std::max({peak, std::abs(left[i]), std::abs(right[i])});
  }
  peak_.store(peak, std::memory_order_relaxed);
}

std::optional<float> SynthRenderer::peak() const {
  if (ticks_) return std::nullopt;
  return peak_.load(std::memory_order_relaxed);
}

float SynthRenderer::Towards(float from, float to, float step) {
  return from + std::clamp(to - from, -step, step);
}

void SynthRenderer::RunInsideSynth() {
  ticks_ = new_fluid_sequencer2(0);
  fluid_sequencer_register_fluidsynth(ticks_, synth_);
  tick_client_ = fluid_sequencer_register_client(ticks_, "ticks", &OnTick, this);
  OnTick(0, nullptr, ticks_, this);
}

void SynthRenderer::OnTick(unsigned int time, fluid_event_t* event, fluid_sequencer_t* sequencer,
                           void* self) {
  if (event && fluid_event_get_type(event) != FLUID_SEQ_TIMER) return;
  auto* renderer = static_cast<SynthRenderer*>(self);
  if (event) {
    renderer->BeginBlock(time);
    const float mean = (renderer->volume_.left + renderer->volume_.right) / 2;
    Gain& gain = renderer->left_;
    const float to = Towards(gain.now, mean * renderer->fade_, 1 / kVolumeBlocks);
    if (to != gain.now) fluid_synth_set_gain(renderer->synth_, kSynthGain * to);
    gain.now = to;
  }
  std::unique_ptr<fluid_event_t, void (*)(fluid_event_t*)> next(new_fluid_event(),
                                                                &delete_fluid_event);
  fluid_event_set_source(next.get(), -1);
  fluid_event_set_dest(next.get(), renderer->tick_client_);
  fluid_event_timer(next.get(), nullptr);
  fluid_sequencer_send_at(sequencer, next.get(), time + 1, 1);
}

void SynthRenderer::BeginBlock(double now_ms) {
  blocks_.fetch_add(1, std::memory_order_relaxed);
  const std::lock_guard lock(mutex_);
  if (silence_) {
    AdvanceFade();
    return;
  }
  fade_ = 1;
  Emit(pending_);
  pending_.clear();
  if (!queue_ || queue_->IsOver()) return;
  if (queue_start_ < 0) queue_start_ = now_ms;
  // A message goes to the block whose beginning is nearest to its time.
  const double half_block = kSynthBlock * 500.0 / sample_rate_;
  queue_->Advance(now_ms - queue_start_ + half_block, emit_);
}

void SynthRenderer::AdvanceFade() {
  if (fade_ > 0) {
    fade_ = std::max(0.0f, fade_ - 1 / kFadeBlocks);
    return;
  }
  fluid_synth_all_sounds_off(synth_, -1);
  silence_ = false;
}

void SynthRenderer::Emit(std::span<const MidiBytes> messages) {
  for (const MidiBytes& message : messages) EmitOne(message);
}

void SynthRenderer::EmitOne(const MidiBytes& message) {
  const int channel = message.channel();
  switch (message.kind()) {
    case MidiBytes::kNoteOff:
      fluid_synth_noteoff(synth_, channel, message.data1);
      break;
    case MidiBytes::kNoteOn:
      if (fluid_synth_noteon(synth_, channel, message.data1, message.data2) == FLUID_OK) ++notes_;
      break;
    case MidiBytes::kKeyPressure:
      fluid_synth_key_pressure(synth_, channel, message.data1, message.data2);
      break;
    case MidiBytes::kControl:
      fluid_synth_cc(synth_, channel, message.data1, message.data2);
      break;
    case MidiBytes::kProgram:
      fluid_synth_program_change(synth_, channel, message.data1);
      break;
    case MidiBytes::kChannelPressure:
      fluid_synth_channel_pressure(synth_, channel, message.data1);
      break;
    case MidiBytes::kPitchBend:
      fluid_synth_pitch_bend(synth_, channel, message.data2 << 7 | message.data1);
      break;
  }
}

void SynthRenderer::Send(std::span<const MidiBytes> messages) {
  const std::lock_guard lock(mutex_);
  pending_.insert(pending_.end(), messages.begin(), messages.end());
}

void SynthRenderer::Silence() {
  const std::lock_guard lock(mutex_);
  silence_ = true;
}

void SynthRenderer::Run(std::shared_ptr<MidiQueue> queue) {
  {
    const std::lock_guard lock(mutex_);
    std::swap(queue_, queue);
    queue_start_ = -1;
  }
  // The former queue dies here and not on the audio thread.
}

void SynthRenderer::Stop() { Run(nullptr); }

}  // namespace vmod17

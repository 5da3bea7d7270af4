// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <fluidsynth.h>

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <vector>

#include "midi/midi_message.h"
#include "midi/midi_queue.h"

namespace vmod17 {

inline constexpr int kSynthBlock = 64;  ///< frames that FluidSynth computes at a time

/// Left and right volume, 0 to 1. Written by the program, read by the audio thread.
struct SynthVolume {
  std::atomic<float> left{1};
  std::atomic<float> right{1};
};

/// The audio side of the synthesiser: what happens at the beginning of each block, and the gain.
///
/// `Render` belongs to the audio thread; all other members to the sound thread. The lock between
/// them is held for microseconds.
class SynthRenderer {
 public:
  /// `synth` and `volume` outlive the renderer.
  SynthRenderer(fluid_synth_t* synth, double sample_rate, const SynthVolume& volume);

  /// Writes `frames` frames. Messages fall on the blocks of the synthesiser whatever the size of
  /// the pieces asked for.
  void Render(float* left, float* right, int frames);

  /// Lets FluidSynth's own driver render, for drivers that take no callback. The queue then keeps
  /// whole milliseconds and both sides get the mean volume. Call once, before the driver starts.
  void RunInsideSynth();
  ~SynthRenderer();

  /// Sends at the next block. Program changes load samples and are not for here.
  void Send(std::span<const MidiBytes> messages);
  /// Fades what sounds within a few milliseconds, then stops it. What is sent or started after
  /// this call waits for the end of the fade.
  void Silence();
  /// Runs `queue` from the next block, which is its time 0.
  void Run(std::shared_ptr<MidiQueue> queue);
  /// Drops what runs, without its end being told.
  void Stop();

  /// Counts the blocks: it stands still when the driver has died.
  std::uint64_t blocks() const { return blocks_.load(std::memory_order_relaxed); }
  /// The loudest sample so far, 0 to 1; none when FluidSynth's own driver renders.
  std::optional<float> peak() const;
  /// The notes so far that the synthesiser has begun.
  int notes() const { return notes_.load(std::memory_order_relaxed); }

 private:
  void BeginBlock(double now_ms);
  void AdvanceFade();
  void Emit(std::span<const MidiBytes> messages);
  void EmitOne(const MidiBytes& message);
  void ApplyVolume(float* left, float* right, int frames);
  void NotePeak(const float* left, const float* right, int frames);
  static float Towards(float from, float to, float step);
  static void OnTick(unsigned int time, fluid_event_t* event, fluid_sequencer_t* sequencer,
                     void* self);

  fluid_synth_t* const synth_;
  const double sample_rate_;
  const SynthVolume& volume_;
  const MidiQueue::Sink emit_;

  // Of the audio thread alone.
  struct Gain {
    float now;   // at the present frame
    float step;  // for each frame of the present block
  };
  Gain left_, right_;
  int block_pos_ = 0;
  std::uint64_t frame_ = 0;
  float fade_ = 1;
  std::atomic<std::uint64_t> blocks_{0};
  std::atomic<float> peak_{0};
  std::atomic<int> notes_{0};

  std::mutex mutex_;  // guards what follows
  bool silence_ = false;
  std::vector<MidiBytes> pending_;
  std::shared_ptr<MidiQueue> queue_;
  double queue_start_ = -1;  // below 0 until the first block of the queue

  fluid_sequencer_t* ticks_ = nullptr;
  fluid_seq_id_t tick_client_ = -1;
};

}  // namespace vmod17

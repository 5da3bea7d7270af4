// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "platform/midi/midi_device.h"
#include "platform/midi/sound_facts.h"
#include "platform/midi/synth_engine.h"
#include "platform/notice.h"

namespace vmod17 {

/// The built-in synthesiser. It keeps running while the device is closed and opened again: closing
/// fades what sounds. Until it is loaded it remembers what it was sent, but for notes.
class SynthDevice : public MidiDevice {
 public:
  enum class State {
    kIdle,  ///< loading has not begun
    kLoading,
    kReady,
    kSilent,  ///< there is no soundfont or no audio; it stays so
    kLost,    ///< the audio system died, or the soundfont is gone; the next `Open` tries again
  };
  struct Hooks {
    /// Does work on the sound thread; any thread.
    std::function<void(std::function<void()>)> post;
    /// Told on the sound thread that loading has ended, in kReady or kSilent.
    std::function<void()> on_loaded;
    /// Told on the sound thread what the user should know.
    std::function<void(const Notice&)> notify;
  };

  /// `volume` outlives the device.
  SynthDevice(SynthSetup setup, const SynthVolume& volume, Hooks hooks);
  /// Waits for a loading that is under way.
  ~SynthDevice() override;

  /// The soundfont to take first at the next loading, "" for the usual ones.
  void UseSoundfont(const std::string& path) { setup_.chosen_soundfont = path; }

  /// Loads beside the sound thread, or at once when the caller renders. Once; later calls do
  /// nothing.
  void BeginLoading();
  State state() const { return state_; }

  void Open(const Programs& programs) override;
  void Close() override;
  void Send(std::span<const MidiBytes> messages) override;

  /// Runs a queue by the clock of the sound card. Only in kReady.
  void Run(std::shared_ptr<SequencerQueue> queue);
  void Stop();
  /// Counts the blocks that were played.
  std::uint64_t blocks() const { return engine_ ? engine_->renderer().blocks() : 0; }
  /// The audio system has died.
  void Lose();

  /// Enters what is known of the synthesiser.
  void Tell(SoundFacts& facts) const;

  /// For a caller that renders.
  void Render(float* left, float* right, int frames);

 private:
  void Finish(SynthLoad load);
  void SetProgram(int channel, int program);
  bool LostItsSoundfont() const;

  SynthSetup setup_;
  const SynthVolume& volume_;
  const Hooks hooks_;
  State state_ = State::kIdle;
  bool lost_before_ = false;
  bool open_ = false;
  Programs programs_{};
  std::vector<MidiBytes> early_;  // sent between `Open` and the end of loading
  std::unique_ptr<SynthEngine> engine_;
  std::thread loader_;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "base/notice.h"
#include "midi/midi_device.h"
#include "midi/midi_queue.h"
#include "midi/sound_facts.h"
#include "midi/synth_engine.h"

namespace vmod17 {

/// The built-in synthesiser. It keeps running while the device is closed and opened again: closing
/// fades what sounds. Until it is loaded it remembers what it was sent, but for notes.
class SynthDevice : public MidiDevice {
 public:
  enum class State {
    kIdle,  ///< loading has not begun
    kLoading,
    kReady,
    /// There is no soundfont or no audio, or what there was is gone. The next `Open` tries again.
    kSilent,
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

  /// Loads beside the sound thread, or at once when the caller renders. Does nothing while it loads
  /// or is ready.
  void BeginLoading();
  State state() const { return state_; }
  /// Loads one of the timbres that were sent and are not loaded yet; false when there is none. A
  /// timbre is read from the disk, which may take long and stops all that is sent, so it is loaded
  /// when there is time, or when a queue uses its channel.
  bool LoadOneTimbre();

  void Open(const Programs& programs) override;
  void Close() override;
  void Send(std::span<const MidiBytes> messages) override;
  bool IsAudible() const override { return state_ == State::kReady; }

  /// Runs a queue by the clock of the sound card, once the timbres of its channels are loaded. Only
  /// in kReady.
  void Run(std::shared_ptr<MidiQueue> queue);
  void Stop();
  /// Counts the blocks that were played.
  std::uint64_t blocks() const { return engine_ ? engine_->renderer().blocks() : 0; }
  /// The audio system has died, and whoever calls tells so.
  void Lose();

  /// Enters what is known of the synthesiser.
  void Tell(SoundFacts& facts) const;

  /// For a caller that renders.
  void Render(float* left, float* right, int frames);

 private:
  void Finish(SynthLoad load);
  bool LoadTimbre(int channel);
  bool LostItsSoundfont() const;

  SynthSetup setup_;
  const SynthVolume& volume_;
  const Hooks hooks_;
  State state_ = State::kIdle;
  bool trouble_told_ = false;  // and not mended since
  bool open_ = false;
  Programs programs_{};  // wanted
  Programs loaded_{};
  std::set<int> playing_;         // channels of the queue that runs
  std::vector<MidiBytes> early_;  // sent between `Open` and the end of loading
  std::unique_ptr<SynthEngine> engine_;
  std::thread loader_;
};

}  // namespace vmod17

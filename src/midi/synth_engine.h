// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <fluidsynth.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/notice.h"
#include "midi/midi_options.h"
#include "midi/synth_renderer.h"
#include "midi/system_audio.h"

namespace vmod17 {

/// What the synthesiser is made of.
struct SynthSetup {
  SynthAudio audio = SynthAudio::kDriver;
  std::string chosen_soundfont;         ///< path; "" when the user has chosen none
  std::vector<std::string> soundfonts;  ///< tried after it; the first that loads is taken
  std::vector<std::string> drivers;     ///< names of FluidSynth; the first that starts is taken
  double sample_rate = 48000;           ///< frames a second; JACK insists on its own
  Beside beside;                        ///< does the loading; empty for a thread of its own
};

/// A synthesiser of FluidSynth with its driver, which starts in `StartDriver` and ends here.
class SynthEngine {
 public:
  SynthEngine(double sample_rate, const SynthVolume& volume);
  ~SynthEngine();

  /// False when the driver cannot be had. `jack` is the server on which the driver "jack" runs.
  bool StartDriver(const std::string& name, std::unique_ptr<JackServer> jack);
  /// False when the file is no soundfont or a damaged one.
  bool LoadSoundfont(const std::string& path);

  fluid_synth_t* synth() { return synth_.get(); }
  /// "" until a driver has started.
  const std::string& driver() const { return driver_name_; }
  /// Path of the soundfont that was loaded last.
  const std::string& soundfont() const { return soundfont_; }
  SynthRenderer& renderer() { return *renderer_; }
  const SynthRenderer& renderer() const { return *renderer_; }

 private:
  struct Delete {
    void operator()(fluid_settings_t* settings) const { delete_fluid_settings(settings); }
    void operator()(fluid_synth_t* synth) const { delete_fluid_synth(synth); }
    void operator()(fluid_audio_driver_t* driver) const { delete_fluid_audio_driver(driver); }
  };

  std::string driver_name_;
  std::string soundfont_;
  std::unique_ptr<JackServer> jack_;
  std::unique_ptr<fluid_settings_t, Delete> settings_;
  std::unique_ptr<fluid_synth_t, Delete> synth_;
  std::unique_ptr<SynthRenderer> renderer_;
  std::unique_ptr<fluid_audio_driver_t, Delete> driver_;
};

/// An engine with a soundfont and, unless it is rendered, a driver that runs; or what is missing.
/// An engine with trouble plays, but not with the soundfont that was chosen.
struct SynthLoad {
  std::unique_ptr<SynthEngine> engine;
  std::optional<Notice> trouble;
};

/// May take seconds: it waits for the disk and for the sound server. Any thread. `volume` outlives
/// the engine.
SynthLoad LoadSynth(const SynthSetup& setup, const SynthVolume& volume);

}  // namespace vmod17

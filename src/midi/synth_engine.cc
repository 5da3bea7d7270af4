// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "midi/synth_engine.h"

#include <algorithm>
#include <utility>

#include "midi/midi_notices.h"
#include "midi/soundfonts.h"

namespace vmod17 {
namespace {

constexpr int kPolyphony = 128;

void SetUpSynth(fluid_settings_t* settings, double sample_rate) {
  fluid_settings_setnum(settings, "synth.sample-rate", sample_rate);
  fluid_settings_setint(settings, "synth.dynamic-sample-loading", 1);
  fluid_settings_setint(settings, "synth.lock-memory", 0);
  fluid_settings_setint(settings, "synth.polyphony", kPolyphony);
  // The ear is to hear the notes of the chord and not a hall around them.
  fluid_settings_setint(settings, "synth.reverb.active", 0);
  fluid_settings_setint(settings, "synth.chorus.active", 0);
}

/// Some 20 to 40 ms between a note and its sound: nobody plays along, and a slow machine that is
/// busy with its windows must not stutter.
void SetUpAudio(fluid_settings_t* settings) {
  fluid_settings_setint(settings, "audio.period-size", 512);
  fluid_settings_setint(settings, "audio.periods", 4);
  fluid_settings_setint(settings, "audio.jack.autoconnect", 1);
  fluid_settings_setstr(settings, "audio.jack.id", "melvado");
}

int RenderForDriver(void* renderer, int frames, int, float*[], int, float* out[]) {
  static_cast<SynthRenderer*>(renderer)->Render(out[0], out[1], frames);
  return FLUID_OK;
}

std::unique_ptr<SynthEngine> StartOn(const std::string& driver, const SynthSetup& setup,
                                     const SynthVolume& volume) {
  double sample_rate = setup.sample_rate;
  std::unique_ptr<JackServer> jack;
  if (driver == "jack") {
    // FluidSynth would start a server that nobody asked for.
    jack = JackServer::Find();
    if (!jack) return nullptr;
    sample_rate = jack->SampleRate();
  }
  if (driver == "sdl2" && !StartSdlAudio()) return nullptr;
  auto engine = std::make_unique<SynthEngine>(sample_rate, volume);
  if (!engine->StartDriver(driver, std::move(jack))) return nullptr;
  return engine;
}

std::unique_ptr<SynthEngine> StartAny(const SynthSetup& setup, const SynthVolume& volume) {
  if (setup.audio == SynthAudio::kRendered) {
    return std::make_unique<SynthEngine>(setup.sample_rate, volume);
  }
  for (const std::string& driver : setup.drivers) {
    if (auto engine = StartOn(driver, setup, volume)) return engine;
  }
  return nullptr;
}

}  // namespace

SynthEngine::SynthEngine(double sample_rate, const SynthVolume& volume)
    : settings_(new_fluid_settings()) {
  SetUpSynth(settings_.get(), sample_rate);
  SetUpAudio(settings_.get());
  synth_.reset(new_fluid_synth(settings_.get()));
  renderer_ = std::make_unique<SynthRenderer>(synth_.get(), sample_rate, volume);
}

SynthEngine::~SynthEngine() {
  if (!jack_ || jack_->Runs()) return;
  // To close a client of a JACK server that is gone crashes in its library. What the driver knows
  // is left to it.
  static_cast<void>(driver_.release());
  static_cast<void>(renderer_.release());
  static_cast<void>(synth_.release());
  static_cast<void>(settings_.release());
}

bool SynthEngine::StartDriver(const std::string& name, std::unique_ptr<JackServer> jack) {
  jack_ = std::move(jack);
  // A buffer of one period is all that PulseAudio is asked for.
  if (name == "pulseaudio") fluid_settings_setint(settings_.get(), "audio.period-size", 1024);
  if (fluid_settings_setstr(settings_.get(), "audio.driver", name.c_str()) != FLUID_OK)
    return false;
  driver_name_ = name;
  driver_.reset(new_fluid_audio_driver2(settings_.get(), &RenderForDriver, renderer_.get()));
  if (driver_ || name != "sdl2") return driver_ != nullptr;
  // The one driver that takes no callback.
  renderer_->RunInsideSynth();
  driver_.reset(new_fluid_audio_driver(settings_.get(), synth_.get()));
  return driver_ != nullptr;
}

bool SynthEngine::LoadSoundfont(const std::string& path) {
  if (!IsWholeRiffFile(path)) return false;
  constexpr int kResetPresets = 1;
  const int id = fluid_synth_sfload(synth_.get(), path.c_str(), kResetPresets);
  if (id == FLUID_FAILED) return false;
  // A file that breaks off may load without a single timbre.
  fluid_sfont_t* font = fluid_synth_get_sfont_by_id(synth_.get(), id);
  if (fluid_sfont_get_preset(font, 0, 0) == nullptr) return false;
  soundfont_ = path;
  return true;
}

SynthLoad LoadSynth(const SynthSetup& setup, const SynthVolume& volume) {
  std::vector<std::string> wanted = {setup.chosen_soundfont};
  wanted.insert(wanted.end(), setup.soundfonts.begin(), setup.soundfonts.end());
  const std::vector<std::string> soundfonts = ExistingSoundfonts(wanted);
  if (soundfonts.empty()) return {nullptr, NoSoundfontNotice({})};
  std::unique_ptr<SynthEngine> engine = StartAny(setup, volume);
  if (!engine) return {nullptr, NoAudioNotice(setup.drivers)};
  const auto loads = [&](const std::string& path) { return engine->LoadSoundfont(path); };
  if (std::ranges::none_of(soundfonts, loads)) return {nullptr, NoSoundfontNotice(soundfonts)};
  std::optional<Notice> trouble;
  if (!setup.chosen_soundfont.empty() && engine->soundfont() != setup.chosen_soundfont) {
    trouble = OtherSoundfontNotice(setup.chosen_soundfont, engine->soundfont());
  }
  return {std::move(engine), trouble};
}

bool LoadsAsSoundfont(const std::string& path) {
  SilenceSoundLibraries();
  if (ExistingSoundfonts({path}).empty()) return false;
  const SynthVolume volume;
  constexpr double kAnyRate = 48000;
  return SynthEngine(kAnyRate, volume).LoadSoundfont(path);
}

}  // namespace vmod17

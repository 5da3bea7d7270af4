// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "midi/midi_ports.h"
#include "midi/soundfonts.h"

namespace vmod17 {

/// Who pulls the sound out of the synthesiser.
enum class SynthAudio {
  kDriver,    ///< a driver of FluidSynth, into the sound system
  kRendered,  ///< the owner, into memory, in a time of its own
};

/// Does work that takes long, now or later, beside what goes on.
using Beside = std::function<void(std::function<void()> work)>;

struct MidiOptions {
  std::string soundfont;  ///< the one that the host names; empty when it names none
  std::vector<std::string> usual_soundfonts = UsualSoundfonts();  ///< tried after it
  std::vector<std::string> audio_drivers = {"pulseaudio", "alsa", "jack", "sdl2"};
  double sample_rate = 48000;  ///< frames a second; JACK insists on its own
  /// With kRendered no thread runs: `MidiDeviceOutput::Render` moves the time.
  SynthAudio audio = SynthAudio::kDriver;
  /// Loads the synthesiser. Empty: a thread of its own, or at once with kRendered.
  Beside beside;
  std::shared_ptr<MidiPorts> ports;  ///< null for those of the system
};

}  // namespace vmod17

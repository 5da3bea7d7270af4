// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace vmod17 {

/// What an output has done since it was opened for the first time.
struct SoundFacts {
  enum class Device { kNone, kSynth, kPort };
  Device device = Device::kNone;  ///< the one that is open, or was last

  // The synthesiser. All empty while it is not loaded.
  std::string driver;         ///< name of FluidSynth, such as "pulseaudio"; "" when it is rendered
  std::string soundfont;      ///< path of the one that plays
  std::uint64_t frames = 0;   ///< that the driver has taken
  std::optional<float> peak;  ///< loudest sample, 0 to 1; none for a driver that does not tell
  int notes = 0;              ///< that the synthesiser has begun

  // The port.
  std::string port;
  int sent = 0;           ///< messages that it took
  bool is_there = false;  ///< it is connected
};

}  // namespace vmod17

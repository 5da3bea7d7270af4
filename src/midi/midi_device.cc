// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "midi/midi_device.h"

namespace vmod17 {

std::array<MidiBytes, kUsedChannels> CentredPitchBends() {
  std::array<MidiBytes, kUsedChannels> bends;
  for (int channel = 0; channel < kUsedChannels; ++channel) {
    bends[static_cast<std::size_t>(channel)] = {MidiBytes::kPitchBend + channel, 0, 64};
  }
  return bends;
}

}  // namespace vmod17

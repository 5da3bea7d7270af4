// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>
#include <vector>

#include "base/notice.h"

namespace vmod17 {

/// No soundfont could be loaded. `tried` are the files that exist but are damaged.
Notice NoSoundfontNotice(const std::vector<std::string>& tried);
/// The soundfont that the user has chosen is missing or damaged, and another one plays.
Notice OtherSoundfontNotice(const std::string& chosen, const std::string& playing);
/// None of the audio drivers could be started. `drivers` are their names.
Notice NoAudioNotice(const std::vector<std::string>& drivers);
/// The audio system stopped taking sound while the program ran.
Notice AudioLostNotice();
/// The MIDI port `name` is gone, or does not let itself be opened.
Notice PortVanishedNotice(const std::string& name);
/// The device number `number` names no device; there are `count`.
Notice NoSuchDeviceNotice(int number, int count);

}  // namespace vmod17

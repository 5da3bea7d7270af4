// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

namespace vmod17 {

inline constexpr const char* kUserId = "user.id";
inline constexpr const char* kUserName = "user.name";
inline constexpr const char* kUserFirstName = "user.first_name";
inline constexpr const char* kLanguage = "language";
inline constexpr const char* kMidiDevice = "midi_device";
inline constexpr const char* kSoundfont = "soundfont";

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>
#include <string_view>

namespace vmod17 {

/// Writes a file so that its name stands at every moment for what was there before or for the whole
/// of `bytes`, and they are on the disk when the call returns. The file is its owner's alone
/// (0600). Returns 0, or the system's error number; then nothing is left behind.
int WriteWholeFile(const std::string& path, std::string_view bytes);

/// The same under a name that nobody else has: where something lies at `path`, whatever it is and
/// whoever has put it there, "-2", "-3" and so on goes before the extension. `path` is then the
/// name that was taken.
int WriteNewFile(std::string& path, std::string_view bytes);

/// Makes a folder and those above it, for their owner alone (0700), if they are missing.
/// Returns 0, or the system's error number.
int MakePrivateFolder(const std::string& path);

/// What the system says to one of its error numbers.
std::string SystemReason(int error);

}  // namespace vmod17

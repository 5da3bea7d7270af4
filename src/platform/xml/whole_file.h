// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>
#include <string_view>

namespace vmod17 {

/// Writes a file so that its name stands at every moment for what was there before or for the whole
/// of `bytes`, and they are on the disk when the call returns. The file is its owner's alone
/// (0600). Returns "", or what the system says to it; then nothing is left behind.
std::string WriteWholeFile(const std::string& path, std::string_view bytes);

/// Makes a folder and those above it, for their owner alone (0700), if they are missing.
/// Returns "", or what the system says to it.
std::string MakePrivateFolder(const std::string& path);

}  // namespace vmod17

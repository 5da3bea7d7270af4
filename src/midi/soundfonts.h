// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>
#include <vector>

namespace vmod17 {

/// The General MIDI soundfonts that systems usually have, best first: FluidSynth's default one,
/// then the folders of the user and those of the system, in each the names under which packages
/// install them. UTF-8 paths, most of which do not exist.
std::vector<std::string> UsualSoundfonts();

/// Those of `candidates` that exist and begin like a soundfont, each once.
std::vector<std::string> ExistingSoundfonts(const std::vector<std::string>& candidates);

/// Whether the synthesiser can play with this file: it is loaded once, as a try. May take a second.
bool LoadsAsSoundfont(const std::string& path);

/// False when the file is shorter than it says itself: a broken download, random bytes. FluidSynth
/// would find out too, but hand the file on to a library that complains on the terminal.
bool IsWholeRiffFile(const std::string& path);

}  // namespace vmod17

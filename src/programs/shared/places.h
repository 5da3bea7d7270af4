// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <filesystem>
#include <string>
#include <vector>

// What the module and its host must agree on.

namespace vmod17 {

/// Where language files lie: beside the program in a build, under share/ where it is installed, and
/// the user's own.
std::vector<std::filesystem::path> LanguageFolders();

/// Where the pages of the help lie, the user's own first.
std::vector<std::filesystem::path> HelpFolders();

/// The key under which one process of the module works: for a store, as in `ParseStoreAddress`, and
/// a user of it, "" for nobody.
std::string ModuleKey(const std::string& store, const std::string& user);
/// The same for the host.
std::string HostKey(const std::string& store);

/// What the module says to the host that has started it, on its standard output, each a line.
namespace ModuleLine {
inline constexpr const char* kShown = "SHOWN";  ///< its first screen stands
inline constexpr const char* kMenu = "MENUE";   ///< it ends, and gives control back
inline constexpr const char* kOpen = "OPEN";    ///< another process is at work, now in front
}  // namespace ModuleLine

// What the surroundings say of this machine, for both programs.
inline constexpr const char* kStoreVariable = "MELVADO_STORE";  ///< see `ParseStoreAddress`
inline constexpr const char* kOutputVariable =
    "MELVADO_MIDI";  ///< part of a name, "" the synthesiser
inline constexpr const char* kSoundfontVariable = "MELVADO_SOUNDFONT";

/// Set in the surroundings of a module that a host has started.
inline constexpr const char* kHostVariable = "MELVADO_HOST";
/// What the host has chosen, as `HostStore::Session` gives it.
inline constexpr const char* kSessionVariable = "MELVADO_SESSION";

/// Says a line to the host. Does nothing where nobody listens.
void SayToHost(const char* line);

}  // namespace vmod17

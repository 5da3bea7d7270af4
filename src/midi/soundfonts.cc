// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "midi/soundfonts.h"

#include <fluidsynth.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>

namespace vmod17 {
namespace {

namespace fs = std::filesystem;

std::string Environment(const char* name, const std::string& otherwise) {
  const char* value = std::getenv(name);
  return value && *value ? value : otherwise;
}

std::vector<std::string> DataFolders() {
  std::vector<std::string> folders;
  const std::string home = Environment("HOME", "");
  const std::string data_home =
      Environment("XDG_DATA_HOME", home.empty() ? "" : home + "/.local/share");
  if (!data_home.empty()) folders.push_back(data_home);
  std::istringstream system(Environment("XDG_DATA_DIRS", "/usr/local/share:/usr/share"));
  for (std::string folder; std::getline(system, folder, ':');) folders.push_back(folder);
  // A desktop may set XDG_DATA_DIRS to folders of its own alone.
  folders.insert(folders.end(), {"/usr/local/share", "/usr/share"});
  return folders;
}

std::string FluidDefault() {
  const std::unique_ptr<fluid_settings_t, void (*)(fluid_settings_t*)> settings(
      new_fluid_settings(), &delete_fluid_settings);
  char* path = nullptr;
  fluid_settings_dupstr(settings.get(), "synth.default-soundfont", &path);
  const std::string copy = path ? path : "";
  fluid_free(path);
  return copy;
}

bool IsSoundfont(const std::string& path) {
  std::error_code error;
  return fs::is_regular_file(path, error) && fluid_is_soundfont(path.c_str());
}

}  // namespace

std::vector<std::string> UsualSoundfonts() {
  static constexpr const char* kFolders[] = {"sounds/sf2", "sounds/sf3", "soundfonts"};
  static constexpr const char* kNames[] = {
      "default-GM.sf2",  "default-GM.sf3",        "default.sf2",           "default.sf3",
      "FluidR3_GM.sf2",  "FluidR3_GM.sf3",        "FluidR3_GM2-2.SF2",     "GeneralUser-GS.sf2",
      "GeneralUser.sf2", "MuseScore_General.sf3", "MuseScore_General.sf2", "TimGM6mb.sf2",
  };
  std::vector<std::string> paths = {FluidDefault()};
  for (const std::string& data : DataFolders()) {
    for (const char* folder : kFolders) {
      for (const char* name : kNames) paths.push_back(data + "/" + folder + "/" + name);
    }
  }
  return paths;
}

std::vector<std::string> ExistingSoundfonts(const std::vector<std::string>& candidates) {
  std::vector<std::string> existing;
  for (const std::string& path : candidates) {
    if (path.empty() || std::ranges::find(existing, path) != existing.end()) continue;
    if (IsSoundfont(path)) existing.push_back(path);
  }
  return existing;
}

bool IsWholeRiffFile(const std::string& path) {
  std::array<unsigned char, 8> head{};
  std::ifstream file(path, std::ios::binary);
  if (!file.read(reinterpret_cast<char*>(head.data()), head.size())) return false;
  std::uintmax_t size = head.size();
  for (std::size_t i = 0; i < 4; ++i) size += std::uintmax_t{head[4 + i]} << (8 * i);
  std::error_code error;
  const std::uintmax_t real = fs::file_size(path, error);
  return !error && real >= size;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <stdlib.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace vmod17 {

/// A folder that is there for one test. Anyone may go through it, for the tests that give up the
/// rights of the administrator.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "vmod17-xml-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = name;
    std::filesystem::permissions(path_, std::filesystem::perms(0755));
  }
  ~ScratchFolder() { std::filesystem::remove_all(path_); }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  std::string operator/(const std::string& name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

inline std::string Content(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

inline int Entries(const std::string& folder) {
  return static_cast<int>(std::distance(std::filesystem::directory_iterator(folder),
                                        std::filesystem::directory_iterator()));
}

/// The administrator may write everywhere, so a test of rights becomes nobody. False where it
/// cannot.
inline bool BecomeNobody() {
  constexpr uid_t kNobody = 65534;
  return ::getuid() != 0 || ::setuid(kNobody) == 0;
}

}  // namespace vmod17

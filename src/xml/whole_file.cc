// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "xml/whole_file.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <system_error>

namespace vmod17 {
namespace {

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

// Returns 0 or the system's error number.
int WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(file, bytes.data(), bytes.size());
    if (written < 0 && errno != EINTR) return errno;
    if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return ::fsync(file) == 0 ? 0 : errno;
}

// The new name itself outlasts a loss of power only when the folder is on the disk as well. A file
// system that cannot do that loses no data of the file, so it is not a failure.
void SyncFolder(const std::string& folder) {
  const int handle = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle < 0) return;
  static_cast<void>(::fsync(handle));
  ::close(handle);
}

/// A file beside its later place, whole and on the disk; gone with the object where nobody gave it
/// another name.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::string& path) : name_(path + ".tmp-XXXXXX") {}
  ~TemporaryFile() {
    if (is_there_) ::unlink(name_.c_str());
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  int Write(std::string_view bytes) {
    const int file = ::mkostemp(name_.data(), O_CLOEXEC);
    if (file < 0) return errno;
    is_there_ = true;
    const int error = WriteAll(file, bytes);
    // Some network file systems tell only here that they had no room.
    return ::close(file) != 0 && error == 0 ? errno : error;
  }

  /// Replaces what is at `path`.
  int Replace(const std::string& path) {
    if (::rename(name_.c_str(), path.c_str()) != 0) return errno;
    is_there_ = false;
    return 0;
  }

  /// EEXIST where something is at `path`. Not every file system can rename without replacing, and
  /// not every one that cannot knows second names; the last resort holds the name with an empty
  /// file of its own for a moment.
  int TakeFree(const std::string& path) {
    if (::renameat2(AT_FDCWD, name_.c_str(), AT_FDCWD, path.c_str(), RENAME_NOREPLACE) == 0) {
      is_there_ = false;
      return 0;
    }
    if (errno != EINVAL && errno != ENOSYS && errno != EOPNOTSUPP) return errno;
    if (::link(name_.c_str(), path.c_str()) == 0) return 0;
    if (errno == EEXIST) return EEXIST;
    const int holder = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (holder < 0) return errno;
    ::close(holder);
    const int error = Replace(path);
    if (error != 0) ::unlink(path.c_str());
    return error;
  }

 private:
  std::string name_;
  bool is_there_ = false;
};

/// `path` itself, or with "-2" and so on before its extension.
std::string Numbered(const std::string& path, int number) {
  if (number == 1) return path;
  const std::size_t base = path.rfind('/') + 1;
  const std::size_t dot = path.rfind('.');
  const std::size_t end = dot == std::string::npos || dot <= base ? path.size() : dot;
  return path.substr(0, end) + '-' + std::to_string(number) + path.substr(end);
}

}  // namespace

int WriteWholeFile(const std::string& path, std::string_view bytes) {
  TemporaryFile file(path);
  if (const int error = file.Write(bytes); error != 0) return error;
  if (const int error = file.Replace(path); error != 0) return error;
  SyncFolder(FolderOf(path));
  return 0;
}

int WriteNewFile(std::string& path, std::string_view bytes) {
  TemporaryFile file(path);
  if (const int error = file.Write(bytes); error != 0) return error;
  int error = EEXIST;
  std::string name;
  for (int number = 1; error == EEXIST; ++number) {
    name = Numbered(path, number);
    error = file.TakeFree(name);
  }
  if (error != 0) return error;
  path = name;
  SyncFolder(FolderOf(path));
  return 0;
}

int MakePrivateFolder(const std::string& path) {
  struct stat facts {};
  if (::stat(path.c_str(), &facts) == 0) return S_ISDIR(facts.st_mode) ? 0 : ENOTDIR;
  const std::string above = FolderOf(path);
  if (above != path) {
    if (const int error = MakePrivateFolder(above); error != 0) return error;
  }
  return ::mkdir(path.c_str(), 0700) == 0 || errno == EEXIST ? 0 : errno;
}

std::string SystemReason(int error) { return std::generic_category().message(error); }

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/xml/whole_file.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
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

}  // namespace

int WriteWholeFile(const std::string& path, std::string_view bytes) {
  std::string temporary = path + ".tmp-XXXXXX";
  const int file = ::mkostemp(temporary.data(), O_CLOEXEC);
  if (file < 0) return errno;
  int error = WriteAll(file, bytes);
  // Some network file systems tell only here that they had no room.
  if (::close(file) != 0 && error == 0) error = errno;
  if (error == 0 && ::rename(temporary.c_str(), path.c_str()) != 0) error = errno;
  if (error != 0) {
    ::unlink(temporary.c_str());
    return error;
  }
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

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// A program that restores a backup, and kills itself before that call to the system which changes a
// file, counted from the start.
//
//     backup_restorer STORE BACKUP NUMBER|watch|refuse
//
// It ends with status 0 when it has restored the backup. With "watch" it says, when the copy is
// about to take its name, whether another process could read the store; with "refuse" the copy does
// not get that name.

#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "store/host_store.h"
#include "store/store_backup.h"

namespace {

// Where SQLite locks a file, from its published file format.
constexpr off_t kSharedLock = 0x40000002;
constexpr off_t kSharedLockBytes = 510;

std::int64_t changes_to_go = -1;
const char* store_path = nullptr;
bool watch = false;
bool refuse = false;

/// Asked by another process, for a process's own locks stop nobody in it.
void SayWhetherItCanBeRead() {
  const pid_t other = ::fork();
  if (other == 0) {
    struct flock lock {};
    lock.l_type = F_RDLCK;
    lock.l_whence = SEEK_SET;
    lock.l_start = kSharedLock;
    lock.l_len = kSharedLockBytes;
    ::fcntl(::open(store_path, O_RDONLY | O_CLOEXEC), F_GETLK, &lock);
    ::puts(lock.l_type == F_UNLCK ? "open to others" : "alone");
    std::fflush(stdout);
    ::_exit(0);
  }
  ::waitpid(other, nullptr, 0);
}

void CountChange() {
  if (changes_to_go >= 0 && --changes_to_go < 0) ::kill(::getpid(), SIGKILL);
}

}  // namespace

// The program's own definitions come before those of the system's library.
extern "C" {

ssize_t write(int file, const void* bytes, size_t count) {
  CountChange();
  return ::syscall(SYS_write, file, bytes, count);
}

ssize_t pwrite64(int file, const void* bytes, size_t count, off64_t at) {
  CountChange();
  return ::syscall(SYS_pwrite64, file, bytes, count, at);
}

int ftruncate64(int file, off64_t size) noexcept {
  CountChange();
  return static_cast<int>(::syscall(SYS_ftruncate, file, size));
}

int unlink(const char* path) noexcept {
  CountChange();
  return static_cast<int>(::syscall(SYS_unlinkat, AT_FDCWD, path, 0));
}

int link(const char* from, const char* to) noexcept {
  CountChange();
  return static_cast<int>(::syscall(SYS_linkat, AT_FDCWD, from, AT_FDCWD, to, 0));
}

int rename(const char* from, const char* to) noexcept {
  CountChange();
  if (store_path && std::strcmp(to, store_path) == 0) {
    if (watch) SayWhetherItCanBeRead();
    if (refuse) {
      errno = EIO;
      return -1;
    }
  }
  return static_cast<int>(::syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}
}

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  const QCoreApplication application(argc, argv);
  store_path = argv[1];
  watch = std::strcmp(argv[3], "watch") == 0;
  refuse = std::strcmp(argv[3], "refuse") == 0;
  if (!watch && !refuse) changes_to_go = std::atoi(argv[3]);
  const vmod17::DateTime now = {2026, 3, 9, 8, 5, 1};
  vmod17::StoreBackup backup(argv[2], argv[1]);
  if (refuse) return backup.Prepare() || backup.PutInPlace(now) ? 1 : 0;
  vmod17::StoreOptions options;
  options.address = argv[1];
  options.clock = [now] { return now; };
  vmod17::HostStore store(std::move(options));
  store.Users();  // a host has it open
  if (backup.Prepare()) return 1;
  return store.Restore(backup) ? 1 : 0;
}

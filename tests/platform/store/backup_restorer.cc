// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// A program that restores a backup, and kills itself before that call to the system which changes a
// file, counted from the start.
//
//     backup_restorer STORE BACKUP NUMBER
//
// It ends with status 0 when it has restored the backup.

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QCoreApplication>
#include <csignal>
#include <cstdint>
#include <cstdlib>

#include "platform/store/host_store.h"
#include "platform/store/store_backup.h"

namespace {

std::int64_t changes_to_go = -1;

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
  return static_cast<int>(::syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}
}

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  const QCoreApplication application(argc, argv);
  changes_to_go = std::atoi(argv[3]);
  vmod17::StoreOptions options;
  options.address = argv[1];
  options.clock = [] { return vmod17::DateTime{2026, 3, 9, 8, 5, 1}; };
  vmod17::HostStore store(std::move(options));
  store.Users();  // a host has it open
  vmod17::StoreBackup backup(argv[2], argv[1]);
  if (backup.Prepare()) return 1;
  return store.Restore(backup) ? 1 : 0;
}

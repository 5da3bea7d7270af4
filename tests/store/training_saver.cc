// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// A program that saves one numbered training after the other, as the worksheet does, until it is
// killed or has saved as many as it was told to.
//
//     training_saver STORE FIRST COUNT [between SAVE | write NUMBER]
//
// It says "begin N" before and "saved N" after each save. With `between` it kills itself between
// the two records of the save of that number, with `write` before that writing call to the system,
// counted from the start: opening, saving and closing alike.

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QCoreApplication>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "numbered_training.h"
#include "shell/mod_server.h"
#include "store/host_store.h"

namespace {

std::int64_t writes_to_go = -1;

void KillThisProcess() { ::kill(::getpid(), SIGKILL); }

void CountWrite() {
  if (writes_to_go >= 0 && --writes_to_go < 0) KillThisProcess();
}

}  // namespace

// The calls with which the database's library changes its files. The program's own definitions come
// before those of the system's library.
extern "C" {

ssize_t pwrite64(int file, const void* bytes, size_t count, off64_t at) {
  CountWrite();
  return ::syscall(SYS_pwrite64, file, bytes, count, at);
}

int ftruncate64(int file, off64_t size) noexcept {
  CountWrite();
  return static_cast<int>(::syscall(SYS_ftruncate, file, size));
}

int unlink(const char* path) noexcept {
  CountWrite();
  return static_cast<int>(::syscall(SYS_unlinkat, AT_FDCWD, path, 0));
}
}

namespace vmod17 {
namespace {

// A host that kills its process between the two records of a pair.
class MortalHost : public HostService {
 public:
  MortalHost(std::unique_ptr<HostService> host, const bool& dies)
      : host_(std::move(host)), dies_(dies) {}

  bool Action(std::string_view command, const TaggedValue& args, TaggedValue& result) override {
    const bool done = host_->Action(command, args, result);
    if (dies_ && command == "STORE") KillThisProcess();
    return done;
  }
  void Together(const std::function<void()>& stores) override { host_->Together(stores); }

 private:
  std::unique_ptr<HostService> host_;
  const bool& dies_;
};

// Past all buffers: what was said is said, whenever the process ends.
void Say(const char* word, int number) {
  const std::string line = std::string(word) + ' ' + std::to_string(number) + '\n';
  if (::write(STDOUT_FILENO, line.data(), line.size()) < 0) std::exit(1);
}

void SaveTrainings(const std::string& address, int first, int count, int dies_in) {
  StoreOptions options;
  options.address = address;
  options.notify = [](const Notice& notice) { Say("notice", notice.text_id); };
  HostStore store(std::move(options));
  bool dies = false;
  ModServer server([&] { return std::make_unique<MortalHost>(store.Service(), dies); },
                   {"vmod17", 1, 0, 0});
  server.HostVerbinden();
  for (int number = first; number < first + count; ++number) {
    dies = number == dies_in;
    server.einst_satz = NumberedSettings(number);
    Say("begin", number);
    server.SpeichereTraining("1", NumberedState(number));
    Say("saved", number);
  }
}

}  // namespace
}  // namespace vmod17

int main(int argc, char** argv) {
  if (argc != 4 && argc != 6) return 2;
  const QCoreApplication application(argc, argv);
  const std::string_view how = argc == 6 ? argv[4] : "";
  const int when = argc == 6 ? std::atoi(argv[5]) : -1;
  if (how == "write") writes_to_go = when;
  vmod17::SaveTrainings(argv[1], std::atoi(argv[2]), std::atoi(argv[3]),
                        how == "between" ? when : -1);
}

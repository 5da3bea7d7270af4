// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// A process that claims the key which it is given, and says what came of it. The first one says
// FRONT whenever another one was started. It says LEFT and ends on SIGTERM, or with a second word
// pays no heed to it.

#include <signal.h>
#include <unistd.h>

#include <QCoreApplication>
#include <cstddef>

#include "qt/desk/single_instance.h"

namespace {

template <std::size_t kSize>
void Say(const char (&line)[kSize]) {
  static_cast<void>(!write(STDOUT_FILENO, line, kSize - 1));
}

void Leave(int) {
  Say("LEFT\n");
  _exit(0);
}

}  // namespace

int main(int argc, char* argv[]) {
  QCoreApplication application(argc, argv);
  signal(SIGTERM, argc > 2 ? SIG_IGN : Leave);
  vmod17::SingleInstance instance(argv[1]);
  instance.come_to_front = [] { Say("FRONT\n"); };
  switch (instance.Claim()) {
    case vmod17::SingleInstance::Claimed::kFirst:
      Say("FIRST\n");
      return QCoreApplication::exec();
    case vmod17::SingleInstance::Claimed::kAnswered:
      Say("ANSWERED\n");
      return 0;
    case vmod17::SingleInstance::Claimed::kSilent:
      Say("SILENT\n");
  }
  return 0;
}

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <signal.h>
#include <unistd.h>

#include "programs/module/desktop.h"
#include "programs/shared/end_on_signal.h"
#include "qt/desk/application_setup.h"

int main(int argc, char* argv[]) {
  // A host that has gone takes nothing any more, which is no reason to go as well.
  signal(SIGPIPE, SIG_IGN);
  const auto application = vmod17::MakeApplication(argc, argv);
  int status = 0;
  bool sound_hangs = false;
  {
    vmod17::Desktop desktop;
    const vmod17::EndOnSignal end_on_signal([&desktop] { desktop.Leave(); });
    status = desktop.Run();
    sound_hangs = !desktop.End();
  }
  // All is saved, and the host has its word. What a library does when a process ends in order may
  // wait for the thread that hangs in it, or pull away what it stands on.
  if (sound_hangs) _exit(status);
  return status;
}

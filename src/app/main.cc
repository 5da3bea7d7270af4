// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <signal.h>

#include <QApplication>

#include "app/desktop.h"
#include "app/end_on_signal.h"
#include "platform/qt/application_setup.h"

int main(int argc, char* argv[]) {
  // A host that has gone takes nothing any more, which is no reason to go as well.
  signal(SIGPIPE, SIG_IGN);
  QApplication application(argc, argv);
  vmod17::SetUpApplication();
  vmod17::Desktop desktop;
  const vmod17::EndOnSignal end_on_signal([&desktop] { desktop.Leave(); });
  return desktop.Run();
}

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QApplication>
#include <QSocketNotifier>
#include <array>
#include <memory>

#include "app/desktop.h"

namespace {

// A signal handler may do little more than write; the program reads at the other end.
std::array<int, 2> g_signal_pipe{-1, -1};

void OnSignal(int) {
  const char byte = 1;
  [[maybe_unused]] const auto written = write(g_signal_pipe[0], &byte, sizeof byte);
}

/// Ends the program by its own way out when the system asks it to go.
class EndOnSignal {
 public:
  explicit EndOnSignal(vmod17::Desktop& desktop) {
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, g_signal_pipe.data()) != 0) return;
    notifier_ = std::make_unique<QSocketNotifier>(g_signal_pipe[1], QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this, &desktop] {
      notifier_->setEnabled(false);
      desktop.Leave();
    });
    struct sigaction action {};
    action.sa_handler = OnSignal;
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) sigaction(signal, &action, nullptr);
  }

 private:
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QApplication::setApplicationDisplayName("Melvado");
  QApplication::setQuitOnLastWindowClosed(false);
  vmod17::Desktop desktop;
  const EndOnSignal end_on_signal(desktop);
  return desktop.Run();
}

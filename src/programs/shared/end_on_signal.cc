// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/shared/end_on_signal.h"

#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <utility>

namespace vmod17 {
namespace {

// A signal handler may do little more than write; the program reads at the other end.
std::array<int, 2> g_signal_pipe{-1, -1};

void OnSignal(int) {
  const char byte = 1;
  [[maybe_unused]] const auto written = write(g_signal_pipe[0], &byte, sizeof byte);
}

}  // namespace

EndOnSignal::EndOnSignal(std::function<void()> leave) {
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, g_signal_pipe.data()) != 0) return;
  notifier_ = std::make_unique<QSocketNotifier>(g_signal_pipe[1], QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this, leave = std::move(leave)] {
    notifier_->setEnabled(false);
    leave();
  });
  struct sigaction action {};
  action.sa_handler = OnSignal;
  action.sa_flags = SA_RESTART;
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) sigaction(signal, &action, nullptr);
}

EndOnSignal::~EndOnSignal() = default;

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// How long it takes from the click in the home window to the module's first screen on the display.
//
//     module_click ROUNDS MODULE
//
// Needs a display of its own of 1024 by 768: it looks at a patch of the home window's head, where
// the first screen has none. Prints the rounds in ms and their median.

#include <signal.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "programs/host/home_window.h"
#include "programs/shared/places.h"
#include "support/fake_platform.h"

namespace {

constexpr qint64 kPatienceMs = 20000;

QImage Patch() {
  return QGuiApplication::primaryScreen()->grabWindow(0, 90, 50, 150, 80).toImage();
}

void ServeWhile(const std::function<bool()>& condition) {
  QElapsedTimer clock;
  clock.start();
  while (condition() && clock.elapsed() < kPatienceMs) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
  }
}

/// Serves until the window has been on the display for a while.
void Settle() {
  QElapsedTimer clock;
  clock.start();
  ServeWhile([&] { return clock.elapsed() < 700; });
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: module_click ROUNDS MODULE\n");
    return 2;
  }
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  const QTemporaryDir folder;
  vmod17::QtEventLoop loop;
  melvado::HostSetup setup;
  setup.store = folder.filePath("store.sqlite").toStdString();
  setup.language_folders = vmod17::LanguageFolders();
  setup.module = argv[2];
  melvado::Host host(std::move(setup), loop);
  vmod17::ScriptedMessageBox messages;
  vmod17::ScriptedFileDialog dialog;
  melvado::HomeWindow window(host, loop, messages, dialog);
  auto* const start = window.findChild<QAbstractButton*>("start");
  std::vector<double> rounds;
  for (int i = 0; i < std::atoi(argv[1]); ++i) {
    if (!window.isVisible()) window.Open();
    Settle();
    const QImage before = Patch();
    QElapsedTimer clock;
    clock.start();
    start->click();
    ServeWhile([&] { return Patch() == before; });
    rounds.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
    std::printf("%.1f ms\n", rounds.back());
    ServeWhile([&] { return window.isVisible(); });
    kill(static_cast<pid_t>(host.module_process()), SIGTERM);
    ServeWhile([&] { return host.ModuleRuns(); });
  }
  std::sort(rounds.begin(), rounds.end());
  std::printf("median %.1f ms\n", rounds[rounds.size() / 2]);
  return 0;
}

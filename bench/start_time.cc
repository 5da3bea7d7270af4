// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// How long a program takes from exec to its first window on the display.
//
//     start_time ROUNDS PROGRAM [ARGUMENT...]
//
// Needs a display of its own, such as `xvfb-run -s "-screen 0 1024x768x24"`: it looks at a patch in
// the middle of the screen until it changes. Prints the rounds in ms, their median, and the memory
// that the program holds then and two seconds later.

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QThread>
#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int kPatch = 160;
constexpr qint64 kPatienceMs = 20000;

QImage Patch() {
  QScreen* screen = QGuiApplication::primaryScreen();
  const QPoint middle = screen->geometry().center();
  return screen->grabWindow(0, middle.x() - kPatch / 2, middle.y() - kPatch / 2, kPatch, kPatch)
      .toImage();
}

double ResidentMb(pid_t process) {
  QFile status(QStringLiteral("/proc/%1/status").arg(process));
  if (!status.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n')) {
    if (line.startsWith("VmRSS:"))
      return line.mid(6).simplified().split(' ').first().toDouble() / 1024;
  }
  return 0;
}

struct Round {
  double ms;
  double resident_at_once;
  double resident_later;
};

Round Measure(char* command[]) {
  const QImage before = Patch();
  QElapsedTimer clock;
  clock.start();
  const pid_t process = fork();
  if (process == 0) {
    execvp(command[0], command);
    _exit(127);
  }
  while (Patch() == before && clock.elapsed() < kPatienceMs) QThread::usleep(500);
  Round round{static_cast<double>(clock.nsecsElapsed()) / 1e6, ResidentMb(process), 0};
  QThread::msleep(2000);
  round.resident_later = ResidentMb(process);
  kill(process, SIGTERM);
  waitpid(process, nullptr, 0);
  clock.restart();
  while (Patch() != before && clock.elapsed() < kPatienceMs) QThread::msleep(10);
  return round;
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: start_time ROUNDS PROGRAM [ARGUMENT...]\n");
    return 2;
  }
  QGuiApplication application(argc, argv);
  std::vector<Round> rounds;
  for (int i = 0; i < std::atoi(argv[1]); ++i) {
    rounds.push_back(Measure(argv + 2));
    std::printf("%.1f ms, %.1f MB, later %.1f MB\n", rounds.back().ms,
                rounds.back().resident_at_once, rounds.back().resident_later);
  }
  std::sort(rounds.begin(), rounds.end(),
            [](const Round& a, const Round& b) { return a.ms < b.ms; });
  std::printf("median %.1f ms\n", rounds[rounds.size() / 2].ms);
  return 0;
}

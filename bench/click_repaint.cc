// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// How long it takes from a click on a tile to the repainted board on the display.
//
//     click_repaint [TASKS]
//
// Runs the real screens in a real window on a silent output: a free practice over the ten triads,
// with three wrong clicks and a right one in each task. Prints median and 99th percentile in ms.

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QWidget>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "window_stage.h"

namespace vmod17 {
namespace {

class Stage : WindowStage {
 public:
  Stage() {
    ToFirstScreen();
    ToSettings();
    ToWorksheet();
  }

  /// Plays a task and answers it; adds the time of each click in ms.
  void Task(std::vector<double>& times) {
    Arbeitsblatt1& sheet = *program_.arbeitsblatt1();
    loop_.Deliver([&] { sheet.CmdNextAufg.Press(); });
    // The end of the sound is not what is measured.
    loop_.Deliver([&] { sheet.spieltimer_Timer(); });
    Settle();
    const int asked = sheet.run().task.aufg_akk_ar[1];
    for (int i = 1; i <= 3; ++i) times.push_back(Click(1 + (asked - 1 + i) % 10));
    times.push_back(Click(asked));
  }

 private:
  double Click(int tile) {
    auto* widget = view_.Window()->findChild<QWidget*>(QStringLiteral("jz_kl(%1)").arg(tile));
    const QPointF at = widget->rect().center();
    const QPointF global = widget->mapToGlobal(at);
    QElapsedTimer clock;
    clock.start();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      QMouseEvent event(type, at, global, Qt::LeftButton,
                        type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                        Qt::NoModifier);
      QCoreApplication::sendEvent(widget, &event);
    }
    Settle();
    return Ms(clock);
  }
};

}  // namespace
}  // namespace vmod17

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  const int tasks = argc > 1 ? std::atoi(argv[1]) : 50;
  vmod17::Stage stage;
  std::vector<double> times;
  for (int i = 0; i < tasks; ++i) stage.Task(times);
  std::sort(times.begin(), times.end());
  std::printf("%zu clicks: median %.2f ms, 99th percentile %.2f ms, longest %.2f ms\n",
              times.size(), times[times.size() / 2], times[times.size() * 99 / 100], times.back());
  return 0;
}

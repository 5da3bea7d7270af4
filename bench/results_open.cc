// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// How long it takes to open the results, from the click on the way out of a training that has
// ended, above the timer that is armed on purpose.
//
//     results_open [ROUNDS]
//
// Runs the real screens in a real window on a silent output: trainings of 24 chords, answered
// rightly to their end. Prints median and longest of the time to the shown and painted screen, and
// of its parts, in ms.

#include <QApplication>
#include <QElapsedTimer>
#include <QWidget>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "window_stage.h"

namespace vmod17 {
namespace {

class Stage : WindowStage {
 public:
  Stage() {
    ToFirstScreen();
    view_.Window()->resize(1024, 768);
    ToSettings();
  }

  void Round() {
    BeginTraining();
    Solve();
    Arbeitsblatt1& sheet = *program_.arbeitsblatt1();
    QElapsedTimer clock;
    clock.start();
    loop_.Deliver([&] { sheet.zurueck.Press(); });
    Settle();
    const double loaded = Ms(clock);
    // The timer is fired by hand, so that it takes no time.
    Testergebnis& results = *program_.testergebnis();
    loop_.Deliver([&] { results.start_Timer(); });
    const double built = Ms(clock);
    Settle();
    const double painted = Ms(clock);
    if (!results.visible || !results.klang_pan[kBrettGroesse].visible) std::abort();
    load_.push_back(loaded);
    build_.push_back(built - loaded);
    paint_.push_back(painted - built);
    all_.push_back(painted);
    for (int face : {0, 1}) {
      loop_.Deliver([&] { results.cmdOK[face].Press(); });
      Settle();
    }
    while (program_.arbeitsblatt1()) loop_.WaitForEvent(10);
  }

  void Print() {
    const QSize size = view_.Window()->size();
    std::printf("%zu openings at %d x %d\n", all_.size(), size.width(), size.height());
    Print("load", load_);
    Print("build", build_);
    Print("paint", paint_);
    Print("all", all_);
  }

 private:
  void BeginTraining() {
    Einstellung1& s = *program_.einstellung1();
    loop_.Deliver([&] { s.training_Combo.Choose(1); });
    if (s.grplst[1].count() == 0) {
      loop_.Deliver([&] {
        s.klang_alle[0].Press();
        s.grp_alle[0].Press();
      });
    }
    ToWorksheet();
  }

  /// Answers rightly until the training is solved.
  void Solve() {
    Arbeitsblatt1& sheet = *program_.arbeitsblatt1();
    while (sheet.run().lauf_status != LaufStatus::kTrainingZuEnde) {
      loop_.Deliver([&] { sheet.CmdNextAufg.Press(); });
      loop_.Deliver([&] { sheet.spieltimer_Timer(); });
      loop_.Deliver([&] { sheet.jz_kl[sheet.run().task.aufg_akk_ar[1]].Press(); });
    }
    Settle();
  }

  static void Print(const char* name, std::vector<double>& times) {
    std::sort(times.begin(), times.end());
    std::printf("%-6s median %6.1f ms, longest %6.1f ms\n", name, times[times.size() / 2],
                times.back());
  }

  std::vector<double> load_;
  std::vector<double> build_;
  std::vector<double> paint_;
  std::vector<double> all_;
};

}  // namespace
}  // namespace vmod17

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  const int rounds = argc > 1 ? std::atoi(argv[1]) : 20;
  vmod17::Stage stage;
  for (int i = 0; i < rounds; ++i) stage.Round();
  stage.Print();
  return 0;
}

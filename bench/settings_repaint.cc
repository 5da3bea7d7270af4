// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// How long it takes from an event of the settings screen to the repainted screen on the display.
//
//     settings_repaint [ROUNDS]
//
// Runs the real screen in a real window on a silent output. Prints the time from OK on the first
// screen to the settings screen, and for each kind of event median and 99th percentile in ms.

#include <QApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "window_stage.h"

namespace vmod17 {
namespace {

class Stage : WindowStage {
 public:
  Stage() {
    // A full training: all kinds, all groups, a timbre for each voice.
    TaggedValue::Array record = {"0", "1", "1", "3",           "0", "0", "0", "0",
                                 "0", "1", "0", TaggedValue(), "0", "2", "5"};
    for (const char* id : {"51s", "57s", "60s", "62s", "64s"}) {
      record.emplace_back("[" + std::string(id) + "]");
    }
    for (const char* text : {"1", "70", "68", "71", "73", "73", "72", "74", "100", "8"}) {
      record.emplace_back(text);
    }
    for (const char* id : {"379s", "380s", "409s", "200s", "201s", "410s", "312s", "609s"}) {
      record.emplace_back("[" + std::string(id) + "]");
    }
    host_.SetStored("E1", record);
    host_.SetStored("A1", TaggedValue::Array{"true"});
    ToFirstScreen();
    QElapsedTimer clock;
    clock.start();
    ToSettings();
    std::printf("from OK to the settings screen: %.1f ms\n", Ms(clock));
  }

  void Round() {
    Einstellung1& s = *program_.einstellung1();
    Time("level", [&] { s.training_Combo.Choose(3); });
    Time("restore a training", [&] { s.training_Combo.Choose(2); });
    Time("level", [&] { s.training_Combo.Choose(0); });
    Time("exam", [&] { s.training_Combo.Choose(4); });
    for (int i = 1; i < 5; ++i) Time("exam", [&] { s.prfnr_Comb.Choose(i); });
    Time("level", [&] { s.training_Combo.Choose(0); });
    Time("material", [&] { s.aus_w.Choose(0); });
    Time("what is named", [&] { s.akk_grp.Choose(0); });
    Time("all kinds", [&] { s.klang_alle[0].Press(); });
    Time("all groups", [&] { s.grp_alle[0].Press(); });
    Time("one group", [&] { s.grplst[1].Choose(2); });
    Time("one kind", [&] { s.klanglst[1].Choose(0); });
    Time("timbre", [&] { s.kl_farb.Choose(1); });
    Time("timbre", [&] { s.ComboPatch.Choose(40); });
    Time("timbre", [&] { s.kl_farb.Choose(0); });
    Time("loudness", [&] { s.HSliderVolume.Slide(90); });
    Time("loudness", [&] { s.HSliderVolume.Slide(100); });
    Time("tempo", [&] { s.temp_Combo.Choose(5); });
    Time("direction", [&] { s.arpeg_cmb.Choose(0); });
    Time("direction", [&] { s.arpeg_cmb.Choose(3); });
    Time("Tonraum", [&] { s.oktav_cmb.Choose(1); });
  }

  void Print() {
    std::vector<double> all;
    for (auto& [name, times] : times_) {
      Print(name, times);
      all.insert(all.end(), times.begin(), times.end());
    }
    Print("all events", all);
  }

 private:
  void Time(const std::string& name, const std::function<void()>& event) {
    QElapsedTimer clock;
    clock.start();
    loop_.Deliver(event);
    Settle();
    times_[name].push_back(Ms(clock));
  }

  static void Print(const std::string& name, std::vector<double>& times) {
    std::sort(times.begin(), times.end());
    std::printf("%-20s %5zu events: median %5.2f ms, 99th percentile %5.2f ms\n", name.c_str(),
                times.size(), times[times.size() / 2], times[times.size() * 99 / 100]);
  }

  std::map<std::string, std::vector<double>> times_;
};

}  // namespace
}  // namespace vmod17

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  vmod17::Stage stage;
  const int rounds = argc > 1 ? std::atoi(argv[1]) : 50;
  for (int i = 0; i < rounds; ++i) stage.Round();
  stage.Print();
  return 0;
}

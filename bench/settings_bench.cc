// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// How long the settings screen takes for each of its events, the presets of the exams and the
// restoring of a training, without window, sound and waiting. Run it from a build with
// optimisation.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "settings/stored_training.h"
#include "support/program_fixture.h"

namespace vmod17 {
namespace {

/// The event under measure, and what brings the screen back to where it was.
struct Event {
  const char* name;
  std::function<void(Einstellung1&)> begin;
  std::function<void(Einstellung1&)> act;
  std::function<void(Einstellung1&)> undo;
};

void Nothing(Einstellung1&) {}

/// From four-note chords on, so that there are groups to choose.
void WithGroups(Einstellung1& s) { s.klang_alle[0].Press(); }

std::vector<Event> Events() {
  return {
      {"klanglst", Nothing, [](Einstellung1& s) { s.klanglst[0].Choose(0); },
       [](Einstellung1& s) { s.klanglst[1].Choose(1); }},
      {"grplst", WithGroups, [](Einstellung1& s) { s.grplst[0].Choose(3); },
       [](Einstellung1& s) { s.grplst[1].Choose(0); }},
      {"klang_alle", Nothing, [](Einstellung1& s) { s.klang_alle[0].Press(); },
       [](Einstellung1& s) { s.klang_alle[1].Press(); }},
      {"grp_alle", WithGroups, [](Einstellung1& s) { s.grp_alle[0].Press(); },
       [](Einstellung1& s) { s.grp_alle[1].Press(); }},
      {"akk_grp", Nothing, [](Einstellung1& s) { s.akk_grp.Choose(1); },
       [](Einstellung1& s) { s.akk_grp.Choose(0); }},
      {"aus_w", Nothing, [](Einstellung1& s) { s.aus_w.Choose(1); },
       [](Einstellung1& s) { s.aus_w.Choose(0); }},
      {"oktav_cmb", Nothing, [](Einstellung1& s) { s.oktav_cmb.Choose(3); },
       [](Einstellung1& s) { s.oktav_cmb.Choose(0); }},
      {"temp_Combo", Nothing, [](Einstellung1& s) { s.temp_Combo.Choose(9); },
       [](Einstellung1& s) { s.temp_Combo.Choose(1); }},
      {"arpeg_cmb", Nothing, [](Einstellung1& s) { s.arpeg_cmb.Choose(0); },
       [](Einstellung1& s) { s.arpeg_cmb.Choose(3); }},
      {"kl_farb", Nothing, [](Einstellung1& s) { s.kl_farb.Choose(1); },
       [](Einstellung1& s) { s.kl_farb.Choose(0); }},
      {"ComboPatch", Nothing, [](Einstellung1& s) { s.ComboPatch.Choose(99); },
       [](Einstellung1& s) { s.ComboPatch.Choose(0); }},
      {"HSliderVolume", Nothing, [](Einstellung1& s) { s.HSliderVolume.Slide(1); },
       [](Einstellung1& s) { s.HSliderVolume.Slide(100); }},
  };
}

void SettingsEvent(benchmark::State& state, const Event& event) {
  ProgramFixture p;
  p.ToSettings();
  Einstellung1& s = p.settings_screen();
  event.begin(s);
  std::size_t events = 0;
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    event.act(s);
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
    state.SetIterationTime(passed.count());
    event.undo(s);
    // What the fakes record must not grow for ever.
    if (++events % 1000 == 0) p.output.Forget();
    if (events % 1000 == 0) p.languages.looked_up.clear();
  }
}

/// An exam after another one, as its list is gone through.
void ExamPreset(benchmark::State& state) {
  ProgramFixture p;
  p.ToSettings();
  Einstellung1& s = p.settings_screen();
  s.training_Combo.Choose(4);
  const int exam = static_cast<int>(state.range(0)) - 1;
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    s.prfnr_Comb.Choose(exam);
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
    state.SetIterationTime(passed.count());
    if (!s.cmdOK.enabled) state.SkipWithError("the exam cannot be started");
    s.prfnr_Comb.Choose((exam + 1) % 5);
    p.languages.looked_up.clear();
  }
}
BENCHMARK(ExamPreset)->DenseRange(1, 5)->UseManualTime()->Unit(benchmark::kMicrosecond);

/// All steps of a training with all kinds, all groups and a timbre for each voice.
void RestoreFullTraining(benchmark::State& state) {
  TaggedValue::Array satz = VollesTraining();
  satz.resize(14);
  satz.insert(satz.end(), {"5", "[51s]", "[57s]", "[60s]", "[62s]", "[64s]", "1"});
  satz.insert(satz.end(), {"70", "68", "71", "73", "73", "72", "74", "100", "8"});
  for (const int id : {379, 380, 409, 200, 201, 410, 312, 609}) {
    satz.emplace_back("[" + std::to_string(id) + "s]");
  }
  ProgramFixture p;
  p.host.SetStored("E1", satz);
  p.host.SetStored("A1", TaggedValue::Array{"true"});
  p.ToSettings();
  Einstellung1& s = p.settings_screen();
  for (auto _ : state) {
    s.training_Combo.Choose(0);
    const auto start = std::chrono::steady_clock::now();
    s.training_Combo.Choose(2);
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
    state.SetIterationTime(passed.count());
    if (s.grplst[1].count() != 8) state.SkipWithError("the training was not restored");
    p.output.Forget();
    p.languages.looked_up.clear();
    p.host.calls.clear();
  }
}
BENCHMARK(RestoreFullTraining)->UseManualTime()->Unit(benchmark::kMicrosecond);

/// The building of the whole screen.
void BuildScreen(benchmark::State& state) {
  ProgramFixture p;
  p.ToFirstScreen();
  for (auto _ : state) {
    p.first().cmdOK.Press();
    p.loop.Advance(199);
    const auto start = std::chrono::steady_clock::now();
    p.loop.Advance(1);
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
    state.SetIterationTime(passed.count());
    if (!p.settings_screen().visible) state.SkipWithError("the screen was not built");
    p.settings_screen().cmdZurueck.Press();
    p.loop.Advance(1000);
    p.output.Forget();
    p.languages.looked_up.clear();
    p.host.calls.clear();
  }
}
BENCHMARK(BuildScreen)->UseManualTime()->Unit(benchmark::kMicrosecond);

void RegisterEvents() {
  for (const Event& event : Events()) {
    benchmark::RegisterBenchmark((std::string("SettingsEvent/") + event.name).c_str(),
                                 [event](benchmark::State& state) { SettingsEvent(state, event); })
        ->UseManualTime()
        ->Unit(benchmark::kMicrosecond);
  }
}

}  // namespace
}  // namespace vmod17

int main(int argc, char** argv) {
  vmod17::RegisterEvents();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

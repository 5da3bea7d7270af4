// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// How long the core takes for what makes a run count: rating a task, a whole test, taking up a
// training. All on doubles, in virtual time. Run it from a build with optimisation.

#include <benchmark/benchmark.h>

#include <chrono>
#include <vector>

#include "whole_runs.h"
#include "worksheet/scoring.h"

namespace vmod17 {
namespace {

using Clock = std::chrono::steady_clock;

double Since(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

void CountQuantiles(benchmark::State& state, std::vector<double>& seconds, double unit,
                    const char* median, const char* p99) {
  state.counters[median] = Quantile(seconds, 0.5) * unit;
  state.counters[p99] = Quantile(seconds, 0.99) * unit;
}

/// A finished task of four chords in a training of 24, each with four wrong clicks, before a
/// material that is in the wrong order from one end to the other.
void RateTask(benchmark::State& state) {
  ExerciseSettings settings;
  settings.uebmodus = kLevelNewTraining;
  settings.akk_anzahl = 4;
  ChordTable table;
  ChordBoard board(table);
  board.limits.Setze(kBrettGroesse);
  RunCounters counters;
  counters.auswertung_obj.init_arr(kBrettGroesse, 3);
  Scoring scoring(settings, board, counters.auswertung_obj);
  RunState begun;
  begun.material.mat_posten = kBrettGroesse;
  begun.material.BeginneTraining(counters.auswertung_obj);
  for (int i = 1; i <= kBrettGroesse; ++i) begun.material.mat_tab[i][1] = i / 4 - 2;
  for (int slot = 1; slot <= 4; ++slot) {
    begun.task.aufg_akk_ar[slot] = slot;
    begun.answers.fehl_ar[slot] = static_cast<float>(board.limits.fehl_max);
    begun.answers.falsch_ar[slot] = {0, 10, 15, 20, 24};
  }
  std::vector<double> seconds;
  for (auto _ : state) {
    RunState run = begun;
    const auto start = Clock::now();
    scoring.AufgabeWerten(run, 5);
    benchmark::DoNotOptimize(run.material.mat_rest);
    seconds.push_back(Since(start));
    state.SetIterationTime(seconds.back());
  }
  CountQuantiles(state, seconds, 1e6, "median_us", "p99_us");
}
BENCHMARK(RateTask)->UseManualTime()->Unit(benchmark::kMicrosecond);

/// A test of 96 tasks: from OK to the settings screen again, with all clicks, both faces of the
/// results and the lesson record.
void PlayTest(benchmark::State& state) {
  std::vector<double> seconds;
  for (auto _ : state) {
    ProgramFixture p;
    p.ToSettings();
    const auto start = Clock::now();
    BeginFullBoard(p, kLevelTest, 1);
    int tasks = 0;
    for (; p.run().lauf_status != LaufStatus::kTestZuEnde && tasks < 100; ++tasks) PlayAndAnswer(p);
    LeaveThroughResults(p);
    seconds.push_back(Since(start));
    state.SetIterationTime(seconds.back());
    if (tasks != 96 || p.documents.Latest().saves != 1 || !p.messages.warnings.empty()) {
      state.SkipWithError("the test went wrong");
    }
  }
  CountQuantiles(state, seconds, 1e3, "median_ms", "p99_ms");
}
BENCHMARK(PlayTest)->UseManualTime()->Unit(benchmark::kMillisecond);

/// A stored training of 24 chords: the choice of its level with all settings, and the building of
/// its worksheet.
void TakeUpTraining(benchmark::State& state) {
  ProgramFixture first;
  first.ToSettings();
  BeginFullBoard(first, kLevelNewTraining, 1);
  for (int task = 0; task < 5; ++task) PlayAndAnswer(first);
  first.messages.answer = MessageBox::Answer::kYes;
  first.worksheet().zurueck.Press();
  std::vector<double> seconds;
  for (auto _ : state) {
    ProgramFixture p;
    p.host.records = first.host.records;
    p.ToSettings();
    const auto start = Clock::now();
    p.settings_screen().training_Combo.Choose(kLevelContinued);
    p.StartRun();
    seconds.push_back(Since(start));
    state.SetIterationTime(seconds.back());
    if (p.run().material.mat_posten != kBrettGroesse) state.SkipWithError("not taken up");
  }
  CountQuantiles(state, seconds, 1e3, "median_ms", "p99_ms");
}
BENCHMARK(TakeUpTraining)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vmod17

BENCHMARK_MAIN();

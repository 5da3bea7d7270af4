// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// How long the core itself takes, without window, sound and waiting: all on doubles, in virtual
// time. Run it from a build with optimisation.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <vector>

#include "support/program_fixture.h"

namespace vmod17 {
namespace {

constexpr int kTasksOfARun = 50;

/// Chooses the kinds of four and five notes in all groups: 40 chords for a board of 24.
void ChooseFullBoard(ProgramFixture& p) {
  ItemList& kinds = p.settings_screen().klanglst[1];
  kinds.Clear();
  for (const int k : {4, 5}) kinds.Add("kind", k);
  for (int g = 1; g <= kGruppen; ++g) p.settings_screen().grplst[1].Add("group", g);
}

/// A worksheet with a full board and `akk_anzahl` chords a task.
void BeginFullRun(ProgramFixture& p, int akk_anzahl) {
  p.ToSettings();
  ChooseFullBoard(p);
  p.settings().akk_anzahl = akk_anzahl;
  p.StartRun();
}

/// The draw of a task, without its sound.
void DrawTask(benchmark::State& state) {
  ExerciseSettings settings;
  settings.akk_anzahl = static_cast<int>(state.range(0));
  settings.arp_richtung = static_cast<int>(state.range(1));
  settings.ton_unten = 48;
  settings.oktav_ber = 1;
  settings.klang_anzahl = 2;
  settings.klang_ausw_ar = {0, 4, 5};
  settings.grp_anzahl = kGruppen;
  settings.grp_ausw_ar = {0, 1, 2, 3, 4, 5, 6, 7, 8};
  ChordTable table;
  ChordBoard board(table);
  ScriptedRandom random;
  table.SetzeKlangZahlen();
  board.SetzeAkkTab({settings.Klangtypen(), settings.Gruppen(), 0, 0}, random);
  if (board.akk_zahl != kBrettGroesse) state.SkipWithError("the board is not full");
  TaskSelection selection(settings, board, random);
  RunState run;
  selection.BereiteVor(run);
  for (auto _ : state) {
    selection.Ziehe(run);
    benchmark::DoNotOptimize(run.task);
  }
}
BENCHMARK(DrawTask)
    ->ArgNames({"chords", "direction"})
    ->Args({1, kArpOhne})
    ->Args({4, kArpOhne})
    ->Args({4, kArpZufall})
    ->Unit(benchmark::kMicrosecond);

/// The judging of one click, with its entries in the record; every third click is wrong. The
/// counter `median_us` is over single clicks.
void JudgeClick(benchmark::State& state) {
  using Clock = std::chrono::steady_clock;
  std::vector<double> times;
  ProgramFixture p;
  BeginFullRun(p, 4);
  for (auto _ : state) {
    if (p.run().akk_nr == 0 || p.run().akk_nr > p.settings().akk_anzahl) {
      // A run is no longer than usual, so that its record does not grow for ever.
      if (p.documents.Latest().root->Find("lessons")->children.size() == kTasksOfARun) {
        p.worksheet().zurueck.Press();
        p.StartRun();
      }
      p.PlayTask();
    }
    const int tile = times.size() % 3 == 2 ? p.Wrong() : p.Asked(p.run().akk_nr);
    const auto start = Clock::now();
    p.worksheet().akk_antw(tile);
    const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    state.SetIterationTime(seconds);
    times.push_back(seconds);
  }
  const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
  std::nth_element(times.begin(), middle, times.end());
  state.counters["median_us"] = *middle * 1e6;
}
BENCHMARK(JudgeClick)->UseManualTime()->Iterations(20000)->Unit(benchmark::kMicrosecond);

/// A whole process: to the worksheet, a run of free practice, and out again.
void PlayRun(benchmark::State& state) {
  for (auto _ : state) {
    ProgramFixture p;
    BeginFullRun(p, static_cast<int>(state.range(0)));
    for (int task = 0; task < kTasksOfARun; ++task) {
      p.PlayTask();
      p.ClickWrong();
      while (p.run().akk_nr <= p.settings().akk_anzahl) p.ClickRight();
    }
    p.worksheet().zurueck.Press();
    p.settings_screen().cmdZurueck.Press();
    p.first().cmdEnde.Press();
    if (!p.ended || !p.messages.warnings.empty()) state.SkipWithError("the run went wrong");
  }
  state.SetItemsProcessed(state.iterations() * kTasksOfARun);
}
BENCHMARK(PlayRun)->ArgName("chords")->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vmod17

BENCHMARK_MAIN();

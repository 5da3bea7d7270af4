// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// How long a run takes with the real documents and the real store, in a temporary folder of this
// machine, and how a long run grows. All else is on doubles, in virtual time.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <chrono>
#include <vector>

#include "base/numbers.h"
#include "store/host_store.h"
#include "whole_runs.h"
#include "xml/pugi_document.h"

namespace vmod17 {
namespace {

using Clock = std::chrono::steady_clock;

double Since(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

void CountQuantiles(benchmark::State& state, std::vector<double>& seconds) {
  state.counters["median_ms"] = Quantile(seconds, 0.5) * 1e3;
  state.counters["p99_ms"] = Quantile(seconds, 0.99) * 1e3;
}

/// The program with documents on the disk.
class Records {
 public:
  Records() { p.system.environment["temp"] = folder_.path().toStdString(); }

  /// Size of the record that was saved, in MB; 0 when there is not exactly one.
  double SavedMb() const {
    const QFileInfoList files = QDir(folder_.path()).entryInfoList(QDir::Files);
    return files.size() == 1 ? static_cast<double>(files[0].size()) / 1e6 : 0;
  }

 private:
  QTemporaryDir folder_;

 public:
  ProgramFixture p{
      10 * 3600,
      PugiDocumentFactory(folder_.filePath(QStringLiteral("own")).toStdString(), {}, {}),
      {}};
};

void PlayTestWithRecord(benchmark::State& state) {
  std::vector<double> seconds;
  for (auto _ : state) {
    Records records;
    ProgramFixture& p = records.p;
    p.ToSettings();
    const auto start = Clock::now();
    BeginFullBoard(p, kLevelTest, 1);
    int tasks = 0;
    for (; p.run().lauf_status != LaufStatus::kTestZuEnde && tasks < 100; ++tasks) PlayAndAnswer(p);
    LeaveThroughResults(p);
    seconds.push_back(Since(start));
    state.SetIterationTime(seconds.back());
    if (tasks != 96 || records.SavedMb() == 0) state.SkipWithError("the test went wrong");
  }
  CountQuantiles(state, seconds);
}
BENCHMARK(PlayTestWithRecord)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The end of a run of 1,000 tasks, up to the settings screen: its record is completed and on the
/// disk. The argument is the number of chords a task.
void WriteLongRecord(benchmark::State& state) {
  std::vector<double> seconds;
  double mb = 0;
  for (auto _ : state) {
    Records records;
    ProgramFixture& p = records.p;
    p.ToSettings();
    BeginFullBoard(p, 0, static_cast<int>(state.range(0)));
    for (int task = 0; task < 1000; ++task) PlayAndAnswer(p);
    const auto start = Clock::now();
    p.worksheet().zurueck.Press();
    seconds.push_back(Since(start));
    state.SetIterationTime(seconds.back());
    mb = records.SavedMb();
    if (mb == 0) state.SkipWithError("no record");
  }
  CountQuantiles(state, seconds);
  state.counters["file_MB"] = mb;
}
BENCHMARK(WriteLongRecord)
    ->ArgName("chords")
    ->Arg(1)
    ->Arg(4)
    ->UseManualTime()
    ->Iterations(20)
    ->Unit(benchmark::kMillisecond);

double AllocatedMb() {
  const struct mallinfo2 heap = mallinfo2();
  return static_cast<double>(heap.uordblks + heap.hblkhd) / 1e6;
}

/// One run of free practice with so many tasks: the time of all of them and of the last tenth, the
/// memory that the run holds at its end, and the time of its end.
void GrowRun(benchmark::State& state) {
  const auto tasks = static_cast<int>(state.range(0));
  for (auto _ : state) {
    Records records;
    ProgramFixture& p = records.p;
    p.ToSettings();
    BeginFullBoard(p, 0, 1);
    const double before = AllocatedMb();
    const auto start = Clock::now();
    for (int task = 0; task < tasks - tasks / 10; ++task) PlayAndAnswer(p);
    const double most = Since(start);
    for (int task = 0; task < tasks / 10; ++task) PlayAndAnswer(p);
    const double all = Since(start);
    state.counters["task_us"] = all / tasks * 1e6;
    state.counters["late_task_us"] = (all - most) / (tasks / 10) * 1e6;
    state.counters["held_KB"] = (AllocatedMb() - before) * 1e3;
    state.counters["KB_a_task"] = (AllocatedMb() - before) * 1e3 / tasks;
    const auto end = Clock::now();
    p.worksheet().zurueck.Press();
    state.counters["end_ms"] = Since(end) * 1e3;
    state.SetIterationTime(all);
    if (records.SavedMb() == 0) state.SkipWithError("no record");
  }
}
BENCHMARK(GrowRun)
    ->ArgName("tasks")
    ->RangeMultiplier(10)
    ->Range(10, 10000)
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

/// The program with a real store, in which a training of 24 chords was saved.
class Stored {
 public:
  Stored() {
    p.ToSettings();
    BeginFullBoard(p, kLevelNewTraining, 1);
    for (int task = 0; task < 5; ++task) PlayAndAnswer(p);
    p.messages.answer = MessageBox::Answer::kYes;
    p.worksheet().zurueck.Press();
    p.loop.Advance(100);
    p.program.server().LeseAblage("A1");
  }

 private:
  static StoreOptions Options(const QTemporaryDir& folder) {
    StoreOptions options;
    options.address = folder.filePath(QStringLiteral("store.db")).toStdString();
    return options;
  }
  QTemporaryDir folder_;
  HostStore store_{Options(folder_)};

 public:
  ProgramFixture p{10 * 3600, {}, [this] { return store_.Service(); }};
};

/// "E1" and "A1" of a training of 24 chords, on the disk.
void SaveTraining(benchmark::State& state) {
  Stored stored;
  ModServer& server = stored.p.program.server();
  TaggedValue::Array a1 = server.ablage_ar;
  if (a1.size() != 9 * kBrettGroesse + 6) state.SkipWithError("no training was saved");
  std::vector<double> seconds;
  for (auto _ : state) {
    // The database writes nothing for a value that is there already.
    a1[a1.size() - 2] = DecimalText(static_cast<int>(seconds.size()));
    const auto start = Clock::now();
    server.SpeichereTraining("1", a1);
    seconds.push_back(Since(start));
    state.SetIterationTime(seconds.back());
  }
  CountQuantiles(state, seconds);
}
BENCHMARK(SaveTraining)->UseManualTime()->Iterations(500)->Unit(benchmark::kMillisecond);

/// The choice of the level of a stored training, and the building of its worksheet.
void TakeUpStoredTraining(benchmark::State& state) {
  Stored stored;
  ProgramFixture& p = stored.p;
  p.messages.answer = MessageBox::Answer::kNo;
  std::vector<double> seconds;
  for (auto _ : state) {
    p.settings_screen().training_Combo.Choose(0);
    const auto start = Clock::now();
    p.settings_screen().training_Combo.Choose(kLevelContinued);
    p.StartRun();
    seconds.push_back(Since(start));
    state.SetIterationTime(seconds.back());
    if (p.run().material.mat_posten != kBrettGroesse) state.SkipWithError("not taken up");
    p.worksheet().zurueck.Press();
    p.loop.Advance(100);
    p.output.Forget();
    p.languages.looked_up.clear();
  }
  CountQuantiles(state, seconds);
}
BENCHMARK(TakeUpStoredTraining)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vmod17

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

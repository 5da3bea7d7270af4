// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The same run on other clocks, dates and systems: it has the same record and the same marks.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <vector>

#include "worksheet/mode_fixture.h"

namespace vmod17 {
namespace {

constexpr double kDay = 86400;

/// All that a run leaves.
struct Outcome {
  std::vector<std::string> tasks;  ///< counters and weights after each
  std::string record;
  std::vector<std::string> marks;
  TaggedValue stored;

  bool operator==(const Outcome&) const = default;
};

struct Machine {
  const char* name;
  double clock;  ///< when the program begins
  std::function<void(ModeFixture&)> change = {};
};

/// Times in ms are in the middle of what a tenth of a second takes in: the clock is a Single, which
/// late in the day tells eight milliseconds at the least.
constexpr double kBeforeMiddle = 50;

void RightAfter(ModeFixture& p, double ms) {
  p.loop.Advance(ms);
  if (p.program.testergebnis() == nullptr) {
    EXPECT_NE(p.Right(), 0);
  }
}

/// Answers the open slot in one of seven ways.
void AnswerSlot(ModeFixture& p, int way) {
  switch (way) {
    case 0:
      return RightAfter(p, 500);
    case 1:
      return RightAfter(p, 3700);
    case 2:
      p.loop.Advance(1200);
      p.WorksheetFixture::Wrong();
      return RightAfter(p, 2800);
    case 3:
    case 4:
      for (int i = 3; i <= way; ++i) {
        p.loop.Advance(900);
        p.Repeat();
        p.loop.Advance(kBeforeMiddle);
      }
      return RightAfter(p, 1400);
    case 5:
      p.loop.Advance(700);
      return p.LoseSlot();
    default:
      return RightAfter(p, 7900);
  }
}

void NoteTask(ModeFixture& p, Outcome& outcome) {
  std::string note = p.worksheet().zaehler[0].caption + " " + p.worksheet().zaehler[1].caption +
                     " " + p.worksheet().whlgzaehler.caption + ":";
  for (const auto& [entry, weight] : p.run().material.mat_tab) {
    note += " " + std::to_string(entry) + "=" + std::to_string(weight);
  }
  note += " " + std::to_string(p.run().material.mat_rest);
  outcome.tasks.push_back(note);
}

/// The record as it was saved, but for the times of day that it tells.
std::string RecordOf(ModeFixture& p) {
  std::string record = p.documents.Latest().saved;
  const std::size_t stamp = record.find("timestamp");
  record.erase(stamp, record.find('\n', stamp) - stamp);
  return record;
}

void NoteMarks(ModeFixture& p, Outcome& outcome) {
  p.loop.Advance(300);
  ASSERT_TRUE(p.results().visible);
  for (int e = 0; e <= kBrettGroesse; ++e) {
    std::string mark = p.results().ergebnis[e].caption;
    EXPECT_TRUE(mark.empty() || mark == "0.0 %" ||
                mark.find(p.system.decimal_point) != std::string::npos)
        << mark;
    std::ranges::replace(mark, ',', '.');
    outcome.marks.push_back(mark);
  }
  p.PassResults();
}

Outcome OutcomeOn(const Machine& machine, int modus, int akk_anzahl) {
  Outcome outcome;
  ModeFixture p(machine.clock);
  if (machine.change) machine.change(p);
  p.BeginMode(modus, [=](ExerciseSettings& s) {
    s.akk_anzahl = akk_anzahl;
    s.frequenz_art = 1;
  });
  int way = 0;
  while (p.program.testergebnis() == nullptr && p.run().lauf_status < LaufStatus::kTrainingZuEnde &&
         outcome.tasks.size() < 60) {
    p.PlayTask();
    if (modus != kTraining) p.loop.Advance(kBeforeMiddle);
    for (int slot = 1; slot <= akk_anzahl && p.program.testergebnis() == nullptr; ++slot) {
      // More right than wrong, so that a training lasts.
      AnswerSlot(p, std::array{0, 1, 2, 3, 0, 4, 5, 6, 0, 2, 0}[way++ % 11]);
    }
    if (p.program.testergebnis() == nullptr) NoteTask(p, outcome);
  }
  if (p.run().lauf_status < LaufStatus::kTrainingZuEnde && modus == kTraining) {
    p.SaveAndLeave();
    outcome.stored = p.host.Stored("A1");
  } else {
    if (p.program.testergebnis() == nullptr) {
      EXPECT_TRUE(p.worksheet().zurueck.Press());
    }
    NoteMarks(p, outcome);
  }
  outcome.record = RecordOf(p);
  return outcome;
}

void JumpInTime(ModeFixture& p) {
  p.loop.meanwhile = [&p, n = 0]() mutable {
    ++n;
    p.loop.date = {1980 + n * 7 % 120, 1 + n % 12, 1 + n % 28, n * 5 % 24, n * 11 % 60, n % 60};
  };
}

const std::vector<Machine>& Machines() {
  static const std::vector<Machine> machines = {
      {"noon", 12 * 3600},
      {"late evening", 23 * 3600},
      {"five seconds before midnight", kDay - 5},
      {"half a minute before midnight", kDay - 30},
      {"two minutes before midnight", kDay - 120},
      {"a clock that jumps", 100, JumpInTime},
      {"a clock that jumps at midnight", kDay - 60, JumpInTime},
      {"a decimal comma", 100, [](ModeFixture& p) { p.system.decimal_point = ","; }},
  };
  return machines;
}

class ARunOnAnyClock : public ::testing::TestWithParam<int> {};

TEST_P(ARunOnAnyClock, LeavesTheSameRecordAndMarks) {
  for (const int akk_anzahl : {1, 3}) {
    const Outcome usual = OutcomeOn({"morning", 100}, GetParam(), akk_anzahl);
    ASSERT_GE(usual.tasks.size(), 5u);
    for (const Machine& machine : Machines()) {
      SCOPED_TRACE(machine.name);
      const Outcome outcome = OutcomeOn(machine, GetParam(), akk_anzahl);
      EXPECT_EQ(outcome.tasks, usual.tasks);
      EXPECT_EQ(outcome.record, usual.record);
      EXPECT_EQ(outcome.marks, usual.marks);
      EXPECT_TRUE(outcome.stored == usual.stored);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Modes, ARunOnAnyClock, ::testing::Values(kTraining, kTest, kPruefung));

TEST(SlowAnswers, CostTheSameAcrossMidnight) {
  for (const double before : {0.5, 1.0, 2.5, 5.9, 6.5}) {
    ModeFixture p(kDay - 20);
    p.BeginMode(kTraining);
    const double midnight = 20000;
    p.loop.Advance(midnight - before * 1000 - p.kPauses - p.PlayingTime() - p.loop.Elapsed());
    p.PlayTaskOf({1});
    EXPECT_GT(p.loop.Clock(), kDay / 2);
    p.loop.Advance(6000);
    EXPECT_EQ(p.loop.Clock() < kDay / 2, before < 6);
    EXPECT_NE(p.Right(), 0);
    // Six seconds leave one of the four points.
    EXPECT_EQ(p.Weight(1), 3) << before;
  }
}

}  // namespace
}  // namespace vmod17

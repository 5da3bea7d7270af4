// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "worksheet/judging.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <vector>

#include "support/scripted_random.h"

namespace vmod17 {
namespace {

/// A board of ten chords of four notes, by two in the groups 1 to 5, and the judging over it.
class Bench {
 public:
  Bench() {
    auswertung.init_arr(24, 3);
    board.akk_zahl = 10;
    for (int e = 1; e <= 10; ++e) board[e] = {4, e, (e + 1) / 2, 10 + e};
    SetChoices(10);
    settings.akk_anzahl = 1;
    run.clock.antw_frei = 20;
  }

  void SetChoices(int count) { board.limits.Setze(count); }
  void NameGroups() {
    settings.best_art = 1;
    SetChoices(5);
  }
  void BeginTraining() {
    settings.uebmodus = kModusNeuesTraining;
    run.material.mat_posten = 10;
    run.material.BeginneTraining(auswertung);
  }
  void BeginTest(int tasks) {
    settings.uebmodus = kModusTest;
    run.material.mat_posten = 10;
    run.material.BeginneTest(10);
    run.test.test_aufgaben = run.test.rest_aufgaben = tasks;
  }

  /// Asks for these chords on the roots 50, 51 and so on; the sound is over at `uhr`.
  TaskAsked Ask(std::initializer_list<int> entries, float uhr = 1000) {
    settings.akk_anzahl = static_cast<int>(entries.size());
    int slot = 0;
    for (const int e : entries) {
      ++slot;
      run.task.aufg_akk_ar[slot] = e;
      run.task.akk_ton_ar[slot] = {49 + slot, 53 + slot, 56 + slot, 59 + slot};
    }
    const TaskAsked task = judging.AufgabeStellen(run);
    run.clock.antw_start = uhr;
    return task;
  }
  AnswerGiven Click(int choice, float uhr = 1000) {
    return judging.AntwortSetzen(run, choice, uhr);
  }
  /// Asks for one chord, answers it rightly at once and ends the task.
  TaskClosed Solve(int entry) {
    Ask({entry});
    Click(settings.best_art == 0 ? entry : board[entry].group);
    return judging.AufgabeBeenden(run);
  }
  TaskClosed Lose(int entry) {
    Ask({entry});
    for (int wrong = entry; run.lauf_status != LaufStatus::kAufgabeFertig || run.akk_nr == 1;) {
      wrong = wrong % 10 + 1;
      Click(wrong);
    }
    return judging.AufgabeBeenden(run);
  }

  ExerciseSettings settings;
  ChordTable table;
  ChordBoard board{table};
  Auswertung auswertung;
  ScriptedRandom random;
  RunState run;
  Judging judging{settings, board, auswertung, random};
};

// ---- A task is asked ------------------------------------------------------------------------

TEST(Judging, TellsTheChordsOfATaskWithTheirLowestNotes) {
  Bench b;
  EXPECT_EQ(b.Ask({3, 10}), (TaskAsked{{{3, {4, 3, 2, 13}, 50}, {10, {4, 10, 5, 20}, 51}}}));
}

TEST(Judging, BeginsATaskWithItsFirstSlotAndNothingAnswered) {
  Bench b;
  b.Ask({3, 4});
  b.Click(5);
  b.run.clock.anz_whlg = 2;
  b.Ask({6, 7});
  EXPECT_EQ(b.run.akk_nr, 1);
  EXPECT_EQ(b.run.answers.fehl_ar[1], 0);
  EXPECT_EQ(b.run.answers.falsch_ar[1][1], 0);
  EXPECT_EQ(b.run.clock.anz_whlg, 0);
  EXPECT_EQ(b.run.clock.antw_dauer, 0);
  EXPECT_EQ(b.run.clock.antw_lfd, 1);
}

// ---- A click is judged ----------------------------------------------------------------------

TEST(Judging, TellsARightClick) {
  Bench b;
  b.Ask({3}, 1000);
  b.run.clock.anz_whlg = 2;
  AnswerGiven expected;
  expected.slot = 1;
  expected.antw_lfd = 1;
  expected.gefragt = expected.gewaehlt = 3;
  expected.gefragter_akkord = expected.gewaehlter_akkord = {4, 3, 2, 13};
  expected.richtig = true;
  expected.antw_dauer = 23;
  expected.anz_whlg = 2;
  expected.danach = LaufStatus::kAufgabeFertig;
  EXPECT_EQ(b.Click(3, 1002.3f), expected);
  EXPECT_FALSE(expected.Verloren());
}

TEST(Judging, TellsWhichChordWasTakenForWhich) {
  Bench b;
  b.Ask({3});
  const AnswerGiven answer = b.Click(8);
  EXPECT_FALSE(answer.richtig);
  EXPECT_EQ(answer.gefragt, 3);
  EXPECT_EQ(answer.gefragter_akkord, (BoardEntry{4, 3, 2, 13}));
  EXPECT_EQ(answer.gewaehlt, 8);
  EXPECT_EQ(answer.gewaehlter_akkord, (BoardEntry{4, 8, 4, 18}));
  EXPECT_EQ(answer.punkte, 2);
  EXPECT_EQ(answer.danach, LaufStatus::kWeitererVersuch);
  EXPECT_FALSE(answer.Verloren());
}

TEST(Judging, TakesTheGroupOfTheChordForRightWhereGroupsAreNamed) {
  Bench b;
  b.NameGroups();
  b.Ask({3});
  const AnswerGiven wrong = b.Click(4);
  EXPECT_FALSE(wrong.richtig);
  EXPECT_EQ(wrong.gefragt, 2);
  EXPECT_EQ(wrong.gefragter_akkord, (BoardEntry{4, 3, 2, 13}));
  EXPECT_EQ(wrong.gewaehlter_akkord, (BoardEntry{0, 0, 4, 0}));
  EXPECT_EQ(b.run.answers.falsch_ar[1][1], 0) << "wrong groups are not kept";
  EXPECT_TRUE(b.Click(2).richtig);
}

TEST(Judging, NumbersTheClicksOfASlotAndOpensTheSlotsInTurn) {
  Bench b;
  b.Ask({3, 4});
  const std::vector<AnswerGiven> answers = {b.Click(5), b.Click(6), b.Click(3), b.Click(4)};
  const std::vector<int> slots = {1, 1, 1, 2};
  const std::vector<int> numbers = {1, 2, 3, 1};
  const std::vector<LaufStatus> after = {LaufStatus::kWeitererVersuch, LaufStatus::kWeitererVersuch,
                                         LaufStatus::kNaechsterSlot, LaufStatus::kAufgabeFertig};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(answers[i].slot, slots[i]) << i;
    EXPECT_EQ(answers[i].antw_lfd, numbers[i]) << i;
    EXPECT_EQ(answers[i].danach, after[i]) << i;
  }
  EXPECT_EQ(b.run.count.richtig, 2);
  EXPECT_EQ(b.run.count.falsch, 2);
}

TEST(Judging, LosesASlotWithItsLastWrongClick) {
  struct Case {
    int choices, clicks;
  };
  for (const Case& c : {Case{2, 1}, Case{3, 2}, Case{4, 3}, Case{5, 4}, Case{10, 4}}) {
    Bench b;
    b.SetChoices(c.choices);
    b.Ask({1, 2});
    for (int i = 1; i <= c.clicks; ++i) {
      const AnswerGiven answer = b.Click(2 + i);
      EXPECT_EQ(answer.Verloren(), i == c.clicks) << c.choices << ", " << i;
      EXPECT_EQ(answer.punkte, static_cast<float>(2 * i));
      EXPECT_EQ(answer.danach,
                i == c.clicks ? LaufStatus::kNaechsterSlot : LaufStatus::kWeitererVersuch);
    }
    EXPECT_EQ(b.run.akk_nr, 2);
  }
}

TEST(Judging, StrikesAWrongChoiceForItsSlot) {
  Bench b;
  b.Ask({3, 4});
  b.Click(7);
  EXPECT_EQ(b.run.aus_ar[7], 1);
  b.Click(3);
  EXPECT_EQ(b.run.aus_ar[7], 0);
}

TEST(Judging, PraisesARightFirstClickButNotInFreePractice) {
  for (const int uebmodus : {kModusFrei, kModusNeuesTraining, kModusFortsetzung, kModusTest}) {
    Bench b;
    b.settings.uebmodus = uebmodus;
    b.Ask({3});
    EXPECT_EQ(b.Click(3).punkte, uebmodus == kModusFrei ? 0 : -4);
  }
}

TEST(Judging, KeepsTheSurchargeOfASlowFirstClick) {
  Bench b;
  b.BeginTraining();
  b.Ask({3}, 1000);
  b.Click(3, 1008);
  EXPECT_FLOAT_EQ(b.run.answers.zeit_ar[1], 4);
}

TEST(Judging, TimesAnAnswerInTenthsFromTheClickBeforeIt) {
  Bench b;
  b.Ask({3, 4}, 1000);
  EXPECT_EQ(b.Click(5, 1001).antw_dauer, 10);
  EXPECT_EQ(b.Click(3, 1001.75f).antw_dauer, 8) << "rounded to the nearest";
  EXPECT_EQ(b.Click(4, 1003).antw_dauer, 13);
}

TEST(Judging, AddsTheTimeThatWasGatheredBeforeARepeat) {
  Bench b;
  b.Ask({3}, 1000);
  b.run.clock.antw_dauer = 1.5f;
  EXPECT_EQ(b.Click(3, 1001).antw_dauer, 25);
}

TEST(Judging, TimesAnAnswerOverMidnight) {
  Bench b;
  b.Ask({3}, 86399);
  EXPECT_EQ(b.Click(3, 1).antw_dauer, 20);
}

TEST(Judging, StopsTheCountersAtTheHighestNumberThatCanBeStored) {
  Bench b;
  b.run.count = {32766, 32766, 0};
  b.Ask({3, 4});
  for (const int choice : {5, 6, 3, 4}) b.Click(choice);
  EXPECT_EQ(b.run.count.richtig, 32767);
  EXPECT_EQ(b.run.count.falsch, 32767);
}

// ---- A task is ended ------------------------------------------------------------------------

TEST(Judging, EndsATaskOfFreePracticeWithoutAScore) {
  Bench b;
  b.Ask({3, 4});
  for (const int choice : {3, 5, 4}) b.Click(choice);
  EXPECT_EQ(b.judging.AufgabeBeenden(b.run),
            (TaskClosed{2, {0, 2}, TrainingStand::kGehtWeiter, LaufStatus::kAufgabeFertig}));
  float asked = -1;
  b.auswertung.read(3, kGefragt, asked);
  EXPECT_EQ(asked, 0);
}

TEST(Judging, TellsThePointsOfEachSlotOfATaskThatCounts) {
  Bench b;
  b.BeginTraining();
  b.Ask({3, 4, 5});
  b.run.answers.whlg_ar[1] = 1;
  for (const int choice : {3, 6, 4, 6, 7, 8, 9}) b.Click(choice);
  const TaskClosed end = b.judging.AufgabeBeenden(b.run);
  EXPECT_EQ(end.geloest, 2);
  EXPECT_EQ(end.punkte, (std::vector<float>{-6, 2, 8}));
  EXPECT_EQ(end.danach, LaufStatus::kAufgabeFertig);
}

TEST(Judging, TellsThatATrainingIsSolved) {
  Bench b;
  b.BeginTraining();
  for (int e = 1; e <= 9; ++e) {
    const TaskClosed end = b.Solve(e);
    EXPECT_EQ(end.danach, LaufStatus::kAufgabeFertig) << e;
    EXPECT_EQ(end.training, TrainingStand::kGehtWeiter) << e;
  }
  const TaskClosed last = b.Solve(10);
  EXPECT_EQ(last.danach, LaufStatus::kTrainingZuEnde);
  EXPECT_EQ(last.training, TrainingStand::kGeloest);
}

TEST(Judging, TellsThatATrainingIsTooHard) {
  Bench b;
  b.BeginTraining();
  TaskClosed end;
  for (int e = 1; end.danach != LaufStatus::kTrainingZuEnde && e <= 10; ++e) {
    EXPECT_EQ(end.training, TrainingStand::kGehtWeiter) << e;
    end = b.Lose(e);
  }
  EXPECT_EQ(end.training, TrainingStand::kZuSchwer);
  EXPECT_EQ(end.geloest, 0);
}

TEST(Judging, TellsThatATestIsOverWithItsLastTask) {
  Bench b;
  b.BeginTest(6);
  for (int task = 1; task <= 6; ++task) {
    const TaskClosed end = b.Solve(task);
    EXPECT_EQ(end.danach, task == 6 ? LaufStatus::kTestZuEnde : LaufStatus::kAufgabeFertig);
    EXPECT_EQ(end.training, TrainingStand::kGehtWeiter);
    EXPECT_EQ(b.run.test.rest_aufgaben, 6 - task);
  }
}

TEST(Judging, FillsTheBagAnewAtHalfOfATest) {
  Bench b;
  b.BeginTest(4);
  b.Solve(1);
  EXPECT_EQ(b.run.material.mat_ar[7], 0);
  b.Solve(2);
  for (int e = 1; e <= 10; ++e) EXPECT_EQ(b.run.material.mat_ar[e], e);
}

// ---- Any sequence of clicks -----------------------------------------------------------------

RC_GTEST_PROP(JudgingProperty, TellsTheSameThatItKeeps, ()) {
  Bench b;
  b.settings.uebmodus = *rc::gen::element<int>(kModusFrei, kModusNeuesTraining, kModusTest);
  if (*rc::gen::arbitrary<bool>()) b.NameGroups();
  const int choices = b.settings.best_art == 0 ? 10 : 5;
  if (b.settings.IstTraining()) b.BeginTraining();
  if (b.settings.IstTest()) b.BeginTest(100);
  int right = 0;
  int wrong = 0;
  float uhr = 500;
  for (int task = *rc::gen::inRange(1, 6); task > 0; --task) {
    const int e1 = *rc::gen::inRange(1, 11);
    const int e2 = *rc::gen::inRange(1, 11);
    const auto asked = *rc::gen::arbitrary<bool>() ? b.Ask({e1}, uhr) : b.Ask({e1, e2}, uhr);
    const int slots = static_cast<int>(asked.akkorde.size());
    int solved = 0;
    int wrong_in_slot = 0;
    for (int slot = 1; slot <= slots;) {
      std::vector<int> open;
      for (int i = 1; i <= choices; ++i) {
        if (b.run.aus_ar[i] == 0) open.push_back(i);
      }
      const int pause = *rc::gen::inRange(0, 40);
      uhr += static_cast<float>(pause) / 4;
      const AnswerGiven answer = b.Click(*rc::gen::elementOf(open), uhr);

      RC_ASSERT(answer.slot == slot);
      RC_ASSERT(answer.antw_lfd == wrong_in_slot + 1);
      RC_ASSERT(answer.gefragter_akkord == asked.akkorde[slot - 1].akkord);
      RC_ASSERT(answer.richtig == (answer.gewaehlt == answer.gefragt));
      RC_ASSERT(answer.antw_dauer == static_cast<float>((pause * 10 + 2) / 4));
      answer.richtig ? ++right : ++wrong;
      if (!answer.richtig) ++wrong_in_slot;
      RC_ASSERT(wrong_in_slot <= 4);
      RC_ASSERT(answer.Verloren() == (wrong_in_slot == 4));
      RC_ASSERT(wrong_in_slot == 0 || answer.punkte == static_cast<float>(2 * wrong_in_slot));
      const bool closed = answer.richtig || answer.Verloren();
      RC_ASSERT(closed == (answer.danach != LaufStatus::kWeitererVersuch));
      if (closed) {
        ++slot;
        solved += answer.richtig ? 1 : 0;
        wrong_in_slot = 0;
        RC_ASSERT(std::ranges::all_of(b.run.aus_ar, [](int struck) { return struck == 0; }));
      } else {
        RC_ASSERT(b.run.aus_ar[answer.gewaehlt] == 1);
      }
      RC_ASSERT((answer.danach == LaufStatus::kAufgabeFertig) == (slot > slots));
      RC_ASSERT(b.run.akk_nr == slot);
      RC_ASSERT(b.run.lauf_status == answer.danach);
    }
    const TaskClosed end = b.judging.AufgabeBeenden(b.run);
    RC_ASSERT(end.geloest == solved);
    RC_ASSERT(static_cast<int>(end.punkte.size()) == slots);
    for (const float points : end.punkte) RC_ASSERT(points >= -8 && points <= 8);
    RC_ASSERT(end.danach == b.run.lauf_status);
    RC_ASSERT((end.danach == LaufStatus::kTrainingZuEnde) ==
              (end.training != TrainingStand::kGehtWeiter));
    if (end.danach != LaufStatus::kAufgabeFertig) break;
  }
  RC_ASSERT(b.run.count.richtig == right);
  RC_ASSERT(b.run.count.falsch == wrong);
}

}  // namespace
}  // namespace vmod17

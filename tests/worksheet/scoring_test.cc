// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "worksheet/scoring.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>
#include <vector>

namespace vmod17 {
namespace {

constexpr int kFrei = 20;

TEST(TimeSurcharge, IsNothingUpToTheFreeTime) {
  for (const float t : {0.0f, 1.0f, 19.0f, 20.0f}) EXPECT_EQ(ZeitZuschlag(t, kFrei), 0) << t;
}

TEST(TimeSurcharge, GrowsByATenthForEachTwoTenthsOfASecond) {
  for (const auto& [t, points] : std::vector<std::pair<float, float>>{{21, 1.0f},
                                                                      {22, 1.1f},
                                                                      {23, 1.1f},
                                                                      {24, 1.2f},
                                                                      {25, 1.2f},
                                                                      {40, 2.0f},
                                                                      {79, 3.9f},
                                                                      {80, 4.0f},
                                                                      {81, 4.0f},
                                                                      {82, 4.1f},
                                                                      {1020, 51.0f}}) {
    EXPECT_FLOAT_EQ(ZeitZuschlag(t, kFrei), points) << t;
  }
}

TEST(TimeSurcharge, RoundsTheTimeOverHalvesToEven) {
  EXPECT_FLOAT_EQ(ZeitZuschlag(20.4f, kFrei), 1.0f);
  EXPECT_FLOAT_EQ(ZeitZuschlag(21.5f, kFrei), 1.1f);  // 2
  EXPECT_FLOAT_EQ(ZeitZuschlag(22.5f, kFrei), 1.1f);  // 2
  EXPECT_FLOAT_EQ(ZeitZuschlag(23.5f, kFrei), 1.2f);  // 4
}

TEST(TimeSurcharge, CountsFromTheFreeTimeThatItIsTold) {
  EXPECT_EQ(ZeitZuschlag(5, 5), 0);
  EXPECT_FLOAT_EQ(ZeitZuschlag(6, 5), 1.0f);
  EXPECT_FLOAT_EQ(ZeitZuschlag(1, 0), 1.0f);
}

/// How a slot was answered, as the clicks leave it.
struct Slot {
  int entry = 1;
  float points = 0;
  int repeats = 0;
  float time = 0;
  std::vector<int> wrong = {};
};

Slot RightAtOnce(int entry, int repeats = 0, float time = 0) { return {entry, -4, repeats, time}; }
Slot AfterWrong(int entry, std::vector<int> wrong, int repeats = 0) {
  return {entry, 2.0f * static_cast<float>(wrong.size()), repeats, 0, std::move(wrong)};
}

/// The scoring of a run of ten chords.
class ScoringTest : public ::testing::Test {
 protected:
  ScoringTest() {
    auswertung.init_arr(24, 3);
    board.akk_zahl = 10;
    board.limits.Setze(10);
    settings.uebmodus = 1;
    settings.best_art = 0;
    run.material.mat_posten = 10;
    run.material.BeginneTraining(auswertung);
  }

  void Score(const std::vector<Slot>& slots) {
    run.answers = TaskAnswers();
    int i = 0;
    for (const Slot& slot : slots) {
      ++i;
      run.task.aufg_akk_ar[i] = slot.entry;
      run.answers.fehl_ar[i] = slot.points;
      run.answers.whlg_ar[i] = slot.repeats;
      run.answers.zeit_ar[i] = slot.time;
      int k = 0;
      for (const int w : slot.wrong) run.answers.falsch_ar[i][++k] = w;
    }
    settings.akk_anzahl = i;
    scoring.AufgabeWerten(run, i + 1);
  }
  int Weight(int entry) { return *run.material.Gewicht(entry); }
  void SetWeight(int entry, int weight) { *run.material.Gewicht(entry) = weight; }
  float Counter(int entry, int column) const {
    float value = -1;
    auswertung.read(entry, column, value);
    return value;
  }
  float Final(int slot) const { return run.answers.fehl_ar[slot]; }

  ExerciseSettings settings;
  ChordTable table;
  ChordBoard board{table};
  Auswertung auswertung;
  RunState run;
  Scoring scoring{settings, board, auswertung};
};

// ---- A slot ---------------------------------------------------------------------------------

TEST_F(ScoringTest, GivesTheBestScoreForARightFirstClickInTime) {
  Score({RightAtOnce(3)});
  EXPECT_EQ(Final(1), -8);
  EXPECT_EQ(Weight(3), 0);
  EXPECT_EQ(Counter(3, 0), 1);
  EXPECT_EQ(Counter(3, 1), -16);
  EXPECT_EQ(Counter(3, 2), 0);
}

TEST_F(ScoringTest, TakesRepeatsAndSlownessFromARightFirstClick) {
  struct Case {
    int repeats;
    float time;
    float final;
    int weight;
  };
  for (const Case& c : {Case{1, 0, -6, 1}, Case{3, 0, -2, 3}, Case{4, 0, 0, 4}, Case{9, 0, 0, 4},
                        Case{0, 1.0f, -6, 1}, Case{0, 4.0f, 0, 4}, Case{0, 30.0f, 0, 4},
                        Case{2, 1.0f, -2, 3}, Case{2, 2.0f, 0, 4}, Case{3, 3.0f, 0, 4}}) {
    auswertung.Clear();
    SetWeight(3, 4);
    Score({RightAtOnce(3, c.repeats, c.time)});
    EXPECT_FLOAT_EQ(Final(1), c.final) << c.repeats << ", " << c.time;
    EXPECT_EQ(Weight(3), c.weight) << c.repeats << ", " << c.time;
    EXPECT_FLOAT_EQ(Counter(3, 1), c.final - 8) << c.repeats << ", " << c.time;
  }
}

TEST_F(ScoringTest, RoundsAWeightHalvesToEven) {
  struct Case {
    int before;
    float time;
    int after;
  };
  // -4 + 1.5 is -2.5; 4 - 2.5 is 1.5.
  for (const Case& c : {Case{4, 1.5f, 2}, Case{5, 1.5f, 2}, Case{3, 1.5f, 0}, Case{6, 1.5f, 4},
                        Case{4, 1.4f, 1}, Case{4, 1.6f, 2}, Case{0, 3.5f, 0}, Case{1, 3.5f, 0},
                        Case{-1, 3.5f, -2}, Case{2, 3.5f, 2}, Case{2, 3.9f, 2}}) {
    SetWeight(3, c.before);
    Score({RightAtOnce(3, 0, c.time)});
    EXPECT_EQ(Weight(3), c.after) << c.before << ", " << c.time;
  }
}

TEST_F(ScoringTest, DoublesOnlyWhatIsPosted) {
  Score({RightAtOnce(3, 0, 2.5f)});
  EXPECT_FLOAT_EQ(Final(1), -3);
  EXPECT_FLOAT_EQ(Counter(3, 1), -11);
  EXPECT_EQ(Weight(3), 2);  // 4 - 1.5 is 2.5, to the even 2; twice 1.5 would give 1
}

TEST_F(ScoringTest, NeverRewardsARightClickAfterAWrongOne) {
  Score({AfterWrong(3, {7})});
  EXPECT_EQ(Final(1), 2);
  EXPECT_EQ(Weight(3), 6);
  EXPECT_EQ(Counter(3, 1), -6);
}

TEST_F(ScoringTest, AddsRepeatsToASlotWithAWrongClick) {
  Score({AfterWrong(3, {7}, 3)});
  EXPECT_EQ(Final(1), 5);
  EXPECT_EQ(Weight(3), 9);
  EXPECT_EQ(Counter(3, 1), -3);
}

TEST_F(ScoringTest, CutsASlotBackToTheHighestPoints) {
  Score({AfterWrong(3, {7, 6}, 20)});
  EXPECT_EQ(Final(1), 8);
  EXPECT_EQ(Weight(3), 12);
  EXPECT_EQ(Counter(3, 1), 0);
}

TEST_F(ScoringTest, AddsNothingForRepeatsToALostSlot) {
  Score({AfterWrong(3, {7, 6, 5, 4}, 5)});
  EXPECT_EQ(Final(1), 8);
  EXPECT_EQ(Weight(3), 12);
  EXPECT_EQ(Counter(3, 1), 0);
}

TEST_F(ScoringTest, LosesASlotOfTwoChoicesAtTheFirstWrongClick) {
  board.limits.Setze(2);
  ASSERT_EQ(board.limits.fehl_max, 2);
  Score({AfterWrong(3, {7}, 4)});
  EXPECT_EQ(Final(1), 2);
  EXPECT_EQ(Weight(3), 6);
  EXPECT_EQ(Weight(7), 5);
  EXPECT_EQ(Counter(3, 1), -6);
}

// ---- A task ---------------------------------------------------------------------------------

TEST_F(ScoringTest, ScoresTheSlotsUpToTheCountOnly) {
  Score({RightAtOnce(1), RightAtOnce(2)});
  run.task.aufg_akk_ar = {0, 5, 6, 7, 8};
  run.answers.fehl_ar = {0, -4, -4, -4, -4};
  scoring.AufgabeWerten(run, 3);
  EXPECT_EQ(Weight(5), 0);
  EXPECT_EQ(Weight(6), 0);
  EXPECT_EQ(Weight(7), 4);
  EXPECT_EQ(Counter(7, 0), 0);
}

TEST_F(ScoringTest, MovesTheWeightsOfAllFourSlots) {
  Score({RightAtOnce(1), RightAtOnce(2), AfterWrong(3, {9}), RightAtOnce(4)});
  EXPECT_EQ(Weight(1), 0);
  EXPECT_EQ(Weight(2), 0);
  EXPECT_EQ(Weight(3), 6);
  EXPECT_EQ(Weight(4), 0);
  EXPECT_EQ(Weight(9), 5);
  EXPECT_EQ(run.material.mat_rest, 6 + 5 + 5 * 4);
}

TEST_F(ScoringTest, LowersOneWeightFourTimesInATaskOfOneChord) {
  Score({RightAtOnce(5), RightAtOnce(5), RightAtOnce(5), RightAtOnce(5)});
  EXPECT_EQ(Weight(5), 4 - 16);
  EXPECT_EQ(Counter(5, 0), 4);
  EXPECT_EQ(Counter(5, 1), -64);
}

TEST_F(ScoringTest, PutsTheMaterialInOrder) {
  Score({AfterWrong(10, {9})});
  EXPECT_EQ(run.material.mat_tab[1], (std::array<int, 2>{10, 6}));
  EXPECT_EQ(run.material.mat_tab[2], (std::array<int, 2>{9, 5}));
  EXPECT_EQ(run.material.mat_rest, 6 + 5 + 8 * 4);
  EXPECT_EQ(run.material.mat_anzahl, 43);
}

// ---- Chords that were taken for others ----------------------------------------------------------

TEST_F(ScoringTest, CountsAndPractisesTheChordsThatWereTakenForOthers) {
  for (const int uebmodus : {1, 2}) {
    settings.uebmodus = uebmodus;
    auswertung.Clear();
    run.material.BeginneTraining(auswertung);
    Score({AfterWrong(3, {7, 8, 9})});
    for (const int w : {7, 8, 9}) {
      EXPECT_EQ(Counter(w, 2), 1) << w;
      EXPECT_EQ(Weight(w), 5) << w;
      EXPECT_EQ(Counter(w, 0), 0) << w;
    }
    EXPECT_EQ(Weight(3), 10);
    EXPECT_EQ(Counter(3, 2), 0);
  }
}

TEST_F(ScoringTest, CountsAllFourWrongClicksOfALostSlot) {
  Score({AfterWrong(3, {6, 7, 8, 9})});
  for (const int w : {6, 7, 8, 9}) EXPECT_EQ(Counter(w, 2), 1) << w;
  EXPECT_EQ(Weight(3), 12);
}

TEST_F(ScoringTest, CountsTheSameWrongChordInEachSlot) {
  Score({AfterWrong(3, {9}), AfterWrong(4, {9})});
  EXPECT_EQ(Counter(9, 2), 2);
  EXPECT_EQ(Weight(9), 6);
}

TEST_F(ScoringTest, OnlyCountsThemInATest) {
  run.material = Material();
  for (const int uebmodus : {3, 4}) {
    settings.uebmodus = uebmodus;
    auswertung.Clear();
    Score({AfterWrong(3, {7})});
    EXPECT_EQ(Counter(7, 2), 1);
    EXPECT_EQ(run.material.Gewicht(7), nullptr);
    EXPECT_EQ(run.material.mat_rest, 0);
  }
}

TEST_F(ScoringTest, NeitherCountsNorPractisesThemWithoutSteps) {
  // So it is in a training that is taken up by a fresh process, which has built no board.
  settings.uebmodus = 2;
  board.limits = SlotLimits();
  board.limits.fehl_max = 8;
  Score({AfterWrong(3, {7, 8})});
  EXPECT_EQ(Counter(7, 2), 0);
  EXPECT_EQ(Counter(8, 2), 0);
  EXPECT_EQ(Weight(7), 4);
  EXPECT_EQ(Weight(3), 8);
  EXPECT_EQ(Counter(3, 1), -4);
}

TEST_F(ScoringTest, CountsNoMoreOfThemThanThereAreSteps) {
  settings.uebmodus = 2;
  board.limits.fehl_stufen = 1;
  Score({AfterWrong(3, {7, 8})});
  EXPECT_EQ(Counter(7, 2), 1);
  EXPECT_EQ(Counter(8, 2), 0);
  EXPECT_EQ(Weight(8), 4);
}

TEST_F(ScoringTest, KnowsNoWrongChordWhenGroupsAreNamed) {
  settings.best_art = 1;
  Score({{3, 4, 0, 0, {}}});
  for (int e = 1; e <= 10; ++e) EXPECT_EQ(Counter(e, 2), 0);
  EXPECT_EQ(Weight(3), 8);
}

// ---- What is posted, by mode --------------------------------------------------------------------

TEST_F(ScoringTest, AddsTheScoresOfATraining) {
  for (const int uebmodus : {1, 2}) {
    settings.uebmodus = uebmodus;
    auswertung.Clear();
    Score({RightAtOnce(3), AfterWrong(3, {7}), RightAtOnce(3, 4)});
    EXPECT_EQ(Counter(3, 0), 3);
    EXPECT_EQ(Counter(3, 1), -16 - 6 - 8);
  }
}

TEST_F(ScoringTest, KeepsTheTwoBestScoresOfATest) {
  for (const int uebmodus : {3, 4}) {
    settings.uebmodus = uebmodus;
    run.material = Material();
    auswertung.Clear();
    Score({AfterWrong(3, {7, 8})});  // -4
    EXPECT_EQ(Counter(3, 0), 0);
    EXPECT_EQ(Counter(3, 1), -4);
    Score({AfterWrong(3, {7})});  // -6
    EXPECT_EQ(Counter(3, 0), -4);
    EXPECT_EQ(Counter(3, 1), -6);
    Score({AfterWrong(3, {7, 8, 9})});  // -2
    EXPECT_EQ(Counter(3, 0), -4);
    EXPECT_EQ(Counter(3, 1), -6);
    Score({RightAtOnce(3)});  // -16
    EXPECT_EQ(Counter(3, 0), -6);
    EXPECT_EQ(Counter(3, 1), -16);
  }
}

TEST_F(ScoringTest, NeedsNoMaterialWeightsInATest) {
  settings.uebmodus = 3;
  const auto before = run.material.mat_tab;
  Score({RightAtOnce(3), AfterWrong(4, {5})});
  EXPECT_EQ(run.material.mat_tab, before);
}

// ---- The end of a training ----------------------------------------------------------------------

struct Stand {
  int rest;
  TrainingStand stand;
  int rest_after;
};

void ExpectStands(int posten, std::initializer_list<Stand> stands) {
  for (const Stand& s : stands) {
    Material material;
    material.mat_posten = posten;
    material.mat_soll = SollFuer(posten);
    material.mat_rest = s.rest;
    EXPECT_EQ(PruefeTraining(material), s.stand) << s.rest;
    EXPECT_EQ(material.mat_rest, s.rest_after) << s.rest;
  }
}

TEST(TrainingStand, IsSolvedWithNothingLeftAndTooHardAtTwiceTheStart) {
  ExpectStands(10, {{0, TrainingStand::kGeloest, 1},
                    {1, TrainingStand::kGehtWeiter, 1},
                    {40, TrainingStand::kGehtWeiter, 40},
                    {79, TrainingStand::kGehtWeiter, 79},
                    {80, TrainingStand::kZuSchwer, 80},
                    {95, TrainingStand::kZuSchwer, 80}});
}

TEST(TrainingStand, FollowsAGreaterStartingWeight) {
  ExpectStands(2, {{59, TrainingStand::kGehtWeiter, 59}, {60, TrainingStand::kZuSchwer, 60}});
  ExpectStands(1, {{59, TrainingStand::kGehtWeiter, 59}, {60, TrainingStand::kZuSchwer, 60}});
}

TEST(TrainingStand, StandsAtTheEndsOfTheScaleAfterwards) {
  for (const int posten : {1, 5, 10, 24}) {
    Material material;
    material.mat_posten = posten;
    material.mat_soll = SollFuer(posten);
    material.mat_rest = 0;
    PruefeTraining(material);
    EXPECT_LE(material.Prozent(), 2);
    material.mat_rest = 1000;
    PruefeTraining(material);
    EXPECT_EQ(material.Prozent(), 100);
  }
}

}  // namespace
}  // namespace vmod17

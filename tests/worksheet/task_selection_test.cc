// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "worksheet/task_selection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <set>
#include <utility>
#include <vector>

#include "support/scripted_random.h"

namespace vmod17 {
namespace {

/// A value that draws `result` from 0 to `count` - 1.
float Draw(int result, int count) {
  return (static_cast<float>(result) + 0.5f) / static_cast<float>(count);
}

class TaskSelectionTest : public ::testing::Test {
 protected:
  TaskSelectionTest() {
    settings.akk_anzahl = 1;
    settings.ton_unten = 48;
    settings.arp_richtung = kArpOhne;
  }

  /// Builds the board of a run; the triads are ten chords on a range of 24 - 8 = 16 semitones.
  void Board(const std::vector<int>& klangtypen, const std::vector<int>& gruppen = {}) {
    settings.klang_anzahl = static_cast<int>(klangtypen.size());
    std::copy(klangtypen.begin(), klangtypen.end(), settings.klang_ausw_ar.begin() + 1);
    settings.grp_anzahl = static_cast<int>(gruppen.size());
    std::copy(gruppen.begin(), gruppen.end(), settings.grp_ausw_ar.begin() + 1);
    table.SetzeKlangZahlen();
    board.SetzeAkkTab(
        {settings.Klangtypen(), settings.Gruppen(), settings.akk_form, settings.best_art}, random);
  }
  void Triads() {
    Board({3});
    selection.BereiteVor(run);
  }
  /// Scripts the draw of a triad and its root, `above` semitones over the lower bound.
  void ScriptTriad(int entry, int above) { random.Script({Draw(entry - 1, 10), Draw(above, 17)}); }
  void DrawTask() { selection.Ziehe(run); }
  int Note(int slot, int v) const { return run.task.akk_ton_ar[slot][v]; }

  ExerciseSettings settings;
  ChordTable table;
  ChordBoard board{table};
  ScriptedRandom random;
  RunState run;
  TaskSelection selection{settings, board, random};
};

TEST_F(TaskSelectionTest, TakesTheRangeFromTheWidthLessTheHeadroom) {
  struct Case {
    int klangtyp;
    int oktav_ber;
    int bereich;
  };
  for (const Case& c : {Case{3, 0, 16}, Case{3, 3, 52}, Case{4, 0, 13}, Case{5, 0, 3},
                        Case{6, 1, 15}, Case{7, 2, 27}, Case{8, 1, 7}, Case{8, 3, 31}}) {
    settings.oktav_ber = c.oktav_ber;
    Board({c.klangtyp}, {1, 2, 3, 4, 5, 6, 7, 8});
    selection.BereiteVor(run);
    EXPECT_EQ(run.ton_bereich, c.bereich) << c.klangtyp << ", " << c.oktav_ber;
  }
  EXPECT_EQ(run.oktav_ar, (std::array<int, 4>{2, 3, 4, 5}));
}

TEST_F(TaskSelectionTest, NarrowsTheRangeForTheLastKlangtypOnly) {
  Board({3, 4}, {7});
  selection.BereiteVor(run);
  EXPECT_EQ(run.ton_bereich, 24 - 11);
  Board({3, 7}, {2});
  selection.BereiteVor(run);
  EXPECT_EQ(run.ton_bereich, 24 - 21);
}

TEST_F(TaskSelectionTest, DrawsTheEntryFirstAndThenTheRoot) {
  Triads();
  random.script_only = true;
  random.Script({0.15f, 0.5f});  // Int(0.15 x 10) + 1 = 2, Int(17 x 0.5) + 48 = 56
  DrawTask();
  EXPECT_EQ(run.task.aufg_akk_ar[1], 2);
  EXPECT_EQ(run.grundton, 56);
  EXPECT_EQ(Note(1, 0), 56);
  EXPECT_EQ(Note(1, 1), 59);
  EXPECT_EQ(Note(1, 2), 63);
  EXPECT_TRUE(random.ScriptDone());
}

TEST_F(TaskSelectionTest, DrawsTheFirstAndTheLastEntryOfTheBoard) {
  Triads();
  random.Script({0.0f, Draw(1, 17)});
  DrawTask();
  EXPECT_EQ(run.task.aufg_akk_ar[1], 1);
  random.Script({0.9999999f, Draw(1, 17)});
  DrawTask();
  EXPECT_EQ(run.task.aufg_akk_ar[1], 10);
}

TEST_F(TaskSelectionTest, ReachesBothBoundsOfTheRange) {
  settings.ton_unten = 49;  // no multiple of 12, so that the lower bound can be a root
  Triads();
  ScriptTriad(1, 0);
  DrawTask();
  EXPECT_EQ(Note(1, 0), 49);
  random.Script({Draw(0, 10), 0.9999999f});
  DrawTask();
  EXPECT_EQ(Note(1, 0), 65);
}

TEST_F(TaskSelectionTest, NeverDrawsACAsRoot) {
  Triads();
  random.script_only = true;
  // 48 and 60 are drawn again, 49 stands.
  random.Script({Draw(0, 10), Draw(0, 17), Draw(12, 17), Draw(0, 17), Draw(1, 17)});
  DrawTask();
  EXPECT_EQ(Note(1, 0), 49);
  EXPECT_TRUE(random.ScriptDone());
}

TEST_F(TaskSelectionTest, KeepsAllRootsInTheRangeAndOffC) {
  settings.akk_anzahl = 4;
  for (const int unten : {36, 48, 60}) {
    settings.ton_unten = unten;
    settings.oktav_ber = 1;
    Board({4, 6}, {1, 3, 7});
    selection.BereiteVor(run);
    std::set<int> roots;
    std::set<int> entries;
    for (int task = 0; task < 500; ++task) {
      DrawTask();
      for (int slot = 1; slot <= 4; ++slot) {
        roots.insert(Note(slot, 0));
        entries.insert(run.task.aufg_akk_ar[slot]);
      }
    }
    // 36 - 21 = 15 semitones: unten + 1 to unten + 15, without the C an octave up.
    EXPECT_EQ(*roots.begin(), unten + 1);
    EXPECT_EQ(*roots.rbegin(), unten + 15);
    EXPECT_FALSE(roots.contains(unten + 12));
    EXPECT_EQ(roots.size(), 14u);
    EXPECT_EQ(static_cast<int>(entries.size()), board.akk_zahl) << "each chord of the board comes";
  }
}

TEST_F(TaskSelectionTest, DrawsAllEntriesAboutEquallyOften) {
  Triads();
  std::array<int, 11> counts{};
  for (int task = 0; task < 10000; ++task) {
    DrawTask();
    ++counts[run.task.aufg_akk_ar[1]];
  }
  for (int e = 1; e <= 10; ++e) {
    EXPECT_GT(counts[e], 850) << e;
    EXPECT_LT(counts[e], 1150) << e;
  }
}

TEST_F(TaskSelectionTest, KeepsOneRootForTheRunWhenItIsAskedTo) {
  settings.grundton_art = 1;
  settings.akk_anzahl = 4;
  random.Script({Draw(0, 17), Draw(9, 17)});  // 48 refused, 57
  Triads();
  EXPECT_EQ(run.grundton, 57);
  EXPECT_TRUE(random.ScriptDone());
  for (int task = 0; task < 50; ++task) {
    DrawTask();
    for (int slot = 1; slot <= 4; ++slot) EXPECT_EQ(Note(slot, 0), 57);
  }
}

TEST_F(TaskSelectionTest, DrawsNoRootInATaskOnOneRoot) {
  settings.grundton_art = 1;
  Triads();
  random.script_only = true;
  random.Script({Draw(4, 10)});
  DrawTask();
  EXPECT_EQ(run.task.aufg_akk_ar[1], 5);
  EXPECT_TRUE(random.ScriptDone());
}

TEST_F(TaskSelectionTest, DrawsARootForEachSlot) {
  settings.akk_anzahl = 4;
  Triads();
  random.script_only = true;
  for (const auto& [entry, above] : {std::pair{1, 1}, {3, 2}, {5, 3}, {10, 4}}) {
    ScriptTriad(entry, above);
  }
  DrawTask();
  EXPECT_EQ(run.task.aufg_akk_ar, (std::array<int, 5>{0, 1, 3, 5, 10}));
  for (int slot = 1; slot <= 4; ++slot) EXPECT_EQ(Note(slot, 0), 48 + slot);
  EXPECT_EQ(Note(4, 2), 52 + 8);  // the last triad is a minor chord on its fifth
}

TEST_F(TaskSelectionTest, RefusesTheChordOfThePreviousTaskAtTheSameLowestNote) {
  Triads();
  random.script_only = true;
  ScriptTriad(2, 8);
  DrawTask();
  ScriptTriad(2, 8);
  ScriptTriad(2, 8);
  ScriptTriad(3, 8);
  DrawTask();
  EXPECT_EQ(run.task.aufg_akk_ar[1], 3);
  EXPECT_TRUE(random.ScriptDone());
}

TEST_F(TaskSelectionTest, AllowsTheSameChordAtAnotherRoot) {
  Triads();
  random.script_only = true;
  ScriptTriad(2, 8);
  DrawTask();
  ScriptTriad(2, 9);
  DrawTask();
  EXPECT_EQ(run.task.aufg_akk_ar[1], 2);
  EXPECT_EQ(Note(1, 0), 57);
}

TEST_F(TaskSelectionTest, AllowsTheSameRootForTheNextChord) {
  Triads();
  random.script_only = true;
  ScriptTriad(2, 8);
  DrawTask();
  ScriptTriad(1, 8);
  DrawTask();
  EXPECT_EQ(run.task.aufg_akk_ar[1], 1);
  EXPECT_EQ(Note(1, 0), 56);
}

TEST_F(TaskSelectionTest, RefusesARepetitionOfThePreviousTaskOnly) {
  Triads();
  random.script_only = true;
  for (const int entry : {2, 3, 2}) {
    ScriptTriad(entry, 8);
    DrawTask();
    EXPECT_EQ(run.task.aufg_akk_ar[1], entry);
  }
}

TEST_F(TaskSelectionTest, RefusesTheChordOfTheSlotBeforeAtTheSameLowestNote) {
  settings.akk_anzahl = 2;
  Triads();
  random.script_only = true;
  ScriptTriad(2, 8);
  ScriptTriad(2, 8);
  ScriptTriad(2, 9);
  DrawTask();
  EXPECT_EQ(run.task.aufg_akk_ar[2], 2);
  EXPECT_EQ(Note(2, 0), 57);
  EXPECT_TRUE(random.ScriptDone());
}

TEST_F(TaskSelectionTest, AllowsAChordAgainTwoSlotsLater) {
  settings.akk_anzahl = 3;
  Triads();
  random.script_only = true;
  for (const int entry : {2, 3, 2}) ScriptTriad(entry, 8);
  DrawTask();
  EXPECT_EQ(run.task.aufg_akk_ar[3], 2);
}

TEST_F(TaskSelectionTest, HasNoTestForTheFirstSlotOfTasksOfSeveralChords) {
  settings.akk_anzahl = 2;
  Triads();
  random.script_only = true;
  ScriptTriad(2, 8);
  ScriptTriad(3, 8);
  DrawTask();
  // The chord that opened the last task, and then the one that closed it.
  for (const int first : {2, 3}) {
    ScriptTriad(first, 8);
    ScriptTriad(5 - first, 8);
    DrawTask();
    EXPECT_EQ(run.task.aufg_akk_ar[1], first);
    EXPECT_TRUE(random.ScriptDone());
  }
}

TEST_F(TaskSelectionTest, RemembersTheFirstChordOfTheTask) {
  settings.akk_anzahl = 2;
  Triads();
  EXPECT_EQ(run.letzt_akk.klangtyp, -1);
  EXPECT_EQ(run.letzt_akk.row, -1);
  EXPECT_EQ(run.letzt_ton, 0);
  ScriptTriad(4, 8);
  ScriptTriad(7, 3);
  DrawTask();
  EXPECT_EQ(run.letzt_akk.klangtyp, 3);
  EXPECT_EQ(run.letzt_akk.row, 4);
  EXPECT_EQ(run.letzt_ton, 56);
}

TEST_F(TaskSelectionTest, TellsEqualRowsOfTwoKlangtypenApart) {
  settings.grundton_art = 1;
  Board({4, 5}, {1, 4});
  selection.BereiteVor(run);
  std::vector<int> second_rows;
  for (int e = 1; e <= board.akk_zahl; ++e) {
    if (board[e].row == 2) second_rows.push_back(e);
  }
  ASSERT_EQ(second_rows.size(), 2u);  // C7 and C6/9
  random.script_only = true;
  for (const int e : second_rows) {
    random.Script({Draw(e - 1, board.akk_zahl)});
    DrawTask();
    EXPECT_EQ(run.task.aufg_akk_ar[1], e);
  }
}

TEST_F(TaskSelectionTest, BuildsTheNotesOfEveryChordOfTheCatalogue) {
  settings.grundton_art = 1;
  settings.akk_anzahl = 2;  // so that the first slot takes what is drawn for it
  settings.oktav_ber = 1;
  for (int g = 1; g <= kGruppen; ++g) {
    for (int k = 4; k <= kVoicing; ++k) {
      settings.akk_form = k == kVoicing ? 1 : 0;
      Board({k}, {g});
      selection.BereiteVor(run);
      if (board.akk_zahl < 2) continue;
      for (int e = 1; e <= board.akk_zahl; ++e) {
        const int other = e % board.akk_zahl;
        random.Script({Draw(e - 1, board.akk_zahl), Draw(other, board.akk_zahl)});
        DrawTask();
        const Chord& chord = ChordOfKlang(board.KlangNummer(e));
        for (std::size_t v = 0; v < chord.semitones.size(); ++v) {
          EXPECT_EQ(Note(1, static_cast<int>(v)), chord.semitones[v] + run.grundton);
        }
      }
    }
  }
}

TEST_F(TaskSelectionTest, DrawsAnOrderForEachAttemptWithRandomArpeggios) {
  settings.arp_richtung = kArpZufall;
  Triads();
  random.script_only = true;
  ScriptTriad(2, 8);
  random.Script({Draw(2, 3), Draw(2, 3), Draw(0, 3), Draw(1, 3)});  // 2, 2 again, 0, 1
  DrawTask();
  EXPECT_EQ(
      std::vector<int>(run.task.arp_folge_ar[1].begin(), run.task.arp_folge_ar[1].begin() + 3),
      (std::vector<int>{2, 0, 1}));
  ScriptTriad(2, 8);  // refused, but only after its order was drawn
  random.Script({Draw(0, 3), Draw(1, 3), Draw(2, 3)});
  ScriptTriad(1, 8);
  random.Script({Draw(1, 3), Draw(0, 3), Draw(2, 3)});
  DrawTask();
  EXPECT_EQ(
      std::vector<int>(run.task.arp_folge_ar[1].begin(), run.task.arp_folge_ar[1].begin() + 3),
      (std::vector<int>{1, 0, 2}));
  EXPECT_TRUE(random.ScriptDone());
}

TEST_F(TaskSelectionTest, DrawsNoOrderWithOtherArpeggios) {
  Triads();
  random.script_only = true;
  for (const int richtung : {kArpAufwaerts, kArpAbwaerts, kArpOhne}) {
    settings.arp_richtung = richtung;
    ScriptTriad(1 + richtung, 8);
    DrawTask();
    EXPECT_TRUE(random.ScriptDone());
  }
}

/// The error number of a draw, or 0.
template <typename Call>
int ErrorOf(const Call& call) {
  try {
    call();
    return 0;
  } catch (const RunTimeError& error) {
    return error.number();
  }
}

TEST_F(TaskSelectionTest, GivesUpWhenTheOnlyChordOnTheOnlyRootWouldComeAgain) {
  settings.grundton_art = 1;
  Board({4}, {7});
  ASSERT_EQ(board.akk_zahl, 1);
  selection.BereiteVor(run);
  DrawTask();
  EXPECT_EQ(run.task.aufg_akk_ar[1], 1);
  EXPECT_EQ(ErrorOf([&] { DrawTask(); }), ErrorNumber::kNothingToDraw);
}

TEST_F(TaskSelectionTest, PlaysTheOnlyChordOnChangingRoots) {
  Board({4}, {7});
  selection.BereiteVor(run);
  int before = 0;
  for (int task = 0; task < 100; ++task) {
    DrawTask();
    EXPECT_NE(Note(1, 0), before);
    before = Note(1, 0);
  }
}

TEST_F(TaskSelectionTest, GivesUpWhenEveryRootIsAC) {
  Triads();
  random.Always(0);  // Int(17 x 0) + 48
  EXPECT_EQ(ErrorOf([&] { DrawTask(); }), ErrorNumber::kNothingToDraw);
  settings.grundton_art = 1;
  EXPECT_EQ(ErrorOf([&] { selection.BereiteVor(run); }), ErrorNumber::kNothingToDraw);
}

TEST_F(TaskSelectionTest, SeedsFromTheClockInAllModesWithoutASeed) {
  for (const int modus : {0, 1, 2, 3, 4}) {
    settings.uebmodus = modus;
    selection.Saeen(4711.5f);
  }
  settings.uebmodus = 3;
  settings.pruef_seed = 9;
  selection.Saeen(4711.5f);
  EXPECT_EQ(random.seeds, std::vector<float>(6, 4711.5f));
  EXPECT_TRUE(random.restarts.empty());
}

TEST_F(TaskSelectionTest, RestartsFromTheNegatedSeedInAnExam) {
  settings.uebmodus = 4;
  settings.pruef_seed = 9;
  selection.Saeen(4711.5f);
  EXPECT_EQ(random.restarts, std::vector<int>{-9});
  EXPECT_TRUE(random.seeds.empty());
}

TEST_F(TaskSelectionTest, LeavesTheMaterialOfATrainingAlone) {
  Triads();
  DrawTask();
  EXPECT_EQ(run.material.mat_anzahl, 0);
  EXPECT_EQ(run.material.mat_index, 0);
  EXPECT_TRUE(run.material.mat_ar.empty());
}

// ---- Draws from the material --------------------------------------------------------------------

/// A run on one root whose material a test lays out.
class MaterialDrawTest : public TaskSelectionTest {
 protected:
  MaterialDrawTest() {
    settings.grundton_art = 1;
    auswertung.init_arr(24, 3);
  }

  /// A training of the ten triads whose bag holds the entries 1 to 10 in turn, ten times, and whose
  /// gauge stands at `rest` of 80.
  void Training(int uebmodus, int rest) {
    settings.uebmodus = uebmodus;
    random.script_only = false;
    Triads();
    run.material.mat_posten = 10;
    run.material.BeginneTraining(auswertung);
    run.material.mat_anzahl = 100;
    run.material.mat_ar.assign(1, 0);
    for (int i = 0; i < 100; ++i) run.material.mat_ar.push_back(i % 10 + 1);
    run.material.mat_rest = rest;
    random.script_only = true;
  }
  /// A test of the triads with this bag.
  void Test(const std::vector<int>& bag) {
    settings.uebmodus = 3;
    Triads();
    run.material.mat_posten = 10;
    run.material.BeginneTest(static_cast<int>(bag.size()));
    std::copy(bag.begin(), bag.end(), run.material.mat_ar.begin() + 1);
    random.script_only = true;
  }
  std::vector<int> Bag() const {
    return {run.material.mat_ar.begin() + 1, run.material.mat_ar.end()};
  }
  /// Draws with these values, the chord before forgotten, and returns the place in the bag.
  int DrawPlace(std::initializer_list<float> script) {
    run.letzt_akk = LastChord();
    run.letzt_ton = 0;
    random.Script(script);
    DrawTask();
    EXPECT_TRUE(random.ScriptDone());
    EXPECT_EQ(run.task.aufg_akk_ar[1], run.material.mat_ar[run.material.mat_index]);
    return run.material.mat_index;
  }

  Auswertung auswertung;
};

constexpr float kAlmostOne = 0.9999999f;

TEST_F(MaterialDrawTest, DrawsUniformlyFromTheBagFromTwentyPerCentOn) {
  for (const int uebmodus : {1, 2}) {
    for (const int rest : {16, 40, 79}) {  // 20, 50 and 99 per cent
      Training(uebmodus, rest);
      EXPECT_EQ(DrawPlace({0.0f}), 1);
      EXPECT_EQ(DrawPlace({Draw(57, 100)}), 58);
      EXPECT_EQ(DrawPlace({kAlmostOne}), 100);
    }
  }
}

TEST_F(MaterialDrawTest, TurnsToTheFrontOfTheBagNearTheEnd) {
  struct Case {
    int rest;   // of 80
    int b;      // a test value up to this draws from the front
    int share;  // of the bag, in per cent
  };
  for (const int uebmodus : {1, 2}) {
    for (const Case& c : {Case{15, 11, 38},    // 19 per cent
                          Case{12, 15, 30},    // 15
                          Case{8, 20, 20},     // 10
                          Case{4, 25, 10}}) {  // 5
      SCOPED_TRACE(c.rest);
      Training(uebmodus, c.rest);
      for (const int test_value : {0, c.b}) {
        EXPECT_EQ(DrawPlace({Draw(test_value, 100), kAlmostOne}), c.share);
        EXPECT_EQ(DrawPlace({Draw(test_value, 100), 0.5f}), c.share / 2 + 1);
        EXPECT_EQ(DrawPlace({Draw(test_value, 100), 0.0f}), 1);
      }
      for (const int test_value : {c.b + 1, 99}) {
        EXPECT_EQ(DrawPlace({Draw(test_value, 100), kAlmostOne}), 100);
        EXPECT_EQ(DrawPlace({Draw(test_value, 100), Draw(57, 100)}), 58);
      }
    }
  }
}

TEST_F(MaterialDrawTest, TakesTheFirstPlaceWhenTheShareOfTheFrontIsNothing) {
  Training(1, 0);
  EXPECT_EQ(DrawPlace({Draw(30, 100), kAlmostOne}), 1);
  EXPECT_EQ(DrawPlace({Draw(0, 100), 0.0f}), 1);
  EXPECT_EQ(DrawPlace({Draw(31, 100), kAlmostOne}), 100);
}

TEST_F(MaterialDrawTest, NeverTakesTheTestValueForAPlace) {
  Training(1, 15);
  run.material.mat_index = 0;
  // 11 is drawn as the test value, and then the third place of the front.
  EXPECT_EQ(DrawPlace({Draw(11, 100), Draw(2, 38)}), 3);
  EXPECT_EQ(run.task.aufg_akk_ar[1], 3);
}

TEST_F(MaterialDrawTest, AsksTheWeakChordsMoreOftenNearTheEnd) {
  settings.grundton_art = 0;
  settings.uebmodus = 1;
  Triads();
  run.material.mat_posten = 10;
  run.material.BeginneTraining(auswertung);
  for (int e = 2; e <= 10; ++e) *run.material.Gewicht(e) = 0;
  *run.material.Gewicht(1) = 8;
  run.material.MaterialOrdnen();
  ASSERT_EQ(run.material.Prozent(), 10);
  ASSERT_EQ(run.material.mat_anzahl, 18);  // nine copies of entry 1, one of each other
  int weak = 0;
  for (int task = 0; task < 4000; ++task) {
    DrawTask();
    if (run.task.aufg_akk_ar[1] == 1) ++weak;
  }
  // 21 of 100 draws from the front 3.6 places, the others from all: 0.21 + 0.79 / 2 = 0.605.
  EXPECT_NEAR(weak / 4000.0, 0.605, 0.04);
}

TEST_F(MaterialDrawTest, GivesUpOnTheBagAfterAsManyTriesAsItHasPlaces) {
  Training(1, 40);
  run.material.mat_ar = {0, 2, 2, 2};
  run.material.mat_anzahl = 3;
  EXPECT_EQ(DrawPlace({Draw(0, 3)}), 1);
  // Twice the chord of the task before, from the bag; the third try is from the board.
  random.Script({Draw(1, 3), Draw(2, 3), Draw(4, 10)});
  DrawTask();
  EXPECT_TRUE(random.ScriptDone());
  EXPECT_EQ(run.task.aufg_akk_ar[1], 5);
}

TEST_F(MaterialDrawTest, DrawsAllFurtherTriesFromTheBoardOnceItHasGivenUp) {
  Training(1, 40);
  run.material.mat_ar = {0, 2, 2};
  run.material.mat_anzahl = 2;
  DrawPlace({Draw(0, 2)});
  random.Script({Draw(0, 2), Draw(1, 10), Draw(1, 10), Draw(8, 10)});
  DrawTask();
  EXPECT_TRUE(random.ScriptDone());
  EXPECT_EQ(run.task.aufg_akk_ar[1], 9);
}

TEST_F(MaterialDrawTest, TurnsToTheBagAgainForTheNextSlot) {
  Training(1, 40);
  settings.akk_anzahl = 2;
  run.material.mat_ar = {0, 2, 2, 3};
  run.material.mat_anzahl = 3;
  // The second slot refuses the first one's chord twice and gives up; the next task does not.
  random.Script({Draw(0, 3), Draw(0, 3), Draw(1, 3), Draw(6, 10)});
  DrawTask();
  EXPECT_EQ(run.task.aufg_akk_ar[2], 7);
  random.Script({Draw(2, 3), Draw(0, 3)});
  DrawTask();
  EXPECT_TRUE(random.ScriptDone());
  EXPECT_EQ(run.task.aufg_akk_ar[1], 3);
  EXPECT_EQ(run.task.aufg_akk_ar[2], 2);
}

TEST_F(MaterialDrawTest, DrawsFromTheBoardWhileATrainingThatWasTakenUpHasNoBag) {
  settings.uebmodus = 2;
  Board({4}, {4});
  ASSERT_EQ(board.akk_zahl, 2);
  selection.BereiteVor(run);
  run.material.SetzeFort({{2, 15}, {1, 15}}, auswertung);
  ASSERT_EQ(run.material.mat_anzahl, 0);
  random.script_only = true;
  for (const int e : {1, 2, 1}) {
    random.Script({Draw(e - 1, 2)});
    DrawTask();
    EXPECT_EQ(run.task.aufg_akk_ar[1], e);
    EXPECT_TRUE(random.ScriptDone());
  }
  *run.material.Gewicht(2) = 3;
  *run.material.Gewicht(1) = 11;
  run.material.MaterialOrdnen();
  ASSERT_EQ(run.material.mat_anzahl, 14);
  random.Script({Draw(13, 14)});
  DrawTask();
  EXPECT_EQ(run.task.aufg_akk_ar[1], 2) << "the last place of the bag, not of the board";
}

TEST_F(MaterialDrawTest, UsesUpTheFirstCopyOfWhatATestDraws) {
  Test({1, 2, 3, 2, 3, 2});
  random.Script({Draw(5, 6)});  // the last copy of 2 is drawn
  DrawTask();
  EXPECT_EQ(run.task.aufg_akk_ar[1], 2);
  EXPECT_EQ(Bag(), (std::vector<int>{1, 0, 3, 2, 3, 2}));
  random.Script({Draw(1, 6), Draw(4, 6)});  // a used place is drawn again
  DrawTask();
  EXPECT_EQ(run.task.aufg_akk_ar[1], 3);
  EXPECT_EQ(Bag(), (std::vector<int>{1, 0, 0, 2, 3, 2}));
  EXPECT_TRUE(random.ScriptDone());
}

TEST_F(MaterialDrawTest, UsesUpNothingInATestForARefusedDraw) {
  Test({2, 2, 2, 3, 3, 3});
  random.Script({Draw(0, 6)});
  DrawTask();
  random.Script({Draw(2, 6), Draw(1, 6), Draw(3, 6)});  // 2 again, twice refused
  DrawTask();
  EXPECT_EQ(run.task.aufg_akk_ar[1], 3);
  EXPECT_EQ(Bag(), (std::vector<int>{0, 2, 2, 0, 3, 3}));
}

TEST_F(MaterialDrawTest, UsesUpNothingInATestForAChordOutsideTheBag) {
  Test({2, 2, 2});
  random.Script({Draw(0, 3)});
  DrawTask();
  random.Script({Draw(1, 3), Draw(2, 3), Draw(7, 10)});
  DrawTask();
  EXPECT_EQ(run.task.aufg_akk_ar[1], 8);
  EXPECT_EQ(Bag(), (std::vector<int>{0, 2, 2}));
}

TEST_F(MaterialDrawTest, UsesUpACopyInATestForEachSlot) {
  Test({1, 2, 3, 4, 5, 6});
  settings.akk_anzahl = 3;
  random.Script({Draw(5, 6), Draw(0, 6), Draw(3, 6)});
  DrawTask();
  EXPECT_EQ(Bag(), (std::vector<int>{0, 2, 3, 0, 5, 0}));
}

TEST_F(MaterialDrawTest, GivesUpWhenTheBagOfATestIsEmpty) {
  Test({0, 0, 0, 0});
  random.script_only = false;
  EXPECT_EQ(ErrorOf([&] { DrawTask(); }), ErrorNumber::kNothingToDraw);
}

TEST_F(MaterialDrawTest, DrawsEachHalfOfATestWithoutReplacement) {
  settings.grundton_art = 0;
  settings.oktav_ber = 3;
  for (const int uebmodus : {3, 4}) {
    for (const int akk_anzahl : {1, 2, 3, 4}) {
      settings.uebmodus = uebmodus;
      settings.akk_anzahl = akk_anzahl;
      Board({4, 6}, {1, 3, 5});
      selection.BereiteVor(run);
      run.material.mat_posten = board.akk_zahl;
      run.test.test_aufgaben = 2 * ((2 * board.akk_zahl + akk_anzahl - 1) / akk_anzahl);
      auswertung.Clear();
      selection.BeginneTest(run, auswertung);
      const int half = run.test.test_aufgaben / 2;
      ASSERT_EQ(run.material.mat_anzahl, half * akk_anzahl);
      for (int part = 1; part <= 2; ++part) {
        std::vector<int> expected = Bag();
        std::vector<int> drawn;
        for (int task = 0; task < half; ++task) {
          DrawTask();
          for (int slot = 1; slot <= akk_anzahl; ++slot) {
            drawn.push_back(run.task.aufg_akk_ar[slot]);
          }
        }
        for (int e = 1; e <= board.akk_zahl; ++e) {
          EXPECT_EQ(std::ranges::count(drawn, e), std::ranges::count(expected, e)) << e;
          EXPECT_GE(std::ranges::count(drawn, e), 1) << e;
        }
        EXPECT_EQ(Bag(), std::vector<int>(static_cast<std::size_t>(half * akk_anzahl), 0));
        if (part == 1) run.material.MaterialTest(auswertung, random);
      }
      float in_pool = 0;
      auswertung.read(1, 3, in_pool);
      EXPECT_EQ(in_pool, 2);
    }
  }
}

TEST_F(MaterialDrawTest, CoversHalfATestRoundedHalvesToEven) {
  settings.uebmodus = 3;
  Triads();
  run.material.mat_posten = 1;
  for (const auto& [aufgaben, akk_anzahl, copies] :
       std::vector<std::array<int, 3>>{{96, 1, 48}, {10, 3, 15}, {24, 4, 48}, {6, 2, 6}}) {
    settings.akk_anzahl = akk_anzahl;
    run.test.test_aufgaben = aufgaben;
    selection.BeginneTest(run, auswertung);
    EXPECT_EQ(run.material.mat_anzahl, copies);
    EXPECT_EQ(Bag().size(), static_cast<std::size_t>(copies));
  }
}

TEST_F(MaterialDrawTest, GivesUpOnTheOnlyChordOnTheOnlyRootInEveryMode) {
  for (const int uebmodus : {0, 1, 2, 3, 4}) {
    SCOPED_TRACE(uebmodus);
    run = RunState();
    settings.uebmodus = uebmodus;
    Board({4}, {7});
    ASSERT_EQ(board.akk_zahl, 1);
    selection.BereiteVor(run);
    if (uebmodus > 0) run.material.mat_posten = 1;
    if (uebmodus == 1) run.material.BeginneTraining(auswertung);
    if (uebmodus == 2) run.material.SetzeFort({{1, 12}}, auswertung);
    if (uebmodus > 2) {
      run.test.test_aufgaben = 4;
      selection.BeginneTest(run, auswertung);
    }
    DrawTask();
    EXPECT_EQ(run.task.aufg_akk_ar[1], 1);
    const int before = random.draws;
    EXPECT_EQ(ErrorOf([&] { DrawTask(); }), ErrorNumber::kNothingToDraw);
    EXPECT_LT(random.draws - before, 10 * TaskSelection::kVersuche);
  }
}

TEST_F(MaterialDrawTest, GivesUpOnAnEmptyBoardInEveryMode) {
  for (const int uebmodus : {0, 1, 2, 3, 4}) {
    settings.uebmodus = uebmodus;
    EXPECT_EQ(ErrorOf([&] { DrawTask(); }), ErrorNumber::kNothingToDraw);
  }
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "worksheet/task_selection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
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

}  // namespace
}  // namespace vmod17

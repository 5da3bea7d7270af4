// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "catalogue/chord_board.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <ostream>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "base/run_time_error.h"
#include "catalogue/expected_chords.h"
#include "support/scripted_random.h"

namespace vmod17 {
namespace {

using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

const std::vector<int> kAlleGruppen = {1, 2, 3, 4, 5, 6, 7, 8};

/// What a run is made of, in a form that a test can build and print.
struct Wahl {
  std::vector<int> klangtypen;
  std::vector<int> gruppen;
  int akk_form = 0;
  int best_art = 0;

  BoardSelection Selection() const { return {klangtypen, gruppen, akk_form, best_art}; }
};

std::ostream& operator<<(std::ostream& out, const Wahl& wahl) {
  out << "akk_form " << wahl.akk_form << ", best_art " << wahl.best_art << ", Klangtypen";
  for (const int k : wahl.klangtypen) out << ' ' << k;
  out << ", Gruppen";
  for (const int g : wahl.gruppen) out << ' ' << g;
  return out;
}

/// A table and a board with the present run on it.
struct Brett {
  Brett() { table.SetzeKlangZahlen(); }
  explicit Brett(const Wahl& wahl) : Brett() { Setze(wahl); }
  void Setze(const Wahl& wahl) { board.SetzeAkkTab(wahl.Selection(), random); }

  std::vector<BoardEntry> Entries() const {
    std::vector<BoardEntry> entries;
    for (int e = 1; e <= board.akk_zahl; ++e) entries.push_back(board[e]);
    return entries;
  }
  std::vector<int> Rows() const {
    std::vector<int> rows;
    for (const BoardEntry& entry : Entries()) rows.push_back(entry.row);
    return rows;
  }
  int CountOf(int klangtyp) const {
    const auto entries = Entries();
    return static_cast<int>(std::ranges::count(entries, klangtyp, &BoardEntry::klangtyp));
  }
  std::set<int> Groups() const {
    std::set<int> groups;
    for (const BoardEntry& entry : Entries()) groups.insert(entry.group);
    return groups;
  }

  ScriptedRandom random;
  ChordTable table;
  ChordBoard board{table};
};

const ExpectedChord& ExpectedOf(int klangtyp, int row) {
  return *std::ranges::find_if(kExpectedChords, [&](const ExpectedChord& chord) {
    return chord.klangtyp == klangtyp && chord.row == row;
  });
}

// --- Boards without a draw ------------------------------------------------------------------

TEST(ChordBoard, IsEmptyBeforeARun) {
  const Brett brett;
  EXPECT_EQ(brett.board.akk_zahl, 0);
  for (int e = 1; e <= 24; ++e) EXPECT_EQ(brett.board[e], BoardEntry());
}

TEST(ChordBoard, HasEntriesFrom1To24) {
  Brett brett;
  for (const int e : {-1, 0, 25}) {
    try {
      brett.board[e];
      ADD_FAILURE() << e;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number(), ErrorNumber::kOutOfRange);
    }
  }
}

TEST(ChordBoard, HoldsAllTriadsInOrderWithoutADraw) {
  const Brett brett({{3}, {}, 0, 0});
  EXPECT_EQ(brett.board.akk_zahl, 10);
  EXPECT_EQ(brett.random.draws, 0);
  for (int e = 1; e <= 10; ++e) {
    EXPECT_EQ(brett.board[e].klangtyp, 3);
    EXPECT_EQ(brett.board[e].row, e);
    EXPECT_EQ(brett.board[e].group, 0);
  }
  EXPECT_EQ(brett.board[11], BoardEntry());
  EXPECT_THAT(brett.board.grp_aktiv_ar, ElementsAre(1, 0, 0, 0, 0, 0, 0, 0, 0));
}

TEST(ChordBoard, FillsNoGroupsForTriadsAlone) {
  const Brett brett({{3}, {1, 2}, 0, 0});
  for (const auto& rows : brett.table.akk_gruppe_ar) EXPECT_THAT(rows, Each(0));
  for (const auto& sizes : brett.table.grp_zahl_ar) EXPECT_THAT(sizes, Each(0));
}

TEST(ChordBoard, FillsTheNotesOfTriadsAlone) {
  const Brett brett({{3}, {}, 0, 0});
  EXPECT_THAT(brett.table.stimmen_ar, ElementsAre(0, 0, 0, 2, 0, 0, 0, 0, 0));
  EXPECT_EQ(brett.table.klang_spanne_ar[3], 8);
  EXPECT_THAT(brett.table.akk_struktur_ar[3][1], ElementsAre(0, 4, 7, 0, 0, 0, 0, 0));
  EXPECT_THAT(brett.table.akk_struktur_ar[3][10], ElementsAre(0, 5, 8, 0, 0, 0, 0, 0));
  EXPECT_THAT(brett.table.akk_struktur_ar[4][1], Each(0));
  EXPECT_EQ(brett.board.LetzteNote(1), 2);
}

TEST(ChordBoard, TakesTriadsWhateverGroupsAreChosen) {
  const Brett brett({{3, 4}, {7}, 0, 0});
  EXPECT_EQ(brett.CountOf(3), 10);
  EXPECT_EQ(brett.CountOf(4), 1);
  EXPECT_EQ(brett.board[11], (BoardEntry{4, 13, 7, 0}));
}

TEST(ChordBoard, TakesOnlyTheChosenGroups) {
  const Brett brett({{4}, {1, 8}, 0, 0});
  EXPECT_THAT(brett.Rows(), ElementsAre(1, 3, 4, 12, 14));
  EXPECT_THAT(brett.Groups(), ElementsAre(1, 8));
  EXPECT_THAT(brett.board.grp_aktiv_ar, ElementsAre(0, 1, 0, 0, 0, 0, 0, 0, 1));
}

TEST(ChordBoard, FindsNoRowsOfGroups7And8FromFiveToSevenNotes) {
  const Brett brett({{5, 6, 7}, {7, 8}, 0, 0});
  EXPECT_EQ(brett.board.akk_zahl, 0);
}

TEST(ChordBoard, IsSortedByRowAlthoughItIsCollectedByGroup) {
  const Brett brett({{4}, kAlleGruppen, 0, 0});
  EXPECT_THAT(brett.Rows(), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17));
  EXPECT_EQ(brett.random.draws, 0);
}

TEST(ChordBoard, TakesExactly24ChordsWithoutADraw) {
  const Brett brett({{3, 4}, {1, 2, 5, 6, 7, 8}, 0, 0});
  EXPECT_EQ(brett.board.akk_zahl, 24);
  EXPECT_EQ(brett.random.draws, 0);
  EXPECT_THAT(brett.Rows(), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10,  //
                                        1, 3, 4, 5, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16));
}

TEST(ChordBoard, TakesExactly16VoicingsWithoutADraw) {
  const Brett brett({{8}, {1, 2, 3}, 1, 0});
  EXPECT_EQ(brett.board.akk_zahl, 16);
  EXPECT_EQ(brett.random.draws, 0);
  EXPECT_THAT(brett.Rows(),
              ElementsAre(1, 2, 15, 16, 17, 18, 20, 21, 33, 34, 47, 48, 49, 50, 52, 53));
}

TEST(ChordBoard, TellsItsSizeBeforeItIsBuilt) {
  const auto size = [](const Wahl& wahl) { return BemissBrett(wahl.Selection()); };
  EXPECT_EQ(size({{}, kAlleGruppen, 0, 0}), (BoardSize{0, 0}));
  EXPECT_EQ(size({{3}, {}, 0, 0}), (BoardSize{10, 10}));
  EXPECT_EQ(size({{3, 4, 5, 6, 7}, {}, 0, 0}), (BoardSize{10, 10}));
  EXPECT_EQ(size({{3, 4, 5, 6, 7}, kAlleGruppen, 0, 0}), (BoardSize{70, 24}));
  EXPECT_EQ(size({{6, 7}, {2, 3, 4, 5}, 0, 0}), (BoardSize{20, 20}));
  EXPECT_EQ(size({{8}, kAlleGruppen, 1, 0}), (BoardSize{64, 16}));
  EXPECT_EQ(size({{8}, {1, 2, 3}, 1, 1}), (BoardSize{16, 16}));
}

TEST(ChordBoard, ForgetsTheBoardOfTheLastRun) {
  Brett brett({{4}, kAlleGruppen, 0, 0});
  brett.board.KlangNummer(17);
  brett.Setze({{3}, {}, 0, 0});
  EXPECT_EQ(brett.board.akk_zahl, 10);
  for (int e = 11; e <= 24; ++e) EXPECT_EQ(brett.board[e], BoardEntry()) << e;
  EXPECT_THAT(brett.board.grp_aktiv_ar, ElementsAre(1, 0, 0, 0, 0, 0, 0, 0, 0));
  EXPECT_EQ(brett.table.stimmen_ar[4], 0);
}

// --- Klang numbers --------------------------------------------------------------------------

TEST(ChordBoard, NumbersAnEntryAndKeepsTheNumberInIt) {
  Brett brett({{3}, {}, 0, 0});
  EXPECT_EQ(brett.board[1].klang, 0);
  EXPECT_EQ(brett.board.KlangNummer(1), 1);
  EXPECT_EQ(brett.board[1].klang, 1);
}

TEST(ChordBoard, NumbersTheFirstAndTheLastVoicing) {
  Brett brett;
  brett.board[1] = {8, 1, 1, 0};
  brett.board[2] = {8, 64, 5, 0};
  EXPECT_EQ(brett.board.KlangNummer(1), 71);
  EXPECT_EQ(brett.board.KlangNummer(2), 134);
}

// --- Drawn boards ---------------------------------------------------------------------------

TEST(ChordBoard, DrawsTwoOfEachOfFiveKindsBeforeItFillsUp) {
  Brett brett;
  for (int run = 0; run < 50; ++run) {
    // 8 groups for 5 kinds are 1.6 + 0.5, so two also when groups are named.
    brett.Setze({{3, 4, 5, 6, 7}, kAlleGruppen, 0, run % 2});
    EXPECT_EQ(brett.board.akk_zahl, 24);
    for (const int k : {3, 4, 5, 6, 7}) EXPECT_GE(brett.CountOf(k), 2) << k;
  }
}

TEST(ChordBoard, HasAnEntryOfEachGroupWhenVoicingsAreDrawn) {
  Brett brett;
  for (int run = 0; run < 50; ++run) {
    brett.Setze({{8}, kAlleGruppen, 1, run % 2});
    EXPECT_EQ(brett.board.akk_zahl, 16);
    EXPECT_THAT(brett.Groups(), ElementsAreArray(kAlleGruppen));
    EXPECT_THAT(brett.board.grp_aktiv_ar, ElementsAre(0, 1, 1, 1, 1, 1, 1, 1, 1));
    const std::vector<int> rows = brett.Rows();
    EXPECT_TRUE(std::ranges::is_sorted(rows));
  }
}

/// The draw that gives candidate `i`, from 1, of `n`.
float DrawOf(int i, int n) { return (static_cast<float>(i) - 0.5f) / static_cast<float>(n); }

/// Candidates of a selection that holds all Klangtypen 3 to 7 and all groups, as numbers from 1:
/// 1 to 10 triads, 11 to 27 of four, 28 to 50 of five, 51 to 65 of six, 66 to 70 of seven notes, in
/// each by group.
constexpr int kKandidaten = 70;

TEST(ChordBoard, DrawsTheWidestKindFirstAndRefusesAGroupThatItHas) {
  Brett brett;
  // 66 is the one seven-note chord of group 2, 67 to 70 are of group 5.
  brett.random.Script({
      DrawOf(1, kKandidaten),   // a triad: not of the kind
      DrawOf(67, kKandidaten),  // taken, group 5
      DrawOf(68, kKandidaten),  // group 5 again: refused
      DrawOf(66, kKandidaten),  // taken, group 2
      DrawOf(51, kKandidaten),  // six notes, group 2: refused
      DrawOf(53, kKandidaten),  // six notes, group 3: taken
      DrawOf(54, kKandidaten),  // six notes, group 4: taken
      DrawOf(28, kKandidaten),  // five notes, group 1: taken
      DrawOf(28, kKandidaten),  // gone
      DrawOf(50, kKandidaten),  // five notes, group 6: taken
      DrawOf(27, kKandidaten),  // four notes, group 8: taken
      DrawOf(25, kKandidaten),  // four notes, group 7: taken
      DrawOf(3, kKandidaten),   // a triad: taken
      DrawOf(2, kKandidaten),   // a triad: taken
  });
  const int scripted = 14;
  for (int i = 4; i <= 10; ++i) brett.random.Script({DrawOf(i, kKandidaten)});
  brett.random.Script({DrawOf(10, kKandidaten)});  // gone
  for (int i = 11; i <= 17; ++i) brett.random.Script({DrawOf(i, kKandidaten)});
  brett.random.script_only = true;
  brett.Setze({{3, 4, 5, 6, 7}, kAlleGruppen, 0, 0});

  EXPECT_TRUE(brett.random.ScriptDone());
  EXPECT_EQ(brett.random.draws, scripted + 7 + 1 + 7);
  EXPECT_EQ(brett.board.akk_zahl, 24);
  // By group, the four-note rows are 1 3 4 | 11 16 | 6 | 2 17 | 10 15 | 5 7 8 9 | 13 | 12 14.
  const std::vector<std::pair<int, int>> expected = {
      {3, 2},  {3, 3},  {3, 4}, {3, 5},  {3, 6}, {3, 7},  {3, 8},  {3, 9},
      {3, 10}, {4, 1},  {4, 2}, {4, 3},  {4, 4}, {4, 6},  {4, 11}, {4, 13},
      {4, 14}, {4, 16}, {5, 1}, {5, 10}, {6, 5}, {6, 13}, {7, 1},  {7, 2}};
  std::vector<std::pair<int, int>> found;
  for (const BoardEntry& entry : brett.Entries()) found.emplace_back(entry.klangtyp, entry.row);
  EXPECT_EQ(found, expected);
  EXPECT_THAT(brett.board.grp_aktiv_ar, ElementsAre(0, 1, 1, 1, 1, 1, 1, 1, 1));
}

TEST(ChordBoard, LeavesAGroupInactiveThatOnlyTheFillingUpBrings) {
  Brett brett;
  // 4 and 5 notes, groups 1 and 5 and others; 17 + 23 candidates.
  constexpr int n = 40;
  // Five notes by group: 18 to 20 are of group 1, 21 to 23 of group 2.
  brett.random.Script({DrawOf(18, n), DrawOf(21, n)});
  // Four notes by group: 6 is of group 3, 7 of group 4.
  brett.random.Script({DrawOf(6, n), DrawOf(7, n)});
  for (int i = 8; i <= 17; ++i) brett.random.Script({DrawOf(i, n)});
  for (int i = 31; i <= 40; ++i) brett.random.Script({DrawOf(i, n)});
  brett.random.script_only = true;
  brett.Setze({{4, 5}, kAlleGruppen, 0, 0});
  EXPECT_TRUE(brett.random.ScriptDone());
  EXPECT_EQ(brett.board.akk_zahl, 24);
  EXPECT_THAT(brett.Groups(), Contains(8));
  EXPECT_THAT(brett.board.grp_aktiv_ar, ElementsAre(0, 1, 1, 1, 1, 0, 0, 0, 0));
}

TEST(ChordBoard, TakesAGroupASecondTimeAfter200Tries) {
  Brett brett;
  constexpr int n = 28;  // five notes, then seven notes, of the groups 1 to 6
  // The seven-note chords are 24 to 28, the first of group 2, the others of group 5.
  brett.random.Script({DrawOf(25, n)});
  for (int i = 1; i <= 199; ++i) brett.random.Script({DrawOf(26, n)});
  brett.random.Script({DrawOf(27, n)});  // the 200th try is refused
  brett.random.Script({DrawOf(26, n)});  // the 201st is not
  // Five-note chords of groups 1 and 2, then the rest.
  brett.random.Script({DrawOf(1, n), DrawOf(4, n)});
  for (int i = 5; i <= 23; ++i) brett.random.Script({DrawOf(i, n)});
  brett.random.Script({DrawOf(2, n)});
  brett.random.script_only = true;
  brett.Setze({{5, 7}, {1, 2, 3, 4, 5, 6}, 0, 0});
  EXPECT_TRUE(brett.random.ScriptDone());
  EXPECT_EQ(brett.CountOf(7), 2);
  EXPECT_EQ(brett.board[23], (BoardEntry{7, 2, 5, 0}));
  EXPECT_EQ(brett.board[24], (BoardEntry{7, 3, 5, 0}));
}

TEST(ChordBoard, DrawsVoicingsGroupByGroupBeforeItFillsUp) {
  Brett brett;
  constexpr int n = 18;  // groups 1, 2 and 6, six voicings each
  brett.random.Script({
      DrawOf(7, n),   // group 2: not the one looked for
      DrawOf(1, n),   // group 1, row 1: taken
      DrawOf(1, n),   // gone, and no voicing of group 2
      DrawOf(8, n),   // group 2: taken
      DrawOf(18, n),  // group 6: taken
  });
  for (int i = 2; i <= 6; ++i) brett.random.Script({DrawOf(i, n)});
  brett.random.Script({DrawOf(8, n)});  // gone
  for (int i = 9; i <= 16; ++i) brett.random.Script({DrawOf(i, n)});
  brett.random.script_only = true;
  brett.Setze({{8}, {1, 2, 6}, 1, 0});
  EXPECT_TRUE(brett.random.ScriptDone());
  // Of the rows by group (1 15 18 33 47 50 | 2 16 17 34 48 49 | 19 22 30 51 54 62) the seventh and
  // the seventeenth were not drawn.
  EXPECT_THAT(brett.Rows(),
              ElementsAre(1, 15, 16, 17, 18, 19, 22, 30, 33, 34, 47, 48, 49, 50, 51, 62));
}

/// How many chords a run takes of its widest kind before it goes on to the next one, found by a
/// script: `candidates` of the widest kind, each of another group, more than the run will take or
/// just as many, and then `next`, of the next kind. Returns 0 if `next` was not taken.
int QuotaOfTheWidestKind(const Wahl& wahl, int n, const std::vector<int>& candidates, int next) {
  Brett brett;
  for (const int i : candidates) brett.random.Script({DrawOf(i, n)});
  brett.random.Script({DrawOf(next, n)});
  brett.random.script_only = true;
  try {
    brett.Setze(wahl);
    return 0;
  } catch (const RunTimeError&) {
    // The script is over; on the board stands what it brought.
  }
  int widest = 0;
  int others = 0;
  for (int e = 1; e <= 24; ++e) {
    const int k = brett.board[e].klangtyp;
    if (k != 0) ++(k == wahl.klangtypen.back() ? widest : others);
  }
  return others == 1 ? widest : 0;
}

TEST(ChordBoard, DrawsTwoOfAKindWhenChordsAreNamed) {
  // Six-note chords by group, behind 17 of four notes: 18 of group 2, 20 of 3, 21 of 4, 23 of 5.
  EXPECT_EQ(QuotaOfTheWidestKind({{4, 6}, kAlleGruppen, 0, 0}, 32, {18, 20, 21, 23}, 1), 2);
}

TEST(ChordBoard, DrawsAsManyOfAKindAsGroupsFallToItWhenGroupsAreNamed) {
  // 8 groups for 2 kinds: 4 + 0.5, rounded to the even 4.
  EXPECT_EQ(QuotaOfTheWidestKind({{4, 6}, kAlleGruppen, 0, 1}, 32, {18, 20, 21, 23}, 1), 4);
  // 7 groups for 2 kinds: 3.5 + 0.5. Of four notes there are 15.
  EXPECT_EQ(QuotaOfTheWidestKind({{4, 6}, {1, 2, 3, 4, 5, 6, 7}, 0, 1}, 30, {16, 18, 19, 21}, 1),
            4);
  // 5 groups for 2 kinds: 2.5 + 0.5. Of four notes there are 10.
  EXPECT_EQ(QuotaOfTheWidestKind({{4, 6}, {1, 2, 3, 4, 5}, 0, 1}, 25, {11, 13, 14, 16}, 1), 3);
  // 8 groups for 3 kinds: 2.67 + 0.5. Six-note chords stand behind 17 and 23.
  EXPECT_EQ(QuotaOfTheWidestKind({{4, 5, 6}, kAlleGruppen, 0, 1}, 55, {41, 43, 44, 46}, 18), 3);
  // 6 groups for 4 kinds: 1.5 + 0.5. Seven-note chords: one of group 2, four of group 5.
  EXPECT_EQ(QuotaOfTheWidestKind({{4, 5, 6, 7}, {1, 2, 3, 4, 5, 6}, 0, 1}, 57, {53, 54, 55}, 40),
            2);
}

TEST(ChordBoard, DrawsOnlyOneOfAKindWhosePoolIsOne) {
  // Without group 5 there is one chord of seven notes. A second draw would never end.
  Brett brett;
  for (int run = 0; run < 50; ++run) {
    brett.Setze({{3, 4, 5, 7}, {1, 2, 3, 4, 6, 7, 8}, 0, 0});
    EXPECT_EQ(brett.board.akk_zahl, 24);
    EXPECT_EQ(brett.CountOf(7), 1);
  }
}

TEST(ChordBoard, PassesOverAKindWhosePoolIsEmpty) {
  // No seven-note chord is of group 1 or 6.
  Brett brett({{3, 4, 5, 7}, {1, 3, 4, 6}, 0, 0});
  EXPECT_EQ(brett.board.akk_zahl, 24);
  EXPECT_EQ(brett.CountOf(7), 0);
}

TEST(ChordBoard, IsTheSameForTheSameSeedAndSelection) {
  const Wahl wahl = {{3, 4, 5, 6, 7}, kAlleGruppen, 0, 0};
  Brett first;
  Brett second;
  first.random.Restart(-42);
  second.random.Restart(-42);
  first.Setze(wahl);
  second.Setze(wahl);
  EXPECT_EQ(first.Entries(), second.Entries());
  second.random.Restart(-43);
  second.Setze(wahl);
  EXPECT_NE(first.Entries(), second.Entries());
}

TEST(ChordBoard, GivesUpWhenTheGeneratorNeverFindsAFittingChord) {
  for (const Wahl& wahl :
       {Wahl{{3, 4, 5, 6, 7}, kAlleGruppen, 0, 0}, Wahl{{8}, kAlleGruppen, 1, 0}}) {
    Brett brett;
    brett.random.Always(0);
    try {
      brett.Setze(wahl);
      ADD_FAILURE() << wahl;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number(), ErrorNumber::kNothingToDraw);
    }
  }
}

// --- Parameters of the scoring --------------------------------------------------------------

TEST(SlotLimits, FollowTheNumberOfChoices) {
  struct Row {
    int wahl_anzahl, fehl_stufen, fehl_max;
  };
  for (const Row& row :
       {Row{1, 0, 0}, Row{2, 1, 2}, Row{3, 2, 4}, Row{4, 3, 6}, Row{5, 4, 8}, Row{24, 4, 8}}) {
    SlotLimits limits;
    limits.Setze(row.wahl_anzahl);
    EXPECT_EQ(limits.wahl_anzahl, row.wahl_anzahl);
    EXPECT_EQ(limits.fehl_stufen, row.fehl_stufen) << row.wahl_anzahl;
    EXPECT_EQ(limits.fehl_max, row.fehl_max) << row.wahl_anzahl;
  }
  EXPECT_EQ(SlotLimits::kFehlSchritt, 2);
}

TEST(ChordBoard, CountsItsChordsAsChoicesWhenChordsAreNamed) {
  const Brett brett({{3}, {}, 0, 0});
  EXPECT_EQ(brett.board.limits.wahl_anzahl, 10);
  EXPECT_EQ(brett.board.limits.fehl_max, 8);
}

TEST(ChordBoard, CountsTheGroupsAsChoicesWhenGroupsAreNamed) {
  const Brett brett({{4}, {1, 5}, 0, 1});
  EXPECT_EQ(brett.board.akk_zahl, 5);
  EXPECT_EQ(brett.board.limits.wahl_anzahl, 2);
  EXPECT_EQ(brett.board.limits.fehl_stufen, 1);
  EXPECT_EQ(brett.board.limits.fehl_max, 2);
}

TEST(ChordBoard, Counts24ChoicesOnAFullBoard) {
  const Brett brett({{3, 4, 5, 6, 7}, kAlleGruppen, 0, 0});
  EXPECT_EQ(brett.board.limits.wahl_anzahl, 24);
  EXPECT_EQ(brett.board.limits.fehl_max, 8);
}

// --- Boards that are taken over --------------------------------------------------------------

/// The error number of taking the entries over, or 0.
int ErrorOfTakingOver(Brett& brett, const Wahl& wahl, const std::vector<BoardEntry>& entries) {
  try {
    brett.board.Uebernimm(wahl.Selection(), entries);
    return 0;
  } catch (const RunTimeError& error) {
    return error.number();
  }
}

/// Entries as they are stored, without Klang numbers.
std::vector<BoardEntry> Stored(const Brett& brett) {
  std::vector<BoardEntry> entries = brett.Entries();
  for (BoardEntry& entry : entries) entry.klang = 0;
  return entries;
}

TEST(ChordBoard, TakesOverABoardWithItsKlangNumbersAndNotes) {
  const Wahl wahl = {{4}, {1, 5}, 0, 0};
  const Brett drawn(wahl);
  Brett brett;
  EXPECT_EQ(ErrorOfTakingOver(brett, wahl, Stored(drawn)), 0);
  EXPECT_EQ(brett.board.akk_zahl, 5);
  for (int e = 1; e <= 5; ++e) {
    const BoardEntry& entry = brett.board[e];
    const ExpectedChord& expected = ExpectedOf(entry.klangtyp, entry.row);
    EXPECT_EQ(entry.klang, expected.klang);
    EXPECT_EQ(entry.group, expected.group);
    EXPECT_EQ(brett.board.LetzteNote(e), 3);
  }
  EXPECT_EQ(brett.board[6], BoardEntry());
  EXPECT_EQ(brett.table.akk_struktur_ar, drawn.table.akk_struktur_ar);
  EXPECT_EQ(brett.table.klang_spanne_ar, drawn.table.klang_spanne_ar);
  EXPECT_EQ(brett.random.draws, 0);
}

TEST(ChordBoard, KeepsItsLimitsWhenItTakesABoardOver) {
  const Wahl wahl = {{3}, {}, 0, 0};
  const Brett drawn(wahl);
  Brett fresh;
  EXPECT_EQ(ErrorOfTakingOver(fresh, wahl, Stored(drawn)), 0);
  EXPECT_EQ(fresh.board.limits.fehl_stufen, 0) << "no board was built in this process";
  Brett used({{4}, {4}, 0, 0});
  ASSERT_EQ(used.board.limits.fehl_stufen, 1);
  EXPECT_EQ(ErrorOfTakingOver(used, wahl, Stored(drawn)), 0);
  EXPECT_EQ(used.board.limits.fehl_stufen, 1);
}

TEST(ChordBoard, MarksAllChosenGroupsOfABoardThatItTakesOverWhenGroupsAreNamed) {
  for (const int best_art : {0, 1}) {
    const Wahl wahl = {{4}, {1, 5}, 0, best_art};
    const Brett drawn(wahl);
    Brett brett;
    EXPECT_EQ(ErrorOfTakingOver(brett, wahl, Stored(drawn)), 0);
    EXPECT_THAT(brett.board.grp_aktiv_ar, ElementsAre(0, best_art, 0, 0, 0, best_art, 0, 0, 0));
  }
}

TEST(ChordBoard, RefusesABoardThatItsSelectionCannotGive) {
  const Wahl wahl = {{3, 4}, {4, 7}, 0, 0};
  const std::vector<BoardEntry> good = Stored(Brett(wahl));
  ASSERT_EQ(good.size(), 13u);
  const auto changed = [&](std::size_t at, BoardEntry entry) {
    auto entries = good;
    entries[at] = entry;
    return entries;
  };
  const auto swapped = [&] {
    auto entries = good;
    std::swap(entries[3], entries[4]);
    return entries;
  };
  const auto shorter = [&](std::size_t count) {
    return std::vector<BoardEntry>(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(count));
  };
  auto longer = good;
  longer.push_back({5, 1, 1, 0});
  const std::vector<std::vector<BoardEntry>> bad = {
      {},
      shorter(1),
      shorter(12),
      longer,
      swapped(),
      changed(1, good[0]),       // the first one twice
      changed(0, {}),            // no kind
      changed(0, {2, 1, 0, 0}),  // kinds and rows outside of the catalogue
      changed(12, {9, 1, 1, 0}),
      changed(9, {3, 11, 0, 0}),
      changed(0, {3, 0, 0, 0}),
      changed(0, {3, -1, 0, 0}),
      changed(12, {4, 99, 7, 0}),
      changed(12, {5, 1, 1, 0}),             // a kind that was not chosen
      changed(0, {3, 1, 1, 0}),              // a triad in a group
      changed(12, {4, good[12].row, 1, 0}),  // the wrong group
      changed(12, {4, good[12].row, 0, 0}),
      changed(12, {4, good[12].row, 9, 0}),
  };
  for (std::size_t i = 0; i < bad.size(); ++i) {
    SCOPED_TRACE(i);
    Brett brett({{3}, {}, 0, 0});
    const auto before = brett.Entries();
    EXPECT_EQ(ErrorOfTakingOver(brett, wahl, bad[i]), ErrorNumber::kTypeMismatch);
    EXPECT_EQ(brett.Entries(), before);
    EXPECT_EQ(brett.board.akk_zahl, 10);
    EXPECT_EQ(brett.board.limits.fehl_stufen, 4);
  }
}

TEST(ChordBoard, RefusesADrawnBoardWithoutTheShareOfAKindOrGroup) {
  // 16 voicings of the groups 1 to 7, where one of group 8 is always drawn.
  const Wahl voicings = {{8}, kAlleGruppen, 1, 0};
  std::vector<BoardEntry> without_group;
  for (const ExpectedChord& chord : kExpectedChords) {
    if (chord.klangtyp == 8 && chord.group != 8 && without_group.size() < 16) {
      without_group.push_back({8, chord.row, chord.group, 0});
    }
  }
  ASSERT_EQ(without_group.size(), 16u);
  Brett brett;
  EXPECT_EQ(ErrorOfTakingOver(brett, voicings, without_group), ErrorNumber::kTypeMismatch);

  // 23 of five notes, and one of four, where two of a kind are always drawn.
  const Wahl kinds = {{4, 5}, kAlleGruppen, 0, 0};
  std::vector<BoardEntry> one_kind;
  for (const ExpectedChord& chord : kExpectedChords) {
    if (chord.klangtyp == 5 && one_kind.size() < 23)
      one_kind.push_back({5, chord.row, chord.group, 0});
  }
  ASSERT_EQ(one_kind.size(), 23u);
  one_kind.insert(one_kind.begin(), {4, 1, ExpectedOf(4, 1).group, 0});
  EXPECT_EQ(ErrorOfTakingOver(brett, kinds, one_kind), ErrorNumber::kTypeMismatch);
}

// --- Properties of all boards ---------------------------------------------------------------

/// Pool sizes by Klangtyp and group as boards have always been drawn with.
int PoolSize(int klangtyp, int group) {
  if (klangtyp == 4 && group == 7) return 2;
  if (klangtyp == 4 && group == 8) return 1;
  return static_cast<int>(std::ranges::count_if(kExpectedChords, [&](const ExpectedChord& chord) {
    return chord.klangtyp == klangtyp && chord.group == group;
  }));
}

/// A second, plain board maker that keeps to the rules step by step.
class PlainBoard {
 public:
  PlainBoard(const Wahl& wahl, Random& random) : wahl_(wahl), random_(random) {
    Collect();
    limit_ = wahl.klangtypen.back() == 8 ? 16 : 24;
    if (static_cast<int>(candidates_.size()) <= limit_) {
      for (const auto& c : candidates_) {
        active[static_cast<std::size_t>(c.group)] = 1;
        entries.emplace_back(c.klangtyp, c.row);
      }
    } else {
      Draw();
    }
    std::ranges::sort(entries);
  }

  std::vector<std::pair<int, int>> entries;  ///< Klangtyp and row
  std::array<int, 9> active{};

 private:
  struct Candidate {
    int klangtyp, row, group;
  };

  void Collect() {
    for (const int k : wahl_.klangtypen) {
      if (k == 3) {
        pool_[3] = 10;
        for (int r = 1; r <= 10; ++r) candidates_.push_back({3, r, 0});
        continue;
      }
      for (const int g : wahl_.gruppen) {
        pool_[static_cast<std::size_t>(k)] += PoolSize(k, g);
        for (const ExpectedChord& chord : kExpectedChords) {
          if (chord.klangtyp == k && chord.group == g) candidates_.push_back({k, chord.row, g});
        }
      }
    }
  }
  Candidate& Next() {
    // In single precision, as boards have always been drawn.
    return candidates_[static_cast<std::size_t>(random_.Rnd() *
                                                static_cast<float>(candidates_.size()))];
  }
  void Take(Candidate& c) {
    entries.emplace_back(c.klangtyp, c.row);
    c.klangtyp = 0;
  }
  void Draw() {
    if (wahl_.akk_form == 1) {
      DrawVoicings();
    } else {
      for (auto k = wahl_.klangtypen.rbegin(); k != wahl_.klangtypen.rend(); ++k) DrawKind(*k);
    }
    while (static_cast<int>(entries.size()) < limit_) {
      Candidate& c = Next();
      if (c.klangtyp > 0) Take(c);
    }
  }
  void DrawVoicings() {
    for (const int g : wahl_.gruppen) {
      for (;;) {
        Candidate& c = Next();
        if (c.group != g) continue;
        active[static_cast<std::size_t>(g)] = 1;
        Take(c);
        c.group = 0;
        break;
      }
    }
  }
  void DrawKind(int k) {
    const int pool = pool_[static_cast<std::size_t>(k)];
    if (pool <= 0) return;
    const double share =
        static_cast<double>(wahl_.gruppen.size()) / static_cast<double>(wahl_.klangtypen.size()) +
        0.5;
    const int quota = pool == 1             ? 1
                      : wahl_.best_art == 0 ? 2
                                            : static_cast<int>(std::nearbyint(share));
    for (int taken = 0; taken < quota; ++taken) {
      int tries = 0;
      for (;;) {
        Candidate& c = Next();
        ++tries;
        if (c.klangtyp != k) continue;
        int& is_active = active[static_cast<std::size_t>(c.group)];
        if (k != 3 && tries <= 200) {
          if (is_active != 0) continue;
          is_active = 1;
        }
        Take(c);
        break;
      }
    }
  }

  const Wahl& wahl_;
  Random& random_;
  std::vector<Candidate> candidates_;
  std::array<int, 9> pool_{};
  int limit_ = 0;
};

/// Some of the numbers `first` to `last`, ascending, at least `least` of them.
std::vector<int> Some(int first, int last, int least) {
  std::vector<int> chosen;
  for (int i = first; i <= last; ++i) {
    const int missing = least - static_cast<int>(chosen.size());
    const bool needed = missing > last - i;
    if (*rc::gen::inRange(0, 4) != 0 || needed) chosen.push_back(i);
  }
  return chosen;
}

/// Selections as the settings screen allows them.
rc::Gen<Wahl> AnyWahl() {
  return rc::gen::exec([] {
    Wahl wahl;
    wahl.akk_form = *rc::gen::inRange(0, 2);
    wahl.best_art = *rc::gen::inRange(0, 2);
    wahl.klangtypen =
        wahl.akk_form == 1 ? std::vector<int>{8} : Some(wahl.best_art == 0 ? 3 : 4, 7, 1);
    wahl.gruppen = Some(1, 8, 2);
    return wahl;
  });
}

/// The seed of a generator.
int AnySeed() { return *rc::gen::inRange(1, 1000000); }

RC_GTEST_PROP(ChordBoardProperty, KeepsToTheRulesDrawByDraw, ()) {
  const Wahl wahl = *AnyWahl();
  const int seed = AnySeed();
  ScriptedRandom plain_random;
  plain_random.Restart(seed);
  const PlainBoard plain(wahl, plain_random);
  Brett brett;
  brett.random.Restart(seed);
  brett.Setze(wahl);
  std::vector<std::pair<int, int>> found;
  for (const BoardEntry& entry : brett.Entries()) found.emplace_back(entry.klangtyp, entry.row);
  RC_ASSERT(found == plain.entries);
  RC_ASSERT(brett.board.grp_aktiv_ar == plain.active);
  RC_ASSERT(brett.random.draws == plain_random.draws);
}

RC_GTEST_PROP(ChordBoardProperty, HoldsSortedChosenChordsWithoutDoubles, ()) {
  const Wahl wahl = *AnyWahl();
  Brett brett;
  brett.random.Restart(AnySeed());
  brett.Setze(wahl);
  const int limit = wahl.akk_form == 1 ? 16 : 24;
  RC_ASSERT(brett.board.akk_zahl <= limit);
  int last = 0;
  for (const BoardEntry& entry : brett.Entries()) {
    const int key = entry.klangtyp * 100 + entry.row;
    RC_ASSERT(key > last);
    last = key;
    RC_ASSERT(std::ranges::count(wahl.klangtypen, entry.klangtyp) == 1);
    RC_ASSERT(entry.group == ExpectedOf(entry.klangtyp, entry.row).group);
    if (entry.klangtyp != 3) RC_ASSERT(std::ranges::count(wahl.gruppen, entry.group) == 1);
  }
  for (int e = brett.board.akk_zahl + 1; e <= 24; ++e) RC_ASSERT(brett.board[e] == BoardEntry());
}

RC_GTEST_PROP(ChordBoardProperty, HoldsAllThatFitsAndOtherwiseFillsTheBoard, ()) {
  const Wahl wahl = *AnyWahl();
  Brett brett;
  brett.random.Restart(AnySeed());
  const int before = brett.random.draws;
  brett.Setze(wahl);
  const auto candidates = std::ranges::count_if(kExpectedChords, [&](const ExpectedChord& chord) {
    return std::ranges::count(wahl.klangtypen, chord.klangtyp) > 0 &&
           (chord.klangtyp == 3 || std::ranges::count(wahl.gruppen, chord.group) > 0);
  });
  const int limit = wahl.akk_form == 1 ? 16 : 24;
  RC_ASSERT(brett.board.akk_zahl == std::min(static_cast<int>(candidates), limit));
  RC_ASSERT((brett.random.draws == before) == (candidates <= limit));
}

RC_GTEST_PROP(ChordBoardProperty, RepresentsEachKindAndEachGroupOfVoicings, ()) {
  const Wahl wahl = *AnyWahl();
  Brett brett;
  brett.random.Restart(AnySeed());
  brett.Setze(wahl);
  for (const int k : wahl.klangtypen) {
    const bool has_chords =
        k == 3 || std::ranges::any_of(kExpectedChords, [&](const ExpectedChord& chord) {
          return chord.klangtyp == k && std::ranges::count(wahl.gruppen, chord.group) > 0;
        });
    RC_ASSERT((brett.CountOf(k) > 0) == has_chords);
  }
  if (wahl.akk_form == 1) {
    for (const int g : wahl.gruppen) RC_ASSERT(brett.Groups().contains(g));
  }
}

RC_GTEST_PROP(ChordBoardProperty, HasTheSizeThatIsToldBeforeItIsDrawn, ()) {
  const Wahl wahl = *AnyWahl();
  Brett brett;
  brett.random.Restart(AnySeed());
  brett.Setze(wahl);
  const auto candidates = std::ranges::count_if(kExpectedChords, [&](const ExpectedChord& chord) {
    return std::ranges::count(wahl.klangtypen, chord.klangtyp) > 0 &&
           (chord.klangtyp == 3 || std::ranges::count(wahl.gruppen, chord.group) > 0);
  });
  const BoardSize size = BemissBrett(wahl.Selection());
  RC_ASSERT(size.kandidaten == candidates);
  RC_ASSERT(size.eintraege == brett.board.akk_zahl);
}

RC_GTEST_PROP(ChordBoardProperty, TakesOverEveryBoardThatItCanDraw, ()) {
  const Wahl wahl = *AnyWahl();
  Brett drawn;
  drawn.random.Restart(AnySeed());
  drawn.Setze(wahl);
  for (int e = 1; e <= drawn.board.akk_zahl; ++e) drawn.board.KlangNummer(e);
  Brett brett;
  RC_ASSERT(ErrorOfTakingOver(brett, wahl, Stored(drawn)) == 0);
  RC_ASSERT(brett.Entries() == drawn.Entries());
  RC_ASSERT(brett.table.akk_struktur_ar == drawn.table.akk_struktur_ar);
}

RC_GTEST_PROP(ChordBoardProperty, TakesOverNoBoardWithAnEntryTakenOutOrDoubled, ()) {
  const Wahl wahl = *AnyWahl();
  Brett drawn;
  drawn.random.Restart(AnySeed());
  drawn.Setze(wahl);
  auto entries = Stored(drawn);
  if (entries.empty()) return;  // groups of which the kind has none
  const auto at = *rc::gen::inRange<std::ptrdiff_t>(0, static_cast<std::ptrdiff_t>(entries.size()));
  if (*rc::gen::arbitrary<bool>()) {
    entries.erase(entries.begin() + at);
  } else {
    const BoardEntry again = entries[static_cast<std::size_t>(at)];
    entries.insert(entries.begin() + at, again);
  }
  Brett brett;
  RC_ASSERT(ErrorOfTakingOver(brett, wahl, entries) == ErrorNumber::kTypeMismatch);
}

RC_GTEST_PROP(ChordBoardProperty, GivesEachEntryTheNumberOfItsChord, ()) {
  const Wahl wahl = *AnyWahl();
  Brett brett;
  brett.random.Restart(AnySeed());
  brett.Setze(wahl);
  for (int e = 1; e <= brett.board.akk_zahl; ++e) {
    const BoardEntry entry = brett.board[e];
    RC_ASSERT(brett.board.KlangNummer(e) == ExpectedOf(entry.klangtyp, entry.row).klang);
  }
}

}  // namespace
}  // namespace vmod17

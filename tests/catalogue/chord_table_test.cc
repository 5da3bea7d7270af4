// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "catalogue/chord_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <span>

#include "base/run_time_error.h"
#include "catalogue/expected_chords.h"

namespace vmod17 {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

constexpr std::array<int, 6> kAlle = {3, 4, 5, 6, 7, 8};

/// A table with all that a program can put into it.
ChordTable FullTable() {
  ChordTable table;
  table.SetzeKlangZahlen();
  for (const int k : kAlle) table.SetzeGruppen(k);
  table.SetzeStruktur(kAlle);
  return table;
}

// --- The 134 chords -------------------------------------------------------------------------

TEST(ChordCatalogue, GivesEachChordItsPlaceGroupNotesAndSymbol) {
  for (const ExpectedChord& expected : kExpectedChords) {
    SCOPED_TRACE(expected.klang);
    const Chord& chord = ChordOfKlang(expected.klang);
    EXPECT_EQ(chord.klangtyp, expected.klangtyp);
    EXPECT_EQ(chord.row, expected.row);
    EXPECT_EQ(chord.group, expected.group);
    EXPECT_THAT(chord.semitones, ElementsAreArray(expected.semitones));
    EXPECT_EQ(chord.symbol, expected.symbol);
  }
}

TEST(ChordTable, HoldsTheNumberGroupAndNotesOfEachChordForARun) {
  const ChordTable table = FullTable();
  for (const ExpectedChord& expected : kExpectedChords) {
    SCOPED_TRACE(expected.klang);
    const auto k = static_cast<std::size_t>(expected.klangtyp);
    const auto row = static_cast<std::size_t>(expected.row);
    const std::size_t notes = expected.semitones.size();
    EXPECT_EQ(table.KlangNummer(expected.klangtyp, expected.row), expected.klang);
    EXPECT_EQ(table.akk_gruppe_ar.at(k).at(row), expected.group);
    EXPECT_EQ(table.stimmen_ar.at(k), static_cast<int>(notes) - 1);
    EXPECT_THAT(std::span(table.akk_struktur_ar.at(k).at(row)).first(notes),
                ElementsAreArray(expected.semitones));
  }
}

TEST(ChordCatalogue, HasNoChordOutsideOf1To134) {
  for (const int klang : {-1, 0, 135}) {
    try {
      ChordOfKlang(klang);
      ADD_FAILURE() << klang;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number(), ErrorNumber::kOutOfRange);
    }
  }
}

TEST(ChordCatalogue, GivesBothSpacingsOfAVoicingOneSymbolAndOneGroup) {
  for (int row = 1; row <= 32; ++row) {
    const Chord& narrow = ChordOfKlang(70 + row);
    const Chord& wide = ChordOfKlang(70 + row + 32);
    EXPECT_EQ(narrow.group, wide.group) << row;
    // The table names one of the wide voicings by the ninth that its picture shows.
    if (row == 13) continue;
    EXPECT_EQ(narrow.symbol, wide.symbol) << row;
  }
}

TEST(ChordCatalogue, HasTwoVoicingsThatSoundAlikeUnderDifferentNames) {
  EXPECT_THAT(ChordOfKlang(73).semitones, ElementsAreArray(ChordOfKlang(76).semitones));
  EXPECT_EQ(ChordOfKlang(73).symbol, "C9");
  EXPECT_EQ(ChordOfKlang(76).symbol, "C9(b5)");
  EXPECT_NE(ChordOfKlang(73).group, ChordOfKlang(76).group);
}

TEST(ChordCatalogue, HasTwoChordsOfOneSymbolAndDifferentNotes) {
  EXPECT_EQ(ChordOfKlang(60).symbol, ChordOfKlang(62).symbol);
  EXPECT_NE(ChordOfKlang(60).semitones.back(), ChordOfKlang(62).semitones.back());
}

// --- SetzeKlangZahlen -----------------------------------------------------------------------

TEST(ChordTable, CountsTheRowsOfEachKlangtyp) {
  ChordTable table;
  EXPECT_THAT(table.akk_je_typ_ar, Each(0));
  table.SetzeKlangZahlen();
  EXPECT_THAT(table.akk_je_typ_ar, ElementsAre(0, 0, 0, 10, 17, 23, 15, 5, 64));
}

TEST(ChordTable, NumbersTheFirstRowsOfEachKlangtyp) {
  ChordTable table;
  table.SetzeKlangZahlen();
  EXPECT_EQ(table.KlangNummer(3, 1), 1);
  EXPECT_EQ(table.KlangNummer(4, 1), 11);
  EXPECT_EQ(table.KlangNummer(5, 1), 28);
  EXPECT_EQ(table.KlangNummer(6, 1), 51);
  EXPECT_EQ(table.KlangNummer(7, 1), 66);
  EXPECT_EQ(table.KlangNummer(8, 1), 71);
}

TEST(ChordTable, NumbersTheLastVoicing134) {
  ChordTable table;
  table.SetzeKlangZahlen();
  EXPECT_EQ(table.KlangNummer(8, 64), 134);
}

// --- SetzeGruppen ---------------------------------------------------------------------------

using GroupSizes = std::array<int, 9>;

TEST(ChordGroups, HaveSettledPoolSizes) {
  ChordTable table;
  for (const int k : kAlle) table.SetzeGruppen(k);
  // By group, from 1.
  EXPECT_THAT(table.grp_zahl_ar[4], ElementsAre(0, 3, 2, 1, 2, 2, 4, 2, 1));
  EXPECT_THAT(table.grp_zahl_ar[5], ElementsAre(0, 3, 3, 2, 3, 10, 2, 0, 0));
  EXPECT_THAT(table.grp_zahl_ar[6], ElementsAre(0, 0, 2, 1, 2, 10, 0, 0, 0));
  EXPECT_THAT(table.grp_zahl_ar[7], ElementsAre(0, 0, 1, 0, 0, 4, 0, 0, 0));
  EXPECT_THAT(table.grp_zahl_ar[8], ElementsAre(0, 6, 6, 4, 8, 24, 6, 6, 4));
}

/// Rows by group, counted from the expected chords.
GroupSizes CountedRows(int klangtyp) {
  GroupSizes count{};
  for (const ExpectedChord& chord : kExpectedChords) {
    if (chord.klangtyp == klangtyp) ++count[static_cast<std::size_t>(chord.group)];
  }
  return count;
}

TEST(ChordGroups, HavePoolSizesThatAgreeWithTheRowsFromFiveNotesOn) {
  ChordTable table;
  for (const int k : {5, 6, 7, 8}) {
    table.SetzeGruppen(k);
    EXPECT_EQ(table.grp_zahl_ar[static_cast<std::size_t>(k)], CountedRows(k)) << k;
  }
}

TEST(ChordGroups, DisagreeWithTheRowsInTwoCellsForFourNotes) {
  ChordTable table;
  table.SetzeGruppen(4);
  GroupSizes rows = CountedRows(4);
  EXPECT_EQ(rows[7], 1);
  EXPECT_EQ(rows[8], 2);
  EXPECT_EQ(table.grp_zahl_ar[4][7], 2);
  EXPECT_EQ(table.grp_zahl_ar[4][8], 1);
  rows[7] = 2;
  rows[8] = 1;
  EXPECT_EQ(table.grp_zahl_ar[4], rows) << "all other cells agree";
}

TEST(ChordGroups, FillOnlyTheKlangtypAskedFor) {
  ChordTable table;
  table.SetzeGruppen(5);
  EXPECT_EQ(table.akk_gruppe_ar[5][2], 1);
  for (const int k : {3, 4, 6, 7, 8}) {
    EXPECT_THAT(table.akk_gruppe_ar[static_cast<std::size_t>(k)], Each(0)) << k;
    EXPECT_THAT(table.grp_zahl_ar[static_cast<std::size_t>(k)], Each(0)) << k;
  }
}

TEST(ChordGroups, DoNothingForTriadsAndForWhatIsNoKlangtyp) {
  ChordTable table;
  for (const int k : {-1, 0, 2, 3, 9, 100}) table.SetzeGruppen(k);
  for (const auto& rows : table.akk_gruppe_ar) EXPECT_THAT(rows, Each(0));
  for (const auto& sizes : table.grp_zahl_ar) EXPECT_THAT(sizes, Each(0));
}

// --- SetzeStruktur --------------------------------------------------------------------------

TEST(ChordStructure, TellsTheLastNoteAndTheHeadroomOfEachKlangtyp) {
  ChordTable table;
  table.SetzeStruktur(kAlle);
  EXPECT_THAT(table.stimmen_ar, ElementsAre(0, 0, 0, 2, 3, 4, 5, 6, 4));
  EXPECT_THAT(table.klang_spanne_ar, ElementsAre(0, 0, 0, 8, 11, 21, 21, 21, 29));
}

TEST(ChordStructure, FillsOnlyTheChosenKlangtypen) {
  ChordTable table;
  const std::array<int, 1> triads = {3};
  table.SetzeStruktur(triads);
  EXPECT_THAT(table.stimmen_ar, ElementsAre(0, 0, 0, 2, 0, 0, 0, 0, 0));
  EXPECT_THAT(table.klang_spanne_ar, ElementsAre(0, 0, 0, 8, 0, 0, 0, 0, 0));
  EXPECT_THAT(table.akk_struktur_ar[3][10], ElementsAre(0, 5, 8, 0, 0, 0, 0, 0));
  EXPECT_THAT(table.akk_struktur_ar[3][0], Each(0));
  EXPECT_THAT(table.akk_struktur_ar[3][11], Each(0));
  EXPECT_THAT(table.akk_struktur_ar[4][1], Each(0));
}

TEST(ChordStructure, ForgetsTheLastNotesButKeepsTheRowsOfAnEarlierRun) {
  ChordTable table;
  const std::array<int, 1> triads = {3};
  const std::array<int, 1> four = {4};
  table.SetzeStruktur(triads);
  table.SetzeStruktur(four);
  EXPECT_THAT(table.stimmen_ar, ElementsAre(0, 0, 0, 0, 3, 0, 0, 0, 0));
  EXPECT_EQ(table.klang_spanne_ar[3], 8);
  EXPECT_THAT(table.akk_struktur_ar[3][1], ElementsAre(0, 4, 7, 0, 0, 0, 0, 0));
}

TEST(ChordStructure, OnlyForgetsWhenNothingIsChosen) {
  ChordTable table;
  table.SetzeStruktur(kAlle);
  table.SetzeStruktur({});
  EXPECT_THAT(table.stimmen_ar, Each(0));
  EXPECT_EQ(table.klang_spanne_ar[8], 29);
}

TEST(ChordStructure, PassesOverWhatIsNoKlangtyp) {
  ChordTable table;
  const std::array<int, 5> mixed = {0, 2, 5, 9, -3};
  table.SetzeStruktur(mixed);
  EXPECT_THAT(table.stimmen_ar, ElementsAre(0, 0, 0, 0, 0, 4, 0, 0, 0));
}

}  // namespace
}  // namespace vmod17

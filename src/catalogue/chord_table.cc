// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "catalogue/chord_table.h"

#include <algorithm>
#include <string>
#include <vector>

#include "base/run_time_error.h"

namespace vmod17 {
namespace {

struct Row {
  int klangtyp;
  int row;
  int group;
  const char* symbol;
  std::array<int, 7> semitones;  // of which the chord uses as many as its Klangtyp has notes
};

constexpr auto kRows = std::to_array<Row>({
    // clang-format off
    // Klangtyp 3
    {3, 1, 0, "C", {0, 4, 7}},
    {3, 2, 0, "Cmin", {0, 3, 7}},
    {3, 3, 0, "Caug", {0, 4, 8}},
    {3, 4, 0, "Cdim", {0, 3, 6}},
    {3, 5, 0, "Cb5", {0, 4, 6}},
    {3, 6, 0, "Csus4", {0, 5, 7}},
    {3, 7, 0, "Ab/C", {0, 3, 8}},
    {3, 8, 0, "F/C", {0, 5, 9}},
    {3, 9, 0, "Amin/C", {0, 4, 9}},
    {3, 10, 0, "Fmin/C", {0, 5, 8}},
    // Klangtyp 4
    {4, 1, 1, "C6", {0, 4, 7, 9}},
    {4, 2, 4, "C7", {0, 4, 7, 10}},
    {4, 3, 1, "Cmaj7", {0, 4, 7, 11}},
    {4, 4, 1, "Cadd9", {0, 2, 4, 7}},
    {4, 5, 6, "Cmin6", {0, 3, 7, 9}},
    {4, 6, 3, "Cmin7", {0, 3, 7, 10}},
    {4, 7, 6, "Cmin(maj7)", {0, 3, 7, 11}},
    {4, 8, 6, "Cmin(add9)", {0, 2, 3, 7}},
    {4, 9, 6, "Cmin(add4)", {0, 3, 5, 7}},
    {4, 10, 5, "C7(#5)", {0, 4, 8, 10}},
    {4, 11, 2, "Cmaj7(#5)", {0, 4, 8, 11}},
    {4, 12, 8, "C°", {0, 3, 6, 9}},
    {4, 13, 7, "Cø", {0, 3, 6, 10}},
    {4, 14, 8, "Cdim(maj7)", {0, 3, 6, 11}},
    {4, 15, 5, "C7(b5)", {0, 4, 6, 10}},
    {4, 16, 2, "Cmaj7(#4)", {0, 4, 6, 11}},
    {4, 17, 4, "C7sus4", {0, 5, 7, 10}},
    // Klangtyp 5
    {5, 1, 1, "C6(maj7)", {0, 4, 7, 9, 11}},
    {5, 2, 1, "C6/9", {0, 4, 7, 9, 14}},
    {5, 3, 5, "C7(b9)", {0, 4, 7, 10, 13}},
    {5, 4, 4, "C9", {0, 4, 7, 10, 14}},
    {5, 5, 5, "C7(#9)", {0, 4, 7, 10, 15}},
    {5, 6, 4, "C7(add13)", {0, 4, 7, 10, 21}},
    {5, 7, 1, "Cmaj9", {0, 4, 7, 11, 14}},
    {5, 8, 6, "Cmin6/9", {0, 3, 7, 9, 14}},
    {5, 9, 3, "Cmin9", {0, 3, 7, 10, 14}},
    {5, 10, 6, "Cmin(maj9)", {0, 3, 7, 11, 14}},
    {5, 11, 3, "Cmin7(add4)", {0, 3, 5, 7, 10}},
    {5, 12, 5, "C7(b13/b9)", {0, 4, 8, 10, 13}},
    {5, 13, 5, "C9(#5)", {0, 4, 8, 10, 14}},
    {5, 14, 5, "C7(b13/#9)", {0, 4, 8, 10, 15}},
    {5, 15, 2, "Cmaj9(#5)", {0, 4, 8, 11, 14}},
    {5, 16, 5, "C7(b13/b5)", {0, 4, 6, 8, 10}},
    {5, 17, 2, "Cmaj7(#5/#4)", {0, 4, 6, 8, 11}},
    {5, 18, 5, "C7(b9/b5)", {0, 4, 6, 10, 13}},
    {5, 19, 5, "C9(b5)", {0, 4, 6, 10, 14}},
    {5, 20, 5, "C7(#9/b5)", {0, 4, 6, 10, 15}},
    {5, 21, 2, "Cmaj9(#4)", {0, 4, 6, 11, 14}},
    {5, 22, 5, "C7sus4(b9)", {0, 5, 7, 10, 13}},
    {5, 23, 4, "C9sus4", {0, 5, 7, 10, 14}},
    // Klangtyp 6
    {6, 1, 2, "D/C", {0, 4, 7, 9, 14, 18}},
    {6, 2, 5, "C7(#11/b9)", {0, 4, 7, 10, 13, 18}},
    {6, 3, 5, "C9(#11)", {0, 4, 7, 10, 14, 18}},
    {6, 4, 2, "Cmaj9(#11)", {0, 4, 7, 11, 14, 18}},
    {6, 5, 3, "Cmin11", {0, 3, 7, 10, 14, 17}},
    {6, 6, 5, "C7(#11 b13/b9)", {0, 4, 8, 10, 13, 18}},
    {6, 7, 5, "C9(#11/#5)", {0, 3, 8, 10, 14, 18}},
    {6, 8, 5, "C7(#11 b13/#9)", {0, 4, 8, 10, 15, 18}},
    {6, 9, 5, "Cmaj9(#11/#5)", {0, 4, 8, 11, 14, 18}},
    {6, 10, 5, "C7(b9 b13/b5)", {0, 4, 6, 8, 10, 13}},
    {6, 11, 5, "C9(b13/b5)", {0, 4, 6, 8, 10, 14}},
    {6, 12, 5, "C7(b9 b13/b5)", {0, 4, 6, 8, 10, 15}},
    {6, 13, 4, "C13", {0, 4, 7, 10, 14, 21}},
    {6, 14, 5, "C13sus4(b9)", {0, 5, 7, 10, 13, 21}},
    {6, 15, 4, "C13sus4", {0, 5, 7, 10, 14, 21}},
    // Klangtyp 7
    {7, 1, 2, "Cmaj13(#11)", {0, 4, 7, 11, 14, 18, 21}},
    {7, 2, 5, "C13(#11)", {0, 4, 7, 10, 14, 18, 21}},
    {7, 3, 5, "C13(#11/b9)", {0, 4, 7, 10, 13, 18, 21}},
    {7, 4, 5, "C7(#9 #11/#5 b9)", {0, 4, 8, 10, 13, 15, 18}},
    {7, 5, 5, "C7(#9 b13/b5 b9)", {0, 4, 6, 8, 10, 13, 15}},
    // Klangtyp 8
    {8, 1, 1, "C6/9", {0, 4, 9, 14, 19}},
    {8, 2, 2, "C6/9(#11)", {0, 4, 9, 14, 18}},
    {8, 3, 4, "C9", {0, 4, 10, 14, 19}},
    {8, 4, 5, "C7(b9)", {0, 4, 10, 13, 19}},
    {8, 5, 5, "C7(#9)", {0, 4, 10, 15, 19}},
    {8, 6, 5, "C9(b5)", {0, 4, 10, 14, 19}},
    {8, 7, 5, "C7(b9/b5)", {0, 4, 10, 13, 18}},
    {8, 8, 5, "C7(#9/b5)", {0, 4, 10, 15, 18}},
    {8, 9, 4, "C13", {0, 4, 10, 14, 21}},
    {8, 10, 5, "C13(b9)", {0, 4, 10, 13, 21}},
    {8, 11, 5, "C13(#9)", {0, 4, 10, 15, 21}},
    {8, 12, 5, "C9(#5)", {0, 4, 10, 14, 20}},
    {8, 13, 5, "C7(b13/b9)", {0, 4, 10, 13, 20}},
    {8, 14, 5, "C7(b13/#9)", {0, 4, 10, 15, 20}},
    {8, 15, 1, "Cmaj9", {0, 4, 11, 14, 19}},
    {8, 16, 2, "Cmaj9(b5)", {0, 4, 11, 14, 18}},
    {8, 17, 2, "Cmaj9(#5)", {0, 4, 11, 14, 20}},
    {8, 18, 1, "C6(maj7)", {0, 4, 11, 14, 21}},
    {8, 19, 6, "Cmin6/9", {0, 3, 9, 14, 19}},
    {8, 20, 3, "Cmin9", {0, 3, 10, 14, 19}},
    {8, 21, 3, "Cmin11", {0, 3, 10, 14, 17}},
    {8, 22, 6, "Cmin(maj9)", {0, 3, 11, 14, 19}},
    {8, 23, 7, "Cø(♮9)", {0, 3, 10, 14, 18}},
    {8, 24, 7, "Cø", {0, 3, 10, 12, 18}},
    {8, 25, 7, "Cø(add4)", {0, 3, 10, 17, 18}},
    {8, 26, 8, "C°(add9)", {0, 3, 9, 14, 18}},
    {8, 27, 8, "C°(maj7)", {0, 3, 9, 11, 18}},
    {8, 28, 4, "C9sus4", {0, 5, 10, 14, 19}},
    {8, 29, 5, "C7sus4(b9)", {0, 5, 10, 13, 19}},
    {8, 30, 6, "Cmin(add4)", {0, 5, 10, 15, 19}},
    {8, 31, 4, "C13sus4", {0, 5, 10, 14, 21}},
    {8, 32, 5, "C13sus4(b9)", {0, 5, 10, 13, 21}},
    {8, 33, 1, "C6/9", {0, 9, 16, 19, 26}},
    {8, 34, 2, "C6/9(#11)", {0, 9, 16, 18, 26}},
    {8, 35, 4, "C9", {0, 10, 16, 19, 26}},
    {8, 36, 5, "C7(b9)", {0, 10, 16, 19, 25}},
    {8, 37, 5, "C7(#9)", {0, 10, 16, 19, 27}},
    {8, 38, 5, "C9(b5)", {0, 10, 16, 18, 26}},
    {8, 39, 5, "C7(b9/b5)", {0, 10, 16, 18, 25}},
    {8, 40, 5, "C7(#9/b5)", {0, 10, 16, 18, 27}},
    {8, 41, 4, "C13", {0, 10, 16, 21, 26}},
    {8, 42, 5, "C13(b9)", {0, 10, 16, 21, 25}},
    {8, 43, 5, "C13(#9)", {0, 10, 16, 21, 27}},
    {8, 44, 5, "C9(#5)", {0, 10, 16, 20, 26}},
    {8, 45, 5, "C7(b13/#9)", {0, 10, 16, 20, 25}},
    {8, 46, 5, "C7(b13/#9)", {0, 10, 16, 20, 27}},
    {8, 47, 1, "Cmaj9", {0, 11, 16, 19, 26}},
    {8, 48, 2, "Cmaj9(b5)", {0, 11, 16, 18, 26}},
    {8, 49, 2, "Cmaj9(#5)", {0, 11, 16, 20, 26}},
    {8, 50, 1, "C6(maj7)", {0, 11, 16, 21, 26}},
    {8, 51, 6, "Cmin6/9", {0, 9, 15, 19, 26}},
    {8, 52, 3, "Cmin9", {0, 10, 15, 19, 26}},
    {8, 53, 3, "Cmin11", {0, 10, 15, 17, 26}},
    {8, 54, 6, "Cmin(maj9)", {0, 11, 15, 19, 26}},
    {8, 55, 7, "Cø(♮9)", {0, 10, 15, 18, 26}},
    {8, 56, 7, "Cø", {0, 10, 12, 15, 18}},
    {8, 57, 7, "Cø(add4)", {0, 10, 15, 18, 29}},
    {8, 58, 8, "C°(add9)", {0, 9, 15, 18, 26}},
    {8, 59, 8, "C°(maj7)", {0, 9, 15, 18, 23}},
    {8, 60, 4, "C9sus4", {0, 10, 17, 19, 26}},
    {8, 61, 5, "C7sus4(b9)", {0, 10, 17, 19, 25}},
    {8, 62, 6, "Cmin(add4)", {0, 10, 17, 19, 27}},
    {8, 63, 4, "C13sus4", {0, 10, 17, 21, 26}},
    {8, 64, 5, "C13sus4(b9)", {0, 10, 17, 21, 25}},
    // clang-format on
});

struct KlangtypFacts {
  int last_note;
  int headroom;
};

// By Klangtyp. The headroom is given for each kind, not taken from the rows: some chords reach
// higher, as two of the triads do.
constexpr std::array<KlangtypFacts, 9> kFacts = {
    {{}, {}, {}, {2, 8}, {3, 11}, {4, 21}, {5, 21}, {6, 21}, {4, 29}}};

// By group, then Klangtyp 4 to 8.
constexpr std::array<std::array<int, 5>, 9> kGroupSizes = {{{},
                                                            {3, 3, 0, 0, 6},
                                                            {2, 3, 2, 1, 6},
                                                            {1, 2, 1, 0, 4},
                                                            {2, 3, 2, 0, 8},
                                                            {2, 10, 10, 4, 24},
                                                            {4, 2, 0, 0, 6},
                                                            {2, 0, 0, 0, 6},
                                                            {1, 0, 0, 0, 4}}};

// --- What holds the table together

constexpr int RowsIn(int klangtyp) {
  return static_cast<int>(std::ranges::count(kRows, klangtyp, &Row::klangtyp));
}

constexpr int RowsIn(int klangtyp, int group) {
  return static_cast<int>(std::ranges::count_if(
      kRows, [&](const Row& row) { return row.klangtyp == klangtyp && row.group == group; }));
}

constexpr int FirstKlang(int klangtyp) {
  return 1 + static_cast<int>(std::ranges::count_if(
                 kRows, [&](const Row& row) { return row.klangtyp < klangtyp; }));
}

constexpr bool StandInOrder() {
  int klangtyp = kKleinsterKlangtyp;
  int last = 0;
  for (const Row& row : kRows) {
    if (row.klangtyp != klangtyp) last = 0;
    if (row.klangtyp < klangtyp || row.klangtyp > kVoicing || row.row != last + 1) return false;
    klangtyp = row.klangtyp;
    last = row.row;
  }
  return true;
}

constexpr bool HaveTheirGroups() {
  return std::ranges::all_of(kRows, [](const Row& row) {
    return row.klangtyp == kTriade ? row.group == 0 : row.group >= 1 && row.group <= kGruppen;
  });
}

constexpr bool HaveTheirNotes() {
  return std::ranges::all_of(kRows, [](const Row& row) {
    const int last = kFacts[row.klangtyp].last_note;
    for (int i = 1; i < static_cast<int>(row.semitones.size()); ++i) {
      if (i <= last ? row.semitones[i] <= row.semitones[i - 1] : row.semitones[i] != 0) {
        return false;
      }
    }
    return row.semitones[0] == 0;
  });
}

constexpr bool PoolSizesAreCounts() {
  for (int k = kTriade + 1; k <= kVoicing; ++k) {
    for (int g = 1; g <= kGruppen; ++g) {
      const bool exception = k == 4 && g >= 7;
      if (!exception && kGroupSizes[g][k - 4] != RowsIn(k, g)) return false;
    }
  }
  return true;
}

static_assert(kRows.size() == kKlangZahl, "kKlangZahl is the number of rows");
static_assert(StandInOrder(), "rows ascend by Klangtyp, and are counted from 1 in each");
static_assert(FirstKlang(3) == 1 && FirstKlang(4) == 11 && FirstKlang(5) == 28 &&
                  FirstKlang(6) == 51 && FirstKlang(7) == 66 && FirstKlang(8) == kErstesVoicing,
              "a chord's place is its number, which stands in lesson records and stored runs: a "
              "new chord is the last voicing, or all numbers behind it change their meaning");
static_assert(RowsIn(kVoicing) == kMeisteZeilen, "kMeisteZeilen is the number of voicings");
static_assert(HaveTheirGroups(), "a row has a group of 1 to 8, a triad 0");
static_assert(HaveTheirNotes(), "notes ascend from 0, as many as the Klangtyp has");
static_assert(PoolSizesAreCounts(), "kGroupSizes counts the rows of each group");
// The pools of Klangtyp 4 are as if one of the two rows of group 8 stood in group 7.
static_assert(kGroupSizes[7][0] == 2 && RowsIn(4, 7) == 1, "a pool size of its own");
static_assert(kGroupSizes[8][0] == 1 && RowsIn(4, 8) == 2, "a pool size of its own");

bool IsKlangtyp(int value) { return value >= kKleinsterKlangtyp && value <= kVoicing; }

std::array<Chord, kKlangZahl> MakeChords() {
  std::array<Chord, kKlangZahl> chords{};
  std::transform(kRows.begin(), kRows.end(), chords.begin(), [](const Row& row) {
    const int notes = kFacts[row.klangtyp].last_note + 1;
    return Chord{row.klangtyp, row.row, row.group, row.symbol,
                 std::span<const int>(row.semitones).first(notes)};
  });
  return chords;
}

std::span<const Row> RowsOf(int klangtyp) {
  const auto [first, last] =
      std::equal_range(kRows.begin(), kRows.end(), Row{klangtyp, 0, 0, "", {}},
                       [](const Row& a, const Row& b) { return a.klangtyp < b.klangtyp; });
  return {first, last};
}

}  // namespace

const Chord& ChordOfKlang(int klang) {
  static const std::array<Chord, kKlangZahl> chords = MakeChords();
  if (klang < 1 || klang > kKlangZahl) {
    throw RunTimeError(ErrorNumber::kOutOfRange, "no chord has the number " + std::to_string(klang),
                       "vmod17.ChordTable");
  }
  return chords[klang - 1];
}

void ChordTable::SetzeKlangZahlen() {
  for (int k = kKleinsterKlangtyp; k <= kVoicing; ++k) akk_je_typ_ar[k] = RowsIn(k);
}

void ChordTable::SetzeGruppen(int klangtyp) {
  if (!IsKlangtyp(klangtyp) || klangtyp == kTriade) return;
  for (const Row& row : RowsOf(klangtyp)) akk_gruppe_ar[klangtyp][row.row] = row.group;
  for (int g = 1; g <= kGruppen; ++g) grp_zahl_ar[klangtyp][g] = kGroupSizes[g][klangtyp - 4];
}

void ChordTable::SetzeStruktur(std::span<const int> klangtypen) {
  stimmen_ar.fill(0);
  for (const int k : klangtypen) {
    if (!IsKlangtyp(k)) continue;
    stimmen_ar[k] = kFacts[k].last_note;
    klang_spanne_ar[k] = kFacts[k].headroom;
    for (const Row& row : RowsOf(k)) {
      std::copy(row.semitones.begin(), row.semitones.end(), akk_struktur_ar[k][row.row].begin());
    }
  }
}

int ChordTable::KlangNummer(int klangtyp, int row) const {
  int nummer = row;
  for (int k = kKleinsterKlangtyp; k < klangtyp; ++k) nummer += akk_je_typ_ar[k];
  return nummer;
}

}  // namespace vmod17

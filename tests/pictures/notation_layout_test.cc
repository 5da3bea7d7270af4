// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "pictures/notation_layout.h"

#include <gmock/gmock.h>

#include <set>
#include <utility>

#include "catalogue/chord_spelling.h"

namespace vmod17 {
namespace {

using ::testing::ElementsAre;
using Pixels = std::set<std::pair<int, int>>;  // x and y

std::vector<int> Middles(const std::vector<PlacedGlyph>& glyphs) {
  std::vector<int> middles;
  middles.reserve(glyphs.size());
  for (const PlacedGlyph& glyph : glyphs) middles.push_back(glyph.middle2);
  return middles;
}

Pixels PixelsOf(const PlacedGlyph& glyph) {
  const GlyphShape shape = ShapeOf(glyph.glyph, glyph.middle2);
  Pixels pixels;
  for (int y = 0; y < shape.Height(); ++y) {
    for (int x = 0; x < shape.Width(); ++x) {
      if (shape.rows[y][x] == '#') pixels.emplace(glyph.left + x, glyph.Top() + y);
    }
  }
  return pixels;
}

Pixels PixelsOf(const LedgerLine& line) {
  Pixels pixels;
  for (int x = line.left; x < line.right; ++x) pixels.emplace(x, line.row);
  return pixels;
}

bool Touch(const Pixels& a, const Pixels& b) {
  for (const auto& [x, y] : a) {
    for (int dy = -1; dy <= 1; ++dy) {
      for (int dx = -1; dx <= 1; ++dx) {
        if (b.contains({x + dx, y + dy})) return true;
      }
    }
  }
  return false;
}

TEST(NotationLayout, PutsMiddleCOnTheFirstLedgerLineBelow) {
  const NotationLayout layout = LayOutNotation(ChordOfKlang(1));
  EXPECT_THAT(layout.staff_rows, ElementsAre(15, 23, 30, 38, 45));
  EXPECT_THAT(Middles(layout.heads), ElementsAre(2 * 53, 2 * 45, 2 * 38));
  ASSERT_EQ(layout.ledger_lines.size(), 1u);
  EXPECT_EQ(layout.ledger_lines[0].row, 53);
  EXPECT_LT(layout.ledger_lines[0].left, layout.heads[0].left);
  EXPECT_GT(layout.ledger_lines[0].right, layout.heads[0].left + 10);
}

TEST(NotationLayout, PutsHeadsInSpacesMidwayBetweenTheLines) {
  const NotationLayout layout = LayOutNotation(ChordOfKlang(8));  // C F A
  EXPECT_THAT(Middles(layout.heads), ElementsAre(2 * 53, 38 + 45, 30 + 38));
}

TEST(NotationLayout, PutsTheThirteenthOnALedgerLineAbove) {
  const NotationLayout layout = LayOutNotation(ChordOfKlang(66));
  EXPECT_EQ(layout.heads.back().middle2, 2 * 8);
  EXPECT_EQ(layout.ledger_lines.back().row, 8);
}

TEST(NotationLayout, SetsTheUpperNoteOfASecondToTheRight) {
  const NotationLayout layout = LayOutNotation(ChordOfKlang(6));  // C F G
  EXPECT_EQ(layout.heads[0].left, layout.heads[1].left);
  EXPECT_EQ(layout.heads[2].left, layout.heads[1].left + 10);
}

TEST(NotationLayout, AlternatesTheHeadsOfACluster) {
  const NotationLayout layout = LayOutNotation(ChordOfKlang(43));  // C E Gb Ab Bb
  EXPECT_EQ(layout.heads[2].left, layout.heads[4].left);
  EXPECT_EQ(layout.heads[3].left, layout.heads[2].left + 10);
}

TEST(NotationLayout, ReadsBothNinthsOfOneLetterFromTheLeft) {
  const NotationLayout layout = LayOutNotation(ChordOfKlang(69));
  const PlacedGlyph& flat_head = layout.heads[4];
  const PlacedGlyph& sharp_head = layout.heads[5];
  EXPECT_EQ(flat_head.middle2, sharp_head.middle2);
  EXPECT_EQ(sharp_head.left, flat_head.left + 10);
  int flat_left = 0;
  int sharp_left = 0;
  for (const PlacedGlyph& sign : layout.accidentals) {
    if (sign.middle2 != flat_head.middle2) continue;
    (sign.glyph == Glyph::kFlat ? flat_left : sharp_left) = sign.left;
  }
  EXPECT_GT(flat_left, 0);
  EXPECT_GT(sharp_left, flat_left);
}

TEST(NotationLayout, PutsTwoNotesOfAVoicingOnTheLowerStaff) {
  const NotationLayout layout = LayOutNotation(ChordOfKlang(71));  // C3 E3, A3 D4 G4
  EXPECT_THAT(layout.staff_rows, ElementsAre(13, 20, 28, 35, 43, 66, 73, 81, 88, 96));
  EXPECT_THAT(Middles(layout.heads), ElementsAre(81 + 88, 73 + 81, 2 * 58, 43 + 50, 2 * 35));
}

TEST(NotationLayout, DrawsAllLedgerLinesDownToAHead) {
  const NotationLayout layout = LayOutNotation(ChordOfKlang(94));  // the upper hand: Bb3 C4 Gb4
  for (const LedgerLine& line : layout.ledger_lines) EXPECT_EQ(line.row, 50);
  EXPECT_EQ(layout.ledger_lines.size(), 2u);  // under the B flat's head and through the C's
}

TEST(EveryLayout, HasAHeadForEachNoteAndASignForEachSignedOne) {
  for (int klang = 1; klang <= kKlangZahl; ++klang) {
    SCOPED_TRACE(klang);
    const NotationLayout layout = LayOutNotation(ChordOfKlang(klang));
    const Chord& chord = ChordOfKlang(klang);
    int signs = 0;
    for (const SpelledNote& note : SpellChord(chord, 4)) signs += note.accidental != 0 ? 1 : 0;
    EXPECT_EQ(layout.heads.size(), chord.semitones.size());
    EXPECT_EQ(static_cast<int>(layout.accidentals.size()), signs);
  }
}

TEST(EveryLayout, KeepsAccidentalsClearOfAllElse) {
  for (int klang = 1; klang <= kKlangZahl; ++klang) {
    SCOPED_TRACE(klang);
    const NotationLayout layout = LayOutNotation(ChordOfKlang(klang));
    for (size_t i = 0; i < layout.accidentals.size(); ++i) {
      const Pixels sign = PixelsOf(layout.accidentals[i]);
      for (const PlacedGlyph& head : layout.heads) {
        EXPECT_LT(layout.accidentals[i].left, head.left);
        EXPECT_FALSE(Touch(sign, PixelsOf(head)));
      }
      for (const LedgerLine& line : layout.ledger_lines) EXPECT_FALSE(Touch(sign, PixelsOf(line)));
      for (size_t j = 0; j < i; ++j) {
        EXPECT_FALSE(Touch(sign, PixelsOf(layout.accidentals[j])));
      }
    }
  }
}

TEST(EveryLayout, NeverLaysOneHeadOverAnother) {
  for (int klang = 1; klang <= kKlangZahl; ++klang) {
    SCOPED_TRACE(klang);
    const NotationLayout layout = LayOutNotation(ChordOfKlang(klang));
    for (size_t i = 0; i < layout.heads.size(); ++i) {
      for (size_t j = 0; j < i; ++j) {
        const Pixels other = PixelsOf(layout.heads[j]);
        for (const auto& pixel : PixelsOf(layout.heads[i])) EXPECT_FALSE(other.contains(pixel));
      }
    }
  }
}

TEST(EveryLayout, StaysWithinThePicture) {
  for (int klang = 1; klang <= kKlangZahl; ++klang) {
    SCOPED_TRACE(klang);
    const NotationLayout layout = LayOutNotation(ChordOfKlang(klang));
    std::vector<PlacedGlyph> all = layout.heads;
    all.insert(all.end(), layout.accidentals.begin(), layout.accidentals.end());
    for (const PlacedGlyph& glyph : all) {
      for (const auto& [x, y] : PixelsOf(glyph)) {
        EXPECT_TRUE(x > 0 && x < 84 && y > 0 && y < layout.height - 1) << x << ' ' << y;
      }
    }
  }
}

}  // namespace
}  // namespace vmod17

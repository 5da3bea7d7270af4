// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "pictures/notation_layout.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>

#include "catalogue/chord_spelling.h"

namespace vmod17 {
namespace {

constexpr int kHeadLeft = 40;  // of the column in which the heads stand
constexpr int kHeadWidth = 10;
constexpr int kLedgerOverhang = 3;  // of a ledger line on either side of its head
constexpr int kColumnStep = 5;      // at least, between accidentals: less looks like a slip
constexpr int kLeftHandNotes = 2;

constexpr int kStepE4 = 4 * 7 + 2;  // the lowest line in the treble reading
constexpr int kStepG2 = 2 * 7 + 4;  // and in the bass reading

int FloorHalf(int value) { return (value - (value < 0 ? 1 : 0)) / 2; }

/// Five lines and what they mean.
struct Staff {
  std::array<int, 5> rows;  // of the lines, from the top
  int lowest_step;          // of the lowest line

  /// Row of a line counted from the lowest; ledger lines go on in the same alternation.
  int RowOfLine(int line) const {
    constexpr int kTwoSpaces = 15;
    int row = 0;
    for (; line < 0; line += 2) row += kTwoSpaces;
    for (; line > 4; line -= 2) row -= kTwoSpaces;
    return row + rows[4 - line];
  }

  int Middle2(int step) const {
    const int place = step - lowest_step;
    return RowOfLine(FloorHalf(place)) + RowOfLine(FloorHalf(place + 1));
  }

  /// The ledger lines that a head needs, as line numbers.
  std::vector<int> LedgerLines(int step) const {
    const int place = step - lowest_step;
    std::vector<int> lines;
    for (int line = -1; 2 * line >= place; --line) lines.push_back(line);
    for (int line = 5; 2 * line <= place; ++line) lines.push_back(line);
    return lines;
  }
};

constexpr Staff kOneStaff = {{15, 23, 30, 38, 45}, kStepE4};
constexpr Staff kUpperStaff = {{13, 20, 28, 35, 43}, kStepE4};
constexpr Staff kLowerStaff = {{66, 73, 81, 88, 96}, kStepG2};

/// The black pixels so far, without the staff lines: those may be touched.
class Ink {
 public:
  explicit Ink(int height) : rows_(height, std::string(kNotationWidth, '.')) {}

  void Add(const PlacedGlyph& glyph) {
    ForEachPixel(glyph, [this](int x, int y) { rows_[y][x] = '#'; });
  }

  void Add(const LedgerLine& line) {
    std::fill(rows_[line.row].begin() + line.left, rows_[line.row].begin() + line.right, '#');
  }

  /// Whether a pixel of `glyph` lies on black or beside it.
  bool Touches(const PlacedGlyph& glyph) const {
    bool touches = false;
    ForEachPixel(glyph, [&](int x, int y) {
      for (int dy = -1; dy <= 1; ++dy) {
        for (int dx = -1; dx <= 1; ++dx) touches = touches || IsBlack(x + dx, y + dy);
      }
    });
    return touches;
  }

 private:
  bool IsBlack(int x, int y) const {
    return y >= 0 && y < static_cast<int>(rows_.size()) && x >= 0 && x < kNotationWidth &&
           rows_[y][x] == '#';
  }

  template <typename Visit>
  void ForEachPixel(const PlacedGlyph& glyph, Visit visit) const {
    const GlyphShape shape = ShapeOf(glyph.glyph, glyph.middle2);
    for (int y = 0; y < shape.Height(); ++y) {
      for (int x = 0; x < shape.Width(); ++x) {
        if (shape.rows[y][x] == '#') visit(glyph.left + x, glyph.Top() + y);
      }
    }
  }

  std::vector<std::string> rows_;
};

void RequireInside(const std::vector<PlacedGlyph>& glyphs, int height) {
  for (const PlacedGlyph& g : glyphs) {
    const GlyphShape shape = ShapeOf(g.glyph, g.middle2);
    if (g.left < 1 || g.left + shape.Width() >= kNotationWidth || g.Top() < 1 ||
        g.Top() + shape.Height() >= height) {
      throw std::logic_error("a chord does not fit its picture");
    }
  }
}

void PlaceHeads(const Staff& staff, const std::vector<SpelledNote>& notes, NotationLayout& layout) {
  bool beside = false;  // whether the head before stands right of the column
  for (size_t i = 0; i < notes.size(); ++i) {
    const int step = notes[i].StaffStep();
    beside = i > 0 && step - notes[i - 1].StaffStep() <= 1 && !beside;
    const int left = kHeadLeft + (beside ? kHeadWidth : 0);
    layout.heads.push_back({Glyph::kHead, left, staff.Middle2(step)});
    for (const int line : staff.LedgerLines(step)) {
      layout.ledger_lines.push_back(
          {left - kLedgerOverhang, left + kHeadWidth + kLedgerOverhang, staff.RowOfLine(line)});
    }
  }
  layout.staff_rows.insert(layout.staff_rows.end(), staff.rows.begin(), staff.rows.end());
}

Glyph GlyphOf(int accidental) {
  if (accidental > 0) return Glyph::kSharp;
  return accidental == -1 ? Glyph::kFlat : Glyph::kDoubleFlat;
}

/// The accidentals, from the outermost inwards by turns: the highest, the lowest, the next.
std::vector<PlacedGlyph> AccidentalsFromOutside(const std::vector<SpelledNote>& notes,
                                                const NotationLayout& layout) {
  std::vector<PlacedGlyph> upwards;
  for (size_t i = 0; i < notes.size(); ++i) {
    if (notes[i].accidental == 0) continue;
    upwards.push_back({GlyphOf(notes[i].accidental), 0, layout.heads[i].middle2});
  }
  std::vector<PlacedGlyph> result;
  while (!upwards.empty()) {
    result.push_back(upwards.back());
    upwards.pop_back();
    if (upwards.empty()) break;
    result.push_back(upwards.front());
    upwards.erase(upwards.begin());
  }
  return result;
}

using Column = std::vector<PlacedGlyph>;

/// Moves a column as a whole so that its right edge is at `right`.
Column AlignedAt(int right, Column column) {
  for (PlacedGlyph& glyph : column) {
    glyph.left = right - ShapeOf(glyph.glyph, glyph.middle2).Width();
  }
  return column;
}

bool FitsInto(const Column& column, const PlacedGlyph& glyph, int height) {
  Ink ink(height);
  for (const PlacedGlyph& other : AlignedAt(kHeadLeft, column)) ink.Add(other);
  return !ink.Touches(AlignedAt(kHeadLeft, {glyph})[0]);
}

void PlaceAccidentals(const std::vector<SpelledNote>& notes, NotationLayout& layout) {
  std::vector<Column> columns;  // from the heads to the left
  for (const PlacedGlyph& glyph : AccidentalsFromOutside(notes, layout)) {
    auto column = std::find_if(columns.begin(), columns.end(),
                               [&](const Column& c) { return FitsInto(c, glyph, layout.height); });
    if (column == columns.end()) column = columns.insert(column, Column());
    column->push_back(glyph);
  }
  Ink ink(layout.height);
  for (const PlacedGlyph& head : layout.heads) ink.Add(head);
  for (const LedgerLine& line : layout.ledger_lines) ink.Add(line);
  int right = kHeadLeft + kColumnStep;
  for (Column& column : columns) {
    const auto touches = [&ink](const PlacedGlyph& glyph) { return ink.Touches(glyph); };
    right -= kColumnStep;
    column = AlignedAt(right, column);
    while (std::any_of(column.begin(), column.end(), touches)) {
      column = AlignedAt(--right, column);
    }
    RequireInside(column, layout.height);
    for (const PlacedGlyph& glyph : column) ink.Add(glyph);
    layout.accidentals.insert(layout.accidentals.end(), column.begin(), column.end());
  }
}

}  // namespace

NotationLayout LayOutNotation(const Chord& chord) {
  const bool voicing = chord.klangtyp == kVoicing;
  NotationLayout layout{};
  layout.height = voicing ? kGrandStaffHeight : kOneStaffHeight;
  const std::vector<SpelledNote> notes = SpellChord(chord, voicing ? 3 : 4);
  if (voicing) {
    PlaceHeads(kLowerStaff, {notes.begin(), notes.begin() + kLeftHandNotes}, layout);
    PlaceHeads(kUpperStaff, {notes.begin() + kLeftHandNotes, notes.end()}, layout);
    std::sort(layout.staff_rows.begin(), layout.staff_rows.end());
  } else {
    PlaceHeads(kOneStaff, notes, layout);
  }
  RequireInside(layout.heads, layout.height);
  PlaceAccidentals(notes, layout);
  return layout;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <vector>

#include "catalogue/chord_table.h"
#include "pictures/glyph_shapes.h"

namespace vmod17 {

inline constexpr int kNotationWidth = 85;
inline constexpr int kOneStaffHeight = 60;
inline constexpr int kGrandStaffHeight = 110;

/// A sign in its place, in pixels of the smallest size.
struct PlacedGlyph {
  Glyph glyph;
  int left;
  int middle2;  ///< the note's middle in half pixels below the top of the picture, see ShapeOf

  int Top() const { return middle2 / 2 - ShapeOf(glyph, middle2).above; }
};

struct LedgerLine {
  int left;
  int right;  ///< the first column after it
  int row;
};

/// A chord in notation, laid out in pixels of the smallest size; the larger ones multiply.
struct NotationLayout {
  int height;                   ///< the width is kNotationWidth
  std::vector<int> staff_rows;  ///< of the staff lines, from the top
  std::vector<LedgerLine> ledger_lines;
  std::vector<PlacedGlyph> heads;        ///< in the order of the chord's notes
  std::vector<PlacedGlyph> accidentals;  ///< no two touch each other, a head or a ledger line
};

/// Lays a chord out: on one staff in the treble reading, or a two-hand voicing on a grand staff
/// with two notes below. Errors: std::logic_error when it does not fit the picture.
NotationLayout LayOutNotation(const Chord& chord);

}  // namespace vmod17

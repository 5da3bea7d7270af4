// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <span>
#include <string_view>

namespace vmod17 {

/// The signs of the notation pictures.
enum class Glyph { kHead, kFlat, kSharp, kDoubleFlat };

/// A sign at the smallest size, pixel by pixel: an outline that is merely filled above a threshold
/// comes out ragged when a staff space is seven pixels high, so here each pixel is set on purpose.
struct GlyphShape {
  std::span<const std::string_view> rows;  ///< from the top, of one width; '#' black, '.' nothing
  int above;                               ///< rows over the row of the note's middle

  int Width() const { return static_cast<int>(rows[0].size()); }
  int Height() const { return static_cast<int>(rows.size()); }
};

/// The shape of `glyph` for a note whose middle is `middle2` half pixels from the picture's top: a
/// whole row on a staff line, but between two rows in every other space. `above` counts from the
/// upper of the two.
GlyphShape ShapeOf(Glyph glyph, int middle2);

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "pictures/glyph_shapes.h"

#include <array>

namespace vmod17 {
namespace {

using namespace std::string_view_literals;

constexpr std::array kHeadOfSevenRows = {
    "....#####."sv,  //
    "..###...##"sv,  //
    ".##.....##"sv,  //
    "##......##"sv,  // middle
    "##.....##."sv,  //
    "##...###.."sv,  //
    ".#####...."sv,
};

// For a space that has six rows between its lines: a seventh would sink into a line.
constexpr std::array kHeadOfSixRows = {
    "....#####."sv,  //
    "..###...##"sv,  //
    ".##.....##"sv,  // the middle lies under this row
    "##.....##."sv,  //
    "##...###.."sv,  //
    ".#####...."sv,
};

constexpr std::array kFlat = {
    "#....."sv,  //
    "#....."sv,  //
    "#....."sv,  //
    "#....."sv,  //
    "#....."sv,  //
    "#....."sv,  //
    "#....."sv,  //
    "#.###."sv,  //
    "##..##"sv,  //
    "#...##"sv,  //
    "#...##"sv,  // middle
    "#..##."sv,  //
    "#.##.."sv,  //
    "##...."sv,
};

constexpr std::array kSharp = {
    ".....#.."sv,  //
    ".....#.."sv,  //
    "..#..#.."sv,  //
    "..#..#.."sv,  //
    "..#..###"sv,  //
    "..######"sv,  //
    "######.."sv,  //
    "###..#.."sv,  //
    "..#..#.."sv,  //
    "..#..#.."sv,  // middle
    "..#..#.."sv,  //
    "..#..###"sv,  //
    "..######"sv,  //
    "######.."sv,  //
    "###..#.."sv,  //
    "..#..#.."sv,  //
    "..#..#.."sv,  //
    "..#....."sv,  //
    "..#....."sv,
};

constexpr std::array kDoubleFlat = {
    "#....#....."sv,  //
    "#....#....."sv,  //
    "#....#....."sv,  //
    "#....#....."sv,  //
    "#....#....."sv,  //
    "#....#....."sv,  //
    "#....#....."sv,  //
    "#.##.#.###."sv,  //
    "##..###..##"sv,  //
    "#...##...##"sv,  //
    "#...##...##"sv,  // middle
    "#..###..##."sv,  //
    "#.##.#.##.."sv,  //
    "##...##...."sv,
};

}  // namespace

GlyphShape ShapeOf(Glyph glyph, int middle2) {
  const bool between_rows = middle2 % 2 != 0;
  switch (glyph) {
    case Glyph::kHead:
      return between_rows ? GlyphShape{kHeadOfSixRows, 2} : GlyphShape{kHeadOfSevenRows, 3};
    case Glyph::kFlat:
      return {kFlat, 10};
    case Glyph::kSharp:
      return {kSharp, 9};
    case Glyph::kDoubleFlat:
      return {kDoubleFlat, 10};
  }
  return {};
}

}  // namespace vmod17

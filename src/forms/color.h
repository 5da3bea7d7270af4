// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

namespace vmod17 {

/// An RGB colour, each part 0 to 255.
struct Color {
  int red = 0;
  int green = 0;
  int blue = 0;
  bool operator==(const Color&) const = default;
};

constexpr Color Rgb(int red, int green, int blue) { return {red, green, blue}; }
/// A colour from its hexadecimal value in blue-green-red order.
constexpr Color Bgr(int value) { return {value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF}; }

namespace Colors {
inline constexpr Color kBlack = Rgb(0, 0, 0);
inline constexpr Color kWhite = Rgb(255, 255, 255);
inline constexpr Color kRed = Rgb(255, 0, 0);
inline constexpr Color kGrey = Rgb(192, 192, 192);
inline constexpr Color kYellow = Rgb(255, 255, 0);
inline constexpr Color kMagenta = Rgb(255, 0, 255);
}  // namespace Colors

}  // namespace vmod17

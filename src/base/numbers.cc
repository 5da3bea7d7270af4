// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "base/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

#include "base/run_time_error.h"

namespace vmod17 {

int RoundHalfEven(double value) {
  const double below = std::floor(value);
  const double rest = value - below;
  const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(below, 2.0) != 0.0);
  return static_cast<int>(below + (up ? 1 : 0));
}

std::string DecimalText(int value) { return std::to_string(value); }

std::string SignedText(int value) { return (value < 0 ? "" : " ") + DecimalText(value); }

std::string SingleText(float value) {
  std::array<char, 200> text{};  // the smallest Single has 149 decimals
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
  return {text.data(), end.ptr};
}

std::string PaddedText(int value, int digits) {
  const std::string text = DecimalText(value);
  const auto wanted = static_cast<std::size_t>(digits);
  return text.size() >= wanted ? text.substr(text.size() - wanted)
                               : std::string(wanted - text.size(), '0') + text;
}

int LeadingNumber(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t");
  if (start == std::string_view::npos) return 0;
  text.remove_prefix(start);
  const bool negative = text.front() == '-';
  if (negative || text.front() == '+') text.remove_prefix(1);
  // Only digits and a full stop, so that no "inf" and no second sign is taken for a number.
  text = text.substr(0, text.find_first_not_of("0123456789."));
  double value = 0;
  const auto result =
      std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
  if (result.ec == std::errc::invalid_argument) return 0;
  constexpr int kLow = std::numeric_limits<std::int16_t>::min();
  constexpr int kHigh = std::numeric_limits<std::int16_t>::max();
  constexpr double kFarBeyond = 1e6;  // still an int when rounded
  const double cut = result.ec == std::errc() ? std::min(value, kFarBeyond) : kFarBeyond;
  const int rounded = RoundHalfEven(negative ? -cut : cut);
  if (rounded < kLow || rounded > kHigh) {
    throw RunTimeError(ErrorNumber::kOutOfRange, "a number does not fit into 16 bits",
                       "vmod17.LeadingNumber");
  }
  return rounded;
}

}  // namespace vmod17

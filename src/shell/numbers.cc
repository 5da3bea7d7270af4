// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/run_time_error.h"

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
  std::array<char, 48> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value);
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
  if (text.front() == '+') text.remove_prefix(1);
  double value = 0;
  const auto result =
      std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
  if (result.ec == std::errc::invalid_argument) return 0;
  constexpr double kLow = std::numeric_limits<short>::min();
  constexpr double kHigh = std::numeric_limits<short>::max();
  // The negation catches what is not a number at all.
  if (result.ec != std::errc() || !(value >= kLow && value <= kHigh)) {
    throw RunTimeError(ErrorNumber::kOutOfRange, "a number does not fit into 16 bits",
                       "vmod17.LeadingNumber");
  }
  return RoundHalfEven(value);
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <algorithm>
#include <cmath>
#include <string>

#include "forms/text_measure.h"

namespace vmod17 {

/// Measures in a type whose letters are all equally wide.
class EvenMeasure : public TextMeasure {
 public:
  double Width(const std::string& text, double type, Weight weight) const override {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) return 0;
    const std::string whole = text.substr(first, text.find_last_not_of(' ') - first + 1);
    const auto letters = std::ranges::count_if(whole, [](char c) { return (c & 0xC0) != 0x80; });
    return static_cast<double>(letters) * type * (weight == Weight::kBold ? 0.6 : 0.55);
  }
  double Height(const std::string& text, double type, double width) const override {
    constexpr double kLine = 1.4;
    return std::max(1.0, std::ceil(Width(text, type, Weight::kNormal) / width)) * kLine * type;
  }
};

}  // namespace vmod17

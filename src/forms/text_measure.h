// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>

namespace vmod17 {

enum class Weight { kNormal, kBold };

/// Tells how much room a text takes in the program's type. All lengths are units, also the height
/// of the type.
class TextMeasure {
 public:
  virtual ~TextMeasure() = default;
  /// The width of a text in one line, without the blanks at its ends.
  virtual double Width(const std::string& text, double type, Weight weight) const = 0;
  /// The height of a text in normal weight that is broken into lines of a width.
  virtual double Height(const std::string& text, double type, double width) const = 0;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "forms/text_measure.h"

namespace vmod17 {

/// Measures in the program's font, at one pixel a unit.
class FontMeasure : public TextMeasure {
 public:
  double Width(const std::string& text, double type, Weight weight) const override;
  double Height(const std::string& text, double type, double width) const override;
};

}  // namespace vmod17

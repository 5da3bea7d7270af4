// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>

#include "base/tagged_value.h"

namespace vmod17 {

/// The two records of a training with 24 chords, as long as a run writes them, all of whose
/// elements tell their number: what is torn within a record or between the two shows.
inline TaggedValue::Array NumberedSettings(int number) {
  constexpr int kOptions = 16;
  constexpr int kTexts = 41;
  const std::string digits = std::to_string(number);
  TaggedValue::Array settings(kOptions, digits);
  for (int i = 0; i < kTexts; ++i) {
    settings.emplace_back("Septakkord mit großer None " + std::to_string(i) + '/' + digits);
  }
  return settings;
}

inline TaggedValue::Array NumberedState(int number) {
  constexpr int kElements = 222;
  TaggedValue::Array state = {"true"};
  for (int i = 1; i < kElements; ++i) state.emplace_back(std::to_string(number + i));
  return state;
}

}  // namespace vmod17

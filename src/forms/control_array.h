// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/run_time_error.h"

namespace vmod17 {

class Form;

/// The controls of one name, by index.
template <typename Kind>
class ControlArray {
 public:
  /// One control for each of `indexes`, which ascend from 0 or more; further arguments go to each.
  template <typename... Args>
  ControlArray(Form& form, const std::string& name, const std::vector<int>& indexes, Args... args)
      : indexes_(indexes), controls_(indexes.empty() ? 0 : indexes.back() + 1) {
    for (const int i : indexes) controls_[i] = std::make_unique<Kind>(form, name, i, args...);
  }
  /// One control for each index from `first` to `last`.
  template <typename... Args>
  ControlArray(Form& form, const std::string& name, int first, int last, Args... args)
      : ControlArray(form, name, Sequence(first, last), args...) {}

  const std::vector<int>& indexes() const { return indexes_; }
  int first() const { return indexes_.front(); }
  int last() const { return indexes_.back(); }
  /// Errors: RunTimeError kNoSuchElement.
  Kind& operator[](int index) const {
    if (index < 0 || index >= static_cast<int>(controls_.size()) || !controls_[index]) {
      throw RunTimeError(ErrorNumber::kNoSuchElement, "no control " + std::to_string(index),
                         "vmod17.ControlArray");
    }
    return *controls_[index];
  }

 private:
  static std::vector<int> Sequence(int first, int last) {
    std::vector<int> indexes;
    for (int i = first; i <= last; ++i) indexes.push_back(i);
    return indexes;
  }

  std::vector<int> indexes_;
  std::vector<std::unique_ptr<Kind>> controls_;  // by index; null where the array has a gap
};

}  // namespace vmod17

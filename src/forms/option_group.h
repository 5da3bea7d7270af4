// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/run_time_error.h"
#include "forms/control.h"

namespace vmod17 {

class OptionGroup;

/// One option of an `OptionGroup`.
class Option : public Control {
 public:
  Option(Form& form, const std::string& name, int index, OptionGroup& group)
      : Control(form, name, index), group_(group) {}
  Kind kind() const override { return Kind::kOption; }

  /// The group through which it is checked.
  OptionGroup& group() const { return group_; }

 private:
  OptionGroup& group_;
};

/// Options of one name of which one at the most is checked.
class OptionGroup {
 public:
  /// Options `first` to `last`; none is checked if `checked` is none of them.
  OptionGroup(Form& form, const std::string& name, int first, int last, int checked)
      : first_(first), chosen_(checked) {
    for (int i = first; i <= last; ++i) {
      options_.push_back(std::make_unique<Option>(form, name, i, *this));
    }
  }
  OptionGroup(const OptionGroup&) = delete;
  OptionGroup& operator=(const OptionGroup&) = delete;

  std::function<void(int index)> Click;
  /// What the handler sets; none if it sets no such value. A screen that is opened anew may find
  /// another value in it than the option that it shows.
  const int* field = nullptr;

  Option& operator[](int index) const {
    if (index < first() || index > last()) {
      throw RunTimeError(ErrorNumber::kNoSuchElement, "no option " + std::to_string(index),
                         "vmod17.OptionGroup");
    }
    return *options_[index - first_];
  }
  int first() const { return first_; }
  int last() const { return first_ + static_cast<int>(options_.size()) - 1; }
  int chosen() const { return chosen_; }

  /// Checks an option and runs its handler, also if it stood checked. Errors: kNoSuchElement.
  void Check(int index) {
    (*this)[index];
    chosen_ = index;
    if (Click) Click(index);
  }
  /// The user checks an option; one that stands checked stays so without an event, unless its field
  /// says otherwise.
  bool Choose(int index) {
    if (!(*this)[index].Reachable()) return false;
    if (index != chosen_ || (field != nullptr && *field != index)) Check(index);
    return true;
  }

 private:
  int first_;
  int chosen_;
  std::vector<std::unique_ptr<Option>> options_;
};

}  // namespace vmod17

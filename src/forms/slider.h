// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <string>
#include <utility>

#include "forms/control.h"

namespace vmod17 {

/// A value that the user slides between two bounds.
class Slider : public Control {
 public:
  Slider(Form& form, std::string name, int low, int high)
      : Control(form, std::move(name)), low_(low), high_(high), value_(low) {}
  Kind kind() const override { return Kind::kSlider; }

  std::function<void()> Change;

  int low() const { return low_; }
  int high() const { return high_; }
  int value() const { return value_; }
  /// Sets the value, kept within the bounds, and runs the handler.
  void Set(int value) {
    value_ = value < low_ ? low_ : value > high_ ? high_ : value;
    if (Change) Change();
  }
  /// The user moves it. Returns whether it could be reached.
  bool Slide(int value) {
    if (!Reachable()) return false;
    Set(value);
    return true;
  }

 private:
  int low_;
  int high_;
  int value_;
};

}  // namespace vmod17

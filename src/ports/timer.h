// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <string>
#include <utility>

#include "forms/control.h"
#include "forms/form.h"
#include "ports/event_loop.h"

namespace vmod17 {

/// A timer of a form. Its handler is delivered each time the interval has passed, as long as it is
/// armed; a form that is unloaded disarms its timers for good.
class Timer : public Control {
 public:
  Timer(Form& form, EventLoop& loop, std::string name, int interval_ms)
      : Control(form, std::move(name)), interval(interval_ms), loop_(loop) {
    visible = false;
    enabled = false;
  }
  ~Timer() override { Disable(); }
  Kind kind() const override { return Kind::kUnseen; }

  std::function<void()> Fire;
  int interval;  ///< milliseconds; a change counts from the next `Enable`

  void Enable() {
    if (enabled || !form().loaded()) return;
    enabled = true;
    running_ = loop_.StartTimer(interval, EventLoop::Repeat::kAlways, [this] {
      if (enabled && Fire) Fire();
    });
  }
  void Disable() {
    if (enabled) loop_.StopTimer(running_);
    enabled = false;
  }
  void OutOfReach() override { Disable(); }

 private:
  EventLoop& loop_;
  int running_ = 0;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "ports/event_loop.h"

namespace vmod17 {

/// A loop whose time moves only when a test or a wait moves it.
class SimulatedLoop : public EventLoop {
 public:
  /// `clock` in seconds since midnight.
  explicit SimulatedLoop(double clock = 10 * 3600) : clock_at_start_(clock) {}

  /// Called at each yield and at each wait, as if the user acted in that moment.
  std::function<void()> meanwhile;
  /// Called after each delivered event, and before each wait: it is then that a view looks at the
  /// screens.
  std::function<void()> after_event;
  /// What `Now` tells; it does not move by itself.
  DateTime date{2026, 11, 21, 14, 3, 22};

  /// Lets time pass and delivers what becomes due. Call it only where no handler runs.
  void Advance(double ms) {
    const std::int64_t target = now_ + Ticks(ms);
    RunIdle();
    while (DeliverNext(target)) RunIdle();
    now_ = std::max(now_, target);  // a handler may have waited past it
  }

  /// Lets time pass in which nothing is delivered, as in a process that is stopped.
  void Sleep(double ms) { now_ += Ticks(ms); }

  /// Milliseconds since the loop was made.
  double Elapsed() const { return static_cast<double>(now_) / kTicksPerMs; }
  int yields() const { return yields_; }
  int timers() const { return static_cast<int>(timers_.size()); }

  int StartTimer(int ms, Repeat repeat, Handler handler) override {
    const std::int64_t interval = std::max<std::int64_t>(1, Ticks(ms));
    timers_[++last_timer_] = {now_ + interval, repeat == Repeat::kAlways ? interval : 0,
                              std::move(handler)};
    return last_timer_;
  }
  void StopTimer(int timer) override { timers_.erase(timer); }
  void Post(Handler handler) override { posted_.push_back(std::move(handler)); }
  void WhenIdle(Handler handler) override { idle_.push_back(std::move(handler)); }

  void Yield() override {
    ++yields_;
    if (after_event) after_event();
    if (meanwhile) meanwhile();
    while (DeliverNext(now_)) {
    }
  }
  void WaitForEvent(double ms) override {
    if (after_event) after_event();
    if (meanwhile) meanwhile();
    // A wait always moves time, however little is left, as sleeping does.
    const std::int64_t deadline = now_ + std::max<std::int64_t>(1, Ticks(ms));
    if (!DeliverNext(deadline)) now_ = deadline;
  }

  float Clock() const override {
    constexpr double kDay = 86400;
    return static_cast<float>(std::fmod(clock_at_start_ + Elapsed() / 1000, kDay));
  }
  DateTime Now() const override { return date; }

 private:
  static constexpr double kTicksPerMs = 1000;

  struct Armed {
    std::int64_t due;
    std::int64_t interval;  // 0 for once
    Handler handler;
  };

  static std::int64_t Ticks(double ms) {
    return static_cast<std::int64_t>(std::ceil(ms * kTicksPerMs));
  }

  /// Delivers the next event that is due up to `target`, and moves time to it.
  bool DeliverNext(std::int64_t target) {
    if (!posted_.empty()) {
      const Handler handler = std::move(posted_.front());
      posted_.erase(posted_.begin());
      Deliver(handler);
      return true;
    }
    const auto next =
        std::min_element(timers_.begin(), timers_.end(),
                         [](const auto& a, const auto& b) { return a.second.due < b.second.due; });
    if (next == timers_.end() || next->second.due > target) return false;
    now_ = std::max(now_, next->second.due);
    const Handler handler = next->second.handler;
    if (next->second.interval == 0) {
      timers_.erase(next);
    } else {
      next->second.due += next->second.interval;
    }
    Deliver(handler);
    return true;
  }

  void Deliver(const Handler& handler) const {
    handler();
    if (after_event) after_event();
  }

  void RunIdle() {
    for (const Handler& handler : std::exchange(idle_, {})) handler();
  }

  double clock_at_start_;
  std::int64_t now_ = 0;
  int last_timer_ = 0;
  int yields_ = 0;
  std::map<int, Armed> timers_;
  std::vector<Handler> posted_;
  std::vector<Handler> idle_;
};

}  // namespace vmod17

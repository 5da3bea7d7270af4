// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <chrono>
#include <exception>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "ports/event_loop.h"

class QTimer;

namespace vmod17 {

/// The event loop of the program's one thread. A QCoreApplication must exist before it and outlive
/// it.
///
/// Whatever reaches the program goes through `Deliver`: timers, posted handlers, and the user's
/// actions, which the widgets hand in. So there is one place that catches errors, counts how deep
/// handlers stand in each other, and has the view refreshed.
class QtEventLoop : public EventLoop {
 public:
  /// `start_seconds`  what `Clock` shows at the moment of construction, 0 <= x < 86400
  explicit QtEventLoop(double start_seconds = SecondsSinceMidnight());
  ~QtEventLoop() override;
  QtEventLoop(const QtEventLoop&) = delete;
  QtEventLoop& operator=(const QtEventLoop&) = delete;

  /// Takes an exception that left a handler. Without it such an exception ends the process.
  std::function<void(std::exception_ptr)> on_error;
  /// Called after each delivered handler and at each `Yield` and `WaitForEvent`: the view's
  /// refresh.
  std::function<void()> after_event;

  int StartTimer(int ms, Repeat repeat, Handler handler) override;
  void StopTimer(int timer) override;
  void Post(Handler handler) override;
  void WhenIdle(Handler handler) override;
  void Yield() override;
  void WaitForEvent(double ms) override;
  float Clock() const override;
  DateTime Now() const override;

  /// Runs a handler as an event of the program. Program's thread only.
  void Deliver(const Handler& handler);
  /// How many handlers stand in each other at the moment; 0 outside of all.
  int depth() const { return depth_; }

  /// Serves events until `Quit`; returns at once when it was called before.
  void Run();
  void Quit();

  /// The local time of day in seconds, from the system's clock.
  static double SecondsSinceMidnight();

 private:
  void Call(const Handler& handler);
  void RunIdleHandlers();
  void Fire(int timer, Repeat repeat);

  struct RunningTimer {
    std::unique_ptr<QTimer> timer;
    std::shared_ptr<const Handler> handler;
  };

  QObject receiver_;
  std::unordered_map<int, RunningTimer> timers_;
  int last_timer_ = 0;
  std::vector<Handler> idle_;
  int depth_ = 0;
  unsigned delivered_ = 0;
  bool running_ = false;
  bool quit_ = false;
  double start_seconds_;
  std::chrono::steady_clock::time_point start_;
};

}  // namespace vmod17

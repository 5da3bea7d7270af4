// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>

namespace vmod17 {

struct DateTime {
  int year = 0;   ///< four digits
  int month = 0;  ///< 1 to 12
  int day = 0;    ///< 1 to 31
  int hour = 0;
  int minute = 0;
  int second = 0;
};

/// The program's one thread and its time: timers, waiting, the clock.
class EventLoop {
 public:
  using Handler = std::function<void()>;
  enum class Repeat { kOnce, kAlways };

  virtual ~EventLoop() = default;

  /// Delivers `handler` after `ms` milliseconds, once or every time they have passed again.
  /// Returns a number above 0 for `StopTimer`.
  virtual int StartTimer(int ms, Repeat repeat, Handler handler) = 0;
  /// Stops a timer; its handler is not delivered any more. An unknown number does nothing.
  virtual void StopTimer(int timer) = 0;

  /// Delivers `handler` on the program's thread as soon as it is free. The one member that may be
  /// called from any thread.
  virtual void Post(Handler handler) = 0;

  /// Delivers `handler` when no other handler is running any more, not even one that waits: the
  /// time to release what a running handler may still stand in.
  virtual void WhenIdle(Handler handler) = 0;

  /// Delivers what is due now, and returns.
  virtual void Yield() = 0;
  /// Sleeps until something was delivered or `ms` milliseconds have passed.
  virtual void WaitForEvent(double ms) = 0;

  /// Seconds since midnight. It runs evenly: a change of the system's clock does not move it, and
  /// it starts again at 0 when a day of 86400 seconds is over.
  virtual float Clock() const = 0;
  /// Date and time of day as the system tells them.
  virtual DateTime Now() const = 0;
};

/// Seconds from `start` to `end`, two values of `EventLoop::Clock`. A difference below 0 means that
/// midnight passed between them.
inline float ClockDifference(float start, float end) {
  const float difference = end - start;
  return difference < 0 ? difference + 86400.0f : difference;
}

}  // namespace vmod17

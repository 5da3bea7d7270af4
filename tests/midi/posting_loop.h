// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <utility>

#include "ports/event_loop.h"

namespace vmod17 {

/// An event loop with nothing but posted handlers, which the test delivers.
class PostingLoop : public EventLoop {
 public:
  void Post(Handler handler) override {
    const std::lock_guard lock(mutex_);
    posted_.push_back(std::move(handler));
    wake_.notify_one();
  }

  /// Delivers what was posted until now, and what that posts.
  void Yield() override {
    while (Handler handler = Take()) handler();
  }

  /// Delivers, waiting for other threads to post, until `done` holds.
  void DeliverUntil(const std::function<bool()>& done) {
    while (!done()) {
      {
        std::unique_lock lock(mutex_);
        wake_.wait(lock, [this] { return !posted_.empty(); });
      }
      Yield();
    }
  }

  int StartTimer(int, Repeat, Handler) override { return 1; }
  void StopTimer(int) override {}
  void WhenIdle(Handler handler) override { Post(std::move(handler)); }
  void WaitForEvent(double) override { Yield(); }
  float Clock() const override { return 0; }
  DateTime Now() const override { return {}; }

 private:
  Handler Take() {
    const std::lock_guard lock(mutex_);
    if (posted_.empty()) return nullptr;
    Handler handler = std::move(posted_.front());
    posted_.pop_front();
    return handler;
  }

  std::mutex mutex_;
  std::condition_variable wake_;
  std::deque<Handler> posted_;
};

}  // namespace vmod17

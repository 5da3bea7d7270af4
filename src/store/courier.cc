// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/courier.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace vmod17 {

struct Courier::Road {
  std::mutex mutex;
  std::condition_variable changed;
  std::deque<std::function<void()>> errands;
  bool let_go = false;
};

Courier::Courier() : road_(std::make_shared<Road>()) {
  std::thread([road = road_] {
    for (;;) {
      std::unique_lock lock(road->mutex);
      road->changed.wait(lock, [&] { return !road->errands.empty() || road->let_go; });
      if (road->errands.empty()) return;
      std::function<void()> errand = std::move(road->errands.front());
      road->errands.pop_front();
      lock.unlock();
      errand();
    }
  }).detach();
}

Courier::~Courier() {
  const std::lock_guard lock(road_->mutex);
  road_->let_go = true;
  road_->changed.notify_one();
}

void Courier::Queue(std::function<void()> errand) {
  const std::lock_guard lock(road_->mutex);
  road_->errands.push_back(std::move(errand));
  road_->changed.notify_one();
}

}  // namespace vmod17

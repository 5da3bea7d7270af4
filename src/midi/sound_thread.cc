// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "midi/sound_thread.h"

#include <chrono>
#include <cmath>
#include <utility>

namespace vmod17 {

SoundThread::SoundThread(std::function<double()> run_due)
    : run_due_(std::move(run_due)), thread_([this] { Run(); }) {}

SoundThread::~SoundThread() { End(); }

void SoundThread::End() {
  if (!thread_.joinable()) return;
  {
    const std::lock_guard lock(mutex_);
    ends_ = true;
  }
  wake_.notify_one();
  thread_.join();
}

void SoundThread::Do(std::function<void()> work) {
  {
    const std::lock_guard lock(mutex_);
    work_.push_back(std::move(work));
  }
  wake_.notify_one();
}

void SoundThread::Run() {
  const auto has_work = [this] { return ends_ || !work_.empty(); };
  std::unique_lock lock(mutex_);
  while (!ends_) {
    if (!work_.empty()) {
      const std::function<void()> work = std::move(work_.front());
      work_.pop_front();
      lock.unlock();
      work();
      lock.lock();
      continue;
    }
    lock.unlock();
    const double ms = run_due_();
    lock.lock();
    if (std::isinf(ms)) {
      wake_.wait(lock, has_work);
    } else {
      wake_.wait_for(lock, std::chrono::duration<double, std::milli>(ms), has_work);
    }
  }
}

}  // namespace vmod17

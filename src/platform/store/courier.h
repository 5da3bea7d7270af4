// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <future>
#include <memory>
#include <type_traits>
#include <utility>

namespace vmod17 {

/// Runs errands one after the other on a thread of its own, so that whoever sends one waits for it
/// only as long as he likes. A courier that is let go finishes what it was sent for, however long
/// that takes, and nobody waits for it: not the destructor, and not the end of the process.
///
/// An errand must own all that it touches.
class Courier {
 public:
  Courier();
  ~Courier();
  Courier(const Courier&) = delete;
  Courier& operator=(const Courier&) = delete;

  template <typename Errand>
  auto Send(Errand errand) {
    using Result = std::invoke_result_t<Errand>;
    const auto task = std::make_shared<std::packaged_task<Result()>>(std::move(errand));
    Queue([task] { (*task)(); });
    return task->get_future().share();
  }

 private:
  struct Road;

  void Queue(std::function<void()> errand);

  std::shared_ptr<Road> road_;
};

}  // namespace vmod17

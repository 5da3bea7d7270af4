// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <exception>
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
/// An errand must own all that it touches. It is gone once it is done, whoever keeps the answer.
class Courier {
 public:
  Courier();
  ~Courier();
  Courier(const Courier&) = delete;
  Courier& operator=(const Courier&) = delete;

  template <typename Errand>
  auto Send(Errand errand) {
    using Result = std::invoke_result_t<Errand>;
    // A packaged task would keep what the errand owns as long as its answer is kept.
    const auto answer = std::make_shared<std::promise<Result>>();
    const std::shared_future<Result> future = answer->get_future().share();
    Queue([answer, errand = std::move(errand)]() mutable {
      try {
        if constexpr (std::is_void_v<Result>) {
          errand();
          answer->set_value();
        } else {
          answer->set_value(errand());
        }
      } catch (...) {
        answer->set_exception(std::current_exception());
      }
    });
    return future;
  }

 private:
  struct Road;

  void Queue(std::function<void()> errand);

  std::shared_ptr<Road> road_;
};

}  // namespace vmod17

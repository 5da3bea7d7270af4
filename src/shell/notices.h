// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "base/wording.h"
#include "ports/event_loop.h"
#include "ports/message_box.h"

namespace vmod17 {

/// Tells the user what the platform has to say, as soon as no handler is running and the program is
/// in a moment that a message does not spoil.
class Notices {
 public:
  /// `say`    the words of a notice
  /// `ready`  whether this is such a moment
  Notices(EventLoop& loop, MessageBox& messages, Wording say, std::function<bool()> ready);

  /// The same notice is told once while it waits for its moment. Whoever tells it knows when it is
  /// new again.
  void Tell(const Notice& notice);
  /// Runs `question` in such a moment.
  void Ask(std::function<void()> question);

 private:
  struct Waiting {
    std::optional<Notice> notice;  // none for a question
    std::function<void()> show;
  };

  void Await(Waiting waiting);
  void Arm();
  void Show();

  EventLoop& loop_;
  MessageBox& messages_;
  Wording say_;
  std::function<bool()> ready_;
  std::vector<Waiting> waiting_;
  bool armed_ = false;
};

}  // namespace vmod17

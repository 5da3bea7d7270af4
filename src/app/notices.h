// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/event_loop.h"
#include "platform/message_box.h"
#include "platform/notice.h"
#include "shell/text_lookup.h"

namespace vmod17 {

/// Tells the user what the platform has to say, the same once in a process: as soon as no handler
/// is running and the program is in a moment that a message does not spoil.
class Notices {
 public:
  /// `ready` tells whether this is such a moment.
  Notices(EventLoop& loop, MessageBox& messages, const TextLookup& texts,
          std::function<bool()> ready);

  void Tell(const Notice& notice);

 private:
  void Arm();
  void Show();

  EventLoop& loop_;
  MessageBox& messages_;
  const TextLookup& texts_;
  std::function<bool()> ready_;
  std::set<std::pair<int, std::vector<std::string>>> told_;
  std::vector<Notice> pending_;
  bool armed_ = false;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <set>
#include <vector>

#include "platform/event_loop.h"
#include "platform/message_box.h"
#include "platform/notice.h"
#include "shell/text_lookup.h"

namespace vmod17 {

/// Tells the user what the platform has to say, each notice once in a process: as soon as a screen
/// stands and no handler is running, so that no message comes up inside a playing.
class Notices {
 public:
  /// `ready` tells whether a screen stands.
  Notices(EventLoop& loop, MessageBox& messages, const TextLookup& texts,
          std::function<bool()> ready);

  void Tell(const Notice& notice);
  /// The words of a notice in the language in use.
  std::string Words(const Notice& notice) const;

 private:
  void Arm();
  void Show();

  EventLoop& loop_;
  MessageBox& messages_;
  const TextLookup& texts_;
  std::function<bool()> ready_;
  std::set<int> told_;
  std::vector<Notice> pending_;
  bool armed_ = false;
};

}  // namespace vmod17

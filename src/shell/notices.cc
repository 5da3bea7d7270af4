// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/notices.h"

#include <algorithm>
#include <utility>

namespace vmod17 {
namespace {

constexpr int kWarten = 150;  // ms between two looks whether a screen stands

}  // namespace

Notices::Notices(EventLoop& loop, MessageBox& messages, Wording say, std::function<bool()> ready)
    : loop_(loop), messages_(messages), say_(std::move(say)), ready_(std::move(ready)) {}

void Notices::Tell(const Notice& notice) {
  const auto is_same = [&](const Waiting& waiting) {
    return waiting.notice && waiting.notice->text_id == notice.text_id &&
           waiting.notice->details == notice.details;
  };
  if (std::ranges::any_of(waiting_, is_same)) return;
  Await({notice, [this, notice] { messages_.Warn(say_(notice), "Melvado"); }});
}

void Notices::Ask(std::function<void()> question) { Await({std::nullopt, std::move(question)}); }

void Notices::Await(Waiting waiting) {
  waiting_.push_back(std::move(waiting));
  Arm();
}

void Notices::Arm() {
  if (armed_) return;
  armed_ = true;
  loop_.StartTimer(kWarten, EventLoop::Repeat::kOnce, [this] {
    loop_.WhenIdle([this] {
      armed_ = false;
      Show();
    });
  });
}

void Notices::Show() {
  if (waiting_.empty()) return;
  if (ready_()) {
    const Waiting first = waiting_.front();
    waiting_.erase(waiting_.begin());
    first.show();
  }
  if (!waiting_.empty()) Arm();
}

}  // namespace vmod17

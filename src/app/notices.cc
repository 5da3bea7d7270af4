// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "app/notices.h"

#include <utility>

namespace vmod17 {
namespace {

constexpr int kWarten = 150;  // ms between two looks whether a screen stands

}  // namespace

Notices::Notices(EventLoop& loop, MessageBox& messages, const TextLookup& texts,
                 std::function<bool()> ready)
    : loop_(loop), messages_(messages), texts_(texts), ready_(std::move(ready)) {}

void Notices::Tell(const Notice& notice) {
  if (!told_.emplace(notice.text_id, notice.details).second) return;
  pending_.push_back(notice);
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
  if (pending_.empty()) return;
  if (ready_()) {
    const Notice notice = pending_.front();
    pending_.erase(pending_.begin());
    messages_.Warn(texts_.Words(notice), "Melvado");
  }
  if (!pending_.empty()) Arm();
}

}  // namespace vmod17

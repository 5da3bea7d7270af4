// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace vmod17 {

/// Ends the program by its own way out when the system asks it to go (SIGTERM, SIGINT, SIGHUP). One
/// object a process.
class EndOnSignal {
 public:
  /// `leave` is called once, as an event.
  explicit EndOnSignal(std::function<void()> leave);
  ~EndOnSignal();

 private:
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace vmod17

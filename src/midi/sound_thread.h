// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace vmod17 {

/// The thread that talks to the devices, so that a slow one never holds up the program. It does
/// what it is given in order, and in between lets `run_due` send what has come due.
class SoundThread {
 public:
  /// `run_due` returns the milliseconds until it wants to be called again; infinity when it waits
  /// for nothing.
  explicit SoundThread(std::function<double()> run_due);
  ~SoundThread();

  /// Ends the thread after the work at hand; what still waits is not done any more.
  void End();

  /// Any thread, also after `End`.
  void Do(std::function<void()> work);

 private:
  void Run();

  const std::function<double()> run_due_;
  std::mutex mutex_;
  std::condition_variable wake_;
  std::deque<std::function<void()>> work_;
  bool ends_ = false;
  std::thread thread_;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "base/wording.h"
#include "ports/message_box.h"

namespace vmod17 {

/// Sees to it that of the processes which one user of this machine starts with one key only one
/// works; a further one brings it to the front and ends. A QCoreApplication must exist.
///
/// The first listens on a socket in the user's runtime folder, which goes with the process, however
/// that ends. Where there is no such folder, or its name is too long for a socket (more than 74
/// bytes), every process takes itself for the first.
class SingleInstance {
 public:
  enum class Claimed {
    kFirst,     ///< there is no other process
    kAnswered,  ///< there is one, which has been asked to come to the front and has answered
    kSilent,    ///< there is one, which has not answered: it hangs, or is busy
  };
  static constexpr std::chrono::milliseconds kPatience{3000};

  /// `key`       what may be done once at a time, any text
  /// `patience`  how long an answer is waited for
  explicit SingleInstance(const std::string& key, std::chrono::milliseconds patience = kPatience);
  ~SingleInstance();
  SingleInstance(const SingleInstance&) = delete;
  SingleInstance& operator=(const SingleInstance&) = delete;

  /// Called in the first process when another one was started.
  std::function<void()> come_to_front;

  /// Makes this process the first, or asks the one that is.
  Claimed Claim();
  /// After `kSilent`: ends the other process and claims again. It is given some time for its own
  /// way out. One that has answered meanwhile is not ended. Still `kSilent` when it could not be
  /// ended.
  Claimed EndOther(std::chrono::milliseconds time = kPatience);
  /// From now on another process may be the first.
  void Release();

  /// Asks the process that works under `key` to come to the front; false when there is none, or it
  /// does not answer within `kPatience`.
  [[nodiscard]] static bool BringToFront(const std::string& key);

 private:
  class Call;
  class Listener;

  const std::string path_;  // of the socket; "" where there is no place for it
  const std::chrono::milliseconds patience_;
  std::unique_ptr<Listener> listener_;  // of the first process
  std::unique_ptr<Call> call_;          // to the one that is
};

/// Claims; where another process is silent, asks the user whether it is to be ended, and ends it.
///
/// `question`  says that the other does not answer, and what its end means
/// `say`       a notice in the user's language
SingleInstance::Claimed ClaimOrAsk(SingleInstance& instance, MessageBox& messages,
                                   const Notice& question, const Wording& say);

}  // namespace vmod17

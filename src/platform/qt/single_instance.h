// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QLocalServer>
#include <QString>
#include <functional>
#include <string>

namespace vmod17 {

/// Sees to it that of the processes which one user of this machine starts with one key only one
/// works; a further one brings it to the front and ends. A QCoreApplication must exist.
///
/// The first listens on a socket in the user's runtime folder, which goes with the process, however
/// that ends. Where there is no such folder, every process takes itself for the first.
class SingleInstance {
 public:
  /// `key`  what may be done once at a time, any text
  explicit SingleInstance(const std::string& key);
  SingleInstance(const SingleInstance&) = delete;
  SingleInstance& operator=(const SingleInstance&) = delete;

  /// Called in the first process when another one was started.
  std::function<void()> come_to_front;

  /// False when there is another process, which has been asked to come to the front.
  bool Claim();
  /// From now on another process may be the first.
  void Release() { server_.close(); }

  /// Asks the process that works under `key` to come to the front; false when there is none, or it
  /// does not answer within 3 s.
  static bool BringToFront(const std::string& key);

 private:
  const QString path_;  // of the socket; "" where there is no place for it
  QLocalServer server_;
};

}  // namespace vmod17

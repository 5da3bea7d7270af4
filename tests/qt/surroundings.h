// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>
#include <functional>

namespace vmod17 {

/// Serves events until `done` holds; false when that takes half a minute.
inline bool ServeUntil(const std::function<bool()>& done) {
  QDeadlineTimer patience(30'000);
  // What is waited for need not be an event.
  QTimer look;
  look.start(20);
  while (!done()) {
    if (patience.hasExpired()) return false;
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  return true;
}

/// Serves what is due.
inline void Serve() {
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

/// A variable of the surroundings for the time of a test.
class Surrounding {
 public:
  Surrounding(const char* name, const QByteArray& value) : name_(name), before_(qgetenv(name)) {
    was_set_ = qEnvironmentVariableIsSet(name);
    qputenv(name, value);
  }
  ~Surrounding() {
    if (was_set_) {
      qputenv(name_, before_);
    } else {
      qunsetenv(name_);
    }
  }
  Surrounding(const Surrounding&) = delete;
  Surrounding& operator=(const Surrounding&) = delete;

 private:
  const char* const name_;
  const QByteArray before_;
  bool was_set_;
};

}  // namespace vmod17

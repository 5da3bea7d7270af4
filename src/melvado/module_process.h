// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QProcess>
#include <QString>
#include <functional>
#include <memory>

namespace vmod17 {

/// How a module has ended.
struct ModuleEnd {
  enum class Kind {
    kMenu,        ///< by its own way out, back to the host, and whole to its end
    kOpenBefore,  ///< at once: another process is at work, which it has brought to the front
    kBroken,      ///< in any other way
    kNotStarted,  ///< it could not be started at all
  };
  Kind kind = Kind::kBroken;
  bool crashed = false;  ///< kBroken: ended by a signal, be it after it had found its way out
  int code = 0;          ///< kBroken: exit status, or number of the signal where it is known
  QString reason;        ///< kNotStarted: what the system says
};

/// How long a module is given to save its record when the host goes. The store may keep it waiting
/// for another program, see `StoreOptions::busy_timeout_ms`, more than once.
inline constexpr int kTimeToEndMs = 15'000;

/// The module as a process of its own, one at a time. What it says is in app/places.h.
class ModuleProcess {
 public:
  ModuleProcess() = default;
  /// Asks a module that still runs to end, and gives it `kTimeToEndMs` before it is killed. That
  /// happens when the desktop ends, or the host in the moment before the module is shown: later the
  /// module's window hides the host's.
  ~ModuleProcess();
  ModuleProcess(const ModuleProcess&) = delete;
  ModuleProcess& operator=(const ModuleProcess&) = delete;

  std::function<void()> on_shown;
  std::function<void(const ModuleEnd&)> on_end;

  /// `store`    handed on, see `ParseStoreAddress`
  /// `session`  handed on, see `HostStore::Session`
  void Start(const QString& program, const QString& store, const QString& session);
  bool runs() const { return process_ != nullptr; }
  /// 0 when none runs.
  qint64 process_id() const { return process_ ? process_->processId() : 0; }

 private:
  void Hear();
  void End(ModuleEnd end);

  std::unique_ptr<QProcess> process_;
  bool menu_ = false;
  bool open_before_ = false;
};

}  // namespace vmod17

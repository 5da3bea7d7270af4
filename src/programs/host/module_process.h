// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

namespace melvado {

/// How a module has ended.
struct ModuleEnd {
  enum class Kind {
    kMenu,        ///< by its own way out, back to the host, and whole to its end
    kEnded,       ///< on the user's wish, since it did not answer
    kHung,        ///< it had found its way out, but its process stayed and was killed
    kOpenBefore,  ///< at once: another process is at work, which it has brought to the front
    kBroken,      ///< in any other way
    kNotStarted,  ///< it could not be started at all
  };
  Kind kind = Kind::kBroken;
  bool crashed = false;  ///< ended by a signal that nobody sent on purpose, be it on its way out
  int code = 0;          ///< exit status, or number of the signal where it is known
  QString reason;        ///< kNotStarted: what the system says
};

/// How long a module is given to save its record when the host goes. The store may keep it waiting
/// for another program, see `StoreOptions::busy_timeout_ms`, more than once.
inline constexpr int kTimeToEndMs = 15'000;

/// The same for one that does not answer, and which its user does not want to wait for.
inline constexpr int kTimeToSaveMs = 3000;

/// How long a module may take until it is shown. It may wait for the store meanwhile.
inline constexpr int kTimeToStartMs = 10'000;

/// The module as a process of its own, one at a time. What it says is in programs/shared/places.h.
///
/// A module that has given control back has saved all and closed its window. For the user it is
/// over then, and another one may be started, while its process still takes leave of the sound
/// card, which may be slow, or hang.
class ModuleProcess {
 public:
  /// `time_to_leave_ms`  from the moment in which a module gives control back until it is killed
  explicit ModuleProcess(int time_to_leave_ms = kTimeToEndMs)
      : time_to_leave_ms_(time_to_leave_ms) {}
  /// Asks a module that still runs to end, and gives it `kTimeToEndMs` before it is killed. That
  /// happens when the desktop ends, or the host in the moment before the module is shown: later the
  /// module's window hides the host's. One that is leaving has the rest of its time.
  ~ModuleProcess();
  ModuleProcess(const ModuleProcess&) = delete;
  ModuleProcess& operator=(const ModuleProcess&) = delete;

  std::function<void()> on_shown;
  /// The module has given control back.
  std::function<void()> on_back;
  /// Its process has ended; after `on_back`, if that came.
  std::function<void(const ModuleEnd&)> on_end;

  /// `store`    handed on, see `ParseStoreAddress`
  /// `session`  handed on, see `HostStore::Session`
  void Start(const QString& program, const QString& store, const QString& session,
             int time_to_start_ms = kTimeToStartMs);
  /// Ends the module at work, which does not answer: by its own way out, or after some time by
  /// force.
  void EndSilent(int time_to_save_ms = kTimeToSaveMs);
  /// The module at work has not been shown yet, which may take it a while, but no longer than this.
  bool starts() const { return at_work_ && !at_work_->shown && !at_work_->start.hasExpired(); }
  /// The module at work has been shown.
  bool is_shown() const { return at_work_ && at_work_->shown; }
  /// A module is at work: it was started and has not given control back.
  bool runs() const { return at_work_ != nullptr; }
  /// How many processes have given control back and have not ended.
  int leaving() const { return static_cast<int>(leaving_.size()); }
  /// Of the module at work; 0 when none is.
  qint64 process_id() const { return at_work_ ? at_work_->process.processId() : 0; }

 private:
  struct Module : QObject {
    QProcess process;
    QDeadlineTimer start;
    bool shown = false;
    QTimer patience;  // with it, once it is to end: it is killed then
    bool menu = false;
    bool open_before = false;
    bool unwanted = false;
    bool killed = false;
  };

  void Hear(Module& module);
  void TakeBack();
  void Finish(Module& module, int code, QProcess::ExitStatus status);
  void End(Module& module, const ModuleEnd& end);

  const int time_to_leave_ms_;
  std::unique_ptr<Module> at_work_;
  std::vector<std::unique_ptr<Module>> leaving_;
};

}  // namespace melvado

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/module_process.h"

#include <signal.h>

#include <algorithm>
#include <utility>

#include "programs/shared/places.h"

namespace melvado {

using vmod17::kHostVariable;
using vmod17::kOutputVariable;
using vmod17::kSessionVariable;
using vmod17::kStoreVariable;
namespace ModuleLine = vmod17::ModuleLine;

ModuleProcess::~ModuleProcess() {
  if (at_work_) {
    at_work_->process.disconnect();
    at_work_->process.terminate();
    at_work_->process.waitForFinished(kTimeToEndMs);
  }
  for (const auto& module : leaving_) {
    module->process.disconnect();
    if (module->process.waitForFinished(module->patience.remainingTime())) continue;
    module->process.kill();
    module->process.waitForFinished();
  }
}

void ModuleProcess::Start(const QString& program, const QString& store, const QString& session,
                          int time_to_start_ms) {
  if (at_work_) return;
  at_work_ = std::make_unique<Module>();
  Module& module = *at_work_;
  QProcess& process = module.process;
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
  surroundings.insert(kHostVariable, "1");
  // Setting what is set would lose a name that is not UTF-8.
  if (!store.isEmpty() && surroundings.value(kStoreVariable) != store) {
    surroundings.insert(kStoreVariable, store);
  }
  // The system starts no program with a longer one. The module reads the store, then.
  constexpr qsizetype kLongestVariable = 100'000;
  surroundings.remove(kSessionVariable);
  if (session.toUtf8().size() <= kLongestVariable) surroundings.insert(kSessionVariable, session);
  // Taken over by the host, where it may have been changed since.
  surroundings.remove(kOutputVariable);
  process.setProcessEnvironment(surroundings);
  QObject::connect(&process, &QProcess::readyReadStandardOutput, &process,
                   [this, &module] { Hear(module); });
  QObject::connect(&process, &QProcess::errorOccurred, &process,
                   [this, &module](QProcess::ProcessError e) {
                     if (e != QProcess::FailedToStart) return;
                     const QString why = module.process.errorString();
                     End(module, {ModuleEnd::Kind::kNotStarted, false, 0, why});
                   });
  QObject::connect(&process, &QProcess::finished, &process,
                   [this, &module](int code, QProcess::ExitStatus status) {
                     Hear(module);
                     Finish(module, code, status);
                   });
  module.start.setRemainingTime(time_to_start_ms);
  module.patience.setSingleShot(true);
  QObject::connect(&module.patience, &QTimer::timeout, &module, [&module] {
    module.killed = true;
    module.process.kill();
  });
  process.start(program, QStringList());
}

void ModuleProcess::EndSilent(int time_to_save_ms) {
  if (!at_work_) return;
  Module& module = *at_work_;
  module.unwanted = true;
  module.process.terminate();
  // One that was stopped takes its leave as others do.
  kill(static_cast<pid_t>(module.process.processId()), SIGCONT);
  module.patience.start(time_to_save_ms);
}

void ModuleProcess::Hear(Module& module) {
  while (module.process.canReadLine()) {
    const QByteArray line = module.process.readLine().trimmed();
    if (line == ModuleLine::kOpen) module.open_before = true;
    if (line == ModuleLine::kShown) {
      module.shown = true;
      if (on_shown) on_shown();
    }
    if (line == ModuleLine::kMenu && !std::exchange(module.menu, true)) TakeBack();
  }
}

void ModuleProcess::TakeBack() {
  Module& module = *at_work_;
  leaving_.push_back(std::move(at_work_));
  module.patience.start(time_to_leave_ms_);
  if (on_back) on_back();
}

void ModuleProcess::Finish(Module& module, int code, QProcess::ExitStatus status) {
  ModuleEnd end;
  const bool ended_by_us = module.killed || (module.unwanted && code == SIGTERM);
  end.crashed = status == QProcess::CrashExit && !ended_by_us;
  end.code = code;
  // What a module writes at its end may be lost when it crashes there.
  if (module.menu && !end.crashed) end.kind = ModuleEnd::Kind::kMenu;
  if (module.killed) end.kind = ModuleEnd::Kind::kHung;
  if (module.unwanted && !module.menu) end.kind = ModuleEnd::Kind::kEnded;
  if (module.open_before && !end.crashed) end.kind = ModuleEnd::Kind::kOpenBefore;
  End(module, end);
}

void ModuleProcess::End(Module& module, const ModuleEnd& end) {
  // The process is the sender of what is being delivered.
  if (at_work_.get() == &module) {
    at_work_.release()->deleteLater();
  } else {
    const auto left = std::ranges::find(leaving_, &module, &std::unique_ptr<Module>::get);
    left->release()->deleteLater();
    leaving_.erase(left);
  }
  if (on_end) on_end(end);
}

}  // namespace melvado

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "melvado/module_process.h"

#include <utility>

#include "app/places.h"

namespace vmod17 {

ModuleProcess::~ModuleProcess() {
  if (!process_) return;
  process_->disconnect();
  process_->terminate();
  process_->waitForFinished(kTimeToEndMs);
}

void ModuleProcess::Start(const QString& program, const QString& store, const QString& session) {
  if (process_) return;
  menu_ = open_before_ = false;
  process_ = std::make_unique<QProcess>();
  QProcess& process = *process_;
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
  surroundings.insert(kHostVariable, "1");
  if (!store.isEmpty()) surroundings.insert("MELVADO_STORE", store);
  surroundings.insert(kSessionVariable, session);
  // Taken over by the host, where it may have been changed since.
  surroundings.remove("MELVADO_MIDI");
  process.setProcessEnvironment(surroundings);
  QObject::connect(&process, &QProcess::readyReadStandardOutput, &process, [this] { Hear(); });
  QObject::connect(&process, &QProcess::errorOccurred, &process, [this](QProcess::ProcessError e) {
    if (e != QProcess::FailedToStart) return;
    End({ModuleEnd::Kind::kNotStarted, false, 0, process_->errorString()});
  });
  QObject::connect(&process, &QProcess::finished, &process,
                   [this](int code, QProcess::ExitStatus status) {
                     Hear();
                     ModuleEnd end;
                     end.crashed = status == QProcess::CrashExit;
                     end.code = code;
                     // What a module writes at its end may be lost when it crashes there.
                     if (menu_ && !end.crashed) end.kind = ModuleEnd::Kind::kMenu;
                     if (open_before_ && !end.crashed) end.kind = ModuleEnd::Kind::kOpenBefore;
                     End(std::move(end));
                   });
  process.start(program, QStringList());
}

void ModuleProcess::Hear() {
  while (process_ && process_->canReadLine()) {
    const QByteArray line = process_->readLine().trimmed();
    if (line == ModuleLine::kMenu) menu_ = true;
    if (line == ModuleLine::kOpen) open_before_ = true;
    if (line == ModuleLine::kShown && on_shown) on_shown();
  }
}

void ModuleProcess::End(ModuleEnd end) {
  // The process is the sender of what is being delivered.
  process_.release()->deleteLater();
  if (on_end) on_end(end);
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QString>
#include <stdexcept>

namespace vmod17 {

/// A second process with a store of its own; by default the one that carries out commands, see
/// store_helper.cc.
class StoreProcess {
 public:
  explicit StoreProcess(const QString& program = QStringLiteral(STORE_HELPER),
                        const QStringList& arguments = {}) {
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(program, arguments);
    if (!process_.waitForStarted()) throw std::runtime_error("the helper program does not start");
  }
  ~StoreProcess() { End(); }

  void Say(const QString& command) {
    process_.write(command.toUtf8() + '\n');
    while (process_.bytesToWrite() > 0 && process_.waitForBytesWritten()) {
    }
  }

  /// The next line of its answers, or "" when it has ended or is silent for two minutes.
  QString Hear() {
    while (!process_.canReadLine() && process_.waitForReadyRead(120'000)) {
    }
    return QString::fromUtf8(process_.readLine()).trimmed();
  }

  QString Ask(const QString& command) {
    Say(command);
    return Hear();
  }

  /// True when it says nothing for so long.
  bool IsSilentFor(int ms) { return !process_.canReadLine() && !process_.waitForReadyRead(ms); }

  /// Ends it as the system would, without a chance to tidy up, and gives what it had said by then.
  QString Kill() {
    process_.kill();
    return HearTheRest();
  }

  /// Tells it to end.
  void Finish() { process_.closeWriteChannel(); }

  /// Lets it end by itself, which it does without a fault; a sanitizer that has one to report ends
  /// it with a status of its own.
  void End() {
    Finish();
    process_.waitForFinished(120'000);
    EXPECT_TRUE(HasEnded());
    EXPECT_TRUE(ends_as_it_likes_ || Status() == 0) << Status();
  }

  /// What it says until it ends, in whatever way: that is for the caller to see.
  QString HearTheRest() {
    ends_as_it_likes_ = true;
    process_.waitForFinished(120'000);
    return QString::fromUtf8(process_.readAll());
  }

  /// Once it has ended: its exit status, and whether it was ended by a signal.
  int Status() const { return WasKilled() ? -1 : process_.exitCode(); }
  bool HasEnded() const { return process_.state() == QProcess::NotRunning; }
  bool WasKilled() const { return process_.exitStatus() == QProcess::CrashExit; }

 private:
  QProcess process_;
  bool ends_as_it_likes_ = false;
};

}  // namespace vmod17

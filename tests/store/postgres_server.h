// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QString>
#include <csignal>
#include <memory>

#include "store_testing.h"

namespace vmod17 {

/// A PostgreSQL server of the test's own, in a folder of its own, which listens on a socket there
/// and nowhere else. It runs for the whole test program, and ends with it even if that is killed.
/// The server refuses to run for the administrator; for that one it runs for another account.
class PostgresServer : public ::testing::Environment {
 public:
  void SetUp() override;
  void TearDown() override;

  /// With more of the server's own options, such as "max_connections=5".
  void Start(const QStringList& settings = {});
  void Stop();
  /// Stops all of its processes where they are, as a machine does that has run out of memory, and
  /// lets them go on.
  void Freeze() { SignalAll(SIGSTOP); }
  void Thaw() { SignalAll(SIGCONT); }
  /// Ends all of its processes at once.
  void Kill();

  /// Address of an empty database.
  std::string NewDatabase();
  /// The same for another user of a database, or with anything else behind the name.
  std::string Address(const QString& database, const QString& user = "melvado") const;
  /// Runs one statement as the server's owner.
  void Run(const QString& database, const QString& statement);
  /// The socket on which it listens.
  std::string Socket() const { return (*folder_ / ".s.PGSQL.5432").toStdString(); }
  QString LatestDatabase() const { return "test" + QString::number(databases_); }

 private:
  void SignalAll(int signal) const;
  void RunTool(const QString& tool, const QStringList& arguments);
  void Prepare(QProcess& process) const;

  QString programs_;
  std::unique_ptr<ScratchFolder> folder_;
  std::unique_ptr<QProcess> server_;
  int databases_ = 0;
};

/// That of the test program.
extern PostgresServer* const kPostgres;

}  // namespace vmod17

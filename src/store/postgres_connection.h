// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QUrl>
#include <memory>

#include "store/courier.h"
#include "store/postgres_session.h"
#include "store/sql_connection.h"

namespace vmod17 {

/// A database on a PostgreSQL server, for many machines that share one store. The role needs the
/// right to make tables once, at the first start against an empty database.
///
/// All that the server is asked goes by a courier, since no setting bounds the wait for a server
/// that is stopped, or a name that is not resolved. What is not back at the deadline is left behind
/// with its connection, whose rest the server then ends. After that, and after a refusal that was
/// long in coming, nobody waits for the server until a connection has come about beside the
/// program.
class PostgresConnection : public SqlConnection {
 public:
  /// `address`  see `ParseStoreAddress`
  explicit PostgresConnection(const QUrl& address);
  ~PostgresConnection() override;

  void Open(int wait_ms) override;
  void Close() override;
  void SetDeadline(Deadline deadline) override { deadline_ = deadline; }
  bool IsAtHand() override;
  bool IsFar() const override { return is_far_; }
  bool HasTable(const QString& name) override;
  void LockSchema() override;
  SqlErrand Append(const SqlStatements& statements, int wait_ms) override;
  void SetWait(int wait_ms) override { wait_ms_ = wait_ms; }
  /// The server's own setting decides, by default to disk.
  void SetSync(Sync) override {}
  void Prepare() override {}
  bool IsReadOnly() const override { return false; }
  QString BytesType() const override { return QStringLiteral("BYTEA"); }
  QString RowNumberType() const override {
    return QStringLiteral("BIGINT GENERATED ALWAYS AS IDENTITY PRIMARY KEY");
  }

 protected:
  SqlResult Execute(const SqlStatements& statements) override;
  QString BeginStatement() const override { return QStringLiteral("BEGIN"); }

 private:
  void Dial();
  SqlErrand Send(const SqlStatements& statements);
  SqlStatements Greeting() const;
  void LeaveBehind();

  PostgresSession::Parameters parameters_;
  Deadline deadline_ = Deadline::max();
  std::unique_ptr<Courier> courier_;
  std::shared_ptr<PostgresSession> session_;
  // How long the connecting took; valid until `Open` has seen what became of it.
  std::shared_future<std::chrono::steady_clock::duration> dialling_;
  SqlErrand latest_;            // that the session was sent for
  bool is_silent_ = false;      // it was waited for in vain, and no connection has come about since
  bool left_behind_ = false;    // the server may still be at something that nobody waits for
  bool is_far_ = false;         // a connection took so long that a log line does not wait for it
  int wait_ms_ = 0;             // for a lock, as wanted
  int wait_of_session_ms_ = 0;  // as the server was told
  bool is_greeted_ = false;
};

}  // namespace vmod17

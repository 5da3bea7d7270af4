// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

#include "store/sql_connection.h"

namespace vmod17 {

/// One connection to a PostgreSQL server, through its client library, which is loaded at run time:
/// the toolkit's own driver asks five questions of a server before the first one of ours, and two
/// for each statement. Its calls wait as long as the server is silent. They belong to one thread at
/// a time, but for `HangUp`.
class PostgresSession {
 public:
  /// Names and values of the client library's connection parameters; of a name that is given twice
  /// the last holds.
  using Parameters = std::vector<std::pair<QByteArray, QByteArray>>;

  PostgresSession() = default;
  ~PostgresSession();
  PostgresSession(const PostgresSession&) = delete;
  PostgresSession& operator=(const PostgresSession&) = delete;

  /// Errors: SqlError kUnreachable.
  void Connect(const Parameters& parameters);
  /// Sends all of them at once and waits for the answers, one round trip in all. See
  /// `SqlConnection::Execute`. What `greeting` has set holds whatever becomes of the statements;
  /// a session whose greeting fails has ended, with kUnreachable.
  /// Errors: SqlError.
  SqlResult Run(const SqlStatements& greeting, const SqlStatements& statements);
  /// From any thread: cuts the connection under the feet of a call that does not return.
  void HangUp();

 private:
  [[noreturn]] void ThrowLost() const;
  void Send(const SqlStatements& statements);
  void LeavePipeline();
  void End();
  SqlResult Answers(std::size_t count);
  SqlResult Answer();

  void* connection_ = nullptr;
  std::mutex mutex_;
  int socket_ = -1;  // guarded by mutex_
};

}  // namespace vmod17

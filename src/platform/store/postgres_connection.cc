// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/store/postgres_connection.h"

#include <QUrlQuery>
#include <utility>

namespace vmod17 {

PostgresConnection::PostgresConnection(const QUrl& address)
    : SqlConnection(QStringLiteral("QPSQL")) {
  database_.setHostName(address.host());
  if (address.port() > 0) database_.setPort(address.port());
  database_.setUserName(address.userName());
  database_.setPassword(address.password());
  database_.setDatabaseName(address.path().mid(1));
  QString options = QStringLiteral("connect_timeout=5");
  for (const auto& [name, value] : QUrlQuery(address).queryItems(QUrl::FullyDecoded)) {
    if (name == "host") {
      database_.setHostName(value);
    } else if (name == "port") {
      database_.setPort(value.toInt());
    } else {
      options += ';' + name + '=' + value;
    }
  }
  database_.setConnectOptions(options);
}

void PostgresConnection::Open(int wait_ms) {
  Close();
  if (!database_.open()) Throw(database_.lastError());
  // The "already exists" of a table that another machine makes at the same moment is no warning.
  Run(QStringLiteral("SET client_min_messages = error"));
  SetWait(wait_ms);
}

bool PostgresConnection::HasTable(const QString& name) {
  // From the catalogue as a table: the name's own cache may not yet know of a table that another
  // process has made while this one waited in `LockSchema`.
  return Run(QStringLiteral("SELECT 1 FROM pg_tables WHERE tablename = ? "
                            "AND schemaname = ANY (current_schemas(false))"),
             {name})
      .next();
}

void PostgresConnection::LockSchema() {
  // The number only has to be the same in every process: the letters "melv". The next one is that
  // of `Append`.
  Run(QStringLiteral("SELECT pg_advisory_xact_lock(1835363446)"));
}

void PostgresConnection::Append(const std::function<void()>& append) {
  // Two statements at once would both see the same last row. The lock is a statement before them,
  // since a statement sees what was there when it began.
  InTransaction([&] {
    Run(QStringLiteral("SELECT pg_advisory_xact_lock(1835363447)"));
    append();
  });
}

void PostgresConnection::SetWait(int wait_ms) {
  // 0 would mean to wait for ever.
  Run("SET lock_timeout = " + QString::number(wait_ms > 0 ? wait_ms : 1));
}

SqlFailure PostgresConnection::Classify(const QSqlError& error) const {
  // The SQLSTATE codes of PostgreSQL's published list; a class is their first two characters.
  const QString code = error.nativeErrorCode();
  if (code == "55P03" || code == "40P01") return SqlFailure::kLocked;
  if (code == "25006" || code == "42501") return SqlFailure::kReadOnly;
  if (code == "53100") return SqlFailure::kFull;
  if (code.isEmpty() || code.startsWith("08") || code.startsWith("28") || code.startsWith("57P")) {
    return SqlFailure::kUnreachable;
  }
  return SqlFailure::kOther;
}

}  // namespace vmod17

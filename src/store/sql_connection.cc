// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/sql_connection.h"

#include <utility>

#include "store/postgres_connection.h"
#include "store/sqlite_connection.h"

namespace vmod17 {

SqlResult SqlConnection::RunTogether(SqlStatements statements) {
  return Execute(InOneTransaction(std::move(statements)));
}

void SqlConnection::InTransaction(const std::function<void()>& work) {
  Run(BeginStatement());
  try {
    work();
    Run(QStringLiteral("COMMIT"));
  } catch (const SqlError&) {
    throw;  // and `Execute` has ended the transaction
  } catch (...) {
    Run(QStringLiteral("ROLLBACK"));
    throw;
  }
}

SqlStatements SqlConnection::InOneTransaction(SqlStatements statements) const {
  statements.insert(statements.begin(), {BeginStatement(), {}});
  statements.push_back({QStringLiteral("COMMIT"), {}});
  return statements;
}

std::unique_ptr<SqlConnection> MakeSqlConnection(const StoreAddress& address) {
  if (address.kind == StoreAddress::Kind::kServer) {
    return std::make_unique<PostgresConnection>(address.server);
  }
  return std::make_unique<SqliteConnection>(address.path);
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/store/sql_connection.h"

#include "platform/store/postgres_connection.h"
#include "platform/store/sqlite_connection.h"

namespace vmod17 {

SqlConnection::SqlConnection(const QString& driver)
    : database_(QSqlDatabase::addDatabase(
          driver, "melvado-" + QString::number(reinterpret_cast<quintptr>(this), 16))) {}

SqlConnection::~SqlConnection() {
  const QString name = database_.connectionName();
  database_.close();
  database_ = QSqlDatabase();
  QSqlDatabase::removeDatabase(name);
}

QSqlQuery SqlConnection::Run(const QString& statement, const QVariantList& values) {
  QSqlQuery query(database_);
  query.setForwardOnly(true);
  if (values.isEmpty()) {
    if (!query.exec(statement)) Fail(query.lastError());
    return query;
  }
  if (!query.prepare(statement)) Fail(query.lastError());
  for (const QVariant& value : values) query.addBindValue(value);
  if (!query.exec()) Fail(query.lastError());
  return query;
}

void SqlConnection::InTransaction(const std::function<void()>& work) {
  Run(BeginStatement());
  in_transaction_ = true;
  try {
    work();
    Run(QStringLiteral("COMMIT"));
    in_transaction_ = false;
  } catch (...) {
    RollBack();
    throw;
  }
}

void SqlConnection::RollBack() {
  if (!in_transaction_) return;
  in_transaction_ = false;
  // Its own failure would hide the first one. A database that is gone has undone it already.
  QSqlQuery(database_).exec(QStringLiteral("ROLLBACK"));
}

void SqlConnection::Fail(const QSqlError& error) {
  // While the statement that failed still lives: in a broken transaction a server would refuse to
  // forget it, and the driver complains of that.
  RollBack();
  Throw(error);
}

void SqlConnection::Throw(const QSqlError& error) const {
  const SqlFailure failure = Classify(error);
  const QString code = error.nativeErrorCode();
  QString text = error.databaseText().isEmpty() ? error.driverText() : error.databaseText();
  if (!code.isEmpty()) text += " [" + code + ']';
  throw SqlError(failure, text.simplified().toStdString());
}

std::unique_ptr<SqlConnection> MakeSqlConnection(const StoreAddress& address) {
  if (address.kind == StoreAddress::Kind::kServer) {
    return std::make_unique<PostgresConnection>(address.server);
  }
  return std::make_unique<SqliteConnection>(address.path);
}

}  // namespace vmod17

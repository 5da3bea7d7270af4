// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QUrl>

#include "platform/store/sql_connection.h"

namespace vmod17 {

/// A database on a PostgreSQL server, for many machines that share one store. The role needs the
/// right to make tables once, at the first start against an empty database.
class PostgresConnection : public SqlConnection {
 public:
  /// `address`  see `ParseStoreAddress`
  explicit PostgresConnection(const QUrl& address);

  void Open(int wait_ms) override;
  bool HasTable(const QString& name) override;
  void LockSchema() override;
  void Append(const std::function<void()>& append) override;
  void SetWait(int wait_ms) override;
  /// The server's own setting decides, by default to disk.
  void SetSync(Sync) override {}
  void Prepare() override {}
  bool IsReadOnly() const override { return false; }
  QString BytesType() const override { return QStringLiteral("BYTEA"); }
  QString RowNumberType() const override {
    return QStringLiteral("BIGINT GENERATED ALWAYS AS IDENTITY PRIMARY KEY");
  }

 protected:
  SqlFailure Classify(const QSqlError& error) const override;
  QString BeginStatement() const override { return QStringLiteral("BEGIN"); }
};

}  // namespace vmod17

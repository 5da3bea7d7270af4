// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QSqlDatabase>
#include <QString>

#include "store/sql_connection.h"

namespace vmod17 {

/// An SQLite file, which must exist (see `PrepareStoreFile`).
///
/// It is kept with a write-ahead log: a reader never waits for a writer, a commit is one append,
/// and a process that is killed leaves the file as its last commit left it. Where the file system
/// offers no shared memory for that, SQLite's rollback journal takes its place with the same
/// promises.
class SqliteConnection : public SqlConnection {
 public:
  explicit SqliteConnection(const QString& path);
  ~SqliteConnection() override;

  void Open(int wait_ms) override;
  void Close() override { database_.close(); }
  bool HasTable(const QString& name) override;
  /// A writing transaction holds the whole file already.
  void LockSchema() override {}
  SqlErrand Append(const SqlStatements& statements, int wait_ms) override;
  void SetWait(int wait_ms) override;
  void SetSync(Sync sync) override;
  void Prepare() override;
  bool IsReadOnly() const override { return read_only_; }
  /// Brings all of the database into its file, and leaves nothing beside it. Errors: SqlError,
  /// kLocked also while anyone else has it open.
  void KeepToOneFile();
  /// Whether it is so, also by the hand of others.
  bool IsInOneFile();
  /// A number that changes whenever another connection has changed the database.
  qlonglong DataVersion();
  /// Runs `work` while nobody else can write, or, as long as it `IsInOneFile`, read. Nothing of the
  /// process may open the file meanwhile: its closing would give up the lock.
  void Alone(const std::function<void()>& work);
  QString BytesType() const override { return QStringLiteral("BLOB"); }
  QString RowNumberType() const override {
    return QStringLiteral("INTEGER PRIMARY KEY AUTOINCREMENT");
  }

 protected:
  SqlResult Execute(const SqlStatements& statements) override;
  QString BeginStatement() const override { return QStringLiteral("BEGIN IMMEDIATE"); }

 private:
  void OpenAs(const QString& name, const QString& options, int wait_ms);
  void OpenReadOnly(int wait_ms);

  QString path_;
  QSqlDatabase database_;
  int wait_ms_ = 0;
  bool read_only_ = false;
};

}  // namespace vmod17

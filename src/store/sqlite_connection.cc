// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/sqlite_connection.h"

#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QUrl>
#include <utility>

#include "store/store_file.h"

namespace vmod17 {
namespace {

// Result codes of SQLite, from its published list; the upper byte of an extended code tells more.
constexpr int kPerm = 3;
constexpr int kBusy = 5;
constexpr int kLockedTable = 6;
constexpr int kReadOnlyCode = 8;
constexpr int kIoError = 10;
constexpr int kCorrupt = 11;
constexpr int kFullCode = 13;
constexpr int kCannotOpen = 14;
constexpr int kNotADatabase = 26;

// Of an input/output error, the kinds that come from writing: write, fsync, dir_fsync, truncate,
// and the sizing of the shared memory. A quota that is used up shows as one of them.
bool IsWriteError(int extended) {
  constexpr int kWriteKinds[] = {3, 4, 5, 6, 19};
  for (const int kind : kWriteKinds) {
    if (extended >> 8 == kind) return true;
  }
  return false;
}

SqlFailure Classify(const QSqlError& error) {
  const int extended = error.nativeErrorCode().toInt();
  switch (extended & 0xFF) {
    case kBusy:
    case kLockedTable:
      return SqlFailure::kLocked;
    case kCorrupt:
    case kNotADatabase:
      return SqlFailure::kBroken;
    case kPerm:
    case kReadOnlyCode:
      return SqlFailure::kReadOnly;
    case kFullCode:
      return SqlFailure::kFull;
    case kIoError:
      return IsWriteError(extended) ? SqlFailure::kFull : SqlFailure::kOther;
    case kCannotOpen:
      return SqlFailure::kUnreachable;
    default:
      return SqlFailure::kOther;
  }
}

[[noreturn]] void Throw(const QSqlError& error) {
  const QString code = error.nativeErrorCode();
  QString text = error.databaseText().isEmpty() ? error.driverText() : error.databaseText();
  if (!code.isEmpty()) text += " [" + code + ']';
  throw SqlError(Classify(error), text.simplified().toStdString());
}

SqlResult RunOne(const QSqlDatabase& database, const SqlStatement& statement) {
  QSqlQuery query(database);
  query.setForwardOnly(true);
  if (!query.prepare(statement.text)) Throw(query.lastError());
  for (const QVariant& value : statement.values) query.addBindValue(value);
  if (!query.exec()) Throw(query.lastError());
  SqlResult result;
  result.affected = query.numRowsAffected();
  const int columns = query.record().count();
  while (query.next()) {
    QVariantList row;
    for (int column = 0; column < columns; ++column) row.push_back(query.value(column));
    result.rows.push_back(row);
  }
  // A row that cannot be read looks like the last one.
  if (query.lastError().isValid()) Throw(query.lastError());
  return result;
}

}  // namespace

SqliteConnection::SqliteConnection(const QString& path)
    : path_(path),
      database_(QSqlDatabase::addDatabase(
          QStringLiteral("QSQLITE"),
          "melvado-" + QString::number(reinterpret_cast<quintptr>(this), 16))) {}

SqliteConnection::~SqliteConnection() {
  const QString name = database_.connectionName();
  database_.close();
  database_ = QSqlDatabase();
  QSqlDatabase::removeDatabase(name);
}

SqlResult SqliteConnection::Execute(const SqlStatements& statements) {
  SqlResult result;
  try {
    for (const SqlStatement& statement : statements) {
      SqlResult next = RunOne(database_, statement);
      if (next.rows.isEmpty()) next.rows = std::move(result.rows);
      result = std::move(next);
    }
  } catch (const SqlError&) {
    // Its own failure would hide the first one; outside a transaction there is nothing to undo.
    QSqlQuery(database_).exec(QStringLiteral("ROLLBACK"));
    throw;
  }
  return result;
}

SqlErrand SqliteConnection::Append(const SqlStatements& statements, int wait_ms) {
  std::promise<SqlResult> done;
  try {
    SetWait(wait_ms);
    // One statement is a transaction of its own.
    Execute(statements.size() == 1 ? statements : InOneTransaction(statements));
    done.set_value({});
  } catch (const SqlError&) {
    done.set_exception(std::current_exception());
  }
  return done.get_future();
}

void SqliteConnection::Open(int wait_ms) {
  Close();
  read_only_ = !IsWritableStore(path_);
  if (read_only_) {
    OpenReadOnly(wait_ms);
  } else {
    OpenAs(path_, {}, wait_ms);
  }
}

void SqliteConnection::OpenReadOnly(int wait_ms) {
  const QString options = QStringLiteral("QSQLITE_OPEN_READONLY");
  try {
    OpenAs(path_, options, wait_ms);
    Run(QStringLiteral("PRAGMA schema_version"));
    return;
  } catch (const SqlError& error) {
    // A write-ahead log needs side files even for reading, which a read-only folder refuses. With
    // nothing left in that log the file is whole without them, and nobody can change it.
    const bool log_is_empty = QFileInfo(path_ + "-wal").size() == 0;
    if (!log_is_empty || error.failure() == SqlFailure::kBroken ||
        error.failure() == SqlFailure::kLocked) {
      throw;
    }
  }
  Close();
  const QString name =
      QUrl::fromLocalFile(QFileInfo(path_).absoluteFilePath()).toEncoded() + "?immutable=1";
  OpenAs(name, options + ";QSQLITE_OPEN_URI", wait_ms);
}

void SqliteConnection::OpenAs(const QString& name, const QString& options, int wait_ms) {
  QString all = "QSQLITE_BUSY_TIMEOUT=" + QString::number(wait_ms);
  if (!options.isEmpty()) all += ';' + options;
  database_.setDatabaseName(name);
  database_.setConnectOptions(all);
  if (!database_.open()) Throw(database_.lastError());
  wait_ms_ = wait_ms;
}

bool SqliteConnection::HasTable(const QString& name) {
  return !Run(QStringLiteral("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ?"),
              {name})
              .rows.isEmpty();
}

void SqliteConnection::SetWait(int wait_ms) {
  if (wait_ms == wait_ms_) return;
  Run("PRAGMA busy_timeout = " + QString::number(wait_ms));
  wait_ms_ = wait_ms;
}

void SqliteConnection::SetSync(Sync sync) {
  if (read_only_) return;
  Run(sync == Sync::kToDisk ? QStringLiteral("PRAGMA synchronous = FULL")
                            : QStringLiteral("PRAGMA synchronous = NORMAL"));
}

void SqliteConnection::Prepare() {
  if (read_only_) return;
  try {
    Run(QStringLiteral("PRAGMA journal_mode = WAL"));
  } catch (const SqlError& error) {
    // The change of the mode does not wait for a lock. Whoever holds it is making the same change,
    // and until it is made both are served by the rollback journal.
    if (error.failure() != SqlFailure::kLocked) throw;
  }
}

void SqliteConnection::KeepToOneFile() {
  const SqlResult mode = Run(QStringLiteral("PRAGMA journal_mode = DELETE"));
  if (mode.rows.isEmpty() || mode.rows[0][0].toString() != "delete") {
    throw SqlError(SqlFailure::kLocked, "the write-ahead log is in use");
  }
}

bool SqliteConnection::IsInOneFile() {
  const SqlResult mode = Run(QStringLiteral("PRAGMA journal_mode"));
  return !mode.rows.isEmpty() && mode.rows[0][0].toString() == "delete";
}

qlonglong SqliteConnection::DataVersion() {
  return Run(QStringLiteral("PRAGMA data_version")).rows.value(0).value(0).toLongLong();
}

void SqliteConnection::Alone(const std::function<void()>& work) {
  const auto end = [this] { QSqlQuery(database_).exec(QStringLiteral("ROLLBACK")); };
  Run(QStringLiteral("BEGIN EXCLUSIVE"));
  try {
    work();
  } catch (...) {
    end();
    throw;
  }
  end();
}

}  // namespace vmod17

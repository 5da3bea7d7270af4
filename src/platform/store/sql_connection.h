// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariantList>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "platform/store/store_address.h"

namespace vmod17 {

/// Why a database refused, in the distinctions that the store acts on.
enum class SqlFailure {
  kLocked,       ///< another process holds it and did not let go in time
  kBroken,       ///< what lies there is no sound database
  kReadOnly,     ///< it may be read but not written
  kFull,         ///< no room is left, or the disk does not take what is written
  kUnreachable,  ///< the connection is gone or cannot be made
  kOther,
};

class SqlError : public std::runtime_error {
 public:
  SqlError(SqlFailure failure, const std::string& text)
      : std::runtime_error(text), failure_(failure) {}

  SqlFailure failure() const { return failure_; }

 private:
  SqlFailure failure_;
};

/// A connection to one database, and what differs between the kinds of databases. All members but
/// the destructor throw SqlError.
class SqlConnection {
 public:
  /// kToDisk: a commit returns when its data would outlast a loss of power. kToSystem: it may
  /// return when they would outlast the end of the process.
  enum class Sync { kToDisk, kToSystem };

  virtual ~SqlConnection();
  SqlConnection(const SqlConnection&) = delete;
  SqlConnection& operator=(const SqlConnection&) = delete;

  /// Opens the database, or opens it again. A lock is waited for up to `wait_ms` milliseconds.
  virtual void Open(int wait_ms) = 0;
  void Close() { database_.close(); }

  /// Runs one statement with a value for each of its question marks.
  QSqlQuery Run(const QString& statement, const QVariantList& values = {});
  /// Runs `work` between the begin of a writing transaction and its commit. An exception of
  /// `work` undoes what it did and passes on.
  void InTransaction(const std::function<void()>& work);

  virtual bool HasTable(const QString& name) = 0;
  /// Within a transaction, keeps other processes from making the tables at the same time.
  virtual void LockSchema() = 0;
  /// Runs `append`, which adds a row that builds on the last one of its table, such that no other
  /// process adds one between the two. A transaction of its own.
  virtual void Append(const std::function<void()>& append) = 0;
  virtual void SetWait(int wait_ms) = 0;
  virtual void SetSync(Sync sync) = 0;
  /// Makes the database fit for two processes at a time. Called once the version is known.
  virtual void Prepare() = 0;
  /// True when the database can be read only, as far as is known without writing.
  virtual bool IsReadOnly() const = 0;

  /// Types of a column for bytes and of a key that numbers its rows upwards.
  virtual QString BytesType() const = 0;
  virtual QString RowNumberType() const = 0;

 protected:
  explicit SqlConnection(const QString& driver);

  virtual SqlFailure Classify(const QSqlError& error) const = 0;
  virtual QString BeginStatement() const = 0;
  [[noreturn]] void Throw(const QSqlError& error) const;

  QSqlDatabase database_;

 private:
  [[noreturn]] void Fail(const QSqlError& error);
  void RollBack();

  bool in_transaction_ = false;
};

std::unique_ptr<SqlConnection> MakeSqlConnection(const StoreAddress& address);

}  // namespace vmod17

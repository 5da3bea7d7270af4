// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>
#include <QVariantList>
#include <chrono>
#include <cstdint>
#include <functional>
#include <future>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "store/store_address.h"

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

/// A statement with a value for each of its question marks: text, bytes or a whole number.
struct SqlStatement {
  QString text;
  QVariantList values;
};
using SqlStatements = std::vector<SqlStatement>;

struct SqlResult {
  QList<QVariantList> rows;   ///< of a query; a column is a text or bytes
  std::int64_t affected = 0;  ///< rows that a writing statement has changed
};

/// What was sent for: its result or SqlError, once it is there.
using SqlErrand = std::shared_future<SqlResult>;

/// A connection to one database, and what differs between the kinds of databases. What goes in and
/// comes out are plain values, so that it may do its work on a thread of its own. All members but
/// the destructor and those that say so throw SqlError.
class SqlConnection {
 public:
  /// kToDisk: a commit returns when its data would outlast a loss of power. kToSystem: it may
  /// return when they would outlast the end of the process.
  enum class Sync { kToDisk, kToSystem };
  using Deadline = std::chrono::steady_clock::time_point;

  SqlConnection() = default;
  virtual ~SqlConnection() = default;
  SqlConnection(const SqlConnection&) = delete;
  SqlConnection& operator=(const SqlConnection&) = delete;

  /// Opens the database, or opens it again. A lock is waited for up to `wait_ms` milliseconds.
  virtual void Open(int wait_ms) = 0;
  /// Lets the database go. Never throws.
  virtual void Close() = 0;
  /// Until when the calls that follow may wait for a database that says nothing: then they raise
  /// kUnreachable. One that is a file of this machine always answers. Never throws.
  virtual void SetDeadline(Deadline) {}
  /// Whether `Open` would be done without a wait; begins to see to it where it would not. Never
  /// throws.
  virtual bool IsAtHand() { return true; }

  /// Whether each call takes so long that what nobody waits for had better come last. Never throws.
  virtual bool IsFar() const { return false; }

  SqlResult Run(const QString& statement, const QVariantList& values = {}) {
    return Execute({{statement, values}});
  }
  /// Runs all of them or none, in one transaction. Returns the rows of the last query among them.
  SqlResult RunTogether(SqlStatements statements);
  /// Runs `work` between the begin of a writing transaction and its commit. An exception of
  /// `work` undoes what it did and passes on.
  void InTransaction(const std::function<void()>& work);
  /// The same as `RunTogether` for statements that add rows which build on the last one of their
  /// table, such that no other process adds one between the two. What keeps it from that is waited
  /// for up to `wait_ms`. A far database may still be at it on return. Never throws, the future
  /// does.
  virtual SqlErrand Append(const SqlStatements& statements, int wait_ms) = 0;

  virtual bool HasTable(const QString& name) = 0;
  /// Within a transaction, keeps other processes from making the tables at the same time.
  virtual void LockSchema() = 0;
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
  /// Runs them in their order up to the first that fails, which ends the transaction that it stands
  /// in. Returns the result of the last, but with the rows of the last query that found any.
  virtual SqlResult Execute(const SqlStatements& statements) = 0;
  virtual QString BeginStatement() const = 0;
  SqlStatements InOneTransaction(SqlStatements statements) const;
};

std::unique_ptr<SqlConnection> MakeSqlConnection(const StoreAddress& address);

}  // namespace vmod17

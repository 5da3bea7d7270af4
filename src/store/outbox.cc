// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/outbox.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <utility>

#include "base/run_time_error.h"
#include "store/date_text.h"
#include "store/sqlite_connection.h"
#include "store/store_file.h"
#include "store/tagged_value_codec.h"

namespace vmod17 {
namespace {

// Of the tables; a file of another one is of no use to this program.
constexpr int kVersion = 1;
// For another process that adds a piece.
constexpr int kPatienceMs = 1000;

/// What tells a process from all others of this machine: its number and when it began, in the
/// system's count. "" when there is none of this number.
QString Mark(const QString& process) {
  QFile facts("/proc/" + process + "/stat");
  if (!facts.open(QIODevice::ReadOnly)) return {};
  // The name before the bracket may hold anything. Behind it the beginning is the twentieth.
  const QByteArray line = facts.readAll();
  return process + ' ' +
         QString::fromLatin1(line.mid(line.lastIndexOf(')') + 2).split(' ').value(19));
}

QString OwnMark() { return Mark(QString::number(QCoreApplication::applicationPid())); }

bool IsOfAnother(const QString& mark) {
  return mark != OwnMark() && mark == Mark(mark.section(' ', 0, 0));
}

}  // namespace

Outbox::Outbox(QString path, std::function<DateTime()> clock, PutAsideHandler put_aside)
    : path_(std::move(path)), clock_(std::move(clock)), put_aside_(std::move(put_aside)) {}
Outbox::~Outbox() = default;

bool Outbox::Open() {
  if (connection_) return true;
  try {
    OpenAnew();
  } catch (const SqlError& error) {
    if (error.failure() != SqlFailure::kBroken || !PutAside()) return false;
    try {
      OpenAnew();
    } catch (const SqlError&) {
      return false;
    }
  }
  return true;
}

bool Outbox::PutAside() {
  connection_.reset();
  const QString aside = MoveStoreAside(path_, clock_());
  if (aside.isEmpty()) return false;
  if (put_aside_) put_aside_(aside);
  return true;
}

void Outbox::OpenAnew() {
  if (const QString refusal = PrepareStoreFile(path_, Privacy::kEnforced); !refusal.isEmpty()) {
    throw SqlError(SqlFailure::kUnreachable, refusal.toStdString());
  }
  auto connection = std::make_unique<SqliteConnection>(path_);
  connection->Open(kPatienceMs);
  connection->SetSync(SqlConnection::Sync::kToDisk);
  const int version = connection->Run("PRAGMA user_version").rows[0][0].toInt();
  if (version == 0) {
    connection->RunTogether(
        {{"CREATE TABLE IF NOT EXISTS piece (number INTEGER PRIMARY KEY AUTOINCREMENT, "
          "at TEXT NOT NULL, owner TEXT NOT NULL)",
          {}},
         {"CREATE TABLE IF NOT EXISTS entry (id INTEGER PRIMARY KEY AUTOINCREMENT, "
          "piece INTEGER NOT NULL, kind TEXT NOT NULL, content BLOB NOT NULL)",
          {}},
         {"PRAGMA user_version = " + QString::number(kVersion), {}}});
  } else if (version != kVersion) {
    throw SqlError(SqlFailure::kBroken, "the file is of another version");
  }
  connection_ = std::move(connection);
}

std::optional<std::int64_t> Outbox::Add(const std::vector<OutboxEntry>& entries) {
  has_refused_ = true;
  if (!Open()) return {};
  SqlStatements statements = {{"INSERT INTO piece (at, owner) VALUES (?, ?)",
                               {QString::fromStdString(TextOf(clock_())), OwnMark()}}};
  for (const OutboxEntry& entry : entries) {
    statements.push_back(
        {"INSERT INTO entry (piece, kind, content) "
         "SELECT MAX(number), ?, ? FROM piece",
         {QString::fromStdString(entry.kind),
          QByteArray::fromStdString(EncodeTaggedValue(entry.content))}});
  }
  statements.push_back({"SELECT MAX(number) FROM piece", {}});
  try {
    const SqlResult added = connection_->RunTogether(std::move(statements));
    has_refused_ = false;
    return added.rows.value(0).value(0).toLongLong();
  } catch (const SqlError&) {
    return {};
  }
}

std::vector<OutboxPiece> Outbox::Pieces() {
  std::vector<OutboxPiece> pieces;
  if (!QFileInfo::exists(path_) || !Open()) return pieces;
  SqlResult found;
  try {
    found = connection_->Run(
        "SELECT number, at, kind, content, owner FROM piece JOIN entry ON piece = number ORDER "
        "BY id");
  } catch (const SqlError& error) {
    if (error.failure() == SqlFailure::kBroken) PutAside();
    return pieces;
  }
  for (const QVariantList& row : found.rows) {
    const std::int64_t number = row[0].toLongLong();
    if (pieces.empty() || pieces.back().number != number) {
      pieces.push_back(
          {number, row[1].toString().toStdString(), IsOfAnother(row[4].toString()), {}});
    }
    try {
      pieces.back().entries.push_back(
          {row[2].toString().toStdString(), DecodeTaggedValue(row[3].toByteArray().toStdString())});
    } catch (const RunTimeError&) {
      // Of no use to anybody.
    }
  }
  return pieces;
}

void Outbox::Remove(std::int64_t piece) {
  if (!Open()) return;
  const QVariantList number = {QVariant::fromValue<qlonglong>(piece)};
  try {
    connection_->RunTogether({{"DELETE FROM entry WHERE piece = ?", number},
                              {"DELETE FROM piece WHERE number = ?", number}});
  } catch (const SqlError&) {
    // They are brought once more, to a store that has them already.
  }
}

}  // namespace vmod17

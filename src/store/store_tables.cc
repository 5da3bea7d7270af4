// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/store_tables.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <algorithm>
#include <utility>

namespace vmod17 {
namespace {

// What a line takes beside its text: the numbers, the date, and its share of table and index.
constexpr std::int64_t kRowOverhead = 80;
// One line alone must not fill the log.
constexpr std::size_t kLongestLine = 16 * 1024;
// Others may write into the store as well. What is longer than this was not entered by anybody.
constexpr int kLongestNumber = 1000;
constexpr int kLongestName = 10'000;
constexpr int kLongestSetting = 8192;

// A server refuses NUL in a text, and both kinds would cut it there.
QString Text(const std::string& bytes) {
  return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()))
      .replace(QChar(u'\0'), QChar(QChar::ReplacementCharacter));
}

QByteArray Bytes(const std::string& bytes) {
  return {bytes.data(), static_cast<qsizetype>(bytes.size())};
}

QVariantList KeyValues(const RecordKey& key) {
  return {Text(key.user), Text(key.program), Text(key.key)};
}

std::string TextIn(const QVariantList& row, int column) {
  return row.value(column).toString().toStdString();
}

/// The same, with "…" in the place of what is too long.
std::string ShortText(const QVariantList& row, int column, qsizetype longest) {
  const QString text = row.value(column).toString();
  return (text.size() > longest ? text.left(longest) + QChar(0x2026) : text).toStdString();
}

/// From this column on.
StoreUser UserIn(const QVariantList& row, int column) {
  return {TextIn(row, column), ShortText(row, column + 1, kLongestName),
          ShortText(row, column + 2, kLongestName)};
}

LogEntry EntryOf(const QVariantList& row) {
  const auto text = [&row](int column) { return ShortText(row, column, kLongestLine); };
  LogEntry entry;
  entry.at = text(0);
  entry.user = text(1);
  entry.kind = text(2) == "ERR" ? LogEntry::Kind::kError : LogEntry::Kind::kMessage;
  entry.place = text(3);
  entry.number = row.value(4).toLongLong();
  entry.text = text(5);
  entry.source = text(6);
  return entry;
}

SqlStatement WriteStatement(const RecordKey& key, const std::string& value) {
  return {QStringLiteral("INSERT INTO melvado_record (user_id, program, record_key, value) "
                         "VALUES (?, ?, ?, ?) ON CONFLICT (user_id, program, record_key) "
                         "DO UPDATE SET value = excluded.value"),
          KeyValues(key) << Bytes(value)};
}

QString MakeUserTable() {
  return QStringLiteral(
      "CREATE TABLE melvado_user (user_id TEXT PRIMARY KEY, name TEXT NOT NULL, "
      "first_name TEXT NOT NULL)");
}

// Tables of ours without a version that we can read were not written by any version up to ours.
constexpr std::int64_t kUnknownVersion = kStoreVersion + 1;

std::int64_t VersionIn(const QVariant& value) {
  bool is_number = false;
  const std::int64_t version = value.toString().toLongLong(&is_number);
  return is_number ? version : kUnknownVersion;
}

}  // namespace

std::string FingerprintOf(const std::optional<std::string>& value) {
  if (!value) return "none";
  return QCryptographicHash::hash(Bytes(*value), QCryptographicHash::Sha256).toHex().toStdString();
}

std::optional<std::int64_t> StoreTables::Version() {
  if (!connection_.HasTable(QStringLiteral("melvado_meta"))) return {};
  const SqlResult found = connection_.Run(
      QStringLiteral("SELECT value FROM melvado_meta WHERE name = 'schema_version'"));
  return found.rows.isEmpty() ? kUnknownVersion : VersionIn(found.rows[0][0]);
}

std::optional<StoreTables::Facts> StoreTables::LookInto(const std::string& seat,
                                                        const std::string& former_seat,
                                                        AlsoUsers also_users) {
  QString statement = QStringLiteral(
      "SELECT 'version', value, '', '' FROM melvado_meta WHERE name = 'schema_version' "
      "UNION ALL SELECT 'seat', name, value, '' FROM melvado_setting WHERE seat = ? "
      "AND length(value) <= ? "
      "UNION ALL SELECT 'former', name, value, '' FROM melvado_setting WHERE seat = ? "
      "AND length(value) <= ?");
  QVariantList values = {Text(seat), kLongestSetting, Text(former_seat), kLongestSetting};
  if (also_users == AlsoUsers::kYes) {
    statement +=
        " UNION ALL SELECT 'user', user_id, name, first_name FROM melvado_user "
        "WHERE length(user_id) <= ?";
    values << kLongestNumber;
  }
  Facts facts;
  try {
    facts.version = kUnknownVersion;
    std::vector<StoreUser> users;
    for (const QVariantList& row : connection_.Run(statement, values).rows) {
      const QString kind = row[0].toString();
      if (kind == "version") facts.version = VersionIn(row[1]);
      if (kind == "seat") facts.settings[TextIn(row, 1)] = TextIn(row, 2);
      if (kind == "former") facts.former[TextIn(row, 1)] = TextIn(row, 2);
      if (kind == "user") users.push_back(UserIn(row, 1));
    }
    if (also_users == AlsoUsers::kYes) facts.users = std::move(users);
    return facts;
  } catch (const SqlError& error) {
    if (error.failure() != SqlFailure::kOther) throw;
  }
  // There are none of the tables yet, or not all of them.
  const std::optional<std::int64_t> version = Version();
  if (!version) return {};
  facts.version = *version;
  if (*version > kStoreVersion) return facts;
  facts.settings = Settings(seat);
  facts.former = Settings(former_seat);
  return facts;
}

void StoreTables::Create() {
  const QString statements[] = {
      QStringLiteral("CREATE TABLE melvado_meta (name TEXT PRIMARY KEY, value TEXT NOT NULL)"),
      QStringLiteral("CREATE TABLE melvado_record (user_id TEXT NOT NULL, program TEXT NOT NULL, "
                     "record_key TEXT NOT NULL, value %1 NOT NULL, "
                     "PRIMARY KEY (user_id, program, record_key))")
          .arg(connection_.BytesType()),
      QStringLiteral("CREATE TABLE melvado_setting (seat TEXT NOT NULL, name TEXT NOT NULL, "
                     "value TEXT NOT NULL, PRIMARY KEY (seat, name))"),
      QStringLiteral("CREATE TABLE melvado_log (id %1, at TEXT NOT NULL, user_id TEXT NOT NULL, "
                     "kind TEXT NOT NULL, place TEXT NOT NULL, number BIGINT NOT NULL, "
                     "text TEXT NOT NULL, source TEXT NOT NULL, total BIGINT NOT NULL)")
          .arg(connection_.RowNumberType()),
      QStringLiteral("CREATE INDEX melvado_log_total ON melvado_log (total)"),
      MakeUserTable(),
  };
  connection_.InTransaction([&] {
    connection_.LockSchema();
    if (connection_.HasTable(QStringLiteral("melvado_meta"))) return;
    for (const QString& statement : statements) connection_.Run(statement);
    connection_.Run(QStringLiteral("INSERT INTO melvado_meta VALUES ('schema_version', ?)"),
                    {QString::number(kStoreVersion)});
  });
}

void StoreTables::Upgrade() {
  connection_.SetSync(SqlConnection::Sync::kToDisk);
  connection_.InTransaction([&] {
    connection_.LockSchema();
    if (Version().value_or(kStoreVersion) >= kStoreVersion) return;
    connection_.Run(MakeUserTable());
    connection_.Run(QStringLiteral(
        "INSERT INTO melvado_user (user_id, name, first_name) "
        "SELECT chosen.value, COALESCE(MAX(name.value), ''), COALESCE(MAX(first.value), '') "
        "FROM melvado_setting chosen "
        "LEFT JOIN melvado_setting name ON name.seat = chosen.seat AND name.name = 'user.name' "
        "LEFT JOIN melvado_setting first "
        "ON first.seat = chosen.seat AND first.name = 'user.first_name' "
        "WHERE chosen.name = 'user.id' AND chosen.value <> '' GROUP BY chosen.value"));
    connection_.Run(
        QStringLiteral("UPDATE melvado_meta SET value = ? WHERE name = 'schema_version'"),
        {QString::number(kStoreVersion)});
  });
}

std::optional<std::string> StoreTables::Read(const RecordKey& key) {
  const SqlResult found =
      connection_.Run(QStringLiteral("SELECT value FROM melvado_record "
                                     "WHERE user_id = ? AND program = ? AND record_key = ?"),
                      KeyValues(key));
  if (found.rows.isEmpty()) return {};
  return found.rows[0][0].toByteArray().toStdString();
}

void StoreTables::Write(const Records& records) {
  connection_.SetSync(SqlConnection::Sync::kToDisk);
  SqlStatements statements;
  for (const auto& [key, value] : records) statements.push_back(WriteStatement(key, value));
  connection_.RunTogether(std::move(statements));
}

bool StoreTables::WriteLate(const LateRecords& records, const std::string& suffix) {
  if (records.empty()) return true;
  QStringList rows_of_keys;
  QStringList rows;
  QVariantList keys;
  QVariantList values;
  for (const auto& [key, record] : records) {
    rows_of_keys << QStringLiteral("(?::text, ?::text, ?::text)");
    keys << KeyValues(key);
    rows << QStringLiteral("(?::text, ?::text, ?::text, ?::bytea, ?::text)");
    values << KeyValues(key) << Bytes(record.value) << Text(record.seen);
  }
  const QString all_keys = rows_of_keys.join(QStringLiteral(", "));
  // Locks the rows, also those that are not there yet: they are made, and empty.
  const SqlStatement lock = {
      QStringLiteral("INSERT INTO melvado_record (user_id, program, record_key, value) "
                     "SELECT *, ''::bytea FROM (VALUES %1) late "
                     "ON CONFLICT (user_id, program, record_key) "
                     "DO UPDATE SET value = melvado_record.value")
          .arg(all_keys),
      keys};
  const SqlStatement write = {
      QStringLiteral(
          "WITH late (user_id, program, record_key, value, seen) AS (VALUES %1), "
          "other AS (SELECT user_id, program, record_key, held.value, seen FROM late "
          "JOIN melvado_record held USING (user_id, program, record_key) "
          "WHERE held.value NOT IN (''::bytea, late.value)), "
          "verdict AS (SELECT EXISTS (SELECT 1 FROM other WHERE seen <> '' "
          "AND seen <> encode(sha256(value), 'hex')) AS is_late), "
          "aside AS (INSERT INTO melvado_record (user_id, program, record_key, value) "
          "SELECT user_id, program, record_key || ?::text, value FROM late, verdict WHERE is_late "
          "UNION ALL SELECT user_id, program, record_key || ?::text, value FROM other, verdict "
          "WHERE NOT is_late AND seen = '' "
          "ON CONFLICT (user_id, program, record_key) DO UPDATE SET value = excluded.value), "
          "present AS (UPDATE melvado_record held SET value = late.value FROM late, verdict "
          "WHERE NOT is_late AND held.user_id = late.user_id AND held.program = late.program "
          "AND held.record_key = late.record_key) "
          "SELECT CASE WHEN is_late THEN 'late' ELSE 'newest' END FROM verdict")
          .arg(rows.join(QStringLiteral(", "))),
      values + QVariantList{Text(suffix), Text(suffix)}};
  const SqlStatement tidy_up = {QStringLiteral("DELETE FROM melvado_record WHERE value = ''::bytea "
                                               "AND (user_id, program, record_key) IN (VALUES %1)")
                                    .arg(all_keys),
                                keys};
  connection_.SetSync(SqlConnection::Sync::kToDisk);
  const SqlResult result = connection_.RunTogether({lock, write, tidy_up});
  return TextIn(result.rows.value(0), 0) == "newest";
}

void StoreTables::Rename(const RecordKey& key, const std::string& value,
                         const std::string& new_key) {
  connection_.Run(
      QStringLiteral("UPDATE melvado_record SET record_key = ? "
                     "WHERE user_id = ? AND program = ? AND record_key = ? AND value = ?"),
      QVariantList{Text(new_key)} + KeyValues(key) + QVariantList{Bytes(value)});
}

std::map<std::string, std::string> StoreTables::Settings(const std::string& seat) {
  std::map<std::string, std::string> settings;
  const SqlResult found =
      connection_.Run(QStringLiteral("SELECT name, value FROM melvado_setting WHERE seat = ? "
                                     "AND length(value) <= ?"),
                      {Text(seat), kLongestSetting});
  for (const QVariantList& row : found.rows) settings[TextIn(row, 0)] = TextIn(row, 1);
  return settings;
}

void StoreTables::SetSettings(const std::string& seat,
                              const std::map<std::string, std::string>& settings) {
  connection_.SetSync(SqlConnection::Sync::kToDisk);
  SqlStatements statements;
  for (const auto& [name, value] : settings) {
    statements.push_back({QStringLiteral("INSERT INTO melvado_setting (seat, name, value) "
                                         "VALUES (?, ?, ?) ON CONFLICT (seat, name) "
                                         "DO UPDATE SET value = excluded.value"),
                          {Text(seat), Text(name), Text(value)}});
  }
  connection_.RunTogether(std::move(statements));
}

std::vector<StoreUser> StoreTables::Users() {
  std::vector<StoreUser> users;
  const SqlResult found =
      connection_.Run(QStringLiteral("SELECT user_id, name, first_name FROM melvado_user "
                                     "WHERE length(user_id) <= ?"),
                      {kLongestNumber});
  for (const QVariantList& row : found.rows) users.push_back(UserIn(row, 0));
  return users;
}

bool StoreTables::AddUser(const StoreUser& user) {
  connection_.SetSync(SqlConnection::Sync::kToDisk);
  return connection_
             .Run(QStringLiteral("INSERT INTO melvado_user (user_id, name, first_name) "
                                 "VALUES (?, ?, ?) ON CONFLICT (user_id) DO NOTHING"),
                  {Text(user.id), Text(user.name), Text(user.first_name)})
             .affected == 1;
}

void StoreTables::SaveUser(const StoreUser& user) {
  const auto in_seats = [&](const char* setting, const std::string& value) {
    return SqlStatement{QStringLiteral("UPDATE melvado_setting SET value = ? WHERE name = ? "
                                       "AND seat IN (SELECT seat FROM melvado_setting "
                                       "WHERE name = 'user.id' AND value = ?)"),
                        {Text(value), QString::fromLatin1(setting), Text(user.id)}};
  };
  connection_.SetSync(SqlConnection::Sync::kToDisk);
  connection_.RunTogether(
      {{QStringLiteral("INSERT INTO melvado_user (user_id, name, first_name) "
                       "VALUES (?, ?, ?) ON CONFLICT (user_id) DO UPDATE SET "
                       "name = excluded.name, first_name = excluded.first_name"),
        {Text(user.id), Text(user.name), Text(user.first_name)}},
       in_seats("user.name", user.name),
       in_seats("user.first_name", user.first_name)});
}

void StoreTables::RemoveUser(const std::string& id) {
  connection_.SetSync(SqlConnection::Sync::kToDisk);
  connection_.RunTogether(
      {{QStringLiteral("DELETE FROM melvado_user WHERE user_id = ?"), {Text(id)}},
       {QStringLiteral("UPDATE melvado_setting SET value = '' "
                       "WHERE name = 'user.id' AND value = ?"),
        {Text(id)}}});
}

std::int64_t StoreTables::SizeOf(const LogEntry& entry) {
  const std::string* const texts[] = {&entry.text, &entry.place, &entry.source};
  std::int64_t size = static_cast<std::int64_t>(entry.user.size()) + kRowOverhead;
  for (const std::string* text : texts) {
    size += Text(text->substr(0, kLongestLine)).toUtf8().size();
  }
  return size;
}

SqlErrand StoreTables::AppendLog(const std::vector<LogEntry>& lines,
                                 std::optional<std::int64_t> limit, int wait_ms) {
  SqlStatements statements;
  for (const LogEntry& line : lines) {
    statements.push_back(
        {QStringLiteral("INSERT INTO melvado_log (at, user_id, kind, place, number, text, source, "
                        "total) VALUES (?, ?, ?, ?, ?, ?, ?, COALESCE("
                        "(SELECT total FROM melvado_log ORDER BY id DESC LIMIT 1), 0) + ?)"),
         {Text(line.at), Text(line.user),
          line.kind == LogEntry::Kind::kError ? QStringLiteral("ERR") : QStringLiteral("MESS"),
          Text(line.place.substr(0, kLongestLine)), QVariant::fromValue<qlonglong>(line.number),
          Text(line.text.substr(0, kLongestLine)), Text(line.source.substr(0, kLongestLine)),
          QVariant::fromValue<qlonglong>(SizeOf(line))}});
  }
  if (limit) {
    statements.push_back(
        {QStringLiteral("DELETE FROM melvado_log WHERE total <= "
                        "(SELECT total FROM melvado_log ORDER BY id DESC LIMIT 1) - ?"),
         {QVariant::fromValue<qlonglong>(*limit)}});
  }
  // A log line may be lost with the power, so it does not wait for the disk.
  connection_.SetSync(SqlConnection::Sync::kToSystem);
  return connection_.Append(statements, wait_ms);
}

std::vector<LogEntry> StoreTables::Log(int count) {
  std::vector<LogEntry> entries;
  const SqlResult found = connection_.Run(
      QStringLiteral("SELECT at, user_id, kind, place, number, text, source FROM melvado_log "
                     "ORDER BY id DESC LIMIT ?"),
      {count});
  for (const QVariantList& row : found.rows) entries.push_back(EntryOf(row));
  std::reverse(entries.begin(), entries.end());
  return entries;
}

}  // namespace vmod17

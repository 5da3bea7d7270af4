// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/store/log_entry.h"
#include "platform/store/sql_connection.h"
#include "platform/store/store_user.h"

namespace vmod17 {

/// Version of the tables. A program reads and writes a store of this version alone and makes an
/// older one into it; it leaves a newer one as it is.
inline constexpr std::int64_t kStoreVersion = 2;

/// Whose record it is, and which. `user` is "" for the records of nobody.
struct RecordKey {
  std::string user;
  std::string program;
  std::string key;

  auto operator<=>(const RecordKey&) const = default;
};

using Records = std::map<RecordKey, std::string>;

/// The five tables of a store and the statements on them:
///
/// | table           | one row for                                                       |
/// |-----------------|-------------------------------------------------------------------|
/// | melvado_meta    | a fact of the store itself: `schema_version`                      |
/// | melvado_record  | a stored value, by user, program and key                          |
/// | melvado_setting | a setting, by seat and name                                       |
/// | melvado_log     | a log line; `total` is the size of all lines up to and with it    |
/// | melvado_user    | a user who can be chosen, by number; since version 2              |
///
/// Every writing member is one committed transaction. Names and lines are kept as UTF-8 text, in
/// which invalid bytes and NUL become U+FFFD. Errors: SqlError, of all members.
class StoreTables {
 public:
  explicit StoreTables(SqlConnection& connection) : connection_(connection) {}

  /// The version of the store, or no value when it has no tables yet.
  std::optional<std::int64_t> Version();
  /// Makes the tables, if nobody else has made them meanwhile.
  void Create();
  /// Makes a store of an older version into one of this version, if nobody else has done it
  /// meanwhile. Whoever is chosen in the settings of a seat becomes a user of the store.
  void Upgrade();

  std::optional<std::string> Read(const RecordKey& key);
  /// Writes all of them or none.
  void Write(const Records& records);
  /// Gives a record another key, unless its value is another one by now.
  void Rename(const RecordKey& key, const std::string& value, const std::string& new_key);

  std::map<std::string, std::string> Settings(const std::string& seat);
  /// Writes all of them or none.
  void SetSettings(const std::string& seat, const std::map<std::string, std::string>& settings);

  std::vector<StoreUser> Users();
  /// False, and nothing is done, when there is a user of this number.
  bool AddUser(const StoreUser& user);
  /// Writes the user's names into the list and into the settings of every seat that has chosen him.
  void SaveUser(const StoreUser& user);
  /// Takes the user off the list and from the seats that have chosen him. His records stay.
  void RemoveUser(const std::string& id);

  /// Returns how many bytes the line counts for.
  std::int64_t AppendLog(const LogEntry& entry);
  /// Deletes the oldest lines until those that are left take no more than `limit` bytes.
  void TrimLog(std::int64_t limit);
  /// The newest `count` lines, oldest first.
  std::vector<LogEntry> Log(int count);

 private:
  SqlConnection& connection_;
};

}  // namespace vmod17

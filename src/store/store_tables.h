// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "store/log_entry.h"
#include "store/sql_connection.h"
#include "store/store_user.h"

namespace vmod17 {

/// Version of the tables. A program reads and writes a store of this version alone and makes an
/// older one into it; it leaves a newer one as it is.
inline constexpr std::int64_t kStoreVersion = 2;

/// How long a log that somebody holds keeps a line waiting on a server, where all get it in turn.
inline constexpr int kPatienceForLogMs = 250;

/// Whose record it is, and which. `user` is "" for the records of nobody.
struct RecordKey {
  std::string user;
  std::string program;
  std::string key;

  // What the compiler writes for it compares with 0.
  auto operator<=>(const RecordKey&) const = default;  // NOLINT(modernize-use-nullptr)
};

using Records = std::map<RecordKey, std::string>;

/// What stands for a record, or for none: two that are alike are the same record.
std::string FingerprintOf(const std::optional<std::string>& value);

/// A record that comes to the store some time after it was stored.
struct LateRecord {
  std::string value;
  /// `FingerprintOf` what the store held when the record was made; "" when nobody knew.
  std::string seen;
};
using LateRecords = std::map<RecordKey, LateRecord>;

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

  /// What has to be known of a store before it is used.
  struct Facts {
    std::int64_t version = 0;
    std::map<std::string, std::string> settings;  ///< of the seat
    std::map<std::string, std::string> former;    ///< of the other one
    std::optional<std::vector<StoreUser>> users;  ///< where they are wanted and there
  };
  enum class AlsoUsers { kNo, kYes };
  /// No value when the store has no tables yet. One statement, for a server far away.
  std::optional<Facts> LookInto(const std::string& seat, const std::string& former_seat,
                                AlsoUsers also_users);
  /// Makes the tables, if nobody else has made them meanwhile.
  void Create();
  /// Makes a store of an older version into one of this version, if nobody else has done it
  /// meanwhile. Whoever is chosen in the settings of a seat becomes a user of the store.
  void Upgrade();

  std::optional<std::string> Read(const RecordKey& key);
  /// Writes all of them or none.
  void Write(const Records& records);
  /// Writes late records, all or none, in one errand, to a server. Where the store holds another
  /// one than was seen, somebody has stored a newer one meanwhile: that one stays, and all of these
  /// are written under their keys with `suffix`. Where nobody knew, the late one holds and the
  /// other gets the suffix; where there is none any more, the late one holds, too. Nobody can store
  /// another one between the look and the writing. Returns false when a newer one stays.
  [[nodiscard]] bool WriteLate(const LateRecords& records, const std::string& suffix);
  /// Gives a record another key, unless its value is another one by now.
  void Rename(const RecordKey& key, const std::string& value, const std::string& new_key);

  std::map<std::string, std::string> Settings(const std::string& seat);
  /// Writes all of them or none.
  void SetSettings(const std::string& seat, const std::map<std::string, std::string>& settings);

  std::vector<StoreUser> Users();
  /// False, and nothing is done, when there is a user of this number.
  [[nodiscard]] bool AddUser(const StoreUser& user);
  /// Writes the user's names into the list and into the settings of every seat that has chosen him.
  void SaveUser(const StoreUser& user);
  /// Takes the user off the list and from the seats that have chosen him. His records stay.
  void RemoveUser(const std::string& id);

  /// How many bytes a line counts for.
  static std::int64_t SizeOf(const LogEntry& entry);
  /// Adds lines, and with a `limit` deletes the oldest ones until those that are left take no more
  /// bytes. See `SqlConnection::Append` for `wait_ms` and what is returned.
  SqlErrand AppendLog(const std::vector<LogEntry>& lines, std::optional<std::int64_t> limit,
                      int wait_ms);
  /// The newest `count` lines, oldest first.
  std::vector<LogEntry> Log(int count);

 private:
  std::optional<std::int64_t> Version();

  SqlConnection& connection_;
};

}  // namespace vmod17

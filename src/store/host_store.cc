// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/host_store.h"

#include <QDateTime>
#include <algorithm>
#include <map>
#include <utility>

#include "base/run_time_error.h"
#include "store/pending_writes.h"
#include "store/seat.h"
#include "store/seat_settings.h"
#include "store/sql_connection.h"
#include "store/store_address.h"
#include "store/store_backup.h"
#include "store/store_commands.h"
#include "store/store_connection.h"
#include "store/trouble_report.h"

namespace vmod17 {
namespace {

using Patience = StoreConnection::Patience;

DateTime SystemTime() {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate date = now.date();
  const QTime time = now.time();
  return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

StoreOptions Completed(StoreOptions options) {
  if (!options.clock) options.clock = SystemTime;
  if (options.data_folder.empty()) options.data_folder = UserDataFolder();
  // As of a file, see `StoreAddress::Kind::kNotUtf8`.
  if (!QByteArrayView(options.data_folder).isValidUtf8()) options.data_folder.clear();
  return options;
}

Seat SeatOf(const StoreOptions& options, const StoreAddress& address) {
  if (options.seat.empty() && address.kind == StoreAddress::Kind::kServer) {
    return SeatIn(QString::fromStdString(options.data_folder));
  }
  return {options.seat, ""};
}

}  // namespace

/// In the order in which they are made: each knows those above it. What a lower one has to tell a
/// higher one goes through a hook, which is not called before all are there.
struct HostStore::Parts {
  explicit Parts(StoreOptions asked)
      : options(Completed(std::move(asked))),
        address(ParseStoreAddress(options.address)),
        seat(SeatOf(options, address)),
        settings(options.session, [this] { return pending.SettingsThatWait(); }),
        trouble(options.notify, address, [this] { return pending.CanKeep(); }),
        connection(options, address, seat, settings, trouble,
                   {.opened = [this] { pending.LookLaterForTheRest(); },
                    .away = [this] { pending.LookLater(); }}),
        pending(options, address, seat.name, connection, settings, trouble) {}

  const StoreOptions options;
  const StoreAddress address;
  const Seat seat;
  SeatSettings settings;
  TroubleReport trouble;
  StoreConnection connection;
  PendingWrites pending;
};

HostStore::HostStore(StoreOptions options) : parts_(std::make_unique<Parts>(std::move(options))) {}

HostStore::~HostStore() = default;

std::unique_ptr<HostService> HostStore::Service() {
  return std::make_unique<StoreCommands>(*this, parts_->options, parts_->connection,
                                         parts_->pending, parts_->settings, parts_->trouble);
}

void HostStore::TellAnew() { parts_->trouble.TellAnew(); }

void HostStore::LookForTheRest() { parts_->pending.LookSoon(); }

// ---- Settings

/// As far as they can be had.
SeatSettings& HostStore::Settings() {
  try {
    parts_->connection.NeedSettings(Patience::kOnlyOnce);
  } catch (const SqlError& error) {
    parts_->trouble.TellUnreadable(error);
  }
  return parts_->settings;
}

std::optional<StoreUser> HostStore::User() {
  const StoreConnection::Call call(parts_->connection);
  StoreUser user{Settings().Get(kUserId), Settings().Get(kUserName),
                 Settings().Get(kUserFirstName)};
  if (user.id.empty()) return {};
  return user;
}

void HostStore::SetUser(const StoreUser& user) {
  parts_->pending.ChangeSettings(
      {{kUserId, user.id}, {kUserName, user.name}, {kUserFirstName, user.first_name}});
}

std::string HostStore::Language() { return Settings().Get(kLanguage); }
void HostStore::SetLanguage(const std::string& language) {
  parts_->pending.ChangeSettings({{kLanguage, language}});
}
std::string HostStore::MidiDevice() { return Settings().Get(kMidiDevice); }
void HostStore::SetMidiDevice(const std::string& name) {
  parts_->pending.ChangeSettings({{kMidiDevice, name}});
}
std::string HostStore::Soundfont() { return Settings().Get(kSoundfont); }
void HostStore::SetSoundfont(const std::string& path) {
  parts_->pending.ChangeSettings({{kSoundfont, path}});
}

std::string HostStore::Session() { return Settings().Session(); }

// ---- The log

std::vector<LogEntry> HostStore::Log(int count) {
  const StoreConnection::Call call(parts_->connection);
  std::vector<LogEntry> entries;
  parts_->pending.BringLog();
  try {
    parts_->connection.With(Patience::kOnlyOnce,
                            [&](StoreTables& tables) { entries = tables.Log(count); });
  } catch (const SqlError& error) {
    parts_->trouble.TellUnreadable(error);
  }
  return entries;
}

// ---- Users

std::vector<StoreUser> HostStore::Users() {
  StoreConnection& connection = parts_->connection;
  const StoreConnection::Call call(connection);
  std::map<std::string, StoreUser> users;
  try {
    connection.With(Patience::kOnlyOnce, [&](StoreTables& tables) {
      if (!connection.HasUsers()) return;
      std::optional<std::vector<StoreUser>> all = connection.TakeUsers();
      if (!all) all = tables.Users();
      for (StoreUser& user : *all) users[user.id] = std::move(user);
    });
  } catch (const SqlError& error) {
    parts_->trouble.TellUnreadable(error);
  }
  for (const auto& [id, change] : parts_->pending.Users()) {
    if (change) {
      users[id] = *change;
    } else {
      users.erase(id);
    }
  }
  std::vector<StoreUser> list;
  list.reserve(users.size());
  for (auto& [id, user] : users) list.push_back(std::move(user));
  return list;
}

bool HostStore::IsUser(const std::string& id) {
  return std::ranges::any_of(Users(), [&](const StoreUser& user) { return user.id == id; });
}

bool HostStore::SaveUser(const StoreUser& user, UserIs is) {
  if (user.id.empty()) {
    throw RunTimeError(ErrorNumber::kInvalidCall, "a user without a number", "vmod17.HostStore");
  }
  PendingWrites& pending = parts_->pending;
  const StoreConnection::Call call(parts_->connection);
  if (is == UserIs::kNew && pending.KeepsUser(user.id)) return false;
  bool added = true;
  const bool written = pending.WriteUser([&](StoreTables& tables) {
    if (is == UserIs::kNew) {
      added = tables.AddUser(user);
    } else {
      tables.SaveUser(user);
    }
  });
  if (!written && is == UserIs::kNew && IsUser(user.id)) added = false;
  if (!added) return false;
  if (written) {
    pending.ForgetUser(user.id);
  } else {
    pending.KeepUser(user.id, user, is);
  }
  if (Settings().Get(kUserId) == user.id) {
    pending.SetHere(kUserName, user.name);
    pending.SetHere(kUserFirstName, user.first_name);
  }
  return true;
}

void HostStore::RemoveUser(const std::string& id) {
  PendingWrites& pending = parts_->pending;
  const StoreConnection::Call call(parts_->connection);
  if (pending.WriteUser([&](StoreTables& tables) { tables.RemoveUser(id); })) {
    pending.ForgetUser(id);
  } else {
    pending.KeepUser(id, std::nullopt, UserIs::kKnown);
  }
  if (Settings().Get(kUserId) == id) pending.SetHere(kUserId, "");
}

// ---- The backup

std::optional<Notice> HostStore::Restore(StoreBackup& backup) {
  StoreConnection& connection = parts_->connection;
  // What waits in memory belongs to the store that is kept aside.
  try {
    if (connection.IsOpen() && !connection.IsReadOnly()) parts_->pending.WritePending();
  } catch (const SqlError&) {
    // The user was told when it could not be written the first time.
  }
  connection.Close();
  if (auto refusal = backup.PutInPlace(parts_->options.clock())) return refusal;
  connection.StartAnew();
  parts_->settings.Clear();
  parts_->pending.Clear();
  parts_->trouble.Clear();
  return std::nullopt;
}

}  // namespace vmod17

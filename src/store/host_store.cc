// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/host_store.h"

#include <QDateTime>
#include <QTimer>

#include "store/date_text.h"
#include "store/outbox.h"
#include "store/outbox_entries.h"
#include "store/seat.h"
#include "store/seat_settings.h"
#include "store/sql_connection.h"
#include "store/store_address.h"
#include "store/store_backup.h"
#include "store/store_file.h"
#include "store/store_notices.h"
#include "store/store_tables.h"
#include "store/tagged_value_codec.h"

namespace vmod17 {
namespace {

DateTime SystemTime() {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate date = now.date();
  const QTime time = now.time();
  return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

std::map<std::string, std::string> SettingsOf(const std::string& session) {
  std::map<std::string, std::string> settings;
  if (session.empty()) return settings;
  try {
    const TaggedValue value = DecodeTaggedValue(session);
    const TaggedValue::Array& pairs = value.Elements();
    for (std::size_t i = 0; i + 1 < pairs.size(); i += 2) {
      settings[pairs[i].String()] = pairs[i + 1].String();
    }
  } catch (const RunTimeError&) {
    // Not from a process of this version: the store knows the settings, too.
    return {};
  }
  return settings;
}

}  // namespace

HostStore::HostStore(StoreOptions options)
    : options_(std::move(options)),
      address_(std::make_unique<StoreAddress>(ParseStoreAddress(options_.address))),
      session_(SettingsOf(options_.session)),
      settings_(session_),
      log_(options_.log_limit_bytes) {
  if (!options_.clock) options_.clock = SystemTime;
  if (options_.data_folder.empty()) options_.data_folder = UserDataFolder();
  // As of a file, see `StoreAddress::Kind::kNotUtf8`.
  if (!QByteArrayView(options_.data_folder).isValidUtf8()) options_.data_folder.clear();
  if (options_.seat.empty() && IsServer()) {
    const Seat seat = SeatIn(QString::fromStdString(options_.data_folder));
    options_.seat = seat.name;
    former_seat_ = seat.former;
  }
}

HostStore::~HostStore() {
  is_ending_ = true;
  const OneCall call(*this);
  // Without an outbox this is the last chance of the log's lines.
  BringWhatWaits(outbox_ ? Patience::kOnlyOnce : Patience::kWait);
  if (log_.IsEmpty()) return;
  std::vector<OutboxEntry> lines;
  for (const LogEntry& line : log_.Take(deadline_)) lines.push_back({kLogKind, ContentOf(line)});
  if (!lines.empty()) Post(lines);
}

// ---- Settings and the log, for the host's window

std::optional<StoreUser> HostStore::User() {
  const OneCall call(*this);
  StoreUser user{Setting(kUserId), Setting(kUserName), Setting(kUserFirstName)};
  if (user.id.empty()) return {};
  return user;
}

void HostStore::SetUser(const StoreUser& user) {
  ChangeSettings({{kUserId, user.id}, {kUserName, user.name}, {kUserFirstName, user.first_name}});
}

std::string HostStore::Language() { return Setting(kLanguage); }
void HostStore::SetLanguage(const std::string& language) {
  ChangeSettings({{kLanguage, language}});
}
std::string HostStore::MidiDevice() { return Setting(kMidiDevice); }
void HostStore::SetMidiDevice(const std::string& name) { ChangeSettings({{kMidiDevice, name}}); }
std::string HostStore::Soundfont() { return Setting(kSoundfont); }
void HostStore::SetSoundfont(const std::string& path) { ChangeSettings({{kSoundfont, path}}); }

std::vector<LogEntry> HostStore::Log(int count) {
  const OneCall call(*this);
  std::vector<LogEntry> entries;
  BringLog();
  try {
    WithStore(Patience::kOnlyOnce, [&](StoreTables& tables) { entries = tables.Log(count); });
  } catch (const SqlError& error) {
    TellUnreadable(error);
  }
  return entries;
}

std::string HostStore::Session() {
  TaggedValue::Array pairs;
  for (const auto& [name, value] : CurrentSettings()) {
    pairs.emplace_back(name);
    pairs.emplace_back(value);
  }
  return EncodeTaggedValue(pairs);
}

void HostStore::ChangeSettings(const Settings& changes) {
  const OneCall call(*this);
  Settings all = changes;
  all.insert(pending_settings_.begin(), pending_settings_.end());
  bool written = false;
  try {
    written = EmptyOutbox() && WithStore(Patience::kWait, [&](StoreTables& tables) {
                if (read_only_) throw SqlError(SqlFailure::kReadOnly, "the store is read-only");
                tables.SetSettings(options_.seat, all);
              });
  } catch (const SqlError& error) {
    WriteFailed(error);
  }
  std::vector<OutboxEntry> entries;
  for (const auto& [name, value] : changes) {
    entries.push_back({kSettingKind, TaggedValue::Array{name, value}});
  }
  if (!written && Post(entries)) {
    LookForServerLater();
    all = pending_settings_;
  }
  pending_settings_ = written ? Settings() : all;
  if (written) TellAnew();
  for (const auto& [name, value] : changes) SetHere(name, value);
}

/// A setting that the store knows already, or will be told.
void HostStore::SetHere(const std::string& name, const std::string& value) {
  settings_[name] = value;
  if (pending_settings_.contains(name)) pending_settings_[name] = value;
}

// ---- Users

std::vector<StoreUser> HostStore::Users() {
  const OneCall call(*this);
  std::map<std::string, StoreUser> users;
  try {
    WithStore(Patience::kOnlyOnce, [&](StoreTables& tables) {
      if (!has_user_table_) return;
      std::vector<StoreUser> all = users_ ? *std::exchange(users_, std::nullopt) : tables.Users();
      for (StoreUser& user : all) users[user.id] = std::move(user);
    });
  } catch (const SqlError& error) {
    TellUnreadable(error);
  }
  std::map<std::string, UserChange> changes = pending_users_;
  for (const auto& [kind, content] : Kept()) {
    if (!IsUserKind(kind)) continue;
    changes[content[0].String()] =
        kind == kUserGoneKind ? UserChange() : UserChange(UserIn(content));
  }
  for (const auto& [id, change] : changes) {
    if (change) {
      users[id] = *change;
    } else {
      users.erase(id);
    }
  }
  std::vector<StoreUser> list;
  for (auto& [id, user] : users) list.push_back(std::move(user));
  return list;
}

bool HostStore::IsUser(const std::string& id) {
  for (const StoreUser& user : Users()) {
    if (user.id == id) return true;
  }
  return false;
}

bool HostStore::SaveUser(const StoreUser& user, UserIs is) {
  if (user.id.empty()) {
    throw RunTimeError(ErrorNumber::kInvalidCall, "a user without a number", "vmod17.HostStore");
  }
  const OneCall call(*this);
  const auto pending = pending_users_.find(user.id);
  if (is == UserIs::kNew && pending != pending_users_.end() && pending->second) return false;
  bool added = true;
  const bool written = WriteUser([&](StoreTables& tables) {
    if (is == UserIs::kNew) {
      added = tables.AddUser(user);
    } else {
      tables.SaveUser(user);
    }
  });
  if (!written && is == UserIs::kNew && IsUser(user.id)) added = false;
  if (!added) return false;
  if (written) {
    pending_users_.erase(user.id);
  } else {
    KeepUser(user.id, user, is);
  }
  if (Setting(kUserId) == user.id) {
    SetHere(kUserName, user.name);
    SetHere(kUserFirstName, user.first_name);
  }
  return true;
}

void HostStore::RemoveUser(const std::string& id) {
  const OneCall call(*this);
  if (WriteUser([&](StoreTables& tables) { tables.RemoveUser(id); })) {
    pending_users_.erase(id);
  } else {
    KeepUser(id, std::nullopt, UserIs::kKnown);
  }
  if (Setting(kUserId) == id) SetHere(kUserId, "");
}

// ---- Settings

const HostStore::Settings& HostStore::CurrentSettings() {
  // What another process has handed on is all that this one needs to know.
  if (was_open_ || !session_.empty()) return settings_;
  try {
    WithStore(Patience::kOnlyOnce, [](StoreTables&) {});
  } catch (const SqlError& error) {
    TellUnreadable(error);
  }
  return settings_;
}

std::string HostStore::Setting(const std::string& name) {
  const Settings& settings = CurrentSettings();
  const auto found = settings.find(name);
  return found == settings.end() ? std::string() : found->second;
}

RecordKey HostStore::KeyOf(const TaggedValue& args, Patience patience) {
  // Whose record it is, is known once the store is open.
  if (!was_open_ && session_.empty()) WithStore(patience, [](StoreTables&) {});
  return {Setting(kUserId), args[0].String(), args[1].String()};
}

std::optional<Notice> HostStore::Restore(StoreBackup& backup) {
  // What waits in memory belongs to the store that is kept aside.
  try {
    if (state_ == State::kOpen && !read_only_) WritePending();
  } catch (const SqlError&) {
    // The user was told when it could not be written the first time.
  }
  if (connection_) connection_->Close();
  if (state_ == State::kOpen) state_ = State::kClosed;
  if (auto refusal = backup.PutInPlace(options_.clock())) return refusal;
  state_ = State::kClosed;
  was_open_ = false;
  settings_.clear();
  pending_.clear();
  pending_users_.clear();
  pending_settings_.clear();
  in_memory_.reset();
  TellAnew();
  return std::nullopt;
}

}  // namespace vmod17

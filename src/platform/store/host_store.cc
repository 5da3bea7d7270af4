// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/store/host_store.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLockFile>
#include <QSysInfo>
#include <array>
#include <charconv>
#include <cstdio>

#include "platform/store/sql_connection.h"
#include "platform/store/store_address.h"
#include "platform/store/store_file.h"
#include "platform/store/store_notices.h"
#include "platform/store/store_tables.h"
#include "platform/store/tagged_value_codec.h"

namespace vmod17 {
namespace {

constexpr const char* kUserId = "user.id";
constexpr const char* kUserName = "user.name";
constexpr const char* kUserFirstName = "user.first_name";
constexpr const char* kLanguage = "language";
constexpr const char* kMidiDevice = "midi_device";
constexpr const char* kSoundfont = "soundfont";

DateTime SystemTime() {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate date = now.date();
  const QTime time = now.time();
  return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

std::string TextOf(const DateTime& time) {
  std::array<char, 96> text;
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", time.year, time.month,
                time.day, time.hour, time.minute, time.second);
  return text.data();
}

std::string TextOf(int number) {
  std::array<char, 16> text;
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), number).ptr};
}

std::string SeatOfThisMachine() {
  const QString login = qEnvironmentVariable("USER", qEnvironmentVariable("USERNAME"));
  return (QSysInfo::machineHostName() + '/' + login).toStdString();
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

// The commands without arguments are sent with an empty value or with a string.
void CheckNoArguments(const TaggedValue& args) {
  if (!args.IsEmpty()) static_cast<void>(args.String());
}

void CheckCount(const TaggedValue& args, std::size_t count) {
  if (args.Elements().size() == count) return;
  throw RunTimeError(ErrorNumber::kTypeMismatch, "a host command with too few or many arguments",
                     "vmod17.HostStore");
}

LogEntry ErrorEntry(const TaggedValue& args) {
  CheckCount(args, 4);
  LogEntry entry;
  entry.kind = LogEntry::Kind::kError;
  entry.place = args[0].String();
  entry.number = args[1].Integer();
  entry.text = args[2].String();
  entry.source = args[3].String();
  return entry;
}

LogEntry MessageEntry(const TaggedValue& args) {
  LogEntry entry;
  entry.text = args.String();
  return entry;
}

}  // namespace

class HostStore::Front : public HostService {
 public:
  explicit Front(HostStore& store) : store_(store) {}

  bool Action(std::string_view command, const TaggedValue& args, TaggedValue& result) override {
    return store_.Action(command, args, result);
  }
  void Together(const std::function<void()>& stores) override { store_.Together(stores); }

 private:
  HostStore& store_;
};

HostStore::HostStore(StoreOptions options)
    : options_(std::move(options)),
      address_(std::make_unique<StoreAddress>(ParseStoreAddress(options_.address))),
      session_(SettingsOf(options_.session)),
      settings_(session_) {
  if (!options_.clock) options_.clock = SystemTime;
  if (options_.seat.empty() && !IsFile()) options_.seat = SeatOfThisMachine();
}

HostStore::~HostStore() {
  try {
    if (state_ != State::kMemoryOnly && !read_only_) WritePending();
  } catch (const SqlError&) {
    // The user was told when it could not be written the first time.
  }
}

std::unique_ptr<HostService> HostStore::Service() { return std::make_unique<Front>(*this); }

// ---- The commands

bool HostStore::Action(std::string_view command, const TaggedValue& args, TaggedValue& result) {
  if (command == "READ") return Read(args, result);
  if (command == "STORE") return Store(args);
  if (command == "LOGMESS") return AppendLog(MessageEntry(args));
  if (command == "LOGERR") return AppendLog(ErrorEntry(args));
  CheckNoArguments(args);
  if (command == "MIDI") return Midi(result);
  if (command == "LOGIN") return Login(result);
  if (command == "LANG") return Lang(result);
  if (command == "MENUE") return options_.menue && options_.menue();
  return false;
}

void HostStore::Together(const std::function<void()>& stores) {
  if (together_) {
    throw RunTimeError(ErrorNumber::kInvalidCall, "what is stored together is begun already",
                       "vmod17.HostStore");
  }
  // The transaction is begun when all of it is there: no other process waits for `stores`, and a
  // log line in it is no part of what a lock or a full disk takes back.
  together_.emplace();
  try {
    stores();
  } catch (...) {
    together_.reset();
    throw;
  }
  const Records records = *std::exchange(together_, std::nullopt);
  if (!records.empty()) Keep(records);
}

bool HostStore::Midi(TaggedValue& result) {
  const std::string name = MidiDevice();
  if (name.empty() || !options_.midi_number) return false;
  const std::optional<int> number = options_.midi_number(name);
  if (number) result = TextOf(*number);
  return number.has_value();
}

bool HostStore::Login(TaggedValue& result) {
  const std::optional<StoreUser> user = User();
  if (user) result = TaggedValue::Array{user->id, user->name, user->first_name};
  return user.has_value();
}

bool HostStore::Lang(TaggedValue& result) {
  const std::string chosen = Language();
  if (!chosen.empty() && (!options_.language_installed || options_.language_installed(chosen))) {
    result = chosen;
    return true;
  }
  const std::optional<std::string> desktop =
      options_.desktop_language ? options_.desktop_language() : std::nullopt;
  if (desktop) result = *desktop;
  return desktop.has_value();
}

bool HostStore::Read(const TaggedValue& args, TaggedValue& result) {
  CheckCount(args, 2);
  RecordKey key;
  std::optional<std::string> stored;
  try {
    key = KeyOf(args, Patience::kOnlyOnce);
    stored = Unwritten(key);
    if (!stored) {
      WithStore(Patience::kOnlyOnce, [&](StoreTables& tables) { stored = tables.Read(key); });
    }
  } catch (const SqlError& error) {
    TellUnreadable(error);
    return false;
  }
  try {
    result = stored ? DecodeTaggedValue(*stored) : TaggedValue(TaggedValue::Array{"NIL"});
  } catch (const RunTimeError&) {
    PutAside(key, *stored);
    return false;
  }
  return true;
}

bool HostStore::Store(const TaggedValue& args) {
  CheckCount(args, 3);
  RecordKey key{"", args[0].String(), args[1].String()};
  const std::string value = EncodeTaggedValue(args[2]);
  try {
    key = KeyOf(args, Patience::kWait);
  } catch (const SqlError& error) {
    WriteFailed(error);
  }
  if (together_) {
    together_->insert_or_assign(key, value);
  } else {
    Keep({{key, value}});
  }
  return true;
}

bool HostStore::AppendLog(LogEntry entry) {
  entry.at = TextOf(options_.clock());
  entry.user = Setting(kUserId);
  bool kept = false;
  try {
    WithStore(Patience::kOnlyOnce, [&](StoreTables& tables) {
      if (read_only_) return;
      log_bytes_to_trim_ -= tables.AppendLog(entry);
      kept = true;
      if (log_bytes_to_trim_ > 0) return;
      tables.TrimLog(options_.log_limit_bytes);
      log_bytes_to_trim_ = options_.log_limit_bytes / 50;
    });
  } catch (const SqlError&) {
    // A log line is not worth a word to the user, and an error while an error is logged none
    // either.
  }
  return kept;
}

// ---- Settings and the log, for the host's window

std::optional<StoreUser> HostStore::User() {
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
  std::vector<LogEntry> entries;
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
  Settings all = changes;
  all.insert(pending_settings_.begin(), pending_settings_.end());
  bool written = false;
  try {
    written = WithStore(Patience::kWait, [&](StoreTables& tables) {
      if (read_only_) throw SqlError(SqlFailure::kReadOnly, "the store is read-only");
      tables.SetSettings(options_.seat, all);
    });
  } catch (const SqlError& error) {
    WriteFailed(error);
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
  std::map<std::string, StoreUser> users;
  try {
    WithStore(Patience::kOnlyOnce, [&](StoreTables& tables) {
      if (!has_user_table_) return;
      for (StoreUser& user : tables.Users()) users[user.id] = std::move(user);
    });
  } catch (const SqlError& error) {
    TellUnreadable(error);
  }
  for (const auto& [id, change] : pending_users_) {
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
    pending_users_[user.id] = user;
  }
  if (Setting(kUserId) == user.id) {
    SetHere(kUserName, user.name);
    SetHere(kUserFirstName, user.first_name);
  }
  return true;
}

void HostStore::RemoveUser(const std::string& id) {
  if (WriteUser([&](StoreTables& tables) { tables.RemoveUser(id); })) {
    pending_users_.erase(id);
  } else {
    pending_users_[id] = std::nullopt;
  }
  if (Setting(kUserId) == id) SetHere(kUserId, "");
}

bool HostStore::WriteUser(const Work& work) {
  try {
    return WithStore(Patience::kWait, [&](StoreTables& tables) {
      if (read_only_) throw SqlError(SqlFailure::kReadOnly, "the store is read-only");
      NeedUserTable();
      work(tables);
    });
  } catch (const SqlError& error) {
    if (error.failure() == SqlFailure::kReadOnly && !has_user_table_) {
      // Tables may be refused to a role that may well write records.
      Tell(ReadOnlyStoreNotice(address_->Display()));
    } else {
      WriteFailed(error);
    }
  }
  return false;
}

void HostStore::WritePendingUsers() {
  while (!pending_users_.empty()) {
    const auto& [id, change] = *pending_users_.begin();
    const bool written = WithStore(Patience::kOnlyOnce, [&](StoreTables& tables) {
      NeedUserTable();
      if (change) {
        tables.SaveUser(*change);
      } else {
        tables.RemoveUser(id);
      }
    });
    if (!written) return;
    pending_users_.erase(pending_users_.begin());
  }
}

// ---- Settings

const HostStore::Settings& HostStore::CurrentSettings() {
  if (was_open_) return settings_;
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

// ---- Records

RecordKey HostStore::KeyOf(const TaggedValue& args, Patience patience) {
  // Whose record it is, is known once the store is open.
  if (!was_open_) WithStore(patience, [](StoreTables&) {});
  return {Setting(kUserId), args[0].String(), args[1].String()};
}

std::optional<std::string> HostStore::Unwritten(const RecordKey& key) const {
  for (const Records* records : {together_ ? &*together_ : nullptr, &pending_}) {
    if (!records) continue;
    if (const auto found = records->find(key); found != records->end()) return found->second;
  }
  return {};
}

void HostStore::Keep(const Records& records) {
  try {
    if (WriteRecords(records)) return;
    if (in_memory_) Tell(*in_memory_);
  } catch (const SqlError& error) {
    WriteFailed(error);
  }
  for (const auto& [key, value] : records) pending_.insert_or_assign(key, value);
}

bool HostStore::WriteRecords(const Records& records) {
  const bool written = WithStore(Patience::kWait, [&](StoreTables& tables) {
    if (read_only_) throw SqlError(SqlFailure::kReadOnly, "the store is read-only");
    tables.Write(records);
  });
  if (!written) return false;
  TellAnew();
  for (const auto& [key, value] : records) pending_.erase(key);
  try {
    WritePending();
  } catch (const SqlError&) {
    // What was asked for is stored. The rest, which the user knows of, waits for the next time.
  }
  return true;
}

void HostStore::WritePending() {
  // In one piece, for what was stored together is among them.
  if (!pending_.empty() &&
      WithStore(Patience::kOnlyOnce, [&](StoreTables& tables) { tables.Write(pending_); })) {
    pending_.clear();
  }
  WritePendingUsers();
  if (!pending_settings_.empty() && WithStore(Patience::kOnlyOnce, [&](StoreTables& tables) {
        tables.SetSettings(options_.seat, pending_settings_);
      })) {
    pending_settings_.clear();
  }
}

void HostStore::PutAside(const RecordKey& key, const std::string& value) {
  const std::string aside = key.key + BrokenSuffix(options_.clock()).toStdString();
  bool renamed = false;
  try {
    renamed = WithStore(Patience::kOnlyOnce,
                        [&](StoreTables& tables) { tables.Rename(key, value, aside); });
  } catch (const SqlError&) {
    // It stays where it is and is found damaged again.
  }
  LogEntry entry;
  entry.kind = LogEntry::Kind::kError;
  entry.place = "HostStore.READ";
  entry.number = ErrorNumber::kStore;
  entry.text = "the record " + key.key + " of " + key.program + " is damaged";
  entry.source = "vmod17.HostStore";
  AppendLog(entry);
  Tell(DamagedRecordNotice(key.key, renamed ? aside : key.key));
}

// ---- Opening and mending

bool HostStore::WithStore(Patience patience, const Work& work) {
  for (bool again = false;; again = true) {
    try {
      if (!Open(patience)) return false;
      work(*tables_);
      waited_in_vain_ = false;
      return true;
    } catch (const SqlError& error) {
      waited_in_vain_ = error.failure() == SqlFailure::kLocked;
      if (again || !Recover(error)) throw;
    }
  }
}

bool HostStore::Open(Patience patience) {
  if (state_ == State::kMemoryOnly) return false;
  const bool in_a_hurry = patience == Patience::kOnlyOnce && waited_in_vain_;
  const int wait_ms = in_a_hurry ? 0 : options_.busy_timeout_ms;
  if (state_ == State::kOpen && !WasReplaced()) {
    if (wait_ms != wait_ms_) connection_->SetWait(wait_ms);
    wait_ms_ = wait_ms;
    return true;
  }
  state_ = State::kClosed;
  try {
    state_ = OpenAnew(wait_ms) ? State::kOpen : State::kMemoryOnly;
  } catch (const SqlError& error) {
    connection_->Close();
    // A store that was there comes back, perhaps. One that was never seen must not be written
    // later: nobody knows what it holds.
    if (was_open_ || error.failure() == SqlFailure::kLocked ||
        error.failure() == SqlFailure::kBroken) {
      throw;
    }
    state_ = State::kMemoryOnly;
    const std::string place = address_->Display();
    TellInMemory(IsFile() ? UnusableStoreNotice(place, error.what())
                          : UnreachableServerNotice(place, error.what()));
  }
  return state_ == State::kOpen;
}

bool HostStore::OpenAnew(int wait_ms) {
  if (address_->kind == StoreAddress::Kind::kUnreadable) {
    TellInMemory(UnreadableAddressNotice());
    return false;
  }
  if (!connection_) {
    connection_ = MakeSqlConnection(*address_);
    tables_ = std::make_unique<StoreTables>(*connection_);
  }
  if (IsFile()) {
    const QString refusal = PrepareStoreFile(
        address_->path, address_->is_default ? Privacy::kEnforced : Privacy::kOfNewFiles);
    if (!refusal.isEmpty()) throw SqlError(SqlFailure::kUnreachable, refusal.toStdString());
    identity_ = IdentityOf(address_->path);
  }
  connection_->Open(wait_ms);
  wait_ms_ = wait_ms;
  const std::optional<std::int64_t> version = tables_->Version();
  if (version.value_or(0) > kStoreVersion) {
    connection_->Close();
    TellInMemory(NewerStoreNotice(address_->Display()));
    return false;
  }
  connection_->Prepare();
  if (!version) {
    tables_->Create();
    if (!settings_.empty()) tables_->SetSettings(options_.seat, settings_);
  }
  read_only_ = connection_->IsReadOnly();
  has_user_table_ = version.value_or(kStoreVersion) >= kStoreVersion || TryToUpgrade();
  if (!was_open_) {
    settings_ = session_;
    settings_.merge(tables_->Settings(options_.seat));
  }
  was_open_ = true;
  if (read_only_) Tell(ReadOnlyStoreNotice(address_->Display()));
  return true;
}

/// A store of an older version has all but the list of users, so it serves also where it cannot be
/// changed at the moment.
bool HostStore::TryToUpgrade() {
  if (read_only_) return false;
  try {
    tables_->Upgrade();
    return true;
  } catch (const SqlError& error) {
    if (error.failure() == SqlFailure::kReadOnly || error.failure() == SqlFailure::kFull) {
      return false;
    }
    throw;
  }
}

void HostStore::NeedUserTable() {
  if (has_user_table_) return;
  tables_->Upgrade();
  has_user_table_ = true;
}

bool HostStore::Recover(const SqlError& error) {
  if (error.failure() == SqlFailure::kBroken) return IsFile() && Repair();
  if (error.failure() != SqlFailure::kUnreachable || state_ != State::kOpen) return false;
  state_ = State::kClosed;
  return true;
}

bool HostStore::Repair() {
  connection_->Close();
  state_ = State::kClosed;
  // Of two programs that find the file broken, the second must not move the new one aside.
  QLockFile lock(address_->path + ".repair");
  const bool locked = lock.tryLock(options_.busy_timeout_ms);
  if (locked && IdentityOf(address_->path) != identity_) return true;
  const QString aside = locked ? MoveStoreAside(address_->path, options_.clock()) : QString();
  if (aside.isEmpty()) {
    state_ = State::kMemoryOnly;
    TellInMemory(UnusableStoreNotice(address_->Display(), "the file is damaged"));
    return false;
  }
  Tell(BrokenStoreNotice(address_->Display(), aside.toStdString()));
  return true;
}

bool HostStore::IsFile() const { return address_->kind == StoreAddress::Kind::kFile; }

bool HostStore::WasReplaced() const {
  // A file that was deleted or replaced under its name would go on taking what is stored, and
  // nobody would find it again.
  return IsFile() && IdentityOf(address_->path) != identity_;
}

// ---- Telling the user

void HostStore::Tell(const Notice& notice) {
  if (told_.insert(notice.text_id).second && options_.notify) options_.notify(notice);
}

/// Told again with what is stored in later runs, since all of it is lost.
void HostStore::TellInMemory(const Notice& notice) {
  in_memory_ = notice;
  Tell(notice);
}

void HostStore::TellUnreadable(const SqlError& error) {
  const std::string place = address_->Display();
  switch (error.failure()) {
    case SqlFailure::kLocked:
      return Tell(LockedStoreNotice(place));
    case SqlFailure::kUnreachable:
      return Tell(IsFile() ? UnreadableStoreNotice(place, error.what())
                           : UnreachableServerNotice(place, error.what()));
    case SqlFailure::kBroken:
      // `Repair` has told what became of a broken file.
      if (IsFile()) return;
      [[fallthrough]];
    case SqlFailure::kReadOnly:
    case SqlFailure::kFull:
    case SqlFailure::kOther:
      return Tell(UnreadableStoreNotice(place, error.what()));
  }
}

void HostStore::WriteFailed(const SqlError& error) {
  const std::string place = address_->Display();
  switch (error.failure()) {
    case SqlFailure::kLocked:
      Tell(LockedStoreNotice(place));
      throw RunTimeError(ErrorNumber::kStore, std::string("the store is locked: ") + error.what(),
                         "vmod17.HostStore");
    case SqlFailure::kReadOnly:
      read_only_ = true;
      return Tell(ReadOnlyStoreNotice(place));
    case SqlFailure::kUnreachable:
      return Tell(IsFile() ? FullStoreNotice(place, error.what())
                           : UnreachableServerNotice(place, error.what()));
    case SqlFailure::kBroken:
      if (IsFile()) return;
      [[fallthrough]];
    case SqlFailure::kFull:
    case SqlFailure::kOther:
      return Tell(FullStoreNotice(place, error.what()));
  }
}

}  // namespace vmod17

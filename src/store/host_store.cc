// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/host_store.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFileInfo>
#include <QLockFile>
#include <QTimer>
#include <QUrlQuery>
#include <algorithm>
#include <array>
#include <charconv>

#include "store/date_text.h"
#include "store/outbox.h"
#include "store/seat.h"
#include "store/sql_connection.h"
#include "store/store_address.h"
#include "store/store_backup.h"
#include "store/store_file.h"
#include "store/store_notices.h"
#include "store/store_tables.h"
#include "store/tagged_value_codec.h"

namespace vmod17 {
namespace {

constexpr const char* kUserId = "user.id";
constexpr const char* kUserName = "user.name";
constexpr const char* kUserFirstName = "user.first_name";
constexpr const char* kLanguage = "language";
constexpr const char* kMidiDevice = "midi_device";
constexpr const char* kSoundfont = "soundfont";

// Between two glances at a connection that is being made.
constexpr int kGlanceMs = 500;
constexpr int kSoonMs = 1000;
// How long what waits in the outbox is brought at a time.
constexpr std::chrono::milliseconds kTimeToBring(1000);
constexpr int kPatienceForOutboxMs = 250;
// What no road takes long for. A training is a few thousand bytes.
constexpr std::size_t kShortBytes = 100'000;
// How long a log that somebody holds keeps a line waiting. On a server all get it in turn; of a
// file whoever asks at the right moment gets it, and may have to ask often.
constexpr int kPatienceForLogMs = 250;
constexpr int kPatienceForFileMs = 1500;

DateTime SystemTime() {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate date = now.date();
  const QTime time = now.time();
  return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

std::string TextOf(int number) {
  std::array<char, 16> text;
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), number).ptr};
}

// Kinds of what stands in an outbox.
constexpr const char* kRecordKind = "record";       // user, program, key, value, what was seen
constexpr const char* kSettingKind = "setting";     // name, value
constexpr const char* kUserKind = "user";           // number, name, first name
constexpr const char* kNewUserKind = "new user";    // and the names with which he was added
constexpr const char* kUserGoneKind = "user gone";  // number
constexpr const char* kLogKind = "log";             // the members of a line
constexpr const char* kNoticeKind = "notice";  // number of the text, text, and what stands in it

/// The file of what waits for a server: one for each database, role and seat. The password is no
/// part of it.
QString OutboxPath(const QString& folder, const QUrl& server, const std::string& seat) {
  QString place = server.toString(QUrl::RemovePassword | QUrl::RemoveQuery);
  for (const char* name : {"host", "hostaddr", "port"}) {
    place += '\n' + QUrlQuery(server).queryItemValue(name);
  }
  const QByteArray mark = QCryptographicHash::hash(
      (place + '\n' + QString::fromStdString(seat)).toUtf8(), QCryptographicHash::Sha256);
  return folder + "/outbox-" + QString::fromLatin1(mark.toHex().left(16)) + ".sqlite";
}

TaggedValue ContentOf(const LogEntry& line) {
  return TaggedValue::Array{line.kind == LogEntry::Kind::kError ? 1 : 0,
                            line.at,
                            line.user,
                            line.place,
                            line.number,
                            line.text,
                            line.source};
}

LogEntry LineIn(const TaggedValue& content) {
  LogEntry line;
  line.kind = content[0].Integer() == 1 ? LogEntry::Kind::kError : LogEntry::Kind::kMessage;
  line.at = content[1].String();
  line.user = content[2].String();
  line.place = content[3].String();
  line.number = content[4].Integer();
  line.text = content[5].String();
  line.source = content[6].String();
  return line;
}

StoreUser UserIn(const TaggedValue& content) {
  return {content[0].String(), content[1].String(), content[2].String()};
}

bool IsUserKind(const std::string& kind) {
  return kind == kUserKind || kind == kNewUserKind || kind == kUserGoneKind;
}

TaggedValue ContentOf(const Notice& notice) {
  TaggedValue::Array content = {notice.text_id, notice.english};
  content.insert(content.end(), notice.details.begin(), notice.details.end());
  return content;
}

Notice NoticeIn(const TaggedValue& content) {
  Notice notice{static_cast<int>(content[0].Integer()), content[1].String(), {}};
  for (std::size_t i = 2; i < content.Elements().size(); ++i) {
    notice.details.push_back(content[i].String());
  }
  return notice;
}

/// One who was added, as he was then.
StoreUser FirstNamesIn(const TaggedValue& content) {
  return {content[0].String(), content[3].String(), content[4].String()};
}

RecordKey KeyIn(const TaggedValue& content) {
  return {content[0].String(), content[1].String(), content[2].String()};
}

bool IsOfLog(const OutboxPiece& piece) {
  return std::any_of(piece.entries.begin(), piece.entries.end(),
                     [](const OutboxEntry& entry) { return entry.kind == kLogKind; });
}

bool IsNotice(const OutboxPiece& piece) {
  return !piece.entries.empty() && piece.entries[0].kind == kNoticeKind;
}

/// What it is that the entries change: of two pieces that have one in common the later holds.
std::vector<RecordKey> SubjectsIn(const OutboxPiece& piece) {
  std::vector<RecordKey> subjects;
  for (const auto& [kind, content] : piece.entries) {
    if (kind == kRecordKind) subjects.push_back(KeyIn(content));
    if (kind == kSettingKind) subjects.push_back({"", kind, content[0].String()});
    if (IsUserKind(kind)) subjects.push_back({"", kUserKind, content[0].String()});
  }
  return subjects;
}

std::size_t SizeOf(const Records& records) {
  std::size_t size = 0;
  for (const auto& [key, value] : records) size += value.size();
  return size;
}

/// What is behind the key of a record that has to give way to another: ".kept-YYYYMMDD-hhmmss".
std::string KeptSuffix(const std::string& at) {
  std::string suffix = ".kept-";
  for (const char sign : at) {
    if (sign == ' ') suffix += '-';
    if (sign >= '0' && sign <= '9') suffix += sign;
  }
  return suffix;
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

/// A call from outside. All that it asks of a server has one deadline, that of the outermost call.
class HostStore::OneCall {
 public:
  explicit OneCall(HostStore& store) : store_(store) {
    if (store_.calls_++ > 0) return;
    store_.deadline_ = std::chrono::steady_clock::now() +
                       std::chrono::milliseconds(store_.options_.server_patience_ms);
    store_.OpenOutbox();
  }
  ~OneCall() { --store_.calls_; }
  OneCall(const OneCall&) = delete;
  OneCall& operator=(const OneCall&) = delete;

 private:
  HostStore& store_;
};

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

/// A disk that was full may have room by now.
void HostStore::BringWhatWaits(Patience with_the_log) {
  const bool waits_for_server = IsServer() && !(connection_ && connection_->IsAtHand());
  try {
    if (state_ != State::kMemoryOnly && !read_only_ && !waits_for_server) WritePending();
  } catch (const SqlError&) {
    // The user was told when it could not be written the first time.
  }
  BringLog(with_the_log);
}

/// The next module may read what this one has stored as soon as the host has its word.
bool HostStore::Menue() {
  BringWhatWaits(Patience::kOnlyOnce);
  return options_.menue && options_.menue();
}

std::unique_ptr<HostService> HostStore::Service() { return std::make_unique<Front>(*this); }

// ---- The commands

bool HostStore::Action(std::string_view command, const TaggedValue& args, TaggedValue& result) {
  const OneCall call(*this);
  if (command == "READ") return Read(args, result);
  if (command == "STORE") return Store(args);
  if (command == "LOGMESS") return AppendLog(MessageEntry(args));
  if (command == "LOGERR") return AppendLog(ErrorEntry(args));
  CheckNoArguments(args);
  if (command == "MIDI") return Midi(result);
  if (command == "LOGIN") return Login(result);
  if (command == "LANG") return Lang(result);
  if (command == "MENUE") return Menue();
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
  const OneCall call(*this);
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
    stored = InMemory(key);
    if (!stored && (stored = InOutbox(key)) && !GoesPastAnother({{key, *stored}})) {
      SetSeen({{key, *stored}});
    }
    if (!stored) {
      WithStore(Patience::kOnlyOnce, [&](StoreTables& tables) {
        stored = tables.Read(key);
        if (outbox_) seen_[key] = FingerprintOf(stored);
      });
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
  const bool is_error = entry.kind == LogEntry::Kind::kError;
  log_.Add(std::move(entry));
  if (connection_ && connection_->IsFar() && !is_error) {
    // What the user waits for goes first.
    LookForServerLater(kSoonMs);
    return true;
  }
  return BringLog();
}

/// Sends the lines that wait. Returns false when the store has not taken them.
bool HostStore::BringLog(Patience patience) {
  if (log_.IsEmpty()) return true;
  MakeConnection();
  bool sent = false;
  const bool waited_in_vain = waited_in_vain_;
  const auto nobody_takes_them = [&] { log_.Take(std::chrono::steady_clock::now()); };
  try {
    // A line of the log is never worth the wait for a connection.
    if (state_ == State::kClosed && !connection_->IsAtHand()) {
      LookForServerLater();
      return false;
    }
    WithStore(Patience::kOnlyOnce, [&](StoreTables& tables) {
      int patience_ms = IsServer() ? kPatienceForLogMs : kPatienceForFileMs;
      if (patience == Patience::kWait) {
        patience_ms = options_.busy_timeout_ms;
        log_.Insist();
      }
      if (!read_only_) {
        sent = log_.Send(tables, std::min(patience_ms, options_.busy_timeout_ms));
      }
    });
    // The log may be held like the records, and on a server it may be free while they are not.
    if (!sent || IsServer()) waited_in_vain_ = waited_in_vain;
    if (read_only_ || state_ == State::kMemoryOnly) nobody_takes_them();
  } catch (const SqlError& error) {
    // Nor worth a word to the user, and an error while an error is logged none either.
    if (error.failure() == SqlFailure::kReadOnly) nobody_takes_them();
  }
  if (!sent) LookForServerLater();
  return sent;
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

/// A change that the store has not taken.
void HostStore::KeepUser(const std::string& id, const UserChange& change, UserIs is) {
  // One who was added here is unknown to the store: he must not be changed or removed there, for he
  // may prove to be somebody else of this number.
  std::optional<std::int64_t> added;
  StoreUser first;
  if (outbox_) {
    for (const OutboxPiece& piece : outbox_->Pieces()) {
      for (const auto& [kind, content] : piece.entries) {
        if (!IsUserKind(kind) || content[0].String() != id) continue;
        added = kind == kNewUserKind ? std::optional(piece.number) : std::nullopt;
        if (added) first = FirstNamesIn(content);
      }
    }
  }
  const bool is_new = is == UserIs::kNew || added;
  OutboxEntry entry = {kUserGoneKind, TaggedValue::Array{id}};
  if (change) {
    if (!added) first = *change;
    entry = {
        is_new ? kNewUserKind : kUserKind,
        TaggedValue::Array{id, change->name, change->first_name, first.name, first.first_name}};
  }
  const bool is_nothing = added && !change;
  if (is_nothing || Post({entry})) {
    if (added) outbox_->Remove(*added);
    pending_users_.erase(id);
    return LookForServerLater();
  }
  pending_users_[id] = change;
}

bool HostStore::WriteUser(const Work& work) {
  try {
    return EmptyOutbox() && WithStore(Patience::kWait, [&](StoreTables& tables) {
             if (read_only_) throw SqlError(SqlFailure::kReadOnly, "the store is read-only");
             NeedUserTable();
             users_.reset();
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

// ---- Records

RecordKey HostStore::KeyOf(const TaggedValue& args, Patience patience) {
  // Whose record it is, is known once the store is open.
  if (!was_open_ && session_.empty()) WithStore(patience, [](StoreTables&) {});
  return {Setting(kUserId), args[0].String(), args[1].String()};
}

std::optional<std::string> HostStore::InMemory(const RecordKey& key) const {
  for (const Records* records : {together_ ? &*together_ : nullptr, &pending_}) {
    if (!records) continue;
    if (const auto found = records->find(key); found != records->end()) return found->second;
  }
  return {};
}

std::optional<std::string> HostStore::InOutbox(const RecordKey& key) const {
  std::optional<std::string> kept;
  for (const OutboxEntry& entry : Kept()) {
    if (entry.kind == kRecordKind && KeyIn(entry.content) == key) kept = entry.content[3].String();
  }
  return kept;
}

/// The entries of records for the outbox: each knows what this process has seen of its key.
std::vector<OutboxEntry> HostStore::EntriesFor(const Records& records) const {
  std::vector<OutboxEntry> entries;
  for (const auto& [key, value] : records) {
    std::string seen;
    if (const auto found = seen_.find(key); found != seen_.end()) {
      seen = found->second;
    } else if (const auto kept = InOutbox(key)) {
      seen = FingerprintOf(kept);
    }
    entries.push_back(
        {kRecordKind, TaggedValue::Array{key.user, key.program, key.key, value, seen}});
  }
  return entries;
}

/// Whether the store holds a record of another machine's that this process goes past.
bool HostStore::GoesPastAnother(const Records& records) const {
  return std::ranges::any_of(records, [&](const auto& record) {
    const auto seen = seen_.find(record.first);
    return seen != seen_.end() && seen->second.empty();
  });
}

void HostStore::Keep(const Records& records) {
  const bool is_first = !WaitsInOutbox() && !GoesPastAnother(records);
  // Before the server is asked: who is killed while it says nothing has lost nothing.
  std::optional<std::int64_t> piece = outbox_ ? Post(EntriesFor(records)) : std::nullopt;
  if (piece && SizeOf(records) <= kShortBytes) HurryUp();
  try {
    if (piece && !is_first) {
      // Behind what waits already, and like that with a look at what the store holds by now.
      SetSeen(records);
      if (EmptyOutbox()) {
        ForgetOlder(records);
        TellAnew();
        return WriteTheRest();
      }
    } else if (WriteRecords(records)) {
      if (piece) outbox_->Remove(*piece);
      if (outbox_) SetSeen(records);
      ForgetOlder(records);
      TellAnew();
      return WriteTheRest();
    }
    if (in_memory_) Tell(*in_memory_);
  } catch (const SqlError& error) {
    // What is locked or has no room takes it later, what may only be read never does.
    const bool is_refused = error.failure() == SqlFailure::kReadOnly;
    if (piece && is_first && is_refused) outbox_->Remove(*std::exchange(piece, std::nullopt));
    WriteFailed(error, piece.has_value());
  }
  LookForServerLater();
  if (piece) {
    if (is_first) SetSeen(records);
    ForgetOlder(records);
  } else {
    for (const auto& [key, value] : records) pending_.insert_or_assign(key, value);
  }
}

/// What is in the outbox already need not keep anybody waiting as long as the rest.
void HostStore::HurryUp() {
  deadline_ = std::min(deadline_, std::chrono::steady_clock::now() +
                                      std::chrono::milliseconds(options_.server_patience_ms / 2));
}

void HostStore::SetSeen(const Records& records) {
  for (const auto& [key, value] : records) seen_[key] = FingerprintOf(value);
}

/// What is in memory of these is older than what was stored or put into the outbox since.
void HostStore::ForgetOlder(const Records& records) {
  for (const auto& [key, value] : records) pending_.erase(key);
}

bool HostStore::WriteRecords(const Records& records) {
  return WithStore(Patience::kWait, [&](StoreTables& tables) {
    if (read_only_) throw SqlError(SqlFailure::kReadOnly, "the store is read-only");
    tables.Write(records);
  });
}

/// What else waits, after something was stored.
void HostStore::WriteTheRest() {
  try {
    WritePending();
  } catch (const SqlError&) {
    // What was asked for is stored. The rest, which the user knows of, waits for the next time.
  }
  BringLog();
}

void HostStore::WritePending() {
  EmptyOutbox();
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

// ---- What waits for a server

void HostStore::OpenOutbox() {
  if (outbox_ || !IsServer() || options_.data_folder.empty()) return;
  const QString path =
      OutboxPath(QString::fromStdString(options_.data_folder), address_->server, options_.seat);
  outbox_ = std::make_unique<Outbox>(path, options_.clock, [this, path](const QString& aside) {
    Tell(UnreadableOutboxNotice(path.toStdString(), aside.toStdString()));
  });
  Settings kept;
  for (const auto& [kind, content] : Kept()) {
    if (kind == kSettingKind) kept[content[0].String()] = content[1].String();
  }
  settings_.merge(kept);
}

/// Puts them into the outbox as one piece. False where there is none, or where the store would
/// never take them.
std::optional<std::int64_t> HostStore::Post(const std::vector<OutboxEntry>& entries) {
  if (!outbox_ || read_only_ || state_ == State::kMemoryOnly) return {};
  const std::optional<std::int64_t> piece = outbox_->Add(entries);
  outbox_fails_ = !piece;
  return piece;
}

std::vector<OutboxEntry> HostStore::Kept() const {
  std::vector<OutboxEntry> all;
  if (!outbox_) return all;
  for (const OutboxPiece& piece : outbox_->Pieces()) {
    all.insert(all.end(), piece.entries.begin(), piece.entries.end());
  }
  return all;
}

/// Whether anything waits that is this process's to bring, and that a "STORE" could overtake.
bool HostStore::WaitsInOutbox() const {
  return outbox_ && std::ranges::any_of(outbox_->Pieces(), [](const OutboxPiece& piece) {
           return !piece.is_of_another && !IsNotice(piece) && !IsOfLog(piece);
         });
}

/// Brings the store what stands in the outbox, in its order, as far as there is time. Returns
/// whether nothing is left but what another process at work will bring, and lines of the log.
/// Errors: SqlError kUnreachable.
bool HostStore::EmptyOutbox() {
  if (!outbox_ || outbox_->Pieces().empty()) return true;
  // What another process has left, a third one may be bringing.
  QLockFile lock(outbox_->Path() + ".lock");
  if (!lock.tryLock(kPatienceForOutboxMs) && lock.error() == QLockFile::LockFailedError) {
    LookForServerLater();
    return false;
  }
  const bool is_done = BringPieces(outbox_->Pieces());
  if (!outbox_->Pieces().empty()) LookForServerLater();
  return is_done;
}

bool HostStore::BringPieces(const std::vector<OutboxPiece>& pieces) {
  using Clock = std::chrono::steady_clock;
  // A piece for which there is too little time must not be begun: the server would be taken for
  // silent.
  const Clock::time_point end = std::min(deadline_, Clock::now() + kTimeToBring);
  Clock::duration longest{};
  bool is_done = true;
  std::set<RecordKey> held_up;
  for (const OutboxPiece& piece : pieces) {
    if (piece.is_of_another || (IsNotice(piece) && !CanTell())) continue;
    const Clock::time_point begin = Clock::now();
    if (longest > Clock::duration::zero() && begin + longest > end) return false;
    const std::vector<RecordKey> subjects = SubjectsIn(piece);
    const auto follows = [&](const RecordKey& subject) { return held_up.contains(subject); };
    try {
      if (std::ranges::none_of(subjects, follows)) {
        if (!BringPiece(piece)) return false;
        longest = std::max(longest, Clock::now() - begin);
        continue;
      }
    } catch (const SqlError& error) {
      if (error.failure() == SqlFailure::kUnreachable) throw;
      if (IsOfLog(piece)) continue;
      WriteFailed(error, true);
      if (error.failure() != SqlFailure::kOther) return false;
    }
    // What the store will never take must not hold up the others, unless they follow from it.
    held_up.insert(subjects.begin(), subjects.end());
    is_done = false;
  }
  return is_done;
}

/// Returns false when there is no store. Errors: SqlError.
bool HostStore::BringPiece(const OutboxPiece& piece) {
  std::vector<Notice> notices;
  const bool is_brought =
      WithStore(Patience::kOnlyOnce, [&](StoreTables& tables) { notices = Bring(tables, piece); });
  if (!is_brought) return false;
  for (const Notice& notice : notices) TellOrKeep(notice);
  outbox_->Remove(piece.number);
  return true;
}

/// What the user has to be told of it. Errors: SqlError.
std::vector<Notice> HostStore::Bring(StoreTables& tables, const OutboxPiece& piece) {
  if (read_only_) throw SqlError(SqlFailure::kReadOnly, "the store is read-only");
  std::vector<Notice> notices;
  LateRecords records;
  Settings settings;
  std::vector<LogEntry> lines;
  for (const auto& [kind, content] : piece.entries) {
    if (kind == kRecordKind) {
      records[KeyIn(content)] = {content[3].String(), content[4].String()};
    } else if (kind == kSettingKind) {
      settings[content[0].String()] = content[1].String();
    } else if (kind == kUserKind) {
      NeedUserTable();
      tables.SaveUser(UserIn(content));
    } else if (kind == kNewUserKind) {
      NeedUserTable();
      if (const auto notice = BringNewUser(tables, content)) notices.push_back(*notice);
    } else if (kind == kUserGoneKind) {
      NeedUserTable();
      tables.RemoveUser(content[0].String());
    } else if (kind == kLogKind) {
      lines.push_back(LineIn(content));
    } else if (kind == kNoticeKind) {
      notices.push_back(NoticeIn(content));
    }
  }
  if (!lines.empty()) {
    const SqlErrand errand = tables.AppendLog(lines, options_.log_limit_bytes, kPatienceForLogMs);
    if (errand.wait_until(deadline_) != std::future_status::ready) {
      throw SqlError(SqlFailure::kUnreachable, "the server does not answer");
    }
    errand.get();
  }
  if (!settings.empty()) tables.SetSettings(options_.seat, settings);
  if (!tables.WriteLate(records, KeptSuffix(piece.at))) {
    for (const auto& [key, record] : records) seen_[key].clear();
    notices.push_back(NewerRecordNotice(address_->Display(), KeptSuffix(piece.at)));
  }
  return notices;
}

std::optional<Notice> HostStore::BringNewUser(StoreTables& tables, const TaggedValue& content) {
  const StoreUser user = UserIn(content);
  if (tables.AddUser(user)) return {};
  const std::vector<StoreUser> users = tables.Users();
  const auto other = std::ranges::find(users, user.id, &StoreUser::id);
  if (other == users.end() || *other == user) return {};
  if (*other == FirstNamesIn(content)) {
    // The server had added him already, without an answer.
    tables.SaveUser(user);
    return {};
  }
  return UserTakenNotice(user, *other);
}

bool HostStore::CanTell() const { return options_.notify && !is_ending_; }

/// Where nobody can be told, the next process tells it.
void HostStore::TellOrKeep(const Notice& notice) {
  if (CanTell()) {
    Tell(notice);
  } else {
    Post({{kNoticeKind, ContentOf(notice)}});
  }
}

void HostStore::LookForServerLater(std::optional<int> ms) {
  if (!IsServer()) return;
  if (!retry_timer_) {
    retry_timer_ = std::make_unique<QTimer>();
    QObject::connect(retry_timer_.get(), &QTimer::timeout, [this] { LookForServer(); });
  }
  if (!retry_timer_->isActive()) retry_timer_->start(ms.value_or(options_.retry_ms));
}

void HostStore::LookForTheRest() { LookForServerLater(kSoonMs); }

void HostStore::LookForServer() {
  if (calls_ > 0 || together_) return;
  MakeConnection();
  if (!connection_->IsAtHand()) return retry_timer_->start(std::min(options_.retry_ms, kGlanceMs));
  const OneCall call(*this);
  retry_timer_->stop();
  try {
    if (WithStore(Patience::kOnlyOnce, [](StoreTables&) {})) WritePending();
  } catch (const SqlError&) {
    // The user knows, and it is looked for again.
    LookForServerLater();
  }
  BringLog();
}

/// A room of many machines must not keep a connection each that nobody uses.
void HostStore::RestSoon() {
  if (!IsServer()) return;
  if (!idle_timer_) {
    idle_timer_ = std::make_unique<QTimer>();
    idle_timer_->setSingleShot(true);
    QObject::connect(idle_timer_.get(), &QTimer::timeout, [this] {
      if (calls_ > 0 || state_ != State::kOpen) return RestSoon();
      connection_->Close();
      state_ = State::kClosed;
      users_.reset();
    });
  }
  idle_timer_->start(options_.idle_ms);
}

// ---- Opening and mending

bool HostStore::WithStore(Patience patience, const Work& work) {
  const OneCall call(*this);
  for (bool again = false;; again = true) {
    try {
      if (!Open(patience)) return false;
      RestSoon();
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
  const int wait_ms = WaitFor(patience);
  MakeConnection();
  connection_->SetDeadline(deadline_);
  if (state_ == State::kOpen && !WasReplaced()) {
    connection_->SetWait(wait_ms);
    return true;
  }
  state_ = State::kClosed;
  try {
    state_ = OpenAnew(wait_ms) ? State::kOpen : State::kMemoryOnly;
  } catch (const SqlError& error) {
    if (IsServer() && error.failure() == SqlFailure::kUnreachable) {
      // It may be found while nobody waits.
      LookForServerLater();
      if (was_open_) throw;
      TellUnreadable(error);
      return false;
    }
    connection_->Close();
    // A store that was there comes back, perhaps. A file that was never seen must not be written
    // later: nobody knows what it holds.
    if (was_open_ || error.failure() == SqlFailure::kLocked ||
        error.failure() == SqlFailure::kBroken) {
      throw;
    }
    state_ = State::kMemoryOnly;
    const std::string place = address_->Display();
    TellInMemory(IsFile() ? UnusableStoreNotice(place, error.what())
                          : UnusableServerNotice(place, error.what()));
  }
  return state_ == State::kOpen;
}

int HostStore::WaitFor(Patience patience) const {
  if (patience == Patience::kOnlyOnce && waited_in_vain_) return 0;
  // A lock on a server must not be taken for its silence.
  if (!IsServer()) return options_.busy_timeout_ms;
  const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
      deadline_ - std::chrono::steady_clock::now());
  return static_cast<int>(
      std::clamp<std::int64_t>(left.count() * 3 / 4, 0, options_.busy_timeout_ms));
}

void HostStore::MakeConnection() {
  if (connection_) return;
  connection_ = MakeSqlConnection(*address_);
  tables_ = std::make_unique<StoreTables>(*connection_);
}

bool HostStore::OpenAnew(int wait_ms) {
  if (address_->kind == StoreAddress::Kind::kUnreadable) {
    TellInMemory(UnreadableAddressNotice());
    return false;
  }
  if (address_->kind == StoreAddress::Kind::kNotUtf8) {
    TellInMemory(NotUtf8StoreNotice(address_->Display()));
    return false;
  }
  if (IsFile()) {
    const QString refusal = PrepareStoreFile(
        address_->path, address_->is_default ? Privacy::kEnforced : Privacy::kOfNewFiles);
    if (!refusal.isEmpty()) throw SqlError(SqlFailure::kUnreachable, refusal.toStdString());
    identity_ = IdentityOf(address_->path);
  }
  connection_->Open(wait_ms);
  const bool also_users = options_.users_at_start && IsServer() && !was_open_;
  std::optional<StoreTables::Facts> facts =
      tables_->LookInto(options_.seat, former_seat_,
                        also_users ? StoreTables::AlsoUsers::kYes : StoreTables::AlsoUsers::kNo);
  // Its lock may have been waited for while another file took its place.
  if (WasReplaced()) return OpenAnew(wait_ms);
  if (facts && facts->version > kStoreVersion) {
    connection_->Close();
    TellInMemory(NewerStoreNotice(address_->Display()));
    return false;
  }
  connection_->Prepare();
  if (!facts) {
    tables_->Create();
    if (!settings_.empty()) tables_->SetSettings(options_.seat, settings_);
    facts = {kStoreVersion, {}, {}, std::nullopt};
  }
  read_only_ = connection_->IsReadOnly();
  has_user_table_ = facts->version >= kStoreVersion || TryToUpgrade();
  if (!was_open_) {
    if (facts->settings.empty() && !facts->former.empty() && !former_seat_.empty()) {
      TakeOver(facts->former);
      facts->settings = facts->former;
    }
    settings_.merge(facts->settings);
    users_ = std::move(facts->users);
  }
  was_open_ = true;
  if (!Kept().empty()) LookForServerLater();
  if (read_only_) Tell(ReadOnlyStoreNotice(address_->Display()));
  return true;
}

void HostStore::TakeOver(const Settings& settings_of_former_seat) {
  try {
    tables_->SetSettings(options_.seat, settings_of_former_seat);
  } catch (const SqlError& error) {
    // They hold in this process, and the next one finds them again.
    if (error.failure() != SqlFailure::kReadOnly) throw;
  }
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
  connection_->Close();
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

bool HostStore::IsFile() const { return address_->kind == StoreAddress::Kind::kFile; }

bool HostStore::IsServer() const { return address_->kind == StoreAddress::Kind::kServer; }

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

Notice HostStore::ServerNotice(const SqlError& error) const {
  return outbox_fails_ || !outbox_ || !outbox_->IsReady()
             ? UnusableServerNotice(address_->Display(), error.what())
             : UnreachableServerNotice(address_->Display(), error.what());
}

void HostStore::TellUnreadable(const SqlError& error) {
  const std::string place = address_->Display();
  switch (error.failure()) {
    case SqlFailure::kLocked:
      return Tell(LockedStoreNotice(place));
    case SqlFailure::kUnreachable:
      return Tell(IsFile() ? UnreadableStoreNotice(place, error.what()) : ServerNotice(error));
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

void HostStore::WriteFailed(const SqlError& error, bool is_kept) {
  const std::string place = address_->Display();
  if (is_kept && error.failure() != SqlFailure::kUnreachable) {
    return Tell(WaitingStoreNotice(place, error.what()));
  }
  switch (error.failure()) {
    case SqlFailure::kLocked:
      Tell(LockedStoreNotice(place));
      throw RunTimeError(ErrorNumber::kStore, std::string("the store is locked: ") + error.what(),
                         "vmod17.HostStore");
    case SqlFailure::kReadOnly:
      read_only_ = true;
      return Tell(ReadOnlyStoreNotice(place));
    case SqlFailure::kUnreachable:
      return Tell(IsFile() ? FullStoreNotice(place, error.what()) : ServerNotice(error));
    case SqlFailure::kBroken:
      if (IsFile()) return;
      [[fallthrough]];
    case SqlFailure::kFull:
    case SqlFailure::kOther:
      return Tell(FullStoreNotice(place, error.what()));
  }
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <QCryptographicHash>
#include <QLockFile>
#include <QTimer>
#include <QUrlQuery>
#include <algorithm>

#include "store/date_text.h"
#include "store/host_store.h"
#include "store/outbox.h"
#include "store/outbox_entries.h"
#include "store/seat_settings.h"
#include "store/sql_connection.h"
#include "store/store_address.h"
#include "store/store_notices.h"
#include "store/store_tables.h"
#include "store/tagged_value_codec.h"

namespace vmod17 {
namespace {

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

}  // namespace

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

}  // namespace vmod17

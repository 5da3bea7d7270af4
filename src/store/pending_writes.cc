// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/pending_writes.h"

#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstddef>
#include <utility>
#include <vector>

#include "base/run_time_error.h"
#include "store/outbox_entries.h"
#include "store/store_notices.h"

namespace vmod17 {
namespace {

// Between two glances at a connection that is being made.
constexpr int kGlanceMs = 500;
constexpr int kSoonMs = 1000;
// What no road takes long for. A training is a few thousand bytes.
constexpr std::size_t kShortBytes = 100'000;
// The log of a file keeps it waiting for longer: whoever asks at the right moment gets it, and may
// have to ask often.
constexpr int kPatienceForFileMs = 1500;

std::size_t SizeOf(const Records& records) {
  std::size_t size = 0;
  for (const auto& [key, value] : records) size += value.size();
  return size;
}

}  // namespace

PendingWrites::PendingWrites(const StoreOptions& options, const StoreAddress& address,
                             const std::string& seat, StoreConnection& connection,
                             SeatSettings& settings, TroubleReport& trouble)
    : options_(options),
      seat_(seat),
      connection_(connection),
      settings_(settings),
      trouble_(trouble),
      forwarder_(options, address, seat, connection, trouble, [this] { LookLater(); }),
      log_(options.log_limit_bytes) {}

PendingWrites::~PendingWrites() {
  forwarder_.EndTelling();
  const StoreConnection::Call call(connection_);
  // Without an outbox this is the last chance of the log's lines.
  BringWhatWaits(forwarder_.IsThere() ? Patience::kOnlyOnce : Patience::kWait);
  if (log_.IsEmpty()) return;
  std::vector<OutboxEntry> lines;
  for (const LogEntry& line : log_.Take(connection_.deadline())) {
    lines.push_back(LogLineEntry(line));
  }
  if (!lines.empty()) forwarder_.Post(lines);
}

// ---- Records

void PendingWrites::Together(const std::function<void()>& stores) {
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
  const StoreConnection::Call call(connection_);
  if (!records.empty()) Keep(records);
}

void PendingWrites::Store(const RecordKey& key, const std::string& value) {
  if (together_) {
    together_->insert_or_assign(key, value);
  } else {
    Keep({{key, value}});
  }
}

std::optional<std::string> PendingWrites::Find(const RecordKey& key) {
  for (const Records* records : {together_ ? &*together_ : nullptr, &records_}) {
    if (!records) continue;
    if (const auto found = records->find(key); found != records->end()) return found->second;
  }
  std::optional<std::string> waiting = forwarder_.Find(key);
  if (waiting && !forwarder_.GoesPastAnother({{key, *waiting}})) forwarder_.SetSeen(key, waiting);
  return waiting;
}

void PendingWrites::Keep(const Records& records) {
  const bool is_first = !forwarder_.HoldsBack() && !forwarder_.GoesPastAnother(records);
  // Before the server is asked: who is killed while it says nothing has lost nothing.
  std::optional<std::int64_t> piece = forwarder_.Post(records);
  // What is in the outbox already need not keep anybody waiting as long as the rest.
  if (piece && SizeOf(records) <= kShortBytes) {
    connection_.HurryUp(options_.server_patience_ms / 2);
  }
  // What is in memory of these is older than what was stored or put into the outbox since.
  const auto forget_older = [&] {
    for (const auto& [key, value] : records) records_.erase(key);
  };
  try {
    bool is_stored = false;
    if (piece && !is_first) {
      // Behind what waits already, and like that with a look at what the store holds by now.
      forwarder_.SetSeen(records);
      is_stored = forwarder_.Forward();
    } else if (WriteRecords(records)) {
      if (piece) forwarder_.Remove(*piece);
      forwarder_.SetSeen(records);
      is_stored = true;
    }
    if (is_stored) {
      forget_older();
      trouble_.TellAnew();
      return WriteTheRest();
    }
    trouble_.RemindOfMemory();
  } catch (const SqlError& error) {
    // What is locked or has no room takes it later, what may only be read never does.
    const bool is_refused = error.failure() == SqlFailure::kReadOnly;
    if (piece && is_first && is_refused) forwarder_.Remove(*std::exchange(piece, std::nullopt));
    if (piece && error.failure() != SqlFailure::kUnreachable) {
      trouble_.TellWaiting(error);
    } else {
      WriteFailed(error);
    }
  }
  LookLater();
  if (piece) {
    if (is_first) forwarder_.SetSeen(records);
    forget_older();
  } else {
    for (const auto& [key, value] : records) records_.insert_or_assign(key, value);
  }
}

bool PendingWrites::WriteRecords(const Records& records) {
  return connection_.Write(Patience::kWait, [&](StoreTables& tables) { tables.Write(records); });
}

void PendingWrites::WriteFailed(const SqlError& error) {
  if (error.failure() == SqlFailure::kReadOnly) connection_.TakeForReadOnly();
  trouble_.TellUnwritten(error);
}

// ---- Settings

void PendingWrites::ChangeSettings(const SeatSettings::Values& changes) {
  const StoreConnection::Call call(connection_);
  SeatSettings::Values all = changes;
  all.insert(pending_settings_.begin(), pending_settings_.end());
  bool written = false;
  try {
    written = forwarder_.Forward() && connection_.Write(Patience::kWait, [&](StoreTables& tables) {
      tables.SetSettings(seat_, all);
    });
  } catch (const SqlError& error) {
    WriteFailed(error);
  }
  std::vector<OutboxEntry> entries;
  for (const auto& [name, value] : changes) entries.push_back(SettingEntry(name, value));
  if (!written && forwarder_.Post(entries)) {
    LookLater();
    all = pending_settings_;
  }
  pending_settings_ = written ? SeatSettings::Values() : all;
  if (written) trouble_.TellAnew();
  for (const auto& [name, value] : changes) SetHere(name, value);
}

void PendingWrites::SetHere(const std::string& name, const std::string& value) {
  settings_.Set(name, value);
  if (pending_settings_.contains(name)) pending_settings_[name] = value;
}

SeatSettings::Values PendingWrites::SettingsThatWait() const {
  SeatSettings::Values values;
  for (const auto& [kind, content] : forwarder_.Entries()) {
    if (kind == kSettingKind) values[content[0].String()] = content[1].String();
  }
  return values;
}

// ---- Users

bool PendingWrites::WriteUser(const StoreConnection::Work& work) {
  try {
    return forwarder_.Forward() && connection_.Write(Patience::kWait, [&](StoreTables& tables) {
      connection_.NeedUsers();
      connection_.ForgetUsers();
      work(tables);
    });
  } catch (const SqlError& error) {
    if (error.failure() == SqlFailure::kReadOnly && !connection_.HasUsers()) {
      // Tables may be refused to a role that may well write records.
      trouble_.TellUnwritten(error);
    } else {
      WriteFailed(error);
    }
  }
  return false;
}

void PendingWrites::KeepUser(const std::string& id, const UserChange& change, UserIs is) {
  // One who was added here is unknown to the store: he must not be changed or removed there, for he
  // may prove to be somebody else of this number.
  std::optional<std::int64_t> added;
  StoreUser first;
  for (const OutboxPiece& piece : forwarder_.Pieces()) {
    for (const auto& [kind, content] : piece.entries) {
      if (!IsUserKind(kind) || content[0].String() != id) continue;
      added = kind == kNewUserKind ? std::optional(piece.number) : std::nullopt;
      if (added) first = FirstNamesIn(content);
    }
  }
  const bool is_nothing = added && !change;
  OutboxEntry entry = UserGoneEntry(id);
  if (change) {
    const bool is_new = is == UserIs::kNew || added;
    entry = is_new ? NewUserEntry(*change, added ? first : *change) : UserEntry(*change);
  }
  if (is_nothing || forwarder_.Post({entry})) {
    if (added) forwarder_.Remove(*added);
    users_.erase(id);
    return LookLater();
  }
  users_[id] = change;
}

bool PendingWrites::KeepsUser(const std::string& id) const {
  const auto found = users_.find(id);
  return found != users_.end() && found->second;
}

PendingWrites::UserChanges PendingWrites::Users() const {
  UserChanges changes = users_;
  for (const auto& [kind, content] : forwarder_.Entries()) {
    if (!IsUserKind(kind)) continue;
    changes[content[0].String()] =
        kind == kUserGoneKind ? UserChange() : UserChange(UserIn(content));
  }
  return changes;
}

void PendingWrites::WritePendingUsers() {
  while (!users_.empty()) {
    const auto user = users_.begin();
    const bool written = connection_.With(Patience::kOnlyOnce, [&](StoreTables& tables) {
      connection_.NeedUsers();
      if (user->second) {
        tables.SaveUser(*user->second);
      } else {
        tables.RemoveUser(user->first);
      }
    });
    if (!written) return;
    users_.erase(user);
  }
}

// ---- The log

bool PendingWrites::AppendLog(LogEntry line) {
  const bool is_error = line.kind == LogEntry::Kind::kError;
  log_.Add(std::move(line));
  if (connection_.IsFar() && !is_error) {
    // What the user waits for goes first.
    LookSoon();
    return true;
  }
  return BringLog();
}

bool PendingWrites::BringLog(Patience patience) {
  if (log_.IsEmpty()) return true;
  // A line of the log is never worth the wait for a connection.
  if (connection_.IsOutOfReach()) {
    LookLater();
    return false;
  }
  bool sent = false;
  const auto nobody_takes_them = [&] { log_.Take(std::chrono::steady_clock::now()); };
  try {
    connection_.WithLog([&](StoreTables& tables) {
      int patience_ms = connection_.IsServer() ? kPatienceForLogMs : kPatienceForFileMs;
      if (patience == Patience::kWait) {
        patience_ms = options_.busy_timeout_ms;
        log_.Insist();
      }
      if (!connection_.IsReadOnly()) {
        sent = log_.Send(tables, std::min(patience_ms, options_.busy_timeout_ms));
      }
      // The log may be held like the records, and on a server it may be free while they are not.
      return sent && !connection_.IsServer();
    });
    if (!connection_.CanTake()) nobody_takes_them();
  } catch (const SqlError& error) {
    // Nor worth a word to the user, and an error while an error is logged none either.
    if (error.failure() == SqlFailure::kReadOnly) nobody_takes_them();
  }
  if (!sent) LookLater();
  return sent;
}

// ---- What waits

void PendingWrites::BringWhatWaits(Patience with_the_log) {
  const bool is_away = connection_.IsServer() && !(connection_.IsBegun() && connection_.IsAtHand());
  try {
    if (connection_.CanTake() && !is_away) WritePending();
  } catch (const SqlError&) {
    // The user was told when it could not be written the first time.
  }
  BringLog(with_the_log);
}

/// What else waits, after something was stored.
void PendingWrites::WriteTheRest() {
  try {
    WritePending();
  } catch (const SqlError&) {
    // What was asked for is stored. The rest, which the user knows of, waits for the next time.
  }
  BringLog();
}

void PendingWrites::WritePending() {
  forwarder_.Forward();
  // In one piece, for what was stored together is among them.
  if (!records_.empty() &&
      connection_.With(Patience::kOnlyOnce, [&](StoreTables& tables) { tables.Write(records_); })) {
    records_.clear();
  }
  WritePendingUsers();
  if (!pending_settings_.empty() && connection_.With(Patience::kOnlyOnce, [&](StoreTables& tables) {
        tables.SetSettings(seat_, pending_settings_);
      })) {
    pending_settings_.clear();
  }
}

void PendingWrites::LookLater() { StartRetryTimer(options_.retry_ms); }

void PendingWrites::LookSoon() { StartRetryTimer(kSoonMs); }

void PendingWrites::LookLaterForTheRest() {
  if (!forwarder_.Pieces().empty()) LookLater();
}

/// What was asked for first holds.
void PendingWrites::StartRetryTimer(int ms) {
  if (!connection_.IsServer()) return;
  if (!retry_timer_) {
    retry_timer_ = std::make_unique<QTimer>();
    QObject::connect(retry_timer_.get(), &QTimer::timeout, [this] { LookForServer(); });
  }
  if (!retry_timer_->isActive()) retry_timer_->start(ms);
}

void PendingWrites::LookForServer() {
  if (connection_.IsBusy() || together_) return;
  if (!connection_.IsAtHand()) return retry_timer_->start(std::min(options_.retry_ms, kGlanceMs));
  const StoreConnection::Call call(connection_);
  retry_timer_->stop();
  try {
    if (connection_.With(Patience::kOnlyOnce, [](StoreTables&) {})) WritePending();
  } catch (const SqlError&) {
    // The user knows, and it is looked for again.
    LookLater();
  }
  BringLog();
}

void PendingWrites::Clear() {
  records_.clear();
  users_.clear();
  pending_settings_.clear();
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/outbox_forwarder.h"

#include <QCryptographicHash>
#include <QLockFile>
#include <QUrlQuery>
#include <algorithm>
#include <chrono>
#include <future>
#include <set>
#include <utility>

#include "store/outbox_entries.h"
#include "store/seat_settings.h"
#include "store/sql_connection.h"
#include "store/store_notices.h"

namespace vmod17 {
namespace {

using Clock = std::chrono::steady_clock;

// How long what waits is brought at a time.
constexpr std::chrono::milliseconds kTimeToBring(1000);
constexpr int kPatienceForOutboxMs = 250;

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

OutboxForwarder::OutboxForwarder(const StoreOptions& options, const StoreAddress& address,
                                 std::string seat, StoreConnection& connection,
                                 TroubleReport& trouble, std::function<void()> look_later)
    : options_(options),
      address_(address),
      seat_(std::move(seat)),
      connection_(connection),
      trouble_(trouble),
      look_later_(std::move(look_later)) {
  if (!connection_.IsServer() || options_.data_folder.empty()) return;
  const QString path =
      OutboxPath(QString::fromStdString(options_.data_folder), address_.server, seat_);
  outbox_ = std::make_unique<Outbox>(path, options_.clock, [this, path](const QString& aside) {
    trouble_.Tell(UnreadableOutboxNotice(path.toStdString(), aside.toStdString()));
  });
}

OutboxForwarder::~OutboxForwarder() = default;

// ---- What is in the outbox

std::optional<std::int64_t> OutboxForwarder::Post(const std::vector<OutboxEntry>& entries) {
  if (!outbox_ || !connection_.CanTake()) return {};
  return outbox_->Add(entries);
}

std::optional<std::int64_t> OutboxForwarder::Post(const Records& records) {
  if (!outbox_) return {};
  std::vector<OutboxEntry> entries;
  for (const auto& [key, value] : records)
    entries.push_back(RecordEntry(key, {value, SeenOf(key)}));
  return Post(entries);
}

std::vector<OutboxPiece> OutboxForwarder::Pieces() const {
  return outbox_ ? outbox_->Pieces() : std::vector<OutboxPiece>();
}

std::vector<OutboxEntry> OutboxForwarder::Entries() const {
  std::vector<OutboxEntry> all;
  for (const OutboxPiece& piece : Pieces()) {
    all.insert(all.end(), piece.entries.begin(), piece.entries.end());
  }
  return all;
}

std::optional<std::string> OutboxForwarder::Find(const RecordKey& key) const {
  std::optional<std::string> found;
  for (const auto& [kind, content] : Entries()) {
    if (kind == kRecordKind && KeyIn(content) == key) found = RecordIn(content).value;
  }
  return found;
}

bool OutboxForwarder::HoldsBack() const {
  return std::ranges::any_of(Pieces(), [](const OutboxPiece& piece) {
    return !piece.is_of_another && !IsNotice(piece) && !IsOfLog(piece);
  });
}

// ---- What was seen

void OutboxForwarder::SetSeen(const RecordKey& key, const std::optional<std::string>& value) {
  if (outbox_) seen_[key] = FingerprintOf(value);
}

void OutboxForwarder::SetSeen(const Records& records) {
  for (const auto& [key, value] : records) SetSeen(key, value);
}

bool OutboxForwarder::GoesPastAnother(const Records& records) const {
  return std::ranges::any_of(records, [&](const auto& record) {
    const auto seen = seen_.find(record.first);
    return seen != seen_.end() && seen->second.empty();
  });
}

std::string OutboxForwarder::SeenOf(const RecordKey& key) const {
  if (const auto seen = seen_.find(key); seen != seen_.end()) return seen->second;
  const std::optional<std::string> waiting = Find(key);
  return waiting ? FingerprintOf(waiting) : std::string();
}

// ---- To the server

bool OutboxForwarder::Forward() {
  if (Pieces().empty()) return true;
  // What another process has left, a third one may be bringing.
  QLockFile lock(outbox_->Path() + ".lock");
  if (!lock.tryLock(kPatienceForOutboxMs) && lock.error() == QLockFile::LockFailedError) {
    look_later_();
    return false;
  }
  const bool is_done = BringPieces(Pieces());
  if (!Pieces().empty()) look_later_();
  return is_done;
}

bool OutboxForwarder::BringPieces(const std::vector<OutboxPiece>& pieces) {
  // A piece for which there is too little time must not be begun: the server would be taken for
  // silent.
  const Clock::time_point end = std::min(connection_.deadline(), Clock::now() + kTimeToBring);
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
      trouble_.TellWaiting(error);
      if (error.failure() != SqlFailure::kOther) return false;
    }
    // What the store will never take must not hold up the others, unless they follow from it.
    held_up.insert(subjects.begin(), subjects.end());
    is_done = false;
  }
  return is_done;
}

/// Returns false when there is no store. Errors: SqlError.
bool OutboxForwarder::BringPiece(const OutboxPiece& piece) {
  std::vector<Notice> notices;
  const bool is_brought =
      connection_.Write(StoreConnection::Patience::kOnlyOnce,
                        [&](StoreTables& tables) { notices = Bring(tables, piece); });
  if (!is_brought) return false;
  for (const Notice& notice : notices) TellOrPost(notice);
  outbox_->Remove(piece.number);
  return true;
}

/// What the user has to be told of it. Errors: SqlError.
std::vector<Notice> OutboxForwarder::Bring(StoreTables& tables, const OutboxPiece& piece) {
  std::vector<Notice> notices;
  LateRecords records;
  SeatSettings::Values settings;
  std::vector<LogEntry> lines;
  for (const auto& [kind, content] : piece.entries) {
    if (IsUserKind(kind)) connection_.NeedUsers();
    if (kind == kRecordKind) {
      records[KeyIn(content)] = RecordIn(content);
    } else if (kind == kSettingKind) {
      settings[content[0].String()] = content[1].String();
    } else if (kind == kUserKind) {
      tables.SaveUser(UserIn(content));
    } else if (kind == kNewUserKind) {
      if (const auto notice = BringNewUser(tables, content)) notices.push_back(*notice);
    } else if (kind == kUserGoneKind) {
      tables.RemoveUser(content[0].String());
    } else if (kind == kLogKind) {
      lines.push_back(LineIn(content));
    } else if (kind == kNoticeKind) {
      notices.push_back(NoticeIn(content));
    }
  }
  if (!lines.empty()) BringLines(tables, lines);
  if (!settings.empty()) tables.SetSettings(seat_, settings);
  if (!tables.WriteLate(records, KeptSuffix(piece.at))) {
    for (const auto& [key, record] : records) seen_[key].clear();
    notices.push_back(NewerRecordNotice(address_.Display(), KeptSuffix(piece.at)));
  }
  return notices;
}

void OutboxForwarder::BringLines(StoreTables& tables, const std::vector<LogEntry>& lines) {
  const SqlErrand errand = tables.AppendLog(lines, options_.log_limit_bytes, kPatienceForLogMs);
  if (errand.wait_until(connection_.deadline()) != std::future_status::ready) {
    throw SqlError(SqlFailure::kUnreachable, "the server does not answer");
  }
  errand.get();
}

std::optional<Notice> OutboxForwarder::BringNewUser(StoreTables& tables,
                                                    const TaggedValue& content) {
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

void OutboxForwarder::TellOrPost(const Notice& notice) {
  if (CanTell()) {
    trouble_.Tell(notice);
  } else {
    Post({NoticeEntry(notice)});
  }
}

}  // namespace vmod17

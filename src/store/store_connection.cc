// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/store_connection.h"

#include <QLockFile>
#include <QTimer>
#include <algorithm>
#include <string>
#include <utility>

#include "store/store_notices.h"

namespace vmod17 {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

}  // namespace

StoreConnection::Call::Call(StoreConnection& connection) : connection_(connection) {
  if (connection_.calls_++ > 0) return;
  connection_.deadline_ = Clock::now() + milliseconds(connection_.options_.server_patience_ms);
}

StoreConnection::StoreConnection(const StoreOptions& options, const StoreAddress& address,
                                 Seat seat, SeatSettings& settings, TroubleReport& trouble,
                                 Hooks hooks)
    : options_(options),
      address_(address),
      seat_(std::move(seat)),
      settings_(settings),
      trouble_(trouble),
      hooks_(std::move(hooks)) {}

StoreConnection::~StoreConnection() = default;

// ---- What is asked for

bool StoreConnection::With(Patience patience, const Work& work) {
  const Call call(*this);
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

bool StoreConnection::Write(Patience patience, const Work& work) {
  return With(patience, [&](StoreTables& tables) {
    if (is_read_only_) throw SqlError(SqlFailure::kReadOnly, "the store is read-only");
    work(tables);
  });
}

bool StoreConnection::WithLog(const std::function<bool(StoreTables&)>& work) {
  const bool waited_in_vain = waited_in_vain_;
  bool is_gone = false;
  const bool is_done =
      With(Patience::kOnlyOnce, [&](StoreTables& tables) { is_gone = work(tables); });
  if (!is_gone) waited_in_vain_ = waited_in_vain;
  return is_done;
}

void StoreConnection::NeedSettings(Patience patience) {
  if (state_ == State::kUnseen && !settings_.AreHandedOn()) With(patience, [](StoreTables&) {});
}

void StoreConnection::NeedUsers() {
  if (HasUsers()) return;
  tables_->Upgrade();
  version_ = kStoreVersion;
}

std::optional<std::vector<StoreUser>> StoreConnection::TakeUsers() {
  return std::exchange(users_, std::nullopt);
}

// ---- How long it is waited for

bool StoreConnection::IsAtHand() {
  MakeConnection();
  return connection_->IsAtHand();
}

bool StoreConnection::IsOutOfReach() {
  const bool is_closed = state_ == State::kUnseen || state_ == State::kClosed;
  return is_closed && !IsAtHand();
}

void StoreConnection::HurryUp(int ms) {
  deadline_ = std::min(deadline_, Clock::now() + milliseconds(ms));
}

int StoreConnection::WaitFor(Patience patience) const {
  if (patience == Patience::kOnlyOnce && waited_in_vain_) return 0;
  // A lock on a server must not be taken for its silence.
  if (!IsServer()) return options_.busy_timeout_ms;
  const auto left = std::chrono::duration_cast<milliseconds>(deadline_ - Clock::now());
  return static_cast<int>(
      std::clamp<std::int64_t>(left.count() * 3 / 4, 0, options_.busy_timeout_ms));
}

// ---- Opening

void StoreConnection::MakeConnection() {
  if (connection_) return;
  connection_ = MakeSqlConnection(address_);
  tables_ = std::make_unique<StoreTables>(*connection_);
}

bool StoreConnection::Open(Patience patience) {
  if (state_ == State::kMemoryOnly) return false;
  const int wait_ms = WaitFor(patience);
  MakeConnection();
  connection_->SetDeadline(deadline_);
  if (state_ == State::kOpen && !WasReplaced()) {
    connection_->SetWait(wait_ms);
    return true;
  }
  if (state_ == State::kOpen) state_ = State::kClosed;
  try {
    state_ = OpenAnew(wait_ms) ? State::kOpen : State::kMemoryOnly;
  } catch (const SqlError& error) {
    if (IsServer() && error.failure() == SqlFailure::kUnreachable) {
      // It may be found while nobody waits.
      hooks_.away();
      if (state_ == State::kClosed) throw;
      trouble_.TellUnreadable(error);
      return false;
    }
    connection_->Close();
    // A store that was there comes back, perhaps. A file that was never seen must not be written
    // later: nobody knows what it holds.
    if (state_ == State::kClosed || error.failure() == SqlFailure::kLocked ||
        error.failure() == SqlFailure::kBroken) {
      throw;
    }
    state_ = State::kMemoryOnly;
    const std::string place = address_.Display();
    trouble_.TellInMemory(IsFile() ? UnusableStoreNotice(place, error.what())
                                   : UnusableServerNotice(place, error.what()));
  }
  return state_ == State::kOpen;
}

/// Returns false when there is no store to be had in this process. Errors: SqlError.
bool StoreConnection::OpenAnew(int wait_ms) {
  if (address_.kind == StoreAddress::Kind::kUnreadable) {
    trouble_.TellInMemory(UnreadableAddressNotice());
    return false;
  }
  if (address_.kind == StoreAddress::Kind::kNotUtf8) {
    trouble_.TellInMemory(NotUtf8StoreNotice(address_.Display()));
    return false;
  }
  if (IsFile()) {
    const QString refusal = PrepareStoreFile(
        address_.path, address_.is_default ? Privacy::kEnforced : Privacy::kOfNewFiles);
    if (!refusal.isEmpty()) throw SqlError(SqlFailure::kUnreachable, refusal.toStdString());
    identity_ = IdentityOf(address_.path);
  }
  connection_->Open(wait_ms);
  const bool also_users = options_.users_at_start && IsServer() && state_ == State::kUnseen;
  std::optional<StoreTables::Facts> facts =
      tables_->LookInto(seat_.name, seat_.former,
                        also_users ? StoreTables::AlsoUsers::kYes : StoreTables::AlsoUsers::kNo);
  // Its lock may have been waited for while another file took its place.
  if (WasReplaced()) return OpenAnew(wait_ms);
  if (facts && facts->version > kStoreVersion) {
    connection_->Close();
    trouble_.TellInMemory(NewerStoreNotice(address_.Display()));
    return false;
  }
  connection_->Prepare();
  if (!facts) {
    tables_->Create();
    if (!settings_.All().empty()) tables_->SetSettings(seat_.name, settings_.All());
    facts = {kStoreVersion, {}, {}, std::nullopt};
  }
  is_read_only_ = connection_->IsReadOnly();
  version_ = facts->version >= kStoreVersion || TryToUpgrade() ? kStoreVersion : facts->version;
  if (state_ == State::kUnseen) TakeIn(std::move(*facts));
  hooks_.opened();
  if (is_read_only_) trouble_.Tell(ReadOnlyStoreNotice(address_.Display()));
  return true;
}

/// What a process learns of a store once. Errors: SqlError.
void StoreConnection::TakeIn(StoreTables::Facts facts) {
  if (facts.settings.empty() && !facts.former.empty() && !seat_.former.empty()) {
    TakeOver(facts.former);
    facts.settings = std::move(facts.former);
  }
  settings_.AddStored(std::move(facts.settings));
  users_ = std::move(facts.users);
}

void StoreConnection::TakeOver(const SeatSettings::Values& settings_of_former_seat) {
  try {
    tables_->SetSettings(seat_.name, settings_of_former_seat);
  } catch (const SqlError& error) {
    // They hold in this process, and the next one finds them again.
    if (error.failure() != SqlFailure::kReadOnly) throw;
  }
}

/// A store of an older version has all but what is new, so it serves also where it cannot be
/// changed at the moment.
bool StoreConnection::TryToUpgrade() {
  if (is_read_only_) return false;
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

// ---- Closing and mending

void StoreConnection::Close() {
  if (connection_) connection_->Close();
  if (state_ == State::kOpen) state_ = State::kClosed;
}

void StoreConnection::StartAnew() {
  Close();
  state_ = State::kUnseen;
}

/// A room of many machines must not keep a connection each that nobody uses.
void StoreConnection::RestSoon() {
  if (!IsServer()) return;
  if (!idle_timer_) {
    idle_timer_ = std::make_unique<QTimer>();
    idle_timer_->setSingleShot(true);
    QObject::connect(idle_timer_.get(), &QTimer::timeout, [this] {
      if (IsBusy() || !IsOpen()) return RestSoon();
      Close();
      ForgetUsers();
    });
  }
  idle_timer_->start(options_.idle_ms);
}

bool StoreConnection::Recover(const SqlError& error) {
  if (error.failure() == SqlFailure::kBroken) return IsFile() && Repair();
  if (error.failure() != SqlFailure::kUnreachable || state_ != State::kOpen) return false;
  Close();
  return true;
}

bool StoreConnection::Repair() {
  Close();
  // Of two programs that find the file broken, the second must not move the new one aside.
  QLockFile lock(address_.path + ".repair");
  const bool locked = lock.tryLock(options_.busy_timeout_ms);
  if (locked && IdentityOf(address_.path) != identity_) return true;
  const QString aside = locked ? MoveStoreAside(address_.path, options_.clock()) : QString();
  if (aside.isEmpty()) {
    state_ = State::kMemoryOnly;
    trouble_.TellInMemory(UnusableStoreNotice(address_.Display(), "the file is damaged"));
    return false;
  }
  trouble_.Tell(BrokenStoreNotice(address_.Display(), aside.toStdString()));
  return true;
}

bool StoreConnection::WasReplaced() const {
  // A file that was deleted or replaced under its name would go on taking what is stored, and
  // nobody would find it again.
  return IsFile() && IdentityOf(address_.path) != identity_;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <QLockFile>
#include <QTimer>
#include <algorithm>

#include "store/host_store.h"
#include "store/outbox.h"
#include "store/sql_connection.h"
#include "store/store_address.h"
#include "store/store_file.h"
#include "store/store_notices.h"
#include "store/store_tables.h"

namespace vmod17 {

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

bool HostStore::IsFile() const { return address_->kind == StoreAddress::Kind::kFile; }

bool HostStore::IsServer() const { return address_->kind == StoreAddress::Kind::kServer; }

bool HostStore::WasReplaced() const {
  // A file that was deleted or replaced under its name would go on taking what is stored, and
  // nobody would find it again.
  return IsFile() && IdentityOf(address_->path) != identity_;
}

}  // namespace vmod17

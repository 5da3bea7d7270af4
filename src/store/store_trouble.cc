// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/host_store.h"
#include "store/outbox.h"
#include "store/sql_connection.h"
#include "store/store_address.h"
#include "store/store_notices.h"

namespace vmod17 {

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

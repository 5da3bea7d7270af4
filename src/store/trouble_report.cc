// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/trouble_report.h"

#include <string>
#include <utility>

#include "base/run_time_error.h"
#include "store/store_notices.h"

namespace vmod17 {

TroubleReport::TroubleReport(Notify notify, const StoreAddress& address,
                             std::function<bool()> can_keep)
    : notify_(std::move(notify)), address_(address), can_keep_(std::move(can_keep)) {}

void TroubleReport::Tell(const Notice& notice) {
  if (told_.insert(notice.text_id).second && notify_) notify_(notice);
}

void TroubleReport::TellInMemory(const Notice& notice) {
  in_memory_ = notice;
  Tell(notice);
}

void TroubleReport::RemindOfMemory() {
  if (in_memory_) Tell(*in_memory_);
}

void TroubleReport::TellUnreadable(const SqlError& error) {
  const std::string place = address_.Display();
  switch (error.failure()) {
    case SqlFailure::kLocked:
      return Tell(LockedStoreNotice(place));
    case SqlFailure::kUnreachable:
      return Tell(IsFile() ? UnreadableStoreNotice(place, error.what()) : ServerNotice(error));
    case SqlFailure::kBroken:
      // What became of a broken file was told when it was put aside.
      if (IsFile()) return;
      [[fallthrough]];
    case SqlFailure::kReadOnly:
    case SqlFailure::kFull:
    case SqlFailure::kOther:
      return Tell(UnreadableStoreNotice(place, error.what()));
  }
}

void TroubleReport::TellUnwritten(const SqlError& error) {
  const std::string place = address_.Display();
  switch (error.failure()) {
    case SqlFailure::kLocked:
      Tell(LockedStoreNotice(place));
      throw RunTimeError(ErrorNumber::kStore, std::string("the store is locked: ") + error.what(),
                         "vmod17.HostStore");
    case SqlFailure::kReadOnly:
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

void TroubleReport::TellWaiting(const SqlError& error) {
  Tell(WaitingStoreNotice(address_.Display(), error.what()));
}

void TroubleReport::Clear() {
  in_memory_.reset();
  TellAnew();
}

Notice TroubleReport::ServerNotice(const SqlError& error) const {
  return can_keep_() ? UnreachableServerNotice(address_.Display(), error.what())
                     : UnusableServerNotice(address_.Display(), error.what());
}

}  // namespace vmod17

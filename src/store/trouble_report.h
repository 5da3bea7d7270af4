// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <optional>
#include <set>

#include "base/notice.h"
#include "store/sql_connection.h"
#include "store/store_address.h"

namespace vmod17 {

/// Tells the user what a store does not do: each trouble once, until `TellAnew`.
class TroubleReport {
 public:
  /// `address`       outlives the object
  /// `can_keep`      whether this machine can keep what a server does not take
  TroubleReport(Notify notify, const StoreAddress& address, std::function<bool()> can_keep);

  bool CanTell() const { return notify_ != nullptr; }
  void Tell(const Notice& notice);
  /// Nothing is stored at all, and why.
  void TellInMemory(const Notice& notice);
  /// Something was stored in memory only, which is told in each run, since all of it is lost.
  void RemindOfMemory();
  void TellUnreadable(const SqlError& error);
  /// Errors: RunTimeError kStore where the store is locked, since the caller can try again.
  void TellUnwritten(const SqlError& error);
  /// What a server refuses waits on this machine.
  void TellWaiting(const SqlError& error);

  /// Something has been stored, or a run begins.
  void TellAnew() { told_.clear(); }
  /// The store is another one.
  void Clear();

 private:
  bool IsFile() const { return address_.kind == StoreAddress::Kind::kFile; }
  Notice ServerNotice(const SqlError& error) const;

  const Notify notify_;
  const StoreAddress& address_;
  const std::function<bool()> can_keep_;
  std::set<int> told_;
  std::optional<Notice> in_memory_;  // why nothing is stored at all
};

}  // namespace vmod17

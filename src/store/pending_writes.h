// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>

#include "ports/event_loop.h"
#include "store/log_entry.h"
#include "store/log_queue.h"
#include "store/outbox_forwarder.h"
#include "store/seat_settings.h"
#include "store/store_connection.h"
#include "store/store_options.h"
#include "store/store_tables.h"
#include "store/store_user.h"
#include "store/trouble_report.h"

class QTimer;

namespace vmod17 {

/// All that is written goes through here: it is written at once, or it waits, in the outbox of a
/// server or in memory, is found here meanwhile, and is brought later.
///
/// What is in memory or in the outbox is newer than what the store has. A member that asks the
/// store does it in one `StoreConnection::Call`, its caller's if there is one.
class PendingWrites {
 public:
  using Patience = StoreConnection::Patience;
  /// No value: removed.
  using UserChange = std::optional<StoreUser>;
  using UserChanges = std::map<std::string, UserChange>;

  /// What is passed by reference outlives the object.
  PendingWrites(const StoreOptions& options, const StoreAddress& address, const std::string& seat,
                StoreConnection& connection, SeatSettings& settings, TroubleReport& trouble);
  /// Tries once more, and keeps for the next process what it can.
  ~PendingWrites();

  // Records.

  /// What `stores` stores waits for its end and is then one transaction. Errors: those of `stores`,
  /// and then nothing is stored; RunTimeError kInvalidCall inside another one.
  void Together(const std::function<void()>& stores);
  /// Errors: RunTimeError kStore while the store is locked.
  void Store(const RecordKey& key, const std::string& value);
  /// A record that waits.
  std::optional<std::string> Find(const RecordKey& key);
  /// This was read from the store.
  void SetSeen(const RecordKey& key, const std::optional<std::string>& value) {
    forwarder_.SetSeen(key, value);
  }

  // Settings and users. Errors: RunTimeError kStore while the store is locked.

  void ChangeSettings(const SeatSettings::Values& changes);
  /// A setting that the store knows already, or will be told.
  void SetHere(const std::string& name, const std::string& value);
  /// Returns whether the store has taken it.
  bool WriteUser(const StoreConnection::Work& work);
  /// A change that the store has not taken, or now has.
  void KeepUser(const std::string& id, const UserChange& change, UserIs is);
  void ForgetUser(const std::string& id) { users_.erase(id); }
  /// Whether a user waits in memory to be added or changed.
  bool KeepsUser(const std::string& id) const;
  UserChanges Users() const;

  // The log.

  bool AppendLog(LogEntry line);
  /// Sends the lines that wait. Returns false when the store has not taken them.
  bool BringLog(Patience patience = Patience::kOnlyOnce);

  // What waits.

  /// Whether this machine can keep what a server does not take.
  bool CanKeep() const { return forwarder_.CanKeep(); }
  /// The settings that wait in the outbox.
  SeatSettings::Values SettingsThatWait() const;
  /// Tries now; a disk that was full may have room by now.
  void BringWhatWaits(Patience with_the_log);
  /// Tries now. Errors: SqlError.
  void WritePending();
  /// Tries as soon as nobody is waited for.
  void LookSoon();
  void LookLater();
  /// If there is anything that would have to be tried again.
  void LookLaterForTheRest();
  /// The store is another one: what is in memory was for the former.
  void Clear();

  /// What the store did not take, of a call that was to change it. Errors: RunTimeError kStore for
  /// a lock.
  void WriteFailed(const SqlError& error);

 private:
  void Keep(const Records& records);
  bool WriteRecords(const Records& records);
  void WriteTheRest();
  void WritePendingUsers();
  void StartRetryTimer(int ms);
  void LookForServer();

  const StoreOptions& options_;
  const std::string seat_;
  StoreConnection& connection_;
  SeatSettings& settings_;
  TroubleReport& trouble_;
  OutboxForwarder forwarder_;

  std::optional<Records> together_;  // what was stored so far, while `Together` runs
  // In memory, what neither the store nor an outbox has taken.
  Records records_;
  UserChanges users_;
  SeatSettings::Values pending_settings_;
  LogQueue log_;
  std::unique_ptr<QTimer> retry_timer_;
};

}  // namespace vmod17

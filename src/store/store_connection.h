// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "store/seat.h"
#include "store/seat_settings.h"
#include "store/sql_connection.h"
#include "store/store_address.h"
#include "store/store_file.h"
#include "store/store_options.h"
#include "store/store_tables.h"
#include "store/store_user.h"
#include "store/trouble_report.h"

class QTimer;

namespace vmod17 {

/// The way to the database: it is opened, made, upgraded and repaired here, and here alone it is
/// decided how long anybody waits for it. Nothing is opened before the first `With`.
///
/// What is asked for goes through `With` or `Write`, inside a `Call`. Who has stored something at
/// last tells `TroubleReport::TellAnew`.
class StoreConnection {
 public:
  /// kWait: until a lock is gone, as long as the options allow. kOnlyOnce: likewise, but not again
  /// after it was waited for in vain.
  enum class Patience { kWait, kOnlyOnce };
  using Work = std::function<void(StoreTables&)>;
  struct Hooks {
    std::function<void()> opened = [] {};  ///< each time that it was opened
    std::function<void()> away = [] {};    ///< a server does not answer, or not yet
  };

  /// A call from outside. All that it asks of a server has one deadline, that of the outermost one.
  class Call {
   public:
    explicit Call(StoreConnection& connection);
    ~Call() { --connection_.calls_; }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

   private:
    StoreConnection& connection_;
  };

  /// What is passed by reference outlives the connection.
  StoreConnection(const StoreOptions& options, const StoreAddress& address, Seat seat,
                  SeatSettings& settings, TroubleReport& trouble, Hooks hooks);
  ~StoreConnection();

  /// Runs `work` on the open store, on a new one if it proves broken, and again if the connection
  /// was lost. Returns false, without running it, when there is none. Errors: SqlError.
  bool With(Patience patience, const Work& work);
  /// The same for what changes the store. Errors: SqlError, kReadOnly before `work` is run.
  bool Write(Patience patience, const Work& work);
  /// The same as `With` for what needs no lock of the records. `work` returns whether it has shown
  /// that a lock which was waited for in vain is gone.
  bool WithLog(const std::function<bool(StoreTables&)>& work);
  /// Sees that the settings are there, if they can be had. Errors: SqlError.
  void NeedSettings(Patience patience);
  /// Within `With`: whether the store has the list of users, and makes it where it has none.
  bool HasUsers() const { return version_ >= kStoreVersion; }
  void NeedUsers();
  /// The users that came with the settings, once; what was changed since is not among them.
  std::optional<std::vector<StoreUser>> TakeUsers();
  void ForgetUsers() { users_.reset(); }

  bool IsServer() const { return address_.kind == StoreAddress::Kind::kServer; }
  bool IsOpen() const { return state_ == State::kOpen; }
  bool IsReadOnly() const { return is_read_only_; }
  /// What is written has proved to be refused for good.
  void TakeForReadOnly() { is_read_only_ = true; }
  /// Whether the store may take what is written, now or later.
  bool CanTake() const { return !is_read_only_ && state_ != State::kMemoryOnly; }
  /// Whether a call is under way.
  bool IsBusy() const { return calls_ > 0; }
  /// Whether anything has been asked of the database yet.
  bool IsBegun() const { return connection_ != nullptr; }
  /// Whether it could be opened without a wait; begins to see to it where it could not.
  bool IsAtHand();
  /// Whether it is closed, and to open it would be to wait.
  bool IsOutOfReach();
  bool IsFar() const { return connection_ && connection_->IsFar(); }

  /// When the call that is under way must be over, as far as a server is asked.
  std::chrono::steady_clock::time_point deadline() const { return deadline_; }
  /// It must be over in `ms` milliseconds, if not before.
  void HurryUp(int ms);

  /// Lets the database go, until it is needed again.
  void Close();
  /// The store is another one from now on.
  void StartAnew();

 private:
  enum class State {
    kUnseen,  ///< never opened, so nobody knows what it holds
    kOpen,
    kClosed,      ///< was open, and will be again
    kMemoryOnly,  ///< there is none, until the end of the process
  };

  bool Open(Patience patience);
  bool OpenAnew(int wait_ms);
  int WaitFor(Patience patience) const;
  void MakeConnection();
  void TakeIn(StoreTables::Facts facts);
  void TakeOver(const SeatSettings::Values& settings_of_former_seat);
  void RestSoon();
  bool Recover(const SqlError& error);
  bool Repair();
  bool IsFile() const { return address_.kind == StoreAddress::Kind::kFile; }
  bool WasReplaced() const;
  bool TryToUpgrade();

  const StoreOptions& options_;
  const StoreAddress& address_;
  const Seat seat_;
  SeatSettings& settings_;
  TroubleReport& trouble_;
  const Hooks hooks_;

  std::unique_ptr<SqlConnection> connection_;
  std::unique_ptr<StoreTables> tables_;
  State state_ = State::kUnseen;
  std::int64_t version_ = 0;  // of the store that is open
  bool is_read_only_ = false;
  bool waited_in_vain_ = false;  // for a lock, the last time that one was met
  FileIdentity identity_;        // of the file that is open
  std::optional<std::vector<StoreUser>> users_;
  int calls_ = 0;  // that are under way, one within the other
  std::chrono::steady_clock::time_point deadline_;
  std::unique_ptr<QTimer> idle_timer_;
};

}  // namespace vmod17

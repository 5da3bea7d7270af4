// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/notice.h"
#include "ports/event_loop.h"
#include "ports/host_service.h"
#include "store/log_entry.h"
#include "store/log_queue.h"
#include "store/store_options.h"
#include "store/store_user.h"

class QTimer;

namespace vmod17 {

class Outbox;
class SqlConnection;
class SqlError;
class StoreBackup;
class StoreTables;
struct OutboxEntry;
struct OutboxPiece;
struct RecordKey;
struct StoreAddress;

/// The host's services over an SQL database: the store by user, program and key, the log, the user,
/// the language, the MIDI output. One object a process; it is used on the program's one thread and
/// needs a QCoreApplication from its first command on. Nothing is opened before that.
///
/// Each "STORE", each `Together` and each setter is one transaction, on the disk when the call
/// returns. A log line that the store takes is handed to the system and may be lost with the power,
/// not with the process; one that waits for it is lost with a process that is killed. The settings
/// are read once, when the store is opened: a process belongs to the user for whom it was started.
/// What the store does not take of them is kept like a record.
///
/// A store that is missing is made. Of a store that does not work the user is told, once until it
/// has stored something again or `TellAnew` is called:
///
/// | the store is             | reading                   | storing                              |
/// |--------------------------|---------------------------|--------------------------------------|
/// | held by another process  | false                     | waits, then RunTimeError kStore; a   |
/// |                          |                           | record for a server: in the outbox   |
/// | read-only                | works                     | in memory until the process ends     |
/// | on a full disk           | works                     | in memory, or in the outbox of a     |
/// |                          |                           | server, and tried again with the     |
/// |                          |                           | next "STORE" and at the end          |
/// | a file cut off later     | false                     | the same                             |
/// | a server that is away    | false; at first contact   | in the outbox, and brought as soon   |
/// |                          | nothing stored            | as it is back                        |
/// | broken                   | put aside, a new one made | in the new one                       |
/// | of an older version      | made into one of this version, in one transaction                |
/// | of a newer version       | nothing stored            | in memory; the store is left alone   |
/// | not to be opened         | nothing stored            | in memory                            |
///
/// What is in memory is read back by "READ" as if it were stored, and is tried again in one
/// transaction: what was stored with `Together` waits, and is written, as a whole. After a lock was
/// waited for in vain, only "STORE" and the setters wait again until it is gone, so that the
/// program does not stand still with every call. A single record that is damaged is put aside under
/// another key, its "READ" returns false. The log never raises; lines that the store does not take
/// at once wait in memory, in their order.
///
/// A server is waited for `server_patience_ms` at the most, and after that not again until it has
/// been found beside the program. What is stored is written into the `Outbox` of this machine
/// before the server is asked, so that a process that is killed meanwhile loses nothing, and what
/// is short waits half as long for it; it is read back, and brought in its order by this process or
/// the next one, each piece in one transaction. A record that somebody else has stored meanwhile is
/// not overwritten by an older one, nor by a "STORE" behind what waits.
class HostStore {
 public:
  explicit HostStore(StoreOptions options);
  ~HostStore();
  HostStore(const HostStore&) = delete;
  HostStore& operator=(const HostStore&) = delete;

  /// Another host object on this store, which must outlive it.
  std::unique_ptr<HostService> Service();

  /// The settings, for the host's window. Setters: RunTimeError kStore while the store is locked.
  std::optional<StoreUser> User();
  void SetUser(const StoreUser& user);
  /// "" for the language of the desktop.
  std::string Language();
  void SetLanguage(const std::string& language);
  /// Name of the MIDI output, "" for the last of the list.
  std::string MidiDevice();
  void SetMidiDevice(const std::string& name);
  /// Path of the soundfont that the user has chosen, "" for the system's.
  std::string Soundfont();
  void SetSoundfont(const std::string& path);

  /// Who can be chosen, in no order; all seats of a store share them. None when the store cannot be
  /// read, or is of an older version and cannot be changed.
  std::vector<StoreUser> Users();
  enum class UserIs { kNew, kKnown };
  /// Adds a user or changes the names of one, wherever they are kept. What the store does not take
  /// is kept in memory, like a record. Returns false when a new user's number is another's already.
  /// Errors: RunTimeError kInvalidCall for a user without a number, kStore while the store is
  /// locked.
  bool SaveUser(const StoreUser& user, UserIs is);
  /// Takes a user off the list; one who was chosen gives way to nobody. What he has stored stays,
  /// and is his again when he is added again. Errors: RunTimeError kStore while the store is
  /// locked.
  void RemoveUser(const std::string& id);

  /// Has a backup that is prepared take the place of the store, a file. What was not stored yet is
  /// dropped, and users, settings and records are read anew. Returns why it cannot be done; then
  /// the store is as it was.
  std::optional<Notice> Restore(StoreBackup& backup);

  /// The settings as they hold in this process, for one that it starts: the store may not have
  /// taken them all, and another process may have changed them in it.
  std::string Session();

  /// A run begins: a trouble that was told before is told again when it is met again.
  void TellAnew() { told_.clear(); }

  /// Brings a server what another process may have left for it, as soon as nobody is waited for.
  void LookForTheRest();

  /// The newest `count` log lines, oldest first; none when the store cannot be read.
  std::vector<LogEntry> Log(int count);

 private:
  class Front;
  enum class State { kClosed, kOpen, kMemoryOnly };
  enum class Patience { kWait, kOnlyOnce };
  using Settings = std::map<std::string, std::string>;
  using Records = std::map<RecordKey, std::string>;
  using Work = std::function<void(StoreTables&)>;
  using UserChange = std::optional<StoreUser>;  // no value: removed

  /// A call from outside. All that it asks of a server has one deadline, that of the outermost
  /// call.
  class OneCall {
   public:
    explicit OneCall(HostStore& store) : store_(store) {
      if (store_.calls_++ > 0) return;
      store_.deadline_ = std::chrono::steady_clock::now() +
                         std::chrono::milliseconds(store_.options_.server_patience_ms);
      store_.OpenOutbox();
    }
    ~OneCall() { --store_.calls_; }
    OneCall(const OneCall&) = delete;
    OneCall& operator=(const OneCall&) = delete;

   private:
    HostStore& store_;
  };

  bool Action(std::string_view command, const TaggedValue& args, TaggedValue& result);
  void Together(const std::function<void()>& stores);
  bool Midi(TaggedValue& result);
  bool Read(const TaggedValue& args, TaggedValue& result);
  bool Store(const TaggedValue& args);
  bool Login(TaggedValue& result);
  bool Lang(TaggedValue& result);
  bool Menue();
  void BringWhatWaits(Patience with_the_log);
  bool AppendLog(LogEntry entry);
  bool BringLog(Patience patience = Patience::kOnlyOnce);

  /// Runs `work` on the open store, on a new one if it proves broken, and again if the connection
  /// was lost. Returns false, without running it, when there is none. Errors: SqlError.
  bool WithStore(Patience patience, const Work& work);
  bool Open(Patience patience);
  bool OpenAnew(int wait_ms);
  int WaitFor(Patience patience) const;
  void MakeConnection();
  void TakeOver(const Settings& settings_of_former_seat);
  bool Recover(const SqlError& error);
  bool Repair();
  bool IsFile() const;
  bool IsServer() const;
  bool WasReplaced() const;
  bool TryToUpgrade();
  void NeedUserTable();

  RecordKey KeyOf(const TaggedValue& args, Patience patience);
  std::optional<std::string> InMemory(const RecordKey& key) const;
  std::optional<std::string> InOutbox(const RecordKey& key) const;
  void Keep(const Records& records);
  bool WriteRecords(const Records& records);
  std::vector<OutboxEntry> EntriesFor(const Records& records) const;
  bool GoesPastAnother(const Records& records) const;
  void SetSeen(const Records& records);
  void ForgetOlder(const Records& records);
  void HurryUp();
  void WriteTheRest();
  void WritePending();
  bool WriteUser(const Work& work);
  void KeepUser(const std::string& id, const UserChange& change, UserIs is);
  bool IsUser(const std::string& id);
  void WritePendingUsers();

  void OpenOutbox();
  std::optional<std::int64_t> Post(const std::vector<OutboxEntry>& entries);
  std::vector<OutboxEntry> Kept() const;
  bool WaitsInOutbox() const;
  bool EmptyOutbox();
  bool BringPieces(const std::vector<OutboxPiece>& pieces);
  bool BringPiece(const OutboxPiece& piece);
  std::vector<Notice> Bring(StoreTables& tables, const OutboxPiece& piece);
  std::optional<Notice> BringNewUser(StoreTables& tables, const TaggedValue& content);
  bool CanTell() const;
  void TellOrKeep(const Notice& notice);
  void LookForServerLater(std::optional<int> ms = {});
  void LookForServer();
  void RestSoon();

  void PutAside(const RecordKey& key, const std::string& value);
  void ChangeSettings(const Settings& changes);
  void SetHere(const std::string& name, const std::string& value);
  const Settings& CurrentSettings();
  std::string Setting(const std::string& name);

  void Tell(const Notice& notice);
  void TellInMemory(const Notice& notice);
  Notice ServerNotice(const SqlError& error) const;
  void TellUnreadable(const SqlError& error);
  void WriteFailed(const SqlError& error, bool is_kept = false);

  StoreOptions options_;
  std::unique_ptr<StoreAddress> address_;
  std::unique_ptr<SqlConnection> connection_;
  std::unique_ptr<StoreTables> tables_;
  State state_ = State::kClosed;
  bool was_open_ = false;
  bool read_only_ = false;
  bool has_user_table_ = false;
  bool waited_in_vain_ = false;
  std::pair<std::uint64_t, std::uint64_t> identity_;  // of the file that is open
  Settings session_;
  Settings settings_;
  std::optional<Records> together_;  // what was stored so far, while `Together` runs
  Records pending_;                  // what the database did not take
  std::map<std::string, UserChange> pending_users_;
  Settings pending_settings_;
  LogQueue log_;
  std::unique_ptr<Outbox> outbox_;  // of a server
  bool outbox_fails_ = false;
  // Fingerprints of what a server holds, as far as this process knows; "" where it holds another
  // one than the one with which this process goes on.
  std::map<RecordKey, std::string> seen_;
  bool is_ending_ = false;
  std::string former_seat_;
  std::optional<std::vector<StoreUser>> users_;     // that came with the settings, until asked for
  int calls_ = 0;                                   // that are under way, one within the other
  std::chrono::steady_clock::time_point deadline_;  // of the outermost
  std::unique_ptr<QTimer> retry_timer_;
  std::unique_ptr<QTimer> idle_timer_;
  std::set<int> told_;               // since something was stored or a run began
  std::optional<Notice> in_memory_;  // why nothing is stored at all
};

}  // namespace vmod17

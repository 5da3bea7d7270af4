// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/notice.h"
#include "ports/host_service.h"
#include "store/log_entry.h"
#include "store/store_options.h"
#include "store/store_user.h"

namespace vmod17 {

class SeatSettings;
class StoreBackup;

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
///
/// Itself it is what the host's window asks for, and the owner of its parts: `StoreConnection` (the
/// database), `PendingWrites` (what is written, and what waits), `StoreCommands` (what the screens
/// ask for), and below these `SeatSettings` and `TroubleReport`.
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
  using UserIs = vmod17::UserIs;
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
  void TellAnew();

  /// Brings a server what another process may have left for it, as soon as nobody is waited for.
  void LookForTheRest();

  /// The newest `count` log lines, oldest first; none when the store cannot be read.
  std::vector<LogEntry> Log(int count);

 private:
  struct Parts;

  SeatSettings& Settings();
  bool IsUser(const std::string& id);

  std::unique_ptr<Parts> parts_;
};

}  // namespace vmod17

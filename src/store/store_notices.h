// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>

#include "base/notice.h"
#include "store/store_user.h"

namespace vmod17 {

/// What the user is told of a store that cannot do its work. `place` is the file or the server,
/// `reason` what the system said.
Notice NewerStoreNotice(const std::string& place);
Notice UnusableStoreNotice(const std::string& place, const std::string& reason);
Notice LockedStoreNotice(const std::string& place);
Notice ReadOnlyStoreNotice(const std::string& place);
Notice FullStoreNotice(const std::string& place, const std::string& reason);
/// `aside` is where the broken file is now.
Notice BrokenStoreNotice(const std::string& place, const std::string& aside);
/// `key` is the record's key, `aside` the key under which it was put aside.
Notice DamagedRecordNotice(const std::string& key, const std::string& aside);
/// Of an address no part is told, for nobody knows which of it is a secret.
Notice UnreadableAddressNotice();
Notice NotUtf8StoreNotice(const std::string& place);
/// A server that is away: what is stored waits on this machine.
Notice UnreachableServerNotice(const std::string& place, const std::string& reason);
/// A server that will not do, or one that is away while this machine cannot keep anything for it.
Notice UnusableServerNotice(const std::string& place, const std::string& reason);
/// `suffix` is what the key of the older record, which came late, has behind it now.
Notice NewerRecordNotice(const std::string& place, const std::string& suffix);
/// What waited on this machine for a server, and is `aside` now.
Notice UnreadableOutboxNotice(const std::string& file, const std::string& aside);
/// A record or a change that a server refuses, and that waits for it on this machine.
Notice WaitingStoreNotice(const std::string& place, const std::string& reason);
/// One who was entered while the server was away has the number of somebody else there.
Notice UserTakenNotice(const StoreUser& user, const StoreUser& other);
/// Why a backup was not restored. `file` is the backup.
Notice NoBackupNotice(const std::string& file);
Notice DamagedBackupNotice(const std::string& file, const std::string& reason);
Notice NewerBackupNotice(const std::string& file);
Notice PresentStoreNotice(const std::string& file);
Notice BackupNotRestoredNotice(const std::string& file, const std::string& reason);
Notice StoreInUseNotice(const std::string& place);
Notice UnreadableStoreNotice(const std::string& place, const std::string& reason);

}  // namespace vmod17

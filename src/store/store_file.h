// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <array>
#include <cstdint>
#include <utility>

#include "ports/event_loop.h"

namespace vmod17 {

/// Which file lies at a path: another one under the same name has another identity. {0, 0} when
/// there is none, or on a system that does not tell.
using FileIdentity = std::pair<std::uint64_t, std::uint64_t>;
FileIdentity IdentityOf(const QString& path);

enum class Privacy { kOfNewFiles, kEnforced };

/// What SQLite keeps beside a file, by the endings of the names.
inline constexpr std::array<const char*, 3> kSideFiles = {"-wal", "-shm", "-journal"};

/// Makes the file at `path` and the folders above it if they are missing: folders for their owner
/// alone (0700), the file likewise (0600), whatever the process's mask. SQLite gives its side files
/// the mode of the file. `kEnforced` narrows a file and a folder that are there already.
/// Returns an empty text, or what the system says to it when it cannot be done.
QString PrepareStoreFile(const QString& path, Privacy privacy);

/// True when file and folder can be written, as a store needs both.
bool IsWritableStore(const QString& path);

/// The ending of what is put aside: `.broken-YYYYMMDD-hhmmss`.
QString BrokenSuffix(const DateTime& now);

/// Where a file that gives way to another is kept: its path with `.replaced-YYYYMMDD-hhmmss` behind
/// it, and "-2" and so on as long as that name, or that of a side file to it, is taken.
QString FreeAside(const QString& path, const DateTime& now);

/// Gives a file a second name, which is `FreeAside`; where the file system knows no second names,
/// to a copy of it. Returns it, or "" when it cannot be done. To be called without a lock on the
/// file: the copying would lose it.
QString KeepAlsoAside(const QString& path, const DateTime& now);

/// Waits until a file, or the names in a folder, are on the disk. False when that fails.
bool SyncToDisk(const QString& path);

/// Renames the file and its side files to its path with `BrokenSuffix` behind it, and "-2" and so
/// on when that name is taken. Returns the new path, or "" when it cannot be done.
QString MoveStoreAside(const QString& path, const DateTime& now);

}  // namespace vmod17

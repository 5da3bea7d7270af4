// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QUrl>
#include <string>

namespace vmod17 {

/// The folder for what the program keeps of a user, in the system's own bytes:
/// `$XDG_DATA_HOME/melvado`, where an unset or relative XDG_DATA_HOME stands for `~/.local/share`.
/// The folder need not exist.
std::string UserDataFolder();

/// Where a store is.
struct StoreAddress {
  enum class Kind {
    kFile,
    kServer,
    kUnreadable,  ///< meant for a server, but not to be read as one
    kNotUtf8,     ///< a file whose path is not UTF-8, which the database library does not take
  };

  Kind kind = Kind::kFile;
  bool is_default = false;  ///< the file that is taken when nothing else is said
  QString path;             ///< kFile: path of the SQLite file; kNotUtf8: what can be shown of it
  QUrl server;              ///< kServer: postgresql://user@host:port/database?option=value

  /// Name of the place for the user's eyes: the path, or the address without its password; nothing
  /// for kUnreadable, since nobody knows which part of it is a secret.
  std::string Display() const;
  /// The same for all ways to write down one place.
  std::string Identity() const;
};

/// Reads an address: "" is the file `store.sqlite` in `UserDataFolder()`, what begins with
/// "postgresql://" or "postgres://" in any case is a server, blanks around it aside. What else
/// looks like a server's address (another scheme, "host=... password=...") is kUnreadable, and
/// never a file: its password would stand in the file's name. Everything else is the path of a
/// file.
///
/// All between the scheme and the last "@" is the user and his password, which may hold any
/// character as it is or percent-encoded. The options of a server's address are those of its client
/// library, such as `sslmode=require`; `host` and `port` may stand there as well, `host` also for
/// the folder of a socket. A user without a host means this machine.
StoreAddress ParseStoreAddress(const std::string& address);

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "base/notice.h"
#include "ports/event_loop.h"

namespace vmod17 {

/// What a `HostStore` is made with. A function that is not given never has an answer.
struct StoreOptions {
  /// See `ParseStoreAddress`; "" is the user's own file.
  std::string address;
  /// Whose settings these are among those of one store. "" stands for the one user of a file, and
  /// on a server for this machine and the name under which the user is logged in on it.
  std::string seat;
  /// The settings of another process, from its `Session()`, which go before those of the store; ""
  /// for none.
  std::string session;
  /// The language of the desktop, if it is installed.
  std::function<std::optional<std::string>()> desktop_language;
  /// Whether a language is installed. Without it, the language of the settings is trusted.
  std::function<bool(const std::string&)> language_installed;
  /// The number that the MIDI output of this name has at present.
  std::function<std::optional<int>(const std::string&)> midi_number;
  /// Returns to the host. Returns false when no host started the program.
  std::function<bool()> menue;
  Notify notify;
  /// Date and time for log lines and for the names of what is put aside. By default the system's.
  std::function<DateTime()> clock;
  /// How long a store that another process holds is waited for.
  int busy_timeout_ms = 5000;
  /// How long a call may keep the program waiting for a server, all in all.
  int server_patience_ms = 4000;
  /// How often a server that is away is looked for, for what waits for it.
  int retry_ms = 5000;
  /// After how long without use a server gets its connection back.
  int idle_ms = 30'000;
  /// Folder for what this machine keeps of a user; "" for `UserDataFolder()`.
  std::string data_folder;
  /// Whether the users will be asked for at once: they come with the settings then.
  bool users_at_start = false;
  /// Size above which the oldest lines of the log go. The tables add a quarter to it at most.
  std::int64_t log_limit_bytes = 7'500'000;
};

}  // namespace vmod17

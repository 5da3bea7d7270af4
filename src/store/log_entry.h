// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstdint>
#include <string>

namespace vmod17 {

/// One line of the host's log.
struct LogEntry {
  enum class Kind { kMessage, kError };

  Kind kind = Kind::kMessage;
  std::string at;           ///< date and time, "YYYY-MM-DD hh:mm:ss"
  std::string user;         ///< matriculation number, "" for nobody
  std::string place;        ///< kError: the routine
  std::int64_t number = 0;  ///< kError: number of the error
  std::string text;         ///< the line, or the error's text
  std::string source;       ///< kError: the part of the program that noticed it
};

}  // namespace vmod17

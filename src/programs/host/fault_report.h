// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>
#include <vector>

#include "store/log_entry.h"

namespace melvado {

/// What whoever mends a fault wants to know beside the log. All UTF-8.
struct FaultFacts {
  std::string version;
  std::string system;  ///< operating system, window system, toolkit
  std::string language;
  std::string store;   ///< where it is, without a password
  std::string output;  ///< what is chosen, and whether it is there
  std::string soundfont;
  std::string verdict;  ///< of the last sound test, "" without one
  std::string home;     ///< the folder that is called by its user, which the report calls ~
};

/// The facts and the newest 1000 lines of the log as a plain text, in English, for a mail. Names of
/// users are not in it, neither as that of the home folder nor in the address of a server.
std::string FaultReport(const FaultFacts& facts, const std::vector<vmod17::LogEntry>& log);

}  // namespace melvado

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <vector>

#include "store/log_entry.h"
#include "store/sql_connection.h"

namespace vmod17 {

class StoreTables;

/// The lines of the log on their way to the store, in their order. A log that another process holds
/// is not waited for: its lines go with the next ones.
class LogQueue {
 public:
  /// `limit_bytes`  size above which the oldest lines of the store's log go; about a fiftieth of it
  ///                passes from one look at the size to the next
  explicit LogQueue(std::int64_t limit_bytes) : limit_bytes_(limit_bytes) {}

  /// Of a queue that is full the oldest line goes that is not under way.
  void Add(LogEntry line);
  /// Sends what waits, unless the store is still at the lines that were sent before. Returns false
  /// when another process holds the log and has not let go within `patience_ms`; after that it is
  /// only tried until it goes again. Errors: SqlError.
  bool Send(StoreTables& tables, int patience_ms);
  /// Whether lines wait that the store has not got for certain.
  bool IsEmpty() const { return lines_.empty(); }
  /// Lets the next `Send` wait, although the last one did in vain.
  void Insist() { was_locked_ = false; }
  /// What waits, for another place to keep it; of what is under way, what has not arrived by then.
  /// The queue is empty afterwards.
  std::vector<LogEntry> Take(std::chrono::steady_clock::time_point until);

 private:
  bool Collect();

  std::int64_t limit_bytes_;
  std::int64_t bytes_to_trim_ = 0;  // 0: with the next lines
  std::deque<LogEntry> lines_;
  std::size_t under_way_ = 0;  // of `lines_`, from the first
  SqlErrand errand_;
  bool was_locked_ = false;
};

}  // namespace vmod17

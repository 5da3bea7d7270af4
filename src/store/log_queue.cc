// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/log_queue.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "store/store_tables.h"

namespace vmod17 {
namespace {

constexpr std::size_t kMostLines = 1000;
constexpr std::size_t kLinesAtOnce = 100;
// So many wait for those that are under way before somebody waits for these.
constexpr std::size_t kLinesInAdvance = 10;
constexpr std::chrono::milliseconds kMoment(500);

}  // namespace

void LogQueue::Add(LogEntry line) {
  if (lines_.size() >= kMostLines) {
    lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(under_way_));
  }
  lines_.push_back(std::move(line));
}

bool LogQueue::Send(StoreTables& tables, int patience_ms) {
  do {
    const bool is_long = lines_.size() - under_way_ > kLinesInAdvance;
    if (errand_.valid() && is_long) errand_.wait_for(kMoment);
    if (!Collect()) return false;
    if (under_way_ > 0 || lines_.empty()) return true;
    under_way_ = std::min(lines_.size(), kLinesAtOnce);
    const std::vector<LogEntry> lines(lines_.begin(),
                                      lines_.begin() + static_cast<std::ptrdiff_t>(under_way_));
    std::optional<std::int64_t> limit;
    if (bytes_to_trim_ <= 0) {
      limit = limit_bytes_;
      bytes_to_trim_ = limit_bytes_ / 50;
    }
    for (const LogEntry& line : lines) bytes_to_trim_ -= StoreTables::SizeOf(line);
    try {
      errand_ = tables.AppendLog(lines, limit, was_locked_ ? 0 : patience_ms);
    } catch (const SqlError&) {
      under_way_ = 0;
      throw;
    }
  } while (errand_.wait_for(std::chrono::seconds(0)) == std::future_status::ready);
  return true;
}

/// Sees what became of the lines that were sent, if that is known. False when the log was held.
bool LogQueue::Collect() {
  if (!errand_.valid() || errand_.wait_for(std::chrono::seconds(0)) != std::future_status::ready) {
    return true;
  }
  const std::size_t sent = std::exchange(under_way_, 0);
  try {
    std::exchange(errand_, {}).get();
  } catch (const SqlError& error) {
    bytes_to_trim_ = 0;
    was_locked_ = error.failure() == SqlFailure::kLocked;
    if (!was_locked_) throw;
    return false;
  }
  was_locked_ = false;
  lines_.erase(lines_.begin(), lines_.begin() + static_cast<std::ptrdiff_t>(sent));
  return true;
}

std::vector<LogEntry> LogQueue::Take(std::chrono::steady_clock::time_point until) {
  if (errand_.valid()) errand_.wait_until(until);
  try {
    Collect();
  } catch (const SqlError&) {
    // They have not arrived.
  }
  std::vector<LogEntry> lines(lines_.begin(), lines_.end());
  lines_.clear();
  under_way_ = 0;
  errand_ = {};
  return lines;
}

}  // namespace vmod17

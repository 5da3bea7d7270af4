// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "store/host_store.h"
#include "store_process.h"
#include "store_testing.h"

namespace vmod17 {

/// The lines that `logs` of the helper program has left of two processes.
struct SharedLog {
  std::map<std::string, std::vector<int>> numbers;  ///< by name, in the order of the log
  std::int64_t bytes = 0;
  int turns = 0;  ///< how often the lines of one process follow those of the other
};

inline SharedLog ReadSharedLog(const std::string& address) {
  HostStore store(TestOptions(address));
  SharedLog log;
  std::string last;
  for (const LogEntry& entry : store.Log(1'000'000)) {
    const QStringList words = QString::fromStdString(entry.text).split(' ');
    const std::string name = words.at(0).toStdString();
    log.numbers[name].push_back(words.at(1).toInt());
    log.bytes += static_cast<std::int64_t>(entry.text.size());
    if (name != last) ++log.turns;
    last = name;
  }
  return log;
}

/// Two processes fill the log at the same time, with so many lines of so many bytes each, which are
/// more than it takes; neither is ever far ahead of the other. Of each process the newest lines
/// must be left, without a gap.
inline void ExpectALogOfTwoProcessesThatStaysSmall(const std::string& address, int lines,
                                                   int length) {
  StoreProcess anna;
  StoreProcess ida;
  for (StoreProcess* process : {&anna, &ida}) {
    process->Ask("open " + QString::fromStdString(address) + " 60000");
    ASSERT_EQ(process->Ask("read E1"), "NIL 1");
  }
  const int round = lines / 200;
  for (int first = 0; first < lines; first += round) {
    const QString order = QString(" %1 %2 %3").arg(first).arg(round).arg(length);
    anna.Say("logs Anna" + order);
    ida.Say("logs Ida" + order);
    ASSERT_EQ(anna.Hear(), "kept " + QString::number(round));
    ASSERT_EQ(ida.Hear(), "kept " + QString::number(round));
  }

  const SharedLog log = ReadSharedLog(address);
  // Each process may be some lines ahead of its next look at the size.
  const std::int64_t limit = StoreOptions().log_limit_bytes;
  EXPECT_LT(log.bytes, limit + limit / 20);
  EXPECT_GT(log.bytes, limit / 2);
  int left = 0;
  for (const char* name : {"Anna", "Ida"}) {
    ASSERT_TRUE(log.numbers.contains(name));
    const std::vector<int>& numbers = log.numbers.at(name);
    EXPECT_EQ(numbers.back(), lines - 1);
    for (std::size_t i = 1; i < numbers.size(); ++i) ASSERT_EQ(numbers[i], numbers[i - 1] + 1);
    left += static_cast<int>(numbers.size());
  }
  EXPECT_LT(left, 2 * lines);
  EXPECT_GT(log.turns, 10) << "one after the other";
  std::cout << left << " of " << 2 * lines << " lines are left, " << log.bytes << " bytes, in "
            << log.turns << " turns\n";
}

}  // namespace vmod17

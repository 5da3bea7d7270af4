// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/store/host_store.h"
#include "store_process.h"
#include "store_testing.h"

namespace vmod17 {

/// Two processes keep to the contract of the host on one store at the same time.
inline void ExpectContractInTwoProcesses(const std::string& address) {
  const QString store = QString::fromStdString(address);
  StoreProcess anna(STORE_CONTRACT, {store, "Anna", "--gtest_repeat=3"});
  StoreProcess ida(STORE_CONTRACT, {store, "Ida", "--gtest_repeat=3"});
  for (StoreProcess* process : {&anna, &ida}) ASSERT_EQ(process->Hear(), "ready");
  for (StoreProcess* process : {&anna, &ida}) process->Say("go");
  for (StoreProcess* process : {&anna, &ida}) {
    const QString said = process->HearTheRest();
    EXPECT_EQ(process->Status(), 0) << said.toStdString();
    EXPECT_GT(said.count("[       OK ]"), 3 * 20);
  }

  // Both were at it between the first and the last line of each.
  HostStore later(TestOptions(address));
  std::vector<char> whose;
  for (const LogEntry& entry : later.Log(100'000)) {
    const bool error = entry.kind == LogEntry::Kind::kError;
    whose.push_back((error ? entry.place : entry.text).front());
  }
  EXPECT_EQ(std::ranges::count(whose, 'A'), std::ranges::count(whose, 'I'));
  const auto ends = std::ranges::unique(whose);
  EXPECT_GT(ends.begin() - whose.begin(), 2) << "one after the other";
}

}  // namespace vmod17

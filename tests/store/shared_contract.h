// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <gtest/gtest.h>

#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "store/host_store.h"
#include "store_process.h"
#include "store_testing.h"

namespace vmod17 {

/// How the tests of one of two processes met those of the other, by what both have noted in the
/// log.
struct Overlap {
  int tests = 0;
  int tests_that_met = 0;  ///< tests in which the other process was in one of its own
  int foreign_lines = 0;   ///< the other's log lines from the first line of this one to its last
  int foreign_writes = 0;  ///< likewise the values and lines that the other's tests wrote
  int all_foreign_writes = 0;
};

inline Overlap OverlapOf(const QString& name, const std::vector<LogEntry>& log) {
  Overlap overlap;
  bool in_test = false;
  bool other_in_test = false;
  bool met = false;
  int lines = 0;           // of the other, since the first one of this process
  int writes = 0;          // of the other, so far
  int writes_before = -1;  // of the other, before the first line of this process
  for (const LogEntry& entry : log) {
    const QString text = QString::fromStdString(entry.place.empty() ? entry.text : entry.place);
    const QStringList words = text.split(' ');
    const bool begins = words.value(1) == "begins";
    const bool ends = words.value(1) == "ends";
    if (words[0] != name) {
      if (begins || ends) other_in_test = begins;
      if (ends) writes = words.value(2).toInt();
      if (writes_before >= 0) ++lines;
      met = met || other_in_test;
      continue;
    }
    if (writes_before < 0) writes_before = writes;
    if (begins) met = other_in_test;
    if (begins) ++overlap.tests;
    if (begins || ends) in_test = begins;
    if (ends && met) ++overlap.tests_that_met;
    overlap.foreign_lines = lines;
    overlap.foreign_writes = writes - writes_before;
  }
  EXPECT_FALSE(in_test);
  overlap.all_foreign_writes = writes;
  return overlap;
}

/// Two processes keep to the contracts of the host and of the user list on one store, which is
/// empty so far, at the same time, and at the end all is there that either has written.
class TwoProcessContract {
 public:
  // In another order each, so that not always the same tests meet.
  explicit TwoProcessContract(const std::string& address)
      : address_(address),
        anna_(STORE_CONTRACT, Arguments("Anna", 1)),
        ida_(STORE_CONTRACT, Arguments("Ida", 2)) {}

  void ExpectThatBothKeepToIt() {
    for (StoreProcess* process : Both()) ASSERT_EQ(process->Hear(), "ready");
    for (StoreProcess* process : Both()) process->Say("go");
    for (StoreProcess* process : Both()) ExpectThatItPasses(*process);
    // Neither writes any more.
    for (StoreProcess* process : Both()) ExpectThatItFindsAll(*process);
    ExpectNothingElse();
    ExpectThatTheyMet();
  }

 private:
  static constexpr int kRounds = 3;

  QStringList Arguments(const QString& name, int seed) const {
    return {QString::fromStdString(address_), name, "--gtest_repeat=" + QString::number(kRounds),
            "--gtest_shuffle", "--gtest_random_seed=" + QString::number(seed)};
  }

  std::vector<StoreProcess*> Both() { return {&anna_, &ida_}; }

  void ExpectThatItPasses(StoreProcess& process) {
    QString said;
    int passed = 0;
    for (QString line = process.Hear(); line != "done"; line = process.Hear()) {
      ASSERT_FALSE(process.HasEnded()) << said.toStdString();
      said += line + '\n';
      if (line.startsWith("[       OK ]")) ++passed;
    }
    EXPECT_FALSE(said.contains("FAILED")) << said.toStdString();
    EXPECT_GT(passed, kRounds * 30);
    tests_ += passed;
  }

  void ExpectThatItFindsAll(StoreProcess& process) {
    const QString found = process.Ask("look");
    const QStringList words = found.split(' ');
    ASSERT_EQ(words[0], "kept") << found.toStdString();
    ASSERT_EQ(words.size(), 4);
    values_ += words[1].toInt();
    users_ += words[2].toInt();
    lines_ += words[3].toInt();
    process.HearTheRest();
    EXPECT_EQ(process.Status(), 0);
  }

  void ExpectNothingElse() {
    HostStore store(TestOptions(address_));
    EXPECT_GT(values_, 0);
    EXPECT_GT(users_, 0);
    EXPECT_EQ(static_cast<int>(store.Users().size()), users_);
    log_ = store.Log(1'000'000);
    EXPECT_EQ(static_cast<int>(log_.size()), lines_);
  }

  void ExpectThatTheyMet() {
    std::cout << tests_ << " tests passed; " << values_ << " values, " << users_ << " users, "
              << lines_ << " log lines kept\n";
    for (const char* name : {"Anna", "Ida"}) {
      const Overlap overlap = OverlapOf(name, log_);
      std::cout << name << ": in " << overlap.tests_that_met << " of " << overlap.tests
                << " tests the other process was in one; it wrote " << overlap.foreign_writes
                << " of its " << overlap.all_foreign_writes << " times, " << overlap.foreign_lines
                << " log lines meanwhile\n";
      EXPECT_GE(overlap.tests_that_met, overlap.tests / 4) << name << ": one after the other";
      EXPECT_GT(overlap.foreign_writes, 0) << name;
    }
  }

  const std::string address_;
  StoreProcess anna_;
  StoreProcess ida_;
  int tests_ = 0;
  int values_ = 0;
  int users_ = 0;
  int lines_ = 0;
  std::vector<LogEntry> log_;
};

}  // namespace vmod17

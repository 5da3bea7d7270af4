// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/log_queue.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "store/store_tables.h"

namespace vmod17 {
namespace {

using Clock = std::chrono::steady_clock;

/// A database that answers a line of the log when the test says so.
class SlowDatabase : public SqlConnection {
 public:
  void Open(int) override {}
  void Close() override {}
  bool HasTable(const QString&) override { return true; }
  void LockSchema() override {}
  void SetWait(int) override {}
  void SetSync(Sync) override {}
  void Prepare() override {}
  bool IsReadOnly() const override { return false; }
  QString BytesType() const override { return {}; }
  QString RowNumberType() const override { return {}; }
  SqlErrand Append(const SqlStatements& statements, int wait_ms) override {
    sizes.push_back(statements.size());
    waits.push_back(wait_ms);
    answers.emplace_back();
    return answers.back().get_future().share();
  }

  void RefuseLatest() {
    answers.back().set_exception(
        std::make_exception_ptr(SqlError(SqlFailure::kLocked, "the log is held")));
  }

  std::vector<std::size_t> sizes;  // of what was sent, in statements
  std::vector<int> waits;
  std::deque<std::promise<SqlResult>> answers;

 protected:
  SqlResult Execute(const SqlStatements&) override { return {}; }
  QString BeginStatement() const override { return {}; }
};

class QueueOfLines : public ::testing::Test {
 protected:
  void Add(const std::string& text) {
    LogEntry line;
    line.text = text;
    queue_.Add(line);
  }
  std::vector<std::string> Take() {
    std::vector<std::string> texts;
    for (const LogEntry& line : queue_.Take(Clock::now())) texts.push_back(line.text);
    return texts;
  }

  SlowDatabase database_;
  StoreTables tables_{database_};
  LogQueue queue_{1'000'000};
};

TEST_F(QueueOfLines, SendsANewLineAfterEverythingWasTakenOutWhileSomeWereUnderWay) {
  Add("first");
  EXPECT_TRUE(queue_.Send(tables_, 10));
  EXPECT_EQ(Take(), std::vector<std::string>{"first"});
  Add("second");
  EXPECT_TRUE(queue_.Send(tables_, 10));
  EXPECT_EQ(database_.sizes.size(), 2u);
  database_.answers[1].set_value({});
  EXPECT_EQ(Take(), std::vector<std::string>());
}

TEST_F(QueueOfLines, DropsTheOldestLinesBehindThoseThatAreUnderWayWhenItIsFull) {
  Add("under way");
  queue_.Send(tables_, 10);
  for (int i = 0; i < 1500; ++i) Add(std::to_string(i));
  const std::vector<std::string> lines = Take();
  ASSERT_EQ(lines.size(), 1000u);
  EXPECT_EQ(lines[0], "under way");
  EXPECT_EQ(lines[1], "501");
  EXPECT_EQ(lines.back(), "1499");
}

TEST_F(QueueOfLines, OnlyTriesAHeldLogUntilItIsToldToWaitAgain) {
  Add("line");
  for (int i = 0; i < 2; ++i) {
    queue_.Send(tables_, 10);
    database_.RefuseLatest();
    EXPECT_FALSE(queue_.Send(tables_, 10));
  }
  queue_.Insist();
  queue_.Send(tables_, 10);
  EXPECT_EQ(database_.waits, (std::vector<int>{10, 0, 10}));
}

}  // namespace
}  // namespace vmod17

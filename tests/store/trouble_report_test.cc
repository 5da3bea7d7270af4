// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/trouble_report.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "store/store_notices.h"
#include "store_testing.h"

namespace vmod17 {
namespace {

const int kLocked = LockedStoreNotice("").text_id;
const int kReadOnly = ReadOnlyStoreNotice("").text_id;
const int kUnusable = UnusableStoreNotice("", "").text_id;
const int kServerAway = UnreachableServerNotice("", "").text_id;
const int kServerUnusable = UnusableServerNotice("", "").text_id;

SqlError Error(SqlFailure failure) { return {failure, "why"}; }

class Trouble : public ::testing::Test {
 protected:
  bool can_keep_ = true;
  std::vector<Notice> notices_;
  const StoreAddress file_ = ParseStoreAddress("/tmp/store.sqlite");
  const StoreAddress server_ = ParseStoreAddress("postgresql://room@school/melvado");
  TroubleReport report_{Take(), file_, [this] { return can_keep_; }};
  TroubleReport of_server_{Take(), server_, [this] { return can_keep_; }};

 private:
  Notify Take() {
    return [this](const Notice& notice) { notices_.push_back(notice); };
  }
};

TEST_F(Trouble, IsToldOnceUntilItIsToldAnew) {
  report_.TellUnreadable(Error(SqlFailure::kLocked));
  report_.TellUnreadable(Error(SqlFailure::kLocked));
  EXPECT_EQ(Ids(notices_), std::vector<int>{kLocked});
  report_.TellUnwritten(Error(SqlFailure::kReadOnly));
  report_.TellAnew();
  report_.TellUnreadable(Error(SqlFailure::kLocked));
  EXPECT_EQ(Ids(notices_), (std::vector<int>{kLocked, kReadOnly, kLocked}));
}

TEST_F(Trouble, IsAnErrorWhereWhatIsLockedWasToBeWritten) {
  try {
    report_.TellUnwritten(Error(SqlFailure::kLocked));
    FAIL() << "no error";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), ErrorNumber::kStore);
  }
  EXPECT_EQ(Ids(notices_), std::vector<int>{kLocked});
}

TEST_F(Trouble, OfAServerSaysWhetherThisMachineKeepsWhatItDoesNotTake) {
  of_server_.TellUnwritten(Error(SqlFailure::kUnreachable));
  can_keep_ = false;
  of_server_.TellUnreadable(Error(SqlFailure::kUnreachable));
  EXPECT_EQ(Ids(notices_), (std::vector<int>{kServerAway, kServerUnusable}));
}

TEST_F(Trouble, OfABrokenFileIsToldByWhoPutsItAside) {
  report_.TellUnreadable(Error(SqlFailure::kBroken));
  report_.TellUnwritten(Error(SqlFailure::kBroken));
  EXPECT_TRUE(notices_.empty());
  of_server_.TellUnreadable(Error(SqlFailure::kBroken));
  EXPECT_EQ(notices_.size(), 1u);
}

TEST_F(Trouble, ThatLeavesAllInMemoryIsToldInEachRun) {
  report_.RemindOfMemory();
  EXPECT_TRUE(notices_.empty());
  report_.TellInMemory(UnusableStoreNotice("place", "why"));
  report_.RemindOfMemory();
  EXPECT_EQ(notices_.size(), 1u);
  report_.TellAnew();
  report_.RemindOfMemory();
  EXPECT_EQ(Ids(notices_), (std::vector<int>{kUnusable, kUnusable}));
  report_.Clear();
  report_.RemindOfMemory();
  EXPECT_EQ(notices_.size(), 2u);
}

TEST_F(Trouble, IsToldNobodyWhereNobodyListens) {
  TroubleReport silent(nullptr, file_, [] { return true; });
  EXPECT_FALSE(silent.CanTell());
  silent.TellUnreadable(Error(SqlFailure::kOther));
  EXPECT_TRUE(report_.CanTell());
}

}  // namespace
}  // namespace vmod17

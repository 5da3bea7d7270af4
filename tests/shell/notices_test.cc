// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/notices.h"

#include <gtest/gtest.h>

#include "support/program_fixture.h"

namespace vmod17 {
namespace {

class NoticesTest : public ::testing::Test {
 protected:
  NoticesTest() { p_.ToFirstScreen(); }

  void Wait() { p_.loop.Advance(1000); }
  std::size_t Shown() const { return p_.messages.warnings.size(); }

  ProgramFixture p_;
  bool ready_ = true;
  Notices notices_{p_.loop, p_.messages, InEnglish, [this] { return ready_; }};
  const Notice full_{9105, "The disk is full: %1.", {"store.sqlite"}};
};

TEST_F(NoticesTest, WaitForAMomentThatAMessageDoesNotSpoil) {
  ready_ = false;
  notices_.Tell(full_);
  Wait();
  EXPECT_EQ(Shown(), 0u);
  ready_ = true;
  Wait();
  EXPECT_EQ(Shown(), 1u);
}

TEST_F(NoticesTest, AreOneMessageAsLongAsTheSameOneWaits) {
  for (int i = 0; i < 10; ++i) notices_.Tell(full_);
  notices_.Tell({9105, "The disk is full: %1.", {"another.sqlite"}});
  Wait();
  EXPECT_EQ(Shown(), 2u);
}

TEST_F(NoticesTest, AreToldAgainWhenTheyComeAgain) {
  for (std::size_t run = 1; run <= 3; ++run) {
    notices_.Tell(full_);
    Wait();
    EXPECT_EQ(Shown(), run);
  }
}

TEST_F(NoticesTest, TakeTurnsWithQuestionsInTheOrderOfTheirComing) {
  std::size_t shown_before = 9;
  notices_.Tell(full_);
  notices_.Ask([&] { shown_before = Shown(); });
  notices_.Tell({9106, "Another one.", {}});
  Wait();
  EXPECT_EQ(shown_before, 1u);
  EXPECT_EQ(Shown(), 2u);
}

}  // namespace
}  // namespace vmod17

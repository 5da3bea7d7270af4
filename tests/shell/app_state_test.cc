// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/app_state.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vmod17 {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;

TEST(AppState, BeginsWithEmptyTablesAndNobodyKnown) {
  const AppState state;
  EXPECT_FALSE(state.loginKnown);
  EXPECT_EQ(state.uebTyp, 0);
  EXPECT_THAT(state.tempo_dauer_ar, Each(0));
  EXPECT_THAT(state.arp_teiler_ar, Each(0.0f));
}

TEST(AppState, HasALengthForEachOfTheTenTempi) {
  AppState state;
  state.FillTables();
  EXPECT_THAT(state.tempo_dauer_ar,
              ElementsAre(4000, 3000, 2000, 1500, 1200, 1000, 856, 750, 666, 600));
}

TEST(AppState, HasADivisorForEachOfTheFiveArpeggioTempi) {
  AppState state;
  state.FillTables();
  EXPECT_THAT(state.arp_teiler_ar, ElementsAre(8.0f, 12.0f, 16.0f, 24.0f, 32.0f));
}

TEST(ProgramIdentity, WritesItsRevisionWithFourDigits) {
  EXPECT_EQ((ProgramIdentity{"vmod17", 1, 0, 0}).VersionText(), "1.0.0000");
  EXPECT_EQ((ProgramIdentity{"vmod17", 12, 3, 45}).VersionText(), "12.3.0045");
}

}  // namespace
}  // namespace vmod17

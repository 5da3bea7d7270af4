// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/uniform_random.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace vmod17 {
namespace {

using ::testing::AllOf;
using ::testing::Each;
using ::testing::Ge;
using ::testing::Lt;
using ::testing::Ne;

std::vector<float> Draw(Random& random, int count) {
  std::vector<float> values(static_cast<std::size_t>(count));
  for (float& value : values) value = random.Rnd();
  return values;
}

TEST(UniformRandom, StaysBetweenZeroAndOneWithoutReachingOne) {
  UniformRandom random;
  EXPECT_THAT(Draw(random, 100000), Each(AllOf(Ge(0.0f), Lt(1.0f))));
}

TEST(UniformRandom, ReachesAllTilesOfABoardAboutAsOften) {
  UniformRandom random;
  std::vector<int> hits(24);
  for (const float value : Draw(random, 24000)) ++hits[static_cast<std::size_t>(value * 24)];
  EXPECT_THAT(hits, Each(AllOf(Ge(800), Lt(1200))));
}

TEST(UniformRandom, RepeatsASequenceFromItsNumberWhateverWasBefore) {
  UniformRandom first;
  UniformRandom second;
  Draw(second, 17);
  second.SeedFromClock(1234);
  EXPECT_EQ(first.Restart(-5), second.Restart(-5));
  EXPECT_EQ(Draw(first, 50), Draw(second, 50));
}

TEST(UniformRandom, GivesTheFirstValueOfTheSequenceWhenItRestarts) {
  UniformRandom random;
  const float first = random.Restart(3);
  const float second = random.Rnd();
  EXPECT_EQ(random.Restart(3), first);
  EXPECT_EQ(random.Rnd(), second);
}

TEST(UniformRandom, GivesOtherSequencesForOtherNumbers) {
  UniformRandom random;
  random.Restart(1);
  const std::vector<float> one = Draw(random, 10);
  random.Restart(2);
  EXPECT_THAT(Draw(random, 10), Ne(one));
}

TEST(UniformRandom, DependsOnTheClockItIsSeededFrom) {
  UniformRandom first;
  UniformRandom second;
  first.SeedFromClock(36000);
  second.SeedFromClock(36001);
  EXPECT_THAT(Draw(first, 10), Ne(Draw(second, 10)));
}

TEST(UniformRandom, DependsOnWhatWasBeforeWhenItIsSeededFromTheSameTime) {
  UniformRandom first;
  UniformRandom second;
  Draw(second, 1);
  first.SeedFromClock(36000);
  second.SeedFromClock(36000);
  EXPECT_THAT(Draw(first, 10), Ne(Draw(second, 10)));
}

}  // namespace
}  // namespace vmod17

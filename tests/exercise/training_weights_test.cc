// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "exercise/training_weights.h"

#include <gtest/gtest.h>

namespace vmod17 {
namespace {

TEST(TrainingWeights, GivesFewChordsAGreaterWeight) {
  EXPECT_EQ(SollFuer(24), 4);
  EXPECT_EQ(SollFuer(10), 4);
  EXPECT_EQ(SollFuer(8), 4);
  EXPECT_EQ(SollFuer(7), 4);
  EXPECT_EQ(SollFuer(6), 5);
  EXPECT_EQ(SollFuer(5), 6);
  EXPECT_EQ(SollFuer(4), 7);
  EXPECT_EQ(SollFuer(3), 10);
  EXPECT_EQ(SollFuer(2), 15);
  EXPECT_EQ(SollFuer(1), 30);
}

TEST(TrainingWeights, GoUpToTwiceTheStart) {
  EXPECT_EQ(GrenzeFuer(10, SollFuer(10)), 80);
  EXPECT_EQ(GrenzeFuer(1, SollFuer(1)), 60);
}

}  // namespace
}  // namespace vmod17

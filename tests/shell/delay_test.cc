// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/delay.h"

#include <gtest/gtest.h>

#include "support/simulated_loop.h"

namespace vmod17 {
namespace {

constexpr auto kOnce = EventLoop::Repeat::kOnce;

TEST(Delay, WaitsForTheGivenTime) {
  SimulatedLoop loop(0);
  const bool abbruch = false;
  Delay(loop, 50, abbruch);
  EXPECT_NEAR(loop.Elapsed(), 50, 0.1);
}

TEST(Delay, IsNeverShorterThanTheClockCanTell) {
  // Late in the day a Single tells times apart by 1/128 s.
  SimulatedLoop loop(80000);
  const bool abbruch = false;
  Delay(loop, 50, abbruch);
  EXPECT_GE(loop.Elapsed(), 50 - 8);
  EXPECT_LE(loop.Elapsed(), 50 + 16);
}

TEST(Delay, ServesEventsWhileItWaits) {
  SimulatedLoop loop(0);
  const bool abbruch = false;
  int fired = 0;
  loop.StartTimer(10, EventLoop::Repeat::kAlways, [&] { ++fired; });
  Delay(loop, 55, abbruch);
  EXPECT_EQ(fired, 5);
  EXPECT_NEAR(loop.Elapsed(), 55, 0.1);
}

TEST(Delay, StopsAsSoonAsTheFlagIsSet) {
  SimulatedLoop loop(0);
  bool abbruch = false;
  loop.StartTimer(20, kOnce, [&] { abbruch = true; });
  Delay(loop, 5000, abbruch);
  EXPECT_NEAR(loop.Elapsed(), 20, 0.1);
}

TEST(Delay, DoesNotWaitAtAllWhenTheFlagIsSetBefore) {
  SimulatedLoop loop(0);
  int fired = 0;
  loop.StartTimer(1, kOnce, [&] { ++fired; });
  const bool abbruch = true;
  Delay(loop, 5000, abbruch);
  EXPECT_EQ(loop.Elapsed(), 0);
  EXPECT_EQ(fired, 0);
}

TEST(Delay, IsNotProlongedByMidnight) {
  SimulatedLoop loop(86399.98);
  const bool abbruch = false;
  Delay(loop, 100, abbruch);
  EXPECT_NEAR(loop.Elapsed(), 100, 10);
  EXPECT_LT(loop.Clock(), 1) << "the clock has begun anew";
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/window_factor.h"

#include <gtest/gtest.h>

#include <QDialog>

namespace vmod17 {
namespace {

TEST(WindowFactor, IsWhatTheWindowWasGiven) {
  QWidget window;
  for (const double factor : {1.0, 1.5, 2.0}) {
    EXPECT_TRUE(SetFactor(window, factor));
    EXPECT_FALSE(SetFactor(window, factor));
    EXPECT_EQ(FactorOf(window), factor);
  }
}

TEST(WindowFactor, GivesMessagesTypeOfFourteenUnits) {
  QWidget window;
  SetFactor(window, 2);
  EXPECT_EQ(window.font().pixelSize(), 28);
}

}  // namespace
}  // namespace vmod17

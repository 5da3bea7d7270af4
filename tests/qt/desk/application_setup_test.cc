// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/desk/application_setup.h"

#include <gtest/gtest.h>

#include <QApplication>

namespace vmod17 {
namespace {

// A display name of its own is what the toolkit appends to every title.
TEST(ApplicationSetup, LeavesTheTitlesOfTheWindowsAsTheyAre) {
  SetUpApplication();
  EXPECT_EQ(QGuiApplication::applicationDisplayName(), QCoreApplication::applicationName());
}

}  // namespace
}  // namespace vmod17

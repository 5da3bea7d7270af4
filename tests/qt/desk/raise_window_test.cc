// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/desk/raise_window.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QWidget>

namespace vmod17 {
namespace {

TEST(RaiseWindow, RestoresTheWindowAndTheDialogThatWaits) {
  QWidget window;
  window.showMinimized();
  QDialog dialog(&window);
  dialog.setModal(true);
  dialog.showMinimized();
  RaiseWindow(&window);
  EXPECT_FALSE(window.isMinimized());
  EXPECT_FALSE(dialog.isMinimized());
}

TEST(RaiseWindow, ShowsNothingThatIsHidden) {
  QWidget window;
  RaiseWindow(&window);
  EXPECT_FALSE(window.isVisible());
  RaiseWindow(nullptr);
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/theme.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QMessageBox>
#include <QToolTip>

#include "qt/forced_palette.h"
#include "qt/kit/look.h"

namespace vmod17 {
namespace {

void ExpectAllIs(const look::Palette& colors) {
  EXPECT_EQ(look::PresentColors().page, colors.page);
  const QMessageBox box;
  const QMenu menu;
  QComboBox list;
  for (const QWidget* widget : std::initializer_list<const QWidget*>{&box, &menu, list.view()}) {
    EXPECT_EQ(widget->palette().color(QPalette::Window), colors.page);
    EXPECT_EQ(widget->palette().color(QPalette::Base), colors.card);
    EXPECT_EQ(widget->palette().color(QPalette::Text), colors.text);
  }
  EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipBase), colors.card);
  EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipText), colors.text);
}

TEST(Theme, IsDarkOnADarkDesktopAndLightOnALightOne) {
  for (const bool dark : {true, false}) {
    const ForcedPalette desktop(dark);
    const Theme theme;
    ExpectAllIs(dark ? look::kDark : look::kLight);
  }
}

TEST(Theme, FollowsTheDesktopWhileTheProgramRuns) {
  const ForcedPalette desktop(false);
  const Theme theme;
  for (const bool dark : {true, false, true}) {
    ForcedPalette::Force(dark);
    ExpectAllIs(dark ? look::kDark : look::kLight);
  }
}

TEST(Theme, TakesADarkDesktopWhoseButtonsAreLightAsDark) {
  const ForcedPalette before(false);
  const Theme theme;
  QApplication::setPalette(QPalette(Qt::white, Qt::white, Qt::gray, Qt::black, Qt::gray, Qt::white,
                                    Qt::white, Qt::black, QColor(30, 30, 30)));
  ExpectAllIs(look::kDark);
}

TEST(Theme, GoesBackToTheDesktopsOwnPaletteWhenTheThemeChanges) {
  const ForcedPalette desktop(true);
  const Theme theme;
  QWidget window;
  QEvent changed(QEvent::ThemeChange);
  QApplication::sendEvent(&window, &changed);
  ExpectAllIs(look::kLight);  // the desktop of the tests has no palette of its own
}

}  // namespace
}  // namespace vmod17

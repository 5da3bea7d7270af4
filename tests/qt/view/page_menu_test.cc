// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/view/page_menu.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>
#include <QTest>

#include "qt/desk/qt_event_loop.h"
#include "qt/pictures/chord_pictures.h"
#include "qt/view/page.h"
#include "qt/view/qt_view.h"
#include "support/program_fixture.h"

namespace vmod17 {
namespace {

/// The menu of the settings screen's frames, in a real window.
class PageMenuTest : public testing::Test {
 protected:
  PageMenuTest() {
    qt_loop_.after_event = [this] { view_.Refresh(); };
    p_.ToSettings();
    view_.Attach(p_.settings_screen());
    view_.Refresh();
    Settle();  // the window's first events would close a menu
  }
  ~PageMenuTest() override { view_.Detach(p_.settings_screen()); }

  Einstellung1& screen() { return p_.settings_screen(); }
  QWidget& At(const QString& name) { return *view_.page()->findChild<QWidget*>(name); }
  QMenu* Menu() {
    for (QMenu* menu : view_.page()->findChildren<QMenu*>()) {
      if (menu->isVisible()) return menu;
    }
    return nullptr;
  }
  /// As the window system asks for a menu at a point of a widget.
  void RightButton(QWidget& widget, const QPoint& at) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, widget.mapToGlobal(at));
    QApplication::sendEvent(&widget, &event);
  }
  void RightButton(const QString& frame) {
    QWidget& widget = At(frame);
    RightButton(widget, widget.rect().center());
  }
  static void Settle() { QCoreApplication::processEvents(); }

  ProgramFixture p_;
  QtEventLoop qt_loop_;
  ChordPictures pictures_;
  QtView view_{qt_loop_, pictures_};
};

TEST_F(PageMenuTest, OpensOnAFrameByTheRightButtonAndMarksItByTheEntry) {
  RightButton("grdeinst(9)");
  ASSERT_NE(Menu(), nullptr);
  QAction* const entry = Menu()->actions().at(0);
  EXPECT_EQ(Menu()->actions().size(), 1);
  EXPECT_EQ(entry->text().toStdString(), screen().popPruefung.caption);
  EXPECT_TRUE(entry->isCheckable());
  EXPECT_FALSE(entry->isChecked());
  QTest::mouseClick(Menu(), Qt::LeftButton, {}, Menu()->actionGeometry(entry).center());
  Settle();
  EXPECT_EQ(screen().grdeinst[9].tag, "Prüfung");
  EXPECT_EQ(screen().popPruefung.open_at, nullptr);
  EXPECT_EQ(Menu(), nullptr);
}

TEST_F(PageMenuTest, ShowsTheCheckMarkOfAFrameThatIsMarked) {
  screen().grdeinst[1].tag = "Prüfung";
  RightButton("grdeinst(1)");
  ASSERT_NE(Menu(), nullptr);
  EXPECT_TRUE(Menu()->actions().at(0)->isChecked());
  QTest::keyClick(Menu(), Qt::Key_Return);
  Settle();
  EXPECT_EQ(screen().grdeinst[1].tag, "");
}

TEST_F(PageMenuTest, ClosesWithoutAnEffectWhenNothingIsChosen) {
  RightButton("grdeinst(9)");
  ASSERT_NE(Menu(), nullptr);
  QTest::keyClick(Menu(), Qt::Key_Escape);
  Settle();
  EXPECT_EQ(Menu(), nullptr);
  EXPECT_EQ(screen().popPruefung.open_at, nullptr);
  EXPECT_EQ(screen().grdeinst[9].tag, "");
  EXPECT_TRUE(screen().loaded());
}

TEST_F(PageMenuTest, OpensAlsoOnAFrameThatIsLocked) {
  screen().training_Combo.Select(4);
  view_.Refresh();
  EXPECT_FALSE(At("grdeinst(7)").isEnabled());
  RightButton("grdeinst(7)");
  ASSERT_NE(Menu(), nullptr);
  QTest::keyClick(Menu(), Qt::Key_Return);
  Settle();
  EXPECT_EQ(screen().grdeinst[7].tag, "Prüfung");
}

TEST_F(PageMenuTest, OpensOnALockedFrameFromALockedControlThatStandsInIt) {
  screen().training_Combo.Select(4);
  view_.Refresh();
  EXPECT_FALSE(At("akk_grp(1)").isEnabled());
  RightButton("akk_grp(1)");
  Settle();
  EXPECT_EQ(screen().popPruefung.open_at, &screen().grdeinst[3]);
  ASSERT_NE(Menu(), nullptr);
}

TEST_F(PageMenuTest, OpensOnAFrameFromAControlThatStandsInIt) {
  RightButton("geinst_lb(10)");
  Settle();
  EXPECT_EQ(screen().popPruefung.open_at, &screen().grdeinst[10]);
  ASSERT_NE(Menu(), nullptr);
}

TEST_F(PageMenuTest, OpensByTheMenuKeyOnTheFrameWithTheFocus) {
  for (const auto& [key, modifier] :
       {std::pair(Qt::Key_Menu, Qt::NoModifier), std::pair(Qt::Key_F10, Qt::ShiftModifier)}) {
    At("Tonart(0)").setFocus();
    QTest::keyClick(&At("Tonart(0)"), key, modifier);
    ASSERT_NE(Menu(), nullptr);
    EXPECT_EQ(screen().popPruefung.open_at, &screen().grdeinst[9]);
    QTest::keyClick(Menu(), Qt::Key_Escape);
    Settle();
  }
}

TEST_F(PageMenuTest, OpensNoMenuByKeyWhereTheFocusIsInNoFrame) {
  At("cmdOK").setFocus();
  QTest::keyClick(&At("cmdOK"), Qt::Key_Menu);
  EXPECT_EQ(Menu(), nullptr);
  EXPECT_TRUE(screen().visible);
}

TEST_F(PageMenuTest, OpensNoMenuOutsideOfTheFrames) {
  RightButton(*view_.page(), QPoint(2, 2));
  RightButton("cmdZurueck");
  EXPECT_EQ(Menu(), nullptr);
}

TEST_F(PageMenuTest, GoesFromOneFrameToTheNextWithoutLosingTheSecondMenu) {
  RightButton("grdeinst(9)");
  ASSERT_NE(Menu(), nullptr);
  QMenu* const first = Menu();
  first->hide();
  RightButton("grdeinst(4)");
  ASSERT_NE(Menu(), nullptr);
  EXPECT_NE(Menu(), first);
  EXPECT_EQ(screen().popPruefung.open_at, &screen().grdeinst[4]);
  Settle();  // the end of the first menu
  EXPECT_EQ(screen().popPruefung.open_at, &screen().grdeinst[4]);
}

TEST_F(PageMenuTest, ClosesWithItsScreen) {
  RightButton("grdeinst(9)");
  ASSERT_NE(Menu(), nullptr);
  const QPointer<QMenu> menu = Menu();
  view_.Detach(screen());
  EXPECT_TRUE(menu == nullptr || !menu->isVisible());
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QTest>

#include "qt/desk/qt_event_loop.h"
#include "qt/kit/drop_down_widget.h"
#include "qt/kit/list_widget.h"
#include "qt/kit/slider_widget.h"
#include "qt/kit/text_widget.h"
#include "qt/pictures/chord_pictures.h"
#include "qt/view/page.h"
#include "qt/view/qt_view.h"
#include "support/program_fixture.h"

namespace vmod17 {
namespace {

/// The settings screen in a real window, worked by mouse and keyboard.
class SettingsPage : public testing::Test {
 protected:
  SettingsPage() {
    qt_loop_.after_event = [this] { view_.Refresh(); };
    p_.ToSettings();
    view_.Attach(p_.settings_screen());
    view_.Refresh();
  }
  ~SettingsPage() override { view_.Detach(p_.settings_screen()); }

  Einstellung1& screen() { return p_.settings_screen(); }
  template <typename Widget = QWidget>
  Widget& At(const QString& name) {
    return *view_.page()->findChild<Widget*>(name);
  }
  void Click(const QString& list, int row) {
    auto& widget = At<ListWidget>(list);
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, {},
                      widget.visualItemRect(widget.item(row)).center());
  }
  QColor Pixel(QWidget& widget, const QPoint& at) { return widget.grab().toImage().pixelColor(at); }

  ProgramFixture p_;
  QtEventLoop qt_loop_;
  ChordPictures pictures_;
  QtView view_{qt_loop_, pictures_};
};

TEST_F(SettingsPage, MovesAnEntryByAClick) {
  Click("klanglst(0)", 1);
  ASSERT_EQ(screen().klanglst[1].count(), 2);
  EXPECT_EQ(screen().klanglst[1].entry(1).item_data, 5);
  EXPECT_EQ(At<ListWidget>("klanglst(1)").count(), 2);
  Click("klanglst(1)", 0);
  EXPECT_EQ(screen().klanglst[1].count(), 1);
}

TEST_F(SettingsPage, MovesTheCursorByArrowKeysAndTheEntryByEnter) {
  auto& list = At<ListWidget>("klanglst(0)");
  list.setFocus();
  EXPECT_EQ(list.currentRow(), 0);
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(list.currentRow(), 2);
  EXPECT_EQ(screen().klanglst[1].count(), 1);
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_EQ(screen().klanglst[1].entry(1).item_data, 6);
}

TEST_F(SettingsPage, LeavesTheCursorInTheListSoThatTheKeyboardGoesOn) {
  auto& list = At<ListWidget>("klanglst(0)");
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_End);
  EXPECT_EQ(list.currentRow(), 3);
  for (const int left : {3, 2, 1}) {
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(list.currentRow(), left - 1);
    EXPECT_EQ(view_.Window()->focusWidget(), &list);
  }
  QTest::keyClick(&list, Qt::Key_Enter);
  QTest::keyClick(&list, Qt::Key_Enter);  // nothing is left
  EXPECT_EQ(screen().klanglst[0].count(), 0);
  EXPECT_EQ(screen().klanglst[1].count(), 5);
  EXPECT_TRUE(screen().visible);
}

TEST_F(SettingsPage, MovesOneEntryByADoubleClickAndNotTheNextOneToo) {
  QWidget& viewport = *At<ListWidget>("klanglst(0)").viewport();
  const QPoint at =
      At<ListWidget>("klanglst(0)").visualItemRect(At<ListWidget>("klanglst(0)").item(1)).center();
  QTest::mouseClick(&viewport, Qt::LeftButton, {}, at);
  ASSERT_EQ(screen().klanglst[0].count(), 3);
  QTest::mouseDClick(&viewport, Qt::LeftButton, {}, at);
  QTest::mouseRelease(&viewport, Qt::LeftButton, {}, at);
  EXPECT_EQ(screen().klanglst[0].count(), 3);
  EXPECT_EQ(screen().klanglst[1].count(), 2);
}

TEST_F(SettingsPage, GoesToTheEndsOfAListAndToWhatIsTyped) {
  screen().aus_w.Check(1);
  view_.Refresh();
  auto& list = At<ListWidget>("grplst(0)");
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_End);
  EXPECT_EQ(list.currentRow(), 7);
  QTest::keyClick(&list, Qt::Key_Home);
  EXPECT_EQ(list.currentRow(), 0);
  QTest::keyClicks(&list, QString::fromStdString(screen().grplst[0].entry(4).text).left(5));
  EXPECT_EQ(list.currentRow(), 4);
  EXPECT_EQ(screen().grplst[1].count(), 0);
}

TEST_F(SettingsPage, MovesAllEntriesByTheButtonsBetweenTheLists) {
  QTest::mouseClick(&At("klang_alle(0)"), Qt::LeftButton);
  EXPECT_EQ(screen().klanglst[1].count(), 5);
  EXPECT_TRUE(At("grdeinst(2)").isVisible());
  QTest::mouseClick(&At("grp_alle(0)"), Qt::LeftButton);
  EXPECT_EQ(screen().grplst[0].count(), 0);
  QTest::mouseClick(&At("klang_alle(1)"), Qt::LeftButton);
  EXPECT_EQ(screen().klanglst[1].count(), 0);
  EXPECT_FALSE(At("grdeinst(2)").isVisible());
  EXPECT_EQ(At("klang_alle(0)").accessibleName(), "[9017s]");
}

TEST_F(SettingsPage, GoesByTabFromAListOverItsButtonsToTheOtherList) {
  At("klanglst(0)").setFocus();
  for (const char* next : {"klang_alle(0)", "klang_alle(1)", "klanglst(1)"}) {
    QTest::keyClick(view_.Window()->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(view_.Window()->focusWidget()->objectName(), next);
  }
}

TEST_F(SettingsPage, FindsAnInstrumentByTypingIntoTheClosedList) {
  auto& list = At<DropDownWidget>("ComboPatch");
  list.setFocus();
  QTest::keyClicks(&list, "vib");
  EXPECT_EQ(screen().ComboPatch.text(), "Vibraphone");
  EXPECT_EQ(p_.settings().patch_ar[0], 11);
}

TEST_F(SettingsPage, FindsAnInstrumentByTypingIntoTheOpenListAndChoosesItByEnter) {
  auto& list = At<DropDownWidget>("ComboPatch");
  list.setFocus();
  list.showPopup();
  QTest::keyClicks(list.view(), "nylon");
  EXPECT_EQ(screen().ComboPatch.list_index(), 0);
  EXPECT_EQ(list.view()->currentIndex().row(), 24);
  QTest::keyClick(list.view(), Qt::Key_Return);
  EXPECT_EQ(screen().ComboPatch.list_index(), 24);
}

TEST_F(SettingsPage, OpensTheInstrumentsWithAboutFifteenOfThemToSee) {
  auto& list = At<DropDownWidget>("ComboPatch");
  list.showPopup();
  const int row = list.view()->sizeHintForRow(0);
  EXPECT_GE(list.view()->height(), 10 * row);
  EXPECT_LE(list.view()->height(), 17 * row);
  list.hidePopup();
}

TEST_F(SettingsPage, SlidesTheLoudnessByKeys) {
  auto& slider = At<SliderWidget>("HSliderVolume");
  slider.setFocus();
  QTest::keyClick(&slider, Qt::Key_Left);
  EXPECT_EQ(screen().HSliderVolume.value(), 99);
  EXPECT_EQ(At<TextWidget>("lb14(1)").caption(), "99");
  QTest::keyClick(&slider, Qt::Key_PageDown);
  EXPECT_EQ(screen().HSliderVolume.value(), 89);
  QTest::keyClick(&slider, Qt::Key_Home);
  EXPECT_EQ(screen().HSliderVolume.value(), 0);
  QTest::keyClick(&slider, Qt::Key_End);
  EXPECT_EQ(screen().HSliderVolume.value(), 127);
}

TEST_F(SettingsPage, DropsDownListsWhoseEntriesLookLikeThoseOfTheListBoxes) {
  auto& list = At<DropDownWidget>("temp_Combo");
  list.showPopup();
  const QRect row = list.view()->visualRect(list.view()->model()->index(list.currentIndex(), 0));
  const QImage image = list.view()->viewport()->grab().toImage();
  EXPECT_EQ(image.pixelColor(row.right() - 8, row.center().y()), look::kLight.pressed);
  EXPECT_EQ(image.pixelColor(row.right() - 8, row.center().y() + row.height()), look::kLight.card);
  list.hidePopup();
}

TEST_F(SettingsPage, TellsALockedFrameByItsColourALockAndItsGround) {
  QWidget& frame = At("grdeinst(7)");
  const auto lock = [&] {  // dark pixels where the sign stands
    const QImage image = frame.grab().toImage();
    const double f = view_.page()->factor();
    int dark = 0;
    for (int x = image.width() - qRound(26 * f); x < image.width() - qRound(4 * f); ++x) {
      for (int y = qRound(6 * f); y < qRound(26 * f); ++y)
        dark += image.pixelColor(x, y).lightness() < 60 ? 1 : 0;
    }
    return dark;
  };
  const QPoint ground(frame.width() / 2, frame.height() - 10);
  EXPECT_EQ(lock(), 0);
  EXPECT_EQ(Pixel(frame, ground), look::kLight.card);
  screen().training_Combo.Select(4);
  view_.Refresh();
  EXPECT_GT(lock(), 20);
  EXPECT_EQ(Pixel(frame, ground), look::kLight.locked_card);
  EXPECT_EQ(Pixel(frame, QPoint(frame.width() / 2, 3)), QColor(0xFF, 0xC0, 0xC0));
  EXPECT_FALSE(At("aus_w(0)").isEnabled());
  screen().training_Combo.Select(0);
  view_.Refresh();
  EXPECT_EQ(lock(), 0);
}

TEST_F(SettingsPage, ShowsTheHintInRedAsLongAsNothingIsChosen) {
  QWidget& hint = At("lb11(2)");
  EXPECT_FALSE(hint.isVisible());
  Click("klanglst(1)", 0);
  ASSERT_TRUE(hint.isVisible());
  const QImage image = hint.grab().toImage();
  int red = 0;
  for (int x = 0; x < image.width(); ++x) {
    for (int y = 0; y < image.height(); ++y)
      red += image.pixelColor(x, y) == look::kLight.hint ? 1 : 0;
  }
  EXPECT_GT(red, 20);
}

TEST_F(SettingsPage, HasAListOfANameOfItsOwnForWhatMayBeChosenAndForWhatIsChosen) {
  screen().klanglst[0].Select(0);  // the groups are shown with these
  view_.Refresh();
  const std::pair<const char*, const char*> names[] = {{"klanglst(0)", "[9551s]"},
                                                       {"klanglst(1)", "[9552s]"},
                                                       {"grplst(0)", "[9553s]"},
                                                       {"grplst(1)", "[9554s]"}};
  for (const auto& [list, name] : names) {
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&At(list))->text(QAccessible::Name), name);
  }
}

TEST_F(SettingsPage, LosesNoChoiceByEsc) {
  Click("klanglst(0)", 1);
  for (const char* const control : {"cmdOK", "klanglst(0)", "temp_Combo", "HSliderVolume"}) {
    At(control).setFocus();
    QTest::keyClick(&At(control), Qt::Key_Escape);
    ASSERT_NE(p_.program.einstellung1(), nullptr) << control;
  }
  EXPECT_TRUE(screen().visible);
  EXPECT_EQ(screen().klanglst[1].count(), 2);
}

TEST_F(SettingsPage, PutsAnOptionRightByAClickOnTheMemberThatItShows) {
  p_.settings().frequenz_art = 1;
  QTest::mouseClick(&At("frequenz(0)"), Qt::LeftButton);
  EXPECT_EQ(p_.settings().frequenz_art, 0);
}

TEST_F(SettingsPage, TakesTheFocusFromAFrameThatIsHidden) {
  screen().klanglst[0].Select(0);
  view_.Refresh();
  At("grplst(0)").setFocus();
  screen().klang_alle[1].Press();
  view_.Refresh();
  EXPECT_EQ(view_.Window()->focusWidget(), &At("HSliderVolume"));
}

}  // namespace
}  // namespace vmod17

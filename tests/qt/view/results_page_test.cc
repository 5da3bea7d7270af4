// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include <QAccessible>
#include <QAccessibleInterface>
#include <QApplication>
#include <QImage>
#include <QTest>
#include <set>

#include "qt/finished_test.h"
#include "qt/kit/look.h"
#include "qt/pictures/chord_pictures.h"
#include "qt/shown_page.h"
#include "qt/spoken_program.h"
#include "qt/view/qt_view.h"

namespace vmod17 {
namespace {

/// As many chords on the board as there can be.
void ChooseAll(Einstellung1& screen, int akk_form) {
  screen.aus_w.Check(akk_form);
  if (akk_form == 0) screen.klang_alle[0].Press();
  screen.grp_alle[0].Press();
}

class ResultsIn : public testing::TestWithParam<std::tuple<std::string, int>> {
 protected:
  ResultsIn() {
    p_.host.user = MemoryHost::User{"4711-0815", "Freifrau von Hohenstein-Wallenberg", "Anna"};
    p_.ToSettings();
    ChooseAll(p_.settings_screen(), std::get<1>(GetParam()));
    p_.settings_screen().kl_farb.Check(1);
  }
  SpokenProgram p_{std::get<0>(GetParam())};
};

TEST_P(ResultsIn, ShowsBothFacesWholeBeforeAndAfterTheyArePrinted) {
  ToResults(p_);
  ExpectWellLaidOut(p_.results());
  EXPECT_TRUE(p_.results().cmdPrint[0].Press());
  EXPECT_TRUE(p_.results().datum.visible);
  ExpectWellLaidOut(p_.results());
  EXPECT_TRUE(p_.results().cmdOK[0].Press());
  ExpectWellLaidOut(p_.results());
  EXPECT_TRUE(p_.results().cmdPrint[1].Press());
  ExpectWellLaidOut(p_.results());
}

TEST_P(ResultsIn, AreWrittenInTypeOfElevenPixelsAtLeast) {
  ToResults(p_);
  EXPECT_TRUE(p_.results().cmdOK[0].Press());
  Shown shown(p_.results(), kLow);
  for (const Binding* binding : shown.Visible()) {
    if (binding->dressed().caption().isEmpty()) continue;
    EXPECT_GE(binding->dressed().Type().pixelSize(), 11) << binding->control().Id();
  }
}

TEST_P(ResultsIn, SayThatTimeIsUpAlsoOnPaper) {
  RunOutOfTime(p_);
  EXPECT_TRUE(p_.results().zeit_um.visible);
  ExpectWellLaidOut(p_.results());
  p_.loop.Advance(1000);
  ExpectWellLaidOut(p_.results());
  EXPECT_TRUE(p_.results().cmdPrint[0].Press());
  ExpectWellLaidOut(p_.results());
}

INSTANTIATE_TEST_SUITE_P(Languages, ResultsIn,
                         testing::Combine(testing::ValuesIn(LocalesOfTheProgram()),
                                          testing::Values(0, 1)),
                         [](const auto& test) {
                           return InTestName(std::get<0>(test.param)) +
                                  (std::get<1>(test.param) == 0 ? "Chords" : "Voicings");
                         });

TEST(ResultsLayout, KeepsEightCellsARowAndTheStepsOfTheProgram) {
  ProgramFixture p;
  p.ToSettings();
  ChooseAll(p.settings_screen(), 1);
  ToResults(p);
  const Shown shown(p.results(), kSmall);
  const auto place = [&](const char* id) { return shown.OnPage(shown.At(id)); };
  EXPECT_EQ(place("klang_pan(9)").left(), place("klang_pan(1)").left());
  EXPECT_EQ(place("klang_pan(9)").top() - place("klang_pan(1)").top(), 204);
  EXPECT_EQ(place("klang_pan(8)").top(), place("klang_pan(1)").top());
  EXPECT_EQ(place("klang_pan(1)").height(), 120);
  EXPECT_EQ(place("klang_pan(1)").top() - place("Akkbez(1)").top(), 36);
  EXPECT_EQ(place("akk_group(1)").top() - place("Akkbez(1)").top(), 156);
  EXPECT_EQ(place("ergebnis(1)").top() - place("Akkbez(1)").top(), 178);
  for (const char* id : {"Akkbez(1)", "akk_group(1)", "ergebnis(1)"}) {
    EXPECT_EQ(place(id).center().x(), place("klang_pan(1)").center().x()) << id;
  }
}

TEST(ResultsLayout, FindsRoomForThreeRowsOfTheHighestCells) {
  ProgramFixture p;
  p.ToSettings();
  ChooseAll(p.settings_screen(), 1);
  ToResults(p);
  Testergebnis& screen = p.results();
  for (int e = 1; e <= kBrettGroesse; ++e) {
    const int top = (e - 1) / 8 * 204;
    screen.Akkbez[e].top = top;
    screen.Akkbez[e].height = 36;
    screen.klang_pan[e].top = top + 36;
    screen.klang_pan[e].height = 120;
    screen.akk_group[e].top = top + 156;
    screen.akk_group[e].width = 96;
    screen.akk_group[e].height = 20;
    screen.ergebnis[e].top = top + 178;
    screen.ergebnis[e].height = 20;
    for (Control* control : std::initializer_list<Control*>{
             &screen.Akkbez[e], &screen.klang_pan[e], &screen.akk_group[e], &screen.ergebnis[e]}) {
      control->visible = true;
    }
  }
  ExpectWellLaidOut(screen, {kSmall, kLarge});  // a lower window scrolls
}

TEST(ResultsLayout, PutsTheUserOnTheLeftOfTheSettings) {
  ProgramFixture p;
  p.host.user = MemoryHost::User{"4711", "Berg", "Anna"};
  p.ToSettings();
  ToResults(p);
  p.results().cmdOK[0].Press();
  const Shown shown(p.results(), kSmall);
  const QRect user = shown.OnPage(shown.At("gr_einst"));
  const QRect settings = shown.OnPage(shown.At("einst_cont"));
  EXPECT_LT(user.right(), settings.left());
  EXPECT_EQ(user.top(), settings.top());
  EXPECT_EQ(user.left(), kSmall.width() - 1 - settings.right());
}

TEST(ResultsLayout, CentresTheTwoLinesOfAnUnknownUser) {
  ProgramFixture p;
  p.ToSettings();
  ToResults(p);
  p.results().cmdOK[0].Press();
  ASSERT_FALSE(p.results().g_einst_lab[2].visible);
  const Shown shown(p.results(), kLarge);
  const QRect card = shown.OnPage(shown.At("gr_einst"));
  for (const char* line : {"0", "1"}) {
    const QRect name = shown.OnPage(shown.At(std::string("g_einst_lab(") + line + ")"));
    const QRect value = shown.OnPage(shown.At(std::string("g_einst_inh(") + line + ")"));
    EXPECT_LE(std::abs(name.left() - card.left() - (card.right() - value.right())), 3) << line;
    EXPECT_LE(std::abs(value.left() - name.right() - 1), 1) << line;
  }
}

TEST(ResultsLayout, WrapsALongListOfGroupsAndMovesNothingOntoIt) {
  SpokenProgram p("de_DE");
  p.ToSettings();
  ChooseAll(p.settings_screen(), 0);
  ToResults(p);
  p.results().cmdOK[0].Press();
  const Shown shown(p.results(), kSmall);
  EXPECT_GT(shown.At("einst_Inh(14)").height(), 2 * shown.At("einst_Inh(0)").height());
}

/// The results in a real window, worked by keyboard.
class ResultsPage : public testing::Test {
 protected:
  ResultsPage() {
    qt_loop_.after_event = [this] { view_.Refresh(); };
    p_.ToSettings();
    ChooseAll(p_.settings_screen(), 0);
    ToResults(p_);
    view_.Attach(screen());
    view_.Refresh();
    QCoreApplication::processEvents();  // the window becomes the active one
  }
  ~ResultsPage() override { view_.Detach(screen()); }

  Testergebnis& screen() { return p_.results(); }
  QWidget& At(const QString& name) { return *view_.page()->findChild<QWidget*>(name); }
  QWidget* Focus() { return view_.Window()->focusWidget(); }
  void Key(int key, Qt::KeyboardModifiers with = Qt::NoModifier) {
    QTest::keyClick(Focus(), static_cast<Qt::Key>(key), with);
  }
  QImage Look(const QString& name) { return At(name).grab().toImage(); }

  ProgramFixture p_;
  QtEventLoop qt_loop_;
  ChordPictures pictures_;
  QtView view_{qt_loop_, pictures_};
};

TEST(ResultsOfATestThatRanOutOfTime, TakeNoKeyAndNoClickInTheirFirstSecond) {
  ProgramFixture p;
  p.ToSettings();
  RunOutOfTime(p);
  QtEventLoop loop;
  ChordPictures pictures;
  QtView view{loop, pictures};
  loop.after_event = [&] { view.Refresh(); };
  view.Attach(p.results());
  view.Refresh();
  QCoreApplication::processEvents();
  QWidget& window = *view.Window();
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape}) {
    QTest::keyClick(window.focusWidget(), key);
  }
  auto& button = *view.page()->findChild<QWidget*>("cmdOK(0)");
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_TRUE(p.results().erg_cont.visible);
  p.loop.Advance(1000);
  view.Refresh();
  EXPECT_EQ(window.focusWidget(), &button);
  QTest::keyClick(window.focusWidget(), Qt::Key_Space);
  EXPECT_TRUE(p.results().einst_cont.visible);
  view.Detach(p.results());
}

TEST_F(ResultsPage, SaysACellAsSymbolGroupAndPercentage) {
  for (int e = 1; e <= p_.program.board().akk_zahl; ++e) {
    QAccessibleInterface* const cell =
        QAccessible::queryAccessibleInterface(&At(QString("klang_pan(%1)").arg(e)));
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->text(QAccessible::Name).toStdString(), screen().klang_pan[e].spoken);
    EXPECT_TRUE(cell->state().focusable);
    EXPECT_TRUE(cell->state().invisible == 0) << e;
    EXPECT_TRUE(cell->text(QAccessible::Description).isEmpty());
  }
  const std::string said = screen().klang_pan[1].spoken;
  EXPECT_NE(said.find(screen().Akkbez[1].caption), std::string::npos);
  EXPECT_NE(said.find(screen().akk_group[1].caption), std::string::npos);
}

TEST_F(ResultsPage, SaysTheTotalAndEachValueWithItsName) {
  const auto explained = [this](const char* id) { return At(id).accessibleDescription(); };
  EXPECT_EQ(explained("ergebnis(0)").toStdString(), screen().lab_ges.caption);
  screen().cmdOK[0].Press();
  view_.Refresh();
  EXPECT_EQ(explained("einst_Inh(0)").toStdString(), screen().einst_lab[0].caption);
  EXPECT_EQ(At("einst_Inh(0)").accessibleName().toStdString(), screen().einst_Inh[0].caption);
  EXPECT_FALSE(explained("g_einst_inh(0)").isEmpty());
}

TEST_F(ResultsPage, GoesFromCellToCellByArrowKeys) {
  At("klang_pan(1)").setFocus();
  Key(Qt::Key_Right);
  EXPECT_EQ(Focus(), &At("klang_pan(2)"));
  Key(Qt::Key_Down);
  EXPECT_EQ(Focus(), &At("klang_pan(10)"));
  Key(Qt::Key_Left);
  EXPECT_EQ(Focus(), &At("klang_pan(9)"));
  Key(Qt::Key_Up);
  EXPECT_EQ(Focus(), &At("klang_pan(1)"));
  Key(Qt::Key_Down);
  Key(Qt::Key_Left);  // the row ends here
  EXPECT_EQ(Focus(), &At("klang_pan(8)"));
}

TEST_F(ResultsPage, GoesThroughAllCellsAndButtonsByTab) {
  At("klang_pan(1)").setFocus();
  std::set<QString> reached;
  for (int i = 0; i < 40; ++i) {
    reached.insert(Focus()->objectName());
    QTest::keyClick(Focus(), Qt::Key_Tab);
  }
  for (int e = 1; e <= p_.program.board().akk_zahl; ++e) {
    EXPECT_TRUE(reached.contains(QString("klang_pan(%1)").arg(e))) << e;
  }
  for (const char* id : {"cmdPrint(0)", "cmdOK(0)", "cmdHilfe"}) {
    EXPECT_TRUE(reached.contains(id)) << id;
  }
}

TEST_F(ResultsPage, ShowsWhichCellHasTheFocus) {
  At("cmdOK(0)").setFocus();
  const QImage without = Look("klang_pan(3)");
  At("klang_pan(3)").setFocus();
  Key(Qt::Key_Shift);
  const QImage with = Look("klang_pan(3)");
  EXPECT_NE(without, with);
  EXPECT_EQ(with.pixelColor(1, with.height() / 2), look::kLight.focus);
}

TEST_F(ResultsPage, GoesOnByEnterFromWhereItBegins) {
  EXPECT_EQ(Focus(), &At("cmdOK(0)"));
  Key(Qt::Key_Return);
  EXPECT_TRUE(screen().einst_cont.visible);
  EXPECT_EQ(Focus(), &At("cmdOK(1)"));
}

TEST_F(ResultsPage, GoesOnByEnterFromACell) {
  At("klang_pan(5)").setFocus();
  Key(Qt::Key_Enter);
  EXPECT_TRUE(screen().einst_cont.visible);
}

TEST_F(ResultsPage, GoesOnByEscapeAndLeavesFromTheSecondFace) {
  Key(Qt::Key_Escape);
  ASSERT_TRUE(screen().loaded());
  EXPECT_TRUE(screen().einst_cont.visible);
  EXPECT_FALSE(screen().erg_cont.visible);
  bool left = false;
  screen().cmdOK[1].Click = [&left] { left = true; };
  Key(Qt::Key_Escape);
  EXPECT_TRUE(left);
}

TEST_F(ResultsPage, PrintsTheFaceOnDisplayByItsKeyAndOnlyOnce) {
  Key(Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(p_.printer.pages.size(), 1U);
  Key(Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(p_.printer.pages.size(), 1U);
  EXPECT_FALSE(screen().cmdPrint[0].enabled);
  screen().cmdOK[0].Press();
  view_.Refresh();
  Key(Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(p_.printer.pages.size(), 2U);
  EXPECT_FALSE(screen().cmdPrint[1].enabled);
}

TEST_F(ResultsPage, GivesTheFocusToTheWayOnWhenTheButtonThatPrintedIsLocked) {
  At("cmdPrint(0)").setFocus();
  Key(Qt::Key_Return);
  EXPECT_EQ(p_.printer.pages.size(), 1U);
  EXPECT_EQ(Focus(), &At("cmdOK(0)"));
}

TEST_F(ResultsPage, TurnsWhiteAsAWholeWhenItIsPrinted) {
  const auto ground = [this] { return view_.page()->grab().toImage().pixelColor(2, 2); };
  EXPECT_EQ(ground(), look::kLight.page);
  EXPECT_EQ(Look("akk_group(1)").pixelColor(8, 10), QColor(192, 255, 255));
  screen().cmdPrint[0].Press();
  view_.Refresh();
  EXPECT_EQ(ground(), QColor(Qt::white));
  EXPECT_EQ(Look("klang_pan(1)").pixelColor(12, 4), QColor(Qt::white));
}

TEST_F(ResultsPage, ShowsTheNotationBlackOnWhiteInARedFrame) {
  const QImage cell = Look("klang_pan(1)");
  EXPECT_EQ(cell.pixelColor(1, cell.height() / 2), QColor(255, 0, 0));
  const QImage notes = Look("jz_kl(1)");
  int dark = 0;  // not quite black where the picture is made smaller
  for (int y = 0; y < notes.height(); ++y)
    dark += notes.pixelColor(notes.width() / 5, y).lightness() < 160;
  EXPECT_GE(dark, 5);  // the lines of the staff
}

}  // namespace
}  // namespace vmod17

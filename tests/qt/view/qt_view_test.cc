// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/view/qt_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QTest>
#include <QWidget>

#include "qt/desk/qt_event_loop.h"
#include "qt/pictures/chord_pictures.h"
#include "qt/view/page.h"
#include "support/program_fixture.h"

namespace vmod17 {
namespace {

/// The screens of the program on fakes, shown in a real window.
class QtViewTest : public testing::Test {
 protected:
  QtViewTest() {
    qt_loop_.after_event = [this] { view_.Refresh(); };
  }
  ~QtViewTest() override {
    for (Form* form : attached_) view_.Detach(*form);
  }

  void Attach(Form& form) {
    view_.Attach(form);
    attached_.push_back(&form);
    view_.Refresh();
  }
  void ToWorksheet() {
    p_.ToWorksheet();
    Attach(p_.worksheet());
  }
  QWidget& Window() { return *view_.Window(); }
  std::string Focus() {
    QWidget* const focus = Window().focusWidget();
    return focus == nullptr ? "" : focus->objectName().toStdString();
  }
  void Key(int key) { QTest::keyClick(Window().focusWidget(), static_cast<Qt::Key>(key)); }
  void Play() {
    p_.loop.Advance(p_.PlayingTime());
    view_.Refresh();
  }

  ProgramFixture p_;
  QtEventLoop qt_loop_;
  ChordPictures pictures_;
  QtView view_{qt_loop_, pictures_};
  std::vector<Form*> attached_;
};

TEST_F(QtViewTest, ShowsNoWindowBeforeTheFirstScreen) {
  p_.program.Start();
  Attach(p_.first());
  EXPECT_FALSE(Window().isVisible());
  p_.loop.Advance(100);
  view_.Refresh();
  EXPECT_TRUE(Window().isVisible());
  EXPECT_EQ(Window().windowTitle().toStdString(), p_.first().caption);
}

TEST_F(QtViewTest, KeepsTheLastPageOutOfReachBetweenTwoScreens) {
  p_.ToFirstScreen();
  Attach(p_.first());
  Page* const page = view_.page();
  p_.first().visible = false;
  view_.Refresh();
  EXPECT_TRUE(page->isVisible());
  EXPECT_TRUE(page->testAttribute(Qt::WA_TransparentForMouseEvents));
  Key(Qt::Key_Return);
  EXPECT_EQ(p_.program.einstellung1(), nullptr);
  p_.first().visible = true;
  view_.Refresh();
  EXPECT_FALSE(page->testAttribute(Qt::WA_TransparentForMouseEvents));
}

TEST_F(QtViewTest, ShowsTheScreenThatIsVisible) {
  p_.ToFirstScreen();
  Attach(p_.first());
  p_.first().cmdOK.Press();
  Attach(p_.settings_screen());
  p_.loop.Advance(200);
  view_.Refresh();
  EXPECT_EQ(view_.page()->objectName(), "einstellung1");
  p_.settings_screen().cmdZurueck.Press();
  view_.Detach(p_.settings_screen());
  attached_.pop_back();
  view_.Refresh();
  EXPECT_EQ(view_.page()->objectName(), "grd_einst");
}

TEST_F(QtViewTest, ShowsWordsAsTheyAreWhateverTheyLookLike) {
  FakeLanguages::Words words;
  for (int id = 1; id < 10'000; ++id) {
    words.words[std::to_string(id) + "s"] = "<b>x</b><img src='y.png'/>";
  }
  p_.languages.languages = {{"Deutsch", words}};
  int labels = 0;
  int tips = 0;
  const auto look = [&] {
    view_.Refresh();
    for (const QWidget* widget : QApplication::allWidgets()) {
      const QString tip = widget->toolTip();
      tips += tip.isEmpty() ? 0 : 1;
      EXPECT_TRUE(!Qt::mightBeRichText(tip) || tip.startsWith("<qt>&lt;")) << tip.toStdString();
      const auto* const label = qobject_cast<const QLabel*>(widget);
      if (label == nullptr) continue;
      ++labels;
      EXPECT_TRUE(label->textFormat() == Qt::PlainText || !Qt::mightBeRichText(label->text()))
          << label->objectName().toStdString();
    }
  };
  p_.ToFirstScreen();
  Attach(p_.first());
  look();
  p_.first().cmdOK.Press();
  p_.loop.Advance(200);
  Attach(p_.settings_screen());
  look();
  p_.StartRun();
  Attach(p_.worksheet());
  Play();
  look();
  EXPECT_GT(labels, 20);
  EXPECT_GT(tips, 0);
}

TEST_F(QtViewTest, HidesTheWindowWhenNoScreenIsLeft) {
  p_.ToFirstScreen();
  Attach(p_.first());
  view_.Detach(p_.first());
  attached_.clear();
  EXPECT_FALSE(Window().isVisible());
}

TEST_F(QtViewTest, AsksTheScreenToCloseAndStaysOpenByItself) {
  p_.ToFirstScreen();
  Attach(p_.first());
  GrdEinst& first = p_.first();
  EXPECT_FALSE(Window().close());
  EXPECT_FALSE(first.loaded());
  EXPECT_TRUE(p_.ended);
}

TEST_F(QtViewTest, ShowsTheHourglassAsLongAsTheScreenAsksForIt) {
  p_.ToFirstScreen();
  Attach(p_.first());
  p_.first().pointer = Form::Pointer::kHourglass;
  view_.Refresh();
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  p_.first().pointer = Form::Pointer::kDefault;
  view_.Refresh();
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(QtViewTest, GoesOnByEnterWhereverTheFocusIs) {
  p_.ToFirstScreen();
  Attach(p_.first());
  EXPECT_EQ(Focus(), "cmdOK");
  Window().findChild<QWidget*>("ueb_typ(1)")->setFocus();
  Key(Qt::Key_Return);
  EXPECT_NE(p_.program.einstellung1(), nullptr);
}

TEST_F(QtViewTest, StaysOnTheSettingsAtEscape) {
  p_.ToSettings();
  Attach(p_.settings_screen());
  EXPECT_EQ(Focus(), "cmdOK");
  Einstellung1& settings = p_.settings_screen();
  Key(Qt::Key_Escape);
  EXPECT_TRUE(settings.visible);
  EXPECT_FALSE(p_.first().visible);
}

TEST_F(QtViewTest, TakesTheFocusToTheTilesWhenTheyOpenAndBackToTheNextTask) {
  ToWorksheet();
  EXPECT_EQ(Focus(), "CmdNextAufg");
  Key(Qt::Key_N);
  EXPECT_EQ(Focus(), "arbeitsblatt1");  // nothing to press but the way out
  Play();
  EXPECT_EQ(Focus(), "jz_kl(1)");
  EXPECT_TRUE(p_.ClickRight());
  view_.Refresh();
  EXPECT_EQ(Focus(), "CmdNextAufg");
}

TEST_F(QtViewTest, LeavesTheFocusWhereItIsAsLongAsItCanStay) {
  ToWorksheet();
  Key(Qt::Key_N);
  Window().findChild<QWidget*>("zurueck")->setFocus();
  Play();
  EXPECT_EQ(Focus(), "zurueck");
}

TEST_F(QtViewTest, MovesAmongTheTilesByArrowKeysAndAnswersByEnter) {
  ToWorksheet();
  Key(Qt::Key_N);
  Play();
  Key(Qt::Key_Right);
  EXPECT_EQ(Focus(), "jz_kl(2)");
  Key(Qt::Key_Down);
  EXPECT_EQ(Focus(), "jz_kl(8)");
  Key(Qt::Key_Up);
  EXPECT_EQ(Focus(), "jz_kl(2)");
  Key(Qt::Key_Left);
  EXPECT_EQ(Focus(), "jz_kl(1)");
  const int asked = p_.Asked(1);
  Key(Qt::Key_Return);
  EXPECT_EQ(p_.worksheet().zaehler[asked == 1 ? 0 : 1].caption, "1");
}

TEST_F(QtViewTest, GoesOnWithTheNextRowAndRoundTheBoardAndToItsEnds) {
  ToWorksheet();
  Key(Qt::Key_N);
  Play();
  const auto after = [&](int key) {
    Key(key);
    return Focus();
  };
  ASSERT_EQ(p_.program.board().akk_zahl, 10);
  EXPECT_EQ(after(Qt::Key_End), "jz_kl(10)");
  EXPECT_EQ(after(Qt::Key_Right), "jz_kl(1)");
  EXPECT_EQ(after(Qt::Key_Left), "jz_kl(10)");
  EXPECT_EQ(after(Qt::Key_Home), "jz_kl(1)");
  for (int i = 0; i < 5; ++i) Key(Qt::Key_Right);
  EXPECT_EQ(Focus(), "jz_kl(6)");
  EXPECT_EQ(after(Qt::Key_Right), "jz_kl(7)");
  EXPECT_EQ(after(Qt::Key_Left), "jz_kl(6)");
  EXPECT_EQ(after(Qt::Key_Up), "jz_kl(6)");
}

TEST_F(QtViewTest, AnswersByTheKeyOfATileWhereverTheFocusIs) {
  const QString keys = "123456789A";
  ToWorksheet();
  Key(Qt::Key_N);
  Key(Qt::Key_1);  // while the chord sounds, no tile can be reached
  Play();
  EXPECT_EQ(p_.worksheet().zaehler[0].caption, "0");
  EXPECT_EQ(p_.worksheet().zaehler[1].caption, "0");
  Window().findChild<QWidget*>("zurueck")->setFocus();
  const int wrong = p_.Wrong();
  Key(keys[wrong - 1].unicode());
  EXPECT_FALSE(p_.worksheet().jz_kl[wrong].enabled);
  EXPECT_EQ(p_.worksheet().zaehler[1].caption, "1");
  Key(keys[p_.Asked(1) - 1].unicode());
  EXPECT_EQ(p_.worksheet().zaehler[0].caption, "1");
  EXPECT_TRUE(Window().findChild<QWidget*>("jz_kl(3)")->toolTip().endsWith(" (3)"));
}

TEST_F(QtViewTest, KeepsTheTileThatTheArrowKeysWentToWhenTheTaskIsRepeated) {
  ToWorksheet();
  Key(Qt::Key_N);
  Play();
  Key(Qt::Key_Down);
  Key(Qt::Key_Right);
  ASSERT_EQ(Focus(), "jz_kl(8)");
  Key(Qt::Key_R);
  Play();
  EXPECT_EQ(Focus(), "jz_kl(8)");
}

TEST_F(QtViewTest, WaitsOnThePageWhichHasTheNameOfItsScreen) {
  ToWorksheet();
  Key(Qt::Key_N);
  EXPECT_EQ(Focus(), "arbeitsblatt1");
  EXPECT_EQ(Window().focusWidget()->accessibleName().toStdString(), p_.worksheet().caption);
}

TEST_F(QtViewTest, RepeatsByKeyAndLeavesByEscape) {
  ToWorksheet();
  Key(Qt::Key_N);
  Play();
  Key(Qt::Key_R);
  EXPECT_EQ(p_.worksheet().whlgzaehler.caption, "1");
  Key(Qt::Key_Escape);
  EXPECT_TRUE(p_.settings_screen().visible);
}

TEST_F(QtViewTest, AsksBeforeEscapeEndsATest) {
  p_.ToSettings();
  p_.settings_screen().training_Combo.Select(3);
  p_.StartRun();
  Attach(p_.worksheet());
  p_.messages.answer = MessageBox::Answer::kNo;
  Key(Qt::Key_Escape);
  EXPECT_EQ(p_.messages.questions.size(), 1u);
  EXPECT_TRUE(p_.worksheet().visible);
  p_.messages.answer = MessageBox::Answer::kYes;
  Key(Qt::Key_Escape);
  EXPECT_EQ(p_.messages.questions.size(), 2u);
  EXPECT_TRUE(p_.settings_screen().visible);
}

TEST_F(QtViewTest, WalksTheWorksheetByTabAsTheEyeDoes) {
  ToWorksheet();
  Key(Qt::Key_N);
  Play();
  Window().findChild<QWidget*>("cmdHilfe")->setFocus();
  const auto next = [&] {
    Key(Qt::Key_Tab);
    return Focus();
  };
  EXPECT_EQ(next(), "jz_kl(1)");
  EXPECT_EQ(next(), "jz_kl(2)");
  Window().findChild<QWidget*>("jz_kl(10)")->setFocus();
  EXPECT_EQ(next(), "wieder");
  EXPECT_EQ(next(), "zurueck");
}

TEST_F(QtViewTest, TakesTheHelpKeyWithoutAnyEffectOnTheExercise) {
  ToWorksheet();
  Key(Qt::Key_F1);
  EXPECT_TRUE(p_.worksheet().visible);
  EXPECT_EQ(Focus(), "CmdNextAufg");
}

}  // namespace
}  // namespace vmod17

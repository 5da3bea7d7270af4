// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>
#include <cstdlib>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "ports/timer.h"
#include "qt/desk/qt_message_box.h"
#include "qt/finished_test.h"
#include "qt/kit/help_window.h"
#include "qt/kit/look.h"
#include "qt/kit/press_widget.h"
#include "qt/shown_page.h"
#include "qt/spoken_program.h"

namespace vmod17 {
namespace {

class LayoutIn : public testing::TestWithParam<std::string> {};

TEST_P(LayoutIn, ShowsTheFirstScreenWhole) {
  SpokenProgram p(GetParam());
  p.ToFirstScreen();
  ExpectWellLaidOut(p.first());
}

TEST_P(LayoutIn, ShowsTheSettingsWholeWithEveryEntryOfTheLists) {
  SpokenProgram p(GetParam());
  p.ToSettings();
  p.settings_screen().arpeg_cmb.Select(0);
  ExpectWellLaidOut(p.settings_screen());
  for (ItemList* list : {&p.settings_screen().temp_Combo, &p.settings_screen().arpeg_cmb,
                         &p.settings_screen().cmb_arpTmp, &p.settings_screen().oktav_cmb,
                         &p.settings_screen().Combo_tonraum, &p.settings_screen().akkzahl_cmb,
                         &p.settings_screen().Channel_Combo, &p.settings_screen().ComboPatch,
                         &p.settings_screen().training_Combo, &p.settings_screen().prfnr_Comb}) {
    Shown shown(p.settings_screen(), kSmall);
    for (int i = 0; i < list->count(); ++i) {
      list->Select(i);
      shown.page().Refresh();
      ExpectNoCaptionIsCut(shown);
      ExpectNoWordIsMissing(p.settings_screen());
    }
  }
}

/// Everything that the screen can show, at once and also in frames that are locked.
TEST_P(LayoutIn, ShowsTheSettingsWholeInEachOfTheirStates) {
  SpokenProgram p(GetParam());
  p.ToSettings();
  Einstellung1& screen = p.settings_screen();
  screen.klanglst[1].Select(0);
  ExpectWellLaidOut(screen);
  screen.klang_alle[0].Press();
  ExpectWellLaidOut(screen);
  screen.grp_alle[0].Press();
  screen.kl_farb.Check(1);
  screen.arpeg_cmb.Select(1);
  ExpectWellLaidOut(screen);
  screen.aus_w.Check(1);
  screen.akk_grp.Check(1);
  ExpectWellLaidOut(screen);
  screen.training_Combo.Select(4);
  for (int i = 0; i < 5; ++i) {
    screen.prfnr_Comb.Select(i);
    ExpectWellLaidOut(screen);
  }
}

TEST_P(LayoutIn, SaysWhatARunWillBeInALineOfFullSize) {
  SpokenProgram p(GetParam());
  p.ToSettings();
  Einstellung1& screen = p.settings_screen();
  const auto expect_full_size = [&] {
    ExpectWellLaidOut(screen);
    const Shown shown(screen, kSmall);
    const QString line = QString::fromStdString(screen.ausblick.caption);
    const look::Setting setting =
        look::SetText(line, shown.At("ausblick").size(), 14, look::Weight::kNormal);
    EXPECT_EQ(setting.font.pixelSize(), 14) << screen.ausblick.caption;
    EXPECT_FALSE(setting.wrap);
  };
  screen.klanglst[1].Select(0);
  expect_full_size();
  screen.klang_alle[0].Press();
  expect_full_size();
  while (screen.grplst[0].count() > 0) screen.grplst[0].Select(0);
  screen.training_Combo.Select(3);
  expect_full_size();
  screen.klang_contr_Click();
  expect_full_size();
}

TEST_P(LayoutIn, ShowsTheWorksheetWholeBeforeAndAfterATask) {
  SpokenProgram p(GetParam());
  p.ToSettings();
  p.settings_screen().akkzahl_cmb.Select(3);
  p.StartRun();
  ExpectWellLaidOut(p.worksheet());
  p.PlayTask();
  for (int slot = 1; slot <= 4; ++slot) {
    EXPECT_TRUE(p.ClickWrong());
    ExpectWellLaidOut(p.worksheet());
    EXPECT_TRUE(p.ClickRight());
  }
  ExpectWellLaidOut(p.worksheet());
}

TEST_P(LayoutIn, ShowsGroupButtonsInPlaceOfTheTiles) {
  SpokenProgram p(GetParam());
  p.ToSettings();
  p.settings_screen().akkzahl_cmb.Select(3);
  p.StartRun();
  Arbeitsblatt1& sheet = p.worksheet();
  sheet.jzakk_box[0].visible = false;
  sheet.jzakk_box[1].visible = true;
  sheet.jzakk_box[1].height = 545;
  sheet.jzakk_box[1].width = 670;
  sheet.aktionsbox.width = 313;
  for (int g = 1; g <= 8; ++g) {
    sheet.akk_group[g].visible = true;
    sheet.akk_group[g].caption = p.program.names().grp_name_ar.at(g);
  }
  for (int slot = 1; slot <= 4; ++slot) {
    sheet.ergebnis[slot].width = 169;
    sheet.ergebnis[slot].height = 41;
    sheet.ergebnis[slot].caption = p.program.names().grp_name_ar.at(slot);
  }
  ExpectWellLaidOut(sheet);
  Shown shown(sheet, kSmall);
  EXPECT_EQ(shown.At("ergebnis(1)").size(), QSize(169, 41));
}

/// The longest that the action box says, by whichever of its controls.
void SayTheLongest(Arbeitsblatt1& sheet, const TextLookup& texts) {
  for (int slot = 1; slot <= 4; ++slot) {
    sheet.nrakk[slot].visible = sheet.ergebnis[slot].visible = true;
    sheet.akk_lfdnr[slot].visible = sheet.jzakk_box[0].visible;
    sheet.akk_lfdnr[slot].caption = texts.Sprachtext(374) + " 24";
    sheet.ergebnis[slot].caption = texts.Sprachtext(232);
  }
  for (int i = 0; i < 2; ++i) sheet.zaehler[i].caption = "188";
  sheet.whlgzaehler.caption = "188";
  sheet.wieder2.caption = texts.Sprachtext(632);
  sheet.CmdNextAufg.caption = sheet.LbNextAufg.caption = texts.Sprachtext(129) + " 188";
}

TEST_P(LayoutIn, ShowsTheWorksheetWholeInEachModeByChordAndByGroup) {
  for (const int mode : {0, 1, 3, 4}) {
    for (const int answer : {0, 1}) {
      SpokenProgram p(GetParam());
      p.ToSettings();
      Einstellung1& screen = p.settings_screen();
      screen.akk_grp.Check(answer);
      screen.klang_alle[0].Press();
      screen.grp_alle[0].Press();
      screen.training_Combo.Select(mode);
      p.StartRun();
      ASSERT_NE(p.program.arbeitsblatt1(), nullptr) << mode << answer;
      Arbeitsblatt1& sheet = p.worksheet();
      const TextLookup& texts = p.program.texts();
      ExpectWellLaidOut(sheet);
      SayTheLongest(sheet, texts);
      ExpectWellLaidOut(sheet);
      sheet.CmdNextAufg.caption = sheet.LbNextAufg.caption = texts.Sprachtext(420);
      sheet.zurueck.caption = texts.Sprachtext(625);
      sheet.WaitMeldung.visible = sheet.WaitMeld.visible = true;
      Shown shown(sheet, kSmall);
      ExpectNoCaptionIsCut(shown);
    }
  }
}

TEST_P(LayoutIn, ShowsTheResultsWholeWithoutAUser) {
  SpokenProgram p(GetParam());
  p.ToSettings();
  ToResults(p);
  ExpectWellLaidOut(p.results());
  EXPECT_TRUE(p.results().cmdOK[0].Press());
  ExpectWellLaidOut(p.results());
}

TEST_P(LayoutIn, ShowsTheButtonsOfTheHelpWhole) {
  SpokenProgram p(GetParam());
  p.ToFirstScreen();
  HelpWindow help({std::filesystem::path(PROGRAM_HELP)});
  help.say = [&](const Notice& notice) { return p.program.texts().Sprachtext(notice.text_id); };
  help.Show("index", GetParam());
  for (const QSize& size : {kSmall, help.minimumSize()}) {
    help.resize(size);
    QCoreApplication::processEvents();
    const QList<PressWidget*> buttons = help.findChildren<PressWidget*>();
    EXPECT_EQ(buttons.size(), 3);
    for (PressWidget* button : buttons) {
      EXPECT_TRUE(button->CaptionFits())
          << button->caption().toStdString() << " at " << size.width();
      EXPECT_FALSE(button->caption().contains(TextLookup::kOhneWort));
    }
  }
}

/// The longest text of the language, and the answers under it.
TEST_P(LayoutIn, ShowsMessagesWhole) {
  SpokenProgram p(GetParam());
  const auto& words = p.languages.languages.at(0).second.words;
  std::string longest;
  for (const auto& [key, text] : words) {
    if (text.size() > longest.size()) longest = text;
  }
  QtMessageBox messages(nullptr);
  messages.say = [&](const Notice& notice) {
    return words.at(std::to_string(notice.text_id) + "s");
  };
  QTimer::singleShot(0, [] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(QRect(QPoint(), kSmall).contains(QRect(QPoint(), box->size())));
    for (const auto* label : box->findChildren<QLabel*>()) {
      if (!label->isVisible() || label->text().isEmpty()) continue;
      EXPECT_GE(label->height(), label->heightForWidth(label->width()));
      EXPECT_TRUE(box->rect().contains(QRect(label->mapTo(box, QPoint()), label->size())));
    }
    for (const auto* button : box->buttons()) {
      EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
    }
    box->button(QMessageBox::No)->click();
  });
  messages.Ask(longest, "Melvado", MessageBox::Answer::kYes);
}

TEST(Languages, ThatComeWithTheProgramAreAllTested) {
  EXPECT_GE(LocalesOfTheProgram().size(), std::size_t{PROGRAM_LANGUAGE_COUNT});
}

INSTANTIATE_TEST_SUITE_P(Languages, LayoutIn, testing::ValuesIn(LocalesOfTheProgram()),
                         [](const auto& test) { return InTestName(test.param); });

TEST(Layout, GrowsAndShrinksWithTheWindowAsFarAsItsTypeCanBeRead) {
  ProgramFixture p;
  p.ToFirstScreen();
  EXPECT_DOUBLE_EQ(Shown(p.first(), kSmall).page().factor(), 1.0);
  EXPECT_DOUBLE_EQ(Shown(p.first(), kLarge).page().factor(), 1440 / 660.0);
  EXPECT_DOUBLE_EQ(Shown(p.first(), QSize(1280, 627)).page().factor(), 0.95);
  EXPECT_DOUBLE_EQ(Shown(p.first(), QSize(640, 480)).page().factor(), kLeastFactor);
}

TEST(Layout, ScrollsNothingOnALowScreen) {
  ProgramFixture p;
  p.ToSettings();
  EXPECT_LE(Shown(p.settings_screen(), kLow).page().LeastSize().height(), 600);
  p.StartRun();
  EXPECT_LE(Shown(p.worksheet(), kLow).page().LeastSize().height(), 600);
}

TEST(Layout, AlignsTheHeaderWithWhatStandsUnderIt) {
  ProgramFixture p;
  p.ToWorksheet();
  for (const QSize& size : {kSmall, kLarge}) {
    const Shown shown(p.worksheet(), size);
    const QRect header = shown.OnPage(shown.At("PicUebTyp"));
    const QRect answers = shown.OnPage(shown.At("jzakk_box(0)"));
    const QRect actions = shown.OnPage(shown.At("aktionsbox"));
    EXPECT_EQ(header.left(), answers.left());
    EXPECT_EQ(answers.right() + 1, actions.left());
    EXPECT_EQ(header.right(), actions.right());
    EXPECT_LE(std::abs(header.left() - (size.width() - 1 - header.right())), 1);
  }
}

TEST(Layout, LeavesAQuietPlaceWhereAFrameIsHidden) {
  ProgramFixture p;
  p.ToSettings();
  Shown shown(p.settings_screen(), kSmall);
  EXPECT_FALSE(p.settings_screen().grdeinst[2].visible);
  const QRect frame = shown.OnPage(shown.At("grdeinst(2)"));
  const QImage image = shown.page().grab().toImage();
  EXPECT_EQ(image.pixelColor(frame.center()), look::kLight.slot);
  EXPECT_EQ(image.pixelColor(frame.center().x(), frame.top() - 5), look::kLight.section);
}

TEST(Layout, KeepsTheSettingsWithinASmallScreenLessItsBars) {
  ProgramFixture p;
  p.ToSettings();
  Shown shown(p.settings_screen(), QSize(1016, 660));
  ExpectAllIsOnThePage(shown);
}

TEST(Layout, ShowsATilesStateInTheColoursOfTheProgram) {
  ProgramFixture p;
  p.ToWorksheet();
  Shown shown(p.worksheet(), kSmall);
  const auto colors = [&] {
    shown.page().Refresh();
    const QImage image = shown.page().grab().toImage();
    const QRect tile = shown.OnPage(shown.At("klang_pan(1)"));
    return std::pair(image.pixelColor(tile.left() + 2, tile.center().y()),
                     image.pixelColor(tile.left() + 6, tile.top() + 6));
  };
  EXPECT_EQ(colors(), std::pair(QColor(255, 0, 0), QColor(192, 192, 192)));
  p.PlayTask();
  EXPECT_EQ(colors(), std::pair(QColor(128, 255, 128), QColor(255, 255, 255)));
}

}  // namespace
}  // namespace vmod17

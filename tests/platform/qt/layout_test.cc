// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/qt/layout.h"

#include <gtest/gtest.h>

#include <QImage>
#include <cstdlib>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/qt/look.h"
#include "shown_page.h"
#include "spoken_program.h"

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
    for (int i = 0; i < list->count(); ++i) {
      list->Select(i);
      Shown shown(p.settings_screen(), kSmall);
      ExpectNoCaptionIsCut(shown);
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

TEST_P(LayoutIn, HasAPlaceForEveryControlOfTheSettings) {
  SpokenProgram p(GetParam());
  p.ToSettings();
  const Shown shown(p.settings_screen(), kSmall);
  for (const Control* control : p.settings_screen().controls()) {
    const bool never_seen = dynamic_cast<const Timer*>(control) != nullptr ||
                            dynamic_cast<const PopupMenu*>(control) != nullptr;
    const QString name = QString::fromStdString(control->Id());
    EXPECT_EQ(shown.Find(name) == nullptr, never_seen) << control->Id();
  }
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
    sheet.akk_group[g].caption = p.program.texts().grp_name_ar.at(g);
  }
  for (int slot = 1; slot <= 4; ++slot) {
    sheet.ergebnis[slot].width = 169;
    sheet.ergebnis[slot].height = 41;
    sheet.ergebnis[slot].caption = p.program.texts().grp_name_ar.at(slot);
  }
  ExpectWellLaidOut(sheet);
  Shown shown(sheet, kSmall);
  EXPECT_EQ(shown.At("ergebnis(1)").size(), QSize(169, 41));
}

INSTANTIATE_TEST_SUITE_P(Languages, LayoutIn, testing::Values("Deutsch", "English"),
                         [](const auto& test) { return test.param; });

TEST(Layout, GrowsWithTheWindowAndNeverShrinksBelowItsUnits) {
  ProgramFixture p;
  p.ToFirstScreen();
  EXPECT_EQ(Shown(p.first(), kSmall).page().factor(), 1.0);
  EXPECT_DOUBLE_EQ(Shown(p.first(), kLarge).page().factor(), 1440 / 730.0);
  EXPECT_EQ(Shown(p.first(), QSize(640, 480)).page().factor(), 1.0);
}

TEST(Layout, KeepsTheStepsOfTheTileRows) {
  ProgramFixture p;
  p.ToWorksheet();
  const Shown shown(p.worksheet(), kSmall);
  const QRect first = shown.OnPage(shown.At("klang_pan(1)"));
  const QRect seventh = shown.OnPage(shown.At("klang_pan(7)"));
  EXPECT_EQ(first.height(), 84);
  EXPECT_EQ(seventh.top() - first.top(), 136);
  EXPECT_EQ(seventh.left(), first.left());
  EXPECT_EQ(first.top() - shown.OnPage(shown.At("Akkbez(1)")).top(), 40);
  EXPECT_EQ(shown.At("aktionsbox").size(), QSize(193, 545));
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

TEST(Layout, MovesNothingOfTheSettingsWhenFramesComeAndGo) {
  ProgramFixture p;
  p.ToSettings();
  Einstellung1& screen = p.settings_screen();
  const auto places = [&] {
    const Shown shown(screen, kSmall);
    std::map<int, QRect> frames;
    for (const int i : screen.grdeinst.indexes()) {
      frames[i] = shown.OnPage(shown.At(screen.grdeinst[i].Id()));
    }
    return frames;
  };
  const auto at_first = places();
  screen.aus_w.Check(1);
  screen.akk_grp.Check(1);
  EXPECT_FALSE(screen.grdeinst[11].visible);
  EXPECT_EQ(places(), at_first);
}

TEST(Layout, LeavesAQuietPlaceWhereAFrameIsHidden) {
  ProgramFixture p;
  p.ToSettings();
  Shown shown(p.settings_screen(), kSmall);
  EXPECT_FALSE(p.settings_screen().grdeinst[2].visible);
  const QRect frame = shown.OnPage(shown.At("grdeinst(2)"));
  const QImage image = shown.page().grab().toImage();
  EXPECT_EQ(image.pixelColor(frame.center()), look::kSlot);
  EXPECT_EQ(image.pixelColor(frame.center().x(), frame.top() - 5), look::kSection);
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

TEST(Layout, LeavesAFormThatItDoesNotKnowWithoutPlaces) {
  class Unknown : public Form {
   public:
    Unknown() : Form("unknown") {}
    void Form_Close() override {}
  };
  EXPECT_TRUE(LayoutOf(Unknown(), QSizeF(1024, 730)).places.empty());
}

}  // namespace
}  // namespace vmod17

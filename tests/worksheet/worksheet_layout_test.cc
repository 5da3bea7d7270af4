// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include "support/layout_checks.h"
#include "support/program_fixture.h"

namespace vmod17 {
namespace {

TEST(WorksheetLayout, HasAPlaceForEachControlThatIsToBeSeen) {
  ProgramFixture p;
  p.ToWorksheet();
  ExpectAPlaceForEachBut({}, p.worksheet());
}

TEST(WorksheetLayout, IsSoundInEachModeByChordAndByGroup) {
  for (const int mode : {0, 1, 3, 4}) {
    for (const int answer : {0, 1}) {
      ProgramFixture p;
      p.ToSettings();
      Einstellung1& screen = p.settings_screen();
      screen.akk_grp.Check(answer);
      screen.klang_alle[0].Press();
      screen.grp_alle[0].Press();
      screen.training_Combo.Select(mode);
      p.StartRun();
      ASSERT_NE(p.program.arbeitsblatt1(), nullptr) << mode << answer;
      ExpectASoundLayout(p.worksheet());
      p.PlayTask();
      ExpectASoundLayout(p.worksheet());
    }
  }
}

TEST(WorksheetLayout, GivesEachTileItsKey) {
  ProgramFixture p;
  p.ToWorksheet();
  EXPECT_EQ(LaidOut(p.worksheet(), kPages[0]).keys.size(), 24U + 4U);
}

TEST(WorksheetLayout, HasNoEmptyBandUnderItsHeader) {
  ProgramFixture p;
  p.ToWorksheet();
  for (const Size& page : kPages) {
    const Layout layout = LaidOut(p.worksheet(), page);
    const double band = layout.PlaceOf(p.worksheet().jzakk_box[0]).top -
                        layout.PlaceOf(p.worksheet().PicUebTyp).bottom();
    EXPECT_LE(band, 26) << page.width;
  }
}

TEST(WorksheetLayout, HasAsMuchRoomAboveAsBelow) {
  ProgramFixture p;
  p.ToWorksheet();
  constexpr double kBeyond = 8;  // by which the card stands out
  for (const Size& page : {Size{1024, 768}, Size{1242, 660}, Size{1280, 1024}}) {
    const Layout layout = LaidOut(p.worksheet(), page);
    const double below =
        page.height - layout.PlaceOf(p.worksheet().jzakk_box[0]).bottom() - kBeyond;
    EXPECT_NEAR(layout.PlaceOf(p.worksheet().PicUebTyp).top, below, 1) << page.height;
  }
}

TEST(WorksheetLayout, KeepsTheStepsOfTheTileRows) {
  ProgramFixture p;
  p.ToWorksheet();
  const Arbeitsblatt1& sheet = p.worksheet();
  const Layout layout = LaidOut(sheet, kPages[0]);
  const Rect first = layout.PlaceOf(sheet.klang_pan[1]);
  const Rect seventh = layout.PlaceOf(sheet.klang_pan[7]);
  EXPECT_EQ(first.height, 84);
  EXPECT_EQ(seventh.top - first.top, 136);
  EXPECT_EQ(seventh.left, first.left);
  EXPECT_EQ(first.top - layout.PlaceOf(sheet.Akkbez[1]).top, 40);
  EXPECT_EQ(layout.PlaceOf(sheet.aktionsbox).width, 193);
  EXPECT_EQ(layout.PlaceOf(sheet.aktionsbox).height, 545);
}

TEST(WorksheetLayout, AlignsTheHeaderWithWhatStandsUnderIt) {
  ProgramFixture p;
  p.ToWorksheet();
  for (const Size& page : kPages) {
    const Layout layout = LaidOut(p.worksheet(), page);
    const Rect header = layout.PlaceOf(p.worksheet().PicUebTyp);
    const Rect answers = layout.PlaceOf(p.worksheet().jzakk_box[0]);
    const Rect actions = layout.PlaceOf(p.worksheet().aktionsbox);
    EXPECT_EQ(header.left, answers.left);
    EXPECT_EQ(answers.right(), actions.left);
    EXPECT_EQ(header.right(), actions.right());
    EXPECT_DOUBLE_EQ(header.left, page.width - header.right());
  }
}

}  // namespace
}  // namespace vmod17

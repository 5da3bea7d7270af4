// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The prints of both faces: how they look on paper, and what stays of it on the screen.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "results/results_fixture.h"

namespace vmod17 {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

using Orientation = Printer::Orientation;

/// The results of a training that was solved without a mistake: coloured cells on a grid with room.
class PrintedResults : public ResultsFixture {
 public:
  PrintedResults() {
    BeginMode(kTraining);
    Solve();
    EXPECT_TRUE(worksheet().zurueck.Press());
    loop.Advance(300);
  }
  void ToSettingsPage() { EXPECT_TRUE(results().cmdOK[0].Press()); }
  bool Print(int face) { return results().cmdPrint[face].Press(); }
};

void ExpectWhiteGrid(const Testergebnis& r, int used) {
  for (int e = 1; e <= used; ++e) {
    EXPECT_EQ(r.akk_group[e].back_color, Colors::kWhite) << e;
    EXPECT_EQ(r.klang_pan[e].back_color, Colors::kWhite) << e;
    EXPECT_EQ(r.ergebnis[e].back_color, Colors::kWhite) << e;
  }
}

void ExpectWhiteSettings(const Testergebnis& r) {
  for (int k = 0; k <= 5; ++k) {
    EXPECT_EQ(r.g_einst_lab[k].back_color, Colors::kWhite) << k;
    EXPECT_EQ(r.g_einst_inh[k].back_color, Colors::kWhite) << k;
  }
  for (int k = 0; k <= 14; ++k) {
    EXPECT_EQ(r.einst_lab[k].back_color, Colors::kWhite) << k;
    EXPECT_EQ(r.einst_Inh[k].back_color, Colors::kWhite) << k;
  }
}

TEST(ResultsPrint, PutsTheGridOnALandscapePageWithoutItsButtons) {
  PrintedResults p;
  p.printer.inspect = [&](const Form& form) {
    EXPECT_EQ(&form, &p.results());
    const Testergebnis& r = p.results();
    EXPECT_EQ(p.printer.orientation, Orientation::kLandscape);
    EXPECT_FALSE(r.PicSchalt[0].visible);
    EXPECT_FALSE(r.cmdPrint[0].enabled);
    EXPECT_TRUE(r.datum.visible);
    EXPECT_EQ(r.datum.caption, "21.11.2026 14:03");
    EXPECT_EQ(r.back_color, Colors::kWhite);
    EXPECT_TRUE(r.erg_cont.visible);
    EXPECT_FALSE(r.einst_cont.visible);
    ExpectWhiteGrid(r, 10);
    EXPECT_EQ(r.ergebnis[1].caption, "100.0%");
    EXPECT_EQ(r.ergebnis[0].caption, "100.0%");
  };
  EXPECT_TRUE(p.Print(0));
  ASSERT_THAT(p.printer.pages, SizeIs(1));
  EXPECT_EQ(p.printer.pages[0].form, "testergebnis");
  EXPECT_EQ(p.printer.pages[0].orientation, Orientation::kLandscape);
  EXPECT_EQ(p.printer.orientation, Orientation::kPortrait);
}

TEST(ResultsPrint, LeavesTheGridWhiteWithItsDate) {
  PrintedResults p;
  Testergebnis& r = p.results();
  EXPECT_NE(r.ergebnis[1].back_color, Colors::kWhite);
  const auto total = r.ergebnis[0].back_color;
  EXPECT_TRUE(p.Print(0));
  p.loop.Advance(60000);
  ExpectWhiteGrid(r, 10);
  EXPECT_EQ(r.back_color, Colors::kWhite);
  EXPECT_TRUE(r.datum.visible);
  EXPECT_TRUE(r.PicSchalt[0].visible);
  EXPECT_EQ(r.PicSchalt[0].back_color, Colors::kWhite);
  EXPECT_EQ(r.ergebnis[0].back_color, total) << "the total is no cell of a chord";
  for (int e = 1; e <= 10; ++e) {
    EXPECT_EQ(r.ergebnis[e].caption, "100.0%");
    EXPECT_NE(r.ergebnis[e].fore_color, Colors::kWhite) << "black on white";
  }
  EXPECT_THAT(p.messages.warnings, IsEmpty());
}

TEST(ResultsPrint, TouchesNoCellThatIsNotInUse) {
  PrintedResults p;
  EXPECT_TRUE(p.Print(0));
  for (int e = 11; e <= 24; ++e) {
    EXPECT_EQ(p.results().klang_pan[e].back_color, std::nullopt) << e;
    EXPECT_FALSE(p.results().klang_pan[e].visible) << e;
  }
}

TEST(ResultsPrint, PutsTheSettingsOnALandscapePageWithoutTheirButtons) {
  PrintedResults p;
  p.ToSettingsPage();
  p.printer.inspect = [&](const Form&) {
    const Testergebnis& r = p.results();
    EXPECT_FALSE(r.PicSchalt[1].visible);
    EXPECT_TRUE(r.einst_cont.visible);
    EXPECT_TRUE(r.gr_einst.visible);
    EXPECT_FALSE(r.erg_cont.visible);
    EXPECT_EQ(r.back_color, Colors::kWhite);
    ExpectWhiteSettings(r);
  };
  EXPECT_TRUE(p.Print(1));
  ASSERT_THAT(p.printer.pages, SizeIs(1));
  EXPECT_EQ(p.printer.pages[0].orientation, Orientation::kLandscape);
  EXPECT_EQ(p.printer.orientation, Orientation::kPortrait);
  EXPECT_TRUE(p.results().PicSchalt[1].visible);
  EXPECT_EQ(p.results().PicSchalt[1].back_color, Colors::kWhite);
  ExpectWhiteSettings(p.results());
}

TEST(ResultsPrint, LeavesTheOtherFaceAsItWas) {
  PrintedResults p;
  Testergebnis& r = p.results();
  p.ToSettingsPage();
  const auto colour = r.ergebnis[1].back_color;
  EXPECT_TRUE(p.Print(1));
  EXPECT_TRUE(r.cmdPrint[0].enabled);
  EXPECT_FALSE(r.cmdPrint[1].enabled);
  EXPECT_FALSE(r.datum.visible);
  EXPECT_TRUE(r.PicSchalt[0].visible);
  EXPECT_EQ(r.PicSchalt[0].back_color, std::nullopt);
  EXPECT_EQ(r.ergebnis[1].back_color, colour);

  PrintedResults q;
  EXPECT_TRUE(q.Print(0));
  EXPECT_TRUE(q.results().cmdPrint[1].enabled);
  EXPECT_EQ(q.results().PicSchalt[1].back_color, std::nullopt);
  EXPECT_EQ(q.results().einst_lab[0].back_color, std::nullopt);
  EXPECT_EQ(q.results().g_einst_inh[0].back_color, std::nullopt);
}

TEST(ResultsPrint, PrintsEachFaceOnce) {
  PrintedResults p;
  EXPECT_TRUE(p.Print(0));
  EXPECT_FALSE(p.Print(0));
  p.ToSettingsPage();
  EXPECT_TRUE(p.Print(1));
  EXPECT_FALSE(p.Print(1));
  EXPECT_THAT(p.printer.pages, SizeIs(2));
  EXPECT_TRUE(p.results().cmdOK[1].Press());
  EXPECT_TRUE(p.settings_screen().visible);
}

TEST(ResultsPrint, LetsAPrintThatFailedBeTriedAgain) {
  const Notice refused{9307, "The printer says: %1", {"no paper"}};
  for (const int face : {0, 1}) {
    PrintedResults p;
    if (face == 1) p.ToSettingsPage();
    p.printer.result = {false, refused};
    EXPECT_TRUE(p.Print(face));
    EXPECT_TRUE(p.results().PicSchalt[face].visible);
    EXPECT_TRUE(p.results().cmdPrint[face].Reachable());
    EXPECT_TRUE(p.results().cmdOK[face].Reachable());
    EXPECT_EQ(p.printer.orientation, Orientation::kPortrait);
    ASSERT_THAT(p.messages.warnings, SizeIs(1));
    EXPECT_EQ(p.messages.warnings[0].text, p.program.texts().Words(refused));

    p.printer.result = {true, std::nullopt};
    EXPECT_TRUE(p.Print(face));
    EXPECT_FALSE(p.Print(face));
    EXPECT_THAT(p.printer.pages, SizeIs(2));
    EXPECT_THAT(p.messages.warnings, SizeIs(1));
  }
}

TEST(ResultsPrint, TellsWhereAPageWentThatBecameAFile) {
  PrintedResults p;
  p.languages.languages[0].second.words["9308s"] = "Die Seite steht in %1.";
  p.printer.result = {true, Notice{9308, "The page stands in %1.", {"/home/anna/Ergebnis.pdf"}}};
  EXPECT_TRUE(p.Print(0));
  ASSERT_THAT(p.messages.warnings, SizeIs(1));
  EXPECT_EQ(p.messages.warnings[0].text, "Die Seite steht in /home/anna/Ergebnis.pdf.");
  EXPECT_FALSE(p.Print(0)) << "it is on paper, as far as it can be";
  EXPECT_THAT(p.host.errors, IsEmpty());
}

TEST(ResultsPrint, ShowsTheNoticeWhenTheButtonsAreBack) {
  PrintedResults p;
  p.printer.result = {false, Notice{9307, "no paper", {}}};
  bool back = false;
  p.messages.meanwhile = [&] { back = p.results().PicSchalt[0].visible; };
  EXPECT_TRUE(p.Print(0));
  EXPECT_TRUE(back);
}

}  // namespace
}  // namespace vmod17

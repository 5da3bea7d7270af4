// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "module/program.h"

#include <gtest/gtest.h>

#include "support/program_fixture.h"

namespace vmod17 {
namespace {

TEST(Program, LeadsFromTheFirstScreenToAJudgedAnswerAndOut) {
  ProgramFixture p;
  p.ToWorksheet();
  ASSERT_TRUE(p.worksheet().visible);
  EXPECT_FALSE(p.settings_screen().visible);
  EXPECT_EQ(p.program.board().akk_zahl, 10);

  p.PlayTask();
  EXPECT_EQ(p.output.PlayedNoteOns().size(), 3u);
  EXPECT_TRUE(p.ClickWrong());
  EXPECT_EQ(p.worksheet().zaehler[1].caption, "1");
  EXPECT_TRUE(p.ClickRight());
  EXPECT_EQ(p.worksheet().zaehler[0].caption, "1");
  EXPECT_TRUE(p.worksheet().CmdNextAufg.Reachable());

  EXPECT_TRUE(p.worksheet().zurueck.Press());
  EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
  EXPECT_TRUE(p.settings_screen().visible);
  EXPECT_EQ(p.documents.Latest().saves, 1);

  p.StartRun();
  p.PlayTask();
  EXPECT_TRUE(p.ClickRight());
  p.worksheet().Form_Close();
  p.settings_screen().cmdZurueck.Press();
  EXPECT_TRUE(p.first().visible);
  p.first().cmdEnde.Press();
  EXPECT_TRUE(p.ended);
  EXPECT_EQ(p.host.Sent("MENUE"), 1);
  EXPECT_TRUE(p.messages.warnings.empty());
}

TEST(Program, GivesTheHostItsWordOnceItsUserHasAnsweredWhatTheEndAsks) {
  ProgramFixture p;
  p.ToFirstScreen();
  int word_in_between = -1;
  p.program.OnEnd = [&] {
    p.program.Leave();  // cut off meanwhile
    word_in_between = p.host.Sent("MENUE");
  };
  p.first().cmdEnde.Press();
  EXPECT_EQ(word_in_between, 0);
  EXPECT_EQ(p.host.Sent("MENUE"), 1);
}

TEST(Program, IsQuietWhereAScreenStandsAndNoTaskIsPlayedOrAnswered) {
  ProgramFixture p;
  EXPECT_FALSE(p.program.Quiet());
  p.ToFirstScreen();
  EXPECT_TRUE(p.program.Quiet());
  p.first().cmdOK.Press();
  EXPECT_FALSE(p.program.Quiet());  // between two screens
  p.loop.Advance(200);
  EXPECT_TRUE(p.program.Quiet());
  p.StartRun();
  EXPECT_TRUE(p.program.Quiet());
  p.worksheet().CmdNextAufg.Press();
  EXPECT_FALSE(p.program.Quiet());
  p.loop.Advance(p.PlayingTime());
  EXPECT_FALSE(p.program.Quiet());
  EXPECT_TRUE(p.ClickRight());
  EXPECT_TRUE(p.program.Quiet());
  p.program.Leave();
  EXPECT_FALSE(p.program.Quiet());
}

}  // namespace
}  // namespace vmod17

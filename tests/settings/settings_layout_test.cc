// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include <string>

#include "support/layout_checks.h"
#include "support/program_fixture.h"

namespace vmod17 {
namespace {

TEST(SettingsLayout, HasAPlaceForEachControlThatIsToBeSeen) {
  ProgramFixture p;
  p.ToSettings();
  ExpectAPlaceForEachBut({}, p.settings_screen());
}

TEST(SettingsLayout, IsSoundInEachStateOnEveryPage) {
  ProgramFixture p;
  p.ToSettings();
  Einstellung1& screen = p.settings_screen();
  ExpectASoundLayout(screen);
  screen.klang_alle[0].Press();
  screen.grp_alle[0].Press();
  screen.kl_farb.Check(1);
  screen.arpeg_cmb.Select(1);
  ExpectASoundLayout(screen);
  screen.aus_w.Check(1);
  screen.akk_grp.Check(1);
  ExpectASoundLayout(screen);
  screen.training_Combo.Select(4);
  ExpectASoundLayout(screen);
}

TEST(SettingsLayout, MovesNoFrameWhenOthersComeAndGo) {
  ProgramFixture p;
  p.ToSettings();
  Einstellung1& screen = p.settings_screen();
  const auto expect_places_as = [&screen](const Layout& before) {
    const Layout layout = LaidOut(screen, kPages[0]);
    for (const Control* frame : Each(screen.grdeinst)) {
      EXPECT_EQ(layout.PlaceOf(*frame), before.PlaceOf(*frame)) << frame->Id();
    }
  };
  const Layout at_first = LaidOut(screen, kPages[0]);
  screen.aus_w.Check(1);
  screen.akk_grp.Check(1);
  EXPECT_FALSE(screen.grdeinst[11].visible);
  expect_places_as(at_first);
}

TEST(SettingsLayout, WritesAllHeadingsInTheTypeThatTheLongestNeeds) {
  ProgramFixture p;
  p.ToSettings();
  Einstellung1& screen = p.settings_screen();
  const auto type = [&screen](int frame) {
    return LaidOut(screen, kPages[0]).places.at(&screen.geinst_lb[frame]).text;
  };
  for (const int i : screen.geinst_lb.indexes()) screen.geinst_lb[i].caption = "Art";
  EXPECT_EQ(type(8), 14);
  screen.geinst_lb[9].caption = "Akkordverzeichnis";
  EXPECT_LT(type(9), 14);
  EXPECT_EQ(type(8), type(9));
  screen.geinst_lb[9].caption = std::string(200, 'x');
  EXPECT_EQ(type(8), 11);
}

}  // namespace
}  // namespace vmod17

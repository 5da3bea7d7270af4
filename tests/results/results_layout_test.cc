// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include <string>

#include "results/results_fixture.h"
#include "support/layout_checks.h"

namespace vmod17 {
namespace {

TEST(ResultsLayout, HasAPlaceForEachControlThatIsToBeSeen) {
  ResultsFixture p;
  p.ToResults();
  ExpectAPlaceForEachBut({}, p.results());
}

TEST(ResultsLayout, IsSoundOnBothFacesWithAUserAndWithout) {
  for (const bool known : {false, true}) {
    ResultsFixture p;
    if (known) p.host.user = MemoryHost::User{"4711", "Berg", "Anna"};
    p.ToResults();
    ExpectASoundLayout(p.results());
    EXPECT_TRUE(p.results().cmdOK[0].Press());
    EXPECT_FALSE(p.results().erg_cont.visible);
    ExpectASoundLayout(p.results());
  }
}

TEST(ResultsLayout, WritesLongValuesInSmallerTypeAndLinesBelowEachOther) {
  ResultsFixture p;
  p.ToResults();
  EXPECT_TRUE(p.results().cmdOK[0].Press());
  Testergebnis& screen = p.results();
  const auto type = [&screen] {
    return LaidOut(screen, kPages[0]).places.at(&screen.einst_Inh[0]).text;
  };
  EXPECT_EQ(type(), 15);
  for (const int k : screen.einst_Inh.indexes())
    screen.einst_Inh[k].caption = std::string(150, 'x');
  EXPECT_LT(type(), 15);
  EXPECT_GE(type(), 12.5);
}

TEST(ResultsLayout, GoesOnByEnterFromEitherFace) {
  ResultsFixture p;
  p.ToResults();
  Testergebnis& screen = p.results();
  EXPECT_EQ(LaidOut(screen, kPages[0]).default_control, &screen.cmdOK[0]);
  EXPECT_TRUE(screen.cmdOK[0].Press());
  EXPECT_EQ(LaidOut(screen, kPages[0]).default_control, &screen.cmdOK[1]);
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "forms/caption.h"

#include <gtest/gtest.h>

namespace vmod17 {
namespace {

TEST(ShownCaption, HasNoBlanksAtItsEnds) {
  EXPECT_EQ(ShownCaption("Tonraum "), "Tonraum");
  EXPECT_EQ(ShownCaption(" Grundeinstellung"), "Grundeinstellung");
  EXPECT_EQ(ShownCaption("Moll-Tonika  "), "Moll-Tonika");
  EXPECT_EQ(ShownCaption("  "), "");
  EXPECT_EQ(ShownCaption(""), "");
}

TEST(ShownCaption, JoinsAWordThatIsParted) {
  EXPECT_EQ(ShownCaption("Akkord- Anzahl "), "Akkord-Anzahl");
  EXPECT_EQ(ShownCaption("Akkord- Übung"), "Akkord-Übung");
  EXPECT_EQ(ShownCaption("Übe- Öl- Wort"), "Übe-Öl-Wort");
}

TEST(ShownCaption, LeavesOtherHyphensAsTheyAre) {
  for (const char* caption :
       {"3-7 - Klänge", "pro čtyř- až sedmizvuky", "four- to seven-note chords", "4- t/m 7-klanken",
        "Vor- und Nachname", "5- Klang", "A-", "Arp.-Tempo", "- A", "Akkord-"}) {
    EXPECT_EQ(ShownCaption(caption), caption);
  }
}

}  // namespace
}  // namespace vmod17

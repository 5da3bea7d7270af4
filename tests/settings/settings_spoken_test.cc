// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// What the settings screen says to a user who does not see it.

#include "settings/settings_fixture.h"

namespace vmod17 {
namespace {

using Said = std::vector<std::string>;

class SpokenSettings : public SettingsTest {
 protected:
  SpokenSettings() {
    languages.languages = {{"Deutsch",
                            {{{"9551s", "offered"},
                              {"9552s", "chosen"},
                              {"9731s", "%1: %2 to %3"},
                              {"9732s", "all: %1 to %2"}},
                             {},
                             false}}};
    ToSettings();
    screen().TakeSaid();
  }
};

TEST_F(SpokenSettings, TellWhatMovedFromWhichListAndWhatIsMissing) {
  const std::string kind = screen().klanglst[0].entry(0).text;
  ASSERT_TRUE(screen().klanglst[0].Choose(0));
  EXPECT_EQ(screen().TakeSaid(), (Said{kind + ": offered to chosen", screen().ausblick.caption}));
}

TEST_F(SpokenSettings, TellThatAllHaveMoved) {
  ASSERT_TRUE(screen().klang_alle[0].Press());
  EXPECT_EQ(screen().TakeSaid().front(), "all: offered to chosen");
}

TEST_F(SpokenSettings, TellOfALevelWhatARunWillBeAndNoMore) {
  ASSERT_TRUE(screen().training_Combo.Choose(3));
  EXPECT_EQ(screen().TakeSaid(), Said{screen().ausblick.caption});
}

TEST_F(SpokenSettings, SayNothingWhereNothingChanges) {
  ASSERT_TRUE(screen().training_Combo.Choose(screen().training_Combo.list_index()));
  EXPECT_EQ(screen().TakeSaid(), Said());
}

TEST_F(SpokenSettings, SayNothingWhileAnotherScreenIsInFront) {
  StartRun();
  screen().TakeSaid();
  screen().training_Combo.Select(3);
  EXPECT_EQ(screen().TakeSaid(), Said());
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/seat_settings.h"

#include <gtest/gtest.h>

namespace vmod17 {
namespace {

using Values = SeatSettings::Values;

Values NothingWaits() { return {}; }

std::string SessionOf(const Values& values) {
  SeatSettings settings("", NothingWaits);
  settings.AddStored(values);
  return settings.Session();
}

TEST(SeatSettings, HoldWhatWasHandedOnBeforeWhatWaitsBeforeWhatIsStored) {
  SeatSettings settings(SessionOf({{"a", "handed on"}}), [] {
    return Values{{"a", "waits"}, {"b", "waits"}};
  });
  settings.AddStored({{"a", "stored"}, {"b", "stored"}, {"c", "stored"}});
  EXPECT_EQ(settings.All(), (Values{{"a", "handed on"}, {"b", "waits"}, {"c", "stored"}}));
}

TEST(SeatSettings, HoldWhatWasChosenHereBeforeAllElse) {
  SeatSettings settings(SessionOf({{"a", "handed on"}}), [] { return Values{{"b", "waits"}}; });
  settings.Set("a", "chosen");
  settings.Set("b", "chosen");
  settings.Set("c", "chosen");
  settings.AddStored({{"c", "stored"}});
  EXPECT_EQ(settings.All(), (Values{{"a", "chosen"}, {"b", "chosen"}, {"c", "chosen"}}));
}

TEST(SeatSettings, AskOnceForWhatWaits) {
  int asked = 0;
  SeatSettings settings("", [&] {
    ++asked;
    return Values{{"a", "waits"}};
  });
  EXPECT_EQ(settings.Get("a"), "waits");
  settings.Clear();
  EXPECT_EQ(settings.Get("a"), "");
  EXPECT_EQ(asked, 1);
}

TEST(SeatSettings, GoWholeToAnotherProcess) {
  const Values values = {{kLanguage, "Français"}, {kUserId, ""}, {kMidiDevice, "a\nb \xFF"}};
  SeatSettings settings(SessionOf(values), NothingWaits);
  EXPECT_TRUE(settings.AreHandedOn());
  EXPECT_EQ(settings.All(), values);
}

TEST(SeatSettings, AreNotHandedOnByWhatCannotBeRead) {
  for (const std::string& session : {std::string(), std::string("of another version"),
                                     SessionOf({}), SessionOf({{"a", "b"}}).substr(0, 3)}) {
    SeatSettings settings(session, NothingWaits);
    EXPECT_FALSE(settings.AreHandedOn()) << session;
    EXPECT_EQ(settings.All(), Values()) << session;
  }
}

}  // namespace
}  // namespace vmod17

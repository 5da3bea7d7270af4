// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/shared/texts.h"

#include <gmock/gmock.h>

#include "support/fake_platform.h"

namespace vmod17 {
namespace {

class TextsTest : public testing::Test {
 protected:
  TextsTest() {
    FakeLanguages::Words german;
    german.words["9410s"] = "%1 (weg)";
    german.missing.insert("9411s");
    german.words["9412s"] = "";
    FakeLanguages::Words broken;
    broken.broken = true;
    languages_.languages = {{"Deutsch", german}, {"Kaputt", broken}};
    list_ = languages_.Make();
  }

  FakeLanguages languages_;
  std::unique_ptr<LanguageList> list_;
};

TEST_F(TextsTest, AreEnglishBeforeALanguageIsChosen) {
  EXPECT_EQ(Texts(*list_).Say(9410, "%1 (gone)", {"Piano"}), "Piano (gone)");
}

TEST_F(TextsTest, ComeFromTheLanguageAndAreEnglishWhereItHasNone) {
  Texts texts(*list_);
  texts.Speak("Deutsch");
  EXPECT_EQ(texts.Say(9410, "%1 (gone)", {"Piano"}), "Piano (weg)");
  EXPECT_EQ(texts.Say(9411, "Test"), "Test");
  EXPECT_EQ(texts.Say(9412, "Choose"), "Choose");
}

TEST_F(TextsTest, AreEnglishInALanguageThatIsNotThereOrCannotBeMade) {
  Texts texts(*list_);
  for (const char* name : {"Klingonisch", "Kaputt"}) {
    texts.Speak(name);
    EXPECT_EQ(texts.Say(9410, "%1 (gone)", {"Piano"}), "Piano (gone)") << name;
  }
}

TEST_F(TextsTest, TakeDetailsAsTheyAre) {
  const Texts texts(*list_);
  EXPECT_EQ(texts.Say(1, "%1 and %2", {"%2", "<b>"}), "%2 and <b>");
  EXPECT_EQ(texts.Say(Notice{1, "%1 and %2", {"%2", "%1"}}), "%2 and %1");
}

}  // namespace
}  // namespace vmod17

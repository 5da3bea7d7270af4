// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/words.h"

#include <gmock/gmock.h>

#include "support/fake_platform.h"

namespace melvado {
namespace {

using vmod17::FakeLanguages;
using vmod17::LanguageList;
using vmod17::Notice;

class WordsTest : public testing::Test {
 protected:
  WordsTest() {
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

TEST_F(WordsTest, AreEnglishBeforeALanguageIsChosen) {
  EXPECT_EQ(Words(*list_).Say(9410, "%1 (gone)", {"Piano"}), "Piano (gone)");
}

TEST_F(WordsTest, ComeFromTheLanguageAndAreEnglishWhereItHasNone) {
  Words words(*list_);
  words.Speak("Deutsch");
  EXPECT_EQ(words.Say(9410, "%1 (gone)", {"Piano"}), "Piano (weg)");
  EXPECT_EQ(words.Say(9411, "Test"), "Test");
  EXPECT_EQ(words.Say(9412, "Choose"), "Choose");
}

TEST_F(WordsTest, AreEnglishInALanguageThatIsNotThereOrCannotBeMade) {
  Words words(*list_);
  for (const char* name : {"Klingonisch", "Kaputt"}) {
    words.Speak(name);
    EXPECT_EQ(words.Say(9410, "%1 (gone)", {"Piano"}), "Piano (gone)") << name;
  }
}

TEST_F(WordsTest, TakeDetailsAsTheyAre) {
  const Words words(*list_);
  EXPECT_EQ(words.Say(1, "%1 and %2", {"%2", "<b>"}), "%2 and <b>");
  EXPECT_EQ(words.Say(Notice{1, "%1 and %2", {"%2", "%1"}}), "%2 and %1");
}

}  // namespace
}  // namespace melvado

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/text_lookup.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/run_time_error.h"
#include "support/fake_platform.h"

namespace vmod17 {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class TextLookupTest : public ::testing::Test {
 protected:
  void Choose(const std::string& name) {
    texts_.SprachenLaden();
    texts_.SpracheWaehlen(name);
  }
  FakeLanguages::Words& German() { return languages_.languages[0].second; }

  FakeLanguages languages_;
  FakeSystem system_;
  TextLookup texts_{languages_.Factory(), system_};
};

TEST_F(TextLookupTest, AsksForTheNumberWithALowerCaseS) {
  Choose("Deutsch");
  texts_.Sprachtext(700);
  texts_.Sprachtext(2);
  EXPECT_THAT(languages_.looked_up, ElementsAre("700s", "2s"));
}

TEST_F(TextLookupTest, GivesTheWordOfTheLanguage) {
  German().words["432s"] = "OK";
  Choose("Deutsch");
  EXPECT_EQ(texts_.Sprachtext(432), "OK");
}

TEST_F(TextLookupTest, AsksAnewForEachLookUp) {
  German().words["432s"] = "OK";
  Choose("Deutsch");
  EXPECT_EQ(texts_.Sprachtext(432), "OK");
  German().words["432s"] = "Weiter";
  EXPECT_EQ(texts_.Sprachtext(432), "Weiter");
  EXPECT_THAT(languages_.looked_up, ElementsAre("432s", "432s"));
}

TEST_F(TextLookupTest, SaysVoidForAnIdThatTheLanguageRefuses) {
  German().missing = {"720s"};
  Choose("Deutsch");
  EXPECT_EQ(texts_.Sprachtext(720), "VOID");
  EXPECT_EQ(texts_.Sprachtext(721), "[721s]");
}

TEST_F(TextLookupTest, LeavesAnEmptyWordEmpty) {
  German().words["153s"] = "";
  Choose("Deutsch");
  EXPECT_EQ(texts_.Sprachtext(153), "");
}

TEST_F(TextLookupTest, SaysVoidBeforeALanguageIsChosen) {
  EXPECT_EQ(texts_.Sprachtext(432), "VOID");
  texts_.SprachenLaden();
  EXPECT_EQ(texts_.Sprachtext(432), "VOID");
}

TEST_F(TextLookupTest, MakesTheClassOfTheChosenLanguage) {
  Choose("English");
  EXPECT_THAT(languages_.made, ElementsAre("melvadolang.English"));
}

TEST_F(TextLookupTest, TellsThatThereAreLanguages) {
  EXPECT_FALSE(texts_.SprachenDa());
  texts_.SprachenLaden();
  EXPECT_TRUE(texts_.SprachenDa());
}

TEST_F(TextLookupTest, SaysVoidForAllTextsWithoutAListOfLanguages) {
  languages_.no_list = true;
  Choose("Deutsch");
  EXPECT_FALSE(texts_.SprachenDa());
  EXPECT_EQ(texts_.Sprachtext(432), "VOID");
  EXPECT_THAT(languages_.made, IsEmpty());
}

TEST_F(TextLookupTest, SaysVoidForAllTextsOfALanguageThatIsNotInstalled) {
  Choose("Suomi");
  EXPECT_TRUE(texts_.SprachenDa());
  EXPECT_EQ(texts_.Sprachtext(432), "VOID");
  EXPECT_THAT(languages_.made, IsEmpty());
}

TEST_F(TextLookupTest, TellsCapitalAndSmallLettersApartInTheNameOfALanguage) {
  Choose("deutsch");
  EXPECT_EQ(texts_.Sprachtext(432), "VOID");
  EXPECT_THAT(languages_.made, IsEmpty());
}

TEST_F(TextLookupTest, DoesNotTakeThePlaceForTheNameOfALanguage) {
  Choose("xx_XX");
  EXPECT_THAT(languages_.made, IsEmpty());
}

TEST_F(TextLookupTest, TakesTheFirstOfTwoLanguagesOfOneName) {
  German().words["432s"] = "first";
  languages_.languages.push_back({"Deutsch", {{{"432s", "second"}}, {}, false}});
  Choose("Deutsch");
  EXPECT_EQ(texts_.Sprachtext(432), "first");
  EXPECT_THAT(languages_.made, SizeIs(1));
}

TEST_F(TextLookupTest, PassesOnThatAListedLanguageCannotBeMade) {
  German().broken = true;
  texts_.SprachenLaden();
  try {
    texts_.SpracheWaehlen("Deutsch");
    FAIL() << "a broken language was taken";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), ErrorNumber::kCannotCreate);
  }
}

TEST_F(TextLookupTest, MakesALanguageByItsColumn) {
  texts_.SprachenLaden();
  texts_.SpracheErzeugen(1);
  EXPECT_THAT(languages_.made, ElementsAre("melvadolang.English"));
}

TEST_F(TextLookupTest, FillsTheTitlesInOneOrder) {
  Choose("Deutsch");
  texts_.TexteLaden();
  EXPECT_THAT(languages_.looked_up, ElementsAre("347s", "287s", "221s", "224s", "348s"));
  EXPECT_EQ(texts_.modul_titel, "[347s]");
  EXPECT_THAT(texts_.titel_ar, ElementsAre("[287s]", "[221s]", "[224s]"));
  EXPECT_THAT(texts_.ueb_typ_name_ar, ElementsAre("", "[348s]", "", ""));
}

TEST_F(TextLookupTest, FillsTheTablesWithVoidWhenThereIsNoLanguage) {
  Choose("Suomi");
  texts_.TexteLaden();
  EXPECT_EQ(texts_.modul_titel, "VOID");
  EXPECT_THAT(texts_.titel_ar, Each("VOID"));
}

TEST_F(TextLookupTest, TellsTheNameOfTheMachine) {
  system_.computer = "übungsraum-3";
  EXPECT_EQ(texts_.Rechnername(), "übungsraum-3");
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "lint/languages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace vmod17::lint {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

std::string Message(const std::string& key, const std::string& word) {
  return "<message id=\"" + key + "\"><source></source><translation>" + word +
         "</translation></message>\n";
}

TEST(TextIds, AreFoundInCallsTablesAndNotices) {
  EXPECT_THAT(
      UsedTextIds({{"src/shell/a.cc", "x = texts.Sprachtext(586) + Sprachtext(671 + j);"},
                   {"src/shell/b.cc", "Sprachtext(ready ? 432 : 139); text(640); Context(12)"},
                   {"src/shell/c.cc", "{t, {{0, 51},\n {10, 199}}}; Sprachtext(id); Texte(49, 45)"},
                   {"src/shell/d.cc", "{1, 70}; text(71)"},
                   {"src/platform/store/s.cc", "notify({9101, \"text\", {}}); int x19102;"},
                   {"tests/a.cc", "Sprachtext(1)"}}),
      ElementsAre(45, 49, 51, 139, 199, 432, 586, 640, 671, 9101));
}

TEST(Languages, NeedAWordForEachTextId) {
  const std::string code = "Sprachtext(41); Sprachtext(700)";
  EXPECT_THAT(
      LanguageFaults({{"src/shell/a.cc", code},
                      {"assets/languages/A.ts", Message("41s", "a") + Message("700s", ":")}}),
      IsEmpty());
  EXPECT_THAT(
      LanguageFaults({{"src/shell/a.cc", code}, {"assets/languages/A.ts", Message("41s", "a")}}),
      ElementsAre(HasSubstr("text id 700")));
  EXPECT_THAT(LanguageFaults({{"src/shell/a.cc", code}}), SizeIs(1));
}

TEST(Languages, HaveEachKeyOnceAndNoEmptyOrUnfinishedWord) {
  Faults faults;
  ReadLanguage("A.ts", Message("1s", "a") + Message("1s", "b"), faults);
  EXPECT_THAT(faults, ElementsAre("A.ts:2: a second word for 1s"));
  faults.clear();
  ReadLanguage("A.ts", Message("1s", ""), faults);
  ReadLanguage("A.ts", "<message id=\"2s\"><translation type=\"unfinished\">b</translation>",
               faults);
  ReadLanguage("A.ts", Message("x1", "a"), faults);
  EXPECT_THAT(faults, SizeIs(3));
}

TEST(Languages, AreWrittenInUtf8) {
  Faults faults;
  ReadLanguage("A.ts", Message("1s", "Übungsart für 日本語 🎵"), faults);
  EXPECT_THAT(faults, IsEmpty());
  for (const char* word : {"\xDC"
                           "bungsart",
                           "\xFF\xFE", "\xC3", "a\x80"}) {
    faults.clear();
    ReadLanguage("A.ts", Message("1s", word), faults);
    EXPECT_THAT(faults, ElementsAre("A.ts:1: is not in UTF-8"));
  }
}

TEST(Notices, SayInEnglishWhatTheLanguageFileSays) {
  const std::string english = Message("9101s", "Not there: %1 &amp; &quot;b&quot;.");
  EXPECT_THAT(NoticeFaults({{"assets/languages/English.ts", english},
                            {"src/a.cc", R"(return {9101, "Not there: "
                                                         "%1 & \"b\".", {b}};)"}}),
              IsEmpty());
  EXPECT_THAT(NoticeFaults({{"assets/languages/English.ts", english},
                            {"src/a.cc", R"(return {9101, "Gone: %1.", {b}};)"}}),
              SizeIs(1));
}

TEST(Languages, HaveTheSameKeysAndDetails) {
  EXPECT_THAT(LanguageFaults({{"assets/languages/A.ts", Message("1s", "%1 is gone")},
                              {"assets/languages/B.ts", Message("1s", "weg ist %1")}}),
              IsEmpty());
  EXPECT_THAT(LanguageFaults({{"assets/languages/A.ts", Message("1s", "%1 is gone")},
                              {"assets/languages/B.ts", Message("1s", "weg")}}),
              SizeIs(1));
  EXPECT_THAT(LanguageFaults({{"assets/languages/A.ts", Message("1s", "a")},
                              {"assets/languages/B.ts", Message("2s", "a")}}),
              SizeIs(2));
}

TEST(Languages, HaveOneManner) {
  EXPECT_THAT(MannerFaults({{"assets/languages/Nederlands.ts",
                             Message("1s", "Wil je stoppen?") + Message("2s", "uur, nu, zuur")},
                            {"assets/languages/Italiano.ts", Message("1s", "L’accordo")}}),
              IsEmpty());
  EXPECT_THAT(MannerFaults({{"assets/languages/Nederlands.ts",
                             Message("1s", "Wilt u stoppen?") + Message("2s", "Uw naam")}}),
              SizeIs(2));
  for (const char* apostrophe : {"'", "&apos;"}) {
    const std::string word = Message("1s", std::string("L") + apostrophe + "accordo");
    EXPECT_THAT(MannerFaults({{"assets/languages/Italiano.ts", word}}),
                ElementsAre(HasSubstr("1s")));
    EXPECT_THAT(MannerFaults({{"assets/languages/Français.ts", word}}), SizeIs(1));
  }
}

}  // namespace
}  // namespace vmod17::lint

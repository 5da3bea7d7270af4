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
using ::testing::IsSupersetOf;
using ::testing::Pair;
using ::testing::SizeIs;

std::string Message(const std::string& key, const std::string& word) {
  return "<message id=\"" + key + "\"><source></source><translation>" + word +
         "</translation></message>\n";
}

/// A list of named text ids, as it stands in the tree.
Tree WithNames(const std::string& rows, Tree tree) {
  tree[std::string(kTextIds)] = "namespace vmod17::text_id {\n" + rows + "}\n";
  return tree;
}

std::string Row(const std::string& name, int id) {
  return "inline constexpr int " + name + " = " + std::to_string(id) + ";\n";
}

/// What the lint has against a source in which a bare number may stand for a text id.
Faults FaultsOf(const std::string& code) {
  return TextIdFaults(WithNames("", {{"src/shell/a.cc", code}}));
}

TEST(TextIds, AreReadWithTheirNames) {
  Faults faults;
  EXPECT_THAT(
      NamedTextIds(WithNames("// Buttons.\n" + Row("kBack", 640) + Row("kYes", 9001), {}), faults),
      ElementsAre(Pair("kBack", 640), Pair("kYes", 9001)));
  EXPECT_THAT(faults, IsEmpty());
  NamedTextIds({}, faults);
  EXPECT_THAT(faults, ElementsAre("src/base/text_ids.h is missing"));
}

TEST(TextIds, AreNamedOnceAndAscend) {
  const auto faults_of = [](const std::string& rows) {
    Faults faults;
    NamedTextIds(WithNames(rows, {}), faults);
    return faults;
  };
  EXPECT_THAT(faults_of(Row("kBack", 640) + Row("kReturn", 640)),
              ElementsAre("src/base/text_ids.h:3: names an id a second time"));
  EXPECT_THAT(faults_of(Row("kYes", 9001) + Row("kBack", 640)),
              ElementsAre("src/base/text_ids.h:3: does not ascend"));
  EXPECT_THAT(faults_of("inline constexpr int kBack = 600 + 40;\n"),
              ElementsAre("src/base/text_ids.h:2: is not the name of a text id"));
}

TEST(TextIds, AreUsedElsewhere) {
  const std::string rows = Row("kBack", 640) + Row("kBackup", 9120);
  EXPECT_THAT(
      TextIdFaults(WithNames(
          rows, {{"src/shell/a.cc", "Sprachtext(text_id::kBack) + Words({text_id::kBackup})"}})),
      IsEmpty());
  for (const Tree& tree : {Tree{{"src/shell/a.cc", "Sprachtext(text_id::kBackup);"}},
                           Tree{{"src/shell/a.cc", "text_id::kBackup; // text_id::kBack"}},
                           Tree{{"src/shell/a.cc", "text_id::kBackup; \"text_id::kBack\""}},
                           Tree{{"src/shell/a.cc", "text_id::kBackup"},
                                {"tests/a.cc", "Sprachtext(text_id::kBack)"}}}) {
    EXPECT_THAT(TextIdFaults(WithNames(rows, tree)),
                ElementsAre("src/base/text_ids.h: nobody uses kBack"));
  }
}

TEST(TextIds, StandNowhereAsBareNumbers) {
  EXPECT_THAT(FaultsOf("\nx = texts.Sprachtext(586);"),
              ElementsAre("src/shell/a.cc:2: 586 is a text id without a name"));
  EXPECT_THAT(FaultsOf("Sprachtext(ready ? 432 : 139)"), SizeIs(2));
  for (const char* code : {
           "Sprachtext(671 + j)",
           "SprachtextOder(9551, \"Klangtyp\")",
           "EigenesWort(499)",
           "Wort(1)",
           "Ueberschrift(189)",
           "Gesehen(e.lb15[0].caption, 547)",
           "texts.Say(9403, \"Nobody\")",
           "texts_->Say(347, \"Exercise\")",
           "Texte(x, 45)",
           "warten_(*this, texts, WaitMeld, 726, &frame)",
           "Sprachtext(id); text(640)",
           "Sprachtext(id); x = {{0, text}, {10, 199}}",
           "Sprachtext(id); Rahmen{3, 154, colour}",
           "ids = {0, 564}",
           "const Notice ok{432, \"OK\", {}};",
           "return {\n 432,\n \"OK\", {}};",
           "words = {{1, \"Drucken\"}}",
           "sign.id = 9532;",
       }) {
    EXPECT_THAT(FaultsOf(code), SizeIs(1)) << code;
  }
}

TEST(TextIds, AreNotAllNumbers) {
  for (const char* code : {
           "Sprachtext(RahmenTitel(15)) + Context(12)",
           "Gesehen(const Group& group, std::array<int, 2> ids)",
           "EigenesWort(ids.at(3)) + Text(i + 1)",
           "Say(abfolge == 1 ? a : b)",
           "text(640)",
           "x = {{0, 51}, {10, 199}}",
           "ids = {0, text_id::kBack}",
           "Sprachtext(id); x = {1, 4}; Size{680, 300}",
           "// Sprachtext(640) of 9101",
           "/* 9101 */ \"9102\" R\"(\" 9103)\" x9104 9.105 91060 15'9107 '\"'",
           "{9.5, \"half\"} {\"half\", 50}",
       }) {
    EXPECT_THAT(TextIdFaults(WithNames("", {{"src/shell/a.cc", code}, {"tests/b.cc", "9101"}})),
                IsEmpty())
        << code;
  }
}

TEST(Languages, NeedAWordForEachTextIdAndNoOther) {
  const std::string names = Row("kOctaves", 41) + Row("kColon", 700);
  const std::string a = "assets/languages/A.ts";
  EXPECT_THAT(LanguageFaults(WithNames(names, {{a, Message("41s", "a") + Message("700s", ":")}})),
              IsEmpty());
  EXPECT_THAT(LanguageFaults(WithNames(names, {{a, Message("41s", "a")}})),
              ElementsAre("assets/languages/A.ts:1: has no word for kColon"));
  EXPECT_THAT(LanguageFaults(WithNames(Row("kOctaves", 41),
                                       {{a, Message("41s", "a") + Message("700s", ":")}})),
              ElementsAre("assets/languages/A.ts:1: 700s is the word of no text id"));
  EXPECT_THAT(LanguageFaults(WithNames(names, {})), SizeIs(1));
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
  const auto faults_of = [](const std::string& code) {
    return NoticeFaults(WithNames(
        Row("kGone", 9101),
        {{"assets/languages/English.ts", Message("9101s", "Not there: %1 &amp; &quot;b&quot;.")},
         {"src/a.cc", code}}));
  };
  EXPECT_THAT(faults_of(R"(return {text_id::kGone, "Not there: "
                                                  "%1 & \"b\".", {b}};)"),
              IsEmpty());
  EXPECT_THAT(faults_of(R"(return {text_id::kGone, "Gone: %1.", {b}};)"),
              ElementsAre(HasSubstr("the notice kGone differs")));
  EXPECT_THAT(faults_of(R"(texts.Say(
                               text_id::kGone,
                               "Gone: "
                               "%1.", {b});)"),
              SizeIs(1));
  EXPECT_THAT(faults_of(R"(Words({text_id::kGone, "Not there: %1 & \"b\".", {"c"}});
                           Words({text_id::kGone, "", {}});)"),
              SizeIs(1));
}

TEST(Notices, AreNotTheWordsOfAnotherLanguage) {
  EXPECT_THAT(NoticeFaults(WithNames(Row("kPrint", 1),
                                     {{"assets/languages/English.ts", Message("1s", "Print")},
                                      {"src/a.cc", R"(words = {{text_id::kPrint, "Drucken"}};
                                   SprachtextOder(text_id::kPrint, "Drucken");)"}})),
              IsEmpty());
}

TEST(Languages, HaveTheSameKeysAndDetails) {
  const std::string one = Row("kGone", 1);
  EXPECT_THAT(
      LanguageFaults(WithNames(one, {{"assets/languages/A.ts", Message("1s", "%1 is gone")},
                                     {"assets/languages/B.ts", Message("1s", "weg ist %1")}})),
      IsEmpty());
  EXPECT_THAT(LanguageFaults(WithNames(one, {{"assets/languages/A.ts", Message("1s", "%1 is gone")},
                                             {"assets/languages/B.ts", Message("1s", "weg")}})),
              ElementsAre(HasSubstr("other details")));
  EXPECT_THAT(LanguageFaults(WithNames(one + Row("kThere", 2),
                                       {{"assets/languages/A.ts", Message("1s", "a")},
                                        {"assets/languages/B.ts", Message("2s", "a")}})),
              IsSupersetOf({HasSubstr("has no word for 1s, as another"),
                            HasSubstr("has a word for 2s, which another")}));
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

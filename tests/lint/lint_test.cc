// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "lint/rules.h"

namespace vmod17::lint {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::IsSupersetOf;
using ::testing::SizeIs;

const Tree& TheTree() {
  static const Tree tree = ReadTree(VMOD17_TREE);
  return tree;
}

std::string Includes(const std::string& header) { return "#include \"" + header + "\"\n"; }

std::string Message(const std::string& key, const std::string& word) {
  return "<message id=\"" + key + "\"><source></source><translation>" + word +
         "</translation></message>\n";
}

TEST(TheTree, IsReadWithItsSourcesAndWithoutWhatIsBuilt) {
  EXPECT_TRUE(TheTree().contains("src/shell/text_lookup.cc"));
  EXPECT_TRUE(TheTree().contains("run"));
  for (const auto& [path, text] : TheTree()) {
    EXPECT_FALSE(path.starts_with("build/") || path.starts_with(".git/")) << path;
  }
}

TEST(TheTree, KeepsItsFloors) { EXPECT_THAT(FloorFaults(TheTree()), IsEmpty()); }

TEST(TheTree, IncludesNothingInACircle) { EXPECT_THAT(CircleFaults(TheTree()), IsEmpty()); }

TEST(TheTree, HasACoreWithoutForeignHeaders) {
  EXPECT_THAT(CoreIncludeFaults(TheTree()), IsEmpty());
}

TEST(TheTree, HasNoWordsThatHaveNoPlaceInIt) { EXPECT_THAT(WordFaults(TheTree()), IsEmpty()); }

TEST(TheTree, SaysOfEachSourceWhoseItIs) { EXPECT_THAT(HeadFaults(TheTree()), IsEmpty()); }

TEST(TheTree, HasATypeOfANameOnce) { EXPECT_THAT(TypeFaults(TheTree()), IsEmpty()); }

TEST(TheTree, HasNoTestThatWaitsForTheRealClock) { EXPECT_THAT(SleepFaults(TheTree()), IsEmpty()); }

TEST(TheTree, HasAWordForEachTextIdInEachLanguage) {
  EXPECT_THAT(LanguageFaults(TheTree()), IsEmpty());
}

TEST(TheTree, HasLanguagesOfOneManner) { EXPECT_THAT(MannerFaults(TheTree()), IsEmpty()); }

TEST(TheTree, HasTextIdsThatAreFound) {
  // A table or call in a new form would escape the search, and its ids with it.
  EXPECT_THAT(UsedTextIds(TheTree()),
              IsSupersetOf({6,   41,  56,  78,  107, 199, 232, 243, 348, 372,  400,  420,  432, 499,
                            552, 603, 640, 671, 699, 700, 720, 723, 726, 9101, 9151, 9201, 9401}));
}

TEST(TheTree, HasNoticesThatSayTheSameAsTheEnglishLanguageFile) {
  EXPECT_THAT(NoticeFaults(TheTree()), IsEmpty());
}

TEST(Floors, LetAFileIncludeItsOwnFloorAndLowerOnes) {
  EXPECT_THAT(FloorFaults({{"src/worksheet/a.cc", Includes("worksheet/a.h") +
                                                      Includes("settings/settings_screen.h") +
                                                      Includes("ports/random.h")},
                           {"src/qt/kit/w.cc", Includes("worksheet/a.h")},
                           {"src/programs/module/main.cc", Includes("qt/kit/w.h")}}),
              IsEmpty());
}

TEST(Floors, RefuseAHigherFloor) {
  EXPECT_THAT(FloorFaults({{"src/settings/a.h", "\n" + Includes("worksheet/b.h")}}),
              ElementsAre("src/settings/a.h:2: must not include worksheet/b.h"));
  EXPECT_THAT(FloorFaults({{"src/ports/random.h", Includes("shell/delay.h")}}), SizeIs(1));
  EXPECT_THAT(FloorFaults({{"src/shell/a.h", Includes("qt/kit/w.h")}}), SizeIs(1));
  EXPECT_THAT(FloorFaults({{"src/sound/a.h", Includes("module/b.h")}}), SizeIs(1));
}

TEST(Floors, KeepTheLibrariesOfThePlatformApart) {
  EXPECT_THAT(FloorFaults({{"src/qt/kit/a.cc", Includes("midi/b.h")}}), SizeIs(1));
}

TEST(Floors, KnowEveryFolder) { EXPECT_THAT(FloorFaults({{"src/attic/a.h", ""}}), SizeIs(1)); }

TEST(Circles, AreFoundOverSeveralFiles) {
  EXPECT_THAT(CircleFaults({{"src/shell/a.h", Includes("shell/b.h")},
                            {"src/shell/b.h", Includes("shell/c.h")},
                            {"src/shell/c.h", Includes("shell/a.h")}}),
              ElementsAre(HasSubstr("shell/a.h -> shell/b.h -> shell/c.h -> shell/a.h")));
  EXPECT_THAT(CircleFaults({{"src/shell/a.h", Includes("shell/b.h") + Includes("shell/c.h")},
                            {"src/shell/b.h", Includes("shell/c.h")},
                            {"src/shell/c.h", ""}}),
              IsEmpty());
}

TEST(CoreIncludes, AreTheStandardLibrarysPlainHeadersAndOurOwn) {
  EXPECT_THAT(CoreIncludeFaults({{"src/shell/a.cc", "#include <vector>\n" + Includes("shell/a.h")},
                                 {"src/shell/a.h", ""},
                                 {"src/qt/kit/w.cc", "#include <QWidget>\n"}}),
              IsEmpty());
}

TEST(CoreIncludes, AreNoForeignHeadersThreadsClocksOrStreams) {
  for (const char* header : {"QString", "fluidsynth.h", "rtmidi/RtMidi.h", "pugixml.hpp",
                             "sqlite3.h", "thread", "mutex", "iostream", "chrono", "ctime"}) {
    EXPECT_THAT(CoreIncludeFaults({{"src/sound/a.h", "#  include <" + std::string(header) + ">"}}),
                SizeIs(1))
        << header;
  }
  EXPECT_THAT(CoreIncludeFaults({{"src/sound/a.h", Includes("QtCore/qglobal.h")}}), SizeIs(1));
}

// The samples below are put together, for this file must not hold what it tests for.
std::string Whole(const std::string& first, const std::string& second) { return first + second; }

TEST(Words, RefuseMarksOfUnfinishedWork) {
  EXPECT_THAT(WordFaults({{"src/a.cc", Whole("int a;  // TO", "DO: finish")}}),
              ElementsAre(HasSubstr("src/a.cc:1: ")));
  EXPECT_THAT(WordFaults({{"src/a.cc", Whole("// FIX", "ME")}}), SizeIs(1));
  EXPECT_THAT(WordFaults({{"src/a.cc", Whole("// XX", "X")}}), SizeIs(1));
  EXPECT_THAT(WordFaults({{"src/a.cc", Whole("mkstemp(\"name-XX", "XXXX\")")}}), IsEmpty());
}

TEST(Words, RefuseTheNamesOfOtherDocuments) {
  EXPECT_THAT(WordFaults({{"docs/a.md", Whole("See Pa", "rt 4.2 for it")}}), SizeIs(1));
  EXPECT_THAT(WordFaults({{"docs/a.md", Whole("See Pa", "rts 4.2 and 5.1")}}), SizeIs(1));
  EXPECT_THAT(WordFaults({{"README.md", Whole("as the Sp", "ec says")}}), SizeIs(1));
  EXPECT_THAT(WordFaults({{"README.md", Whole("As speci", "fied")}}), SizeIs(1));
  EXPECT_THAT(WordFaults({{"README.md", Whole("the C++ specifi", "cation")}}), IsEmpty());
  EXPECT_THAT(WordFaults({{"README.md", Whole("the MIDI specifi", "cation")}}), SizeIs(1));
  EXPECT_THAT(WordFaults({{"README.md", "part 4 of 5; the special case"}}), IsEmpty());
}

TEST(Words, RefusePathsAndHostsOfOneMachine) {
  EXPECT_THAT(WordFaults({{"run", Whole("cd /wo", "rk/main")}}), SizeIs(1));
  EXPECT_THAT(WordFaults({{"run", Whole("curl https://py", "pi.org/simple")}}), SizeIs(1));
}

TEST(Heads, NameOwnerAndLicenceAndIncludeOnce) {
  const std::string head =
      "// SPDX-FileCopyrightText: 2026 The Melvado authors\n"
      "// SPDX-License-Identifier: Apache-2.0\n\n";
  EXPECT_THAT(HeadFaults({{"src/a.h", head + "#pragma once\n"}, {"src/a.cc", head}}), IsEmpty());
  EXPECT_THAT(HeadFaults({{"src/a.h", head}}), ElementsAre(HasSubstr("#pragma once")));
  EXPECT_THAT(HeadFaults({{"src/a.cc", ""}}), SizeIs(2));
  EXPECT_THAT(HeadFaults({{"tests/CMakeLists.txt", "\n\n\n\n\n" + head}}), SizeIs(2));
}

TEST(Types, HaveTheirNameForThemselvesInTheirNamespace) {
  const std::string device = "namespace vmod17 {\nstruct Device {\n";
  EXPECT_THAT(TypeFaults({{"src/a.h", device}, {"src/b.cc", device}, {"tests/b.h", device}}),
              IsEmpty());
  EXPECT_THAT(TypeFaults({{"src/a.h", device},
                          {"src/b.h", "namespace vmod17 {\nclass Device;\nstruct Devices {};\n"},
                          {"src/c.h", "namespace vmod17::lint {\nstruct Device {};\n"}}),
              IsEmpty());
  for (const char* type : {"class Device : public Thing {", "enum class Device { kOne };"}) {
    EXPECT_THAT(TypeFaults({{"src/a.h", device},
                            {"src/b.h", std::string("namespace vmod17 {\n") + type + "\n"}}),
                ElementsAre("src/b.h:2: vmod17::Device is also in src/a.h"))
        << type;
  }
}

TEST(Sleeps, AreRefusedInTests) {
  for (const std::string& wait :
       {Whole("std::this_thread::sl", "eep_for(1s);"), Whole("QTest::q", "Wait(50);"),
        Whole("us", "leep(10);"), Whole("QThread::ms", "leep(1);"), Whole("sl", "eep(1);")}) {
    EXPECT_THAT(SleepFaults({{"tests/a.cc", wait}}), SizeIs(1)) << wait;
    EXPECT_THAT(SleepFaults({{"src/a.cc", wait}}), IsEmpty()) << wait;
  }
  EXPECT_THAT(SleepFaults({{"tests/a.cc", "FallsAsleepFor(3)"}}), IsEmpty());
}

TEST(TextIds, AreFoundInCallsTablesAndNotices) {
  EXPECT_THAT(
      UsedTextIds(
          {{"src/shell/a.cc", "x = texts.Sprachtext(586) + Sprachtext(671 + j);"},
           {"src/shell/b.cc", "Sprachtext(ready ? 432 : 139); text(640); Context(12)"},
           {"src/shell/c.cc", "{t, {{0, 51},\n {10, 199}}}; Sprachtext(id); options(a, 49, 45)"},
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

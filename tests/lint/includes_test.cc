// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "lint/includes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace vmod17::lint {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr char kHead[] =
    "Some words.\n\n"
    "| folder | target | holds | includes | foreign headers |\n"
    "|---|---|---|---|---|\n";

std::string Includes(const std::string& header) { return "#include \"" + header + "\"\n"; }
std::string Foreign(const std::string& header) { return "#include <" + header + ">\n"; }

/// A house of a few folders.
Tree House(const Tree& files) {
  Tree tree = {
      {"docs/architecture.md",
       std::string(kHead) +
           "| `base` | `core` | errors | | plain standard library |\n"
           "| `ports` | `core` | what is asked | `base` | plain standard library |\n"
           "| `module` | `core` | the owner | `base` `ports` | plain standard library |\n"
           "| `qt/desk` | `qt` | windows | `base` `ports` | standard library, POSIX, Qt |\n"
           "| `qt/kit` | `qt` | widgets | `base` `qt/desk` | standard library, Qt |\n"
           "| `midi` | `midi` | sound | `base` `ports` | standard library, threads, FluidSynth |\n"
           "| `store` | `store` | rows | `base` | standard library, Qt Core, Qt SQL |\n"
           "| `programs/module` | `module` | main | `base` `module` `qt/kit` | Qt |\n"
           "| `programs/host` | `host` | main | `base` `qt/kit` | Qt |\n\n"
           "| `attic` | `core` | no row of that table | `base` `module` | Qt |\n"},
      {"src/CMakeLists.txt",
       "add_library(core STATIC)\nadd_library(\n  qt STATIC)\nadd_library(midi)\n"
       "add_library(store)\nadd_executable(module)\nadd_executable(host)\n"}};
  for (const char* folder : {"base", "ports", "module", "qt/desk", "qt/kit", "midi", "store",
                             "programs/module", "programs/host"}) {
    tree["src/" + std::string(folder) + "/a.h"] = "";
  }
  for (const auto& [path, text] : files) tree[path] = text;
  return tree;
}

/// The same with one row of the table put another way.
Tree HouseWith(const std::string& row, const std::string& other) {
  Tree tree = House({});
  std::string& page = tree["docs/architecture.md"];
  page.replace(page.find(row), row.size(), other);
  return tree;
}

TEST(Table, IsWholeInAHouseThatIsInOrder) { EXPECT_THAT(TableFaults(House({})), IsEmpty()); }

TEST(Table, MustBeThere) {
  Tree tree = House({});
  tree["docs/architecture.md"] = "| folder | target |\n|---|---|\n| `base` | `core` |\n";
  EXPECT_THAT(TableFaults(tree), SizeIs(1));
  tree.erase("docs/architecture.md");
  EXPECT_THAT(TableFaults(tree), SizeIs(1));
}

TEST(Table, HasARowForEachFolderAndForNoOther) {
  EXPECT_THAT(TableFaults(House({{"src/attic/a.cc", ""}})),
              ElementsAre("docs/architecture.md:5: has no row for attic"));
  EXPECT_THAT(TableFaults(House({{"src/midi/port/a.cc", ""}})),
              ElementsAre(HasSubstr("has no row for midi/port")));
  Tree tree = House({});
  tree.erase("src/store/a.h");
  EXPECT_THAT(TableFaults(tree),
              ElementsAre("docs/architecture.md:11: store: there is no such folder"));
  EXPECT_THAT(TableFaults(HouseWith("| `store` |", "| `midi` |")),
              ElementsAre(HasSubstr("has no row for store"), HasSubstr("has a second row")));
}

TEST(Table, GrantsOnlyWhatStandsInARowAbove) {
  const char* const ports = "| what is asked | `base` |";
  for (const char* other : {"module", "ports", "nowhere"}) {
    EXPECT_THAT(
        TableFaults(HouseWith(ports, "| what is asked | `base` `" + std::string(other) + "` |")),
        ElementsAre(HasSubstr("ports: " + std::string(other) + " stands in no row above")));
  }
}

TEST(Table, NamesTargetsAndLibrariesThatAreKnown) {
  EXPECT_THAT(TableFaults(HouseWith("| `store` | `store` |", "| `store` | `sto` |")),
              ElementsAre(HasSubstr("nothing makes the target sto")));
  EXPECT_THAT(TableFaults(HouseWith("Qt SQL", "Sybase")), ElementsAre(HasSubstr("Sybase")));
}

TEST(Floors, LetAFileIncludeItsOwnFolderAndWhatItsRowGrants) {
  EXPECT_THAT(
      FloorFaults(House(
          {{"src/module/b.cc", Includes("module/a.h") + Includes("ports/a.h") + Foreign("vector")},
           {"src/qt/desk/b.cc", Foreign("QWidget") + Foreign("unistd.h") + Foreign("sys/un.h")},
           {"src/midi/b.cc", Foreign("fluidsynth.h") + Foreign("thread") + Foreign("chrono")},
           {"src/store/b.cc", Foreign("QString") + Foreign("QSqlQuery") + Includes("base/a.h")},
           {"src/programs/host/b.cc", Includes("qt/kit/a.h") + Foreign("QWidget")}})),
      IsEmpty());
}

TEST(Floors, KeepThreadsClocksStreamsAndLibrariesOutOfTheCore) {
  for (const char* header :
       {"thread", "mutex", "chrono", "ctime", "iostream", "fstream", "filesystem", "unistd.h",
        "QString", "fluidsynth.h", "rtmidi/RtMidi.h", "pugixml.hpp", "sqlite3.h"}) {
    EXPECT_THAT(FloorFaults(House(
                    {{"src/module/program.cc", "\n#  include <" + std::string(header) + ">"}})),
                ElementsAre("src/module/program.cc:2: must not include " + std::string(header)));
  }
  EXPECT_THAT(FloorFaults(House({{"src/base/b.h", Includes("QtCore/qglobal.h")}})), SizeIs(1));
}

TEST(Floors, KeepTheTwoProgramsApart) {
  EXPECT_THAT(FloorFaults(House({{"src/programs/module/b.cc", Includes("programs/host/a.h")}})),
              ElementsAre("src/programs/module/b.cc:1: must not include programs/host/a.h"));
  EXPECT_THAT(FloorFaults(House({{"src/programs/host/b.cc", Includes("programs/module/a.h")}})),
              ElementsAre("src/programs/host/b.cc:1: must not include programs/module/a.h"));
}

TEST(Floors, GiveEachLibraryToItsOwnFolderAlone) {
  for (const char* header : {"QWidget", "fluidsynth.h", "thread", "signal.h"}) {
    EXPECT_THAT(FloorFaults(House({{"src/store/b.cc", Foreign(header)}})),
                ElementsAre("src/store/b.cc:1: must not include " + std::string(header)));
  }
  EXPECT_THAT(FloorFaults(House({{"src/midi/b.cc", Foreign("QString")}})), SizeIs(1));
  EXPECT_THAT(FloorFaults(House({{"src/qt/kit/b.cc", Foreign("unistd.h")}})), SizeIs(1));
  EXPECT_THAT(FloorFaults(House({{"src/qt/desk/b.cc", Foreign("QSqlQuery")}})), SizeIs(1));
}

TEST(Floors, RefuseWhatStandsAbove) {
  EXPECT_THAT(FloorFaults(House({{"src/ports/b.h", "\n" + Includes("module/a.h")}})),
              ElementsAre("src/ports/b.h:2: must not include module/a.h"));
  EXPECT_THAT(FloorFaults(House({{"src/base/b.h", Foreign("qt/desk/a.h")}})), SizeIs(1));
  EXPECT_THAT(FloorFaults(House({{"src/qt/desk/b.h", Includes("qt/kit/a.h")}})), SizeIs(1));
}

TEST(Floors, KeepTheFoldersOfTheWorldsSideApart) {
  EXPECT_THAT(FloorFaults(House({{"src/store/b.cc", Includes("midi/a.h")}})), SizeIs(1));
  EXPECT_THAT(FloorFaults(House({{"src/qt/kit/b.cc", Includes("midi/a.h")}})), SizeIs(1));
}

TEST(Floors, KnowEveryFolder) {
  EXPECT_THAT(FloorFaults(House({{"src/attic/a.h", ""}})),
              ElementsAre("src/attic/a.h:1: stands in a folder without a row"));
  EXPECT_THAT(FloorFaults(House({{"src/main.cc", ""}})), SizeIs(1));
  EXPECT_THAT(FloorFaults(House({{"src/base/b.h", Includes("attic/a.h")}})), SizeIs(1));
}

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

TEST(Circles, AreFoundOverSeveralFolders) {
  EXPECT_THAT(CircleFaults({{"src/results/a.h", Includes("settings/a.h")},
                            {"src/settings/a.h", ""},
                            {"src/settings/b.h", Includes("sound/a.h")},
                            {"src/sound/a.h", Includes("results/b.h")},
                            {"src/results/b.h", ""}}),
              ElementsAre(HasSubstr("results -> settings -> sound -> results")));
}

}  // namespace
}  // namespace vmod17::lint

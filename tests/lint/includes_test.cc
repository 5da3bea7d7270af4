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

std::string Includes(const std::string& header) { return "#include \"" + header + "\"\n"; }

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

}  // namespace
}  // namespace vmod17::lint

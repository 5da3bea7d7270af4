// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "lint/words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace vmod17::lint {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

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

TEST(Sleeps, AreRefusedInTests) {
  for (const std::string& wait :
       {Whole("std::this_thread::sl", "eep_for(1s);"), Whole("QTest::q", "Wait(50);"),
        Whole("us", "leep(10);"), Whole("QThread::ms", "leep(1);"), Whole("sl", "eep(1);")}) {
    EXPECT_THAT(SleepFaults({{"tests/a.cc", wait}}), SizeIs(1)) << wait;
    EXPECT_THAT(SleepFaults({{"src/a.cc", wait}}), IsEmpty()) << wait;
  }
  EXPECT_THAT(SleepFaults({{"tests/a.cc", "FallsAsleepFor(3)"}}), IsEmpty());
}

}  // namespace
}  // namespace vmod17::lint

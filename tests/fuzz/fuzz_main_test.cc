// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "fuzz_main.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <exception>

namespace vmod17 {
namespace {

using ::testing::AllOf;
using ::testing::ContainsRegex;
using ::testing::ExitedWithCode;
using ::testing::HasSubstr;
using ::testing::KilledBySignal;
using ::testing::Not;

/// Cases 2 and 3 of seed 7, the second of which does what is given.
int FuzzWith(const std::function<void()>& act) {
  char* arguments[] = {const_cast<char*>("fuzz"), const_cast<char*>("7"), const_cast<char*>("2"),
                       const_cast<char*>("2")};
  int cases = 0;
  FuzzProgram program;
  program.run_case = [&](Dice&) {
    if (++cases == 2) act();
  };
  program.print = [] {};
  return Fuzz(4, arguments, program);
}

TEST(FuzzDeathTest, EndsWellWithoutAFault) {
  EXPECT_EXIT(std::exit(FuzzWith([] {})), ExitedWithCode(EXIT_SUCCESS), "");
}

TEST(FuzzDeathTest, TellsSeedAndCaseOfAFault) {
  EXPECT_EXIT(std::exit(FuzzWith([] { Fault("is wrong"); })), ExitedWithCode(EXIT_FAILURE),
              "seed 7, case 3\nis wrong");
}

TEST(FuzzDeathTest, TellsSeedAndCaseWhereTheProgramEndsItself) {
  for (void (*const end)() : {+[] { std::abort(); }, +[] { std::terminate(); }}) {
    EXPECT_EXIT(std::exit(FuzzWith(end)), ExitedWithCode(EXIT_FAILURE), "seed 7, case 3");
  }
}

TEST(FuzzDeathTest, TellsSeedAndCaseOfOneThatHangsOnce) {
  EXPECT_EXIT(FuzzWith([] { std::raise(SIGALRM); }), KilledBySignal(SIGABRT),
              AllOf(ContainsRegex("a case hangs\nseed 7, case 3"), Not(HasSubstr("ended by"))));
}

}  // namespace
}  // namespace vmod17

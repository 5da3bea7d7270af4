// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <gtest/gtest.h>

#include "support/program_fixture.h"

namespace vmod17 {

/// Answers the task that was played; `wrong_first`: each of its chords wrong at the first click.
inline void AnswerTask(ProgramFixture& p, bool wrong_first) {
  const int count = p.settings().akk_anzahl;
  for (int slot = 1; slot <= count; ++slot) {
    if (wrong_first) {
      EXPECT_TRUE(p.ClickWrong());
    }
    EXPECT_TRUE(p.ClickRight());
  }
}

/// From the settings screen through a whole test to its results, with a student who is wrong at
/// first in every third task.
inline void ToResults(ProgramFixture& p) {
  p.settings_screen().training_Combo.Select(3);
  p.StartRun();
  constexpr int kMostTasks = 500;
  for (int task = 0; task < kMostTasks; ++task) {
    p.PlayTask();
    AnswerTask(p, task % 3 == 2);
    if (p.run().lauf_status == LaufStatus::kTestZuEnde) break;
  }
  ASSERT_TRUE(p.worksheet().zurueck.Press());
  p.loop.Advance(5000);
  ASSERT_NE(p.program.testergebnis(), nullptr);
  ASSERT_TRUE(p.results().visible);
}

/// The same for a test whose time runs out; the results have just come.
inline void RunOutOfTime(ProgramFixture& p) {
  p.settings_screen().training_Combo.Select(3);
  p.StartRun();
  p.loop.Advance(p.run().test.rest_sek * 1000.0);
  ASSERT_NE(p.program.testergebnis(), nullptr);
  p.loop.Advance(300);
  ASSERT_TRUE(p.results().visible);
}

}  // namespace vmod17

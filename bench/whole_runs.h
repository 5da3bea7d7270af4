// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "support/program_fixture.h"

namespace vmod17 {

// Runs over a board of 24 chords, on the fakes and in virtual time.

inline constexpr int kAnswerMs = 800;  ///< from the end of the sound to a click
inline constexpr int kLevelNewTraining = 1;
inline constexpr int kLevelContinued = 2;
inline constexpr int kLevelTest = 3;

/// From the settings screen to the worksheet, with the chords of four and five notes in all groups,
/// of which the board takes 24, and the shortest tempo.
inline void BeginFullBoard(ProgramFixture& p, int level, int akk_anzahl) {
  Einstellung1& s = p.settings_screen();
  s.training_Combo.Choose(level);
  while (s.klanglst[1].count() > 0) s.klanglst[1].Choose(0);
  for (const int place : {1, 1}) s.klanglst[0].Choose(place);
  s.grp_alle[0].Press();
  s.akkzahl_cmb.Choose(akk_anzahl - 1);
  s.temp_Combo.Choose(s.temp_Combo.count() - 1);
  p.StartRun();
}

/// Calls the next task or waits for it, and answers it with a wrong click and a right one for each
/// chord. What the fakes record of it is forgotten.
inline void PlayAndAnswer(ProgramFixture& p) {
  p.PlayTask();
  // The pauses before the sound of a task that comes by itself.
  if (p.settings().abfolge == 1) p.loop.Advance(p.PlayingTime());
  while (p.run().akk_nr <= p.settings().akk_anzahl) {
    p.loop.Advance(kAnswerMs);
    p.ClickWrong();
    p.ClickRight();
  }
  p.output.Forget();
  p.languages.looked_up.clear();
  p.host.calls.clear();
}

/// Looks at both faces of the results and goes back to the settings screen.
inline void LeaveThroughResults(ProgramFixture& p) {
  p.worksheet().zurueck.Press();
  p.loop.Advance(500);
  p.results().cmdOK[0].Press();
  p.results().cmdOK[1].Press();
  p.loop.Advance(100);
}

/// The value below which the share `part` of all lies; sorts them.
inline double Quantile(std::vector<double>& values, double part) {
  std::sort(values.begin(), values.end());
  return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
}

}  // namespace vmod17

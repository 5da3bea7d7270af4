// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "worksheet/run_state.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "worksheet/mode_fixture.h"
#include "worksheet/stage.h"
#include "worksheet/worksheet_fixture.h"

namespace vmod17 {
namespace {

TEST(RunState, BeginsWithNothingAnswered) {
  WorksheetFixture p;
  p.Begin();
  const RunState& run = p.run();
  EXPECT_EQ(run.lauf_status, LaufStatus::kNochKeine);
  EXPECT_EQ(run.letzt_akk.klangtyp, -1);
  EXPECT_EQ(run.letzt_akk.row, -1);
  EXPECT_EQ(run.letzt_ton, 0);
  EXPECT_EQ(run.schalter_zaehler, 0);
  EXPECT_FALSE(run.abbruch);
  EXPECT_EQ(run.clock.antw_frei, 20);
  EXPECT_EQ(run.oktav_ar, (std::array<int, 4>{2, 3, 4, 5}));
  EXPECT_EQ(run.ton_bereich, 16);
  EXPECT_TRUE(std::ranges::all_of(run.aus_ar, [](int flag) { return flag == 0; }));
}

TEST(RunState, KnowsWhereARunStands) {
  WorksheetFixture p;
  p.Begin([](ExerciseSettings& s) { s.akk_anzahl = 2; });
  p.PlayTask();
  EXPECT_EQ(p.run().lauf_status, LaufStatus::kNochKeine);
  p.Wrong();
  EXPECT_EQ(p.run().lauf_status, LaufStatus::kWeitererVersuch);
  p.Right();
  EXPECT_EQ(p.run().lauf_status, LaufStatus::kNaechsterSlot);
  EXPECT_EQ(p.run().schalter_zaehler, 0);
  p.Right();
  EXPECT_EQ(p.run().lauf_status, LaufStatus::kAufgabeFertig);
  EXPECT_EQ(p.run().schalter_zaehler, 1);
  EXPECT_EQ(p.run().akk_nr, 3);
  p.PlayTask();
  EXPECT_EQ(p.run().lauf_status, LaufStatus::kAufgabeFertig);
  EXPECT_EQ(p.run().schalter_zaehler, 1);
  EXPECT_EQ(p.run().akk_nr, 1);
}

TEST(RunState, ClearsTheAnswersWithEachTask) {
  WorksheetFixture p;
  p.Begin([](ExerciseSettings& s) { s.akk_anzahl = 2; });
  p.PlayTask();
  p.Repeat();
  const int first = p.Wrong();
  p.Right();
  p.Wrong();
  p.Right();
  EXPECT_EQ(p.run().answers.fehl_ar[1], 2.0f);
  EXPECT_EQ(p.run().answers.falsch_ar[1][1], first);
  EXPECT_EQ(p.run().answers.whlg_ar[1], 1);
  p.PlayTask();
  for (int slot = 1; slot <= kSlots; ++slot) {
    EXPECT_EQ(p.run().answers.fehl_ar[slot], 0);
    EXPECT_EQ(p.run().answers.whlg_ar[slot], 0);
    for (int klick = 1; klick <= 4; ++klick) {
      EXPECT_EQ(p.run().answers.falsch_ar[slot][klick], 0);
    }
  }
}

TEST(RunState, NeverEarnsPointsOrSurchargesInFreePractice) {
  WorksheetFixture p;
  p.Begin();
  p.PlayTask();
  p.loop.Advance(9000);
  p.Right();
  EXPECT_EQ(p.run().answers.fehl_ar[1], 0);
  EXPECT_EQ(p.run().answers.zeit_ar[1], 0);
}

TEST(RunState, UsesSlotOneOnlyInTasksOfOneChord) {
  WorksheetFixture p;
  p.Begin();
  for (int slot = 1; slot <= kSlots; ++slot) {
    EXPECT_EQ(p.worksheet().nrakk[slot].visible, slot == 1) << slot;
  }
  p.PlayTask();
  p.Right();
  for (int slot = 2; slot <= kSlots; ++slot) {
    EXPECT_EQ(p.run().task.aufg_akk_ar[slot], 0);
    EXPECT_EQ(p.run().task.akk_ton_ar[slot][0], 0);
  }
}

TEST(RunState, StartsAnewWithEachRun) {
  WorksheetFixture p;
  p.Begin();
  p.PlayTask();
  p.Wrong();
  p.Repeat();
  p.worksheet().zurueck.Press();
  p.StartRun();
  const RunState& run = p.run();
  EXPECT_EQ(run.lauf_status, LaufStatus::kNochKeine);
  EXPECT_EQ(run.letzt_akk.klangtyp, -1);
  EXPECT_EQ(run.letzt_ton, 0);
  EXPECT_FALSE(run.abbruch);
  EXPECT_EQ(run.schalter_zaehler, 0);
  EXPECT_TRUE(std::ranges::all_of(run.aus_ar, [](int flag) { return flag == 0; }));
  EXPECT_EQ(p.worksheet().zaehler[0].caption, "0");
  EXPECT_EQ(p.worksheet().zaehler[1].caption, "0");
  EXPECT_EQ(p.worksheet().whlgzaehler.caption, "0");
  EXPECT_EQ(p.worksheet().zurueck.tag, "OK");
}

TEST(RunState, HasNoMaterialInFreePractice) {
  WorksheetFixture p;
  p.Begin();
  EXPECT_EQ(p.run().material.mat_posten, 10);  // as many as the board has chords
  for (int task = 0; task < 5; ++task) {
    p.PlayTask();
    p.Wrong();
    p.Right();
    EXPECT_EQ(p.run().material.mat_anzahl, 0);
    EXPECT_EQ(p.run().material.mat_rest, 0);
    EXPECT_TRUE(p.run().material.mat_ar.empty());
    EXPECT_TRUE(p.run().material.mat_tab.empty());
    EXPECT_FALSE(p.worksheet().matboxanz.visible);
    EXPECT_EQ(p.worksheet().matboxanz.percent, 0);
  }
}

// ---- The phase of a run -------------------------------------------------------------------------

/// A run of two chords a task, in one phase.
struct PhasedRun {
  explicit PhasedRun(Phase phase, int akk_nr = 3) {
    state.phase = phase;
    state.akk_nr = akk_nr;
    settings.akk_anzahl = 2;
  }
  bool Waits() const { return Wartet(state, settings); }

  RunState state;
  ExerciseSettings settings;
};

TEST(Wartet, IsTrueWhereNothingHappensUntilTheStudentActs) {
  for (const Phase phase : {Phase::kAufbau, Phase::kAngebot, Phase::kUngehoert, Phase::kZuEnde}) {
    EXPECT_TRUE(PhasedRun(phase).Waits()) << static_cast<int>(phase);
  }
}

TEST(Wartet, IsFalseWhileATaskIsPlayedOrAnswered) {
  for (const Phase phase : {Phase::kUebergang, Phase::kSpiel, Phase::kAntwort}) {
    for (const int akk_nr : {1, 2, 3}) {
      EXPECT_FALSE(PhasedRun(phase, akk_nr).Waits()) << static_cast<int>(phase);
    }
  }
}

TEST(Wartet, IsFalseWhereTheNextTaskComesByItself) {
  PhasedRun run(Phase::kAngebot);
  run.settings.abfolge = 1;
  EXPECT_FALSE(run.Waits());
}

TEST(Wartet, IsFalseWhileTheTimeOfATestGoesOn) {
  for (const int uebmodus : {kModusTest, kModusPruefung}) {
    PhasedRun run(Phase::kAngebot);
    run.settings.uebmodus = uebmodus;
    EXPECT_FALSE(run.Waits());
    run.state.phase = Phase::kUngehoert;
    EXPECT_TRUE(run.Waits()) << "it stands until the task is heard";
    run.state.phase = Phase::kZuEnde;
    EXPECT_TRUE(run.Waits());
  }
}

TEST(Wartet, AsksInALossAndOnTheWayOutWhetherATaskIsOpen) {
  for (const Phase phase : {Phase::kOhneKlang, Phase::kVerlassen}) {
    for (const int between : {0, 3}) EXPECT_TRUE(PhasedRun(phase, between).Waits()) << between;
    for (const int open : {1, 2}) EXPECT_FALSE(PhasedRun(phase, open).Waits()) << open;
  }
}

TEST(WasLaeuft, IsWhatALossWouldCutOff) {
  struct Case {
    Phase phase;
    std::optional<KlangVerlust> cut_off;
  };
  for (const auto& [phase, cut_off] :
       {Case{Phase::kAufbau, {}}, Case{Phase::kAngebot, KlangVerlust::kAngebot},
        Case{Phase::kUebergang, {}}, Case{Phase::kSpiel, KlangVerlust::kSpiel},
        Case{Phase::kAntwort, KlangVerlust::kAntwort}, Case{Phase::kUngehoert, {}},
        Case{Phase::kOhneKlang, {}}, Case{Phase::kZuEnde, {}}, Case{Phase::kVerlassen, {}}}) {
    EXPECT_EQ(WasLaeuft(PhasedRun(phase).state), cut_off) << static_cast<int>(phase);
  }
}

TEST(WasLaeuft, IsOfAReplayWhatTheLossBeforeItWas) {
  PhasedRun run(Phase::kSpiel);
  run.state.verlust = KlangVerlust::kAntwort;
  EXPECT_EQ(WasLaeuft(run.state), KlangVerlust::kAntwort);
}

TEST(RunState, TellsWhatTheRunIsAt) {
  WorksheetFixture p;
  p.ToSettings();
  p.Select({kTriade}, {});
  p.settings_screen().cmdOK.Press();
  EXPECT_EQ(p.run().phase, Phase::kAufbau);
  p.loop.Advance(200);
  EXPECT_EQ(p.run().phase, Phase::kAngebot);
  EXPECT_TRUE(p.worksheet().Wartet());
  p.loop.meanwhile = [&] { EXPECT_EQ(p.run().phase, Phase::kUebergang); };
  p.worksheet().CmdNextAufg.Press();
  p.loop.meanwhile = nullptr;
  EXPECT_EQ(p.run().phase, Phase::kSpiel);
  p.loop.Advance(p.PlayingTime());
  EXPECT_EQ(p.run().phase, Phase::kAntwort);
  EXPECT_FALSE(p.worksheet().Wartet());
  p.Wrong();
  EXPECT_EQ(p.run().phase, Phase::kAntwort);
  p.worksheet().wieder.Press();
  EXPECT_EQ(p.run().phase, Phase::kSpiel);
  p.loop.Advance(p.PlayingTime());
  p.Right();
  EXPECT_EQ(p.run().phase, Phase::kAngebot);
  p.worksheet().wieder2.Press();
  EXPECT_EQ(p.run().phase, Phase::kSpiel);
  EXPECT_FALSE(p.worksheet().Wartet());
  p.loop.Advance(p.PlayingTime());
  EXPECT_EQ(p.run().phase, Phase::kAngebot);
  const Arbeitsblatt1& sheet = p.worksheet();
  p.loop.meanwhile = [&] { EXPECT_EQ(sheet.run().phase, Phase::kVerlassen); };
  p.worksheet().zurueck.Press();
}

TEST(RunState, TellsThatATrainingOrTestIsOverAlsoAfterItWasHeardAgain) {
  for (const int modus : {kTraining, kTest}) {
    ModeFixture p;
    p.BeginMode(modus);
    modus == kTraining ? p.Solve() : p.FinishTest();
    EXPECT_EQ(p.run().phase, Phase::kZuEnde);
    EXPECT_TRUE(p.ControlRepeat());
    EXPECT_EQ(p.run().phase, Phase::kZuEnde);
    EXPECT_TRUE(p.worksheet().Wartet());
  }
}

class CountersOfARun : public ::testing::Test {
 protected:
  std::vector<float> Counted() const {
    std::vector<float> all;
    for (int i = 0; i <= 24; ++i) {
      for (int j = 0; j <= 3; ++j) {
        float value = -1;
        stage.counters.auswertung_obj.read(i, j, value);
        all.push_back(value);
      }
    }
    return all;
  }
  const std::vector<float> none = std::vector<float>(25 * 4, 0.0f);
  Stage stage;
};

TEST_F(CountersOfARun, AreEmptiedWhenARunBegins) {
  stage.counters.auswertung_obj.Save(0, 0, 3);
  stage.counters.auswertung_obj.Save(24, 3, -8);
  stage.counters.ergebnis_obj.SaveBest(1, 5);
  stage.Begin();
  EXPECT_EQ(Counted(), none);
  int best = -1;
  stage.counters.ergebnis_obj.read(1, best);
  EXPECT_EQ(best, 0);
}

TEST_F(CountersOfARun, GetNothingPostedInFreePractice) {
  stage.settings.akk_anzahl = 2;
  stage.Begin();
  Arbeitsblatt1& sheet = stage.sheet;
  for (int task = 0; task < 40; ++task) {
    stage.PlayTask();
    for (int click = task; sheet.run().akk_nr <= 2; ++click) {
      const int right = sheet.run().task.aufg_akk_ar[sheet.run().akk_nr];
      sheet.jz_kl[click % 3 == 0 ? right : click % 10 + 1].Press();
      ASSERT_EQ(Counted(), none) << "task " << task;
    }
  }
  EXPECT_GT(std::stoi(sheet.zaehler[0].caption), 0);
  EXPECT_GT(std::stoi(sheet.zaehler[1].caption), 0);
}

}  // namespace
}  // namespace vmod17

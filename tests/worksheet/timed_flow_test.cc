// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Tests and exams on the whole program: their tasks, their time, and how they end.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "worksheet/mode_fixture.h"

namespace vmod17 {
namespace {

using ::testing::Each;
using ::testing::IsEmpty;

constexpr int kBothModes[] = {kTest, kPruefung};

WorksheetFixture::Change Chords(int akk_anzahl) {
  return [=](ExerciseSettings& s) { s.akk_anzahl = akk_anzahl; };
}

// ---- The display --------------------------------------------------------------------------------

TEST(TestRun, ShowsItsTasksItsTimeAndItsPicture) {
  for (const int modus : kBothModes) {
    ModeFixture p;
    p.BeginMode(modus);
    const Arbeitsblatt1& w = p.worksheet();
    // Ten triads four times; 120 + 72 + 80 = 272 seconds.
    EXPECT_EQ(p.run().test.test_aufgaben, 40);
    EXPECT_EQ(p.run().test.rest_aufgaben, 40);
    EXPECT_EQ(p.run().test.rest_sek, 280);
    EXPECT_EQ(w.stop_uhr.caption, "[461s] 4 [394s] 40 [480s]");
    EXPECT_EQ(w.lab_aufgaben.caption, "[462s] 40");
    EXPECT_TRUE(w.stop_uhr.visible);
    EXPECT_TRUE(w.lab_aufgaben.visible);
    EXPECT_TRUE(w.PicUetyp[1].visible);
    EXPECT_FALSE(w.PicUetyp[0].visible);
    EXPECT_TRUE(w.cmd_test_aus.Reachable());
    EXPECT_FALSE(w.cmd_test_ein.visible);
    EXPECT_EQ(w.cmd_test_aus.caption, "[552s]");
    EXPECT_EQ(w.cmd_test_ein.caption, "[551s]");
    EXPECT_FALSE(w.matboxanz.visible);
    for (int i = 0; i <= 2; ++i) EXPECT_FALSE(w.ergebnis_anz[i].visible);
    EXPECT_THAT(p.run().material.mat_tab, IsEmpty());
  }
}

TEST(TestRun, FollowsByItselfWhateverWasChosen) {
  for (const int modus : kBothModes) {
    ModeFixture p;
    p.BeginMode(modus, [](ExerciseSettings& s) { s.abfolge = 0; });
    if (modus == kPruefung) continue;  // an exam has set its own, and a test file may change it
    EXPECT_EQ(p.settings().abfolge, 1);
    EXPECT_FALSE(p.worksheet().CmdNextAufg.visible);
    EXPECT_TRUE(p.worksheet().LbNextAufg.visible);
    p.loop.Advance(1800);
    EXPECT_EQ(p.Lessons(), 1);
  }
}

TEST(TestRun, HidesAndShowsItsStatusWithoutStoppingTheTime) {
  ModeFixture p;
  p.BeginMode(kTest);
  Arbeitsblatt1& w = p.worksheet();
  EXPECT_TRUE(w.cmd_test_aus.Press());
  EXPECT_FALSE(w.stop_uhr.visible);
  EXPECT_FALSE(w.lab_aufgaben.visible);
  EXPECT_FALSE(w.cmd_test_aus.visible);
  EXPECT_TRUE(w.cmd_test_ein.Reachable());
  p.loop.Advance(10000);
  EXPECT_EQ(p.run().test.rest_sek, 270);
  EXPECT_FALSE(w.stop_uhr.visible);
  EXPECT_TRUE(w.cmd_test_ein.Press());
  EXPECT_TRUE(w.stop_uhr.visible);
  EXPECT_TRUE(w.lab_aufgaben.visible);
  EXPECT_TRUE(w.cmd_test_aus.Reachable());
  EXPECT_FALSE(w.cmd_test_ein.visible);
  EXPECT_EQ(w.stop_uhr.caption, "[461s] 4 [394s] 30 [480s]");
}

TEST(TestRun, SeedsAnExamFromItsNumberIfItHasOne) {
  for (const int seed : {0, 9}) {
    ModeFixture p;
    p.BeginMode(kPruefung, [&](ExerciseSettings& s) { s.pruef_seed = seed; });
    EXPECT_EQ(p.random.restarts, seed == 0 ? std::vector<int>() : std::vector<int>{-9});
    EXPECT_EQ(p.random.seeds.size(), seed == 0 ? 1u : 0u);
  }
  ModeFixture p;
  p.BeginMode(kTest, [](ExerciseSettings& s) { s.pruef_seed = 9; });
  EXPECT_THAT(p.random.restarts, IsEmpty());
}

// ---- Tasks --------------------------------------------------------------------------------------

TEST(TestRun, CountsItsTasksDown) {
  for (const int modus : kBothModes) {
    ModeFixture p;
    p.BeginMode(modus, Chords(2));
    EXPECT_EQ(p.worksheet().lab_aufgaben.caption, "[462s] 20");
    p.PlayTask();
    p.Right();
    EXPECT_EQ(p.worksheet().lab_aufgaben.caption, "[462s] 20");
    p.Right();
    EXPECT_EQ(p.worksheet().lab_aufgaben.caption, "[462s]  19");
    EXPECT_EQ(p.run().test.rest_aufgaben, 19);
    p.PlayTask();
    p.LoseSlot();
    p.LoseSlot();
    EXPECT_EQ(p.worksheet().lab_aufgaben.caption, "[462s]  18");
  }
}

TEST(TestRun, AsksEachHalfOfItsTasksWithoutReplacement) {
  for (const int modus : kBothModes) {
    for (const int akk_anzahl : {1, 3}) {
      ModeFixture p;
      p.BeginMode(modus, Chords(akk_anzahl));
      const int half = p.run().test.test_aufgaben / 2;
      for (int part = 1; part <= 2; ++part) {
        std::vector<int> bag(p.run().material.mat_ar.begin() + 1, p.run().material.mat_ar.end());
        EXPECT_THAT(bag, Each(::testing::Ne(0)));
        EXPECT_EQ(bag.size(), static_cast<std::size_t>(half * akk_anzahl));
        std::vector<int> asked;
        for (int task = 1; task <= half; ++task) {
          p.PlayTask();
          for (int slot = 1; slot <= akk_anzahl; ++slot) asked.push_back(p.Asked(slot));
          if (task == half) {
            EXPECT_THAT(p.run().material.mat_ar, Each(0));
          }
          p.FinishTask();
        }
        std::ranges::sort(bag);
        std::ranges::sort(asked);
        EXPECT_EQ(asked, bag);
        for (int e = 1; e <= 10; ++e) EXPECT_GE(std::ranges::count(asked, e), 1) << e;
      }
      EXPECT_EQ(p.run().lauf_status, LaufStatus::kTestZuEnde);
    }
  }
}

// ---- The end by tasks
// -----------------------------------------------------------------------------

TEST(TestRun, EndsWithItsLastTask) {
  for (const int modus : kBothModes) {
    ModeFixture p;
    p.BeginMode(modus, Chords(4));
    p.FinishTest();
    const Arbeitsblatt1& w = p.worksheet();
    EXPECT_EQ(p.Lessons(), p.run().test.test_aufgaben);
    EXPECT_EQ(w.lab_aufgaben.caption, "[462s]  0");
    EXPECT_EQ(w.zurueck.back_color, Rgb(255, 255, 0));
    EXPECT_EQ(w.zurueck.fore_color, Rgb(255, 0, 0));
    EXPECT_EQ(w.zurueck.caption, "[625s]");
    EXPECT_FALSE(w.Uhrzeit.enabled);
    EXPECT_FALSE(w.WahlAutomat.enabled);
    EXPECT_FALSE(w.CmdNextAufg.Reachable());
    EXPECT_FALSE(w.wieder.visible);
    EXPECT_TRUE(w.wieder2.Reachable());
    EXPECT_THAT(p.OpenChoices(), IsEmpty());
    EXPECT_EQ(p.host.Sent("STORE"), 0);
  }
}

TEST(TestRun, WaitsWithoutLimitOnceItIsFinished) {
  ModeFixture p;
  p.BeginMode(kTest, Chords(4));
  p.FinishTest();
  const int rest = p.run().test.rest_sek;
  EXPECT_GT(rest, 0);
  p.loop.Advance(24 * 3600 * 1000.0);
  EXPECT_EQ(p.run().test.rest_sek, rest);
  EXPECT_EQ(p.program.testergebnis(), nullptr);
  EXPECT_TRUE(p.worksheet().zurueck.Reachable());
  EXPECT_TRUE(p.ControlRepeat());
  EXPECT_TRUE(p.worksheet().wieder2.Reachable());
  EXPECT_FALSE(p.worksheet().WahlAutomat.enabled);
}

TEST(TestRun, SavesItsRecordAfterTheResultsWhenItIsFinished) {
  for (const int modus : kBothModes) {
    ModeFixture p;
    p.BeginMode(modus, Chords(4));
    p.FinishTest();
    const Arbeitsblatt1& w = p.worksheet();
    EXPECT_TRUE(p.worksheet().zurueck.Press());
    EXPECT_EQ(w.zurueck.back_color, Rgb(255, 0, 255));
    EXPECT_EQ(w.zurueck.fore_color, Rgb(0, 0, 0));
    EXPECT_EQ(w.zurueck.caption, "[640s]");
    EXPECT_FALSE(w.wieder2.enabled);
    p.loop.Advance(300);
    EXPECT_TRUE(p.results().visible);
    EXPECT_EQ(p.documents.Latest().saves, 0);
    p.PassResults();
    EXPECT_EQ(p.documents.Latest().saves, 1);
    EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
    EXPECT_TRUE(p.settings_screen().visible);
    EXPECT_EQ(p.loop.timers(), 0);
    EXPECT_THAT(p.messages.questions, IsEmpty());
  }
}

TEST(TestRun, ShowsNoResultsWhenItIsLeftBefore) {
  for (const int modus : kBothModes) {
    ModeFixture p;
    p.BeginMode(modus);
    p.PlayTask();
    p.Right();
    EXPECT_TRUE(p.worksheet().zurueck.Press());
    EXPECT_EQ(p.program.testergebnis(), nullptr);
    EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
    EXPECT_EQ(p.documents.Latest().saves, 1);
    EXPECT_THAT(p.messages.questions, IsEmpty());
    EXPECT_EQ(p.host.Sent("STORE"), 0);
  }
}

TEST(TestRun, AsksBeforeItIsEndedByAKeyOrByTheWindow) {
  for (const int modus : kBothModes) {
    ModeFixture p;
    p.BeginMode(modus);
    p.PlayTask();
    p.messages.answer = MessageBox::Answer::kNo;
    p.worksheet().Form_Close();
    ASSERT_EQ(p.messages.questions.size(), 1u);
    EXPECT_EQ(p.messages.questions[0].title, "[348s]");
    EXPECT_EQ(p.messages.preselected, MessageBox::Answer::kNo);
    ASSERT_NE(p.program.arbeitsblatt1(), nullptr);
    EXPECT_NE(p.Right(), 0) << "the test goes on";
    EXPECT_EQ(p.documents.Latest().saves, 0);

    p.messages.answer = MessageBox::Answer::kYes;
    p.worksheet().Form_Close();
    EXPECT_EQ(p.messages.questions.size(), 2u);
    EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
    EXPECT_EQ(p.program.testergebnis(), nullptr);
    EXPECT_EQ(p.documents.Latest().saves, 1);
  }
}

TEST(TestRun, AsksOnceAtATime) {
  ModeFixture p;
  p.BeginMode(kPruefung);
  p.messages.while_asked = [&] { p.worksheet().Form_Close(); };
  p.worksheet().Form_Close();
  EXPECT_EQ(p.messages.questions.size(), 1u);
  EXPECT_NE(p.program.arbeitsblatt1(), nullptr);
}

TEST(TestRun, GoesToItsResultsWithoutAQuestionOnceItIsFinished) {
  ModeFixture p;
  p.BeginMode(kTest, Chords(4));
  p.FinishTest();
  p.worksheet().Form_Close();
  EXPECT_THAT(p.messages.questions, IsEmpty());
  p.PassResults();
}

TEST(TestRun, CanBeCutOffFromOutsideWhileItAsks) {
  ModeFixture p;
  p.BeginMode(kPruefung);
  p.PlayTask();
  p.messages.answer = MessageBox::Answer::kYes;
  p.messages.while_asked = [&] { p.program.Leave(); };
  p.worksheet().Form_Close();
  EXPECT_TRUE(p.ended);
  EXPECT_EQ(p.documents.Latest().saves, 1);
  EXPECT_TRUE(p.view.forms.empty());
}

// ---- The time -----------------------------------------------------------------------------------

/// A test, and the moment at which its time is up.
class TimedTest : public ModeFixture {
 public:
  explicit TimedTest(int modus) {
    BeginMode(modus, Chords(1));
    end_ = loop.Elapsed() + run().test.rest_sek * 1000.0;
  }

  /// Waits until `ms` before the end; a negative value is after it.
  void UntilBeforeEnd(double ms) { loop.Advance(end_ - ms - loop.Elapsed()); }
  /// Answers the first task, so that the next one begins `ms` before the end.
  void NextTaskBeforeEnd(double ms) {
    PlayTask();
    UntilBeforeEnd(ms + 1800);
    EXPECT_NE(Right(), 0);
  }
  double end() const { return end_; }

 private:
  double end_;
};

TEST(TestTime, CountsDownByTenSecondsToExactlyNothing) {
  for (const int modus : kBothModes) {
    TimedTest p(modus);
    p.PlayTask();
    for (int rest = 270; rest > 0; rest -= 10) {
      p.UntilBeforeEnd(rest * 1000.0 + 1);
      EXPECT_EQ(p.run().test.rest_sek, rest + 10);
      p.UntilBeforeEnd(rest * 1000.0);
      EXPECT_EQ(p.run().test.rest_sek, rest);
      EXPECT_EQ(p.worksheet().stop_uhr.caption, "[461s] " + std::to_string(rest / 60) + " [394s] " +
                                                    std::to_string(rest % 60) + " [480s]");
    }
    EXPECT_EQ(p.program.testergebnis(), nullptr);
    const Arbeitsblatt1& w = p.worksheet();
    p.UntilBeforeEnd(0);
    EXPECT_EQ(w.run().test.rest_sek, 0);
    EXPECT_EQ(w.stop_uhr.caption, "[461s] 0 [394s] 0 [480s]");
    EXPECT_NE(p.program.testergebnis(), nullptr);
  }
}

TEST(TestTime, DoesNotRunInTheOtherModes) {
  for (const int modus : {kFrei, kTraining, kWeiter}) {
    ModeFixture p;
    BeginAnyMode(p, modus);
    p.loop.Advance(24 * 3600 * 1000.0);
    EXPECT_NE(p.program.arbeitsblatt1(), nullptr);
    EXPECT_EQ(p.run().test.rest_sek, 0);
    EXPECT_EQ(p.worksheet().stop_uhr.caption, "");
  }
}

/// The time is up: the record is saved and the results are on their way; then through them.
void ExpectTimeUp(TimedTest& p, const std::string& where) {
  SCOPED_TRACE(where);
  p.loop.meanwhile = nullptr;
  ASSERT_NE(p.program.arbeitsblatt1(), nullptr);
  const Arbeitsblatt1& w = p.worksheet();
  ASSERT_NE(p.program.testergebnis(), nullptr);
  EXPECT_EQ(p.documents.Latest().saves, 1) << "before the results";
  EXPECT_FALSE(w.Uhrzeit.enabled);
  EXPECT_FALSE(w.WahlAutomat.enabled);
  EXPECT_FALSE(w.wieder.enabled);
  EXPECT_FALSE(w.wieder2.enabled);
  EXPECT_FALSE(w.zurueck.enabled);
  EXPECT_THAT(p.OpenChoices(), IsEmpty());
  EXPECT_TRUE(w.run().abbruch);
  EXPECT_FALSE(p.output.IsRunning());
  EXPECT_EQ(p.record().Find("properties")->All("timestamp").size(), 1u);
  const int starts = p.output.starts;
  const int lessons = p.Lessons();

  p.PassResults();
  EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
  EXPECT_TRUE(p.settings_screen().visible);
  p.loop.Advance(60000);
  EXPECT_EQ(p.documents.Latest().saves, 1);
  EXPECT_EQ(p.output.starts, starts);
  EXPECT_EQ(p.Lessons(), lessons);
  EXPECT_EQ(p.loop.timers(), 0);
  EXPECT_THAT(p.messages.questions, IsEmpty());
  EXPECT_EQ(p.host.Sent("STORE"), 0);

  p.random.Always(-1);
  p.messages.warnings.clear();
  p.StartRun();
  p.PlayTask();
  EXPECT_NE(p.Right(), 0) << "a new run works";
  EXPECT_EQ(p.documents.documents.size(), 2u);
  EXPECT_THAT(p.messages.warnings, IsEmpty());
}

struct State {
  const char* name;
  std::function<void(TimedTest&)> reach;
};

const std::vector<State> kStates = {
    {"waiting for the next task", [](TimedTest& p) { p.NextTaskBeforeEnd(-1000); }},
    {"playing", [](TimedTest& p) { p.NextTaskBeforeEnd(1000); }},
    {"answering", [](TimedTest& p) { p.PlayTask(); }},
    {"answering after a wrong click",
     [](TimedTest& p) {
       p.PlayTask();
       p.WorksheetFixture::Wrong();
     }},
    {"repeating",
     [](TimedTest& p) {
       p.PlayTask();
       p.UntilBeforeEnd(1000);
       EXPECT_TRUE(p.worksheet().wieder.Press());
     }},
    {"checking",
     [](TimedTest& p) {
       p.NextTaskBeforeEnd(500);
       EXPECT_TRUE(p.worksheet().wieder2.Press());
     }},
};

TEST(TestTime, MayBeUpInEveryState) {
  for (const int modus : kBothModes) {
    for (const State& state : kStates) {
      TimedTest p(modus);
      state.reach(p);
      p.UntilBeforeEnd(1);
      EXPECT_EQ(p.program.testergebnis(), nullptr) << state.name;
      p.UntilBeforeEnd(0);
      ExpectTimeUp(p, state.name);
    }
  }
}

TEST(TestTime, MayBeUpBeforeTheFirstTask) {
  TimedTest p(kTest);
  p.worksheet().WahlAutomat.Disable();
  p.UntilBeforeEnd(0);
  EXPECT_EQ(p.Lessons(), 0);
  ExpectTimeUp(p, "waiting for the first task");
}

TEST(TestTime, MayBeUpInThePausesOfAPlaying) {
  // Silence for 50 ms, and 100 ms before the start.
  for (const double ms : {1.0, 25.0, 49.0, 51.0, 75.0, 100.0, 149.0}) {
    TimedTest p(kTest);
    p.NextTaskBeforeEnd(ms);
    const int starts = p.output.starts;
    p.UntilBeforeEnd(-500);
    EXPECT_EQ(p.output.starts, starts) << "nothing begins to sound";
    ExpectTimeUp(p, "pause, " + std::to_string(ms));
  }
}

TEST(TestTime, MayBeUpInThePausesOfARepeat) {
  // The same, and 50 ms more before it.
  for (const double ms : {1.0, 30.0, 49.0, 51.0, 120.0, 199.0}) {
    for (const bool control : {false, true}) {
      TimedTest p(kTest);
      p.PlayTask();
      p.UntilBeforeEnd(ms + 5);
      if (control) {
        EXPECT_NE(p.Right(), 0);
      }
      p.UntilBeforeEnd(ms);
      const int starts = p.output.starts;
      EXPECT_TRUE(control ? p.worksheet().wieder2.Press() : p.worksheet().wieder.Press());
      EXPECT_EQ(p.output.starts, starts);
      ExpectTimeUp(p, (control ? "control repeat, " : "repeat, ") + std::to_string(ms));
    }
  }
}

TEST(TestTime, IsNotUpAnyMoreOnceAnErrorIsTold) {
  TimedTest p(kTest);
  p.NextTaskBeforeEnd(100);
  p.random.Always(0);  // no root can be drawn
  int shown = 0;
  p.messages.meanwhile = [&] {
    ++shown;
    while (p.loop.Elapsed() < p.end() + 50) p.loop.WaitForEvent(20);
    EXPECT_EQ(p.documents.Latest().saves, 0);
    EXPECT_EQ(p.program.testergebnis(), nullptr);
  };
  p.UntilBeforeEnd(-60);
  EXPECT_EQ(shown, 1);
  ASSERT_EQ(p.host.errors.size(), 1u);
  EXPECT_EQ(p.host.errors[0].place, "mat_wahl.arbeitsblatt1.vmod17");
  EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
  EXPECT_EQ(p.program.testergebnis(), nullptr);
  EXPECT_EQ(p.documents.Latest().saves, 1);
  EXPECT_TRUE(p.settings_screen().visible);
  EXPECT_EQ(p.loop.timers(), 0);
}

TEST(TestTime, ClosedByTheWindowWhileTheResultsAreComingSavesNothingTwice) {
  TimedTest p(kTest);
  p.PlayTask();
  p.UntilBeforeEnd(0);
  p.worksheet().Form_Close();
  EXPECT_NE(p.program.arbeitsblatt1(), nullptr);
  ExpectTimeUp(p, "closed");
}

TEST(TestTime, GoesOnWhileAQuestionStandsAndThenTheAnswerMeansNothing) {
  for (const auto answer : {MessageBox::Answer::kYes, MessageBox::Answer::kNo}) {
    TimedTest p(kPruefung);
    p.PlayTask();
    p.UntilBeforeEnd(500);
    p.messages.answer = answer;
    p.messages.while_asked = [&] {
      while (p.loop.Elapsed() < p.end() - 150) p.loop.WaitForEvent(100);
      EXPECT_EQ(p.messages.withdrawn, 0);
      while (p.loop.Elapsed() < p.end() + 400) p.loop.WaitForEvent(100);
      EXPECT_EQ(p.messages.withdrawn, 1);
      EXPECT_TRUE(p.results().visible);
    };
    p.worksheet().Form_Close();
    ASSERT_EQ(p.messages.questions.size(), 1u);
    p.messages.questions.clear();
    ExpectTimeUp(p, "a question stands");
  }
}

TEST(TestRun, WithdrawsTheQuestionWhenAnErrorEndsItMeanwhile) {
  TimedTest p(kTest);
  p.PlayTask();
  p.FinishTask();
  p.messages.answer = MessageBox::Answer::kYes;
  p.messages.while_asked = [&] {
    p.random.Always(0);  // no root can be drawn for the task that follows by itself
    const double end = p.loop.Elapsed() + 5000;
    while (p.program.arbeitsblatt1() != nullptr && p.loop.Elapsed() < end) {
      p.loop.WaitForEvent(100);
    }
    EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
    EXPECT_EQ(p.messages.withdrawn, 1);
  };
  p.worksheet().Form_Close();
  EXPECT_EQ(p.messages.questions.size(), 1u);
  EXPECT_EQ(p.messages.warnings.size(), 1u);
  EXPECT_TRUE(p.settings_screen().visible);
}

TEST(TestTime, WithdrawsNoQuestionWhereNoneStands) {
  TimedTest p(kTest);
  p.UntilBeforeEnd(0);
  EXPECT_EQ(p.messages.withdrawn, 0);
}

TEST(TestTime, IsSaidToBeUpByTheResultsThatComeByThemselves) {
  for (const int modus : kBothModes) {
    TimedTest p(modus);
    p.PlayTask();
    p.UntilBeforeEnd(0);
    p.loop.Advance(300);
    EXPECT_TRUE(p.results().zeit_um.visible);
    EXPECT_EQ(p.results().zeit_um.caption, "[9728s]");
    p.PassResults();
  }
}

TEST(TestTime, LeavesAKeyForATileWithoutEffectOnTheResults) {
  TimedTest p(kTest);
  p.PlayTask();
  p.UntilBeforeEnd(0);
  p.loop.Advance(300);
  Testergebnis& results = p.results();
  ASSERT_TRUE(results.visible);
  p.loop.Advance(999);
  for (Button* button : {&results.cmdOK[0], &results.cmdPrint[0]}) EXPECT_FALSE(button->Press());
  EXPECT_TRUE(results.erg_cont.visible);
  p.loop.Advance(1);
  EXPECT_TRUE(results.cmdPrint[0].Reachable());
  EXPECT_TRUE(results.cmdOK[0].Press());
  EXPECT_TRUE(results.einst_cont.visible);
  EXPECT_TRUE(results.cmdOK[1].Press());
  EXPECT_EQ(p.loop.timers(), 0);
}

TEST(TestTime, IsNoMatterOfTheResultsOfAFinishedTest) {
  ModeFixture p;
  p.BeginMode(kTest, Chords(4));
  p.FinishTest();
  EXPECT_TRUE(p.worksheet().zurueck.Press());
  p.loop.Advance(300);
  EXPECT_FALSE(p.results().zeit_um.visible);
  EXPECT_TRUE(p.results().cmdOK[0].Press());
}

TEST(TestTime, LetsTheProgramBeLeftFromTheResults) {
  for (const bool shown : {false, true}) {
    TimedTest p(kTest);
    p.PlayTask();
    p.UntilBeforeEnd(0);
    if (shown) p.loop.Advance(300);
    p.program.Leave();
    EXPECT_TRUE(p.ended);
    EXPECT_EQ(p.documents.Latest().saves, 1);
    EXPECT_TRUE(p.view.forms.empty());
    EXPECT_EQ(p.loop.timers(), 0);
    EXPECT_EQ(p.host.Sent("MENUE"), 1);
  }
}

TEST(TestTime, CannotEndATestThatIsFinished) {
  TimedTest p(kTest);
  p.FinishTest();
  p.UntilBeforeEnd(-60000);
  EXPECT_EQ(p.program.testergebnis(), nullptr);
  EXPECT_EQ(p.documents.Latest().saves, 0);
  EXPECT_TRUE(p.worksheet().zurueck.Press());
  p.PassResults();
  EXPECT_EQ(p.documents.Latest().saves, 1);
}

}  // namespace
}  // namespace vmod17

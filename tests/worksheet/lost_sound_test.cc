// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Runs that lose their sound and get it back.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "worksheet/mode_fixture.h"

namespace vmod17 {
namespace {

constexpr double kLook = 2000;       // ms between two looks for the sound
constexpr double kLongTime = 600e3;  // ms

class LostRun : public ModeFixture {
 public:
  void Lose() {
    output.LoseSound();
    loop.Advance(1);
  }
  /// Lets the sound return, and whatever waits for it begin.
  void Return() {
    output.ReturnSound();
    loop.Advance(kLook + kPauses);
  }
  /// The playing that was cut off, to its end.
  void ReturnAndPlay() {
    Return();
    loop.Advance(PlayingTime());
  }
  /// From now on each playing comes to a standstill, unnoticed. The timer that sees to it.
  int StallEach() {
    return loop.StartTimer(100, EventLoop::Repeat::kAlways, [this] {
      if (worksheet().spieltimer.enabled) output.Stall();
    });
  }
  bool Stands() {
    Arbeitsblatt1& s = worksheet();
    return OpenChoices().empty() && !s.wieder.Reachable() && !s.wieder2.Reachable() &&
           !s.CmdNextAufg.Reachable() && !s.WahlAutomat.enabled && !s.spieltimer.enabled &&
           !s.listening;
  }
  /// What tells the student, or "" where nothing does.
  std::string Told() { return worksheet().WaitMeldung.visible ? worksheet().WaitMeld.caption : ""; }
  /// The marks of the record, by the lessons that they name.
  std::vector<std::string> Marks() {
    std::vector<std::string> lessons;
    for (const auto& node : record().Find("properties")->children) {
      if (node->name == "sound_lost") lessons.push_back(node->attributes.at(0)->text);
    }
    return lessons;
  }
  /// The words with which the next task is offered.
  std::string Offer() {
    return settings().abfolge == 0 ? worksheet().CmdNextAufg.caption
                                   : worksheet().LbNextAufg.caption;
  }
  int Offered() {
    return worksheet().CmdNextAufg.Reachable() || worksheet().WahlAutomat.enabled ? 1 : 0;
  }
};

using Marks = std::vector<std::string>;

class LostSound : public ::testing::TestWithParam<int> {
 protected:
  LostSound() { BeginAnyMode(p_, GetParam()); }
  bool IsTest() const { return GetParam() >= kTest; }
  /// The books of the run, as one text.
  std::string Books() {
    const RunState& run = p_.run();
    std::string books;
    for (const int n : {run.akk_nr, run.count.richtig, run.count.falsch, run.count.wiederholt,
                        run.answers.geloest, run.test.rest_aufgaben, run.material.mat_anzahl,
                        run.clock.anz_whlg, p_.Lessons(), p_.Answers(), p_.random.draws}) {
      books += std::to_string(n) + " ";
    }
    for (const auto& row : run.material.mat_tab) books += std::to_string(row[1]) + ",";
    return books;
  }

  LostRun p_;
};

INSTANTIATE_TEST_SUITE_P(Modes, LostSound,
                         ::testing::Values(kFrei, kTraining, kWeiter, kTest, kPruefung));

TEST_P(LostSound, StopsClockAndTilesInTheMiddleOfAnAnswerAndTellsSo) {
  p_.PlayTask();
  p_.Right();
  p_.loop.Advance(700);
  const std::string books = Books();
  p_.worksheet().TakeSaid();
  p_.Lose();
  EXPECT_TRUE(p_.Stands());
  EXPECT_EQ(p_.Told(), "[9306s]");
  EXPECT_EQ(p_.worksheet().TakeSaid(), std::vector<std::string>{"[9306s]"});
  EXPECT_TRUE(p_.worksheet().zurueck.Reachable());
  const int left = p_.run().test.rest_sek;
  p_.loop.Advance(kLongTime);
  EXPECT_TRUE(p_.Stands());
  EXPECT_EQ(p_.run().test.rest_sek, left);
  EXPECT_EQ(Books(), books);
  EXPECT_TRUE(p_.messages.warnings.empty());
}

TEST_P(LostSound, PlaysTheTaskOnceMoreAndKeepsTheAnswersThatItHas) {
  p_.PlayTask();
  const int first = p_.Asked(1);
  const int second = p_.Asked(2);
  const auto notes = p_.output.PlayedNoteOns();
  p_.Right();
  const int struck = p_.Wrong();
  p_.loop.Advance(700);
  const std::string books = Books();
  p_.Lose();
  p_.loop.Advance(kLongTime);
  p_.output.played.clear();
  p_.Return();
  EXPECT_EQ(p_.Told(), "");
  EXPECT_TRUE(p_.output.IsRunning());
  EXPECT_EQ(p_.output.PlayedNoteOns(), notes);
  EXPECT_TRUE(p_.OpenChoices().empty());
  EXPECT_EQ(p_.Asked(1), first);
  EXPECT_EQ(p_.Asked(2), second);
  EXPECT_EQ(Books(), books);
  p_.loop.Advance(p_.PlayingTime());
  EXPECT_FALSE(p_.OpenChoices().empty());
  EXPECT_FALSE(p_.Choice(struck).Reachable());
  EXPECT_TRUE(p_.worksheet().wieder.Reachable());
  EXPECT_EQ(p_.Right(), second);
  EXPECT_EQ(p_.run().count.richtig, GetParam() == kWeiter ? 4 : 2);
}

TEST_P(LostSound, StartsTheClockOfAnAnswerAtTheEndOfTheNewPlaying) {
  p_.PlayTask();
  p_.loop.Advance(5000);
  p_.Lose();
  p_.loop.Advance(30000);
  p_.Return();
  while (p_.OpenChoices().empty()) p_.loop.Advance(1);
  p_.loop.Advance(1000);
  p_.Right();
  EXPECT_NE(p_.Answer(1).find("[Dauer Antwort: 10]"), std::string::npos) << p_.Answer(1);
}

TEST_P(LostSound, CutsOffATaskThatSounds) {
  p_.PlayTask();
  p_.FinishTask();
  if (p_.settings().abfolge == 0) {
    p_.worksheet().CmdNextAufg.Press();
  } else {
    p_.loop.Advance(p_.worksheet().WahlAutomat.interval);
  }
  ASSERT_TRUE(p_.worksheet().spieltimer.enabled);
  p_.loop.Advance(900);
  const std::string books = Books();
  p_.Lose();
  EXPECT_EQ(p_.Told(), "[9306s]");
  p_.loop.Advance(kLongTime);
  EXPECT_TRUE(p_.Stands());
  EXPECT_EQ(Books(), books);
  p_.ReturnAndPlay();
  EXPECT_EQ(Books(), books);
  EXPECT_FALSE(p_.OpenChoices().empty());
  EXPECT_EQ(p_.Right(), p_.Asked(1));
}

TEST_P(LostSound, TakesBackTheOfferOfTheNextTaskUntilThereIsSound) {
  p_.PlayTask();
  p_.FinishTask();
  ASSERT_EQ(p_.Offered(), 1);
  const std::string books = Books();
  p_.Lose();
  EXPECT_TRUE(p_.Stands());
  EXPECT_EQ(p_.Told(), "[9306s]");
  const int left = p_.run().test.rest_sek;
  p_.loop.Advance(kLongTime);
  EXPECT_EQ(p_.run().test.rest_sek, left);
  EXPECT_EQ(Books(), books);
  p_.Return();
  EXPECT_EQ(p_.Told(), "");
  EXPECT_EQ(p_.worksheet().TakeSaid().back(), p_.Offer());
  EXPECT_FALSE(p_.output.IsRunning()) << "nothing was cut off";
  EXPECT_EQ(p_.Offered(), 1);
  EXPECT_TRUE(p_.worksheet().wieder2.Reachable());
}

TEST_P(LostSound, PlaysARepeatOnceMoreAndCountsItOnce) {
  p_.PlayTask();
  p_.worksheet().wieder.Press();
  p_.loop.Advance(900);
  const std::string books = Books();
  p_.Lose();
  p_.ReturnAndPlay();
  EXPECT_EQ(Books(), books);
  p_.Right();
  EXPECT_NE(p_.Answer(1).find("[Anz Whlg: 1]"), std::string::npos) << p_.Answer(1);
}

TEST_P(LostSound, CountsARepeatForNothingThatItMakesImpossible) {
  p_.PlayTask();
  const std::string books = Books();
  p_.loop.StartTimer(20, EventLoop::Repeat::kOnce, [&] { p_.output.LoseSound(); });
  p_.worksheet().wieder.Press();
  EXPECT_EQ(Books(), books);
  EXPECT_TRUE(p_.Stands());
  EXPECT_EQ(p_.Told(), "[9306s]");
  EXPECT_TRUE(p_.messages.warnings.empty()) << "it is told once";
  p_.ReturnAndPlay();
  EXPECT_EQ(Books(), books);
  EXPECT_FALSE(p_.OpenChoices().empty());
}

TEST_P(LostSound, PlaysAControlRepeatOnceMore) {
  p_.PlayTask();
  p_.FinishTask();
  p_.worksheet().wieder2.Press();
  p_.loop.Advance(900);
  p_.Lose();
  EXPECT_TRUE(p_.Stands());
  p_.Return();
  EXPECT_TRUE(p_.output.IsRunning());
  EXPECT_EQ(p_.Offered(), 0);
  p_.loop.Advance(p_.PlayingTime());
  EXPECT_EQ(p_.Offered(), 1);
  EXPECT_TRUE(p_.worksheet().wieder2.Reachable());
}

TEST_P(LostSound, HoldsATaskBackThatWasAboutToBegin) {
  const int before = p_.run().count.richtig;
  // In the pause before the sound, when neither the offer nor the playing stands.
  if (p_.settings().abfolge == 0) {
    p_.loop.StartTimer(20, EventLoop::Repeat::kOnce, [&] { p_.output.LoseSound(); });
    p_.worksheet().CmdNextAufg.Press();
  } else {
    p_.loop.StartTimer(p_.worksheet().WahlAutomat.interval + 20, EventLoop::Repeat::kOnce,
                       [&] { p_.output.LoseSound(); });
    p_.loop.Advance(p_.worksheet().WahlAutomat.interval + 1);
  }
  EXPECT_TRUE(p_.Stands());
  EXPECT_EQ(p_.Told(), "[9306s]");
  EXPECT_TRUE(p_.messages.warnings.empty()) << "it is told once";
  p_.ReturnAndPlay();
  EXPECT_EQ(p_.Right(), p_.Asked(1));
  EXPECT_EQ(p_.run().count.richtig, before + 1);
  EXPECT_EQ(p_.Lessons(), 1);
}

TEST_P(LostSound, OpensNoTilesAfterAPlayingThatHasStoppedUnnoticed) {
  if (p_.settings().abfolge == 0) {
    p_.worksheet().CmdNextAufg.Press();
  } else {
    p_.loop.Advance(p_.worksheet().WahlAutomat.interval);
  }
  p_.loop.Advance(500);
  p_.output.Stall();
  const double noticed = p_.worksheet().spieltimer.interval + 700;
  p_.loop.StartTimer(static_cast<int>(noticed), EventLoop::Repeat::kOnce,
                     [&] { p_.output.LoseSound(); });
  bool open = false;
  p_.loop.meanwhile = [&] { open = open || !p_.OpenChoices().empty(); };
  p_.loop.Advance(noticed + 1);
  p_.loop.meanwhile = nullptr;
  EXPECT_FALSE(open);
  EXPECT_TRUE(p_.Stands());
  EXPECT_EQ(p_.Told(), "[9306s]");
  p_.ReturnAndPlay();
  EXPECT_FALSE(p_.OpenChoices().empty());
}

TEST_P(LostSound, IsToldEachTimeAndMarkedInTheRecord) {
  p_.Lose();
  p_.Return();
  p_.PlayTask();
  for (int i = 0; i < 2; ++i) {
    p_.worksheet().TakeSaid();
    p_.Lose();
    EXPECT_EQ(p_.worksheet().TakeSaid().at(0), "[9306s]");
    EXPECT_EQ(p_.Told(), "[9306s]");
    p_.ReturnAndPlay();
    EXPECT_EQ(p_.Told(), "");
  }
  p_.FinishTask();
  EXPECT_EQ(p_.Marks(), (Marks{"0", "1", "1"}));
  EXPECT_EQ(p_.record().Find("properties")->Find("sound_lost")->text, "21.11.2026 14:03:22");
}

TEST_P(LostSound, LeavesTheBooksAsWithoutIt) {
  LostRun whole;
  BeginAnyMode(whole, GetParam());
  for (LostRun* run : {&p_, &whole}) {
    for (int task = 0; task < 3; ++task) {
      run->PlayTask();
      run->Right();
      if (run == &p_) {
        p_.Lose();
        p_.loop.Advance(kLongTime);
        p_.ReturnAndPlay();
      }
      run->FinishTask();
    }
  }
  const RunState& lost = p_.run();
  EXPECT_EQ(lost.count.richtig, whole.run().count.richtig);
  EXPECT_EQ(lost.count.falsch, whole.run().count.falsch);
  EXPECT_EQ(lost.count.wiederholt, whole.run().count.wiederholt);
  EXPECT_EQ(lost.material.mat_tab, whole.run().material.mat_tab);
  EXPECT_EQ(lost.test.rest_aufgaben, whole.run().test.rest_aufgaben);
  EXPECT_EQ(p_.Lessons(), whole.Lessons());
  EXPECT_EQ(whole.Marks(), Marks());
}

TEST_P(LostSound, IsNoMatterForATestsTime) {
  if (!IsTest()) return;
  const int whole = p_.run().test.rest_sek;
  const double begun = p_.loop.Elapsed();
  double lost = 0;
  for (int task = 0; task < 6; ++task) {
    p_.PlayTask();
    p_.loop.Advance(1500);
    const double before = p_.loop.Elapsed();
    p_.Lose();
    p_.loop.Advance(47e3);
    p_.ReturnAndPlay();
    // What is done once more counts once: the playing, and the time of the answer.
    lost += p_.loop.Elapsed() - before + 1500;
    p_.FinishTask();
    const double passed = (p_.loop.Elapsed() - begun - lost) / 1000;
    const double taken = whole - p_.run().test.rest_sek;
    EXPECT_LE(taken, passed + 1);
    EXPECT_GE(taken, passed - 20);
  }
}

struct WayOut {
  const char* name;
  void (*leave)(LostRun& p);
};

class LostSoundLeft : public ::testing::TestWithParam<WayOut> {};

TEST_P(LostSoundLeft, IsLeftAtOnceWithItsRecord) {
  LostRun p;
  p.Begin();
  p.PlayTask();
  p.Lose();
  GetParam().leave(p);
  EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
  EXPECT_EQ(p.documents.Latest().saves, 1);
  EXPECT_EQ(p.Marks(), Marks{"1"});
  p.Return();
  p.loop.Advance(kLongTime);
  EXPECT_FALSE(p.output.IsRunning());
  EXPECT_TRUE(p.host.errors.empty());
  EXPECT_EQ(p.loop.timers(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Ways, LostSoundLeft,
    ::testing::Values(WayOut{"Back", [](LostRun& p) { p.worksheet().zurueck.Press(); }},
                      WayOut{"Cross", [](LostRun& p) { p.worksheet().Form_Close(); }},
                      WayOut{"Signal", [](LostRun& p) { p.program.Leave(); }}),
    [](const auto& way) { return way.param.name; });

TEST(LostSoundAtTheEnd, IsNoMatterOnceTheRunIsOver) {
  LostRun p;
  p.BeginMode(kTest);
  p.FinishTest();
  p.Lose();
  EXPECT_EQ(p.Told(), "");
  EXPECT_TRUE(p.worksheet().wieder2.Reachable());
  EXPECT_TRUE(p.worksheet().zurueck.Press());
  p.PassResults();
  EXPECT_EQ(p.Marks(), Marks());
}

TEST(LostSoundOnTheWay, IsOneLossUntilTheTaskIsHeard) {
  LostRun p;
  p.Begin();
  p.PlayTask();
  p.Lose();
  p.worksheet().TakeSaid();
  // The device lets itself be opened, but takes nothing, as a server may that comes to itself.
  for (int i = 0; i < 3; ++i) {
    p.loop.StartTimer(static_cast<int>(kLook) + 20, EventLoop::Repeat::kOnce,
                      [&] { p.output.LoseSound(); });
    p.Return();
    EXPECT_EQ(p.Told(), "[9306s]");
  }
  EXPECT_TRUE(p.Stands());
  EXPECT_EQ(p.Marks(), Marks{"1"});
  EXPECT_TRUE(p.worksheet().TakeSaid().empty());
  p.ReturnAndPlay();
  EXPECT_EQ(p.Told(), "");
  EXPECT_EQ(p.OpenChoices().size(), 10u);
}

TEST(LostSoundOnTheWay, IsTriedAgainWhereNothingIsKnownAgainstTheOutput) {
  LostRun p;
  p.Begin();
  p.worksheet().CmdNextAufg.Press();
  p.output.Stall();
  p.loop.Advance(p.PlayingTime());
  EXPECT_EQ(p.Told(), "[9306s]") << "after five seconds of grace";
  EXPECT_TRUE(p.Stands());
  p.loop.Advance(kLook + p.kPauses + p.PlayingTime());
  EXPECT_EQ(p.Told(), "");
  EXPECT_EQ(p.OpenChoices().size(), 10u);
  EXPECT_EQ(p.Marks(), Marks{"1"});
}

TEST(LostSoundOnTheWay, IsNoneWhereATaskIsLate) {
  LostRun p;
  p.Begin();
  p.output.Lag(6000);
  for (int task = 0; task < 3; ++task) {
    p.worksheet().CmdNextAufg.Press();
    p.loop.meanwhile = [&] { EXPECT_FALSE(p.output.IsRunning() && !p.OpenChoices().empty()); };
    p.loop.Advance(p.PlayingTime() + 6000);
    p.loop.meanwhile = nullptr;
    EXPECT_EQ(p.Told(), "");
    EXPECT_EQ(p.OpenChoices().size(), 10u);
    EXPECT_NE(p.Right(), 0);
  }
  EXPECT_EQ(p.run().count.richtig, 3);
  EXPECT_EQ(p.Marks(), Marks());
}

TEST(LostSoundOnTheWay, IsNoneWhereTheProcessWasStopped) {
  LostRun p;
  p.Begin();
  // Eight seconds of it are still to come when the process goes on and `spieltimer` is long due.
  p.output.Lag(38e3);
  p.worksheet().CmdNextAufg.Press();
  p.loop.Advance(500);
  p.loop.Sleep(30e3);
  p.loop.Advance(p.PlayingTime() + 8e3);
  EXPECT_EQ(p.Told(), "");
  EXPECT_EQ(p.OpenChoices().size(), 10u);
  EXPECT_EQ(p.Marks(), Marks());
}

/// A queue that comes to a standstill each time, on an output that says that all is well.
TEST(LostSoundOnTheWay, IsGivenUpAfterTheSecondRound) {
  LostRun p;
  p.Begin();
  const int stalls = p.StallEach();
  p.worksheet().CmdNextAufg.Press();
  p.loop.Advance(kLongTime);
  ASSERT_EQ(p.messages.warnings.size(), 1u);
  EXPECT_EQ(p.messages.warnings[0].text, "[9532s]");
  EXPECT_EQ(p.Told(), "");
  EXPECT_EQ(p.Marks(), Marks{"1"});
  EXPECT_EQ(p.output.starts, 2);
  const int asked = p.Asked(1);
  p.loop.StopTimer(stalls);
  ASSERT_TRUE(p.worksheet().CmdNextAufg.Press());
  p.loop.Advance(p.PlayingTime());
  EXPECT_EQ(p.Right(), asked);
  EXPECT_EQ(p.Lessons(), 1);
}

TEST(LostSoundOnTheWay, IsGivenUpInAControlRepeatAndTheNextTaskOffered) {
  LostRun p;
  p.Begin();
  p.PlayTask();
  p.FinishTask();
  p.StallEach();
  p.worksheet().wieder2.Press();
  p.loop.Advance(kLongTime);
  EXPECT_EQ(p.messages.warnings.size(), 1u);
  EXPECT_EQ(p.Told(), "");
  EXPECT_EQ(p.Offered(), 1);
  EXPECT_TRUE(p.worksheet().wieder2.Reachable());
}

TEST(LostSoundOnTheWay, KeepsTheAnswersOfATaskThatIsGivenUp) {
  LostRun p;
  p.BeginMode(kTest, [](ExerciseSettings& s) { s.akk_anzahl = 2; });
  p.PlayTask();
  p.Right();
  p.Lose();
  const int stalls = p.StallEach();
  p.Return();
  p.loop.Advance(30e3);
  ASSERT_EQ(p.messages.warnings.size(), 1u);
  const int left = p.run().test.rest_sek;
  p.loop.Advance(kLongTime);
  EXPECT_EQ(p.run().test.rest_sek, left);
  p.loop.StopTimer(stalls);
  ASSERT_TRUE(p.worksheet().CmdNextAufg.Press());
  p.loop.Advance(p.PlayingTime());
  EXPECT_EQ(p.Right(), p.Asked(2));
  EXPECT_EQ(p.run().count.richtig, 2);
}

/// A machine without sound: nothing is lost there, and nothing comes back by itself.
class NeverAnySound : public ::testing::TestWithParam<int> {};

TEST_P(NeverAnySound, IsNoLoss) {
  LostRun p;
  p.output.LoseSound();
  BeginAnyMode(p, GetParam());
  p.loop.Advance(1);
  EXPECT_EQ(p.Told(), "");
  p.PlayTask();
  ASSERT_EQ(p.messages.warnings.size(), 1u);
  EXPECT_EQ(p.messages.warnings[0].text, "[9532s]");
  EXPECT_EQ(p.Told(), "");
  p.loop.Advance(kLongTime);
  ASSERT_TRUE(p.worksheet().CmdNextAufg.Press());
  EXPECT_EQ(p.messages.warnings.size(), 2u);
  EXPECT_EQ(p.Marks(), Marks());
  // From its first sound on it can be lost.
  p.output.ReturnSound();
  ASSERT_TRUE(p.worksheet().CmdNextAufg.Press());
  p.loop.Advance(p.PlayingTime());
  EXPECT_FALSE(p.OpenChoices().empty());
  p.Lose();
  EXPECT_EQ(p.Told(), "[9306s]");
  EXPECT_EQ(p.Marks(), Marks{"1"});
}

INSTANTIATE_TEST_SUITE_P(Modes, NeverAnySound,
                         ::testing::Values(kFrei, kTraining, kWeiter, kTest, kPruefung));

/// What a test takes of its time, with all that is still to be given back.
class PaidTime : public ::testing::TestWithParam<int> {
 protected:
  PaidTime() {
    p_.BeginMode(GetParam(), [](ExerciseSettings& s) { s.akk_anzahl = 2; });
    whole_ = p_.run().test.rest_sek;
    begun_ = p_.loop.Elapsed();
  }
  /// Seconds. `Uhrzeit` counts in beats of ten.
  double Paid() {
    constexpr double kBeat = 10e3;
    const double now = p_.loop.Elapsed() - begun_;
    const double broken = now - std::floor(now / kBeat) * kBeat;
    const TestRest& test = p_.run().test;
    return whole_ - test.rest_sek - test.gutschrift + broken / 1000;
  }
  double Playing() { return p_.worksheet().spieltimer.interval / 1000.0; }
  void BeginTask() {
    p_.loop.Advance(p_.worksheet().WahlAutomat.interval);
    ASSERT_TRUE(p_.worksheet().spieltimer.enabled);
  }
  /// Loses the sound in the middle of a playing and has it back after half a minute.
  void LoseWhilePlaying() {
    p_.loop.Advance(600);
    ASSERT_TRUE(p_.worksheet().spieltimer.enabled);
    LoseNow();
  }
  void LoseNow() {
    p_.Lose();
    p_.loop.Advance(30e3);
    p_.output.ReturnSound();
    while (!p_.worksheet().spieltimer.enabled) p_.loop.Advance(1);
  }
  void EndOfPlaying() {
    while (p_.OpenChoices().empty()) p_.loop.Advance(1);
  }

  LostRun p_;
  int whole_ = 0;
  double begun_ = 0;
};

INSTANTIATE_TEST_SUITE_P(Tests, PaidTime, ::testing::Values(kTest, kPruefung));

TEST_P(PaidTime, IsOnePlayingHoweverOftenTheFirstOneIsLost) {
  BeginTask();
  const double before = Paid();
  for (int i = 0; i < 3; ++i) LoseWhilePlaying();
  EndOfPlaying();
  EXPECT_NEAR(Paid() - before, Playing(), 0.1);
}

TEST_P(PaidTime, IsNothingForAReplayHoweverOftenItIsLost) {
  BeginTask();
  EndOfPlaying();
  const double before = Paid();
  p_.loop.Advance(2000);
  LoseNow();
  for (int i = 0; i < 3; ++i) LoseWhilePlaying();
  EndOfPlaying();
  EXPECT_NEAR(Paid() - before, 0, 0.1);
}

TEST_P(PaidTime, IsNothingForAReplayThatComesToAStandstill) {
  BeginTask();
  EndOfPlaying();
  const double before = Paid();
  p_.loop.Advance(2000);
  LoseNow();
  p_.output.Stall();
  while (p_.Told().empty()) p_.loop.Advance(1);
  while (!p_.worksheet().spieltimer.enabled) p_.loop.Advance(1);
  EndOfPlaying();
  EXPECT_NEAR(Paid() - before, 0, 0.1);
}

TEST_P(PaidTime, IsOnePlayingForARepeatHoweverOftenItIsLost) {
  BeginTask();
  EndOfPlaying();
  const double before = Paid();
  p_.worksheet().wieder.Press();
  for (int i = 0; i < 3; ++i) LoseWhilePlaying();
  EndOfPlaying();
  EXPECT_NEAR(Paid() - before, Playing() + p_.kPauses / 1000, 0.1);
}

TEST_P(PaidTime, IsOnePlayingForAControlRepeatHoweverOftenItIsLost) {
  BeginTask();
  EndOfPlaying();
  p_.FinishTask();
  const double before = Paid();
  p_.worksheet().wieder2.Press();
  for (int i = 0; i < 3; ++i) LoseWhilePlaying();
  while (!p_.worksheet().wieder2.Reachable()) p_.loop.Advance(1);
  EXPECT_NEAR(Paid() - before, Playing() + p_.kPauses / 1000, 0.1);
}

TEST_P(PaidTime, IsNothingForALossInThePauseBetweenTwoTasks) {
  BeginTask();
  EndOfPlaying();
  p_.FinishTask();
  const double before = Paid();
  p_.loop.Advance(500);
  for (int i = 0; i < 3; ++i) {
    p_.Lose();
    p_.loop.Advance(30e3);
    p_.output.ReturnSound();
    while (p_.Offered() == 0) p_.loop.Advance(1);
  }
  EXPECT_NEAR(Paid() - before, 0.5, 0.1);
}

TEST_P(PaidTime, IsOnePlayingAndTheAnswersForATaskThatIsLostEverywhere) {
  BeginTask();
  const double before = Paid();
  for (int i = 0; i < 2; ++i) LoseWhilePlaying();
  EndOfPlaying();
  p_.loop.Advance(1000);
  LoseNow();
  for (int i = 0; i < 2; ++i) LoseWhilePlaying();
  EndOfPlaying();
  p_.loop.Advance(1500);
  p_.Right();
  p_.loop.Advance(1000);
  LoseNow();
  LoseWhilePlaying();
  EndOfPlaying();
  p_.loop.Advance(700);
  p_.Right();
  EXPECT_NEAR(Paid() - before, Playing() + 1.5 + 0.7, 0.1);
}

TEST(LostSoundOnTheWay, IsLookedForEveryTwoSeconds) {
  LostRun p;
  p.Begin();
  p.PlayTask();
  p.Lose();
  const int before = p.output.Count(MidiBefehl::kOeffnen);
  p.loop.Advance(20e3);
  EXPECT_NEAR(p.output.Count(MidiBefehl::kOeffnen) - before, 10, 1);
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Runs on an output that takes its time, or cannot be heard at all.

#include <gtest/gtest.h>

#include <functional>

#include "worksheet/mode_fixture.h"

namespace vmod17 {
namespace {

using Device = RecordingMidiOutput::Device;

constexpr double kShown = 300;       // ms of waiting until it is shown
constexpr double kPatience = 20000;  // ms until an output that only loads counts as none

class SlowRun : public ModeFixture {
 public:
  /// From now on the output loads, for `ms` milliseconds.
  void LoadFor(double ms) {
    output.SetDevice(Device::kLoads);
    loop.StartTimer(static_cast<int>(ms), EventLoop::Repeat::kOnce,
                    [this] { output.SetDevice(Device::kReady); });
  }
  bool Waits() {
    return worksheet().pointer == Form::Pointer::kHourglass && worksheet().WaitMeldung.visible;
  }
  /// Calls `action` in each moment in which a handler waits.
  void WhileWaiting(std::function<void()> action) { loop.meanwhile = std::move(action); }
};

// ---- The first task --------------------------------------------------------------------------

TEST(WaitingTask, CountsFromTheMomentInWhichItBeginsToSound) {
  for (const double load : {2400, 5000, 15000}) {
    SlowRun p;
    p.Begin();
    p.LoadFor(load);
    const double before = p.loop.Elapsed();
    ASSERT_TRUE(p.worksheet().CmdNextAufg.Press());
    EXPECT_NEAR(p.loop.Elapsed() - before, load, 1);
    EXPECT_TRUE(p.output.IsRunning());
    EXPECT_EQ(p.output.PlayedNoteOns().size(), 3u) << "a note is lost";
    EXPECT_TRUE(p.worksheet().spieltimer.enabled);
    p.loop.Advance(p.worksheet().spieltimer.interval - 1);
    EXPECT_TRUE(p.OpenChoices().empty());
    EXPECT_FALSE(p.output.IsRunning()) << "the tiles open after the end of the sound";
    p.loop.Advance(2);
    EXPECT_EQ(p.OpenChoices().size(), 10u);
    EXPECT_NEAR(p.run().clock.antw_start, p.loop.Clock(), 0.005);
  }
}

TEST(WaitingTask, BeginsAtOnceWhereTheOutputIsReady) {
  SlowRun p;
  p.Begin();
  const double before = p.loop.Elapsed();
  p.worksheet().CmdNextAufg.Press();
  EXPECT_NEAR(p.loop.Elapsed() - before, WorksheetFixture::kPauses, 0.5);
}

TEST(WaitingTask, ShowsThatItWaitsAfterThreeTenthsOfASecond) {
  SlowRun p;
  p.Begin();
  p.LoadFor(2400);
  const double start = p.loop.Elapsed() + WorksheetFixture::kPauses;
  int shown = 0;
  p.WhileWaiting([&] {
    const double waited = p.loop.Elapsed() - start;
    EXPECT_FALSE(p.Waits() && waited < kShown) << waited;
    EXPECT_FALSE(!p.Waits() && waited > kShown + 1) << waited;
    if (!p.Waits()) return;
    ++shown;
    EXPECT_EQ(p.worksheet().WaitMeld.caption, "[9531s]");
    EXPECT_TRUE(p.worksheet().CmdNextAufg.visible);
    EXPECT_FALSE(p.worksheet().CmdNextAufg.enabled);
    EXPECT_TRUE(p.worksheet().zurueck.Reachable());
  });
  p.worksheet().CmdNextAufg.Press();
  p.WhileWaiting(nullptr);
  EXPECT_GT(shown, 0);
  EXPECT_FALSE(p.Waits());
  EXPECT_EQ(p.worksheet().pointer, Form::Pointer::kDefault);
  EXPECT_EQ(p.worksheet().WaitMeld.caption, "[726s]");
}

TEST(WaitingTask, SaysThatItWaitsAndListensFromTheFirstSound) {
  SlowRun p;
  p.Begin();
  p.worksheet().TakeSaid();
  p.LoadFor(2400);
  std::vector<std::string> said;
  p.WhileWaiting([&] {
    EXPECT_EQ(p.worksheet().listening, !p.Waits());
    if (p.Waits() && said.empty()) said = p.worksheet().TakeSaid();
  });
  p.worksheet().CmdNextAufg.Press();
  p.WhileWaiting(nullptr);
  EXPECT_EQ(said, std::vector<std::string>{"[9531s]"});
  EXPECT_TRUE(p.output.IsRunning());
  EXPECT_TRUE(p.worksheet().listening);
}

TEST(WaitingTask, ShowsNothingOfAWaitThatNobodyNotices) {
  SlowRun p;
  p.Begin();
  p.LoadFor(WorksheetFixture::kPauses + 250);
  p.WhileWaiting([&] { EXPECT_FALSE(p.Waits()); });
  p.worksheet().CmdNextAufg.Press();
  p.WhileWaiting(nullptr);
  EXPECT_TRUE(p.output.IsRunning());
}

TEST(WaitingTask, SleepsWhileItWaits) {
  SlowRun p;
  p.Begin();
  p.worksheet().Uhrzeit.Disable();
  p.LoadFor(15000);
  int moments = 0;
  const double start = p.loop.Elapsed();
  p.WhileWaiting([&] { moments += p.loop.Elapsed() > start + 200 ? 1 : 0; });
  p.worksheet().CmdNextAufg.Press();
  p.WhileWaiting(nullptr);
  EXPECT_LE(moments, 3);
}

TEST(WaitingTask, WaitsInTheAutomaticSequenceToo) {
  SlowRun p;
  p.Begin([](ExerciseSettings& s) { s.abfolge = 1; });
  p.LoadFor(1800 + 5000);
  p.loop.Advance(1801);
  EXPECT_TRUE(p.output.IsRunning());
  EXPECT_TRUE(p.OpenChoices().empty());
  p.loop.Advance(p.PlayingTime());
  EXPECT_EQ(p.OpenChoices().size(), 10u);
}

// ---- Leaving ---------------------------------------------------------------------------------

struct WayOut {
  const char* name;
  void (*leave)(SlowRun& p);
};

class WaitingTaskLeft : public ::testing::TestWithParam<WayOut> {};

TEST_P(WaitingTaskLeft, IsLeftAtOnceAndNeverSounds) {
  SlowRun p;
  p.Begin();
  p.LoadFor(5000);
  p.loop.StartTimer(1000, EventLoop::Repeat::kOnce, [&] {
    EXPECT_TRUE(p.Waits());
    GetParam().leave(p);
  });
  const double before = p.loop.Elapsed();
  p.worksheet().CmdNextAufg.Press();
  EXPECT_NEAR(p.loop.Elapsed() - before, 1000, 1);
  EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
  EXPECT_EQ(p.documents.Latest().saves, 1);
  p.loop.Advance(30000);
  EXPECT_FALSE(p.output.IsRunning());
  EXPECT_TRUE(p.output.played.empty());
  EXPECT_TRUE(p.host.errors.empty());
  EXPECT_TRUE(p.messages.warnings.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Ways, WaitingTaskLeft,
    ::testing::Values(WayOut{"Back", [](SlowRun& p) { p.worksheet().zurueck.Press(); }},
                      WayOut{"Cross", [](SlowRun& p) { p.worksheet().Form_Close(); }},
                      WayOut{"Signal", [](SlowRun& p) { p.program.Leave(); }}),
    [](const auto& way) { return way.param.name; });

// ---- An output that cannot be heard ----------------------------------------------------------

TEST(UnheardTask, IsNotPlayedAndSaysSo) {
  SlowRun p;
  p.Begin();
  p.output.SetDevice(Device::kMute);
  p.worksheet().CmdNextAufg.Press();
  ASSERT_EQ(p.messages.warnings.size(), 1u);
  EXPECT_EQ(p.messages.warnings[0].text, "[9532s]");
  EXPECT_FALSE(p.worksheet().spieltimer.enabled);
  EXPECT_FALSE(p.output.IsRunning());
  p.loop.Advance(60000);
  EXPECT_TRUE(p.OpenChoices().empty());
  EXPECT_EQ(p.messages.warnings.size(), 1u);
  EXPECT_TRUE(p.program.Quiet()) << "what the platform has to say of it can be said";
}

TEST(UnheardTask, IsTheSameTaskWhenItIsAskedForAgain) {
  for (const int abfolge : {0, 1}) {
    SlowRun p;
    p.Begin([&](ExerciseSettings& s) { s.abfolge = abfolge; });
    p.output.SetDevice(Device::kMute);
    p.PlayTask();
    const int asked = p.Asked(1);
    const int draws = p.random.draws;
    for (int again = 0; again < 2; ++again) {
      EXPECT_EQ(p.worksheet().CmdNextAufg.caption, "[129s] 1");
      ASSERT_TRUE(p.worksheet().CmdNextAufg.Press());
    }
    EXPECT_EQ(p.messages.warnings.size(), 3u);
    p.output.SetDevice(Device::kReady);
    ASSERT_TRUE(p.worksheet().CmdNextAufg.Press());
    EXPECT_EQ(p.worksheet().CmdNextAufg.visible, abfolge == 0);
    EXPECT_FALSE(p.worksheet().CmdNextAufg.enabled);
    p.loop.Advance(p.PlayingTime());
    EXPECT_EQ(p.Asked(1), asked);
    EXPECT_EQ(p.random.draws, draws);
    EXPECT_EQ(p.Lessons(), 1);
    EXPECT_EQ(p.Answers(), 1);
    EXPECT_EQ(p.Right(), asked);
    EXPECT_EQ(p.run().count.richtig, 1);
  }
}

TEST(UnheardTask, IsWhatWaitsTooLong) {
  SlowRun p;
  p.Begin();
  p.output.SetDevice(Device::kLoads);
  const double before = p.loop.Elapsed();
  p.worksheet().CmdNextAufg.Press();
  EXPECT_NEAR(p.loop.Elapsed() - before, WorksheetFixture::kPauses + kPatience, 5);
  EXPECT_EQ(p.messages.warnings.size(), 1u);
  EXPECT_FALSE(p.Waits());
  p.output.SetDevice(Device::kReady);
  p.loop.Advance(1000);
  EXPECT_FALSE(p.output.IsRunning()) << "nothing sounds by itself later";
  EXPECT_TRUE(p.worksheet().CmdNextAufg.Press());
  EXPECT_TRUE(p.output.IsRunning());
}

TEST(UnheardTask, CanBeLeft) {
  SlowRun p;
  p.Begin();
  p.output.SetDevice(Device::kMute);
  p.worksheet().CmdNextAufg.Press();
  EXPECT_TRUE(p.worksheet().zurueck.Press());
  EXPECT_TRUE(p.settings_screen().visible);
}

TEST(UnheardTask, StartsNothingWhenTheRunIsLeftWhileItIsTold) {
  SlowRun p;
  p.Begin();
  p.output.SetDevice(Device::kMute);
  p.messages.meanwhile = [&] { p.program.Leave(); };
  p.worksheet().CmdNextAufg.Press();
  p.loop.Advance(60000);
  EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
  EXPECT_TRUE(p.host.errors.empty());
}

// ---- Repeats ---------------------------------------------------------------------------------

TEST(WaitingRepeat, OpensTheTilesAfterItsSound) {
  SlowRun p;
  p.Begin();
  p.PlayTask();
  p.loop.Advance(900);
  p.LoadFor(5000);
  ASSERT_TRUE(p.worksheet().wieder.Press());
  EXPECT_TRUE(p.output.IsRunning());
  EXPECT_TRUE(p.OpenChoices().empty());
  p.loop.Advance(p.worksheet().spieltimer.interval - 1);
  EXPECT_TRUE(p.OpenChoices().empty());
  p.loop.Advance(2);
  EXPECT_EQ(p.OpenChoices().size(), 10u);
  // Neither the wait nor the sound is time to think.
  p.loop.Advance(500);
  p.Right();
  EXPECT_NE(p.Answer(1).find("[Dauer Antwort: 15]"), std::string::npos) << p.Answer(1);
}

TEST(WaitingRepeat, ThatIsNotHeardCountsForNothing) {
  SlowRun p;
  p.Begin();
  p.PlayTask();
  p.output.SetDevice(Device::kMute);
  ASSERT_TRUE(p.worksheet().wieder.Press());
  EXPECT_EQ(p.messages.warnings.size(), 1u);
  EXPECT_EQ(p.worksheet().whlgzaehler.caption, "0");
  EXPECT_EQ(p.run().answers.whlg_ar[1], 0);
  EXPECT_EQ(p.run().clock.anz_whlg, 0);
  EXPECT_EQ(p.OpenChoices().size(), 10u) << "what was heard before can be answered";
  EXPECT_TRUE(p.worksheet().wieder.Reachable());
}

TEST(WaitingRepeat, OfAnAnsweredTaskOffersTheNextOneAfterwards) {
  SlowRun p;
  p.Begin();
  p.PlayTask();
  p.Right();
  p.LoadFor(5000);
  ASSERT_TRUE(p.worksheet().wieder2.Press());
  EXPECT_FALSE(p.worksheet().CmdNextAufg.enabled);
  p.loop.Advance(p.PlayingTime());
  EXPECT_TRUE(p.worksheet().CmdNextAufg.Reachable());
  p.output.SetDevice(Device::kMute);
  ASSERT_TRUE(p.worksheet().wieder2.Press());
  EXPECT_EQ(p.messages.warnings.size(), 1u);
  EXPECT_TRUE(p.worksheet().CmdNextAufg.Reachable());
  EXPECT_TRUE(p.worksheet().wieder2.Reachable());
}

// ---- The time of a test ----------------------------------------------------------------------

TEST(WaitingTest, LosesNoTimeToTheWaiting) {
  SlowRun p;
  p.BeginMode(kTest);
  const int whole = p.run().test.rest_sek;
  const double begun = p.loop.Elapsed();
  double waited = 0;
  for (int task = 0; task < 8; ++task) {
    constexpr double kLoad = 9000;
    p.LoadFor(p.worksheet().WahlAutomat.interval + kLoad);
    p.loop.Advance(p.worksheet().WahlAutomat.interval);
    waited += kLoad;
    p.loop.Advance(p.PlayingTime());
    p.Right();
    const double taken = whole - p.run().test.rest_sek;
    const double passed = (p.loop.Elapsed() - begun - waited) / 1000;
    EXPECT_LE(taken, passed);
    EXPECT_GE(taken, passed - 20);
  }
}

TEST(WaitingTest, StandsStillUntilItsTaskIsHeard) {
  SlowRun p;
  p.BeginMode(kTest);
  p.output.SetDevice(Device::kMute);
  p.loop.Advance(p.worksheet().WahlAutomat.interval);
  ASSERT_EQ(p.messages.warnings.size(), 1u);
  const int left = p.run().test.rest_sek;
  p.loop.Advance(600000);
  EXPECT_EQ(p.run().test.rest_sek, left);
  EXPECT_TRUE(p.program.Quiet());
  p.output.SetDevice(Device::kReady);
  ASSERT_TRUE(p.worksheet().CmdNextAufg.Press());
  EXPECT_FALSE(p.program.Quiet());
  p.loop.Advance(30000);
  EXPECT_LT(p.run().test.rest_sek, left);
}

}  // namespace
}  // namespace vmod17

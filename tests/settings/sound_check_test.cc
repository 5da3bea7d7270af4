// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Timbre, loudness, and the sample of the settings.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "settings/settings_fixture.h"

namespace vmod17 {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::SizeIs;

struct Program8 {
  int channel;
  int patch;
  bool operator==(const Program8&) const = default;
};

class SoundCheck : public SettingsTest {
 protected:
  SoundCheck() {
    ToSettings();
    output.Forget();
  }

  std::vector<Program8> Programs() {
    std::vector<Program8> found;
    for (const MidiMessage& m : output.sent) {
      EXPECT_TRUE(m.IsProgram());
      EXPECT_EQ(m.data2, 0);
      EXPECT_EQ(m.zeit, 0);
      found.push_back({m.channel(), m.data1});
    }
    return found;
  }
  std::vector<int> Notes() {
    std::vector<int> notes;
    for (const MidiMessage& m : output.PlayedNoteOns()) notes.push_back(m.data1);
    return notes;
  }
  void ExpectButtons(bool on) {
    EXPECT_EQ(screen().klang_contr.enabled, on);
    EXPECT_EQ(screen().cmdOK.enabled, on);
  }
  /// Chooses groups so that the sound check is on.
  void WithGroups() { ASSERT_TRUE(screen().grp_alle[0].Press()); }
};

// --- Timbre and loudness --------------------------------------------------------------------

TEST_F(SoundCheck, OffersAVoiceForEachNoteButNoneForTheOneTimbre) {
  std::vector<std::string> expected;
  for (int i = 1; i <= 7; ++i) expected.push_back("[499s]  " + std::to_string(i));
  EXPECT_THAT(Texts(screen().Channel_Combo), ElementsAreArray(expected));
  screen().kl_farb.Choose(1);
  for (int i = 0; i < 7; ++i) {
    screen().Channel_Combo.Choose(i);
    EXPECT_EQ(settings().klang_kanal, i + 1);
    EXPECT_EQ(screen().ComboPatch.list_index(), (std::vector{70, 68, 71, 73, 73, 72, 74})[i]);
  }
}

TEST_F(SoundCheck, ShowsTheVoicesOnlyWhenTheirTimbresDiffer) {
  screen().kl_farb.Choose(1);
  EXPECT_TRUE(screen().Channel_Combo.visible);
  EXPECT_TRUE(screen().lb15[2].visible);
  EXPECT_EQ(settings().klangfarb_art, 1);
  EXPECT_EQ(screen().Channel_Combo.list_index(), 0);
  EXPECT_EQ(settings().klang_kanal, 1);
  screen().kl_farb.Choose(0);
  EXPECT_FALSE(screen().Channel_Combo.visible);
  EXPECT_FALSE(screen().lb15[2].visible);
  EXPECT_EQ(settings().klang_kanal, 0);
  EXPECT_EQ(screen().ComboPatch.list_index(), 0);
}

TEST_F(SoundCheck, KeepsTheOneTimbreWhileVoicesAreEdited) {
  screen().ComboPatch.Choose(19);
  screen().kl_farb.Choose(1);
  screen().ComboPatch.Choose(5);
  screen().kl_farb.Choose(0);
  EXPECT_EQ(screen().ComboPatch.list_index(), 19);
  EXPECT_THAT(settings().patch_ar, ElementsAre(19, 5, 68, 71, 73, 73, 72, 74));
}

TEST_F(SoundCheck, SendsATimbreAtOnceAlsoDuringAQueue) {
  screen().klang_contr.Press();
  ASSERT_TRUE(output.IsRunning());
  output.Forget();
  const double before = loop.Elapsed();
  screen().ComboPatch.Choose(40);
  EXPECT_EQ(Programs(), (std::vector<Program8>{{0, 40}}));
  EXPECT_EQ(loop.Elapsed(), before);
  EXPECT_TRUE(output.IsRunning());
}

TEST_F(SoundCheck, TakesTheVelocityFromTheSliderAndShowsIt) {
  for (const int value : {0, 64, 127}) {
    screen().HSliderVolume.Slide(value);
    EXPECT_EQ(screen().lb14[1].caption, std::to_string(value));
    screen().klang_contr.Press();
    for (const MidiMessage& m : output.PlayedNoteOns()) EXPECT_EQ(m.data2, value);
    EXPECT_THAT(Notes(), SizeIs(3));
    output.FinishQueue();
  }
  screen().HSliderVolume.Slide(500);
  EXPECT_EQ(screen().HSliderVolume.value(), 127);
}

// --- The sample -----------------------------------------------------------------------------

TEST_F(SoundCheck, GoesThroughItsStepsInOrder) {
  const double before = loop.Elapsed();
  screen().klang_contr.Press();
  EXPECT_NEAR(loop.Elapsed() - before, 150, 5);
  // Reset; the timbre; the fade; the six messages of three notes; the start.
  std::vector<MidiBefehl> expected = {MidiBefehl::kStopp, MidiBefehl::kSchliessen,
                                      MidiBefehl::kOeffnen, MidiBefehl::kSenden,
                                      MidiBefehl::kStopp};
  expected.insert(expected.end(), 6, MidiBefehl::kEinreihen);
  expected.push_back(MidiBefehl::kStart);
  EXPECT_EQ(output.befehle, expected);
}

TEST_F(SoundCheck, PlaysAsManyNotesAsTheLargestChosenKindHas) {
  const std::vector<std::vector<int>> stacks = {{48, 52, 55},
                                                {48, 52, 55, 59},
                                                {48, 52, 55, 59, 62},
                                                {48, 52, 55, 59, 62, 66},
                                                {48, 52, 55, 59, 62, 66, 69}};
  for (int k = 3; k <= 7; ++k) {
    ChooseOnly(k == 3 ? std::vector<int>{3} : std::vector<int>{3, k});
    if (k > 3) WithGroups();
    ASSERT_TRUE(screen().klang_contr.Press()) << k;
    EXPECT_EQ(Notes(), stacks[k - 3]) << k;
    output.FinishQueue();
  }
}

TEST_F(SoundCheck, PlaysFiveNotesForVoicingsWhenNoKindIsChosen) {
  ReturnKind(3);
  screen().aus_w.Choose(1);
  WithGroups();
  ASSERT_TRUE(screen().klang_contr.Press());
  EXPECT_THAT(Notes(), ElementsAre(48, 52, 55, 59, 62));
}

TEST_F(SoundCheck, GoesByTheKindsThatStandInTheirHiddenListForVoicingsToo) {
  screen().aus_w.Choose(1);
  WithGroups();
  ASSERT_TRUE(screen().klang_contr.Press());
  EXPECT_THAT(Notes(), ElementsAre(48, 52, 55));
}

TEST_F(SoundCheck, PlaysAStackForEachChordOfATaskOneAfterTheOther) {
  screen().akkzahl_cmb.Choose(2);
  screen().oktav_cmb.Choose(1);  // 48 to 84
  screen().klang_contr.Press();
  EXPECT_THAT(Notes(), ElementsAre(48, 52, 55, 57, 61, 64, 66, 70, 73));
  std::vector<double> times;
  for (const MidiMessage& m : output.PlayedNoteOns()) times.push_back(m.zeit);
  EXPECT_THAT(times, ElementsAre(0, 0, 0, 3000, 3000, 3000, 6000, 6000, 6000));
}

TEST_F(SoundCheck, SendsTheOneTimbreOnChannelZero) {
  screen().ComboPatch.Choose(11);
  output.Forget();
  screen().klang_contr.Press();
  EXPECT_EQ(Programs(), (std::vector<Program8>{{0, 11}}));
  for (const MidiMessage& m : output.PlayedNoteOns()) EXPECT_EQ(m.channel(), 0);
}

TEST_F(SoundCheck, SendsTheTimbresOfTheVoicesOnTheirChannels) {
  screen().kl_farb.Choose(1);
  output.Forget();
  screen().klang_contr.Press();
  EXPECT_EQ(Programs(),
            (std::vector<Program8>{{1, 70}, {2, 68}, {3, 71}, {4, 73}, {5, 73}, {6, 72}, {7, 74}}));
  std::vector<int> channels;
  for (const MidiMessage& m : output.PlayedNoteOns()) channels.push_back(m.channel());
  EXPECT_THAT(channels, ElementsAre(1, 2, 3));
}

TEST_F(SoundCheck, AccentsTheRootByFifteenWhereTheExerciseAccentsByTwenty) {
  screen().betonung.Choose(1);
  screen().klang_contr.Press();
  EXPECT_THAT(output.PlayedNoteOns()[0].data2, 115);
  EXPECT_THAT(output.PlayedNoteOns()[1].data2, 100);
  output.FinishQueue();
  StartRun();
  PlayTask();
  int loudest = 0;
  for (const MidiMessage& m : output.PlayedNoteOns()) loudest = std::max(loudest, m.data2);
  EXPECT_EQ(loudest, 120);
}

TEST_F(SoundCheck, BendsNothing) {
  screen().frequenz.Choose(1);
  screen().klang_contr.Press();
  for (const MidiMessage& m : output.messages) EXPECT_FALSE(m.IsPitchBend());
}

TEST_F(SoundCheck, DrawsOneOrderForTheWholeSample) {
  screen().arpeg_cmb.Choose(2);
  screen().akkzahl_cmb.Choose(1);
  random.Script({0.4f, 0.9f, 0.0f});
  random.script_only = true;
  screen().klang_contr.Press();
  EXPECT_TRUE(random.ScriptDone());
  EXPECT_THAT(Notes(), ElementsAre(52, 55, 48, 59, 62, 55));
}

TEST_F(SoundCheck, LeavesTheSettingsAlone) {
  screen().kl_farb.Choose(1);
  const int kanal = settings().klang_kanal;
  screen().klang_contr.Press();
  loop.Advance(10000);
  EXPECT_EQ(settings().klang_kanal, kanal);
  EXPECT_EQ(settings().klang_anzahl, 0);
}

// --- Both buttons come back -----------------------------------------------------------------

TEST_F(SoundCheck, LocksBothButtonsWhileItPlays) {
  screen().klang_contr.Press();
  ExpectButtons(false);
  EXPECT_FALSE(screen().klang_contr.Press());
  EXPECT_FALSE(screen().cmdOK.Press());
  output.FinishQueue();
  ExpectButtons(true);
  EXPECT_TRUE(screen().klang_contr.Press());
}

TEST_F(SoundCheck, GivesTheButtonsBackByItselfWhenTheQueueHasRunOut) {
  screen().klang_contr.Press();
  loop.Advance(3001);
  ExpectButtons(true);
}

TEST_F(SoundCheck, GivesTheButtonsBackWhenTheQueueIsDropped) {
  screen().akkzahl_cmb.Choose(3);
  screen().klang_contr.Press();
  output.Set(MidiMember::Befehl, static_cast<int>(MidiBefehl::kStopp));
  loop.Advance(4 * 3000);
  ExpectButtons(false);
  loop.Advance(1000);
  ExpectButtons(true);
  EXPECT_FALSE(screen().klangprobe.enabled);
}

TEST_F(SoundCheck, GivesTheButtonsBackWhenTheDeviceIsGone) {
  screen().klang_contr.Press();
  output.Set(MidiMember::Befehl, static_cast<int>(MidiBefehl::kSchliessen));
  loop.Advance(10000);
  ExpectButtons(true);
}

TEST_F(SoundCheck, GivesTheButtonsBackAfterAnError) {
  screen().arpeg_cmb.Choose(2);
  random.script_only = true;
  EXPECT_ANY_THROW(screen().klang_contr.Press());
  ExpectButtons(true);
}

TEST_F(SoundCheck, ComesBackWhereOkIsLockedByTheRules) {
  ChooseOnly({4});
  WithGroups();
  while (Groups().size() > 1) screen().grplst[1].Choose(0);
  ExpectOk(false);
  ASSERT_TRUE(screen().klang_contr.Press());
  EXPECT_FALSE(screen().klang_contr.enabled);
  output.FinishQueue();
  EXPECT_TRUE(screen().klang_contr.enabled);
  ExpectOk(false);
}

TEST_F(SoundCheck, FollowsTheSelectionThatWasChangedMeanwhile) {
  screen().klang_contr.Press();
  ReturnKind(3);
  output.FinishQueue();
  ExpectButtons(false);
  ExpectOk(false);
  ChooseKind(3);
  ExpectButtons(true);
}

TEST_F(SoundCheck, HoldsBothButtonsToItsEndWhateverIsChosenMeanwhile) {
  screen().klang_contr.Press();
  ReturnKind(3);
  ExpectButtons(false);
  ChooseKind(3);
  ExpectButtons(false);
  screen().aus_w.Choose(1);
  WithGroups();
  ExpectButtons(false);
  EXPECT_FALSE(screen().cmdOK.Press());
  output.FinishQueue();
  ExpectButtons(true);
}

TEST_F(SoundCheck, IsNotHeldUpByTheTimerOfASampleBefore) {
  screen().klang_contr.Press();
  output.FinishQueue();
  loop.Advance(3000);
  screen().akkzahl_cmb.Choose(3);
  screen().klang_contr.Press();
  loop.Advance(11000);
  ExpectButtons(false);
  EXPECT_TRUE(output.IsRunning());
  loop.Advance(1000);
  ExpectButtons(true);
}

// --- An output that takes its time ----------------------------------------------------------

TEST_F(SoundCheck, WaitsVisiblyForItsOutputAndHoldsTheButtonsToTheEndOfTheSound) {
  output.SetDevice(RecordingMidiOutput::Device::kLoads);
  loop.StartTimer(5000, EventLoop::Repeat::kOnce,
                  [&] { output.SetDevice(RecordingMidiOutput::Device::kReady); });
  bool shown = false;
  loop.meanwhile = [&] {
    if (screen().klang_contr.caption != "[9531s]") return;
    shown = true;
    EXPECT_EQ(screen().pointer, Form::Pointer::kHourglass);
    ExpectButtons(false);
    EXPECT_TRUE(screen().cmdZurueck.Reachable());
  };
  screen().klang_contr.Press();
  EXPECT_TRUE(shown);
  EXPECT_EQ(screen().klang_contr.caption, "[366s]");
  EXPECT_EQ(screen().pointer, Form::Pointer::kDefault);
  EXPECT_THAT(Notes(), ElementsAre(48, 52, 55));
  loop.Advance(2690);
  ExpectButtons(false);
  loop.Advance(20);
  ExpectButtons(true);
}

TEST_F(SoundCheck, LetsNothingBeSpokenFromItsPressToItsEnd) {
  bool in_the_pause = false;
  loop.StartTimer(20, EventLoop::Repeat::kOnce, [&] { in_the_pause = screen().listening; });
  screen().klang_contr.Press();
  EXPECT_TRUE(in_the_pause);
  EXPECT_TRUE(screen().listening);
  output.FinishQueue();
  EXPECT_FALSE(screen().listening);
}

TEST_F(SoundCheck, SaysThatItsOutputTakesItsTimeBeforeItSounds) {
  output.SetDevice(RecordingMidiOutput::Device::kLoads);
  loop.StartTimer(5000, EventLoop::Repeat::kOnce,
                  [&] { output.SetDevice(RecordingMidiOutput::Device::kReady); });
  std::vector<std::string> said;
  loop.meanwhile = [&] {
    if (screen().pointer != Form::Pointer::kHourglass || !said.empty()) return;
    EXPECT_FALSE(screen().listening);
    said = screen().TakeSaid();
  };
  screen().klang_contr.Press();
  EXPECT_THAT(said, ElementsAre("[9531s]"));
  EXPECT_TRUE(screen().listening);
}

TEST_F(SoundCheck, SaysThatItCannotBeHeardAndMayBeAskedForAgain) {
  output.SetDevice(RecordingMidiOutput::Device::kMute);
  screen().klang_contr.Press();
  ASSERT_THAT(messages.warnings, SizeIs(1));
  EXPECT_EQ(messages.warnings[0].text, "[9532s]");
  EXPECT_FALSE(screen().listening);
  EXPECT_FALSE(output.IsRunning());
  ExpectButtons(true);
  output.SetDevice(RecordingMidiOutput::Device::kReady);
  EXPECT_TRUE(screen().klang_contr.Press());
  EXPECT_TRUE(output.IsRunning());
}

TEST_F(SoundCheck, ThatLosesItsSoundSaysSoEachTimeAndMayBeAskedForAgain) {
  for (std::size_t death = 1; death <= 2; ++death) {
    ASSERT_TRUE(screen().klang_contr.Press());
    loop.Advance(500);
    EXPECT_THAT(messages.warnings, SizeIs(death - 1));
    output.LoseSound();
    loop.Advance(1);
    ASSERT_THAT(messages.warnings, SizeIs(death));
    EXPECT_EQ(messages.warnings.back().text, "[9532s]");
    EXPECT_FALSE(output.IsRunning());
    EXPECT_FALSE(screen().listening);
    ExpectButtons(true);
    output.ReturnSound();
  }
  EXPECT_TRUE(screen().klang_contr.Press());
  EXPECT_TRUE(output.IsRunning());
}

TEST_F(SoundCheck, SaysNothingOfSoundThatIsLostWhileNothingPlays) {
  output.LoseSound();
  loop.Advance(60'000);
  EXPECT_THAT(messages.warnings, IsEmpty());
  output.ReturnSound();
  EXPECT_TRUE(screen().klang_contr.Press());
  EXPECT_TRUE(output.IsRunning());
}

TEST_F(SoundCheck, CanBeLeftWhileItWaitsForItsOutput) {
  output.SetDevice(RecordingMidiOutput::Device::kLoads);
  Einstellung1& s = screen();
  loop.StartTimer(2000, EventLoop::Repeat::kOnce, [&] { s.cmdZurueck.Press(); });
  const double before = loop.Elapsed();
  s.klang_contr.Press();
  EXPECT_NEAR(loop.Elapsed() - before, 2000, 1);
  output.SetDevice(RecordingMidiOutput::Device::kReady);
  loop.Advance(20000);
  EXPECT_EQ(program.einstellung1(), nullptr);
  EXPECT_FALSE(output.IsRunning());
  EXPECT_EQ(loop.timers(), 0);
  EXPECT_THAT(messages.warnings, IsEmpty());
}

// --- The screen is left meanwhile -----------------------------------------------------------

class SoundCheckLeft : public SoundCheck, public ::testing::WithParamInterface<int> {};

TEST_P(SoundCheckLeft, StartsNothingWhenTheUserGoesBackInADelay) {
  Einstellung1& s = screen();
  loop.StartTimer(GetParam(), EventLoop::Repeat::kOnce, [&] { s.cmdZurueck.Press(); });
  s.klang_contr.Press();
  loop.Advance(20000);
  EXPECT_EQ(output.starts, 0);
  EXPECT_EQ(program.einstellung1(), nullptr);
  EXPECT_TRUE(first().visible);
  EXPECT_FALSE(output.IsOpen());
  EXPECT_EQ(loop.timers(), 0);
  EXPECT_THAT(host.errors, IsEmpty());
}

TEST_P(SoundCheckLeft, CannotBeOvertakenByOkInADelay) {
  bool pressed = true;
  loop.StartTimer(GetParam(), EventLoop::Repeat::kOnce, [&] { pressed = screen().cmdOK.Press(); });
  screen().klang_contr.Press();
  EXPECT_FALSE(pressed);
  EXPECT_EQ(program.arbeitsblatt1(), nullptr);
  EXPECT_EQ(output.starts, 1);
}

TEST_P(SoundCheckLeft, CannotBeOvertakenByOkThroughANewSelectionEither) {
  loop.StartTimer(GetParam(), EventLoop::Repeat::kOnce, [&] {
    ReturnKind(3);
    ChooseKind(3);
    ExpectButtons(false);
    EXPECT_FALSE(screen().cmdOK.Press());
  });
  screen().klang_contr.Press();
  EXPECT_EQ(output.starts, 1);
  EXPECT_EQ(program.arbeitsblatt1(), nullptr);
  ExpectButtons(false);
  output.FinishQueue();
  ExpectButtons(true);
}

// In the first delay, and in the second.
INSTANTIATE_TEST_SUITE_P(Delays, SoundCheckLeft, ::testing::Values(10, 49, 60, 149));

TEST_F(SoundCheck, StartsNothingWhenTheScreenIsLeftInTheRampBeforeIt) {
  Einstellung1& s = screen();
  loop.meanwhile = [&] {
    if (!output.sent.empty() && s.loaded()) s.cmdZurueck.Press();
  };
  s.klang_contr.Press();
  loop.meanwhile = nullptr;
  loop.Advance(20000);
  EXPECT_EQ(output.starts, 0);
  EXPECT_EQ(program.einstellung1(), nullptr);
  EXPECT_FALSE(output.IsOpen());
  EXPECT_EQ(loop.timers(), 0);
}

TEST_F(SoundCheck, CannotBeAskedForAgainWhileItPlaysEvenIfTheSelectionAllowsItAnew) {
  loop.StartTimer(10, EventLoop::Repeat::kOnce, [&] {
    ReturnKind(3);
    ChooseKind(3);
    EXPECT_FALSE(screen().klang_contr.Press());
  });
  screen().klang_contr.Press();
  EXPECT_FALSE(screen().klang_contr.enabled);
  EXPECT_THAT(Notes(), ElementsAre(48, 52, 55));
  loop.Advance(5000);
  ExpectButtons(true);
  EXPECT_FALSE(output.IsRunning());
}

TEST_F(SoundCheck, DiesWithTheScreen) {
  screen().klang_contr.Press();
  ASSERT_TRUE(output.IsRunning());
  screen().cmdZurueck.Press();
  EXPECT_FALSE(output.IsRunning());
  loop.Advance(20000);
  EXPECT_EQ(loop.timers(), 0);
  first().cmdOK.Press();
  loop.Advance(200);
  ExpectButtons(true);
}

TEST_F(SoundCheck, IsOverWhenTheScreenIsLeftInTheRampOfItsStart) {
  Einstellung1& s = screen();
  loop.meanwhile = [&] {
    if (output.starts == 1 && s.loaded()) s.cmdZurueck.Press();
  };
  s.klang_contr.Press();
  loop.meanwhile = nullptr;
  loop.Advance(20000);
  EXPECT_EQ(program.einstellung1(), nullptr);
  EXPECT_FALSE(output.IsRunning());
  EXPECT_EQ(loop.timers(), 0);
}

}  // namespace
}  // namespace vmod17

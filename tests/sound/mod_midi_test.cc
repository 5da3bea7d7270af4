// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "sound/mod_midi.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/run_time_error.h"
#include "support/memory_host.h"
#include "support/recording_midi_output.h"
#include "support/simulated_loop.h"

namespace vmod17 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// Remembers each write, member by member.
class MemberTrace : public RecordingMidiOutput {
 public:
  using Write = std::pair<MidiMember, double>;
  std::vector<Write> writes;

  void Set(MidiMember member, double value) override {
    writes.emplace_back(member, value);
    RecordingMidiOutput::Set(member, value);
  }
};

class ModMIDITest : public ::testing::Test {
 protected:
  /// The settings screen's way to its output.
  void Open() {
    server_.HostVerbinden();
    midi_.MidiGeraeteListe(output_);
    midi_.MidiOeffnen(output_);
  }
  /// An open output with nothing recorded yet.
  void OpenQuietly() {
    Open();
    output_.Forget();
    output_.writes.clear();
  }

  SimulatedLoop loop_;
  MemoryHost host_;
  ModServer server_{host_.Factory(), {"vmod17", 1, 0, 0}};
  MemberTrace output_;
  ModMIDI midi_{loop_, server_};
};

// --- Devices --------------------------------------------------------------------------------

TEST_F(ModMIDITest, ListsAllDevicesFromTheDefaultMapperOn) {
  output_.geraete = {"Klavier", "Orgel"};
  const auto liste = midi_.MidiGeraeteListe(output_);
  ASSERT_THAT(liste, SizeIs(3));
  EXPECT_EQ(liste.at(-1).kennung, -1);
  EXPECT_EQ(liste.at(0).name, "Klavier");
  EXPECT_EQ(liste.at(0).kennung, 1000);
  EXPECT_EQ(liste.at(1).name, "Orgel");
  EXPECT_EQ(liste.at(1).kennung, 1001);
}

TEST_F(ModMIDITest, WalksThroughTheDevicesFromMinus1Up) {
  output_.geraete = {"Klavier", "Orgel"};
  midi_.MidiGeraeteListe(output_);
  EXPECT_THAT(output_.writes, ElementsAre(MemberTrace::Write{MidiMember::GeraetNr, -1},
                                          MemberTrace::Write{MidiMember::GeraetNr, 0},
                                          MemberTrace::Write{MidiMember::GeraetNr, 1}));
}

TEST_F(ModMIDITest, OpensTheLastOfThreeDevicesWhenTheHostNamesNone) {
  output_.geraete = {"one", "two", "three"};
  Open();
  EXPECT_EQ(midi_.midiDeviceNumber, 2);
  EXPECT_EQ(output_.OpenedDevice(), 2);
}

TEST_F(ModMIDITest, OpensTheDefaultMapperWhenThereIsNoDevice) {
  output_.geraete.clear();
  Open();
  EXPECT_EQ(midi_.midiDeviceNumber, -1);
  EXPECT_EQ(output_.OpenedDevice(), -1);
}

TEST_F(ModMIDITest, OpensTheDeviceThatTheHostNames) {
  host_.midi = "1";
  output_.geraete = {"one", "two", "three"};
  Open();
  EXPECT_EQ(output_.OpenedDevice(), 1);
}

TEST_F(ModMIDITest, OpensTheFirstDeviceWhenTheHostAnswersWithoutDigits) {
  host_.midi = "";
  output_.geraete = {"one", "two", "three"};
  Open();
  EXPECT_EQ(output_.OpenedDevice(), 0);
}

TEST_F(ModMIDITest, OpensTheDefaultMapperWhenTheHostNamesIt) {
  host_.midi = "-1";
  output_.geraete = {"one", "two", "three"};
  Open();
  EXPECT_EQ(output_.OpenedDevice(), -1);
}

TEST_F(ModMIDITest, TakesMinus9ForNoAnswer) {
  host_.midi = "-9";
  output_.geraete = {"one", "two", "three"};
  Open();
  EXPECT_EQ(output_.OpenedDevice(), 2);
}

// --- Opening --------------------------------------------------------------------------------

TEST_F(ModMIDITest, BeginsWithFullVolumeAndAStandardVelocity) {
  Open();
  EXPECT_EQ(midi_.midiChannel, 0);
  EXPECT_EQ(midi_.midiVelocity, 100);
  EXPECT_EQ(midi_.midiVolumeLeft, 65535);
  EXPECT_EQ(midi_.midiVolumeRight, 65535);
}

TEST_F(ModMIDITest, ForgetsAnOtherVelocityWhenItOpensAgain) {
  Open();
  midi_.midiVelocity = 80;
  midi_.midiChannel = 3;
  midi_.midiVolumeLeft = midi_.midiVolumeRight = 1;
  Open();
  EXPECT_EQ(midi_.midiVelocity, 100);
  EXPECT_EQ(midi_.midiChannel, 0);
  EXPECT_EQ(midi_.midiVolumeLeft, 65535);
  EXPECT_EQ(midi_.midiVolumeRight, 65535);
}

TEST_F(ModMIDITest, OpensAClosedDeviceAtOnce) {
  Open();
  EXPECT_THAT(output_.befehle, ElementsAre(MidiBefehl::kOeffnen));
}

TEST_F(ModMIDITest, ClosesADeviceThatIsOpenFirst) {
  Open();
  output_.befehle.clear();
  Open();
  EXPECT_THAT(output_.befehle, ElementsAre(MidiBefehl::kSchliessen, MidiBefehl::kOeffnen));
}

TEST_F(ModMIDITest, ClosesTheDefaultMapperFirstAlthoughItIsNotOpen) {
  output_.geraete.clear();
  Open();
  EXPECT_THAT(output_.befehle, ElementsAre(MidiBefehl::kSchliessen, MidiBefehl::kOeffnen));
}

TEST_F(ModMIDITest, SetsTheDeviceBetweenClosingAndOpening) {
  Open();
  output_.writes.clear();
  midi_.MidiOeffnen(output_);
  EXPECT_THAT(output_.writes, ElementsAre(MemberTrace::Write{MidiMember::Befehl, 2},
                                          MemberTrace::Write{MidiMember::GeraetNr, 0},
                                          MemberTrace::Write{MidiMember::Befehl, 1}));
}

TEST_F(ModMIDITest, StopsClosesAndOpensForAReset) {
  OpenQuietly();
  midi_.MidiReset();
  EXPECT_THAT(output_.writes, ElementsAre(MemberTrace::Write{MidiMember::Befehl, 5},
                                          MemberTrace::Write{MidiMember::Befehl, 2},
                                          MemberTrace::Write{MidiMember::Befehl, 1}));
}

TEST_F(ModMIDITest, DropsTheQueueWithAReset) {
  OpenQuietly();
  midi_.MidiNote(60, 0, 100, 0, 0);
  midi_.MidiReset();
  midi_.MidiStart();
  EXPECT_THAT(output_.played, IsEmpty());
}

TEST_F(ModMIDITest, HasNothingToResetBeforeAnOutputIsOpened) {
  EXPECT_NO_THROW(midi_.MidiReset());
  EXPECT_THAT(output_.befehle, IsEmpty());
}

TEST_F(ModMIDITest, CannotPlayBeforeAnOutputIsOpened) {
  try {
    midi_.MidiStart();
    FAIL() << "it played";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), ErrorNumber::kInvalidCall);
  }
}

// --- Messages -------------------------------------------------------------------------------

TEST_F(ModMIDITest, WritesANoteMemberByMember) {
  OpenQuietly();
  midi_.MidiNote(64, 250, 850.5, 3, 7, 90);
  using W = MemberTrace::Write;
  EXPECT_THAT(output_.writes, ElementsAre(W{MidiMember::Status, 147}, W{MidiMember::Daten2, 90},
                                          W{MidiMember::Daten1, 64}, W{MidiMember::Zeit, 250},
                                          W{MidiMember::Marke, 7}, W{MidiMember::Befehl, 6},
                                          W{MidiMember::Status, 131}, W{MidiMember::Daten1, 64},
                                          W{MidiMember::Zeit, 1100.5},
                                          W{MidiMember::Marke, 1000007}, W{MidiMember::Befehl, 6}));
}

TEST_F(ModMIDITest, GivesANoteTheCommonVelocityUnlessItHasItsOwn) {
  OpenQuietly();
  midi_.midiVelocity = 77;
  midi_.MidiNote(60, 0, 100, 0, 0);
  midi_.MidiNote(61, 0, 100, 0, 0, 0);
  ASSERT_THAT(output_.queued, SizeIs(4));
  EXPECT_EQ(output_.queued[0].data2, 77);
  EXPECT_EQ(output_.queued[2].data2, 0) << "0 is a velocity of its own";
}

TEST_F(ModMIDITest, LetsTheNoteOffCarryTheVelocityOfItsNoteOn) {
  OpenQuietly();
  midi_.MidiNote(60, 0, 100, 0, 0, 45);
  ASSERT_THAT(output_.queued, SizeIs(2));
  EXPECT_TRUE(output_.queued[1].IsNoteOff());
  EXPECT_EQ(output_.queued[1].data2, 45);
}

TEST_F(ModMIDITest, SendsAPitchBendAtOnce) {
  OpenQuietly();
  midi_.MidiTonhoehe(64, 5);
  using W = MemberTrace::Write;
  EXPECT_THAT(output_.writes, ElementsAre(W{MidiMember::Status, 229}, W{MidiMember::Daten1, 0},
                                          W{MidiMember::Daten2, 64}, W{MidiMember::Zeit, 0},
                                          W{MidiMember::Befehl, 7}));
}

TEST_F(ModMIDITest, SendsAProgramChangeAtOnce) {
  OpenQuietly();
  midi_.SetzeKlangfarbe(73, 4);
  using W = MemberTrace::Write;
  EXPECT_THAT(output_.writes, ElementsAre(W{MidiMember::Status, 196}, W{MidiMember::Daten1, 73},
                                          W{MidiMember::Daten2, 0}, W{MidiMember::Zeit, 0},
                                          W{MidiMember::Befehl, 7}));
}

// --- Volume ---------------------------------------------------------------------------------

using Volume = RecordingMidiOutput::VolumeWrite;

std::vector<Volume> Steps(const std::vector<double>& values) {
  std::vector<Volume> steps;
  for (const double value : values) {
    steps.push_back({MidiMember::VolumeLinks, value});
    steps.push_back({MidiMember::VolumeRechts, value});
  }
  return steps;
}

TEST_F(ModMIDITest, RisesIn132StepsAndThenToTheFullVolume) {
  OpenQuietly();
  const int before = loop_.yields();
  midi_.MidiStart();
  std::vector<double> values;
  for (int v = 0; v <= 65500; v += 500) values.push_back(v);
  ASSERT_THAT(values, SizeIs(132));
  values.push_back(65535);
  EXPECT_EQ(output_.volumes, Steps(values));
  EXPECT_EQ(loop_.yields() - before, 132);
}

TEST_F(ModMIDITest, StartsTheQueueBeforeTheVolumeRises) {
  OpenQuietly();
  bool running = false;
  loop_.meanwhile = [&] {
    if (output_.volumes.size() == 2) running = output_.IsRunning();
  };
  midi_.MidiStart();
  EXPECT_TRUE(running);
  EXPECT_EQ(output_.Count(MidiBefehl::kStart), 1);
}

TEST_F(ModMIDITest, YieldsAfterEachStepOfTheRise) {
  OpenQuietly();
  std::vector<std::size_t> written;
  loop_.meanwhile = [&] { written.push_back(output_.volumes.size()); };
  midi_.midiVolumeLeft = midi_.midiVolumeRight = 1000;
  midi_.MidiStart();
  EXPECT_THAT(written, ElementsAre(2, 4, 6));
  EXPECT_EQ(output_.volumes, Steps({0, 500, 1000, 1000}));
}

TEST_F(ModMIDITest, RisesByTheLeftVolumeAndEndsAtBoth) {
  OpenQuietly();
  midi_.midiVolumeLeft = 700;
  midi_.midiVolumeRight = 300;
  midi_.MidiStart();
  std::vector<Volume> expected = Steps({0, 500});
  expected.push_back({MidiMember::VolumeLinks, 700});
  expected.push_back({MidiMember::VolumeRechts, 300});
  EXPECT_EQ(output_.volumes, expected);
}

TEST_F(ModMIDITest, OnlyStartsTheQueueWhenTheVolumeIsZero) {
  OpenQuietly();
  midi_.midiVolumeLeft = 0;
  midi_.MidiStart();
  EXPECT_EQ(output_.starts, 1);
  EXPECT_THAT(output_.volumes, IsEmpty());
  EXPECT_EQ(loop_.yields(), 0);
}

TEST_F(ModMIDITest, FallsFromTheVolumeItFindsToZero) {
  OpenQuietly();
  output_.Set(MidiMember::VolumeLinks, 1200);
  output_.Set(MidiMember::VolumeRechts, 800);
  output_.volumes.clear();
  std::vector<std::size_t> written;
  loop_.meanwhile = [&] { written.push_back(output_.volumes.size()); };
  midi_.MidiAusblenden();
  EXPECT_EQ(output_.volumes, Steps({1200, 700, 200, 0}));
  EXPECT_THAT(written, ElementsAre(2, 4, 6));
  EXPECT_EQ(midi_.midiVolumeLeft, 1200);
  EXPECT_EQ(midi_.midiVolumeRight, 800);
}

TEST_F(ModMIDITest, StopsTheQueueBeforeTheVolumeFalls) {
  OpenQuietly();
  midi_.MidiNote(60, 0, 100, 0, 0);
  midi_.MidiStart();
  output_.Forget();
  std::optional<bool> running;
  loop_.meanwhile = [&] {
    if (!running) running = output_.IsRunning();
  };
  midi_.MidiAusblenden();
  EXPECT_THAT(output_.befehle, ElementsAre(MidiBefehl::kStopp));
  EXPECT_EQ(running, false);
}

TEST_F(ModMIDITest, RemembersTheVolumesAcrossASecondFall) {
  OpenQuietly();
  midi_.MidiAusblenden();
  midi_.MidiAusblenden();
  EXPECT_EQ(midi_.midiVolumeLeft, 65535);
  EXPECT_EQ(midi_.midiVolumeRight, 65535);
  midi_.MidiStart();
  EXPECT_EQ(output_.Get(MidiMember::VolumeLinks), 65535);
  EXPECT_EQ(output_.Get(MidiMember::VolumeRechts), 65535);
}

TEST_F(ModMIDITest, OnlyStopsTheQueueWhenTheVolumeIsZeroAlready) {
  OpenQuietly();
  midi_.MidiAusblenden();
  output_.Forget();
  const int before = loop_.yields();
  midi_.MidiAusblenden();
  EXPECT_THAT(output_.befehle, ElementsAre(MidiBefehl::kStopp));
  EXPECT_THAT(output_.volumes, IsEmpty());
  EXPECT_EQ(loop_.yields(), before);
}

TEST_F(ModMIDITest, LetsTimersRunWhileTheVolumeRises) {
  OpenQuietly();
  int fired = 0;
  loop_.Post([&] { ++fired; });
  midi_.MidiStart();
  EXPECT_EQ(fired, 1);
}

// --- The beginning of a queue ---------------------------------------------------------------

class Beginning : public ModMIDITest {
 protected:
  using Device = RecordingMidiOutput::Device;

  Beginning() {
    Open();
    midi_.midiVolumeLeft = 0;
  }
  void Start(Device device) {
    output_.SetDevice(device);
    midi_.MidiNote(60, 0, 100, 0, 0);
    midi_.MidiStart();
  }
  Spielstand Wait() {
    return midi_.WarteAufBeginn([this] { return left_; }, [this] { shown_ = loop_.Elapsed(); });
  }

  bool left_ = false;
  double shown_ = -1;
};

TEST_F(Beginning, IsThereAtOnceWhereTheOutputIsReady) {
  Start(Device::kReady);
  EXPECT_EQ(Wait(), Spielstand::kKlingt);
  EXPECT_EQ(loop_.Elapsed(), 0);
  EXPECT_EQ(shown_, -1);
}

TEST_F(Beginning, ComesInTheMomentInWhichTheOutputIsReady) {
  Start(Device::kLoads);
  loop_.StartTimer(2400, EventLoop::Repeat::kOnce, [&] { output_.SetDevice(Device::kReady); });
  EXPECT_EQ(Wait(), Spielstand::kKlingt);
  EXPECT_NEAR(loop_.Elapsed(), 2400, 0.1);
  EXPECT_NEAR(shown_, 300, 1);
  EXPECT_TRUE(output_.IsRunning());
}

TEST_F(Beginning, IsNotShownAsLateBeforeItIs) {
  Start(Device::kLoads);
  loop_.StartTimer(290, EventLoop::Repeat::kOnce, [&] { output_.SetDevice(Device::kReady); });
  EXPECT_EQ(Wait(), Spielstand::kKlingt);
  EXPECT_EQ(shown_, -1);
}

TEST_F(Beginning, NeverComesWhereTheOutputCannotBeHeard) {
  Start(Device::kMute);
  EXPECT_EQ(Wait(), Spielstand::kStumm);
  EXPECT_FALSE(output_.IsRunning()) << "what cannot be heard is dropped";
  EXPECT_TRUE(output_.IsOpen());
}

TEST_F(Beginning, NeverComesWhereLoadingFails) {
  Start(Device::kLoads);
  loop_.StartTimer(5000, EventLoop::Repeat::kOnce, [&] { output_.SetDevice(Device::kMute); });
  EXPECT_EQ(Wait(), Spielstand::kStumm);
  EXPECT_NEAR(loop_.Elapsed(), 5000, 0.1);
}

TEST_F(Beginning, IsGivenUpAfterTwentySecondsAndThenNothingSoundsAnyMore) {
  Start(Device::kLoads);
  EXPECT_EQ(Wait(), Spielstand::kStumm);
  EXPECT_NEAR(loop_.Elapsed(), 20000, 5);
  output_.SetDevice(Device::kReady);
  EXPECT_FALSE(output_.IsRunning());
}

TEST_F(Beginning, IsNotWaitedForWhenTheScreenIsLeft) {
  Start(Device::kLoads);
  loop_.StartTimer(1000, EventLoop::Repeat::kOnce, [&] { left_ = true; });
  EXPECT_EQ(Wait(), Spielstand::kAbgebrochen);
  EXPECT_NEAR(loop_.Elapsed(), 1000, 0.1);
}

TEST_F(Beginning, OfAQueueThatIsOverAlreadyWasHeard) {
  Start(Device::kReady);
  output_.FinishQueue();
  EXPECT_EQ(Wait(), Spielstand::kKlingt);
}

/// The end of a queue that has begun.
class Ending : public Beginning {
 protected:
  Spielstand WaitForTheEnd() {
    return midi_.WarteAufEnde([this] { return left_; });
  }
};

TEST_F(Ending, IsNotWaitedForWhereTheQueueHasRunOut) {
  Start(Device::kReady);
  output_.FinishQueue();
  EXPECT_EQ(WaitForTheEnd(), Spielstand::kKlingt);
  EXPECT_EQ(loop_.Elapsed(), 0);
}

TEST_F(Ending, OfALateQueueIsWaitedFor) {
  Start(Device::kReady);
  loop_.StartTimer(400, EventLoop::Repeat::kOnce, [&] { output_.FinishQueue(); });
  EXPECT_EQ(WaitForTheEnd(), Spielstand::kKlingt);
  EXPECT_NEAR(loop_.Elapsed(), 400, 0.1);
}

TEST_F(Ending, OfAQueueThatLosesItsOutputIsSilence) {
  Start(Device::kReady);
  loop_.StartTimer(1500, EventLoop::Repeat::kOnce, [&] { output_.LoseSound(); });
  EXPECT_EQ(WaitForTheEnd(), Spielstand::kStumm);
  EXPECT_NEAR(loop_.Elapsed(), 1500, 0.1);
  EXPECT_FALSE(output_.IsRunning());
  EXPECT_EQ(midi_.KlangStand(), MidiKlangStand::kWeg);
}

/// An output whose queue takes the time of the loop.
class LateEnding : public Ending {
 protected:
  LateEnding() {
    server_.HostVerbinden();
    midi_.MidiGeraeteListe(timed_);
    midi_.MidiOeffnen(timed_);
    midi_.MidiNote(60, 0, 2000, 0, 1);
  }
  RecordingMidiOutput timed_{&loop_};
};

TEST_F(LateEnding, IsWaitedForAsLongAsTheQueueComesOn) {
  timed_.Lag(60'000);
  midi_.MidiStart();
  loop_.Advance(2000);
  EXPECT_EQ(WaitForTheEnd(), Spielstand::kKlingt);
  EXPECT_NEAR(loop_.Elapsed(), 62'000, 1);
}

TEST_F(LateEnding, IsGivenUpFiveSecondsAfterTheQueueHasStopped) {
  timed_.Lag(60'000);
  midi_.MidiStart();
  loop_.StartTimer(10'000, EventLoop::Repeat::kOnce, [&] { timed_.Stall(); });
  EXPECT_EQ(WaitForTheEnd(), Spielstand::kStumm);
  EXPECT_NEAR(loop_.Elapsed(), 15'000, 300);
  EXPECT_FALSE(timed_.IsRunning());
}

TEST_F(LateEnding, IsWaitedForAfterTheProcessWasStopped) {
  timed_.Lag(3000);
  midi_.MidiStart();
  loop_.Advance(2000);
  // The clock has gone on by a minute before anything else moves.
  loop_.StartTimer(1000, EventLoop::Repeat::kOnce, [&] {
    timed_.Stall();
    loop_.Sleep(60'000);
  });
  loop_.StartTimer(62'000, EventLoop::Repeat::kOnce, [&] { timed_.FinishQueue(); });
  EXPECT_EQ(WaitForTheEnd(), Spielstand::kKlingt);
}

TEST_F(Ending, ThatNeverComesIsGivenUpAfterFiveSeconds) {
  Start(Device::kReady);
  EXPECT_EQ(WaitForTheEnd(), Spielstand::kStumm);
  EXPECT_NEAR(loop_.Elapsed(), 5000, 5);
  EXPECT_FALSE(output_.IsRunning());
}

TEST_F(Ending, IsNotWaitedForWhenTheScreenIsLeft) {
  Start(Device::kReady);
  loop_.StartTimer(100, EventLoop::Repeat::kOnce, [&] { left_ = true; });
  EXPECT_EQ(WaitForTheEnd(), Spielstand::kAbgebrochen);
}

TEST(MidiEvent, RaisesQueueEmptyForWhoeverListens) {
  MidiEvent event;
  EXPECT_NO_THROW(event.SendQueueEmpty());
  int raised = 0;
  event.QueueEmpty = [&] { ++raised; };
  event.SendQueueEmpty();
  EXPECT_EQ(raised, 1);
}

}  // namespace
}  // namespace vmod17

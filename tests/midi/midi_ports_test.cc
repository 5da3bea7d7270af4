// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "midi/midi_ports.h"

#include <gmock/gmock.h>

#include "fake_ports.h"
#include "rendered_output.h"

namespace vmod17 {
namespace {

TEST(MidiPortNames, LoseTheAddressThatChangesWithEachPlugging) {
  EXPECT_EQ(LastingPortName("Midi Through:Midi Through Port-0 14:0"),
            "Midi Through:Midi Through Port-0");
  for (const char* name : {"Piano", "Piano 2", "Piano 2:", "Piano :2", "Piano a:0", "14:0", " 14:0",
                           "Piano 14:0 (2)", ""}) {
    EXPECT_EQ(LastingPortName(name), name);
  }
}

TEST(MidiPortNames, AreFoundWholeBeforeInParts) {
  const std::vector<std::string> names = {"Piano 2", "Piano", "Synthesizer"};
  EXPECT_EQ(FindDevice(names, "Piano"), 1);
  EXPECT_EQ(FindDevice(names, "Piano 24:0"), 1);
  EXPECT_EQ(FindDevice(names, "Synth"), 2);
  EXPECT_EQ(FindDevice(names, "Organ"), std::nullopt);
}

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class PortOutput : public ::testing::Test {
 protected:
  PortOutput() {
    ports_->names = {"Expander", "Organ"};
    rendered_.output.Get(MidiMember::GeraeteZahl);
  }

  std::vector<int> NotesOn(const std::string& port) const {
    std::vector<int> notes;
    for (const MidiBytes& message : ports_->Of(port, 0x90)) notes.push_back(message.data1);
    return notes;
  }
  std::vector<int> NotesOff(const std::string& port) const {
    std::vector<int> notes;
    for (const MidiBytes& message : ports_->Of(port, 0x80)) notes.push_back(message.data1);
    return notes;
  }

  std::shared_ptr<FakePorts> ports_ = std::make_shared<FakePorts>();
  RenderedOutput rendered_{RenderedOptions(ports_)};
};

TEST_F(PortOutput, ComesBeforeTheSynthesizerInTheList) {
  const std::vector<std::string> names = rendered_.output.DeviceNames();
  ASSERT_THAT(names, SizeIs(3));
  EXPECT_EQ(names[0], "Expander");
  EXPECT_EQ(names[1], "Organ");
}

TEST_F(PortOutput, IsFoundByAPartOfItsNameOnceTheSystemHasAnswered) {
  ports_->known = false;
  EXPECT_EQ(rendered_.output.NumberOf("Org"), 1);
  EXPECT_EQ(rendered_.output.NumberOf("Synth"), 2);
  EXPECT_EQ(rendered_.output.NumberOf("Klavier"), std::nullopt);
}

TEST_F(PortOutput, GetsTheQueueInTime) {
  rendered_.Open(1);
  rendered_.QueueNote(60, 0, 900);
  rendered_.QueueNote(64, 100, 800);
  rendered_.Do(MidiBefehl::kStart);
  EXPECT_THAT(NotesOn("Organ"), ElementsAre(60));
  rendered_.Render(98);
  EXPECT_THAT(NotesOn("Organ"), ElementsAre(60));
  rendered_.Render(4);
  EXPECT_THAT(NotesOn("Organ"), ElementsAre(60, 64));
  EXPECT_THAT(NotesOff("Organ"), IsEmpty());
  rendered_.Render(900);
  EXPECT_THAT(NotesOff("Organ"), ElementsAre(60, 64));
  EXPECT_EQ(rendered_.queue_empty, 1);
}

TEST_F(PortOutput, IsCentredOnTheChannelsInUseByOpeningAndGetsTheProgramsThatWereSentBefore) {
  rendered_.Program(3, 71);
  rendered_.Open(0);
  EXPECT_THAT(ports_->Of("Expander", 0xE0), SizeIs(8));
  for (const MidiBytes& bend : ports_->Of("Expander", 0xE0)) {
    EXPECT_EQ(bend.data1, 0);
    EXPECT_EQ(bend.data2, 64);
  }
  const std::vector<MidiBytes> programs = ports_->Of("Expander", 0xC0);
  ASSERT_THAT(programs, SizeIs(1));
  EXPECT_EQ(programs[0].status, 0xC3);
  EXPECT_EQ(programs[0].data1, 71);
}

TEST_F(PortOutput, StaysConnectedThroughAResetAndIsCentredAgain) {
  rendered_.Open(0);
  rendered_.Program(0, 71);
  rendered_.Send(0xE0, 0, 70);
  ports_->got.clear();
  rendered_.Reset();
  EXPECT_EQ(ports_->opened, 1);
  EXPECT_THAT(ports_->Of("Expander", 0xC0), IsEmpty());
  ASSERT_THAT(ports_->Of("Expander", 0xE0), SizeIs(8));
  EXPECT_EQ(ports_->Of("Expander", 0xE0)[0].data2, 64);
}

TEST_F(PortOutput, FallsSilentWhenClosedWhileNotesSound) {
  rendered_.Open(0);
  rendered_.QueueNote(60, 0, 1000);
  rendered_.QueueNote(67, 0, 1000, 2);
  rendered_.QueueNote(72, 500, 500);
  rendered_.Do(MidiBefehl::kStart);
  rendered_.Render(100);
  rendered_.Reset();
  EXPECT_THAT(NotesOff("Expander"), ElementsAre(60, 67));
  EXPECT_EQ(ports_->Of("Expander", 0x80)[1].status, 0x82);
  rendered_.Render(2000);
  EXPECT_THAT(NotesOn("Expander"), ElementsAre(60, 67));
}

TEST_F(PortOutput, ThatVanishesWhileItPlaysIsToldOnceAndTheQueueGoesOn) {
  rendered_.Open(0);
  rendered_.QueueNote(60, 0, 1000);
  rendered_.QueueNote(64, 300, 700);
  rendered_.Do(MidiBefehl::kStart);
  rendered_.Render(100);
  EXPECT_THAT(rendered_.notices, IsEmpty());
  ports_->names = {"Organ"};
  rendered_.Render(500);
  ASSERT_THAT(rendered_.notices, SizeIs(1));
  EXPECT_EQ(rendered_.notices[0].text_id, 9155);
  EXPECT_THAT(rendered_.notices[0].details, ElementsAre("Expander"));
  EXPECT_EQ(rendered_.queue_empty, 0);
  rendered_.Render(1000);
  EXPECT_EQ(rendered_.queue_empty, 1);
  EXPECT_THAT(rendered_.notices, SizeIs(1));
}

TEST_F(PortOutput, ThatVanishesInALongNoteIsNoticedBeforeTheNextMessage) {
  rendered_.Open(0);
  rendered_.QueueNote(60, 0, 4000);
  rendered_.Do(MidiBefehl::kStart);
  rendered_.Render(100);
  ports_->names.clear();
  rendered_.Render(1000);
  EXPECT_THAT(rendered_.notices, SizeIs(1));
}

TEST_F(PortOutput, ThatIsPulledOutWhileNothingPlaysIsMissedWithinASecond) {
  std::vector<MidiKlangStand> told;
  rendered_.output.KlangWechsel = [&] {
    told.push_back(static_cast<MidiKlangStand>(rendered_.output.Get(MidiMember::KlangStand)));
  };
  rendered_.Open(0);
  rendered_.Render(5000);
  EXPECT_THAT(told, ElementsAre(MidiKlangStand::kDa));
  ports_->names = {"Organ"};
  rendered_.Render(1000);
  EXPECT_THAT(told, ElementsAre(MidiKlangStand::kDa, MidiKlangStand::kWeg));
  EXPECT_THAT(rendered_.notices, IsEmpty()) << "who listens is not told twice";
  ports_->names = {"Expander"};
  rendered_.Reset();
  rendered_.Render(1000);
  EXPECT_EQ(told.back(), MidiKlangStand::kDa);
}

TEST_F(PortOutput, ThatComesBackSoundsAgainAfterAResetWithItsPrograms) {
  rendered_.Open(0);
  rendered_.Program(1, 68);
  ports_->names = {"Organ"};
  rendered_.Reset();
  rendered_.Render(10);
  EXPECT_THAT(rendered_.notices, SizeIs(1));
  ports_->names = {"Organ", "Expander"};
  ports_->got.clear();
  rendered_.Reset();
  EXPECT_THAT(ports_->Of("Expander", 0xC0), SizeIs(1));
  rendered_.QueueNote(60, 0, 100);
  rendered_.Do(MidiBefehl::kStart);
  EXPECT_THAT(NotesOn("Expander"), ElementsAre(60));
}

TEST_F(PortOutput, HandsThePlayingOverWhenAnotherDeviceIsOpened) {
  rendered_.Open(0);
  rendered_.QueueNote(60, 0, 1000);
  rendered_.Do(MidiBefehl::kStart);
  rendered_.Do(MidiBefehl::kStopp);
  rendered_.Do(MidiBefehl::kSchliessen);
  rendered_.Open(1);
  rendered_.QueueNote(62, 0, 1000);
  rendered_.Do(MidiBefehl::kStart);
  EXPECT_THAT(NotesOff("Expander"), ElementsAre(60));
  EXPECT_THAT(NotesOn("Organ"), ElementsAre(62));
}

TEST_F(PortOutput, GetsNothingThatIsNoChannelMessage) {
  rendered_.Open(0);
  ports_->got.clear();
  rendered_.Send(0xF8, 0, 0);
  rendered_.Send(60, 0, 0);
  EXPECT_THAT(ports_->got, IsEmpty());
}

TEST_F(PortOutput, IsMeantByTheNumberThatWasToldWhenTheListChangesBeforeItsUse) {
  ASSERT_EQ(rendered_.output.NumberOf("Organ"), 1);
  ports_->names = {"New Piano", "Expander", "Organ"};
  ASSERT_EQ(rendered_.output.Get(MidiMember::GeraeteZahl), 4);
  rendered_.Open(1);
  rendered_.QueueNote(60, 0, 1000);
  rendered_.Do(MidiBefehl::kStart);
  EXPECT_THAT(NotesOn("Organ"), ElementsAre(60));
  EXPECT_THAT(NotesOn("Expander"), IsEmpty());
}

TEST_F(PortOutput, ThatIsGoneBeforeItsUseIsMissedByItsName) {
  ASSERT_EQ(rendered_.output.NumberOf("Organ"), 1);
  ports_->names = {};
  ASSERT_EQ(rendered_.output.Get(MidiMember::GeraeteZahl), 1);
  rendered_.Open(1);
  rendered_.Render(10);
  ASSERT_THAT(rendered_.notices, SizeIs(1));
  EXPECT_EQ(rendered_.notices[0].text_id, 9155);
  EXPECT_THAT(rendered_.notices[0].details, ElementsAre("Organ"));
}

/// Loudness on a port: controller 7 of the channels in use, 100 where nothing is changed.
class PortVolume : public PortOutput {
 protected:
  struct Volume {
    int channel;
    int value;
    bool operator==(const Volume&) const = default;
  };

  PortVolume() { rendered_.Open(0); }
  void SetVolume(int value) {
    rendered_.output.Set(MidiMember::VolumeLinks, value);
    rendered_.output.Set(MidiMember::VolumeRechts, value);
  }
  /// What the program does with the volume at the start of a queue, `ms` long.
  void Rise(double ms) {
    for (int value = 0; value <= 65500; value += 500) {
      SetVolume(value);
      rendered_.Render(ms / 132);
    }
    SetVolume(65535);
  }
  std::vector<Volume> Volumes() const {
    std::vector<Volume> volumes;
    for (const MidiBytes& message : ports_->Of("Expander", 0xB0)) {
      EXPECT_EQ(message.data1, 7);
      volumes.push_back({message.channel(), message.data2});
    }
    return volumes;
  }
};

TEST_F(PortVolume, IsNotTouchedByARiseThatIsOverBeforeItCouldBeHeard) {
  rendered_.QueueNote(60, 0, 1000);
  rendered_.Do(MidiBefehl::kStart);
  Rise(5);
  rendered_.Render(2000);
  EXPECT_THAT(Volumes(), IsEmpty());
}

TEST_F(PortVolume, FollowsALongRiseFiftyTimesASecondAndEndsAtTheNormalVolume) {
  rendered_.QueueNote(60, 0, 3000, 0);
  rendered_.QueueNote(64, 0, 3000, 1);
  rendered_.Do(MidiBefehl::kStart);
  Rise(1000);
  rendered_.Render(100);
  const std::vector<Volume> volumes = Volumes();
  EXPECT_GE(volumes.size(), 80u);
  EXPECT_LE(volumes.size(), 104u);
  EXPECT_EQ(volumes.end()[-2], (Volume{0, 100}));
  EXPECT_EQ(volumes.end()[-1], (Volume{1, 100}));
}

TEST_F(PortVolume, OfAQueueThatBeginsFadedIsSentBeforeItsFirstNotes) {
  SetVolume(0);
  rendered_.Render(100);
  EXPECT_THAT(Volumes(), IsEmpty()) << "no channel is in use";
  rendered_.QueueNote(60, 0, 1000, 3);
  rendered_.Do(MidiBefehl::kStart);
  EXPECT_EQ(Volumes(), (std::vector<Volume>{{3, 0}}));
  EXPECT_EQ(ports_->got.back().message.kind(), MidiBytes::kNoteOn);
  SetVolume(65535);
  rendered_.Render(100);
  EXPECT_EQ(Volumes(), (std::vector<Volume>{{3, 0}, {3, 100}}));
}

TEST_F(PortVolume, IsPutBackByClosingAndSetAgainWhereItIsStillDown) {
  rendered_.QueueNote(60, 0, 1000);
  rendered_.Do(MidiBefehl::kStart);
  SetVolume(32768);
  rendered_.Render(100);
  EXPECT_EQ(Volumes(), (std::vector<Volume>{{0, 50}}));
  rendered_.Do(MidiBefehl::kSchliessen);
  EXPECT_EQ(Volumes(), (std::vector<Volume>{{0, 50}, {0, 100}}));
  ports_->got.clear();
  rendered_.Open(0);
  EXPECT_THAT(Volumes(), IsEmpty());
  rendered_.QueueNote(60, 0, 1000);
  rendered_.Do(MidiBefehl::kStart);
  EXPECT_EQ(Volumes(), (std::vector<Volume>{{0, 50}}));
}

TEST_F(PortVolume, IsPutBackBeforeAnotherDeviceTakesOver) {
  rendered_.QueueNote(60, 0, 1000);
  rendered_.Do(MidiBefehl::kStart);
  SetVolume(0);
  rendered_.Render(100);
  rendered_.Open(1);
  EXPECT_EQ(Volumes(), (std::vector<Volume>{{0, 0}, {0, 100}}));
}

TEST(SystemMidiPorts, CanBeListedOnAnyMachine) {
  testing::internal::CaptureStderr();
  const std::unique_ptr<MidiPorts> ports = MakeSystemMidiPorts();
  ports->Prepare();
  const std::vector<std::string> names = ports->Names();
  EXPECT_EQ(ports->Open("there is no port of this name"), nullptr);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_THAT(names, ::testing::Each(::testing::Not(IsEmpty())));
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "sound/note_queue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "shell/shell_fixture.h"
#include "support/recording_midi_output.h"

namespace vmod17 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class Queue : public ::testing::Test, protected ShellFixture {
 protected:
  Queue() {
    server.HostVerbinden();
    state.FillTables();
    midi.MidiOeffnen(output);
    output.Forget();
    settings.tempo_idx = 5;  // 1000 ms
    settings.arp_tempo_idx = 0;
    settings.RechneArpDauer(state);  // 125 ms
    settings.arp_richtung = kArpOhne;
  }
  void Put(int slot, const std::vector<int>& noten, const std::vector<int>& folge = {}) {
    NoteQueue(midi, state, settings, 20).ReiheEin(slot, noten, folge, kanal);
  }
  std::vector<MidiMessage> Ons() {
    std::vector<MidiMessage> ons;
    for (const MidiMessage& m : output.queued) {
      if (m.IsNoteOn()) ons.push_back(m);
    }
    return ons;
  }
  template <typename Part>
  std::vector<double> Of(Part part) {
    std::vector<double> values;
    for (const MidiMessage& m : Ons()) values.push_back(part(m));
    return values;
  }
  std::vector<double> Notes() {
    return Of([](const MidiMessage& m) { return m.data1; });
  }
  std::vector<double> Starts() {
    return Of([](const MidiMessage& m) { return m.zeit; });
  }
  std::vector<double> Channels() {
    return Of([](const MidiMessage& m) { return m.channel(); });
  }
  std::vector<double> Velocities() {
    return Of([](const MidiMessage& m) { return m.data2; });
  }
  std::vector<double> Ends() {
    std::vector<double> ends;
    for (const MidiMessage& m : output.queued) {
      if (m.IsNoteOff()) ends.push_back(m.zeit);
    }
    return ends;
  }

  RecordingMidiOutput output;
  ModMIDI midi{loop, server};
  ExerciseSettings settings;
  int kanal = 0;
};

TEST_F(Queue, StartsAllNotesAtOnceWithoutAnArpeggio) {
  Put(1, {48, 52, 55});
  EXPECT_THAT(Notes(), ElementsAre(48, 52, 55));
  EXPECT_THAT(Starts(), ElementsAre(0, 0, 0));
  EXPECT_THAT(Ends(), ElementsAre(900, 900, 900));
}

TEST_F(Queue, PutsEachChordBehindTheOneBefore) {
  Put(3, {48, 52});
  EXPECT_THAT(Starts(), ElementsAre(2000, 2000));
  EXPECT_THAT(Ends(), ElementsAre(2900, 2900));
}

TEST_F(Queue, RisesOrFallsByTheStepOfTheArpeggioAndEndsAllNotesTogether) {
  settings.arp_richtung = kArpAufwaerts;
  Put(2, {48, 52, 55});
  EXPECT_THAT(Notes(), ElementsAre(48, 52, 55));
  EXPECT_THAT(Starts(), ElementsAre(1000, 1125, 1250));
  EXPECT_THAT(Ends(), ElementsAre(1900, 1900, 1900));
  output.queued.clear();
  settings.arp_richtung = kArpAbwaerts;
  Put(2, {48, 52, 55});
  EXPECT_THAT(Notes(), ElementsAre(55, 52, 48));
  EXPECT_THAT(Starts(), ElementsAre(1000, 1125, 1250));
}

TEST_F(Queue, FollowsTheGivenOrder) {
  settings.arp_richtung = kArpZufall;
  Put(1, {48, 52, 55, 59}, {2, 0, 3, 1});
  EXPECT_THAT(Notes(), ElementsAre(55, 48, 59, 52));
  EXPECT_THAT(Starts(), ElementsAre(0, 125, 250, 375));
}

TEST_F(Queue, GivesEachVoiceAChannelOfItsOwnInEveryOrder) {
  settings.klangfarb_art = 1;
  Put(1, {48, 52, 55});
  EXPECT_THAT(Channels(), ElementsAre(1, 2, 3));
  EXPECT_EQ(kanal, 3);
  output.queued.clear();
  settings.arp_richtung = kArpAbwaerts;
  Put(1, {48, 52, 55});
  EXPECT_THAT(Channels(), ElementsAre(3, 2, 1));
  output.queued.clear();
  settings.arp_richtung = kArpZufall;
  Put(1, {48, 52, 55}, {1, 2, 0});
  EXPECT_THAT(Channels(), ElementsAre(2, 3, 1));
}

TEST_F(Queue, KeepsTheChannelWithOneTimbre) {
  kanal = 5;
  Put(1, {48, 52});
  EXPECT_THAT(Channels(), ElementsAre(5, 5));
}

TEST_F(Queue, AccentsTheRootWhereverItFalls) {
  settings.grundton_betont = 1;
  Put(1, {48, 52, 55});
  EXPECT_THAT(Velocities(), ElementsAre(120, 100, 100));
  output.queued.clear();
  settings.arp_richtung = kArpAbwaerts;
  Put(1, {48, 52, 55});
  EXPECT_THAT(Velocities(), ElementsAre(100, 100, 120));
  EXPECT_EQ(midi.midiVelocity, 100);
}

TEST_F(Queue, AccentsUpTo127AndNoFurther) {
  settings.grundton_betont = 1;
  midi.midiVelocity = 115;
  Put(1, {48, 52});
  EXPECT_THAT(Velocities(), ElementsAre(127, 115));
  EXPECT_EQ(midi.midiVelocity, 115);
}

TEST_F(Queue, HoldsNothingForAnUnknownDirection) {
  settings.arp_richtung = 4;
  Put(1, {48, 52, 55});
  EXPECT_THAT(output.queued, IsEmpty());
}

TEST_F(Queue, HoldsTwoMessagesForANote) {
  Put(1, {48});
  ASSERT_THAT(output.queued, SizeIs(2));
  EXPECT_EQ(output.queued[0].status, 144);
  EXPECT_EQ(output.queued[1].status, 128);
}

}  // namespace
}  // namespace vmod17

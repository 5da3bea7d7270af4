// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "sound/sample_playback.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "shell/shell_fixture.h"
#include "support/recording_midi_output.h"
#include "support/scripted_random.h"

namespace vmod17 {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

class Sample : public ::testing::Test, protected ShellFixture {
 protected:
  Sample() {
    server.HostVerbinden();
    state.FillTables();
    midi.MidiOeffnen(output);
    output.Forget();
    settings.tempo_idx = 5;
    settings.RechneArpDauer(state);
    settings.arp_richtung = kArpOhne;
    settings.akk_anzahl = 1;
    settings.ton_unten = 48;
    settings.ton_oben = 72;
  }
  void Play(int noten) {
    output.queued.clear();
    SamplePlayback sample(midi, state, settings, random);
    sample.Baue(noten);
    sample.ReiheEin();
  }
  std::vector<int> Notes() {
    std::vector<int> notes;
    for (const MidiMessage& m : output.queued) {
      if (m.IsNoteOn()) notes.push_back(m.data1);
    }
    return notes;
  }
  std::vector<int> Velocities() {
    std::vector<int> velocities;
    for (const MidiMessage& m : output.queued) {
      if (m.IsNoteOn()) velocities.push_back(m.data2);
    }
    return velocities;
  }
  /// The roots of the chords, when these have one note.
  std::vector<int> Roots(int ton_unten, int ton_oben, int akk_anzahl) {
    settings.ton_unten = ton_unten;
    settings.ton_oben = ton_oben;
    settings.akk_anzahl = akk_anzahl;
    Play(1);
    return Notes();
  }

  RecordingMidiOutput output;
  ModMIDI midi{loop, server};
  ExerciseSettings settings;
  ScriptedRandom random;
};

TEST_F(Sample, StacksThirdsAboveTheLowestNote) {
  const std::map<int, std::vector<int>> expected = {{3, {48, 52, 55}},
                                                    {4, {48, 52, 55, 59}},
                                                    {5, {48, 52, 55, 59, 62}},
                                                    {6, {48, 52, 55, 59, 62, 66}},
                                                    {7, {48, 52, 55, 59, 62, 66, 69}},
                                                    {8, {48, 52, 55, 59, 62, 66, 69, 73}}};
  for (const auto& [noten, stack] : expected) {
    Play(noten);
    EXPECT_THAT(Notes(), ElementsAreArray(stack)) << noten;
  }
}

TEST_F(Sample, ClimbsByARoundedStepFromChordToChord) {
  EXPECT_THAT(Roots(48, 84, 3), ElementsAre(48, 57, 66)) << "26 by 3 is 8.67, so 9";
  EXPECT_THAT(Roots(48, 72, 1), ElementsAre(48));
  EXPECT_THAT(Roots(48, 72, 2), ElementsAre(48, 55));
  EXPECT_THAT(Roots(48, 72, 3), ElementsAre(48, 53, 58)) << "14 by 3 is 4.67, so 5";
  EXPECT_THAT(Roots(36, 84, 3), ElementsAre(36, 49, 62)) << "38 by 3 is 12.67, so 13";
}

TEST_F(Sample, RoundsAHalfStepToTheEvenOne) {
  EXPECT_THAT(Roots(48, 72, 4), ElementsAre(48, 52, 56, 60)) << "14 by 4 is 3.5, so 4";
  EXPECT_THAT(Roots(48, 84, 4), ElementsAre(48, 54, 60, 66)) << "26 by 4 is 6.5, so 6";
  EXPECT_THAT(Roots(36, 84, 4), ElementsAre(36, 46, 56, 66)) << "38 by 4 is 9.5, so 10";
}

TEST_F(Sample, AccentsItsRootByFifteen) {
  settings.grundton_betont = 1;
  Play(3);
  EXPECT_THAT(Velocities(), ElementsAre(115, 100, 100));
  midi.midiVelocity = 120;
  Play(3);
  EXPECT_THAT(Velocities(), ElementsAre(127, 120, 120));
  EXPECT_EQ(midi.midiVelocity, 120);
}

TEST_F(Sample, DrawsOneOrderForAllItsChords) {
  settings.arp_richtung = kArpZufall;
  settings.akk_anzahl = 2;
  // Of three notes: 2, again 2, 0, again 2, 1.
  random.Script({0.7f, 0.9f, 0.1f, 0.99f, 0.34f});
  random.script_only = true;
  Play(3);
  EXPECT_THAT(Notes(), ElementsAre(55, 48, 52, 62, 55, 59));
  EXPECT_TRUE(random.ScriptDone());
}

TEST_F(Sample, DrawsNothingInTheOtherDirections) {
  random.script_only = true;
  for (const int richtung : {kArpAufwaerts, kArpAbwaerts, kArpOhne}) {
    settings.arp_richtung = richtung;
    EXPECT_NO_THROW(Play(4)) << richtung;
  }
}

TEST_F(Sample, GivesUpWhenNoOrderCanBeDrawn) {
  settings.arp_richtung = kArpZufall;
  random.Always(0.5f);
  EXPECT_THROW(Play(3), RunTimeError);
}

TEST_F(Sample, SendsNoBendEvenWithVaryingTuning) {
  settings.frequenz_art = 1;
  Play(4);
  EXPECT_THAT(output.sent, IsEmpty());
}

}  // namespace
}  // namespace vmod17

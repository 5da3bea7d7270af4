// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "sound/chord_playback.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <vector>

#include "base/run_time_error.h"
#include "support/memory_host.h"
#include "support/recording_midi_output.h"
#include "support/scripted_random.h"
#include "support/simulated_loop.h"

namespace vmod17 {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr int kTempo120 = 5;  // chords of 1000 ms
constexpr int kTempo140 = 6;  // chords of 856 ms

/// A task on a board of 10 triads (entries 1 to 10) and 5 seven-note chords (11 to 15), or of
/// four-note chords alone. The notes of slot s are 40 + 10 s and up, each 2 higher, so that each
/// note of a task is known by its pitch.
class Playback : public ::testing::Test {
 protected:
  Playback() {
    state_.FillTables();
    settings_.tempo_idx = kTempo120;
    settings_.arp_dauer = 62;
    settings_.arp_richtung = kArpAufwaerts;
    settings_.akk_anzahl = 1;
    server_.HostVerbinden();
    midi_.MidiGeraeteListe(output_);
    midi_.MidiOeffnen(output_);
    table_.SetzeKlangZahlen();
    for (int slot = 1; slot <= 4; ++slot) {
      for (int j = 0; j < 7; ++j) task_.akk_ton_ar[slot][j] = Note(slot, j);
    }
    output_.Forget();
  }

  static int Note(int slot, int j) { return 20 + 20 * slot + 2 * j; }

  void BoardOf(std::vector<int> klangtypen, std::vector<int> gruppen) {
    board_.SetzeAkkTab({klangtypen, gruppen, 0, 0}, random_);
  }
  void FourNotes() {
    BoardOf({4}, {1, 2, 3, 4, 5, 6, 7, 8});
    task_.aufg_akk_ar = {0, 1, 2, 3, 4};
  }
  void SevenNotes() {
    BoardOf({3, 7}, {2, 5});
    task_.aufg_akk_ar = {0, 11, 12, 13, 14};
  }
  void Play() {
    beginn_ = playback_.SpieleAufgabe(task_, abbruch_, [] {});
  }

  std::vector<double> NoteOnTimes() const { return Times(output_.PlayedNoteOns()); }
  std::vector<double> NoteOffTimes() const { return Times(output_.PlayedNoteOffs()); }
  static std::vector<double> Times(const std::vector<MidiMessage>& messages) {
    std::vector<double> times;
    for (const MidiMessage& message : messages) times.push_back(message.zeit);
    return times;
  }
  /// The notes as they were queued, by pitch.
  std::vector<int> Pitches() const {
    std::vector<int> pitches;
    for (const MidiMessage& message : output_.played) {
      if (message.IsNoteOn()) pitches.push_back(message.data1);
    }
    return pitches;
  }
  /// Channel by pitch.
  std::map<int, int> Channels() const {
    std::map<int, int> channels;
    for (const MidiMessage& message : output_.played) {
      if (message.IsNoteOn()) channels[message.data1] = message.channel();
    }
    return channels;
  }
  /// The bends that were sent, channel 0 first.
  std::vector<int> Bends() const {
    std::vector<int> bends;
    for (const MidiMessage& message : output_.sent) bends.push_back(message.data2);
    return bends;
  }
  /// Velocity by pitch.
  std::map<int, int> Velocities() const {
    std::map<int, int> velocities;
    for (const MidiMessage& message : output_.played) {
      if (message.IsNoteOn()) velocities[message.data1] = message.data2;
    }
    return velocities;
  }

  SimulatedLoop loop_{0};
  MemoryHost host_;
  ModServer server_{host_.Factory(), {"vmod17", 1, 0, 0}};
  RecordingMidiOutput output_;
  ModMIDI midi_{loop_, server_};
  AppState state_;
  ExerciseSettings settings_;
  ScriptedRandom random_;
  ChordTable table_;
  ChordBoard board_{table_};
  PlaybackTask task_;
  bool abbruch_ = false;
  Spielstand beginn_ = Spielstand::kKlingt;
  ChordPlayback playback_{loop_, midi_, state_, settings_, board_};
};

// --- Times ----------------------------------------------------------------------------------

TEST_F(Playback, SpreadsFourNotesUpwardsAndEndsThemTogether) {
  FourNotes();
  Play();
  EXPECT_THAT(NoteOnTimes(), ElementsAre(0, 62, 124, 186));
  EXPECT_THAT(NoteOffTimes(), ElementsAre(900, 900, 900, 900));
  EXPECT_THAT(Pitches(), ElementsAre(40, 42, 44, 46));
}

TEST_F(Playback, LetsTheSecondChordFollowAfterTheFirstOnesSlot) {
  FourNotes();
  settings_.tempo_idx = 0;
  settings_.arp_richtung = kArpOhne;
  settings_.akk_anzahl = 2;
  Play();
  EXPECT_THAT(NoteOnTimes(), ElementsAre(0, 0, 0, 0, 4000, 4000, 4000, 4000));
  EXPECT_THAT(NoteOffTimes(), ElementsAre(3600, 3600, 3600, 3600, 7600, 7600, 7600, 7600));
  EXPECT_THAT(Pitches(), ElementsAre(40, 42, 44, 46, 60, 62, 64, 66));
}

TEST_F(Playback, KeepsTheLastNoteOfTheLongestArpeggioSounding) {
  SevenNotes();
  settings_.tempo_idx = 0;
  settings_.arp_dauer = 500;  // 4000 / 8
  Play();
  EXPECT_THAT(NoteOnTimes(), ElementsAre(0, 500, 1000, 1500, 2000, 2500, 3000));
  EXPECT_THAT(NoteOffTimes(), Each(3600));
}

TEST_F(Playback, EndsNotesAtAFractionOfAMillisecond) {
  FourNotes();
  settings_.tempo_idx = kTempo140;
  settings_.arp_dauer = 54;
  settings_.akk_anzahl = 2;
  Play();
  EXPECT_THAT(NoteOnTimes(), ElementsAre(0, 54, 108, 162, 856, 910, 964, 1018));
  const std::vector<double> ends = NoteOffTimes();
  ASSERT_THAT(ends, SizeIs(8));
  for (int i = 0; i < 4; ++i) {
    EXPECT_NEAR(ends[i], 856 - 85.6, 1e-9);
    EXPECT_NEAR(ends[i + 4], 2 * 856 - 85.6, 1e-9);
  }
}

TEST_F(Playback, SpreadsAllChordsOfATaskInTheirSlots) {
  FourNotes();
  settings_.akk_anzahl = 4;
  Play();
  EXPECT_THAT(NoteOnTimes(), ElementsAre(0, 62, 124, 186, 1000, 1062, 1124, 1186,  //
                                         2000, 2062, 2124, 2186, 3000, 3062, 3124, 3186));
  EXPECT_THAT(NoteOffTimes(), ElementsAre(900, 900, 900, 900, 1900, 1900, 1900, 1900,  //
                                          2900, 2900, 2900, 2900, 3900, 3900, 3900, 3900));
}

TEST_F(Playback, PlaysChordsOfDifferentSizesInOneTask) {
  BoardOf({3, 7}, {2, 5});
  task_.aufg_akk_ar = {0, 1, 11, 0, 0};
  settings_.akk_anzahl = 2;
  settings_.arp_richtung = kArpOhne;
  Play();
  EXPECT_THAT(NoteOnTimes(), ElementsAre(0, 0, 0, 1000, 1000, 1000, 1000, 1000, 1000, 1000));
}

TEST_F(Playback, MarksEachNoteOnWith0AndEachNoteOffWithAMillion) {
  FourNotes();
  Play();
  EXPECT_THAT(output_.PlayedNoteOns(), Each(Field(&MidiMessage::marke, 0)));
  EXPECT_THAT(output_.PlayedNoteOffs(), Each(Field(&MidiMessage::marke, 1000000)));
}

// --- Orders ---------------------------------------------------------------------------------

TEST_F(Playback, SpreadsTheNotesDownwards) {
  FourNotes();
  settings_.arp_richtung = kArpAbwaerts;
  Play();
  EXPECT_THAT(Pitches(), ElementsAre(46, 44, 42, 40));
  EXPECT_THAT(NoteOnTimes(), ElementsAre(0, 62, 124, 186));
  EXPECT_THAT(NoteOffTimes(), Each(900));
}

TEST_F(Playback, SpreadsTheNotesInTheOrderDrawnForTheirSlot) {
  FourNotes();
  settings_.arp_richtung = kArpZufall;
  settings_.akk_anzahl = 2;
  task_.arp_folge_ar[1] = {2, 0, 3, 1};
  task_.arp_folge_ar[2] = {3, 2, 1, 0};
  Play();
  EXPECT_THAT(Pitches(), ElementsAre(44, 40, 46, 42, 66, 64, 62, 60));
  EXPECT_THAT(NoteOnTimes(), ElementsAre(0, 62, 124, 186, 1000, 1062, 1124, 1186));
}

TEST_F(Playback, PlaysAllNotesAtOnceWithoutAnArpeggio) {
  FourNotes();
  settings_.arp_richtung = kArpOhne;
  Play();
  EXPECT_THAT(Pitches(), ElementsAre(40, 42, 44, 46));
  EXPECT_THAT(NoteOnTimes(), Each(0));
  EXPECT_THAT(NoteOffTimes(), Each(900));
}

TEST_F(Playback, QueuesNothingForAnUnknownDirection) {
  FourNotes();
  for (const int richtung : {4, -1}) {
    settings_.arp_richtung = richtung;
    Play();
    EXPECT_THAT(output_.played, IsEmpty());
  }
}

// --- Channels -------------------------------------------------------------------------------

TEST_F(Playback, PlaysAllNotesOnChannel0WithOneTimbre) {
  FourNotes();
  task_.arp_folge_ar[1] = {2, 0, 3, 1};
  task_.kanal = 5;
  for (const int richtung : {kArpAufwaerts, kArpAbwaerts, kArpZufall, kArpOhne}) {
    settings_.arp_richtung = richtung;
    Play();
    EXPECT_THAT(output_.PlayedNoteOns(), SizeIs(4));
    EXPECT_THAT(output_.played, Each(::testing::Property(&MidiMessage::channel, 0))) << richtung;
  }
}

TEST_F(Playback, GivesEachVoiceItsOwnChannelInAllDirections) {
  FourNotes();
  settings_.klangfarb_art = 1;
  settings_.akk_anzahl = 2;
  task_.arp_folge_ar[1] = {2, 0, 3, 1};
  task_.arp_folge_ar[2] = {1, 3, 0, 2};
  const std::map<int, int> expected = {{40, 1}, {42, 2}, {44, 3}, {46, 4},
                                       {60, 1}, {62, 2}, {64, 3}, {66, 4}};
  for (const int richtung : {kArpAufwaerts, kArpAbwaerts, kArpZufall, kArpOhne}) {
    settings_.arp_richtung = richtung;
    Play();
    EXPECT_EQ(Channels(), expected) << richtung;
  }
}

TEST_F(Playback, ReachesChannel7WithTheSeventhVoice) {
  SevenNotes();
  settings_.klangfarb_art = 1;
  for (const int richtung : {kArpAufwaerts, kArpAbwaerts, kArpOhne}) {
    settings_.arp_richtung = richtung;
    Play();
    EXPECT_EQ(Channels().at(Note(1, 6)), 7) << richtung;
    EXPECT_EQ(Channels().at(Note(1, 0)), 1) << richtung;
  }
}

TEST_F(Playback, EndsEachNoteOnTheChannelItBeganOn) {
  FourNotes();
  settings_.klangfarb_art = 1;
  Play();
  std::map<int, int> ends;
  for (const MidiMessage& message : output_.PlayedNoteOffs()) {
    ends[message.data1] = message.channel();
  }
  EXPECT_EQ(ends, Channels());
}

// --- Accent ---------------------------------------------------------------------------------

TEST_F(Playback, PlaysAllNotesAlikeWithoutAnAccent) {
  FourNotes();
  Play();
  EXPECT_EQ(Velocities(), (std::map<int, int>{{40, 100}, {42, 100}, {44, 100}, {46, 100}}));
}

TEST_F(Playback, AccentsTheRootBy20) {
  FourNotes();
  settings_.grundton_betont = 1;
  Play();
  EXPECT_EQ(Velocities(), (std::map<int, int>{{40, 120}, {42, 100}, {44, 100}, {46, 100}}));
}

TEST_F(Playback, AccentsNoHigherThan127) {
  FourNotes();
  settings_.grundton_betont = 1;
  midi_.midiVelocity = 120;
  Play();
  EXPECT_EQ(Velocities(), (std::map<int, int>{{40, 127}, {42, 120}, {44, 120}, {46, 120}}));
}

TEST_F(Playback, PutsTheVelocityBackAfterAnAccent) {
  FourNotes();
  settings_.grundton_betont = 1;
  midi_.midiVelocity = 120;
  Play();
  EXPECT_EQ(midi_.midiVelocity, 120);
}

TEST_F(Playback, AccentsTheRootWhereverItFalls) {
  FourNotes();
  settings_.grundton_betont = 1;
  settings_.akk_anzahl = 2;
  task_.arp_folge_ar[1] = {2, 0, 3, 1};
  task_.arp_folge_ar[2] = {1, 3, 2, 0};
  for (const int richtung : {kArpAufwaerts, kArpAbwaerts, kArpZufall, kArpOhne}) {
    settings_.arp_richtung = richtung;
    Play();
    EXPECT_EQ(Velocities(), (std::map<int, int>{{40, 120},
                                                {42, 100},
                                                {44, 100},
                                                {46, 100},
                                                {60, 120},
                                                {62, 100},
                                                {64, 100},
                                                {66, 100}}))
        << richtung;
  }
}

// --- Tuning ---------------------------------------------------------------------------------

TEST_F(Playback, BendsAllEightChannelsAlikeBeforeTheQueueIsFilled) {
  FourNotes();
  settings_.frequenz_art = 1;
  task_.ton_stimmung = -15;
  Play();
  ASSERT_GE(output_.messages.size(), 8u);
  for (int kanal = 0; kanal < 8; ++kanal) {
    const MidiMessage& message = output_.messages[static_cast<std::size_t>(kanal)];
    EXPECT_EQ(message.status, 224 + kanal);
    EXPECT_EQ(message.data1, 0);
    EXPECT_EQ(message.data2, 49);
    EXPECT_FALSE(message.queued);
  }
  EXPECT_THAT(output_.sent, SizeIs(8));
}

TEST_F(Playback, BendsToTheCentreWhenNoDetuningWasDrawn) {
  FourNotes();
  settings_.frequenz_art = 1;
  Play();
  EXPECT_THAT(output_.sent, SizeIs(8));
  EXPECT_THAT(output_.sent, Each(Field(&MidiMessage::data2, 64)));
}

TEST_F(Playback, SendsNoBendWithAFixedTuning) {
  FourNotes();
  task_.ton_stimmung = 9;
  Play();
  EXPECT_THAT(output_.sent, IsEmpty());
}

// --- Course ---------------------------------------------------------------------------------

TEST_F(Playback, ResetsThenQueuesThenStarts) {
  FourNotes();
  Play();
  std::vector<MidiBefehl> expected = {MidiBefehl::kStopp, MidiBefehl::kSchliessen,
                                      MidiBefehl::kOeffnen};
  expected.insert(expected.end(), 8, MidiBefehl::kEinreihen);
  expected.push_back(MidiBefehl::kStart);
  EXPECT_EQ(output_.befehle, expected);
}

TEST_F(Playback, Rests50MillisecondsBeforeTheQueueAnd100AfterIt) {
  FourNotes();
  double queued_at = -1;
  double started_at = -1;
  loop_.meanwhile = [&] {
    if (queued_at < 0 && !output_.queued.empty()) queued_at = loop_.Elapsed();
    if (started_at < 0 && output_.IsRunning()) started_at = loop_.Elapsed();
  };
  Play();
  EXPECT_NEAR(queued_at, 50, 0.5);
  EXPECT_NEAR(started_at, 150, 0.5);
}

TEST_F(Playback, SaysWhetherTheTaskSounds) {
  FourNotes();
  Play();
  EXPECT_EQ(beginn_, Spielstand::kKlingt);
  output_.SetDevice(RecordingMidiOutput::Device::kMute);
  Play();
  EXPECT_EQ(beginn_, Spielstand::kStumm);
  abbruch_ = true;
  Play();
  EXPECT_EQ(beginn_, Spielstand::kAbgebrochen);
}

TEST_F(Playback, StartsNothingWhenTheScreenIsLeftInTheFirstDelay) {
  FourNotes();
  loop_.meanwhile = [&] { abbruch_ = true; };
  settings_.frequenz_art = 1;
  Play();
  EXPECT_THAT(output_.messages, IsEmpty());
  EXPECT_EQ(output_.starts, 0);
}

TEST_F(Playback, StartsNothingWhenTheScreenIsLeftInTheSecondDelay) {
  FourNotes();
  loop_.meanwhile = [&] { abbruch_ = !output_.queued.empty(); };
  Play();
  EXPECT_THAT(output_.queued, SizeIs(8));
  EXPECT_EQ(output_.starts, 0);
}

TEST_F(Playback, StartsNothingWhenTheScreenWasLeftBefore) {
  FourNotes();
  abbruch_ = true;
  Play();
  EXPECT_THAT(output_.messages, IsEmpty());
  EXPECT_EQ(output_.starts, 0);
  EXPECT_EQ(loop_.Elapsed(), 0);
}

TEST_F(Playback, SoundsTheSameWhenItIsRepeated) {
  FourNotes();
  settings_.frequenz_art = 1;
  settings_.klangfarb_art = 1;
  settings_.grundton_betont = 1;
  settings_.arp_richtung = kArpZufall;
  settings_.akk_anzahl = 2;
  for (int slot : {1, 2}) ChordPlayback::ArpeggioMischen(task_, slot, 3, random_);
  ChordPlayback::TonhoeheWuerfeln(task_, random_);
  const int drawn = random_.draws;
  Play();
  const std::vector<MidiMessage> first = output_.played;
  const std::vector<int> bends = Bends();
  ASSERT_THAT(first, SizeIs(16));
  ASSERT_THAT(bends, SizeIs(8));
  output_.Forget();
  Play();
  EXPECT_EQ(output_.played, first);
  EXPECT_EQ(Bends(), bends);
  EXPECT_EQ(random_.draws, drawn) << "a playing draws nothing";
}

// --- TonhoeheWuerfeln -----------------------------------------------------------------------

TEST(TonhoeheWuerfeln, DetunesDownwardsWhenTheFirstDrawIsBelowOneHalf) {
  PlaybackTask task;
  ScriptedRandom random = {0.4999f, 0.5f};
  ChordPlayback::TonhoeheWuerfeln(task, random);
  EXPECT_EQ(task.ton_stimmung_vz, -1);
  EXPECT_EQ(task.ton_stimmung, -8);
  EXPECT_EQ(random.draws, 2);
}

TEST(TonhoeheWuerfeln, DetunesUpwardsFromOneHalfOn) {
  PlaybackTask task;
  ScriptedRandom random = {0.5f, 0.9999999f};
  ChordPlayback::TonhoeheWuerfeln(task, random);
  EXPECT_EQ(task.ton_stimmung_vz, 1);
  EXPECT_EQ(task.ton_stimmung, 15);
}

TEST(TonhoeheWuerfeln, CanLeaveTheTuningAsItIs) {
  PlaybackTask task;
  task.ton_stimmung = 9;
  ScriptedRandom random = {0.0f, 0.0624f};
  ChordPlayback::TonhoeheWuerfeln(task, random);
  EXPECT_EQ(task.ton_stimmung, 0);
  EXPECT_EQ(task.ton_stimmung_vz, -1);
}

TEST(TonhoeheWuerfeln, StepsBySixteenths) {
  PlaybackTask task;
  ScriptedRandom random = {0.7f, 0.0625f};
  ChordPlayback::TonhoeheWuerfeln(task, random);
  EXPECT_EQ(task.ton_stimmung, 1);
}

RC_GTEST_PROP(TonhoeheWuerfelnProperty, StaysWithin15StepsToEachSide, ()) {
  PlaybackTask task;
  ScriptedRandom random;
  random.Restart(*rc::gen::inRange(1, 1000000));
  ChordPlayback::TonhoeheWuerfeln(task, random);
  RC_ASSERT(task.ton_stimmung >= -15);
  RC_ASSERT(task.ton_stimmung <= 15);
  RC_ASSERT(task.ton_stimmung * task.ton_stimmung_vz >= 0);
}

// --- ArpeggioMischen ------------------------------------------------------------------------

TEST(ArpeggioMischen, TakesEachNoteAtItsFirstDrawAndDrawsAgainForOneThatStandsAlready) {
  PlaybackTask task;
  ScriptedRandom random = {0.9f, 0.99f, 0.0f, 0.1f, 0.74f, 0.49f};
  random.script_only = true;
  ChordPlayback::ArpeggioMischen(task, 2, 3, random);
  EXPECT_THAT(task.arp_folge_ar[2], ElementsAre(3, 0, 2, 1, 0, 0, 0, 1, 1, 1, 1, 0, 0, 0));
  EXPECT_TRUE(random.ScriptDone());
}

TEST(ArpeggioMischen, LeavesTheOtherSlotsAlone) {
  PlaybackTask task;
  task.arp_folge_ar[1].fill(6);
  task.arp_folge_ar[3].fill(6);
  ScriptedRandom random;
  ChordPlayback::ArpeggioMischen(task, 2, 3, random);
  EXPECT_THAT(task.arp_folge_ar[1], Each(6));
  EXPECT_THAT(task.arp_folge_ar[3], Each(6));
}

TEST(ArpeggioMischen, ForgetsTheLastOrderOfTheSlot) {
  PlaybackTask task;
  task.arp_folge_ar[1] = {3, 2, 1, 0, 0, 0, 0, 1, 1, 1, 1, 0, 0, 0};
  ScriptedRandom random = {0.1f, 0.4f, 0.9f};
  random.script_only = true;
  ChordPlayback::ArpeggioMischen(task, 1, 2, random);
  EXPECT_THAT(std::vector<int>(task.arp_folge_ar[1].begin(), task.arp_folge_ar[1].begin() + 3),
              ElementsAre(0, 1, 2));
}

TEST(ArpeggioMischen, GivesUpWhenTheGeneratorStandsStill) {
  PlaybackTask task;
  ScriptedRandom random;
  random.Always(0.5f);
  try {
    ChordPlayback::ArpeggioMischen(task, 1, 3, random);
    FAIL() << "it found an order";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), ErrorNumber::kNothingToDraw);
  }
}

RC_GTEST_PROP(ArpeggioMischenProperty, GivesEachNoteOnce, ()) {
  const int n = *rc::gen::inRange(2, 7);
  PlaybackTask task;
  ScriptedRandom random;
  random.Restart(*rc::gen::inRange(1, 1000000));
  ChordPlayback::ArpeggioMischen(task, 1, n, random);
  std::vector<int> order(task.arp_folge_ar[1].begin(), task.arp_folge_ar[1].begin() + n + 1);
  std::ranges::sort(order);
  for (int j = 0; j <= n; ++j) {
    RC_ASSERT(order[static_cast<std::size_t>(j)] == j);
    RC_ASSERT(task.arp_folge_ar[1][static_cast<std::size_t>(7 + j)] == 1);
  }
}

TEST_F(Playback, LeavesEveryNoteSomeTimeAtEveryTempoAndArpeggioTempo) {
  SevenNotes();
  for (int tempo = 0; tempo < 10; ++tempo) {
    for (int arpeggio = 0; arpeggio < 5; ++arpeggio) {
      settings_.tempo_idx = tempo;
      settings_.arp_tempo_idx = arpeggio;
      settings_.RechneArpDauer(state_);
      Play();
      ASSERT_THAT(NoteOnTimes(), SizeIs(7));
      EXPECT_GT(NoteOffTimes().front() - NoteOnTimes().back(), 0) << tempo << ' ' << arpeggio;
    }
  }
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// From task to task: what plays, what is open when, and the ways out.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "worksheet/mode_fixture.h"
#include "worksheet/worksheet_fixture.h"

namespace vmod17 {
namespace {

WorksheetFixture::Change Chords(int akk_anzahl) {
  return [=](ExerciseSettings& s) { s.akk_anzahl = akk_anzahl; };
}

void Automatic(ExerciseSettings& s) { s.abfolge = 1; }

std::vector<double> Times(const std::vector<MidiMessage>& messages) {
  std::vector<double> times;
  for (const MidiMessage& message : messages) times.push_back(message.zeit);
  return times;
}

std::vector<int> Notes(const std::vector<MidiMessage>& messages) {
  std::vector<int> notes;
  for (const MidiMessage& message : messages) notes.push_back(message.data1);
  return notes;
}

std::vector<int> Channels(const std::vector<MidiMessage>& messages) {
  std::vector<int> channels;
  for (const MidiMessage& message : messages) channels.push_back(message.channel());
  return channels;
}

/// Channel and value of each bend.
std::vector<std::pair<int, int>> Bends(const std::vector<MidiMessage>& messages) {
  std::vector<std::pair<int, int>> bends;
  for (const MidiMessage& message : messages) {
    if (message.IsPitchBend()) bends.emplace_back(message.channel(), message.data2);
  }
  return bends;
}

/// A task of one chord, C7 in ascending notes, with the notes above its root in `arp_richtung`.
void BeginWithC7(WorksheetFixture& p, const WorksheetFixture::Change& change) {
  p.Begin(
      [&](ExerciseSettings& s) {
        s.grundton_art = 1;
        s.tempo_idx = 5;
        s.arp_dauer = 62;
        change(s);
      },
      {4}, {4});            // C7 and C7sus4
  p.random.Script({0.0f});  // the first of both
  p.worksheet().CmdNextAufg.Press();
}

// ---- What is played ---------------------------------------------------------------------------

TEST(Playing, StaggersTheNotesOfAnAscendingArpeggioAndEndsThemTogether) {
  WorksheetFixture p;
  BeginWithC7(p, [](ExerciseSettings& s) { s.arp_richtung = kArpAufwaerts; });
  const int root = p.run().grundton;
  EXPECT_EQ(Times(p.output.PlayedNoteOns()), (std::vector<double>{0, 62, 124, 186}));
  EXPECT_EQ(Times(p.output.PlayedNoteOffs()), (std::vector<double>{900, 900, 900, 900}));
  EXPECT_EQ(Notes(p.output.PlayedNoteOns()),
            (std::vector<int>{root, root + 4, root + 7, root + 10}));
}

TEST(Playing, TurnsTheOrderRoundForADescendingArpeggio) {
  WorksheetFixture p;
  BeginWithC7(p, [](ExerciseSettings& s) { s.arp_richtung = kArpAbwaerts; });
  const int root = p.run().grundton;
  EXPECT_EQ(Times(p.output.PlayedNoteOns()), (std::vector<double>{0, 62, 124, 186}));
  EXPECT_EQ(Notes(p.output.PlayedNoteOns()),
            (std::vector<int>{root + 10, root + 7, root + 4, root}));
}

TEST(Playing, TakesTheDrawnOrderForARandomArpeggio) {
  WorksheetFixture p;
  p.Begin([](ExerciseSettings& s) { s.arp_richtung = kArpZufall; });
  p.random.Script({0.05f, 0.5f, 0.7f, 0.1f, 0.5f});  // triad 1 on 56, its notes as 2, 0, 1
  p.worksheet().CmdNextAufg.Press();
  EXPECT_EQ(Notes(p.output.PlayedNoteOns()), (std::vector<int>{63, 56, 60}));
  EXPECT_EQ(Times(p.output.PlayedNoteOns()), (std::vector<double>{0, 188, 376}));
}

TEST(Playing, StartsAllNotesAtOnceWithoutAnArpeggio) {
  WorksheetFixture p;
  p.Begin([](ExerciseSettings& s) {
    s.tempo_idx = 0;
    s.akk_anzahl = 2;
  });
  p.worksheet().CmdNextAufg.Press();
  EXPECT_EQ(Times(p.output.PlayedNoteOns()), (std::vector<double>{0, 0, 0, 4000, 4000, 4000}));
  EXPECT_EQ(Times(p.output.PlayedNoteOffs()),
            (std::vector<double>{3600, 3600, 3600, 7600, 7600, 7600}));
}

TEST(Playing, KeepsEvenTheLongestArpeggioSounding) {
  WorksheetFixture p;
  p.Begin(
      [](ExerciseSettings& s) {
        s.arp_richtung = kArpAufwaerts;
        s.tempo_idx = 0;
        s.arp_dauer = 500;
      },
      {7}, {2, 5});
  p.worksheet().CmdNextAufg.Press();
  const auto ons = p.output.PlayedNoteOns();
  ASSERT_EQ(ons.size(), 7u);
  EXPECT_EQ(ons.back().zeit, 3000);
  for (const MidiMessage& off : p.output.PlayedNoteOffs()) EXPECT_EQ(off.zeit, 3600);
}

TEST(Playing, AccentsTheRootWhereverItFalls) {
  for (const int richtung : {kArpAufwaerts, kArpAbwaerts, kArpZufall, kArpOhne}) {
    WorksheetFixture p;
    p.Begin([&](ExerciseSettings& s) {
      s.arp_richtung = richtung;
      s.grundton_betont = 1;
    });
    p.settings_screen().HSliderVolume.Set(90);
    p.worksheet().CmdNextAufg.Press();
    for (const MidiMessage& on : p.output.PlayedNoteOns()) {
      EXPECT_EQ(on.data2, on.data1 == p.run().grundton ? 110 : 90);
    }
  }
}

TEST(Playing, LimitsTheAccentToTheHighestVelocity) {
  WorksheetFixture p;
  p.Begin([](ExerciseSettings& s) { s.grundton_betont = 1; });
  p.settings_screen().HSliderVolume.Set(120);
  p.worksheet().CmdNextAufg.Press();
  const auto ons = p.output.PlayedNoteOns();
  ASSERT_EQ(ons.size(), 3u);
  EXPECT_EQ(ons[0].data2, 127);
  EXPECT_EQ(ons[1].data2, 120);
  EXPECT_EQ(ons[2].data2, 120);
}

TEST(Playing, UsesOneChannelForOneTimbreInEveryOrder) {
  for (const int richtung : {kArpAufwaerts, kArpAbwaerts, kArpZufall, kArpOhne}) {
    WorksheetFixture p;
    p.Begin([&](ExerciseSettings& s) { s.arp_richtung = richtung; });
    p.worksheet().CmdNextAufg.Press();
    EXPECT_EQ(Channels(p.output.PlayedNoteOns()), (std::vector<int>{0, 0, 0}));
  }
}

TEST(Playing, KeepsEachVoiceOnItsChannelInEveryOrder) {
  for (const int richtung : {kArpAufwaerts, kArpAbwaerts, kArpZufall, kArpOhne}) {
    WorksheetFixture p;
    p.Begin([&](ExerciseSettings& s) {
      s.arp_richtung = richtung;
      s.klangfarb_art = 1;
      s.akk_anzahl = 2;
    });
    p.worksheet().CmdNextAufg.Press();
    for (const MidiMessage& on : p.output.PlayedNoteOns()) {
      const auto& notes = p.run().task.akk_ton_ar[on.zeit < 3000 ? 1 : 2];
      EXPECT_EQ(on.data1, notes[on.channel() - 1]);
    }
  }
}

TEST(Playing, SendsNoBendAtFixedTuning) {
  WorksheetFixture p;
  p.Begin();
  p.output.Forget();
  p.PlayTask();
  EXPECT_TRUE(p.output.sent.empty());
}

TEST(Playing, DetunesAllChannelsAlikeAtVaryingTuning) {
  struct Case {
    float r1, r2;
    int wert;
  };
  for (const Case& c : {Case{0.49f, 0.5f, 64 - 8}, Case{0.5f, 0.5f, 64 + 8}, Case{0.9f, 0.99f, 79},
                        Case{0.1f, 0.99f, 49}, Case{0.1f, 0.01f, 64}}) {
    WorksheetFixture p;
    p.Begin([](ExerciseSettings& s) { s.frequenz_art = 1; });
    p.random.Script({0.05f, 0.5f, c.r1, c.r2});
    p.output.Forget();
    p.PlayTask();
    ASSERT_EQ(p.output.sent.size(), 8u);
    for (int channel = 0; channel < 8; ++channel) {
      EXPECT_TRUE(p.output.sent[channel].IsPitchBend());
      EXPECT_EQ(p.output.sent[channel].channel(), channel);
      EXPECT_EQ(p.output.sent[channel].data2, c.wert);
    }
    EXPECT_TRUE(p.random.ScriptDone());
  }
}

TEST(Playing, SoundsInARepeatExactlyAsTheFirstTime) {
  WorksheetFixture p;
  p.Begin([](ExerciseSettings& s) {
    s.akk_anzahl = 3;
    s.arp_richtung = kArpZufall;
    s.frequenz_art = 1;
    s.klangfarb_art = 1;
  });
  for (int task = 0; task < 5; ++task) {
    p.output.Forget();
    p.PlayTask();
    const auto notes = p.output.played;
    const auto bends = Bends(p.output.sent);
    EXPECT_EQ(bends.size(), 8u);
    const int draws = p.random.draws;
    p.output.Forget();
    p.Repeat();
    EXPECT_EQ(p.output.played, notes);
    EXPECT_EQ(Bends(p.output.sent), bends);
    p.FinishTask();
    p.output.Forget();
    p.ControlRepeat();
    EXPECT_EQ(p.output.played, notes);
    EXPECT_EQ(Bends(p.output.sent), bends);
    EXPECT_EQ(p.random.draws, draws);
  }
}

TEST(Playing, SoundsWhatTheTilesSay) {
  WorksheetFixture p;
  p.Begin(Chords(4), {3, 4, 5, 6, 7}, {1, 2, 3, 4, 5, 6, 7, 8});
  for (int task = 0; task < 20; ++task) {
    p.PlayTask();
    const auto ons = p.output.PlayedNoteOns();
    std::size_t at = 0;
    for (int slot = 1; slot <= 4; ++slot) {
      const Chord& chord = ChordOfKlang(p.worksheet().jz_kl[p.Asked(slot)].image.number);
      const int root = ons.at(at).data1;
      EXPECT_NE(root % 12, 0);
      for (const int semitones : chord.semitones) {
        EXPECT_EQ(ons.at(at).data1, root + semitones);
        EXPECT_EQ(ons.at(at).zeit, (slot - 1) * 3000);
        ++at;
      }
    }
    EXPECT_EQ(at, ons.size());
    p.FinishTask();
  }
}

// ---- What is open when ------------------------------------------------------------------------

struct Enabled {
  bool tiles, wieder, wieder2, next, zurueck;
  bool operator==(const Enabled&) const = default;
};

Enabled Reachable(WorksheetFixture& p) {
  const Arbeitsblatt1& w = p.worksheet();
  return {!p.OpenChoices().empty(), w.wieder.Reachable(), w.wieder2.Reachable(),
          w.CmdNextAufg.Reachable(), w.zurueck.Reachable()};
}

const Enabled kBeforeTheFirstTask = {false, false, false, true, true};
const Enabled kPlaying = {false, false, false, false, true};
const Enabled kAnswering = {true, true, false, false, true};
const Enabled kWaiting = {false, false, true, true, true};

TEST(RunFlow, OpensInEachStateWhatBelongsToIt) {
  WorksheetFixture p;
  p.Begin(Chords(2));
  EXPECT_EQ(Reachable(p), kBeforeTheFirstTask);
  for (int task = 0; task < 2; ++task) {
    p.worksheet().CmdNextAufg.Press();
    EXPECT_EQ(Reachable(p), kPlaying);
    p.loop.Advance(p.PlayingTime());
    EXPECT_EQ(Reachable(p), kAnswering);
    p.Wrong();
    EXPECT_EQ(Reachable(p), kAnswering);
    p.worksheet().wieder.Press();
    EXPECT_EQ(Reachable(p), kPlaying);
    p.loop.Advance(p.PlayingTime());
    EXPECT_EQ(Reachable(p), kAnswering);
    p.FinishTask();
    EXPECT_EQ(Reachable(p), kWaiting);
    p.worksheet().wieder2.Press();
    EXPECT_EQ(Reachable(p), kPlaying);
    EXPECT_TRUE(p.worksheet().wieder2.visible);
    p.loop.Advance(p.PlayingTime());
    EXPECT_EQ(Reachable(p), kWaiting);
  }
}

TEST(RunFlow, ShowsTheRepeatButtonsInTurn) {
  WorksheetFixture p;
  p.Begin();
  p.worksheet().CmdNextAufg.Press();
  EXPECT_TRUE(p.worksheet().wieder.visible);
  EXPECT_FALSE(p.worksheet().wieder2.visible);
  p.loop.Advance(p.PlayingTime());
  p.Right();
  EXPECT_FALSE(p.worksheet().wieder.visible);
  EXPECT_TRUE(p.worksheet().wieder2.visible);
  p.worksheet().CmdNextAufg.Press();
  EXPECT_TRUE(p.worksheet().wieder.visible);
  EXPECT_FALSE(p.worksheet().wieder2.visible);
}

TEST(RunFlow, NamesTheFirstTaskAndThenTheNext) {
  WorksheetFixture p;
  p.Begin();
  p.PlayTask();
  EXPECT_EQ(p.worksheet().CmdNextAufg.caption, "[129s] 1");
  p.Right();
  EXPECT_EQ(p.worksheet().CmdNextAufg.caption, "[420s]");
  EXPECT_TRUE(p.worksheet().CmdNextAufg.visible);
}

TEST(RunFlow, WaitsForTheClickWithoutLimit) {
  WorksheetFixture p;
  p.Begin();
  p.loop.Advance(3600 * 1000.0);
  EXPECT_EQ(p.output.starts, 0);
  EXPECT_TRUE(p.worksheet().CmdNextAufg.Reachable());
  p.PlayTask();
  p.Right();
  p.loop.Advance(3600 * 1000.0);
  EXPECT_EQ(p.output.starts, 1);
}

TEST(RunFlow, LetsTheTasksFollowByThemselvesWhenAskedTo) {
  WorksheetFixture p;
  p.Begin(Automatic);
  // The start timer fired a moment before the fixture returned.
  EXPECT_FALSE(p.worksheet().CmdNextAufg.visible);
  EXPECT_TRUE(p.worksheet().LbNextAufg.visible);
  EXPECT_EQ(p.worksheet().LbNextAufg.caption, "[129s] 1");
  EXPECT_TRUE(p.worksheet().WahlAutomat.enabled);
  p.loop.Advance(1799);
  EXPECT_EQ(p.Lessons(), 0);
  p.loop.Advance(1);
  EXPECT_EQ(p.Lessons(), 1);
  EXPECT_EQ(p.output.starts, 1);
  EXPECT_FALSE(p.worksheet().LbNextAufg.visible);
  EXPECT_FALSE(p.worksheet().WahlAutomat.enabled);
  EXPECT_FALSE(p.worksheet().CmdNextAufg.visible);
  p.EndPlaying();
  p.Right();
  EXPECT_TRUE(p.worksheet().LbNextAufg.visible);
  EXPECT_EQ(p.worksheet().LbNextAufg.caption, "[420s]");
  EXPECT_FALSE(p.worksheet().CmdNextAufg.visible);
  p.loop.Advance(1799);
  EXPECT_EQ(p.Lessons(), 1);
  p.loop.Advance(1);
  EXPECT_EQ(p.Lessons(), 2);
}

TEST(RunFlow, HoldsTheNextTaskBackWhileTheLastOneIsHeardAgain) {
  WorksheetFixture p;
  p.Begin(Automatic);
  p.PlayTask();
  p.Right();
  p.loop.Advance(1000);
  p.worksheet().wieder2.Press();
  EXPECT_FALSE(p.worksheet().WahlAutomat.enabled);
  EXPECT_FALSE(p.worksheet().LbNextAufg.visible);
  p.loop.Advance(p.worksheet().spieltimer.interval);
  EXPECT_TRUE(p.worksheet().WahlAutomat.enabled);
  EXPECT_TRUE(p.worksheet().LbNextAufg.visible);
  EXPECT_TRUE(p.worksheet().wieder2.Reachable());
  p.loop.Advance(1799);
  EXPECT_EQ(p.Lessons(), 1);
  p.loop.Advance(1);
  EXPECT_EQ(p.Lessons(), 2);
}

TEST(RunFlow, FiresTheTimerOfAPlayingOnce) {
  WorksheetFixture p;
  p.Begin();
  p.worksheet().CmdNextAufg.Press();
  EXPECT_TRUE(p.worksheet().spieltimer.enabled);
  p.loop.Advance(3000);
  EXPECT_FALSE(p.worksheet().spieltimer.enabled);
  const float start = p.run().clock.antw_start;
  p.loop.Advance(30000);
  EXPECT_EQ(p.run().clock.antw_start, start);
}

TEST(RunFlow, ArmsTheTimerOfAPlayingWhenTheSoundHasBegun) {
  WorksheetFixture p;
  p.Begin();
  int moments = 0;
  p.loop.meanwhile = [&] {
    ++moments;
    EXPECT_FALSE(p.worksheet().spieltimer.enabled);
  };
  const double before = p.loop.Elapsed();
  p.worksheet().CmdNextAufg.Press();
  EXPECT_GT(moments, 2);
  EXPECT_TRUE(p.worksheet().spieltimer.enabled);
  EXPECT_NEAR(p.loop.Elapsed() - before, 150, 1);  // 50 ms of silence, 100 ms before the start
}

TEST(RunFlow, PutsTwoResetsAndSilenceBeforeARepeat) {
  WorksheetFixture p;
  p.Begin();
  p.PlayTask();
  p.output.Forget();
  double start = 0;
  p.loop.meanwhile = [&] {
    if (start == 0 && p.output.starts > 0) start = p.loop.Elapsed();
  };
  const double press = p.loop.Elapsed();
  p.worksheet().wieder.Press();
  EXPECT_EQ(p.output.Count(MidiBefehl::kSchliessen), 2);
  EXPECT_EQ(p.output.Count(MidiBefehl::kOeffnen), 2);
  EXPECT_GE(start - press, 199.9);
}

TEST(RunFlow, CountsARepeatOncePerPress) {
  WorksheetFixture p;
  p.Begin();
  p.PlayTask();
  for (int i = 1; i <= 3; ++i) {
    EXPECT_TRUE(p.Repeat());
    EXPECT_EQ(p.worksheet().whlgzaehler.caption, std::to_string(i));
    EXPECT_EQ(p.run().answers.whlg_ar[1], i);
  }
  p.Right();
  p.ControlRepeat();
  EXPECT_EQ(p.worksheet().whlgzaehler.caption, "3") << "a control repeat is not counted";
}

TEST(RunFlow, LetsNothingBeClickedWhileARepeatPauses) {
  for (const bool control : {false, true}) {
    for (const int abfolge : {0, 1}) {
      WorksheetFixture p;
      p.Begin([&](ExerciseSettings& s) { s.abfolge = abfolge; });
      p.PlayTask();
      if (control) p.Right();
      int moments = 0;
      p.loop.meanwhile = [&] {
        ++moments;
        EXPECT_EQ(Reachable(p), kPlaying);
        EXPECT_FALSE(p.worksheet().WahlAutomat.enabled);
        for (int e = 1; e <= 10; ++e) EXPECT_FALSE(p.worksheet().jz_kl[e].Press());
        EXPECT_FALSE(p.worksheet().wieder.Press());
        EXPECT_FALSE(p.worksheet().wieder2.Press());
        EXPECT_FALSE(p.worksheet().CmdNextAufg.Press());
      };
      EXPECT_TRUE(control ? p.worksheet().wieder2.Press() : p.worksheet().wieder.Press());
      EXPECT_GT(moments, 100);  // the pauses, and each step of the rising volume
      p.loop.meanwhile = nullptr;
      EXPECT_EQ(p.Lessons(), 1);
      EXPECT_EQ(p.Answers(), 1);
    }
  }
}

TEST(RunFlow, ShutsTheTilesInARepeat) {
  WorksheetFixture p;
  p.Begin();
  p.PlayTask();
  p.worksheet().wieder.Press();
  for (int e = 1; e <= 10; ++e) {
    EXPECT_EQ(p.worksheet().jz_kl[e].back_color, Rgb(192, 192, 192));
    EXPECT_FALSE(p.worksheet().jz_kl[e].enabled);
    EXPECT_EQ(p.worksheet().klang_pan[e].back_color, Rgb(255, 0, 0));
  }
}

TEST(RunFlow, ShutsTheGroupsInARepeat) {
  WorksheetFixture p;
  p.Begin(
      [](ExerciseSettings& s) {
        s.best_art = 1;
        s.akk_anzahl = 2;
      },
      {5}, {1, 2, 3});
  p.PlayTask();
  p.Right();
  p.worksheet().wieder.Press();
  for (int g = 1; g <= 8; ++g) EXPECT_FALSE(p.worksheet().akk_group[g].enabled) << g;
  p.loop.Advance(p.PlayingTime());
  EXPECT_EQ(p.OpenChoices(), (std::vector<int>{1, 2, 3}));
}

TEST(RunFlow, ServesTheClockInsideAPause) {
  WorksheetFixture p;
  p.Begin();
  p.loop.Advance(9900);  // the clock is due within the pauses of the first playing
  p.loop.date.hour = 23;
  p.worksheet().CmdNextAufg.Press();
  EXPECT_EQ(p.worksheet().Uhr.caption.substr(0, 2), "23");
}

TEST(RunFlow, TakesAFiringOfADisabledTimerForNothing) {
  WorksheetFixture p;
  p.Begin();
  p.worksheet().WahlAutomat_Timer();
  EXPECT_EQ(p.Lessons(), 0);
  p.worksheet().Uhrzeit.Disable();
  p.loop.date.hour = 23;
  p.worksheet().Uhrzeit_Timer();
  EXPECT_NE(p.worksheet().Uhr.caption.substr(0, 2), "23");
}

TEST(RunFlow, LeavesByItsTestTimerAsByTheButton) {
  WorksheetFixture p;
  p.Begin();
  p.worksheet().testtimer.Enable();
  p.loop.Advance(2000);
  EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
  EXPECT_TRUE(p.settings_screen().visible);
  EXPECT_EQ(p.documents.Latest().saves, 1);
}

// ---- The ways out -----------------------------------------------------------------------------

void Leave(WorksheetFixture& p) { p.worksheet().zurueck.Press(); }
void CloseWindow(WorksheetFixture& p) { p.worksheet().Form_Close(); }

struct WayOut {
  const char* name;
  void (*go)(WorksheetFixture&);
};
const std::vector<WayOut> kWaysOut = {{"zurueck", Leave}, {"window closed", CloseWindow}};

/// The worksheet is gone, its record saved, nothing sounds or is armed, and a new run works.
void ExpectLeft(WorksheetFixture& p, const std::string& where) {
  SCOPED_TRACE(where);
  p.loop.meanwhile = nullptr;
  ASSERT_EQ(p.program.arbeitsblatt1(), nullptr);
  EXPECT_TRUE(p.settings_screen().visible);
  EXPECT_TRUE(p.settings_screen().cmdOK.Reachable());
  EXPECT_EQ(p.documents.Latest().saves, 1);
  EXPECT_EQ(p.loop.timers(), 0);
  EXPECT_FALSE(p.output.IsRunning());
  const int starts = p.output.starts;
  p.loop.Advance(60000);
  EXPECT_EQ(p.output.starts, starts);
  EXPECT_TRUE(p.messages.warnings.empty());
  EXPECT_TRUE(p.messages.questions.empty());
  EXPECT_TRUE(p.host.errors.empty());
  EXPECT_EQ(p.host.Sent("STORE"), 0);

  p.settings().abfolge = 0;
  p.StartRun();
  p.PlayTask();
  EXPECT_NE(p.Right(), 0);
  EXPECT_EQ(p.worksheet().zaehler[0].caption, "1");
  EXPECT_EQ(p.documents.documents.size(), 2u);
}

struct Step {
  const char* name;
  std::function<void(WorksheetFixture&)> reach;
};

const std::vector<Step> kStates = {
    {"waiting for the first task", [](WorksheetFixture&) {}},
    {"playing", [](WorksheetFixture& p) { p.worksheet().CmdNextAufg.Press(); }},
    {"answering", [](WorksheetFixture& p) { p.PlayTask(); }},
    {"answering after a wrong click",
     [](WorksheetFixture& p) {
       p.PlayTask();
       p.Wrong();
     }},
    {"repeating",
     [](WorksheetFixture& p) {
       p.PlayTask();
       p.worksheet().wieder.Press();
     }},
    {"waiting for the next task",
     [](WorksheetFixture& p) {
       p.PlayTask();
       p.FinishTask();
     }},
    {"checking",
     [](WorksheetFixture& p) {
       p.PlayTask();
       p.FinishTask();
       p.worksheet().wieder2.Press();
     }},
};

TEST(Leaving, WorksFromEveryState) {
  for (const WayOut& way : kWaysOut) {
    for (const Step& state : kStates) {
      WorksheetFixture p;
      p.Begin(Chords(2));
      state.reach(p);
      way.go(p);
      ExpectLeft(p, std::string(way.name) + ", " + state.name);
    }
  }
}

TEST(Leaving, WorksWhileTheTasksFollowByThemselves) {
  for (const WayOut& way : kWaysOut) {
    for (const double ms : {1.0, 1799.0, 2000.0, 6000.0}) {
      WorksheetFixture p;
      p.Begin(Automatic);
      p.loop.Advance(ms);
      way.go(p);
      ExpectLeft(p, way.name);
    }
  }
}

TEST(Leaving, WorksInTheSetUp) {
  WorksheetFixture p;
  p.ToSettings();
  p.settings_screen().cmdOK.Press();
  ASSERT_NE(p.program.arbeitsblatt1(), nullptr);
  EXPECT_FALSE(p.worksheet().zurueck.Press()) << "the worksheet is not shown yet";
  p.worksheet().Form_Close();
  ExpectLeft(p, "closed before the set-up");
}

/// Leaves at every moment at which `act` lets events through.
void LeaveAtEveryMoment(const WayOut& way, const std::function<void(WorksheetFixture&)>& before,
                        const std::function<void(WorksheetFixture&)>& act, int least) {
  int moment = 1;
  for (bool reached = true; reached; ++moment) {
    WorksheetFixture p;
    p.Begin(Chords(2));
    before(p);
    reached = false;
    p.AtMoment(moment, [&] {
      reached = true;
      EXPECT_NE(p.program.arbeitsblatt1(), nullptr);
      way.go(p);
    });
    act(p);
    if (!reached) break;
    ExpectLeft(p, std::string(way.name) + " at moment " + std::to_string(moment));
  }
  EXPECT_GT(moment, least);
}

/// Two pauses, and 132 steps of the rising volume.
constexpr int kMomentsOfAPlaying = 2 + 132;

TEST(Leaving, WorksAtEveryMomentOfTheFirstPlaying) {
  for (const WayOut& way : kWaysOut) {
    LeaveAtEveryMoment(
        way, [](WorksheetFixture&) {},
        [](WorksheetFixture& p) { p.worksheet().CmdNextAufg.Press(); }, kMomentsOfAPlaying);
  }
}

TEST(Leaving, WorksAtEveryMomentOfARepeat) {
  for (const WayOut& way : kWaysOut) {
    LeaveAtEveryMoment(
        way, [](WorksheetFixture& p) { p.PlayTask(); },
        [](WorksheetFixture& p) { p.worksheet().wieder.Press(); }, 1 + kMomentsOfAPlaying);
  }
}

TEST(Leaving, WorksAtEveryMomentOfAControlRepeat) {
  for (const WayOut& way : kWaysOut) {
    LeaveAtEveryMoment(
        way,
        [](WorksheetFixture& p) {
          p.PlayTask();
          p.FinishTask();
        },
        [](WorksheetFixture& p) { p.worksheet().wieder2.Press(); }, 1 + kMomentsOfAPlaying);
  }
}

TEST(Leaving, InThePauseOfARepeatDoesNotCountTheRepeat) {
  WorksheetFixture p;
  p.Begin();
  p.PlayTask();
  const Arbeitsblatt1& left = p.worksheet();
  p.AtMoment(1, [&] { Leave(p); });
  p.worksheet().wieder.Press();
  EXPECT_EQ(left.whlgzaehler.caption, "0");
  EXPECT_EQ(left.run().clock.anz_whlg, 0);
  EXPECT_EQ(p.output.starts, 1);
}

TEST(Leaving, InThePauseOfARepeatLeavesTheOutputToWhoeverComesNext) {
  for (const bool control : {false, true}) {
    WorksheetFixture p;
    p.Begin();
    p.PlayTask();
    if (control) p.FinishTask();
    std::size_t told = 0;
    p.AtMoment(1, [&] {
      Leave(p);
      told = p.output.befehle.size();
    });
    EXPECT_TRUE(control ? p.worksheet().wieder2.Press() : p.worksheet().wieder.Press());
    EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
    EXPECT_EQ(p.output.befehle.size(), told) << (control ? "control repeat" : "repeat");
  }
}

TEST(Leaving, SetsTheTimbresAgainAndEditsTheLastOfThem) {
  WorksheetFixture one;
  one.Begin();
  one.settings().klang_kanal = 3;
  Leave(one);
  EXPECT_EQ(one.settings().klang_kanal, 0);

  WorksheetFixture several;
  several.ToSettings();
  several.settings_screen().kl_farb.Choose(1);
  several.StartRun();
  const auto voices = several.settings().patch_ar;
  Leave(several);
  EXPECT_EQ(several.settings().klang_kanal, 7);
  EXPECT_EQ(several.settings().patch_ar, voices);
}

TEST(Leaving, ShowsTheVoiceThatIsEditedAndItsTimbre) {
  WorksheetFixture p;
  p.ToSettings();
  Einstellung1& settings = p.settings_screen();
  settings.kl_farb.Choose(1);
  ASSERT_EQ(settings.Channel_Combo.list_index(), 0);
  p.StartRun();
  Leave(p);
  EXPECT_EQ(settings.Channel_Combo.list_index(), 6);
  EXPECT_EQ(settings.ComboPatch.list_index(), 74) << "the recorder";
  EXPECT_TRUE(settings.ComboPatch.Choose(0));
  EXPECT_EQ(p.settings().patch_ar, (std::array<int, 8>{0, 70, 68, 71, 73, 73, 72, 0}));
}

TEST(Leaving, StartsNothingWhenItComesBeforeTheSound) {
  for (const int moment : {1, 2}) {
    WorksheetFixture p;
    p.Begin();
    p.AtMoment(moment, [&] { Leave(p); });
    p.worksheet().CmdNextAufg.Press();
    EXPECT_EQ(p.output.starts, 0) << moment;
  }
}

TEST(Leaving, LetsANewRunBeginWhileTheOldOneIsStillEnding) {
  for (int moment = 1; moment <= kMomentsOfAPlaying; ++moment) {
    WorksheetFixture p;
    p.Begin();
    p.AtMoment(moment, [&] {
      Leave(p);
      EXPECT_TRUE(p.settings_screen().cmdOK.Press());
    });
    p.worksheet().CmdNextAufg.Press();
    p.loop.Advance(200);
    ASSERT_NE(p.program.arbeitsblatt1(), nullptr) << moment;
    p.PlayTask();
    EXPECT_NE(p.Right(), 0) << moment;
    EXPECT_EQ(p.documents.documents.size(), 2u);
    EXPECT_TRUE(p.messages.warnings.empty());
  }
}

TEST(Leaving, ShowsItsNoticeOnADisabledScreenWhileTheRecordIsSaved) {
  WorksheetFixture p;
  p.Begin();
  p.PlayTask();
  int moments = 0;
  p.loop.meanwhile = [&] {
    ++moments;
    Arbeitsblatt1& w = p.worksheet();
    EXPECT_TRUE(w.visible);
    EXPECT_FALSE(w.enabled);
    EXPECT_TRUE(w.WaitMeldung.visible);
    EXPECT_EQ(w.pointer, Form::Pointer::kHourglass);
    EXPECT_FALSE(p.settings_screen().visible);
    EXPECT_TRUE(p.OpenChoices().empty());
    EXPECT_FALSE(w.zurueck.Press());
    EXPECT_FALSE(w.wieder.Press());
    w.Form_Close();
    EXPECT_EQ(p.documents.Latest().saves, 0);
  };
  Leave(p);
  EXPECT_EQ(moments, 1);
  ExpectLeft(p, "left once");
}

TEST(Leaving, FreesTheScreenOnlyWhenNoHandlerRunsInIt) {
  WorksheetFixture p;
  p.Begin();
  const Form* sheet = &p.worksheet();
  p.AtMoment(1, [&] {
    Leave(p);
    EXPECT_FALSE(sheet->loaded());
    EXPECT_EQ(std::ranges::count(p.view.forms, sheet), 0);
  });
  p.worksheet().CmdNextAufg.Press();
  EXPECT_FALSE(sheet->loaded()) << "its handler has only just returned";
}

TEST(Leaving, TheProgramWorksAtEveryMomentToo) {
  int moment = 1;
  for (bool reached = true; reached; ++moment) {
    WorksheetFixture p;
    p.Begin();
    reached = false;
    p.AtMoment(moment, [&] {
      reached = true;
      p.program.Leave();
    });
    p.worksheet().CmdNextAufg.Press();
    if (!reached) break;
    SCOPED_TRACE(moment);
    EXPECT_TRUE(p.ended);
    EXPECT_EQ(p.host.Sent("MENUE"), 1);
    EXPECT_EQ(p.documents.Latest().saves, 1);
    EXPECT_EQ(p.loop.timers(), 0);
    EXPECT_TRUE(p.view.forms.empty());
    EXPECT_TRUE(p.messages.warnings.empty());
    p.loop.Advance(60000);
    EXPECT_FALSE(p.output.IsRunning());
  }
  EXPECT_GT(moment, kMomentsOfAPlaying);
}

TEST(Leaving, TheProgramWorksWhileTheRecordIsSaved) {
  WorksheetFixture p;
  p.Begin();
  p.PlayTask();
  p.AtMoment(1, [&] { p.program.Leave(); });
  Leave(p);
  EXPECT_TRUE(p.ended);
  EXPECT_EQ(p.host.Sent("MENUE"), 1);
  EXPECT_EQ(p.documents.Latest().saves, 1);
  EXPECT_TRUE(p.view.forms.empty());
}

TEST(Leaving, GoesBackToTheSettingsWithAllTheyHeld) {
  WorksheetFixture p;
  p.Begin(Chords(3));
  p.PlayTask();
  Leave(p);
  EXPECT_TRUE(p.settings_screen().visible);
  EXPECT_EQ(p.settings().akk_anzahl, 3);
  EXPECT_EQ(p.settings_screen().klanglst[1].count(), 1);
  EXPECT_TRUE(p.settings_screen().cmdOK.Reachable());
}

// ---- The ways out of a run that counts --------------------------------------------------------

/// States of a run of any mode; a test goes on by itself, and so it waits for the next task only
/// for a while.
const std::vector<Step> kStatesOfAnyMode = {
    {"waiting for the first task", [](WorksheetFixture&) {}},
    {"playing",
     [](WorksheetFixture& p) {
       if (p.settings().abfolge == 0) {
         p.worksheet().CmdNextAufg.Press();
       } else {
         p.loop.Advance(1800);
       }
     }},
    {"answering", [](WorksheetFixture& p) { p.PlayTask(); }},
    {"answering the second slot",
     [](WorksheetFixture& p) {
       p.PlayTask();
       p.Right();
     }},
    {"answering after a wrong click",
     [](WorksheetFixture& p) {
       p.PlayTask();
       p.Wrong();
     }},
    {"repeating",
     [](WorksheetFixture& p) {
       p.PlayTask();
       p.worksheet().wieder.Press();
     }},
    {"waiting for the next task",
     [](WorksheetFixture& p) {
       p.PlayTask();
       p.FinishTask();
     }},
    {"checking",
     [](WorksheetFixture& p) {
       p.PlayTask();
       p.FinishTask();
       p.worksheet().wieder2.Press();
     }},
    {"answering the second task",
     [](WorksheetFixture& p) {
       p.PlayTask();
       p.FinishTask();
       p.PlayTask();
     }},
};

TEST(Leaving, SavesTheRecordOnceInEveryModeFromEveryState) {
  for (const int modus : {kFrei, kTraining, kWeiter, kTest, kPruefung}) {
    for (const auto answer : {MessageBox::Answer::kYes, MessageBox::Answer::kNo}) {
      for (const WayOut& way : kWaysOut) {
        for (const Step& state : kStatesOfAnyMode) {
          SCOPED_TRACE(std::to_string(modus) + ", " + way.name + ", " + state.name);
          ModeFixture p;
          BeginAnyMode(p, modus);
          state.reach(p);
          const bool training = modus == kTraining || modus == kWeiter;
          const bool asked = training && p.run().schalter_zaehler > 0;
          p.messages.answer = answer;
          way.go(p);
          // A test asks before the window ends it; what a Yes does is a leaving like the others.
          if (modus >= kTest && way.go == CloseWindow) {
            EXPECT_EQ(p.messages.questions.size(), 1u);
            p.messages.questions.clear();
            if (answer == MessageBox::Answer::kNo) continue;
          }
          ASSERT_EQ(p.program.arbeitsblatt1(), nullptr);
          EXPECT_EQ(p.messages.questions.size(), asked ? 1u : 0u);
          EXPECT_EQ(p.host.Sent("STORE"), asked && answer == MessageBox::Answer::kYes ? 2 : 0);
          EXPECT_EQ(p.documents.Latest().saves, 1);
          EXPECT_EQ(p.program.testergebnis(), nullptr);
          EXPECT_TRUE(p.settings_screen().visible);
          EXPECT_EQ(p.settings().uebmodus, modus);
          EXPECT_EQ(p.loop.timers(), 0);
          const int starts = p.output.starts;
          p.loop.Advance(600000);
          EXPECT_EQ(p.output.starts, starts);
          EXPECT_TRUE(p.messages.warnings.empty());
          EXPECT_TRUE(p.host.errors.empty());
          p.StartRun();
          p.PlayTask();
          EXPECT_NE(p.Right(), 0) << "a new run works";
        }
      }
    }
  }
}

TEST(Leaving, TheProgramSavesTheRecordOnceInEveryModeFromEveryState) {
  for (const int modus : {kFrei, kTraining, kWeiter, kTest, kPruefung}) {
    for (const Step& state : kStatesOfAnyMode) {
      SCOPED_TRACE(std::to_string(modus) + ", " + state.name);
      ModeFixture p;
      BeginAnyMode(p, modus);
      state.reach(p);
      p.program.Leave();
      EXPECT_TRUE(p.ended);
      EXPECT_EQ(p.documents.Latest().saves, 1);
      EXPECT_TRUE(p.messages.questions.empty());
      EXPECT_EQ(p.host.Sent("MENUE"), 1);
      EXPECT_EQ(p.loop.timers(), 0);
      EXPECT_TRUE(p.view.forms.empty());
    }
  }
}

TEST(Leaving, ATrainingThatIsOverLeadsThroughTheResultsAlsoWhenTheWindowIsClosed) {
  for (const WayOut& way : kWaysOut) {
    ModeFixture p;
    p.BeginMode(kTraining);
    p.Solve();
    way.go(p);
    EXPECT_EQ(p.documents.Latest().saves, 0);
    p.PassResults();
    EXPECT_EQ(p.documents.Latest().saves, 1);
    EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
    EXPECT_TRUE(p.settings_screen().visible);
  }
}

TEST(Leaving, ByTheWindowOfTheResultsSavesTheRecord) {
  ModeFixture p;
  p.BeginMode(kTraining);
  p.Solve();
  p.worksheet().zurueck.Press();
  p.loop.Advance(300);
  p.results().Form_Close();
  EXPECT_EQ(p.documents.Latest().saves, 1);
  EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
  EXPECT_TRUE(p.settings_screen().visible);
}

// ---- Errors -----------------------------------------------------------------------------------

/// The run has ended by an error in the routine of that tag: it is logged and told once, the record
/// saved, and a new run works once `mend` has put right what was broken.
void ExpectEndedByError(WorksheetFixture& p, const Arbeitsblatt1& sheet, const std::string& tag,
                        int number, const std::function<void()>& mend) {
  SCOPED_TRACE(tag);
  ASSERT_EQ(p.host.errors.size(), 1u);
  EXPECT_EQ(p.host.errors[0].place, tag + "arbeitsblatt1.vmod17");
  EXPECT_EQ(p.host.errors[0].number, number);
  EXPECT_FALSE(p.host.errors[0].text.empty());
  EXPECT_EQ(
      p.messages.warnings,
      (std::vector<ScriptedMessageBox::Shown>{{"[720s]\n[721s]\n[722s]\n[723s]", "Melvado 2000"}}));
  EXPECT_TRUE(p.messages.questions.empty());
  EXPECT_EQ(sheet.zurueck.tag, "ERROR");
  EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
  EXPECT_TRUE(p.settings_screen().visible);
  EXPECT_EQ(p.documents.Latest().saves, 1);
  EXPECT_EQ(p.loop.timers(), 0);

  mend();
  p.messages.warnings.clear();
  p.StartRun();
  p.PlayTask();
  EXPECT_NE(p.Right(), 0);
  EXPECT_TRUE(p.messages.warnings.empty());
}

TEST(ErrorOnTheWorksheet, InTheSetUpEndsTheRun) {
  WorksheetFixture p;
  p.ToSettings();
  p.settings().tempo_idx = 99;
  p.settings_screen().cmdOK.Press();
  const Arbeitsblatt1& sheet = p.worksheet();
  p.messages.meanwhile = [&] { EXPECT_NE(p.program.arbeitsblatt1(), nullptr); };
  bool looked = false;
  // A look at the screen before it is freed, which is when the loop falls idle.
  p.loop.meanwhile = [&] {
    looked = true;
    EXPECT_EQ(sheet.zurueck.tag, "ERROR");
  };
  p.loop.Advance(200);
  EXPECT_TRUE(looked);
  p.loop.meanwhile = nullptr;
  ASSERT_EQ(p.host.errors.size(), 1u);
  EXPECT_EQ(p.host.errors[0].place, "start_timer.arbeitsblatt1.vmod17");
  EXPECT_EQ(p.messages.warnings.size(), 1u);
  EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
  EXPECT_TRUE(p.settings_screen().visible);
  EXPECT_EQ(p.documents.Latest().saves, 1);
  EXPECT_EQ(p.loop.timers(), 0);
  p.settings().tempo_idx = 1;
  p.StartRun();
  p.PlayTask();
  EXPECT_NE(p.Right(), 0);
}

TEST(ErrorOnTheWorksheet, InTheSetUpIsRaisedWhenNoRootCanBeDrawn) {
  WorksheetFixture p;
  p.ToSettings();
  p.settings().grundton_art = 1;
  p.random.Always(0);  // every root is the C at the lower bound
  p.StartRun();
  ASSERT_EQ(p.host.errors.size(), 1u);
  EXPECT_EQ(p.host.errors[0].place, "start_timer.arbeitsblatt1.vmod17");
  EXPECT_EQ(p.host.errors[0].number, ErrorNumber::kNothingToDraw);
  EXPECT_TRUE(p.settings_screen().visible);
  EXPECT_EQ(p.documents.Latest().saves, 1);
}

TEST(ErrorOnTheWorksheet, InTheDrawEndsTheRun) {
  WorksheetFixture p;
  p.Begin();
  p.random.Always(0);
  const Arbeitsblatt1& sheet = p.worksheet();
  p.worksheet().CmdNextAufg.Press();
  ExpectEndedByError(p, sheet, "mat_wahl.", ErrorNumber::kNothingToDraw,
                     [&] { p.random.Always(-1); });
}

TEST(ErrorOnTheWorksheet, InTheDrawEndsARunThatGoesOnByItself) {
  WorksheetFixture p;
  p.Begin(Automatic);
  p.random.Always(0);
  p.loop.Advance(1800);
  ASSERT_EQ(p.host.errors.size(), 1u);
  EXPECT_EQ(p.host.errors[0].place, "mat_wahl.arbeitsblatt1.vmod17");
  EXPECT_EQ(p.loop.timers(), 0);
  EXPECT_TRUE(p.settings_screen().visible);
}

TEST(ErrorOnTheWorksheet, TellsThatABoardOfOneChordOnOneRootHasNoSecondTask) {
  WorksheetFixture p;
  p.Begin([](ExerciseSettings& s) { s.grundton_art = 1; }, {4}, {7});
  p.PlayTask();
  EXPECT_NE(p.Right(), 0);
  const Arbeitsblatt1& sheet = p.worksheet();
  p.worksheet().CmdNextAufg.Press();
  ExpectEndedByError(p, sheet, "mat_wahl.", ErrorNumber::kNothingToDraw, [] {});
  EXPECT_EQ(p.documents.documents[0]->root->Find("lessons")->children.size(), 1u);
}

TEST(ErrorOnTheWorksheet, TellsThatABoardOfOneChordOnOneRootHasNoSecondSlot) {
  WorksheetFixture p;
  p.Begin(
      [](ExerciseSettings& s) {
        s.grundton_art = 1;
        s.akk_anzahl = 2;
      },
      {4}, {7});
  const Arbeitsblatt1& sheet = p.worksheet();
  p.worksheet().CmdNextAufg.Press();
  ExpectEndedByError(p, sheet, "mat_wahl.", ErrorNumber::kNothingToDraw,
                     [&] { p.settings().akk_anzahl = 1; });
}

TEST(ErrorOnTheWorksheet, InAnAnswerEndsTheRun) {
  WorksheetFixture p;
  p.Begin();
  p.PlayTask();
  MemoryXmlNode& lesson = *p.record().Find("lessons")->children.back();
  std::erase_if(lesson.children, [](const auto& child) { return child->name == "answers"; });
  const Arbeitsblatt1& sheet = p.worksheet();
  EXPECT_NE(p.Right(), 0);
  EXPECT_EQ(sheet.zaehler[0].caption, "0");
  ExpectEndedByError(p, sheet, "akk_antw.", ErrorNumber::kOutOfRange, [] {});
}

TEST(ErrorOnTheWorksheet, AtTheEndOfAPlayingEndsTheRun) {
  WorksheetFixture p;
  p.Begin([](ExerciseSettings& s) { s.best_art = 1; }, {5}, {1, 2});
  p.worksheet().CmdNextAufg.Press();
  p.settings().grp_ausw_ar[1] = 9;  // there are eight buttons
  const Arbeitsblatt1& sheet = p.worksheet();
  // The screen is freed when the loop falls idle, so it is looked at while the record is saved.
  std::string tag;
  p.loop.meanwhile = [&] { tag = sheet.zurueck.tag; };
  p.loop.Advance(p.PlayingTime());
  p.loop.meanwhile = nullptr;
  EXPECT_EQ(tag, "ERROR");
  ASSERT_EQ(p.host.errors.size(), 1u);
  EXPECT_EQ(p.host.errors[0].place, "spieltimer_timer.arbeitsblatt1.vmod17");
  EXPECT_EQ(p.host.errors[0].number, ErrorNumber::kNoSuchElement);
  EXPECT_EQ(p.messages.warnings.size(), 1u);
  EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
  EXPECT_TRUE(p.settings_screen().visible);
  EXPECT_EQ(p.documents.Latest().saves, 1);
  EXPECT_EQ(p.loop.timers(), 0);
}

/// Ways to make each routine of weight fail, in a run of any mode with a task answered before.
struct Failure {
  const char* tag;
  std::function<void(ModeFixture&)> provoke;
};

void RunNextTask(ModeFixture& p) {
  if (p.settings().abfolge == 0) {
    p.worksheet().CmdNextAufg.Press();
  } else {
    p.loop.Advance(1800);
  }
}

const std::vector<Failure> kFailures = {
    {"mat_wahl.",
     [](ModeFixture& p) {
       p.random.Always(0);
       RunNextTask(p);
     }},
    {"akk_antw.",
     [](ModeFixture& p) {
       p.PlayTask();
       std::erase_if(p.record().Find("lessons")->children.back()->children,
                     [](const auto& child) { return child->name == "answers"; });
       p.Right();
     }},
    {"spieltimer_timer.",
     [](ModeFixture& p) {
       RunNextTask(p);
       p.settings().grp_ausw_ar[1] = 9;  // there are eight buttons
       p.EndPlaying();
     }},
};

TEST(ErrorOnTheWorksheet, EndsARunThatCountsWithoutAQuestionAndWithoutResults) {
  for (const int modus : {kTraining, kTest}) {
    for (const Failure& failure : kFailures) {
      SCOPED_TRACE(std::to_string(modus) + ", " + failure.tag);
      ModeFixture p;
      p.BeginMode(modus, [](ExerciseSettings& s) { s.best_art = 1; }, {4, 5}, {1, 2});
      p.PlayTask();
      p.FinishTask();
      p.messages.answer = MessageBox::Answer::kYes;
      failure.provoke(p);
      ASSERT_EQ(p.host.errors.size(), 1u);
      EXPECT_EQ(p.host.errors[0].place, std::string(failure.tag) + "arbeitsblatt1.vmod17");
      EXPECT_EQ(p.messages.warnings.size(), 1u);
      EXPECT_TRUE(p.messages.questions.empty());
      EXPECT_EQ(p.host.Sent("STORE"), 0);
      EXPECT_EQ(p.program.testergebnis(), nullptr);
      EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
      EXPECT_TRUE(p.settings_screen().visible);
      EXPECT_EQ(p.documents.Latest().saves, 1);
      EXPECT_EQ(p.loop.timers(), 0);
    }
  }
}

TEST(ErrorOnTheWorksheet, InTheSetUpOfARunThatCountsEndsIt) {
  for (const int modus : {kTraining, kTest, kPruefung}) {
    ModeFixture p;
    p.ToSettings();
    p.settings_screen().training_Combo.Choose(modus);
    p.settings().tempo_idx = 99;
    p.settings_screen().cmdOK.Press();
    p.loop.Advance(200);
    ASSERT_EQ(p.host.errors.size(), 1u);
    EXPECT_EQ(p.host.errors[0].place, "start_timer.arbeitsblatt1.vmod17");
    EXPECT_EQ(p.documents.Latest().saves, 1);
    EXPECT_TRUE(p.messages.questions.empty());
    EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
    EXPECT_EQ(p.program.testergebnis(), nullptr);
    EXPECT_EQ(p.host.Sent("STORE"), 0);
  }
}

TEST(ErrorOnTheWorksheet, AtTheEndOfATrainingStillLeadsToTheResults) {
  ModeFixture p;
  p.BeginMode(kTraining);
  for (int e = 1; e <= 9; ++e) p.DoTask({e});
  p.PlayTaskOf({10});
  p.host.Raise("STORE");  // that the training is over
  const Arbeitsblatt1& sheet = p.worksheet();
  p.Right();
  ASSERT_EQ(p.host.errors.size(), 1u);
  EXPECT_EQ(p.host.errors[0].place, "akk_antw.arbeitsblatt1.vmod17");
  EXPECT_EQ(sheet.zurueck.tag, "ERROR");
  EXPECT_EQ(sheet.pointer, Form::Pointer::kDefault);
  EXPECT_TRUE(p.messages.questions.empty());
  EXPECT_EQ(p.documents.Latest().saves, 0);
  p.PassResults();
  EXPECT_EQ(p.documents.Latest().saves, 1);
  EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
}

TEST(ErrorOnTheWorksheet, TellsInEveryModeThatABoardOfOneChordOnOneRootHasNoSecondTask) {
  for (const int modus : {kTraining, kTest, kPruefung}) {
    ModeFixture p;
    p.Begin(
        [&](ExerciseSettings& s) {
          s.grundton_art = 1;
          s.uebmodus = modus;
        },
        {4}, {7});
    p.PlayTask();
    EXPECT_NE(p.Right(), 0);
    RunNextTask(p);
    ASSERT_EQ(p.host.errors.size(), 1u);
    EXPECT_EQ(p.host.errors[0].number, ErrorNumber::kNothingToDraw);
    EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
    EXPECT_EQ(p.documents.Latest().saves, 1);
    EXPECT_TRUE(p.messages.questions.empty());
  }
}

TEST(ErrorOnTheWorksheet, IsToldBeforeTheScreenGoes) {
  WorksheetFixture p;
  p.Begin();
  p.random.Always(0);
  int shown = 0;
  p.messages.meanwhile = [&] {
    ++shown;
    EXPECT_TRUE(p.worksheet().visible);
    EXPECT_EQ(p.worksheet().zurueck.tag, "OK");
    EXPECT_EQ(p.host.errors.size(), 1u);
    EXPECT_EQ(p.documents.Latest().saves, 0);
  };
  p.worksheet().CmdNextAufg.Press();
  EXPECT_EQ(shown, 1);
  EXPECT_EQ(p.documents.Latest().saves, 1);
}

TEST(ErrorOnTheWorksheet, LeavesARunThatWasClosedMeanwhileClosed) {
  WorksheetFixture p;
  p.Begin();
  p.random.Always(0);
  p.messages.meanwhile = [&] { p.program.Leave(); };
  p.worksheet().CmdNextAufg.Press();
  EXPECT_TRUE(p.ended);
  EXPECT_EQ(p.host.Sent("MENUE"), 1);
  EXPECT_TRUE(p.view.forms.empty());
  EXPECT_EQ(p.documents.Latest().saves, 1);
  EXPECT_EQ(p.record().Find("properties")->All("timestamp").size(), 1u);
}

TEST(ErrorOnTheWorksheet, ThatCannotBeLoggedReachesTheCaller) {
  WorksheetFixture p;
  p.Begin();
  p.random.Always(0);
  p.host.Raise("LOGERR");
  EXPECT_THROW(p.worksheet().CmdNextAufg.Press(), RunTimeError);
  EXPECT_TRUE(p.messages.warnings.empty());
}

TEST(ErrorOnTheWorksheet, SaysVoidWithoutALanguage) {
  WorksheetFixture p;
  p.languages.no_list = true;
  p.Begin();
  p.random.Always(0);
  p.worksheet().CmdNextAufg.Press();
  EXPECT_EQ(p.messages.warnings,
            (std::vector<ScriptedMessageBox::Shown>{{"VOID\nVOID\nVOID\nVOID", "Melvado 2000"}}));
}

TEST(RunFlow, GoesOnWhenATaskCannotBeEntered) {
  WorksheetFixture p;
  p.Begin();
  std::erase_if(p.record().children, [](const auto& child) { return child->name == "lessons"; });
  p.PlayTask();
  EXPECT_FALSE(p.OpenChoices().empty());
  EXPECT_TRUE(p.messages.warnings.empty());
}

TEST(RunFlow, SavesTheRecordOfEachRunUnderItsOwnName) {
  WorksheetFixture p;
  p.loop.date = {2026, 11, 21, 14, 3, 22};
  p.Begin();
  p.loop.date.second = 59;
  Leave(p);
  p.StartRun();
  Leave(p);
  ASSERT_EQ(p.documents.documents.size(), 2u);
  EXPECT_EQ(p.documents.documents[0]->file_name, "/tmp\\MVX261121140322.xml");
  EXPECT_EQ(p.documents.documents[1]->file_name, "/tmp\\MVX261121140359.xml");
  EXPECT_EQ(p.documents.documents[0]->saves, 1);
  EXPECT_EQ(p.documents.documents[1]->saves, 1);
}

}  // namespace
}  // namespace vmod17

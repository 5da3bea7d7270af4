// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include "worksheet/mode_fixture.h"

namespace vmod17 {
namespace {

/// A lesson of which the test takes down what is said.
class SpokenLesson : public ModeFixture {
 public:
  SpokenLesson() {
    languages.languages = {{"Deutsch",
                            {{{"130s", "Aufgabe gelöst"},
                              {"232s", "Falsch"},
                              {"275s", "Gesamt"},
                              {"374s", "lfd. Nr.:"},
                              {"379s", "Major-Sept"},
                              {"409s", "Moll-Sept"},
                              {"461s", "Restzeit:"},
                              {"462s", "Restliche Aufgaben:"},
                              {"468s", "Richtig"},
                              {"566s", "Trainingsstand"},
                              {"638s", "zu schwer !!"},
                              {"700s", ":"},
                              {"9721s", "Lösung: %1"},
                              {"9722s", "Akkord %1 von %2"},
                              {"9723s", "Bitte antworten"},
                              {"9724s", "Ende der Aufgabe, %1 von %2 gelöst"},
                              {"9726s", "Ende des Trainings: %1"},
                              {"9727s", "Ende des Tests"},
                              {"9728s", "Die Zeit ist um"}},
                             {},
                             false}}};
  }

  /// What the worksheet has said since the last time.
  std::vector<std::string> Said() { return worksheet().TakeSaid(); }
  /// The chord of a board entry with its number, as it is told to whom does not see it.
  std::string Chord(int entry) {
    return worksheet().jz_kl[entry].caption + ", lfd. Nr.: " + std::to_string(entry);
  }
};

using Said = std::vector<std::string>;

TEST(SpokenWorksheet, AsksForAnswersWhenThePlayingHasEnded) {
  SpokenLesson p;
  p.Begin();
  p.Said();
  p.worksheet().CmdNextAufg.Press();
  EXPECT_TRUE(p.worksheet().listening);
  EXPECT_EQ(p.Said(), Said());
  p.EndPlaying();
  EXPECT_FALSE(p.worksheet().listening);
  EXPECT_EQ(p.Said(), Said{"Bitte antworten"});
}

TEST(SpokenWorksheet, ListensFromThePressOfARepeatToItsEnd) {
  SpokenLesson p;
  p.Begin();
  p.PlayTask();
  bool listening_in_the_pause = false;
  p.AtMoment(1, [&] { listening_in_the_pause = p.worksheet().listening; });
  p.worksheet().wieder.Press();
  EXPECT_TRUE(listening_in_the_pause);
  EXPECT_TRUE(p.worksheet().listening);
  p.Said();
  p.EndPlaying();
  EXPECT_FALSE(p.worksheet().listening);
  EXPECT_EQ(p.Said(), Said{"Bitte antworten"});
}

TEST(SpokenWorksheet, SaysNothingAfterTheControlRepeat) {
  SpokenLesson p;
  p.Begin();
  p.PlayTask();
  p.FinishTask();
  p.Said();
  p.worksheet().wieder2.Press();
  EXPECT_TRUE(p.worksheet().listening);
  p.EndPlaying();
  EXPECT_FALSE(p.worksheet().listening);
  EXPECT_EQ(p.Said(), Said());
}

TEST(SpokenWorksheet, NoLongerListensWhenItIsLeft) {
  SpokenLesson p;
  p.Begin();
  Arbeitsblatt1& sheet = p.worksheet();
  sheet.CmdNextAufg.Press();
  p.loop.meanwhile = [&] { EXPECT_FALSE(sheet.listening); };
  sheet.zurueck.Press();
}

TEST(SpokenWorksheet, TellsARightAnswerWithItsChordAtOnce) {
  SpokenLesson p;
  p.Begin([](ExerciseSettings& s) { s.akk_anzahl = 2; });
  p.PlayTask();
  EXPECT_EQ(p.Said(), (Said{"Bitte antworten", "Akkord 1 von 2"}));
  const int first = p.Right();
  EXPECT_EQ(p.Said(), (Said{"Richtig: " + p.Chord(first), "Akkord 2 von 2"}));
  const int second = p.Right();
  EXPECT_EQ(p.Said(), (Said{"Richtig: " + p.Chord(second), "Ende der Aufgabe, 2 von 2 gelöst",
                            "Richtig 2, Falsch 0"}));
}

TEST(SpokenWorksheet, TellsAWrongAnswerWithoutTheChord) {
  SpokenLesson p;
  p.Begin();
  p.PlayTask();
  p.Said();
  p.Wrong();
  EXPECT_EQ(p.Said(), Said{"Falsch"});
}

TEST(SpokenWorksheet, TellsTheSolutionOfALostChord) {
  SpokenLesson p;
  p.Begin();
  p.PlayTask();
  const int asked = p.Asked(1);
  while (p.run().akk_nr == 1) {
    p.Said();
    ASSERT_NE(p.Wrong(), 0);
  }
  EXPECT_EQ(p.Said(),
            (Said{"Falsch", "Lösung: " + p.Chord(asked), "Ende der Aufgabe, 0 von 1 gelöst",
                  "Richtig 0, Falsch " + p.worksheet().zaehler[1].caption}));
}

TEST(SpokenWorksheet, TellsTheGroupWhereGroupsAreNamed) {
  SpokenLesson p;
  p.Begin([](ExerciseSettings& s) { s.best_art = 1; }, {4}, {1, 3});
  p.PlayTask();
  p.Said();
  const int group = p.Right();
  EXPECT_EQ(p.Said()[0], std::string("Richtig: ") + (group == 1 ? "Major-Sept" : "Moll-Sept"));
}

TEST(SpokenWorksheet, TellsHowATrainingStandsAndEnds) {
  SpokenLesson solved;
  solved.BeginMode(kTraining);
  solved.PlayTask();
  solved.FinishTask();
  EXPECT_EQ(solved.Said().back(),
            "Trainingsstand " + std::to_string(solved.worksheet().matboxanz.percent) + " %");
  SpokenLesson all;
  all.BeginMode(kTraining);
  all.Solve();
  EXPECT_EQ(all.Said().back(), "Ende des Trainings: Aufgabe gelöst");
  SpokenLesson hard;
  hard.BeginMode(kTraining);
  hard.MakeTooHard();
  EXPECT_EQ(hard.Said().back(), "Ende des Trainings: zu schwer !!");
}

TEST(SpokenWorksheet, TellsWhatIsLeftOfATestUnlessThatIsHidden) {
  SpokenLesson p;
  p.BeginMode(kTest);
  p.PlayTask();
  p.FinishTask();
  const Arbeitsblatt1& sheet = p.worksheet();
  EXPECT_EQ(p.Said().back(), sheet.lab_aufgaben.caption + ", " + sheet.stop_uhr.caption);
  p.worksheet().cmd_test_aus.Press();
  p.PlayTask();
  p.FinishTask();
  EXPECT_EQ(p.Said().back(), "");
}

TEST(SpokenWorksheet, TellsThatATestHasEndedAndWhatCameOfIt) {
  SpokenLesson p;
  p.BeginMode(kTest);
  p.FinishTest();
  EXPECT_EQ(p.Said().back(), "Ende des Tests");
  p.worksheet().zurueck.Press();
  p.loop.Advance(300);
  EXPECT_EQ(p.results().TakeSaid(), Said{"Gesamt: 100.0%"});
}

TEST(SpokenWorksheet, TellsThatTheTimeIsUp) {
  SpokenLesson p;
  p.BeginMode(kTest);
  Arbeitsblatt1& sheet = p.worksheet();
  sheet.CmdNextAufg.Press();
  p.Said();
  const int rest = p.run().test.rest_sek;
  p.loop.Advance((rest + 10) * 1000.0);
  EXPECT_FALSE(sheet.listening);
  EXPECT_EQ(sheet.TakeSaid().back(), "Die Zeit ist um");
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// A training on the whole program: the gauge, its ends, how it is kept and taken up again.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "worksheet/mode_fixture.h"

namespace vmod17 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Array = TaggedValue::Array;
using Answer = MessageBox::Answer;
using Shown = ScriptedMessageBox::Shown;

constexpr const char* kNothing = "---------------";

WorksheetFixture::Change Chords(int akk_anzahl) {
  return [=](ExerciseSettings& s) { s.akk_anzahl = akk_anzahl; };
}

WorksheetFixture::Change Groups(int akk_anzahl) {
  return [=](ExerciseSettings& s) {
    s.akk_anzahl = akk_anzahl;
    s.best_art = 1;
  };
}

/// Which of the three labels of a training's state shows.
std::vector<int> StateLabels(WorksheetFixture& p) {
  std::vector<int> shown;
  for (int i = 0; i <= 2; ++i) {
    if (p.worksheet().ergebnis_anz[i].visible) shown.push_back(i);
  }
  return shown;
}

void ExpectAskedToSave(ModeFixture& p) {
  EXPECT_EQ(p.messages.questions, (std::vector<Shown>{{"[495s]\n[8s]", "[348s]"}}));
}

void ExpectNothingStored(ModeFixture& p) {
  EXPECT_EQ(p.host.Sent("STORE"), 0);
  EXPECT_TRUE(p.host.Stored("E1").IsEmpty());
  EXPECT_TRUE(p.host.Stored("A1").IsEmpty());
}

// ---- The display --------------------------------------------------------------------------------

TEST(Training, ShowsItsPictureItsGaugeAndThatItIsInProgress) {
  ModeFixture p;
  p.BeginMode(kTraining);
  const Arbeitsblatt1& w = p.worksheet();
  EXPECT_TRUE(w.PicUetyp[0].visible);
  EXPECT_FALSE(w.PicUetyp[1].visible);
  EXPECT_TRUE(w.matboxanz.visible);
  EXPECT_EQ(w.matboxanz.percent, 50);
  EXPECT_THAT(StateLabels(p), ElementsAre(0));
  EXPECT_EQ(w.ergebnis_anz[0].caption, "[566s]");
  EXPECT_EQ(w.ergebnis_anz[1].caption, "[130s]");
  EXPECT_EQ(w.ergebnis_anz[2].caption, "[638s]");
  for (const Control* control : std::initializer_list<const Control*>{
           &w.stop_uhr, &w.lab_aufgaben, &w.cmd_test_aus, &w.cmd_test_ein}) {
    EXPECT_FALSE(control->visible) << control->Id();
  }
  EXPECT_EQ(w.zurueck.tag, "OK");
  EXPECT_EQ(p.run().schalter_zaehler, 0);
}

TEST(Training, ShowsNoGaugeInFreePractice) {
  ModeFixture p;
  p.BeginMode(kFrei);
  const Arbeitsblatt1& w = p.worksheet();
  EXPECT_FALSE(w.PicUetyp[0].visible);
  EXPECT_FALSE(w.matboxanz.visible);
  EXPECT_THAT(StateLabels(p), IsEmpty());
  EXPECT_EQ(p.run().material.mat_anzahl, 0);
}

TEST(Training, MovesTheGaugeAfterEachTaskOnly) {
  ModeFixture p;
  p.BeginMode(kTraining, Chords(2));
  const Arbeitsblatt1& w = p.worksheet();
  p.PlayTaskOf({2, 5});
  p.Right();
  EXPECT_EQ(w.matboxanz.percent, 50);
  p.Right();
  EXPECT_EQ(w.matboxanz.percent, 40);  // 32 of 80
  EXPECT_EQ(p.run().lauf_status, LaufStatus::kAufgabeFertig);
  p.PlayTaskOf({1, 3});
  p.Right();
  p.WorksheetFixture::Wrong();
  p.Right();
  EXPECT_EQ(p.Weight(1), 1) << "known, and then taken for another";
  EXPECT_EQ(p.Weight(3), 6);
  EXPECT_EQ(w.matboxanz.percent, 39);  // 31 of 80
}

TEST(Training, TakesRepeatsAndSlownessIntoItsWeights) {
  ModeFixture p;
  p.BeginMode(kTraining);
  p.PlayTaskOf({1});
  p.Repeat();
  p.Right();
  EXPECT_EQ(p.Weight(1), 1);  // 4 - 3
  p.PlayTaskOf({2});
  p.loop.Advance(8000);
  p.Right();
  EXPECT_EQ(p.Weight(2), 4) << "after eight seconds nothing is left of a right answer";
  p.PlayTaskOf({3});
  p.WorksheetFixture::Wrong();
  p.Repeat();
  p.Repeat();
  p.Right();
  EXPECT_EQ(p.Weight(3), 4 + 2 + 2);
}

TEST(Training, LowersTheWeightOfAChordForEachSlotInWhichItIsKnown) {
  ModeFixture p;
  p.BeginMode(kTraining, Chords(4));
  p.DoTask({5, 5, 5, 5});
  EXPECT_EQ(p.Weight(5), 4 - 16);
  EXPECT_EQ(p.worksheet().matboxanz.percent, 45);  // 36 of 80
}

TEST(Training, CountsAChordTakenForAnotherInItsWeight) {
  ModeFixture p;
  p.BeginMode(kTraining);
  p.PlayTaskOf({4});
  const int taken = p.WorksheetFixture::Wrong();
  p.Right();
  EXPECT_EQ(p.Weight(taken), 5);
  EXPECT_EQ(p.Weight(4), 6);
}

TEST(Training, ClosesASlotOfTwoChoicesAtTheFirstWrongClick) {
  ModeFixture p;
  p.BeginMode(kTraining, Groups(1), {4}, {1, 5});
  EXPECT_EQ(p.program.board().limits.fehl_max, 2);
  p.PlayTaskOf({1});
  p.WorksheetFixture::Wrong();
  EXPECT_EQ(p.run().lauf_status, LaufStatus::kAufgabeFertig);
  EXPECT_EQ(p.Weight(1), 6 + 2);  // five chords begin at 6
}

// ---- Solved and too hard ------------------------------------------------------------------------

void ExpectEnd(ModeFixture& p, int label, int percent) {
  const Arbeitsblatt1& w = p.worksheet();
  EXPECT_EQ(p.run().lauf_status, LaufStatus::kTrainingZuEnde);
  EXPECT_EQ(w.zurueck.back_color, Rgb(255, 255, 0));
  EXPECT_EQ(w.zurueck.fore_color, Rgb(255, 0, 0));
  EXPECT_EQ(w.zurueck.caption, "[625s]");
  EXPECT_THAT(StateLabels(p), ElementsAre(label));
  EXPECT_EQ(w.matboxanz.percent, percent);
  EXPECT_TRUE(w.wieder2.Reachable());
  EXPECT_FALSE(w.wieder.visible);
  EXPECT_FALSE(w.CmdNextAufg.Reachable());
  EXPECT_TRUE(w.zurueck.Reachable());
  EXPECT_THAT(p.OpenChoices(), IsEmpty());
  EXPECT_EQ(w.pointer, Form::Pointer::kDefault);
  EXPECT_EQ(p.host.Stored("A1"), TaggedValue(Array{"False"}));
  EXPECT_THAT(p.Modes(), ElementsAre("[136s]", "[564s]", kNothing, "[550s]", "[438s]"));
  EXPECT_EQ(p.settings_screen().training_Combo.list_index(), 1);
  EXPECT_EQ(p.settings().uebmodus, 1);
  EXPECT_THAT(p.messages.questions, IsEmpty());
}

TEST(Training, IsSolvedWhenNoChordHasAnythingLeft) {
  ModeFixture p;
  p.BeginMode(kTraining);
  for (int e = 1; e <= 9; ++e) {
    p.DoTask({e});
    EXPECT_EQ(p.run().lauf_status, LaufStatus::kAufgabeFertig) << e;
    EXPECT_EQ(p.worksheet().matboxanz.percent, 50 - 5 * e);
  }
  p.DoTask({10});
  ExpectEnd(p, 1, 1);  // 1 of 80, the foot of the scale
}

TEST(Training, IsTooHardWhenItsWeightsHaveDoubled) {
  ModeFixture p;
  p.BeginMode(kTraining);
  // Each lost task adds 8 to one chord and 1 to each of four others: 52, 64, 76, 88 of 80.
  for (const int percent : {65, 80, 95}) {
    p.LoseTask();
    EXPECT_EQ(p.run().lauf_status, LaufStatus::kAufgabeFertig);
    EXPECT_EQ(p.worksheet().matboxanz.percent, percent);
  }
  p.LoseTask();
  ExpectEnd(p, 2, 100);
  EXPECT_EQ(p.run().material.mat_rest, 80);
}

TEST(Training, StoresThatItIsOverUnderTheBusyPointer) {
  ModeFixture p;
  p.BeginMode(kTraining);
  int stores = 0;
  p.host.on_call = [&](const MemoryHost::Call& call) {
    if (call.command != "STORE") return;
    ++stores;
    EXPECT_EQ(call.args, TaggedValue(Array{"vmod17", "A1", Array{"False"}}));
    EXPECT_EQ(p.worksheet().pointer, Form::Pointer::kHourglass);
  };
  p.Solve();
  EXPECT_EQ(stores, 1);
}

TEST(Training, LeavesOnlyTheControlRepeatAndTheWayOutWhenItIsOver) {
  for (const int abfolge : {0, 1}) {
    ModeFixture p;
    p.BeginMode(kTraining, [&](ExerciseSettings& s) { s.abfolge = abfolge; });
    p.Solve();
    const int lessons = p.Lessons();
    p.loop.Advance(60000);
    EXPECT_EQ(p.Lessons(), lessons) << "no task follows by itself";
    EXPECT_FALSE(p.worksheet().WahlAutomat.enabled);
    EXPECT_FALSE(p.worksheet().LbNextAufg.visible && abfolge == 0);
    EXPECT_TRUE(p.ControlRepeat());
    EXPECT_TRUE(p.worksheet().wieder2.Reachable());
    EXPECT_FALSE(p.worksheet().CmdNextAufg.Reachable()) << "the control repeat brings nothing back";
    EXPECT_FALSE(p.worksheet().WahlAutomat.enabled);
    EXPECT_TRUE(p.ControlRepeat());
    EXPECT_EQ(p.worksheet().whlgzaehler.caption, "0");
  }
}

TEST(Training, LeadsThroughTheResultsWhenItIsOver) {
  for (const bool solved : {true, false}) {
    ModeFixture p;
    p.BeginMode(kTraining);
    if (solved) {
      p.Solve();
    } else {
      p.MakeTooHard();
    }
    const Arbeitsblatt1& w = p.worksheet();
    EXPECT_TRUE(p.worksheet().zurueck.Press());
    EXPECT_EQ(w.zurueck.back_color, Rgb(255, 0, 255));
    EXPECT_EQ(w.zurueck.fore_color, Rgb(0, 0, 0));
    EXPECT_EQ(w.zurueck.caption, "[640s]");
    EXPECT_FALSE(w.zurueck.Reachable());
    EXPECT_FALSE(w.wieder2.Reachable());
    ASSERT_NE(p.program.testergebnis(), nullptr);
    EXPECT_FALSE(p.results().visible);
    p.loop.Advance(299);
    EXPECT_FALSE(p.results().visible);
    p.loop.Advance(1);
    EXPECT_TRUE(p.results().visible);
    EXPECT_EQ(p.documents.Latest().saves, 0) << "the record waits for the end of the results";
    EXPECT_FALSE(p.settings_screen().visible);
    EXPECT_TRUE(p.results().cmdOK[0].Press());
    EXPECT_EQ(p.documents.Latest().saves, 0);
    EXPECT_TRUE(p.results().cmdOK[1].Press());
    EXPECT_EQ(p.documents.Latest().saves, 1);
    EXPECT_EQ(p.program.testergebnis(), nullptr);
    EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
    EXPECT_TRUE(p.settings_screen().visible);
    EXPECT_EQ(p.loop.timers(), 0);
    EXPECT_THAT(p.messages.questions, IsEmpty());
    EXPECT_THAT(p.messages.warnings, IsEmpty());
    EXPECT_EQ(p.host.Sent("STORE"), 1) << "that it is over, and nothing else";
  }
}

TEST(Training, CannotBeTakenUpOnceItIsSolved) {
  ModeFixture p;
  p.BeginMode(kTraining);
  p.Solve();
  p.worksheet().zurueck.Press();
  p.PassResults();
  p.settings_screen().training_Combo.Choose(kWeiter);
  EXPECT_EQ(p.settings().uebmodus, kTraining);
  ModeFixture q;
  q.host.records = p.host.records;
  q.ToSettings();
  EXPECT_EQ(q.Modes()[kWeiter], kNothing);
}

TEST(Training, TakenUpAndSolvedIsNotOfferedAgain) {
  ModeFixture p;
  p.BeginMode(kTraining);
  for (int e = 1; e <= 9; ++e) p.DoTask({e});
  p.SaveAndLeave();
  ModeFixture q;
  q.Continue(p.host);
  EXPECT_EQ(q.worksheet().matboxanz.percent, 5);
  q.DoTask({10});
  ExpectEnd(q, 1, 1);
  q.worksheet().zurueck.Press();
  q.PassResults();
  EXPECT_EQ(q.documents.Latest().saves, 1);
  EXPECT_EQ(q.Modes()[kWeiter], kNothing);
}

// ---- Saving
// ---------------------------------------------------------------------------------------

/// What a training of the ten triads has stored after entry 2 was known at once, and entry 7 after
/// a click on entry 1.
const Array& TwoTasks() {
  static const Array list = {
      "true",                                             // 0
      "7", "1", "4", "5", "6", "3", "8", "9", "10", "2",  // 1 entries of the material
      "6", "5", "4", "4", "4", "4", "4", "4", "4", "0",   // 11 their weights
      "10",                                               // 21 chords of the board
      "3", "1", "0", "3", "2", "0", "3", "3", "0", "3", "4", "0", "3", "5", "0",  // 22 the
                                                                                  // board
      "3", "6", "0", "3", "7", "0", "3", "8", "0", "3", "9", "0", "3", "10", "0", "7", "1", "-6",
      "0",                   // 52 entry, asked, scores, wrongly chosen
      "1", "0", "0", "1",    //
      "4", "0", "0", "0",    //
      "5", "0", "0", "0",    //
      "6", "0", "0", "0",    //
      "3", "0", "0", "0",    //
      "8", "0", "0", "0",    //
      "9", "0", "0", "0",    //
      "10", "0", "0", "0",   //
      "2", "1", "-16", "0",  //
      "2", "1", "1",         // 92 right, wrong, repeats
      "8"};                  // 95 the highest points of a slot
  return list;
}

/// A task in which entry 2 is known, and one in which entry 7 is taken for 1 and heard again.
void DoTwoTasks(ModeFixture& p) {
  p.DoTask({2});
  p.PlayTaskOf({7});
  EXPECT_TRUE(p.worksheet().jz_kl[1].Press());
  p.Right();
  p.PlayTask();
  EXPECT_TRUE(p.Repeat());  // of a task that is never answered: only the run's counter tells of it
}

TEST(SavingATraining, StoresItsStateFieldByField) {
  ModeFixture p;
  p.BeginMode(kTraining);
  DoTwoTasks(p);
  p.SaveAndLeave();
  EXPECT_EQ(TwoTasks().size(), 6u * 10 + 3 * 10 + 6);
  EXPECT_EQ(p.host.Stored("A1"), TaggedValue(TwoTasks()));
}

TEST(SavingATraining, AsksFirstAndStoresTheSettingsBeforeTheState) {
  ModeFixture p;
  p.BeginMode(kTraining);
  DoTwoTasks(p);
  std::vector<std::string> keys;
  p.host.on_call = [&](const MemoryHost::Call& call) {
    if (call.command != "STORE") return;
    keys.push_back(call.args[1].String());
    EXPECT_EQ(p.messages.questions.size(), 1u);
    EXPECT_EQ(p.worksheet().pointer, Form::Pointer::kHourglass);
    EXPECT_EQ(p.documents.Latest().saves, 0);
  };
  p.SaveAndLeave();
  ExpectAskedToSave(p);
  EXPECT_THAT(keys, ElementsAre("E1", "A1"));
  EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
  EXPECT_TRUE(p.settings_screen().visible);
  EXPECT_EQ(p.documents.Latest().saves, 1);
  EXPECT_THAT(p.messages.warnings, IsEmpty());
}

TEST(SavingATraining, StoresTheSettingsOfTheRun) {
  ModeFixture p;
  p.BeginMode(kTraining, Chords(2), {4, 5}, {1, 5});
  const Array e1 = p.program.server().einst_satz;
  p.DoTask({2, 3});
  p.SaveAndLeave();
  EXPECT_EQ(p.host.Stored("E1"), TaggedValue(e1));
  EXPECT_EQ(e1.at(2), TaggedValue("2"));
  EXPECT_EQ(e1.at(14), TaggedValue("2"));
  // n + g + klangfarb_felder + 16 is the highest index.
  EXPECT_EQ(e1.size(), 2u + 2 + 2 + 16 + 1);
}

TEST(SavingATraining, OffersItInTheListAndSelectsTheModeAgain) {
  ModeFixture p;
  p.BeginMode(kTraining);
  EXPECT_EQ(p.Modes()[kWeiter], kNothing);
  p.DoTask({3});
  p.SaveAndLeave();
  EXPECT_THAT(p.Modes(), ElementsAre("[136s]", "[564s]", "[565s]", "[550s]", "[438s]"));
  EXPECT_EQ(p.settings_screen().training_Combo.list_index(), kTraining);
  EXPECT_EQ(p.settings().uebmodus, kTraining);

  p.ContinueHere();
  p.DoTask({4});
  p.SaveAndLeave();
  EXPECT_EQ(p.settings_screen().training_Combo.list_index(), kWeiter);
  EXPECT_EQ(p.settings().uebmodus, kWeiter);
  EXPECT_EQ(p.host.Stored("A1")[92], TaggedValue("2"));
}

TEST(SavingATraining, StoresNothingWhenTheAnswerIsNo) {
  ModeFixture p;
  p.BeginMode(kTraining);
  p.DoTask({3});
  p.LeaveWith(Answer::kNo);
  ExpectAskedToSave(p);
  ExpectNothingStored(p);
  EXPECT_EQ(p.Modes()[kWeiter], kNothing);
  EXPECT_EQ(p.documents.Latest().saves, 1);
  EXPECT_TRUE(p.settings_screen().visible);
}

TEST(SavingATraining, LeavesTheEarlierOneWhenTheAnswerIsNo) {
  ModeFixture p;
  p.BeginMode(kTraining);
  p.DoTask({3});
  p.SaveAndLeave();
  const auto before = p.host.records;
  p.StartRun();
  p.DoTask({5});
  p.LeaveWith(Answer::kNo);
  EXPECT_EQ(p.host.records, before);
  p.ContinueHere();
  p.DoTask({5});
  p.LeaveWith(Answer::kNo);
  EXPECT_EQ(p.host.records, before);
}

TEST(SavingATraining, ReplacesTheEarlierOne) {
  ModeFixture p;
  p.BeginMode(kTraining);
  p.DoTask({3});
  p.SaveAndLeave();
  p.StartRun();
  DoTwoTasks(p);
  p.SaveAndLeave();
  EXPECT_EQ(p.host.Stored("A1"), TaggedValue(TwoTasks()));
}

TEST(SavingATraining, AsksNothingBeforeTheFirstTaskIsFinished) {
  const std::vector<std::function<void(ModeFixture&)>> states = {
      [](ModeFixture&) {}, [](ModeFixture& p) { p.PlayTask(); },
      [](ModeFixture& p) {
        p.PlayTask();
        p.Right();
      }};
  for (const int modus : {kTraining, kWeiter}) {
    for (const auto& reach : states) {
      ModeFixture p;
      BeginAnyMode(p, modus);
      const auto before = p.host.records;
      reach(p);
      p.SaveAndLeave();
      EXPECT_THAT(p.messages.questions, IsEmpty());
      EXPECT_EQ(p.host.Sent("STORE"), 0);
      EXPECT_EQ(p.host.records, before) << "a training that is not answered stays as it was";
      EXPECT_EQ(p.documents.Latest().saves, 1);
    }
  }
}

TEST(SavingATraining, AsksInTheMiddleOfALaterTaskToo) {
  ModeFixture p;
  p.BeginMode(kTraining, Chords(2));
  p.DoTask({2, 7});
  p.PlayTask();
  p.Right();
  p.SaveAndLeave();
  ExpectAskedToSave(p);
  // The finished task counts in the material, the clicks of the other one in the counters alone.
  EXPECT_EQ(p.host.Stored("A1")[92], TaggedValue("3"));
  ModeFixture q;
  q.Continue(p.host);
  EXPECT_EQ(q.worksheet().zaehler[0].caption, "3");
  EXPECT_EQ(q.worksheet().matboxanz.percent, 40);
}

TEST(SavingATraining, IsNotAskedForInTheOtherModes) {
  for (const int modus : {kFrei, kTest, kPruefung}) {
    ModeFixture p;
    BeginAnyMode(p, modus);
    p.PlayTask();
    p.FinishTask();
    p.SaveAndLeave();
    EXPECT_THAT(p.messages.questions, IsEmpty());
    ExpectNothingStored(p);
  }
}

TEST(SavingATraining, IsNotAskedForAfterAnError) {
  for (const int modus : {kTraining, kWeiter}) {
    ModeFixture p;
    BeginAnyMode(p, modus);
    const auto before = p.host.records;
    p.PlayTask();
    p.FinishTask();
    p.random.Always(0);
    p.messages.answer = Answer::kYes;
    p.worksheet().CmdNextAufg.Press();
    EXPECT_EQ(p.messages.warnings.size(), 1u);
    EXPECT_THAT(p.messages.questions, IsEmpty());
    EXPECT_EQ(p.host.records, before);
    EXPECT_EQ(p.documents.Latest().saves, 1);
  }
}

TEST(SavingATraining, ThatFailsAsksAgainAndLosesNothing) {
  ModeFixture p;
  p.BeginMode(kTraining);
  DoTwoTasks(p);
  int failures = 3;
  p.host.on_call = [&](const MemoryHost::Call& call) {
    if (call.command != "STORE" || failures == 0) return;
    --failures;
    EXPECT_EQ(p.worksheet().pointer, Form::Pointer::kHourglass);
    throw RunTimeError(ErrorNumber::kStore, "the disk is full", "vmod17.test");
  };
  p.SaveAndLeave();
  EXPECT_EQ(p.messages.questions, (std::vector<Shown>{{"[495s]\n[8s]", "[348s]"},
                                                      {"[9301s]", "[348s]"},
                                                      {"[9301s]", "[348s]"},
                                                      {"[9301s]", "[348s]"}}));
  EXPECT_EQ(p.host.Stored("A1"), TaggedValue(TwoTasks()));
  EXPECT_FALSE(p.host.Stored("E1").IsEmpty());
  ASSERT_EQ(p.host.errors.size(), 3u);
  EXPECT_EQ(p.host.errors[0],
            (MemoryHost::Error{"zurueck_click.arbeitsblatt1.vmod17", ErrorNumber::kStore,
                               "the disk is full", "vmod17.test"}));
  EXPECT_THAT(p.messages.warnings, IsEmpty());
  EXPECT_EQ(p.documents.Latest().saves, 1);
  EXPECT_TRUE(p.settings_screen().visible);
}

TEST(SavingATraining, ThatFailsHalfWayLeavesTheEarlierPair) {
  ModeFixture p;
  p.BeginMode(kTraining);
  p.DoTask({3});
  p.SaveAndLeave();
  const auto before = p.host.records;
  p.settings_screen().akkzahl_cmb.Choose(1);
  p.StartRun();
  p.DoTask({4, 5});
  p.host.on_call = [&](const MemoryHost::Call& call) {
    if (call.command != "STORE" || call.args[1] != TaggedValue("A1")) return;
    p.messages.answer = Answer::kNo;  // to the question whether to try again
    throw RunTimeError(ErrorNumber::kStore, "the disk is full", "vmod17.test");
  };
  p.SaveAndLeave();
  EXPECT_EQ(p.messages.questions.size(), 3u);
  EXPECT_EQ(p.host.records, before);
  EXPECT_EQ(p.documents.Latest().saves, 1);
  EXPECT_TRUE(p.settings_screen().visible);
}

TEST(SavingATraining, SpeaksTheLanguageOfTheProgramWhenItFails) {
  ModeFixture p;
  p.languages.languages[0].second.words["9301s"] = "";
  p.BeginMode(kTraining);
  p.DoTask({3});
  p.host.on_call = [&](const MemoryHost::Call& call) {
    if (call.command != "STORE") return;
    p.messages.answer = Answer::kNo;
    throw RunTimeError(ErrorNumber::kStore, "the disk is full", "vmod17.test");
  };
  p.SaveAndLeave();
  ASSERT_EQ(p.messages.questions.size(), 2u);
  EXPECT_EQ(p.messages.questions[1].text, "The training could not be saved. Try again?");
}

// ---- Taking it up again
// -----------------------------------------------------------------------------

TEST(ContinuedTraining, HasTheBoardWeightsCountersAndGaugeThatWereStored) {
  ModeFixture p;
  p.BeginMode(kTraining);
  DoTwoTasks(p);
  p.SaveAndLeave();
  ModeFixture q;
  q.Continue(p.host);
  const Arbeitsblatt1& w = q.worksheet();
  EXPECT_EQ(q.program.board().akk_zahl, 10);
  for (int e = 1; e <= 10; ++e) {
    EXPECT_EQ(q.program.board()[e].klangtyp, 3);
    EXPECT_EQ(q.program.board()[e].row, e);
    EXPECT_GT(q.program.board()[e].klang, 0);
  }
  const std::vector<std::array<int, 2>> rows(q.run().material.mat_tab.begin() + 1,
                                             q.run().material.mat_tab.end());
  EXPECT_EQ(rows,
            (std::vector<std::array<int, 2>>{
                {7, 6}, {1, 5}, {4, 4}, {5, 4}, {6, 4}, {3, 4}, {8, 4}, {9, 4}, {10, 4}, {2, 0}}));
  EXPECT_EQ(q.run().material.mat_rest, 39);
  EXPECT_EQ(w.matboxanz.percent, 49);  // 39 of 80
  EXPECT_EQ(w.zaehler[0].caption, "2");
  EXPECT_EQ(w.zaehler[1].caption, "1");
  EXPECT_EQ(w.whlgzaehler.caption, "1");
  EXPECT_EQ(q.program.board().limits.fehl_max, 8);
  EXPECT_TRUE(w.PicUetyp[0].visible);
  EXPECT_TRUE(w.matboxanz.visible);
  EXPECT_THAT(StateLabels(q), ElementsAre(0));
  EXPECT_EQ(w.CmdNextAufg.caption, "[129s] 1");
  EXPECT_THAT(q.messages.warnings, IsEmpty());
  // Stored again it is the same, but for the one task that must be finished before.
  q.DoTask({2});
  q.SaveAndLeave();
  EXPECT_EQ(q.host.Stored("E1"), p.host.Stored("E1"));
}

TEST(ContinuedTraining, ShowsItsTilesAndSounds) {
  ModeFixture p;
  p.BeginMode(kTraining, {}, {4, 5}, {1, 5});
  const int entries = p.program.board().akk_zahl;
  std::vector<int> klang(1, 0);
  for (int e = 1; e <= entries; ++e) klang.push_back(p.worksheet().jz_kl[e].image.number);
  p.DoTask({1});
  p.SaveAndLeave();
  ModeFixture q;
  q.Continue(p.host);
  EXPECT_EQ(q.program.board().akk_zahl, entries);
  for (int e = 1; e <= entries; ++e) {
    EXPECT_EQ(q.worksheet().jz_kl[e].image.number, klang[e]) << e;
    EXPECT_TRUE(q.worksheet().klang_pan[e].visible);
  }
  q.PlayTaskOf({entries});
  const Chord& chord = ChordOfKlang(klang[entries]);
  const auto notes = q.output.PlayedNoteOns();
  ASSERT_EQ(notes.size(), chord.semitones.size());
  for (std::size_t v = 0; v < notes.size(); ++v) {
    EXPECT_EQ(notes[v].data1, q.run().grundton + chord.semitones[v]);
  }
}

TEST(ContinuedTraining, DrawsNoBoardAnew) {
  ModeFixture p;
  p.BeginMode(kTraining, {}, {4, 5, 6}, {1, 2, 3, 4, 5, 6});
  ASSERT_EQ(p.program.board().akk_zahl, 24);
  std::vector<BoardEntry> board;
  for (int e = 1; e <= 24; ++e) board.push_back(p.program.board()[e]);
  p.DoTask({1});
  p.SaveAndLeave();
  ModeFixture q;
  q.random.Restart(4711);  // of another board
  const int draws = q.random.draws;
  q.Continue(p.host);
  EXPECT_EQ(q.random.draws, draws);
  for (int e = 1; e <= 24; ++e)
    EXPECT_EQ(q.program.board()[e], board[static_cast<std::size_t>(e) - 1]);
}

TEST(ContinuedTraining, CountsNoConfusionsInAFreshProcess) {
  ModeFixture q;
  q.Continue(StoreWithTraining());
  EXPECT_EQ(q.program.board().limits.fehl_stufen, 0);
  EXPECT_EQ(q.program.board().limits.fehl_max, 8);
  q.PlayTaskOf({3, 4});
  EXPECT_TRUE(q.worksheet().jz_kl[9].Press());
  q.FinishTask();
  EXPECT_EQ(q.Weight(9), 4) << "not practised more";
  EXPECT_EQ(q.Weight(3), 6);
  EXPECT_EQ(q.run().answers.falsch_ar[1][1], 9) << "although it is known";
  q.SaveAndLeave();
  const TaggedValue a1 = q.host.Stored("A1");
  for (std::size_t row = 0; row < 10; ++row) EXPECT_EQ(a1[52 + 4 * row + 3], TaggedValue("0"));
}

TEST(ContinuedTraining, CountsConfusionsWithTheStepsOfAnEarlierRunOfTheProcess) {
  ModeFixture q;
  q.host.records = StoreWithTraining().records;
  q.BeginMode(kFrei);  // ten choices: four steps
  q.worksheet().zurueck.Press();
  q.ContinueHere();
  EXPECT_EQ(q.program.board().limits.fehl_stufen, 4);
  q.PlayTaskOf({3, 4});
  EXPECT_TRUE(q.worksheet().jz_kl[9].Press());
  q.FinishTask();
  EXPECT_EQ(q.Weight(9), 5);
}

TEST(ContinuedTraining, ClosesASlotAtTheStoredPointsInAFreshProcess) {
  ModeFixture q;
  q.Continue(StoreWithTraining());
  q.PlayTaskOf({3, 4});
  for (int click = 1; click <= 3; ++click) {
    q.WorksheetFixture::Wrong();
    EXPECT_EQ(q.run().akk_nr, 1);
  }
  q.WorksheetFixture::Wrong();
  EXPECT_EQ(q.run().akk_nr, 2);
}

TEST(ContinuedTraining, ShowsTheFormsOwnNamesOnTheGroupButtons) {
  ModeFixture p;
  p.BeginMode(kTraining, Groups(1), {4}, {1, 5});
  EXPECT_EQ(p.worksheet().akk_group[1].caption, p.program.names().grp_name_ar[1]);
  EXPECT_EQ(p.worksheet().aktionsbox.height, 545);
  p.DoTask({1});
  p.SaveAndLeave();
  ModeFixture q;
  q.Continue(p.host);
  const Arbeitsblatt1& w = q.worksheet();
  EXPECT_EQ(w.akk_group[1].caption, "Major-Sept");
  EXPECT_EQ(w.akk_group[5].caption, "Dominant-Sept, alt.");
  for (int g = 1; g <= 8; ++g) EXPECT_EQ(w.akk_group[g].visible, g == 1 || g == 5) << g;
  EXPECT_EQ(w.aktionsbox.height, 497);
  EXPECT_EQ(w.jzakk_box[1].height, 545);
  EXPECT_TRUE(w.jzakk_box[1].visible);
  q.PlayTaskOf({1});
  const std::string solution = w.akk_group[q.RightChoice()].caption;
  q.Right();
  EXPECT_EQ(w.ergebnis[1].caption, solution);
}

TEST(ContinuedTraining, KeepsTheFullHeightWhenChordsAreNamed) {
  ModeFixture q;
  q.Continue(StoreWithTraining());
  EXPECT_EQ(q.worksheet().aktionsbox.height, 545);
  EXPECT_EQ(q.worksheet().jzakk_box[0].height, 545);
}

TEST(ContinuedTraining, ReadsItsStateUnderTheKeyOfTheExercise) {
  ModeFixture q;
  q.host.records = StoreWithTraining().records;
  q.ToSettings();
  q.settings_screen().training_Combo.Choose(kWeiter);
  q.host.calls.clear();
  q.StartRun();
  std::vector<std::string> keys;
  for (const auto& call : q.host.calls) {
    if (call.command == "READ") keys.push_back(call.args[1].String());
  }
  EXPECT_THAT(keys, ::testing::Contains("A1"));
  EXPECT_EQ(q.host.Sent("STORE"), 0);
}

TEST(ContinuedTraining, DrawsFromTheWholeBoardAsLongAsItHasNoBag) {
  ModeFixture p;
  p.BeginMode(kTraining, {}, {4}, {4, 7});
  const int n = p.program.board().akk_zahl;
  ASSERT_EQ(n, 3);  // ten of each: 30 left, not below 3 x 8 - 1
  p.DoTask({1});
  p.SaveAndLeave();
  ModeFixture q;
  q.Continue(p.host);
  EXPECT_EQ(q.run().material.mat_rest, 26);
  EXPECT_EQ(q.run().material.mat_anzahl, 0);
  EXPECT_EQ(q.worksheet().matboxanz.percent, 43);  // 26 of 60
  q.DoTask({3});
  EXPECT_EQ(q.run().material.mat_anzahl, 22) << "the bag is there once less is left";
  q.DoTask({2});
  EXPECT_THAT(q.messages.warnings, IsEmpty());
}

TEST(ContinuedTraining, GoesOnOverSeveralProcesses) {
  ModeFixture first;
  first.BeginMode(kTraining);
  first.DoTask({1});
  first.SaveAndLeave();
  MemoryHost store = first.host;
  for (int e = 2; e <= 9; ++e) {
    ModeFixture next;
    next.Continue(store);
    EXPECT_EQ(next.worksheet().matboxanz.percent, 50 - 5 * (e - 1));
    EXPECT_EQ(next.worksheet().zaehler[0].caption, std::to_string(e - 1));
    next.DoTask({e});
    next.SaveAndLeave();
    EXPECT_THAT(next.messages.warnings, IsEmpty());
    store = next.host;
  }
  ModeFixture last;
  last.Continue(store);
  last.DoTask({10});
  EXPECT_EQ(last.run().lauf_status, LaufStatus::kTrainingZuEnde);
}

// ---- Cut off from outside
// -----------------------------------------------------------------------------

TEST(CuttingATrainingOff, StoresAContinuedOneWithoutAsking) {
  ModeFixture q;
  q.Continue(StoreWithTraining());
  q.DoTask({3, 4});
  q.program.Leave();
  EXPECT_TRUE(q.ended);
  EXPECT_THAT(q.messages.questions, IsEmpty());
  EXPECT_EQ(q.host.Stored("A1")[92], TaggedValue("4"));
  EXPECT_EQ(q.documents.Latest().saves, 1);
}

TEST(CuttingATrainingOff, StoresANewOneThatReplacesNone) {
  ModeFixture p;
  p.BeginMode(kTraining);
  DoTwoTasks(p);
  p.program.Leave();
  EXPECT_THAT(p.messages.questions, IsEmpty());
  EXPECT_EQ(p.host.Stored("A1"), TaggedValue(TwoTasks()));
  EXPECT_FALSE(p.host.Stored("E1").IsEmpty());
  EXPECT_EQ(p.documents.Latest().saves, 1);
}

TEST(CuttingATrainingOff, KeepsTheStoredOneBeforeANewOne) {
  ModeFixture p;
  p.host.records = StoreWithTraining().records;
  p.BeginMode(kTraining);
  p.DoTask({5});
  p.program.Leave();
  EXPECT_EQ(p.host.records, StoreWithTraining().records);
  EXPECT_THAT(p.messages.questions, IsEmpty());
  EXPECT_EQ(p.documents.Latest().saves, 1);
}

TEST(CuttingATrainingOff, StoresNothingBeforeTheFirstTaskIsFinished) {
  for (const int modus : {kTraining, kWeiter}) {
    ModeFixture p;
    BeginAnyMode(p, modus);
    p.PlayTask();
    p.program.Leave();
    EXPECT_EQ(p.host.Sent("STORE"), 0);
    EXPECT_EQ(p.documents.Latest().saves, 1);
    EXPECT_TRUE(p.ended);
  }
}

TEST(CuttingATrainingOff, LeavesASolvedOneSolved) {
  ModeFixture p;
  p.BeginMode(kTraining);
  p.Solve();
  p.program.Leave();
  EXPECT_EQ(p.host.Stored("A1"), TaggedValue(Array{"False"}));
  EXPECT_EQ(p.documents.Latest().saves, 1);
  EXPECT_TRUE(p.ended);
}

TEST(CuttingATrainingOff, EndsAlsoWhenItCannotBeStored) {
  ModeFixture q;
  q.Continue(StoreWithTraining());
  q.DoTask({3, 4});
  q.host.Raise("STORE");
  q.program.Leave();
  EXPECT_TRUE(q.ended);
  EXPECT_EQ(q.host.Sent("MENUE"), 1);
  EXPECT_EQ(q.host.records, StoreWithTraining().records);
  EXPECT_EQ(q.documents.Latest().saves, 1);
  EXPECT_THAT(q.messages.questions, IsEmpty());
}

TEST(CuttingATrainingOff, SavesTheRecordOnceWhileTheResultsAreShown) {
  for (const bool shown : {false, true}) {
    ModeFixture p;
    p.BeginMode(kTraining);
    p.Solve();
    p.worksheet().zurueck.Press();
    if (shown) p.loop.Advance(300);
    p.program.Leave();
    EXPECT_TRUE(p.ended);
    EXPECT_EQ(p.documents.Latest().saves, 1);
    EXPECT_TRUE(p.view.forms.empty());
    EXPECT_EQ(p.loop.timers(), 0);
  }
}

}  // namespace
}  // namespace vmod17

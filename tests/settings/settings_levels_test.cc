// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The training levels: what they lock and free, the exams, the menu of the frames.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "settings/exams.h"
#include "settings/settings_fixture.h"
#include "settings/stored_training.h"

namespace vmod17 {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::SizeIs;

using Array = TaggedValue::Array;
using Numbers = std::vector<int>;

constexpr const char* kNichts = "---------------";
const Numbers kTrainingFrames = {0, 1, 2, 3, 4, 5, 7, 9, 10, 11, 12, 17};
const Numbers kExamFrames = {2, 3, 5, 7, 11};

using Levels = SettingsTest;

// --- The entry of the training that is taken up ---------------------------------------------

TEST_F(Levels, OfferATrainingOnlyWhenBothRecordsAreThereAndItCanBeTakenUp) {
  struct Case {
    TaggedValue e1;
    TaggedValue a1;
    std::string entry;
  };
  const Array e1 = DreiklangTraining();
  const std::vector<Case> cases = {
      {e1, Array{"true"}, "[565s]"},
      {e1, Array{"true", "1", Array{"2"}}, "[565s]"},
      {e1, Array{"false"}, kNichts},
      {e1, Array{"True"}, kNichts},
      {e1, Array{"NIL"}, kNichts},
      {e1, Array{TaggedValue()}, kNichts},
      {e1, Array{1}, kNichts},
      {e1, Array{1.0}, kNichts},
      {e1, Array{TaggedValue(Array{"true"})}, kNichts},
      {e1, Array{"", "true"}, kNichts},
      {e1, Array{}, kNichts},
      {e1, "true", kNichts},
      {e1, 7, kNichts},
      {e1, TaggedValue(), kNichts},
      {e1, Array{std::string(10'000'000, 't')}, kNichts},
      {e1, Array{"true", std::string(10'000'000, 'x')}, "[565s]"},
      {Array{"NIL"}, Array{"true"}, kNichts},
      {Array{}, Array{"true"}, kNichts},
      {"0", Array{"true"}, kNichts},
      {TaggedValue(), Array{"true"}, kNichts},
  };
  for (std::size_t i = 0; i < cases.size(); ++i) {
    SCOPED_TRACE(i);
    ProgramFixture p;
    p.host.SetStored("E1", cases[i].e1);
    p.host.SetStored("A1", cases[i].a1);
    p.ToSettings();
    Einstellung1& s = p.settings_screen();
    ASSERT_EQ(s.training_Combo.count(), 5);
    EXPECT_EQ(s.training_Combo.entry(2).text, cases[i].entry);
    EXPECT_EQ(s.training_Combo.entry(1).text, "[564s]");
    EXPECT_EQ(s.training_Combo.list_index(), 0);
    if (cases[i].entry != kNichts) continue;
    EXPECT_TRUE(s.training_Combo.Choose(2));
    EXPECT_EQ(s.training_Combo.list_index(), 1);
    EXPECT_EQ(p.settings().uebmodus, 1);
    EXPECT_THAT(p.messages.warnings, IsEmpty());
  }
}

TEST_F(Levels, OfferNoTrainingWhenTheHostCannotRead) {
  StoreTraining(DreiklangTraining());
  host.Raise("READ");
  ToSettings();
  EXPECT_EQ(screen().training_Combo.entry(2).text, kNichts);
  screen().training_Combo.Choose(2);
  EXPECT_EQ(settings().uebmodus, 1);
  EXPECT_THAT(LockedFrames(), IsEmpty());
}

TEST_F(Levels, BecomeANewTrainingFromAnyLevelWhenThereIsNothingToTakeUp) {
  ToSettings();
  for (const int before : {0, 1, 3, 4}) {
    screen().training_Combo.Choose(before);
    screen().training_Combo.Choose(2);
    EXPECT_EQ(screen().training_Combo.list_index(), 1) << before;
    EXPECT_EQ(settings().uebmodus, 1) << before;
    EXPECT_THAT(LockedFrames(), IsEmpty()) << before;
    EXPECT_FALSE(screen().prfnr_Comb.enabled) << before;
  }
}

TEST_F(Levels, AreAllReachedByTheArrowKeysWhenThereIsNothingToTakeUp) {
  ToSettings();
  ItemList& levels = screen().training_Combo;
  std::vector<int> down, up;
  while (levels.Step(1)) down.push_back(settings().uebmodus);
  while (levels.Step(-1)) up.push_back(settings().uebmodus);
  EXPECT_THAT(down, ElementsAre(1, 3, 4));
  EXPECT_THAT(up, ElementsAre(3, 1, 0));
}

TEST_F(Levels, AreAllReachedByTheArrowKeysWhenATrainingCanBeTakenUp) {
  StoreTraining(DreiklangTraining());
  ToSettings();
  std::vector<int> down;
  while (screen().training_Combo.Step(1)) down.push_back(settings().uebmodus);
  EXPECT_THAT(down, ElementsAre(1, 2, 3, 4));
}

TEST_F(Levels, CanBeFilledAnewByTheWorksheet) {
  ToSettings();
  screen().FuelleTraining(Einstellung1::Fortsetzung::kVorhanden);
  EXPECT_THAT(Texts(screen().training_Combo),
              ElementsAre("[136s]", "[564s]", "[565s]", "[550s]", "[438s]"));
  screen().FuelleTraining(Einstellung1::Fortsetzung::kKeine);
  EXPECT_THAT(Texts(screen().training_Combo),
              ElementsAre("[136s]", "[564s]", kNichts, "[550s]", "[438s]"));
}

// --- Frames ---------------------------------------------------------------------------------

TEST_F(Levels, LeaveAllFramesFreeWhereNothingIsFixed) {
  ToSettings();
  for (const int level : {1, 3, 0}) {
    screen().training_Combo.Choose(level);
    EXPECT_EQ(settings().uebmodus, level);
    EXPECT_THAT(LockedFrames(), IsEmpty()) << level;
    EXPECT_TRUE(screen().temp_Combo.enabled);
    EXPECT_EQ(screen().temp_Combo.fore_color, (Color{0, 0, 0xFF}));
    EXPECT_FALSE(screen().prfnr_Comb.enabled);
  }
}

TEST_F(Levels, LockAllThatBelongsToATrainingThatIsTakenUp) {
  StoreTraining(DreiklangTraining());
  ToSettings();
  EXPECT_TRUE(screen().training_Combo.Choose(2));
  EXPECT_EQ(settings().uebmodus, 2);
  EXPECT_EQ(LockedFrames(), kTrainingFrames);
  EXPECT_FALSE(screen().temp_Combo.Reachable());
  EXPECT_EQ(screen().temp_Combo.fore_color, kRahmenGesperrt);
  for (const Control* free : {static_cast<const Control*>(&screen().training_Combo),
                              static_cast<const Control*>(&screen().klang_contr),
                              static_cast<const Control*>(&screen().HSliderVolume),
                              static_cast<const Control*>(&screen().ComboPatch),
                              static_cast<const Control*>(&screen().kl_farb[1]),
                              static_cast<const Control*>(&screen().cmdOK)}) {
    EXPECT_TRUE(free->Reachable()) << free->Id();
  }
  EXPECT_FALSE(screen().prfnr_Comb.Reachable());
  EXPECT_FALSE(screen().akk_grp.Choose(1));
  EXPECT_FALSE(screen().klanglst[0].Choose(0));
  EXPECT_FALSE(screen().oktav_cmb.Choose(0));
}

TEST_F(Levels, FreeAllAgainAfterATrainingThatWasTakenUpAndKeepItsValues) {
  StoreTraining(VollesTraining());
  ToSettings();
  for (const int level : {0, 1, 3}) {
    screen().training_Combo.Choose(2);
    screen().training_Combo.Choose(level);
    EXPECT_THAT(LockedFrames(), IsEmpty()) << level;
    EXPECT_TRUE(screen().temp_Combo.Reachable());
    EXPECT_EQ(screen().temp_Combo.fore_color, (Color{0, 0, 0xFF}));
    EXPECT_EQ(settings().tempo_idx, 7);
    EXPECT_THAT(Groups(), ElementsAre(1, 2, 5));
  }
}

TEST_F(Levels, LeaveTheOrderOfTasksAloneInATestUntilTheRunBegins) {
  ToSettings();
  screen().training_Combo.Choose(3);
  EXPECT_EQ(settings().abfolge, 0);
  EXPECT_EQ(screen().abfrage.chosen(), 0);
  screen().cmdOK.Press();
  EXPECT_EQ(settings().abfolge, 1);
  EXPECT_EQ(screen().abfrage.chosen(), 1);
}

// --- Restoring ------------------------------------------------------------------------------

TEST_F(Levels, RestoreAWholeTraining) {
  StoreTraining(VollesTraining());
  ToSettings();
  screen().training_Combo.Choose(2);
  EXPECT_THAT(messages.warnings, IsEmpty());
  const ExerciseSettings& s = settings();
  EXPECT_EQ(s.uebmodus, 2);
  EXPECT_EQ(s.abfolge, 1);
  EXPECT_EQ(s.tempo_idx, 7);
  EXPECT_EQ(s.akk_anzahl, 3);
  EXPECT_EQ(s.arp_richtung, 1);
  EXPECT_EQ(s.akk_form, 0);
  EXPECT_EQ(s.best_art, 0);
  EXPECT_EQ(s.akk_anzeige, 1);
  EXPECT_EQ(s.grundton_art, 1);
  EXPECT_EQ(s.oktav_ber, 1);
  EXPECT_EQ(s.ton_unten, 60);
  EXPECT_EQ(s.ton_oben, 96);
  EXPECT_EQ(s.frequenz_art, 1);
  EXPECT_EQ(s.grundton_betont, 1);
  EXPECT_EQ(s.arp_tempo_idx, 3);
  EXPECT_EQ(s.arp_dauer, 31) << "750 by 24 is 31.25";
  EXPECT_EQ(s.klang_anzahl, 2);
  EXPECT_THAT(Kinds(), ElementsAre(4, 5));
  EXPECT_EQ(s.klangfarb_art, 0);
  EXPECT_EQ(s.patch_ar[0], 12);
  EXPECT_EQ(screen().ComboPatch.list_index(), 12);
  EXPECT_EQ(screen().HSliderVolume.value(), 55);
  EXPECT_EQ(s.grp_anzahl, 3);
  EXPECT_THAT(Groups(), ElementsAre(1, 2, 5));
  ExpectOk(true);
}

TEST_F(Levels, RestoreStepByStepInAFixedOrder) {
  StoreTraining(VollesTraining());
  ToSettings();
  std::vector<std::string> trace;
  const auto spy = [&](const char* name, auto& handler) {
    handler = [&trace, name, inner = handler](auto... args) {
      trace.emplace_back(name);
      inner(args...);
    };
  };
  Einstellung1& s = screen();
  spy("abfrage", s.abfrage.Click);
  spy("temp_Combo", s.temp_Combo.Click);
  spy("akkzahl_cmb", s.akkzahl_cmb.Click);
  spy("arpeg_cmb", s.arpeg_cmb.Click);
  spy("aus_w", s.aus_w.Click);
  spy("akk_grp", s.akk_grp.Click);
  spy("akk_anzg", s.akk_anzg.Click);
  spy("Tonart", s.Tonart.Click);
  spy("oktav_cmb", s.oktav_cmb.Click);
  spy("Combo_tonraum", s.Combo_tonraum.Click);
  spy("frequenz", s.frequenz.Click);
  spy("betonung", s.betonung.Click);
  spy("cmb_arpTmp", s.cmb_arpTmp.Click);
  spy("klanglst(0)", s.klanglst[0].Click);
  spy("kl_farb", s.kl_farb.Click);
  spy("ComboPatch", s.ComboPatch.Click);
  spy("HSliderVolume", s.HSliderVolume.Change);
  spy("grplst(0)", s.grplst[0].Click);
  s.training_Combo.Choose(2);
  EXPECT_THAT(trace,
              ElementsAreArray({"abfrage",       "temp_Combo",  "akkzahl_cmb",   "arpeg_cmb",
                                "aus_w",         "oktav_cmb",   "Combo_tonraum", "akk_grp",
                                "akk_anzg",      "Tonart",      "oktav_cmb",     "Combo_tonraum",
                                "Combo_tonraum", "frequenz",    "betonung",      "cmb_arpTmp",
                                "klanglst(0)",   "klanglst(0)", "kl_farb",       "ComboPatch",
                                "HSliderVolume", "grplst(0)",   "grplst(0)",     "grplst(0)"}));
}

TEST_F(Levels, RestoreTriadsAloneWithoutGroups) {
  StoreTraining(DreiklangTraining());
  ToSettings();
  ChooseOnly({4, 5});
  screen().training_Combo.Choose(2);
  EXPECT_THAT(Kinds(), ElementsAre(3));
  EXPECT_FALSE(screen().grdeinst[2].visible);
  EXPECT_EQ(settings().klang_anzahl, 1);
  EXPECT_EQ(settings().grp_anzahl, 0);
  ExpectOk(true);
}

TEST_F(Levels, RestoreTheTimbresOfAllVoices) {
  StoreTraining(VoicingTraining());
  ToSettings();
  screen().training_Combo.Choose(2);
  EXPECT_THAT(messages.warnings, IsEmpty());
  EXPECT_EQ(settings().klangfarb_art, 1);
  EXPECT_THAT(settings().patch_ar, ElementsAre(0, 1, 2, 33, 44, 55, 66, 77));
  EXPECT_EQ(settings().klang_kanal, 1);
  EXPECT_EQ(screen().ComboPatch.list_index(), 1);
  EXPECT_TRUE(screen().Channel_Combo.Reachable());
  EXPECT_THAT(Groups(), ElementsAre(2, 8));
  EXPECT_EQ(settings().best_art, 1);
  ExpectOk(true);
}

TEST_F(Levels, RestoreVoicingsWithATonraumOneOctaveWiderAsSettled) {
  StoreTraining(VoicingTraining());
  ToSettings();
  screen().training_Combo.Choose(2);
  EXPECT_EQ(settings().oktav_ber, 2) << "1 was stored";
  EXPECT_EQ(settings().ton_unten, 48);
  EXPECT_EQ(settings().ton_oben, 96);
}

TEST_F(Levels, CannotRestoreVoicingsOfFiveOctavesAsSettled) {
  Array satz = VoicingTraining();
  satz[8] = "3";
  satz[9] = "0";
  StoreTraining(satz);
  ToSettings();
  screen().training_Combo.Choose(2);
  EXPECT_THAT(messages.warnings, ElementsAre(ScriptedMessageBox::Shown{"[196s]", "[565s]"}));
  EXPECT_EQ(settings().uebmodus, 1);
  EXPECT_EQ(settings().akk_form, 1) << "what was restored before stays";
}

TEST_F(Levels, RestoreFromTheRecordReadBeforeWhenTheHostFails) {
  StoreTraining(VollesTraining());
  ToSettings();
  host.Raise("READ");
  screen().training_Combo.Choose(2);
  EXPECT_THAT(messages.warnings, IsEmpty());
  EXPECT_EQ(settings().uebmodus, 2);
  EXPECT_EQ(settings().tempo_idx, 7);
}

TEST_F(Levels, ReadTheRecordAnewEachTime) {
  StoreTraining(VollesTraining());
  ToSettings();
  Array satz = VollesTraining();
  satz[1] = "4";
  host.SetStored("E1", satz);
  screen().training_Combo.Choose(2);
  EXPECT_EQ(settings().tempo_idx, 4);
}

TEST_F(Levels, TellOfARecordThatIsBrokenAndBeginANewTraining) {
  Array satz = VollesTraining();
  satz[2] = "5";  // chords a task
  StoreTraining(satz);
  ToSettings();
  screen().training_Combo.Choose(2);
  EXPECT_THAT(messages.warnings, ElementsAre(ScriptedMessageBox::Shown{"[196s]", "[565s]"}));
  EXPECT_EQ(screen().training_Combo.list_index(), 1);
  EXPECT_EQ(settings().uebmodus, 1);
  EXPECT_THAT(LockedFrames(), IsEmpty());
  EXPECT_TRUE(screen().temp_Combo.Reachable());
  EXPECT_EQ(settings().abfolge, 1) << "what was restored before stays";
  EXPECT_EQ(settings().tempo_idx, 7);
  EXPECT_EQ(settings().akk_anzahl, 1) << "the rest is as it was";
  EXPECT_EQ(settings().arp_richtung, 3);
  EXPECT_TRUE(screen().cmdOK.Press());
}

TEST_F(Levels, SkipTextsOfAnotherLanguageWithoutAMessage) {
  Array satz = VollesTraining();
  satz[15] = "Vierklang";
  satz[16] = "Fünfklang";
  for (const int i : {21, 22, 23}) satz[i] = "Dur";
  StoreTraining(satz);
  ToSettings();
  screen().training_Combo.Choose(2);
  EXPECT_THAT(messages.warnings, IsEmpty());
  EXPECT_EQ(settings().uebmodus, 2);
  EXPECT_EQ(LockedFrames(), kTrainingFrames);
  EXPECT_THAT(Kinds(), IsEmpty());
  ExpectOk(false);
}

TEST_F(Levels, SkipOnlyTheTextThatIsUnknown) {
  Array satz = VollesTraining();
  satz[16] = "Fünfklang";
  satz[22] = "Moll";
  StoreTraining(satz);
  ToSettings();
  screen().training_Combo.Choose(2);
  EXPECT_THAT(messages.warnings, IsEmpty());
  EXPECT_THAT(Kinds(), ElementsAre(4));
  EXPECT_THAT(Groups(), ElementsAre(1, 5));
  ExpectOk(true);
}

// --- There and back -------------------------------------------------------------------------

class ThereAndBack : public SettingsTest {
 protected:
  ThereAndBack() { ToSettings(); }

  /// Starts a run at level 1 and returns the record that was built for it.
  Array StartAndReturn() {
    program.server().einst_satz.clear();
    screen().training_Combo.Choose(1);
    EXPECT_TRUE(screen().cmdOK.Press());
    const Array satz = program.server().einst_satz;
    loop.Advance(200);
    worksheet().zurueck.Press();
    loop.Advance(1000);
    return satz;
  }
  /// Stores a record and restores it over whatever the screen has now.
  void Restore(const Array& satz) {
    StoreTraining(satz);
    screen().FuelleTraining(Einstellung1::Fortsetzung::kVorhanden);
    screen().training_Combo.Choose(2);
  }
  /// Sets everything otherwise than it is.
  void Disturb() {
    screen().training_Combo.Choose(0);
    for (OptionGroup* group : {&screen().abfrage, &screen().frequenz, &screen().Tonart,
                               &screen().betonung, &screen().aus_w, &screen().akk_grp}) {
      group->Check(1 - group->chosen());
    }
    for (ItemList* list : {&screen().temp_Combo, &screen().arpeg_cmb, &screen().cmb_arpTmp,
                           &screen().akkzahl_cmb, &screen().oktav_cmb}) {
      list->Select((list->list_index() + 1) % list->count());
    }
    screen().kl_farb.Check(1 - screen().kl_farb.chosen());
    screen().HSliderVolume.Set(3);
  }
};

TEST_F(ThereAndBack, EveryChoiceOfKindsComesBackTheSame) {
  for (int bits = 1; bits < 32; ++bits) {
    SCOPED_TRACE(bits);
    screen().training_Combo.Choose(1);
    screen().aus_w.Check(0);
    screen().akk_grp.Check(bits % 2 == 0 && bits % 3 == 0 ? 1 : 0);
    Numbers kinds;
    for (int k = 3; k <= 7; ++k) {
      if ((bits >> (k - 3)) % 2 == 1) kinds.push_back(k);
    }
    ChooseOnly(kinds);
    if (screen().grdeinst[2].visible) {
      screen().grp_alle[0].Press();
      while (Groups().size() > 2 && Groups().size() % 3 != static_cast<unsigned>(bits) % 3) {
        screen().grplst[1].Choose(bits % static_cast<int>(Groups().size()));
      }
    }
    screen().temp_Combo.Choose(bits % 10);
    screen().akkzahl_cmb.Choose(bits % 4);
    screen().arpeg_cmb.Choose(bits / 4 % 4);
    screen().cmb_arpTmp.Select(bits % 5);
    screen().oktav_cmb.Choose(bits / 2 % 4);
    screen().Combo_tonraum.Choose(bits % screen().Combo_tonraum.count());
    screen().abfrage.Check(bits % 2);
    screen().frequenz.Check(bits / 2 % 2);
    screen().Tonart.Check(bits / 3 % 2);
    screen().betonung.Check(bits / 4 % 2);
    screen().akk_anzg.Check(bits / 5 % 2);
    screen().kl_farb.Check(bits / 3 % 2);
    screen().ComboPatch.Choose(bits * 4);
    screen().HSliderVolume.Slide(bits * 4);
    const Array satz = StartAndReturn();
    ASSERT_FALSE(satz.empty());
    Disturb();
    Restore(satz);
    ASSERT_THAT(messages.warnings, IsEmpty());
    ASSERT_EQ(settings().uebmodus, 2);
    ExpectOk(true);
    EXPECT_EQ(StartAndReturn(), satz);
  }
}

TEST_F(ThereAndBack, VoicingsOfThreeOctavesComeBackOneOctaveWiderAsSettled) {
  for (const int best_art : {0, 1}) {
    for (const int place : {0, 1}) {
      screen().training_Combo.Choose(1);
      screen().aus_w.Check(0);  // leaves no kind chosen
      screen().akk_grp.Check(best_art);
      screen().aus_w.Check(1);
      screen().grp_alle[0].Press();
      screen().kl_farb.Check(place);
      screen().Combo_tonraum.Choose(place);
      Array satz = StartAndReturn();
      ASSERT_EQ(satz[8], TaggedValue("1"));
      Disturb();
      Restore(satz);
      ASSERT_THAT(messages.warnings, IsEmpty());
      satz[8] = "2";
      EXPECT_EQ(StartAndReturn(), satz);
    }
  }
}

TEST_F(ThereAndBack, VoicingsAreStoredWithAnEmptyTextInThePlaceOfTheirKind) {
  screen().aus_w.Choose(1);  // the triads stay in their hidden list
  screen().grp_alle[0].Press();
  const Array satz = StartAndReturn();
  EXPECT_EQ(satz[14], TaggedValue("1"));
  EXPECT_EQ(satz[15], TaggedValue(""));
}

TEST_F(ThereAndBack, VoicingsComeBackWithTheirGroupsWhateverKindsWereChosenBefore) {
  screen().aus_w.Choose(1);
  screen().grp_alle[0].Press();
  const Array satz = StartAndReturn();
  screen().aus_w.Choose(0);  // all kinds may be chosen again
  Restore(satz);
  EXPECT_THAT(messages.warnings, IsEmpty());
  EXPECT_THAT(Groups(), SizeIs(8));
  EXPECT_TRUE(screen().grdeinst[2].visible);
  ExpectOk(true);
}

TEST_F(ThereAndBack, VoicingsWhosePlaceTheWiderTonraumDoesNotHaveCannotBeRestoredAsSettled) {
  screen().aus_w.Check(1);
  screen().grp_alle[0].Press();
  screen().Combo_tonraum.Choose(2);
  const Array satz = StartAndReturn();
  Restore(satz);
  EXPECT_THAT(messages.warnings, SizeIs(1));
  EXPECT_EQ(settings().uebmodus, 1);
}

TEST_F(ThereAndBack, ARunOfAllKindsWithoutGroupsComesBackLockedAsSettled) {
  screen().klang_alle[0].Press();
  const Array satz = StartAndReturn();
  EXPECT_EQ(satz[14], TaggedValue("5"));
  EXPECT_EQ(satz.back(), TaggedValue("0"));
  Restore(satz);
  EXPECT_THAT(messages.warnings, IsEmpty());
  EXPECT_THAT(Kinds(), ElementsAre(3, 4, 5, 6, 7));
  ExpectOk(false);
}

// --- Exams ----------------------------------------------------------------------------------

struct Exam {
  int akk_form;
  int best_art;
  Numbers kinds;
  Numbers groups;
};

const std::array<Exam, 5> kExams = {{{0, 0, {3}, {}},
                                     {0, 0, {4, 5}, {1, 2, 3, 4, 5, 6, 7, 8}},
                                     {0, 0, {6, 7}, {2, 3, 4, 5}},
                                     {1, 0, {}, {1, 2, 3, 4, 5, 6, 7, 8}},
                                     {1, 1, {}, {1, 2, 3, 4, 5, 6, 7, 8}}}};
static_assert(std::tuple_size_v<decltype(kExams)> == kPruefungen.size(), "each exam is asked for");

class Exams : public SettingsTest {
 protected:
  Exams() { ToSettings(); }

  void ExpectExam(int nr) {
    SCOPED_TRACE(nr);
    const Exam& exam = kExams[nr - 1];
    const ExerciseSettings& s = settings();
    EXPECT_EQ(s.uebmodus, 4);
    EXPECT_EQ(s.pruef_nr, nr);
    EXPECT_EQ(s.pruef_seed, 0);
    EXPECT_EQ(s.abfolge, 1);
    EXPECT_EQ(screen().abfrage.chosen(), 1);
    EXPECT_EQ(s.akk_form, exam.akk_form);
    EXPECT_EQ(screen().aus_w.chosen(), exam.akk_form);
    EXPECT_EQ(s.best_art, exam.best_art);
    EXPECT_EQ(screen().akk_grp.chosen(), exam.best_art);
    if (exam.akk_form == 0) {
      EXPECT_EQ(Kinds(), exam.kinds);
    }
    EXPECT_EQ(Groups(), exam.groups);
    EXPECT_EQ(screen().grdeinst[2].visible, !exam.groups.empty());
    EXPECT_EQ(screen().grdeinst[11].visible, exam.akk_form == 0);
    EXPECT_EQ(screen().grdeinst[12].visible, exam.best_art == 0);
    EXPECT_EQ(screen().akk_anzg[1].enabled, exam.akk_form == 0);
    EXPECT_EQ(LockedFrames(), kExamFrames);
    EXPECT_TRUE(screen().prfnr_Comb.Reachable());
    EXPECT_TRUE(screen().klang_contr.enabled);
    ExpectOk(true);
  }
};

TEST_F(Exams, AreSetByTheLevelAndByTheirNumber) {
  screen().training_Combo.Choose(4);
  ExpectExam(1);
  for (int nr = 2; nr <= 5; ++nr) {
    EXPECT_TRUE(screen().prfnr_Comb.Choose(nr - 1));
    ExpectExam(nr);
  }
}

TEST_F(Exams, AreTheSameAfterEveryOtherExam) {
  screen().training_Combo.Choose(4);
  for (int from = 1; from <= 5; ++from) {
    for (int to = 1; to <= 5; ++to) {
      screen().prfnr_Comb.Choose(from - 1);
      screen().prfnr_Comb.Choose(to - 1);
      ExpectExam(to);
    }
  }
}

TEST_F(Exams, LeaveNoGroupWhenTheFirstFollowsTheFifth) {
  screen().training_Combo.Choose(4);
  screen().prfnr_Comb.Choose(4);
  EXPECT_FALSE(screen().grdeinst[12].visible);
  screen().prfnr_Comb.Choose(0);
  EXPECT_EQ(settings().akk_form, 0);
  EXPECT_EQ(settings().best_art, 0);
  EXPECT_THAT(Groups(), IsEmpty());
  EXPECT_THAT(GroupsOffered(), IsEmpty());
}

TEST_F(Exams, DoNotDependOnWhatWasChosenBefore) {
  screen().akk_grp.Choose(1);
  ChooseOnly({5, 7});
  settings().pruef_seed = 77;
  screen().training_Combo.Choose(4);
  ExpectExam(1);
  screen().training_Combo.Choose(0);
  screen().aus_w.Choose(1);
  ChooseGroup(3);
  screen().training_Combo.Choose(4);
  ExpectExam(1);
}

TEST_F(Exams, LeaveTheOtherFramesFree) {
  screen().training_Combo.Choose(4);
  EXPECT_TRUE(screen().temp_Combo.Choose(3));
  EXPECT_TRUE(screen().akkzahl_cmb.Choose(2));
  EXPECT_TRUE(screen().arpeg_cmb.Choose(0));
  EXPECT_TRUE(screen().cmb_arpTmp.Choose(0));
  EXPECT_TRUE(screen().oktav_cmb.Choose(1));
  EXPECT_TRUE(screen().frequenz.Choose(1));
  EXPECT_TRUE(screen().Tonart.Choose(1));
  EXPECT_TRUE(screen().betonung.Choose(1));
  EXPECT_TRUE(screen().akk_anzg.Choose(1));
  EXPECT_TRUE(screen().kl_farb.Choose(1));
  EXPECT_FALSE(screen().abfrage.Choose(0));
  EXPECT_FALSE(screen().aus_w.Choose(1));
  EXPECT_FALSE(screen().akk_grp.Choose(1));
  EXPECT_FALSE(screen().klang_alle[0].Press());
  EXPECT_FALSE(screen().klanglst[0].Choose(0));
}

TEST_F(Exams, FreeTheFramesAndLeaveTheOrderOfTasksWhenTheLevelChanges) {
  screen().training_Combo.Choose(4);
  screen().training_Combo.Choose(0);
  EXPECT_THAT(LockedFrames(), IsEmpty());
  EXPECT_FALSE(screen().prfnr_Comb.enabled);
  EXPECT_EQ(settings().abfolge, 1);
  EXPECT_EQ(screen().abfrage.chosen(), 1);
  EXPECT_THAT(Kinds(), ElementsAre(3));
}

TEST_F(Exams, OnlyKeepTheirNumberWhileTheScreenIsBuilt) {
  EXPECT_EQ(settings().pruef_nr, 1);
  EXPECT_EQ(settings().abfolge, 0);
  EXPECT_THAT(LockedFrames(), IsEmpty());
}

TEST_F(Exams, CanEachBeStarted) {
  for (int nr = 1; nr <= 5; ++nr) {
    screen().training_Combo.Choose(4);
    screen().prfnr_Comb.Choose(nr - 1);
    StartRun();
    ASSERT_NE(program.arbeitsblatt1(), nullptr) << nr;
    EXPECT_EQ(settings().klang_anzahl, nr == 1 || nr > 3 ? 1 : 2) << nr;
    EXPECT_EQ(settings().grp_anzahl, static_cast<int>(kExams[nr - 1].groups.size())) << nr;
    worksheet().zurueck.Press();
    loop.Advance(1000);
  }
  EXPECT_THAT(messages.warnings, IsEmpty());
}

// --- The menu of the frames -----------------------------------------------------------------

class FrameMenu : public SettingsTest {
 protected:
  FrameMenu() { ToSettings(); }
  void Toggle(int frame) {
    ASSERT_TRUE(screen().grdeinst[frame].AskMenu());
    screen().popPruefung.Choose();
  }
};

TEST_F(FrameMenu, MarksAndUnmarksAFrame) {
  for (const int i : screen().grdeinst.indexes()) {
    if (!screen().grdeinst[i].visible) continue;
    ASSERT_TRUE(screen().grdeinst[i].AskMenu()) << i;
    EXPECT_EQ(screen().popPruefung.open_at, &screen().grdeinst[i]);
    EXPECT_FALSE(screen().popPruefung.checked) << i;
    screen().popPruefung.Choose();
    EXPECT_EQ(screen().grdeinst[i].tag, "Prüfung") << i;
    EXPECT_EQ(screen().grdeinst[i].back_color, kOkBereit) << i;
    ASSERT_TRUE(screen().grdeinst[i].AskMenu()) << i;
    EXPECT_TRUE(screen().popPruefung.checked) << i;
    screen().popPruefung.Choose();
    EXPECT_EQ(screen().grdeinst[i].tag, "") << i;
    EXPECT_EQ(screen().grdeinst[i].back_color, kRahmenFrei) << i;
  }
}

TEST_F(FrameMenu, ChangesNothingWhenItIsDismissed) {
  screen().grdeinst[3].AskMenu();
  screen().popPruefung.Dismiss();
  EXPECT_EQ(screen().grdeinst[3].tag, "");
  EXPECT_EQ(screen().grdeinst[3].back_color, kRahmenFrei);
}

TEST_F(FrameMenu, WorksOnALockedFrameUntilTheNextLock) {
  screen().training_Combo.Choose(4);
  Toggle(5);
  EXPECT_EQ(screen().grdeinst[5].back_color, kOkBereit);
  EXPECT_FALSE(screen().grdeinst[5].enabled);
  screen().prfnr_Comb.Choose(1);
  EXPECT_EQ(screen().grdeinst[5].back_color, kRahmenGesperrt);
  EXPECT_EQ(screen().grdeinst[5].tag, "Prüfung");
  Toggle(4);
  screen().training_Combo.Choose(0);
  EXPECT_EQ(screen().grdeinst[4].back_color, kRahmenFrei);
  EXPECT_EQ(screen().grdeinst[4].tag, "Prüfung");
}

}  // namespace
}  // namespace vmod17

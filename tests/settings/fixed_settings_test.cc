// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// What a teacher fixes for a test, written to a file and read from it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "settings/settings_fixture.h"
#include "settings/stored_training.h"

namespace vmod17 {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;
using ::testing::StartsWith;

/// The settings that a test can hold, apart from the selection.
void ExpectSame(const ExerciseSettings& a, const ExerciseSettings& b) {
  EXPECT_EQ(a.tempo_idx, b.tempo_idx);
  EXPECT_EQ(a.arp_richtung, b.arp_richtung);
  EXPECT_EQ(a.arp_tempo_idx, b.arp_tempo_idx);
  EXPECT_EQ(a.arp_dauer, b.arp_dauer);
  EXPECT_EQ(a.akk_anzahl, b.akk_anzahl);
  EXPECT_EQ(a.oktav_ber, b.oktav_ber);
  EXPECT_EQ(a.ton_unten, b.ton_unten);
  EXPECT_EQ(a.ton_oben, b.ton_oben);
  EXPECT_EQ(a.abfolge, b.abfolge);
  EXPECT_EQ(a.frequenz_art, b.frequenz_art);
  EXPECT_EQ(a.best_art, b.best_art);
  EXPECT_EQ(a.akk_anzeige, b.akk_anzeige);
  EXPECT_EQ(a.akk_form, b.akk_form);
  EXPECT_EQ(a.grundton_art, b.grundton_art);
  EXPECT_EQ(a.grundton_betont, b.grundton_betont);
  EXPECT_EQ(a.klangfarb_art, b.klangfarb_art);
  EXPECT_EQ(a.klang_kanal, b.klang_kanal);
  EXPECT_EQ(a.patch_ar, b.patch_ar);
}

class TestFile : public SettingsTest {
 protected:
  TestFile() { ToSettings(); }

  void Mark(const std::vector<int>& frames) {
    for (const int i : frames) {
      ASSERT_TRUE(screen().grdeinst[i].AskMenu()) << i;
      screen().popPruefung.Choose();
    }
  }
  /// Saves and returns what is in the file.
  FixedSettings Save() {
    dialog.to_save = "test.xml";
    EXPECT_TRUE(screen().cmdOptionSave.Press());
    return settings_files.files["test.xml"];
  }
  void Read(FixedSettings document) {
    settings_files.files["read.xml"] = std::move(document);
    dialog.to_open = "read.xml";
    EXPECT_TRUE(screen().cmdOptionRead.Press());
  }
  static std::vector<std::string> Names(const FixedSettings& document) {
    std::vector<std::string> names;
    for (const FixedControl& control : document.controls) names.push_back(control.cname);
    std::ranges::sort(names);
    return names;
  }
  static const FixedControl& Of(const FixedSettings& document, const std::string& cname) {
    static const FixedControl none;
    const auto found = std::ranges::find(document.controls, cname, &FixedControl::cname);
    EXPECT_NE(found, document.controls.end()) << cname;
    return found == document.controls.end() ? none : *found;
  }
  std::vector<int> FramesLockedByTest() {
    std::vector<int> locked;
    for (const int i : screen().grdeinst.indexes()) {
      EXPECT_EQ(screen().grdeinst[i].enabled, screen().grdeinst[i].back_color != kRahmenVomTest);
      if (!screen().grdeinst[i].enabled) locked.push_back(i);
    }
    return locked;
  }
};

// --- Saving ---------------------------------------------------------------------------------

TEST_F(TestFile, IsNotWrittenWhenNoFrameIsMarked) {
  dialog.to_save = "test.xml";
  EXPECT_TRUE(screen().cmdOptionSave.Press());
  EXPECT_THAT(messages.warnings, ElementsAre(ScriptedMessageBox::Shown{"[9011s]", "[9602s]"}));
  EXPECT_THAT(dialog.proposals, IsEmpty());
  EXPECT_THAT(settings_files.files, IsEmpty());
}

TEST_F(TestFile, IsNotWrittenWhenTheUserGivesUp) {
  Mark({3});
  EXPECT_TRUE(screen().cmdOptionSave.Press());
  EXPECT_THAT(dialog.proposals, SizeIs(1));
  EXPECT_THAT(settings_files.files, IsEmpty());
  EXPECT_THAT(messages.warnings, IsEmpty());
}

TEST_F(TestFile, IsNotWrittenWhenOnlyAFrameWithoutSettingsIsMarked) {
  Mark({8, 11, 14});
  dialog.to_save = "test.xml";
  EXPECT_TRUE(screen().cmdOptionSave.Press());
  EXPECT_THAT(settings_files.files, IsEmpty());
  EXPECT_THAT(messages.warnings, SizeIs(1));
}

TEST_F(TestFile, IsProposedUnderTheDate) {
  loop.date = {2027, 3, 4, 5, 6, 7};
  Mark({3});
  Save();
  ASSERT_THAT(dialog.proposals, SizeIs(1));
  EXPECT_THAT(dialog.proposals[0], AllOf(HasSubstr("2027-03-04"), ::testing::EndsWith(".xml")));
}

TEST_F(TestFile, HoldsTheChosenOptionOnceForItsGroup) {
  Mark({3, 5});
  screen().akk_grp.Choose(1);
  const FixedSettings document = Save();
  EXPECT_THAT(Names(document), ElementsAre("abfrage", "akk_grp"));
  const FixedControl& akk_grp = Of(document, "akk_grp");
  EXPECT_EQ(akk_grp.index, 1);
  EXPECT_EQ(akk_grp.text, "Bestimmen");
  EXPECT_EQ(akk_grp.title, Wort(154));
  EXPECT_EQ(akk_grp.words, Wort(301));
  EXPECT_FALSE(akk_grp.value.has_value());
  EXPECT_EQ(Of(document, "abfrage").index, 0);
}

TEST_F(TestFile, HoldsTheModuleAndTheType) {
  Mark({3});
  const FixedSettings document = Save();
  EXPECT_EQ(document.modul, "vmod17");
  EXPECT_EQ(document.type, "1");
}

TEST_F(TestFile, HoldsAllTaggedControlsUnderTheirKeys) {
  Mark({0, 1, 3, 4, 5, 7, 9, 10, 12, 15, 17});
  screen().kl_farb.Choose(1);
  const FixedSettings document = Save();
  std::vector<std::pair<std::string, std::string>> keys;
  for (const FixedControl& c : document.controls) keys.emplace_back(c.cname, c.text);
  EXPECT_THAT(
      keys,
      ::testing::UnorderedElementsAre(
          std::pair("akk_grp", "Bestimmen"), std::pair("Tonart", "Grundton"),
          std::pair("aus_w", "Akk-Form"), std::pair("akk_anzg", "Akk.-Anzeige"),
          std::pair("betonung", "Akkord-Grundton"), std::pair("abfrage", "Abfolge"),
          std::pair("frequenz", "Frequenz"), std::pair("kl_farb", "Klangfarbe"),
          std::pair("cmb_arpTmp", "Arpeggio-Tempo#var"), std::pair("arpeg_cmb", "Richtung#var"),
          std::pair("akkzahl_cmb", "Akkord-Anzahl#var"), std::pair("oktav_cmb", "Tonraum#var"),
          std::pair("Combo_tonraum", "Oktav-Bereichvar#"),
          std::pair("Channel_Combo", "channel#var"), std::pair("ComboPatch", "cmbPatch#var"),
          std::pair("temp_Combo", "Tempo#var")));
}

TEST_F(TestFile, SeesTheTimbresThroughTheirFirstOption) {
  EXPECT_EQ(screen().kl_farb[1].tag, "");
  Mark({15});
  screen().kl_farb.Choose(1);
  EXPECT_EQ(Of(Save(), "kl_farb").index, 1);
}

TEST_F(TestFile, PassesOverAListWithoutASelection) {
  Mark({15});
  EXPECT_EQ(screen().Channel_Combo.list_index(), -1);
  EXPECT_THAT(Names(Save()), ElementsAre("ComboPatch", "kl_farb", "temp_Combo"));
}

TEST_F(TestFile, TellsTheValueOfAListThatHasValues) {
  Mark({1, 4});
  screen().aus_w.Choose(1);
  screen().oktav_cmb.Choose(1);
  screen().akkzahl_cmb.Choose(2);
  const FixedSettings document = Save();
  EXPECT_EQ(Of(document, "oktav_cmb").index, 1);
  EXPECT_EQ(Of(document, "oktav_cmb").value, 2);
  EXPECT_EQ(Of(document, "akkzahl_cmb").index, 2);
  EXPECT_EQ(Of(document, "akkzahl_cmb").value, 3);
  EXPECT_FALSE(Of(document, "Combo_tonraum").value.has_value());
}

TEST_F(TestFile, ForgetsAFrameWhoseMarkIsTakenBack) {
  Mark({3, 5});
  Mark({3});
  EXPECT_THAT(Names(Save()), ElementsAre("abfrage"));
}

TEST_F(TestFile, TellsWhenItCannotBeWritten) {
  Mark({3});
  settings_files.trouble = SettingsFileError({9614, "The disk is full.", {}}, 0, 0);
  Save();
  ASSERT_THAT(messages.warnings, SizeIs(1));
  EXPECT_THAT(messages.warnings[0].text, AllOf(HasSubstr("[9012s]"), HasSubstr("[9614s]")));
  EXPECT_TRUE(screen().visible);
}

// --- Reading --------------------------------------------------------------------------------

TEST_F(TestFile, ChangesNothingWhenNoneIsChosen) {
  screen().arpeg_cmb.Choose(2);
  EXPECT_TRUE(screen().cmdOptionRead.Press());
  EXPECT_EQ(dialog.opened, 1);
  EXPECT_THAT(FramesLockedByTest(), IsEmpty());
  EXPECT_EQ(settings().arp_richtung, 2);
  EXPECT_EQ(settings().arp_tempo_idx, 2);
  EXPECT_THAT(messages.warnings, IsEmpty());
}

TEST_F(TestFile, AppliesItsValuesThroughTheEventsAndLocksItsFrames) {
  FixedSettings document;
  document.controls = {{"", "Bestimmen", "akk_grp", 1, {}, ""},
                       {"", "Tempo#var", "temp_Combo", 9, {}, ""},
                       {"", "Richtung#var", "arpeg_cmb", 0, {}, ""},
                       {"", "Akkord-Anzahl#var", "akkzahl_cmb", 3, 4, ""}};
  Read(document);
  EXPECT_EQ(settings().best_art, 1);
  EXPECT_THAT(KindsOffered(), ElementsAre(4, 5, 6, 7));
  EXPECT_EQ(settings().tempo_idx, 9);
  EXPECT_EQ(settings().arp_richtung, 0);
  EXPECT_TRUE(screen().cmb_arpTmp.visible);
  EXPECT_EQ(settings().akk_anzahl, 4);
  EXPECT_THAT(FramesLockedByTest(), ElementsAre(3, 4, 10, 15));
  EXPECT_THAT(messages.warnings, IsEmpty());
}

TEST_F(TestFile, FindsAnEntryByItsValueAndNotByItsPlaceOrWords) {
  FixedSettings document;
  document.controls = {{"", "Akk-Form", "aus_w", 1, {}, ""},
                       {"", "Tonraum#var", "oktav_cmb", 2, 2, " 9 octaves"}};
  Read(document);
  EXPECT_EQ(settings().oktav_ber, 2);
  EXPECT_EQ(screen().oktav_cmb.list_index(), 1);
  EXPECT_THAT(messages.warnings, IsEmpty());
}

TEST_F(TestFile, ListsWhatTheScreenDoesNotHaveAndAppliesTheRest) {
  FixedSettings document;
  document.controls = {{"Ambitus", "Ambitus", "ambitus_cmb", 1, {}, "breit"},
                       {"Abfolge", "Abfolge", "abfrage", 1, {}, "automatisch"},
                       {"Tempo", "Tempo#var", "temp_Combo", 10, {}, "250"},
                       {"Root", "Grundton", "Tonart", 2, {}, "third"},
                       {"Anzahl", "Akkord-Anzahl#var", "akkzahl_cmb", 0, 9, "neun"},
                       {"Negativ", "Richtung#var", "arpeg_cmb", -1, {}, "minus"}};
  Read(document);
  EXPECT_EQ(settings().abfolge, 1);
  EXPECT_EQ(settings().tempo_idx, 1);
  EXPECT_EQ(settings().grundton_art, 0);
  EXPECT_EQ(settings().akk_anzahl, 1);
  EXPECT_EQ(settings().arp_richtung, 3);
  EXPECT_THAT(FramesLockedByTest(), ElementsAre(5));
  ASSERT_THAT(messages.warnings, SizeIs(1));
  EXPECT_EQ(messages.warnings[0].title, "[9601s]");
  EXPECT_THAT(messages.warnings[0].text,
              AllOf(StartsWith("[9016s]"), HasSubstr("breit"), HasSubstr("250"), HasSubstr("third"),
                    HasSubstr("neun"), HasSubstr("minus"), Not(HasSubstr("automatisch"))));
}

TEST_F(TestFile, ListsTheFirstOfManyThatTheScreenDoesNotHave) {
  FixedSettings document;
  for (int i = 1; i <= 60; ++i) {
    document.controls.push_back({"Frage " + std::to_string(i), "Nie", "nie_cmb", 0, {}, ""});
  }
  Read(document);
  ASSERT_THAT(messages.warnings, SizeIs(1));
  EXPECT_THAT(messages.warnings[0].text,
              AllOf(StartsWith("[9016s]\nFrage 1\n"), EndsWith("\nFrage 10\n[9633s]")));
  document.controls.resize(11);
  Read(document);
  EXPECT_THAT(messages.warnings[1].text, EndsWith("\nFrage 10\nFrage 11"));
}

TEST_F(TestFile, ListsTheBeginningOfALongName) {
  FixedSettings document;
  std::string name;
  for (int i = 0; i < 100; ++i) name += "ü";
  document.controls = {{name, "Nie", "nie_cmb", 0, {}, ""}};
  Read(document);
  ASSERT_THAT(messages.warnings, SizeIs(1));
  EXPECT_EQ(messages.warnings[0].text, "[9016s]\n" + name.substr(0, 160) + "…");
}

TEST_F(TestFile, DoesNotReachControlsThatArePartOfNoTest) {
  FixedSettings document;
  document.controls = {{"", "", "training_Combo", 4, {}, ""},
                       {"", "", "klanglst", 0, {}, ""},
                       {"", "", "HSliderVolume", 5, {}, ""},
                       {"", "Klangfarbe", "abfrage", 1, {}, ""}};
  Read(document);
  EXPECT_EQ(settings().uebmodus, 0);
  EXPECT_EQ(settings().abfolge, 0);
  EXPECT_THAT(FramesLockedByTest(), IsEmpty());
  EXPECT_THAT(messages.warnings, SizeIs(1));
}

TEST_F(TestFile, ChangesNothingWhenItIsBrokenAndTellsTheLineAndTheColumn) {
  settings_files.trouble = SettingsFileError({9620, "The text is not well-formed XML.", {}}, 7, 12);
  dialog.to_open = "broken.xml";
  EXPECT_TRUE(screen().cmdOptionRead.Press());
  EXPECT_THAT(FramesLockedByTest(), IsEmpty());
  ASSERT_THAT(messages.warnings, SizeIs(1));
  EXPECT_EQ(messages.warnings[0].title, "[9601s]");
  EXPECT_THAT(messages.warnings[0].text, AllOf(HasSubstr("[9013s]"), HasSubstr("[9620s]"),
                                               HasSubstr("[9014s] 7"), HasSubstr("[9015s] 12")));
}

TEST_F(TestFile, TellsNoPlaceWhenThereIsNone) {
  dialog.to_open = "nowhere.xml";
  EXPECT_TRUE(screen().cmdOptionRead.Press());
  ASSERT_THAT(messages.warnings, SizeIs(1));
  EXPECT_THAT(messages.warnings[0].text, AllOf(HasSubstr("[9013s]"), Not(HasSubstr("[9014s]"))));
}

// --- At a level that holds settings ------------------------------------------------------------

/// A test of all that can be part of one, with no value that a screen or the stored training has.
FixedSettings TestOfEverything() {
  return {"",
          "",
          "",
          {{"", "Bestimmen", "akk_grp", 1, {}, "Gruppe"},
           {"", "Grundton", "Tonart", 0, {}, "wechselnd"},
           {"", "Akk-Form", "aus_w", 1, {}, "voicings"},
           {"", "Akk.-Anzeige", "akk_anzg", 0, {}, "Struktur"},
           {"", "Akkord-Grundton", "betonung", 0, {}, "unbetont"},
           {"", "Abfolge", "abfrage", 0, {}, "manuell"},
           {"", "Frequenz", "frequenz", 0, {}, "fest"},
           {"", "Arpeggio-Tempo#var", "cmb_arpTmp", 0, {}, "langsam"},
           {"", "Richtung#var", "arpeg_cmb", 2, {}, "zufällig"},
           {"", "Akkord-Anzahl#var", "akkzahl_cmb", 0, 1, " 1"},
           {"", "Tonraum#var", "oktav_cmb", 2, 2, " 4 Oktaven"},
           {"", "Oktav-Bereichvar#", "Combo_tonraum", 0, {}, "unten"},
           {"", "cmbPatch#var", "ComboPatch", 33, {}, "Bass"},
           {"", "Tempo#var", "temp_Combo", 9, {}, "200"}}};
}

/// Without the timbre, which a training that is taken up leaves free.
void ExpectTheTrainingOf(const ExerciseSettings& expected, ExerciseSettings actual) {
  actual.klangfarb_art = expected.klangfarb_art;
  actual.klang_kanal = expected.klang_kanal;
  actual.patch_ar = expected.patch_ar;
  ExpectSame(expected, actual);
}

const std::vector<int> kFramesOfATraining = {0, 1, 2, 3, 4, 5, 7, 9, 10, 11, 12, 17};
const std::vector<int> kFramesOfAnExam = {2, 3, 5, 7, 11};

class TestFileAtALevel : public TestFile {
 protected:
  TestFileAtALevel() {
    StoreTraining(VollesTraining());
    Reopen();
  }
  void TakeUpATraining() {
    ASSERT_TRUE(screen().training_Combo.Choose(2));
    ASSERT_EQ(settings().uebmodus, 2);
  }
  void TakeAnExam(int number) {
    ASSERT_TRUE(screen().training_Combo.Choose(4));
    ASSERT_TRUE(screen().prfnr_Comb.Choose(number - 1));
  }
  const std::string& OnlyWarning() {
    EXPECT_THAT(messages.warnings, SizeIs(1));
    return messages.warnings.back().text;
  }
};

TEST_F(TestFileAtALevel, ChangesNothingOfATrainingThatIsTakenUpButItsTimbre) {
  TakeUpATraining();
  const ExerciseSettings before = settings();
  const std::vector<int> kinds = Kinds();
  const std::vector<int> groups = Groups();
  Read(TestOfEverything());
  ExpectTheTrainingOf(before, settings());
  EXPECT_EQ(Kinds(), kinds);
  EXPECT_EQ(Groups(), groups);
  EXPECT_EQ(settings().patch_ar[0], 33);
  for (const int i : kFramesOfATraining) {
    EXPECT_EQ(screen().grdeinst[i].back_color, kRahmenGesperrt) << i;
  }
  EXPECT_EQ(screen().grdeinst[15].back_color, kRahmenVomTest);
}

TEST_F(TestFileAtALevel, ChangesNothingOfATrainingWhoseFramesAreMarked) {
  TakeUpATraining();
  const ExerciseSettings before = settings();
  Mark({0, 1, 3, 4, 5, 7, 9, 10, 12, 15, 17});
  Mark({0, 4, 7});  // and these unmarked again
  ASSERT_EQ(screen().grdeinst[3].back_color, kOkBereit);
  ASSERT_EQ(screen().grdeinst[4].back_color, kRahmenFrei);
  Read(TestOfEverything());
  ExpectTheTrainingOf(before, settings());
  EXPECT_EQ(screen().grdeinst[3].back_color, kOkBereit) << "the popup's colour stays";
  for (const int i : kFramesOfATraining) EXPECT_FALSE(screen().grdeinst[i].enabled) << i;
}

TEST_F(TestFileAtALevel, SaysInWordsWhatOfATrainingItLeavesAlone) {
  TakeUpATraining();
  Read(TestOfEverything());
  EXPECT_THAT(
      OnlyWarning(),
      AllOf(StartsWith("[9555s]\n"), HasSubstr("\n[88s]: 3\n"), HasSubstr("\n[547s]: 160 (Vivace)"),
            HasSubstr("\n[78s]: [142s]\n"), HasSubstr("\n[153s]: "), HasSubstr("\n[116s]: [470s]"),
            Not(HasSubstr("[365s]")), Not(HasSubstr("[9016s]"))));
  EXPECT_EQ(messages.warnings[0].title, "[9601s]");
}

TEST_F(TestFileAtALevel, SaysWhatIsHeldAndWhatDoesNotExistApart) {
  TakeUpATraining();
  FixedSettings document;
  document.controls = {{"Abfolge", "Abfolge", "abfrage", 0, {}, "manuell"},
                       {"Ambitus", "Ambitus", "ambitus_cmb", 1, {}, "breit"}};
  Read(document);
  EXPECT_EQ(OnlyWarning(), "[9555s]\n[78s]: [142s]\n\n[9016s]\nAmbitus: breit");
}

TEST_F(TestFileAtALevel, LeavesAnExamWhatItAsksFor) {
  for (int number = 1; number <= 5; ++number) {
    TakeAnExam(number);
    const ExerciseSettings exam = settings();
    const std::vector<int> kinds = Kinds();
    const std::vector<int> groups = Groups();
    Mark({3, 5, 7});
    Read(TestOfEverything());
    EXPECT_EQ(settings().abfolge, 1) << number;
    EXPECT_EQ(settings().akk_form, exam.akk_form) << number;
    EXPECT_EQ(settings().best_art, exam.best_art) << number;
    EXPECT_EQ(Kinds(), kinds) << number;
    EXPECT_EQ(Groups(), groups) << number;
    ExpectOk(true);
    for (const int i : kFramesOfAnExam) EXPECT_FALSE(screen().grdeinst[i].enabled) << i;
  }
}

TEST_F(TestFileAtALevel, SetsInAnExamWhatTheExamLeavesFree) {
  TakeAnExam(2);
  Read(TestOfEverything());
  EXPECT_EQ(settings().tempo_idx, 9);
  EXPECT_EQ(settings().oktav_ber, 2);
  EXPECT_EQ(settings().arp_richtung, 2);
  EXPECT_EQ(screen().grdeinst[1].back_color, kRahmenVomTest);
  EXPECT_THAT(OnlyWarning(), AllOf(StartsWith("[9555s]\n"), HasSubstr("\n[78s]: [142s]"),
                                   HasSubstr("\n[154s]: [97s]"), HasSubstr("\n[138s]: [49s]"),
                                   Not(HasSubstr("[547s]"))));
}

TEST_F(TestFileAtALevel, LetsTheTasksOfATestFollowByThemselvesWhateverItSays) {
  screen().training_Combo.Choose(3);
  Read(TestOfEverything());
  screen().grp_alle[0].Press();
  StartRun();
  ASSERT_NE(program.arbeitsblatt1(), nullptr);
  EXPECT_EQ(settings().abfolge, 1);
  EXPECT_TRUE(worksheet().WahlAutomat.enabled);
}

TEST_F(TestFileAtALevel, GivesWayToATrainingThatIsTakenUpAfterIt) {
  TakeUpATraining();
  const ExerciseSettings training = settings();
  Reopen();
  Read(TestOfEverything());
  TakeUpATraining();
  ExpectSame(training, settings());
  EXPECT_EQ(LockedFrames(), kFramesOfATraining);
  EXPECT_TRUE(screen().ComboPatch.Reachable()) << "a training that is taken up leaves the timbre";
  EXPECT_FALSE(screen().temp_Combo.Reachable());
}

TEST_F(TestFileAtALevel, GivesWayToAnExamThatIsChosenAfterIt) {
  Read(TestOfEverything());
  TakeAnExam(1);
  EXPECT_EQ(settings().abfolge, 1);
  EXPECT_EQ(settings().akk_form, 0);
  EXPECT_EQ(Kinds(), std::vector<int>{3});
  EXPECT_EQ(LockedFrames(), kFramesOfAnExam);
}

TEST_F(TestFileAtALevel, LocksNothingAnyMoreOnceALevelIsChosen) {
  Read(TestOfEverything());
  ASSERT_FALSE(screen().temp_Combo.Reachable());
  screen().training_Combo.Choose(1);
  EXPECT_THAT(LockedFrames(), IsEmpty());
  EXPECT_TRUE(screen().temp_Combo.Reachable());
  EXPECT_TRUE(screen().ComboPatch.Reachable());
  EXPECT_EQ(settings().tempo_idx, 9) << "what it has set stays";
}

TEST_F(TestFileAtALevel, DoesNotSpoilATrainingThatIsSavedAgain) {
  screen().training_Combo.Choose(1);
  screen().akkzahl_cmb.Choose(1);
  messages.answer = MessageBox::Answer::kYes;
  const auto run_one_task = [&] {
    StartRun();
    ASSERT_NE(program.arbeitsblatt1(), nullptr);
    PlayTask();
    while (run().lauf_status != LaufStatus::kAufgabeFertig) ASSERT_TRUE(ClickRight());
    worksheet().zurueck.Press();
    loop.Advance(1000);
  };
  run_one_task();
  TakeUpATraining();
  FixedSettings document;
  document.controls = {{"", "Akkord-Anzahl#var", "akkzahl_cmb", 0, 1, " 1"}};
  Mark({4});  // in another colour than that of the lock
  Read(document);
  EXPECT_EQ(settings().akk_anzahl, 2);
  run_one_task();
  TakeUpATraining();
  run_one_task();
  EXPECT_THAT(messages.warnings, SizeIs(1)) << "of the test file alone";
}

// --- There and back -------------------------------------------------------------------------

const std::vector<int> kFramesOfATest = {0, 1, 3, 4, 5, 7, 9, 10, 15, 17};

TEST_F(TestFile, WrittenInGermanIsReadInEnglishWithTheSameSettings) {
  languages.languages[0].second.words = {{"41s", "Oktaven"}, {"97s", "Akkord"}};
  Mark(kFramesOfATest);
  for (OptionGroup* group : {&screen().abfrage, &screen().frequenz, &screen().aus_w,
                             &screen().akk_grp, &screen().Tonart, &screen().betonung}) {
    ASSERT_TRUE(group->Choose(1));
  }
  screen().temp_Combo.Choose(6);
  screen().arpeg_cmb.Choose(1);
  screen().cmb_arpTmp.Choose(4);
  screen().akkzahl_cmb.Choose(3);
  screen().oktav_cmb.Choose(1);
  screen().Combo_tonraum.Choose(0);
  screen().kl_farb.Choose(1);
  screen().Channel_Combo.Choose(2);
  screen().ComboPatch.Choose(40);
  const FixedSettings document = Save();

  ProgramFixture english;
  english.host.language = "English";
  english.languages.languages[1].second.words = {{"41s", "octaves"}, {"97s", "chord"}};
  english.settings_files.files["german.xml"] = document;
  english.dialog.to_open = "german.xml";
  english.ToSettings();
  english.settings_screen().cmdOptionRead.Press();
  EXPECT_THAT(english.messages.warnings, IsEmpty());
  ExpectSame(english.settings(), settings());
}

TEST_F(TestFile, GivesTheSameSettingsAfterTheTimbreOfAVoiceWasLookedAt) {
  Mark({15});
  screen().kl_farb.Choose(1);
  screen().Channel_Combo.Choose(4);
  screen().kl_farb.Choose(0);
  screen().ComboPatch.Choose(21);
  const FixedSettings document = Save();
  ASSERT_EQ(settings().patch_ar[0], 21);

  ProgramFixture reader;
  reader.settings_files.files["t.xml"] = document;
  reader.dialog.to_open = "t.xml";
  reader.ToSettings();
  reader.settings_screen().cmdOptionRead.Press();
  EXPECT_THAT(reader.messages.warnings, IsEmpty());
  ExpectSame(reader.settings(), settings());
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The settings as they are kept: in words, and as the stored record of a training.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "settings/settings_screen.h"
#include "support/program_fixture.h"

namespace vmod17 {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::Not;
using ::testing::SizeIs;

using Pair = std::pair<std::string, std::string>;
using Array = TaggedValue::Array;

class Summary : public ::testing::Test, protected ProgramFixture {
 protected:
  Summary() { ToSettings(); }
  Einstellung1& screen() { return settings_screen(); }
  FakeLanguages::Words& German() { return languages.languages[0].second; }

  /// The summary of the present settings as pairs; the first element is the upper bound.
  std::vector<Pair> Pairs() {
    screen().EinstDatSave();
    const Array& list = settings().einst_liste;
    std::vector<Pair> pairs;
    for (std::size_t i = 1; i + 1 < list.size(); i += 2) {
      pairs.emplace_back(list[i].String(), list[i + 1].String());
    }
    return pairs;
  }
  std::vector<std::string> Keys() {
    std::vector<std::string> keys;
    for (const Pair& pair : Pairs()) keys.push_back(pair.first);
    return keys;
  }
  /// Takes the triads back and chooses these kinds, each above 3.
  void Choose(const std::vector<int>& klangtypen) {
    screen().klanglst[1].Select(0);
    for (const int k : klangtypen) {
      int at = 0;
      while (screen().klanglst[0].entry(at).item_data != k) ++at;
      screen().klanglst[0].Select(at);
    }
    settings().klang_anzahl = screen().klanglst[1].count();
  }
  /// Puts these groups into the list of chosen ones and shows its frame.
  void ChooseGroups(const std::vector<int>& gruppen) {
    for (const int g : gruppen) screen().grplst[1].Add("Gruppe " + std::to_string(g), g);
    settings().grp_anzahl = screen().grplst[1].count();
    screen().grdeinst[2].visible = true;
  }
};

// --- einst_liste ----------------------------------------------------------------------------

TEST_F(Summary, TellsTheDefaultsInOrder) {
  settings().klang_anzahl = 1;
  EXPECT_THAT(Pairs(), ElementsAreArray(std::vector<Pair>{
                           {"Übungsmodus", "[136s]"},
                           {"Klangfarbe", "[277s]"},
                           {"Klangfarbe", "Acoustic Grand Piano"},
                           {"Tempo", " 40 (Largo)      "},
                           {"Frequenz", "[238s]"},
                           {"Abfolge", "[383s]"},
                           {"Bestimmen", "[97s]"},
                           {"Akk-Anzeige", "[507s]"},
                           {"Auswahl", "[49s]"},
                           {"Klang-Auswahl Anzahl", "1"},
                           {"Klangtyp Nr.1", "[51s]"},
                           {"Akk-Anzahl", " 1"},
                           {"Tonraum", " 2 [41s]"},
                           {"Oktavbereich", "[672s] [702s] [674s]"},
                           {"Richtung", "[278s]"},
                           {"Akk-Grdton", "[588s]"},
                           {"Grdton", "[623s]"},
                       }));
}

TEST_F(Summary, HasItsUpperBoundInElement0) {
  settings().klang_anzahl = 1;
  screen().EinstDatSave();
  EXPECT_THAT(settings().einst_liste, SizeIs(35));
  EXPECT_EQ(settings().einst_liste[0], TaggedValue("34"));
}

TEST_F(Summary, HoldsStringsAlone) {
  Choose({4, 5});
  ChooseGroups({1, 2});
  settings().klangfarb_art = 1;
  screen().EinstDatSave();
  for (const TaggedValue& value : settings().einst_liste) EXPECT_TRUE(value.IsString());
}

TEST_F(Summary, BeginsAnewEachTime) {
  const std::vector<Pair> first = Pairs();
  EXPECT_EQ(Pairs(), first);
}

TEST_F(Summary, TellsAllOtherOptions) {
  screen().training_Combo.Select(4);
  settings().uebmodus = 4;
  screen().prfnr_Comb.Select(2);
  screen().temp_Combo.Select(9);
  screen().frequenz.Check(1);
  screen().abfrage.Check(1);
  screen().akkzahl_cmb.Select(3);
  screen().oktav_cmb.Select(3);
  screen().arpeg_cmb.Select(0);
  screen().cmb_arpTmp.Select(4);
  screen().betonung.Check(1);
  screen().Tonart.Check(1);
  settings().best_art = 1;
  settings().klangfarb_art = 1;
  settings().akk_form = 1;
  settings().klang_anzahl = 1;
  screen().grplst[1].Clear();  // the exam has filled it
  ChooseGroups({2, 5});
  settings().abfolge = 1;
  EXPECT_THAT(Pairs(), ElementsAreArray(std::vector<Pair>{
                           {"Übungsmodus", "[438s]"},    {"Nr.:", "[426s] 3"},
                           {"Klangfarbe", "[589s]"},     {"Klangf. aufw.: ", "5"},
                           {"[499s]  1", "Bassoon"},     {"[499s]  2", "Oboe"},
                           {"[499s]  3", "Clarinet"},    {"[499s]  4", "Flute"},
                           {"[499s]  5", "Flute"},       {"Tempo", "200 (Prestissimo)"},
                           {"Frequenz", "[603s]"},       {"Abfolge", "[142s]"},
                           {"Bestimmen", "[301s]"},      {"Auswahl", "[45s]"},
                           {"Grp-Auswahl Anzahl", "2"},  {"Grp-typ Nr.1", "Gruppe 2"},
                           {"Grp-typ Nr.2", "Gruppe 5"}, {"Akk-Anzahl", " 4"},
                           {"Tonraum", " 5 [41s]"},      {"Oktavbereich", "[671s] [702s] [676s]"},
                           {"Richtung", "[133s]"},       {"Arp.-Tempo", "[479s]"},
                           {"Akk-Grdton", "[156s]"},     {"Grdton", "[277s]"},
                       }));
}

TEST_F(Summary, TellsTheNumberOfTheExamOnlyInAnExam) {
  for (const int uebmodus : {0, 1, 3}) {
    settings().uebmodus = uebmodus;
    EXPECT_THAT(Keys(), Not(Contains("Nr.:"))) << uebmodus;
  }
  settings().uebmodus = 4;
  EXPECT_THAT(Keys(), Contains("Nr.:"));
}

TEST_F(Summary, TellsTheTimbreOfEachNoteThatCanSound) {
  Choose({4});
  settings().klangfarb_art = 1;
  const std::vector<Pair> pairs = Pairs();
  const auto from = std::ranges::find(pairs, Pair{"Klangf. aufw.: ", "4"});
  ASSERT_GE(pairs.end() - from, 6);
  EXPECT_THAT(std::vector<Pair>(from, from + 6),
              ElementsAre(Pair{"Klangf. aufw.: ", "4"}, Pair{"[499s]  1", "Bassoon"},
                          Pair{"[499s]  2", "Oboe"}, Pair{"[499s]  3", "Clarinet"},
                          Pair{"[499s]  4", "Flute"}, Pair{"Tempo", " 40 (Largo)      "}));
}

TEST_F(Summary, CountsTheTimbresByTheWidestChosenKind) {
  Choose({5, 7});
  settings().klangfarb_art = 1;
  EXPECT_THAT(Pairs(), Contains(Pair{"Klangf. aufw.: ", "7"}));
  EXPECT_THAT(Pairs(), Contains(Pair{"[499s]  7", "Recorder"}));
}

TEST_F(Summary, TellsTheChosenTimbre) {
  screen().ComboPatch.Select(73);
  EXPECT_EQ(Pairs()[2], (Pair{"Klangfarbe", "Flute"}));
}

TEST_F(Summary, TellsTheDisplayOnlyWhenChordsAreNamed) {
  screen().akk_anzg.Check(1);
  EXPECT_THAT(Pairs(), Contains(Pair{"Akk-Anzeige", "[429s]"}));
  settings().best_art = 1;
  EXPECT_THAT(Keys(), Not(Contains("Akk-Anzeige")));
}

TEST_F(Summary, ListsTheChosenKinds) {
  Choose({6, 4});
  EXPECT_THAT(Pairs(), Contains(Pair{"Klang-Auswahl Anzahl", "2"}));
  EXPECT_THAT(Pairs(), Contains(Pair{"Klangtyp Nr.1", "[57s]"}));
  EXPECT_THAT(Pairs(), Contains(Pair{"Klangtyp Nr.2", "[62s]"}));
}

TEST_F(Summary, ListsNoKindsForVoicings) {
  settings().akk_form = 1;
  settings().klang_anzahl = 1;
  EXPECT_THAT(Keys(), Not(Contains("Klang-Auswahl Anzahl")));
  EXPECT_THAT(Keys(), Not(Contains("Klangtyp Nr.1")));
}

TEST_F(Summary, ListsTheGroupsExactlyWhenTheirFrameIsShown) {
  for (const int akk_form : {0, 1}) {
    settings().akk_form = akk_form;
    screen().grplst[1].Clear();
    ChooseGroups({3, 8});
    EXPECT_THAT(Pairs(), Contains(Pair{"Grp-Auswahl Anzahl", "2"})) << akk_form;
    EXPECT_THAT(Pairs(), Contains(Pair{"Grp-typ Nr.2", "Gruppe 8"})) << akk_form;
    screen().grdeinst[2].visible = false;
    EXPECT_THAT(Keys(), Not(Contains("Grp-Auswahl Anzahl"))) << akk_form;
    EXPECT_THAT(Keys(), Not(Contains("Grp-typ Nr.1"))) << akk_form;
  }
}

TEST_F(Summary, TellsTheArpeggioTempoRightBehindTheDirectionWhenThereIsOne) {
  for (const int richtung : {0, 1, 2}) {
    screen().arpeg_cmb.Select(richtung);
    const std::vector<std::string> keys = Keys();
    const auto at = std::ranges::find(keys, "Richtung");
    ASSERT_NE(at, keys.end());
    EXPECT_EQ(*(at + 1), "Arp.-Tempo") << richtung;
  }
  screen().arpeg_cmb.Select(3);
  EXPECT_THAT(Keys(), Not(Contains("Arp.-Tempo")));
}

TEST_F(Summary, PutsADigitInThePlaceOfTheFirstApostrophe) {
  screen().frequenz[0].caption = "fest (a'440 Hz)";
  EXPECT_THAT(Pairs(), Contains(Pair{"Frequenz", "fest (a1440 Hz)"}));
  screen().frequenz[0].caption = "a''440";
  EXPECT_THAT(Pairs(), Contains(Pair{"Frequenz", "a1'440"}));
}

TEST_F(Summary, LeavesTheCaptionItselfAlone) {
  screen().frequenz[0].caption = "fest (a'440 Hz)";
  screen().EinstDatSave();
  EXPECT_EQ(screen().frequenz[0].caption, "fest (a'440 Hz)");
}

TEST_F(Summary, IsMadeWhenARunBegins) {
  screen().cmdOK.Press();
  EXPECT_EQ(settings().einst_liste[0], TaggedValue("34"));
}

// --- einst_satz -----------------------------------------------------------------------------

class StoredSettings : public Summary {
 protected:
  const Array& Build() {
    screen().training_Combo.Select(1);
    screen().cmdOK_Click();
    return program.server().einst_satz;
  }
};

TEST_F(StoredSettings, HasAnUpperBoundOf23ForTwoKindsAndThreeGroups) {
  Choose({4, 5});
  ChooseGroups({1, 2, 5});
  EXPECT_THAT(Build(), SizeIs(24));
}

TEST_F(StoredSettings, HasRoomForSevenTimbresWhenTheyAreSeparate) {
  Choose({4, 5});
  ChooseGroups({1, 2, 5});
  settings().klangfarb_art = 1;
  EXPECT_THAT(Build(), SizeIs(2 + 3 + 8 + 16 + 1));
}

TEST_F(StoredSettings, HoldsTheSettingsInOrder) {
  Choose({4, 5});
  ChooseGroups({1, 2, 5});
  screen().abfrage.Check(1);
  screen().temp_Combo.Select(7);
  screen().akkzahl_cmb.Select(2);
  screen().arpeg_cmb.Select(1);
  screen().akk_anzg.Check(1);
  screen().Tonart.Check(1);
  screen().oktav_cmb.Select(1);
  screen().Combo_tonraum.Select(2);
  screen().frequenz.Check(1);
  screen().betonung.Check(1);
  screen().cmb_arpTmp.Select(3);
  screen().ComboPatch.Select(12);
  screen().HSliderVolume.Set(55);
  EXPECT_THAT(Build(),
              ElementsAreArray(Array{"1",  "7",  "3", "1",        "0",        "0",
                                     "1",  "1",  "1", "2",        "1",        TaggedValue(),
                                     "1",  "3",  "2", "[57s]",    "[60s]",    "0",
                                     "12", "55", "3", "Gruppe 1", "Gruppe 2", "Gruppe 5"}));
}

TEST_F(StoredSettings, HoldsTheSevenVoicesFromTheLowestUp) {
  settings().klangfarb_art = 1;
  const Array& satz = Build();
  // One kind, so the kind of timbre stands in element 16.
  ASSERT_THAT(satz, SizeIs(1 + 0 + 8 + 16 + 1));
  EXPECT_THAT(Array(satz.begin() + 14, satz.end()),
              ElementsAreArray(
                  Array{"1", "[51s]", "1", "70", "68", "71", "73", "73", "72", "74", "100", "0"}));
}

TEST_F(StoredSettings, HasAnEmptyTextForTheOneKindOfVoicings) {
  screen().klanglst[1].Select(0);
  settings().akk_form = 1;
  ChooseGroups({1, 2});
  const Array& satz = Build();
  ASSERT_THAT(satz, SizeIs(1 + 2 + 2 + 16 + 1));
  EXPECT_EQ(satz[4], TaggedValue("1"));
  EXPECT_EQ(satz[14], TaggedValue("1"));
  EXPECT_EQ(satz[15], TaggedValue(""));
}

TEST_F(StoredSettings, AreBuiltOnlyForANewTraining) {
  for (const int uebmodus : {0, 3, 4}) {
    program.server().einst_satz = {"from before"};
    settings().uebmodus = uebmodus;
    screen().cmdOK_Click();
    EXPECT_EQ(program.server().einst_satz, (Array{"from before"})) << uebmodus;
    loop.Advance(200);
    worksheet().zurueck.Press();
    loop.Advance(1000);
  }
}

}  // namespace
}  // namespace vmod17

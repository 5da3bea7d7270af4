// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The line that says what a run of the present settings will be, or what it still needs.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "settings/settings_fixture.h"
#include "settings/stored_training.h"

namespace vmod17 {
namespace {

class Outlook : public SettingsTest {
 protected:
  Outlook() {
    languages.languages[0].second.words = {
        {"9560s", "Akkorde: %1"},         {"9561s", "Akkorde: %1 von %2"},
        {"9562s", "Aufgaben: %1 in %2"},  {"9563s", "Klänge!"},
        {"9564s", "Gruppen: %1 von %2!"}, {"9565s", "Probe nur vollständig"},
        {"9566s", "Probe nur nach »"},    {"9567s", "Probe läuft"}};
    ToSettings();
  }
  const std::string& Line() { return screen().ausblick.caption; }
};

TEST_F(Outlook, CountsTheTriadsThatTheScreenBeginsWith) { EXPECT_EQ(Line(), "Akkorde: 10"); }

TEST_F(Outlook, AsksForAKindWhenNoneIsChosen) {
  screen().klanglst[1].Choose(0);
  EXPECT_EQ(Line(), "Klänge!  ·  Probe nur vollständig");
  screen().aus_w.Choose(1);
  screen().aus_w.Choose(0);
  EXPECT_EQ(Line(), "Klänge!  ·  Probe nur vollständig");
}

TEST_F(Outlook, AsksForTwoGroupsAndForOneBesideTriads) {
  ChooseOnly({4});
  EXPECT_EQ(Line(), "Gruppen: 0 von 2!  ·  Probe nur nach »");
  ChooseGroup(8);
  EXPECT_EQ(Line(), "Gruppen: 1 von 2!  ·  Probe nur nach »");
  ChooseGroup(7);
  EXPECT_EQ(Line(), "Akkorde: 3  ·  Probe nur nach »");
  ChooseKind(3);
  EXPECT_EQ(Line(), "Gruppen: 0 von 1!  ·  Probe nur nach »");
  ChooseGroup(8);
  EXPECT_EQ(Line(), "Akkorde: 12  ·  Probe nur nach »");
  screen().grp_alle[1].Press();
  EXPECT_EQ(Line(), "Gruppen: 0 von 1!  ·  Probe nur nach »");
}

TEST_F(Outlook, TellsHowManyOfTheChosenChordsComeOnTheBoard) {
  screen().klang_alle[0].Press();
  EXPECT_EQ(Line(), "Akkorde: 10") << "triads alone, as long as no group is chosen";
  screen().grp_alle[0].Press();
  EXPECT_EQ(Line(), "Akkorde: 24 von 70");
}

TEST_F(Outlook, CountsVoicingsByTheirGroups) {
  screen().aus_w.Choose(1);
  EXPECT_EQ(Line(), "Gruppen: 0 von 2!  ·  Probe nur vollständig");
  ChooseGroup(7);
  EXPECT_EQ(Line(), "Gruppen: 1 von 2!  ·  Probe nur vollständig");
  ChooseGroup(8);
  EXPECT_EQ(Line(), "Akkorde: 10");
  screen().grp_alle[0].Press();
  EXPECT_EQ(Line(), "Akkorde: 16 von 64");
}

TEST_F(Outlook, SaysWhatIsMissingWhereOkLeadsToAnEmptyBoard) {
  screen().akk_grp.Choose(1);
  ChooseOnly({4});
  screen().grp_alle[0].Press();
  screen().klang_alle[0].Press();
  ExpectOk(true);
  EXPECT_EQ(Line(), "Gruppen: 0 von 2!");
}

TEST_F(Outlook, TellsTheTasksAndTheTimeOfATest) {
  screen().training_Combo.Choose(3);
  // 40 tasks of 3 s, 1.8 s before each and 2 s for each answer: 120 + 72 + 80 = 272 s.
  EXPECT_EQ(Line(), "Akkorde: 10  ·  Aufgaben: 40 in 4:40");
  screen().temp_Combo.Choose(9);
  // 24 + 72 + 80 = 176 s.
  EXPECT_EQ(Line(), "Akkorde: 10  ·  Aufgaben: 40 in 3:00");
  screen().akkzahl_cmb.Choose(3);
  // 10 tasks, 24 + 18 + 80 = 122 s are too few: 15, made even, 38 + 28 + 128 = 194 s.
  EXPECT_EQ(Line(), "Akkorde: 10  ·  Aufgaben: 16 in 3:20");
  screen().training_Combo.Choose(1);
  EXPECT_EQ(Line(), "Akkorde: 10");
}

TEST_F(Outlook, FollowsTheNumberOfTheExam) {
  screen().training_Combo.Choose(4);
  EXPECT_EQ(Line(), "Akkorde: 10  ·  Aufgaben: 40 in 4:40");
  screen().prfnr_Comb.Choose(1);
  // 96 tasks take 288 + 172 + 192 s, too many: 72, 216 + 129 + 144 = 489 s.
  EXPECT_EQ(Line(), "Akkorde: 24 von 40  ·  Aufgaben: 72 in 8:10");
  screen().prfnr_Comb.Choose(2);
  EXPECT_THAT(Line(), ::testing::StartsWith("Akkorde: 20  ·  "));
}

TEST_F(Outlook, SaysThatTheSampleHoldsTheButtons) {
  screen().klang_contr.Press();
  EXPECT_EQ(Line(), "Akkorde: 10  ·  Probe läuft");
  loop.Advance(10000);
  ASSERT_TRUE(screen().klang_contr.enabled);
  EXPECT_EQ(Line(), "Akkorde: 10");
}

TEST_F(Outlook, DoesNotSpeakOfAMixtureWhereATrainingKeepsItsBoard) {
  TaggedValue::Array training = VollesTraining();
  training[14] = "2";
  training[15] = "[60s]";
  training[16] = "[62s]";
  StoreTraining(training);
  Reopen();
  screen().training_Combo.Choose(2);
  // Groups 1, 2 and 5 of five and six notes: 3 + 3 + 10 and 0 + 2 + 10.
  EXPECT_EQ(Line(), "Akkorde: 24  ·  Probe nur nach »");
  screen().training_Combo.Choose(1);
  EXPECT_EQ(Line(), "Akkorde: 24 von 28  ·  Probe nur nach »");
}

TEST_F(Outlook, FollowsATestFile) {
  settings_files.files["t.xml"] = {
      "",
      "",
      "",
      {{"", "Akk-Form", "aus_w", 1, {}, ""}, {"", "Tempo#var", "temp_Combo", 9, {}, ""}}};
  dialog.to_open = "t.xml";
  screen().cmdOptionRead.Press();
  EXPECT_EQ(Line(), "Gruppen: 0 von 2!  ·  Probe nur vollständig");
}

TEST_F(Outlook, IsEmptyUntilTheScreenIsBuilt) {
  screen().cmdZurueck.Press();
  loop.Advance(1000);
  first().cmdOK.Press();
  EXPECT_EQ(Line(), "");
  loop.Advance(200);
  EXPECT_EQ(Line(), "Akkorde: 10");
}

}  // namespace
}  // namespace vmod17

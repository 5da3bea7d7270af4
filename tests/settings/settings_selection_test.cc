// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Which chords and groups may be chosen, what the hints say, and when a run may begin.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "settings/settings_fixture.h"

namespace vmod17 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Numbers = std::vector<int>;

const Numbers kAll = {1, 2, 3, 4, 5, 6, 7, 8};
const Numbers kFrom5 = {1, 2, 3, 4, 5, 6};
const Numbers kFrom6 = {2, 3, 4, 5};
const Numbers kFrom7 = {2, 5};

/// What follows from a choice of kinds. `hint` is the text id beside the groups, 0 where no group
/// is asked for; `needed` the groups without which OK stays locked.
struct Row {
  Numbers kinds;
  Numbers groups;
  int hint;
  int needed;
};

/// Chords are named: all choices of the kinds 3 to 7.
const std::vector<Row> kChords = {
    {{}, {}, 0, 0},
    {{3}, {}, 0, 0},
    {{4}, kAll, 396, 2},
    {{5}, kFrom5, 396, 2},
    {{6}, kFrom6, 396, 2},
    {{7}, kFrom7, 396, 2},
    {{3, 4}, kAll, 395, 1},
    {{3, 5}, kFrom5, 395, 1},
    {{3, 6}, kFrom6, 395, 1},
    {{3, 7}, kFrom7, 395, 1},
    {{4, 5}, kAll, 396, 2},
    {{4, 6}, kAll, 396, 2},
    {{4, 7}, kAll, 396, 2},
    {{5, 6}, kFrom5, 396, 2},
    {{5, 7}, kFrom5, 396, 2},
    {{6, 7}, kFrom6, 396, 2},
    {{3, 4, 5}, kAll, 395, 1},
    {{3, 4, 6}, kAll, 395, 1},
    {{3, 4, 7}, kAll, 395, 1},
    {{3, 5, 6}, kFrom5, 395, 1},
    {{3, 5, 7}, kFrom5, 395, 1},
    {{3, 6, 7}, kFrom6, 395, 1},
    {{4, 5, 6}, kAll, 396, 2},
    {{4, 5, 7}, kAll, 396, 2},
    {{4, 6, 7}, kAll, 396, 2},
    {{5, 6, 7}, kFrom5, 396, 2},
    {{3, 4, 5, 6}, kAll, 395, 1},
    {{3, 4, 5, 7}, kAll, 395, 1},
    {{3, 4, 6, 7}, kAll, 395, 1},
    {{3, 5, 6, 7}, kFrom5, 395, 1},
    {{4, 5, 6, 7}, kAll, 396, 2},
    {{3, 4, 5, 6, 7}, kAll, 395, 1},
};

/// Groups are named: all choices of the kinds 4 to 7.
const std::vector<Row> kGroups = {
    {{}, {}, 0, 0},
    {{4}, kAll, 396, 2},
    {{5}, kFrom5, 396, 2},
    {{6}, kFrom6, 396, 2},
    {{7}, kFrom7, 396, 2},
    {{4, 5}, kAll, 396, 2},
    {{4, 6}, kAll, 396, 2},
    {{4, 7}, kAll, 396, 2},
    {{5, 6}, kFrom5, 396, 2},
    {{5, 7}, kFrom5, 396, 2},
    {{6, 7}, kFrom6, 396, 2},
    {{4, 5, 6}, kAll, 396, 2},
    {{4, 5, 7}, kAll, 396, 2},
    {{4, 6, 7}, kAll, 396, 2},
    {{5, 6, 7}, kFrom5, 396, 2},
    {{4, 5, 6, 7}, kAll, 396, 2},
};

class Selection : public SettingsTest {
 protected:
  Selection() { ToSettings(); }

  void ExpectState(bool bereit, bool probe) {
    ExpectOk(bereit);
    EXPECT_EQ(screen().klang_contr.enabled, probe);
  }
  void ExpectHint(int id) {
    EXPECT_EQ(screen().lb2[2].visible, id != 0);
    if (id != 0) {
      EXPECT_EQ(screen().lb2[2].caption, Wort(id));
    }
  }
  /// After the kinds of a row were clicked.
  void ExpectRow(const Row& row) {
    EXPECT_EQ(Kinds(), row.kinds);
    EXPECT_EQ(screen().lb11[2].visible, row.kinds.empty());
    EXPECT_EQ(screen().lb11[2].caption, Wort(395));
    EXPECT_EQ(screen().grdeinst[2].visible, row.needed > 0);
    EXPECT_TRUE(screen().grdeinst[11].visible);
    if (row.needed > 0) {
      EXPECT_EQ(GroupsOffered(), row.groups);
      EXPECT_THAT(Groups(), IsEmpty());
      ExpectHint(row.hint);
    }
    const bool triads_alone = row.kinds == Numbers{3};
    ExpectState(triads_alone, triads_alone);
  }
  /// Clicks the groups of a row, one by one, there and back.
  void ExpectGroupClicks(const Row& row) {
    const bool probe = screen().klang_contr.enabled;
    int chosen = 0;
    for (const int g : row.groups) {
      ASSERT_TRUE(ChooseGroup(g)) << g;
      ++chosen;
      const bool enough = chosen >= row.needed;
      ExpectState(enough, probe);
      ExpectHint(enough ? 0 : row.hint);
    }
    EXPECT_THAT(GroupsOffered(), IsEmpty());
    EXPECT_EQ(Groups(), row.groups);
    for (const int g : row.groups) {
      ASSERT_TRUE(ReturnGroup(g)) << g;
      --chosen;
      const bool enough = chosen >= row.needed;
      ExpectState(enough, probe);
      ExpectHint(enough ? 0 : row.hint);
    }
    EXPECT_EQ(GroupsOffered(), row.groups);
  }
  void ExpectGroupButtons(const Row& row) {
    ASSERT_TRUE(screen().grp_alle[0].Press());
    EXPECT_EQ(Groups(), row.groups);
    EXPECT_THAT(GroupsOffered(), IsEmpty());
    ExpectState(true, true);
    ExpectHint(0);
    ASSERT_TRUE(screen().grp_alle[1].Press());
    EXPECT_EQ(GroupsOffered(), row.groups);
    EXPECT_THAT(Groups(), IsEmpty());
    ExpectState(false, false);
    ExpectHint(row.hint);
  }
  /// All that can be done with a row, with `best_art` as the screen has it.
  void TryRow(const Row& row) {
    SCOPED_TRACE(::testing::PrintToString(row.kinds));
    ChooseOnly(row.kinds);
    ExpectRow(row);
    if (row.needed == 0) return;
    ExpectGroupClicks(row);
    ExpectGroupButtons(row);
    // With the sound check on, a click on a group still leaves it alone.
    ASSERT_TRUE(screen().grp_alle[0].Press());
    ASSERT_TRUE(ReturnGroup(row.groups[0]));
    EXPECT_TRUE(screen().klang_contr.enabled);
  }
  void ExpectAllKindsByButton(int best_art) {
    const bool bereit = screen().cmdOK.enabled;
    const bool probe = screen().klang_contr.enabled;
    ASSERT_TRUE(screen().klang_alle[0].Press());
    EXPECT_THAT(KindsOffered(), IsEmpty());
    EXPECT_EQ(Kinds(), best_art == 0 ? (Numbers{3, 4, 5, 6, 7}) : (Numbers{4, 5, 6, 7}));
    EXPECT_EQ(GroupsOffered(), kAll);
    EXPECT_THAT(Groups(), IsEmpty());
    EXPECT_TRUE(screen().grdeinst[2].visible);
    EXPECT_FALSE(screen().lb11[2].visible);
    ExpectHint(best_art == 0 ? 395 : 396);
    ExpectState(bereit, probe);
    ASSERT_TRUE(screen().klang_alle[1].Press());
    EXPECT_EQ(KindsOffered(), best_art == 0 ? (Numbers{3, 4, 5, 6, 7}) : (Numbers{4, 5, 6, 7}));
    EXPECT_THAT(Kinds(), IsEmpty());
    EXPECT_FALSE(screen().grdeinst[2].visible);
    EXPECT_TRUE(screen().lb11[2].visible);
    ExpectState(false, false);
  }
  void ExpectNothingChosen(int best_art) {
    EXPECT_EQ(KindsOffered(), best_art == 0 ? (Numbers{3, 4, 5, 6, 7}) : (Numbers{4, 5, 6, 7}));
    EXPECT_THAT(Kinds(), IsEmpty());
    EXPECT_TRUE(screen().lb11[2].visible);
    EXPECT_TRUE(screen().grdeinst[11].visible);
    EXPECT_FALSE(screen().grdeinst[2].visible);
    EXPECT_EQ(screen().grdeinst[12].visible, best_art == 0);
    ExpectState(false, false);
  }
};

// --- The table ------------------------------------------------------------------------------

TEST_F(Selection, OpensWithTriadsAndNoGroups) {
  ExpectRow(kChords[1]);
  EXPECT_THAT(KindsOffered(), ElementsAre(4, 5, 6, 7));
}

TEST_F(Selection, FollowsTheTableForEveryChoiceOfKindsWhenChordsAreNamed) {
  ASSERT_EQ(kChords.size(), 32u);
  for (const Row& row : kChords) TryRow(row);
}

TEST_F(Selection, FollowsTheTableForEveryChoiceOfKindsWhenGroupsAreNamed) {
  ASSERT_EQ(kGroups.size(), 16u);
  ASSERT_TRUE(screen().akk_grp.Choose(1));
  ExpectNothingChosen(1);
  for (const Row& row : kGroups) TryRow(row);
}

TEST_F(Selection, MovesAllKindsByButtonFromEveryChoiceAndLeavesOkAsItWas) {
  for (const int best_art : {0, 1}) {
    screen().akk_grp.Choose(best_art);
    for (const Row& row : best_art == 0 ? kChords : kGroups) {
      SCOPED_TRACE(::testing::PrintToString(row.kinds));
      ChooseOnly(row.kinds);
      ExpectAllKindsByButton(best_art);
      ChooseOnly(row.kinds);
      if (row.needed == 0) continue;
      ASSERT_TRUE(screen().grp_alle[0].Press());
      ExpectAllKindsByButton(best_art);
    }
  }
}

TEST_F(Selection, DropsEveryChoiceOfKindsWhenAnotherThingIsNamed) {
  for (const Row& row : kChords) {
    SCOPED_TRACE(::testing::PrintToString(row.kinds));
    ChooseOnly(row.kinds);
    if (row.needed > 0) screen().grp_alle[0].Press();
    const Numbers groups = Groups();
    ASSERT_TRUE(screen().akk_grp.Choose(1));
    ExpectNothingChosen(1);
    EXPECT_EQ(Groups(), groups) << "they stay in the hidden frame";
    ASSERT_TRUE(screen().akk_grp.Choose(0));
    ExpectNothingChosen(0);
  }
}

TEST_F(Selection, DropsEveryChoiceWhenTheMaterialChanges) {
  for (const int best_art : {0, 1}) {
    screen().akk_grp.Choose(best_art);
    for (const Row& row : best_art == 0 ? kChords : kGroups) {
      SCOPED_TRACE(::testing::PrintToString(row.kinds));
      ChooseOnly(row.kinds);
      if (row.needed > 0) screen().grp_alle[0].Press();
      ASSERT_TRUE(screen().aus_w.Choose(1));
      EXPECT_FALSE(screen().grdeinst[11].visible);
      EXPECT_TRUE(screen().grdeinst[2].visible);
      EXPECT_EQ(GroupsOffered(), kAll);
      EXPECT_THAT(Groups(), IsEmpty());
      ExpectHint(396);
      ExpectState(false, false);
      ASSERT_TRUE(screen().aus_w.Choose(0));
      ExpectNothingChosen(best_art);
    }
  }
}

// --- Voicings -------------------------------------------------------------------------------

class Voicings : public Selection {
 protected:
  Voicings() { screen().aus_w.Choose(1); }
};

TEST_F(Voicings, OfferAllGroupsAndNeedTwo) {
  for (const int best_art : {0, 1}) {
    screen().akk_grp.Choose(best_art);
    int chosen = 0;
    for (const int g : kAll) {
      ASSERT_TRUE(ChooseGroup(g));
      const bool enough = ++chosen >= 2;
      ExpectState(enough, enough);
      ExpectHint(enough ? 0 : 396);
    }
    for (const int g : kAll) {
      ASSERT_TRUE(ReturnGroup(g));
      const bool enough = --chosen >= 2;
      ExpectState(enough, enough);
      ExpectHint(enough ? 0 : 396);
    }
  }
}

TEST_F(Voicings, TakeAllGroupsByButton) {
  ASSERT_TRUE(screen().grp_alle[0].Press());
  EXPECT_EQ(Groups(), kAll);
  ExpectState(true, true);
  ExpectHint(0);
  ASSERT_TRUE(screen().grp_alle[1].Press());
  EXPECT_EQ(GroupsOffered(), kAll);
  ExpectState(false, false);
  ExpectHint(396);
}

TEST_F(Voicings, KeepGroupsAndOkWhenAnotherThingIsNamed) {
  ChooseGroup(2);
  ChooseGroup(7);
  for (const int best_art : {1, 0}) {
    ASSERT_TRUE(screen().akk_grp.Choose(best_art));
    EXPECT_THAT(Groups(), ElementsAre(2, 7));
    EXPECT_TRUE(screen().grdeinst[2].visible);
    EXPECT_EQ(screen().grdeinst[12].visible, best_art == 0);
    ExpectHint(0);
    ExpectState(true, true);
  }
  ReturnGroup(2);
  for (const int best_art : {1, 0}) {
    ASSERT_TRUE(screen().akk_grp.Choose(best_art));
    EXPECT_THAT(Groups(), ElementsAre(7));
    ExpectHint(396);
    ExpectState(false, false);
  }
}

TEST_F(Voicings, AlwaysShowTheStructure) {
  screen().aus_w.Choose(0);
  screen().akk_anzg.Choose(1);
  EXPECT_EQ(settings().akk_anzeige, 1);
  screen().aus_w.Choose(1);
  EXPECT_FALSE(screen().akk_anzg[1].enabled);
  EXPECT_EQ(screen().akk_anzg.chosen(), 0);
  EXPECT_EQ(settings().akk_anzeige, 0);
  EXPECT_FALSE(screen().akk_anzg.Choose(1));
  screen().aus_w.Choose(0);
  EXPECT_TRUE(screen().akk_anzg[1].enabled);
}

TEST_F(Voicings, BeginAtThreeOctavesFrom48To84) {
  EXPECT_THAT(Data(screen().oktav_cmb), ElementsAre(1, 2, 3));
  EXPECT_THAT(Texts(screen().oktav_cmb), ElementsAre(" 3 [41s]", " 4 [41s]", " 5 [41s]"));
  EXPECT_EQ(settings().oktav_ber, 1);
  EXPECT_EQ(settings().ton_unten, 48);
  EXPECT_EQ(settings().ton_oben, 84);
  screen().aus_w.Choose(0);
  EXPECT_THAT(Data(screen().oktav_cmb), ElementsAre(0, 1, 2, 3));
  EXPECT_EQ(settings().oktav_ber, 0);
  EXPECT_EQ(settings().ton_unten, 48);
  EXPECT_EQ(settings().ton_oben, 72);
}

TEST_F(Voicings, GiveKind8AndTheChosenGroupsToARun) {
  ChooseGroup(6);
  ChooseGroup(3);
  screen().cmdOK.Press();
  EXPECT_EQ(settings().klang_anzahl, 1);
  EXPECT_EQ(settings().klang_ausw_ar[1], 8);
  EXPECT_EQ(settings().grp_anzahl, 2);
  EXPECT_THAT(settings().grp_ausw_ar, ElementsAre(0, 3, 6, 0, 0, 0, 0, 0, 0));
}

TEST_F(Voicings, DoNotClearTheOtherKindsOfTheRunBefore) {
  screen().aus_w.Choose(0);
  ChooseOnly({4, 5, 6});
  screen().grp_alle[0].Press();
  StartRun();
  worksheet().zurueck.Press();
  loop.Advance(1000);
  screen().aus_w.Choose(1);
  screen().grp_alle[0].Press();
  screen().cmdOK.Press();
  EXPECT_THAT(settings().klang_ausw_ar, ElementsAre(0, 8, 5, 6, 0, 0, 0));
}

// --- Single cases ---------------------------------------------------------------------------

TEST_F(Selection, OffersExactlyTwoGroupsForChordsOfSevenNotes) {
  ChooseOnly({7});
  EXPECT_THAT(GroupsOffered(), ElementsAre(2, 5));
  EXPECT_TRUE(screen().grp_alle[0].Press());
  EXPECT_THAT(Groups(), ElementsAre(2, 5));
  ExpectOk(true);
}

TEST_F(Selection, IsContentWithOneGroupBesideTriads) {
  ChooseOnly({3, 6});
  ExpectHint(395);
  EXPECT_THAT(GroupsOffered(), ElementsAre(2, 3, 4, 5));
  ChooseGroup(4);
  ExpectState(true, false);
}

TEST_F(Selection, DropsTheGroupsWhenAnotherKindIsAdded) {
  ChooseOnly({5});
  ChooseGroup(1);
  ChooseGroup(2);
  ChooseKind(4);
  EXPECT_EQ(GroupsOffered(), kAll);
  EXPECT_THAT(Groups(), IsEmpty());
  ExpectOk(false);
}

TEST_F(Selection, KeepsTheGroupListsWhenTheLastKindIsTakenBack) {
  ChooseOnly({5});
  ChooseGroup(3);
  ReturnKind(5);
  EXPECT_FALSE(screen().grdeinst[2].visible);
  EXPECT_THAT(Groups(), ElementsAre(3));
  EXPECT_THAT(GroupsOffered(), ElementsAre(1, 2, 4, 5, 6));
}

TEST_F(Selection, ClearsTheGroupListsWhenOnlyTriadsAreLeft) {
  ChooseOnly({3, 5});
  ChooseGroup(3);
  ReturnKind(5);
  EXPECT_FALSE(screen().grdeinst[2].visible);
  EXPECT_THAT(Groups(), IsEmpty());
  EXPECT_THAT(GroupsOffered(), IsEmpty());
  ExpectState(true, true);
}

TEST_F(Selection, StandsInAscendingOrderWhateverTheOrderOfTheClicks) {
  ChooseOnly({});
  for (const int k : {6, 4, 7, 3, 5}) ChooseKind(k);
  EXPECT_THAT(Kinds(), ElementsAre(3, 4, 5, 6, 7));
  for (const int g : {8, 1, 5, 3}) ChooseGroup(g);
  EXPECT_THAT(Groups(), ElementsAre(1, 3, 5, 8));
  EXPECT_THAT(GroupsOffered(), ElementsAre(2, 4, 6, 7));
  for (const int g : {5, 1, 8}) ReturnGroup(g);
  EXPECT_THAT(GroupsOffered(), ElementsAre(1, 2, 4, 5, 6, 7, 8));
  for (const int k : {5, 3, 7}) ReturnKind(k);
  EXPECT_THAT(KindsOffered(), ElementsAre(3, 5, 7));
}

TEST_F(Selection, ShowsTheNamesOfKindsAndGroups) {
  screen().klang_alle[1].Press();
  EXPECT_THAT(Texts(screen().klanglst[0]),
              ElementsAre(Wort(51), Wort(57), Wort(60), Wort(62), Wort(64)));
  screen().klang_alle[0].Press();
  EXPECT_THAT(Texts(screen().grplst[0]), ElementsAre(Wort(379), Wort(380), Wort(409), Wort(200),
                                                     Wort(201), Wort(410), Wort(312), Wort(609)));
  ChooseGroup(5);
  EXPECT_THAT(Texts(screen().grplst[1]), ElementsAre(Wort(201)));
}

TEST_F(Selection, GoesToTheRunAsItStands) {
  ChooseOnly({3, 7, 5});
  ChooseGroup(6);
  ChooseGroup(2);
  screen().cmdOK.Press();
  EXPECT_EQ(settings().klang_anzahl, 3);
  EXPECT_THAT(settings().klang_ausw_ar, ElementsAre(0, 3, 5, 7, 0, 0, 0));
  EXPECT_EQ(settings().grp_anzahl, 2);
  EXPECT_THAT(settings().grp_ausw_ar, ElementsAre(0, 2, 6, 0, 0, 0, 0, 0, 0));
}

TEST_F(Selection, ClearsWhatTheRunBeforeHadMore) {
  screen().klang_alle[0].Press();
  screen().grp_alle[0].Press();
  StartRun();
  EXPECT_EQ(settings().klang_anzahl, 5);
  EXPECT_EQ(settings().grp_anzahl, 8);
  worksheet().zurueck.Press();
  loop.Advance(1000);
  ChooseOnly({3});
  screen().cmdOK.Press();
  EXPECT_THAT(settings().klang_ausw_ar, ElementsAre(0, 3, 0, 0, 0, 0, 0));
  EXPECT_EQ(settings().grp_anzahl, 0);
  EXPECT_THAT(settings().grp_ausw_ar, ElementsAre(0, 0, 0, 0, 0, 0, 0, 0, 0));
}

// --- Settled ways of the screen that look like mistakes -------------------------------------

TEST_F(Selection, KeepsTheSoundCheckOffAfterAClickOnAGroupAsSettled) {
  ChooseOnly({4});
  ChooseGroup(1);
  ChooseGroup(2);
  ExpectState(true, false);
}

TEST_F(Selection, LocksOkByTheButtonThatTakesAllGroupsBackWhereOneWouldDoAsSettled) {
  ChooseOnly({3, 6});
  ChooseGroup(4);
  ExpectOk(true);
  screen().grp_alle[1].Press();
  ExpectState(false, false);
  ChooseGroup(4);
  ExpectOk(true);
}

TEST_F(Selection, LeavesOkReadyAfterTriadsWhenAllKindsAreTakenByButtonAsSettled) {
  screen().klang_alle[0].Press();
  EXPECT_TRUE(screen().grdeinst[2].visible);
  EXPECT_EQ(GroupsOffered(), kAll);
  ExpectState(true, true);
  StartRun();
  EXPECT_EQ(settings().klang_anzahl, 5);
  EXPECT_EQ(settings().grp_anzahl, 0);
  EXPECT_TRUE(worksheet().visible);
  EXPECT_THAT(messages.warnings, IsEmpty());
}

}  // namespace
}  // namespace vmod17

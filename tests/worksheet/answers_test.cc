// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The judging of clicks, from the tile to the end of the task.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "worksheet/worksheet_fixture.h"

namespace vmod17 {
namespace {

const Color kGrey = Rgb(192, 192, 192);
const Color kWhite = Rgb(255, 255, 255);
const Color kRed = Rgb(255, 0, 0);
const Color kBlack = Rgb(0, 0, 0);
const Color kOpen = Rgb(128, 255, 128);
const Color kSolved = Rgb(0, 192, 0);
const Color kRightText = Rgb(0, 255, 0);

const char* const kWrongText = "[232s]";

WorksheetFixture::Change Chords(int akk_anzahl) {
  return [=](ExerciseSettings& s) { s.akk_anzahl = akk_anzahl; };
}

WorksheetFixture::Change Groups(int akk_anzahl) {
  return [=](ExerciseSettings& s) {
    s.akk_anzahl = akk_anzahl;
    s.best_art = 1;
  };
}

/// Lets the answer time reach `ms`, right after a playing whose end came a millisecond ago.
void Think(WorksheetFixture& p, double ms) { p.loop.Advance(ms - 1); }

std::string Done(const std::string& attributes, int tenths, int repeats, const char* answer) {
  return attributes + " [Dauer Antwort: " + std::to_string(tenths) +
         "][Anz Whlg: " + std::to_string(repeats) + "][Antwort: " + answer + "]";
}

void ExpectOpen(WorksheetFixture& p, int tile) {
  EXPECT_TRUE(p.worksheet().jz_kl[tile].Reachable()) << tile;
  EXPECT_EQ(p.worksheet().jz_kl[tile].back_color, kWhite) << tile;
  EXPECT_EQ(p.worksheet().klang_pan[tile].back_color, kOpen) << tile;
}

void ExpectShut(WorksheetFixture& p, int tile) {
  EXPECT_FALSE(p.worksheet().jz_kl[tile].enabled) << tile;
  EXPECT_EQ(p.worksheet().jz_kl[tile].back_color, kGrey) << tile;
  EXPECT_EQ(p.worksheet().klang_pan[tile].back_color, kRed) << tile;
}

TEST(Answers, OpensAllTilesAtTheEndOfThePlaying) {
  WorksheetFixture p;
  p.Begin();
  p.worksheet().CmdNextAufg.Press();
  EXPECT_TRUE(p.OpenChoices().empty());
  p.loop.Advance(p.worksheet().spieltimer.interval - 1);
  EXPECT_TRUE(p.OpenChoices().empty());
  p.loop.Advance(1);
  for (int e = 1; e <= 10; ++e) ExpectOpen(p, e);
  EXPECT_EQ(p.OpenChoices().size(), 10u);
  EXPECT_EQ(p.OpenSlots(), std::vector<int>{1});
}

TEST(Answers, MarksARightChord) {
  WorksheetFixture p;
  p.Begin(Chords(2));
  p.PlayTask();
  const int clicked = p.Right();
  const Arbeitsblatt1& w = p.worksheet();
  EXPECT_EQ(w.ergebnis[1].back_color, kSolved);
  EXPECT_EQ(w.ergebnis[1].fore_color, kRightText);
  EXPECT_TRUE(w.erg[1].visible);
  EXPECT_TRUE(w.akk_lfdnr[1].visible);
  EXPECT_EQ(w.akk_lfdnr[1].caption, "[374s] " + std::to_string(clicked));
  EXPECT_EQ(w.zaehler[0].caption, "1");
  EXPECT_EQ(w.zaehler[1].caption, "0");
  EXPECT_EQ(p.OpenSlots(), std::vector<int>{2});
  EXPECT_FALSE(w.erg[2].visible);
  EXPECT_FALSE(w.akk_lfdnr[2].visible);
}

TEST(Answers, MarksARightGroup) {
  WorksheetFixture p;
  p.Begin(Groups(2), {5, 6}, {2, 3, 5});
  p.PlayTask();
  const int clicked = p.Right();
  const Arbeitsblatt1& w = p.worksheet();
  EXPECT_EQ(w.ergebnis[1].back_color, kBlack);
  EXPECT_EQ(w.ergebnis[1].fore_color, kRightText);
  EXPECT_EQ(w.ergebnis[1].caption, w.akk_group[clicked].caption);
  EXPECT_FALSE(w.erg[1].visible);
  EXPECT_FALSE(w.akk_lfdnr[1].visible);
  EXPECT_EQ(w.zaehler[0].caption, "1");
  EXPECT_EQ(p.OpenSlots(), std::vector<int>{2});
}

constexpr AnswerMark kTick = {AnswerMark::Kind::kTick, 0};
constexpr AnswerMark kCross = {AnswerMark::Kind::kCross, 0};
using Marks = std::vector<AnswerMark>;

TEST(Answers, PutATickOnTheRightTileAndACrossOnEachWrongOneUntilTheNextTask) {
  for (const auto& change : {Chords(1), Groups(1)}) {
    WorksheetFixture p;
    p.Begin(change, {5, 6}, {2, 3, 5});
    p.PlayTask();
    const int first = p.Wrong();
    EXPECT_EQ(p.Choice(first).marks, Marks{kCross});
    EXPECT_TRUE(p.Choice(p.RightChoice()).marks.empty());
    p.Repeat();
    EXPECT_EQ(p.Choice(first).marks, Marks{kCross}) << "of the open slot, heard again";
    const int right = p.Right();
    EXPECT_EQ(p.Choice(right).marks, Marks{kTick});
    EXPECT_EQ(p.Choice(first).marks, Marks{kCross});
    p.ControlRepeat();
    EXPECT_EQ(p.Choice(right).marks, Marks{kTick});
    p.worksheet().CmdNextAufg.Press();
    EXPECT_TRUE(p.Choice(right).marks.empty());
    EXPECT_TRUE(p.Choice(first).marks.empty());
  }
}

TEST(Answers, PutATickOnTheRightTileOfALostSlotToo) {
  for (const auto& change : {Chords(1), Groups(1)}) {
    WorksheetFixture p;
    p.Begin(change, {5, 6}, {2, 3, 5});
    p.PlayTask();
    const int right = p.RightChoice();
    while (p.run().akk_nr == 1) EXPECT_EQ(p.Choice(p.Wrong()).marks, Marks{kCross});
    EXPECT_EQ(p.Choice(right).marks, Marks{kTick});
  }
}

TEST(Answers, TellWithTheirMarksOfWhichChordOfTheTaskTheyWere) {
  WorksheetFixture p;
  p.Begin(Chords(2));
  p.random.Script({0.05f, 0.45f, 0.15f, 0.35f});
  p.PlayTask();
  ASSERT_EQ(p.Asked(1), 1);
  ASSERT_EQ(p.Asked(2), 2);
  EXPECT_TRUE(p.Choice(2).Press());
  EXPECT_TRUE(p.Choice(1).Press());
  EXPECT_TRUE(p.Choice(1).Press());
  EXPECT_TRUE(p.Choice(2).Press());
  EXPECT_EQ(p.Choice(1).marks,
            (Marks{{AnswerMark::Kind::kTick, 1}, {AnswerMark::Kind::kCross, 2}}));
  EXPECT_EQ(p.Choice(2).marks,
            (Marks{{AnswerMark::Kind::kCross, 1}, {AnswerMark::Kind::kTick, 2}}));
}

TEST(Answers, FlipsTheMarkAtEachWrongClickUntilTheSlotIsLost) {
  WorksheetFixture p;
  p.Begin();
  p.PlayTask();
  const Panel& mark = p.worksheet().ergebnis[1];
  for (int wrong = 1; wrong <= 3; ++wrong) {
    p.Wrong();
    const bool odd = wrong % 2 == 1;
    EXPECT_EQ(mark.back_color, odd ? kRed : kBlack) << wrong;
    EXPECT_EQ(mark.fore_color, odd ? kBlack : kRed) << wrong;
    EXPECT_EQ(mark.caption, kWrongText) << wrong;
    EXPECT_EQ(p.worksheet().zaehler[1].caption, std::to_string(wrong));
    EXPECT_EQ(p.run().answers.fehl_ar[1], 2.0f * static_cast<float>(wrong));
    EXPECT_EQ(p.OpenSlots(), std::vector<int>{1});
    EXPECT_FALSE(p.worksheet().erg[1].visible);
  }
  p.Wrong();
  EXPECT_EQ(mark.back_color, kRed);
  EXPECT_TRUE(p.worksheet().erg[1].visible);
  EXPECT_TRUE(p.worksheet().akk_lfdnr[1].visible);
  EXPECT_TRUE(p.OpenSlots().empty());
  EXPECT_EQ(p.worksheet().zaehler[0].caption, "0");
  EXPECT_EQ(p.worksheet().zaehler[1].caption, "4");
  EXPECT_EQ(p.run().answers.fehl_ar[1], 8.0f);
}

TEST(Answers, ShowsTheRightGroupOfALostSlotInTheColoursAsTheyStood) {
  // The number of the last wrong click decides which way round the colours stand.
  for (const auto& groups : {std::vector<int>{2, 5}, std::vector<int>{2, 4, 5}}) {
    WorksheetFixture p;
    p.Begin(Groups(1), {6}, groups);
    p.PlayTask();
    const std::string right = p.worksheet().akk_group[p.RightChoice()].caption;
    for (std::size_t wrong = 1; wrong < groups.size(); ++wrong) p.Wrong();
    const bool red = groups.size() == 2;
    EXPECT_EQ(p.worksheet().ergebnis[1].caption, right);
    EXPECT_EQ(p.worksheet().ergebnis[1].back_color, red ? kRed : kBlack);
    EXPECT_EQ(p.worksheet().ergebnis[1].fore_color, red ? kBlack : kRed);
    EXPECT_FALSE(p.worksheet().erg[1].visible);
    EXPECT_EQ(p.run().lauf_status, LaufStatus::kAufgabeFertig);
  }
}

TEST(Answers, StrikesAWrongTileForTheOpenSlot) {
  WorksheetFixture p;
  p.Begin(Chords(2));
  p.PlayTask();
  const int wrong = p.Wrong();
  ExpectShut(p, wrong);
  EXPECT_EQ(p.run().aus_ar[wrong], 1);
  EXPECT_EQ(p.OpenChoices().size(), 9u);
  p.Repeat();
  ExpectShut(p, wrong);
  EXPECT_EQ(p.OpenChoices().size(), 9u) << "a repeat leaves it struck";
  p.Right();
  ExpectOpen(p, wrong);
  EXPECT_EQ(p.run().aus_ar[wrong], 0);
  EXPECT_EQ(p.OpenChoices().size(), 10u);
}

TEST(Answers, StrikesAWrongGroupForTheOpenSlot) {
  WorksheetFixture p;
  p.Begin(Groups(2), {5}, {1, 2, 3, 4});
  p.PlayTask();
  EXPECT_EQ(p.OpenChoices(), (std::vector<int>{1, 2, 3, 4}));
  const int wrong = p.Wrong();
  EXPECT_FALSE(p.worksheet().akk_group[wrong].enabled);
  EXPECT_EQ(p.run().aus_ar[wrong], 1);
  p.Repeat();
  EXPECT_FALSE(p.worksheet().akk_group[wrong].enabled);
  EXPECT_EQ(p.OpenChoices().size(), 3u);
  p.Right();
  EXPECT_EQ(p.OpenChoices(), (std::vector<int>{1, 2, 3, 4}));
  EXPECT_EQ(p.run().aus_ar[wrong], 0);
}

TEST(Answers, OpensTheButtonsOfAbsentGroupsOnlyOutOfSight) {
  WorksheetFixture p;
  p.Begin(Groups(2), {5}, {1, 4});
  p.PlayTask();
  for (int g : {2, 3, 5, 6, 7, 8}) EXPECT_FALSE(p.worksheet().akk_group[g].enabled) << g;
  p.Right();
  for (int g : {2, 3, 5, 6, 7, 8}) {
    EXPECT_TRUE(p.worksheet().akk_group[g].enabled) << g;
    EXPECT_FALSE(p.worksheet().akk_group[g].Reachable()) << g;
  }
  p.Right();
  for (int g = 1; g <= 8; ++g) EXPECT_FALSE(p.worksheet().akk_group[g].enabled) << g;
}

TEST(Answers, ClosesAllTilesWithTheTask) {
  WorksheetFixture p;
  p.Begin();
  p.PlayTask();
  p.Wrong();
  p.Right();
  for (int e = 1; e <= 10; ++e) {
    ExpectShut(p, e);
    EXPECT_EQ(p.run().aus_ar[e], 0) << e;
  }
  EXPECT_TRUE(p.OpenSlots().empty());
  EXPECT_EQ(p.run().lauf_status, LaufStatus::kAufgabeFertig);
}

TEST(Answers, TakesNoClickOnWhatIsClosedOrStruck) {
  WorksheetFixture p;
  p.Begin();
  EXPECT_FALSE(p.worksheet().jz_kl[1].Press());
  p.PlayTask();
  const int wrong = p.Wrong();
  EXPECT_FALSE(p.worksheet().jz_kl[wrong].Press());
  EXPECT_EQ(p.worksheet().zaehler[1].caption, "1");
  p.Right();
  const int answers = p.Answers();
  for (int e = 1; e <= 24; ++e) EXPECT_FALSE(p.worksheet().jz_kl[e].Press()) << e;
  EXPECT_EQ(p.worksheet().zaehler[0].caption, "1");
  EXPECT_EQ(p.Answers(), answers);
}

TEST(Answers, OpensOneSlotAfterTheOtherWithoutPlayingAgain) {
  WorksheetFixture p;
  p.Begin(Chords(4));
  p.PlayTask();
  for (int slot = 1; slot <= 4; ++slot) {
    EXPECT_EQ(p.OpenSlots(), std::vector<int>{slot});
    EXPECT_EQ(p.run().akk_nr, slot);
    EXPECT_EQ(p.OpenChoices().size(), 10u);
    EXPECT_FALSE(p.worksheet().CmdNextAufg.Reachable());
    p.Right();
  }
  EXPECT_EQ(p.output.starts, 1);
  EXPECT_TRUE(p.OpenSlots().empty());
  EXPECT_EQ(p.worksheet().zaehler[0].caption, "4");
  for (int slot = 1; slot <= 4; ++slot) EXPECT_EQ(p.run().answers.fehl_ar[slot], 0);
  EXPECT_TRUE(p.worksheet().CmdNextAufg.Reachable());
}

TEST(Answers, OpensTheNextSlotAfterALostOne) {
  WorksheetFixture p;
  p.Begin(Chords(2));
  p.PlayTask();
  for (int i = 0; i < 4; ++i) p.Wrong();
  EXPECT_EQ(p.OpenSlots(), std::vector<int>{2});
  EXPECT_EQ(p.run().lauf_status, LaufStatus::kNaechsterSlot);
  EXPECT_EQ(p.OpenChoices().size(), 10u);
  EXPECT_EQ(p.worksheet().ergebnis[2].caption, "");
  EXPECT_EQ(p.worksheet().ergebnis[2].back_color, kBlack);
  p.Right();
  EXPECT_EQ(p.worksheet().ergebnis[1].back_color, kRed);
  EXPECT_EQ(p.worksheet().ergebnis[2].back_color, kSolved);
}

TEST(Answers, RemembersTheWrongTilesOfASlotInTheirOrder) {
  WorksheetFixture p;
  p.Begin();
  p.PlayTask();
  std::vector<int> clicked = {0};
  for (int i = 0; i < 4; ++i) clicked.push_back(p.Wrong());
  const auto& kept = p.run().answers.falsch_ar[1];
  EXPECT_EQ(std::vector<int>(kept.begin(), kept.end()), clicked);
}

TEST(Answers, DoesNotKeepWrongGroups) {
  WorksheetFixture p;
  p.Begin(Groups(1), {5}, {1, 2, 3, 4});
  p.PlayTask();
  p.Wrong();
  p.Wrong();
  for (const int kept : p.run().answers.falsch_ar[1]) EXPECT_EQ(kept, 0);
  EXPECT_EQ(p.run().answers.fehl_ar[1], 4.0f);
}

TEST(Answers, KeepTheirPointsWhenARightClickFollowsAWrongOne) {
  WorksheetFixture p;
  p.Begin();
  p.PlayTask();
  p.Wrong();
  p.Right();
  EXPECT_EQ(p.run().answers.fehl_ar[1], 2.0f);
  EXPECT_EQ(p.worksheet().ergebnis[1].back_color, kSolved);
  EXPECT_EQ(p.worksheet().ergebnis[1].fore_color, kRightText);
  EXPECT_EQ(p.worksheet().zaehler[0].caption, "1");
  EXPECT_EQ(p.worksheet().zaehler[1].caption, "1");
}

struct Limit {
  std::vector<int> klangtypen;
  std::vector<int> gruppen;
  int best_art;
  int choices;
  int stufen;
  int max;
};

TEST(Answers, TakeAsManyWrongClicksAsTheChoicesAllow) {
  const std::vector<Limit> limits = {
      {{4}, {7}, 0, 1, 0, 0},
      {{4}, {8}, 0, 2, 1, 2},
      {{4}, {6}, 0, 4, 3, 6},
      {{4}, {1, 8}, 0, 5, 4, 8},
      {{4, 5}, {1, 2, 3, 4, 5, 6, 7, 8}, 0, 24, 4, 8},
      {{4}, {7}, 1, 1, 0, 0},
      {{4}, {7, 8}, 1, 2, 1, 2},
      {{4}, {1, 2, 4, 6}, 1, 4, 3, 6},
      {{4}, {1, 2, 3, 4, 5}, 1, 5, 4, 8},
      {{4}, {1, 2, 3, 4, 5, 6, 7, 8}, 1, 8, 4, 8},
  };
  for (const Limit& limit : limits) {
    WorksheetFixture p;
    p.Begin([&](ExerciseSettings& s) { s.best_art = limit.best_art; }, limit.klangtypen,
            limit.gruppen);
    const SlotLimits& slot = p.program.board().limits;
    EXPECT_EQ(slot.wahl_anzahl, limit.choices);
    EXPECT_EQ(slot.fehl_stufen, limit.stufen);
    EXPECT_EQ(slot.fehl_max, limit.max);

    p.PlayTask();
    EXPECT_EQ(static_cast<int>(p.OpenChoices().size()), limit.choices);
    for (int wrong = 1; wrong <= limit.stufen; ++wrong) {
      EXPECT_EQ(p.OpenSlots(), std::vector<int>{1}) << limit.choices << " choices, " << wrong;
      EXPECT_NE(p.Wrong(), 0);
    }
    if (limit.stufen == 0) {
      EXPECT_EQ(p.WrongChoice(), 0);
      EXPECT_NE(p.Right(), 0);
      EXPECT_EQ(p.worksheet().zaehler[0].caption, "1");
    }
    EXPECT_TRUE(p.OpenSlots().empty()) << limit.choices << " choices";
    EXPECT_EQ(p.worksheet().zaehler[1].caption, std::to_string(limit.stufen));
    EXPECT_EQ(p.Answers(), std::max(1, limit.stufen)) << "a lost slot makes no further answer";
  }
}

TEST(Answers, OfTwoChoicesNeverGetASecondTry) {
  WorksheetFixture p;
  p.Begin(Chords(2), {4}, {8});
  p.PlayTask();
  p.Wrong();
  EXPECT_EQ(p.run().akk_nr, 2);
  EXPECT_TRUE(p.worksheet().erg[1].visible);
  EXPECT_EQ(p.worksheet().ergebnis[1].back_color, kRed);
  EXPECT_EQ(p.Answer(1), "lfd=1 Akk=1 [Dauer Antwort: 0][Anz Whlg: 0][Antwort: false]");
  EXPECT_EQ(p.Answer(2), "lfd=1 interval=2 ");
}

TEST(Answers, AreTimedInTenthsOfASecondRoundedToTheNearest) {
  struct Case {
    double ms;
    int tenths;
  };
  for (const Case& c : {Case{2300, 23}, Case{2349, 23}, Case{2351, 24}, Case{40, 0}, Case{60, 1},
                        Case{12000, 120}}) {
    WorksheetFixture p;
    p.Begin();
    p.PlayTask();
    Think(p, c.ms);
    p.Right();
    EXPECT_EQ(p.Answer(1), Done("lfd=1 Akk=1", c.tenths, 0, "true")) << c.ms;
    EXPECT_EQ(p.run().clock.antw_dauer, static_cast<float>(c.tenths));
  }
}

TEST(Answers, CountTheirTimeFromTheEndOfThePlaying) {
  for (const int tempo : {0, 9}) {
    WorksheetFixture p;
    p.Begin([&](ExerciseSettings& s) {
      s.tempo_idx = tempo;
      s.akk_anzahl = 4;
    });
    p.PlayTask();
    Think(p, 1520);
    p.Wrong();
    EXPECT_EQ(p.Answer(1), Done("lfd=1 Akk=1", 15, 0, "false"));
  }
}

TEST(Answers, CountTheirTimeAnewAfterEachClick) {
  WorksheetFixture p;
  p.Begin(Chords(2));
  p.PlayTask();
  Think(p, 1020);
  p.Wrong();
  p.loop.Advance(620);
  p.Right();
  p.loop.Advance(730);
  p.Right();
  EXPECT_EQ(p.Answer(1), Done("lfd=1 Akk=1", 10, 0, "false"));
  EXPECT_EQ(p.Answer(2), Done("lfd=2 Akkord=1", 6, 0, "true"));
  EXPECT_EQ(p.Answer(3), Done("lfd=1 interval=2", 7, 0, "true"));
  EXPECT_EQ(p.Answers(), 3);
}

TEST(Answers, GatherTheirTimeOverRepeatsWithoutThePlaying) {
  WorksheetFixture p;
  p.Begin();
  p.PlayTask();
  Think(p, 1000);
  p.Repeat();
  // The pause of 50 ms before the repeat belongs to the answer, the playing does not.
  EXPECT_NEAR(p.run().clock.antw_dauer, 1.05, 0.001);
  Think(p, 430);
  p.Right();
  EXPECT_EQ(p.Answer(1), Done("lfd=1 Akk=1", 15, 1, "true"));
}

TEST(Answers, GatherTheirTimeOverSeveralRepeats) {
  WorksheetFixture p;
  p.Begin();
  p.PlayTask();
  for (int i = 0; i < 3; ++i) {
    Think(p, 520);
    p.Repeat();
  }
  Think(p, 330);
  p.Wrong();
  EXPECT_EQ(p.Answer(1), Done("lfd=1 Akk=1", 20, 3, "false"));  // 3 x 0.57 s and 0.33 s
}

TEST(Answers, AreTimedOverMidnight) {
  WorksheetFixture p(86395);
  p.Begin();
  p.PlayTask();
  ASSERT_GT(p.loop.Clock(), 86390);
  Think(p, 2500);
  ASSERT_LT(p.loop.Clock(), 100);
  p.Right();
  EXPECT_EQ(p.Answer(1), Done("lfd=1 Akk=1", 25, 0, "true"));
}

TEST(Answers, AreTimedOverAMidnightBeforeARepeat) {
  WorksheetFixture p(86395);
  p.Begin();
  p.PlayTask();
  Think(p, 2000);
  p.Repeat();
  ASSERT_LT(p.loop.Clock(), 100);
  Think(p, 480);
  p.Right();
  EXPECT_EQ(p.Answer(1), Done("lfd=1 Akk=1", 25, 1, "true"));  // 2.05 s and 0.48 s
}

TEST(Answers, AreNotTimedOverAMidnightInARepeat) {
  WorksheetFixture p(86394);
  p.Begin();
  p.PlayTask();
  Think(p, 1000);
  p.Repeat();
  ASSERT_LT(p.loop.Clock(), 100);
  Think(p, 480);
  p.Right();
  EXPECT_EQ(p.Answer(1), Done("lfd=1 Akk=1", 15, 1, "true"));  // 1.05 s and 0.48 s
}

TEST(Answers, CountRepeatsSinceTheLastAnswerAndBySlot) {
  WorksheetFixture p;
  p.Begin(Chords(2));
  p.PlayTask();
  p.Repeat();
  p.Repeat();
  EXPECT_EQ(p.run().clock.anz_whlg, 2);
  p.Wrong();
  EXPECT_EQ(p.run().clock.anz_whlg, 0);
  p.Repeat();
  p.Right();
  EXPECT_EQ(p.run().clock.anz_whlg, 0);
  p.Repeat();
  p.Right();
  EXPECT_EQ(p.run().answers.whlg_ar[1], 3);
  EXPECT_EQ(p.run().answers.whlg_ar[2], 1);
  EXPECT_EQ(p.worksheet().whlgzaehler.caption, "4");
  const auto repeats = [&](int i) {
    return p.lesson().Find("answers")->children.at(i - 1)->children.at(1)->Find("value")->text;
  };
  EXPECT_EQ(repeats(1), "2");
  EXPECT_EQ(repeats(2), "1");
  EXPECT_EQ(repeats(3), "1");
}

TEST(Answers, BeginATaskWithoutRepeats) {
  WorksheetFixture p;
  p.Begin();
  p.PlayTask();
  p.Repeat();
  p.Right();
  p.PlayTask();
  EXPECT_EQ(p.run().clock.anz_whlg, 0);
  EXPECT_EQ(p.run().clock.antw_dauer, 0);
  p.Right();
  EXPECT_EQ(p.Answer(1), Done("lfd=1 Akk=1", 0, 0, "true"));
  EXPECT_EQ(p.worksheet().whlgzaehler.caption, "1");
}

TEST(Answers, AreNumberedWithinTheirSlot) {
  WorksheetFixture p;
  p.Begin(Chords(3));
  p.PlayTask();
  EXPECT_EQ(p.Answer(1), "lfd=1 Akk=1 ");
  p.Wrong();
  EXPECT_EQ(p.run().clock.antw_lfd, 2);
  EXPECT_EQ(p.Answer(2), "lfd=2 Akkord=1 ");
  p.Wrong();
  EXPECT_EQ(p.Answer(3), "lfd=3 Akkord=1 ");
  p.Right();
  EXPECT_EQ(p.run().clock.antw_lfd, 1);
  EXPECT_EQ(p.Answer(4), "lfd=1 interval=2 ");
  p.Wrong();
  EXPECT_EQ(p.Answer(5), "lfd=2 Akkord=2 ");
  p.Right();
  EXPECT_EQ(p.Answer(6), "lfd=1 interval=3 ");
  p.Right();
  EXPECT_EQ(p.Answers(), 6);
  p.PlayTask();
  EXPECT_EQ(p.Answers(), 1);
  EXPECT_EQ(p.Answer(1), "lfd=1 Akk=1 ");
}

TEST(Answers, MakeNoFurtherElementForALostSlot) {
  WorksheetFixture p;
  p.Begin(Chords(2));
  p.PlayTask();
  for (int i = 0; i < 4; ++i) p.Wrong();
  EXPECT_EQ(p.Answers(), 5);
  EXPECT_EQ(p.Answer(4), Done("lfd=4 Akkord=1", 0, 0, "false"));
  EXPECT_EQ(p.Answer(5), "lfd=1 interval=2 ");
  for (int i = 0; i < 4; ++i) p.Wrong();
  EXPECT_EQ(p.Answers(), 8);
}

TEST(Answers, EnterTheTaskInTheRecordInBothModes) {
  for (const int best_art : {0, 1}) {
    WorksheetFixture p;
    p.Begin(
        [&](ExerciseSettings& s) {
          s.best_art = best_art;
          s.akk_anzahl = 3;
        },
        {4}, {1, 8});
    p.PlayTask();
    const auto properties = p.lesson().Find("properties")->All("property");
    ASSERT_EQ(properties.size(), 3u);
    for (int slot = 1; slot <= 3; ++slot) {
      const MemoryXmlNode& property = *properties[slot - 1];
      const BoardEntry& entry = p.program.board()[p.Asked(slot)];
      EXPECT_EQ(property.Attribute("number"), std::to_string(slot));
      EXPECT_EQ(property.Find("AkkTyp")->text, "4");
      EXPECT_EQ(property.Find("AkklNr")->text, std::to_string(entry.row));
      EXPECT_EQ(property.Find("GrpNr")->text, std::to_string(entry.group));
      // The rows of four notes begin at Klang number 11.
      EXPECT_EQ(property.Find("GeslNr")->text, std::to_string(10 + entry.row));
    }
  }
}

TEST(Answers, JudgeAGroupByTheChordThatWasPlayed) {
  WorksheetFixture p;
  p.Begin(Groups(1), {4}, {1, 2, 3, 4, 5, 6, 7, 8});
  for (int task = 0; task < 20; ++task) {
    p.PlayTask();
    const int group = ChordOfKlang(p.program.board()[p.Asked(1)].klang).group;
    EXPECT_TRUE(p.worksheet().akk_group[group].Press());
    EXPECT_EQ(p.worksheet().zaehler[0].caption, std::to_string(task + 1));
  }
  EXPECT_EQ(p.worksheet().zaehler[1].caption, "0");
}

TEST(Answers, OfferTheNextTaskWhenTheLastSlotIsClosed) {
  for (const bool lost : {false, true}) {
    WorksheetFixture p;
    p.Begin();
    p.PlayTask();
    EXPECT_TRUE(p.worksheet().wieder.Reachable());
    EXPECT_FALSE(p.worksheet().wieder2.visible);
    for (int i = 0; i < (lost ? 4 : 1); ++i) lost ? p.Wrong() : p.Right();
    EXPECT_FALSE(p.worksheet().wieder.visible);
    EXPECT_FALSE(p.worksheet().wieder.enabled);
    EXPECT_TRUE(p.worksheet().wieder2.Reachable());
    EXPECT_TRUE(p.worksheet().CmdNextAufg.Reachable());
    EXPECT_EQ(p.worksheet().CmdNextAufg.caption, "[420s]");
  }
}

/// What a reader of the screen calls the slots.
class SpokenSlots : public testing::Test {
 protected:
  SpokenSlots() {
    p_.languages.languages[0].second.words = {
        {"426s", "Akkord"},           {"374s", "lfd Nr."},     {"9682s", "%1: offen"},
        {"9683s", "%1: richtig, %2"}, {"9684s", "%1: falsch"}, {"9685s", "%1: verloren, %2"}};
  }
  std::string Slot(int slot) { return p_.worksheet().ergebnis[slot].spoken; }
  std::string Solution(int slot) { return p_.worksheet().jz_kl[p_.Asked(slot)].spoken; }

  WorksheetFixture p_;
};

TEST_F(SpokenSlots, TellHowEachChordEndedAndWhichItWas) {
  p_.Begin(Chords(3));
  EXPECT_EQ(Slot(1), "Akkord 1");
  p_.PlayTask();
  for (int slot = 1; slot <= 3; ++slot) {
    EXPECT_EQ(Slot(slot), "Akkord " + std::to_string(slot) + ": offen");
  }
  p_.Right();
  EXPECT_EQ(Slot(1), "Akkord 1: richtig, " + Solution(1));
  EXPECT_EQ(p_.worksheet().ergebnis[1].description, "lfd Nr. " + std::to_string(p_.Asked(1)));
  EXPECT_EQ(Slot(2), "Akkord 2: offen");
  p_.Wrong();
  EXPECT_EQ(Slot(2), "Akkord 2: falsch");
  EXPECT_EQ(p_.worksheet().ergebnis[2].description, "");
  while (p_.run().akk_nr == 2) p_.Wrong();
  EXPECT_EQ(Slot(2), "Akkord 2: verloren, " + Solution(2));
  EXPECT_EQ(Slot(3), "Akkord 3: offen");
}

TEST_F(SpokenSlots, TellTheGroupWhereGroupsAreNamed) {
  p_.Begin(Groups(2), {4}, {1, 3, 4, 6, 7});
  p_.PlayTask();
  const int group = p_.Right();
  EXPECT_EQ(Slot(1), "Akkord 1: richtig, " + p_.worksheet().akk_group[group].caption);
  const int lost = p_.RightChoice();
  while (p_.run().akk_nr == 2) p_.Wrong();
  EXPECT_EQ(Slot(2), "Akkord 2: verloren, " + p_.worksheet().akk_group[lost].caption);
}

TEST_F(SpokenSlots, ForgetTheTaskBefore) {
  p_.Begin(Chords(1));
  p_.PlayTask();
  p_.Right();
  p_.PlayTask();
  EXPECT_EQ(Slot(1), "Akkord 1: offen");
  EXPECT_EQ(p_.worksheet().ergebnis[1].description, "");
}

}  // namespace
}  // namespace vmod17

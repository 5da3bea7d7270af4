// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "worksheet/worksheet_screen.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "worksheet/stage.h"
#include "worksheet/worksheet_fixture.h"

namespace vmod17 {
namespace {

const Color kGrey = Rgb(192, 192, 192);
const Color kRed = Rgb(255, 0, 0);
const Color kBlack = Rgb(0, 0, 0);

void Voicings(ExerciseSettings& s) {
  s.akk_form = 1;
  s.oktav_ber = 1;
}

void Groups(ExerciseSettings& s) { s.best_art = 1; }

/// Klangtypen 4 and 5 with all groups hold 40 chords: a full board.
const std::vector<int> kFullKlangtypen = {4, 5};
const std::vector<int> kAllGroups = {1, 2, 3, 4, 5, 6, 7, 8};

TEST(WorksheetScreen, ShowsNothingBeforeItsStartTimerFires) {
  WorksheetFixture p;
  p.ToSettings();
  p.settings_screen().cmdOK.Press();
  ASSERT_NE(p.program.arbeitsblatt1(), nullptr);
  EXPECT_FALSE(p.worksheet().visible);
  EXPECT_EQ(p.worksheet().start.interval, 200);
  p.loop.Advance(199);
  EXPECT_FALSE(p.worksheet().visible);
  p.loop.Advance(1);
  EXPECT_TRUE(p.worksheet().visible);
  EXPECT_FALSE(p.worksheet().start.enabled);
  EXPECT_EQ(p.worksheet().pointer, Form::Pointer::kDefault);
}

TEST(WorksheetScreen, BearsTheNameOfTheExercise) {
  WorksheetFixture p;
  p.Begin();
  EXPECT_EQ(p.worksheet().caption, "[348s]");
}

TEST(WorksheetScreen, OpensMaximisedAndStaysSo) {
  WorksheetFixture p;
  p.Begin();
  EXPECT_EQ(p.worksheet().window_state, Form::WindowState::kMaximised);
  p.worksheet().window_state = Form::WindowState::kNormal;
  p.worksheet().Form_Resize();
  EXPECT_EQ(p.worksheet().window_state, Form::WindowState::kMaximised);
}

TEST(WorksheetScreen, WorksWithoutAnyTexts) {
  WorksheetFixture p;
  p.languages.no_list = true;
  p.Begin();
  const Arbeitsblatt1& w = p.worksheet();
  EXPECT_EQ(w.caption, "VOID");
  for (const Control* control : std::initializer_list<const Control*>{
           &w.LbAkkGrp, &w.true_false[0], &w.true_false[1], &w.wieder, &w.wieder2, &w.zurueck,
           &w.ergebnis_anz[0], &w.ergebnis_anz[1], &w.ergebnis_anz[2], &w.cmd_test_aus,
           &w.cmd_test_ein, &w.WaitMeld}) {
    EXPECT_EQ(control->caption, "VOID") << control->Id();
  }
  EXPECT_EQ(w.nrakk[0].caption, "VOIDVOID");
  EXPECT_EQ(w.nrakk[1].caption, "VOID 1");
  EXPECT_EQ(w.CmdNextAufg.caption, "VOID 1");
  p.PlayTask();
  EXPECT_NE(p.Wrong(), 0);
  EXPECT_EQ(w.ergebnis[1].caption, "VOID");
  EXPECT_TRUE(p.Repeat());
  const int right = p.Right();
  EXPECT_EQ(w.akk_lfdnr[1].caption, "VOID " + std::to_string(right));
  EXPECT_EQ(p.run().lauf_status, LaufStatus::kAufgabeFertig);
  EXPECT_EQ(w.CmdNextAufg.caption, "VOID");
  EXPECT_TRUE(p.worksheet().zurueck.Press());
  EXPECT_TRUE(p.settings_screen().visible);
  EXPECT_EQ(p.documents.Latest().saves, 1);
  EXPECT_TRUE(p.messages.warnings.empty());
}

TEST(WorksheetScreen, WorksWithoutAnyTextsWhereGroupsAreNamed) {
  WorksheetFixture p;
  p.languages.no_list = true;
  p.Begin(Groups, {7}, {2, 5});
  EXPECT_EQ(p.worksheet().akk_group[2].caption, "VOID");
  p.PlayTask();
  EXPECT_NE(p.Right(), 0);
  EXPECT_EQ(p.worksheet().ergebnis[1].caption, "VOID");
  EXPECT_EQ(p.run().lauf_status, LaufStatus::kAufgabeFertig);
}

TEST(WorksheetScreen, TakesItsCaptionsFromTheLanguage) {
  WorksheetFixture p;
  p.Begin();
  const Arbeitsblatt1& w = p.worksheet();
  EXPECT_EQ(w.LbAkkGrp.caption, "[56s]");
  EXPECT_EQ(w.nrakk[0].caption, "[95s][700s]");
  for (int i = 1; i <= 4; ++i) {
    EXPECT_EQ(w.nrakk[i].caption, "[426s] " + std::to_string(i));
    EXPECT_EQ(w.akk_lfdnr[i].caption, "[374s]");
  }
  EXPECT_EQ(w.true_false[0].caption, "[468s]");
  EXPECT_EQ(w.true_false[1].caption, "[232s]");
  EXPECT_EQ(w.wieder.caption, "[629s]");
  EXPECT_EQ(w.wieder2.caption, "[632s]");
  EXPECT_EQ(w.CmdNextAufg.caption, "[129s] 1");
  EXPECT_EQ(w.LbNextAufg.caption, "[129s] 1");
  EXPECT_EQ(w.zurueck.caption, "[640s]");
  EXPECT_EQ(w.ergebnis_anz[0].caption, "[566s]");
  EXPECT_EQ(w.ergebnis_anz[1].caption, "[130s]");
  EXPECT_EQ(w.ergebnis_anz[2].caption, "[638s]");
  EXPECT_EQ(w.cmd_test_aus.caption, "[552s]");
  EXPECT_EQ(w.cmd_test_ein.caption, "[551s]");
  EXPECT_EQ(w.WaitMeld.caption, "[726s]");
}

TEST(WorksheetScreen, BeginsAllCountersAtNought) {
  WorksheetFixture p;
  p.Begin();
  EXPECT_EQ(p.worksheet().zaehler[0].caption, "0");
  EXPECT_EQ(p.worksheet().zaehler[1].caption, "0");
  EXPECT_EQ(p.worksheet().whlgzaehler.caption, "0");
}

TEST(WorksheetScreen, LaysTheTilesOutInRowsOfSixByNotationAndKind) {
  struct Case {
    int akk_anzeige;
    int akk_form;
    int height;
    int step;
  };
  for (const Case& c :
       {Case{0, 1, 129, 176}, Case{0, 0, 84, 136}, Case{1, 1, 50, 176}, Case{1, 0, 50, 136}}) {
    WorksheetFixture p;
    p.Begin(
        [&](ExerciseSettings& s) {
          if (c.akk_form == 1) Voicings(s);
          s.akk_anzeige = c.akk_anzeige;
        },
        kFullKlangtypen, kAllGroups);
    const int tiles = c.akk_form == 1 ? 16 : 24;
    ASSERT_EQ(p.program.board().akk_zahl, tiles);
    const Arbeitsblatt1& w = p.worksheet();
    for (int e = 1; e <= tiles; ++e) {
      const int row = (e - 1) / 6;
      EXPECT_EQ(w.klang_pan[e].height, c.height) << e;
      EXPECT_EQ(w.klang_pan[e].top, row * c.step + 40) << e;
      EXPECT_TRUE(w.klang_pan[e].visible) << e;
      EXPECT_EQ(w.Akkbez[e].visible, c.akk_anzeige == 0) << e;
      if (c.akk_anzeige == 0) {
        EXPECT_EQ(w.Akkbez[e].top, row * c.step) << e;
      }
    }
    for (int e = tiles + 1; e <= 24; ++e) {
      EXPECT_FALSE(w.klang_pan[e].visible) << e;
      EXPECT_FALSE(w.Akkbez[e].visible) << e;
      EXPECT_FALSE(w.jz_kl[e].Reachable()) << e;
    }
  }
}

TEST(WorksheetScreen, GivesFullBoardsFourRowsAndVoicingsThree) {
  WorksheetFixture full;
  full.Begin({}, kFullKlangtypen, kAllGroups);
  EXPECT_EQ(full.worksheet().klang_pan[18].top, 2 * 136 + 40);
  EXPECT_EQ(full.worksheet().klang_pan[19].top, 448);  // 3 * 136 + 40
  EXPECT_EQ(full.worksheet().klang_pan[24].top, 448);
  WorksheetFixture voicings;
  voicings.Begin(Voicings, {}, kAllGroups);
  EXPECT_EQ(voicings.worksheet().klang_pan[12].top, 176 + 40);
  EXPECT_EQ(voicings.worksheet().klang_pan[13].top, 392);  // 2 * 176 + 40
  EXPECT_EQ(voicings.worksheet().klang_pan[16].top, 392);
}

TEST(WorksheetScreen, BeginsWithAllTilesClosed) {
  WorksheetFixture p;
  p.Begin();
  const Arbeitsblatt1& w = p.worksheet();
  for (int e = 1; e <= 10; ++e) {
    EXPECT_FALSE(w.jz_kl[e].enabled) << e;
    EXPECT_EQ(w.jz_kl[e].back_color, kGrey) << e;
    EXPECT_EQ(w.klang_pan[e].back_color, kRed) << e;
  }
  EXPECT_TRUE(p.OpenChoices().empty());
}

TEST(WorksheetScreen, NumbersItsTilesAsTheSolutionsAreNumbered) {
  for (const int akk_anzeige : {0, 1}) {
    WorksheetFixture p;
    p.Begin([&](ExerciseSettings& s) { s.akk_anzeige = akk_anzeige; });
    for (int e = 1; e <= 10; ++e) EXPECT_EQ(p.worksheet().jz_kl[e].number, e);
    p.PlayTask();
    const int right = p.Right();
    EXPECT_EQ(p.worksheet().akk_lfdnr[1].caption, "[374s] " + std::to_string(right));
    EXPECT_EQ(p.worksheet().jz_kl[right].number, right);
  }
}

TEST(WorksheetScreen, ShowsNotationAndSymbolOfEachChord) {
  WorksheetFixture p;
  p.Begin({}, {3, 4}, {7});
  const Arbeitsblatt1& w = p.worksheet();
  for (int e = 1; e <= 11; ++e) {
    const int klang = e <= 10 ? e : 23;  // ten triads, then row 13 of Klangtyp 4
    EXPECT_EQ(w.jz_kl[e].image, (PictureId{kNotation, klang})) << e;
    EXPECT_EQ(w.Akkbez[e].image, (PictureId{kSymbol, klang})) << e;
  }
  EXPECT_EQ(w.jz_kl[11].caption, "Cø");
}

TEST(WorksheetScreen, ShowsSymbolsAloneWhenAskedTo) {
  WorksheetFixture p;
  p.Begin([](ExerciseSettings& s) { s.akk_anzeige = 1; });
  for (int e = 1; e <= 10; ++e) {
    EXPECT_EQ(p.worksheet().jz_kl[e].image, (PictureId{kSymbol, e})) << e;
    EXPECT_FALSE(p.worksheet().Akkbez[e].visible) << e;
  }
}

TEST(WorksheetScreen, TakesThePicturesOfVoicingsFromTheirOwnStore) {
  WorksheetFixture p;
  p.Begin(Voicings, {}, {3});  // rows 20, 21, 52 and 53
  const Arbeitsblatt1& w = p.worksheet();
  int e = 0;
  for (const int klang : {90, 91, 122, 123}) {
    ++e;
    EXPECT_EQ(w.jz_kl[e].image, (PictureId{kNotation, klang}));
    EXPECT_EQ(w.Akkbez[e].image, (PictureId{kSymbol, klang}));
  }
}

TEST(WorksheetScreen, UnloadsThePictureStoreOnceTheTilesHaveTheirPictures) {
  for (const int form : {0, 1}) {
    Stage stage;
    stage.settings.akk_form = form;
    stage.settings.oktav_ber = 1;
    stage.settings.klang_ausw_ar[1] = form == 1 ? 8 : 3;
    stage.settings.grp_anzahl = 1;
    stage.settings.grp_ausw_ar[1] = 3;
    // The other store is not touched by the run.
    stage.pictures.For(1 - form).jbez(form == 0 ? 71 : 1);
    stage.Begin();
    EXPECT_FALSE(stage.pictures.For(form).loaded());
    EXPECT_TRUE(stage.pictures.For(1 - form).loaded());
    EXPECT_EQ(stage.sheet.jz_kl[1].image.set, kNotation);
  }
}

TEST(WorksheetScreen, GivesTheFramesTheirSizesInChordMode) {
  WorksheetFixture p;
  p.Begin();
  const Arbeitsblatt1& w = p.worksheet();
  EXPECT_EQ(w.aktionsbox.height, 545);
  EXPECT_EQ(w.aktionsbox.width, 193);
  EXPECT_TRUE(w.jzakk_box[0].visible);
  EXPECT_FALSE(w.jzakk_box[1].visible);
  for (int i = 1; i <= 4; ++i) {
    EXPECT_EQ(w.ergebnis[i].width, 95);
    EXPECT_EQ(w.ergebnis[i].height, 46);
  }
  EXPECT_EQ(*w.PicUebTyp.width, *w.jzakk_box[0].width + 193);
}

TEST(WorksheetScreen, GivesTheFramesTheirSizesInGroupMode) {
  WorksheetFixture p;
  p.Begin(Groups, {4}, {1, 2, 3});
  const Arbeitsblatt1& w = p.worksheet();
  EXPECT_EQ(w.aktionsbox.height, 545);
  EXPECT_EQ(w.aktionsbox.width, 313);
  EXPECT_FALSE(w.jzakk_box[0].visible);
  EXPECT_TRUE(w.jzakk_box[1].visible);
  EXPECT_EQ(w.jzakk_box[1].height, 545);
  for (int i = 1; i <= 4; ++i) {
    EXPECT_EQ(w.ergebnis[i].width, 169);
    EXPECT_EQ(w.ergebnis[i].height, 41);
  }
  EXPECT_EQ(*w.PicUebTyp.width, *w.jzakk_box[1].width + 313);
}

TEST(WorksheetScreen, NamesTheGroupsOfTheBoardAndHidesTheOthers) {
  WorksheetFixture p;
  p.Begin(Groups, {5, 6}, {1, 3, 5});
  const Arbeitsblatt1& w = p.worksheet();
  for (int g = 1; g <= 8; ++g) {
    EXPECT_EQ(w.akk_group[g].visible, g == 1 || g == 3 || g == 5) << g;
    EXPECT_FALSE(w.akk_group[g].enabled) << g;
  }
  EXPECT_EQ(w.akk_group[1].caption, "[379s]");
  EXPECT_EQ(w.akk_group[3].caption, "[409s]");
  EXPECT_EQ(w.akk_group[5].caption, "[201s]");
}

TEST(WorksheetScreen, ShowsAllEightGroupsByTheirNames) {
  WorksheetFixture p;
  p.Begin(
      [](ExerciseSettings& s) {
        Groups(s);
        Voicings(s);
      },
      {}, kAllGroups);
  const std::vector<std::string> names = {"[379s]", "[380s]", "[409s]", "[200s]",
                                          "[201s]", "[410s]", "[312s]", "[609s]"};
  for (int g = 1; g <= 8; ++g) {
    EXPECT_TRUE(p.worksheet().akk_group[g].visible) << g;
    EXPECT_EQ(p.worksheet().akk_group[g].caption, names[g - 1]) << g;
  }
}

TEST(WorksheetScreen, HidesAChosenGroupOfWhichTheBoardHasNoChord) {
  WorksheetFixture p;
  p.Begin(Groups, {7}, {2, 3, 5});  // no chord of seven notes is of group 3
  EXPECT_TRUE(p.worksheet().akk_group[2].visible);
  EXPECT_FALSE(p.worksheet().akk_group[3].visible);
  EXPECT_TRUE(p.worksheet().akk_group[5].visible);
  p.PlayTask();
  EXPECT_EQ(p.OpenChoices(), (std::vector<int>{2, 5}));
}

TEST(WorksheetScreen, ShowsAsManySlotsAsATaskHasChordsInBothModes) {
  for (const int best_art : {0, 1}) {
    for (int chords = 1; chords <= 4; ++chords) {
      WorksheetFixture p;
      p.Begin(
          [&](ExerciseSettings& s) {
            s.best_art = best_art;
            s.akk_anzahl = chords;
          },
          {4}, {1, 2});
      const Arbeitsblatt1& w = p.worksheet();
      for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(w.nrakk[i].visible, i <= chords);
        EXPECT_FALSE(w.nrakk[i].enabled);
        EXPECT_EQ(w.ergebnis[i].visible, i <= chords);
        EXPECT_EQ(w.ergebnis[i].width, best_art == 0 ? 95 : 169);
        EXPECT_FALSE(w.akk_lfdnr[i].visible);
        EXPECT_FALSE(w.erg[i].visible);
      }
    }
  }
}

TEST(WorksheetScreen, HidesWhatBelongsToTrainingAndTestInFreePractice) {
  WorksheetFixture p;
  p.Begin();
  const Arbeitsblatt1& w = p.worksheet();
  for (const Control* control : std::vector<const Control*>{
           &w.PicUetyp[0], &w.PicUetyp[1], &w.matboxanz, &w.ergebnis_anz[0], &w.ergebnis_anz[1],
           &w.ergebnis_anz[2], &w.stop_uhr, &w.lab_aufgaben, &w.cmd_test_aus, &w.cmd_test_ein}) {
    EXPECT_FALSE(control->visible) << control->Id();
  }
}

TEST(WorksheetScreen, HidesItsNoticeOnceItIsBuilt) {
  WorksheetFixture p;
  p.Begin();
  EXPECT_FALSE(p.worksheet().WaitMeldung.visible);
}

TEST(WorksheetScreen, EnablesWhatMayBeDoneBeforeTheFirstTask) {
  WorksheetFixture p;
  p.Begin();
  const Arbeitsblatt1& w = p.worksheet();
  EXPECT_TRUE(w.CmdNextAufg.Reachable());
  EXPECT_TRUE(w.zurueck.Reachable());
  EXPECT_TRUE(w.cmdHilfe.Reachable());
  EXPECT_FALSE(w.wieder.visible);
  EXPECT_FALSE(w.wieder2.visible);
  EXPECT_FALSE(w.LbNextAufg.visible);
  EXPECT_TRUE(p.OpenSlots().empty());
  EXPECT_EQ(w.zurueck.tag, "OK");
  EXPECT_FALSE(w.zurueck.back_color.has_value());
}

TEST(WorksheetScreen, SetsItsTimers) {
  WorksheetFixture p;
  p.Begin([](ExerciseSettings& s) {
    s.tempo_idx = 6;
    s.akk_anzahl = 3;
  });
  const Arbeitsblatt1& w = p.worksheet();
  EXPECT_EQ(w.spieltimer.interval, 3 * 856);
  EXPECT_EQ(w.WahlAutomat.interval, 1800);
  EXPECT_EQ(w.Uhrzeit.interval, 10000);
  EXPECT_EQ(w.testtimer.interval, 2000);
  EXPECT_TRUE(w.Uhrzeit.enabled);
  EXPECT_FALSE(w.spieltimer.enabled);
  EXPECT_FALSE(w.WahlAutomat.enabled);
  EXPECT_FALSE(w.testtimer.enabled);
  EXPECT_FALSE(w.tonart_Timer.enabled);
  EXPECT_EQ(p.loop.timers(), 1);
}

TEST(WorksheetScreen, TakesTheLengthOfAPlayingFromEveryTempo) {
  const std::vector<int> durations = {4000, 3000, 2000, 1500, 1200, 1000, 856, 750, 666, 600};
  for (int tempo = 0; tempo < 10; ++tempo) {
    for (const int chords : {1, 4}) {
      WorksheetFixture p;
      p.Begin([&](ExerciseSettings& s) {
        s.tempo_idx = tempo;
        s.akk_anzahl = chords;
      });
      EXPECT_EQ(p.worksheet().spieltimer.interval, durations[tempo] * chords);
    }
  }
}

TEST(WorksheetScreen, ShowsTheTimeOfDayAndFollowsIt) {
  WorksheetFixture p;
  p.loop.date = {2026, 11, 21, 9, 5, 0};
  p.Begin();
  EXPECT_EQ(p.worksheet().Uhr.caption, "09:05");
  p.loop.date.minute = 6;
  p.loop.Advance(9999);
  EXPECT_EQ(p.worksheet().Uhr.caption, "09:05");
  p.loop.Advance(1);
  EXPECT_EQ(p.worksheet().Uhr.caption, "09:06");
  p.loop.date.hour = 10;
  p.loop.Advance(10000);
  EXPECT_EQ(p.worksheet().Uhr.caption, "10:06");
}

TEST(WorksheetScreen, AsksForHelpWithTheHelpKey) {
  WorksheetFixture p;
  p.Begin();
  p.worksheet().cmdHilfe.Press();
  EXPECT_EQ(p.system.keys, std::vector<std::string>{"{F1}"});
}

TEST(WorksheetScreen, HidesAndShowsTheStateOfATestWithTwoButtons) {
  WorksheetFixture p;
  p.Begin();
  Arbeitsblatt1& w = p.worksheet();
  w.cmd_test_aus.visible = w.stop_uhr.visible = w.lab_aufgaben.visible = true;
  EXPECT_TRUE(w.cmd_test_aus.Press());
  EXPECT_FALSE(w.stop_uhr.visible);
  EXPECT_FALSE(w.lab_aufgaben.visible);
  EXPECT_FALSE(w.cmd_test_aus.visible);
  EXPECT_TRUE(w.cmd_test_ein.Press());
  EXPECT_TRUE(w.stop_uhr.visible);
  EXPECT_TRUE(w.lab_aufgaben.visible);
  EXPECT_TRUE(w.cmd_test_aus.visible);
  EXPECT_FALSE(w.cmd_test_ein.visible);
}

TEST(WorksheetScreen, SeedsTheGeneratorFromTheClockWithEachRun) {
  WorksheetFixture p;
  p.Begin();
  ASSERT_EQ(p.random.seeds.size(), 1u);
  EXPECT_FLOAT_EQ(p.random.seeds[0], p.loop.Clock());
  p.worksheet().zurueck.Press();
  p.loop.Advance(5000);
  p.StartRun();
  ASSERT_EQ(p.random.seeds.size(), 2u);
  EXPECT_FLOAT_EQ(p.random.seeds[1], p.loop.Clock());
  EXPECT_TRUE(p.random.restarts.empty());
}

TEST(WorksheetScreen, DrawsNothingForABoardThatNeedsNoChoice) {
  WorksheetFixture p;
  p.Begin();
  EXPECT_EQ(p.random.draws, 0);
}

TEST(WorksheetScreen, LaysTheSolutionOutHiddenWhenATaskIsDrawn) {
  for (const int anzeige : {0, 1}) {
    WorksheetFixture p;
    p.Begin([&](ExerciseSettings& s) {
      s.akk_anzahl = 2;
      s.akk_anzeige = anzeige;
    });
    p.PlayTask();
    const Arbeitsblatt1& w = p.worksheet();
    for (int slot : {1, 2}) {
      const int e = p.Asked(slot);
      EXPECT_FALSE(w.erg[slot].visible);
      EXPECT_FALSE(w.akk_lfdnr[slot].visible);
      EXPECT_EQ(w.erg[slot].image, (PictureId{kSymbol, e}));  // triad e has the number e
      EXPECT_EQ(w.akk_lfdnr[slot].caption, "[374s] " + std::to_string(e));
      EXPECT_EQ(w.ergebnis[slot].caption, "");
      EXPECT_EQ(w.ergebnis[slot].back_color, kBlack);
    }
  }
}

TEST(WorksheetScreen, UsesNoPictureInGroupMode) {
  WorksheetFixture p;
  p.Begin(
      [](ExerciseSettings& s) {
        Groups(s);
        s.akk_anzahl = 4;
      },
      {4, 5, 6, 7}, {1, 2, 3, 4, 5});
  for (int task = 0; task < 3; ++task) {
    p.PlayTask();
    while (p.run().akk_nr <= 4) {
      for (int slot = 1; slot <= 4; ++slot) {
        EXPECT_FALSE(p.worksheet().erg[slot].visible);
        EXPECT_FALSE(p.worksheet().akk_lfdnr[slot].visible);
        EXPECT_EQ(p.worksheet().erg[slot].image, PictureId());
      }
      if (task % 2 == 0) {
        p.Right();
      } else {
        p.Wrong();
      }
    }
  }
  for (int slot = 1; slot <= 4; ++slot) {
    EXPECT_FALSE(p.worksheet().erg[slot].visible);
    EXPECT_FALSE(p.worksheet().akk_lfdnr[slot].visible);
    EXPECT_NE(p.worksheet().ergebnis[slot].caption, "");
  }
}

TEST(WorksheetScreen, EmptiesTheMarksWithTheNextTask) {
  WorksheetFixture p;
  p.Begin([](ExerciseSettings& s) { s.akk_anzahl = 2; });
  p.PlayTask();
  p.Wrong();
  p.FinishTask();
  EXPECT_TRUE(p.worksheet().erg[1].visible);
  p.worksheet().CmdNextAufg.Press();
  for (int slot : {1, 2}) {
    EXPECT_FALSE(p.worksheet().erg[slot].visible);
    EXPECT_FALSE(p.worksheet().akk_lfdnr[slot].visible);
    EXPECT_EQ(p.worksheet().ergebnis[slot].caption, "");
    EXPECT_EQ(p.worksheet().ergebnis[slot].back_color, kBlack);
  }
}

TEST(WorksheetScreen, StandsUnderItsFrames) {
  WorksheetFixture p;
  p.Begin();
  Arbeitsblatt1& w = p.worksheet();
  p.PlayTask();
  ASSERT_TRUE(w.jz_kl[1].Reachable());
  w.jzakk_box[0].enabled = false;
  EXPECT_TRUE(p.OpenChoices().empty());
  w.jzakk_box[0].enabled = true;
  w.aktionsbox.enabled = false;
  EXPECT_FALSE(w.wieder.Reachable());
  EXPECT_FALSE(w.zurueck.Reachable());
}

TEST(WorksheetScreen, SendsTheOneTimbreAgainWhenItCloses) {
  WorksheetFixture p;
  p.Begin([](ExerciseSettings& s) { s.patch_ar = {11, 12, 13, 14, 15, 16, 17, 18}; });
  p.output.Forget();
  p.worksheet().zurueck.Press();
  ASSERT_EQ(p.output.sent.size(), 1u);
  EXPECT_TRUE(p.output.sent[0].IsProgram());
  EXPECT_EQ(p.output.sent[0].channel(), 0);
  EXPECT_EQ(p.output.sent[0].data1, 11);
}

TEST(WorksheetScreen, SendsAllTimbresAgainWhenEachNoteHasItsOwn) {
  WorksheetFixture p;
  p.Begin([](ExerciseSettings& s) {
    s.klangfarb_art = 1;
    s.patch_ar = {11, 12, 13, 14, 15, 16, 17, 18};
  });
  p.output.Forget();
  p.worksheet().zurueck.Press();
  ASSERT_EQ(p.output.sent.size(), 8u);
  for (int channel = 0; channel < 8; ++channel) {
    EXPECT_TRUE(p.output.sent[channel].IsProgram());
    EXPECT_EQ(p.output.sent[channel].channel(), channel);
    EXPECT_EQ(p.output.sent[channel].data1, 11 + channel);
  }
}

TEST(WorksheetScreen, SilencesTheOutputBeforeItSendsTheTimbres) {
  WorksheetFixture p;
  p.Begin();
  p.PlayTask();
  p.output.Forget();
  p.worksheet().zurueck.Press();
  // Leaving resets the output, closing the screen resets it once more, then comes the program.
  EXPECT_EQ(p.output.befehle,
            (std::vector{MidiBefehl::kStopp, MidiBefehl::kSchliessen, MidiBefehl::kOeffnen,
                         MidiBefehl::kStopp, MidiBefehl::kSchliessen, MidiBefehl::kOeffnen,
                         MidiBefehl::kSenden}));
}

TEST(WorksheetScreen, ListensToTheQueueWithoutActing) {
  WorksheetFixture p;
  p.Begin();
  p.PlayTask();
  const std::vector<int> open = p.OpenChoices();
  p.worksheet().midi_QueueEmpty();
  EXPECT_EQ(p.OpenChoices(), open);
  EXPECT_TRUE(p.worksheet().zurueck.Reachable());
}

/// What a reader of the screen calls the tiles.
std::vector<std::string> TileNames(WorksheetFixture& p) {
  std::vector<std::string> names;
  for (int e = 1; e <= p.program.board().akk_zahl; ++e) {
    names.push_back(p.worksheet().jz_kl[e].spoken);
  }
  return names;
}

TEST(SpokenTiles, SaySymbolAndNotesAndWhetherTwoHandsPlay) {
  WorksheetFixture triads;
  triads.Begin();
  EXPECT_EQ(TileNames(triads)[1], "Cmin, C Eb G");
  WorksheetFixture voicings;
  voicings.languages.languages[0].second.words = {{"9681s", "Voicing"}};
  voicings.Begin([](ExerciseSettings& s) { s.akk_form = 1; }, {}, {5, 8});
  const std::string symbol(ChordOfKlang(voicings.program.board()[1].klang).symbol);
  EXPECT_EQ(TileNames(voicings)[0].find(symbol + ", Voicing, C "), 0U) << TileNames(voicings)[0];
}

TEST(SpokenTiles, SayNoNotesThatTheTilesDoNotShow) {
  WorksheetFixture p;
  p.Begin([](ExerciseSettings& s) { s.akk_anzeige = 1; });
  EXPECT_EQ(TileNames(p)[1], "Cmin");
}

TEST(SpokenTiles, AreDifferentOnEachBoardAlsoWhereTwoChordsLookAlike) {
  int with_number = 0;
  for (const auto& [akk_form, akk_anzeige] : {std::pair(0, 0), std::pair(0, 1), std::pair(1, 0)}) {
    for (int board = 1; board <= 40; ++board) {
      WorksheetFixture p;
      p.ToSettings();
      p.Select({4, 5, 6, 7}, {1, 2, 3, 4, 5, 6, 7, 8});
      p.settings().akk_form = akk_form;
      p.settings().akk_anzeige = akk_anzeige;
      p.random.Restart(board);
      p.StartRun();
      const std::vector<std::string> names = TileNames(p);
      const std::set<std::string> different(names.begin(), names.end());
      EXPECT_EQ(different.size(), names.size()) << akk_form << akk_anzeige << " " << board;
      for (std::size_t i = 0; i < names.size(); ++i) {
        with_number += names[i].ends_with(", " + std::to_string(i + 1)) ? 1 : 0;
      }
    }
  }
  EXPECT_GT(with_number, 0);
}

}  // namespace
}  // namespace vmod17

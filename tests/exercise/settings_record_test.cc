// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "exercise/settings_record.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace vmod17 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

int ArpDauer(int tempo_idx, int arp_tempo_idx) {
  AppState state;
  state.FillTables();
  ExerciseSettings settings;
  settings.tempo_idx = tempo_idx;
  settings.arp_tempo_idx = arp_tempo_idx;
  settings.RechneArpDauer(state);
  return settings.arp_dauer;
}

TEST(ArpDauer, Is500AtTheSlowestTempoAndDivisor) { EXPECT_EQ(ArpDauer(0, 0), 500); }

TEST(ArpDauer, RoundsAHalfUpToTheEvenNumber) { EXPECT_EQ(ArpDauer(1, 2), 188); }

TEST(ArpDauer, RoundsAHalfDownToTheEvenNumber) { EXPECT_EQ(ArpDauer(3, 3), 62); }

TEST(ArpDauer, RoundsTheFastestTempoAndDivisorTo19) { EXPECT_EQ(ArpDauer(9, 4), 19); }

TEST(ArpDauer, FollowsTheTempoAndTheDivisor) {
  // By tempo; in each row divisors 8, 12, 16, 24, 32.
  constexpr std::array<std::array<int, 5>, 10> kExpected = {{{500, 333, 250, 167, 125},
                                                             {375, 250, 188, 125, 94},
                                                             {250, 167, 125, 83, 62},
                                                             {188, 125, 94, 62, 47},
                                                             {150, 100, 75, 50, 38},
                                                             {125, 83, 62, 42, 31},
                                                             {107, 71, 54, 36, 27},
                                                             {94, 62, 47, 31, 23},
                                                             {83, 56, 42, 28, 21},
                                                             {75, 50, 38, 25, 19}}};
  for (int tempo = 0; tempo < 10; ++tempo) {
    for (int divisor = 0; divisor < 5; ++divisor) {
      EXPECT_EQ(ArpDauer(tempo, divisor), kExpected[tempo][divisor]) << tempo << ' ' << divisor;
    }
  }
}

TEST(Tonraum, HasTheBoundsOfItsEntry) {
  struct Row {
    int oktav_ber, j, ton_unten, ton_oben;
  };
  for (const Row& row : {Row{0, 0, 36, 60}, Row{0, 1, 48, 72}, Row{0, 2, 60, 84}, Row{0, 3, 72, 96},
                         Row{1, 0, 36, 72}, Row{1, 1, 48, 84}, Row{1, 2, 60, 96}, Row{2, 0, 36, 84},
                         Row{2, 1, 48, 96}, Row{3, 0, 36, 96}}) {
    ExerciseSettings settings;
    settings.oktav_ber = row.oktav_ber;
    settings.SetzeTonraum(row.j);
    EXPECT_EQ(settings.ton_unten, row.ton_unten) << row.oktav_ber << ' ' << row.j;
    EXPECT_EQ(settings.ton_oben, row.ton_oben) << row.oktav_ber << ' ' << row.j;
  }
}

TEST(ExerciseSettings, HasNoSelectionAtFirst) {
  const ExerciseSettings settings;
  EXPECT_THAT(settings.Klangtypen(), IsEmpty());
  EXPECT_THAT(settings.Gruppen(), IsEmpty());
  EXPECT_EQ(settings.LetzterKlangtyp(), 0);
}

TEST(ExerciseSettings, GivesTheSelectionFromElement1On) {
  ExerciseSettings settings;
  settings.klang_ausw_ar = {0, 3, 5, 7, 0, 0, 0};
  settings.klang_anzahl = 3;
  settings.grp_ausw_ar = {0, 2, 5, 0, 0, 0, 0, 0, 0};
  settings.grp_anzahl = 2;
  EXPECT_THAT(settings.Klangtypen(), ElementsAre(3, 5, 7));
  EXPECT_THAT(settings.Gruppen(), ElementsAre(2, 5));
  EXPECT_EQ(settings.LetzterKlangtyp(), 7);
}

TEST(ExerciseSettings, BeginsWithAPianoAndAWoodwindChoir) {
  EXPECT_THAT(kPatchVorgabe, ElementsAre(0, 70, 68, 71, 73, 73, 72, 74));
}

}  // namespace
}  // namespace vmod17

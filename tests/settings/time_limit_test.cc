// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "settings/time_limit.h"

#include <gtest/gtest.h>

namespace vmod17 {
namespace {

constexpr int kPause = 1800;  // ms before each task

TestRest Length(int mat_posten, int akk_anzahl, int spiel_ms) {
  return BemissTest({mat_posten, akk_anzahl, spiel_ms, kPause});
}

void ExpectLength(const TestRest& test, int aufgaben, int sekunden) {
  EXPECT_EQ(test.test_aufgaben, aufgaben);
  EXPECT_EQ(test.rest_aufgaben, aufgaben);
  EXPECT_EQ(test.rest_sek, sekunden);
}

TEST(TestLength, HearsEveryChordAboutFourTimes) {
  // 96 + 172 + 192 = 460 seconds.
  ExpectLength(Length(24, 1, 1000), 96, 460);
  // 96 + 43 + 192 = 331.
  ExpectLength(Length(24, 4, 4000), 24, 340);
  // 28 tasks by 3 chords are 9.33: 10 of them, and 120 + 18 + 60 = 198.
  ExpectLength(Length(7, 3, 12000), 10, 200);
}

TEST(TestLength, RoundsTheTasksUpToAnEvenNumber) {
  EXPECT_EQ(Length(1, 3, 100000).test_aufgaben, 2);  // 1.33
  EXPECT_EQ(Length(5, 4, 20000).test_aufgaben, 6);   // 5
  EXPECT_EQ(Length(4, 3, 25000).test_aufgaben, 6);   // 5.33
  EXPECT_EQ(Length(11, 4, 8000).test_aufgaben, 12);  // 11
}

TEST(TestLength, LengthensAShortTest) {
  // 12 tasks: 12 + 21 + 24 = 57 seconds. 18 tasks: 18 + 32 + 36 = 86.
  ExpectLength(Length(3, 1, 1000), 18, 90);
}

TEST(TestLength, ShortensALongTest) {
  // 96 tasks: 288 + 172 + 192 = 652 seconds. 72 tasks: 216 + 129 + 144 = 489.
  ExpectLength(Length(24, 1, 3000), 72, 490);
  // 24 tasks: 384 + 43 + 192 = 619. 18 tasks: 288 + 32 + 144 = 464.
  ExpectLength(Length(24, 4, 16000), 18, 470);
}

TEST(TestLength, CorrectsOnlyOnce) {
  // 72 tasks: 576 + 129 + 144 = 849 seconds, still too long.
  ExpectLength(Length(24, 1, 8000), 72, 850);
  // 18 tasks of 600 ms: 10 + 32 + 36 = 78, still too short.
  ExpectLength(Length(3, 1, 600), 18, 80);
}

TEST(TestLength, CorrectsBelow180AndAbove600SecondsOnly) {
  ExpectLength(Length(24, 1, 2458), 96, 600);  // 235 + 172 + 192 = 599
  ExpectLength(Length(24, 1, 2469), 72, 450);  // 237 + 172 + 192 = 601; 177 + 129 + 144 = 450
  ExpectLength(Length(3, 1, 10500), 12, 180);  // 126 + 21 + 24 = 171
  ExpectLength(Length(3, 1, 10499), 18, 260);  // 125 + 21 + 24 = 170; 188 + 32 + 36 = 256
}

TEST(TestLength, RoundsHalvesToEvenWhenItCorrects) {
  EXPECT_EQ(Length(5, 2, 60000).test_aufgaben, 8);    // 10 / 4 x 3 = 7.5
  EXPECT_EQ(Length(7, 2, 60000).test_aufgaben, 10);   // 14 / 4 x 3 = 10.5
  EXPECT_EQ(Length(3, 2, 120000).test_aufgaben, 4);   // 6 / 4 x 3 = 4.5
  EXPECT_EQ(Length(1, 2, 400000).test_aufgaben, 2);   // 2 / 4 x 3 = 1.5
  EXPECT_EQ(Length(11, 2, 30000).test_aufgaben, 16);  // 22 / 4 x 3 = 16.5
  EXPECT_EQ(Length(5, 2, 2000).test_aufgaben, 16);    // 10 / 4 x 6 = 15, made even
}

TEST(TestLength, CutsListeningAndPausesToWholeSecondsEachByItself) {
  EXPECT_EQ(TestdauerRechnen({1, 1, 4900, 4900}, 1), 10);  // 4 + 4 + 2, not 11.8
  EXPECT_EQ(TestdauerRechnen({1, 1, 5000, 4900}, 1), 20);  // 5 + 4 + 2
}

TEST(TestLength, GivesTwoSecondsForEachAnswer) {
  EXPECT_EQ(TestdauerRechnen({1, 4, 0, 0}, 5), 40);
  EXPECT_EQ(TestdauerRechnen({1, 1, 0, 0}, 5), 10);
}

TEST(TestLength, IsEvenAndAMultipleOfTenSecondsForEveryTest) {
  for (int n = 1; n <= 24; ++n) {
    for (int akk_anzahl = 1; akk_anzahl <= 4; ++akk_anzahl) {
      for (const int tempo : {4000, 3000, 2000, 1500, 1200, 1000, 856, 750, 666, 600}) {
        const TestRest test = Length(n, akk_anzahl, tempo * akk_anzahl);
        EXPECT_EQ(test.test_aufgaben % 2, 0);
        EXPECT_GT(test.test_aufgaben, 0);
        EXPECT_EQ(test.rest_sek % 10, 0);
        EXPECT_GT(test.rest_sek, 0);
        // The bag of half a test has room for every chord of the board.
        EXPECT_GE(test.test_aufgaben * akk_anzahl / 2, n) << n << ", " << akk_anzahl;
      }
    }
  }
}

TestRest Left(int rest_sek) {
  TestRest test;
  test.rest_sek = rest_sek;
  return test;
}

TEST(TestTime, GoesDownWithEachBeat) {
  TestRest test = Left(30);
  EXPECT_TRUE(test.Zaehle(10));
  EXPECT_TRUE(test.Zaehle(10));
  EXPECT_EQ(test.rest_sek, 10);
}

TEST(TestTime, StandsFromTheFirstWordOnUntilItGoesOn) {
  TestRest test = Left(30);
  test.HalteAn(100);
  test.HalteAn(140);
  for (int beat = 0; beat < 5; ++beat) EXPECT_FALSE(test.Zaehle(10));
  test.SetzeFort(150);
  EXPECT_EQ(test.rest_sek, 30);
  EXPECT_TRUE(test.Zaehle(10)) << "the five beats made up for the fifty seconds";
}

TEST(TestTime, MakesUpForWhatWasLostBetweenTwoBeatsInTheStudentsFavour) {
  TestRest test = Left(30);
  test.HalteAn(101);
  test.SetzeFort(113);
  EXPECT_FALSE(test.Zaehle(10));
  EXPECT_FALSE(test.Zaehle(10)) << "twelve seconds are a whole beat and a broken one";
  EXPECT_TRUE(test.Zaehle(10));
  EXPECT_EQ(test.rest_sek, 20);
}

TEST(TestTime, IsLostOverMidnightToo) {
  TestRest test = Left(30);
  test.HalteAn(86395);
  test.SetzeFort(5);
  EXPECT_EQ(test.gutschrift, 10);
}

TEST(TestTime, LosesNothingWhereItDidNotStand) {
  TestRest test = Left(30);
  test.SetzeFort(500);
  EXPECT_EQ(test.gutschrift, 0);
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "exercise/counters.h"

#include <gtest/gtest.h>

#include <utility>

#include "base/run_time_error.h"

namespace vmod17 {
namespace {

float Read(const Auswertung& counter, int i, int j) {
  float value = -1;
  counter.read(i, j, value);
  return value;
}

int Read(const Ergebnis& best, int i) {
  int value = -1;
  best.read(i, value);
  return value;
}

Auswertung OfTheProgram() {
  Auswertung counter;
  counter.init_arr(24, 3);
  return counter;
}

Ergebnis BestOfTheProgram() {
  Ergebnis best;
  best.init_arr(24);
  return best;
}

/// The error number of an access, or 0.
template <typename Call>
int ErrorOf(const Call& call) {
  try {
    call();
    return 0;
  } catch (const RunTimeError& error) {
    return error.number();
  }
}

TEST(Auswertung, BeginsWithItemsAndColumnsFromZeroToTheirBoundsAllZero) {
  const Auswertung counter = OfTheProgram();
  EXPECT_TRUE(counter.allocated());
  for (int i = 0; i <= 24; ++i) {
    for (int j = 0; j <= 3; ++j) EXPECT_EQ(Read(counter, i, j), 0) << i << ", " << j;
  }
}

TEST(Auswertung, IsNotAllocatedBeforeItsFirstInit) { EXPECT_FALSE(Auswertung().allocated()); }

TEST(Auswertung, RoundsItsBoundsHalvesToEven) {
  Auswertung counter;
  counter.init_arr(24.5f, 2.5f);
  EXPECT_EQ(Read(counter, 24, 2), 0);
  EXPECT_EQ(ErrorOf([&] { Read(counter, 25, 0); }), ErrorNumber::kOutOfRange);
  EXPECT_EQ(ErrorOf([&] { Read(counter, 0, 3); }), ErrorNumber::kOutOfRange);
  counter.init_arr(23.5f, 3.5f);
  EXPECT_EQ(Read(counter, 24, 4), 0);
  EXPECT_EQ(ErrorOf([&] { Read(counter, 24, 5); }), ErrorNumber::kOutOfRange);
}

TEST(Auswertung, LosesItsContentsWithANewInit) {
  Auswertung counter = OfTheProgram();
  counter.Save(7, 1, -12);
  counter.init_arr(24, 3);
  EXPECT_EQ(Read(counter, 7, 1), 0);
}

TEST(Auswertung, KeepsWhatIsSaved) {
  Auswertung counter = OfTheProgram();
  counter.Save(24, 3, 2.5f);
  counter.Save(1, 0, -16);
  EXPECT_EQ(Read(counter, 24, 3), 2.5f);
  EXPECT_EQ(Read(counter, 1, 0), -16);
  EXPECT_EQ(Read(counter, 1, 1), 0);
}

TEST(Auswertung, IncrementsOneCellOnly) {
  Auswertung counter = OfTheProgram();
  counter.Increment(5, 2);
  counter.Increment(5, 2);
  EXPECT_EQ(Read(counter, 5, 2), 2);
  for (int j : {0, 1, 3}) EXPECT_EQ(Read(counter, 5, j), 0) << j;
  EXPECT_EQ(Read(counter, 4, 2), 0);
  EXPECT_EQ(Read(counter, 6, 2), 0);
}

TEST(Auswertung, AddsToColumnOneOnly) {
  Auswertung counter = OfTheProgram();
  counter.Add(5, -16);
  counter.Add(5, -8);
  EXPECT_EQ(Read(counter, 5, 1), -24);
  for (int j : {0, 2, 3}) EXPECT_EQ(Read(counter, 5, j), 0) << j;
}

TEST(Auswertung, KeepsTheTwoLowestValuesTheLowestInColumnOne) {
  Auswertung counter = OfTheProgram();
  counter.Clear();
  const auto expect = [&](float second, float lowest) {
    EXPECT_EQ(Read(counter, 3, 0), second);
    EXPECT_EQ(Read(counter, 3, 1), lowest);
  };
  counter.SaveBest(3, -4);
  expect(0, -4);
  counter.SaveBest(3, -6);
  expect(-4, -6);
  counter.SaveBest(3, -5);
  expect(-5, -6);
  counter.SaveBest(3, 0);
  expect(-5, -6);
}

TEST(Auswertung, IsNotChangedByAValueEqualToTheSecondLowest) {
  Auswertung counter = OfTheProgram();
  counter.SaveBest(3, -4);
  counter.SaveBest(3, -6);
  counter.SaveBest(3, -4);
  EXPECT_EQ(Read(counter, 3, 0), -4);
  EXPECT_EQ(Read(counter, 3, 1), -6);
}

TEST(Auswertung, TakesASecondLowestValueThatEqualsTheLowest) {
  Auswertung counter = OfTheProgram();
  counter.SaveBest(3, -6);
  counter.SaveBest(3, -4);
  counter.SaveBest(3, -6);
  EXPECT_EQ(Read(counter, 3, 0), -6);
  EXPECT_EQ(Read(counter, 3, 1), -6);
}

TEST(Auswertung, ClearsRowAndColumnZeroAsWell) {
  Auswertung counter = OfTheProgram();
  for (int i : {0, 1, 24}) {
    for (int j : {0, 3}) counter.Save(i, j, 9);
  }
  counter.Clear();
  for (int i : {0, 1, 24}) {
    for (int j : {0, 3}) EXPECT_EQ(Read(counter, i, j), 0) << i << ", " << j;
  }
  EXPECT_TRUE(counter.allocated());
}

TEST(Auswertung, StoresNothing) {
  Auswertung counter = OfTheProgram();
  counter.Save(1, 1, -16);
  counter.store();
  EXPECT_EQ(Read(counter, 1, 1), -16);
}

TEST(Auswertung, RaisesForAnIndexOutsideItsBounds) {
  Auswertung counter = OfTheProgram();
  struct Cell {
    int i, j;
  };
  for (const Cell& at : {Cell{25, 0}, {-1, 0}, {0, 4}, {0, -1}}) {
    EXPECT_EQ(ErrorOf([&] { counter.Save(at.i, at.j, 1); }), ErrorNumber::kOutOfRange);
    EXPECT_EQ(ErrorOf([&] { Read(counter, at.i, at.j); }), ErrorNumber::kOutOfRange);
    EXPECT_EQ(ErrorOf([&] { counter.Increment(at.i, at.j); }), ErrorNumber::kOutOfRange);
  }
  EXPECT_EQ(ErrorOf([&] { counter.Add(25, 1); }), ErrorNumber::kOutOfRange);
  EXPECT_EQ(ErrorOf([&] { counter.SaveBest(25, 1); }), ErrorNumber::kOutOfRange);
}

TEST(Ergebnis, BeginsWithElementsFromZeroToItsBoundAllZero) {
  const Ergebnis best = BestOfTheProgram();
  for (int i = 0; i <= 24; ++i) EXPECT_EQ(Read(best, i), 0) << i;
  EXPECT_EQ(ErrorOf([&] { Read(best, 25); }), ErrorNumber::kOutOfRange);
}

TEST(Ergebnis, KeepsTheGreatestValue) {
  Ergebnis best = BestOfTheProgram();
  best.SaveBest(2, 5);
  best.SaveBest(2, 3);
  EXPECT_EQ(Read(best, 2), 5);
  best.SaveBest(2, 6);
  EXPECT_EQ(Read(best, 2), 6);
  best.SaveBest(2, -1);
  EXPECT_EQ(Read(best, 2), 6);
}

TEST(Ergebnis, LeavesElementZeroWhenItClears) {
  Ergebnis best = BestOfTheProgram();
  for (int i : {0, 1, 24}) best.SaveBest(i, 5);
  best.Clear();
  EXPECT_EQ(Read(best, 0), 5);
  EXPECT_EQ(Read(best, 1), 0);
  EXPECT_EQ(Read(best, 24), 0);
}

TEST(Ergebnis, LosesItsContentsWithANewInit) {
  Ergebnis best = BestOfTheProgram();
  best.SaveBest(0, 5);
  best.init_arr(3);
  EXPECT_EQ(Read(best, 0), 0);
  EXPECT_EQ(ErrorOf([&] { Read(best, 4); }), ErrorNumber::kOutOfRange);
}

TEST(Ergebnis, MayBeClearedBeforeItsFirstInit) {
  Ergebnis best;
  best.Clear();
  best.store();
  EXPECT_FALSE(best.allocated());
}

}  // namespace
}  // namespace vmod17

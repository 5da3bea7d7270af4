// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "worksheet/material.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "support/scripted_random.h"

namespace vmod17 {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Row = std::array<int, 2>;

/// A value that draws `result` from 0 to `count` - 1.
float Draw(int result, int count) {
  return (static_cast<float>(result) + 0.5f) / static_cast<float>(count);
}

class MaterialTest : public ::testing::Test {
 protected:
  MaterialTest() { auswertung.init_arr(24, 3); }

  void Begin(int posten) {
    material.mat_posten = posten;
    material.BeginneTraining(auswertung);
  }
  /// Gives the material these rows of entry and weight, in this order.
  void Rows(const std::vector<Row>& rows) {
    material.mat_posten = static_cast<int>(rows.size());
    material.mat_soll = SollFuer(material.mat_posten);
    material.mat_tab.assign(1, {0, 0});
    material.mat_tab.insert(material.mat_tab.end(), rows.begin(), rows.end());
  }
  std::vector<Row> Rows() const { return {material.mat_tab.begin() + 1, material.mat_tab.end()}; }
  std::vector<int> Bag() const {
    return material.mat_ar.empty()
               ? std::vector<int>()
               : std::vector<int>(material.mat_ar.begin() + 1, material.mat_ar.end());
  }
  int Copies(int entry) const {
    const auto bag = Bag();
    return static_cast<int>(std::ranges::count(bag, entry));
  }
  float Counter(int entry, int column) const {
    float value = -1;
    auswertung.read(entry, column, value);
    return value;
  }

  Material material;
  Auswertung auswertung;
  ScriptedRandom random;
};

// ---- The start of a training ------------------------------------------------------------------

TEST_F(MaterialTest, BeginsATrainingHalfWayWithEveryChordAlike) {
  for (int n = 1; n <= 24; ++n) {
    SCOPED_TRACE(n);
    auswertung.Clear();
    Begin(n);
    const int soll = SollFuer(n);
    EXPECT_EQ(material.mat_soll, soll);
    EXPECT_EQ(material.mat_anzahl, n * soll);
    EXPECT_EQ(material.mat_rest, n * soll);
    EXPECT_EQ(material.Grenze(), n * soll * 2);
    EXPECT_EQ(material.Prozent(), 50);
    ASSERT_EQ(Rows().size(), static_cast<std::size_t>(n));
    std::vector<int> bag;
    for (int e = 1; e <= n; ++e) {
      EXPECT_EQ(material.mat_tab[e], (Row{e, soll}));
      bag.insert(bag.end(), soll, e);
      EXPECT_EQ(Counter(e, 3), 1);
      EXPECT_EQ(Counter(e, 0) + Counter(e, 1) + Counter(e, 2), 0);
    }
    EXPECT_EQ(Bag(), bag);
    for (int e = n + 1; e <= 24; ++e) EXPECT_EQ(Counter(e, 3), 0);
  }
}

TEST_F(MaterialTest, ShowsTheRestInWholePerCentHalvesToEven) {
  Begin(10);
  for (const auto& [rest, percent] : std::vector<std::pair<int, int>>{
           {80, 100}, {79, 99}, {40, 50}, {16, 20}, {15, 19}, {6, 8}, {2, 2}, {1, 1}, {0, 0}}) {
    material.mat_rest = rest;  // of 80
    EXPECT_EQ(material.Prozent(), percent) << rest;
  }
}

TEST_F(MaterialTest, WritesAnEntryAsOftenAsWeightAndOffsetSay) {
  Rows({{5, 3}, {2, 0}, {7, -2}});
  material.MaterialFuellen(0);
  EXPECT_THAT(Bag(), ElementsAre(5, 5, 5));
  material.MaterialFuellen(1);
  EXPECT_THAT(Bag(), ElementsAre(5, 5, 5, 5, 2));
  material.MaterialFuellen(3);
  EXPECT_THAT(Bag(), ElementsAre(5, 5, 5, 5, 5, 5, 2, 2, 2, 7));
}

// ---- The order ----------------------------------------------------------------------------------

TEST_F(MaterialTest, SortsByFallingWeight) {
  Rows({{1, -3}, {2, 5}, {3, 0}, {4, 9}, {5, 1}});
  material.MaterialOrdnen();
  EXPECT_THAT(Rows(), ElementsAre(Row{4, 9}, Row{2, 5}, Row{5, 1}, Row{3, 0}, Row{1, -3}));
}

TEST_F(MaterialTest, ExchangesRowsSoThatAnEarlierOneMayFallBehindItsEqual) {
  // The third row goes to the top, and the first one takes its place behind the second. A sort that
  // kept the order of equals would give 3, 1, 2.
  Rows({{1, 2}, {2, 2}, {3, 3}});
  material.MaterialOrdnen();
  EXPECT_THAT(Rows(), ElementsAre(Row{3, 3}, Row{2, 2}, Row{1, 2}));
}

TEST_F(MaterialTest, LeavesEqualWeightsWhereTheyStand) {
  Rows({{6, 4}, {1, 4}, {3, 4}, {2, 4}});
  material.MaterialOrdnen();
  EXPECT_THAT(Rows(), ElementsAre(Row{6, 4}, Row{1, 4}, Row{3, 4}, Row{2, 4}));
}

TEST_F(MaterialTest, CountsOnlyPositiveWeightsAsRest) {
  Rows({{1, 3}, {2, 0}, {3, -2}, {4, 6}});
  material.MaterialOrdnen();
  EXPECT_EQ(material.mat_rest, 9);
  Rows({{1, 0}, {2, -4}, {3, 0}});
  material.MaterialOrdnen();
  EXPECT_EQ(material.mat_rest, 0);
}

TEST_F(MaterialTest, KeepsACopyOfEveryEntryInANewBag) {
  Rows({{1, 3}, {2, 0}, {3, -2}});
  material.MaterialOrdnen();
  // The smallest weight is -2, so each row gets 3 more.
  EXPECT_EQ(material.mat_anzahl, 10);
  EXPECT_THAT(Bag(), ElementsAre(1, 1, 1, 1, 1, 1, 2, 2, 2, 3));

  Rows({{1, 2}, {2, 0}});
  material.MaterialOrdnen();
  EXPECT_EQ(material.mat_anzahl, 4);
  EXPECT_THAT(Bag(), ElementsAre(1, 1, 1, 2));
}

TEST_F(MaterialTest, NeedsNoFurtherCopiesWhileAllWeightsArePositive) {
  Rows({{1, 1}, {2, 3}, {3, 2}});
  material.MaterialOrdnen();
  EXPECT_EQ(material.mat_anzahl, 6);
  EXPECT_EQ(material.mat_rest, 6);
  EXPECT_THAT(Bag(), ElementsAre(2, 2, 2, 3, 3, 1));
}

TEST_F(MaterialTest, LeavesTheBagWhenTheRestReachesEightTimesTheEntriesLessOne) {
  Begin(3);  // 10 copies of each
  const auto before = Bag();
  Rows({{1, 8}, {2, 8}, {3, 7}});  // 23 = 3 x 8 - 1
  material.MaterialOrdnen();
  EXPECT_EQ(material.mat_rest, 23);
  EXPECT_EQ(material.mat_anzahl, 30);
  EXPECT_EQ(Bag(), before);

  Rows({{1, 8}, {2, 8}, {3, 6}});
  material.MaterialOrdnen();
  EXPECT_EQ(material.mat_anzahl, 22);
  EXPECT_EQ(Bag().size(), 22u);
}

TEST_F(MaterialTest, LeavesTheBagWhenNothingIsLeft) {
  Begin(10);
  const auto before = Bag();
  Rows({{1, 0}, {2, -1}, {3, 0}});
  material.MaterialOrdnen();
  EXPECT_EQ(material.mat_rest, 0);
  EXPECT_EQ(material.mat_anzahl, 40);
  EXPECT_EQ(Bag(), before);
}

TEST_F(MaterialTest, KeepsTheBoundOfEightAlsoWithAGreaterStartingWeight) {
  Begin(2);  // a weight of 15, and 30 left
  const auto before = Bag();
  ASSERT_EQ(before.size(), 30u);
  for (const int weight : {11, 7, 3}) {
    *material.Gewicht(1) = weight;
    material.MaterialOrdnen();
    // 26, 22, 18: not below 15.
    EXPECT_EQ(material.mat_rest, 15 + weight);
    EXPECT_EQ(material.mat_anzahl, 30);
    EXPECT_EQ(Bag(), before);
  }
  *material.Gewicht(1) = -1;  // 15 left, which is not below 15 either
  material.MaterialOrdnen();
  EXPECT_EQ(Bag(), before);
  *material.Gewicht(2) = 14;
  material.MaterialOrdnen();
  EXPECT_EQ(material.mat_rest, 14);
  EXPECT_EQ(material.mat_anzahl, 16 + 1);
  EXPECT_EQ(Copies(2), 16);
  EXPECT_EQ(Copies(1), 1);
}

RC_GTEST_FIXTURE_PROP(MaterialTest, AgreesWithItsWeightsWheneverTheBagIsNew, ()) {
  std::vector<Row> rows;
  const int n = *rc::gen::inRange(1, 25);
  for (int e = 1; e <= n; ++e) rows.push_back({e, *rc::gen::inRange(-6, 12)});
  Rows(rows);
  material.MaterialOrdnen();
  int rest = 0;
  int smallest = 100;
  for (const auto& [entry, weight] : rows) {
    rest += std::max(0, weight);
    smallest = std::min(smallest, weight);
  }
  RC_ASSERT(material.mat_rest == rest);
  const auto sorted = Rows();
  RC_ASSERT(std::ranges::is_sorted(sorted, [](const Row& a, const Row& b) { return a[1] > b[1]; }));
  RC_ASSERT(std::ranges::is_permutation(sorted, rows));
  if (rest == 0 || rest >= n * 8 - 1) {
    RC_ASSERT(Bag().empty());
    return;
  }
  const int offset = smallest < 1 ? 1 - smallest : 0;
  RC_ASSERT(material.mat_anzahl == static_cast<int>(Bag().size()));
  for (const auto& [entry, weight] : rows) {
    RC_ASSERT(Copies(entry) == weight + offset);
    RC_ASSERT(Copies(entry) >= 1);
  }
  RC_ASSERT(Bag().front() == sorted.front()[0]);
}

// ---- A training that is taken up ----------------------------------------------------------------

TEST_F(MaterialTest, TakesATrainingUpWithItsWeights) {
  material.SetzeFort({{3, 6}, {1, 4}, {2, -1}, {4, -1}, {5, -2}}, auswertung);
  EXPECT_EQ(material.mat_posten, 5);
  EXPECT_EQ(material.mat_soll, 6);
  EXPECT_EQ(material.mat_rest, 10);
  EXPECT_EQ(material.Prozent(), 17);  // 10 of 60
  EXPECT_EQ(material.mat_anzahl, 9 + 7 + 2 + 2 + 1);
  EXPECT_EQ(Copies(3), 9);
  EXPECT_EQ(Copies(5), 1);
  for (int e = 1; e <= 5; ++e) EXPECT_EQ(Counter(e, 3), 1) << e;
  EXPECT_EQ(Counter(6, 3), 0);
}

TEST_F(MaterialTest, HasNoBagInATrainingThatIsTakenUpWithAFullGreaterWeight) {
  // 16 left of two chords: not below 2 x 8 - 1.
  material.SetzeFort({{2, 9}, {1, 7}}, auswertung);
  EXPECT_EQ(material.mat_anzahl, 0);
  EXPECT_THAT(Bag(), IsEmpty());
  *material.Gewicht(2) = 5;
  material.MaterialOrdnen();
  EXPECT_EQ(material.mat_anzahl, 12);
  EXPECT_THAT(Bag(), ElementsAre(1, 1, 1, 1, 1, 1, 1, 2, 2, 2, 2, 2));
}

TEST_F(MaterialTest, FindsAWeightByItsEntryAndNotByItsPlace) {
  Rows({{5, 3}, {2, 1}});
  EXPECT_EQ(*material.Gewicht(2), 1);
  EXPECT_EQ(*material.Gewicht(5), 3);
  EXPECT_EQ(material.Gewicht(1), nullptr);
  EXPECT_EQ(Material().Gewicht(1), nullptr);
}

// ---- A test -------------------------------------------------------------------------------------

TEST_F(MaterialTest, HoldsEveryChordOfATestOnceAndTheRestByChance) {
  material.mat_posten = 3;
  material.BeginneTest(6);
  random.script_only = true;
  random.Script({Draw(2, 3), Draw(0, 3), 0.9999999f});
  material.MaterialTest(auswertung, random);
  EXPECT_THAT(Bag(), ElementsAre(1, 2, 3, 3, 1, 3));
  EXPECT_EQ(material.mat_anzahl, 6);
  EXPECT_TRUE(random.ScriptDone());
  EXPECT_THAT(material.mat_tab, IsEmpty()) << "a test has no weights";
}

TEST_F(MaterialTest, FillsTheBagOfATestAgainHalfWayAndCountsItAgain) {
  material.mat_posten = 3;
  material.BeginneTest(6);
  random.Always(0.5f);
  material.MaterialTest(auswertung, random);
  for (int e = 1; e <= 3; ++e) EXPECT_EQ(Counter(e, 3), 1);
  for (int copy = 0; copy < 6; ++copy) material.NimmHeraus(Bag()[static_cast<std::size_t>(copy)]);
  EXPECT_THAT(Bag(), Each(0));
  material.MaterialTest(auswertung, random);
  EXPECT_THAT(Bag(), ElementsAre(1, 2, 3, 2, 2, 2));
  for (int e = 1; e <= 3; ++e) EXPECT_EQ(Counter(e, 3), 2);
  EXPECT_EQ(Counter(4, 3), 0);
}

TEST_F(MaterialTest, NeedsNoChanceWhenTheTestIsAsLongAsTheBoard) {
  material.mat_posten = 4;
  material.BeginneTest(4);
  random.script_only = true;
  material.MaterialTest(auswertung, random);
  EXPECT_THAT(Bag(), ElementsAre(1, 2, 3, 4));
}

TEST_F(MaterialTest, UsesUpTheFirstCopyOfAnEntry) {
  material.BeginneTest(5);
  material.mat_ar = {0, 2, 1, 2, 1, 2};
  material.NimmHeraus(1);
  EXPECT_THAT(Bag(), ElementsAre(2, 0, 2, 1, 2));
  material.NimmHeraus(1);
  EXPECT_THAT(Bag(), ElementsAre(2, 0, 2, 0, 2));
  material.NimmHeraus(1);
  material.NimmHeraus(7);
  EXPECT_THAT(Bag(), ElementsAre(2, 0, 2, 0, 2)) << "no copy, no change";
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Records of a training that are not as they should be.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "settings/settings_fixture.h"
#include "settings/settings_invariants.h"
#include "settings/stored_training.h"

namespace vmod17 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

using Array = TaggedValue::Array;

class Restoring : public SettingsTest {
 protected:
  Restoring() { ToSettings(); }

  /// Takes up a training of this record, from level 0.
  void Restore(TaggedValue e1) {
    screen().training_Combo.Choose(0);
    messages.warnings.clear();
    StoreTraining(std::move(e1));
    screen().FuelleTraining(Einstellung1::Fortsetzung::kVorhanden);
    ASSERT_TRUE(screen().training_Combo.Choose(2));
  }
  void ExpectRestored() {
    EXPECT_THAT(messages.warnings, IsEmpty());
    EXPECT_EQ(settings().uebmodus, 2);
    EXPECT_THAT(LockedFrames(), SizeIs(12));
    ExpectSound();
  }
  void ExpectRefused() {
    EXPECT_THAT(messages.warnings, ElementsAre(ScriptedMessageBox::Shown{"[196s]", "[565s]"}));
    EXPECT_EQ(settings().uebmodus, 1);
    EXPECT_EQ(screen().training_Combo.list_index(), 1);
    EXPECT_THAT(LockedFrames(), IsEmpty());
    ExpectSound();
  }
  void ExpectSound() {
    EXPECT_EQ(RangeTrouble(settings()), "");
    EXPECT_EQ(ListTrouble(screen()), "");
    EXPECT_EQ(StepTrouble(screen(), settings()), "");
  }
};

// The elements of the full record: 11 is not used, 15 and 16 are kinds, 21 to 23 groups.
bool IsFree(std::size_t i) { return i == 11; }
bool IsText(std::size_t i) { return i == 15 || i == 16 || i >= 21; }

TEST_F(Restoring, RefusesAWordInThePlaceOfANumberAndSkipsOneInThePlaceOfAText) {
  const Array& voll = VollesTraining();
  for (std::size_t i = 0; i < voll.size(); ++i) {
    for (const char* wort : {"abc", "", "1x", "--1", " ", "nan", "inf", "1e999"}) {
      SCOPED_TRACE(std::to_string(i) + " " + wort);
      Array satz = voll;
      satz[i] = wort;
      Restore(satz);
      if (IsFree(i) || IsText(i)) {
        ExpectRestored();
      } else {
        ExpectRefused();
      }
    }
  }
}

TEST_F(Restoring, RefusesAnIndexThatItsListOrItsOptionsDoNotHave) {
  const Array& voll = VollesTraining();
  for (std::size_t i = 0; i < voll.size(); ++i) {
    if (IsFree(i) || IsText(i)) continue;
    for (const char* zahl : {"-1", "128", "32767", "32768", "-32768", "99999999999999999999"}) {
      SCOPED_TRACE(std::to_string(i) + " " + zahl);
      Array satz = voll;
      satz[i] = zahl;
      Restore(satz);
      ExpectRefused();
    }
  }
}

TEST_F(Restoring, RefusesTheFirstNumberPastTheEndOfEachList) {
  const std::vector<std::pair<int, const char*>> past = {
      {0, "2"}, {1, "10"}, {2, "0"}, {2, "5"},  {3, "4"},  {4, "2"},  {5, "2"},  {6, "2"},
      {7, "2"}, {8, "4"},  {9, "3"}, {10, "2"}, {12, "2"}, {13, "5"}, {17, "2"}, {20, "9"}};
  for (const auto& [i, zahl] : past) {
    SCOPED_TRACE(i);
    Array satz = VollesTraining();
    satz[i] = zahl;
    Restore(satz);
    ExpectRefused();
  }
}

TEST_F(Restoring, RefusesARecordThatEndsTooEarly) {
  const Array& voll = VollesTraining();
  for (std::size_t size = 1; size < voll.size(); ++size) {
    SCOPED_TRACE(size);
    Restore(Array(voll.begin(), voll.begin() + static_cast<std::ptrdiff_t>(size)));
    ExpectRefused();
  }
}

TEST_F(Restoring, PassesOverWhatStandsBehindTheRecord) {
  Array satz = VollesTraining();
  satz.insert(satz.end(), 1000, "[410s]");
  Restore(satz);
  ExpectRestored();
  EXPECT_THAT(Groups(), ElementsAre(1, 2, 5));
}

TEST_F(Restoring, BearsCountsOfKindsThatLie) {
  for (const char* n : {"-1", "9", "32767", "abc", ""}) {
    SCOPED_TRACE(n);
    Array satz = VollesTraining();
    satz[14] = n;
    Restore(satz);
    ExpectRefused();
    EXPECT_EQ(settings().abfolge, 1) << "what was restored before stays";
    EXPECT_EQ(settings().arp_tempo_idx, 3);
  }
  // With 0 the first text is read as the kind of the timbre, with 5 the record is too short.
  for (const char* n : {"0", "1", "3", "4", "5"}) {
    SCOPED_TRACE(n);
    Array satz = VollesTraining();
    satz[14] = n;
    Restore(satz);
    ExpectRefused();
  }
}

TEST_F(Restoring, BearsCountsOfGroupsThatLie) {
  for (const char* g : {"-1", "4", "9", "32767", "abc", ""}) {
    SCOPED_TRACE(g);
    Array satz = VollesTraining();
    satz[20] = g;
    Restore(satz);
    ExpectRefused();
    EXPECT_EQ(screen().HSliderVolume.value(), 55) << "what was restored before stays";
  }
  Array satz = VollesTraining();
  satz[20] = "0";
  Restore(satz);
  ExpectRestored();
  EXPECT_THAT(Groups(), IsEmpty());
  ExpectOk(false);
}

TEST_F(Restoring, TakesOneTextOnlyOnce) {
  Array satz = VollesTraining();
  satz[16] = satz[15];
  satz[22] = satz[21];
  Restore(satz);
  ExpectRestored();
  EXPECT_THAT(Kinds(), ElementsAre(4));
  EXPECT_THAT(Groups(), ElementsAre(1, 5));
}

TEST_F(Restoring, TakesNumbersThatAreNoStrings) {
  Array satz = VollesTraining();
  satz[1] = 7;
  satz[3] = 1.0;
  Restore(satz);
  ExpectRestored();
  EXPECT_EQ(settings().tempo_idx, 7);
  EXPECT_EQ(settings().arp_richtung, 1);
}

TEST_F(Restoring, BearsValuesOfEveryOtherKindInEveryPlace) {
  const std::vector<TaggedValue> values = {TaggedValue(),
                                           Array{},
                                           Array{"1"},
                                           Array{TaggedValue(Array{TaggedValue(Array{"1"})})},
                                           -1,
                                           std::int64_t{1} << 62,
                                           std::numeric_limits<double>::quiet_NaN(),
                                           std::numeric_limits<double>::infinity(),
                                           -0.6,
                                           1e300};
  const Array& voll = VollesTraining();
  for (std::size_t i = 0; i < voll.size(); ++i) {
    for (std::size_t v = 0; v < values.size(); ++v) {
      SCOPED_TRACE(std::to_string(i) + " " + std::to_string(v));
      Array satz = voll;
      satz[i] = values[v];
      Restore(satz);
      if (IsFree(i)) {
        ExpectRestored();
      } else {
        ExpectRefused();
      }
    }
  }
}

TEST_F(Restoring, BearsTenMegabytesOfTextInEveryPlace) {
  const std::string lang(10'000'000, '7');
  const Array& voll = VollesTraining();
  for (std::size_t i = 0; i < voll.size(); ++i) {
    SCOPED_TRACE(i);
    Array satz = voll;
    satz[i] = lang;
    Restore(satz);
    if (IsFree(i) || IsText(i)) {
      ExpectRestored();
    } else {
      ExpectRefused();
    }
  }
}

TEST_F(Restoring, RestoresTheLastGoodRecordWhenTheStoredOneIsNoArray) {
  Restore(VollesTraining());
  for (const TaggedValue& e1 : {TaggedValue("text"), TaggedValue(3), TaggedValue(),
                                TaggedValue(Array{}), TaggedValue(Array{"NIL"})}) {
    screen().temp_Combo.Select(0);
    Restore(e1);
    ExpectRestored();
    EXPECT_EQ(settings().tempo_idx, 7);
  }
}

TEST_F(Restoring, BearsGroupsThatStandInTheHiddenListOfTheTimeBefore) {
  // The kinds are unknown, the groups are not, and their lists still hold what they held.
  ChooseOnly({4});
  Array satz = VollesTraining();
  satz[15] = "Vierklang";
  satz[16] = "Fünfklang";
  Restore(satz);
  EXPECT_THAT(Kinds(), IsEmpty());
  ExpectOk(false);
  EXPECT_THAT(settings().uebmodus, ::testing::AnyOf(1, 2));
  ExpectSound();
}

/// Makes records that are wrong in one or more places.
class Mutator {
 public:
  explicit Mutator(unsigned seed) : engine_(seed) {}

  TaggedValue Make() {
    const Array* seeds[] = {&VollesTraining(), &DreiklangTraining(), &VoicingTraining()};
    Array satz = *seeds[Below(3)];
    for (int i = 1 + Below(2); i > 0; --i) Mutate(satz);
    return Below(200) == 0 ? Value() : TaggedValue(satz);
  }
  int Below(int n) { return static_cast<int>(engine_() % static_cast<unsigned>(n)); }

 private:
  void Mutate(Array& satz) {
    if (satz.empty()) return satz.push_back(Value());
    const auto at = satz.begin() + Below(static_cast<int>(satz.size()));
    switch (Below(7)) {
      case 0:
        satz.erase(at);
        break;
      case 1:
        satz.insert(at, Value());
        break;
      case 2:
        satz.erase(at, satz.end());
        break;
      case 3:
        std::swap(*at, satz[static_cast<std::size_t>(Below(static_cast<int>(satz.size())))]);
        break;
      case 4:
        *at = std::to_string(Below(9));
        break;
      default:
        *at = Value();
        break;
    }
  }
  TaggedValue Value() {
    static const std::vector<TaggedValue> values = {"0",
                                                    "1",
                                                    "2",
                                                    "3",
                                                    "5",
                                                    "8",
                                                    "9",
                                                    "-1",
                                                    "127",
                                                    "128",
                                                    "3276",
                                                    "abc",
                                                    "",
                                                    "[51s]",
                                                    "[57s]",
                                                    "[64s]",
                                                    "[379s]",
                                                    "[201s]",
                                                    "Dur",
                                                    "NIL",
                                                    "true",
                                                    1,
                                                    2,
                                                    -7,
                                                    1.5,
                                                    0.5,
                                                    1e18,
                                                    Array{},
                                                    Array{"1"},
                                                    TaggedValue(),
                                                    Array{"NIL", Array{2}},
                                                    "1.5",
                                                    "0x1",
                                                    " 1",
                                                    "+1"};
    return values[static_cast<std::size_t>(Below(static_cast<int>(values.size())))];
  }

  std::mt19937 engine_;
};

TEST_F(Restoring, BearsTwelveThousandMutatedRecords) {
  constexpr unsigned kSeed = 20261121;
  Mutator mutator(kSeed);
  int refused = 0;
  for (int i = 0; i < 12000; ++i) {
    Restore(mutator.Make());
    refused += settings().uebmodus == 1 ? 1 : 0;
    ASSERT_TRUE(settings().uebmodus == 1 || settings().uebmodus == 2) << i;
    ASSERT_EQ(messages.warnings.size(), settings().uebmodus == 1 ? 1u : 0u) << i;
    ASSERT_EQ(RangeTrouble(settings()), "") << i;
    ASSERT_EQ(ListTrouble(screen()), "") << i;
    ASSERT_EQ(StepTrouble(screen(), settings()), "") << i;
    ASSERT_EQ(LockedFrames().empty(), settings().uebmodus == 1) << i;
  }
  EXPECT_GT(refused, 1000);
  EXPECT_LT(refused, 11000);
}

}  // namespace
}  // namespace vmod17

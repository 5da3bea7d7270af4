// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "exercise/stored_settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "base/run_time_error.h"

namespace vmod17 {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::SizeIs;

using Array = TaggedValue::Array;

/// Settings of which no two numbers are alike, as far as their ranges allow it.
StoredSettings Settings() {
  StoredSettings stored;
  ExerciseSettings& s = stored.settings;
  s.abfolge = 1;
  s.tempo_idx = 7;
  s.akk_anzahl = 3;
  s.arp_richtung = 2;
  s.akk_anzeige = 1;
  s.grundton_art = 1;
  s.oktav_ber = 1;
  s.SetzeTonraum(2);
  s.frequenz_art = 1;
  s.grundton_betont = 1;
  s.arp_tempo_idx = 4;
  s.klang_anzahl = 2;
  s.patch_ar = {12, 21, 22, 23, 24, 25, 26, 27};
  s.grp_anzahl = 3;
  stored.klaenge = {"vier", "fünf"};
  stored.staerke = 55;
  stored.gruppen = {"eins", "zwei", "acht"};
  return stored;
}

const Array& List() {
  static const Array list = {
      "1", "7", "3", "2",    "0",    "0", "1",  "1",  "1", "2",    "1",    Array::value_type(),
      "1", "4", "2", "vier", "fünf", "0", "12", "55", "3", "eins", "zwei", "acht"};
  return list;
}

/// Writes down what it is told.
class Notebook : public StoredSettings::Nehmer {
 public:
  void NimmZahl(int ExerciseSettings::*feld, int wert) override {
    stored.settings.*feld = wert;
    order += 'z';
  }
  void NimmKlang(const std::string& name) override {
    stored.klaenge.push_back(name);
    order += 'k';
  }
  void NimmProgramm(int kanal, int programm) override {
    stored.settings.patch_ar.at(kanal) = programm;
    order += 'p';
  }
  void NimmStaerke(int staerke) override {
    stored.staerke = staerke;
    order += 's';
  }
  void NimmGruppe(const std::string& name) override {
    stored.gruppen.push_back(name);
    order += 'g';
  }

  StoredSettings stored;
  std::string order;
};

Array ReadAndWrite(const Array& list) {
  Notebook notebook;
  StoredSettings::Read(list, notebook);
  return notebook.stored.Write();
}

TEST(StoredSettingsList, StandInOneOrder) {
  EXPECT_THAT(Settings().Write(), ElementsAreArray(List()));
}

TEST(StoredSettingsList, HoldTheSevenProgramsOfSeparateTimbres) {
  StoredSettings stored = Settings();
  stored.settings.klangfarb_art = 1;
  const Array list = stored.Write();
  ASSERT_THAT(list, SizeIs(List().size() + 6));
  EXPECT_THAT(Array(list.begin() + 17, list.begin() + 26),
              ElementsAre("1", "21", "22", "23", "24", "25", "26", "27", "55"));
}

TEST(StoredSettingsList, HoldAnEmptyNameForAKindThatHasNone) {
  StoredSettings stored = Settings();
  stored.klaenge = {"vier"};
  EXPECT_EQ(stored.Write()[16], TaggedValue(""));
}

TEST(StoredSettingsList, ComeBackAsTheyWere) {
  EXPECT_EQ(ReadAndWrite(List()), List());
  StoredSettings stored = Settings();
  stored.settings.klangfarb_art = 1;
  stored.settings.klang_anzahl = stored.settings.grp_anzahl = 0;
  EXPECT_EQ(ReadAndWrite(stored.Write()), stored.Write());
}

TEST(StoredSettingsList, HaveAPlaceOfItsOwnForEachNumber) {
  const auto& places = StoredSettings::kPlaetze;
  for (std::size_t i = 0; i < places.size(); ++i) {
    if (places[i].feld == nullptr) continue;
    SCOPED_TRACE(i);
    StoredSettings stored = Settings();
    int& field = stored.settings.*places[i].feld;
    field = 1 - field % 2;
    Array expected = List();
    expected[i] = std::to_string(field);
    EXPECT_THAT(stored.Write(), ElementsAreArray(expected));
  }
}

TEST(StoredSettingsList, AreToldStepByStep) {
  Notebook notebook;
  StoredSettings::Read(List(), notebook);
  EXPECT_EQ(notebook.order,
            "zzzzzzzzzzzzz"  // the numbers
            "kkz"            // the kinds, and then how many
            "pz"             // the timbre, and then its kind
            "s"
            "zggg");
}

TEST(StoredSettingsList, AreTakenAsFarAsTheyMakeSense) {
  // Where a list ends, and what was told before.
  const std::vector<std::pair<std::size_t, std::string>> cases = {
      {0, ""},
      {3, "zzz"},
      {14, "zzzzzzzzzzzzz"},
      {16, "zzzzzzzzzzzzzk"},
      {17, "zzzzzzzzzzzzzkkz"},
      {19, "zzzzzzzzzzzzzkkzpz"},
      {20, "zzzzzzzzzzzzzkkzpzs"},
      {22, "zzzzzzzzzzzzzkkzpzszg"},
  };
  for (const auto& [size, order] : cases) {
    SCOPED_TRACE(size);
    const Array list(List().begin(), List().begin() + static_cast<std::ptrdiff_t>(size));
    Notebook notebook;
    EXPECT_THROW(StoredSettings::Read(list, notebook), RunTimeError);
    EXPECT_EQ(notebook.order, order);
  }
}

TEST(StoredSettingsList, RefuseNumbersOutsideOfTheirRanges) {
  const std::vector<std::pair<std::size_t, const char*>> outside = {
      {0, "2"},    {1, "-1"},    {2, "0"},    {3, "-1"},  {4, "2"},  {5, "2"},
      {6, "2"},    {7, "2"},     {8, "-1"},   {9, "-1"},  {10, "2"}, {12, "2"},
      {13, "-1"},  {1, "32768"}, {14, "-1"},  {14, "6"},  {17, "2"}, {18, "-1"},
      {18, "128"}, {19, "-1"},   {19, "128"}, {20, "-1"}, {20, "9"}};
  for (const auto& [place, number] : outside) {
    SCOPED_TRACE(std::to_string(place) + " " + number);
    Array list = List();
    list[place] = number;
    Notebook notebook;
    EXPECT_THROW(StoredSettings::Read(list, notebook), RunTimeError);
  }
}

TEST(StoredSettingsList, PassOverTheFreePlaceAndWhatStandsBehindTheEnd) {
  Array list = List();
  list[11] = "whatever";
  list.emplace_back("more");
  EXPECT_THAT(ReadAndWrite(list), ElementsAreArray(List()));
}

}  // namespace
}  // namespace vmod17

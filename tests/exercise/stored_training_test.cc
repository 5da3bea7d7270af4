// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "exercise/stored_training.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "worksheet/mode_fixture.h"

namespace vmod17 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Array = TaggedValue::Array;
using Shown = ScriptedMessageBox::Shown;

/// A training of the two chords of group 4 in four notes: the first was asked once and known, the
/// second was taken for it. Two choices leave one wrong click.
Array TwoChords() {
  return {"true",                                //
          "2",    "1",                           // 1 entries of the material
          "17",   "13",                          // 3 weights
          "2",                                   // 5 chords of the board
          "4",    "4",  "4",     "4", "5", "4",  // 6 Klangtyp, row and group of each
          "2",    "1",  "-6",    "0",            // 12 entry, asked, scores, wrongly chosen
          "1",    "1",  "-13.8", "1",            // 16
          "1",    "1",  "3",                     // 20 right, wrong, repeats
          "2"};                                  // 23 the highest points of a slot
}

ExerciseSettings NamingChords(int akk_anzahl = 1) {
  ExerciseSettings settings;
  settings.akk_anzahl = akk_anzahl;
  settings.best_art = 0;
  return settings;
}

/// The error number of reading the list, or 0.
int ErrorOf(const Array& list, const ExerciseSettings& settings = NamingChords()) {
  try {
    StoredTraining::Read(list, settings);
    return 0;
  } catch (const RunTimeError& error) {
    return error.number();
  }
}

Array With(Array list, std::size_t at, TaggedValue value) {
  list.at(at) = std::move(value);
  return list;
}

// ---- A good list --------------------------------------------------------------------------------

TEST(StoredTraining, ReadsEachFieldFromItsPlace) {
  const StoredTraining training = StoredTraining::Read(TwoChords(), NamingChords());
  EXPECT_THAT(training.mat_tab, ElementsAre(std::array<int, 2>{2, 17}, std::array<int, 2>{1, 13}));
  EXPECT_THAT(training.akk_tab, ElementsAre(BoardEntry{4, 4, 4, 0}, BoardEntry{4, 5, 4, 0}));
  EXPECT_THAT(training.auswertung,
              ElementsAre(std::array<float, 3>{1, -6, 0}, std::array<float, 3>{1, -13.8f, 1}));
  EXPECT_EQ(training.richtig, 1);
  EXPECT_EQ(training.falsch, 1);
  EXPECT_EQ(training.wiederholt, 3);
  EXPECT_EQ(training.fehl_max, 2);
}

TEST(StoredTraining, WritesWhatItHasRead) {
  EXPECT_EQ(StoredTraining::Read(TwoChords(), NamingChords()).Write(), TwoChords());
}

TEST(StoredTraining, WritesSixOfTheMaterialAndThreeOfTheBoardForEachEntry) {
  for (std::size_t n = 1; n <= 24; ++n) {
    StoredTraining training;
    for (std::size_t e = 1; e <= n; ++e) {
      training.mat_tab.push_back({static_cast<int>(e), 4});
      training.akk_tab.push_back({3, static_cast<int>(e), 0, 0});
      training.auswertung.push_back({0, 0, 0});
    }
    const Array list = training.Write();
    EXPECT_EQ(list.size(), 6 * n + 3 * n + 6);
    EXPECT_EQ(list[2 * n + 1], TaggedValue(std::to_string(n)));
    for (const TaggedValue& element : list) EXPECT_TRUE(element.IsString());
  }
}

TEST(StoredTraining, WritesThatThereIsNone) {
  EXPECT_THAT(KeinTraining(), ElementsAre(TaggedValue("False")));
}

TEST(StoredTraining, TakesTheHighestPointsFromTheChoicesOfTheSettings) {
  ExerciseSettings groups = NamingChords();
  groups.best_art = 1;
  groups.grp_anzahl = 3;
  Array list = TwoChords();
  list[4] = "12";
  list[19] = "0";  // where groups are named nothing is taken for another chord
  list[20] = "2";
  EXPECT_NE(ErrorOf(list, groups), 0);
  EXPECT_EQ(ErrorOf(With(list, 23, "4"), groups), 0);
}

// ---- Bad lists ----------------------------------------------------------------------------------

struct Bad {
  std::string what;
  Array list;
};

Array Cut(Array list, std::size_t count) {
  list.resize(count);
  return list;
}

Array Longer(Array list, const Array& more) {
  list.insert(list.end(), more.begin(), more.end());
  return list;
}

/// What can be wrong with the list of two chords, element by element and as a whole.
std::vector<Bad> BadLists() {
  const Array good = TwoChords();
  Array nothing_asked = good;
  nothing_asked[3] = nothing_asked[4] = "15";
  for (const std::size_t at : {13, 14, 15, 17, 18, 19}) nothing_asked[at] = "0";
  std::vector<Bad> bad = {
      {"empty", {}},
      {"solved", {"False"}},
      {"\"true\" alone", {"true"}},
      {"another word", With(good, 0, "True")},
      {"a word with a blank", With(good, 0, "true ")},
      {"no text at the front", With(good, 0, 1)},
      {"nothing at the front", With(good, 0, TaggedValue())},
      {"nine elements more", Longer(good, Array(9, "1"))},
      {"of another n", With(good, 5, "3")},
      {"n of 0", With(good, 5, "0")},
      {"n of 1", With(good, 5, "1")},
      {"an entry twice", With(good, 2, "2")},
      {"entry 0", With(good, 1, "0")},
      {"entry 25", With(good, 1, "25")},
      {"entry -1", With(good, 1, "-1")},
      {"an entry past the board", With(good, 1, "3")},
      {"another order of the counters", With(With(good, 12, "1"), 16, "2")},
      {"a weight of 32767", With(good, 3, "32767")},
      {"a weight of -32767", With(good, 4, "-32767")},
      {"a weight past 16 bits", With(good, 3, "32768")},
      {"a weight that no answer gives", With(good, 4, "11")},
      {"a weight that no wrong click gives", With(good, 3, "18")},
      {"weights out of order", With(With(good, 3, "13"), 4, "17")},
      {"half a weight", With(good, 3, "17.5")},
      {"Klangtyp 0", With(good, 6, "0")},
      {"Klangtyp 2", With(good, 6, "2")},
      {"Klangtyp 9", With(good, 6, "9")},
      {"row 0", With(good, 7, "0")},
      {"a row past the table", With(good, 7, "999")},
      {"group 9", With(good, 8, "9")},
      {"group -1", With(good, 8, "-1")},
      {"asked -1 times", With(good, 13, "-1")},
      {"asked half a time", With(good, 13, "0.5")},
      {"a score above 0", With(good, 14, "1")},
      {"a score better than the best", With(good, 14, "-16.1")},
      {"a score worse than the worst", With(good, 14, "-5.9")},
      {"a score that is none", With(good, 14, "nan")},
      {"an endless score", With(good, 14, "-inf")},
      {"a score with a comma", With(good, 18, "-13,8")},
      {"wrongly chosen -1 times", With(good, 15, "-1")},
      {"right -1 times", With(good, 20, "-1")},
      {"more chords than clicks", With(good, 20, "0")},
      {"repeats past 16 bits", With(good, 22, "40000")},
      {"other highest points", With(good, 23, "8")},
      {"no highest points", With(good, 23, "0")},
      {"nothing was asked", nothing_asked},
      {"solved by its weights", With(With(With(With(good, 3, "0"), 4, "-1"), 13, "40"), 17, "40")},
      {"numbers with a sign", With(good, 20, "+1")},
      {"numbers with zeros before them", With(good, 20, "01")},
      {"numbers with a blank", With(good, 20, " 1")},
      {"a score with more digits than are written", With(good, 18, "-13.800")},
      {"a score with an exponent", With(good, 18, "-1.38e1")},
  };
  for (std::size_t length = 1; length < good.size(); ++length) {
    bad.push_back({"cut to " + std::to_string(length), Cut(good, length)});
  }
  for (std::size_t at = 1; at < good.size(); ++at) {
    const std::string where = " at " + std::to_string(at);
    bad.push_back({"a word" + where, With(good, at, "vier")});
    bad.push_back({"an empty text" + where, With(good, at, "")});
    bad.push_back({"nothing" + where, With(good, at, TaggedValue())});
    bad.push_back({"a number that is no text" + where, With(good, at, 1)});
    bad.push_back({"a Single" + where, With(good, at, 1.0)});
    bad.push_back({"a list" + where, With(good, at, Array{"1"})});
    bad.push_back({"a number of a hundred digits" + where, With(good, at, std::string(100, '9'))});
  }
  return bad;
}

TEST(StoredTraining, RefusesWhatNoRunCanHaveWritten) {
  for (const Bad& bad : BadLists()) {
    EXPECT_EQ(ErrorOf(bad.list), ErrorNumber::kTypeMismatch) << bad.what;
  }
}

TEST(StoredTraining, RefusesHalfATask) {
  // Two slots were answered, which is no whole number of tasks of three or four chords.
  EXPECT_EQ(ErrorOf(TwoChords(), NamingChords(2)), 0);
  EXPECT_EQ(ErrorOf(TwoChords(), NamingChords(3)), ErrorNumber::kTypeMismatch);
  EXPECT_EQ(ErrorOf(TwoChords(), NamingChords(4)), ErrorNumber::kTypeMismatch);
}

TEST(StoredTraining, RefusesABoardOfMoreThan24Chords) {
  StoredTraining training;
  for (int e = 1; e <= 25; ++e) {
    training.mat_tab.push_back({e, 4});
    training.akk_tab.push_back({5, e, 1, 0});
    training.auswertung.push_back({0, 0, 0});
  }
  training.fehl_max = 8;
  EXPECT_EQ(ErrorOf(training.Write()), ErrorNumber::kTypeMismatch);
}

TEST(StoredTraining, RefusesATrainingThatHasDoubled) {
  // 60 of 60 are left: 30 wrong clicks for each chord, and so it has ended as too hard.
  Array list = TwoChords();
  list[3] = list[4] = "30";
  list[13] = list[17] = "30";
  list[14] = list[18] = "-180";
  list[15] = list[19] = "15";
  list[20] = "0";
  list[21] = "60";
  EXPECT_EQ(ErrorOf(list), ErrorNumber::kTypeMismatch);
  list[4] = "29";
  EXPECT_EQ(ErrorOf(list), 0);
}

RC_GTEST_PROP(StoredTrainingProperty, ReadsBackEveryStateThatARunLeaves, ()) {
  ModeFixture p;
  const int akk_anzahl = *rc::gen::inRange(1, 5);
  const int best_art = *rc::gen::inRange(0, 2);
  p.random.Restart(*rc::gen::inRange(1, 1000000));
  ScriptedRandom student;
  student.Restart(*rc::gen::inRange(1, 1000000));
  p.BeginMode(kTraining,
              [&](ExerciseSettings& s) {
                s.akk_anzahl = akk_anzahl;
                s.best_art = best_art;
              },
              {4, 5}, {1, 4, 5});
  const int tasks = *rc::gen::inRange(1, 6);
  for (int task = 0; task < tasks && p.run().lauf_status != LaufStatus::kTrainingZuEnde; ++task) {
    p.PlayTask();
    while (p.run().akk_nr <= akk_anzahl) {
      p.loop.Advance(static_cast<double>(student.Rnd()) * 12000);
      const float act = student.Rnd();
      if (act < 0.2f) {
        p.Repeat();
      } else if (act < 0.5f) {
        p.WorksheetFixture::Wrong();
      } else {
        p.Right();
      }
    }
  }
  if (p.run().lauf_status == LaufStatus::kTrainingZuEnde) return;
  p.SaveAndLeave();
  const Array list = p.host.Stored("A1").Elements();
  RC_ASSERT(StoredTraining::Read(list, p.settings()).Write() == list);
  ModeFixture q;
  q.Continue(p.host);
  RC_ASSERT(q.messages.warnings.empty());
  RC_ASSERT(q.worksheet().visible);
}

// ---- On the whole program -----------------------------------------------------------------------

/// A training of the three chords of group 4 and 7, saved after two of them were known.
const MemoryHost& StoreOfThreeChords() {
  static const MemoryHost store = [] {
    ModeFixture p;
    p.BeginMode(kTraining, {}, {4}, {4, 7});
    p.DoTask({1});
    p.DoTask({3});
    p.SaveAndLeave();
    return p.host;
  }();
  return store;
}

/// Tries to take the stored training up: it is refused in its own words and as an error, nothing is
/// changed, and a new training can begin.
void ExpectRefused(ModeFixture& p, const std::string& what) {
  SCOPED_TRACE(what);
  const auto before = p.host.records;
  p.StartRun();
  EXPECT_EQ(p.messages.warnings,
            (std::vector<Shown>{{"[196s]", "[565s]"},
                                {"[720s]\n[721s]\n[722s]\n[723s]", "Melvado 2000"}}));
  EXPECT_THAT(p.messages.questions, IsEmpty());
  ASSERT_EQ(p.host.errors.size(), 1u);
  EXPECT_EQ(p.host.errors[0].place, "start_timer.arbeitsblatt1.vmod17");
  EXPECT_EQ(p.host.records, before) << "the store is left as it is";
  EXPECT_EQ(p.host.Sent("STORE"), 0);
  EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
  EXPECT_EQ(p.program.testergebnis(), nullptr);
  EXPECT_TRUE(p.settings_screen().visible);
  EXPECT_EQ(p.settings_screen().training_Combo.list_index(), kTraining);
  EXPECT_EQ(p.settings().uebmodus, kTraining);
  EXPECT_TRUE(p.settings_screen().cmdOK.Reachable());
  EXPECT_TRUE(p.settings_screen().grdeinst[11].enabled) << "the frames are free";
  EXPECT_EQ(p.documents.Latest().saves, 1);
  EXPECT_EQ(p.loop.timers(), 0);

  p.messages.warnings.clear();
  p.StartRun();
  EXPECT_EQ(p.worksheet().matboxanz.percent, 50);
  p.PlayTask();
  EXPECT_NE(p.Right(), 0);
  EXPECT_THAT(p.messages.warnings, IsEmpty());
}

/// Takes up a stored training whose state is `a1`.
void TakeUp(ModeFixture& p, const Array& a1) {
  p.host.records = StoreOfThreeChords().records;
  p.host.SetStored("A1", a1);
  p.ToSettings();
  EXPECT_TRUE(p.settings_screen().training_Combo.Choose(kWeiter));
  ASSERT_EQ(p.settings().uebmodus, kWeiter);
  EXPECT_THAT(p.messages.warnings, IsEmpty());
}

TEST(TakingATrainingUp, WorksWithTheListThatWasStored) {
  ModeFixture p;
  TakeUp(p, StoreOfThreeChords().Stored("A1").Elements());
  p.StartRun();
  EXPECT_TRUE(p.worksheet().visible);
  EXPECT_THAT(p.messages.warnings, IsEmpty());
  EXPECT_EQ(p.run().material.mat_posten, 3);
}

TEST(TakingATrainingUp, RefusesAListOfAnyOtherShape) {
  const Array good = StoreOfThreeChords().Stored("A1").Elements();
  ASSERT_EQ(good.size(), 33u);  // three chords
  const std::vector<Bad> lists = {
      {"\"true\" alone", {"true"}},
      {"cut", Cut(good, 32)},
      {"cut to one chord", Cut(good, 15)},
      {"too long", Longer(good, {"1"})},
      {"of another n", Longer(good, Array(9, "1"))},
      {"words", With(good, 4, "vier")},
      {"entry 0", With(good, 1, "0")},
      {"entry 25", With(good, 1, "25")},
      {"an entry twice", With(good, 1, good[2])},
      {"a weight of 32767", With(good, 4, "32767")},
      {"a weight of -32767", With(good, 6, "-32767")},
      {"0 chords", With(good, 7, "0")},
      {"1 chord", With(good, 7, "1")},
      {"Klangtyp 0", With(good, 8, "0")},
      {"Klangtyp 2", With(good, 8, "2")},
      {"Klangtyp 9", With(good, 8, "9")},
      {"a Klangtyp that was not chosen", With(good, 8, "5")},
      {"a row past the table", With(good, 9, "40")},
      {"a row of another group", With(good, 9, "1")},
      {"group 0", With(good, 10, "0")},
      {"group 9", With(good, 10, "9")},
      {"a group of another chord", With(good, 10, good[10] == TaggedValue("4") ? "7" : "4")},
      {"a chord twice", With(good, 12, good[9])},
      {"other highest points", With(good, 32, "8")},
      {"a list in the list", With(good, 5, Array{"1"})},
  };
  for (const Bad& bad : lists) {
    ModeFixture p;
    TakeUp(p, bad.list);
    ExpectRefused(p, bad.what);
  }
}

TEST(TakingATrainingUp, RefusesAStateThatCannotBeReadAnyMore) {
  ModeFixture p;
  TakeUp(p, StoreOfThreeChords().Stored("A1").Elements());
  p.host.SetStored("A1", Array{"NIL"});
  ExpectRefused(p, "gone");
}

TEST(TakingATrainingUp, RefusesAStateThatWasSolvedMeanwhile) {
  ModeFixture p;
  TakeUp(p, StoreOfThreeChords().Stored("A1").Elements());
  p.host.SetStored("A1", KeinTraining());
  ExpectRefused(p, "solved by another program");
}

TEST(TakingATrainingUp, RefusesSettingsThatWereReplacedMeanwhile) {
  ModeFixture p;
  TakeUp(p, StoreOfThreeChords().Stored("A1").Elements());
  Array e1 = p.host.Stored("E1").Elements();
  e1.at(2) = "2";  // two chords a task
  p.host.SetStored("E1", e1);
  ExpectRefused(p, "other settings");
}

TEST(TakingATrainingUp, RefusesAWholePairThatWasReplacedMeanwhile) {
  ModeFixture p;
  TakeUp(p, StoreOfThreeChords().Stored("A1").Elements());
  p.host.records = StoreWithTraining().records;
  ExpectRefused(p, "another training");
}

TEST(TakingATrainingUp, RefusesAStateOfOtherSettings) {
  ModeFixture p;
  TakeUp(p, StoreWithTraining().Stored("A1").Elements());
  ExpectRefused(p, "a board of triads for settings of four notes");
}

RC_GTEST_PROP(StoredTrainingProperty, EndsOnTheWorksheetOrWithAMessage, ()) {
  Array list = StoreOfThreeChords().Stored("A1").Elements();
  const int changes = *rc::gen::inRange(1, 4);
  for (int i = 0; i < changes; ++i) {
    const auto at = *rc::gen::inRange<std::size_t>(1, list.size());
    list[at] = std::to_string(*rc::gen::inRange(-40, 40));
  }
  ModeFixture p;
  TakeUp(p, list);
  p.StartRun();
  if (p.program.arbeitsblatt1() == nullptr) {
    RC_ASSERT(p.messages.warnings.size() == 2u);
    RC_ASSERT(p.host.Stored("A1") == TaggedValue(list));
    RC_ASSERT(p.settings().uebmodus == 1);
    return;
  }
  RC_ASSERT(p.messages.warnings.empty());
  p.PlayTask();
  p.FinishTask();
  RC_ASSERT(p.messages.warnings.empty());
}

}  // namespace
}  // namespace vmod17

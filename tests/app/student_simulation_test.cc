// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Students of different skill go through trainings, tests and exams in virtual time. A second
// reckoning watches them: it knows the answer times and repeats from the lesson record, the clicks
// from its own notes, and the rules of weights, scores and percentages from the table of points.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "worksheet/mode_fixture.h"

namespace vmod17 {
namespace {

constexpr int kSeeds = 8;
constexpr int kCoursesOfASeed = 420;  // a course is a training with its continuations, or a test

class Dice {
 public:
  explicit Dice(unsigned seed) : engine_(seed) {}
  /// 0 to `n` - 1.
  int Below(int n) { return static_cast<int>(engine_() % static_cast<unsigned>(n)); }
  bool OneIn(int n) { return Below(n) == 0; }

 private:
  std::mt19937 engine_;
};

enum class Skill { kPerfect, kHopeless, kRandom, kSlow, kRepeats, kConfuses, kLeaves };

/// What one slot of a task came to.
struct Slot {
  int entry = 0;
  double first_time = 0;  ///< tenths of a second of the first answer
  int repeats = 0;
  int wrong = 0;
  bool right = false;
  std::vector<int> chosen;  ///< tiles clicked wrongly
};

/// The second reckoning.
class Reckoning {
 public:
  struct Counter {
    int places = 0;  // in the material
    int asked = 0;
    double sum = 0;
    int chosen = 0;
  };

  void Begin(const ChordBoard& board, const ExerciseSettings& settings) {
    entries_ = board.akk_zahl;
    test_ = settings.uebmodus >= kTest;
    const int choices = settings.best_art == 0 ? board.akk_zahl : settings.grp_anzahl;
    limit_ = 2 * std::min(4, choices - 1);
    start_ = entries_ * 4 >= 30 ? 4 : 30 / entries_;
    for (int e = 1; e <= entries_; ++e) {
      weights_[e] = start_;
      counters_[e].places = 1;
    }
    Resume(std::min(4, choices - 1));
  }
  /// Goes on in another process, which counts confusions or not.
  void Resume(int steps) { steps_ = steps; }

  void Score(const Slot& slot) {
    double s = 0;
    if (slot.wrong == 0) {
      s = std::min(0.0, -4 + slot.repeats + Slowness(slot.first_time));
    } else {
      s = std::min<double>(limit_, 2 * slot.wrong + slot.repeats);
    }
    weights_[slot.entry] = static_cast<int>(std::nearbyint(weights_[slot.entry] + s));
    Counter& counter = counters_[slot.entry];
    const double score = (s < 0 ? 2 * s : s) - 8;
    ++counter.asked;
    counter.sum += score;
    if (s <= 0) return;
    for (int i = 0; i < std::min<int>(steps_, static_cast<int>(slot.chosen.size())); ++i) {
      ++counters_[slot.chosen[i]].chosen;
      ++weights_[slot.chosen[i]];
    }
  }

  int Rest() const {
    int rest = 0;
    for (const auto& [entry, weight] : weights_) rest += std::max(0, weight);
    return rest;
  }
  int Bound() const { return entries_ * start_ * 2; }
  bool Solved() const { return Rest() == 0; }
  bool TooHard() const { return Rest() >= Bound(); }
  int Weight(int entry) const { return weights_.at(entry); }
  const Counter& Of(int entry) const { return counters_.at(entry); }
  int entries() const { return entries_; }
  int start() const { return start_; }

  /// Per cent of an entry; none when it does not count.
  std::optional<double> Percent(int entry) const {
    const Counter& c = counters_.at(entry);
    const int f = c.chosen > 0 ? 1 : 0;
    const int m = f == 1 ? std::min(0, 2 * c.chosen - 8) : 0;
    if (!test_) {
      if (c.asked == 0 && c.chosen == 0) return {};
      return std::nearbyint(m + c.sum) / ((f + c.asked) * -16.0) * 100;
    }
    return std::nearbyint(TwoBest(c) + m) / (f == 1 ? -48.0 : -32.0) * 100;
  }

  /// Keeps a score of a test.
  void Keep(int entry, double score) {
    auto& [second, lowest] = kept_[&counters_.at(entry)];
    if (score < second) second = score;
    if (second < lowest) std::swap(second, lowest);
  }
  static double Slowness(double tenths) {
    if (tenths <= 20) return 0;
    return std::floor((tenths - 20) / 2) * 0.1 + 1;
  }

 private:
  /// The sum of the two lowest scores as they are kept: in the order of their coming, a value that
  /// only equals a kept one changes nothing.
  double TwoBest(const Counter& counter) const {
    const auto kept = kept_.find(&counter);
    return kept == kept_.end() ? 0 : kept->second.first + kept->second.second;
  }

  int entries_ = 0;
  int start_ = 0;
  int limit_ = 0;
  int steps_ = 0;
  bool test_ = false;
  std::map<int, int> weights_;
  std::map<int, Counter> counters_;
  std::map<const Counter*, std::pair<double, double>> kept_;
};

struct Setting {
  std::vector<int> kinds;
  std::vector<int> groups;
  int akk_form = 0;
  int best_art = 0;
};

const std::vector<Setting> kSettings = {
    {{3}, {}, 0, 0},           {{4}, {1, 2, 3, 4, 5, 6, 7, 8}, 0, 0},
    {{4, 5}, {1, 4, 5}, 0, 0}, {{3, 4, 5, 6, 7}, {1, 2, 3, 4, 5, 6, 7, 8}, 0, 0},
    {{4}, {3, 7}, 0, 0},       {{5, 6}, {2, 4, 5}, 0, 1},
    {{4}, {1, 5}, 0, 1}};

/// A student at the worksheet.
class Course {
 public:
  Course(unsigned seed, Skill skill, int mode) : dice_(seed), skill_(skill), mode_(mode) {
    const Setting& chosen =
        kSettings[static_cast<std::size_t>(dice_.Below(static_cast<int>(kSettings.size())))];
    const int chords = 1 + dice_.Below(4);
    const int root = dice_.Below(2);
    p_ = std::make_unique<ModeFixture>();
    p_->ToSettings();
    // What another seed draws.
    for (unsigned i = 0; i < seed % 97; ++i) p_->random.Rnd();
    if (mode == kPruefung) {
      BeginExam(chords);
    } else {
      if (chosen.best_art == 1) p_->settings_screen().akk_grp.Choose(1);
      p_->BeginHere(
          mode,
          [&](ExerciseSettings& s) {
            s.akk_anzahl = chords;
            s.grundton_art = root == 0 && chosen.kinds.size() > 1 ? 1 : 0;
          },
          chosen.kinds, chosen.groups);
    }
  }

  int tasks() const { return tasks_; }
  bool solved() const { return solved_; }

  /// Goes through the course to its end.
  void Go() {
    ASSERT_NE(p_->program.arbeitsblatt1(), nullptr);
    reckoning_.Begin(p_->program.board(), p_->settings());
    for (bool over = false; !over && !testing::Test::HasFatalFailure();) {
      DoTask();
      if (testing::Test::HasFatalFailure()) return;
      if (TimeIsUp()) break;
      CheckTask();
      over = Over();
      if (!over && skill_ == Skill::kLeaves && dice_.OneIn(6)) {
        if (mode_ != kTraining || dice_.OneIn(3)) return LeaveForGood();
        ContinueInAnotherProcess();
      }
      ASSERT_LT(tasks_, 3000);
    }
    CheckResults();
  }

 private:
  bool Training() const { return mode_ == kTraining; }
  Arbeitsblatt1& Sheet() { return p_->worksheet(); }

  void BeginExam(int chords) {
    Einstellung1& s = p_->settings_screen();
    ASSERT_TRUE(s.training_Combo.Choose(kPruefung));
    ASSERT_TRUE(s.prfnr_Comb.Choose(dice_.Below(5)));
    // What the preset leaves open: the voicings' groups of the fifth exam are all chosen.
    ASSERT_TRUE(s.akkzahl_cmb.Choose(chords - 1));
    ASSERT_TRUE(s.cmdOK.Reachable());
    p_->StartRun();
  }

  void DoTask() {
    p_->PlayTask();
    // In a test that follows by itself the playing may end a moment later.
    for (int i = 0; i < 40 && p_->OpenChoices().empty(); ++i) p_->loop.Advance(50);
    if (TimeIsUp()) return;
    ASSERT_FALSE(p_->OpenChoices().empty()) << "task " << tasks_;
    ++tasks_;
    slots_.assign(static_cast<std::size_t>(p_->settings().akk_anzahl), Slot());
    for (std::size_t i = 0; i < slots_.size(); ++i) {
      slots_[i].entry = p_->Asked(static_cast<int>(i) + 1);
      drawn_.push_back(slots_[i].entry);
    }
    for (int clicks = 0; p_->run().akk_nr <= p_->settings().akk_anzahl; ++clicks) {
      ASSERT_LT(clicks, 40);
      if (TimeIsUp()) return;
      AnswerSlot(slots_[static_cast<std::size_t>(p_->run().akk_nr) - 1]);
    }
  }

  void AnswerSlot(Slot& slot) {
    if (skill_ == Skill::kRepeats && dice_.OneIn(3)) {
      ASSERT_TRUE(p_->Repeat());
      for (int i = 0; i < 40 && p_->OpenChoices().empty(); ++i) p_->loop.Advance(50);
    }
    if (skill_ == Skill::kSlow) p_->loop.Advance(300 + dice_.Below(9000));
    if (skill_ == Skill::kRandom) p_->loop.Advance(dice_.Below(3000));
    if (TimeIsUp()) return;
    const int choice = Choose();
    if (choice != p_->RightChoice() && p_->settings().best_art == 0) slot.chosen.push_back(choice);
    ASSERT_TRUE(p_->Choice(choice).Press());
  }

  int Choose() {
    const std::vector<int> open = p_->OpenChoices();
    switch (skill_) {
      case Skill::kPerfect:
      case Skill::kSlow:
      case Skill::kRepeats:
        return p_->RightChoice();
      case Skill::kHopeless:
        return p_->WrongChoice();
      case Skill::kConfuses: {
        const bool confused = tasks_ < 25 && p_->RightChoice() <= 2;
        const int other = 3 - p_->RightChoice();
        return confused && std::ranges::count(open, other) > 0 ? other : p_->RightChoice();
      }
      case Skill::kRandom:
      case Skill::kLeaves:
        return dice_.Below(3) > 0
                   ? p_->RightChoice()
                   : open[static_cast<std::size_t>(dice_.Below(static_cast<int>(open.size())))];
    }
    return 0;
  }

  /// What the record says of the task's answers, slot by slot.
  void ReadRecord() {
    std::size_t slot = 0;
    bool first_of_slot = true;
    for (const auto& answer : p_->lesson().Find("answers")->children) {
      if (answer->Attribute("interval")) {
        slot = static_cast<std::size_t>(std::stoi(*answer->Attribute("interval"))) - 1;
        first_of_slot = true;
      }
      std::map<std::string, std::string> values;
      for (const auto& property : answer->children) {
        values[property->Find("key")->text] = property->Find("value")->text;
      }
      ASSERT_EQ(values.size(), 3u) << "an answer that was not closed";
      Slot& s = slots_.at(slot);
      s.repeats += std::stoi(values["Anz Whlg"]);
      if (std::exchange(first_of_slot, false)) s.first_time = std::stod(values["Dauer Antwort"]);
      if (values["Antwort"] == "true") {
        s.right = true;
        ++right_;
      } else {
        ++s.wrong;
        ++wrong_;
      }
    }
  }

  void CheckTask() {
    ReadRecord();
    for (const Slot& slot : slots_) {
      reckoning_.Score(slot);
      if (!Training()) reckoning_.Keep(slot.entry, ScoreOf(slot));
    }
    EXPECT_EQ(Sheet().zaehler[0].caption, std::to_string(right_));
    EXPECT_EQ(Sheet().zaehler[1].caption, std::to_string(wrong_));
    const LaufStatus status = p_->run().lauf_status;
    const bool ended = status == LaufStatus::kTrainingZuEnde || status == LaufStatus::kTestZuEnde;
    EXPECT_TRUE(ended || status == LaufStatus::kAufgabeFertig);
    EXPECT_TRUE(p_->OpenChoices().empty());
    if (Training()) {
      CheckTraining();
    } else {
      CheckTest();
    }
  }

  double ScoreOf(const Slot& slot) const {
    const int choices =
        p_->settings().best_art == 0 ? reckoning_.entries() : p_->settings().grp_anzahl;
    const int limit = 2 * std::min(4, choices - 1);
    if (slot.wrong > 0) return std::min<double>(limit, 2 * slot.wrong + slot.repeats) - 8;
    return 2 * std::min(0.0, -4 + slot.repeats + Reckoning::Slowness(slot.first_time)) - 8;
  }

  void CheckTraining() {
    const Material& material = p_->run().material;
    for (int e = 1; e <= reckoning_.entries(); ++e) {
      ASSERT_EQ(p_->Weight(e), reckoning_.Weight(e)) << "entry " << e << " task " << tasks_;
    }
    EXPECT_TRUE(std::is_sorted(material.mat_tab.begin() + 1, material.mat_tab.end(),
                               [](const auto& a, const auto& b) { return a[1] > b[1]; }));
    const int rest = reckoning_.Solved()    ? 1
                     : reckoning_.TooHard() ? reckoning_.Bound()
                                            : reckoning_.Rest();
    EXPECT_EQ(material.mat_rest, rest);
    EXPECT_EQ(Sheet().matboxanz.percent,
              static_cast<int>(std::nearbyint(100.0 * rest / reckoning_.Bound())));
    EXPECT_EQ(p_->run().lauf_status == LaufStatus::kTrainingZuEnde,
              reckoning_.Solved() || reckoning_.TooHard());
    if (rest < reckoning_.entries() * 8 - 1 && !reckoning_.Solved()) CheckBag(material);
  }

  /// Every entry lies in the bag as often as its weight says, and once at the least.
  void CheckBag(const Material& material) {
    const int least = material.mat_tab.back()[1];
    const int offset = least < 1 ? std::abs(least) + 1 : 0;
    ASSERT_EQ(static_cast<int>(material.mat_ar.size()), material.mat_anzahl + 1);
    for (int e = 1; e <= reckoning_.entries(); ++e) {
      EXPECT_EQ(std::ranges::count(material.mat_ar, e), reckoning_.Weight(e) + offset);
    }
  }

  void CheckTest() {
    const TestRest& test = p_->run().test;
    EXPECT_EQ(test.rest_aufgaben, test.test_aufgaben - tasks_);
    EXPECT_EQ(test.test_aufgaben % 2, 0);
    const int half = test.test_aufgaben / 2;
    if (tasks_ != half && tasks_ != 2 * half) return;
    // Each half holds every chord, since it is drawn without replacement from a bag that does.
    const auto begin = drawn_.end() - half * p_->settings().akk_anzahl;
    if (NothingWasRefused()) {
      for (int e = 1; e <= reckoning_.entries(); ++e) {
        EXPECT_GE(std::count(begin, drawn_.end(), e), 1) << "entry " << e;
      }
    }
  }
  /// A draw gives up on the bag only where one and the same chord would follow itself on the same
  /// root, which takes few chords or one root.
  bool NothingWasRefused() const {
    return p_->settings().grundton_art == 0 && reckoning_.entries() >= 8;
  }

  bool Over() {
    const LaufStatus status = p_->run().lauf_status;
    if (status == LaufStatus::kTestZuEnde) return true;
    if (status == LaufStatus::kTrainingZuEnde) {
      solved_ = reckoning_.Solved();
      EXPECT_EQ(Sheet().ergebnis_anz[1].visible, solved_);
      EXPECT_EQ(Sheet().ergebnis_anz[2].visible, !solved_);
      EXPECT_EQ(p_->host.Stored("A1"), TaggedValue(TaggedValue::Array{"False"}));
      return true;
    }
    return false;
  }
  /// A test whose time is up goes to the results by itself, and its last task does not count.
  bool TimeIsUp() const { return mode_ != kTraining && p_->program.testergebnis() != nullptr; }

  void LeaveForGood() {
    p_->LeaveWith(MessageBox::Answer::kNo);
    CheckGone();
  }

  void ContinueInAnotherProcess() {
    const int percent = Sheet().matboxanz.percent;
    std::vector<BoardEntry> board;
    for (int e = 1; e <= reckoning_.entries(); ++e) board.push_back(p_->program.board()[e]);
    p_->SaveAndLeave();
    CheckGone();
    auto next = std::make_unique<ModeFixture>();
    next->Continue(p_->host);
    p_ = std::move(next);
    ASSERT_NE(p_->program.arbeitsblatt1(), nullptr);
    EXPECT_EQ(Sheet().matboxanz.percent, percent);
    for (int e = 1; e <= reckoning_.entries(); ++e) {
      EXPECT_EQ(p_->program.board()[e], board[static_cast<std::size_t>(e) - 1]);
    }
    reckoning_.Resume(0);
  }

  void CheckGone() {
    EXPECT_EQ(p_->program.arbeitsblatt1(), nullptr);
    EXPECT_TRUE(p_->settings_screen().visible);
    EXPECT_EQ(p_->documents.Latest().saves, 1);
    EXPECT_TRUE(p_->host.errors.empty());
  }

  void CheckResults() {
    timed_out_ = TimeIsUp();
    if (!timed_out_) {
      ASSERT_TRUE(Sheet().zurueck.Press());
    }
    p_->loop.Advance(300);
    ASSERT_TRUE(p_->results().visible);
    double sum = 0;
    int count = 0;
    for (int e = 1; e <= reckoning_.entries(); ++e) {
      const Label& cell = p_->results().ergebnis[e];
      const std::optional<double> percent = reckoning_.Percent(e);
      ASSERT_TRUE(cell.visible);
      if (!percent) {
        EXPECT_EQ(cell.caption, "");
        continue;
      }
      EXPECT_NEAR(std::stod(cell.caption), *percent, 0.0502) << "entry " << e;
      sum += *percent;
      ++count;
    }
    const Label& total = p_->results().ergebnis[0];
    if (count > 0) {
      EXPECT_NEAR(std::stod(total.caption), sum / count, 0.0502);
    }
    if (skill_ == Skill::kPerfect && !timed_out_) {
      EXPECT_EQ(total.caption, "100.0%");
    }
    ASSERT_TRUE(p_->results().cmdOK[0].Press());
    ASSERT_TRUE(p_->results().cmdOK[1].Press());
    CheckGone();
  }
  Dice dice_;
  Skill skill_;
  int mode_;
  std::unique_ptr<ModeFixture> p_;
  Reckoning reckoning_;
  std::vector<Slot> slots_;
  std::vector<int> drawn_;
  int tasks_ = 0;
  int right_ = 0;
  int wrong_ = 0;
  bool solved_ = false;
  bool timed_out_ = false;
};

class StudentSimulation : public testing::TestWithParam<int> {};

TEST_P(StudentSimulation, AgreesWithASecondReckoning) {
  for (int i = 0; i < kCoursesOfASeed; ++i) {
    const auto seed = static_cast<unsigned>(GetParam() * kCoursesOfASeed + i);
    const auto skill = static_cast<Skill>(i % 7);
    const int mode = std::vector{kTraining, kTest, kPruefung}[static_cast<std::size_t>(i % 3)];
    SCOPED_TRACE("seed " + std::to_string(seed) + " skill " + std::to_string(i % 7) + " mode " +
                 std::to_string(mode));
    Course course(seed, skill, mode);
    course.Go();
    if (mode == kTraining && skill == Skill::kPerfect) {
      EXPECT_TRUE(course.solved());
    }
    if (mode == kTraining && skill == Skill::kHopeless) {
      EXPECT_FALSE(course.solved());
    }
    ASSERT_FALSE(HasFailure());
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, StudentSimulation, testing::Range(0, kSeeds));

}  // namespace
}  // namespace vmod17

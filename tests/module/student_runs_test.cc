// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Students of every skill, at settings that they choose on the screen, through trainings, tests and
// exams: to the end, out of time, or left in the middle and taken up again by another process. They
// keep their own books and compare them with what they see after each event.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "module/student_book.h"
#include "worksheet/mode_fixture.h"

namespace vmod17 {
namespace {

constexpr int kTests = 8;
constexpr int kStudentsOfATest = 32;
constexpr int kRunsOfAStudent = 8;

/// Draws that depend on the seed alone, on every system.
class Dice {
 public:
  explicit Dice(unsigned seed) : engine_(seed) {}
  /// 0 to `n` - 1.
  int Below(int n) { return static_cast<int>(engine_() % static_cast<unsigned>(n)); }
  bool OneIn(int n) { return Below(n) == 0; }
  int Of(const std::vector<int>& values) {
    return values[static_cast<std::size_t>(Below(static_cast<int>(values.size())))];
  }

 private:
  std::mt19937 engine_;
};

enum class Skill { kPerfect, kHopeless, kRandom, kSlow, kRepeats, kConfuses, kGuesses };
constexpr int kSkills = 7;

struct Totals {
  int trainings = 0;
  int continued = 0;
  int tests = 0;
  int exams = 0;
  int tasks = 0;
  int clicks = 0;
  int solved = 0;
  int too_hard = 0;
  int by_tasks = 0;
  int by_time = 0;
  int left = 0;
  int whole_tests = 0;  ///< whose bag never had to be given up
};

void ChooseMaterial(Dice& dice, Einstellung1& e) {
  e.aus_w.Choose(dice.OneIn(4) ? 1 : 0);
  e.akk_grp.Choose(dice.OneIn(3) ? 1 : 0);
  if (e.aus_w.chosen() == 0) {
    while (e.klanglst[1].count() > 0) e.klanglst[1].Choose(0);
    for (int i = dice.Below(3); i >= 0; --i)
      e.klanglst[0].Choose(dice.Below(e.klanglst[0].count()));
  }
  while (e.grdeinst[2].visible && e.grplst[0].count() > 0 &&
         (!e.cmdOK.Reachable() || dice.OneIn(2))) {
    e.grplst[0].Choose(dice.Below(e.grplst[0].count()));
  }
}

void ChooseSettings(Dice& dice, Einstellung1& e) {
  for (ItemList* list : {&e.akkzahl_cmb, &e.temp_Combo, &e.arpeg_cmb, &e.oktav_cmb}) {
    list->Choose(dice.Below(list->count()));
  }
  e.Combo_tonraum.Choose(dice.Below(e.Combo_tonraum.count()));
  for (OptionGroup* group :
       {&e.Tonart, &e.frequenz, &e.betonung, &e.abfrage, &e.akk_anzg, &e.kl_farb}) {
    group->Choose(dice.Below(2));
  }
}

/// A training that was left, as its student remembers it.
struct Kept {
  StudentBook book;
  std::vector<BoardEntry> board;
  bool too_wide = false;  ///< voicings on the widest range, which cannot be taken up again
  int akk_anzahl = 0;
  int right = 0;
  int wrong = 0;
  int repeats = 0;
};

/// One student, with one run after the other in as many processes as it takes.
class Student {
 public:
  Student(unsigned seed, Totals& totals) : dice_(seed), seed_(seed), totals_(totals) {}

  void Go() {
    NewProcess();
    for (int run = 0; run < kRunsOfAStudent && !Failed(); ++run) {
      if (p_->ended || dice_.OneIn(4)) NewProcess();
      skill_ = static_cast<Skill>((static_cast<int>(seed_) + run) % kSkills);
      SCOPED_TRACE("run " + std::to_string(run) + " skill " +
                   std::to_string(static_cast<int>(skill_)));
      leaves_ = dice_.OneIn(2);
      BeginRun();
      if (!Failed()) DoRun();
    }
  }

 private:
  static bool Failed() { return ::testing::Test::HasFailure(); }
  Arbeitsblatt1& sheet() { return p_->worksheet(); }
  Einstellung1& screen() { return p_->settings_screen(); }
  const Material& material() { return p_->run().material; }
  bool Gone() { return p_->program.arbeitsblatt1() == nullptr; }
  bool TimeUp() { return p_->program.testergebnis() != nullptr; }
  bool Training() const { return mode_ == kTraining || mode_ == kWeiter; }
  bool ByChord() { return p_->settings().best_art == 0; }
  int Chords() { return p_->settings().akk_anzahl; }
  int Entries() { return p_->program.board().akk_zahl; }
  int Choices() { return ByChord() ? Entries() : p_->settings().grp_anzahl; }

  // ---- To a run -------------------------------------------------------------------------------

  void NewProcess() {
    const auto records = p_ ? p_->host.records : decltype(p_->host.records)();
    p_ = std::make_unique<ModeFixture>(dice_.Below(86400));
    p_->host.records = records;
    p_->random.Restart(dice_.Below(30000));
    p_->system.decimal_point = dice_.OneIn(2) ? "," : ".";
    p_->ToSettings();
    EXPECT_EQ(screen().BietetFortsetzung(), kept_.has_value());
    process_steps_ = 0;
  }

  void BeginRun() {
    do {
      Choose();
      p_->StartRun();
      ASSERT_FALSE(Gone()) << "mode " << mode_ << ": "
                           << (p_->host.errors.empty() ? "" : p_->host.errors.back().text);
      // One chord on one root has no second task.
      if (Entries() > 1) break;
      process_steps_ = std::min(4, Choices() - 1);
      EXPECT_TRUE(sheet().zurueck.Press());
    } while (true);
    BeginBooks();
    CheckWaiting();
    if (Training()) {
      CheckWeights();
    } else {
      TakeBag();
    }
  }

  void Choose() {
    if (kept_ && !dice_.OneIn(4)) {
      mode_ = kWeiter;
      EXPECT_TRUE(screen().training_Combo.Choose(kWeiter));
      if (!kept_->too_wide) return;
      EXPECT_EQ(screen().training_Combo.list_index(), kTraining);
      EXPECT_EQ(p_->messages.warnings.size(), 1u);
      p_->messages.warnings.clear();
    }
    mode_ = dice_.Of({kTraining, kTraining, kTest, kPruefung});
    EXPECT_TRUE(screen().training_Combo.Choose(kFrei));
    if (mode_ != kPruefung) ChooseMaterial(dice_, screen());
    ChooseSettings(dice_, screen());
    EXPECT_TRUE(screen().training_Combo.Choose(mode_));
    if (mode_ == kPruefung) {
      EXPECT_TRUE(screen().prfnr_Comb.Choose(dice_.Below(5)));
    }
    ASSERT_TRUE(screen().cmdOK.Reachable());
  }

  void BeginBooks() {
    ++(mode_ == kTest       ? totals_.tests
       : mode_ == kPruefung ? totals_.exams
       : mode_ == kWeiter   ? totals_.continued
                            : totals_.trainings);
    right_ = wrong_ = repeats_ = tasks_ = slot_ = 0;
    carried_ = {};
    drawn_.clear();
    clicks_.clear();
    gave_up_ = false;
    status_ = LaufStatus::kNochKeine;
    if (mode_ == kWeiter) return ContinueBooks();
    book_.Begin({Entries(), Choices(), Training(), ByChord()});
    process_steps_ = book_.wrong_clicks();
  }

  void ContinueBooks() {
    ASSERT_EQ(Chords(), kept_->akk_anzahl);
    ASSERT_EQ(Board(), kept_->board);
    book_ = kept_->book;
    // A process counts as many confusions as its last new board has shown it to.
    book_.Continue(process_steps_);
    carried_ = {kept_->right, kept_->wrong};
    right_ = kept_->right;
    wrong_ = kept_->wrong;
    repeats_ = kept_->repeats;
  }

  std::vector<BoardEntry> Board() {
    std::vector<BoardEntry> board;
    for (int e = 1; e <= Entries(); ++e) board.push_back(p_->program.board()[e]);
    return board;
  }

  // ---- Through it -----------------------------------------------------------------------------

  void DoRun() {
    while (!Failed() && !Gone()) {
      if (TimeUp()) return PassResults();
      if (Ended()) return EndRun();
      if (WantsToLeave()) return Leave();
      if (status_ != LaufStatus::kNochKeine && dice_.OneIn(20)) {
        ControlRepeat();
        continue;
      }
      ASSERT_LT(tasks_, 2000);
      DoTask();
    }
  }
  bool Ended() const {
    return status_ == LaufStatus::kTrainingZuEnde || status_ == LaufStatus::kTestZuEnde;
  }
  bool WantsToLeave() { return leaves_ && dice_.OneIn(25); }

  void DoTask() {
    if (!CallTask()) return;
    NoteTask();
    if (WantsToLeave()) return Leave();
    if (!WaitForSound()) return;
    while (slot_ >= 1 && slot_ <= Chords()) {
      AnswerSlot();
      if (Failed() || Gone() || TimeUp()) return;
    }
    EndTask();
  }

  /// Calls the next task, or waits for it; false when the run is over instead.
  bool CallTask() {
    const int lessons = p_->Lessons();
    if (WantsToLeave()) {
      p_->AtMoment(1 + dice_.Below(3), [this] { LeaveInside(); });
    }
    if (p_->settings().abfolge == 0) {
      EXPECT_TRUE(sheet().CmdNextAufg.Press());
    }
    while (!Gone() && !TimeUp() && p_->Lessons() == lessons) p_->loop.Advance(100);
    p_->loop.meanwhile = nullptr;
    return !Gone() && !TimeUp();
  }

  void NoteTask() {
    ++tasks_;
    ++totals_.tasks;
    slot_ = 1;
    noted_.clear();
    clicks_.push_back(0);
    for (int s = 1; s <= Chords(); ++s) {
      noted_.push_back({.entry = p_->Asked(s), .wrong = {}, .repeats = 0, .tenths = 0});
      if (!Training()) TakeFromBag(s, p_->Asked(s));
      drawn_.push_back(p_->Asked(s));
    }
    EXPECT_EQ(p_->Lessons(), tasks_);
    CheckPlaying();
  }

  /// Until the sound is over; false when the time was up before.
  bool WaitForSound() {
    p_->loop.Advance(sheet().spieltimer.interval);
    while (!Gone() && !TimeUp() && sheet().spieltimer.enabled) p_->loop.Advance(10);
    opened_at_ = p_->loop.Elapsed();
    return !Gone() && !TimeUp();
  }

  void AnswerSlot() {
    struck_.clear();
    NotedSlot& noted = noted_.at(slot_ - 1);
    const int slot = slot_;
    first_click_ = true;
    if (skill_ == Skill::kRepeats || (skill_ == Skill::kRandom && dice_.OneIn(5))) {
      for (int i = dice_.Below(4); i > 0; --i) {
        if (!Repeat(noted)) return;
      }
    }
    while (slot_ == slot && !Failed()) {
      p_->loop.Advance(Thinking() * 100);
      if (TimeUp()) return;
      CheckAnswering();
      if (WantsToLeave()) return Leave();
      Click(noted, Choice(noted));
    }
  }

  /// Tenths of a second before a click.
  int Thinking() {
    switch (skill_) {
      case Skill::kSlow:
        return dice_.Below(120);
      case Skill::kRandom:
      case Skill::kGuesses:
        return dice_.Below(40);
      default:
        return dice_.Below(20);
    }
  }

  int Choice(const NotedSlot& noted) {
    const int right = p_->RightChoice();
    const std::vector<int> open = p_->OpenChoices();
    switch (skill_) {
      case Skill::kHopeless: {
        const int wrong = p_->WrongChoice();
        return wrong == 0 ? right : wrong;
      }
      case Skill::kRandom:
        return dice_.Of(open);
      case Skill::kGuesses:
        return dice_.OneIn(3) ? dice_.Of(open) : right;
      case Skill::kConfuses: {
        const int other = 3 - right;
        const bool confused = ByChord() && right <= 2 && noted.wrong.empty() && dice_.OneIn(2);
        return confused ? other : right;
      }
      default:
        return right;
    }
  }

  bool Repeat(NotedSlot& noted) {
    constexpr double kSilence = 50;
    const double gathered = p_->loop.Elapsed() + kSilence - opened_at_;
    EXPECT_TRUE(sheet().wieder.Press());
    if (TimeUp()) return false;
    ++repeats_;
    ++noted.repeats;
    CheckPlaying();
    if (!WaitForSound()) return false;
    opened_at_ -= gathered;
    CheckAnswering();
    return true;
  }

  void Click(NotedSlot& noted, int choice) {
    const bool right = choice == p_->RightChoice();
    const double waited = p_->loop.Elapsed() - opened_at_;
    const int before = p_->Answers();
    ASSERT_TRUE(p_->Choice(choice).Press()) << choice;
    ++clicks_.back();
    ++totals_.clicks;
    NoteAnswer(noted, before, right, waited);
    opened_at_ = p_->loop.Elapsed();
    if (right) {
      ++right_;
      return CloseSlot();
    }
    ++wrong_;
    noted.wrong.push_back(choice);
    struck_.insert(choice);
    status_ = LaufStatus::kWeitererVersuch;
    if (static_cast<int>(noted.wrong.size()) == book_.wrong_clicks()) CloseSlot();
  }

  /// The answer of a click stands complete in the record.
  void NoteAnswer(NotedSlot& noted, int number, bool right, double waited) {
    const MemoryXmlNode& answer = *p_->lesson().Find("answers")->children.at(number - 1);
    ASSERT_EQ(answer.children.size(), 3u);
    const auto value = [&](int i) { return answer.children[i]->Find("value")->text; };
    EXPECT_EQ(value(2), right ? "true" : "false");
    EXPECT_EQ(answer.Attribute("lfd"), std::to_string(noted.wrong.size() + 1));
    const int tenths = std::stoi(value(0));
    // A Single late in the day tells no less than eight milliseconds.
    EXPECT_NEAR(tenths, waited / 100, 0.85);
    if (std::exchange(first_click_, false)) {
      noted.tenths = tenths;
      EXPECT_EQ(value(1), std::to_string(noted.repeats));
    }
  }

  void CloseSlot() {
    ++slot_;
    status_ = LaufStatus::kNaechsterSlot;
    struck_.clear();
  }

  void EndTask() {
    slot_ = 0;
    status_ = LaufStatus::kAufgabeFertig;
    for (const NotedSlot& noted : noted_) book_.Note(noted);
    if (Training()) {
      if (book_.Over()) EndTraining();
      CheckWeights();
    } else {
      const TestRest& test = p_->run().test;
      EXPECT_EQ(test.rest_aufgaben, test.test_aufgaben - tasks_);
      if (tasks_ == test.test_aufgaben) status_ = LaufStatus::kTestZuEnde;
      if (tasks_ == test.test_aufgaben / 2) TakeBag();
      CheckBagOfTest();
    }
    CheckWaiting();
  }

  void EndTraining() {
    status_ = LaufStatus::kTrainingZuEnde;
    ++(book_.Solved() ? totals_.solved : totals_.too_hard);
    kept_.reset();
    EXPECT_EQ(p_->host.Stored("A1"), TaggedValue(TaggedValue::Array{"False"}));
    EXPECT_EQ(sheet().ergebnis_anz[1].visible, book_.Solved());
    EXPECT_EQ(sheet().ergebnis_anz[2].visible, !book_.Solved());
    if (mode_ != kTraining) return;
    if (skill_ == Skill::kPerfect) {
      EXPECT_EQ(tasks_, TasksToSolve());
    }
    if (skill_ == Skill::kHopeless && ByChord()) {
      EXPECT_EQ(tasks_, TasksToGiveUp());
    }
  }

  /// Each chord has to be asked so often that fours take its weight away.
  int TasksToSolve() {
    const int needed = (book_.start() + 3) / 4;
    std::map<int, int> asked;
    int open = Entries();
    for (std::size_t i = 0; i < drawn_.size(); ++i) {
      if (++asked[drawn_[i]] == needed) --open;
      if (open == 0) return static_cast<int>(i) / Chords() + 1;
    }
    return 0;
  }
  /// Each lost slot adds its points, and one for each chord that was taken for it.
  int TasksToGiveUp() {
    const int of_a_task = Chords() * 3 * book_.wrong_clicks();
    return (Entries() * book_.start() + of_a_task - 1) / of_a_task;
  }

  void ControlRepeat() {
    EXPECT_TRUE(sheet().wieder2.Press());
    if (TimeUp()) return;
    CheckPlaying();
    if (WaitForSound()) CheckWaiting();
  }

  // ---- Out of it ------------------------------------------------------------------------------

  void EndRun() {
    if (dice_.OneIn(4)) ControlRepeat();
    if (status_ == LaufStatus::kTestZuEnde) ++totals_.by_tasks;
    if (status_ == LaufStatus::kTestZuEnde && !gave_up_) {
      ++totals_.whole_tests;
      for (int e = 1; e <= Entries(); ++e) EXPECT_GE(book_.Asked(e), 2) << e;
    }
    EXPECT_EQ(p_->documents.Latest().saves, 0);
    EXPECT_TRUE(sheet().zurueck.Press());
    PassResults();
  }

  void PassResults() {
    if (!Ended()) {
      ++totals_.by_time;
      EXPECT_EQ(p_->run().test.rest_sek, 0);
      EXPECT_EQ(p_->documents.Latest().saves, 1);
      EXPECT_FALSE(sheet().zurueck.Reachable());
    }
    p_->loop.Advance(300);
    ASSERT_TRUE(p_->results().visible);
    CheckMarks();
    if (p_->results().zeit_um.visible) p_->loop.Advance(p_->results().schonfrist.interval);
    if (skill_ == Skill::kGuesses && dice_.OneIn(2)) {
      p_->results().Form_Close();
    } else {
      EXPECT_TRUE(p_->results().cmdOK[0].Press());
      EXPECT_TRUE(p_->results().cmdOK[1].Press());
    }
    CheckLeft();
  }

  void LeaveInside() {
    if (p_->run().akk_nr < 1) return;
    Leave();
  }

  void Leave() {
    ++totals_.left;
    const bool asked = Training() && p_->run().schalter_zaehler > 0;
    const std::size_t questions = p_->messages.questions.size();
    const bool save = dice_.OneIn(2);
    const int way = dice_.Below(5);
    // Closed by the window a test asks whether it is meant.
    const bool test_asks = way == 1 && mode_ >= kTest;
    p_->messages.answer = save || test_asks ? MessageBox::Answer::kYes : MessageBox::Answer::kNo;
    Kept now{book_, Board(), TooWide(), Chords(), right_, wrong_, repeats_};
    if (way == 0) {
      if (asked && (mode_ == kWeiter || !kept_)) kept_ = now;
      p_->program.Leave();
      EXPECT_TRUE(p_->ended);
      return CheckRecord();
    }
    if (way == 1) {
      sheet().Form_Close();
    } else {
      EXPECT_TRUE(sheet().zurueck.Press());
    }
    EXPECT_EQ(p_->messages.questions.size(), questions + (asked || test_asks ? 1 : 0));
    if (asked && save) kept_ = now;
    CheckLeft();
    EXPECT_EQ(screen().BietetFortsetzung(), kept_.has_value());
  }

  /// Voicings come back one octave wider, where the place of their range may not exist.
  bool TooWide() {
    const int wider = p_->settings().oktav_ber + 1;
    return mode_ == kTraining && p_->settings().akk_form == 1 &&
           screen().Combo_tonraum.list_index() > 3 - wider;
  }

  void CheckLeft() {
    EXPECT_TRUE(Gone());
    EXPECT_TRUE(screen().visible);
    CheckRecord();
  }

  void CheckRecord() {
    EXPECT_EQ(p_->documents.Latest().saves, 1);
    EXPECT_EQ(p_->documents.Latest().saved, p_->record().Outline());
    EXPECT_TRUE(p_->host.errors.empty());
    EXPECT_TRUE(p_->messages.warnings.empty());
    const auto& lessons = p_->record().Find("lessons")->children;
    // A task in whose sound the run was left stands in the record, and has no answer.
    ASSERT_GE(lessons.size(), clicks_.size());
    ASSERT_LE(lessons.size(), clicks_.size() + 1);
    clicks_.resize(lessons.size());
    int told[2] = {0, 0};
    for (std::size_t i = 0; i < lessons.size(); ++i) {
      const bool open = i + 1 == lessons.size() && (slot_ > 0 || clicks_[i] == 0);
      CheckLesson(*lessons[i], clicks_[i], open, told);
    }
    EXPECT_EQ(told[1], right_ - carried_.right);
    EXPECT_EQ(told[0], wrong_ - carried_.wrong);
  }

  void CheckLesson(const MemoryXmlNode& lesson, int clicks, bool open, int (&told)[2]) {
    const auto& answers = lesson.Find("answers")->children;
    EXPECT_EQ(static_cast<int>(answers.size()), clicks + (open ? 1 : 0));
    for (int i = 0; i < clicks; ++i) {
      ASSERT_EQ(answers[i]->children.size(), 3u) << "an answer that was not closed";
      ++told[answers[i]->children[2]->Find("value")->text == "true" ? 1 : 0];
    }
  }

  // ---- What must hold -------------------------------------------------------------------------

  void CheckCounters() {
    EXPECT_EQ(sheet().zaehler[0].caption, std::to_string(right_));
    EXPECT_EQ(sheet().zaehler[1].caption, std::to_string(wrong_));
    EXPECT_EQ(sheet().whlgzaehler.caption, std::to_string(repeats_));
    EXPECT_EQ(p_->run().lauf_status, status_);
    EXPECT_TRUE(sheet().zurueck.Reachable());
  }

  void CheckPlaying() {
    EXPECT_TRUE(p_->OpenChoices().empty());
    EXPECT_FALSE(sheet().wieder.Reachable());
    EXPECT_FALSE(sheet().wieder2.Reachable());
    EXPECT_FALSE(sheet().CmdNextAufg.Reachable());
    EXPECT_FALSE(sheet().WahlAutomat.enabled);
    EXPECT_TRUE(sheet().spieltimer.enabled);
    CheckCounters();
  }

  void CheckAnswering() {
    std::vector<int> open;
    for (int i = 1; i <= (ByChord() ? Entries() : kGruppen); ++i) {
      const bool shown = ByChord() || p_->program.board().grp_aktiv_ar[i] == 1;
      if (shown && !struck_.contains(i)) open.push_back(i);
    }
    EXPECT_EQ(p_->OpenChoices(), open);
    EXPECT_EQ(p_->OpenSlots(), std::vector<int>{slot_});
    EXPECT_EQ(p_->run().akk_nr, slot_);
    EXPECT_TRUE(sheet().wieder.Reachable());
    EXPECT_FALSE(sheet().wieder2.Reachable());
    EXPECT_FALSE(sheet().CmdNextAufg.Reachable());
    CheckCounters();
  }

  void CheckWaiting() {
    const bool first = tasks_ == 0;
    const bool next = !Ended();
    EXPECT_TRUE(p_->OpenChoices().empty());
    EXPECT_TRUE(p_->OpenSlots().empty());
    EXPECT_FALSE(sheet().wieder.Reachable());
    EXPECT_EQ(sheet().wieder2.Reachable(), !first);
    EXPECT_EQ(sheet().CmdNextAufg.Reachable(), next && p_->settings().abfolge == 0);
    EXPECT_EQ(sheet().WahlAutomat.enabled, next && p_->settings().abfolge == 1);
    EXPECT_EQ(sheet().zurueck.back_color == Rgb(255, 255, 0), !next);
    // A run that has ended keeps what its last task but one has left.
    if (next) {
      EXPECT_EQ(p_->run().schalter_zaehler, first ? 0 : 1);
    }
    CheckCounters();
  }

  /// The weights, what is left, the gauge and the bag agree with each other and with the book.
  void CheckWeights() {
    const Material& m = material();
    std::map<int, int> weights;
    for (int i = 1; i <= m.mat_posten; ++i) {
      weights[m.mat_tab[i][0]] = m.mat_tab[i][1];
      if (i > 1) {
        EXPECT_GE(m.mat_tab[i - 1][1], m.mat_tab[i][1]);
      }
    }
    ASSERT_EQ(weights, book_.weights()) << "task " << tasks_;
    const int rest = book_.Solved() ? 1 : std::min(book_.Rest(), book_.Bound());
    EXPECT_EQ(m.mat_rest, rest);
    EXPECT_EQ(sheet().matboxanz.percent,
              static_cast<int>(std::nearbyint(100.0 * rest / book_.Bound())));
    CheckBagOfTraining();
  }

  /// The bag follows the weights, those that need most practice in front, as long as it is built.
  void CheckBagOfTraining() {
    const Material& m = material();
    const int sum = book_.Rest();
    const bool built =
        tasks_ == 0 && mode_ == kTraining ? true : sum > 0 && sum < Entries() * 8 - 1;
    if (built) {
      const int least = m.mat_tab.back()[1];
      const int extra = least < 1 ? 1 - least : 0;
      bag_.assign(1, 0);
      for (int i = 1; i <= m.mat_posten; ++i) {
        bag_.insert(bag_.end(), static_cast<std::size_t>(m.mat_tab[i][1] + extra), m.mat_tab[i][0]);
      }
    } else if (tasks_ == 0) {
      bag_.clear();
    }
    EXPECT_EQ(m.mat_ar, bag_);
    EXPECT_EQ(m.mat_anzahl, std::max(0, static_cast<int>(bag_.size()) - 1));
  }

  /// The bag of half a test has every chord and as many as are drawn from it.
  void TakeBag() {
    const Material& m = material();
    EXPECT_EQ(m.mat_anzahl * 2, p_->run().test.test_aufgaben * Chords());
    ASSERT_EQ(static_cast<int>(m.mat_ar.size()), m.mat_anzahl + 1);
    bag_.assign(m.mat_ar.begin() + 1, m.mat_ar.end());
    for (int e = 1; e <= Entries(); ++e) EXPECT_GE(std::ranges::count(bag_, e), 1) << e;
    for (const int e : bag_) EXPECT_TRUE(e >= 1 && e <= Entries()) << e;
  }

  /// A chord comes from the bag, unless that was given up: then what it held last was refused,
  /// being the chord just before.
  void TakeFromBag(int slot, int entry) {
    const auto copy = std::ranges::find(bag_, entry);
    if (copy != bag_.end()) {
      bag_.erase(copy);
      return;
    }
    gave_up_ = true;
    EXPECT_TRUE(slot > 1 || Chords() == 1) << "the first chord of such a task is never refused";
    const int before = slot > 1 ? drawn_.back() : drawn_.empty() ? 0 : drawn_.back();
    EXPECT_GE(std::ranges::count(bag_, before), 1);
  }

  void CheckBagOfTest() {
    std::vector<int> left;
    for (const int e : material().mat_ar) {
      if (e != 0) left.push_back(e);
    }
    std::ranges::sort(left);
    std::ranges::sort(bag_);
    EXPECT_EQ(left, bag_);
  }

  // ---- The marks ------------------------------------------------------------------------------

  void CheckMarks() {
    double sum = 0;
    int count = 0;
    for (int e = 1; e <= kBrettGroesse; ++e) {
      const Label& cell = p_->results().ergebnis[e];
      EXPECT_EQ(cell.visible, e <= Entries());
      if (e > Entries()) continue;
      const auto mark = book_.MarkOf(e);
      EXPECT_EQ(cell.caption.empty(), !mark.has_value()) << e;
      EXPECT_EQ(cell.back_color.has_value(), mark.has_value()) << e;
      if (!mark) continue;
      EXPECT_NEAR(Told(cell), mark->Percent(), 0.0501) << e;
      EXPECT_EQ(cell.back_color, Shade(mark->s * 5, mark->d)) << e << ": " << cell.caption;
      sum += mark->Percent();
      ++count;
    }
    CheckTotal(count == 0 ? 0 : sum / count);
  }

  void CheckTotal(double percent) {
    const Label& total = p_->results().ergebnis[0];
    if (percent == 0) {
      EXPECT_EQ(total.caption, "0.0 %");
      EXPECT_EQ(total.back_color, Bgr(0x8080FF));
      return;
    }
    EXPECT_NEAR(Told(total), percent, 0.0502);
    // Green from 0.8 per cent on.
    if (percent > 0.81) {
      EXPECT_EQ(total.back_color, Bgr(0x80FF80));
    }
    if (skill_ != Skill::kPerfect || gave_up_ || mode_ == kWeiter || !Ended()) return;
    EXPECT_EQ(total.caption, "100" + p_->system.decimal_point + "0%");
  }

  double Told(const Label& cell) {
    std::string text = cell.caption;
    EXPECT_EQ(text.back(), '%');
    const std::size_t point = text.find(p_->system.decimal_point);
    EXPECT_NE(point, std::string::npos) << text;
    if (point != std::string::npos) text[point] = '.';
    return std::strtod(text.c_str(), nullptr);
  }

  /// The shade of a mark, from five times its fraction, below 0 on both sides.
  static Color Shade(int fifths, int d) {
    const Color shades[] = {Bgr(0x8080FF), Bgr(0xC0C0FF), Bgr(0xC0FFFF), Bgr(0xC0FFC0)};
    for (int k = 1; k <= 4; ++k) {
      if (-fifths <= k * -d) return shades[k - 1];
    }
    return Bgr(0x80FF80);
  }

  /// Clicks of earlier processes.
  struct Carried {
    int right = 0;
    int wrong = 0;
  };

  Dice dice_;
  unsigned seed_;
  Totals& totals_;
  std::unique_ptr<ModeFixture> p_;
  std::optional<Kept> kept_;
  int process_steps_ = 0;  ///< confusions of a slot that the process counts

  // The present run.
  Skill skill_ = Skill::kPerfect;
  bool leaves_ = false;  ///< may leave at any moment
  int mode_ = kTraining;
  StudentBook book_;
  LaufStatus status_ = LaufStatus::kNochKeine;
  int right_ = 0;
  int wrong_ = 0;
  int repeats_ = 0;
  Carried carried_;
  int tasks_ = 0;
  std::vector<int> drawn_;
  std::vector<int> clicks_;  ///< by task
  std::vector<int> bag_;
  bool gave_up_ = false;

  // The present task.
  int slot_ = 0;  ///< the open one; 0 between tasks
  std::vector<NotedSlot> noted_;
  std::set<int> struck_;
  bool first_click_ = true;
  double opened_at_ = 0;  ///< when the clock of the slot would have started without any repeat, ms
};

class StudentRuns : public ::testing::TestWithParam<int> {};

TEST_P(StudentRuns, AgreeWithTheBooksOfTheStudents) {
  Totals totals;
  for (int i = 1; i <= kStudentsOfATest; ++i) {
    const auto seed = static_cast<unsigned>(GetParam() * kStudentsOfATest + i);
    SCOPED_TRACE("seed " + std::to_string(seed));
    Student(seed, totals).Go();
    ASSERT_FALSE(HasFailure()) << "seed " << seed;
  }
  for (const auto& [name, count] :
       std::initializer_list<std::pair<const char*, int>>{{"trainings", totals.trainings},
                                                          {"continued", totals.continued},
                                                          {"tests", totals.tests},
                                                          {"exams", totals.exams},
                                                          {"tasks", totals.tasks},
                                                          {"clicks", totals.clicks},
                                                          {"solved", totals.solved},
                                                          {"too_hard", totals.too_hard},
                                                          {"by_tasks", totals.by_tasks},
                                                          {"by_time", totals.by_time},
                                                          {"left", totals.left},
                                                          {"whole_tests", totals.whole_tests}}) {
    RecordProperty(name, count);
    EXPECT_GT(count, 0) << name << ": nobody came there";
  }
}

// ---- How long a training takes ------------------------------------------------------------------

struct Board {
  std::vector<int> klangtypen;
  std::vector<int> gruppen;
};

TEST(TrainingWithoutAMistake, IsSolvedAfterAsManyTasksAsItsWeightsGive) {
  std::set<int> sizes;
  const std::vector<Board> boards = {{{3}, {}},     {{7}, {2, 5}}, {{6}, {2, 3}}, {{4}, {3, 7}},
                                     {{5}, {1, 4}}, {{6}, {4, 5}}, {{4}, {1, 8}}, {{4, 5}, {2, 3}}};
  for (const Board& board : boards) {
    ModeFixture p;
    p.BeginMode(kTraining, {}, board.klangtypen, board.gruppen);
    const int n = p.program.board().akk_zahl;
    sizes.insert(n);
    const int weight = n >= 8 ? 4 : 30 / n;
    const int rounds = (weight + 3) / 4;
    for (int round = 1; round <= rounds; ++round) {
      for (int e = 1; e <= n; ++e) {
        EXPECT_NE(p.run().lauf_status, LaufStatus::kTrainingZuEnde) << n;
        p.DoTask({e});
      }
    }
    EXPECT_EQ(p.run().lauf_status, LaufStatus::kTrainingZuEnde) << n;
    EXPECT_TRUE(p.worksheet().ergebnis_anz[1].visible);
    EXPECT_EQ(p.Lessons(), n * rounds);
  }
  EXPECT_GE(sizes.size(), 4u);
}

TEST(TrainingWithoutARightAnswer, IsTooHardAfterAsManyTasksAsItsWeightsGive) {
  for (const int akk_anzahl : {1, 2, 3, 4}) {
    ModeFixture p;
    p.BeginMode(kTraining, [=](ExerciseSettings& s) { s.akk_anzahl = akk_anzahl; });
    // Eight points and four chords that were taken for it: 12 for each, from 40 to 80.
    const int tasks = (40 + 12 * akk_anzahl - 1) / (12 * akk_anzahl);
    for (int task = 1; task <= tasks; ++task) {
      EXPECT_NE(p.run().lauf_status, LaufStatus::kTrainingZuEnde);
      p.PlayTask();
      for (int slot = 1; slot <= akk_anzahl; ++slot) p.LoseSlot();
    }
    EXPECT_EQ(p.run().lauf_status, LaufStatus::kTrainingZuEnde);
    EXPECT_TRUE(p.worksheet().ergebnis_anz[2].visible);
    EXPECT_EQ(p.worksheet().matboxanz.percent, 100);
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, StudentRuns, ::testing::Range(0, kTests));

}  // namespace
}  // namespace vmod17

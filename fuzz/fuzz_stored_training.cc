// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Takes up damaged trainings: as records alone, and in the whole program on fakes.
//
// Each case damages what a run has really saved. It is taken up only if a run can have left it,
// which is judged here a second time; else the student is told, stands before a new training, and
// the store is as it was. A fault is told with its records. The bounds on draws and virtual time
// are far above what any case needs.

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <exception>
#include <map>
#include <string>
#include <vector>

#include "fuzz_main.h"
#include "record_mutator.h"
#include "saved_trainings.h"
#include "training_facts.h"
#include "worksheet/worksheet_fixture.h"

namespace vmod17 {
namespace {

constexpr int kDrawsOfACase = 3'000'000;
constexpr double kVirtualMs = 3.6e6;
constexpr int kTasks = 3;
constexpr int kFortsetzung = 2;

void DemandNone(const std::string& fault) {
  if (!fault.empty()) Fault(fault);
}

/// Bit for bit, also where a float is not a number.
bool Same(const TaggedValue& a, const TaggedValue& b) {
  if (a.IsFloat() && b.IsFloat()) {
    const double x = a.Float();
    const double y = b.Float();
    return std::memcmp(&x, &y, sizeof x) == 0;
  }
  if (!a.IsArray() || !b.IsArray()) return a == b;
  return std::equal(a.Elements().begin(), a.Elements().end(), b.Elements().begin(),
                    b.Elements().end(), Same);
}

std::string TextOf(const TaggedValue& value) {
  if (value.IsString()) return '"' + value.String() + '"';
  if (value.IsInteger()) return std::to_string(value.Integer());
  if (value.IsFloat()) return "float " + std::to_string(value.Float());
  if (!value.IsArray()) return "empty";
  std::string text = "[";
  for (const TaggedValue& element : value.Elements()) text += TextOf(element) + ' ';
  return text + ']';
}

// --- the record alone

bool RunsAs(const StoredTraining& training, const TrainingFacts& facts) {
  Auswertung auswertung;
  auswertung.init_arr(kBrettGroesse, 3);
  Material material;
  material.SetzeFort(training.mat_tab, auswertung);
  return FaultOf(material).empty() && material.mat_posten == facts.n;
}

/// Returns whether it was taken.
bool TryRecord(const SavedTraining& origin, const TaggedValue& a1) {
  if (!a1.IsArray()) return false;
  const ExerciseSettings& settings = origin.settings;
  ChordTable table;
  table.SetzeKlangZahlen();
  ChordBoard board(table);
  StoredTraining training;
  try {
    training = StoredTraining::Read(a1.Elements(), settings);
    board.Uebernimm(
        {settings.Klangtypen(), settings.Gruppen(), settings.akk_form, settings.best_art},
        training.akk_tab);
  } catch (const RunTimeError& error) {
    Demand(error.number() == ErrorNumber::kTypeMismatch, "another error than a wrong record");
    Demand(board.akk_zahl == 0, "a board that was refused and taken");
    return false;
  }
  Demand(Same(training.Write(), a1), "a training that is not written as it was read");
  const TrainingFacts facts = TrainingFacts::Of(a1);
  DemandNone(FaultOf(facts, settings));
  Demand(board.akk_zahl == facts.n, "akk_zahl");
  for (int e = 1; e <= facts.n; ++e) {
    const auto& [klangtyp, row, group] = facts.board[static_cast<std::size_t>(e) - 1];
    const BoardEntry& entry = board[e];
    Demand(entry.klangtyp == klangtyp && entry.row == row && entry.group == group, "the board");
    const Chord& chord = ChordOfKlang(entry.klang);
    Demand(chord.klangtyp == klangtyp && chord.row == row, "a Klang number");
  }
  Demand(RunsAs(training, facts), "the material of a training that was taken");
  return true;
}

// --- the whole program

enum class Outcome { kNotOffered, kNotRestored, kLocked, kRefused, kRuns };
constexpr std::array<const char*, 5> kOutcomes = {"not offered", "settings not restored",
                                                  "nothing to choose from", "refused at the start",
                                                  "taken up"};

class ProgramTry {
 public:
  ProgramTry(const MutatedTraining& training, Dice& dice) : training_(training), dice_(dice) {}

  Outcome Run() {
    p_.host.SetStored("E1", training_.e1);
    p_.host.SetStored("A1", training_.a1);
    p_.ToSettings();
    Demand(p_.messages.warnings.empty(), "a message before anything was chosen");
    const Outcome outcome = TakeUp();
    if (outcome == Outcome::kRuns) {
      Play();
      Leave();
    } else {
      DemandStoreUntouched();
    }
    if (outcome != Outcome::kRuns && outcome != Outcome::kLocked) DemandNewTraining();
    Demand(p_.random.draws <= kDrawsOfACase, "too many draws");
    Demand(p_.loop.Elapsed() <= kVirtualMs, "too long");
    return outcome;
  }

 private:
  Outcome TakeUp() {
    Einstellung1& s = p_.settings_screen();
    Demand(s.training_Combo.Choose(kFortsetzung), "the level cannot be chosen");
    if (!p_.messages.warnings.empty()) {
      DemandWarnings(1);
      return Outcome::kNotRestored;
    }
    if (s.training_Combo.list_index() != kFortsetzung) return Outcome::kNotOffered;
    if (!s.cmdOK.Reachable()) {
      Demand(training_.e1_changed, "a training that cannot be begun");
      return Outcome::kLocked;
    }
    p_.StartRun();
    if (p_.messages.warnings.empty()) {
      Demand(p_.program.arbeitsblatt1() && p_.worksheet().loaded(), "no worksheet and no message");
      return Outcome::kRuns;
    }
    p_.loop.Advance(1000);
    DemandWarnings(2);
    Demand(p_.messages.warnings[1].title == "Melvado 2000", "the error's message");
    return Outcome::kRefused;
  }

  void DemandWarnings(std::size_t count) {
    Demand(p_.messages.warnings.size() == count, "too few or many messages");
    Demand(p_.messages.warnings[0].text == "[196s]", "another message");
    Demand(p_.messages.warnings[0].title == p_.program.names().modus_name_ar[kFortsetzung],
           "a message with another title");
  }

  void DemandNewTraining() {
    Einstellung1& s = p_.settings_screen();
    Demand(!p_.program.arbeitsblatt1() || !p_.worksheet().loaded(), "a worksheet after a refusal");
    Demand(s.loaded() && s.visible && s.enabled, "no settings screen after a refusal");
    Demand(s.training_Combo.list_index() == 1 && p_.settings().uebmodus == 1, "another level");
  }

  void DemandStoreUntouched() {
    Demand(p_.host.Sent("STORE") == 0, "something was stored");
    Demand(Same(p_.host.Stored("E1"), training_.e1), "E1 has changed");
    Demand(Same(p_.host.Stored("A1"), training_.a1), "A1 has changed");
  }

  void DemandStart(const TrainingFacts& facts) {
    const RunState& run = p_.run();
    const Material& material = run.material;
    DemandNone(FaultOf(facts, p_.settings()));
    DemandNone(FaultOf(material));
    Demand(material.mat_posten == facts.n && p_.program.board().akk_zahl == facts.n, "the size");
    for (int i = 1; i <= facts.n; ++i) {
      const auto at = static_cast<std::size_t>(i);
      Demand(material.mat_tab[at] == std::array{facts.entries[at - 1], facts.weights[at - 1]},
             "the order of the material");
    }
    Demand(p_.worksheet().zaehler[0].caption == DecimalText(facts.captions[0]) &&
               p_.worksheet().zaehler[1].caption == DecimalText(facts.captions[1]) &&
               p_.worksheet().whlgzaehler.caption == DecimalText(facts.captions[2]),
           "the counters on the sheet");
    const SlotLimits& limits = p_.program.board().limits;
    Demand(limits.fehl_max == facts.fehl_max && limits.fehl_stufen == 0, "the limits of a slot");
    Demand(run.lauf_status == LaufStatus::kNochKeine && run.akk_nr == 0, "where the run stands");
    Demand(run.schalter_zaehler == 0 && p_.worksheet().zurueck.tag == "OK", "the way out");
    DemandGauge();
  }

  void DemandGauge() {
    const Material& material = p_.run().material;
    const int full = 2 * material.mat_posten * material.mat_soll;
    const double exact = 100.0 * material.mat_rest / full;
    const int shown = p_.worksheet().matboxanz.percent;
    Demand(shown >= exact - 0.5 && shown <= exact + 0.5, "the gauge");
  }

  void Play() {
    const TrainingFacts facts = TrainingFacts::Of(training_.a1);
    DemandStart(facts);
    // No run of a human length comes near the ends of the counters.
    if (std::ranges::max(facts.captions) > 30000) return;
    right_ = facts.captions[0];
    wrong_ = facts.captions[1];
    for (int task = 0; task < kTasks && !Over(); ++task) {
      p_.PlayTask();
      AnswerTask();
      Demand(p_.messages.warnings.empty(), "an error in a task");
      if (!Over()) DemandNone(FaultOf(p_.run().material));
      DemandGauge();
      ++tasks_;
    }
    Demand(p_.worksheet().zaehler[0].caption == DecimalText(right_) &&
               p_.worksheet().zaehler[1].caption == DecimalText(wrong_),
           "the counters after the clicks");
  }

  bool Over() { return p_.run().lauf_status == LaufStatus::kTrainingZuEnde; }

  void AnswerTask() {
    while (p_.run().akk_nr <= p_.settings().akk_anzahl) {
      if (dice_.OneIn(8)) p_.Repeat();
      p_.loop.Advance(dice_.OneIn(5) ? 4000 : 500);
      if (dice_.OneIn(3) && p_.Wrong() != 0) {
        ++wrong_;
      } else {
        Demand(p_.Right() != 0, "a chord that cannot be named");
        ++right_;
      }
    }
  }

  /// Leaves; half of the students save, and what they save must be good again.
  void Leave() {
    if (Over()) {
      Demand(Same(p_.host.Stored("A1"), TaggedValue::Array{"False"}), "a training without an end");
      Demand(Same(p_.host.Stored("E1"), training_.e1), "E1 has changed");
      return;
    }
    const bool save = tasks_ > 0 && dice_.OneIn(2);
    p_.messages.answer = save ? MessageBox::Answer::kYes : MessageBox::Answer::kNo;
    const ExerciseSettings settings = p_.settings();
    p_.worksheet().zurueck.Press();
    p_.loop.Advance(1000);
    Demand(p_.messages.warnings.empty(), "a message on the way out");
    Demand(p_.messages.questions.size() == (tasks_ > 0 ? 1u : 0u), "the question");
    if (!save) {
      DemandStoreUntouched();
      return;
    }
    const TaggedValue saved = p_.host.Stored("A1");
    Demand(Same(p_.host.Stored("E1"), training_.e1), "E1 was saved in another way");
    const TrainingFacts before = TrainingFacts::Of(training_.a1);
    const TrainingFacts after = TrainingFacts::Of(saved);
    DemandNone(FaultOf(after, settings));
    Demand(after.Asked() == before.Asked() + tasks_ * settings.akk_anzahl, "the chords asked");
    StoredTraining::Read(saved.Elements(), settings);
  }

  const MutatedTraining& training_;
  Dice& dice_;
  WorksheetFixture p_;
  int right_ = 0;
  int wrong_ = 0;
  int tasks_ = 0;
};

/// What became of all cases.
class Tally {
 public:
  void Add(const MutatedTraining& training, bool taken, Outcome outcome) {
    records_taken_ += taken ? 1 : 0;
    ++outcomes_[static_cast<std::size_t>(outcome)];
    for (const char* mutation : training.mutations) {
      auto& [cases, runs] = by_mutation_[mutation];
      ++cases;
      runs += outcome == Outcome::kRuns ? 1 : 0;
    }
  }
  void Print() const {
    std::printf("records taken: %d\n", records_taken_);
    for (std::size_t i = 0; i < outcomes_.size(); ++i) {
      std::printf("%-24s %7d\n", kOutcomes[i], outcomes_[i]);
    }
    for (const auto& [mutation, counts] : by_mutation_) {
      std::printf("  %-40s %6d, taken up %6d\n", mutation.c_str(), counts.first, counts.second);
    }
  }

 private:
  int records_taken_ = 0;
  std::array<int, kOutcomes.size()> outcomes_{};
  std::map<std::string, std::pair<int, int>> by_mutation_;
};

void RunCase(const std::vector<SavedTraining>& trainings, Dice& dice, Tally& tally) {
  const MutatedTraining training = Mutate(trainings, dice);
  const SavedTraining& origin = trainings[static_cast<std::size_t>(training.origin)];
  try {
    const bool taken = TryRecord(origin, training.a1);
    const Outcome outcome = ProgramTry(training, dice).Run();
    if (!training.e1_changed && taken != (outcome == Outcome::kRuns)) {
      Fault("the program and its reader disagree");
    }
    if (Same(training.a1, origin.a1) && !training.e1_changed) {
      Demand(outcome == Outcome::kRuns, "a whole training that is not taken up");
    }
    tally.Add(training, taken, outcome);
  } catch (const std::exception&) {
    std::fprintf(stderr, "of: %s\n", origin.name.c_str());
    for (const char* mutation : training.mutations) std::fprintf(stderr, "  %s\n", mutation);
    std::fprintf(stderr, "E1 %s\nA1 %s\n", TextOf(training.e1).c_str(),
                 TextOf(training.a1).c_str());
    throw;
  }
}

}  // namespace
}  // namespace vmod17

int main(int argc, char* argv[]) {
  using namespace vmod17;
  const std::vector<SavedTraining> trainings = SavedTrainings();
  std::printf("%zu saved trainings\n", trainings.size());
  Tally tally;
  return Fuzz(argc, argv,
              {.run_case = [&](Dice& dice) { RunCase(trainings, dice, tally); },
               .print = [&] { tally.Print(); }});
}

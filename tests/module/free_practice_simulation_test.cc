// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Random users at random settings, in virtual time. A small model of what a run must do watches the
// program after each event: it is told only what was clicked and what the record says was asked.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "worksheet/worksheet_fixture.h"

namespace vmod17 {
namespace {

constexpr int kTests = 8;
constexpr int kRunsOfATest = 125;
constexpr int kTasks = 50;

/// Draws that depend on the seed alone, on every system.
class Dice {
 public:
  explicit Dice(unsigned seed) : engine_(seed) {}
  /// 0 to `n` - 1.
  int Below(int n) { return static_cast<int>(engine_() % static_cast<unsigned>(n)); }
  int Between(int low, int high) { return low + Below(high - low + 1); }
  bool OneIn(int n) { return Below(n) == 0; }

 private:
  std::mt19937 engine_;
};

struct Selection {
  std::vector<int> klangtypen;
  std::vector<int> gruppen;
};

int ChordsOf(const ExerciseSettings& s, const Selection& selection) {
  int chords = 0;
  for (int klang = 1; klang <= kKlangZahl; ++klang) {
    const Chord& chord = ChordOfKlang(klang);
    const bool kind = s.akk_form == 1
                          ? chord.klangtyp == kVoicing
                          : std::ranges::count(selection.klangtypen, chord.klangtyp) > 0;
    const bool group =
        chord.klangtyp == kTriade || std::ranges::count(selection.gruppen, chord.group) > 0;
    chords += kind && group ? 1 : 0;
  }
  return chords;
}

Selection RandomSelection(Dice& dice, const ExerciseSettings& s) {
  Selection selection;
  do {
    selection = {};
    // The triads have no group and cannot be asked for by one.
    for (int k = s.best_art == 0 ? kTriade : 4; k < kVoicing; ++k) {
      if (dice.OneIn(2)) selection.klangtypen.push_back(k);
    }
    for (int g = 1; g <= kGruppen; ++g) {
      if (dice.OneIn(2)) selection.gruppen.push_back(g);
    }
    // One chord on one root has no second task; that the user is told so is tested elsewhere.
  } while ((s.akk_form == 0 && selection.klangtypen.empty()) || selection.gruppen.empty() ||
           ChordsOf(s, selection) < 2);
  return selection;
}

void RandomSettings(Dice& dice, ExerciseSettings& s) {
  s.best_art = dice.Below(2);
  s.akk_form = dice.OneIn(3) ? 1 : 0;
  s.akk_anzeige = dice.Below(2);
  s.akk_anzahl = dice.Between(1, 4);
  s.arp_richtung = dice.Below(4);
  s.tempo_idx = dice.Below(10);
  s.arp_dauer = dice.Between(18, 70);
  s.abfolge = dice.Below(2);
  s.frequenz_art = dice.Below(2);
  s.grundton_art = dice.Below(2);
  s.grundton_betont = dice.Below(2);
  s.klangfarb_art = dice.Below(2);
  s.oktav_ber = dice.Between(s.akk_form, 3);
  s.SetzeTonraum(dice.Below(4 - s.oktav_ber));
}

/// What a run must look like, from the outside.
struct Model {
  int right = 0;
  int wrong = 0;
  int repeats = 0;
  int tasks = 0;     ///< begun
  int finished = 0;  ///< of these
  int slot = 0;      ///< the open one; 0 between tasks
  int wrong_in_slot = 0;
  std::set<int> struck;
  std::vector<int> clicks;  ///< by task
  std::vector<int> rights;  ///< by task
  LaufStatus status = LaufStatus::kNochKeine;
  bool notes_checked = false;
};

/// One process of the program, with one run after the other until all tasks are drawn.
class Simulation {
 public:
  explicit Simulation(unsigned seed) : dice_(seed) { p_.random.Restart(static_cast<int>(seed)); }

  void Run() {
    p_.ToSettings();
    p_.loop.meanwhile = [this] { Meanwhile(); };
    ChooseAndStart();
    while (tasks_ < kTasks && !Failed()) {
      if (!SheetLoaded()) {
        BetweenRuns();
      } else if (!sheet().visible) {
        SetUp();
      } else {
        Act();
        Check();
      }
    }
    if (!Failed()) End();
  }

  int runs() const { return runs_; }
  int nested_acts() const { return nested_acts_; }

 private:
  static bool Failed() { return ::testing::Test::HasFailure(); }
  Arbeitsblatt1& sheet() { return p_.worksheet(); }
  bool SheetLoaded() { return p_.program.arbeitsblatt1() != nullptr; }
  bool ByChord() { return p_.settings().best_art == 0; }
  bool Playing() { return inside_ || sheet().spieltimer.enabled; }
  bool Answering() { return model_.slot > 0 && !Playing(); }
  bool Waiting() { return model_.slot == 0 && !Playing(); }
  int LastChoice() { return ByChord() ? p_.program.board().akk_zahl : kGruppen; }
  bool Shown(int i) {
    return i <= LastChoice() && (ByChord() || p_.program.board().grp_aktiv_ar[i] == 1);
  }

  // ---- The way to a run, and from it ----------------------------------------------------------

  void ChooseAndStart() {
    RandomSettings(dice_, p_.settings());
    const Selection selection = RandomSelection(dice_, p_.settings());
    p_.Select(selection.klangtypen, selection.gruppen);
    model_ = Model();
    ++runs_;
    EXPECT_TRUE(p_.settings_screen().cmdOK.Press());
  }

  /// The worksheet is loaded and waits for its start timer.
  void SetUp() {
    p_.loop.Advance(dice_.Below(250));
    if (SheetLoaded() && !sheet().visible && dice_.OneIn(8)) {
      sheet().Form_Close();
      CheckLeft();
    }
  }

  void BetweenRuns() {
    CheckNothingRuns();
    if (dice_.OneIn(4)) {
      EXPECT_TRUE(p_.settings_screen().cmdZurueck.Press());
      p_.loop.Advance(dice_.Below(300));
      EXPECT_TRUE(p_.first().cmdOK.Press());
      p_.loop.Advance(200);
    }
    ChooseAndStart();
  }

  void Leave() {
    if (dice_.OneIn(2)) {
      EXPECT_TRUE(sheet().zurueck.Press());
    } else {
      sheet().Form_Close();
    }
    CheckLeft();
  }

  void End() {
    if (SheetLoaded() && dice_.OneIn(2)) {
      p_.program.Leave();  // from outside, in the middle of the run
    } else {
      if (SheetLoaded() && sheet().visible) {
        Leave();
      } else if (SheetLoaded()) {
        sheet().Form_Close();
      }
      CheckNothingRuns();
      EXPECT_TRUE(p_.settings_screen().cmdZurueck.Press());
      EXPECT_TRUE(p_.first().cmdEnde.Press());
    }
    p_.loop.Advance(60000);
    CheckEnded();
  }

  // ---- What the user does ---------------------------------------------------------------------

  void Act() {
    if (Answering() && p_.OpenChoices().empty()) return Leave();
    const int what = dice_.Below(100);
    if (what < 40 && Answering()) {
      Click(p_.RightChoice());
    } else if (what < 65) {
      Click(dice_.Between(1, ByChord() ? kBrettGroesse : kGruppen));
    } else if (what < 70) {
      PressRepeat();
    } else if (what < 74) {
      const bool can = CanCheck();
      EXPECT_EQ(sheet().wieder2.Press(), can);
    } else if (what < 85) {
      const bool can = CanCallNext();
      EXPECT_EQ(sheet().CmdNextAufg.Press(), can);
    } else if (what == 85 && dice_.OneIn(6)) {
      Leave();
    } else {
      Pass();
    }
  }
  bool CanCheck() { return Waiting() && model_.finished > 0; }
  bool CanCallNext() { return Waiting() && p_.settings().abfolge == 0; }

  /// Lets a moment pass, or as long as it may take until something happens.
  void Pass() {
    p_.loop.Advance(dice_.OneIn(3) ? dice_.Below(100)
                                   : dice_.Between(0, sheet().spieltimer.interval + 2500));
  }

  void Click(int i) {
    if (i < 1) return;
    const bool can = Answering() && Shown(i) && !model_.struck.contains(i);
    const bool right = model_.slot > 0 && i == RightChoice();
    EXPECT_EQ(p_.Choice(i).Press(), can) << "choice " << i << " in slot " << model_.slot;
    if (can) Judge(i, right);
  }
  int RightChoice() {
    const int e = p_.Asked(model_.slot);
    return ByChord() ? e : p_.program.board()[e].group;
  }

  void Judge(int i, bool right) {
    ++model_.clicks.back();
    if (right) {
      ++model_.right;
      ++model_.rights.back();
      return NextSlot();
    }
    ++model_.wrong;
    const int choices =
        ByChord() ? p_.program.board().akk_zahl : p_.settings_screen().grplst[1].count();
    if (++model_.wrong_in_slot == std::min(choices - 1, 4)) return NextSlot();
    model_.struck.insert(i);
    model_.status = LaufStatus::kWeitererVersuch;
  }

  void NextSlot() {
    model_.struck.clear();
    model_.wrong_in_slot = 0;
    model_.status = LaufStatus::kNaechsterSlot;
    if (++model_.slot <= p_.settings().akk_anzahl) return;
    model_.slot = 0;
    ++model_.finished;
    model_.status = LaufStatus::kAufgabeFertig;
  }

  void PressRepeat() {
    const bool can = Answering();
    const int run = runs_left_;
    EXPECT_EQ(sheet().wieder.Press(), can);
    if (can && run == runs_left_) ++model_.repeats;
  }

  // ---- What comes in between ------------------------------------------------------------------

  /// Called at each moment at which a handler lets events through: the user acts there too.
  void Meanwhile() {
    if (!SheetLoaded() || !sheet().visible) return;
    if (!sheet().enabled) return CheckSaving();
    if (inside_ || !dice_.OneIn(24)) return;
    inside_ = true;
    ++nested_acts_;
    Observe();
    CheckPlaying();
    ActInside();
    inside_ = false;
  }

  void ActInside() {
    const int what = dice_.Below(40);
    if (what < 15) {
      Click(dice_.Between(1, ByChord() ? kBrettGroesse : kGruppen));
    } else if (what < 20) {
      EXPECT_FALSE(sheet().wieder.Press());
    } else if (what < 25) {
      EXPECT_FALSE(sheet().wieder2.Press());
    } else if (what < 30) {
      EXPECT_FALSE(sheet().CmdNextAufg.Press());
    } else if (what == 30) {
      EXPECT_TRUE(sheet().cmdHilfe.Press());
    } else if (what == 31 && dice_.OneIn(8)) {
      ++runs_left_;
      Leave();
      // Some start anew at once, while the handler of the run that they left is still running.
      if (dice_.OneIn(2)) ChooseAndStart();
    }
  }

  // ---- What must hold -------------------------------------------------------------------------

  /// Sees in the record that a task has begun.
  void Observe() {
    const int lessons = p_.Lessons();
    if (lessons == model_.tasks) return;
    EXPECT_EQ(lessons, model_.tasks + 1);
    EXPECT_EQ(model_.slot, 0) << "a task began before the last one was finished";
    ++tasks_;
    ++model_.tasks;
    model_.slot = 1;
    model_.clicks.push_back(0);
    model_.rights.push_back(0);
    model_.notes_checked = false;
  }

  void Check() {
    if (!SheetLoaded() || !sheet().visible) return;
    Observe();
    if (Playing()) {
      CheckPlaying();
    } else {
      CheckResting();
    }
    EXPECT_EQ(sheet().zaehler[0].caption, std::to_string(model_.right));
    EXPECT_EQ(sheet().zaehler[1].caption, std::to_string(model_.wrong));
    EXPECT_EQ(sheet().whlgzaehler.caption, std::to_string(model_.repeats));
    EXPECT_EQ(sheet().run().lauf_status, model_.status);
    EXPECT_EQ(sheet().run().schalter_zaehler, model_.finished > 0 ? 1 : 0);
    EXPECT_EQ(sheet().run().material.mat_anzahl, 0);
    EXPECT_TRUE(sheet().zurueck.Reachable());
    EXPECT_TRUE(sheet().Uhrzeit.enabled);
  }

  void CheckPlaying() {
    EXPECT_TRUE(p_.OpenChoices().empty()) << "an answer could be given while it plays";
    EXPECT_FALSE(sheet().wieder.Reachable());
    EXPECT_FALSE(sheet().wieder2.Reachable());
    EXPECT_FALSE(sheet().CmdNextAufg.Reachable());
    EXPECT_FALSE(sheet().WahlAutomat.enabled);
    EXPECT_FALSE(sheet().LbNextAufg.visible);
    EXPECT_FALSE(inside_ && sheet().spieltimer.enabled) << "two playings at a time";
    CheckSlots();
  }

  void CheckResting() {
    const bool answering = Answering();
    std::vector<int> open;
    for (int i = 1; answering && i <= LastChoice(); ++i) {
      if (Shown(i) && !model_.struck.contains(i)) open.push_back(i);
    }
    EXPECT_EQ(p_.OpenChoices(), open);
    EXPECT_EQ(sheet().wieder.visible, answering);
    EXPECT_EQ(sheet().wieder.Reachable(), answering);
    EXPECT_EQ(sheet().wieder2.Reachable(), CanCheck());
    EXPECT_EQ(sheet().CmdNextAufg.Reachable(), CanCallNext());
    const bool coming = Waiting() && p_.settings().abfolge == 1;
    EXPECT_EQ(sheet().WahlAutomat.enabled, coming);
    EXPECT_EQ(sheet().LbNextAufg.visible, coming);
    CheckSlots();
    if (answering && !model_.notes_checked) CheckNotes();
  }

  void CheckSlots() {
    const std::vector<int> none;
    EXPECT_EQ(p_.OpenSlots(), model_.slot == 0 ? none : std::vector<int>{model_.slot});
  }

  /// What sounded is what is asked, on roots that are allowed.
  void CheckNotes() {
    model_.notes_checked = true;
    const int length = sheet().spieltimer.interval / p_.settings().akk_anzahl;
    std::vector<std::vector<int>> sounded(kSlots + 1);
    for (const MidiMessage& on : p_.output.PlayedNoteOns()) {
      sounded.at(static_cast<std::size_t>(on.zeit / length) + 1).push_back(on.data1);
    }
    for (int slot = 1; slot <= p_.settings().akk_anzahl; ++slot) {
      std::vector<int>& notes = sounded[slot];
      ASSERT_FALSE(notes.empty());
      std::ranges::sort(notes);
      const int root = notes.front();
      EXPECT_NE(root % 12, 0);
      EXPECT_GT(root, p_.settings().ton_unten);
      for (int& note : notes) note -= root;
      const auto semitones = ChordOfKlang(p_.program.board()[p_.Asked(slot)].klang).semitones;
      EXPECT_TRUE(std::ranges::equal(notes, semitones)) << "slot " << slot;
    }
  }

  void CheckSaving() {
    for (const Control* control : sheet().controls()) {
      EXPECT_FALSE(control->Reachable()) << control->Id();
    }
    EXPECT_TRUE(sheet().WaitMeldung.visible);
    EXPECT_EQ(p_.documents.Latest().saves, 0);
  }

  void CheckLeft() {
    EXPECT_FALSE(SheetLoaded());
    EXPECT_TRUE(p_.settings_screen().cmdOK.Reachable());
    EXPECT_EQ(p_.documents.Latest().saves, 1);
    CheckRecord();
  }

  void CheckNothingRuns() {
    EXPECT_EQ(p_.loop.timers(), 0);
    EXPECT_FALSE(p_.output.IsRunning());
    EXPECT_TRUE(p_.settings_screen().visible);
    EXPECT_FALSE(p_.first().visible);
  }

  void CheckEnded() {
    EXPECT_TRUE(p_.ended);
    EXPECT_TRUE(p_.program.Ended());
    EXPECT_TRUE(p_.view.forms.empty());
    EXPECT_EQ(p_.program.grd_einst(), nullptr);
    EXPECT_EQ(p_.program.einstellung1(), nullptr);
    EXPECT_EQ(p_.program.arbeitsblatt1(), nullptr);
    EXPECT_EQ(p_.loop.timers(), 0);
    EXPECT_FALSE(p_.output.IsRunning());
    EXPECT_EQ(p_.host.Sent("MENUE"), 1);
    EXPECT_EQ(p_.host.Sent("STORE"), 0);
    EXPECT_TRUE(p_.host.errors.empty());
    EXPECT_TRUE(p_.messages.warnings.empty());
    EXPECT_TRUE(p_.messages.questions.empty());
    EXPECT_EQ(static_cast<int>(p_.documents.documents.size()), runs_);
  }

  /// Every answer of a closed slot is complete, and each lesson has as many as were given.
  void CheckRecord() {
    const auto& lessons = p_.record().Find("lessons")->children;
    const int seen = static_cast<int>(lessons.size());
    EXPECT_EQ(seen, model_.tasks);
    for (int i = 0; i < std::min(seen, model_.tasks); ++i) {
      const bool closed = i + 1 < model_.tasks || model_.slot == 0;
      CheckLesson(*lessons[i], model_.clicks[i], model_.rights[i], closed);
    }
  }

  void CheckLesson(const MemoryXmlNode& lesson, int clicks, int rights, bool closed) {
    EXPECT_EQ(static_cast<int>(lesson.Find("properties")->children.size()),
              p_.settings().akk_anzahl);
    const auto& answers = lesson.Find("answers")->children;
    EXPECT_EQ(static_cast<int>(answers.size()), clicks + (closed ? 0 : 1));
    int told_right = 0;
    for (int i = 0; i < static_cast<int>(answers.size()); ++i) {
      const auto& properties = answers[i]->children;
      EXPECT_EQ(answers[i]->attributes.size(), 2u);
      ASSERT_EQ(properties.size(), i < clicks ? 3u : 0u);
      if (i >= clicks) continue;
      EXPECT_EQ(properties[0]->Find("key")->text, "Dauer Antwort");
      EXPECT_EQ(properties[1]->Find("key")->text, "Anz Whlg");
      EXPECT_EQ(properties[2]->Find("key")->text, "Antwort");
      told_right += properties[2]->Find("value")->text == "true" ? 1 : 0;
    }
    EXPECT_EQ(told_right, rights);
  }

  Dice dice_;
  WorksheetFixture p_;
  Model model_;
  int tasks_ = 0;
  int runs_ = 0;
  int runs_left_ = 0;    ///< of these, inside a handler
  int nested_acts_ = 0;  ///< inside a handler
  bool inside_ = false;  ///< a handler is running
};

/// The runs stand in several tests, so that they can go side by side.
class FreePracticeSimulation : public ::testing::TestWithParam<int> {};

TEST_P(FreePracticeSimulation, KeepsItsPromisesToAnyUser) {
  int runs = 0;
  int nested_acts = 0;
  for (int i = 1; i <= kRunsOfATest; ++i) {
    const unsigned seed = static_cast<unsigned>(GetParam() * kRunsOfATest + i);
    SCOPED_TRACE("seed " + std::to_string(seed));
    Simulation simulation(seed);
    simulation.Run();
    ASSERT_FALSE(HasFailure()) << "seed " << seed;
    runs += simulation.runs();
    nested_acts += simulation.nested_acts();
  }
  EXPECT_GE(runs, kRunsOfATest);
  EXPECT_GT(nested_acts, kRunsOfATest * kTasks) << "hardly anybody acted inside a handler";
}

INSTANTIATE_TEST_SUITE_P(Seeds, FreePracticeSimulation, ::testing::Range(0, kTests));

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "worksheet/worksheet_fixture.h"

namespace vmod17 {

/// The modes of a run, as entries of `training_Combo`.
enum Modus { kFrei = 0, kTraining = 1, kWeiter = 2, kTest = 3, kPruefung = 4 };

/// The whole program with a run of one of the modes, chosen on the settings screen so that the run
/// can be stored and taken up again.
///
///     ModeFixture p;
///     p.BeginMode(kTraining);
///     p.PlayTaskOf({3});
///     p.Right();
///     p.SaveAndLeave();
///     ModeFixture q;
///     q.Continue(p);
class ModeFixture : public WorksheetFixture {
 public:
  using WorksheetFixture::WorksheetFixture;

  /// From the start of the program to the worksheet.
  void BeginMode(int uebmodus, const Change& change = {},
                 const std::vector<int>& klangtypen = {kTriade},
                 const std::vector<int>& gruppen = {}) {
    ToSettings();
    BeginHere(uebmodus, change, klangtypen, gruppen);
  }
  /// The same from the settings screen.
  void BeginHere(int uebmodus, const Change& change = {},
                 const std::vector<int>& klangtypen = {kTriade},
                 const std::vector<int>& gruppen = {}) {
    ChooseByClick(klangtypen, gruppen);
    EXPECT_TRUE(settings_screen().training_Combo.Choose(uebmodus));
    if (change) change(settings());
    StartRun();
  }
  void ChooseByClick(const std::vector<int>& klangtypen, const std::vector<int>& gruppen) {
    Einstellung1& s = settings_screen();
    while (s.klanglst[1].count() > 0) ASSERT_TRUE(s.klanglst[1].Choose(0));
    for (const int k : klangtypen) Click(s.klanglst[0], k);
    for (const int g : gruppen) Click(s.grplst[0], g);
  }
  /// Another process with the same store: takes the training up that `before` has left there.
  void Continue(const MemoryHost& before) {
    host.records = before.records;
    ToSettings();
    ContinueHere();
  }
  void ContinueHere() {
    EXPECT_TRUE(settings_screen().training_Combo.Choose(kWeiter));
    EXPECT_EQ(settings().uebmodus, kWeiter);
    StartRun();
  }

  /// Scripts the draw of a task with these board entries, on changing roots so that none is
  /// refused.
  void ScriptTask(const std::vector<int>& entries) {
    const Material& material = run().material;
    std::vector<int> bag = material.mat_ar;
    for (const int e : entries) {
      if (settings().uebmodus == kFrei || material.mat_anzahl == 0) {
        random.Script({Draw(e - 1, program.board().akk_zahl)});
      } else {
        if (settings().uebmodus < kTest && material.Prozent() < 20) random.Script({0.995f});
        const auto place = std::find(bag.begin() + 1, bag.end(), e);
        ASSERT_NE(place, bag.end()) << e;
        random.Script({Draw(static_cast<int>(place - bag.begin()) - 1, material.mat_anzahl)});
        if (settings().uebmodus >= kTest) *place = 0;
      }
      if (settings().grundton_art == 0) random.Script({other_root_ ? 0.35f : 0.45f});
      other_root_ = !other_root_;
    }
  }
  void PlayTaskOf(const std::vector<int>& entries) {
    ScriptTask(entries);
    PlayTask();
    for (std::size_t i = 0; i < entries.size(); ++i) {
      EXPECT_EQ(Asked(static_cast<int>(i) + 1), entries[i]);
    }
    EXPECT_TRUE(random.ScriptDone());
  }
  /// Plays a task of these chords, and answers it rightly at once.
  void DoTask(const std::vector<int>& entries) {
    PlayTaskOf(entries);
    FinishTask();
  }
  /// Clicks wrongly until the open slot is lost.
  void LoseSlot() {
    for (const int slot = run().akk_nr; run().akk_nr == slot;) {
      if (WorksheetFixture::Wrong() == 0) return;
    }
  }
  /// Plays and loses a task of one chord.
  void LoseTask() {
    PlayTask();
    LoseSlot();
  }
  /// Answers every chord of a new training of ten until it is solved.
  void Solve() {
    for (int e = 1; e <= program.board().akk_zahl; ++e) DoTask({e});
    EXPECT_EQ(run().lauf_status, LaufStatus::kTrainingZuEnde);
  }
  /// Loses tasks until the training is too hard.
  void MakeTooHard() {
    for (int i = 0; i < 100 && run().lauf_status != LaufStatus::kTrainingZuEnde; ++i) LoseTask();
    EXPECT_EQ(run().lauf_status, LaufStatus::kTrainingZuEnde);
  }
  /// Does all tasks of a test rightly.
  void FinishTest() {
    for (int i = 0; i < 200 && run().lauf_status != LaufStatus::kTestZuEnde; ++i) {
      PlayTask();
      FinishTask();
    }
    EXPECT_EQ(run().lauf_status, LaufStatus::kTestZuEnde);
  }

  /// Leaves, and answers the question whether to save.
  void LeaveWith(MessageBox::Answer answer) {
    messages.answer = answer;
    EXPECT_TRUE(worksheet().zurueck.Press());
  }
  void SaveAndLeave() { LeaveWith(MessageBox::Answer::kYes); }
  /// Waits for the results and goes through both of their faces.
  void PassResults() {
    ASSERT_NE(program.testergebnis(), nullptr);
    loop.Advance(300);
    ASSERT_TRUE(results().visible);
    if (results().zeit_um.visible) loop.Advance(results().schonfrist.interval);
    EXPECT_TRUE(results().cmdOK[0].Press());
    EXPECT_TRUE(results().cmdOK[1].Press());
  }

  int Weight(int entry) const {
    const auto& tab = program.arbeitsblatt1()->run().material.mat_tab;
    const auto row = std::ranges::find_if(tab, [&](const auto& r) { return r[0] == entry; });
    return row == tab.end() ? -99 : (*row)[1];
  }
  std::vector<std::string> Modes() {
    std::vector<std::string> texts;
    for (const auto& entry : settings_screen().training_Combo.entries()) {
      texts.push_back(entry.text);
    }
    return texts;
  }

  /// A value that draws `result` from 0 to `count` - 1.
  static float Draw(int result, int count) {
    return (static_cast<float>(result) + 0.5f) / static_cast<float>(count);
  }

 private:
  static void Click(ItemList& list, int item_data) {
    for (int i = 0; i < list.count(); ++i) {
      if (list.entry(i).item_data != item_data) continue;
      EXPECT_TRUE(list.Choose(i)) << item_data;
      return;
    }
    ADD_FAILURE() << "no entry " << item_data;
  }

  bool other_root_ = false;
};

/// The store after a training of the ten triads, two chords a task, was left after one task.
inline const MemoryHost& StoreWithTraining() {
  static const MemoryHost store = [] {
    ModeFixture p;
    p.BeginMode(kTraining, [](ExerciseSettings& s) { s.akk_anzahl = 2; });
    p.DoTask({2, 7});
    p.SaveAndLeave();
    return p.host;
  }();
  return store;
}

/// Begins a run of the mode with two chords a task, whatever the mode needs before it.
inline void BeginAnyMode(ModeFixture& p, int uebmodus) {
  if (uebmodus == kWeiter) {
    p.Continue(StoreWithTraining());
  } else {
    p.BeginMode(uebmodus, [](ExerciseSettings& s) { s.akk_anzahl = 2; });
  }
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "saved_trainings.h"

#include <functional>
#include <optional>
#include <stdexcept>

#include "dice.h"
#include "worksheet/worksheet_fixture.h"

namespace vmod17 {
namespace {

constexpr int kNeuesTraining = 1;

struct Recipe {
  const char* name;
  std::function<void(Einstellung1&)> choose;
};

void Click(ItemList& list, int item_data) {
  for (int i = 0; i < list.count(); ++i) {
    if (list.entry(i).item_data == item_data) {
      list.Choose(i);
      return;
    }
  }
}

void Kinds(Einstellung1& s, const std::vector<int>& kinds) {
  while (s.klanglst[1].count() > 0) s.klanglst[1].Choose(0);
  for (const int k : kinds) Click(s.klanglst[0], k);
}

void Groups(Einstellung1& s, const std::vector<int>& groups) {
  for (const int g : groups) Click(s.grplst[0], g);
}

std::vector<Recipe> Recipes() {
  return {
      {"triads", [](Einstellung1&) {}},
      {"triads, four a task",
       [](Einstellung1& s) {
         s.akkzahl_cmb.Choose(3);
         s.arpeg_cmb.Choose(2);
       }},
      {"four notes, all groups",
       [](Einstellung1& s) {
         Kinds(s, {4});
         s.grp_alle[0].Press();
       }},
      {"four to seven notes, two a task, automatic",
       [](Einstellung1& s) {
         Kinds(s, {4, 5, 6, 7});
         Groups(s, {1, 2, 4, 5, 8});
         s.akkzahl_cmb.Choose(1);
         s.abfrage.Choose(1);
       }},
      {"all kinds and groups, timbre by voice",
       [](Einstellung1& s) {
         s.klang_alle[0].Press();
         s.grp_alle[0].Press();
         s.kl_farb.Choose(1);
         s.Tonart.Choose(1);
       }},
      {"groups of five and six notes",
       [](Einstellung1& s) {
         s.akk_grp.Choose(1);
         Kinds(s, {5, 6});
         Groups(s, {1, 4, 5});
         s.akkzahl_cmb.Choose(2);
       }},
      {"all groups of all kinds",
       [](Einstellung1& s) {
         s.akk_grp.Choose(1);
         Kinds(s, {4, 5, 6, 7});
         Groups(s, {1, 2, 3, 4, 5, 6, 7, 8});
       }},
      {"voicings",
       [](Einstellung1& s) {
         s.aus_w.Choose(1);
         Groups(s, {1, 2, 3, 4, 5, 6, 7, 8});
       }},
      {"groups of voicings",
       [](Einstellung1& s) {
         s.aus_w.Choose(1);
         s.akk_grp.Choose(1);
         Groups(s, {1, 4, 5});
         s.akkzahl_cmb.Choose(1);
       }},
      {"three chords",
       [](Einstellung1& s) {
         Kinds(s, {4});
         Groups(s, {2, 3});
       }},
      {"two chords",
       [](Einstellung1& s) {
         Kinds(s, {4});
         Groups(s, {3, 7});
         s.akk_anzg.Choose(1);
       }},
      {"two groups of two chords",
       [](Einstellung1& s) {
         s.akk_grp.Choose(1);
         Kinds(s, {4});
         Groups(s, {3, 7});
         s.akkzahl_cmb.Choose(3);
       }},
      {"seven notes",
       [](Einstellung1& s) {
         Kinds(s, {7});
         s.grp_alle[0].Press();
         s.akkzahl_cmb.Choose(1);
       }},
  };
}

/// A student who knows most, and asks for a repeat now and then.
void AnswerTask(WorksheetFixture& p, Dice& dice) {
  while (p.run().akk_nr <= p.settings().akk_anzahl) {
    if (dice.OneIn(9)) p.Repeat();
    p.loop.Advance(dice.OneIn(6) ? 3700 : 900);
    if (dice.OneIn(4)) {
      if (p.Wrong() != 0) continue;
    }
    if (p.Right() == 0) throw std::runtime_error("a task cannot be answered");
  }
}

/// Plays and saves; gives nothing when the training ends before it can be saved.
std::optional<SavedTraining> Play(const Recipe& recipe, int tasks) {
  WorksheetFixture p;
  p.ToSettings();
  p.settings_screen().training_Combo.Choose(kNeuesTraining);
  recipe.choose(p.settings_screen());
  p.StartRun();
  if (!p.program.arbeitsblatt1()) throw std::runtime_error(std::string("no run: ") + recipe.name);
  Dice dice(static_cast<std::uint64_t>(tasks), 0);
  for (int task = 0; task < tasks; ++task) {
    p.PlayTask();
    AnswerTask(p, dice);
    if (p.run().lauf_status == LaufStatus::kTrainingZuEnde) return {};
  }
  p.messages.answer = MessageBox::Answer::kYes;
  const ExerciseSettings settings = p.settings();
  p.worksheet().zurueck.Press();
  return SavedTraining{std::string(recipe.name) + ", tasks: " + std::to_string(tasks),
                       p.host.Stored("E1").Elements(), p.host.Stored("A1").Elements(), settings};
}

}  // namespace

std::vector<SavedTraining> SavedTrainings() {
  std::vector<SavedTraining> trainings;
  for (const Recipe& recipe : Recipes()) {
    for (int tasks : {1, 4, 7}) {
      std::optional<SavedTraining> training = Play(recipe, tasks);
      while (!training && --tasks > 0) training = Play(recipe, tasks);
      if (!training) throw std::runtime_error(std::string("never saved: ") + recipe.name);
      trainings.push_back(*training);
    }
  }
  return trainings;
}

}  // namespace vmod17

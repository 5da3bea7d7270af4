// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "support/program_fixture.h"

namespace vmod17 {

/// The whole program with a run on the worksheet, whose settings a test writes directly.
///
///     WorksheetFixture p;
///     p.Begin([](ExerciseSettings& s) { s.akk_anzahl = 2; }, {3, 4}, {1, 2});
///
/// The clock begins early in the day: Singles then tell milliseconds apart.
class WorksheetFixture : public ProgramFixture {
 public:
  using Change = std::function<void(ExerciseSettings&)>;
  static constexpr double kEarly = 100;
  static constexpr double kPauses = 150;  ///< ms from the call of a playing to its sound

  explicit WorksheetFixture(double clock = kEarly) : ProgramFixture(clock) {}
  explicit WorksheetFixture(HostServiceFactory make_host)
      : ProgramFixture(kEarly, {}, std::move(make_host)) {}

  /// From the start of the program to the worksheet. The Klangtypen count for chords of 3 to 7
  /// notes; voicings, `akk_form` 1, need only groups.
  void Begin(const Change& change = {}, const std::vector<int>& klangtypen = {kTriade},
             const std::vector<int>& gruppen = {}) {
    ToSettings();
    Select(klangtypen, gruppen);
    if (change) change(settings());
    StartRun();
  }
  /// Fills the lists of what is chosen, as the user would on the settings screen.
  void Select(const std::vector<int>& klangtypen, const std::vector<int>& gruppen) {
    ItemList& klaenge = settings_screen().klanglst[1];
    klaenge.Clear();
    for (const int k : klangtypen) klaenge.Add(std::to_string(k) + " Klang", k);
    ItemList& gewaehlt = settings_screen().grplst[1];
    gewaehlt.Clear();
    for (const int g : gruppen) gewaehlt.Add("Gruppe " + std::to_string(g), g);
  }

  /// Calls the next task, or waits for it, and lets it play to its end.
  void PlayTask() {
    if (settings().abfolge == 0) {
      ProgramFixture::PlayTask();
    } else {
      loop.Advance(worksheet().WahlAutomat.interval);
      EndPlaying();
    }
  }
  /// Lets a playing that a timer has begun come to its end. The pauses before its sound pass in the
  /// timer's handler, and are not part of the time that the test has let pass.
  void EndPlaying() { loop.Advance(kPauses + PlayingTime()); }

  /// The right choice for the open slot: its tile, or the button of its group.
  int RightChoice() {
    const int e = Asked(run().akk_nr);
    return settings().best_art == 0 ? e : program.board()[e].group;
  }
  /// A wrong choice that is open.
  int WrongChoice() {
    const int last = settings().best_art == 0 ? program.board().akk_zahl : kGruppen;
    for (int i = 1; i <= last; ++i) {
      if (i != RightChoice() && Choice(i).Reachable()) return i;
    }
    return 0;
  }
  /// A tile or a group button, by what is named in this run.
  Pressable& Choice(int i) {
    if (settings().best_art == 0) return worksheet().jz_kl[i];
    return worksheet().akk_group[i];
  }
  /// Click and return what was clicked; 0 when nothing could be.
  int Right() { return Click(RightChoice()); }
  int Wrong() { return Click(WrongChoice()); }
  /// Answers all open slots of the task rightly.
  void FinishTask() {
    while (run().akk_nr <= settings().akk_anzahl) {
      if (Right() == 0) return;
    }
  }
  /// The tiles or groups that the user can click now.
  std::vector<int> OpenChoices() {
    std::vector<int> open;
    const int last = settings().best_art == 0 ? kBrettGroesse : kGruppen;
    for (int i = 1; i <= last; ++i) {
      if (Choice(i).Reachable()) open.push_back(i);
    }
    return open;
  }
  /// The slots whose labels are enabled.
  std::vector<int> OpenSlots() {
    std::vector<int> open;
    for (int i = 1; i <= kSlots; ++i) {
      if (worksheet().nrakk[i].enabled) open.push_back(i);
    }
    return open;
  }

  /// Presses the control that plays the task again, and lets it play to its end.
  bool Repeat() { return PressAndPlay(worksheet().wieder); }
  bool ControlRepeat() { return PressAndPlay(worksheet().wieder2); }

  /// The record of the present run.
  MemoryXmlNode& record() { return *documents.Latest().root; }
  /// The present lesson of the record.
  const MemoryXmlNode& lesson() { return *record().Find("lessons")->children.back(); }
  /// What the record says of the answer `i` of the present lesson, from 1: attributes, then the
  /// values by key.
  std::string Answer(int i) {
    const MemoryXmlNode& answer = *lesson().Find("answers")->children.at(i - 1);
    std::string told;
    for (const auto& attribute : answer.attributes) {
      told += attribute->name + "=" + attribute->text + " ";
    }
    for (const auto& property : answer.children) {
      told += "[" + property->Find("key")->text + ": " + property->Find("value")->text + "]";
    }
    return told;
  }
  int Answers() { return static_cast<int>(lesson().Find("answers")->children.size()); }
  int Lessons() { return static_cast<int>(record().Find("lessons")->children.size()); }

  /// Calls `action` once, at the n-th moment (from 1) at which a handler lets events through.
  void AtMoment(int n, std::function<void()> action) {
    moments_ = 0;
    loop.meanwhile = [this, n, act = std::move(action)] {
      if (++moments_ == n) act();
    };
  }
  /// Moments that have come since `AtMoment`.
  int moments() const { return moments_; }

 private:
  int Click(int i) { return i != 0 && Choice(i).Press() ? i : 0; }
  bool PressAndPlay(Pressable& control) {
    if (!control.Press()) return false;
    loop.Advance(PlayingTime());
    return true;
  }

  int moments_ = 0;
};

}  // namespace vmod17

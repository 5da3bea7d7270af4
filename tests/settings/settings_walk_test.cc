// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Random walks of a user over the whole screen.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "settings/settings_fixture.h"
#include "settings/settings_invariants.h"
#include "settings/stored_training.h"

namespace vmod17 {
namespace {

class Walk : public SettingsTest {
 protected:
  void Begin(unsigned seed) {
    engine_.seed(seed);
    StoreTraining(VollesTraining());
    languages.languages[0].second.words = {
        {"9560s", "%1"}, {"9561s", "%1 of %2"}, {"9562s", "%1 tasks in %2"}};
    ToSettings();
  }
  int Below(int n) { return static_cast<int>(engine_() % static_cast<unsigned>(n)); }

  /// Tries one event; what it was goes into `event_`. Returns whether it was delivered.
  bool Step() {
    if (Below(16) == 0) {
      event_ = "time";
      loop.Advance(Below(2000));
      return true;
    }
    const auto& controls = screen().controls();
    Control& control =
        *controls[static_cast<std::size_t>(Below(static_cast<int>(controls.size())))];
    event_ = control.Id();
    if (auto* list = dynamic_cast<ItemList*>(&control)) return ChooseIn(*list);
    if (auto* option = dynamic_cast<Option*>(&control)) {
      return option->group().Choose(option->index());
    }
    if (auto* slider = dynamic_cast<Slider*>(&control)) return slider->Slide(Below(140));
    if (auto* frame = dynamic_cast<Frame*>(&control)) return Mark(*frame);
    if (auto* button = dynamic_cast<Pressable*>(&control)) return PressIt(*button);
    return false;
  }

  bool ChooseIn(ItemList& list) {
    const bool level = &list == &screen().training_Combo || &list == &screen().prfnr_Comb;
    // The levels come often, but not so often that they undo all else.
    if (list.count() == 0 || (level && Below(3) != 0)) return false;
    return list.Choose(Below(list.count()));
  }
  bool Mark(Frame& frame) {
    if (Below(3) != 0 || !frame.AskMenu()) return false;
    if (Below(3) == 0) {
      screen().popPruefung.Dismiss();
    } else {
      screen().popPruefung.Choose();
    }
    return true;
  }
  bool PressIt(Pressable& button) {
    if (&button == &screen().cmdZurueck) {
      return Below(10) == 0 && button.Reachable() && LeaveAndReturn();
    }
    if (&button == &screen().cmdOK) return Below(4) == 0 && RunAndReturn();
    if (&button == &screen().cmdOptionSave) {
      dialog.to_save = Below(2) == 0 ? std::optional<std::string>("walk.xml") : std::nullopt;
    } else if (&button == &screen().cmdOptionRead) {
      return ReadTest();
    }
    // The state that the button's colour tells holds while a sample plays too.
    const bool ready = screen().cmdOK.back_color == kOkBereit;
    if (!button.Press()) return false;
    if (&button == &screen().klang_alle[0]) alle_ = ready;
    return true;
  }
  /// A test file must change nothing of what the level holds.
  bool ReadTest() {
    const ExerciseSettings before = settings();
    const std::vector<int> kinds = Kinds();
    const std::vector<int> groups = Groups();
    const bool file = Below(4) == 0 && settings_files.files.contains("walk.xml");
    dialog.to_open = file ? std::optional<std::string>("walk.xml") : std::nullopt;
    if (!screen().cmdOptionRead.Press()) return false;
    messages.warnings.clear();
    const ExerciseSettings& now = settings();
    const bool same_question = now.abfolge == before.abfolge && now.akk_form == before.akk_form &&
                               now.best_art == before.best_art && Kinds() == kinds &&
                               Groups() == groups;
    const bool same_run =
        now.tempo_idx == before.tempo_idx && now.akk_anzahl == before.akk_anzahl &&
        now.oktav_ber == before.oktav_ber && now.ton_unten == before.ton_unten &&
        now.arp_richtung == before.arp_richtung && now.arp_tempo_idx == before.arp_tempo_idx &&
        now.frequenz_art == before.frequenz_art && now.akk_anzeige == before.akk_anzeige &&
        now.grundton_art == before.grundton_art && now.grundton_betont == before.grundton_betont;
    if ((now.uebmodus == 4 || now.uebmodus == 2) && !same_question) {
      throw std::runtime_error("a test file changed what the level holds");
    }
    if (now.uebmodus == 2 && !same_run) {
      throw std::runtime_error("a test file changed a training that was taken up");
    }
    return true;
  }
  bool LeaveAndReturn() {
    Reopen();
    reopened_ = true;
    return true;
  }
  bool RunAndReturn() {
    if (!screen().cmdOK.Press()) return false;
    ++runs_;
    const int level = settings().uebmodus;
    told_ = screen().ausblick.caption;
    loop.Advance(200);
    // The training that this store holds has no state, and a board without chords has no material.
    if (level == 2 || (level > 0 && program.board().akk_zahl == 0)) {
      if (program.arbeitsblatt1() != nullptr) throw std::runtime_error("a run without chords");
      if (host.errors.empty()) throw std::runtime_error("no error was logged");
      host.errors.clear();
      slot_moved_ = true;
      return true;
    }
    if (program.arbeitsblatt1() == nullptr) throw std::runtime_error("no run was started");
    if (!ToldTheRun()) throw std::runtime_error("the run is none of which was told: " + told_);
    worksheet().zurueck.Press();
    loop.Advance(1000);
    slot_moved_ = true;
    return true;
  }
  /// Whether the screen has said what the run has become.
  bool ToldTheRun() {
    const int chords = program.board().akk_zahl;
    if (chords == 0) return told_.starts_with("[9564s]");
    if (std::stoi(told_) != chords) return false;
    if (settings().uebmodus < 3) return told_.find("tasks") == std::string::npos;
    const TestRest& test = run().test;
    const std::string seconds = PaddedText(test.rest_sek % 60, 2);
    return told_.find("·  " + std::to_string(test.test_aufgaben) + " tasks in " +
                      std::to_string(test.rest_sek / 60) + ":" + seconds) != std::string::npos;
  }
  bool Sampling() { return output.IsRunning() || screen().klangprobe.enabled; }

  /// Whether a run can start from what is chosen. `alle_`: all kinds were taken by the button while
  /// OK was ready.
  bool CanStart() {
    alle_ = alle_ && KindsOffered().empty() && Groups().empty();
    if (alle_) return true;
    const std::size_t groups = Groups().size();
    if (settings().akk_form == 1) return groups >= 2;
    const std::vector<int> kinds = Kinds();
    if (kinds.empty()) return false;
    if (kinds == std::vector<int>{3}) return true;
    return groups >= (kinds[0] == 3 ? 1u : 2u);
  }
  std::string OkTrouble() {
    const Button& ok = screen().cmdOK;
    if (ok.enabled && !CanStart()) return "OK is ready without a selection";
    if (ok.enabled && ok.back_color != kOkBereit) return "OK is ready and red";
    if (!Sampling() && ok.enabled != (ok.back_color == kOkBereit)) return "OK is locked and green";
    if (ok.caption != (ok.back_color == kOkBereit ? Wort(432) : Wort(139))) return "caption of OK";
    return "";
  }
  /// Fields that a screen opened anew does not show keep their values until their option is taken;
  /// a run leaves `klang_kanal` at its last channel.
  std::string OptionTrouble() {
    const std::pair<int, const OptionGroup*> pairs[] = {
        {settings().frequenz_art, &screen().frequenz},
        {settings().grundton_betont, &screen().betonung},
        {settings().klangfarb_art, &screen().kl_farb}};
    for (const auto& [field, group] : pairs) {
      if (field != group->chosen() && (group->chosen() != 0 || !reopened_)) return "an option";
    }
    if (screen().ComboPatch.list_index() == settings().patch_ar.at(settings().klang_kanal)) {
      slot_moved_ = false;
    } else if (!slot_moved_) {
      return "ComboPatch";
    }
    return "";
  }
  std::string LockTrouble() {
    for (const Control* control : screen().controls()) {
      if (!control->Reachable()) continue;
      const Control* frame = control->container;
      if (frame != nullptr && !frame->enabled) return control->Id() + " in a locked frame";
      const int f = frame != nullptr && frame->name() == "grdeinst" ? frame->index() : -1;
      const bool exam = f == 2 || f == 3 || f == 5 || f == 7 || f == 11;
      if (settings().uebmodus == 4 && exam) return control->Id() + " in an exam";
      if (settings().uebmodus == 2 && f >= 0 && f != 8 && f != 14 && f != 15) {
        return control->Id() + " in a training that was taken up";
      }
      if (settings().uebmodus == 2 && control == &screen().temp_Combo) return "tempo";
    }
    return "";
  }
  std::string Trouble() {
    for (std::string trouble :
         {RangeTrouble(settings()), ListTrouble(screen()), StepTrouble(screen(), settings()),
          OkTrouble(), OptionTrouble(), LockTrouble()}) {
      if (!trouble.empty()) return trouble;
    }
    return "";
  }
  void Go(unsigned seed, int events) {
    Begin(seed);
    for (int delivered = 0; delivered < events;) {
      ASSERT_NO_THROW(delivered += Step() ? 1 : 0) << seed << ' ' << delivered << ' ' << event_;
      ASSERT_NE(program.einstellung1(), nullptr) << seed << ' ' << delivered << ' ' << event_;
      ASSERT_EQ(Trouble(), "") << seed << ' ' << delivered << ' ' << event_;
    }
    EXPECT_GT(runs_, 0);
    EXPECT_TRUE(host.errors.empty());
  }

  std::mt19937 engine_;
  std::string event_;
  std::string told_;
  bool alle_ = false;
  bool reopened_ = false;
  bool slot_moved_ = false;
  int runs_ = 0;
};

class WalkFrom : public Walk, public ::testing::WithParamInterface<unsigned> {};

TEST_P(WalkFrom, KeepsListsFieldsAndButtonsInOrderForTwelveThousandEvents) {
  Go(GetParam(), 12000);
}

INSTANTIATE_TEST_SUITE_P(Seeds, WalkFrom, ::testing::Range(1u, 11u));

}  // namespace
}  // namespace vmod17

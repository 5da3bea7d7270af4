// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "support/program_fixture.h"
#include "worksheet/mode_fixture.h"

namespace vmod17 {

/// The text that a language without words gives for a text id.
inline std::string Wort(int id) { return "[" + std::to_string(id) + "s]"; }

/// The whole program with the results of a run on the screen. What is chosen is chosen on the
/// settings screen, so that the second face tells it.
///
///     ResultsFixture p;
///     p.host.user = {"4711", "Berg", "Anna"};
///     p.ToResults([](Einstellung1& e) { e.akkzahl_cmb.Choose(1); });
class ResultsFixture : public ModeFixture {
 public:
  using ModeFixture::ModeFixture;
  using Choose = std::function<void(Einstellung1&)>;

  /// To the results of a test whose time is up before anything was answered, once they take keys.
  void ToResults(const Choose& choose = {}, int uebmodus = kTest) {
    ToResultsPending(choose, uebmodus);
    loop.Advance(300);
    loop.Advance(results().schonfrist.interval);
  }
  /// The same, but the screen has not been set up yet.
  void ToResultsPending(const Choose& choose = {}, int uebmodus = kTest) {
    ToSettings();
    EXPECT_TRUE(settings_screen().training_Combo.Choose(uebmodus));
    if (choose) choose(settings_screen());
    RunOutOfTime();
  }
  /// From the settings screen to the results on their way.
  void RunOutOfTime() {
    StartRun();
    loop.Advance(run().test.rest_sek * 1000.0 - 200);
    loop.Advance(200);
    ASSERT_NE(program.testergebnis(), nullptr);
  }

  /// The lines of the second face that are shown: name and value.
  using Line = std::pair<std::string, std::string>;
  Line SettingsLine(int k) {
    const Testergebnis& r = results();
    EXPECT_EQ(r.einst_lab[k].visible, r.einst_Inh[k].visible) << k;
    if (!r.einst_lab[k].visible) return {};
    return {r.einst_lab[k].caption, r.einst_Inh[k].caption};
  }
  Line UserLine(int k) {
    const Testergebnis& r = results();
    EXPECT_EQ(r.g_einst_lab[k].visible, r.g_einst_inh[k].visible) << k;
    if (!r.g_einst_lab[k].visible) return {};
    return {r.g_einst_lab[k].caption, r.g_einst_inh[k].caption};
  }
};

/// All groups on offer, by one click.
inline void AllGroups(Einstellung1& e) { EXPECT_TRUE(e.grp_alle[0].Press()); }

/// Choices of the material: `akk_form`, what is named, and kinds by their number of notes.
inline void ChooseMaterial(Einstellung1& e, int akk_form, int best_art,
                           const std::vector<int>& kinds) {
  e.aus_w.Choose(akk_form);
  e.akk_grp.Choose(best_art);
  if (akk_form == 0) {
    while (e.klanglst[1].count() > 0) ASSERT_TRUE(e.klanglst[1].Choose(0));
    for (const int k : kinds) {
      int at = 0;
      while (e.klanglst[0].entry(at).item_data != k) ++at;
      ASSERT_TRUE(e.klanglst[0].Choose(at));
    }
  }
  if (e.grdeinst[2].visible) AllGroups(e);
}

}  // namespace vmod17

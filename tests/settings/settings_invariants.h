// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "settings/exams.h"
#include "settings/settings_screen.h"

namespace vmod17 {

/// What must hold on the settings screen at any moment. Each returns what is wrong, or nothing.

inline std::string RangeTrouble(const ExerciseSettings& s) {
  const auto in = [](int value, int low, int high) { return low <= value && value <= high; };
  const auto option = [&](int value) { return in(value, 0, 1); };
  if (!in(s.uebmodus, 0, 4)) return "uebmodus";
  if (!in(s.pruef_nr, 1, static_cast<int>(kPruefungen.size()))) return "pruef_nr";
  if (!in(s.tempo_idx, 0, 9)) return "tempo_idx";
  if (!in(s.arp_richtung, 0, 3)) return "arp_richtung";
  if (!in(s.arp_tempo_idx, 0, 4)) return "arp_tempo_idx";
  if (!in(s.arp_dauer, 19, 500)) return "arp_dauer";
  if (!in(s.akk_anzahl, 1, 4)) return "akk_anzahl";
  if (!in(s.oktav_ber, 0, 3)) return "oktav_ber";
  if (!in(s.ton_unten, 36, 72) || !in(s.ton_oben, 60, 96)) return "Tonraum";
  if (s.ton_oben != s.ton_unten + 24 + 12 * s.oktav_ber) return "width of the Tonraum";
  if (!option(s.abfolge) || !option(s.frequenz_art) || !option(s.best_art)) return "option";
  if (!option(s.akk_anzeige) || !option(s.akk_form) || !option(s.grundton_art)) return "option";
  if (!option(s.grundton_betont) || !option(s.klangfarb_art)) return "option";
  if (!in(s.klang_kanal, 0, 7)) return "klang_kanal";
  if (!in(s.klang_anzahl, 0, 5)) return "klang_anzahl";
  if (!in(s.grp_anzahl, 0, 8)) return "grp_anzahl";
  for (const int patch : s.patch_ar) {
    if (!in(patch, 0, 127)) return "patch_ar";
  }
  return "";
}

/// The values of both lists of a pair; nothing twice, and each list ascending.
inline std::string PairTrouble(const ControlArray<ItemList>& lists, std::set<int>& together) {
  together.clear();
  for (const int i : {0, 1}) {
    int last = -1;
    for (const ItemList::Entry& entry : lists[i].entries()) {
      if (entry.item_data <= last) return lists[i].Id() + " does not ascend";
      last = entry.item_data;
      if (!together.insert(last).second) return lists[i].Id() + " holds what the other one holds";
    }
    if (lists[i].list_index() != -1) return lists[i].Id() + " has a selection left";
  }
  return "";
}

/// Ascending, disjoint, and nothing lost between the two lists of a pair.
inline std::string ListTrouble(const Einstellung1& screen) {
  std::set<int> kinds;
  if (std::string trouble = PairTrouble(screen.klanglst, kinds); !trouble.empty()) return trouble;
  const std::set<int> named = {4, 5, 6, 7};
  const std::set<int> all = {3, 4, 5, 6, 7};
  if (kinds != named && kinds != all) return "a kind is lost";
  std::set<int> groups;
  if (std::string trouble = PairTrouble(screen.grplst, groups); !trouble.empty()) return trouble;
  const std::set<std::set<int>> offers = {
      {}, {1, 2, 3, 4, 5, 6, 7, 8}, {1, 2, 3, 4, 5, 6}, {2, 3, 4, 5}, {2, 5}};
  return offers.contains(groups) ? "" : "a group is lost";
}

/// Fields and controls that no settled way of the screen lets part.
inline std::string StepTrouble(const Einstellung1& screen, const ExerciseSettings& s) {
  if (s.uebmodus != screen.training_Combo.list_index()) return "training_Combo";
  if (s.pruef_nr != screen.prfnr_Comb.list_index() + 1) return "prfnr_Comb";
  if (s.tempo_idx != screen.temp_Combo.list_index()) return "temp_Combo";
  if (s.arp_richtung != screen.arpeg_cmb.list_index()) return "arpeg_cmb";
  if (s.arp_tempo_idx != screen.cmb_arpTmp.list_index()) return "cmb_arpTmp";
  if (s.akk_anzahl != screen.akkzahl_cmb.list_index() + 1) return "akkzahl_cmb";
  if (s.oktav_ber != screen.oktav_cmb.entry(screen.oktav_cmb.list_index()).item_data) {
    return "oktav_cmb";
  }
  if (s.ton_unten != 36 + 12 * screen.Combo_tonraum.list_index()) return "Combo_tonraum";
  if (s.abfolge != screen.abfrage.chosen()) return "abfrage";
  if (s.akk_form != screen.aus_w.chosen()) return "aus_w";
  if (s.best_art != screen.akk_grp.chosen()) return "akk_grp";
  if (s.akk_anzeige != screen.akk_anzg.chosen()) return "akk_anzg";
  if (s.grundton_art != screen.Tonart.chosen()) return "Tonart";
  if (screen.prfnr_Comb.enabled != (s.uebmodus == 4)) return "prfnr_Comb is open or locked";
  if (screen.cmb_arpTmp.visible != (s.arp_richtung < 3)) return "cmb_arpTmp is shown or hidden";
  if (screen.lb14[1].caption != std::to_string(screen.HSliderVolume.value())) return "lb14";
  constexpr float kDauer[] = {4000, 3000, 2000, 1500, 1200, 1000, 856, 750, 666, 600};
  constexpr float kTeiler[] = {8, 12, 16, 24, 32};
  if (s.arp_dauer != std::lrint(kDauer[s.tempo_idx] / kTeiler[s.arp_tempo_idx])) {
    return "arp_dauer";
  }
  return "";
}

}  // namespace vmod17

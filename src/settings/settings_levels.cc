// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The training level: what it frees and locks, the training that is taken up again, the exams.

#include <algorithm>
#include <array>
#include <exception>

#include "base/numbers.h"
#include "base/record_reader.h"
#include "catalogue/chord_table.h"
#include "settings/exams.h"
#include "settings/settings_screen.h"

namespace vmod17 {
namespace {

constexpr const char* kKeinTraining = "---------------";

constexpr std::array kRahmenDesTrainings = {5, 4, 10, 7, 3, 12, 9, 11, 2, 1, 0, 17};
constexpr std::array kRahmenDerPruefung = {5, 7, 3, 11, 2};

/// Selects the first entry with that text, if there is one.
void WaehleText(ItemList& list, const std::string& text) {
  for (int i = 0; i < list.count(); ++i) {
    if (list.entry(i).text != text) continue;
    list.Select(i);
    return;
  }
}

void WaehleWert(ItemList& list, int item_data) {
  for (int i = 0; i < list.count(); ++i) {
    if (list.entry(i).item_data != item_data) continue;
    list.Select(i);
    return;
  }
}

}  // namespace

void Einstellung1::FuelleTraining(Fortsetzung fortsetzung) {
  training_Combo.Clear();
  for (int i = 0; i < static_cast<int>(parts_.names.modus_name_ar.size()); ++i) {
    const bool leer = i == kModusFortsetzung && fortsetzung == Fortsetzung::kKeine;
    if (leer) {
      training_Combo.AddEmpty(kKeinTraining, ItemList::kValueIsIndex);
    } else {
      training_Combo.Add(parts_.names.modus_name_ar[i], ItemList::kValueIsIndex);
    }
  }
}

bool Einstellung1::BietetFortsetzung() const {
  return training_Combo.entry(kModusFortsetzung).text != kKeinTraining;
}

Einstellung1::Fortsetzung Einstellung1::GespeichertesTraining() {
  const std::string typ = DecimalText(shell_.state.uebTyp);
  ModServer& server = shell_.server;
  const bool da = server.LeseEinstellung("E" + typ) && server.LeseAblage("A" + typ) &&
                  !server.ablage_ar.empty() && server.ablage_ar[0] == TaggedValue("true");
  return da ? Fortsetzung::kVorhanden : Fortsetzung::kKeine;
}

void Einstellung1::training_Combo_Click() {
  ExerciseSettings& settings = parts_.settings;
  settings.uebmodus = training_Combo.list_index();
  prfnr_Comb.enabled = false;
  GibVomTestFrei();
  if (settings.uebmodus != kModusFortsetzung) {
    GibRahmenFrei();
  }
  if (settings.uebmodus == kModusPruefung) {
    prfnr_Comb.enabled = true;
    prfnr_Comb_Click();
  }
  if (settings.uebmodus != kModusFortsetzung) return;
  if (training_Combo.text() == kKeinTraining) {
    training_Combo.Select(kModusNeuesTraining);
    return;
  }
  try {
    StelleWiederHer();
  } catch (const std::exception&) {
    shell_.messages.Warn(shell_.texts.Sprachtext(196),
                         parts_.names.modus_name_ar[kModusFortsetzung]);
    training_Combo.Select(kModusNeuesTraining);
    return;
  }
  for (const int i : kRahmenDesTrainings) SperreRahmen(i);
  temp_Combo.enabled = false;
  temp_Combo.fore_color = kGesperrterRahmen;
}

void Einstellung1::GibRahmenFrei() {
  for (const int i : kRahmenDesTrainings) {
    grdeinst[i].enabled = true;
    grdeinst[i].back_color = kRahmenFarbe;
  }
  temp_Combo.enabled = true;
  temp_Combo.fore_color = kTempoFarbe;
}

/// Frees the frame of timbre and tempo, which no level locks: what has locked it is a test file,
/// and the others that it has locked take the state of the level.
void Einstellung1::GibVomTestFrei() {
  if (grdeinst[15].enabled) return;
  grdeinst[15].enabled = true;
  grdeinst[15].back_color = kKlangRahmen;
}

void Einstellung1::SperreRahmen(int rahmen) {
  grdeinst[rahmen].enabled = false;
  grdeinst[rahmen].back_color = kGesperrterRahmen;
}

/// Whether the level settles what a control sets: a training that was taken up all of its settings
/// but the timbre, an exam what it asks for. The colour of a frame does not tell; the mark of the
/// popup takes its place.
bool Einstellung1::HaeltLevel(const Control& control) const {
  const auto steht_in = [&](const auto& rahmen) {
    return std::any_of(rahmen.begin(), rahmen.end(),
                       [&](int i) { return control.container == &grdeinst[i]; });
  };
  switch (parts_.settings.uebmodus) {
    case kModusFortsetzung:
      return &control == &temp_Combo || steht_in(kRahmenDesTrainings);
    case kModusPruefung:
      return steht_in(kRahmenDerPruefung);
    default:
      return false;
  }
}

void Einstellung1::StelleWiederHer() {
  shell_.server.LeseEinstellung("E" + DecimalText(shell_.state.uebTyp));
  if (shell_.state.uebTyp != 1) return;
  const TaggedValue::Array satz = shell_.server.einst_satz;
  RecordReader leser(satz, "E1");
  constexpr int kMaxIndex = 32767;  // the lists know their own bounds
  abfrage.Check(leser.Number(0, 1));
  temp_Combo.Select(leser.Number(0, kMaxIndex));
  akkzahl_cmb.Select(leser.Number(1, kMaxIndex) - 1);
  arpeg_cmb.Select(leser.Number(0, kMaxIndex));
  aus_w.Check(leser.Number(0, 1));
  akk_grp.Check(leser.Number(0, 1));
  akk_anzg.Check(leser.Number(0, 1));
  Tonart.Check(leser.Number(0, 1));
  // The stored value is the width and not the place in the list, which begins one octave wider for
  // voicings.
  oktav_cmb.Select(leser.Number(0, kMaxIndex));
  Combo_tonraum.Select(leser.Number(0, kMaxIndex));
  frequenz.Check(leser.Number(0, 1));
  leser.Next();
  betonung.Check(leser.Number(0, 1));
  cmb_arpTmp.Select(leser.Number(0, kMaxIndex));

  const int klaenge = leser.Number(0, 5);
  for (int i = 0; i < klaenge; ++i) WaehleText(klanglst[0], leser.Text());
  parts_.settings.klang_anzahl = klaenge;

  const int klangfarb_art = leser.Number(0, 1);
  const int erste = klangfarb_art == 0 ? 0 : 1;
  const int letzte = klangfarb_art == 0 ? 0 : 7;
  for (int i = erste; i <= letzte; ++i) parts_.settings.patch_ar[i] = leser.Number(0, 127);
  kl_farb.Check(klangfarb_art);
  HSliderVolume.Set(leser.Number(HSliderVolume.low(), HSliderVolume.high()));

  const int gruppen = leser.Number(0, kGruppen);
  parts_.settings.grp_anzahl = gruppen;
  for (int i = 0; i < gruppen; ++i) WaehleText(grplst[0], leser.Text());
}

void Einstellung1::prfnr_Comb_Click() {
  parts_.settings.pruef_nr = prfnr_Comb.list_index() + 1;
  if (form_bereit) SetzePruefung();
}

void Einstellung1::SetzePruefung() {
  ExerciseSettings& settings = parts_.settings;
  settings.pruef_seed = 0;
  const Pruefung& pruefung = kPruefungen.at(settings.pruef_nr - 1);
  abfrage.Check(1);
  aus_w.Check(pruefung.akk_form);
  akk_grp.Check(pruefung.best_art);
  for (const int k : pruefung.klangtypen) WaehleWert(klanglst[0], k);
  if (pruefung.gruppen == Pruefung::Gruppen::kAlle) grp_alle_Click(0);
  for (const int i : kRahmenDerPruefung) SperreRahmen(i);
}

void Einstellung1::grdeinst_RechteTaste(int rahmen) {
  popup_rahmen = rahmen;
  popPruefung.checked = grdeinst[rahmen].tag == kMarke;
  popPruefung.OpenAt(grdeinst[rahmen]);
}

void Einstellung1::popExamToggle_Click() {
  popPruefung.checked = !popPruefung.checked;
  Frame& rahmen = grdeinst[popup_rahmen];
  rahmen.tag = popPruefung.checked ? kMarke : "";
  rahmen.back_color = popPruefung.checked ? kBereitFarbe : kRahmenFarbe;
}

}  // namespace vmod17

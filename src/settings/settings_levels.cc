// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The training level: what it frees and locks, the training that is taken up again, the exams.

#include <algorithm>
#include <exception>

#include "base/numbers.h"
#include "base/text_ids.h"
#include "catalogue/chord_table.h"
#include "settings/exams.h"
#include "settings/settings_screen.h"
#include "settings/settings_table.h"

namespace vmod17 {
namespace {

constexpr const char* kKeinTraining = "---------------";

static_assert(StoredSettings::kHoechsteStaerke == ModMIDI::kHoechsteStaerke);

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
    shell_.messages.Warn(shell_.texts.Sprachtext(text_id::kSettingsUnreadable),
                         parts_.names.modus_name_ar[kModusFortsetzung]);
    training_Combo.Select(kModusNeuesTraining);
    return;
  }
  SperreRahmen(kModusFortsetzung);
  temp_Combo.enabled = false;
  temp_Combo.fore_color = kGesperrterRahmen;
}

void Einstellung1::GibRahmenFrei() {
  for (const Rahmen& rahmen : kRahmen) {
    if (rahmen.gesperrt == Rahmen::Gesperrt::kNie) continue;
    grdeinst[rahmen.nummer].enabled = true;
    grdeinst[rahmen.nummer].back_color = rahmen.farbe;
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

/// Locks what a level settles.
void Einstellung1::SperreRahmen(int uebmodus) {
  for (const Rahmen& rahmen : kRahmen) {
    if (!Sperrt(uebmodus, rahmen)) continue;
    grdeinst[rahmen.nummer].enabled = false;
    grdeinst[rahmen.nummer].back_color = kGesperrterRahmen;
  }
}

/// Whether the level settles what a control sets: a training that was taken up all of its settings
/// but the timbre, an exam what it asks for. The colour of a frame does not tell; the mark of the
/// popup takes its place.
bool Einstellung1::HaeltLevel(const Control& control) const {
  const int uebmodus = parts_.settings.uebmodus;
  if (&control == &temp_Combo) return uebmodus == kModusFortsetzung;
  return std::ranges::any_of(kRahmen, [&](const Rahmen& rahmen) {
    return control.container == &grdeinst[rahmen.nummer] && Sperrt(uebmodus, rahmen);
  });
}

/// Takes stored settings up through the events of the controls.
class Einstellung1::Aufnahme : public StoredSettings::Nehmer {
 public:
  explicit Aufnahme(Einstellung1& screen) : screen_(screen) {}

  void NimmZahl(int ExerciseSettings::*feld, int wert) override {
    const auto merkmal = std::ranges::find(kMerkmale, feld, &Merkmal::feld);
    if (merkmal == kMerkmale.end()) {
      screen_.parts_.settings.*feld = wert;  // a number of kinds or groups
    } else if (merkmal->gruppe != nullptr) {
      (screen_.*merkmal->gruppe).Check(wert);
    } else {
      (screen_.*merkmal->liste).Select(wert - merkmal->erster);
    }
  }
  void NimmKlang(const std::string& name) override { WaehleText(screen_.klanglst[0], name); }
  void NimmProgramm(int kanal, int programm) override {
    screen_.parts_.settings.patch_ar.at(kanal) = programm;
  }
  void NimmStaerke(int staerke) override { screen_.HSliderVolume.Set(staerke); }
  void NimmGruppe(const std::string& name) override { WaehleText(screen_.grplst[0], name); }

 private:
  Einstellung1& screen_;
};

void Einstellung1::StelleWiederHer() {
  shell_.server.LeseEinstellung("E" + DecimalText(shell_.state.uebTyp));
  if (shell_.state.uebTyp != 1) return;
  const TaggedValue::Array satz = shell_.server.einst_satz;
  Aufnahme aufnahme(*this);
  StoredSettings::Read(satz, aufnahme);
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
  SperreRahmen(kModusPruefung);
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

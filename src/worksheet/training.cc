// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// A training: its material and gauge, how it ends, how it is kept and taken up again.

#include <exception>

#include "shell/numbers.h"
#include "worksheet/worksheet_screen.h"

namespace vmod17 {
namespace {

[[noreturn]] void Unbrauchbar(const char* why) {
  throw RunTimeError(ErrorNumber::kTypeMismatch, why, "vmod17.A1");
}

}  // namespace

void Arbeitsblatt1::BeginneTraining() {
  run_.material.BeginneTraining(parts_.counters.auswertung_obj);
  ZeigeTraining();
}

/// Reads the stored training and takes its board over.
void Arbeitsblatt1::NimmTrainingAuf() {
  const std::string typ = DecimalText(shell_.state.uebTyp);
  ModServer& server = shell_.server;
  try {
    if (!server.LeseAblage("A" + typ)) Unbrauchbar("no stored training can be read");
    // Another program may have stored a training since the settings were restored.
    const TaggedValue::Array einst_satz = server.einst_satz;
    server.LeseEinstellung("E" + typ);
    if (server.einst_satz != einst_satz) Unbrauchbar("the stored training has other settings");
    fortsetzung_ = StoredTraining::Read(server.ablage_ar, parts_.settings);
    parts_.board.Uebernimm(Auswahl(), fortsetzung_.akk_tab);
  } catch (const std::exception&) {
    // Said in its own words, before the error goes its usual way.
    shell_.messages.Warn(shell_.texts.Sprachtext(196), shell_.texts.modus_name_ar[kFortsetzung]);
    parts_.einstellung1.training_Combo.Select(kNeuesTraining);
    throw;
  }
}

void Arbeitsblatt1::SetzeTrainingFort() {
  Auswertung& auswertung = parts_.counters.auswertung_obj;
  for (std::size_t i = 0; i < fortsetzung_.mat_tab.size(); ++i) {
    for (int j = 0; j < StoredTraining::kSpalten; ++j) {
      auswertung.Save(fortsetzung_.mat_tab[i][0], j, fortsetzung_.auswertung[i][j]);
    }
  }
  zaehler[0].caption = DecimalText(fortsetzung_.richtig);
  zaehler[1].caption = DecimalText(fortsetzung_.falsch);
  whlgzaehler.caption = DecimalText(fortsetzung_.wiederholt);
  parts_.board.limits.fehl_max = fortsetzung_.fehl_max;
  run_.material.SetzeFort(fortsetzung_.mat_tab, auswertung);
  ZeigeTraining();
}

void Arbeitsblatt1::ZeigeTraining() {
  PicUetyp[0].visible = true;
  matboxanz.visible = true;
  ergebnis_anz[0].visible = true;
  ergebnis_anz[1].visible = false;
  ergebnis_anz[2].visible = false;
  ZeigeMaterial();
}

void Arbeitsblatt1::ZeigeMaterial() { matboxanz.percent = run_.material.Prozent(); }

void Arbeitsblatt1::WerteTraining() {
  const TrainingStand stand = PruefeTraining(run_.material);
  if (stand != TrainingStand::kGehtWeiter) {
    ergebnis_anz[0].visible = false;
    ergebnis_anz[stand == TrainingStand::kGeloest ? 1 : 2].visible = true;
    run_.lauf_status = LaufStatus::kTrainingZuEnde;
  }
  ZeigeMaterial();
}

void Arbeitsblatt1::BeendeTraining() {
  if (parts_.settings.abfolge == 0) CmdNextAufg.enabled = false;
  wieder.visible = false;
  wieder.enabled = false;
  wieder2.visible = true;
  MeldeEnde();
  pointer = Pointer::kHourglass;
  shell_.server.Speichere("A1", KeinTraining());
  pointer = Pointer::kDefault;
  // What is solved, or was too hard, cannot be continued.
  parts_.einstellung1.FuelleTraining(Einstellung1::Fortsetzung::kKeine);
  parts_.einstellung1.training_Combo.Select(kNeuesTraining);
}

void Arbeitsblatt1::BieteSichernAn() {
  const TextLookup& texts = shell_.texts;
  std::string frage = texts.Sprachtext(495) + "\n" + texts.Sprachtext(8);
  while (shell_.messages.Ask(frage, caption) == MessageBox::Answer::kYes && loaded()) {
    try {
      SichereTraining();
      return;
    } catch (const std::exception&) {
      pointer = Pointer::kDefault;
      shell_.errors.LogFehler(AsRunTimeError(std::current_exception()), "zurueck_click." + name(),
                              ErrorReport::Zeigen::kNein);
      // Nothing is lost as long as the student does not give it up.
      frage = texts.Words({9301, "The training could not be saved. Try again?", {}});
    }
  }
}

void Arbeitsblatt1::Abbrechen() {
  if (!loaded() || run_.abbruch) return;
  HalteAn();
  const bool ersetzt_nichts = IstFortsetzung() || !parts_.einstellung1.BietetFortsetzung();
  if (IstZuSichern() && ersetzt_nichts) {
    try {
      SichereTraining();
    } catch (const std::exception&) {
      // The host has told what is wrong with its store, and there is nobody to be asked.
    }
  }
  Verlasse();
}

bool Arbeitsblatt1::IstZuSichern() const {
  return zurueck.tag == "OK" && IstTraining() && run_.schalter_zaehler > 0 &&
         run_.lauf_status != LaufStatus::kTrainingZuEnde;
}

void Arbeitsblatt1::SichereTraining() {
  // The event of the level that is selected again may change the mode.
  const int uebmodus = parts_.settings.uebmodus;
  pointer = Pointer::kHourglass;
  shell_.server.SpeichereTraining("1", Trainingsstand().Write());
  pointer = Pointer::kDefault;
  parts_.einstellung1.FuelleTraining(Einstellung1::Fortsetzung::kVorhanden);
  parts_.einstellung1.training_Combo.Select(uebmodus);
}

StoredTraining Arbeitsblatt1::Trainingsstand() const {
  const Material& material = run_.material;
  StoredTraining training;
  training.mat_tab.assign(material.mat_tab.begin() + 1, material.mat_tab.end());
  for (int e = 1; e <= parts_.board.akk_zahl; ++e) training.akk_tab.push_back(parts_.board[e]);
  for (const auto& [entry, gewicht] : training.mat_tab) {
    auto& werte = training.auswertung.emplace_back();
    for (int j = 0; j < StoredTraining::kSpalten; ++j) {
      parts_.counters.auswertung_obj.read(entry, j, werte[j]);
    }
  }
  training.richtig = LeadingNumber(zaehler[0].caption);
  training.falsch = LeadingNumber(zaehler[1].caption);
  training.wiederholt = LeadingNumber(whlgzaehler.caption);
  training.fehl_max = parts_.board.limits.fehl_max;
  return training;
}

}  // namespace vmod17

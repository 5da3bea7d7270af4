// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// A training: its material and gauge, how it ends, how it is kept and taken up again.

#include <exception>
#include <utility>

#include "base/numbers.h"
#include "base/text_ids.h"
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
    if (!server.LeseEinstellung("E" + typ) || server.einst_satz != einst_satz) {
      Unbrauchbar("the stored training has other settings");
    }
    fortsetzung_ = StoredTraining::Read(server.ablage_ar, parts_.settings);
    parts_.board.Uebernimm(Auswahl(), fortsetzung_.akk_tab);
  } catch (const std::exception&) {
    // Said in its own words, before the error goes its usual way.
    shell_.messages.Warn(shell_.texts.Sprachtext(text_id::kSettingsUnreadable),
                         parts_.names.modus_name_ar[kModusFortsetzung]);
    parts_.einstellung1.training_Combo.Select(kModusNeuesTraining);
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
  run_.count = {fortsetzung_.richtig, fortsetzung_.falsch, fortsetzung_.wiederholt};
  ZeigeZaehler();
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

Label& Arbeitsblatt1::Trainingsanzeige(TrainingStand stand) const {
  switch (stand) {
    case TrainingStand::kGehtWeiter:
      break;
    case TrainingStand::kGeloest:
      return ergebnis_anz[1];
    case TrainingStand::kZuSchwer:
      return ergebnis_anz[2];
  }
  return ergebnis_anz[0];
}

void Arbeitsblatt1::ZeigeTrainingsstand(TrainingStand stand) {
  ergebnis_anz[0].visible = false;
  Trainingsanzeige(stand).visible = true;
  ZeigeMaterial();
}

void Arbeitsblatt1::BeendeTraining() {
  if (parts_.settings.abfolge == 0) CmdNextAufg.enabled = false;
  MeldeEnde();
  pointer = Pointer::kHourglass;
  shell_.server.Speichere("A1", KeinTraining());
  pointer = Pointer::kDefault;
  // What is solved, or was too hard, cannot be continued.
  parts_.einstellung1.FuelleTraining(Einstellung1::Fortsetzung::kKeine);
  parts_.einstellung1.training_Combo.Select(kModusNeuesTraining);
}

void Arbeitsblatt1::BieteSichernAn() {
  const TextLookup& texts = shell_.texts;
  std::string frage = texts.Sprachtext(text_id::kSaveProgressQuestion) + "\n" +
                      texts.Sprachtext(text_id::kReplacesEarlierProgress);
  while (WillSichern(frage)) {
    try {
      SichereTraining();
      return;
    } catch (const std::exception&) {
      pointer = Pointer::kDefault;
      MeldeSicherungsfehler(std::current_exception());
      // Nothing is lost as long as the student does not give it up.
      frage = texts.Words(
          {text_id::kTrainingNotSavedQuestion, "The training could not be saved. Try again?", {}});
    }
  }
}

bool Arbeitsblatt1::WillSichern(const std::string& frage) {
  frage_ = Frage::kSichern;
  const MessageBox::Answer answer = shell_.messages.Ask(frage, caption, MessageBox::Answer::kYes);
  // The program may have been ended while the question stood.
  return std::exchange(frage_, Frage::kKeine) == Frage::kSichern &&
         answer == MessageBox::Answer::kYes;
}

void Arbeitsblatt1::MeldeSicherungsfehler(const std::exception_ptr& error) {
  try {
    shell_.errors.LogFehler(AsRunTimeError(error), "zurueck_click." + name(),
                            ErrorReport::Zeigen::kNein);
  } catch (const std::exception&) {
    // The log lies in the same store.
  }
}

void Arbeitsblatt1::Abbrechen() {
  if (loaded() && !run_.abbruch) {
    HalteAn();
  } else if (std::exchange(frage_, Frage::kKeine) != Frage::kSichern) {
    return;
  }
  const bool ersetzt_nichts = IstFortsetzung() || !parts_.einstellung1.BietetFortsetzung();
  if (IstZuSichern() && ersetzt_nichts) {
    try {
      LegeTrainingAb();
    } catch (const std::exception&) {
      // The host has told what is wrong with its store, and there is nobody to be asked.
    }
  }
  Verlasse();
}

bool Arbeitsblatt1::IstZuSichern() const {
  return !run_.gescheitert && IstTraining() && run_.schalter_zaehler > 0 && !IstZuEnde();
}

void Arbeitsblatt1::SichereTraining() {
  // The event of the level that is selected again may change the mode.
  const int uebmodus = parts_.settings.uebmodus;
  LegeTrainingAb();
  parts_.einstellung1.FuelleTraining(Einstellung1::Fortsetzung::kVorhanden);
  parts_.einstellung1.training_Combo.Select(uebmodus);
}

void Arbeitsblatt1::LegeTrainingAb() {
  pointer = Pointer::kHourglass;
  shell_.server.SpeichereTraining("1", Trainingsstand().Write());
  pointer = Pointer::kDefault;
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
  training.richtig = run_.count.richtig;
  training.falsch = run_.count.falsch;
  training.wiederholt = run_.count.wiederholt;
  training.fehl_max = parts_.board.limits.fehl_max;
  return training;
}

}  // namespace vmod17

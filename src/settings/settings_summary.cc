// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The settings of a run as they are kept: in words for the record and the results, and as the
// stored record of a training.

#include <string>
#include <vector>

#include "base/numbers.h"
#include "exercise/stored_settings.h"
#include "settings/settings_screen.h"
#include "settings/settings_table.h"
#include "sound/instrument_list.h"

namespace vmod17 {
namespace {

/// The digit in the apostrophe's place keeps quotation marks out of the record.
std::string OhneApostroph(std::string text) {
  const std::size_t at = text.find('\'');
  if (at != std::string::npos) text[at] = '1';
  return text;
}

}  // namespace

void Einstellung1::EinstDatSave() {
  shell_.errors.Guard(
      "EinstDatSave", *this,
      [this] {
        const ExerciseSettings& s = parts_.settings;
        parts_.settings.einst_liste = {""};
        EinstEintrag("Übungsmodus", training_Combo.text());
        if (s.uebmodus == kModusPruefung) EinstEintrag("Nr.:", prfnr_Comb.text());
        for (const Merkmal& merkmal : kMerkmale) TrageEin(merkmal);
        TaggedValue::Array& liste = parts_.settings.einst_liste;
        liste[0] = DecimalText(static_cast<int>(liste.size()) - 1);
      },
      [this] { cmdZurueck_Click(); });
}

/// Enters a setting, and behind it what belongs to it.
void Einstellung1::TrageEin(const Merkmal& merkmal) {
  const ExerciseSettings& s = parts_.settings;
  if (!merkmal.Gilt(s)) return;
  std::string wert = merkmal.gruppe != nullptr ? (this->*merkmal.gruppe)[s.*merkmal.feld].caption
                                               : (this->*merkmal.liste).text();
  if (merkmal.gruppe == &Einstellung1::frequenz) wert = OhneApostroph(wert);
  EinstEintrag(std::string(merkmal.schluessel), wert);
  if (merkmal.gruppe == &Einstellung1::kl_farb) TrageKlangfarbenEin();
  if (merkmal.gruppe == &Einstellung1::aus_w) TrageAuswahlEin();
}

void Einstellung1::TrageKlangfarbenEin() {
  const ExerciseSettings& s = parts_.settings;
  if (s.klangfarb_art == 0) {
    EinstEintrag("Klangfarbe", ComboPatch.text());
    return;
  }
  // Only the timbres of notes that can sound.
  const int n = s.akk_form == 1 ? 5 : klanglst[1].entry(klanglst[1].count() - 1).item_data;
  EinstEintrag("Klangf. aufw.: ", DecimalText(n));
  for (int i = 1; i <= n; ++i) {
    EinstEintrag(Channel_Combo.entry(i - 1).text, ComboPatch.entry(s.patch_ar.at(i)).text);
  }
}

void Einstellung1::TrageAuswahlEin() {
  const ExerciseSettings& s = parts_.settings;
  if (s.akk_form == 0) {
    EinstEintrag("Klang-Auswahl Anzahl", DecimalText(klanglst[1].count()));
    for (int i = 1; i <= s.klang_anzahl; ++i) {
      EinstEintrag("Klangtyp Nr." + DecimalText(i), klanglst[1].entry(i - 1).text);
    }
  }
  if (grdeinst[2].visible) {
    EinstEintrag("Grp-Auswahl Anzahl", DecimalText(s.grp_anzahl));
    for (int i = 1; i <= s.grp_anzahl; ++i) {
      EinstEintrag("Grp-typ Nr." + DecimalText(i), grplst[1].entry(i - 1).text);
    }
  }
}

void Einstellung1::EinstEintrag(const std::string& key, const std::string& value) {
  parts_.settings.einst_liste.emplace_back(key);
  parts_.settings.einst_liste.emplace_back(value);
}

void Einstellung1::BaueEinstSatz() {
  const auto namen = [](const ItemList& list) {
    std::vector<std::string> texte;
    for (const ItemList::Entry& entry : list.entries()) texte.push_back(entry.text);
    return texte;
  };
  const ExerciseSettings& s = parts_.settings;
  StoredSettings stored{s, {}, HSliderVolume.value(), namen(grplst[1])};
  // The list of kinds is out of sight for voicings, and may hold what was chosen before.
  if (s.akk_form == 0) stored.klaenge = namen(klanglst[1]);
  shell_.server.einst_satz = stored.Write();
}

}  // namespace vmod17

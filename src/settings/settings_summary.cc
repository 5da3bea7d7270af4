// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The settings of a run as they are kept: in words for the record and the results, and as the
// stored record of a training.

#include "base/numbers.h"
#include "settings/settings_screen.h"
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
        TrageKlangfarbenEin();
        EinstEintrag("Tempo", temp_Combo.text());
        EinstEintrag("Frequenz", OhneApostroph(frequenz[s.frequenz_art].caption));
        EinstEintrag("Abfolge", abfrage[s.abfolge].caption);
        EinstEintrag("Bestimmen", akk_grp[s.best_art].caption);
        if (s.best_art == 0) EinstEintrag("Akk-Anzeige", akk_anzg[s.akk_anzeige].caption);
        TrageAuswahlEin();
        EinstEintrag("Akk-Anzahl", akkzahl_cmb.text());
        EinstEintrag("Tonraum", oktav_cmb.text());
        EinstEintrag("Oktavbereich", Combo_tonraum.text());
        EinstEintrag("Richtung", arpeg_cmb.text());
        if (s.arp_richtung < kArpOhne) EinstEintrag("Arp.-Tempo", cmb_arpTmp.text());
        EinstEintrag("Akk-Grdton", betonung[s.grundton_betont].caption);
        EinstEintrag("Grdton", Tonart[s.grundton_art].caption);
        TaggedValue::Array& liste = parts_.settings.einst_liste;
        liste[0] = DecimalText(static_cast<int>(liste.size()) - 1);
      },
      [this] { cmdZurueck_Click(); });
}

void Einstellung1::TrageKlangfarbenEin() {
  const ExerciseSettings& s = parts_.settings;
  EinstEintrag("Klangfarbe", kl_farb[s.klangfarb_art].caption);
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
  EinstEintrag("Auswahl", aus_w[s.akk_form].caption);
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
  const ExerciseSettings& s = parts_.settings;
  const int n = s.klang_anzahl;
  const int g = s.grp_anzahl;
  TaggedValue::Array satz;
  const auto zahl = [&](int value) { satz.emplace_back(DecimalText(value)); };
  for (const int value :
       {s.abfolge, s.tempo_idx, s.akk_anzahl, s.arp_richtung, s.akk_form, s.best_art, s.akk_anzeige,
        s.grundton_art, s.oktav_ber, Combo_tonraum.list_index(), s.frequenz_art}) {
    zahl(value);
  }
  satz.emplace_back();
  zahl(s.grundton_betont);
  zahl(cmb_arpTmp.list_index());
  zahl(n);
  for (int i = 0; i < n; ++i) {
    // The list of kinds is out of sight for voicings, and may hold what was chosen before.
    const bool gewaehlt = s.akk_form == 0 && i < klanglst[1].count();
    satz.emplace_back(gewaehlt ? klanglst[1].entry(i).text : "");
  }
  zahl(s.klangfarb_art);
  const int erster = s.klangfarb_art == 0 ? 0 : 1;
  const int letzter = s.klangfarb_art == 0 ? 0 : 7;
  for (int i = erster; i <= letzter; ++i) zahl(s.patch_ar[i]);
  zahl(HSliderVolume.value());
  zahl(g);
  for (int i = 0; i < g; ++i) satz.emplace_back(grplst[1].entry(i).text);
  shell_.server.einst_satz = std::move(satz);
}

}  // namespace vmod17

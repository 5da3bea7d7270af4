// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "base/text_ids.h"
#include "exercise/settings_record.h"
#include "exercise/stored_settings.h"
#include "settings/settings_frames.h"
#include "settings/settings_screen.h"

namespace vmod17 {

/// A setting that has a control of its own and a field that holds it. The screen is set up, locked
/// and put into words from this, a test file finds its controls by it, a stored training is taken
/// up through it, and the results show what has a line there.
struct Merkmal {
  /// What becomes of the field when the screen is opened anew. A list sets its own.
  enum class BeimOeffnen { kUnbestimmt, kBleibt, kNull };
  static constexpr int kKeineZeile = -1;

  int ExerciseSettings::*feld = nullptr;
  OptionGroup Einstellung1::*gruppe = nullptr;  ///< two options; null for a list
  ItemList Einstellung1::*liste = nullptr;      ///< null for two options
  int rahmen = 0;
  std::string_view marke;       ///< the tag, by which a test file calls the control
  std::string_view schluessel;  ///< the key in the settings in words
  /// Whether it says anything beside the others; null where it always does.
  bool (*gilt)(const ExerciseSettings&) = nullptr;

  // Of two options:
  std::array<int, 2> texte = {};  ///< their text ids, for `Sprachtext()`
  int zeile = 0;                  ///< the line on the results' page, or `kKeineZeile`
  BeimOeffnen beim_oeffnen = BeimOeffnen::kUnbestimmt;

  // Of a list:
  int erster = 0;  ///< what a stored training calls the first entry

  bool Gilt(const ExerciseSettings& settings) const { return gilt == nullptr || gilt(settings); }
};

constexpr std::array<int, 2> Texte(int erste, int zweite) { return {erste, zweite}; }

/// In the order of the settings in words.
inline constexpr std::array kMerkmale = {
    Merkmal{.feld = &ExerciseSettings::klangfarb_art,
            .gruppe = &Einstellung1::kl_farb,
            .rahmen = 15,
            .marke = "Klangfarbe",
            .schluessel = "Klangfarbe",
            .texte = Texte(text_id::kConstant, text_id::kIndividual),
            .zeile = Merkmal::kKeineZeile,  // the results tell the timbres themselves
            .beim_oeffnen = Merkmal::BeimOeffnen::kBleibt},
    Merkmal{.feld = &ExerciseSettings::tempo_idx,
            .liste = &Einstellung1::temp_Combo,
            .rahmen = 15,
            .marke = "Tempo#var",
            .schluessel = "Tempo"},
    Merkmal{.feld = &ExerciseSettings::frequenz_art,
            .gruppe = &Einstellung1::frequenz,
            .rahmen = 0,
            .marke = "Frequenz",
            .schluessel = "Frequenz",
            .texte = Texte(text_id::kFixedTuning, text_id::kVariable),
            .zeile = 8,
            .beim_oeffnen = Merkmal::BeimOeffnen::kBleibt},
    Merkmal{.feld = &ExerciseSettings::abfolge,
            .gruppe = &Einstellung1::abfrage,
            .rahmen = 5,
            .marke = "Abfolge",
            .schluessel = "Abfolge",
            .texte = Texte(text_id::kManual, text_id::kAutomatic),
            .zeile = 3,
            .beim_oeffnen = Merkmal::BeimOeffnen::kNull},
    Merkmal{.feld = &ExerciseSettings::best_art,
            .gruppe = &Einstellung1::akk_grp,
            .rahmen = 3,
            .marke = "Bestimmen",
            .schluessel = "Bestimmen",
            .texte = Texte(text_id::kChord, text_id::kGroup),
            .zeile = 5,
            .beim_oeffnen = Merkmal::BeimOeffnen::kNull},
    Merkmal{.feld = &ExerciseSettings::akk_anzeige,
            .gruppe = &Einstellung1::akk_anzg,
            .rahmen = 12,
            .marke = "Akk.-Anzeige",
            .schluessel = "Akk-Anzeige",
            .gilt = [](const ExerciseSettings& s) { return s.best_art == 0; },
            .texte = Texte(text_id::kNotesAndSymbol, text_id::kSymbolOnly),
            .zeile = 6,
            .beim_oeffnen = Merkmal::BeimOeffnen::kNull},
    Merkmal{.feld = &ExerciseSettings::akk_form,
            .gruppe = &Einstellung1::aus_w,
            .rahmen = 7,
            .marke = "Akk-Form",
            .schluessel = "Auswahl",
            .texte = Texte(text_id::kThreeToSevenNotes, text_id::kTwoHandVoicings),
            .zeile = 12,
            .beim_oeffnen = Merkmal::BeimOeffnen::kNull},
    Merkmal{.feld = &ExerciseSettings::akk_anzahl,
            .liste = &Einstellung1::akkzahl_cmb,
            .rahmen = 4,
            .marke = "Akkord-Anzahl#var",
            .schluessel = "Akk-Anzahl",
            .erster = 1},
    // What is stored of this one is its value and not its place, which begins one octave wider for
    // voicings; they are taken up that much wider.
    Merkmal{.feld = &ExerciseSettings::oktav_ber,
            .liste = &Einstellung1::oktav_cmb,
            .rahmen = 1,
            .marke = "Tonraum#var",
            .schluessel = "Tonraum"},
    Merkmal{.feld = &ExerciseSettings::tonraum_idx,
            .liste = &Einstellung1::Combo_tonraum,
            .rahmen = 1,
            .marke = "Oktav-Bereichvar#",
            .schluessel = "Oktavbereich"},
    Merkmal{.feld = &ExerciseSettings::arp_richtung,
            .liste = &Einstellung1::arpeg_cmb,
            .rahmen = 10,
            .marke = "Richtung#var",
            .schluessel = "Richtung"},
    Merkmal{.feld = &ExerciseSettings::arp_tempo_idx,
            .liste = &Einstellung1::cmb_arpTmp,
            .rahmen = 10,
            .marke = "Arpeggio-Tempo#var",
            .schluessel = "Arp.-Tempo",
            .gilt = [](const ExerciseSettings& s) { return s.arp_richtung < kArpOhne; }},
    Merkmal{.feld = &ExerciseSettings::grundton_betont,
            .gruppe = &Einstellung1::betonung,
            .rahmen = 17,
            .marke = "Akkord-Grundton",
            .schluessel = "Akk-Grdton",
            .texte = Texte(text_id::kUnaccented, text_id::kAccented),
            .zeile = 7,
            .beim_oeffnen = Merkmal::BeimOeffnen::kBleibt},
    Merkmal{.feld = &ExerciseSettings::grundton_art,
            .gruppe = &Einstellung1::Tonart,
            .rahmen = 9,
            .marke = "Grundton",
            .schluessel = "Grdton",
            .texte = Texte(text_id::kChanging, text_id::kConstant),
            .zeile = 11,
            .beim_oeffnen = Merkmal::BeimOeffnen::kNull},
};

/// Whether a row says all that its kind must.
constexpr bool IstBestimmt(const Merkmal& m) {
  if (m.feld == nullptr || (m.gruppe == nullptr) == (m.liste == nullptr)) return false;
  if (m.marke.empty() || m.schluessel.empty() || !GibtRahmen(m.rahmen)) return false;
  if (m.gruppe == nullptr) return true;
  return m.texte[0] > 0 && m.texte[1] > 0 && m.zeile != 0 &&
         m.beim_oeffnen != Merkmal::BeimOeffnen::kUnbestimmt;
}

constexpr bool IstEinmalig(auto Merkmal::*spalte) {
  for (const Merkmal& m : kMerkmale) {
    if (std::ranges::count(kMerkmale, m.*spalte, spalte) != 1) return false;
  }
  return true;
}

/// Whether a stored training holds a setting, an option as one of two. That of the timbres stands
/// with them.
constexpr bool WirdAbgelegt(const Merkmal& m) {
  if (m.feld == &ExerciseSettings::klangfarb_art) return true;
  return std::ranges::count_if(StoredSettings::kPlaetze, [&](const StoredSettings::Platz& platz) {
           return platz.feld == m.feld && (m.gruppe == nullptr || platz.bis == 1);
         }) == 1;
}

constexpr bool WirdAufgenommen(const StoredSettings::Platz& platz) {
  return platz.feld == nullptr || std::ranges::count(kMerkmale, platz.feld, &Merkmal::feld) == 1;
}

static_assert(std::ranges::all_of(kMerkmale, IstBestimmt), "a setting leaves something open");
static_assert(IstEinmalig(&Merkmal::feld) && IstEinmalig(&Merkmal::marke) &&
                  IstEinmalig(&Merkmal::schluessel),
              "two settings share a field, a tag or a key");
static_assert(std::ranges::all_of(kMerkmale, WirdAbgelegt),
              "a setting has no place of its range in kPlaetze");
static_assert(std::ranges::all_of(StoredSettings::kPlaetze, WirdAufgenommen),
              "a stored setting is never taken up");

}  // namespace vmod17

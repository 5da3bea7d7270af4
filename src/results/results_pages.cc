// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The second face: the settings in force and the user's data.

#include <algorithm>
#include <array>
#include <span>

#include "base/numbers.h"
#include "base/text_ids.h"
#include "results/own_words.h"
#include "results/results_screen.h"
#include "settings/settings_table.h"

namespace vmod17 {
namespace {

/// The entries of a list in one line. `eigener_name` names one by its value where it has no text.
std::string Verbunden(std::span<const ItemList::Entry> entries, const char* dazwischen,
                      std::string (*eigener_name)(int)) {
  std::string text;
  for (const ItemList::Entry& entry : entries) {
    if (&entry != entries.data()) text += dazwischen;
    text += Oder(entry.text, eigener_name(entry.item_data));
  }
  return text;
}

/// What a control of an earlier screen shows, or the own word for its text id.
std::string Gesehen(const std::string& caption, int id) { return Oder(caption, EigenesWort(id)); }

std::string Gesehen(const OptionGroup& group, int chosen, std::array<int, 2> ids) {
  return Gesehen(group[chosen].caption, ids.at(chosen));
}

std::string EigenerModus(int uebmodus) {
  constexpr std::array ids = {text_id::kFreePractice, text_id::kTrainingNew,
                              text_id::kTrainingContinued, text_id::kTest, text_id::kExam};
  return EigenesWort(ids.at(uebmodus));
}

std::string EigeneOktaven(int oktav_ber) {
  return SignedText(oktav_ber + 2) + " " + EigenesWort(text_id::kOctaves);
}

/// `j` is the place of the lowest note among those from 36 upwards, an octave apart.
std::string EigenerTonraum(int j, int oktav_ber) {
  return EigenesWort(text_id::kC2 + j) + " " + EigenesWort(text_id::kTo) + " " +
         EigenesWort(text_id::kC4 + oktav_ber + j);
}

std::string EigeneStimme(int i) { return EigenesWort(text_id::kVoice) + " " + SignedText(i + 1); }

/// The lines that the page fills by itself. All others are those of two options.
constexpr std::array kEigeneZeilen = {0, 1, 2, 4, 9, 10, 13, 14};

constexpr bool HatZeile(const Merkmal& merkmal) {
  return merkmal.gruppe != nullptr && merkmal.zeile != Merkmal::kKeineZeile;
}

constexpr bool HatEinen(int zeile) {
  return std::ranges::count(kEigeneZeilen, zeile) +
             std::ranges::count_if(
                 kMerkmale, [&](const Merkmal& m) { return HatZeile(m) && m.zeile == zeile; }) ==
         1;
}

constexpr bool HabenAlleEinen() {
  for (int zeile = 0; zeile < Testergebnis::kEinstZeilen; ++zeile) {
    if (!HatEinen(zeile)) return false;
  }
  return kEigeneZeilen.size() + std::ranges::count_if(kMerkmale, HatZeile) ==
         Testergebnis::kEinstZeilen;
}

static_assert(HabenAlleEinen(),
              "a line is filled twice or not at all, or lies beyond kEinstZeilen");

/// "21.11.2026 14:03", in every language.
std::string Zeitpunkt(const DateTime& t) {
  return PaddedText(t.day, 2) + "." + PaddedText(t.month, 2) + "." + PaddedText(t.year, 4) + " " +
         PaddedText(t.hour, 2) + ":" + PaddedText(t.minute, 2);
}

}  // namespace

void Testergebnis::LbGrdEinst() {
  shell_.errors.Guard(
      "LbGrdEinst.", *this,
      [this] {
        const TextLookup& texts = shell_.texts;
        const int typ = shell_.state.uebTyp;
        grd_einst_head.caption = Wort(text_id::kModuleTitle);
        ZeigeGrundZeile(0, Ueberschrift(text_id::kDate), Zeitpunkt(shell_.loop.Now()));
        ZeigeGrundZeile(
            1, Gesehen(parts_.grd_einst.grdeinst_lb[0].caption, text_id::kExerciseType) + " ",
            Gesehen(parts_.grd_einst.ueb_typ[typ].caption, text_id::kIdentify));
        for (int k = 2; k < kGrundZeilen; ++k) {
          g_einst_lab[k].visible = g_einst_inh[k].visible = shell_.state.loginKnown;
        }
        if (!shell_.state.loginKnown) return;
        const TaggedValue anwender = shell_.server.LoginDaten();
        // Of a user whom the host could not tell there is one word alone.
        const auto feld = [&](std::size_t i) {
          return i < anwender.Elements().size() ? anwender[i].String() : "";
        };
        ZeigeGrundZeile(2, Ueberschrift(text_id::kUser), texts.Rechnername());
        ZeigeGrundZeile(3, Wort(text_id::kNameHeading), feld(1));
        ZeigeGrundZeile(4, Wort(text_id::kFirstNameHeading), feld(2));
        ZeigeGrundZeile(5, Wort(text_id::kMatriculationNumberHeading), feld(0));
      },
      [this] { SchliesseMitFehler(); });
}

void Testergebnis::ZeigeGrundZeile(int k, const std::string& name, const std::string& wert) {
  g_einst_lab[k].caption = name;
  g_einst_inh[k].caption = " " + wert;
}

void Testergebnis::LbEinst() {
  if (!loaded()) return;
  shell_.errors.Guard(
      "LbEinst.", *this,
      [this] {
        const ExerciseSettings& s = parts_.settings;
        const Einstellung1& e = parts_.einstellung1;
        const auto rahmen = [&](int i) { return Gesehen(e.geinst_lb[i].caption, RahmenTitel(i)); };
        for (int k = 0; k < kEinstZeilen; ++k) {
          einst_lab[k].visible = einst_Inh[k].visible = false;
        }
        einst_head.caption = Gesehen(shell_.texts.titel_ar[1], text_id::kSettingsTitle);
        for (const Merkmal& merkmal : kMerkmale) {
          if (!HatZeile(merkmal) || !merkmal.Gilt(s)) continue;
          ZeigeZeile(merkmal.zeile, rahmen(merkmal.rahmen),
                     Gesehen(e.*merkmal.gruppe, s.*merkmal.feld, merkmal.texte));
        }
        ZeigeZeile(0, rahmen(8), ModusMitNummer());
        KlangfarbenZeile();
        ZeigeZeile(2, Gesehen(e.lb15[0].caption, text_id::kTempo), e.temp_Combo.text());
        ZeigeZeile(4, rahmen(4), e.akkzahl_cmb.text());
        ZeigeZeile(9, rahmen(1), Oder(e.oktav_cmb.text(), EigeneOktaven(s.oktav_ber)));
        ZeigeZeile(10, Gesehen(e.lb1.caption, text_id::kRegister),
                   Oder(e.Combo_tonraum.text(), EigenerTonraum(s.tonraum_idx, s.oktav_ber)));
        if (s.akk_form == 0) {
          ZeigeZeile(13, rahmen(11), Verbunden(e.klanglst[1].entries(), ", ", EigenerKlangName));
        }
        if (e.grplst[1].count() > 0) {
          ZeigeZeile(14, rahmen(2), Verbunden(e.grplst[1].entries(), "; ", EigenerGruppenName));
        }
      },
      [this] { SchliesseMitFehler(); });
}

void Testergebnis::SchliesseMitFehler() {
  cmdOK[1].tag = "ERROR";
  cmdOK_Click(1);
}

void Testergebnis::ZeigeZeile(int k, const std::string& name, const std::string& wert) {
  einst_lab[k].caption = name;
  einst_Inh[k].caption = wert;
  einst_lab[k].visible = einst_Inh[k].visible = true;
}

std::string Testergebnis::ModusMitNummer() const {
  const ExerciseSettings& s = parts_.settings;
  const Einstellung1& e = parts_.einstellung1;
  const std::string modus = Oder(e.training_Combo.text(), EigenerModus(s.uebmodus));
  if (s.uebmodus != kModusPruefung) return modus;
  return modus + " " +
         Oder(e.prfnr_Comb.text(), EigenesWort(text_id::kNumber) + SignedText(s.pruef_nr));
}

void Testergebnis::KlangfarbenZeile() {
  const ExerciseSettings& s = parts_.settings;
  const Einstellung1& e = parts_.einstellung1;
  if (s.klangfarb_art == 0) {
    ZeigeZeile(1, Gesehen(e.geinst_lb[15].caption, RahmenTitel(15)), e.ComboPatch.text());
    return;
  }
  // Names and programs both begin at their entry 0, which for the programs is that of the one
  // timbre; so each name stands with the program of the note below.
  const auto stimme = [&e](int i) { return Oder(e.Channel_Combo.entry(i).text, EigeneStimme(i)); };
  std::string namen = stimme(0);
  std::string programme = e.ComboPatch.entry(s.patch_ar[0]).text;
  const int letzte = parts_.board.table().stimmen_ar.at(s.LetzterKlangtyp());
  for (int i = 1; i <= letzte; ++i) {
    namen += "; " + stimme(i);
    programme += "; " + e.ComboPatch.entry(s.patch_ar.at(i)).text;
  }
  ZeigeZeile(1, namen, programme);
}

}  // namespace vmod17

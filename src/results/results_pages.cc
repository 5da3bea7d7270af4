// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The second face: the settings in force and the user's data.

#include <array>
#include <span>

#include "base/numbers.h"
#include "results/own_words.h"
#include "results/results_screen.h"

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
  constexpr std::array ids = {136, 564, 565, 550, 438};
  return EigenesWort(ids.at(uebmodus));
}

std::string EigeneOktaven(int oktav_ber) {
  return SignedText(oktav_ber + 2) + " " + EigenesWort(41);
}

/// `j` is the place of the lowest note among those from 36 upwards, an octave apart.
std::string EigenerTonraum(int j, int oktav_ber) {
  return EigenesWort(671 + j) + " " + EigenesWort(702) + " " + EigenesWort(673 + oktav_ber + j);
}

std::string EigeneStimme(int i) { return EigenesWort(499) + " " + SignedText(i + 1); }

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
        grd_einst_head.caption = Wort(347);
        ZeigeGrundZeile(0, Ueberschrift(189), Zeitpunkt(shell_.loop.Now()));
        ZeigeGrundZeile(1, Gesehen(parts_.grd_einst.grdeinst_lb[0].caption, 586) + " ",
                        Gesehen(parts_.grd_einst.ueb_typ[typ].caption, 154));
        for (int k = 2; k < kGrundZeilen; ++k) {
          g_einst_lab[k].visible = g_einst_inh[k].visible = shell_.state.loginKnown;
        }
        if (!shell_.state.loginKnown) return;
        const TaggedValue anwender = shell_.server.LoginDaten();
        // Of a user whom the host could not tell there is one word alone.
        const auto feld = [&](std::size_t i) {
          return i < anwender.Elements().size() ? anwender[i].String() : "";
        };
        ZeigeGrundZeile(2, Ueberschrift(109), texts.Rechnername());
        ZeigeGrundZeile(3, Wort(9603), feld(1));
        ZeigeGrundZeile(4, Wort(9604), feld(2));
        ZeigeGrundZeile(5, Wort(9605), feld(0));
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
        const auto rahmen = [&](int i, int id) { return Gesehen(e.geinst_lb[i].caption, id); };
        for (int k = 0; k < kEinstZeilen; ++k) {
          einst_lab[k].visible = einst_Inh[k].visible = false;
        }
        einst_head.caption = Gesehen(shell_.texts.titel_ar[1], 221);
        ZeigeZeile(0, rahmen(8, 587), ModusMitNummer());
        KlangfarbenZeile();
        ZeigeZeile(2, Gesehen(e.lb15[0].caption, 547), e.temp_Combo.text());
        ZeigeZeile(3, rahmen(5, 78), Gesehen(e.abfrage, s.abfolge, {383, 142}));
        ZeigeZeile(4, rahmen(4, 88), e.akkzahl_cmb.text());
        ZeigeZeile(5, rahmen(3, 154), Gesehen(e.akk_grp, s.best_art, {97, 301}));
        if (s.best_art == 0) {
          ZeigeZeile(6, rahmen(12, 114), Gesehen(e.akk_anzg, s.akk_anzeige, {507, 429}));
        }
        ZeigeZeile(7, rahmen(17, 87), Gesehen(e.betonung, s.grundton_betont, {588, 156}));
        ZeigeZeile(8, rahmen(0, 243), Gesehen(e.frequenz, s.frequenz_art, {238, 603}));
        ZeigeZeile(9, rahmen(1, 107), Oder(e.oktav_cmb.text(), EigeneOktaven(s.oktav_ber)));
        ZeigeZeile(10, Gesehen(e.lb1.caption, 153),
                   Oder(e.Combo_tonraum.text(),
                        EigenerTonraum(e.Combo_tonraum.list_index(), s.oktav_ber)));
        ZeigeZeile(11, rahmen(9, 297), Gesehen(e.Tonart, s.grundton_art, {623, 277}));
        ZeigeZeile(12, rahmen(7, 138), Gesehen(e.aus_w, s.akk_form, {49, 45}));
        if (s.akk_form == 0) {
          ZeigeZeile(13, rahmen(11, 364),
                     Verbunden(e.klanglst[1].entries(), ", ", EigenerKlangName));
        }
        if (e.grplst[1].count() > 0) {
          ZeigeZeile(14, rahmen(2, 302),
                     Verbunden(e.grplst[1].entries(), "; ", EigenerGruppenName));
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
  return modus + " " + Oder(e.prfnr_Comb.text(), EigenesWort(426) + SignedText(s.pruef_nr));
}

void Testergebnis::KlangfarbenZeile() {
  const ExerciseSettings& s = parts_.settings;
  const Einstellung1& e = parts_.einstellung1;
  if (s.klangfarb_art == 0) {
    ZeigeZeile(1, Gesehen(e.geinst_lb[15].caption, 365), e.ComboPatch.text());
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

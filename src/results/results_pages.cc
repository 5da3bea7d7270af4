// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The second face: the settings in force and the user's data.

#include <span>

#include "results/results_screen.h"
#include "shell/numbers.h"

namespace vmod17 {
namespace {

std::string Verbunden(std::span<const ItemList::Entry> entries, const char* dazwischen) {
  std::string text;
  for (const ItemList::Entry& entry : entries) {
    if (&entry != entries.data()) text += dazwischen;
    text += entry.text;
  }
  return text;
}

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
        grd_einst_head.caption = texts.Sprachtext(347);
        ZeigeGrundZeile(0, Wort(189, "Datum:", " " + texts.Sprachtext(700)),
                        Zeitpunkt(shell_.loop.Now()));
        ZeigeGrundZeile(1, parts_.grd_einst.grdeinst_lb[0].caption + " ",
                        parts_.grd_einst.ueb_typ[typ].caption);
        for (int k = 2; k < kGrundZeilen; ++k) {
          g_einst_lab[k].visible = g_einst_inh[k].visible = shell_.state.loginKnown;
        }
        if (!shell_.state.loginKnown) return;
        const TaggedValue anwender = shell_.server.LoginDaten();
        // Of a user whom the host could not tell there is one word alone.
        const auto feld = [&](std::size_t i) {
          return i < anwender.Elements().size() ? anwender[i].String() : "";
        };
        ZeigeGrundZeile(2, Wort(109, "Anwender:", " " + texts.Sprachtext(700)),
                        texts.Rechnername());
        ZeigeGrundZeile(3, "Name:", feld(1));
        ZeigeGrundZeile(4, "Vorname:", feld(2));
        ZeigeGrundZeile(5, "Matrikel-Nr.:", feld(0));
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
        const auto rahmen = [&](int i) { return e.geinst_lb[i].caption; };
        for (int k = 0; k < kEinstZeilen; ++k) {
          einst_lab[k].visible = einst_Inh[k].visible = false;
        }
        einst_head.caption = shell_.texts.titel_ar[1];
        const std::string pruefung = s.uebmodus == kModusPruefung ? " " + e.prfnr_Comb.text() : "";
        ZeigeZeile(0, rahmen(8), e.training_Combo.text() + pruefung);
        KlangfarbenZeile();
        ZeigeZeile(2, e.lb15[0].caption, e.temp_Combo.text());
        ZeigeZeile(3, rahmen(5), e.abfrage[s.abfolge].caption);
        ZeigeZeile(4, rahmen(4), e.akkzahl_cmb.text());
        ZeigeZeile(5, rahmen(3), e.akk_grp[s.best_art].caption);
        if (s.best_art == 0) ZeigeZeile(6, rahmen(12), e.akk_anzg[s.akk_anzeige].caption);
        ZeigeZeile(7, rahmen(17), e.betonung[s.grundton_betont].caption);
        ZeigeZeile(8, rahmen(0), e.frequenz[s.frequenz_art].caption);
        ZeigeZeile(9, rahmen(1), e.oktav_cmb.text());
        ZeigeZeile(10, e.lb1.caption, e.Combo_tonraum.text());
        ZeigeZeile(11, rahmen(9), e.Tonart[s.grundton_art].caption);
        ZeigeZeile(12, rahmen(7), e.aus_w[s.akk_form].caption);
        if (s.akk_form == 0) ZeigeZeile(13, rahmen(11), Verbunden(e.klanglst[1].entries(), ", "));
        if (e.grplst[1].count() > 0) {
          ZeigeZeile(14, rahmen(2), Verbunden(e.grplst[1].entries(), "; "));
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

void Testergebnis::KlangfarbenZeile() {
  const ExerciseSettings& s = parts_.settings;
  const Einstellung1& e = parts_.einstellung1;
  if (s.klangfarb_art == 0) {
    ZeigeZeile(1, e.geinst_lb[15].caption, e.ComboPatch.text());
    return;
  }
  // Names and programs both begin at their entry 0, which for the programs is that of the one
  // timbre; so each name stands with the program of the note below.
  std::string namen = e.Channel_Combo.entry(0).text;
  std::string programme = e.ComboPatch.entry(s.patch_ar[0]).text;
  const int letzte = parts_.board.table().stimmen_ar.at(s.LetzterKlangtyp());
  for (int i = 1; i <= letzte; ++i) {
    namen += "; " + e.Channel_Combo.entry(i).text;
    programme += "; " + e.ComboPatch.entry(s.patch_ar.at(i)).text;
  }
  ZeigeZeile(1, namen, programme);
}

}  // namespace vmod17

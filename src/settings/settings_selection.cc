// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Which chords and groups a run is made of: the lists and what follows from them.

#include <vector>

#include "base/text_ids.h"
#include "catalogue/chord_table.h"
#include "settings/settings_screen.h"

namespace vmod17 {
namespace {

/// The groups that have a chord of `klangtyp` or of one with more notes.
std::vector<int> GruppenAb(int klangtyp) {
  switch (klangtyp) {
    case 5:
      return {1, 2, 3, 4, 5, 6};
    case 6:
      return {2, 3, 4, 5};
    case 7:
      return {2, 5};
    default:
      return {1, 2, 3, 4, 5, 6, 7, 8};
  }
}

/// Moves the selected entry of a list into the other one, which stays ascending.
void Verschiebe(ItemList& quelle, ItemList& ziel) {
  const int gewaehlt = quelle.list_index();
  const ItemList::Entry entry = quelle.entry(gewaehlt);
  int j = 0;
  while (j < ziel.count() && ziel.entry(j).item_data <= entry.item_data) ++j;
  ziel.Insert(j, entry);
  quelle.Remove(gewaehlt);
}

}  // namespace

void Einstellung1::ok_bereit() {
  auswahl_vollstaendig_ = true;
  cmdOK.enabled = !probe_laeuft_;
  cmdOK.back_color = kBereitFarbe;
  cmdOK.caption = shell_.texts.Sprachtext(text_id::kOk);
}

void Einstellung1::ok_gesperrt() {
  auswahl_vollstaendig_ = false;
  cmdOK.enabled = false;
  cmdOK.back_color = Colors::kRed;
  cmdOK.caption = shell_.texts.Sprachtext(text_id::kSelectionIncomplete);
}

void Einstellung1::SetzeOk(bool vollstaendig) {
  if (vollstaendig) {
    ok_bereit();
  } else {
    ok_gesperrt();
  }
}

void Einstellung1::klanglst_Click(int index) {
  Verschiebe(klanglst[index], klanglst[1 - index]);
  const ItemList& gewaehlt = klanglst[1];
  lb11[2].visible = gewaehlt.count() == 0;
  if (gewaehlt.count() == 0) {
    ok_gesperrt();
    ErlaubeProbe(false);
    grdeinst[2].visible = false;
    return;
  }
  if (gewaehlt.count() == 1 && gewaehlt.entry(0).item_data == kTriade) {
    ok_bereit();
    ErlaubeProbe(true);
    LeereGruppen();
    grdeinst[2].visible = false;
    return;
  }
  VerlangeGruppen(gewaehlt.entry(0).item_data == kTriade ? text_id::kAtLeastOne
                                                         : text_id::kAtLeastTwo);
  ok_gesperrt();
  ErlaubeProbe(false);
  FuelleGruppen(0);
}

void Einstellung1::grplst_Click(int index) {
  Verschiebe(grplst[index], grplst[1 - index]);
  const int anzahl = grplst[1].count();
  if (parts_.settings.akk_form != 0) {
    WerteGruppen(anzahl >= 2);
    return;
  }
  // The sound check stays as it is here: what has disabled it was the choice of the kinds.
  const bool mit_triaden = klanglst[1].entry(0).item_data == kTriade;
  const bool genug = anzahl >= (mit_triaden ? 1 : 2);
  lb2[2].visible = !genug;
  SetzeOk(genug);
}

void Einstellung1::klang_alle_Click(int index) {
  LeereKlaenge();
  FuelleKlaenge(1 - index);
  if (klanglst[1].count() == 0) {
    lb11[2].visible = true;
    grdeinst[2].visible = false;
    ok_gesperrt();
    ErlaubeProbe(false);
    return;
  }
  // OK keeps its state: after triads alone it stays ready, without any group.
  lb11[2].visible = false;
  VerlangeGruppen(parts_.settings.best_art == 0 ? text_id::kAtLeastOne : text_id::kAtLeastTwo);
  LeereGruppen();
  for (int g = 1; g <= kGruppen; ++g) grplst[0].Add(parts_.names.grp_name_ar[g], g);
}

void Einstellung1::grp_alle_Click(int index) {
  FuelleGruppen(1 - index);
  // Two groups in all cases, also where one would do.
  WerteGruppen(grplst[1].count() > 1);
}

void Einstellung1::akk_grp_Click(int index) {
  parts_.settings.best_art = index;
  grdeinst[12].visible = index == 0;
  if (parts_.settings.akk_form != 0) {
    grdeinst[2].visible = true;
    WerteGruppen(grplst[1].count() > 1);
    return;
  }
  lb11[2].visible = true;
  grdeinst[2].visible = false;
  LeereKlaenge();
  FuelleKlaenge(0);
  ok_gesperrt();
  ErlaubeProbe(false);
}

void Einstellung1::aus_w_Click(int index) {
  parts_.settings.akk_form = index;
  akk_anzg[1].enabled = index == 0;
  if (index == 0) {
    FuelleOktaven(2);
    grdeinst[11].visible = true;
    grdeinst[2].visible = false;
    grdeinst[12].visible = parts_.settings.best_art == 0;
    LeereKlaenge();
    FuelleKlaenge(0);
    lb11[2].visible = true;
  } else {
    akk_anzg.Check(0);
    FuelleOktaven(3);
    grdeinst[11].visible = false;
    VerlangeGruppen(text_id::kAtLeastTwo);
    FuelleGruppen(0);
  }
  ok_gesperrt();
  ErlaubeProbe(false);
}

/// Shows the frame of the groups and the hint that tells how many are needed.
void Einstellung1::VerlangeGruppen(int hinweis) {
  lb2[2].caption = shell_.texts.Sprachtext(hinweis);
  lb2[2].visible = true;
  grdeinst[2].visible = true;
}

/// What follows from enough chosen groups, or from too few.
void Einstellung1::WerteGruppen(bool genug) {
  lb2[2].visible = !genug;
  SetzeOk(genug);
  ErlaubeProbe(genug);
}

void Einstellung1::LeereKlaenge() {
  for (int i : {0, 1}) klanglst[i].Clear();
}

void Einstellung1::LeereGruppen() {
  for (int i : {0, 1}) grplst[i].Clear();
}

/// Fills a list with the kinds on offer.
void Einstellung1::FuelleKlaenge(int list) {
  const int erster = parts_.settings.best_art == 0 ? kTriade : kTriade + 1;
  for (int k = erster; k < kVoicing; ++k) klanglst[list].Add(parts_.names.klang_name_ar[k], k);
}

/// Clears both lists of groups and fills one with the groups on offer.
void Einstellung1::FuelleGruppen(int list) {
  LeereGruppen();
  for (const int g : GruppenAb(KleinsterKlangtypMitGruppe())) {
    grplst[list].Add(parts_.names.grp_name_ar[g], g);
  }
}

/// The smallest chosen Klangtyp above the triads, which rules the groups on offer.
int Einstellung1::KleinsterKlangtypMitGruppe() const {
  if (parts_.settings.akk_form != 0) return kVoicing;
  const int erster = klanglst[1].entry(0).item_data;
  return erster == kTriade ? klanglst[1].entry(1).item_data : erster;
}

void Einstellung1::SichereAuswahl() {
  ExerciseSettings& settings = parts_.settings;
  if (settings.akk_form == 0) {
    settings.klang_anzahl = klanglst[1].count();
    for (int i = 1; i <= 5; ++i) {
      settings.klang_ausw_ar[i] =
          i <= settings.klang_anzahl ? klanglst[1].entry(i - 1).item_data : 0;
    }
  } else {
    settings.klang_anzahl = 1;
    settings.klang_ausw_ar[1] = kVoicing;
  }
  settings.grp_anzahl = grplst[1].count();
  for (int i = 1; i <= kGruppen; ++i) {
    settings.grp_ausw_ar[i] = i <= settings.grp_anzahl ? grplst[1].entry(i - 1).item_data : 0;
  }
}

}  // namespace vmod17

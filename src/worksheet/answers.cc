// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// From a click to the end of its task: right or wrong, what is marked, what opens next.

#include <cmath>

#include "base/numbers.h"
#include "worksheet/worksheet_screen.h"

namespace vmod17 {
namespace {

constexpr Color kOffen = Rgb(128, 255, 128);
constexpr Color kGeloest = Rgb(0, 192, 0);
constexpr Color kRichtigText = Rgb(0, 255, 0);

/// Red on black and black on red in turn, so that each wrong click is seen.
void TauscheFarben(Panel& panel) {
  const bool war_rot = panel.back_color == Colors::kRed;
  panel.back_color = war_rot ? Colors::kBlack : Colors::kRed;
  panel.fore_color = war_rot ? Colors::kRed : Colors::kBlack;
}

}  // namespace

void Arbeitsblatt1::AntwortenFreigeben() {
  if (NachAkkorden()) {
    for (int e = 1; e <= parts_.board.akk_zahl; ++e) {
      if (run_.aus_ar[e] == 0) Oeffne(e);
    }
  } else {
    for (const int g : parts_.settings.Gruppen()) {
      if (run_.aus_ar.at(g) == 0) akk_group[g].enabled = true;
    }
  }
}

void Arbeitsblatt1::SperreAntworten() {
  if (NachAkkorden()) {
    for (int e = 1; e <= parts_.board.akk_zahl; ++e) Schliesse(e);
  } else {
    for (int g = 1; g <= kGruppen; ++g) akk_group[g].enabled = false;
  }
}

void Arbeitsblatt1::akk_antw(int index) {
  Bewache("akk_antw.", [this, index] {
    AnswerClock& clock = run_.clock;
    clock.antw_ende = shell_.loop.Clock();
    const float sekunden = ClockDifference(clock.antw_start, clock.antw_ende) + clock.antw_dauer;
    clock.antw_dauer = std::floor(sekunden * 10 + 0.5f);
    const auto record = parts_.record.LessonLetzteAntwort(clock.antw_dauer, clock.anz_whlg);
    const bool right = NachAkkorden() ? index == run_.task.aufg_akk_ar.at(run_.akk_nr)
                                      : index == Gefragt(run_.akk_nr).group;
    const int slot = run_.akk_nr;
    AntwortSetzen(index, right, *record);
    FolgeDemStand();
    SageUrteil(slot, right);
  });
}

/// What follows from where the run stands after a click.
void Arbeitsblatt1::FolgeDemStand() {
  switch (run_.lauf_status) {
    case LaufStatus::kAufgabeFertig:
      BieteKontrolleAn();
      NaechsteAufgabeAnbieten();
      return;
    case LaufStatus::kTrainingZuEnde:
      BeendeTraining();
      return;
    case LaufStatus::kTestZuEnde:
      Uhrzeit.Disable();
      WahlAutomat.Disable();
      CmdNextAufg.enabled = false;
      BieteKontrolleAn();
      return;
    case LaufStatus::kNochKeine:
    case LaufStatus::kNaechsterSlot:
    case LaufStatus::kWeitererVersuch:
      return;
  }
}

void Arbeitsblatt1::AntwortSetzen(int clicked, bool right, XmlElement& record) {
  if (right) {
    Richtig(clicked, record);
  } else {
    Falsch(clicked, record);
  }
}

void Arbeitsblatt1::Richtig(int clicked, XmlElement& record) {
  const int slot = run_.akk_nr;
  Markiere(clicked, AnswerMark::Kind::kTick);
  ergebnis[slot].back_color = Colors::kBlack;
  ergebnis[slot].fore_color = kRichtigText;
  if (NachAkkorden()) {
    ZeigeLoesung(slot, kGeloest);
  } else {
    ergebnis[slot].caption = akk_group[clicked].caption;
  }
  BenenneSlot(slot, {9683, "%1: right, %2", {Loesungsname(slot)}});
  nrakk[slot].enabled = false;
  ++run_.answers.geloest;
  Erhoehe(run_.count.richtig);
  ZeigeZaehler();
  parts_.record.LessonEigenschaft(record, "Antwort", "true");
  float& punkte = run_.answers.fehl_ar.at(slot);
  if (punkte == 0 && parts_.settings.uebmodus >= 1) {
    run_.answers.zeit_ar.at(slot) = ZeitZuschlag(run_.clock.antw_dauer, run_.clock.antw_frei);
    punkte = kErsterKlickRichtig;
  }
  ++run_.akk_nr;
  NaechsterAkkord();
}

void Arbeitsblatt1::Falsch(int clicked, XmlElement& record) {
  const int slot = run_.akk_nr;
  Markiere(clicked, AnswerMark::Kind::kCross);
  TauscheFarben(ergebnis[slot]);
  Erhoehe(run_.count.falsch);
  ZeigeZaehler();
  float& punkte = run_.answers.fehl_ar.at(slot);
  punkte += SlotLimits::kFehlSchritt;
  if (NachAkkorden()) {
    const int klick = static_cast<int>(punkte) / SlotLimits::kFehlSchritt;
    run_.answers.falsch_ar.at(slot).at(klick) = clicked;
  }
  parts_.record.LessonEigenschaft(record, "Antwort", "false");
  if (punkte == static_cast<float>(parts_.board.limits.fehl_max)) {
    Verloren(slot);
    return;
  }
  run_.clock.anz_whlg = 0;
  run_.lauf_status = LaufStatus::kWeitererVersuch;
  ergebnis[slot].caption = shell_.texts.Sprachtext(232);
  BenenneSlot(slot, {9684, "%1: wrong, still open", {}});
  Streiche(clicked);
  run_.clock.antw_dauer = 0;
  run_.clock.antw_start = shell_.loop.Clock();
  ++run_.clock.antw_lfd;
  NeueAntwort(run_.clock.antw_lfd, "Akkord");
}

void Arbeitsblatt1::Verloren(int slot) {
  Markiere(NachAkkorden() ? run_.task.aufg_akk_ar.at(slot) : Gefragt(slot).group,
           AnswerMark::Kind::kTick);
  if (NachAkkorden()) {
    ZeigeLoesung(slot, Colors::kRed);
  } else {
    ergebnis[slot].caption = akk_group[Gefragt(slot).group].caption;
  }
  BenenneSlot(slot, {9685, "%1: lost, the solution is %2", {Loesungsname(slot)}});
  nrakk[slot].enabled = false;
  ++run_.akk_nr;
  NaechsterAkkord();
}

void Arbeitsblatt1::ZeigeLoesung(int slot, Color rahmen) {
  erg[slot].visible = true;
  ergebnis[slot].back_color = rahmen;
  akk_lfdnr[slot].visible = true;
  ergebnis[slot].description = akk_lfdnr[slot].caption;
}

void Arbeitsblatt1::BenenneSlot(int slot, Notice wie) {
  wie.details.insert(wie.details.begin(), nrakk[slot].caption);
  ergebnis[slot].spoken = shell_.texts.Words(wie);
}

std::string Arbeitsblatt1::Loesungsname(int slot) const {
  return NachAkkorden() ? jz_kl[run_.task.aufg_akk_ar.at(slot)].spoken
                        : akk_group[Gefragt(slot).group].caption;
}

/// What is marked stays so until the next task. Where a task has several chords a mark tells which
/// of them it is about, since all choices open again for each.
void Arbeitsblatt1::Markiere(int choice, AnswerMark::Kind kind) {
  Wahl(choice).marks.push_back({kind, parts_.settings.akk_anzahl > 1 ? run_.akk_nr : 0});
}

void Arbeitsblatt1::LoescheMarken() {
  for (int e = 1; e <= kBrettGroesse; ++e) jz_kl[e].marks.clear();
  for (int g = 1; g <= kGruppen; ++g) akk_group[g].marks.clear();
}

void Arbeitsblatt1::Streiche(int clicked) {
  if (NachAkkorden()) {
    Schliesse(clicked);
  } else {
    akk_group[clicked].enabled = false;
  }
  run_.aus_ar.at(clicked) = 1;
}

void Arbeitsblatt1::NaechsterAkkord() {
  run_.aus_ar.fill(0);
  if (run_.akk_nr == parts_.settings.akk_anzahl + 1) {
    BeendeAufgabe();
    SperreAntworten();
    return;
  }
  run_.clock.antw_start = shell_.loop.Clock();
  run_.clock.antw_dauer = 0;
  run_.lauf_status = LaufStatus::kNaechsterSlot;
  nrakk[run_.akk_nr].enabled = true;
  OeffneAlle();
  run_.clock.anz_whlg = 0;
  run_.clock.antw_lfd = 1;
  NeueAntwort(run_.clock.antw_lfd, "interval");
}

void Arbeitsblatt1::BeendeAufgabe() {
  run_.lauf_status = LaufStatus::kAufgabeFertig;
  if (parts_.settings.uebmodus == 0) return;
  scoring_.AufgabeWerten(run_, run_.akk_nr);
  if (IstTraining()) WerteTraining();
  if (IstTest()) ZaehleTestaufgabe();
}

void Arbeitsblatt1::OeffneAlle() {
  if (NachAkkorden()) {
    for (int e = 1; e <= parts_.board.akk_zahl; ++e) Oeffne(e);
  } else {
    for (int g = 1; g <= kGruppen; ++g) akk_group[g].enabled = true;
  }
}

void Arbeitsblatt1::Oeffne(int kachel) {
  jz_kl[kachel].back_color = Colors::kWhite;
  jz_kl[kachel].enabled = true;
  klang_pan[kachel].back_color = kOffen;
}

void Arbeitsblatt1::Schliesse(int kachel) {
  jz_kl[kachel].back_color = Colors::kGrey;
  jz_kl[kachel].enabled = false;
  klang_pan[kachel].back_color = Colors::kRed;
}

void Arbeitsblatt1::NeueAntwort(int lfd, const char* slot_attribute) {
  parts_.record.LessonAntwort(lfd)->Attributes()->Add(DecimalText(run_.akk_nr), slot_attribute);
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// How the judgement of a click shows: what is marked, what opens and closes, how its task ends.

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
    const AnswerGiven antwort = judging_.AntwortSetzen(run_, index, shell_.loop.Clock());
    parts_.record.LessonAntwort(antwort);
    ZeigeAntwort(antwort);
    if (antwort.danach != LaufStatus::kAufgabeFertig) return SageUrteil(antwort);
    const TaskClosed ende = judging_.AufgabeBeenden(run_);
    ZeigeAufgabenende(ende);
    SageUrteil(antwort);
    SageAufgabenende(ende);
  });
}

void Arbeitsblatt1::ZeigeAntwort(const AnswerGiven& antwort) {
  if (antwort.richtig) {
    ZeigeRichtig(antwort);
  } else {
    ZeigeFalsch(antwort);
  }
  ZeigeZaehler();
  if (antwort.danach == LaufStatus::kWeitererVersuch) return;
  nrakk[antwort.slot].enabled = false;
  if (antwort.danach != LaufStatus::kNaechsterSlot) return;
  nrakk[antwort.slot + 1].enabled = true;
  OeffneAlle();
}

void Arbeitsblatt1::ZeigeRichtig(const AnswerGiven& antwort) {
  const int slot = antwort.slot;
  Markiere(antwort.gewaehlt, AnswerMark::Kind::kTick, slot);
  ergebnis[slot].back_color = Colors::kBlack;
  ergebnis[slot].fore_color = kRichtigText;
  ZeigeLoesung(antwort, kGeloest);
  BenenneSlot(slot, {9683, "%1: right, %2", {Name(antwort.gefragt)}});
}

void Arbeitsblatt1::ZeigeFalsch(const AnswerGiven& antwort) {
  const int slot = antwort.slot;
  Markiere(antwort.gewaehlt, AnswerMark::Kind::kCross, slot);
  TauscheFarben(ergebnis[slot]);
  if (antwort.Verloren()) {
    Markiere(antwort.gefragt, AnswerMark::Kind::kTick, slot);
    ZeigeLoesung(antwort, Colors::kRed);
    BenenneSlot(slot, {9685, "%1: lost, the solution is %2", {Name(antwort.gefragt)}});
  } else {
    ergebnis[slot].caption = shell_.texts.Sprachtext(232);
    BenenneSlot(slot, {9684, "%1: wrong, still open", {}});
    Streiche(antwort.gewaehlt);
  }
}

void Arbeitsblatt1::ZeigeAufgabenende(const TaskClosed& ende) {
  if (IstTraining()) ZeigeTrainingsstand(ende.training);
  if (IstTest()) ZeigeRestaufgaben();
  SperreAntworten();
  BieteKontrolleAn();
  switch (ende.danach) {
    case LaufStatus::kTrainingZuEnde:
      return BeendeTraining();
    case LaufStatus::kTestZuEnde:
      return BeendeTest();
    case LaufStatus::kAufgabeFertig:
    case LaufStatus::kNochKeine:
    case LaufStatus::kNaechsterSlot:
    case LaufStatus::kWeitererVersuch:
      return NaechsteAufgabeAnbieten();
  }
}

/// In notation, within `rahmen`, where chords are named; otherwise by the name of the group.
void Arbeitsblatt1::ZeigeLoesung(const AnswerGiven& antwort, Color rahmen) {
  const int slot = antwort.slot;
  if (!NachAkkorden()) {
    ergebnis[slot].caption = Wahl(antwort.gefragt).caption;
    return;
  }
  erg[slot].visible = true;
  ergebnis[slot].back_color = rahmen;
  akk_lfdnr[slot].visible = true;
  ergebnis[slot].description = akk_lfdnr[slot].caption;
}

void Arbeitsblatt1::BenenneSlot(int slot, Notice wie) {
  wie.details.insert(wie.details.begin(), nrakk[slot].caption);
  ergebnis[slot].spoken = shell_.texts.Words(wie);
}

std::string Arbeitsblatt1::Name(int choice) const {
  return NachAkkorden() ? jz_kl[choice].spoken : akk_group[choice].caption;
}

/// What is marked stays so until the next task. Where a task has several chords a mark tells which
/// of them it is about, since all choices open again for each.
void Arbeitsblatt1::Markiere(int choice, AnswerMark::Kind kind, int slot) {
  Wahl(choice).marks.push_back({kind, parts_.settings.akk_anzahl > 1 ? slot : 0});
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

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// How the judgement of a click shows: what is marked, what opens and closes, how its task ends.

#include "base/text_ids.h"
#include "worksheet/worksheet_screen.h"

namespace vmod17 {
namespace {

constexpr Color kGeloest = Rgb(0, 192, 0);
constexpr Color kRichtigText = Rgb(0, 255, 0);

/// Red on black and black on red in turn, so that each wrong click is seen.
void TauscheFarben(Panel& panel) {
  const bool war_rot = panel.back_color == Colors::kRed;
  panel.back_color = war_rot ? Colors::kBlack : Colors::kRed;
  panel.fore_color = war_rot ? Colors::kRed : Colors::kBlack;
}

}  // namespace

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
  antwortfeld_.OeffneAlle();
}

void Arbeitsblatt1::ZeigeRichtig(const AnswerGiven& antwort) {
  const int slot = antwort.slot;
  antwortfeld_.Markiere(antwort.gewaehlt, AnswerMark::Kind::kTick, slot);
  ergebnis[slot].back_color = Colors::kBlack;
  ergebnis[slot].fore_color = kRichtigText;
  ZeigeLoesung(antwort, kGeloest);
  BenenneSlot(slot, {text_id::kTileRight, "%1: right, %2", {antwortfeld_.Name(antwort.gefragt)}});
}

void Arbeitsblatt1::ZeigeFalsch(const AnswerGiven& antwort) {
  const int slot = antwort.slot;
  antwortfeld_.Markiere(antwort.gewaehlt, AnswerMark::Kind::kCross, slot);
  TauscheFarben(ergebnis[slot]);
  if (antwort.Verloren()) {
    antwortfeld_.Markiere(antwort.gefragt, AnswerMark::Kind::kTick, slot);
    ZeigeLoesung(antwort, Colors::kRed);
    BenenneSlot(
        slot,
        {text_id::kTileLost, "%1: lost, the solution is %2", {antwortfeld_.Name(antwort.gefragt)}});
  } else {
    ergebnis[slot].caption = shell_.texts.Sprachtext(text_id::kWrong);
    BenenneSlot(slot, {text_id::kTileWrong, "%1: wrong, still open", {}});
    antwortfeld_.Streiche(antwort.gewaehlt);
  }
}

void Arbeitsblatt1::ZeigeAufgabenende(const TaskClosed& ende) {
  if (IstTraining()) ZeigeTrainingsstand(ende.training);
  if (IstTest()) ZeigeRestaufgaben();
  antwortfeld_.Sperre();
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
    ergebnis[slot].caption = antwortfeld_[antwort.gefragt].caption;
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

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// What a student hears of a run who does not see it. A playback is told of by its end alone.

#include "base/numbers.h"
#include "worksheet/worksheet_screen.h"

namespace vmod17 {

void Arbeitsblatt1::SageUrteil(int slot, bool right) {
  const TextLookup& texts = shell_.texts;
  const bool entschieden = run_.akk_nr != slot;
  if (right) {
    Say(texts.Sprachtext(468) + texts.Sprachtext(700) + " " + Loesung(slot));
  } else {
    Say(texts.Sprachtext(232));
    if (entschieden) Say(texts.Words({9721, "Solution: %1", {Loesung(slot)}}));
  }
  if (run_.lauf_status == LaufStatus::kNaechsterSlot) Say(OffenerAkkord());
  if (run_.akk_nr > parts_.settings.akk_anzahl) SageAufgabenende();
}

void Arbeitsblatt1::SageAufgabenende() {
  const TextLookup& texts = shell_.texts;
  Say(texts.Words({9724,
                   "End of the task, %1 of %2 solved",
                   {DecimalText(run_.answers.geloest), DecimalText(parts_.settings.akk_anzahl)}}));
  if (run_.lauf_status == LaufStatus::kTrainingZuEnde) {
    const Label& ausgang = ergebnis_anz[ergebnis_anz[1].visible ? 1 : 2];
    Say(texts.Words({9726, "End of the training: %1", {ausgang.caption}}));
  } else if (run_.lauf_status == LaufStatus::kTestZuEnde) {
    Say(texts.Words({9727, "End of the test", {}}));
  } else {
    Say(Stand());
  }
}

void Arbeitsblatt1::SageAntwortbereit() {
  Say(shell_.texts.Words({9723, "Please answer", {}}));
  if (parts_.settings.akk_anzahl > 1) Say(OffenerAkkord());
}

std::string Arbeitsblatt1::Loesung(int slot) const {
  if (!NachAkkorden()) return akk_group[Gefragt(slot).group].caption;
  const int kachel = run_.task.aufg_akk_ar.at(slot);
  return jz_kl[kachel].caption + ", " + akk_lfdnr[slot].caption;
}

std::string Arbeitsblatt1::OffenerAkkord() const {
  return shell_.texts.Words({9722,
                             "Chord %1 of %2",
                             {DecimalText(run_.akk_nr), DecimalText(parts_.settings.akk_anzahl)}});
}

/// What stands on the sheet beside the answers, unless the student has hidden it.
std::string Arbeitsblatt1::Stand() const {
  if (IstTraining()) {
    return ergebnis_anz[0].caption + " " + DecimalText(matboxanz.percent) + " %";
  }
  if (IstTest()) {
    return stop_uhr.visible ? lab_aufgaben.caption + ", " + stop_uhr.caption : "";
  }
  return true_false[0].caption + " " + zaehler[0].caption + ", " + true_false[1].caption + " " +
         zaehler[1].caption;
}

}  // namespace vmod17

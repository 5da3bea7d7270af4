// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// What a student hears of a run who does not see it. A playback is told of by its end alone.

#include "base/numbers.h"
#include "base/text_ids.h"
#include "worksheet/worksheet_screen.h"

namespace vmod17 {

void Arbeitsblatt1::SageUrteil(const AnswerGiven& antwort) {
  const TextLookup& texts = shell_.texts;
  if (antwort.richtig) {
    Say(texts.Sprachtext(text_id::kRight) + texts.Sprachtext(text_id::kColon) + " " +
        Loesung(antwort));
  } else {
    Say(texts.Sprachtext(text_id::kWrong));
    if (antwort.Verloren()) {
      Say(texts.Words({text_id::kSolution, "Solution: %1", {Loesung(antwort)}}));
    }
  }
  if (antwort.danach == LaufStatus::kNaechsterSlot) Say(OffenerAkkord());
}

void Arbeitsblatt1::SageAufgabenende(const TaskClosed& ende) {
  const TextLookup& texts = shell_.texts;
  Say(texts.Words({text_id::kEndOfTask,
                   "End of the task, %1 of %2 solved",
                   {DecimalText(ende.geloest), DecimalText(parts_.settings.akk_anzahl)}}));
  if (ende.danach == LaufStatus::kTrainingZuEnde) {
    Say(texts.Words({text_id::kEndOfTraining,
                     "End of the training: %1",
                     {Trainingsanzeige(ende.training).caption}}));
  } else if (ende.danach == LaufStatus::kTestZuEnde) {
    Say(texts.Words({text_id::kEndOfTest, "End of the test", {}}));
  } else {
    Say(Stand());
  }
}

void Arbeitsblatt1::SageAntwortbereit() {
  Say(shell_.texts.Words({text_id::kPleaseAnswer, "Please answer", {}}));
  if (parts_.settings.akk_anzahl > 1) Say(OffenerAkkord());
}

std::string Arbeitsblatt1::Loesung(const AnswerGiven& antwort) const {
  const std::string& symbol = antwortfeld_[antwort.gefragt].caption;
  return NachAkkorden() ? symbol + ", " + akk_lfdnr[antwort.slot].caption : symbol;
}

std::string Arbeitsblatt1::OffenerAkkord() const {
  return shell_.texts.Words({text_id::kChordOf,
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

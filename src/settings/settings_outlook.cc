// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The line that says what a run of the present settings will be, or what it still needs.

#include <string>
#include <vector>

#include "base/numbers.h"
#include "base/text_ids.h"
#include "catalogue/chord_board.h"
#include "settings/settings_screen.h"
#include "settings/time_limit.h"

namespace vmod17 {
namespace {

constexpr const char* kZwischenraum = "  ·  ";

std::vector<int> Werte(const ItemList& list) {
  std::vector<int> werte;
  for (const ItemList::Entry& entry : list.entries()) werte.push_back(entry.item_data);
  return werte;
}

/// "7:40".
std::string MinutenText(int sekunden) {
  return DecimalText(sekunden / 60) + ":" + PaddedText(sekunden % 60, 2);
}

}  // namespace

void Einstellung1::ZeigeAusblick() {
  if (!form_bereit) return;
  ausblick.caption = AusblickAufLauf();
  if (const std::string grund = WarumKeineProbe(); !grund.empty()) {
    ausblick.caption += kZwischenraum + grund;
  }
}

/// How many chords, and of a test how many tasks and how much time; or what is missing.
std::string Einstellung1::AusblickAufLauf() const {
  const ExerciseSettings& settings = parts_.settings;
  const TextLookup& texts = shell_.texts;
  const bool voicings = settings.akk_form != 0;
  const std::vector<int> klaenge = voicings ? std::vector{kVoicing} : Werte(klanglst[1]);
  const std::vector<int> gruppen = Werte(grplst[1]);
  const auto [kandidaten, eintraege] =
      BemissBrett({klaenge, gruppen, settings.akk_form, settings.best_art});
  if (!auswahl_vollstaendig_ || eintraege == 0) return WasFehlt();

  // A training that is taken up keeps the board that it has.
  const bool gemischt = kandidaten > eintraege && settings.uebmodus != kModusFortsetzung;
  std::string text =
      gemischt ? texts.Words({text_id::kChordsMixedAnew,
                              "Chords: %1 of %2, mixed anew each time",
                              {DecimalText(eintraege), DecimalText(kandidaten)}})
               : texts.Words({text_id::kChordsInRun, "Chords: %1", {DecimalText(eintraege)}});
  if (settings.IstTest()) {
    const TestRest test =
        BemissTest({eintraege, settings.akk_anzahl, settings.SpielDauer(shell_.state), kWahlPause});
    text += kZwischenraum +
            texts.Words({text_id::kTasksAndTime,
                         "Tasks: %1, in at most %2 min",
                         {DecimalText(test.test_aufgaben), MinutenText(test.rest_sek)}});
  }
  return text;
}

std::string Einstellung1::WasFehlt() const {
  const TextLookup& texts = shell_.texts;
  const ItemList& klaenge = klanglst[1];
  const bool voicings = parts_.settings.akk_form != 0;
  if (!voicings && klaenge.count() == 0) {
    return texts.Words(
        {text_id::kChordSizesMissing, "Still to select: chord sizes (at least 1)", {}});
  }
  const bool mit_triaden = !voicings && klaenge.entry(0).item_data == kTriade;
  return texts.Words({text_id::kChordGroupsMissing,
                      "Still to select: chord groups (%1 of at least %2)",
                      {DecimalText(grplst[1].count()), DecimalText(mit_triaden ? 1 : 2)}});
}

/// Why the sound check is locked; empty where it is not.
std::string Einstellung1::WarumKeineProbe() const {
  const TextLookup& texts = shell_.texts;
  if (probe_laeuft_) {
    return texts.Words({text_id::kSampleIsPlaying,
                        "The sample is playing: OK and the sound check wait for its end",
                        {}});
  }
  if (probe_erlaubt_) return "";
  // Groups that are chosen one by one leave it locked.
  if (parts_.settings.akk_form == 0 && klanglst[1].count() > 0) {
    return texts.Words(
        {text_id::kCheckNeedsAllGroups, "Sound check: only after » (all chord groups)", {}});
  }
  return texts.Words(
      {text_id::kCheckNeedsSelection, "Sound check: only with a complete selection", {}});
}

}  // namespace vmod17

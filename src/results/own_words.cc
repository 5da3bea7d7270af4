// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "results/own_words.h"

#include <array>
#include <map>

#include "base/text_ids.h"

namespace vmod17 {

std::string EigenesWort(int id) {
  static const std::map<int, const char*> words = {
      {text_id::kPrint, "Drucken"},
      {text_id::kOctaves, "Oktaven"},
      {text_id::kTwoHandVoicings, "2-hand-voicings"},
      {text_id::kThreeToSevenNotes, "3-7 - Klänge"},
      {text_id::kTriads, "Dreiklänge"},
      {text_id::kFourNoteChords, "Vierklänge"},
      {text_id::kFiveNoteChords, "Fünfklänge"},
      {text_id::kSixNoteChords, "Sechsklänge"},
      {text_id::kSevenNoteChords, "Siebenklänge"},
      {text_id::kSequence, "Abfolge "},
      {text_id::kChordRoot, "Akkord- Grundton "},
      {text_id::kNumberOfChords, "Akkord- Anzahl "},
      {text_id::kChord, "Akkord"},
      {text_id::kRange, "Tonraum "},
      {text_id::kUser, "Anwender"},
      {text_id::kChordDisplay, "Akk.-Anzeige"},
      {text_id::kFreePractice, "freies Üben"},
      {text_id::kMaterial, "Auswahl"},
      {text_id::kAutomatic, "automatisch"},
      {text_id::kRegister, "Bereich"},
      {text_id::kIdentify, "bestimmen"},
      {text_id::kAccented, "betont"},
      {text_id::kDate, "Datum"},
      {text_id::kDominantAlteredShort, "Dom.-Sept, alt."},
      {text_id::kDominant, "Dominant-Sept"},
      {text_id::kDominantAltered, "Dominant-Sept, alt."},
      {text_id::kSettingsTitle, " Grundeinstellung"},
      {text_id::kResultsTitle, " Ergebnis"},
      {text_id::kFixedTuning, "fest (a'440 Hz)"},
      {text_id::kTuning, "Frequenz"},
      {text_id::kOverallResult, "Gesamtergebnis"},
      {text_id::kConstant, "gleichbleibend"},
      {text_id::kRoot, "Grundton"},
      {text_id::kGroup, "Gruppe"},
      {text_id::kChordGroups, "Gruppen-Auswahl"},
      {text_id::kHalfDiminished, "Halbvermindert"},
      {text_id::kModuleTitle, "Jazz-Akkorde bestimmen"},
      {text_id::kExerciseName, "Jazz-Akkorde bestimmen"},
      {text_id::kChordSizes, "Klang-Auswahl"},
      {text_id::kSound, "Klangfarbe"},
      {text_id::kMajorSeventh, "Major-Sept"},
      {text_id::kMajorSeventhAltered, "Major-Sept, alt."},
      {text_id::kManual, "manuell"},
      {text_id::kMinorSeventh, "Moll-Sept"},
      {text_id::kTonicMinor, "Moll-Tonika "},
      {text_id::kNumber, "Nr."},
      {text_id::kSymbolOnly, "nur Symbol"},
      {text_id::kExam, "Prüfung"},
      {text_id::kVoice, "Stimme"},
      {text_id::kNotesAndSymbol, "Struktur + Symbol"},
      {text_id::kTempo, "Tempo "},
      {text_id::kTest, "Test"},
      {text_id::kTrainingNew, "Training (neu)"},
      {text_id::kTrainingContinued, "Training (Fortsetzung)"},
      {text_id::kExerciseType, "Übungsart"},
      {text_id::kPracticeMode, "Übungsmodus"},
      {text_id::kUnaccented, "unbetont"},
      {text_id::kIndividual, "unterschiedlich"},
      {text_id::kVariable, "variabel"},
      {text_id::kDiminished, "vermindert"},
      {text_id::kChanging, "wechselnd"},
      {text_id::kContinue, "weiter"},
      {text_id::kC2, "C"},
      {text_id::kC3, "c"},
      {text_id::kC4, "c'"},
      {text_id::kC5, "c''"},
      {text_id::kC6, "c'''"},
      {text_id::kC7, "c''''"},
      {text_id::kColon, ":"},
      {text_id::kTo, "bis"},
      {text_id::kNameHeading, "Name:"},
      {text_id::kFirstNameHeading, "Vorname:"},
      {text_id::kMatriculationNumberHeading, "Matrikel-Nr.:"}};
  const auto word = words.find(id);
  return word == words.end() ? "" : word->second;
}

std::string EigenerGruppenName(int i) {
  constexpr std::array ids = {text_id::kTriads,
                              text_id::kMajorSeventh,
                              text_id::kMajorSeventhAltered,
                              text_id::kMinorSeventh,
                              text_id::kDominant,
                              text_id::kDominantAltered,
                              text_id::kTonicMinor,
                              text_id::kHalfDiminished,
                              text_id::kDiminished,
                              0,
                              text_id::kDominantAlteredShort};
  return EigenesWort(ids.at(i));
}

std::string EigenerKlangName(int klangtyp) {
  constexpr std::array ids = {0,
                              0,
                              0,
                              text_id::kTriads,
                              text_id::kFourNoteChords,
                              text_id::kFiveNoteChords,
                              text_id::kSixNoteChords,
                              text_id::kSevenNoteChords};
  return EigenesWort(ids.at(klangtyp));
}

}  // namespace vmod17

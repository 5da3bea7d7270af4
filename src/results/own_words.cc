// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "results/own_words.h"

#include <array>
#include <map>

namespace vmod17 {

std::string EigenesWort(int id) {
  static const std::map<int, const char*> words = {{1, "Drucken"},
                                                   {41, "Oktaven"},
                                                   {45, "2-hand-voicings"},
                                                   {49, "3-7 - Klänge"},
                                                   {51, "Dreiklänge"},
                                                   {57, "Vierklänge"},
                                                   {60, "Fünfklänge"},
                                                   {62, "Sechsklänge"},
                                                   {64, "Siebenklänge"},
                                                   {78, "Abfolge "},
                                                   {87, "Akkord- Grundton "},
                                                   {88, "Akkord- Anzahl "},
                                                   {97, "Akkord"},
                                                   {107, "Tonraum "},
                                                   {109, "Anwender"},
                                                   {114, "Akk.-Anzeige"},
                                                   {136, "freies Üben"},
                                                   {138, "Auswahl"},
                                                   {142, "automatisch"},
                                                   {153, "Bereich"},
                                                   {154, "bestimmen"},
                                                   {156, "betont"},
                                                   {189, "Datum"},
                                                   {199, "Dom.-Sept, alt."},
                                                   {200, "Dominant-Sept"},
                                                   {201, "Dominant-Sept, alt."},
                                                   {221, " Grundeinstellung"},
                                                   {224, " Ergebnis"},
                                                   {238, "fest (a'440 Hz)"},
                                                   {243, "Frequenz"},
                                                   {275, "Gesamtergebnis"},
                                                   {277, "gleichbleibend"},
                                                   {297, "Grundton"},
                                                   {301, "Gruppe"},
                                                   {302, "Gruppen-Auswahl"},
                                                   {312, "Halbvermindert"},
                                                   {347, "Jazz-Akkorde bestimmen"},
                                                   {348, "Jazz-Akkorde bestimmen"},
                                                   {364, "Klang-Auswahl"},
                                                   {365, "Klangfarbe"},
                                                   {379, "Major-Sept"},
                                                   {380, "Major-Sept, alt."},
                                                   {383, "manuell"},
                                                   {409, "Moll-Sept"},
                                                   {410, "Moll-Tonika "},
                                                   {426, "Nr."},
                                                   {429, "nur Symbol"},
                                                   {438, "Prüfung"},
                                                   {499, "Stimme"},
                                                   {507, "Struktur + Symbol"},
                                                   {547, "Tempo "},
                                                   {550, "Test"},
                                                   {564, "Training (neu)"},
                                                   {565, "Training (Fortsetzung)"},
                                                   {586, "Übungsart"},
                                                   {587, "Übungsmodus"},
                                                   {588, "unbetont"},
                                                   {589, "unterschiedlich"},
                                                   {603, "variabel"},
                                                   {609, "vermindert"},
                                                   {623, "wechselnd"},
                                                   {625, "weiter"},
                                                   {671, "C"},
                                                   {672, "c"},
                                                   {673, "c'"},
                                                   {674, "c''"},
                                                   {675, "c'''"},
                                                   {676, "c''''"},
                                                   {700, ":"},
                                                   {702, "bis"},
                                                   {9603, "Name:"},
                                                   {9604, "Vorname:"},
                                                   {9605, "Matrikel-Nr.:"}};
  const auto word = words.find(id);
  return word == words.end() ? "" : word->second;
}

std::string EigenerGruppenName(int i) {
  constexpr std::array ids = {51, 379, 380, 409, 200, 201, 410, 312, 609, 0, 199};
  return EigenesWort(ids.at(i));
}

std::string EigenerKlangName(int klangtyp) {
  constexpr std::array ids = {0, 0, 0, 51, 57, 60, 62, 64};
  return EigenesWort(ids.at(klangtyp));
}

}  // namespace vmod17

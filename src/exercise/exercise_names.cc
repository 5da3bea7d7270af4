// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "exercise/exercise_names.h"

#include <initializer_list>
#include <utility>

namespace vmod17 {

const std::array<std::string, 10> ExerciseNames::tempo_name_ar = {
    " 30              ", " 40 (Largo)      ", " 60 (Larghetto)  ", " 80 (Adagio)     ",
    "100 (Andante)    ", "120 (Moderato)   ", "140 (Allegro)    ", "160 (Vivace)     ",
    "180 (Presto)     ", "200 (Prestissimo)"};

void ExerciseNames::Fuelle(const TextLookup& texts) {
  // In this order, and each id as often as it stands here: two tables share id 51, two id 400.
  const auto fill = [&texts](auto& table, std::initializer_list<std::pair<int, int>> ids) {
    for (const auto& [slot, id] : ids) table[slot] = texts.Sprachtext(id);
  };
  fill(grp_name_ar, {{0, 51},
                     {1, 379},
                     {2, 380},
                     {3, 409},
                     {4, 200},
                     {5, 201},
                     {6, 410},
                     {7, 312},
                     {8, 609},
                     {10, 199}});
  fill(klang_name_ar, {{3, 51}, {4, 57}, {5, 60}, {6, 62}, {7, 64}});
  fill(modus_name_ar, {{0, 136}, {1, 564}, {2, 565}, {3, 550}, {4, 438}});
  fill(arp_richtung_name_ar, {{0, 133}, {1, 84}, {2, 624}, {3, 278}});
  fill(arp_tempo_name_ar, {{0, 477}, {1, 371}, {2, 400}, {3, 470}, {4, 479}});
  fill(art_name_ar, {{0, 194}, {1, 141}});
  fill(frei_name_ar, {{0, 478}, {1, 424}, {2, 400}, {3, 319}, {4, 476}});
}

}  // namespace vmod17

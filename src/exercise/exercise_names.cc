// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "exercise/exercise_names.h"

#include <initializer_list>
#include <utility>

#include "base/text_ids.h"

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
  fill(grp_name_ar, {{0, text_id::kTriads},
                     {1, text_id::kMajorSeventh},
                     {2, text_id::kMajorSeventhAltered},
                     {3, text_id::kMinorSeventh},
                     {4, text_id::kDominant},
                     {5, text_id::kDominantAltered},
                     {6, text_id::kTonicMinor},
                     {7, text_id::kHalfDiminished},
                     {8, text_id::kDiminished},
                     {10, text_id::kDominantAlteredShort}});
  fill(klang_name_ar, {{3, text_id::kTriads},
                       {4, text_id::kFourNoteChords},
                       {5, text_id::kFiveNoteChords},
                       {6, text_id::kSixNoteChords},
                       {7, text_id::kSevenNoteChords}});
  fill(modus_name_ar, {{0, text_id::kFreePractice},
                       {1, text_id::kTrainingNew},
                       {2, text_id::kTrainingContinued},
                       {3, text_id::kTest},
                       {4, text_id::kExam}});
  fill(arp_richtung_name_ar, {{0, text_id::kUpwards},
                              {1, text_id::kDownwards},
                              {2, text_id::kRandom},
                              {3, text_id::kAllAtOnce}});
  fill(arp_tempo_name_ar, {{0, text_id::kVerySlow},
                           {1, text_id::kSlow},
                           {2, text_id::kMedium},
                           {3, text_id::kFast},
                           {4, text_id::kVeryFast}});
  fill(art_name_ar, {{0, text_id::kDirect}, {1, text_id::kSelectable}});
  fill(frei_name_ar, {{0, text_id::kVeryLow},
                      {1, text_id::kLow},
                      {2, text_id::kMedium},
                      {3, text_id::kHigh},
                      {4, text_id::kVeryHigh}});
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <algorithm>
#include <array>
#include <vector>

#include "base/text_ids.h"
#include "exercise/settings_record.h"
#include "forms/color.h"

namespace vmod17 {

/// The colours of the frames that are free.
inline constexpr Color kRahmenFarbe = Bgr(0xC0FFFF);
inline constexpr Color kLevelRahmen = Bgr(0xC0FFC0);
inline constexpr Color kKlangRahmen = Bgr(0xFFFFC0);

/// A frame of the settings screen.
struct Rahmen {
  /// The levels that settle what stands in it, and lock it.
  enum class Gesperrt { kNie, kFortsetzung, kFortsetzungUndPruefung };

  int nummer;  ///< its index in `grdeinst`
  int titel;   ///< the text id of its caption for `Sprachtext()`; 0 for none
  Color farbe;
  Gesperrt gesperrt;
};

inline constexpr std::array kRahmen = {
    Rahmen{0, text_id::kTuning, kRahmenFarbe, Rahmen::Gesperrt::kFortsetzung},
    Rahmen{1, text_id::kRange, kRahmenFarbe, Rahmen::Gesperrt::kFortsetzung},
    Rahmen{2, text_id::kChordGroups, kRahmenFarbe, Rahmen::Gesperrt::kFortsetzungUndPruefung},
    Rahmen{3, text_id::kIdentify, kRahmenFarbe, Rahmen::Gesperrt::kFortsetzungUndPruefung},
    Rahmen{4, text_id::kNumberOfChords, kRahmenFarbe, Rahmen::Gesperrt::kFortsetzung},
    Rahmen{5, text_id::kSequence, kRahmenFarbe, Rahmen::Gesperrt::kFortsetzungUndPruefung},
    Rahmen{7, text_id::kMaterial, kRahmenFarbe, Rahmen::Gesperrt::kFortsetzungUndPruefung},
    Rahmen{8, text_id::kPracticeMode, kLevelRahmen, Rahmen::Gesperrt::kNie},
    Rahmen{9, text_id::kRoot, kRahmenFarbe, Rahmen::Gesperrt::kFortsetzung},
    Rahmen{10, text_id::kDirection, kRahmenFarbe, Rahmen::Gesperrt::kFortsetzung},
    Rahmen{11, text_id::kChordSizes, kRahmenFarbe, Rahmen::Gesperrt::kFortsetzungUndPruefung},
    Rahmen{12, text_id::kChordDisplay, kRahmenFarbe, Rahmen::Gesperrt::kFortsetzung},
    Rahmen{14, 0, kKlangRahmen, Rahmen::Gesperrt::kNie},                // loudness
    Rahmen{15, text_id::kSound, kKlangRahmen, Rahmen::Gesperrt::kNie},  // timbre, tempo
    Rahmen{17, text_id::kChordRoot, kRahmenFarbe, Rahmen::Gesperrt::kFortsetzung},
};

static_assert(std::ranges::is_sorted(kRahmen, {}, &Rahmen::nummer) &&
                  std::ranges::adjacent_find(kRahmen, {}, &Rahmen::nummer) == kRahmen.end(),
              "the frames ascend");

constexpr bool GibtRahmen(int nummer) {
  return std::ranges::find(kRahmen, nummer, &Rahmen::nummer) != kRahmen.end();
}

/// The text id of a frame's caption. The frame must be one of the table.
constexpr int RahmenTitel(int nummer) {
  return std::ranges::find(kRahmen, nummer, &Rahmen::nummer)->titel;
}

/// Whether the level settles what stands in a frame.
constexpr bool Sperrt(int uebmodus, const Rahmen& rahmen) {
  switch (rahmen.gesperrt) {
    case Rahmen::Gesperrt::kNie:
      return false;
    case Rahmen::Gesperrt::kFortsetzung:
      return uebmodus == kModusFortsetzung;
    case Rahmen::Gesperrt::kFortsetzungUndPruefung:
      return uebmodus == kModusFortsetzung || uebmodus == kModusPruefung;
  }
  return false;
}

inline std::vector<int> RahmenNummern() {
  std::vector<int> nummern;
  nummern.reserve(kRahmen.size());
  for (const Rahmen& rahmen : kRahmen) nummern.push_back(rahmen.nummer);
  return nummern;
}

/// The numbers of the frames that have a caption.
inline std::vector<int> RahmenMitTitel() {
  std::vector<int> nummern;
  for (const Rahmen& rahmen : kRahmen) {
    if (rahmen.titel != 0) nummern.push_back(rahmen.nummer);
  }
  return nummern;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <string>

#include "shell/text_lookup.h"

namespace vmod17 {

/// The names of what an exercise is made of. Entries that are not named stay empty.
struct ExerciseNames {
  /// Looks the names up in the language in use.
  void Fuelle(const TextLookup& texts);

  std::array<std::string, 11> grp_name_ar;   ///< by group; 0 the triads, 10 a short form of 5
  std::array<std::string, 8> klang_name_ar;  ///< by Klangtyp, 3 to 7
  std::array<std::string, 5> modus_name_ar;  ///< by `uebmodus`
  std::array<std::string, 4> arp_richtung_name_ar;
  std::array<std::string, 5> arp_tempo_name_ar;
  std::array<std::string, 2> art_name_ar;
  std::array<std::string, 5> frei_name_ar;
  static const std::array<std::string, 10> tempo_name_ar;  ///< the same in all languages
};

}  // namespace vmod17

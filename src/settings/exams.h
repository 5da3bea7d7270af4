// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "catalogue/chord_table.h"

namespace vmod17 {

/// What an exam fixes. All else is free in it.
struct Pruefung {
  enum class Gruppen { kKeine, kAlle };  ///< none, or all that are on offer

  int nummer;  ///< `pruef_nr`, which the list shows behind its word
  int akk_form;
  int best_art;
  std::array<int, kVoicing - kTriade> klangtypen;  ///< in the order of their choosing; 0 for none
  Gruppen gruppen;
};

/// The exams, by number from 1. One more is one more line.
inline constexpr std::array kPruefungen = {
    Pruefung{1, 0, 0, {3}, Pruefung::Gruppen::kKeine},
    Pruefung{2, 0, 0, {4, 5}, Pruefung::Gruppen::kAlle},
    Pruefung{3, 0, 0, {6, 7}, Pruefung::Gruppen::kAlle},
    Pruefung{4, 1, 0, {}, Pruefung::Gruppen::kAlle},
    Pruefung{5, 1, 1, {}, Pruefung::Gruppen::kAlle},
};

/// Whether an exam leads to a board with chords: its kinds are on offer, and it has groups unless
/// it asks for triads alone.
constexpr bool IstVollstaendig(const Pruefung& pruefung) {
  const auto& kinds = pruefung.klangtypen;
  const auto chosen = [](int k) { return k != 0; };
  const auto offered = [&](int k) {
    return k == 0 || (k >= kTriade + pruefung.best_art && k < kVoicing);
  };
  const auto needs_groups = [](int k) { return k > kTriade; };
  const bool voicings = pruefung.akk_form == 1;
  if (std::ranges::any_of(kinds, chosen) == voicings) return false;
  if (!std::ranges::all_of(kinds, offered)) return false;
  return (voicings || std::ranges::any_of(kinds, needs_groups)) ==
         (pruefung.gruppen == Pruefung::Gruppen::kAlle);
}

constexpr bool SindGezaehlt(const auto& pruefungen) {
  for (std::size_t i = 0; i < pruefungen.size(); ++i) {
    if (pruefungen[i].nummer != static_cast<int>(i) + 1) return false;
  }
  return true;
}

static_assert(SindGezaehlt(kPruefungen), "the exams are numbered in order, from 1");
static_assert(std::ranges::all_of(kPruefungen, IstVollstaendig), "an exam has no chords");

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <vector>

#include "exercise/counters.h"
#include "exercise/training_weights.h"
#include "ports/random.h"

namespace vmod17 {

/// The bag from which a training or test draws its chords, and the weights of a training. Free
/// practice has none.
struct Material {
  int mat_posten = 0;                       ///< entries in the material
  std::vector<std::array<int, 2>> mat_tab;  ///< board entry and weight, row 0 unused
  int mat_soll = 0;                         ///< weight of every entry at the start
  std::vector<int> mat_ar;                  ///< the bag, from 1; 0 a used copy
  int mat_anzahl = 0;                       ///< last index of `mat_ar`
  int mat_index = 0;                        ///< place drawn last
  int mat_rest = 0;                         ///< sum of the positive weights

  /// Begins a training: every one of the `mat_posten` entries gets the same weight.
  void BeginneTraining(Auswertung& auswertung);
  /// Takes a training up again with its entries and weights.
  void SetzeFort(const std::vector<std::array<int, 2>>& posten, Auswertung& auswertung);
  /// Writes each entry as often into the bag as its weight and `offset` say together.
  void MaterialFuellen(int offset);
  /// Sorts by falling weight, works out what is left, and builds the bag anew: the chords that need
  /// most practice stand at its front.
  void MaterialOrdnen();

  /// Makes room for one half of a test: `anzahl` draws, at least as many as there are entries.
  void BeginneTest(int anzahl);
  /// Fills the bag of a test: every entry once, and the rest by chance.
  void MaterialTest(Auswertung& auswertung, Random& random);
  /// Uses up one copy of an entry; an entry without a copy changes nothing.
  void NimmHeraus(int entry);

  /// The weight of a board entry; null when it is not in the material.
  int* Gewicht(int entry);
  /// What is left at twice the starting weight: there a training is too hard.
  int Grenze() const { return GrenzeFuer(mat_posten, mat_soll); }
  /// What is left, in whole per cent of `Grenze`; 50 at the start.
  int Prozent() const;
};

}  // namespace vmod17

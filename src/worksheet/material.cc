// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "worksheet/material.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "base/numbers.h"

namespace vmod17 {
namespace {

constexpr int kVolleTasche = 8;  // times the entries: above it the bag is left as it is

}  // namespace

void Material::BeginneTraining(Auswertung& auswertung) {
  mat_soll = SollFuer(mat_posten);
  mat_anzahl = mat_rest = mat_posten * mat_soll;
  mat_tab.assign(1, {0, 0});
  for (int i = 1; i <= mat_posten; ++i) {
    mat_tab.push_back({i, mat_soll});
    auswertung.Increment(i, kImMaterial);
  }
  MaterialFuellen(0);
}

void Material::SetzeFort(const std::vector<std::array<int, 2>>& posten, Auswertung& auswertung) {
  mat_posten = static_cast<int>(posten.size());
  mat_soll = SollFuer(mat_posten);
  mat_tab.assign(1, {0, 0});
  for (const auto& [entry, gewicht] : posten) {
    mat_tab.push_back({entry, gewicht});
    auswertung.Increment(entry, kImMaterial);
  }
  MaterialOrdnen();
}

void Material::MaterialFuellen(int offset) {
  mat_ar.assign(1, 0);
  for (int i = 1; i <= mat_posten; ++i) {
    const auto& [entry, gewicht] = mat_tab[i];
    mat_ar.insert(mat_ar.end(), std::max(0, gewicht + offset), entry);
  }
}

void Material::MaterialOrdnen() {
  // The exchange sort, since the order of equal weights is part of a stored training.
  for (int a = 1; a < mat_posten; ++a) {
    for (int b = a + 1; b <= mat_posten; ++b) {
      if (mat_tab[b][1] > mat_tab[a][1]) std::swap(mat_tab[a], mat_tab[b]);
    }
  }
  mat_rest = 0;
  for (int i = 1; i <= mat_posten && mat_tab[i][1] > 0; ++i) mat_rest += mat_tab[i][1];
  if (mat_rest >= mat_posten * kVolleTasche - 1 || mat_rest <= 0) return;

  // Every entry keeps a copy at least, so that a finished chord can still come back.
  const int kleinstes = mat_tab[mat_posten][1];
  const int offset = kleinstes < 1 ? std::abs(kleinstes) + 1 : 0;
  MaterialFuellen(offset);
  mat_anzahl = static_cast<int>(mat_ar.size()) - 1;
}

void Material::BeginneTest(int anzahl) {
  mat_anzahl = anzahl;
  mat_ar.assign(static_cast<std::size_t>(anzahl) + 1, 0);
}

void Material::MaterialTest(Auswertung& auswertung, Random& random) {
  for (int i = 1; i <= mat_posten; ++i) {
    mat_ar.at(i) = i;
    auswertung.Increment(i, kImMaterial);
  }
  for (int i = mat_posten + 1; i <= mat_anzahl; ++i) {
    mat_ar.at(i) = static_cast<int>(random.Rnd() * static_cast<float>(mat_posten)) + 1;
  }
}

void Material::NimmHeraus(int entry) {
  const auto kopie = std::find(mat_ar.begin() + 1, mat_ar.end(), entry);
  if (kopie != mat_ar.end()) *kopie = 0;
}

int* Material::Gewicht(int entry) {
  const auto zeile = std::find_if(mat_tab.begin(), mat_tab.end(),
                                  [entry](const auto& row) { return row[0] == entry; });
  return zeile == mat_tab.end() ? nullptr : &(*zeile)[1];
}

int Material::Prozent() const { return RoundHalfEven(mat_rest * 100.0 / Grenze()); }

}  // namespace vmod17

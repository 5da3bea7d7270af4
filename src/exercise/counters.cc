// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "exercise/counters.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/numbers.h"
#include "base/run_time_error.h"

namespace vmod17 {
namespace {

template <typename Element>
Element& Checked(std::vector<Element>& values, int index) {
  if (index < 0 || index >= static_cast<int>(values.size())) {
    throw RunTimeError(ErrorNumber::kOutOfRange, "no counter " + std::to_string(index),
                       "vmod17.Auswertung");
  }
  return values[index];
}

}  // namespace

void Auswertung::init_arr(float items, float columns) {
  arr.assign(RoundHalfEven(items) + 1, std::vector<float>(RoundHalfEven(columns) + 1, 0.0f));
}

void Auswertung::Clear() {
  for (auto& row : arr) std::fill(row.begin(), row.end(), 0.0f);
}

void Auswertung::SaveBest(int i, float value) {
  float& second = At(i, 0);
  float& lowest = At(i, 1);
  if (value < second) second = value;
  if (second < lowest) std::swap(second, lowest);
}

float& Auswertung::At(int i, int j) { return Checked(Checked(arr, i), j); }

void Ergebnis::SaveBest(int i, int value) { At(i) = std::max(At(i), value); }

void Ergebnis::Clear() {
  if (!arr.empty()) std::fill(arr.begin() + 1, arr.end(), 0);
}

int& Ergebnis::At(int i) { return Checked(arr, i); }

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

namespace vmod17 {

/// The weight with which each of `posten` entries of a training begins: a training holds about 30
/// chords at the least. `posten` is 1 or more.
constexpr int SollFuer(int posten) {
  constexpr int kSoll = 4;
  constexpr int kKlaengeMindestens = 30;
  return posten * kSoll >= kKlaengeMindestens ? kSoll : kKlaengeMindestens / posten;
}

/// The sum of the weights at twice the start: there a training is too hard.
constexpr int GrenzeFuer(int posten, int soll) { return posten * soll * 2; }

}  // namespace vmod17

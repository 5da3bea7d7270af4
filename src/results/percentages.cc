// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "results/percentages.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "base/numbers.h"
#include "exercise/settings_record.h"

namespace vmod17 {
namespace {

/// What wrong choices of an item cost. The divisor grows with the first of them; what the fewer of
/// them give back, the mark keeps.
struct Fehlwahl {
  int f = 0;
  int m = 0;
};

Fehlwahl FehlwahlVon(float a2) {
  if (!(a2 > 0)) return {};
  return {1, std::min(0, RoundHalfEven(a2 + a2 - 8))};
}

float Bruch(int s, int d) { return static_cast<float>(static_cast<double>(s) / d); }

}  // namespace

ItemErgebnis ItemBewerten(int uebmodus, const Auswertung& auswertung, int i) {
  float a0 = 0;
  float a1 = 0;
  float a2 = 0;
  float a3 = 0;
  auswertung.read(i, kGefragt, a0);
  auswertung.read(i, kNoten, a1);
  auswertung.read(i, kFalschGewaehlt, a2);
  auswertung.read(i, kImMaterial, a3);
  if (!(a3 > 0)) return {};
  const auto [f, m] = FehlwahlVon(a2);
  const auto fm = static_cast<float>(m);
  switch (uebmodus) {
    case kModusFrei:
      return {true, false, 0};
    case kModusNeuesTraining:
    case kModusFortsetzung: {
      if (a0 <= 0 && a2 <= 0) return {true, false, 0};
      const int d = RoundHalfEven((static_cast<float>(f) + a0) * kBesteNote);
      return {true, true, Bruch(RoundHalfEven(fm + a1), d)};
    }
    default: {
      // The two best scores count, and a wrong choice as a third one.
      const auto d = static_cast<int>((f == 1 ? 3 : 2) * kBesteNote);
      return {true, true, Bruch(RoundHalfEven(a1 + a0 + fm), d)};
    }
  }
}

Color ErgebnisFarbe(float v) {
  // Compared as they are: the Single 0.6 times a hundred is more than 60.
  if (v <= 0.2f) return Bgr(0x8080FF);
  if (v <= 0.4f) return Bgr(0xC0C0FF);
  if (v <= 0.6f) return Bgr(0xC0FFFF);
  if (v <= 0.8f) return Bgr(0xC0FFC0);
  return Bgr(0x80FF80);
}

std::string ProzentText(float prozent, const std::string& decimal_point) {
  const auto zehntel = static_cast<int>(std::lround(static_cast<double>(prozent) * 10));
  const int betrag = std::abs(zehntel);
  return (zehntel < 0 ? "-" : "") + DecimalText(betrag / 10) + decimal_point +
         DecimalText(betrag % 10) + "%";
}

void Gesamtergebnis::Nimm(const ItemErgebnis& item) {
  if (!item.zaehlt) return;
  erg_summe_ += item.p;
  ++erg_zahl_;
}

}  // namespace vmod17

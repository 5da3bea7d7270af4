// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>

#include "exercise/counters.h"
#include "forms/controls.h"

namespace vmod17 {

/// What a run says of one item of the board.
struct ItemErgebnis {
  bool im_lauf = false;  ///< it had a place in the run
  bool zaehlt = false;   ///< it was asked or chosen, and so has a share in the total
  float p = 0;           ///< its mark, 1 for 100 per cent; may lie outside of 0 to 1
};

/// Works out the mark of item `i`, 1 to 24, in a run of the mode `uebmodus`. Errors: those of
/// `Auswertung::read`.
ItemErgebnis ItemBewerten(int uebmodus, const Auswertung& auswertung, int i);

/// The colour of a mark `v`, 1 for 100 per cent: five shades from red to green.
Color ErgebnisFarbe(float v);
/// The colour of a run without a single mark.
inline constexpr Color kOhneErgebnisFarbe = Bgr(0x8080FF);

/// A value in per cent as the user reads it, with one digit after the decimal point: "87.5%".
/// Halves go away from zero.
std::string ProzentText(float prozent, const std::string& decimal_point);

/// The marks of a run added up.
class Gesamtergebnis {
 public:
  void Nimm(const ItemErgebnis& item);
  /// Whether there is anything to take the mean of.
  bool Leer() const { return erg_summe_ == 0 || erg_zahl_ == 0; }
  /// The mean of all marks, in per cent.
  float Prozent() const { return erg_summe_ / static_cast<float>(erg_zahl_) * 100; }

 private:
  float erg_summe_ = 0;
  int erg_zahl_ = 0;
};

}  // namespace vmod17

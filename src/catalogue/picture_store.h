// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <string_view>

#include "catalogue/chord_table.h"
#include "forms/pressable.h"

namespace vmod17 {

/// The sets of the chord pictures, in which a chord has its Klang number.
inline constexpr std::string_view kNotation = "jakk";
inline constexpr std::string_view kSymbol = "jbez";

/// One half of the ready-made pictures: for each Klang number the chord in notation and its symbol.
/// Cells keep what they were given; the store itself is loaded on first use and unloaded when the
/// cells have their pictures.
class PictureStore {
 public:
  PictureStore(int first_klang, int last_klang) : first_(first_klang), last_(last_klang) {}

  /// The notation or the symbol of a chord. Errors: RunTimeError kOutOfRange for a Klang number of
  /// the other half.
  PictureId jakk(int klang);
  PictureId jbez(int klang);

  bool loaded() const { return loaded_; }
  void Unload() { loaded_ = false; }

 private:
  PictureId Get(std::string_view set, int klang);

  int first_;
  int last_;
  bool loaded_ = false;
};

/// Both halves.
struct PictureStores {
  PictureStore bilder1{1, kErstesVoicing - 1};       ///< chords of 3 to 7 notes
  PictureStore bilder2{kErstesVoicing, kKlangZahl};  ///< two-hand voicings

  /// The half of an `akk_form`.
  PictureStore& For(int akk_form) { return akk_form == 0 ? bilder1 : bilder2; }
};

}  // namespace vmod17

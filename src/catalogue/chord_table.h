// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <span>
#include <string_view>

namespace vmod17 {

inline constexpr int kKlangZahl = 134;  ///< chords of the catalogue
inline constexpr int kKleinsterKlangtyp = 3;
inline constexpr int kVoicing = 8;  ///< the Klangtyp of the two-hand voicings
inline constexpr int kTriade = 3;   ///< the Klangtyp of the triads, which have no group
inline constexpr int kGruppen = 8;
inline constexpr int kErstesVoicing = 71;  ///< Klang number; the voicings go on to the last
inline constexpr int kMeisteZeilen = 64;   ///< rows of the Klangtyp that has most

/// One chord of the catalogue, on the root C.
struct Chord {
  int klangtyp;  ///< 3 to 7 by the number of notes, 8 a two-hand voicing
  int row;       ///< from 1 within its Klangtyp
  int group;     ///< 1 to 8; 0 for a triad
  std::string_view
      symbol;  ///< UTF-8; b and # for flat and sharp, a slash in parentheses for two lines
  std::span<const int> semitones;  ///< above the root, ascending, the first 0
};

/// The chord of a Klang number, 1 to kKlangZahl. Errors: RunTimeError kOutOfRange.
const Chord& ChordOfKlang(int klang);

/// The tables of a run, indexed by Klangtyp (3 to 8). All start at 0; `SetzeKlangZahlen`,
/// `SetzeGruppen` and `SetzeStruktur` fill what a run needs.
struct ChordTable {
  using RowValues = std::array<int, kMeisteZeilen + 1>;  ///< by row, 0 unused
  using Notes = std::array<int, 8>;                      ///< by note index
  using GroupValues = std::array<int, 9>;                ///< by group, 0 unused

  std::array<int, 9> akk_je_typ_ar{};    ///< rows of each Klangtyp
  std::array<int, 9> stimmen_ar{};       ///< index of a chord's last note
  std::array<int, 9> klang_spanne_ar{};  ///< semitones that stay free above a root
  /// Semitones above the root, by Klangtyp and row.
  std::array<std::array<Notes, kMeisteZeilen + 1>, 9> akk_struktur_ar{};
  std::array<RowValues, 9> akk_gruppe_ar{};  ///< group of a row
  std::array<GroupValues, 9> grp_zahl_ar{};  ///< pool sizes; settled numbers of their own

  /// Fills `akk_je_typ_ar`.
  void SetzeKlangZahlen();
  /// Fills the groups of one Klangtyp, 4 to 8; any other value changes nothing.
  void SetzeGruppen(int klangtyp);
  /// Clears `stimmen_ar` and fills it, the headroom and the notes for each of `klangtypen` that is
  /// 3 to 8. The rows of other Klangtypen keep what they hold.
  void SetzeStruktur(std::span<const int> klangtypen);
  /// The Klang number of a row; reads `akk_je_typ_ar`.
  int KlangNummer(int klangtyp, int row) const;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <span>
#include <vector>

#include "catalogue/chord_table.h"
#include "ports/random.h"

namespace vmod17 {

inline constexpr int kBrettGroesse = 24;   ///< entries of a board at the most
inline constexpr int kBrettVoicings = 16;  ///< the same for two-hand voicings

/// One chord of a run.
struct BoardEntry {
  int klangtyp = 0;  ///< 3 to 8
  int row = 0;       ///< from 1 within the Klangtyp
  int group = 0;     ///< 1 to 8; 0 for a triad
  int klang = 0;     ///< Klang number, 1 to 134
  bool operator==(const BoardEntry&) const = default;
};

/// Which chords a board is made of.
struct BoardSelection {
  std::span<const int> klangtypen;  ///< ascending
  std::span<const int> gruppen;     ///< ascending
  int akk_form = 0;                 ///< 0 chords of 3 to 7 notes, 1 two-hand voicings
  int best_art = 0;                 ///< 0 the chord is named, 1 its group
};

/// How large a board is.
struct BoardSize {
  int kandidaten = 0;  ///< chords that fit the selection
  int eintraege = 0;   ///< how many of them a board holds
  bool operator==(const BoardSize&) const = default;
};

/// The size of every board of a selection.
BoardSize BemissBrett(const BoardSelection& selection);

/// How many wrong clicks a slot takes.
struct SlotLimits {
  static constexpr int kFehlSchritt = 2;  ///< points of a wrong click

  int wahl_anzahl = 0;  ///< choices on the sheet
  int fehl_stufen = 0;  ///< wrong clicks of a slot: at most 4, and one less than the choices
  int fehl_max = 0;     ///< at exactly this many points the answer is shown

  void Setze(int auswahl);
};

/// The chords of a run, sorted for display: what the student sees and what results are counted by.
class ChordBoard {
 public:
  explicit ChordBoard(ChordTable& table) : table_(table) {}

  /// Entry `e`, 1 to 24; entries above `akk_zahl` are all 0. Errors: RunTimeError kOutOfRange.
  BoardEntry& operator[](int e);
  const BoardEntry& operator[](int e) const { return const_cast<ChordBoard&>(*this)[e]; }

  /// Builds the board from all chords that fit the selection, or from a random choice in which each
  /// kind or group has its share. Fills the groups and notes of `ChordTable` for the run.
  /// Errors: RunTimeError kNothingToDraw when the share of a kind or group cannot be drawn.
  void SetzeAkkTab(const BoardSelection& selection, Random& random);
  /// Sets the flag of every group that the board holds. Building it leaves out those that have come
  /// by the filling up alone.
  void MeldeGruppen();
  /// Takes over a stored board in place of building one; the Klang numbers are worked out. Fills
  /// the notes of `ChordTable` for the run; `limits` stay as they are. Errors: RunTimeError
  /// kTypeMismatch, with the board as it was, when this selection cannot have given these entries.
  void Uebernimm(const BoardSelection& selection, const std::vector<BoardEntry>& entries);
  /// The Klang number of entry `e`, which the entry keeps from then on.
  int KlangNummer(int e);
  /// The index of the last note of entry `e`.
  int LetzteNote(int e) const { return table_.stimmen_ar[(*this)[e].klangtyp]; }

  const ChordTable& table() const { return table_; }

  int akk_zahl = 0;                   ///< entries in use
  SlotLimits limits;                  ///< set with the board, kept until the next one is built
  std::array<int, 9> grp_aktiv_ar{};  ///< by group: 1 once the board holds a chord of it

 private:
  struct Kandidat {
    int klangtyp;  // 0 once it is taken
    int row;
    int group;
  };

  void Sammle(const BoardSelection& selection);
  bool KannHaben(const BoardSelection& selection, const std::vector<BoardEntry>& entries) const;
  int Quote(const BoardSelection& selection, int klangtyp) const;
  void Ziehe(const BoardSelection& selection, Random& random, int grenze);
  void ZiehePflichtVoicings(const BoardSelection& selection, Random& random);
  void ZiehePflichtKlaenge(const BoardSelection& selection, Random& random);
  void Nimm(Kandidat& kandidat);
  Kandidat& Wuerfle(Random& random);
  void Sortiere(int letzter);

  ChordTable& table_;
  std::array<BoardEntry, kBrettGroesse + 1> akk_tab_{};
  std::vector<Kandidat> kandidat_ar_;
  std::array<int, 9> vorrat_ar_{};
};

}  // namespace vmod17

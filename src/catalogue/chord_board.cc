// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "catalogue/chord_board.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/numbers.h"
#include "base/run_time_error.h"

namespace vmod17 {
namespace {

constexpr int kVersucheJeGruppe = 200;  // tries after which a group may come a second time
constexpr int kVersucheInsgesamt = 100000;

[[noreturn]] void NichtsZuZiehen(const char* what) {
  throw RunTimeError(ErrorNumber::kNothingToDraw, std::string("the board finds no ") + what,
                     "vmod17.ChordBoard");
}

/// How many entries a board of this selection holds at the most.
int Grenze(const BoardSelection& selection) {
  const bool voicings = !selection.klangtypen.empty() && selection.klangtypen.back() == kVoicing;
  return voicings ? kBrettVoicings : kBrettGroesse;
}

bool Enthaelt(std::span<const int> werte, int wert) {
  return std::find(werte.begin(), werte.end(), wert) != werte.end();
}

/// The order of a board.
bool Vor(const BoardEntry& a, const BoardEntry& b) {
  return a.klangtyp * 100 + a.row < b.klangtyp * 100 + b.row;
}

}  // namespace

BoardSize BemissBrett(const BoardSelection& selection) {
  BoardSize size;
  for (int klang = 1; klang <= kKlangZahl; ++klang) {
    const Chord& chord = ChordOfKlang(klang);
    if (!Enthaelt(selection.klangtypen, chord.klangtyp)) continue;
    // Triads have no group and come without one.
    if (chord.group == 0 || Enthaelt(selection.gruppen, chord.group)) ++size.kandidaten;
  }
  size.eintraege = std::min(size.kandidaten, Grenze(selection));
  return size;
}

void SlotLimits::Setze(int auswahl) {
  wahl_anzahl = auswahl;
  fehl_stufen = std::min(wahl_anzahl - 1, 4);
  fehl_max = fehl_stufen * kFehlSchritt;
}

BoardEntry& ChordBoard::operator[](int e) {
  if (e < 1 || e > kBrettGroesse) {
    throw RunTimeError(ErrorNumber::kOutOfRange, "no board entry " + std::to_string(e),
                       "vmod17.ChordBoard");
  }
  return akk_tab_[e];
}

void ChordBoard::SetzeAkkTab(const BoardSelection& selection, Random& random) {
  akk_tab_.fill({});
  grp_aktiv_ar.fill(0);
  Sammle(selection);

  const int grenze = Grenze(selection);
  akk_zahl = 0;
  if (static_cast<int>(kandidat_ar_.size()) <= grenze) {
    for (Kandidat& kandidat : kandidat_ar_) {
      grp_aktiv_ar[kandidat.group] = 1;
      Nimm(kandidat);
    }
  } else {
    Ziehe(selection, random, grenze);
  }
  Sortiere(akk_zahl);

  for (int e = 1; e <= akk_zahl; ++e) {
    BoardEntry& entry = akk_tab_[e];
    entry.group = entry.klangtyp == kTriade ? 0 : table_.akk_gruppe_ar[entry.klangtyp][entry.row];
  }
  table_.SetzeStruktur(selection.klangtypen);
  limits.Setze(selection.best_art == 0 ? akk_zahl : static_cast<int>(selection.gruppen.size()));
}

void ChordBoard::MeldeGruppen() {
  for (int e = 1; e <= akk_zahl; ++e) grp_aktiv_ar[akk_tab_[e].group] = 1;
}

void ChordBoard::Sammle(const BoardSelection& selection) {
  kandidat_ar_.clear();
  vorrat_ar_.fill(0);
  for (const int k : selection.klangtypen) {
    if (k == kTriade) {
      vorrat_ar_[k] = table_.akk_je_typ_ar[k];
      for (int r = 1; r <= table_.akk_je_typ_ar[k]; ++r) kandidat_ar_.push_back({k, r, 0});
      continue;
    }
    table_.SetzeGruppen(k);
    for (const int g : selection.gruppen) {
      vorrat_ar_[k] += table_.grp_zahl_ar[k][g];
      for (int r = 1; r <= table_.akk_je_typ_ar[k]; ++r) {
        if (table_.akk_gruppe_ar[k][r] == g) kandidat_ar_.push_back({k, r, g});
      }
    }
  }
}

void ChordBoard::Ziehe(const BoardSelection& selection, Random& random, int grenze) {
  if (selection.akk_form == 1) {
    ZiehePflichtVoicings(selection, random);
  } else if (selection.akk_form == 0) {
    ZiehePflichtKlaenge(selection, random);
  }
  while (akk_zahl < grenze) {
    int versuche = 0;
    Kandidat* kandidat = &Wuerfle(random);
    while (kandidat->klangtyp == 0) {
      if (++versuche > kVersucheInsgesamt) NichtsZuZiehen("chord to fill up with");
      kandidat = &Wuerfle(random);
    }
    Nimm(*kandidat);
  }
}

void ChordBoard::ZiehePflichtVoicings(const BoardSelection& selection, Random& random) {
  for (const int g : selection.gruppen) {
    int versuche = 0;
    Kandidat* kandidat = &Wuerfle(random);
    while (kandidat->group != g) {
      if (++versuche > kVersucheInsgesamt) NichtsZuZiehen("voicing of a group");
      kandidat = &Wuerfle(random);
    }
    grp_aktiv_ar[g] = 1;
    Nimm(*kandidat);
    kandidat->group = 0;
  }
}

void ChordBoard::ZiehePflichtKlaenge(const BoardSelection& selection, Random& random) {
  for (auto it = selection.klangtypen.rbegin(); it != selection.klangtypen.rend(); ++it) {
    const int k = *it;
    if (vorrat_ar_[k] <= 0) continue;
    const int quote = Quote(selection, k);
    for (int i = 0; i < quote; ++i) {
      for (int versuche = 1;; ++versuche) {
        if (versuche > kVersucheInsgesamt) NichtsZuZiehen("chord of a kind");
        Kandidat& kandidat = Wuerfle(random);
        if (kandidat.klangtyp != k) continue;
        if (k != kTriade && versuche <= kVersucheJeGruppe) {
          if (grp_aktiv_ar[kandidat.group] != 0) continue;
          grp_aktiv_ar[kandidat.group] = 1;
        }
        Nimm(kandidat);
        break;
      }
    }
  }
}

int ChordBoard::Quote(const BoardSelection& selection, int klangtyp) const {
  if (vorrat_ar_[klangtyp] == 1) return 1;
  if (selection.best_art == 0) return 2;
  const auto gruppen = static_cast<double>(selection.gruppen.size());
  const auto klaenge = static_cast<double>(selection.klangtypen.size());
  return RoundHalfEven(gruppen / klaenge + 0.5);
}

void ChordBoard::Nimm(Kandidat& kandidat) {
  ++akk_zahl;
  akk_tab_[akk_zahl].klangtyp = std::exchange(kandidat.klangtyp, 0);
  akk_tab_[akk_zahl].row = kandidat.row;
}

ChordBoard::Kandidat& ChordBoard::Wuerfle(Random& random) {
  return kandidat_ar_[static_cast<std::size_t>(random.Rnd() *
                                               static_cast<float>(kandidat_ar_.size()))];
}

void ChordBoard::Sortiere(int letzter) {
  std::sort(akk_tab_.begin() + 1, akk_tab_.begin() + 1 + letzter, Vor);
}

void ChordBoard::Uebernimm(const BoardSelection& selection,
                           const std::vector<BoardEntry>& entries) {
  Sammle(selection);
  if (!KannHaben(selection, entries)) {
    throw RunTimeError(ErrorNumber::kTypeMismatch, "the stored board is none of these settings",
                       "vmod17.ChordBoard");
  }
  akk_tab_.fill({});
  std::copy(entries.begin(), entries.end(), akk_tab_.begin() + 1);
  akk_zahl = static_cast<int>(entries.size());
  for (int e = 1; e <= akk_zahl; ++e) KlangNummer(e);
  grp_aktiv_ar.fill(0);
  if (selection.best_art == 1) {
    for (const int g : selection.gruppen) grp_aktiv_ar.at(g) = 1;
  }
  table_.SetzeStruktur(selection.klangtypen);
}

/// Whether the selection collected last can give this board: the size, the order, candidates only,
/// and the share of every kind or group.
bool ChordBoard::KannHaben(const BoardSelection& selection,
                           const std::vector<BoardEntry>& entries) const {
  const int vorrat = static_cast<int>(kandidat_ar_.size());
  const int grenze = Grenze(selection);
  if (static_cast<int>(entries.size()) != std::min(vorrat, grenze)) return false;
  const auto ist_kandidat = [this](const BoardEntry& entry) {
    return std::ranges::any_of(kandidat_ar_, [&](const Kandidat& kandidat) {
      return kandidat.klangtyp == entry.klangtyp && kandidat.row == entry.row &&
             kandidat.group == entry.group;
    });
  };
  for (std::size_t e = 0; e < entries.size(); ++e) {
    if (!ist_kandidat(entries[e])) return false;
    if (e > 0 && !Vor(entries[e - 1], entries[e])) return false;
  }
  if (vorrat <= grenze) return true;
  if (selection.akk_form == 1) {
    return std::ranges::all_of(selection.gruppen, [&](int g) {
      return std::ranges::any_of(entries, [g](const BoardEntry& e) { return e.group == g; });
    });
  }
  return std::ranges::all_of(selection.klangtypen, [&](int k) {
    const auto anzahl =
        std::ranges::count_if(entries, [k](const BoardEntry& e) { return e.klangtyp == k; });
    return vorrat_ar_[k] <= 0 || anzahl >= Quote(selection, k);
  });
}

int ChordBoard::KlangNummer(int e) {
  BoardEntry& entry = (*this)[e];
  entry.klang = table_.KlangNummer(entry.klangtyp, entry.row);
  return entry.klang;
}

}  // namespace vmod17

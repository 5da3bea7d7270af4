// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <span>

#include "base/tagged_value.h"
#include "shell/app_state.h"

namespace vmod17 {

/// Values of `uebmodus`.
enum Uebmodus {
  kModusFrei = 0,
  kModusNeuesTraining = 1,
  kModusFortsetzung = 2,
  kModusTest = 3,
  kModusPruefung = 4
};

/// All that is chosen for an exercise. The settings screen writes it, all others read it. Most
/// fields are the index of the control that sets them.
struct ExerciseSettings {
  int uebmodus = 0;          ///< a `Uebmodus`
  int pruef_nr = 0;          ///< the exam, from 1
  int tempo_idx = 0;         ///< index into `tempo_dauer_ar`
  int arp_richtung = 0;      ///< an `ArpRichtung`
  int arp_tempo_idx = 0;     ///< index into `arp_teiler_ar`
  int arp_dauer = 0;         ///< ms between two notes of an arpeggio
  int akk_anzahl = 0;        ///< chords a task, 1 to 4
  int oktav_ber = 0;         ///< octaves of the Tonraum less 2
  int tonraum_idx = 0;       ///< place of the Tonraum in its list
  int ton_unten = 0;         ///< MIDI note
  int ton_oben = 0;          ///< MIDI note
  int abfolge = 0;           ///< 0 the user asks for the next task, 1 it follows by itself
  int frequenz_art = 0;      ///< 0 fixed tuning, 1 varying
  int best_art = 0;          ///< 0 the chord is named, 1 its group
  int akk_anzeige = 0;       ///< 0 notation and symbol, 1 symbol alone
  int akk_form = 0;          ///< 0 chords of 3 to 7 notes, 1 two-hand voicings
  int grundton_art = 0;      ///< 0 changing root, 1 one root for the run
  int grundton_betont = 0;   ///< 1 accents the root
  int klangfarb_art = 0;     ///< 0 one timbre, 1 one for each note of a chord
  int klang_kanal = 0;       ///< the slot of `patch_ar` being edited
  int klang_anzahl = 0;      ///< entries of `klang_ausw_ar`
  int grp_anzahl = 0;        ///< entries of `grp_ausw_ar`
  int klangfarb_felder = 0;  ///< a term in the size of `einst_satz`: 8 or 2
  int pruef_seed = 0;        ///< seed of an exam run; 0 takes the clock
  std::array<int, 7> klang_ausw_ar{};  ///< chosen Klangtypen, ascending, from 1
  std::array<int, 9> grp_ausw_ar{};    ///< chosen groups, ascending, from 1
  std::array<int, 8> patch_ar{};       ///< programs by channel: 0 the one timbre, 1 to 7 the notes

  /// The settings in words: element 0 the upper bound, then key and value in turn, all strings.
  TaggedValue::Array einst_liste;

  bool IstTraining() const {
    return uebmodus == kModusNeuesTraining || uebmodus == kModusFortsetzung;
  }
  /// A test or an exam, which differ only in how they are set up.
  bool IstTest() const { return uebmodus >= kModusTest; }

  /// The chosen Klangtypen as a list.
  std::span<const int> Klangtypen() const {
    return std::span(klang_ausw_ar).subspan(1, static_cast<std::size_t>(klang_anzahl));
  }
  /// The chosen groups as a list.
  std::span<const int> Gruppen() const {
    return std::span(grp_ausw_ar).subspan(1, static_cast<std::size_t>(grp_anzahl));
  }
  /// The last of the chosen Klangtypen, which rules range and layout; 0 when none is chosen.
  int LetzterKlangtyp() const { return klang_anzahl < 1 ? 0 : klang_ausw_ar[klang_anzahl]; }

  /// How long a task sounds, in ms.
  int SpielDauer(const AppState& state) const {
    return state.tempo_dauer_ar.at(tempo_idx) * akk_anzahl;
  }

  /// Computes `arp_dauer` from tempo and arpeggio tempo: single precision, halves to even.
  void RechneArpDauer(const AppState& state);
  /// Sets the bounds of the Tonraum for entry `j` of its list.
  void SetzeTonraum(int j);
};

/// The channels of the timbres by `klangfarb_art`: that of the one, or those of a chord's notes
/// from the lowest up.
constexpr int ErsterKanal(int klangfarb_art) { return klangfarb_art == 0 ? 0 : 1; }
constexpr int LetzterKanal(int klangfarb_art) { return klangfarb_art == 0 ? 0 : 7; }

/// Values of `arp_richtung`.
enum ArpRichtung { kArpAufwaerts = 0, kArpAbwaerts = 1, kArpZufall = 2, kArpOhne = 3 };

/// The programs that the settings screen begins with: a piano, and a woodwind choir from the
/// bassoon up. Numbers of the General MIDI sound set, from 0.
inline constexpr std::array<int, 8> kPatchVorgabe = {0, 70, 68, 71, 73, 73, 72, 74};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/tagged_value.h"
#include "exercise/settings_record.h"

namespace vmod17 {

/// The settings of a training, as they are kept until it is taken up again.
///
/// The stored list holds, all as texts: the numbers of `kPlaetze`, each in its place; how many
/// Klangtypen, and their names; `klangfarb_art`, and the one program or the seven of the notes; the
/// loudness; how many groups, and their names. Names are those of the language in use.
struct StoredSettings {
  /// A number at the head of the list. Its index in `kPlaetze` is its place.
  struct Platz {
    int ExerciseSettings::*feld;  ///< null where the list holds nothing
    int von;
    int bis;
  };
  static constexpr int kOffen = 32767;  ///< a bound that the list of the control knows
  static constexpr int kHoechsteStaerke = 127;
  static const std::array<Platz, 14> kPlaetze;

  /// Is told each setting before the next one is looked at, so that what stands before a fault has
  /// been taken by then.
  class Nehmer {
   public:
    virtual ~Nehmer() = default;
    /// A field of `kPlaetze`, or `klang_anzahl`, `klangfarb_art` or `grp_anzahl`. The first two of
    /// these come behind what they count.
    virtual void NimmZahl(int ExerciseSettings::*feld, int wert) = 0;
    virtual void NimmKlang(const std::string& name) = 0;
    virtual void NimmProgramm(int kanal, int programm) = 0;
    virtual void NimmStaerke(int staerke) = 0;
    virtual void NimmGruppe(const std::string& name) = 0;
  };

  ExerciseSettings settings;
  std::vector<std::string> klaenge;  ///< names of the chosen Klangtypen; may end too early
  int staerke = 0;
  std::vector<std::string> gruppen;  ///< names of the chosen groups

  TaggedValue::Array Write() const;
  /// Goes through a stored list; what stands behind its end is passed over. Errors: RunTimeError
  /// kTypeMismatch where an element is missing or not of the kind that belongs there, and those of
  /// `nehmer`.
  static void Read(const TaggedValue::Array& einst_satz, Nehmer& nehmer);
};

inline constexpr std::array<StoredSettings::Platz, 14> StoredSettings::kPlaetze = {{
    {&ExerciseSettings::abfolge, 0, 1},
    {&ExerciseSettings::tempo_idx, 0, kOffen},
    {&ExerciseSettings::akk_anzahl, 1, kOffen},
    {&ExerciseSettings::arp_richtung, 0, kOffen},
    {&ExerciseSettings::akk_form, 0, 1},
    {&ExerciseSettings::best_art, 0, 1},
    {&ExerciseSettings::akk_anzeige, 0, 1},
    {&ExerciseSettings::grundton_art, 0, 1},
    {&ExerciseSettings::oktav_ber, 0, kOffen},
    {&ExerciseSettings::tonraum_idx, 0, kOffen},
    {&ExerciseSettings::frequenz_art, 0, 1},
    {nullptr, 0, 0},
    {&ExerciseSettings::grundton_betont, 0, 1},
    {&ExerciseSettings::arp_tempo_idx, 0, kOffen},
}};

}  // namespace vmod17

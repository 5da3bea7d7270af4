// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>
#include <vector>

#include "catalogue/chord_table.h"

namespace vmod17 {

/// A note as it is written: C4 is the middle C, MIDI note 60.
struct SpelledNote {
  char letter;     ///< 'A' to 'G'
  int accidental;  ///< semitones the sign adds: -2 double flat, -1 flat, 0 no sign, 1 sharp
  int octave;      ///< of the letter, changing at C

  /// Semitones above C of octave 0; a MIDI note number is this plus 12.
  int Pitch() const;
  /// Places on the staff above C of octave 0, seven to an octave.
  int StaffStep() const;

  bool operator==(const SpelledNote&) const = default;
};

/// The notes of a chord on the root C, in the order of its semitones, each named as the chord's
/// symbol wants it: the fifth of C7(b5) is a G flat, the same key under C7(#11) an F sharp. Where a
/// chord of the catalogue does not sound what its symbol says, the note that sounds is written.
///
/// `root_octave`  octave of the root
/// Errors: none.
std::vector<SpelledNote> SpellChord(const Chord& chord, int root_octave);

/// The same notes in words, from below: "C E Gb Bb D".
std::string NoteNames(const Chord& chord);

}  // namespace vmod17

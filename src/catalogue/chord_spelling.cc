// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "catalogue/chord_spelling.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

namespace vmod17 {
namespace {

struct Letter {
  char name;
  int pitch;  // semitones above C
};

constexpr std::array<Letter, 7> kLetters = {
    {{'C', 0}, {'D', 2}, {'E', 4}, {'F', 5}, {'G', 7}, {'A', 9}, {'B', 11}}};

int IndexOf(char letter) {
  const auto* const found = std::find_if(kLetters.begin(), kLetters.end(),
                                         [letter](const Letter& l) { return l.name == letter; });
  return static_cast<int>(found - kLetters.begin());
}

struct Name {
  char letter;
  int accidental;
};

/// Names the notes of one chord.
class Speller {
 public:
  explicit Speller(const Chord& chord) : chord_(chord) {}

  Name NameOf(int pitch_class) const {
    switch (pitch_class) {
      case 1:
        return {'D', -1};
      case 3:
        return Third();
      case 6:
        return FifthOrFourth();
      case 8:
        return Says("#5") || Says("aug") ? Name{'G', 1} : Name{'A', -1};
      case 9:
        return SixthOrSeventh();
      case 10:
        return {'B', -1};
      default:
        return Plain(pitch_class);
    }
  }

 private:
  static Name Plain(int pitch_class) {
    const auto* const found =
        std::find_if(kLetters.begin(), kLetters.end(),
                     [pitch_class](const Letter& l) { return l.pitch == pitch_class; });
    return {found->name, 0};
  }

  // Beside a major third this key is the sharp ninth, whatever the symbol calls it.
  Name Third() const { return Sounds(4) ? Name{'D', 1} : Name{'E', -1}; }

  Name FifthOrFourth() const {
    const bool lowered_fifth = Says("b5") || Says("dim") || Says("°") || Says("ø");
    return lowered_fifth ? Name{'G', -1} : Name{'F', 1};
  }

  // The diminished seventh is a B double flat. Under a major seventh it would share the place of
  // the B, and the reader would need a natural sign to tell them apart: there it is an A.
  Name SixthOrSeventh() const { return Says("°") && !Sounds(11) ? Name{'B', -2} : Name{'A', 0}; }

  bool Says(std::string_view part) const {
    return chord_.symbol.find(part) != std::string_view::npos;
  }

  bool Sounds(int pitch_class) const {
    return std::any_of(chord_.semitones.begin(), chord_.semitones.end(),
                       [pitch_class](int semitone) { return semitone % 12 == pitch_class; });
  }

  const Chord& chord_;
};

}  // namespace

int SpelledNote::Pitch() const {
  return octave * 12 + kLetters[IndexOf(letter)].pitch + accidental;
}

int SpelledNote::StaffStep() const { return octave * 7 + IndexOf(letter); }

std::vector<SpelledNote> SpellChord(const Chord& chord, int root_octave) {
  const Speller speller(chord);
  std::vector<SpelledNote> notes;
  for (const int semitone : chord.semitones) {
    const Name name = speller.NameOf(semitone % 12);
    // No name used here crosses the octave (there is no B sharp and no C flat).
    notes.push_back({name.letter, name.accidental, root_octave + semitone / 12});
  }
  return notes;
}

std::string NoteNames(const Chord& chord) {
  std::string names;
  for (const SpelledNote& note : SpellChord(chord, 0)) {
    if (!names.empty()) names += ' ';
    names += note.letter;
    names.append(std::abs(note.accidental), note.accidental < 0 ? 'b' : '#');
  }
  return names;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "catalogue/chord_spelling.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>

namespace vmod17 {
namespace {

using ::testing::Each;
using ::testing::Ge;

std::string NameOf(const SpelledNote& note) {
  std::string name(1, note.letter);
  for (int i = note.accidental; i < 0; ++i) name += 'b';
  for (int i = note.accidental; i > 0; --i) name += '#';
  return name + std::to_string(note.octave);
}

/// The notes of a chord, on C4 or, for a two-hand voicing, on C3.
std::string Notes(int klang) {
  const Chord& chord = ChordOfKlang(klang);
  std::string text;
  for (const SpelledNote& note : SpellChord(chord, chord.klangtyp == kVoicing ? 3 : 4)) {
    if (!text.empty()) text += ' ';
    text += NameOf(note);
  }
  return text;
}

TEST(ChordSpelling, WritesTriadsInThirds) {
  EXPECT_EQ(Notes(1), "C4 E4 G4");
  EXPECT_EQ(Notes(2), "C4 Eb4 G4");
  EXPECT_EQ(Notes(3), "C4 E4 G#4");
  EXPECT_EQ(Notes(4), "C4 Eb4 Gb4");
  EXPECT_EQ(Notes(5), "C4 E4 Gb4");
  EXPECT_EQ(Notes(6), "C4 F4 G4");
}

TEST(ChordSpelling, WritesSlashChordsAsTheChordOverTheBass) {
  EXPECT_EQ(Notes(7), "C4 Eb4 Ab4");
  EXPECT_EQ(Notes(8), "C4 F4 A4");
  EXPECT_EQ(Notes(9), "C4 E4 A4");
  EXPECT_EQ(Notes(10), "C4 F4 Ab4");
  EXPECT_EQ(Notes(51), "C4 E4 G4 A4 D5 F#5");
}

TEST(ChordSpelling, WritesTheAddedFourthAsF) {
  EXPECT_EQ(Notes(19), "C4 Eb4 F4 G4");
  EXPECT_EQ(Notes(38), "C4 Eb4 F4 G4 Bb4");
  EXPECT_EQ(Notes(27), "C4 F4 G4 Bb4");
}

TEST(ChordSpelling, WritesTheDiminishedSeventhAsADoubleFlat) {
  EXPECT_EQ(Notes(22), "C4 Eb4 Gb4 Bbb4");
  EXPECT_EQ(Notes(96), "C3 Eb3 Bbb3 D4 Gb4");
  EXPECT_EQ(Notes(128), "C3 Bbb3 Eb4 Gb4 D5");
}

TEST(ChordSpelling, GivesTheSixthUnderAMajorSeventhAPlaceOfItsOwn) {
  EXPECT_EQ(Notes(97), "C3 Eb3 A3 B3 Gb4");
  EXPECT_EQ(Notes(129), "C3 A3 Eb4 Gb4 B4");
}

TEST(ChordSpelling, WritesHalfDiminishedWithTwoFlatsMoreThanMinor) {
  EXPECT_EQ(Notes(23), "C4 Eb4 Gb4 Bb4");
  EXPECT_EQ(Notes(95), "C3 Eb3 Bb3 F4 Gb4");
}

TEST(ChordSpelling, TellsTheFlatFifthFromTheSharpFourthAndEleventh) {
  EXPECT_EQ(Notes(25), "C4 E4 Gb4 Bb4");
  EXPECT_EQ(Notes(26), "C4 E4 F#4 B4");
  EXPECT_EQ(Notes(53), "C4 E4 G4 Bb4 D5 F#5");
  EXPECT_EQ(Notes(72), "C3 E3 A3 D4 F#4");
  EXPECT_EQ(Notes(86), "C3 E3 B3 D4 Gb4");
}

TEST(ChordSpelling, TellsTheSharpFifthFromTheFlatThirteenth) {
  EXPECT_EQ(Notes(20), "C4 E4 G#4 Bb4");
  EXPECT_EQ(Notes(44), "C4 E4 F#4 G#4 B4");
  EXPECT_EQ(Notes(39), "C4 E4 Ab4 Bb4 Db5");
  EXPECT_EQ(Notes(43), "C4 E4 Gb4 Ab4 Bb4");
  EXPECT_EQ(Notes(59), "C4 E4 G#4 B4 D5 F#5");
  EXPECT_EQ(Notes(84), "C3 E3 Bb3 D#4 Ab4");
}

TEST(ChordSpelling, TellsTheSharpNinthFromTheMinorThird) {
  EXPECT_EQ(Notes(30), "C4 E4 G4 Bb4 Db5");
  EXPECT_EQ(Notes(32), "C4 E4 G4 Bb4 D#5");
  EXPECT_EQ(Notes(100), "C3 F3 Bb3 Eb4 G4");
  EXPECT_EQ(Notes(132), "C3 Bb3 F4 G4 Eb5");
}

TEST(ChordSpelling, WritesBothNinthsOnOneLetter) {
  EXPECT_EQ(Notes(69), "C4 E4 G#4 Bb4 Db5 D#5 F#5");
  EXPECT_EQ(Notes(70), "C4 E4 Gb4 Ab4 Bb4 Db5 D#5");
}

TEST(ChordSpelling, WritesWhatSoundsWhereTheSymbolSaysOtherwise) {
  EXPECT_EQ(Notes(57), "C4 Eb4 G#4 Bb4 D5 F#5");
  EXPECT_EQ(Notes(60), "C4 E4 Gb4 Ab4 Bb4 Db5");
  EXPECT_EQ(Notes(62), "C4 E4 Gb4 Ab4 Bb4 D#5");
  EXPECT_EQ(Notes(76), Notes(73));
  EXPECT_EQ(Notes(115), "C3 Bb3 E4 Ab4 Db5");
}

TEST(EveryChord, SoundsAsTheTableSays) {
  for (int klang = 1; klang <= kKlangZahl; ++klang) {
    SCOPED_TRACE(klang);
    const Chord& chord = ChordOfKlang(klang);
    std::vector<int> pitches;
    for (const SpelledNote& note : SpellChord(chord, 5)) pitches.push_back(note.Pitch() - 60);
    EXPECT_THAT(pitches, testing::ElementsAreArray(chord.semitones));
  }
}

TEST(EveryChord, ClimbsTheStaff) {
  for (int klang = 1; klang <= kKlangZahl; ++klang) {
    SCOPED_TRACE(klang);
    const std::vector<SpelledNote> notes = SpellChord(ChordOfKlang(klang), 4);
    std::vector<int> climbs;
    for (size_t i = 1; i < notes.size(); ++i) {
      climbs.push_back(notes[i].StaffStep() - notes[i - 1].StaffStep());
    }
    EXPECT_THAT(climbs, Each(Ge(0)));
  }
}

TEST(EveryChord, UsesNoSignWhereAPlainLetterWouldDo) {
  for (int klang = 1; klang <= kKlangZahl; ++klang) {
    SCOPED_TRACE(klang);
    for (const SpelledNote& note : SpellChord(ChordOfKlang(klang), 4)) {
      const std::string name = NameOf(note).substr(0, 2);
      EXPECT_THAT(name, testing::AllOf(testing::Ne("E#"), testing::Ne("Fb"), testing::Ne("B#"),
                                       testing::Ne("Cb")));
    }
  }
}

TEST(ChordSpelling, NamesTheNotesFromBelow) {
  EXPECT_EQ(NoteNames(ChordOfKlang(1)), "C E G");
  EXPECT_EQ(NoteNames(ChordOfKlang(3)), "C E G#");
  EXPECT_EQ(NoteNames(ChordOfKlang(22)), "C Eb Gb Bbb");
  EXPECT_EQ(NoteNames(ChordOfKlang(96)), "C Eb Bbb D Gb");
}

}  // namespace
}  // namespace vmod17

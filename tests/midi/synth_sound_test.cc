// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// What the synthesiser sounds like: rendered into memory and listened to.

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>
#include <set>
#include <vector>

#include "catalogue/chord_table.h"
#include "fake_ports.h"
#include "rendered_output.h"

namespace vmod17 {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;

constexpr int kVibraphone = 11;  // hardly anything but the fundamental
constexpr int kClarinet = 71;
constexpr int kLowest = 44;  // notes listened for, one above the highest chord and more
constexpr int kHighest = 96;
constexpr double kListenFrom = 50;
constexpr double kListenFor = 500;

double Frequency(double note) { return 440 * std::pow(2, (note - 69) / 12); }

/// How strong `frequency` is in the half second that begins at kListenFrom.
double Strength(const std::vector<float>& sound, double frequency) {
  const auto from = static_cast<std::size_t>(kListenFrom * kRate / 1000);
  const auto count = static_cast<std::size_t>(kListenFor * kRate / 1000);
  const std::complex<double> turn = std::polar(1.0, 2 * std::numbers::pi * frequency / kRate);
  const std::complex<double> window_turn =
      std::polar(1.0, 2 * std::numbers::pi / static_cast<double>(count));
  std::complex<double> phase = 1;
  std::complex<double> window = 1;
  std::complex<double> sum = 0;
  for (std::size_t i = 0; i < count; ++i) {
    sum += static_cast<double>(sound[from + i]) * (0.5 - 0.5 * window.real()) * phase;
    phase *= turn;
    window *= window_turn;
  }
  return std::abs(sum) * 4 / static_cast<double>(count);
}

/// Left and right together, so that where an instrument stands plays no part.
std::vector<float> RenderBoth(RenderedOutput& rendered, double ms) {
  std::vector<float> sound = rendered.Render(ms);
  for (std::size_t i = 0; i < sound.size(); ++i) sound[i] += rendered.right[i];
  return sound;
}

MidiOptions NoPorts() { return RenderedOptions(std::make_shared<FakePorts>()); }

/// Plays chords and writes down the notes that are heard, without being told what was asked for.
class Ear {
 public:
  Ear() : rendered_(NoPorts()) {
    rendered_.Open(-1);
    rendered_.Program(0, kVibraphone);
    for (int note = kLowest; note <= kHighest; ++note) alone_.push_back(Listen({note}));
  }

  /// The notes heard when `notes` are played. A note is heard when its fundamental is at least
  /// 0.4 times as strong as that of the note alone, after what the overtones of the notes that are
  /// heard already explain.
  std::set<int> Hear(const std::vector<int>& notes) {
    std::vector<double> rest = Listen(notes);
    std::set<int> heard;
    while (true) {
      std::size_t best = 0;
      double best_share = 0;
      for (std::size_t i = 0; i < rest.size(); ++i) {
        const double share = rest[i] / alone_[i][i];
        if (share > best_share && !heard.contains(kLowest + static_cast<int>(i))) {
          best = i;
          best_share = share;
        }
      }
      if (best_share < 0.4) return heard;
      heard.insert(kLowest + static_cast<int>(best));
      for (std::size_t i = 0; i < rest.size(); ++i) rest[i] -= alone_[best][i];
    }
  }

 private:
  std::vector<double> Listen(const std::vector<int>& notes) {
    rendered_.Reset();
    rendered_.Render(20);
    for (const int note : notes) rendered_.QueueNote(note, 0, 900);
    rendered_.Do(MidiBefehl::kStart);
    const std::vector<float> sound = RenderBoth(rendered_, kListenFrom + kListenFor + 10);
    std::vector<double> strengths;
    for (int note = kLowest; note <= kHighest; ++note) {
      strengths.push_back(Strength(sound, Frequency(note)));
    }
    return strengths;
  }

  RenderedOutput rendered_;
  std::vector<std::vector<double>> alone_;  // of each note played alone, all strengths
};

std::vector<int> NotesOf(const Chord& chord, int root) {
  std::vector<int> notes;
  for (const int semitone : chord.semitones) notes.push_back(root + semitone);
  return notes;
}

TEST(SynthSound, HasExactlyTheNotesAskedForInEachChord) {
  Ear ear;
  for (const int root : {48, 57}) {
    for (int klang = 1; klang <= kKlangZahl; ++klang) {
      const Chord& chord = ChordOfKlang(klang);
      const std::vector<int> notes = NotesOf(chord, root);
      EXPECT_EQ(ear.Hear(notes), std::set<int>(notes.begin(), notes.end()))
          << chord.symbol << " on " << root;
    }
  }
}

TEST(SynthSound, IsHeardToDifferWhenOneNoteOfAChordDoes) {
  Ear ear;
  for (int klang = 1; klang <= kKlangZahl; klang += 7) {
    std::vector<int> notes = NotesOf(ChordOfKlang(klang), 48);
    const std::set<int> asked(notes.begin(), notes.end());
    notes.back() += 1;
    EXPECT_NE(ear.Hear(notes), asked) << ChordOfKlang(klang).symbol;
    notes.pop_back();
    EXPECT_NE(ear.Hear(notes), asked) << ChordOfKlang(klang).symbol;
  }
}

// Onsets. The synthesiser repeats itself to the bit, so a note begins where the sound with it first
// differs from the sound without it; how long its sample takes to leave 0 is taken off.

struct Onset {
  int note;
  double zeit;
};

std::vector<float> RenderOnsets(const std::vector<Onset>& onsets) {
  RenderedOutput rendered(NoPorts());
  rendered.Open(-1);
  rendered.Render(100.3);
  for (const Onset& onset : onsets) rendered.QueueNote(onset.note, onset.zeit, 3000);
  rendered.QueueNote(127, 2500, 1, 9, 1);  // a queue is never empty
  rendered.Do(MidiBefehl::kStart);
  return rendered.Render(2400);
}

int FirstDifference(const std::vector<float>& one, const std::vector<float>& other) {
  return static_cast<int>(std::ranges::mismatch(one, other).in1 - one.begin());
}

/// The frame at which each onset is heard, relative to the first.
std::vector<double> HeardOnsets(const std::vector<Onset>& onsets) {
  const std::vector<float> silence = RenderOnsets({});
  std::vector<double> frames;
  std::vector<float> before = silence;
  std::vector<Onset> played;
  for (const Onset& onset : onsets) {
    played.push_back(onset);
    const std::vector<float> with = RenderOnsets(played);
    const std::vector<float> alone = RenderOnsets({{onset.note, 0}});
    frames.push_back(FirstDifference(before, with) - FirstDifference(silence, alone));
    before = with;
  }
  for (std::size_t i = frames.size(); i-- > 0;) frames[i] -= frames[0];
  return frames;
}

TEST(SynthSound, BeginsTheNotesOfABlockChordInOneBlock) {
  const std::vector<double> frames =
      HeardOnsets({{48, 0}, {52, 0}, {55, 0}, {59, 0}, {62, 0}, {66, 0}, {69, 0}});
  EXPECT_THAT(frames, Each(0));
}

TEST(SynthSound, BeginsTheNotesOfALaterBlockChordInOneBlock) {
  const std::vector<double> frames = HeardOnsets({{48, 666}, {52, 666}, {55, 666}, {58, 666}});
  EXPECT_THAT(frames, Each(0));
}

TEST(SynthSound, BeginsEachNoteOfAnArpeggioWithinABlockOfItsTime) {
  for (const double step : {25.0, 62.0, 107.0, 188.0, 333.0}) {
    std::vector<Onset> onsets;
    for (int i = 0; i < 7; ++i) onsets.push_back({48 + 4 * i, step * i});
    const std::vector<double> frames = HeardOnsets(onsets);
    for (std::size_t i = 0; i < onsets.size(); ++i) {
      EXPECT_NEAR(frames[i], onsets[i].zeit * kRate / 1000, 64) << "step " << step << " note " << i;
    }
  }
}

TEST(SynthSound, BeginsNotesAtFractionsOfAMillisecondWithinABlockOfTheirTime) {
  const std::vector<Onset> onsets = {{48, 0.3}, {55, 62.5}, {60, 187.5}, {67, 301.9}};
  const std::vector<double> frames = HeardOnsets(onsets);
  for (std::size_t i = 0; i < onsets.size(); ++i) {
    EXPECT_NEAR(frames[i], (onsets[i].zeit - 0.3) * kRate / 1000, 64);
  }
}

TEST(SynthSound, IsTheSameInWhateverPiecesItIsPulled) {
  const auto render = [](int piece) {
    RenderedOutput rendered(NoPorts());
    rendered.Open(-1);
    rendered.QueueNote(60, 0, 300);
    rendered.QueueNote(64, 37, 300);
    rendered.Do(MidiBefehl::kStart);
    std::vector<float> left(16384);
    std::vector<float> right(16384);
    for (int at = 0; at < 16384; at += piece) {
      rendered.output.Render(left.data() + at, right.data() + at, std::min(piece, 16384 - at));
    }
    return left;
  };
  const std::vector<float> whole = render(16384);
  EXPECT_EQ(render(1000), whole);
  EXPECT_EQ(render(7), whole);
}

/// Plays A on a channel and returns the sound.
std::vector<float> PlayA(RenderedOutput& rendered, int channel) {
  rendered.QueueNote(69, 0, 900, channel);
  rendered.Do(MidiBefehl::kStart);
  std::vector<float> sound = RenderBoth(rendered, 600);
  rendered.Render(1200);
  return sound;
}

bool IsInTune(const std::vector<float>& sound) {
  const double centre = Strength(sound, Frequency(69));
  return centre > Strength(sound, Frequency(69.4)) && centre > Strength(sound, Frequency(68.6)) &&
         centre > 0.001;
}

TEST(SynthSound, IsInTuneAgainAfterADetunedRun) {
  RenderedOutput rendered(NoPorts());
  rendered.Open(-1);
  for (int channel = 0; channel < 8; ++channel) {
    rendered.Program(channel, kVibraphone);
    rendered.Send(0xE0 + channel, 0, 64 + 15);
  }
  EXPECT_FALSE(IsInTune(PlayA(rendered, 0)));
  EXPECT_FALSE(IsInTune(PlayA(rendered, 7)));
  rendered.Reset();
  EXPECT_TRUE(IsInTune(PlayA(rendered, 0)));
  EXPECT_TRUE(IsInTune(PlayA(rendered, 7)));
}

TEST(SynthSound, KeepsItsTimbreThroughAReset) {
  RenderedOutput rendered(NoPorts());
  rendered.Open(-1);
  const std::vector<float> piano = PlayA(rendered, 3);
  rendered.Program(3, kClarinet);
  const std::vector<float> clarinet = PlayA(rendered, 3);
  ASSERT_NE(piano, clarinet);
  rendered.Reset();
  rendered.Render(100);
  const std::vector<float> after = PlayA(rendered, 3);
  // A held clarinet is as strong at the end as at the beginning; a piano fades.
  const auto ratio = [](const std::vector<float>& sound) {
    double early = 0;
    double late = 0;
    for (std::size_t i = 9600; i < 14400; ++i) {
      early += std::abs(sound[i]);
      late += std::abs(sound[i + 14000]);
    }
    return late / early;
  };
  EXPECT_NEAR(ratio(after), ratio(clarinet), 0.1);
  EXPECT_GT(std::abs(ratio(piano) - ratio(clarinet)), 0.2);
}

TEST(SynthSound, TakesATimbreThatWasSentBeforeTheFirstOpening) {
  RenderedOutput early(NoPorts());
  early.Program(0, kClarinet);
  early.Open(-1);
  RenderedOutput late(NoPorts());
  late.Open(-1);
  late.Program(0, kClarinet);
  EXPECT_EQ(PlayA(early, 0), PlayA(late, 0));
}

/// The largest step from frame to frame.
float LargestStep(const std::vector<float>& sound) {
  float step = 0;
  for (std::size_t i = 1; i < sound.size(); ++i) {
    step = std::max(step, std::abs(sound[i] - sound[i - 1]));
  }
  return step;
}

TEST(SynthSound, StopsWithoutAClickWhenClosed) {
  for (const double moment : {300.0, 301.3, 302.7}) {
    RenderedOutput rendered(NoPorts());
    rendered.Open(-1);
    rendered.Program(0, kVibraphone);
    for (const int note : {60, 64}) rendered.Send(0x90, note, 127);
    std::vector<float> sound = rendered.Render(moment);
    sound.erase(sound.begin(), sound.begin() + 9600);  // the stroke
    const float step = LargestStep(sound);
    rendered.Reset();
    const std::vector<float> after = rendered.Render(50);
    sound.insert(sound.end(), after.begin(), after.end());
    EXPECT_LE(LargestStep(sound), step * 1.5f);
    EXPECT_THAT(std::vector<float>(after.end() - 1000, after.end()), Each(0));
  }
}

TEST(SynthSound, FollowsBothVolumes) {
  RenderedOutput rendered(NoPorts());
  rendered.Open(-1);
  rendered.output.Set(MidiMember::VolumeLinks, 0);
  rendered.Render(50);
  rendered.QueueNote(60, 0, 300);
  rendered.Do(MidiBefehl::kStart);
  EXPECT_THAT(rendered.Render(200), Each(0));
  EXPECT_GT(std::ranges::max(rendered.right), 0.01f);
}

TEST(SynthSound, IsNotDelayedByAVolumeThatRises) {
  const auto onset = [](bool ramp) {
    RenderedOutput rendered(NoPorts());
    rendered.Open(-1);
    if (ramp) rendered.output.Set(MidiMember::VolumeLinks, 0);
    rendered.Render(50);
    rendered.QueueNote(60, 20, 300);
    rendered.Do(MidiBefehl::kStart);
    for (int volume = 0; ramp && volume <= 65500; volume += 500) {
      rendered.output.Set(MidiMember::VolumeLinks, volume);
    }
    const std::vector<float> sound = rendered.Render(100);
    return std::ranges::find_if(sound, [](float x) { return x != 0; }) - sound.begin();
  };
  EXPECT_EQ(onset(true), onset(false));
}

TEST(SynthSound, ChangesItsVolumeWithoutAStep) {
  RenderedOutput rendered(NoPorts());
  rendered.Open(-1);
  rendered.Program(0, kVibraphone);
  for (const int note : {60, 64}) rendered.Send(0x90, note, 127);
  std::vector<float> sound = rendered.Render(300);
  sound.erase(sound.begin(), sound.begin() + 9600);
  const float step = LargestStep(sound);
  rendered.output.Set(MidiMember::VolumeLinks, 0);
  const std::vector<float> falling = rendered.Render(20);
  sound.insert(sound.end(), falling.begin(), falling.end());
  EXPECT_LE(LargestStep(sound), step * 1.5f);
  EXPECT_EQ(falling.back(), 0);
}

TEST(SynthSound, DoesNotClipSevenNotesAtFullVelocityInAnyTimbre) {
  RenderedOutput rendered(NoPorts());
  rendered.Open(-1);
  for (int program = 0; program < 128; ++program) {
    rendered.Reset();
    rendered.Program(0, program);
    rendered.Render(20);
    for (const int note : {48, 52, 55, 58, 62, 65, 69}) rendered.QueueNote(note, 0, 900, 0, 127);
    rendered.Do(MidiBefehl::kStart);
    const std::vector<float> left = rendered.Render(900);
    EXPECT_LT(std::ranges::max(left), 1.0f) << program;
    EXPECT_LT(std::ranges::max(rendered.right), 1.0f) << program;
    EXPECT_GT(std::ranges::max(left), 0.005f) << program;
  }
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/verdict.h"

#include <gmock/gmock.h>

#include <QDir>

#include "midi/midi_notices.h"
#include "programs/shared/texts.h"
#include "qt/desk/qt_language.h"
#include "qt/kit/look.h"

namespace melvado {
namespace {

namespace look = vmod17::look;
using vmod17::AudioLostNotice;
using vmod17::LanguageColumn;
using vmod17::NoAudioNotice;
using vmod17::NoSoundfontNotice;
using vmod17::Notice;
using vmod17::OtherSoundfontNotice;
using vmod17::PortVanishedNotice;
using vmod17::QtLanguageList;
using vmod17::SoundFacts;
using vmod17::Texts;

using ::testing::ElementsAre;

constexpr double kMs = 2000;

SoundFacts Played() {
  SoundFacts facts;
  facts.device = SoundFacts::Device::kSynth;
  facts.driver = "pulseaudio";
  facts.soundfont = "/usr/share/sounds/sf2/default-GM.sf2";
  facts.frames = 96'000;
  facts.peak = 0.31f;
  facts.notes = 4;
  return facts;
}

SoundFacts Sent() {
  SoundFacts facts;
  facts.device = SoundFacts::Device::kPort;
  facts.port = "Piano";
  facts.sent = 26;
  facts.is_there = true;
  return facts;
}

TEST(Verdict, NamesDriverSoundfontAndLevelOfASynthesiserThatPlayed) {
  const Verdict verdict = Judge("", Played(), {}, kMs);
  EXPECT_TRUE(verdict.left_the_program);
  EXPECT_THAT(verdict.Ids(), ElementsAre(9443, 9444));
  EXPECT_THAT(verdict.words[0].details,
              ElementsAre("PulseAudio", "/usr/share/sounds/sf2/default-GM.sf2", "31"));
}

TEST(Verdict, CountsTheNotesWhereTheDriverTellsNoLevel) {
  SoundFacts facts = Played();
  facts.peak.reset();
  const Verdict verdict = Judge("", facts, {}, kMs);
  EXPECT_TRUE(verdict.left_the_program);
  EXPECT_THAT(verdict.Ids(), ElementsAre(9442, 9444));
}

TEST(Verdict, SaysThatAnotherSoundfontPlayed) {
  const Verdict verdict =
      Judge("", Played(), {OtherSoundfontNotice("/home/a.sf2", "/usr/b.sf2")}, kMs);
  EXPECT_TRUE(verdict.left_the_program);
  EXPECT_THAT(verdict.Ids(), ElementsAre(9443, 9157, 9444));
}

TEST(Verdict, SaysWhyASynthesiserCouldNotPlay) {
  EXPECT_THAT(Judge("", {}, {NoSoundfontNotice({})}, kMs).Ids(), ElementsAre(9441, 9152));
  const Verdict verdict = Judge("", {}, {NoAudioNotice({"alsa"})}, kMs);
  EXPECT_FALSE(verdict.left_the_program);
  EXPECT_THAT(verdict.Ids(), ElementsAre(9441, 9153));
}

TEST(Verdict, SaysThatTheSynthesiserWasNotReady) {
  EXPECT_THAT(Judge("", {}, {}, kMs).Ids(), ElementsAre(9441, 9445));
}

TEST(Verdict, SaysThatTheDriverTookNoSound) {
  SoundFacts facts = Played();
  facts.frames = 512;
  const Verdict verdict = Judge("", facts, {}, kMs);
  EXPECT_FALSE(verdict.left_the_program);
  EXPECT_THAT(verdict.Ids(), ElementsAre(9441, 9446));
}

TEST(Verdict, SaysThatTheSoundOutputDied) {
  const Verdict verdict = Judge("", Played(), {AudioLostNotice()}, kMs);
  EXPECT_FALSE(verdict.left_the_program);
  EXPECT_THAT(verdict.Ids(), ElementsAre(9441, 9154));
}

TEST(Verdict, SaysThatASoundfontIsSilent) {
  SoundFacts facts = Played();
  facts.peak = 0.0f;
  const Verdict verdict = Judge("", facts, {}, kMs);
  EXPECT_FALSE(verdict.left_the_program);
  EXPECT_THAT(verdict.Ids(), ElementsAre(9441, 9447));
}

TEST(Verdict, NamesThePortAndWhatItTook) {
  const Verdict verdict = Judge("Piano", Sent(), {}, kMs);
  EXPECT_TRUE(verdict.left_the_program);
  EXPECT_THAT(verdict.Ids(), ElementsAre(9448, 9449));
  EXPECT_THAT(verdict.words[0].details, ElementsAre("Piano", "26"));
}

TEST(Verdict, SaysThatAPortWasLost) {
  SoundFacts facts = Sent();
  facts.is_there = false;
  const Verdict verdict = Judge("Piano", facts, {PortVanishedNotice("Piano")}, kMs);
  EXPECT_FALSE(verdict.left_the_program);
  EXPECT_THAT(verdict.Ids(), ElementsAre(9441, 9450, 9155));
  EXPECT_THAT(JudgeMissing("Piano").Ids(), ElementsAre(9441, 9450));
}

TEST(Verdict, FitsItsPlaceInEveryLanguage) {
  const QtLanguageList languages({std::filesystem::path(PROGRAM_LANGUAGES)});
  SoundFacts lost = Sent();
  lost.is_there = false;
  SoundFacts stuck = Played();
  stuck.frames = 0;
  SoundFacts silent = Played();
  silent.peak = 0.0f;
  SoundFacts unheard = Played();
  unheard.peak.reset();
  const std::vector<Verdict> verdicts = {
      Judge("", unheard, {}, kMs),
      Judge("", silent, {}, kMs),
      Judge("", {}, {}, kMs),
      Judge("", {}, {NoSoundfontNotice({"/usr/share/sounds/sf2", "/usr/share/soundfonts"})}, kMs),
      Judge("", Played(), {AudioLostNotice()}, kMs),
      Judge("Digital Piano:Digital Piano MIDI 1", Sent(), {}, kMs),
      JudgeMissing("Digital Piano:Digital Piano MIDI 1"),
      Judge("", Played(), {OtherSoundfontNotice("/home/anna/Sounds/Grand Piano.sf2", "/usr/b.sf2")},
            kMs),
      Judge("", stuck, {}, kMs),
      Judge("", {}, {NoAudioNotice({"pulseaudio", "alsa", "jack", "sdl2"})}, kMs),
      Judge("Digital Piano:Digital Piano MIDI 1", lost,
            {PortVanishedNotice("Digital Piano:Digital Piano MIDI 1")}, kMs)};
  ASSERT_GE(languages.Table().size(), 2u);
  for (const LanguageColumn& column : languages.Table()) {
    Texts texts(languages);
    texts.Speak(column[1]);
    for (const Verdict& verdict : verdicts) {
      QString text;
      for (const Notice& notice : verdict.words) text += texts.Say(notice) + ' ';
      EXPECT_TRUE(look::SetText(text, QSizeF(832, 90), 16, look::Weight::kNormal).fits)
          << column[1] << ": " << text.toStdString();
    }
  }
}

}  // namespace
}  // namespace melvado

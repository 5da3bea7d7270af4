// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/verdict.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "base/text_ids.h"
#include "midi/midi_notices.h"

namespace melvado {
namespace {

namespace text_id = vmod17::text_id;

using vmod17::AudioLostNotice;
using vmod17::Notice;
using vmod17::SoundFacts;

// A signal at a thousandth of the full range is below the noise of usual sound cards.
constexpr float kHeard = 0.001f;
// A driver that takes fewer frames in a millisecond does not play.
constexpr double kFewestFramesPerMs = 4;

Notice NoSignal() { return {text_id::kNoSoundLeft, "No sound left the program.", {}}; }

Notice PlayedBySynthesiser(const SoundFacts& facts) {
  if (!facts.peak) {
    return {text_id::kSynthesiserPlayed,
            "The chord left the program: the built-in synthesiser played %1 notes through %2, with "
            "the soundfont %3.",
            {std::to_string(facts.notes), DriverName(facts.driver), facts.soundfont}};
  }
  const auto level = static_cast<int>(std::lround(*facts.peak * 100));
  return {text_id::kSynthesiserPlayedAtLevel,
          "The chord left the program: the built-in synthesiser played through %1, with the "
          "soundfont %2, at a level of %3 %.",
          {DriverName(facts.driver), facts.soundfont, std::to_string(std::max(level, 1))}};
}

Notice NotReadyInTime() {
  return {text_id::kSynthesiserNotReady,
          "The synthesiser was not ready in time: the computer is very busy, or the soundfont is "
          "very large. Try it again.",
          {}};
}

Notice IfNothingIsHeard() {
  return {text_id::kIfNothingFromLoudspeakers,
          "If you hear nothing all the same: switch on the loudspeakers or headphones, turn them "
          "up, and choose them in the sound settings of the system.",
          {}};
}

Verdict JudgeSynthesiser(const SoundFacts& facts, const std::vector<Notice>& troubles, double ms) {
  Verdict verdict;
  const int lost_id = AudioLostNotice().text_id;
  const bool lost =
      std::ranges::any_of(troubles, [&](const Notice& t) { return t.text_id == lost_id; });
  if (facts.notes == 0 || lost) {
    verdict.words = {NoSignal()};
    verdict.words.insert(verdict.words.end(), troubles.begin(), troubles.end());
    if (troubles.empty()) verdict.words.push_back(NotReadyInTime());
    return verdict;
  }
  if (static_cast<double>(facts.frames) < kFewestFramesPerMs * ms) {
    verdict.words = {NoSignal(),
                     {text_id::kOutputTookNoSound,
                      "%1 was opened but took no sound. Another program may hold the sound card: "
                      "close it, or choose another output in the sound settings of the system.",
                      {DriverName(facts.driver)}}};
    return verdict;
  }
  if (facts.peak && *facts.peak < kHeard) {
    verdict.words = {NoSignal(),
                     {text_id::kSoundfontHasNoPiano,
                      "The soundfont %1 has no sound for the piano. Choose another soundfont.",
                      {facts.soundfont}}};
    return verdict;
  }
  verdict.left_the_program = true;
  verdict.words = {PlayedBySynthesiser(facts)};
  verdict.words.insert(verdict.words.end(), troubles.begin(), troubles.end());
  verdict.words.push_back(IfNothingIsHeard());
  return verdict;
}

Verdict JudgePort(const std::string& wanted, const SoundFacts& facts,
                  const std::vector<Notice>& troubles) {
  if (!facts.is_there || facts.sent == 0) {
    Verdict verdict = JudgeMissing(wanted);
    verdict.words.insert(verdict.words.end(), troubles.begin(), troubles.end());
    return verdict;
  }
  return {true,
          {{text_id::kMidiDeviceTookChord,
            "The chord left the program: the MIDI device \"%1\" took %2 messages without an error.",
            {facts.port, std::to_string(facts.sent)}},
           {text_id::kIfNothingFromMidiDevice,
            "If you hear nothing all the same: check that the device is switched on and turned up, "
            "and that it plays what arrives on channel 1.",
            {}}}};
}

}  // namespace

std::vector<int> Verdict::Ids() const {
  std::vector<int> ids;
  for (const Notice& notice : words) ids.push_back(notice.text_id);
  return ids;
}

Verdict Judge(const std::string& wanted, const SoundFacts& facts,
              const std::vector<Notice>& troubles, double ms) {
  return wanted.empty() ? JudgeSynthesiser(facts, troubles, ms)
                        : JudgePort(wanted, facts, troubles);
}

Verdict JudgeMissing(const std::string& port) {
  return {false,
          {NoSignal(),
           {text_id::kMidiDeviceUnreachable,
            "The MIDI device \"%1\" cannot be reached. Check its cable and whether it is switched "
            "on, or choose another output.",
            {port}}}};
}

std::string DriverName(const std::string& driver) {
  static constexpr std::array<std::pair<const char*, const char*>, 4> kNames = {
      {{"pulseaudio", "PulseAudio"}, {"alsa", "ALSA"}, {"jack", "JACK"}, {"sdl2", "SDL"}}};
  for (const auto& [name, shown] : kNames) {
    if (driver == name) return shown;
  }
  return driver;
}

}  // namespace melvado

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "sound/sample_playback.h"

#include <algorithm>

#include "base/numbers.h"
#include "base/run_time_error.h"

namespace vmod17 {
namespace {

constexpr int kAkzentDerProbe = 15;
constexpr int kRandOben = 10;  // semitones below the upper bound that stay free
constexpr std::array kTerzen = {4, 3, 4, 3, 4, 3, 4};
constexpr int kVersucheDerProbe = 100000;

}  // namespace

SamplePlayback::SamplePlayback(ModMIDI& midi, const AppState& state,
                               const ExerciseSettings& settings, Random& random)
    : settings_(settings), random_(random), queue_(midi, state, settings, kAkzentDerProbe) {}

void SamplePlayback::Baue(int noten) {
  const int schritt =
      RoundHalfEven(static_cast<double>(settings_.ton_oben - kRandOben - settings_.ton_unten) /
                    settings_.akk_anzahl);
  klaenge_.clear();
  for (int c = 0; c < settings_.akk_anzahl; ++c) {
    std::vector<int> klang = {settings_.ton_unten + schritt * c};
    for (int i = 0; i + 1 < noten; ++i) klang.push_back(klang.back() + kTerzen.at(i));
    klaenge_.push_back(std::move(klang));
  }
}

void SamplePlayback::ReiheEin() {
  if (klaenge_.empty()) return;
  // One order for all chords, unlike in a task.
  std::vector<int> folge;
  if (settings_.arp_richtung == kArpZufall) {
    folge = WuerfleFolge(static_cast<int>(klaenge_.front().size()));
  }
  int kanal = 0;
  for (std::size_t c = 0; c < klaenge_.size(); ++c) {
    queue_.ReiheEin(static_cast<int>(c) + 1, klaenge_[c], folge, kanal);
  }
}

std::vector<int> SamplePlayback::WuerfleFolge(int noten) {
  std::vector<int> folge;
  for (int versuche = 0; static_cast<int>(folge.size()) < noten; ++versuche) {
    if (versuche > kVersucheDerProbe) {
      throw RunTimeError(ErrorNumber::kNothingToDraw, "no order of the notes can be drawn",
                         "vmod17.SamplePlayback");
    }
    const int r = static_cast<int>(random_.Rnd() * static_cast<float>(noten));
    if (std::find(folge.begin(), folge.end(), r) == folge.end()) folge.push_back(r);
  }
  return folge;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>
#include <vector>

#include "base/notice.h"
#include "midi/sound_facts.h"

namespace melvado {

/// What the test of an output has shown.
struct Verdict {
  bool left_the_program = false;      ///< a signal did
  std::vector<vmod17::Notice> words;  ///< what happened, why, and what to do, in this order

  /// The ids of the words.
  std::vector<int> Ids() const;
};

/// `wanted`    the port that was to play, "" for the synthesiser
/// `facts`     what the output has done in the test
/// `troubles`  what it has told of meanwhile
/// `ms`        how long it had to play
Verdict Judge(const std::string& wanted, const vmod17::SoundFacts& facts,
              const std::vector<vmod17::Notice>& troubles, double ms);

/// Of a port that was not there when the test began.
Verdict JudgeMissing(const std::string& port);

/// The name of an audio driver as it is known to people: "PulseAudio" for "pulseaudio".
std::string DriverName(const std::string& driver);

}  // namespace melvado

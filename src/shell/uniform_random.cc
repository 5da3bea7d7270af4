// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/uniform_random.h"

#include <bit>
#include <cstdint>

namespace vmod17 {

float UniformRandom::Rnd() {
  // 24 bits are what a Single can tell apart below 1; one bit more could round up to 1.
  constexpr int kUnusedBits = 32 - 24;
  constexpr float kStep = 1.0f / (1 << 24);
  return static_cast<float>(engine_() >> kUnusedBits) * kStep;
}

void UniformRandom::SeedFromClock(float clock) {
  std::seed_seq seed{static_cast<std::uint32_t>(engine_()), std::bit_cast<std::uint32_t>(clock)};
  engine_.seed(seed);
}

float UniformRandom::Restart(int number) {
  engine_.seed(static_cast<std::uint32_t>(number));
  return Rnd();
}

}  // namespace vmod17

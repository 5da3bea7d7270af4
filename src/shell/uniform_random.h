// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <random>

#include "ports/random.h"

namespace vmod17 {

/// The generator of the running program: a Mersenne twister (Matsumoto, Nishimura 1998).
class UniformRandom : public Random {
 public:
  float Rnd() override;
  void SeedFromClock(float clock) override;
  float Restart(int number) override;

 private:
  std::mt19937 engine_;
};

}  // namespace vmod17

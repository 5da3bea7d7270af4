// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

namespace vmod17 {

/// The random generator of the program.
class Random {
 public:
  virtual ~Random() = default;

  /// The next value, uniform in [0, 1).
  virtual float Rnd() = 0;
  /// Makes the sequence depend on `clock`, a value of `EventLoop::Clock`, and on what was before.
  virtual void SeedFromClock(float clock) = 0;
  /// Restarts the sequence from `number` alone and gives its first value: equal numbers give equal
  /// sequences.
  virtual float Restart(int number) = 0;
};

}  // namespace vmod17

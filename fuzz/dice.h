// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstdint>
#include <vector>

namespace vmod17 {

/// The chance of one fuzz case, the same with every compiler: a case is known by seed and number.
class Dice {
 public:
  Dice(std::uint64_t seed, std::uint64_t number)
      : state_(seed * 0x9E3779B97F4A7C15u ^ (number + 1) * 0xD1B54A32D192ED03u) {}

  /// 0 to `n` - 1; `n` is 1 or more.
  int Below(int n) { return static_cast<int>(Next() % static_cast<std::uint64_t>(n)); }
  /// `low` to `high`.
  int From(int low, int high) { return low + Below(high - low + 1); }
  bool OneIn(int n) { return Below(n) == 0; }
  template <typename Value>
  const Value& Of(const std::vector<Value>& values) {
    return values.at(static_cast<std::size_t>(Below(static_cast<int>(values.size()))));
  }

 private:
  // SplitMix64, by Steele, Lea and Flood.
  std::uint64_t Next() {
    std::uint64_t z = state_ += 0x9E3779B97F4A7C15u;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
    return z ^ (z >> 31);
  }

  std::uint64_t state_;
};

}  // namespace vmod17

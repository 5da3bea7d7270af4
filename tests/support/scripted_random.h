// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <deque>
#include <initializer_list>
#include <vector>

#include "base/run_time_error.h"
#include "ports/random.h"

namespace vmod17 {

/// Gives the values that a test has written, and then those of a plain generator.
class ScriptedRandom : public Random {
 public:
  ScriptedRandom() = default;
  ScriptedRandom(std::initializer_list<float> values) : script_(values) {}

  std::vector<float> seeds;   ///< all clock values it was seeded from
  std::vector<int> restarts;  ///< all numbers it was restarted from
  int draws = 0;
  bool script_only = false;  ///< a draw past the script is an error

  void Script(std::initializer_list<float> values) { script_.insert(script_.end(), values); }
  /// Every draw past the script gives this value.
  void Always(float value) { always_ = value; }
  bool ScriptDone() const { return script_.empty(); }

  float Rnd() override {
    ++draws;
    if (!script_.empty()) {
      const float value = script_.front();
      script_.pop_front();
      return value;
    }
    if (script_only) {
      throw RunTimeError(ErrorNumber::kOutOfRange, "the script has no more values",
                         "ScriptedRandom");
    }
    if (always_ >= 0) return always_;
    state_ = state_ * 1664525u + 1013904223u;  // the quick generator of Numerical Recipes
    return static_cast<float>(state_ >> 8) / static_cast<float>(1 << 24);
  }
  void SeedFromClock(float clock) override { seeds.push_back(clock); }
  float Restart(int number) override {
    restarts.push_back(number);
    state_ = static_cast<unsigned>(number);
    return Rnd();
  }

 private:
  std::deque<float> script_;
  float always_ = -1;
  unsigned state_ = 1;
};

}  // namespace vmod17

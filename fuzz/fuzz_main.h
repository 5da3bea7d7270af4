// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <string>

#include "dice.h"

namespace vmod17 {

/// A fuzz program: `NAME [SEED [COUNT [FIRST]]]` runs case FIRST and the COUNT - 1 after it, by
/// default 100,000 from 0 on. A case depends on SEED and its own number alone. The first fault, a
/// report of a sanitizer or a case that takes too long ends the program, with seed and case.
struct FuzzProgram {
  /// Real time, far above what any case needs.
  int seconds_for_a_case = 60;
  /// Runs one case; a `std::exception` is a fault.
  std::function<void(Dice&)> run_case;
  /// Prints what became of all cases.
  std::function<void()> print;
};

int Fuzz(int argc, char* argv[], const FuzzProgram& program);

[[noreturn]] void Fault(const std::string& what);
void Demand(bool holds, const char* what);

}  // namespace vmod17

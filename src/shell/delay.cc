// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/delay.h"

namespace vmod17 {

void Delay(EventLoop& loop, float ms, const bool& abbruch) {
  const float start = loop.Clock();
  while (!abbruch) {
    const float passed = ClockDifference(start, loop.Clock()) * 1000;
    if (passed >= ms) return;
    loop.WaitForEvent(ms - passed);
  }
}

}  // namespace vmod17

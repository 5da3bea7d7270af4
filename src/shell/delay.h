// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ports/event_loop.h"

namespace vmod17 {

/// Waits `ms` milliseconds by the clock while events are served, or until `abbruch` is set.
void Delay(EventLoop& loop, float ms, const bool& abbruch);

}  // namespace vmod17

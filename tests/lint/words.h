// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "lint/tree.h"

namespace vmod17::lint {

/// Words and paths that have no place in the tree.
Faults WordFaults(const Tree& tree);

/// No test waits for the real clock.
Faults SleepFaults(const Tree& tree);

}  // namespace vmod17::lint

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "lint/tree.h"

namespace vmod17::lint {

/// The two lines on copyright and licence at the top of each source file, and `#pragma once` in
/// each header.
Faults HeadFaults(const Tree& tree);

/// A type that a header of src/ defines has its name for itself. Two of one name in one program are
/// taken for each other without a word of the linker.
Faults TypeFaults(const Tree& tree);

}  // namespace vmod17::lint

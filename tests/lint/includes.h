// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "lint/tree.h"

namespace vmod17::lint {

/// A file of src/ includes only its own floor and lower ones; of the libraries' folders below
/// src/platform none includes another.
Faults FloorFaults(const Tree& tree);

/// No file of src/ includes itself by way of others.
Faults CircleFaults(const Tree& tree);

/// The core includes the standard library's plain headers and the project's own, nothing else.
Faults CoreIncludeFaults(const Tree& tree);

}  // namespace vmod17::lint

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string_view>

#include "lint/tree.h"

namespace vmod17::lint {

/// The page whose table of folders says which folder may include what.
inline constexpr std::string_view kFloorPage = "docs/architecture.md";

/// The table is whole: it has a row for each folder of src/ that holds sources, and for no other;
/// a row names only folders of the rows above it, libraries that are known here, and a target that
/// a CMakeLists.txt of src/ makes.
Faults TableFaults(const Tree& tree);

/// A file of src/ includes its own folder, and what the row of its folder grants.
Faults FloorFaults(const Tree& tree);

/// No file of src/ includes itself by way of others, and no folder does.
Faults CircleFaults(const Tree& tree);

}  // namespace vmod17::lint

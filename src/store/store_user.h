// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>

namespace vmod17 {

struct StoreUser {
  std::string id;  ///< matriculation number; "" for nobody, whatever the names
  std::string name;
  std::string first_name;

  bool operator==(const StoreUser&) const = default;
};

/// Whether a user is added, or the names of one are changed.
enum class UserIs { kNew, kKnown };

}  // namespace vmod17

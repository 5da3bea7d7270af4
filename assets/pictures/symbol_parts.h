// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vmod17 {

/// A chord symbol taken apart by how its parts are set. All texts are UTF-8 with true signs for
/// flat and sharp (U+266D, U+266F).
struct SymbolParts {
  std::string root;       ///< letter with its sign, on the base line
  std::string quality;    ///< "min", "aug", "dim" or nothing; small, on the base line
  std::string extension;  ///< raised: "maj7", "13sus4", "°", "♭5"
  bool six_nine = false;  ///< a raised 6 above a 9, after the extension
  std::vector<std::string> alterations;  ///< lines in parentheses, the first above; 0 to 2 lines
  std::string bass;                      ///< letter under the slash, or nothing

  bool operator==(const SymbolParts&) const = default;
};

/// Takes a symbol of the chord table apart. Errors: std::invalid_argument for a text that is no
/// such symbol.
SymbolParts TakeApart(std::string_view symbol);

}  // namespace vmod17

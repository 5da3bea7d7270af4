// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <map>
#include <set>
#include <string>

#include "lint/tree.h"

namespace vmod17::lint {

/// The text ids that the sources name.
std::set<int> UsedTextIds(const Tree& tree);

/// The words of one language file, key to word. What is wrong with the file itself is added to
/// `faults`.
std::map<std::string, std::string> ReadLanguage(const std::string& path, const std::string& text,
                                                Faults& faults);

/// Every text id in use has a word in every language file, and all language files have the same
/// keys, with the same places for details (%1, %2) in their words.
Faults LanguageFaults(const Tree& tree);

/// A language has one manner throughout: how it calls its reader, which sign its apostrophe is.
Faults MannerFaults(const Tree& tree);

/// A notice says in English what its text id says in the English language file.
Faults NoticeFaults(const Tree& tree);

}  // namespace vmod17::lint

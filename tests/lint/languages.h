// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <map>
#include <string>
#include <string_view>

#include "lint/tree.h"

namespace vmod17::lint {

/// Where the text ids have their names.
inline constexpr std::string_view kTextIds = "src/base/text_ids.h";

/// The named text ids, name to id. What is wrong with their list is added to `faults`.
std::map<std::string, int> NamedTextIds(const Tree& tree, Faults& faults);

/// Each text id is named once, in order, and its name is used by the sources; none of them says a
/// bare number in its place.
Faults TextIdFaults(const Tree& tree);

/// The words of one language file, key to word. What is wrong with the file itself is added to
/// `faults`.
std::map<std::string, std::string> ReadLanguage(const std::string& path, const std::string& text,
                                                Faults& faults);

/// Every named text id has a word in every language file and every word a named id, and all
/// language files have the same keys, with the same places for details (%1, %2) in their words.
Faults LanguageFaults(const Tree& tree);

/// A language has one manner throughout: how it calls its reader, which sign its apostrophe is.
Faults MannerFaults(const Tree& tree);

/// A notice of ours says in English what its text id says in the English language file.
Faults NoticeFaults(const Tree& tree);

}  // namespace vmod17::lint

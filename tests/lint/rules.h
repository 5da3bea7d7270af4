// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

/// The rules of the tree that no compiler knows. Each is a function of the files' texts, so that it
/// can be tried on a sample.
namespace vmod17::lint {

/// Text files: path below the tree's root, with '/', and what the file holds.
using Tree = std::map<std::string, std::string>;

/// What is wrong, each as "path:line: reason"; empty when all is well.
using Faults = std::vector<std::string>;

/// All text files below `root` but those that are built or belong to git.
/// Errors: std::filesystem::filesystem_error.
Tree ReadTree(const std::filesystem::path& root);

/// A file of src/ includes only its own floor and lower ones; of the libraries' folders below
/// src/platform none includes another.
Faults FloorFaults(const Tree& tree);

/// No file of src/ includes itself by way of others.
Faults CircleFaults(const Tree& tree);

/// The core includes the standard library's plain headers and the project's own, nothing else.
Faults CoreIncludeFaults(const Tree& tree);

/// Words and paths that have no place in the tree.
Faults WordFaults(const Tree& tree);

/// The two lines on copyright and licence at the top of each source file, and `#pragma once` in
/// each header.
Faults HeadFaults(const Tree& tree);

/// A type that a header of src/ defines has its name for itself. Two of one name in one program are
/// taken for each other without a word of the linker.
Faults TypeFaults(const Tree& tree);

/// No test waits for the real clock.
Faults SleepFaults(const Tree& tree);

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

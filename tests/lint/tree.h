// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
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

/// Where the program's own files stand.
inline constexpr std::string_view kSources = "src/";

bool IsCode(std::string_view path);
/// The files of src/ that are compiled, named from there.
std::map<std::string, const std::string*> SourceFiles(const Tree& tree);

struct Line {
  int number;
  std::string_view text;
};

std::vector<Line> Lines(std::string_view text);
std::string Fault(const std::string& path, int line, const std::string& reason);

bool IsWordLetter(char c);
bool IsDigit(char c);
/// Whether `text` has `word` at `at` with no letter of a word on either side.
bool StandsAlone(std::string_view text, std::size_t at, std::string_view word);
bool HasWord(std::string_view text, std::string_view word);
std::string Lower(std::string_view text);

/// A word in two pieces, for this file must not hold it as a whole.
struct Pieces {
  const char* first;
  const char* second;

  std::string Whole() const { return std::string(first) + second; }
};

}  // namespace vmod17::lint

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "lint/tree.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <utility>

namespace vmod17::lint {

Tree ReadTree(const std::filesystem::path& root) {
  namespace fs = std::filesystem;
  static const std::set<std::string> kNotOurs = {".git", ".cache", "build"};
  constexpr std::uintmax_t kLargest = 4 << 20;
  Tree tree;
  for (auto entry = fs::recursive_directory_iterator(root); entry != fs::end(entry); ++entry) {
    if (entry->is_directory()) {
      if (kNotOurs.contains(entry->path().filename().string())) entry.disable_recursion_pending();
      continue;
    }
    if (!entry->is_regular_file() || entry->file_size() > kLargest) continue;
    std::ifstream file(entry->path(), std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    const bool is_text = text.find('\0') == text.npos;
    if (is_text) tree[entry->path().lexically_relative(root).generic_string()] = std::move(text);
  }
  return tree;
}

bool IsCode(std::string_view path) { return path.ends_with(".h") || path.ends_with(".cc"); }

std::map<std::string, const std::string*> SourceFiles(const Tree& tree) {
  std::map<std::string, const std::string*> files;
  for (const auto& [path, text] : tree) {
    if (path.starts_with(kSources) && IsCode(path)) files[path.substr(kSources.size())] = &text;
  }
  return files;
}

std::vector<Line> Lines(std::string_view text) {
  std::vector<Line> lines;
  for (int number = 1; !text.empty(); ++number) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.push_back({number, text.substr(0, end)});
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

std::string Fault(const std::string& path, int line, const std::string& reason) {
  return path + ":" + std::to_string(line) + ": " + reason;
}

bool IsWordLetter(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool StandsAlone(std::string_view text, std::size_t at, std::string_view word) {
  const std::size_t after = at + word.size();
  return (at == 0 || !IsWordLetter(text[at - 1]) || !IsWordLetter(word.front())) &&
         (after == text.size() || !IsWordLetter(text[after]) || !IsWordLetter(word.back()));
}

bool HasWord(std::string_view text, std::string_view word) {
  for (std::size_t at = text.find(word); at != text.npos; at = text.find(word, at + 1)) {
    if (StandsAlone(text, at, word)) return true;
  }
  return false;
}

std::string Lower(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return lower;
}

}  // namespace vmod17::lint

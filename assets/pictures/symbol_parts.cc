// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "pictures/symbol_parts.h"

#include <algorithm>
#include <stdexcept>

namespace vmod17 {
namespace {

constexpr std::string_view kSixNine = "6/9";

bool IsLetter(char c) { return c >= 'A' && c <= 'G'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsSign(char c) { return c == 'b' || c == '#'; }

// Among the words of a symbol (min, maj, add, sus, dim, aug) none has a b of its own.
std::string WithTrueSigns(std::string_view text) {
  std::string result;
  for (const char c : text) {
    if (c == 'b') {
      result += "♭";
    } else if (c == '#') {
      result += "♯";
    } else {
      result += c;
    }
  }
  return result;
}

/// Reads the parts from the left, each reader taking its part off the text.
class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text) {}

  std::string Root() {
    if (rest_.empty() || !IsLetter(rest_[0])) {
      throw std::invalid_argument("a chord symbol begins with a letter from A to G");
    }
    // The sign of "Cb5" belongs to the 5, that of "Ab/C" to the letter.
    const bool signed_root =
        rest_.size() > 1 && IsSign(rest_[1]) && (rest_.size() == 2 || !IsDigit(rest_[2]));
    return WithTrueSigns(Take(signed_root ? 2 : 1));
  }

  std::string Quality() {
    for (const std::string_view quality : {"min", "aug", "dim"}) {
      if (rest_.starts_with(quality)) return std::string(Take(quality.size()));
    }
    return {};
  }

  bool SixNine() {
    if (!rest_.starts_with(kSixNine)) return false;
    Take(kSixNine.size());
    return true;
  }

  std::string Extension() {
    return WithTrueSigns(Take(std::min(rest_.find_first_of("(/"), rest_.size())));
  }

  std::vector<std::string> Alterations() {
    if (!rest_.starts_with('(')) return {};
    const size_t end = rest_.find(')');
    if (end == std::string_view::npos) {
      throw std::invalid_argument("a parenthesis is left open in a chord symbol");
    }
    std::string_view inside = Take(end + 1).substr(1, end - 1);
    std::vector<std::string> lines;
    while (true) {
      const size_t slash = inside.find('/');
      lines.push_back(WithTrueSigns(inside.substr(0, slash)));
      if (slash == std::string_view::npos) return lines;
      inside.remove_prefix(slash + 1);
    }
  }

  std::string Bass() {
    if (rest_.empty()) return {};
    if (rest_.size() != 2 || rest_[0] != '/' || !IsLetter(rest_[1])) {
      throw std::invalid_argument("a chord symbol ends in something unknown");
    }
    return std::string(Take(2).substr(1));
  }

 private:
  std::string_view Take(size_t size) {
    const std::string_view taken = rest_.substr(0, size);
    rest_.remove_prefix(taken.size());
    return taken;
  }

  std::string_view rest_;
};

}  // namespace

SymbolParts TakeApart(std::string_view symbol) {
  Reader reader(symbol);
  SymbolParts parts;
  parts.root = reader.Root();
  parts.quality = reader.Quality();
  parts.six_nine = reader.SixNine();
  parts.extension = reader.Extension();
  parts.alterations = reader.Alterations();
  parts.bass = reader.Bass();
  return parts;
}

}  // namespace vmod17

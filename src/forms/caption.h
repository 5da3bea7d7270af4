// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cctype>
#include <cstddef>
#include <string>

namespace vmod17 {

/// A caption as it is shown. Blanks at its ends keep a distance, which a layout keeps as well; and
/// "- " inside a word, as in "Akkord- Anzahl ", is a hyphen after which the word may break. "dvou-
/// až" is none: what follows goes on in small letters.
inline std::string ShownCaption(const std::string& caption) {
  const std::size_t first = caption.find_first_not_of(' ');
  if (first == std::string::npos) return "";
  std::string shown = caption.substr(first, caption.find_last_not_of(' ') - first + 1);
  const auto byte = [&shown](std::size_t i) { return static_cast<unsigned char>(shown[i]); };
  const auto letter = [&byte](std::size_t i) { return byte(i) >= 0x80 || std::isalpha(byte(i)); };
  const auto capital = [&byte](std::size_t i) {
    return std::isupper(byte(i)) || (byte(i) == 0xC3 && byte(i + 1) >= 0x80 && byte(i + 1) <= 0x9E);
  };
  for (std::size_t at = 1; (at = shown.find("- ", at)) != std::string::npos; ++at) {
    if (letter(at - 1) && capital(at + 2)) shown.erase(at + 1, 1);
  }
  return shown;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "xml/xml_text.h"

#include <algorithm>
#include <cstddef>

namespace vmod17 {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

unsigned char ByteAt(std::string_view text, std::size_t index) {
  return static_cast<unsigned char>(text[index]);
}

// Length of a well-formed sequence by its first byte, by the table of RFC 3629; 0 for none.
std::size_t SequenceLength(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first <= 0xDF) return 2;
  if (first >= 0xE0 && first <= 0xEF) return 3;
  if (first >= 0xF0 && first <= 0xF4) return 4;
  return 0;
}

bool IsAllowed(char32_t c) {
  if (c < 0x20) return c == '\t' || c == '\n' || c == '\r';
  return c != 0xFFFE && c != 0xFFFF;
}

// Length of the character at the beginning of `text` if it may stand in a document, otherwise 0.
std::size_t AllowedLength(std::string_view text) {
  constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  constexpr unsigned kFirstBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
  const std::size_t length = SequenceLength(ByteAt(text, 0));
  if (length == 0 || length > text.size()) return 0;
  char32_t c = ByteAt(text, 0) & kFirstBits[length];
  for (std::size_t i = 1; i < length; ++i) {
    if ((ByteAt(text, i) & 0xC0) != 0x80) return 0;
    c = (c << 6) | (ByteAt(text, i) & 0x3F);
  }
  const bool is_surrogate = c >= 0xD800 && c <= 0xDFFF;
  return c >= kLeast[length] && c <= 0x10FFFF && !is_surrogate && IsAllowed(c) ? length : 0;
}

bool StartsName(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}

bool ContinuesName(char c) {
  return StartsName(c) || (c >= '0' && c <= '9') || c == '-' || c == '.' || c == ':';
}

}  // namespace

std::string XmlText(std::string_view text) {
  std::string allowed;
  allowed.reserve(text.size());
  while (!text.empty()) {
    const std::size_t length = AllowedLength(text);
    allowed += length > 0 ? text.substr(0, length) : kReplacement;
    text.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return allowed;
}

bool IsXmlName(std::string_view name) {
  return !name.empty() && StartsName(name.front()) &&
         std::all_of(name.begin(), name.end(), ContinuesName) && XmlText(name) == name;
}

}  // namespace vmod17

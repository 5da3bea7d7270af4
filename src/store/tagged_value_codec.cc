// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/tagged_value_codec.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <system_error>

namespace vmod17 {
namespace {

constexpr std::string_view kFormat = "mv1 ";
constexpr std::size_t kSumDigits = 8;
constexpr std::size_t kBitDigits = 16;

[[noreturn]] void Refuse(const std::string& why) {
  throw RunTimeError(ErrorNumber::kStore, "a stored record is damaged: " + why,
                     "vmod17.DecodeTaggedValue");
}

// CRC-32 of ISO 3309: finds every change that is confined to four bytes in a row.
constexpr std::array<std::uint32_t, 256> MakeSumTable() {
  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t byte = 0; byte < table.size(); ++byte) {
    std::uint32_t rest = byte;
    for (int bit = 0; bit < 8; ++bit) rest = (rest >> 1) ^ ((rest & 1) != 0 ? 0xEDB88320u : 0u);
    table[byte] = rest;
  }
  return table;
}

std::uint32_t Sum(std::string_view bytes) {
  static constexpr std::array<std::uint32_t, 256> kTable = MakeSumTable();
  std::uint32_t sum = 0xFFFFFFFFu;
  for (const char c : bytes)
    sum = kTable[(sum ^ static_cast<unsigned char>(c)) & 0xFF] ^ (sum >> 8);
  return ~sum;
}

template <typename Unsigned>
std::string Hex(Unsigned value, std::size_t digits) {
  std::string hex(digits, '0');
  for (std::size_t i = digits; i-- > 0; value >>= 4) hex[i] = "0123456789abcdef"[value & 15];
  return hex;
}

template <typename Number>
void AppendNumber(std::string& out, Number number) {
  std::array<char, 32> text;
  const std::to_chars_result end = std::to_chars(text.data(), text.data() + text.size(), number);
  out.append(text.data(), end.ptr);
}

void Append(std::string& out, const TaggedValue& value, int nesting);

void AppendFloat(std::string& out, double value) {
  if (std::isfinite(value)) {
    out += 'f';
    AppendNumber(out, value);
  } else {
    out += 'x';
    out += Hex(std::bit_cast<std::uint64_t>(value), kBitDigits);
  }
  out += ';';
}

void AppendArray(std::string& out, const TaggedValue::Array& elements, int nesting) {
  if (nesting > kMaxNesting) {
    throw RunTimeError(ErrorNumber::kStore, "a value to be stored has too many arrays in arrays",
                       "vmod17.EncodeTaggedValue");
  }
  out += 'a';
  AppendNumber(out, elements.size());
  out += ':';
  for (const TaggedValue& element : elements) Append(out, element, nesting);
}

void Append(std::string& out, const TaggedValue& value, int nesting) {
  if (value.IsInteger()) {
    out += 'i';
    AppendNumber(out, value.Integer());
    out += ';';
  } else if (value.IsFloat()) {
    AppendFloat(out, value.Float());
  } else if (value.IsString()) {
    out += 's';
    AppendNumber(out, value.String().size());
    out += ':';
    out += value.String();
  } else if (value.IsArray()) {
    AppendArray(out, value.Elements(), nesting + 1);
  } else {
    out += 'e';
  }
}

class Reader {
 public:
  explicit Reader(std::string_view rest) : rest_(rest) {}

  bool AtEnd() const { return rest_.empty(); }

  TaggedValue Value(int nesting) {
    switch (Take(1).front()) {
      case 'e':
        return {};
      case 'i':
        return Number<std::int64_t>(';');
      case 'f':
        return Number<double>(';');
      case 'x':
        return Bits();
      case 's':
        return std::string(Take(Number<std::size_t>(':')));
      case 'a':
        return Elements(nesting + 1);
      default:
        Refuse("an unknown kind of value");
    }
  }

 private:
  std::string_view Take(std::size_t count) {
    if (count > rest_.size()) Refuse("it ends too early");
    const std::string_view taken = rest_.substr(0, count);
    rest_.remove_prefix(count);
    return taken;
  }

  template <typename Kind>
  Kind Number(char end) {
    Kind number{};
    const char* last = rest_.data() + rest_.size();
    const std::from_chars_result read = std::from_chars(rest_.data(), last, number);
    if (read.ec != std::errc() || read.ptr == last || *read.ptr != end) Refuse("no number");
    rest_.remove_prefix(static_cast<std::size_t>(read.ptr - rest_.data()) + 1);
    return number;
  }

  double Bits() {
    const std::string_view digits = Take(kBitDigits);
    std::uint64_t bits = 0;
    const char* last = digits.data() + digits.size();
    const std::from_chars_result read = std::from_chars(digits.data(), last, bits, 16);
    if (read.ec != std::errc() || read.ptr != last || Take(1) != ";") Refuse("no number");
    return std::bit_cast<double>(bits);
  }

  TaggedValue Elements(int nesting) {
    if (nesting > kMaxNesting) Refuse("too many arrays in arrays");
    const auto count = Number<std::size_t>(':');
    // A wild count, and one within the other, must not take memory before the elements are read.
    if (count > rest_.size()) Refuse("it ends too early");
    TaggedValue::Array elements;
    elements.reserve(std::min<std::size_t>(count, 256));
    for (std::size_t i = 0; i < count; ++i) elements.push_back(Value(nesting));
    return elements;
  }

  std::string_view rest_;
};

}  // namespace

std::string SealRecord(std::string_view encoded) {
  std::string record(kFormat);
  record += Hex(Sum(encoded), kSumDigits);
  record += ' ';
  record += encoded;
  return record;
}

std::string EncodeTaggedValue(const TaggedValue& value) {
  std::string encoded;
  Append(encoded, value, 0);
  return SealRecord(encoded);
}

TaggedValue DecodeTaggedValue(std::string_view bytes) {
  constexpr std::size_t kHead = kFormat.size() + kSumDigits + 1;
  if (bytes.size() < kHead || !bytes.starts_with(kFormat)) Refuse("an unknown format");
  const std::string_view encoded = bytes.substr(kHead);
  if (bytes.substr(kFormat.size(), kSumDigits + 1) != Hex(Sum(encoded), kSumDigits) + ' ') {
    Refuse("its check sum is wrong");
  }
  Reader reader(encoded);
  TaggedValue value = reader.Value(0);
  if (!reader.AtEnd()) Refuse("something follows it");
  return value;
}

}  // namespace vmod17

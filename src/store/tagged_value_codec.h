// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>
#include <string_view>

#include "base/tagged_value.h"

namespace vmod17 {

/// Arrays within arrays that a stored value may have. The records of the program need one.
inline constexpr int kMaxNesting = 100;

/// Writes a value as one self-describing run of bytes, such as
/// `mv1 5a0d90c5 a2:s4:truei7;`
///
/// The first word names the format, the second is the check sum of the rest in hexadecimal. Then
/// comes the value:
///
/// | kind    | form                                                              |
/// |---------|-------------------------------------------------------------------|
/// | empty   | `e`                                                               |
/// | integer | `i`, decimal, `;`                                                 |
/// | float   | `f`, the shortest decimal that gives the same float, `;`          |
/// |         | or for infinities and not-a-number `x`, the 64 bits in hexadecimal, `;` |
/// | string  | `s`, the length in bytes, `:`, the bytes as they are              |
/// | array   | `a`, the number of elements, `:`, the elements                    |
///
/// Decoding gives an equal value: kinds, nesting, every byte of a string and every bit of a float.
/// Errors: RunTimeError kStore for more than `kMaxNesting` arrays within each other.
std::string EncodeTaggedValue(const TaggedValue& value);

/// Reads what `EncodeTaggedValue` wrote.
/// Errors: RunTimeError kStore for anything else; nothing else is thrown, whatever the bytes.
TaggedValue DecodeTaggedValue(std::string_view bytes);

/// Puts the format's name and the check sum before an encoded value.
std::string SealRecord(std::string_view encoded);

}  // namespace vmod17

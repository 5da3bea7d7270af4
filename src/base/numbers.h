// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>
#include <string_view>

namespace vmod17 {

/// Rounds to the nearest whole number, halves to the even one.
int RoundHalfEven(double value);

/// A whole number as decimal text.
std::string DecimalText(int value);
/// A whole number with the blank that stands in the sign's place before a value that is not
/// negative: " 3", "-3".
std::string SignedText(int value);
/// A Single in its shortest plain decimal form, with a full stop: "2.5", "23", "100000".
std::string SingleText(float value);
/// The last `digits` digits of a value that is not negative, filled up with zeros from the left.
std::string PaddedText(int value, int digits);

/// The number at the beginning of a text: blanks, a sign, digits, a full stop and digits; 0 when
/// there is none. Rounded to a whole number of 16 bits. Errors: RunTimeError kOutOfRange outside of
/// -32768 to 32767.
int LeadingNumber(std::string_view text);

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "base/record_reader.h"

#include <charconv>

#include "base/numbers.h"
#include "base/run_time_error.h"

namespace vmod17 {
namespace {

constexpr const char* kKeineZahl = "a word where a number belongs";
constexpr const char* kAusserhalb = "a number outside of its range";

template <typename Value>
bool Parse(const std::string& text, Value& value) {
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  return result.ec == std::errc() && result.ptr == text.data() + text.size();
}

}  // namespace

const TaggedValue& RecordReader::Next() {
  if (at_ >= record_.size()) Unusable("too few elements");
  return record_[at_++];
}

const std::string& RecordReader::Text() {
  const TaggedValue& value = Next();
  if (!value.IsString()) Unusable("an element that is no text");
  return value.String();
}

int RecordReader::Number(int low, int high) {
  const TaggedValue& value = Next();
  double number = 0;
  if (value.IsInteger()) {
    number = static_cast<double>(value.Integer());
  } else if (value.IsFloat()) {
    number = value.Float();
  } else if (!value.IsString() || !Parse(value.String(), number)) {
    Unusable(kKeineZahl);
  }
  // Written so that what is not a number at all is refused too.
  if (!(number >= low && number <= high)) Unusable(kAusserhalb);
  return RoundHalfEven(number);
}

int RecordReader::Whole(int low, int high) {
  int number = 0;
  if (!Parse(Text(), number)) Unusable(kKeineZahl);
  if (number < low || number > high) Unusable(kAusserhalb);
  return number;
}

float RecordReader::Single(float low, float high) {
  float number = 0;
  if (!Parse(Text(), number)) Unusable(kKeineZahl);
  if (!(number >= low && number <= high)) Unusable(kAusserhalb);
  return number;
}

void RecordReader::End() const {
  if (at_ != record_.size()) Unusable("too many elements");
}

void RecordReader::Unusable(const std::string& why) const {
  throw RunTimeError(ErrorNumber::kTypeMismatch, "the stored record holds " + why,
                     "vmod17." + what_);
}

}  // namespace vmod17

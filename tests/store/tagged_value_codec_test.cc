// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/tagged_value_codec.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <bit>
#include <cstdint>
#include <limits>
#include <string>

namespace vmod17 {
namespace {

using Array = TaggedValue::Array;

rc::Gen<TaggedValue> AnyScalar() {
  return rc::gen::oneOf(
      rc::gen::construct<TaggedValue>(),
      rc::gen::map(rc::gen::arbitrary<std::int64_t>(), [](auto n) { return TaggedValue(n); }),
      // Any bits, so that infinities, signed zeros and every kind of not-a-number come along.
      rc::gen::map(rc::gen::arbitrary<std::uint64_t>(),
                   [](auto bits) { return TaggedValue(std::bit_cast<double>(bits)); }),
      rc::gen::map(rc::gen::arbitrary<double>(), [](auto n) { return TaggedValue(n); }),
      rc::gen::map(rc::gen::arbitrary<std::string>(), [](auto s) { return TaggedValue(s); }));
}

rc::Gen<TaggedValue> AnyValue(int nesting) {
  if (nesting == 0) return AnyScalar();
  return rc::gen::oneOf(AnyScalar(),
                        rc::gen::map(rc::gen::container<Array>(AnyValue(nesting - 1)),
                                     [](auto a) { return TaggedValue(std::move(a)); }));
}

// Equality by bits: a not-a-number is unequal to itself, and the two zeros are equal.
bool Identical(const TaggedValue& a, const TaggedValue& b) {
  if (a.IsFloat() && b.IsFloat()) {
    return std::bit_cast<std::uint64_t>(a.Float()) == std::bit_cast<std::uint64_t>(b.Float());
  }
  if (!a.IsArray() || !b.IsArray()) return a == b;
  if (a.Elements().size() != b.Elements().size()) return false;
  for (std::size_t i = 0; i < a.Elements().size(); ++i) {
    if (!Identical(a[i], b[i])) return false;
  }
  return true;
}

// 0 when the bytes were read.
int NumberRaised(std::string_view bytes) {
  try {
    DecodeTaggedValue(bytes);
  } catch (const RunTimeError& error) {
    return error.number();
  }
  return 0;
}

TaggedValue Nested(int arrays) {
  TaggedValue value = "core";
  for (int i = 0; i < arrays; ++i) value = Array{value};
  return value;
}

RC_GTEST_PROP(TaggedValueCodec, GivesBackEveryValueToTheBit, ()) {
  const TaggedValue value = *AnyValue(3);
  RC_ASSERT(Identical(DecodeTaggedValue(EncodeTaggedValue(value)), value));
}

RC_GTEST_PROP(TaggedValueCodec, FindsEveryChangedByte, ()) {
  std::string record = EncodeTaggedValue(*AnyValue(2));
  const auto at = *rc::gen::inRange<std::size_t>(0, record.size());
  record[at] = static_cast<char>(record[at] ^ *rc::gen::inRange(1, 256));
  RC_ASSERT(NumberRaised(record) == ErrorNumber::kStore);
}

RC_GTEST_PROP(TaggedValueCodec, FindsEveryCutAndEveryAddition, ()) {
  const std::string record = EncodeTaggedValue(*AnyValue(2));
  const auto length = *rc::gen::inRange<std::size_t>(0, record.size());
  RC_ASSERT(NumberRaised(record.substr(0, length)) == ErrorNumber::kStore);
  RC_ASSERT(NumberRaised(record + *rc::gen::nonEmpty<std::string>()) == ErrorNumber::kStore);
}

// A check sum that fits, so that the reader behind it has to cope by itself.
RC_GTEST_PROP(TaggedValueCodec, RaisesNothingButRunTimeErrorsWhateverTheBytes, ()) {
  const std::size_t head = SealRecord("").size();
  std::string encoded = EncodeTaggedValue(*AnyValue(2)).substr(head);
  const int changes = *rc::gen::inRange(1, 6);
  for (int i = 0; i < changes; ++i) {
    const auto at = *rc::gen::inRange<std::size_t>(0, encoded.size() + 1);
    const std::string piece = *rc::gen::element<std::string>(
        "a9:", "a18446744073709551615:", "s9:", "s18446744073709551615:", "i", "f1e999;", "x7", ";",
        "e", "i-;", "f", "\xFF");
    encoded.insert(at, piece);
    encoded.erase(*rc::gen::inRange<std::size_t>(0, encoded.size()), 1);
  }
  const int number = NumberRaised(SealRecord(encoded));
  RC_ASSERT(number == 0 || number == ErrorNumber::kStore);
}

RC_GTEST_PROP(TaggedValueCodec, SurvivesPureNoise, (const std::string& noise)) {
  RC_ASSERT(NumberRaised(noise) == ErrorNumber::kStore);
  const int number = NumberRaised(SealRecord(noise));
  RC_ASSERT(number == 0 || number == ErrorNumber::kStore);
}

// Stored records outlive the program: the form may grow, but what was written must stay readable.
TEST(TaggedValueCodec, ReadsARecordOfTheFirstFormat) {
  const std::string record = "mv1 04409e59 a7:s4:truei-7;f0.1;ea1:s0:x7ff0000000000000;f-0;";
  const TaggedValue value = DecodeTaggedValue(record);
  EXPECT_EQ(value, TaggedValue(Array{"true", -7, 0.1, TaggedValue(), Array{""},
                                     std::numeric_limits<double>::infinity(), -0.0}));
  EXPECT_EQ(EncodeTaggedValue(value), record);
}

TEST(TaggedValueCodec, TakesArraysInArraysToItsLimit) {
  EXPECT_TRUE(DecodeTaggedValue(EncodeTaggedValue(Nested(kMaxNesting))) == Nested(kMaxNesting));
  EXPECT_THROW(EncodeTaggedValue(Nested(kMaxNesting + 1)), RunTimeError);
}

TEST(TaggedValueCodec, RefusesAMillionArraysInArrays) {
  std::string encoded;
  for (int i = 0; i < 1'000'000; ++i) encoded += "a1:";
  EXPECT_EQ(NumberRaised(SealRecord(encoded + 'e')), ErrorNumber::kStore);
}

TEST(TaggedValueCodec, RefusesCountsThatTheRecordCannotHold) {
  for (const char* encoded : {"a5:e", "a18446744073709551615:e", "s5:abcd", "s-1:a", "a99999999:",
                              "i99999999999999999999;", "x7ff;", "x7ff000000000000g;", "", "z"}) {
    EXPECT_EQ(NumberRaised(SealRecord(encoded)), ErrorNumber::kStore) << encoded;
  }
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "base/record_reader.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>

#include "base/run_time_error.h"

namespace vmod17 {
namespace {

using Array = TaggedValue::Array;

/// The error that reading the record raises, or none.
std::optional<RunTimeError> ErrorOf(const Array& record,
                                    const std::function<void(RecordReader&)>& read) {
  RecordReader reader(record, "E1");
  try {
    read(reader);
  } catch (const RunTimeError& error) {
    return error;
  }
  return {};
}

bool Refused(const TaggedValue& value, const std::function<void(RecordReader&)>& read) {
  const auto error = ErrorOf({value}, read);
  return error && error->number() == ErrorNumber::kTypeMismatch;
}

int NumberOf(const TaggedValue& value) {
  const Array record = {value};
  return RecordReader(record, "E1").Number(-1000, 1000);
}

int WholeOf(const TaggedValue& value) {
  const Array record = {value};
  return RecordReader(record, "A1").Whole(-1000, 1000);
}

float SingleOf(const TaggedValue& value) {
  const Array record = {value};
  return RecordReader(record, "A1").Single(-1000, 1000);
}

TEST(RecordReader, WalksFromFrontToBack) {
  const Array record = {"true", TaggedValue(), "7", 8, "2.5"};
  RecordReader reader(record, "A1");
  EXPECT_EQ(reader.Text(), "true");
  EXPECT_TRUE(reader.Next().IsEmpty());
  EXPECT_EQ(reader.Whole(1, 9), 7);
  EXPECT_EQ(reader.Number(1, 9), 8);
  EXPECT_EQ(reader.Single(0, 9), 2.5f);
  reader.End();
}

TEST(RecordReader, DemandsThatAnElementIsThere) {
  for (const auto& read : std::initializer_list<std::function<void(RecordReader&)>>{
           [](RecordReader& r) { r.Next(); }, [](RecordReader& r) { r.Text(); },
           [](RecordReader& r) { r.Number(0, 9); }, [](RecordReader& r) { r.Whole(0, 9); },
           [](RecordReader& r) { r.Single(0, 9); }}) {
    const auto at_once = ErrorOf({}, read);
    ASSERT_TRUE(at_once);
    EXPECT_EQ(at_once->number(), ErrorNumber::kTypeMismatch);
    const auto later = ErrorOf({"1"}, [&](RecordReader& r) {
      r.Next();
      read(r);
    });
    ASSERT_TRUE(later);
    EXPECT_EQ(later->number(), ErrorNumber::kTypeMismatch);
  }
}

TEST(RecordReader, DemandsThatNothingFollowsTheEnd) {
  EXPECT_FALSE(ErrorOf({}, [](RecordReader& r) { r.End(); }));
  const auto error = ErrorOf({"1"}, [](RecordReader& r) { r.End(); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->number(), ErrorNumber::kTypeMismatch);
}

TEST(RecordReader, NamesTheRecordInItsErrors) {
  const auto error = ErrorOf({}, [](RecordReader& r) { r.Next(); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->source(), "vmod17.E1");
  EXPECT_FALSE(std::string(error->what()).empty());
}

TEST(RecordReader, TakesOnlyAStringForAText) {
  for (const TaggedValue& value : Array{1, 1.0, TaggedValue(), Array{"1"}}) {
    EXPECT_TRUE(Refused(value, [](RecordReader& r) { r.Text(); }));
  }
  const Array empty_text = {""};
  EXPECT_EQ(RecordReader(empty_text, "E1").Text(), "");
}

TEST(RecordReader, TakesANumberAsANumberOrAsItsText) {
  EXPECT_EQ(NumberOf(7), 7);
  EXPECT_EQ(NumberOf(-7), -7);
  EXPECT_EQ(NumberOf("7"), 7);
  EXPECT_EQ(NumberOf("-7"), -7);
  EXPECT_EQ(NumberOf(7.0), 7);
}

TEST(RecordReader, RoundsANumberHalvesToEven) {
  EXPECT_EQ(NumberOf(2.5), 2);
  EXPECT_EQ(NumberOf("3.5"), 4);
  EXPECT_EQ(NumberOf(2.6), 3);
  EXPECT_EQ(NumberOf("-0.5"), 0);
}

TEST(RecordReader, TakesNothingElseForANumber) {
  const Array values = {"",
                        "x",
                        "7x",
                        " 7",
                        "7 ",
                        "1,5",
                        "nan",
                        "inf",
                        "--7",
                        "+7",
                        "0x7",
                        "7\n",
                        std::string("7\0", 2),
                        TaggedValue(),
                        Array{"7"},
                        Array{},
                        "true",
                        "1e999",
                        std::numeric_limits<double>::quiet_NaN(),
                        std::numeric_limits<double>::infinity()};
  for (std::size_t i = 0; i < values.size(); ++i) {
    EXPECT_TRUE(Refused(values[i], [](RecordReader& r) { r.Number(-1000, 1000); })) << i;
  }
}

TEST(RecordReader, KeepsANumberWithinItsBounds) {
  const auto read = [](RecordReader& r) { r.Number(1, 24); };
  for (const TaggedValue& value : Array{1, 24, "1", "24", 1.0}) {
    EXPECT_FALSE(ErrorOf({value}, read));
  }
  for (const TaggedValue& value :
       Array{0, 25, "0", "25", 0.9, 24.1, -1, std::int64_t{1} << 40, "1e300"}) {
    EXPECT_TRUE(Refused(value, read));
  }
}

TEST(RecordReader, TakesAWholeNumberOnlyAsItsText) {
  EXPECT_EQ(WholeOf("7"), 7);
  EXPECT_EQ(WholeOf("-12"), -12);
  EXPECT_EQ(WholeOf("0"), 0);
  for (const TaggedValue& value :
       Array{7, 7.0, TaggedValue(), Array{"7"}, "7.0", "7.5", "", " 7", "7 ", "+7", "1e2", "0x7",
             "sieben", "99999999999999999999", "\xEF\xBC\x97"}) {
    EXPECT_TRUE(Refused(value, [](RecordReader& r) { r.Whole(-1000, 1000); }));
  }
}

TEST(RecordReader, KeepsAWholeNumberWithinItsBounds) {
  const auto read = [](RecordReader& r) { r.Whole(-3, 3); };
  for (const char* text : {"-3", "3"}) EXPECT_FALSE(ErrorOf({text}, read));
  for (const char* text : {"-4", "4", "32767", "-32767"}) EXPECT_TRUE(Refused(text, read));
}

TEST(RecordReader, TakesASingleOnlyAsItsText) {
  EXPECT_EQ(SingleOf("-13.8"), -13.8f);
  EXPECT_EQ(SingleOf("0"), 0.0f);
  EXPECT_EQ(SingleOf("5"), 5.0f);
  for (const TaggedValue& value : Array{7, 7.5, TaggedValue(), Array{"7"}, "", "1,5", " 1", "1 ",
                                        "nan", "inf", "-inf", "NaN", "1e99", "minus acht"}) {
    EXPECT_TRUE(Refused(value, [](RecordReader& r) { r.Single(-1000, 1000); }));
  }
}

TEST(RecordReader, KeepsASingleWithinItsBounds) {
  const auto read = [](RecordReader& r) { r.Single(-16, 0); };
  for (const char* text : {"-16", "0", "-0.5"}) EXPECT_FALSE(ErrorOf({text}, read));
  for (const char* text : {"-16.1", "0.1", "1e10"}) EXPECT_TRUE(Refused(text, read));
}

}  // namespace
}  // namespace vmod17

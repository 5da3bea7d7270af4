// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "base/numbers.h"

#include <gtest/gtest.h>

#include <string>

#include "base/run_time_error.h"

namespace vmod17 {
namespace {

TEST(Numbers, RoundToTheNearestWholeNumber) {
  EXPECT_EQ(RoundHalfEven(18.75), 19);
  EXPECT_EQ(RoundHalfEven(8.4999), 8);
  EXPECT_EQ(RoundHalfEven(8.5001), 9);
  EXPECT_EQ(RoundHalfEven(7), 7);
  EXPECT_EQ(RoundHalfEven(-2.6), -3);
  EXPECT_EQ(RoundHalfEven(-2.4), -2);
}

TEST(Numbers, RoundHalvesToTheEvenNeighbour) {
  EXPECT_EQ(RoundHalfEven(187.5), 188);
  EXPECT_EQ(RoundHalfEven(62.5), 62);
  EXPECT_EQ(RoundHalfEven(0.5), 0);
  EXPECT_EQ(RoundHalfEven(1.5), 2);
  EXPECT_EQ(RoundHalfEven(-0.5), 0);
  EXPECT_EQ(RoundHalfEven(-1.5), -2);
  EXPECT_EQ(RoundHalfEven(-2.5), -2);
}

TEST(Numbers, AreWrittenInDecimalDigits) {
  EXPECT_EQ(DecimalText(0), "0");
  EXPECT_EQ(DecimalText(134), "134");
  EXPECT_EQ(DecimalText(-999), "-999");
}

TEST(Numbers, LeaveABlankForTheSignThatAPositiveValueLacks) {
  EXPECT_EQ(SignedText(1), " 1");
  EXPECT_EQ(SignedText(0), " 0");
  EXPECT_EQ(SignedText(-3), "-3");
}

TEST(Numbers, OfSinglePrecisionAreWrittenAsShortAsTheyCanBe) {
  EXPECT_EQ(SingleText(2.5f), "2.5");
  EXPECT_EQ(SingleText(23), "23");
  EXPECT_EQ(SingleText(0.1f), "0.1");
  EXPECT_EQ(SingleText(-0.25f), "-0.25");
}

TEST(Numbers, AreFilledUpWithZerosFromTheLeft) {
  EXPECT_EQ(PaddedText(0, 4), "0000");
  EXPECT_EQ(PaddedText(17, 4), "0017");
  EXPECT_EQ(PaddedText(1234, 4), "1234");
}

TEST(Numbers, KeepTheirLastDigitsWhenThereIsNoRoomForMore) { EXPECT_EQ(PaddedText(2026, 2), "26"); }

TEST(LeadingNumber, ReadsTheDigitsAtTheBeginning) {
  EXPECT_EQ(LeadingNumber("3"), 3);
  EXPECT_EQ(LeadingNumber("12 Synthesizer"), 12);
  EXPECT_EQ(LeadingNumber("7a8"), 7);
  EXPECT_EQ(LeadingNumber("007"), 7);
}

TEST(LeadingNumber, SkipsBlanksBeforeTheNumber) {
  EXPECT_EQ(LeadingNumber("  5"), 5);
  EXPECT_EQ(LeadingNumber(" -4"), -4);
}

TEST(LeadingNumber, TakesOneSign) {
  EXPECT_EQ(LeadingNumber("-9"), -9);
  EXPECT_EQ(LeadingNumber("+6"), 6);
  EXPECT_EQ(LeadingNumber("--1"), 0);
  EXPECT_EQ(LeadingNumber("+-1"), 0);
}

TEST(LeadingNumber, IsZeroForATextWithoutDigitsAtTheBeginning) {
  EXPECT_EQ(LeadingNumber(""), 0);
  EXPECT_EQ(LeadingNumber("   "), 0);
  EXPECT_EQ(LeadingNumber("Synthesizer 3"), 0);
  EXPECT_EQ(LeadingNumber("-"), 0);
  EXPECT_EQ(LeadingNumber("."), 0);
}

TEST(LeadingNumber, TakesNoWordForANumber) {
  EXPECT_EQ(LeadingNumber("inf"), 0);
  EXPECT_EQ(LeadingNumber("Infinity"), 0);
  EXPECT_EQ(LeadingNumber("nan"), 0);
  EXPECT_EQ(LeadingNumber("-inf"), 0);
}

TEST(LeadingNumber, RoundsAFractionWithHalvesToEven) {
  EXPECT_EQ(LeadingNumber("2.5"), 2);
  EXPECT_EQ(LeadingNumber("3.5"), 4);
  EXPECT_EQ(LeadingNumber("2.51"), 3);
  EXPECT_EQ(LeadingNumber("-1.5"), -2);
  EXPECT_EQ(LeadingNumber("4.x"), 4);
}

TEST(LeadingNumber, EndsAtACommaSinceOnlyAFullStopParts) { EXPECT_EQ(LeadingNumber("2,9"), 2); }

TEST(LeadingNumber, ReachesFromMinus32768To32767) {
  EXPECT_EQ(LeadingNumber("32767"), 32767);
  EXPECT_EQ(LeadingNumber("-32768"), -32768);
}

TEST(LeadingNumber, RoundsBeforeItLooksAtTheLimits) {
  EXPECT_EQ(LeadingNumber("32767.4"), 32767);
  EXPECT_EQ(LeadingNumber("-32768.5"), -32768);
}

TEST(LeadingNumber, RefusesWhatDoesNotFitInto16Bits) {
  for (const std::string& text : {std::string("32768"), std::string("-32769"),
                                  std::string("99999999999"), std::string(400, '9')}) {
    try {
      LeadingNumber(text);
      ADD_FAILURE() << text << " was taken";
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number(), ErrorNumber::kOutOfRange) << text;
    }
  }
}

}  // namespace
}  // namespace vmod17

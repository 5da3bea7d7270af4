// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/entry_list.h"

#include <gtest/gtest.h>

#include "sound/instrument_list.h"

namespace vmod17 {
namespace {

const QStringList kSome = {"Soprano Sax", "Alto Sax", "Oboe", "Guitar (nylon)", "Synth Bass"};

TEST(TypedSearch, FindsTheEntryThatBeginsWithTheLetters) {
  TypedSearch search;
  EXPECT_EQ(search.Type("s", kSome, 0), 4);
  EXPECT_EQ(search.Type("o", kSome, 4), 0);
  EXPECT_EQ(search.Type("p", kSome, 0), 0);
}

TEST(TypedSearch, TakesLargeAndSmallLettersAsTheSame) {
  EXPECT_EQ(TypedSearch().Type("OB", kSome, 0), 2);
  EXPECT_EQ(TypedSearch().Type("ob", kSome, 0), 2);
}

TEST(TypedSearch, GoesOnFromEntryToEntryWithTheSameLetter) {
  TypedSearch search;
  EXPECT_EQ(search.Type("s", kSome, 1), 4);
  EXPECT_EQ(search.Type("s", kSome, 4), 0);
  EXPECT_EQ(search.Type("s", kSome, 0), 4);
}

TEST(TypedSearch, FindsAWordWithinANameWhereNoneBeginsSo) {
  EXPECT_EQ(TypedSearch().Type("ba", kSome, 0), 4);
  EXPECT_EQ(TypedSearch().Type("nyl", kSome, 0), 3);
  EXPECT_EQ(TypedSearch().Type("itar", kSome, 0), 3);
}

TEST(TypedSearch, StaysOnTheEntryAsLongAsItGoesOnMatching) {
  TypedSearch search;
  int at = 0;
  for (const char* letter : {"a", "l", "t", "o", " ", "s"}) at = search.Type(letter, kSome, at);
  EXPECT_EQ(at, 1);
}

TEST(TypedSearch, FindsNothingInAnEmptyListOrWhereNothingIsMeant) {
  EXPECT_EQ(TypedSearch().Type("a", {}, -1), -1);
  EXPECT_EQ(TypedSearch().Type("xyz", kSome, 0), -1);
}

TEST(TypedSearch, FindsEveryInstrumentByItsWholeName) {
  QStringList names;
  for (const auto name : kInstrumente) {
    names.push_back(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
  }
  for (int i = 0; i < names.size(); ++i) {
    EXPECT_EQ(TypedSearch().Type(names[i], names, 0), i) << names[i].toStdString();
  }
}

}  // namespace
}  // namespace vmod17

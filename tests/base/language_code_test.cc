// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "base/language_code.h"

#include <gtest/gtest.h>

namespace vmod17 {
namespace {

TEST(LanguageCode, IsALocaleWithoutItsCountry) {
  EXPECT_EQ(LanguageCode("de_AT"), "de");
  EXPECT_EQ(LanguageCode("de-AT"), "de");
  EXPECT_EQ(LanguageCode("zh-Hans-CN"), "zh");
  EXPECT_EQ(LanguageCode("fr"), "fr");
  EXPECT_EQ(LanguageCode("C.UTF-8"), "C");
  EXPECT_EQ(LanguageCode(""), "");
}

TEST(LanguageCode, LeadsIntoNoOtherFolder) {
  EXPECT_EQ(LanguageCode("../de"), "");
  EXPECT_EQ(LanguageCode("de/.."), "de");
}

}  // namespace
}  // namespace vmod17

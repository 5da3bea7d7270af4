// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "xml/xml_text.h"

#include <gtest/gtest.h>

namespace vmod17 {
namespace {

const std::string kReplaced = "\xEF\xBF\xBD";

TEST(XmlText, LeavesWhatXmlAllowsAsItIs) {
  for (const char* text :
       {"", "plain", "\t\n\r", "<&>\"'", "ä ♭ 𝄫", "\x7F", "\uD7FF\uE000", "\uFFFD", "\U0010FFFF"}) {
    EXPECT_EQ(XmlText(text), text);
    EXPECT_EQ(XmlText(XmlText(text)), text);
  }
}

TEST(XmlText, ReplacesWhatXmlDoesNotAllow) {
  EXPECT_EQ(XmlText(std::string("a\0b", 3)), "a" + kReplaced + "b");
  EXPECT_EQ(XmlText("\x01\x1F\x0B"), kReplaced + kReplaced + kReplaced);
  EXPECT_EQ(XmlText("\xEF\xBF\xBE"), kReplaced + kReplaced + kReplaced);  // U+FFFE
}

TEST(XmlText, ReplacesEachByteOfWhatIsNotUtf8) {
  EXPECT_EQ(XmlText("Sch\xFCler"), "Sch" + kReplaced + "ler");
  EXPECT_EQ(XmlText("\xC0\xAF"), kReplaced + kReplaced);                  // longer than it need be
  EXPECT_EQ(XmlText("\xED\xA0\x80"), kReplaced + kReplaced + kReplaced);  // half of a pair
  EXPECT_EQ(XmlText("\xF4\x90\x80\x80"), kReplaced + kReplaced + kReplaced + kReplaced);
  EXPECT_EQ(XmlText("a\xE2\x99"), "a" + kReplaced + kReplaced);  // cut off
}

TEST(XmlText, KnowsANameFromWhatIsNone) {
  for (const char* name : {"a", "_", "lesson", "Übung", "a1-b.c:d"}) {
    EXPECT_TRUE(IsXmlName(name)) << name;
  }
  for (const char* text : {"", "1a", "-a", ".a", ":a", "a b", "a<", "a\t", "a\xFC"}) {
    EXPECT_FALSE(IsXmlName(text)) << text;
  }
}

}  // namespace
}  // namespace vmod17

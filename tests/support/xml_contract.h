// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "base/run_time_error.h"
#include "ports/xml_document.h"

namespace vmod17 {

/// A document and what must outlive it, in the hands of the contract tests.
class DocumentUnderTest {
 public:
  virtual ~DocumentUnderTest() = default;
  virtual XmlDocument& Document() = 0;
  /// Gives the document a name under which it can, or cannot, be saved.
  virtual void SetGoodFileName() = 0;
  virtual void MakeSavingFail() = 0;
};

using MakeDocument = std::function<std::unique_ptr<DocumentUnderTest>()>;

/// What every document class keeps to. Instantiate it with a `MakeDocument`. In one test
/// program only one file may include this header.
class XmlContract : public ::testing::TestWithParam<MakeDocument> {
 protected:
  static std::string Names(const XmlNodeList& list) {
    std::string names;
    for (int i = 1; i <= list.Count(); ++i) names += list.Item(i)->Name() + ' ';
    return names;
  }

  static int NumberRaised(const std::function<void()>& call) {
    try {
      call();
    } catch (const RunTimeError& error) {
      return error.number();
    }
    return 0;
  }

  std::unique_ptr<DocumentUnderTest> under_test_ = GetParam()();
  XmlDocument& document_ = under_test_->Document();
};

TEST_P(XmlContract, BeginsWithoutNodes) {
  document_.SetRootName("exercise");
  EXPECT_EQ(document_.RootChildren()->Count(), 0);
  EXPECT_EQ(document_.RootAttributes()->Count(), 0);
}

TEST_P(XmlContract, KeepsTheOrderOfCreation) {
  const std::unique_ptr<XmlNodeList> children = document_.RootChildren();
  for (const char* name : {"properties", "settings", "lessons", "aa"}) children->Add({}, name);
  EXPECT_EQ(Names(*document_.RootChildren()), "properties settings lessons aa ");
}

TEST_P(XmlContract, GivesTheNodeThatWasAdded) {
  const std::unique_ptr<XmlElement> node = document_.RootChildren()->Add("VMOD17", "programm");
  EXPECT_EQ(node->Name(), "programm");
  EXPECT_EQ(node->Text(), "VMOD17");
  EXPECT_EQ(document_.RootChildren()->Item(1)->Text(), "VMOD17");
}

TEST_P(XmlContract, MakesAnEmptyNodeWithoutAValueOrWithAnEmptyOne) {
  EXPECT_EQ(document_.RootChildren()->Add({}, "settings")->Text(), "");
  EXPECT_EQ(document_.RootChildren()->Add("", "lessons")->Text(), "");
}

TEST_P(XmlContract, KeepsTextWithItsMarksAndUmlauts) {
  const std::string text = " a < b & \"c\" > 'd' ]]> ÄÖÜ ♭9 🎵\n\tz ";
  document_.RootChildren()->Add(text, "key");
  document_.RootAttributes()->Add(text, "description");
  EXPECT_EQ(document_.RootChildren()->Item(1)->Text(), text);
  EXPECT_EQ(document_.RootAttributes()->Item(1)->Text(), text);
}

TEST_P(XmlContract, DoesNotCountTheTextOfAnElementAsAChild) {
  const std::unique_ptr<XmlElement> node = document_.RootChildren()->Add("text", "node");
  EXPECT_EQ(node->Children()->Count(), 0);
  node->Children()->Add("inner", "child");
  EXPECT_EQ(node->Children()->Count(), 1);
  EXPECT_EQ(node->Text(), "text");
}

TEST_P(XmlContract, FindsNodesByTheirNames) {
  const std::unique_ptr<XmlNodeList> children = document_.RootChildren();
  children->Add("1", "lesson");
  children->Add("2", "other");
  children->Add("3", "lesson");
  const std::unique_ptr<XmlNodeList> lessons = children->ByName("lesson");
  EXPECT_EQ(lessons->Count(), 2);
  EXPECT_EQ(lessons->Item(2)->Text(), "3");
  EXPECT_EQ(children->ByName("Lesson")->Count(), 0);
  EXPECT_EQ(lessons->ByName("lesson")->Count(), 2);
  EXPECT_EQ(lessons->ByName("other")->Count(), 0);
}

TEST_P(XmlContract, AddsThroughAListByNameToTheSameParent) {
  document_.RootChildren()->Add("1", "lesson");
  const std::unique_ptr<XmlNodeList> lessons = document_.RootChildren()->ByName("lesson");
  lessons->Add("2", "lesson");
  EXPECT_EQ(lessons->Count(), 2);
  EXPECT_EQ(document_.RootChildren()->Count(), 2);
}

TEST_P(XmlContract, NumbersItemsFromOne) {
  document_.RootChildren()->Add({}, "one");
  for (const int index : {0, -1, 2}) {
    EXPECT_EQ(NumberRaised([&] { document_.RootChildren()->Item(index); }),
              ErrorNumber::kOutOfRange);
  }
  EXPECT_EQ(NumberRaised([&] { document_.RootChildren()->ByName("two")->Item(1); }),
            ErrorNumber::kOutOfRange);
}

TEST_P(XmlContract, GivesAnAttributeNeitherAttributesNorChildren) {
  const std::unique_ptr<XmlElement> attribute = document_.RootAttributes()->Add("1", "lfd");
  EXPECT_EQ(attribute->Attributes()->Count(), 0);
  EXPECT_EQ(attribute->Children()->Count(), 0);
  EXPECT_EQ(NumberRaised([&] { attribute->Children()->Add("x", "child"); }),
            ErrorNumber::kInvalidCall);
  EXPECT_EQ(NumberRaised([&] { attribute->Attributes()->Add("x", "child"); }),
            ErrorNumber::kInvalidCall);
}

TEST_P(XmlContract, GivesAnAttributeThatIsAddedAgainItsNewValue) {
  document_.RootAttributes()->Add("first", "description");
  document_.RootAttributes()->Add("1", "lfd");
  document_.RootAttributes()->Add("second", "description");
  EXPECT_EQ(Names(*document_.RootAttributes()), "description lfd ");
  EXPECT_EQ(document_.RootAttributes()->Item(1)->Text(), "second");
}

TEST_P(XmlContract, RefusesANameThatXmlDoesNotAllow) {
  for (const char* name : {"", "two words", "<b>", "1st", "a=b"}) {
    EXPECT_EQ(NumberRaised([&] { document_.RootChildren()->Add("x", name); }),
              ErrorNumber::kInvalidCall)
        << name;
  }
}

TEST_P(XmlContract, KeepsHandlesAsLongAsTheDocument) {
  const std::unique_ptr<XmlElement> early = document_.RootChildren()->Add({}, "lesson");
  for (int i = 0; i < 1000; ++i) document_.RootChildren()->Add("text", "more");
  early->Children()->Add({}, "answers");
  EXPECT_EQ(document_.RootChildren()->Item(1)->Children()->Item(1)->Name(), "answers");
}

TEST_P(XmlContract, SaysWhetherItCouldBeSaved) {
  under_test_->SetGoodFileName();
  document_.RootChildren()->Add("x", "node");
  EXPECT_TRUE(document_.Save());
  EXPECT_TRUE(document_.Save());
  under_test_->MakeSavingFail();
  EXPECT_FALSE(document_.Save());
}

}  // namespace vmod17

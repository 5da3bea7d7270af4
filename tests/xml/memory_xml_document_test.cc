// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "support/memory_xml_document.h"

#include <gtest/gtest.h>

#include "support/xml_contract.h"

namespace vmod17 {
namespace {

class MemoryDocumentUnderTest : public DocumentUnderTest {
 public:
  XmlDocument& Document() override { return *document_; }
  void SetGoodFileName() override { document_->SetFileName("/tmp\\a.xml"); }
  void MakeSavingFail() override { library_.saving_works = false; }

 private:
  MemoryXmlLibrary library_;
  std::unique_ptr<XmlDocument> document_ = library_.Factory()();
};

INSTANTIATE_TEST_SUITE_P(MemoryXmlDocument, XmlContract, ::testing::Values([] {
                           return std::make_unique<MemoryDocumentUnderTest>();
                         }));

TEST(MemoryXmlDocument, KeepsTheTreeWhenTheProgramHasDroppedTheDocument) {
  MemoryXmlLibrary library;
  {
    const std::unique_ptr<XmlDocument> document = library.Factory()();
    document->SetRootName("exercise");
    document->SetFileName("/tmp\\MVX260101120000.xml");
    document->RootAttributes()->Add("Untersuchung: bestimmen", "description");
    document->RootChildren()->Add({}, "lessons")->Children()->Add("4711", "ukey");
    document->Save();
  }
  const MemoryXmlLibrary::Document& kept = library.Latest();
  EXPECT_EQ(kept.file_name, "/tmp\\MVX260101120000.xml");
  EXPECT_EQ(kept.saves, 1);
  EXPECT_EQ(kept.saved,
            "exercise description=\"Untersuchung: bestimmen\"\n  lessons\n    ukey: 4711\n");
  ASSERT_NE(kept.root->Find("lessons/ukey"), nullptr);
  EXPECT_EQ(kept.root->Find("lessons/ukey")->text, "4711");
  EXPECT_EQ(kept.root->Find("lessons/none"), nullptr);
  EXPECT_EQ(kept.root->All("lessons").size(), 1u);
  EXPECT_EQ(kept.root->Attribute("description"), "Untersuchung: bestimmen");
  EXPECT_EQ(kept.root->Attribute("lfd"), std::nullopt);
}

}  // namespace
}  // namespace vmod17

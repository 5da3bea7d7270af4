// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "xml/pugi_document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <pugixml.hpp>
#include <set>

#include "scratch_folder.h"
#include "support/xml_contract.h"

namespace vmod17 {
namespace {

namespace fs = std::filesystem;

using ::testing::HasSubstr;

class PugiDocumentUnderTest : public DocumentUnderTest {
 public:
  XmlDocument& Document() override { return *document_; }
  void SetGoodFileName() override { document_->SetFileName((folder_ / ".") + "\\a.xml"); }
  void MakeSavingFail() override {
    std::ofstream(folder_ / "file") << "in the way of both folders";
    document_->SetFileName((folder_ / "file") + "\\a.xml");
  }

 private:
  ScratchFolder folder_;
  std::unique_ptr<XmlDocument> document_ =
      PugiDocumentFactory(folder_ / "file/fallback", Notify(), KeepUnsaved())();
};

INSTANTIATE_TEST_SUITE_P(PugiDocument, XmlContract, ::testing::Values([] {
                           return std::make_unique<PugiDocumentUnderTest>();
                         }));

class PugiDocument : public ::testing::Test {
 protected:
  std::unique_ptr<XmlDocument> Make(const std::string& fallback) {
    return PugiDocumentFactory(
        fallback, [this](const Notice& notice) { notices_.push_back(notice); },
        [this](std::shared_ptr<UnsavedRecord> record) { kept_.push_back(std::move(record)); })();
  }

  std::unique_ptr<XmlDocument> MakeLesson(const std::string& fallback) {
    std::unique_ptr<XmlDocument> document = Make(fallback);
    document->SetRootName("exercise");
    document->RootAttributes()->Add("Untersuchung: bestimmen", "description");
    const auto properties = document->RootChildren()->Add({}, "properties");
    properties->Children()->Add("VMOD17", "programm");
    properties->Children()->Add("", "ukey");
    return document;
  }

  ScratchFolder folder_;
  std::vector<Notice> notices_;
  std::vector<std::shared_ptr<UnsavedRecord>> kept_;
};

TEST_F(PugiDocument, WritesAnIndentedUtf8FileWithADeclaration) {
  const auto document = MakeLesson(folder_ / "fallback");
  document->RootChildren()->Add("Übung ♭9", "key");
  document->SetFileName((folder_ / "") + "\\MVX260101120000.xml");
  ASSERT_TRUE(document->Save());
  EXPECT_EQ(Content(folder_ / "MVX260101120000.xml"),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<exercise description=\"Untersuchung: bestimmen\">\n"
            "  <properties>\n"
            "    <programm>VMOD17</programm>\n"
            "    <ukey />\n"
            "  </properties>\n"
            "  <key>Übung ♭9</key>\n"
            "</exercise>\n");
  EXPECT_TRUE(notices_.empty());
}

TEST_F(PugiDocument, TakesTheFolderAsItStands) {
  const std::string folders[] = {folder_ / "mit Leerzeichen", folder_ / "Übungen ♪",
                                 folder_ / "ends with a separator/", folder_ / "back\\slash",
                                 folder_ / "ends with a backslash\\"};
  for (const std::string& folder : folders) {
    fs::create_directory(folder.back() == '/' ? folder.substr(0, folder.size() - 1) : folder);
    const auto document = MakeLesson(folder_ / "fallback");
    document->SetFileName(folder + "\\MVX260101120000.xml");
    EXPECT_TRUE(document->Save());
    EXPECT_TRUE(fs::exists(folder + "/MVX260101120000.xml")) << folder;
  }
  EXPECT_TRUE(notices_.empty());
}

TEST_F(PugiDocument, KeepsTheFileToItsOwnerAndLeavesNothingElseBehind) {
  const auto document = MakeLesson(folder_ / "fallback");
  fs::create_directory(folder_ / "temp");
  document->SetFileName((folder_ / "temp") + "\\a.xml");
  ASSERT_TRUE(document->Save());
  EXPECT_EQ(fs::status(folder_ / "temp/a.xml").permissions(), fs::perms(0600));
  EXPECT_EQ(Entries(folder_ / "temp"), 1);
}

TEST_F(PugiDocument, ReplacesTheFileWhenSavedAgain) {
  const auto document = MakeLesson(folder_ / "fallback");
  document->SetFileName((folder_ / "") + "\\a.xml");
  ASSERT_TRUE(document->Save());
  document->RootChildren()->Add("later", "more");
  ASSERT_TRUE(document->Save());
  EXPECT_NE(Content(folder_ / "a.xml").find("<more>later</more>"), std::string::npos);
}

TEST_F(PugiDocument, LeavesTheFilesOfOtherDocumentsOfItsNameAlone) {
  std::vector<std::unique_ptr<XmlDocument>> documents;
  for (const char* mark : {"first", "second", "third"}) {
    documents.push_back(MakeLesson(folder_ / "fallback"));
    documents.back()->RootChildren()->Add(mark, "mark");
    documents.back()->SetFileName((folder_ / "") + "\\MVX261025023000.xml");
  }
  // Saved again each stays where it is.
  for (int i = 0; i < 2; ++i) {
    for (const auto& document : documents) ASSERT_TRUE(document->Save());
  }
  EXPECT_EQ(Entries(folder_ / ""), 3);
  EXPECT_THAT(Content(folder_ / "MVX261025023000.xml"), HasSubstr("first"));
  EXPECT_THAT(Content(folder_ / "MVX261025023000-2.xml"), HasSubstr("second"));
  EXPECT_THAT(Content(folder_ / "MVX261025023000-3.xml"), HasSubstr("third"));
  EXPECT_TRUE(notices_.empty());
}

TEST_F(PugiDocument, CanBeReadBackWhateverItsTextsHold) {
  std::string every_byte;
  for (int byte = 0; byte < 256; ++byte) every_byte += static_cast<char>(byte);
  const auto document = MakeLesson(folder_ / "fallback");
  document->RootChildren()->Add("\x01 a\x1B" + every_byte, "key");
  document->RootAttributes()->Add("\x02<&\"\n" + every_byte, "note");
  document->RootChildren()->Add(std::string("one\0two", 7), "nul");
  document->RootChildren()->Add("\xEF\xBF\xBE|\xED\xA0\x80|\xC0\x80", "bad");
  document->SetFileName((folder_ / "") + "\\a.xml");
  ASSERT_TRUE(document->Save());

  const std::string content = Content(folder_ / "a.xml");
  for (const char c : content) {
    EXPECT_TRUE(static_cast<unsigned char>(c) >= 0x20 || c == '\n' || c == '\t' || c == '\r')
        << int{c};
  }
  // Nor may a reference bring in what may not stand there itself.
  const std::set<std::string> allowed = {"&#09;", "&#10;", "&#13;"};
  for (std::size_t at = content.find("&#"); at != std::string::npos;
       at = content.find("&#", at + 1)) {
    EXPECT_TRUE(allowed.contains(content.substr(at, 5))) << content.substr(at, 5);
  }
  pugi::xml_document read;
  ASSERT_TRUE(read.load_buffer(content.data(), content.size()));
  EXPECT_STREQ(read.child("exercise").child_value("nul"), "one\xEF\xBF\xBDtwo");
  // One sign for each byte that is not well-formed, one for a whole character that is not allowed.
  EXPECT_STREQ(read.child("exercise").child_value("bad"),
               "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD|\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD|"
               "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST_F(PugiDocument, GoesToItsOwnFolderWhenTheNamedOneIsMissing) {
  const auto document = MakeLesson(folder_ / "data/melvado");
  document->SetFileName((folder_ / "missing") + "\\MVX260101120000.xml");
  EXPECT_TRUE(document->Save());
  const std::string elsewhere = folder_ / "data/melvado/MVX260101120000.xml";
  EXPECT_NE(Content(elsewhere).find("<programm>VMOD17</programm>"), std::string::npos);
  EXPECT_EQ(fs::status(folder_ / "data/melvado").permissions(), fs::perms(0700));
  ASSERT_EQ(notices_.size(), 1u);
  EXPECT_EQ(notices_[0].text_id, 9201);
  ASSERT_EQ(notices_[0].details.size(), 3u);
  EXPECT_EQ(notices_[0].details[0], folder_ / "missing");
  EXPECT_EQ(notices_[0].details[2], elsewhere);
  EXPECT_FALSE(fs::exists(folder_ / "missing"));
}

TEST_F(PugiDocument, GoesToItsOwnFolderWhenNoneIsNamed) {
  const auto document = MakeLesson(folder_ / "data");
  document->SetFileName("\\MVX260101120000.xml");
  EXPECT_TRUE(document->Save());
  EXPECT_TRUE(fs::exists(folder_ / "data/MVX260101120000.xml"));
  EXPECT_FALSE(fs::exists("/MVX260101120000.xml"));
  ASSERT_EQ(notices_.size(), 1u);
  EXPECT_EQ(notices_[0].text_id, 9201);
}

TEST_F(PugiDocument, TellsOfEachRecordThatGoesToItsOwnFolder) {
  for (std::size_t run = 1; run <= 3; ++run) {
    const auto document = MakeLesson(folder_ / "data");
    document->SetFileName((folder_ / "missing") + "\\a.xml");
    EXPECT_TRUE(document->Save());
    EXPECT_EQ(notices_.size(), run);
  }
}

TEST_F(PugiDocument, IsKeptWhenItCanBeSavedNowhereAndOutlivesTheRun) {
  std::ofstream(folder_ / "file") << "no folder";
  const std::string temp = folder_ / "file/temp";
  for (const char* base : {"a.xml", "b.xml"}) {
    const auto document = MakeLesson(folder_ / "file/fallback");
    document->SetFileName(temp + "\\" + base);
    EXPECT_FALSE(document->Save());
  }
  EXPECT_TRUE(notices_.empty());
  ASSERT_EQ(kept_.size(), 2u);
  EXPECT_EQ(kept_[1]->Name(), "b.xml");
  const Notice trouble = kept_[1]->Trouble();
  EXPECT_EQ(trouble.text_id, 9202);
  EXPECT_THAT(trouble.details, ::testing::ElementsAre(temp, "Not a directory"));
  EXPECT_FALSE(kept_[1]->Save());

  fs::remove(folder_ / "file");
  fs::create_directories(temp);
  EXPECT_TRUE(kept_[1]->Save());
  EXPECT_THAT(Content(temp + "/b.xml"), HasSubstr("<programm>VMOD17</programm>"));
  EXPECT_FALSE(fs::exists(temp + "/a.xml"));
}

TEST_F(PugiDocument, IsKeptOnceHoweverOftenItIsSavedInVainAndHoldsItsLatest) {
  std::ofstream(folder_ / "file") << "no folder";
  const auto document = MakeLesson(folder_ / "file/fallback");
  document->SetFileName((folder_ / "file/temp") + "\\a.xml");
  EXPECT_FALSE(document->Save());
  document->RootChildren()->Add("later", "more");
  EXPECT_FALSE(document->Save());
  ASSERT_EQ(kept_.size(), 1u);
  EXPECT_EQ(kept_[0]->SaveAs(folder_ / "chosen.xml"), std::nullopt);
  EXPECT_THAT(Content(folder_ / "chosen.xml"), HasSubstr("<more>later</more>"));
}

TEST_F(PugiDocument, SaysWhyAFolderThatTheUserChoseDoesNotTakeIt) {
  std::ofstream(folder_ / "file") << "no folder";
  const auto document = MakeLesson(folder_ / "file/fallback");
  document->SetFileName((folder_ / "file/temp") + "\\a.xml");
  EXPECT_FALSE(document->Save());
  ASSERT_EQ(kept_.size(), 1u);
  const std::string chosen = folder_ / "missing/a.xml";
  const std::optional<Notice> trouble = kept_[0]->SaveAs(chosen);
  ASSERT_TRUE(trouble);
  EXPECT_EQ(trouble->text_id, 9207);
  EXPECT_THAT(trouble->details, ::testing::ElementsAre(chosen, "No such file or directory"));
}

// What a child process found, as its exit code.
enum Finding { kAsExpected = 10, kOtherNotice = 11, kOtherResult = 12, kNoRights = 13 };

void GiveUpRights() {
  if (!BecomeNobody()) ::_exit(kNoRights);
}

// A file that may not grow refuses like a disk that is full, after some of it was written.
void LetNoFileGrowAbove(rlim_t bytes) {
  const rlimit small{bytes, bytes};
  if (::setrlimit(RLIMIT_FSIZE, &small) != 0) ::_exit(kNoRights);
  std::signal(SIGXFSZ, SIG_IGN);
}

TEST_F(PugiDocument, GoesToItsOwnFolderWhenTheNamedOneIsReadOnly) {
  fs::create_directory(folder_ / "temp");
  fs::create_directory(folder_ / "data");
  fs::permissions(folder_ / "temp", fs::perms(0555));
  fs::permissions(folder_ / "data", fs::perms(0777));
  const auto save = [this] {
    GiveUpRights();
    const auto document = MakeLesson(folder_ / "data");
    document->SetFileName((folder_ / "temp") + "\\a.xml");
    if (!document->Save()) ::_exit(kOtherResult);
    ::_exit(notices_.size() == 1 && notices_[0].text_id == 9201 ? kAsExpected : kOtherNotice);
  };
  EXPECT_EXIT(save(), ::testing::ExitedWithCode(kAsExpected), "");
  EXPECT_TRUE(fs::exists(folder_ / "data/a.xml"));
  EXPECT_EQ(Entries(folder_ / "temp"), 0);
}

TEST_F(PugiDocument, LeavesTheEarlierFileWholeWhenTheDiskIsFull) {
  fs::create_directory(folder_ / "temp");
  const auto first = MakeLesson(folder_ / "data");
  first->SetFileName((folder_ / "temp") + "\\a.xml");
  ASSERT_TRUE(first->Save());
  const std::string earlier = Content(folder_ / "temp/a.xml");
  const auto save = [this] {
    LetNoFileGrowAbove(1024);
    const auto document = MakeLesson(folder_ / "data");
    document->RootChildren()->Add(std::string(100'000, 'x'), "long");
    document->SetFileName((folder_ / "temp") + "\\a.xml");
    if (document->Save()) ::_exit(kOtherResult);
    ::_exit(notices_.empty() && kept_.size() == 1 ? kAsExpected : kOtherNotice);
  };
  EXPECT_EXIT(save(), ::testing::ExitedWithCode(kAsExpected), "");
  EXPECT_EQ(Content(folder_ / "temp/a.xml"), earlier);
  EXPECT_EQ(Entries(folder_ / "temp"), 1);
  EXPECT_EQ(Entries(folder_ / "data"), 0);
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/unsaved_records.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/program_fixture.h"

namespace vmod17 {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr int kTryAgain = 0;
constexpr int kOtherFolder = 1;
constexpr int kGiveUp = 2;

/// A record on a disk that is full until a test makes room.
class FakeRecord : public UnsavedRecord {
 public:
  explicit FakeRecord(std::string name) : name_(std::move(name)) {}

  bool room = false;
  int tries = 0;
  std::vector<std::string> full_folders;
  std::string saved_as;

  std::string Name() const override { return name_; }
  Notice Trouble() const override { return {9202, "%1 is not saved", {name_}}; }
  bool Save() override {
    ++tries;
    return room;
  }
  std::optional<Notice> SaveAs(const std::string& path) override {
    if (std::ranges::find(full_folders, path) != full_folders.end()) {
      return Notice{9207, "not as %1", {path}};
    }
    saved_as = path;
    return std::nullopt;
  }

 private:
  std::string name_;
};

class UnsavedRecordsTest : public ::testing::Test {
 protected:
  UnsavedRecordsTest() { p_.ToFirstScreen(); }

  std::shared_ptr<FakeRecord> Keep(const std::string& name = "MVX.xml") {
    auto record = std::make_shared<FakeRecord>(name);
    records_.Keep(record);
    return record;
  }
  void Wait() { p_.loop.Advance(1000); }
  std::size_t Asked() const { return p_.messages.questions.size(); }

  ProgramFixture p_;
  bool ready_ = true;
  Notices notices_{p_.loop, p_.messages, InEnglish, [this] { return ready_; }};
  UnsavedRecords records_{notices_, p_.messages, p_.dialog, p_.program.texts()};
};

TEST_F(UnsavedRecordsTest, AreOfferedWithThreeAnswersInAMomentThatAQuestionDoesNotSpoil) {
  ready_ = false;
  const auto record = Keep();
  Wait();
  EXPECT_EQ(Asked(), 0u);
  ready_ = true;
  p_.messages.choices = {kGiveUp};
  Wait();
  ASSERT_EQ(Asked(), 1u);
  EXPECT_EQ(p_.messages.questions[0].text, p_.program.texts().Words(record->Trouble()));
  EXPECT_THAT(p_.messages.offered[0], ElementsAre("[9203s]", "[9204s]", "[9205s]"));
}

TEST_F(UnsavedRecordsTest, AreTriedAgainUntilThereIsRoom) {
  const auto record = Keep();
  p_.messages.choices = {kTryAgain, kTryAgain, kTryAgain};
  p_.messages.while_asked = [&] { record->room = Asked() == 3; };
  Wait();
  EXPECT_EQ(Asked(), 3u);
  EXPECT_EQ(record->tries, 4);
  EXPECT_EQ(record.use_count(), 1);
}

TEST_F(UnsavedRecordsTest, GoWithoutAQuestionWhenThereIsRoomByThen) {
  const auto record = Keep();
  record->room = true;
  Wait();
  EXPECT_EQ(Asked(), 0u);
  EXPECT_EQ(record.use_count(), 1);
}

TEST_F(UnsavedRecordsTest, GoIntoAnotherFolderThatTheUserChooses) {
  const auto record = Keep("MVX261121140322.xml");
  p_.messages.choices = {kOtherFolder};
  p_.dialog.to_save = "/stick/MVX261121140322.xml";
  Wait();
  EXPECT_THAT(p_.dialog.proposals, ElementsAre("MVX261121140322.xml"));
  EXPECT_EQ(record->saved_as, "/stick/MVX261121140322.xml");
  EXPECT_EQ(Asked(), 1u);
  EXPECT_THAT(p_.messages.warnings, IsEmpty());
}

TEST_F(UnsavedRecordsTest, AreAskedForAgainWhenNoFolderIsChosenOrItIsFullToo) {
  const auto record = Keep();
  record->full_folders = {"/full/MVX.xml"};
  p_.messages.choices = {kOtherFolder, kOtherFolder, kOtherFolder};
  p_.messages.while_asked = [&] {
    if (Asked() == 2) p_.dialog.to_save = "/full/MVX.xml";
    if (Asked() == 3) p_.dialog.to_save = "/stick/MVX.xml";
  };
  Wait();
  EXPECT_EQ(Asked(), 3u);
  EXPECT_THAT(p_.messages.warnings, SizeIs(1));
  EXPECT_EQ(record->saved_as, "/stick/MVX.xml");
}

TEST_F(UnsavedRecordsTest, AreGivenUpByTheUserAlone) {
  const auto record = Keep();
  p_.messages.choices = {kGiveUp};
  Wait();
  records_.Offer();
  EXPECT_EQ(Asked(), 1u);
  EXPECT_EQ(record.use_count(), 1);
}

TEST_F(UnsavedRecordsTest, AreOfferedEachInTheOrderOfTheirRuns) {
  const auto first = Keep("1.xml");
  const auto second = Keep("2.xml");
  p_.messages.choices = {kGiveUp, kTryAgain};
  p_.messages.while_asked = [&] { second->room = Asked() == 2; };
  Wait();
  ASSERT_EQ(Asked(), 2u);
  EXPECT_EQ(first.use_count(), 1);
  EXPECT_EQ(second.use_count(), 1);
}

TEST_F(UnsavedRecordsTest, AreOfferedAtTheEndOfTheProgramWhereNoMomentCameBefore) {
  ready_ = false;
  const auto record = Keep();
  Wait();
  p_.messages.choices = {kOtherFolder};
  p_.dialog.to_save = "/stick/MVX.xml";
  records_.Offer();
  EXPECT_EQ(record->saved_as, "/stick/MVX.xml");
}

TEST_F(UnsavedRecordsTest, AreTriedOnceWithoutAQuestionWhenTheProgramIsCutOff) {
  ready_ = false;
  const auto record = Keep();
  records_.SaveUnasked();
  EXPECT_EQ(record->tries, 1);
  const auto of_the_last_run = Keep();
  ready_ = true;
  Wait();
  records_.Offer();
  EXPECT_EQ(Asked(), 0u);
  EXPECT_EQ(p_.messages.withdrawn, 0);
}

TEST_F(UnsavedRecordsTest, AreTriedOnceMoreWhenTheProgramIsCutOffWhileTheQuestionStands) {
  const auto record = Keep();
  // Withdrawn, the question has no answer; one that came at the same moment does not count.
  p_.messages.choices = {kTryAgain};
  p_.messages.while_asked = [&] {
    record->room = true;
    records_.SaveUnasked();
  };
  Wait();
  EXPECT_EQ(p_.messages.withdrawn, 1);
  EXPECT_EQ(Asked(), 1u);
  EXPECT_EQ(record->tries, 2);
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "xml/record_file.h"

#include <gtest/gtest.h>

#include "scratch_folder.h"

namespace vmod17 {
namespace {

using Saved = RecordFile::Saved;

class Record : public ::testing::Test {
 protected:
  Record() { std::filesystem::create_directory(Place()); }
  std::string Place() const { return folder_ / "place"; }
  std::string Fallback() const { return folder_ / "own"; }
  RecordFile Named(const std::string& folder) const {
    return RecordFile(folder + "\\record.xml", Fallback());
  }

  ScratchFolder folder_;
};

TEST_F(Record, GoesIntoTheFolderThatItNames) {
  RecordFile record = Named(Place());
  EXPECT_EQ(record.folder(), Place());
  EXPECT_EQ(record.base(), "record.xml");
  EXPECT_EQ(record.path(), "");
  EXPECT_EQ(record.Save("one"), Saved::kWhereItBelongs);
  EXPECT_EQ(record.path(), Place() + "/record.xml");
  EXPECT_EQ(Content(record.path()), "one");
}

TEST_F(Record, ReplacesWhatItSavedItselfAndNothingElse) {
  RecordFile first = Named(Place());
  RecordFile second = Named(Place());
  ASSERT_EQ(first.Save("first"), Saved::kWhereItBelongs);
  ASSERT_EQ(second.Save("second"), Saved::kWhereItBelongs);
  ASSERT_EQ(first.Save("first again"), Saved::kWhereItBelongs);
  EXPECT_EQ(Content(Place() + "/record.xml"), "first again");
  EXPECT_EQ(second.path(), Place() + "/record-2.xml");
  EXPECT_EQ(Content(second.path()), "second");
}

TEST_F(Record, GoesElsewhereWhereItsFolderDoesNotTakeItAndSaysWhy) {
  RecordFile record = Named(folder_ / "nowhere");
  EXPECT_EQ(record.Save("one"), Saved::kElsewhere);
  EXPECT_EQ(record.path(), Fallback() + "/record.xml");
  EXPECT_NE(record.refusal(), "");
  RecordFile nameless("record.xml", Fallback());
  EXPECT_EQ(nameless.folder(), "");
  EXPECT_EQ(nameless.Save("two"), Saved::kElsewhere);
  EXPECT_EQ(nameless.path(), Fallback() + "/record-2.xml");
  EXPECT_NE(nameless.refusal(), record.refusal());
}

TEST_F(Record, IsNowhereWhereNoFolderTakesItUntilAnotherOneIsNamed) {
  RecordFile record(folder_ / "nowhere" + "\\record.xml", "/proc/nowhere");
  EXPECT_EQ(record.Save("one"), Saved::kNowhere);
  EXPECT_EQ(record.path(), "");
  EXPECT_NE(record.SaveAs(folder_ / "nowhere/record.xml", "one"), 0);
  EXPECT_EQ(record.path(), "");
  const std::string chosen = Place() + "/chosen.xml";
  EXPECT_EQ(record.SaveAs(chosen, "one"), 0);
  EXPECT_EQ(record.Save("two"), Saved::kWhereItBelongs);
  EXPECT_EQ(Content(chosen), "two");
}

}  // namespace
}  // namespace vmod17

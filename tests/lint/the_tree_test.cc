// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "lint/includes.h"
#include "lint/languages.h"
#include "lint/sources.h"
#include "lint/tree.h"
#include "lint/words.h"

namespace vmod17::lint {
namespace {

using ::testing::IsEmpty;
using ::testing::IsSupersetOf;

const Tree& TheTree() {
  static const Tree tree = ReadTree(VMOD17_TREE);
  return tree;
}

TEST(TheTree, IsReadWithItsSourcesAndWithoutWhatIsBuilt) {
  EXPECT_TRUE(TheTree().contains("src/shell/text_lookup.cc"));
  EXPECT_TRUE(TheTree().contains("run"));
  for (const auto& [path, text] : TheTree()) {
    EXPECT_FALSE(path.starts_with("build/") || path.starts_with(".git/")) << path;
  }
}

TEST(TheTree, HasARowForEachFolder) { EXPECT_THAT(TableFaults(TheTree()), IsEmpty()); }

TEST(TheTree, KeepsItsFloors) { EXPECT_THAT(FloorFaults(TheTree()), IsEmpty()); }

TEST(TheTree, IncludesNothingInACircle) { EXPECT_THAT(CircleFaults(TheTree()), IsEmpty()); }

TEST(TheTree, HasNoWordsThatHaveNoPlaceInIt) { EXPECT_THAT(WordFaults(TheTree()), IsEmpty()); }

TEST(TheTree, SaysOfEachSourceWhoseItIs) { EXPECT_THAT(HeadFaults(TheTree()), IsEmpty()); }

TEST(TheTree, HasATypeOfANameOnce) { EXPECT_THAT(TypeFaults(TheTree()), IsEmpty()); }

TEST(TheTree, HasNoTestThatWaitsForTheRealClock) { EXPECT_THAT(SleepFaults(TheTree()), IsEmpty()); }

TEST(TheTree, HasAWordForEachTextIdInEachLanguage) {
  EXPECT_THAT(LanguageFaults(TheTree()), IsEmpty());
}

TEST(TheTree, HasLanguagesOfOneManner) { EXPECT_THAT(MannerFaults(TheTree()), IsEmpty()); }

TEST(TheTree, HasTextIdsThatAreFound) {
  // A table or call in a new form would escape the search, and its ids with it.
  EXPECT_THAT(UsedTextIds(TheTree()),
              IsSupersetOf({6,   41,  56,  78,  107, 199, 232, 243, 348, 372,  400,  420,  432, 499,
                            552, 603, 640, 671, 699, 700, 720, 723, 726, 9101, 9151, 9201, 9401}));
}

TEST(TheTree, HasNoticesThatSayTheSameAsTheEnglishLanguageFile) {
  EXPECT_THAT(NoticeFaults(TheTree()), IsEmpty());
}

}  // namespace
}  // namespace vmod17::lint

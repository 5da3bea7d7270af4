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

TEST(TheTree, NamesEachTextIdAndUsesTheName) { EXPECT_THAT(TextIdFaults(TheTree()), IsEmpty()); }

TEST(TheTree, HasNoticesThatSayTheSameAsTheEnglishLanguageFile) {
  EXPECT_THAT(NoticeFaults(TheTree()), IsEmpty());
}

}  // namespace
}  // namespace vmod17::lint

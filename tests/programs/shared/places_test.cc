// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/shared/places.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "qt/surroundings.h"

namespace vmod17 {
namespace {

TEST(Keys, AreOneForAStoreByWhateverWayItIsNamed) {
  const QTemporaryDir folder;
  ASSERT_TRUE(QFile::link(folder.path(), folder.filePath("link")));
  const std::string store = folder.filePath("store.sqlite").toStdString();
  for (const char* way : {"./store.sqlite", "link/store.sqlite"}) {
    const std::string same = folder.filePath(way).toStdString();
    EXPECT_EQ(HostKey(same), HostKey(store)) << way;
    EXPECT_EQ(ModuleKey(same, "4711"), ModuleKey(store, "4711")) << way;
  }
}

TEST(Keys, AreOthersForAnotherProgramStoreOrUser) {
  EXPECT_NE(HostKey("/a/store.sqlite"), HostKey("/b/store.sqlite"));
  EXPECT_NE(ModuleKey("/a/store.sqlite", ""), HostKey("/a/store.sqlite"));
  EXPECT_NE(ModuleKey("/a/store.sqlite", ""), ModuleKey("/a/store.sqlite", "4711"));
}

TEST(Folders, LetTheUsersOwnGoFirst) {
  const Surrounding data("XDG_DATA_HOME", "/home/anna/data");
  // Of languages the last one holds, of pages the first one.
  EXPECT_TRUE(LanguageFolders().back().string().starts_with("/home/anna/data/"));
  EXPECT_TRUE(HelpFolders().front().string().starts_with("/home/anna/data/"));
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/store_file.h"

#include <gtest/gtest.h>

#include "store_testing.h"

namespace vmod17 {
namespace {

constexpr DateTime kNow{2026, 3, 9, 8, 5, 1};
constexpr QFileDevice::Permissions kOfOthers = QFileDevice::ReadGroup | QFileDevice::WriteGroup |
                                               QFileDevice::ExeGroup | QFileDevice::ReadOther |
                                               QFileDevice::WriteOther | QFileDevice::ExeOther;

class StoreFile : public ::testing::Test {
 protected:
  void Write(const QString& name, const QByteArray& bytes) {
    QFile file(folder_ / name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  QByteArray Content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
  }

  ScratchFolder folder_;
};

TEST_F(StoreFile, IsMadeWithItsFoldersForItsOwnerAlone) {
  const QString path = folder_ / "one/two/store.sqlite";
  EXPECT_EQ(PrepareStoreFile(path, Privacy::kOfNewFiles), "");
  for (const QString& made : {path, folder_ / "one/two", folder_ / "one"}) {
    EXPECT_EQ(QFile::permissions(made) & kOfOthers, 0) << made.toStdString();
  }
}

TEST_F(StoreFile, KeepsWhatIsThereAndNarrowsItOnlyWhereThatIsAskedFor) {
  Write("store.sqlite", "what is there");
  const QString path = folder_ / "store.sqlite";
  QFile::setPermissions(path, QFile::permissions(path) | QFileDevice::ReadOther);
  EXPECT_EQ(PrepareStoreFile(path, Privacy::kOfNewFiles), "");
  EXPECT_NE(QFile::permissions(path) & kOfOthers, 0);
  EXPECT_EQ(PrepareStoreFile(path, Privacy::kEnforced), "");
  EXPECT_EQ(QFile::permissions(path) & kOfOthers, 0);
  EXPECT_EQ(Content(path), "what is there");
}

TEST_F(StoreFile, IsNeitherAFolderNorBelowAFile) {
  Write("file", "");
  EXPECT_NE(PrepareStoreFile(folder_ / "", Privacy::kOfNewFiles), "");
  EXPECT_NE(PrepareStoreFile(folder_ / "file/store.sqlite", Privacy::kOfNewFiles), "");
}

TEST_F(StoreFile, IsAnotherOneUnderTheSameName) {
  EXPECT_EQ(IdentityOf(folder_ / "store"), FileIdentity());
  Write("store", "one");
  const FileIdentity one = IdentityOf(folder_ / "store");
  Write("other", "two");
  EXPECT_NE(IdentityOf(folder_ / "other"), one);
  QFile::remove(folder_ / "store");
  QFile::rename(folder_ / "other", folder_ / "store");
  EXPECT_NE(IdentityOf(folder_ / "store"), one);
}

TEST_F(StoreFile, GoesAsideWithAllThatBelongsToItUnderANameThatIsFree) {
  Write("store", "data");
  Write("store-wal", "log");
  // A side file of an earlier one would be taken for this one's.
  Write("store.broken-20260309-080501-shm", "");
  const QString aside = MoveStoreAside(folder_ / "store", kNow);
  EXPECT_EQ(aside, folder_ / "store.broken-20260309-080501-2");
  EXPECT_EQ(Content(aside), "data");
  EXPECT_EQ(Content(aside + "-wal"), "log");
  EXPECT_FALSE(folder_.Names().contains("store") || folder_.Names().contains("store-wal"));
  EXPECT_EQ(MoveStoreAside(folder_ / "nothing", kNow), "");
}

TEST_F(StoreFile, GetsASecondNameThatIsFree) {
  Write("store", "data");
  Write("store.replaced-20260309-080501", "an earlier one");
  const QString second = KeepAlsoAside(folder_ / "store", kNow);
  EXPECT_EQ(second, folder_ / "store.replaced-20260309-080501-2");
  EXPECT_EQ(Content(second), "data");
  EXPECT_EQ(Content(folder_ / "store"), "data");
  EXPECT_EQ(FreeAside(folder_ / "store", kNow), folder_ / "store.replaced-20260309-080501-3");
  EXPECT_EQ(KeepAlsoAside(folder_ / "nothing", kNow), "");
}

TEST_F(StoreFile, IsOnTheDiskOnlyWhereItIs) {
  Write("store", "data");
  EXPECT_TRUE(SyncToDisk(folder_ / "store") && SyncToDisk(folder_ / ""));
  EXPECT_FALSE(SyncToDisk(folder_ / "nothing"));
}

}  // namespace
}  // namespace vmod17

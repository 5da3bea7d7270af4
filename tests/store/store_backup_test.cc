// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/store_backup.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QDateTime>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <filesystem>
#include <map>

#include "small_files.h"
#include "store_process.h"
#include "store_testing.h"

namespace vmod17 {
namespace {

using Array = TaggedValue::Array;

class StoreBackupTest : public ::testing::Test {
 protected:
  QString Path() const { return folder_ / "store.sqlite"; }
  QString Backup() const { return folder_ / "backup.db"; }
  QString Aside() const { return Path() + ".replaced-20260309-080501"; }
  StoreOptions Options() { return TestOptions(Path().toStdString(), &notices_); }

  void MakeStoreWith(const char* text, const QString& path) {
    HostStore store(TestOptions(path.toStdString()));
    store.SetUser({"4711", text, "Anna"});
    StorePair(store, Array{text}, Array{text});
  }
  void SetUp() override {
    MakeStoreWith("old", Backup());
    MakeStoreWith("new", Path());
  }

  static QByteArray Content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  static void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  /// Makes the store as a process leaves it that was killed: with its log beside it.
  void LeaveLogOf(const QString& text) {
    StoreProcess process;
    process.Ask("open " + Path() + " 20");
    ASSERT_EQ(process.Ask("pair " + text + " 1 1"), "stored");
    process.Kill();
    ASSERT_GT(Content(Path() + "-wal").size(), 0);
  }
  static void RunOn(const QString& path, const QStringList& statements) {
    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "other hand");
    database.setDatabaseName(path);
    ASSERT_TRUE(database.open());
    for (const QString& statement : statements) {
      QSqlQuery query(database);
      ASSERT_TRUE(query.exec(statement)) << statement.toStdString();
    }
    database = QSqlDatabase();
    QSqlDatabase::removeDatabase("other hand");
  }
  std::map<QString, QByteArray> Files() const {
    std::map<QString, QByteArray> files;
    for (const QString& name : folder_.Names()) files[name] = Content(folder_ / name);
    return files;
  }

  // Why it was refused, or 0.
  int Restore(HostStore& store, const QString& file) {
    StoreBackup backup(file, Path());
    std::optional<Notice> refusal = backup.Prepare();
    if (!refusal) refusal = store.Restore(backup);
    return refusal ? refusal->text_id : 0;
  }
  int Restore(const QString& file) {
    HostStore store(Options());
    store.Users();
    return Restore(store, file);
  }
  void ExpectInStore(const std::string& text) {
    HostStore store(Options());
    ExpectPair(store, text, text);
    EXPECT_EQ(store.User()->name, text);
    EXPECT_TRUE(notices_.empty());
  }
  void ExpectRefusal(int text_id, const QString& file) {
    const auto before = Files();
    EXPECT_EQ(Restore(file), text_id) << file.toStdString();
    EXPECT_TRUE(Files() == before) << folder_.Names().join(' ').toStdString();
    ExpectInStore("new");
  }

  ScratchFolder folder_;
  std::vector<Notice> notices_;
};

TEST_F(StoreBackupTest, IsWhatIsReadThenAndTheStoreThatWasThereIsKept) {
  const QByteArray backup = Content(Backup());
  HostStore store(Options());
  ExpectPair(store, "new", "new");
  EXPECT_EQ(Restore(store, Backup()), 0);
  ExpectPair(store, "old", "old");
  EXPECT_EQ(store.User()->name, "old");
  StorePair(store, Array{"newer"}, Array{"newer"});
  EXPECT_EQ(Content(Backup()), backup);
  HostStore aside(TestOptions(Aside().toStdString()));
  ExpectPair(aside, "new", "new");
}

TEST_F(StoreBackupTest, IsWhatIsReadAlsoWhereAKilledProcessHasLeftItsLog) {
  LeaveLogOf("newest");
  EXPECT_EQ(Restore(Backup()), 0);
  ExpectInStore("old");
  HostStore aside(TestOptions(Aside().toStdString()));
  ExpectPair(aside, "newest", "newest");
}

TEST_F(StoreBackupTest, BringsWhatLiesInALogBesideIt) {
  StoreProcess process;
  process.Ask("open " + Backup() + " 20");
  ASSERT_EQ(process.Ask("pair logged 1 1"), "stored");
  const QString copy = folder_ / "stick.sqlite";
  for (const char* side : {"", "-wal"}) ASSERT_TRUE(QFile::copy(Backup() + side, copy + side));
  const auto before = Files();
  EXPECT_EQ(Restore(copy), 0);
  HostStore store(Options());
  ExpectPair(store, "logged", "logged");
  for (const char* name : {"stick.sqlite", "stick.sqlite-wal"}) {
    EXPECT_EQ(Content(folder_ / name), before.at(name));
  }
  EXPECT_FALSE(QFile::exists(copy + "-shm"));
}

TEST_F(StoreBackupTest, RefusesWhatIsNoBackup) {
  Write(folder_ / "letter.txt", "Dear Anna");
  Write(folder_ / "empty.db", "");
  RunOn(folder_ / "other.db", {"CREATE TABLE birds (name TEXT)"});
  for (const char* name : {"letter.txt", "empty.db", "other.db", "missing.db", "."}) {
    ExpectRefusal(9120, folder_ / name);
  }
}

TEST_F(StoreBackupTest, RefusesADamagedOne) {
  const QByteArray whole = Content(Backup());
  Write(folder_ / "cut.db", whole.left(whole.size() / 2));
  QByteArray scribbled = whole;
  for (qsizetype at = 5000; at < scribbled.size(); at += 97) scribbled[at] = 'x';
  Write(folder_ / "scribbled.db", scribbled);
  for (const char* name : {"cut.db", "scribbled.db"}) ExpectRefusal(9121, folder_ / name);
}

TEST_F(StoreBackupTest, RefusesOneOfANewerVersion) {
  RunOn(Backup(), {"UPDATE melvado_meta SET value = '3' WHERE name = 'schema_version'"});
  ExpectRefusal(9122, Backup());
}

TEST_F(StoreBackupTest, TakesOneOfAnOlderVersion) {
  RunOn(Backup(), {"UPDATE melvado_meta SET value = '1' WHERE name = 'schema_version'",
                   "DROP TABLE melvado_user"});
  EXPECT_EQ(Restore(Backup()), 0);
  HostStore store(Options());
  EXPECT_EQ(store.Users(), (std::vector<StoreUser>{{"4711", "old", "Anna"}}));
}

TEST_F(StoreBackupTest, RefusesTheStoreItselfUnderWhateverName) {
  QFile::link(Path(), folder_ / "link.db");
  std::filesystem::create_hard_link(Path().toStdString(), (folder_ / "second.db").toStdString());
  for (const QString& name : {Path(), folder_ / "link.db", folder_ / "second.db"}) {
    EXPECT_EQ(Restore(name), 9125) << name.toStdString();
  }
  ExpectInStore("new");
}

TEST_F(StoreBackupTest, WaitsUntilNobodyElseHasTheStoreOpen) {
  {
    StoreProcess process;
    process.Ask("open " + Path() + " 20");
    ASSERT_EQ(process.Ask("read E1"), "new 1");
    EXPECT_EQ(Restore(Backup()), 9123);
    EXPECT_EQ(process.Ask("pair still 1 1"), "stored");
    EXPECT_FALSE(QFile::exists(Aside()));
  }
  HostStore(Options()).SetUser({"4711", "still", "Anna"});
  ExpectInStore("still");  // what was stored after the refusal
  EXPECT_EQ(Restore(Backup()), 0);
  ExpectInStore("old");
}

TEST_F(StoreBackupTest, NeverTakesTheNameOfWhatWasPutAsideBefore) {
  Write(Aside(), "before");
  EXPECT_EQ(Restore(Backup()), 0);
  EXPECT_EQ(Content(Aside()), "before");
  HostStore aside(TestOptions((Aside() + "-2").toStdString()));
  ExpectPair(aside, "new", "new");
}

TEST_F(StoreBackupTest, TakesThePlaceOfAStoreThatNobodyCanRead) {
  const QByteArray ruin(5000, 'x');
  Write(Path(), ruin);
  Write(Path() + "-wal", "left");
  StoreBackup backup(Backup(), Path());
  ASSERT_FALSE(backup.Prepare());
  EXPECT_FALSE(backup.PutInPlace({2026, 3, 9, 8, 5, 1}));
  ExpectInStore("old");
  EXPECT_EQ(Content(Aside()), ruin);
  EXPECT_EQ(Content(Aside() + "-wal"), "left");
}

TEST_F(StoreBackupTest, ReplacesTheFileAndNotALinkToIt) {
  const QString link = folder_ / "link.sqlite";
  QFile::link(Path(), link);
  {
    HostStore store(TestOptions(link.toStdString()));
    StoreBackup backup(Backup(), link);
    ASSERT_FALSE(backup.Prepare());
    EXPECT_FALSE(store.Restore(backup));
  }
  EXPECT_EQ(QFile::symLinkTarget(link), Path());
  ExpectInStore("old");
}

TEST_F(StoreBackupTest, LeavesTheRightsOfTheStoreAsTheyAre) {
  const auto shared = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup |
                      QFileDevice::WriteGroup;
  ASSERT_TRUE(QFile::setPermissions(Path(), shared));
  const auto before = QFile::permissions(Path());
  EXPECT_EQ(Restore(Backup()), 0);
  EXPECT_EQ(QFile::permissions(Path()), before);
}

TEST_F(StoreBackupTest, LeavesTheGroupOfTheStoreAsItIs) {
  constexpr gid_t kAnother = 1;
  if (::chown(qPrintable(Path()), static_cast<uid_t>(-1), kAnother) != 0) {
    GTEST_SKIP() << "only the administrator may give a file away";
  }
  EXPECT_EQ(Restore(Backup()), 0);
  EXPECT_EQ(QFileInfo(Path()).groupId(), kAnother);
}

TEST_F(StoreBackupTest, IsReadWithoutTheLogOfAStoreThatIsGone) {
  LeaveLogOf("newest");
  const QByteArray log = Content(Path() + "-wal");
  ASSERT_TRUE(QFile::remove(Path()));
  StoreBackup backup(Backup(), Path());
  ASSERT_FALSE(backup.Prepare());
  EXPECT_FALSE(backup.PutInPlace({2026, 3, 9, 8, 5, 1}));
  EXPECT_EQ(backup.aside(), Aside() + "-wal");
  EXPECT_EQ(Content(Aside() + "-wal"), log);
  ExpectInStore("old");
}

TEST_F(StoreBackupTest, TakesThePlaceOfAFileThatALinkHasLost) {
  const QString link = folder_ / "link.sqlite";
  QFile::link(Path(), link);
  ASSERT_TRUE(QFile::remove(Path()));
  StoreBackup backup(Backup(), link);
  ASSERT_FALSE(backup.Prepare());
  EXPECT_FALSE(backup.PutInPlace({2026, 3, 9, 8, 5, 1}));
  EXPECT_EQ(QFile::symLinkTarget(link), Path());
  ExpectInStore("old");
}

TEST_F(StoreBackupTest, KeepsOthersOutUntilTheCopyHasItsName) {
  StoreProcess restorer(BACKUP_RESTORER, {Path(), Backup(), "watch"});
  EXPECT_EQ(restorer.Hear(), "alone");
  restorer.HearTheRest();
  EXPECT_EQ(restorer.Status(), 0);
}

TEST_F(StoreBackupTest, LeavesAllAsItWasWhereTheCopyDoesNotGetItsName) {
  // Of a damaged store its log may be what can be rescued.
  Write(Path(), QByteArray(5000, 'x'));
  Write(Path() + "-wal", "left");
  StoreProcess restorer(BACKUP_RESTORER, {Path(), Backup(), "refuse"});
  restorer.HearTheRest();
  EXPECT_EQ(restorer.Status(), 1);
  EXPECT_EQ(Content(Path()), QByteArray(5000, 'x'));
  EXPECT_EQ(Content(Path() + "-wal"), "left");
  EXPECT_THAT(folder_.Names().join(' ').toStdString(), ::testing::Not(::testing::HasSubstr(".re")));
}

TEST_F(StoreBackupTest, IsNotTakenForDamagedWhereItsCopyHasNoRoom) {
  StoreBackup backup(Backup(), Path());
  std::optional<Notice> refusal;
  {
    const SmallFiles disk(Content(Backup()).size() - 1);
    refusal = backup.Prepare();
  }
  ASSERT_TRUE(refusal);
  EXPECT_EQ(refusal->text_id, 9124);
  ExpectInStore("new");
}

TEST_F(StoreBackupTest, LeavesToTheStoreThatIsKeptWhatStillWaitedForIt) {
  HostStore store(Options());
  ExpectPair(store, "new", "new");
  {
    const SmallFiles disk(Content(Path()).size());
    EXPECT_EQ(StorePair(store, Array{"late"}, Array{QString(50'000, 'x').toStdString()}), 0);
  }
  EXPECT_EQ(Ids(notices_), std::vector{9105});
  EXPECT_EQ(Restore(store, Backup()), 0);
  HostStore aside(TestOptions(Aside().toStdString()));
  EXPECT_EQ(ReadValue(aside, "E1"), TaggedValue(Array{"late"}));
}

TEST_F(StoreBackupTest, RemovesTheCopyOfOneThatWasKilledLongAgo) {
  const QString left = Path() + ".restore-aBcDeF";
  const QString of_another = Path() + ".restore-GhIjKl";
  Write(left, "left");
  Write(of_another, "at work");
  QFile file(left);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTimeUtc().addSecs(-4000),
                               QFileDevice::FileModificationTime));
  file.close();
  EXPECT_EQ(Restore(Backup()), 0);
  EXPECT_FALSE(QFile::exists(left));
  EXPECT_TRUE(QFile::exists(of_another));
}

TEST_F(StoreBackupTest, LeavesTheOldStoreOrTheNewOneWheneverItIsKilled) {
  int old_ones = 0;
  int new_ones = 0;
  for (int change = 0;; ++change) {
    StoreProcess restorer(BACKUP_RESTORER, {Path(), Backup(), QString::number(change)});
    restorer.HearTheRest();
    HostStore store(Options());
    const bool is_restored = store.User()->name == "old";
    ++(is_restored ? new_ones : old_ones);
    ExpectPair(store, is_restored ? "old" : "new", is_restored ? "old" : "new");
    ASSERT_TRUE(notices_.empty()) << "before change " << change;
    if (!restorer.WasKilled()) {
      EXPECT_TRUE(is_restored);
      break;
    }
    if (is_restored) MakeStoreWith("new", Path());
    // The names that the killed ones have taken would make each one's way longer.
    for (const QString& name : folder_.Names()) {
      if (name.contains(".restore-") || name.contains(".replaced-")) QFile::remove(folder_ / name);
    }
  }
  EXPECT_GE(old_ones, 10);
  EXPECT_GE(new_ones, 1);
}

}  // namespace
}  // namespace vmod17

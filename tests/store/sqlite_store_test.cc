// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlQuery>

#include "host_store_under_test.h"
#include "store/host_store.h"
#include "store/store_address.h"
#include "store_testing.h"
#include "store_upgrade_contract.h"
#include "support/host_contract.h"
#include "user_list_contract.h"

namespace vmod17 {
namespace {

using Array = TaggedValue::Array;

class FileStoreUnderTest : public HostUnderTest {
 public:
  std::unique_ptr<HostService> Service() override { return store_.Service(); }
  void Restart() override { store_.Restart(); }
  void SetUser(const std::string& id, const std::string& name,
               const std::string& first_name) override {
    store_.SetUser(id, name, first_name);
  }
  void SetLanguage(const std::string& language) override { store_.SetLanguage(language); }
  void SetThirdMidiDevice() override { store_.SetThirdMidiDevice(); }
  void SetStartedByHost(bool started) override { store_.SetStartedByHost(started); }
  std::vector<std::string> Log() override { return store_.Log(); }

 private:
  ScratchFolder folder_;
  HostStoreUnderTest store_{(folder_ / "store.sqlite").toStdString()};
};

INSTANTIATE_TEST_SUITE_P(SqliteStore, HostContract,
                         ::testing::Values([] { return std::make_unique<FileStoreUnderTest>(); }));

class FileStoreForUsers : public StoreForUsers {
 public:
  StoreOptions Options() override { return TestOptions((folder_ / "store.sqlite").toStdString()); }

 private:
  ScratchFolder folder_;
};

INSTANTIATE_TEST_SUITE_P(SqliteStore, UserListContract,
                         ::testing::Values([] { return std::make_unique<FileStoreForUsers>(); }));

class FileStoreForUpgrade : public StoreForUpgrade {
 public:
  std::string Address() override { return (folder_ / "store.sqlite").toStdString(); }
  void Run(const QString& statement) override {
    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "users");
    database.setDatabaseName(QString::fromStdString(Address()));
    EXPECT_TRUE(database.open());
    {
      QSqlQuery query(database);
      EXPECT_TRUE(query.exec(statement)) << statement.toStdString();
    }
    database = QSqlDatabase();
    QSqlDatabase::removeDatabase("users");
  }

 private:
  ScratchFolder folder_;
};

INSTANTIATE_TEST_SUITE_P(SqliteStore, StoreUpgradeContract,
                         ::testing::Values([] { return std::make_unique<FileStoreForUpgrade>(); }));

class SqliteStore : public ::testing::Test {
 protected:
  std::string Path() const { return (folder_ / "store.sqlite").toStdString(); }

  // The rights of a file or folder as the system has them, such as 0600.
  static unsigned Mode(const QString& path) {
    struct stat facts {};
    return ::stat(QFile::encodeName(path).constData(), &facts) == 0 ? facts.st_mode & 07777 : 0;
  }

  ScratchFolder folder_;
  std::vector<Notice> notices_;
};

TEST_F(SqliteStore, OpensNothingBeforeTheFirstCommand) {
  HostStore store(TestOptions(Path()));
  const std::unique_ptr<HostService> service = store.Service();
  EXPECT_TRUE(folder_.Names().isEmpty());
}

TEST_F(SqliteStore, LiesInTheUsersDataFolderForItsOwnerAlone) {
  const QByteArray earlier = qgetenv("XDG_DATA_HOME");
  qputenv("XDG_DATA_HOME", QFile::encodeName(folder_ / "Daten für mich"));
  const mode_t mask = ::umask(0);
  {
    HostStore store(TestOptions("", &notices_));
    StoreValue(store, "E1", Array{"1"});
    const QString folder = folder_ / "Daten für mich/melvado";
    EXPECT_EQ(Mode(folder), 0700u);
    const QStringList names = QDir(folder).entryList(QDir::Files);
    EXPECT_TRUE(names.contains("store.sqlite"));
    // The side files hold the same words.
    EXPECT_GT(names.size(), 1);
    for (const QString& name : names) {
      EXPECT_EQ(Mode(folder + '/' + name), 0600u) << name.toStdString();
    }
  }
  ::umask(mask);
  qputenv("XDG_DATA_HOME", earlier);
  EXPECT_TRUE(notices_.empty());
}

TEST_F(SqliteStore, NarrowsAFolderOfItsOwnThatOthersCanRead) {
  const QByteArray earlier = qgetenv("XDG_DATA_HOME");
  qputenv("XDG_DATA_HOME", QFile::encodeName(folder_ / ""));
  QDir().mkpath(folder_ / "melvado");
  ::chmod(QFile::encodeName(folder_ / "melvado").constData(), 0755);
  HostStore store(TestOptions(""));
  StoreValue(store, "E1", Array{"1"});
  EXPECT_EQ(Mode(folder_ / "melvado"), 0700u);
  qputenv("XDG_DATA_HOME", earlier);
}

TEST_F(SqliteStore, LeavesTheRightsOfAFileThatWasNamedAsTheyAre) {
  QFile file(QString::fromStdString(Path()));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();
  ::chmod(Path().c_str(), 0640);
  HostStore store(TestOptions(Path()));
  StoreValue(store, "E1", Array{"1"});
  EXPECT_EQ(Mode(folder_ / "store.sqlite"), 0640u);
}

TEST_F(SqliteStore, TakesARelativeDataHomeForNone) {
  const QByteArray earlier = qgetenv("XDG_DATA_HOME");
  const QByteArray home = qgetenv("HOME");
  qputenv("HOME", "/home/anna");
  qputenv("XDG_DATA_HOME", "relative");
  EXPECT_EQ(UserDataFolder(), "/home/anna/.local/share/melvado");
  qunsetenv("XDG_DATA_HOME");
  EXPECT_EQ(UserDataFolder(), "/home/anna/.local/share/melvado");
  qputenv("XDG_DATA_HOME", "/data");
  EXPECT_EQ(UserDataFolder(), "/data/melvado");
  qputenv("XDG_DATA_HOME", earlier);
  qputenv("HOME", home);
}

TEST_F(SqliteStore, AnswersTheDesktopsLanguageIfNoneIsChosen) {
  StoreOptions options = TestOptions(Path());
  options.desktop_language = [] { return std::optional<std::string>("Français"); };
  HostStore store(std::move(options));
  TaggedValue result = "Deutsch";
  EXPECT_TRUE(store.Service()->Action("LANG", "", result));
  EXPECT_EQ(result, TaggedValue("Français"));
  store.SetLanguage("English");
  EXPECT_TRUE(store.Service()->Action("LANG", "", result));
  EXPECT_EQ(result, TaggedValue("English"));
}

TEST_F(SqliteStore, LeavesTheDefaultWhenTheDesktopsLanguageIsNotInstalled) {
  StoreOptions options = TestOptions(Path());
  options.desktop_language = [] { return std::optional<std::string>(); };
  HostStore store(std::move(options));
  TaggedValue result = "Deutsch";
  EXPECT_FALSE(store.Service()->Action("LANG", "", result));
  EXPECT_EQ(result, TaggedValue("Deutsch"));
}

TEST_F(SqliteStore, AnswersNoLanguageThatIsNoLongerInstalled) {
  StoreOptions options = TestOptions(Path());
  options.language_installed = [](const std::string& name) { return name == "English"; };
  HostStore store(std::move(options));
  store.SetLanguage("Klingonisch");
  TaggedValue result = "Deutsch";
  EXPECT_FALSE(store.Service()->Action("LANG", "", result));
  EXPECT_EQ(result, TaggedValue("Deutsch"));
}

TEST_F(SqliteStore, HasNoMidiAnswerWhenTheDeviceIsNotThere) {
  StoreOptions options = TestOptions(Path());
  options.midi_number = [](const std::string&) { return std::optional<int>(); };
  HostStore store(std::move(options));
  store.SetMidiDevice("unplugged");
  TaggedValue result;
  EXPECT_FALSE(store.Service()->Action("MIDI", TaggedValue(), result));
  EXPECT_TRUE(result.IsEmpty());
  EXPECT_EQ(store.MidiDevice(), "unplugged");
}

TEST_F(SqliteStore, WritesDateAndUserBesideEachLogLine) {
  HostStore store(TestOptions(Path()));
  store.SetUser({"4711", "Berg", "Anna"});
  LogLine(store, "vmod17 1.0.0000");
  const std::vector<LogEntry> log = store.Log(10);
  ASSERT_EQ(log.size(), 1u);
  EXPECT_EQ(log[0].at, "2026-03-09 08:05:01");
  EXPECT_EQ(log[0].user, "4711");
  EXPECT_EQ(log[0].kind, LogEntry::Kind::kMessage);
}

TEST_F(SqliteStore, KeepsTheNewestLinesOfALogThatHasReachedItsSize) {
  StoreOptions options = TestOptions(Path());
  options.log_limit_bytes = 200'000;
  HostStore store(std::move(options));
  for (int i = 0; i < 4000; ++i) {
    LogLine(store, "line " + std::to_string(i) + std::string(120, '.'));
  }
  const std::vector<LogEntry> log = store.Log(4000);
  EXPECT_LT(log.size(), 1100u);
  EXPECT_GT(log.size(), 700u);
  ASSERT_FALSE(log.empty());
  EXPECT_TRUE(log.back().text.starts_with("line 3999."));
  EXPECT_TRUE(log.front().text.starts_with("line " + std::to_string(4000 - log.size()) + '.'));
  EXPECT_LT(QFileInfo(folder_ / "store.sqlite").size(), 300'000);
}

TEST_F(SqliteStore, CutsALogLineThatWouldFillTheLogAlone) {
  HostStore store(TestOptions(Path()));
  EXPECT_TRUE(LogLine(store, std::string(20'000'000, 'x')));
  EXPECT_LT(store.Log(1).at(0).text.size(), 20'000u);
}

TEST_F(SqliteStore, KeepsALogLineOfAnyBytesReadable) {
  HostStore store(TestOptions(Path()));
  EXPECT_TRUE(LogLine(store, std::string("a\0b\xFF", 4)));
  EXPECT_EQ(store.Log(1).at(0).text,
            "a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD");
}

TEST_F(SqliteStore, CarriesAVersionFromItsFirstDay) {
  {
    HostStore store(TestOptions(Path()));
    StoreValue(store, "E1", Array{"1"});
  }
  QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "version");
  database.setDatabaseName(QString::fromStdString(Path()));
  ASSERT_TRUE(database.open());
  {
    QSqlQuery row("SELECT value FROM melvado_meta WHERE name = 'schema_version'", database);
    ASSERT_TRUE(row.next());
    EXPECT_EQ(row.value(0).toString(), "2");
  }
  database = QSqlDatabase();
  QSqlDatabase::removeDatabase("version");
}

TEST_F(SqliteStore, MakesAStoreOutOfAnEmptyFile) {
  QFile file(QString::fromStdString(Path()));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();
  HostStore store(TestOptions(Path(), &notices_));
  EXPECT_EQ(ReadValue(store, "E1"), NothingStored());
  StoreValue(store, "E1", Array{"1"});
  EXPECT_EQ(ReadValue(store, "E1"), TaggedValue(Array{"1"}));
  EXPECT_TRUE(notices_.empty());
}

TEST_F(SqliteStore, MakesAgainAStoreThatIsDeletedWhileItIsOpen) {
  HostStore store(TestOptions(Path(), &notices_));
  StoreValue(store, "E1", Array{"old"});
  for (const QString& name : folder_.Names()) QFile::remove(folder_ / name);
  StoreValue(store, "E1", Array{"new"});
  HostStore next(TestOptions(Path(), &notices_));
  EXPECT_EQ(ReadValue(next, "E1"), TaggedValue(Array{"new"}));
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/store_connection.h"

#include <gtest/gtest.h>

#include "store/sqlite_connection.h"
#include "store/store_notices.h"
#include "store_parts.h"

namespace vmod17 {
namespace {

using Patience = StoreConnection::Patience;

const RecordKey kKey{"", "vmod17", "E1"};

void Nothing(StoreTables&) {}

class Connection : public ::testing::Test {
 protected:
  QString Path() const { return folder_ / "store.sqlite"; }
  bool Write(StoreParts& parts, const std::string& value) {
    return parts.connection.Write(Patience::kWait, [&](StoreTables& tables) {
      tables.Write({{kKey, value}});
    });
  }
  std::optional<std::string> Read(StoreParts& parts) {
    std::optional<std::string> value;
    parts.connection.With(Patience::kOnlyOnce,
                          [&](StoreTables& tables) { value = tables.Read(kKey); });
    return value;
  }
  /// Runs a statement past the store.
  void Run(const QString& statement) {
    SqliteConnection hand(Path());
    hand.Open(0);
    hand.Run(statement);
  }

  ScratchFolder folder_;
};

TEST_F(Connection, OpensNothingBeforeItIsAsked) {
  StoreParts parts(Path());
  EXPECT_FALSE(parts.connection.IsBegun());
  EXPECT_FALSE(parts.connection.IsOutOfReach());
  EXPECT_EQ(folder_.Names(), QStringList());
  EXPECT_TRUE(parts.connection.With(Patience::kOnlyOnce, Nothing));
  EXPECT_TRUE(parts.connection.IsBegun() && parts.connection.IsOpen());
  EXPECT_TRUE(folder_.Names().contains("store.sqlite"));
}

TEST_F(Connection, ReadsTheSettingsOnceThoughItIsOpenedAgain) {
  {
    StoreParts parts(Path());
    parts.connection.With(Patience::kOnlyOnce, [](StoreTables& tables) {
      tables.SetSettings("", {{kLanguage, "English"}});
    });
  }
  StoreParts parts(Path());
  parts.connection.NeedSettings(Patience::kOnlyOnce);
  EXPECT_EQ(parts.settings.Get(kLanguage), "English");
  Run("UPDATE melvado_setting SET value = 'Deutsch'");
  parts.connection.Close();
  EXPECT_FALSE(parts.connection.IsOpen());
  EXPECT_TRUE(parts.connection.With(Patience::kOnlyOnce, Nothing));
  EXPECT_EQ(parts.settings.Get(kLanguage), "English");
  EXPECT_EQ(parts.opened, 2);
}

TEST_F(Connection, ReadsTheSettingsAnewWhenTheStoreIsAnotherOne) {
  StoreParts parts(Path());
  parts.connection.With(Patience::kOnlyOnce, [](StoreTables& tables) {
    tables.SetSettings("", {{kLanguage, "English"}});
  });
  parts.connection.StartAnew();
  parts.settings.Clear();
  parts.connection.NeedSettings(Patience::kOnlyOnce);
  EXPECT_EQ(parts.settings.Get(kLanguage), "English");
}

TEST_F(Connection, GivesAStoreThatTookThePlaceOfAnotherTheSettingsOfThisProcess) {
  StoreParts parts(Path());
  parts.connection.With(Patience::kOnlyOnce, Nothing);
  parts.settings.Set(kLanguage, "English");
  for (const QString& name : folder_.Names()) QFile::remove(folder_ / name);
  parts.connection.With(Patience::kOnlyOnce, [](StoreTables& tables) {
    EXPECT_EQ(tables.Settings("").at(kLanguage), "English");
  });
}

TEST_F(Connection, PutsABrokenFileAsideAndGoesOnWithANewOne) {
  QFile file(Path());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(QByteArray(4096, 'x'));
  file.close();
  StoreParts parts(Path());
  EXPECT_TRUE(Write(parts, "new"));
  EXPECT_EQ(Read(parts), "new");
  EXPECT_EQ(Ids(parts.notices), std::vector<int>{BrokenStoreNotice("", "").text_id});
  EXPECT_TRUE(folder_.Names().contains("store.sqlite.broken-20260309-080501"));
}

TEST_F(Connection, LeavesAStoreOfANewerVersionAloneForGood) {
  {
    StoreParts parts(Path());
    Write(parts, "theirs");
  }
  Run("UPDATE melvado_meta SET value = '1000' WHERE name = 'schema_version'");
  StoreParts parts(Path());
  EXPECT_FALSE(Write(parts, "ours"));
  EXPECT_FALSE(parts.connection.CanTake());
  EXPECT_EQ(Ids(parts.notices), std::vector<int>{NewerStoreNotice("").text_id});
  EXPECT_FALSE(parts.connection.With(Patience::kWait, Nothing));
  EXPECT_EQ(parts.opened, 0);
}

TEST_F(Connection, MakesTheListOfUsersWhereAnOlderStoreHasNone) {
  {
    StoreParts parts(Path());
    Write(parts, "old");
  }
  Run("DROP TABLE melvado_user");
  Run("UPDATE melvado_meta SET value = '1' WHERE name = 'schema_version'");
  StoreParts parts(Path());
  parts.connection.With(Patience::kOnlyOnce, [&](StoreTables& tables) {
    EXPECT_TRUE(parts.connection.HasUsers());
    EXPECT_TRUE(tables.Users().empty());
  });
  EXPECT_EQ(Read(parts), "old");
}

TEST_F(Connection, RefusesToWriteWhatMayOnlyBeRead) {
  StoreParts parts(Path());
  Write(parts, "before");
  parts.connection.TakeForReadOnly();
  EXPECT_FALSE(parts.connection.CanTake());
  try {
    Write(parts, "after");
    FAIL() << "no error";
  } catch (const SqlError& error) {
    EXPECT_EQ(error.failure(), SqlFailure::kReadOnly);
  }
  EXPECT_EQ(Read(parts), "before");
}

TEST_F(Connection, HasOneDeadlineForCallsWithinACall) {
  StoreParts parts(Path());
  EXPECT_FALSE(parts.connection.IsBusy());
  {
    const StoreConnection::Call call(parts.connection);
    const auto deadline = parts.connection.deadline();
    {
      const StoreConnection::Call inner(parts.connection);
      EXPECT_EQ(parts.connection.deadline(), deadline);
    }
    EXPECT_TRUE(parts.connection.IsBusy());
    parts.connection.HurryUp(parts.options.server_patience_ms * 2);
    EXPECT_EQ(parts.connection.deadline(), deadline);
    parts.connection.HurryUp(parts.options.server_patience_ms / 2);
    EXPECT_LT(parts.connection.deadline(), deadline);
  }
  EXPECT_FALSE(parts.connection.IsBusy());
}

}  // namespace
}  // namespace vmod17

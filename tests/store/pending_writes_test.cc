// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/pending_writes.h"

#include <gtest/gtest.h>

#include "store/sqlite_connection.h"
#include "store/store_notices.h"
#include "store_parts.h"

namespace vmod17 {
namespace {

using Patience = StoreConnection::Patience;

const RecordKey kSettings{"", "vmod17", "E1"};
const RecordKey kState{"", "vmod17", "A1"};
const StoreUser kAnna{"4711", "Berg", "Anna"};

class Pending : public ::testing::Test {
 protected:
  void StoreBoth(const std::string& value) {
    pending_.Store(kSettings, value);
    pending_.Store(kState, value);
  }
  std::optional<std::string> Stored(const RecordKey& key) {
    std::optional<std::string> value;
    parts_.connection.With(Patience::kOnlyOnce,
                           [&](StoreTables& tables) { value = tables.Read(key); });
    return value;
  }
  /// Runs statements past the store.
  void Run(const QString& statement) {
    SqliteConnection hand(Path());
    hand.Open(0);
    hand.Run(statement);
  }
  /// From now on the store takes nothing, until `HaveRoom`.
  void BeFull() {
    parts_.connection.With(Patience::kOnlyOnce, [](StoreTables&) {});
    Run("CREATE TRIGGER full_record BEFORE INSERT ON melvado_record "
        "BEGIN SELECT RAISE(ABORT, 'no room'); END");
  }
  void HaveRoom() { Run("DROP TRIGGER full_record"); }
  QString Path() const { return folder_ / "store.sqlite"; }

  ScratchFolder folder_;
  StoreParts parts_{Path()};
  PendingWrites pending_{parts_.options,    parts_.address,  "",
                         parts_.connection, parts_.settings, parts_.trouble};
};

TEST_F(Pending, WritesAtOnceWhatTheStoreTakes) {
  pending_.Store(kSettings, "E");
  EXPECT_EQ(Stored(kSettings), "E");
  EXPECT_EQ(pending_.Find(kSettings), std::nullopt);
}

TEST_F(Pending, WritesWhatIsStoredTogetherAtItsEnd) {
  pending_.Store(kSettings, "before");
  pending_.Together([&] {
    StoreBoth("together");
    EXPECT_EQ(pending_.Find(kSettings), "together");
    EXPECT_EQ(Stored(kSettings), "before");
  });
  EXPECT_EQ(Stored(kSettings), "together");
  EXPECT_EQ(Stored(kState), "together");
}

TEST_F(Pending, StoresNothingOfWhatWasBrokenOff) {
  EXPECT_THROW(pending_.Together([&] {
    pending_.Store(kSettings, "half");
    throw RunTimeError(1, "", "");
  }),
               RunTimeError);
  EXPECT_EQ(pending_.Find(kSettings), std::nullopt);
  EXPECT_EQ(Stored(kSettings), std::nullopt);
  EXPECT_THROW(pending_.Together([&] { pending_.Together([] {}); }), RunTimeError);
}

TEST_F(Pending, KeepsInMemoryWhatTheStoreDoesNotTakeAndWritesItAsAWholeLater) {
  StoreBoth("before");
  BeFull();
  pending_.Together([&] { StoreBoth("late"); });
  EXPECT_EQ(pending_.Find(kSettings), "late");
  EXPECT_EQ(Stored(kSettings), "before");
  EXPECT_EQ(Ids(parts_.notices), std::vector<int>{FullStoreNotice("", "").text_id});
  HaveRoom();
  pending_.BringWhatWaits(Patience::kOnlyOnce);
  EXPECT_EQ(pending_.Find(kSettings), std::nullopt);
  EXPECT_EQ(Stored(kSettings), "late");
  EXPECT_EQ(Stored(kState), "late");
}

TEST_F(Pending, ForgetsWhatIsOlderThanWhatWasStoredSince) {
  BeFull();
  pending_.Store(kSettings, "old");
  HaveRoom();
  pending_.Store(kSettings, "new");
  pending_.BringWhatWaits(Patience::kOnlyOnce);
  EXPECT_EQ(Stored(kSettings), "new");
}

TEST_F(Pending, DropsWhatWaitsWhenTheStoreIsAnotherOne) {
  BeFull();
  pending_.Store(kSettings, "former");
  pending_.KeepUser(kAnna.id, kAnna, UserIs::kNew);
  pending_.Clear();
  HaveRoom();
  pending_.BringWhatWaits(Patience::kOnlyOnce);
  EXPECT_EQ(Stored(kSettings), std::nullopt);
  EXPECT_TRUE(pending_.Users().empty());
}

TEST_F(Pending, ReadsWhatMayOnlyBeReadAndKeepsTheRestUntilTheEnd) {
  pending_.Store(kSettings, "before");
  parts_.connection.TakeForReadOnly();
  pending_.Store(kSettings, "lost");
  pending_.BringWhatWaits(Patience::kOnlyOnce);
  EXPECT_EQ(pending_.Find(kSettings), "lost");
  EXPECT_EQ(Stored(kSettings), "before");
}

TEST_F(Pending, BringsUsersAndSettingsThatWaited) {
  parts_.connection.With(Patience::kOnlyOnce, [](StoreTables&) {});
  pending_.KeepUser(kAnna.id, kAnna, UserIs::kNew);
  EXPECT_TRUE(pending_.KeepsUser(kAnna.id));
  Run("CREATE TRIGGER full_setting BEFORE INSERT ON melvado_setting "
      "BEGIN SELECT RAISE(ABORT, 'no room'); END");
  pending_.ChangeSettings({{kLanguage, "English"}});
  pending_.SetHere(kLanguage, "Deutsch");
  EXPECT_EQ(parts_.settings.Get(kLanguage), "Deutsch");
  Run("DROP TRIGGER full_setting");
  pending_.BringWhatWaits(Patience::kOnlyOnce);
  EXPECT_FALSE(pending_.KeepsUser(kAnna.id));
  parts_.connection.With(Patience::kOnlyOnce, [](StoreTables& tables) {
    EXPECT_EQ(tables.Users(), std::vector<StoreUser>{kAnna});
    EXPECT_EQ(tables.Settings("").at(kLanguage), "Deutsch");
  });
}

TEST_F(Pending, RaisesWhatIsLockedAndKeepsNothingOfIt) {
  StoreOptions options = TestOptions(Path().toStdString());
  options.busy_timeout_ms = 0;
  StoreParts parts(options);
  PendingWrites pending(parts.options, parts.address, "", parts.connection, parts.settings,
                        parts.trouble);
  pending.Store(kSettings, "before");
  SqliteConnection other(Path());
  other.Open(0);
  other.Run("BEGIN IMMEDIATE");
  EXPECT_THROW(pending.Store(kSettings, "locked"), RunTimeError);
  EXPECT_EQ(pending.Find(kSettings), std::nullopt);
  other.Run("ROLLBACK");
}

}  // namespace
}  // namespace vmod17

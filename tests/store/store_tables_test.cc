// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/store_tables.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "store/sqlite_connection.h"
#include "store/store_file.h"
#include "store_testing.h"

namespace vmod17 {
namespace {

using AlsoUsers = StoreTables::AlsoUsers;
using Settings = std::map<std::string, std::string>;

const StoreUser kAnna{"4711", "Berg", "Anna"};
const StoreUser kBen{"4712", "Thal", "Ben"};
const RecordKey kKey{"4711", "vmod17", "E1"};

class Tables : public ::testing::Test {
 protected:
  Tables() {
    PrepareStoreFile(folder_ / "store.sqlite", Privacy::kOfNewFiles);
    connection_.Open(0);
  }
  void AppendLine(const std::string& text, std::optional<std::int64_t> limit = {}) {
    LogEntry line;
    line.text = text;
    tables_.AppendLog({line}, limit, 0).get();
  }
  std::vector<std::string> Lines(int count) {
    std::vector<std::string> lines;
    for (const LogEntry& line : tables_.Log(count)) lines.push_back(line.text);
    return lines;
  }

  ScratchFolder folder_;
  SqliteConnection connection_{folder_ / "store.sqlite"};
  StoreTables tables_{connection_};
};

TEST_F(Tables, AreNotThereBeforeTheyAreMade) {
  EXPECT_FALSE(tables_.LookInto("", "", AlsoUsers::kNo));
  tables_.Create();
  const auto facts = tables_.LookInto("", "", AlsoUsers::kNo);
  ASSERT_TRUE(facts);
  EXPECT_EQ(facts->version, kStoreVersion);
  EXPECT_FALSE(facts->users);
}

TEST_F(Tables, AreMadeOnce) {
  tables_.Create();
  tables_.Write({{kKey, "E"}});
  tables_.Create();
  EXPECT_EQ(tables_.Read(kKey), "E");
}

TEST_F(Tables, TellOfOneSeatAndItsFormerOneAtOnce) {
  tables_.Create();
  tables_.SetSettings("seat", {{"a", "1"}});
  tables_.SetSettings("former", {{"b", "2"}});
  tables_.SetSettings("of another", {{"c", "3"}});
  tables_.SaveUser(kAnna);
  const auto facts = tables_.LookInto("seat", "former", AlsoUsers::kYes);
  ASSERT_TRUE(facts);
  EXPECT_EQ(facts->settings, (Settings{{"a", "1"}}));
  EXPECT_EQ(facts->former, (Settings{{"b", "2"}}));
  EXPECT_EQ(facts->users, std::vector<StoreUser>{kAnna});
}

TEST_F(Tables, AreOfANewerVersionWhereTheVersionCannotBeRead) {
  tables_.Create();
  for (const char* statement :
       {"UPDATE melvado_meta SET value = 'two'", "DELETE FROM melvado_meta"}) {
    connection_.Run(statement);
    const auto facts = tables_.LookInto("", "", AlsoUsers::kNo);
    ASSERT_TRUE(facts) << statement;
    EXPECT_GT(facts->version, kStoreVersion) << statement;
  }
}

TEST_F(Tables, AreUpgradedWithWhoeverIsChosenOnAnySeat) {
  tables_.Create();
  connection_.Run("DROP TABLE melvado_user");
  connection_.Run("UPDATE melvado_meta SET value = '1' WHERE name = 'schema_version'");
  for (const char* seat : {"one", "other"}) {
    tables_.SetSettings(seat,
                        {{"user.id", "4711"}, {"user.name", "Berg"}, {"user.first_name", "Anna"}});
  }
  tables_.SetSettings("third", {{"user.id", ""}, {"user.name", "Nobody"}});
  tables_.SetSettings("fourth", {{"user.id", "4712"}});
  EXPECT_EQ(tables_.LookInto("", "", AlsoUsers::kYes)->version, 1);
  tables_.Upgrade();
  tables_.Upgrade();
  EXPECT_EQ(tables_.LookInto("", "", AlsoUsers::kNo)->version, kStoreVersion);
  std::vector<StoreUser> users = tables_.Users();
  std::ranges::sort(users, {}, &StoreUser::id);
  EXPECT_EQ(users, (std::vector<StoreUser>{kAnna, {"4712", "", ""}}));
}

TEST_F(Tables, RenameARecordUnlessItIsAnotherOneByNow) {
  tables_.Create();
  tables_.Write({{kKey, "new"}});
  tables_.Rename(kKey, "old", "E1.broken");
  EXPECT_EQ(tables_.Read(kKey), "new");
  tables_.Rename(kKey, "new", "E1.broken");
  EXPECT_EQ(tables_.Read(kKey), std::nullopt);
  EXPECT_EQ(tables_.Read({"4711", "vmod17", "E1.broken"}), "new");
}

TEST_F(Tables, AddNobodyWhoseNumberIsTaken) {
  tables_.Create();
  EXPECT_TRUE(tables_.AddUser(kAnna));
  EXPECT_FALSE(tables_.AddUser({"4711", "Thal", "Ben"}));
  EXPECT_EQ(tables_.Users(), std::vector<StoreUser>{kAnna});
}

TEST_F(Tables, ChangeAUserWhereverHeIsChosenAndNobodyElse) {
  tables_.Create();
  tables_.SetSettings("one", {{"user.id", "4711"}, {"user.name", "Berg"}});
  tables_.SetSettings("other", {{"user.id", "4712"}, {"user.name", "Thal"}});
  tables_.SaveUser({"4711", "See", "Anna"});
  EXPECT_EQ(tables_.Settings("one").at("user.name"), "See");
  EXPECT_EQ(tables_.Settings("other").at("user.name"), "Thal");
}

TEST_F(Tables, RemoveAUserFromListAndSeatsButNotHisRecords) {
  tables_.Create();
  tables_.SaveUser(kAnna);
  tables_.SaveUser(kBen);
  tables_.Write({{kKey, "E"}});
  tables_.SetSettings("one", {{"user.id", "4711"}});
  tables_.SetSettings("other", {{"user.id", "4712"}});
  tables_.RemoveUser("4711");
  EXPECT_EQ(tables_.Users(), std::vector<StoreUser>{kBen});
  EXPECT_EQ(tables_.Settings("one").at("user.id"), "");
  EXPECT_EQ(tables_.Settings("other").at("user.id"), "4712");
  EXPECT_EQ(tables_.Read(kKey), "E");
}

TEST_F(Tables, TellTheNewestLinesOfTheLogOldestFirst) {
  tables_.Create();
  for (const char* text : {"1", "2", "3"}) AppendLine(text);
  EXPECT_EQ(Lines(2), (std::vector<std::string>{"2", "3"}));
  EXPECT_EQ(Lines(10), (std::vector<std::string>{"1", "2", "3"}));
}

TEST_F(Tables, DropTheOldestLinesThatAreTooMany) {
  tables_.Create();
  LogEntry line;
  line.text = "1";
  const std::int64_t size = StoreTables::SizeOf(line);
  for (const char* text : {"1", "2", "3"}) AppendLine(text);
  AppendLine("4", 2 * size);
  EXPECT_EQ(Lines(10), (std::vector<std::string>{"3", "4"}));
}

}  // namespace
}  // namespace vmod17

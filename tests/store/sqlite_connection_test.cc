// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/sqlite_connection.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "store/store_file.h"
#include "store_testing.h"

namespace vmod17 {
namespace {

class Sqlite : public ::testing::Test {
 protected:
  QString Path() const { return folder_ / "file.sqlite"; }
  void OpenWithATable() {
    PrepareStoreFile(Path(), Privacy::kOfNewFiles);
    connection_.Open(0);
    connection_.Run("CREATE TABLE t (id INTEGER PRIMARY KEY, x TEXT NOT NULL)");
  }
  int Count() { return connection_.Run("SELECT COUNT(*) FROM t").rows[0][0].toInt(); }
  std::optional<SqlFailure> FailureOf(const std::function<void()>& work) {
    try {
      work();
      return {};
    } catch (const SqlError& error) {
      return error.failure();
    }
  }

  ScratchFolder folder_;
  SqliteConnection connection_{Path()};
};

TEST_F(Sqlite, GivesRowsAndHowManyWereChanged) {
  OpenWithATable();
  EXPECT_EQ(connection_.Run("INSERT INTO t (x) VALUES (?), (?)", {"a", "b"}).affected, 2);
  const SqlResult found = connection_.Run("SELECT x FROM t ORDER BY id");
  ASSERT_EQ(found.rows.size(), 2);
  EXPECT_EQ(found.rows[1][0].toString(), "b");
  EXPECT_TRUE(connection_.HasTable("t"));
  EXPECT_FALSE(connection_.HasTable("u"));
}

TEST_F(Sqlite, RunsAllOrNone) {
  OpenWithATable();
  const SqlStatement good = {"INSERT INTO t (x) VALUES ('a')", {}};
  const SqlStatement bad = {"INSERT INTO t (x) VALUES (NULL)", {}};
  EXPECT_EQ(FailureOf([&] { connection_.RunTogether({good, bad}); }), SqlFailure::kOther);
  EXPECT_EQ(Count(), 0);
  EXPECT_EQ(FailureOf([&] { connection_.Append({good, bad}, 0).get(); }), SqlFailure::kOther);
  EXPECT_EQ(Count(), 0);
  connection_.RunTogether({good, good});
  connection_.Append({good}, 0).get();
  EXPECT_EQ(Count(), 3);
}

TEST_F(Sqlite, UndoesATransactionWhoseWorkFails) {
  OpenWithATable();
  EXPECT_THROW(connection_.InTransaction([&] {
    connection_.Run("INSERT INTO t (x) VALUES ('a')");
    throw std::invalid_argument("work");
  }),
               std::invalid_argument);
  EXPECT_EQ(FailureOf([&] {
              connection_.InTransaction([&] {
                connection_.Run("INSERT INTO t (x) VALUES ('a')");
                connection_.Run("no statement");
              });
            }),
            SqlFailure::kOther);
  EXPECT_EQ(Count(), 0);
  connection_.InTransaction([&] { connection_.Run("INSERT INTO t (x) VALUES ('a')"); });
  EXPECT_EQ(Count(), 1);
}

TEST_F(Sqlite, TellsALockFromAllElse) {
  OpenWithATable();
  SqliteConnection other(Path());
  other.Open(0);
  other.Run("BEGIN IMMEDIATE");
  EXPECT_EQ(FailureOf([&] { connection_.Run("INSERT INTO t (x) VALUES ('a')"); }),
            SqlFailure::kLocked);
  EXPECT_EQ(FailureOf([&] {
              connection_.Append({{"INSERT INTO t (x) VALUES ('a')", {}}}, 0).get();
            }),
            SqlFailure::kLocked);
  other.Run("ROLLBACK");
  EXPECT_EQ(FailureOf([&] { connection_.Run("INSERT INTO t (x) VALUES ('a')"); }), std::nullopt);
}

TEST_F(Sqlite, TellsAFileThatIsNoDatabase) {
  QFile file(Path());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(QByteArray(4096, 'x'));
  file.close();
  EXPECT_EQ(FailureOf([&] {
              connection_.Open(0);
              connection_.Run("SELECT * FROM t");
            }),
            SqlFailure::kBroken);
}

TEST_F(Sqlite, MakesNoFile) {
  EXPECT_EQ(FailureOf([&] { connection_.Open(0); }), SqlFailure::kUnreachable);
  EXPECT_EQ(folder_.Names(), QStringList());
}

TEST_F(Sqlite, IsClosedAndOpenedAgain) {
  OpenWithATable();
  connection_.Run("INSERT INTO t (x) VALUES ('a')");
  connection_.Close();
  connection_.Close();
  connection_.Open(0);
  EXPECT_EQ(Count(), 1);
  EXPECT_FALSE(connection_.IsReadOnly());
}

}  // namespace
}  // namespace vmod17

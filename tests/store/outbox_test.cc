// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/outbox.h"

#include <gtest/gtest.h>

#include "store/sqlite_connection.h"
#include "store_process.h"
#include "store_testing.h"

namespace vmod17 {
namespace {

using Array = TaggedValue::Array;

DateTime Now() { return {2026, 3, 9, 8, 5, 1}; }

std::string TextsOf(Outbox& outbox) {
  std::string texts;
  for (const OutboxPiece& piece : outbox.Pieces()) {
    for (const OutboxEntry& entry : piece.entries) {
      texts += entry.kind + ':' + entry.content[0].String() + ' ';
    }
    texts += "| ";
  }
  return texts;
}

class OutboxFile : public ::testing::Test {
 protected:
  QString Path() const { return folder_ / "melvado/outbox.sqlite"; }
  QStringList Names() const { return QDir(folder_ / "melvado").entryList(QDir::Files); }

  ScratchFolder folder_;
};

TEST_F(OutboxFile, IsNotMadeBeforeSomethingIsKeptInIt) {
  Outbox outbox(Path(), Now);
  EXPECT_TRUE(outbox.Pieces().empty());
  EXPECT_EQ(folder_.Names(), QStringList());
}

TEST_F(OutboxFile, GivesTheNextProcessItsPiecesInTheirOrder) {
  {
    Outbox outbox(Path(), Now);
    EXPECT_TRUE(outbox.Add({{"record", Array{"E1"}}, {"record", Array{"A1"}}}));
    EXPECT_TRUE(outbox.Add({{"log", Array{std::string("\0\xFF\n", 3)}}}));
  }
  Outbox next(Path(), Now);
  ASSERT_EQ(next.Pieces().size(), 2u);
  EXPECT_EQ(next.Pieces()[0].at, "2026-03-09 08:05:01");
  EXPECT_EQ(next.Pieces()[1].entries[0].content[0].String(), std::string("\0\xFF\n", 3));
  next.Remove(next.Pieces()[1].number);
  EXPECT_EQ(TextsOf(next), "record:E1 record:A1 | ");
  const std::optional<std::int64_t> third = next.Add({{"record", Array{"B1"}}});
  ASSERT_TRUE(third.has_value());
  next.Remove(next.Pieces()[0].number);
  EXPECT_EQ(TextsOf(next), "record:B1 | ");
  next.Remove(*third);
  EXPECT_TRUE(next.Pieces().empty());
}

TEST_F(OutboxFile, IsOneForSeveralProcesses) {
  Outbox one(Path(), Now);
  Outbox other(Path(), Now);
  EXPECT_TRUE(one.Add({{"record", Array{"1"}}}));
  EXPECT_TRUE(other.Add({{"record", Array{"2"}}}));
  EXPECT_TRUE(one.Add({{"record", Array{"3"}}}));
  EXPECT_EQ(TextsOf(other), "record:1 | record:2 | record:3 | ");
}

TEST_F(OutboxFile, LeavesWhatAProcessHasPutInToItAsLongAsItIsAtWork) {
  StoreProcess process;
  ASSERT_EQ(process.Ask("post " + Path() + " record"), "posted");
  Outbox outbox(Path(), Now);
  EXPECT_TRUE(outbox.Add({{"record", Array{"mine"}}}));
  ASSERT_EQ(outbox.Pieces().size(), 2u);
  EXPECT_TRUE(outbox.Pieces()[0].is_of_another);
  EXPECT_FALSE(outbox.Pieces()[1].is_of_another);
  process.Kill();
  EXPECT_FALSE(outbox.Pieces()[0].is_of_another);
}

TEST_F(OutboxFile, CanBeReadByItsOwnerAlone) {
  Outbox outbox(Path(), Now);
  EXPECT_TRUE(outbox.Add({{"record", Array{"E1"}}}));
  EXPECT_EQ(QFile::permissions(Path()) & (QFile::ReadGroup | QFile::ReadOther), 0);
}

TEST_F(OutboxFile, StartsAnewBesideADamagedOne) {
  ASSERT_TRUE(QDir().mkpath(folder_ / "melvado"));
  QFile file(Path());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(QByteArray(5000, 'x'));
  file.close();
  Outbox outbox(Path(), Now);
  EXPECT_TRUE(outbox.Add({{"record", Array{"E1"}}}));
  EXPECT_EQ(TextsOf(outbox), "record:E1 | ");
  EXPECT_TRUE(Names().contains("outbox.sqlite.broken-20260309-080501"));
}

TEST_F(OutboxFile, StartsAnewBesideOneOfAnotherVersionAndTellsOfIt) {
  EXPECT_TRUE(Outbox(Path(), Now).Add({{"record", Array{"E1"}}}));
  {
    SqliteConnection other(Path());
    other.Open(0);
    other.Run("PRAGMA user_version = 2");
  }
  QStringList told;
  Outbox outbox(Path(), Now, [&](const QString& aside) { told.push_back(aside); });
  EXPECT_TRUE(outbox.Pieces().empty());
  EXPECT_EQ(told, QStringList{Path() + ".broken-20260309-080501"});
  EXPECT_TRUE(QFile::exists(told[0]));
  EXPECT_TRUE(outbox.Add({{"record", Array{"A1"}}}));
  EXPECT_EQ(TextsOf(outbox), "record:A1 | ");
}

TEST_F(OutboxFile, TakesNothingWhereNothingCanBeWritten) {
  QFile file(folder_ / "melvado");
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  Outbox outbox(Path(), Now);
  EXPECT_FALSE(outbox.Add({{"record", Array{"E1"}}}));
  EXPECT_TRUE(outbox.Pieces().empty());
}

}  // namespace
}  // namespace vmod17

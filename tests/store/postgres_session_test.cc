// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/postgres_session.h"

#include <gtest/gtest.h>

#include <QFileInfo>

#include "postgres_server.h"

namespace vmod17 {
namespace {

class Session : public ::testing::Test {
 protected:
  void SetUp() override {
    kPostgres->NewDatabase();
    session_.Connect(
        {{"host", QFileInfo(QString::fromStdString(kPostgres->Socket())).path().toUtf8()},
         {"user", "melvado"},
         {"dbname", kPostgres->LatestDatabase().toUtf8()}});
  }
  SqlFailure FailureOf(const SqlStatements& greeting, const SqlStatements& statements) {
    try {
      session_.Run(greeting, statements);
    } catch (const SqlError& error) {
      return error.failure();
    }
    ADD_FAILURE() << "it has not failed";
    return SqlFailure::kOther;
  }

  PostgresSession session_;
};

TEST_F(Session, GoesOnAfterAStatementThatFails) {
  EXPECT_EQ(FailureOf({}, {{"SELECT 1/0", {}}, {"SELECT 1", {}}}), SqlFailure::kOther);
  EXPECT_EQ(session_.Run({}, {{"SELECT 2", {}}}).rows[0][0].toString(), "2");
}

TEST_F(Session, HasEndedWhenItsGreetingFailsAndGivesNoStatementTheAnswerOfAnother) {
  EXPECT_EQ(FailureOf({{"SELECT 1/0", {}}}, {{"SELECT 1", {}}}), SqlFailure::kUnreachable);
  EXPECT_EQ(FailureOf({}, {{"SELECT 2", {}}}), SqlFailure::kUnreachable);
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/postgres_connection.h"

#include <gtest/gtest.h>

#include <chrono>

#include "postgres_server.h"
#include "server_proxy.h"

namespace vmod17 {
namespace {

TEST(PostgresConnectionTest, OpensAgainAlthoughTheLogIsStillUnderWayOnARoadThatSwallowedIt) {
  kPostgres->NewDatabase();
  ServerProxy proxy(kPostgres->Socket());
  PostgresConnection connection(
      QUrl("postgresql://melvado@127.0.0.1:" + QString::number(proxy.port()) + '/' +
           kPostgres->LatestDatabase()));
  const auto in = [](int seconds) {
    return std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
  };
  connection.SetDeadline(in(20));
  connection.Open(50);
  proxy.SwallowAfter(0);
  const SqlErrand line = connection.Append({{"SELECT 1", {}}}, 50);
  EXPECT_NE(line.wait_for(std::chrono::seconds(0)), std::future_status::ready);
  connection.Close();
  proxy.SwallowAfter(-1);
  connection.SetDeadline(in(7));
  EXPECT_NO_THROW(connection.Open(50));
}

}  // namespace
}  // namespace vmod17

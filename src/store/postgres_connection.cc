// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/postgres_connection.h"

#include <QUrlQuery>
#include <QUuid>
#include <algorithm>
#include <utility>

namespace vmod17 {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

// Where the connection, some round trips, has taken no longer a log line waits for the answer.
constexpr milliseconds kNear(500);
constexpr milliseconds kPatienceOfALine(500);
// To say good-bye in.
constexpr milliseconds kTimeToClose(200);
constexpr const char* kTooLate = "the server does not answer";

bool IsBack(const auto& errand, steady_clock::time_point until) {
  return errand.wait_until(until) == std::future_status::ready;
}

/// The connection, in the words of the client library. What it knows of deadlines rids the
/// couriers that were left behind of what they wait for.
PostgresSession::Parameters ParametersOf(const QUrl& address) {
  PostgresSession::Parameters parameters = {
      {"client_encoding", "UTF8"}, {"connect_timeout", "10"},    {"tcp_user_timeout", "8000"},
      {"keepalives_idle", "10"},   {"keepalives_interval", "5"}, {"keepalives_count", "3"}};
  const auto add = [&](const char* name, const QString& value) {
    if (!value.isEmpty()) parameters.emplace_back(name, value.toUtf8());
  };
  add("host", address.host());
  if (address.port() > 0) add("port", QString::number(address.port()));
  add("user", address.userName());
  add("password", address.password());
  add("dbname", address.path().mid(1));
  for (const auto& [name, value] : QUrlQuery(address).queryItems(QUrl::FullyDecoded)) {
    parameters.emplace_back(name.toUtf8(), value.toUtf8());
  }
  // A name of its own, by which it finds what it has left behind.
  add("application_name", "melvado-" + QUuid::createUuid().toString(QUuid::Id128));
  return parameters;
}

QString Milliseconds(int ms) {
  // 0 would mean to wait for ever.
  return QString::number(std::max(ms, 1));
}

}  // namespace

PostgresConnection::PostgresConnection(const QUrl& address) : parameters_(ParametersOf(address)) {}

PostgresConnection::~PostgresConnection() {
  Close();
  if (courier_) courier_->Send([] {}).wait_for(kTimeToClose);
}

void PostgresConnection::Dial() {
  if (!courier_) courier_ = std::make_unique<Courier>();
  session_ = std::make_shared<PostgresSession>();
  is_greeted_ = false;
  dialling_ = courier_->Send([session = session_, parameters = parameters_] {
    const auto begin = steady_clock::now();
    session->Connect(parameters);
    return steady_clock::now() - begin;
  });
}

bool PostgresConnection::IsAtHand() {
  if (!session_) Dial();
  return !dialling_.valid() || IsBack(dialling_, steady_clock::now());
}

void PostgresConnection::Open(int wait_ms) {
  SetWait(wait_ms);
  if (!session_) Dial();
  if (!dialling_.valid()) return;
  const auto begin = steady_clock::now();
  if (!IsBack(dialling_, is_silent_ ? begin : deadline_)) {
    // The courier goes on trying: perhaps it is back when somebody asks again.
    is_silent_ = true;
    throw SqlError(SqlFailure::kUnreachable, kTooLate);
  }
  try {
    is_far_ = std::exchange(dialling_, {}).get() > kNear;
    is_silent_ = false;
  } catch (const SqlError&) {
    // Who refuses at once may be asked again: that keeps nobody waiting.
    if (steady_clock::now() - begin > kNear) is_silent_ = true;
    Close();
    throw;
  }
}

void PostgresConnection::Close() {
  const auto now = steady_clock::now();
  if (dialling_.valid() ? !IsBack(dialling_, now) : latest_.valid() && !IsBack(latest_, now)) {
    LeaveBehind();
  }
  dialling_ = {};
  latest_ = {};
  // Its end, too, is the courier's to bring about.
  if (session_) courier_->Send([session = std::exchange(session_, {})]() mutable { session = {}; });
}

void PostgresConnection::LeaveBehind() {
  session_->HangUp();
  session_.reset();
  courier_.reset();
  dialling_ = {};
  latest_ = {};
  left_behind_ = true;
}

/// What a session has to be told before anything else. It goes with the first statements.
SqlStatements PostgresConnection::Greeting() const {
  SqlStatements greeting;
  if (!is_greeted_) {
    // The "already exists" of a table that another machine makes at the same moment is no warning.
    // A client that is stopped in a transaction must not hold up all others.
    greeting.push_back(
        {"SELECT set_config('client_min_messages', 'error', false), "
         "set_config('statement_timeout', '15000', false), "
         "set_config('idle_in_transaction_session_timeout', '10000', false)",
         {}});
    if (left_behind_) {
      greeting.push_back(
          {"SELECT pg_terminate_backend(pid) FROM pg_stat_activity "
           "WHERE application_name = current_setting('application_name') "
           "AND pid <> pg_backend_pid()",
           {}});
    }
  }
  if (!is_greeted_ || wait_ms_ != wait_of_session_ms_) {
    greeting.push_back({"SELECT set_config('lock_timeout', ?, false)", {Milliseconds(wait_ms_)}});
  }
  return greeting;
}

SqlErrand PostgresConnection::Send(const SqlStatements& statements) {
  SqlStatements greeting = Greeting();
  is_greeted_ = true;
  left_behind_ = false;
  wait_of_session_ms_ = wait_ms_;
  latest_ = courier_->Send([session = session_, greeting = std::move(greeting), statements] {
    return session->Run(greeting, statements);
  });
  return latest_;
}

SqlResult PostgresConnection::Execute(const SqlStatements& statements) {
  // Without a connection whatever stood in a transaction is undone.
  if (!session_ || dialling_.valid()) throw SqlError(SqlFailure::kUnreachable, kTooLate);
  const SqlErrand answer = Send(statements);
  if (!IsBack(answer, deadline_)) {
    LeaveBehind();
    is_silent_ = true;
    throw SqlError(SqlFailure::kUnreachable, kTooLate);
  }
  try {
    return answer.get();
  } catch (const SqlError& error) {
    if (error.failure() == SqlFailure::kUnreachable) Close();
    throw;
  }
}

bool PostgresConnection::HasTable(const QString& name) {
  // From the catalogue as a table: the name's own cache may not yet know of a table that another
  // process has made while this one waited in `LockSchema`.
  return !Run(QStringLiteral("SELECT 1 FROM pg_tables WHERE tablename = ? "
                             "AND schemaname = ANY (current_schemas(false))"),
              {name})
              .rows.isEmpty();
}

void PostgresConnection::LockSchema() {
  // The number only has to be the same in every process: the letters "melv". The next one is that
  // of `Append`.
  Run(QStringLiteral("SELECT pg_advisory_xact_lock(1835363446)"));
}

SqlErrand PostgresConnection::Append(const SqlStatements& statements, int wait_ms) {
  std::promise<SqlResult> refused;
  if (!session_ || dialling_.valid()) {
    refused.set_exception(std::make_exception_ptr(SqlError(SqlFailure::kUnreachable, kTooLate)));
    return refused.get_future();
  }
  // Two statements at once would both see the same last row. The lock is a statement before them,
  // since a statement sees what was there when it began.
  SqlStatements all = {{"SELECT set_config('lock_timeout', ?, true)", {Milliseconds(wait_ms)}},
                       {"SELECT pg_advisory_xact_lock(1835363447)", {}}};
  all.insert(all.end(), statements.begin(), statements.end());
  const SqlErrand answer = Send(InOneTransaction(std::move(all)));
  if (!is_far_) IsBack(answer, std::min(deadline_, steady_clock::now() + kPatienceOfALine));
  return answer;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/postgres_session.h"

#include <sys/socket.h>

#include <QLibrary>
#include <optional>
#include <utility>

namespace vmod17 {
namespace {

// What is used of the client library, with the numbers of its published header.
constexpr int kConnectionOk = 0;
constexpr int kCommandOk = 1;
constexpr int kTuplesOk = 2;
constexpr int kTransactionInError = 3;
constexpr unsigned kBytesType = 17;
constexpr int kCodeField = 'C';

struct Library {
  using Connection = void;
  using Result = void;

  Connection* (*connect)(const char* const*, const char* const*, int) = nullptr;
  void (*finish)(Connection*) = nullptr;
  int (*status)(const Connection*) = nullptr;
  int (*transaction_status)(const Connection*) = nullptr;
  int (*socket)(const Connection*) = nullptr;
  char* (*error)(const Connection*) = nullptr;
  int (*enter_pipeline)(Connection*) = nullptr;
  int (*exit_pipeline)(Connection*) = nullptr;
  int (*sync)(Connection*) = nullptr;
  int (*send)(Connection*, const char*, int, const unsigned*, const char* const*, const int*,
              const int*, int) = nullptr;
  Result* (*result)(Connection*) = nullptr;
  void (*clear)(Result*) = nullptr;
  int (*result_status)(const Result*) = nullptr;
  char* (*result_error)(const Result*) = nullptr;
  char* (*result_field)(const Result*, int) = nullptr;
  int (*rows)(const Result*) = nullptr;
  int (*columns)(const Result*) = nullptr;
  unsigned (*column_type)(const Result*, int) = nullptr;
  int (*is_null)(const Result*, int, int) = nullptr;
  char* (*value)(const Result*, int, int) = nullptr;
  int (*length)(const Result*, int, int) = nullptr;
  char* (*affected)(Result*) = nullptr;

  bool Load() {
    QLibrary library("pq", 5);
    const auto find = [&library](auto& function, const char* name) {
      function =
          reinterpret_cast<std::remove_reference_t<decltype(function)>>(library.resolve(name));
      return function != nullptr;
    };
    return find(connect, "PQconnectdbParams") && find(finish, "PQfinish") &&
           find(status, "PQstatus") && find(transaction_status, "PQtransactionStatus") &&
           find(socket, "PQsocket") && find(error, "PQerrorMessage") &&
           find(enter_pipeline, "PQenterPipelineMode") &&
           find(exit_pipeline, "PQexitPipelineMode") && find(sync, "PQpipelineSync") &&
           find(send, "PQsendQueryParams") && find(result, "PQgetResult") &&
           find(clear, "PQclear") && find(result_status, "PQresultStatus") &&
           find(result_error, "PQresultErrorMessage") && find(result_field, "PQresultErrorField") &&
           find(rows, "PQntuples") && find(columns, "PQnfields") && find(column_type, "PQftype") &&
           find(is_null, "PQgetisnull") && find(value, "PQgetvalue") &&
           find(length, "PQgetlength") && find(affected, "PQcmdTuples");
  }
};

/// Null where the library is missing, or older than its version 14.
const Library* FindLibrary() {
  static const std::optional<Library> kLibrary = [] {
    std::optional<Library> library = Library();
    if (!library->Load()) library.reset();
    return library;
  }();
  return kLibrary ? &*kLibrary : nullptr;
}

std::string Line(const char* text) { return QString::fromUtf8(text).simplified().toStdString(); }

SqlFailure Classify(const QByteArray& code) {
  // The SQLSTATE codes of PostgreSQL's published list; a class is their first two characters.
  if (code == "55P03" || code == "40P01") return SqlFailure::kLocked;
  if (code == "25006" || code == "42501") return SqlFailure::kReadOnly;
  if (code == "53100") return SqlFailure::kFull;
  // The last one is a statement that took longer than it may.
  if (code.isEmpty() || code.startsWith("08") || code.startsWith("28") || code.startsWith("57P") ||
      code == "25P03" || code == "57014") {
    return SqlFailure::kUnreachable;
  }
  return SqlFailure::kOther;
}

/// The question marks as the server numbers them.
QByteArray Numbered(const QString& statement) {
  QByteArray text;
  int number = 0;
  for (const char sign : statement.toUtf8()) {
    if (sign == '?') {
      text += '$' + QByteArray::number(++number);
    } else {
      text += sign;
    }
  }
  return text;
}

void SendOne(const Library& pq, void* connection, const SqlStatement& statement) {
  std::vector<QByteArray> texts;
  std::vector<int> formats;
  for (const QVariant& value : statement.values) {
    const bool is_bytes = value.typeId() == QMetaType::QByteArray;
    texts.push_back(is_bytes ? value.toByteArray() : value.toString().toUtf8());
    formats.push_back(is_bytes ? 1 : 0);
  }
  std::vector<const char*> values;
  std::vector<int> lengths;
  for (const QByteArray& text : texts) {
    values.push_back(text.constData());
    lengths.push_back(static_cast<int>(text.size()));
  }
  pq.send(connection, Numbered(statement.text).constData(), static_cast<int>(values.size()),
          nullptr, values.data(), lengths.data(), formats.data(), 0);
}

QVariant ValueOf(const Library& pq, const void* result, int row, int column) {
  if (pq.is_null(result, row, column) != 0) return {};
  const QByteArray text(pq.value(result, row, column), pq.length(result, row, column));
  // "\x" and two figures a byte.
  if (pq.column_type(result, column) == kBytesType) return QByteArray::fromHex(text.mid(2));
  return QString::fromUtf8(text);
}

}  // namespace

PostgresSession::~PostgresSession() { End(); }

void PostgresSession::End() {
  if (connection_ == nullptr) return;
  {
    const std::lock_guard lock(mutex_);
    socket_ = -1;
  }
  FindLibrary()->finish(std::exchange(connection_, nullptr));
}

void PostgresSession::Connect(const Parameters& parameters) {
  const Library* pq = FindLibrary();
  if (pq == nullptr) {
    throw SqlError(SqlFailure::kUnreachable, "the client library libpq is not installed");
  }
  std::vector<const char*> names;
  std::vector<const char*> values;
  for (const auto& [name, value] : parameters) {
    names.push_back(name.constData());
    values.push_back(value.constData());
  }
  names.push_back(nullptr);
  values.push_back(nullptr);
  connection_ = pq->connect(names.data(), values.data(), 0);
  if (connection_ == nullptr || pq->status(connection_) != kConnectionOk) ThrowLost();
  const std::lock_guard lock(mutex_);
  socket_ = pq->socket(connection_);
}

SqlResult PostgresSession::Run(const SqlStatements& greeting, const SqlStatements& statements) {
  if (connection_ == nullptr) ThrowLost();
  const Library& pq = *FindLibrary();
  pq.enter_pipeline(connection_);
  Send(greeting);
  Send(statements);
  try {
    Answers(greeting.size());
  } catch (const SqlError& error) {
    // The answers of the statements are still to come, and nobody may take them for others.
    End();
    throw SqlError(SqlFailure::kUnreachable, error.what());
  }
  try {
    const SqlResult result = Answers(statements.size());
    LeavePipeline();
    return result;
  } catch (const SqlError&) {
    if (connection_ == nullptr || pq.status(connection_) != kConnectionOk) throw;
    LeavePipeline();
    if (pq.transaction_status(connection_) == kTransactionInError) Run({}, {{"ROLLBACK", {}}});
    throw;
  }
}

/// Which fails where an answer is left over: then no later one could be trusted.
void PostgresSession::LeavePipeline() {
  if (FindLibrary()->exit_pipeline(connection_) == 1) return;
  const std::string text = Line(FindLibrary()->error(connection_));
  End();
  throw SqlError(SqlFailure::kUnreachable, text);
}

/// Statements that succeed or fail without regard to what comes behind them.
void PostgresSession::Send(const SqlStatements& statements) {
  if (statements.empty()) return;
  const Library& pq = *FindLibrary();
  for (const SqlStatement& statement : statements) SendOne(pq, connection_, statement);
  pq.sync(connection_);
}

SqlResult PostgresSession::Answers(std::size_t count) {
  SqlResult last;
  if (count == 0) return last;
  const Library& pq = *FindLibrary();
  std::optional<SqlError> error;
  for (std::size_t i = 0; i < count; ++i) {
    try {
      SqlResult next = Answer();
      if (next.rows.isEmpty()) next.rows = std::move(last.rows);
      last = std::move(next);
    } catch (const SqlError& failure) {
      // What follows it is answered too: that it was not run.
      if (!error) error = failure;
      if (pq.status(connection_) != kConnectionOk) throw SqlError(*error);
    }
  }
  // The end of them.
  pq.clear(pq.result(connection_));
  if (error) throw SqlError(*error);
  return last;
}

/// Of one statement.
SqlResult PostgresSession::Answer() {
  const Library& pq = *FindLibrary();
  void* const found = pq.result(connection_);
  if (found == nullptr) ThrowLost();
  const std::unique_ptr<void, void (*)(void*)> result(found, pq.clear);
  const int status = pq.result_status(found);
  // Behind it stands an empty one, which separates it from that of the next statement.
  if (void* const end = pq.result(connection_)) pq.clear(end);
  if (status != kCommandOk && status != kTuplesOk) {
    const QByteArray code(pq.result_field(found, kCodeField));
    std::string text = Line(pq.result_error(found));
    if (!code.isEmpty()) text += " [" + code.toStdString() + ']';
    throw SqlError(Classify(code), text);
  }
  SqlResult answer;
  answer.affected = QByteArray(pq.affected(found)).toLongLong();
  for (int row = 0; row < pq.rows(found); ++row) {
    QVariantList values;
    for (int column = 0; column < pq.columns(found); ++column) {
      values.push_back(ValueOf(pq, found, row, column));
    }
    answer.rows.push_back(values);
  }
  return answer;
}

void PostgresSession::ThrowLost() const {
  const char* const text =
      connection_ == nullptr ? "the connection has ended" : FindLibrary()->error(connection_);
  throw SqlError(SqlFailure::kUnreachable, Line(text));
}

void PostgresSession::HangUp() {
  const std::lock_guard lock(mutex_);
  if (socket_ >= 0) ::shutdown(socket_, SHUT_RDWR);
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "postgres_server.h"

#include <pwd.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>
#include <csignal>
#include <stdexcept>

namespace vmod17 {
namespace {

// The folder of the server's programs: they are not on the path where several versions can be
// installed side by side.
QString FindPrograms() {
  const QDir versions("/usr/lib/postgresql");
  QString best;
  int best_version = 0;
  for (const QString& name : versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    const QString programs = versions.filePath(name + "/bin");
    if (name.toInt() > best_version && QFile::exists(programs + "/initdb")) {
      best_version = name.toInt();
      best = programs;
    }
  }
  if (!best.isEmpty()) return best;
  const QString initdb = QStandardPaths::findExecutable("initdb");
  return initdb.isEmpty() ? QString() : QFileInfo(initdb).absolutePath();
}

const passwd* ServerAccount() {
  if (::getuid() != 0) return nullptr;
  const passwd* account = ::getpwnam("postgres");
  return account ? account : ::getpwnam("nobody");
}

}  // namespace

PostgresServer* const kPostgres =
    static_cast<PostgresServer*>(::testing::AddGlobalTestEnvironment(new PostgresServer));

void PostgresServer::SetUp() {
  programs_ = FindPrograms();
  if (programs_.isEmpty()) {
    throw std::runtime_error(
        "the programs of a PostgreSQL server (initdb, postgres) are not installed; the Debian "
        "package is postgresql");
  }
  folder_ = std::make_unique<ScratchFolder>();
  if (const passwd* account = ServerAccount()) {
    if (::chown(QFile::encodeName(*folder_ / "").constData(), account->pw_uid, account->pw_gid) !=
        0) {
      throw std::runtime_error("the server's folder cannot be given to its account");
    }
  }
  RunTool("initdb", {"-D", *folder_ / "data", "-U", "melvado", "--auth=trust", "--encoding=UTF8",
                     "--locale=C", "--no-sync"});
  Start();
}

void PostgresServer::TearDown() {
  Stop();
  folder_.reset();
}

void PostgresServer::Prepare(QProcess& process) const {
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.setWorkingDirectory(*folder_ / "");
  const passwd* account = ServerAccount();
  const uid_t user = account ? account->pw_uid : ::getuid();
  const gid_t group = account ? account->pw_gid : ::getgid();
  process.setChildProcessModifier([user, group] {
    if (::setgid(group) != 0 || ::setuid(user) != 0) ::_exit(1);
    ::prctl(PR_SET_PDEATHSIG, SIGINT);
  });
}

void PostgresServer::RunTool(const QString& tool, const QStringList& arguments) {
  QProcess process;
  Prepare(process);
  process.start(programs_ + '/' + tool, arguments);
  if (!process.waitForFinished(120'000) || process.exitCode() != 0) {
    throw std::runtime_error(tool.toStdString() + ": " + process.readAll().toStdString());
  }
}

void PostgresServer::Start(const QStringList& settings) {
  server_ = std::make_unique<QProcess>();
  Prepare(*server_);
  // Nothing here has to outlast the test, so it need not wait for the disk.
  QStringList arguments = {"-D", *folder_ / "data", "-k", *folder_ / "",  "-c", "listen_addresses=",
                           "-c", "fsync=off",       "-c", "lc_messages=C"};
  for (const QString& setting : settings) arguments << "-c" << setting;
  server_->start(programs_ + "/postgres", arguments);
  QByteArray said;
  while (!said.contains("ready to accept connections")) {
    if (!server_->waitForReadyRead(60'000)) throw std::runtime_error(said.toStdString());
    said += server_->readAll();
  }
  // What it says later is of no use and must not fill its pipe.
  server_->closeReadChannel(QProcess::StandardOutput);
}

void PostgresServer::Stop() {
  if (!server_) return;
  // Its word for: end all connections and shut down.
  ::kill(static_cast<pid_t>(server_->processId()), SIGINT);
  server_->waitForFinished(60'000);
  server_.reset();
}

void PostgresServer::Kill() {
  // Without their parent the others end by themselves.
  server_->kill();
  server_->waitForFinished(60'000);
  server_.reset();
}

void PostgresServer::SignalAll(int signal) const {
  const QString process = QString::number(server_->processId());
  QFile children("/proc/" + process + "/task/" + process + "/children");
  if (!children.open(QIODevice::ReadOnly)) throw std::runtime_error("the server has gone");
  // First its parent, which would answer for them.
  ::kill(static_cast<pid_t>(server_->processId()), signal);
  for (const QByteArray& child : children.readAll().split(' ')) {
    if (child.trimmed().toInt() > 0) ::kill(child.trimmed().toInt(), signal);
  }
}

std::string PostgresServer::NewDatabase() {
  ++databases_;
  Run("postgres", "CREATE DATABASE " + LatestDatabase());
  return Address(LatestDatabase());
}

std::string PostgresServer::Address(const QString& database, const QString& user) const {
  return ("postgresql://" + user + "@/" + database + "?host=" + *folder_ / "").toStdString();
}

void PostgresServer::Run(const QString& database, const QString& statement) {
  QString error;
  {
    QSqlDatabase connection = QSqlDatabase::addDatabase("QPSQL", "owner");
    connection.setHostName(*folder_ / "");
    connection.setUserName("melvado");
    connection.setDatabaseName(database);
    connection.open();
    QSqlQuery query(connection);
    if (!query.exec(statement)) error = query.lastError().text() + connection.lastError().text();
  }
  QSqlDatabase::removeDatabase("owner");
  if (!error.isEmpty()) throw std::runtime_error(error.toStdString());
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/qt/single_instance.h"

#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QLockFile>
#include <QSysInfo>

namespace vmod17 {
namespace {

constexpr int kPatienceMs = 3000;

/// A folder of the user's own on this machine; "" when none can be had.
QString RuntimeFolder() {
  const QString given = qEnvironmentVariable("XDG_RUNTIME_DIR");
  if (!given.isEmpty() && QFileInfo(given).isWritable()) return given;
  const QString folder = QDir::tempPath() + "/melvado-" + QString::number(getuid());
  QDir().mkdir(folder);
  // Anybody can make a folder of this name there. One of another user's is of no use.
  const QFileInfo info(folder);
  if (!info.isDir() || info.isSymLink() || info.ownerId() != getuid()) return {};
  QFile::setPermissions(folder,
                        QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
  return folder;
}

QString SocketPath(const std::string& key) {
  const QString folder = RuntimeFolder();
  if (folder.isEmpty()) return {};
  // A folder may be shared by machines, a process not.
  const QByteArray whole = QSysInfo::machineHostName().toUtf8() + '\n' + key.c_str();
  const QByteArray hash = QCryptographicHash::hash(whole, QCryptographicHash::Sha1).toHex();
  return folder + "/melvado-" + hash.left(24);
}

bool Reach(const QString& path) {
  QLocalSocket socket;
  socket.connectToServer(path);
  return socket.waitForConnected(kPatienceMs);
}

}  // namespace

SingleInstance::SingleInstance(const std::string& key) : path_(SocketPath(key)) {
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
    while (QLocalSocket* socket = server_.nextPendingConnection()) {
      socket->close();  // the answer
      socket->deleteLater();
    }
    if (come_to_front) come_to_front();
  });
}

bool SingleInstance::Claim() {
  if (path_.isEmpty()) return true;
  // Of two that start at once only one may find that there is no other.
  QLockFile lock(path_ + ".lock");
  lock.tryLock(kPatienceMs);
  if (Reach(path_)) return false;
  QLocalServer::removeServer(path_);
  server_.listen(path_);
  return true;
}

bool SingleInstance::BringToFront(const std::string& key) {
  const QString path = SocketPath(key);
  if (path.isEmpty()) return false;
  QLocalSocket socket;
  socket.connectToServer(path);
  if (!socket.waitForConnected(kPatienceMs)) return false;
  // The system connects to a process that hangs, too.
  return socket.state() == QLocalSocket::UnconnectedState ||
         socket.waitForDisconnected(kPatienceMs);
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/store/store_address.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

namespace vmod17 {

std::string UserDataFolder() {
  QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  // A relative XDG_DATA_HOME would put the store wherever the program happens to be started.
  if (QDir::isRelativePath(data)) data = QDir::homePath() + "/.local/share";
  return (data + "/melvado").toStdString();
}

std::string StoreAddress::Display() const {
  if (kind == Kind::kFile) return path.toStdString();
  return server.toDisplayString(QUrl::RemovePassword | QUrl::RemoveQuery).toStdString();
}

std::string StoreAddress::Identity() const {
  if (kind == Kind::kServer) return Display();
  const QFileInfo file(path);
  const QString folder = QFileInfo(file.absolutePath()).canonicalFilePath();
  const QString whole = folder.isEmpty() ? file.absoluteFilePath() : folder + '/' + file.fileName();
  return whole.toStdString();
}

StoreAddress ParseStoreAddress(const std::string& address) {
  StoreAddress parsed;
  if (address.empty()) {
    parsed.is_default = true;
    parsed.path = QString::fromStdString(UserDataFolder()) + "/store.sqlite";
  } else if (address.starts_with("postgresql://") || address.starts_with("postgres://")) {
    parsed.kind = StoreAddress::Kind::kServer;
    QString text = QString::fromStdString(address);
    // A user without a host, for the server's socket on this machine, is no URL by the letter.
    text.replace(QRegularExpression("^([a-z]+://[^/@]*@)/"), "\\1localhost/");
    parsed.server = QUrl(text);
  } else {
    parsed.path = QString::fromStdString(address);
  }
  return parsed;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/store_address.h"

#include <QByteArrayView>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace vmod17 {

namespace {

/// Whether whoever wrote this had a server in mind, however badly it is spelt.
bool LooksLikeServer(const QString& text) {
  constexpr auto kAnyCase = QRegularExpression::CaseInsensitiveOption;
  // Quotes come along from files that set variables.
  static const QRegularExpression kScheme("^[\"'\\s]*(p(g|ost)\\w*\\s*(:|//)|[a-z][a-z0-9+.-]*://)",
                                          kAnyCase);
  // A name and a password before a place. One letter before the colon is a disk.
  static const QRegularExpression kWithPassword("^[\"'\\s]*(//)?[^/.~:][^/:]+:.*@", kAnyCase);
  static const QRegularExpression kKeyValue(
      "(^|[\"'\\s])(host|hostaddr|port|dbname|user|password|service)\\s*=", kAnyCase);
  return kScheme.match(text).hasMatch() || kWithPassword.match(text).hasMatch() ||
         kKeyValue.match(text).hasMatch();
}

/// A percent sign that begins no code stands for itself: a password may hold one.
QString Decoded(const QString& text) {
  static const QRegularExpression kCode("%([0-9A-Fa-f]{2})");
  QByteArray bytes;
  qsizetype end = 0;
  for (const QRegularExpressionMatch& code : kCode.globalMatch(text)) {
    bytes += text.mid(end, code.capturedStart() - end).toUtf8();
    bytes += static_cast<char>(code.captured(1).toInt(nullptr, 16));
    end = code.capturedEnd();
  }
  return QString::fromUtf8(bytes + text.mid(end).toUtf8());
}

/// The server that an address names as a whole; an invalid URL when it cannot be read.
QUrl ServerOf(const QString& text) {
  static const QRegularExpression kAddress(
      "^postgres(?:ql)?://"
      "(?:(?<user>[^:/?#\\s]*)(?::(?<password>.*))?(?<at>@))?"
      "(?<host>[^:/?#@\\s]*|\\[[^\\]@\\s]*\\])(?::(?<port>[0-9]{1,5}))?"
      "(?<path>/[^?#@\\s]*)?(?:\\?(?<options>[^#@\\s]*))?$",
      QRegularExpression::CaseInsensitiveOption);
  const QRegularExpressionMatch match = kAddress.match(text);
  if (!match.hasMatch()) return {};
  QUrl server;
  server.setScheme("postgresql");
  const bool here = match.captured("host").isEmpty() && !match.captured("at").isEmpty();
  server.setHost(here ? QStringLiteral("localhost") : match.captured("host"));
  if (!match.captured("port").isEmpty()) server.setPort(match.captured("port").toInt());
  server.setUserName(Decoded(match.captured("user")), QUrl::DecodedMode);
  server.setPassword(Decoded(match.captured("password")), QUrl::DecodedMode);
  server.setPath(match.captured("path"));
  if (!match.captured("options").isEmpty()) server.setQuery(match.captured("options"));
  return server;
}

}  // namespace

std::string UserDataFolder() {
  const QByteArray data = qgetenv("XDG_DATA_HOME");
  // A relative one would put the store wherever the program happens to be started.
  if (data.startsWith('/')) return data.toStdString() + "/melvado";
  const QByteArray home = qgetenv("HOME");
  return (home.isEmpty() ? QDir::rootPath().toUtf8() : home).toStdString() +
         "/.local/share/melvado";
}

std::string StoreAddress::Display() const {
  if (kind == Kind::kFile || kind == Kind::kNotUtf8) return path.toStdString();
  if (kind == Kind::kUnreadable) return {};
  return server.toDisplayString(QUrl::RemovePassword | QUrl::RemoveQuery).toStdString();
}

std::string StoreAddress::Identity() const {
  if (kind != Kind::kFile) return Display();
  const QFileInfo file(path);
  const QString folder = QFileInfo(file.absolutePath()).canonicalFilePath();
  const QString whole = folder.isEmpty() ? file.absoluteFilePath() : folder + '/' + file.fileName();
  return whole.toStdString();
}

StoreAddress ParseStoreAddress(const std::string& address) {
  StoreAddress parsed;
  const QString text = QString::fromStdString(address);
  if (text.isEmpty()) {
    parsed.is_default = true;
    parsed.path = QString::fromStdString(UserDataFolder()) + "/store.sqlite";
  } else if (LooksLikeServer(text.trimmed())) {
    parsed.server = ServerOf(text.trimmed());
    parsed.kind =
        parsed.server.isValid() ? StoreAddress::Kind::kServer : StoreAddress::Kind::kUnreadable;
  } else {
    parsed.path = text;
  }
  const std::string bytes = parsed.is_default ? UserDataFolder() : address;
  if (parsed.kind == StoreAddress::Kind::kFile && !QByteArrayView(bytes).isValidUtf8()) {
    parsed.kind = StoreAddress::Kind::kNotUtf8;
  }
  return parsed;
}

}  // namespace vmod17

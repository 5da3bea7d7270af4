// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/seat.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>
#include <QUuid>

#include "store/store_file.h"

namespace vmod17 {
namespace {

QString ReadName(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QString name = QString::fromUtf8(file.read(1000)).trimmed();
  return QUuid::fromString(name).isNull() ? QString() : name;
}

/// Nobody finds half a name: it is written beside its place. Of two processes that do so at once
/// the first one's holds.
void MakeName(const QString& path) {
  const QString name = QUuid::createUuid().toString(QUuid::WithoutBraces);
  const QString draft = path + '-' + name;
  if (!PrepareStoreFile(draft, Privacy::kOfNewFiles).isEmpty()) return;
  QFile file(draft);
  const bool written =
      file.open(QIODevice::WriteOnly) && file.write(name.toUtf8() + '\n') > 0 && file.flush();
  file.close();
  // What cannot be read as a name is none, and stands in the way.
  if (written && QFileInfo::exists(path) && ReadName(path).isEmpty()) QFile::remove(path);
  if (!written || !QFile::rename(draft, path)) QFile::remove(draft);
}

}  // namespace

std::string ThisMachine() {
  return QSysInfo::machineHostName().toStdString() + '\n' +
         QSysInfo::machineUniqueId().toStdString();
}

Seat SeatIn(const QString& folder, const std::string& machine) {
  const QString login = qEnvironmentVariable("USER", qEnvironmentVariable("USERNAME"));
  const std::string host = machine.substr(0, machine.find('\n'));
  Seat seat;
  seat.former = host + '/' + login.toStdString();
  const QByteArray mark =
      QCryptographicHash::hash(QByteArray::fromStdString(machine), QCryptographicHash::Sha256);
  const QString path = folder + "/seat-" + QString::fromLatin1(mark.toHex().left(16));
  QString name = ReadName(path);
  if (name.isEmpty() && !folder.isEmpty()) {
    MakeName(path);
    name = ReadName(path);
  }
  seat.name = name.isEmpty() ? seat.former : seat.former + '/' + name.toStdString();
  return seat;
}

}  // namespace vmod17

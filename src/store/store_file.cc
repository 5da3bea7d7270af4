// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/store_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <filesystem>
#include <system_error>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace vmod17 {
namespace {

constexpr QFileDevice::Permissions kOwnerFile = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
constexpr QFileDevice::Permissions kOwnerFolder = kOwnerFile | QFileDevice::ExeOwner;

bool MakeFolder(const QString& folder) {
  if (QFileInfo(folder).isDir()) return true;
  if (!MakeFolder(QFileInfo(folder).absolutePath())) return false;
  // Another process may have made it meanwhile.
  if (!QDir().mkdir(folder, kOwnerFolder)) return QFileInfo(folder).isDir();
  return QFile::setPermissions(folder, kOwnerFolder);
}

void Narrow(const QString& path, QFileDevice::Permissions allowed) {
  constexpr QFileDevice::Permissions kOthers = QFileDevice::ReadGroup | QFileDevice::WriteGroup |
                                               QFileDevice::ExeGroup | QFileDevice::ReadOther |
                                               QFileDevice::WriteOther | QFileDevice::ExeOther;
  if ((QFile::permissions(path) & kOthers) != 0) QFile::setPermissions(path, allowed);
}

QString Stamp(const DateTime& now) {
  const auto digits = [](int number, int count) {
    return QString::number(number).rightJustified(count, '0');
  };
  return digits(now.year, 4) + digits(now.month, 2) + digits(now.day, 2) + '-' +
         digits(now.hour, 2) + digits(now.minute, 2) + digits(now.second, 2);
}

/// The first of `wanted`, `wanted`-2 and so on under which nothing lies, nor beside it.
QString Free(const QString& wanted) {
  QString name = wanted;
  const auto is_taken = [&name] {
    return QFileInfo::exists(name) || std::ranges::any_of(kSideFiles, [&](const char* side) {
             return QFileInfo::exists(name + side);
           });
  };
  for (int i = 2; is_taken(); ++i) name = wanted + '-' + QString::number(i);
  return name;
}

}  // namespace

FileIdentity IdentityOf(const QString& path) {
#ifdef Q_OS_UNIX
  struct stat facts {};
  if (::stat(QFile::encodeName(path).constData(), &facts) != 0) return {};
  return {facts.st_dev, facts.st_ino};
#else
  return {0, 0};
#endif
}

QString PrepareStoreFile(const QString& path, Privacy privacy) {
  // What stands for the bytes that are not UTF-8 would name another folder.
  if (path.contains(QChar::ReplacementCharacter)) {
    return QStringLiteral("the name of the folder is not in UTF-8");
  }
  const QString folder = QFileInfo(path).absolutePath();
  if (!MakeFolder(folder)) return QStringLiteral("the folder cannot be made");
  QFile file(path);
  if (!file.exists()) {
    // Not truncating: of two programs that start at once the second finds the first one's file.
    if (!file.open(QIODevice::ReadWrite, kOwnerFile)) return file.errorString();
    file.setPermissions(kOwnerFile);
  } else if (!QFileInfo(path).isFile()) {
    return QStringLiteral("it is not a file");
  }
  if (privacy == Privacy::kEnforced) {
    Narrow(folder, kOwnerFolder);
    Narrow(path, kOwnerFile);
  }
  return {};
}

bool IsWritableStore(const QString& path) {
  return QFileInfo(path).isWritable() && QFileInfo(QFileInfo(path).absolutePath()).isWritable();
}

QString BrokenSuffix(const DateTime& now) { return ".broken-" + Stamp(now); }

QString FreeAside(const QString& path, const DateTime& now) {
  return Free(path + ".replaced-" + Stamp(now));
}

QString KeepAlsoAside(const QString& path, const DateTime& now) {
  for (;;) {
    const QString name = FreeAside(path, now);
    std::error_code error;
    std::filesystem::create_hard_link(QFile::encodeName(path).toStdString(),
                                      QFile::encodeName(name).toStdString(), error);
    if (!error) return name;
    if (error == std::errc::file_exists) continue;  // taken by another process meanwhile
    if (QFile::copy(path, name) && SyncToDisk(name)) return name;
    return {};
  }
}

bool SyncToDisk(const QString& path) {
#ifdef Q_OS_UNIX
  const int handle = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
  if (handle < 0) return false;
  const bool done = ::fsync(handle) == 0;
  ::close(handle);
  return done;
#else
  return true;
#endif
}

QString MoveStoreAside(const QString& path, const DateTime& now) {
  const QString aside = Free(path + BrokenSuffix(now));
  // The side files first: left under the old name they would be taken for those of the new file.
  for (const char* side : kSideFiles) {
    if (QFileInfo::exists(path + side) && !QFile::rename(path + side, aside + side)) return {};
  }
  return QFile::rename(path, aside) ? aside : QString();
}

}  // namespace vmod17

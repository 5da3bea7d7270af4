// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/store/store_backup.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <array>
#include <cerrno>
#include <cstdio>

#include "platform/store/sqlite_connection.h"
#include "platform/store/store_file.h"
#include "platform/store/store_notices.h"
#include "platform/store/store_tables.h"

namespace vmod17 {
namespace {

// What SQLite needs beside a file to read it whole. The third side file is made anew.
constexpr std::array<const char*, 2> kLogs = {"-wal", "-journal"};
constexpr std::array<const char*, 4> kTables = {"melvado_meta", "melvado_record", "melvado_setting",
                                                "melvado_log"};
constexpr int kWaitForOthersMs = 500;

/// The file itself, where the name is a link to it: side files lie beside that.
QString Itself(const QString& path) {
  const QString itself = QFileInfo(path).canonicalFilePath();
  return itself.isEmpty() ? path : itself;
}

/// Appends all of a file. False when it cannot be read or written.
bool AppendTo(QFile& target, QFile& source) {
  std::array<char, 1 << 16> bytes;
  for (;;) {
    const qint64 read = source.read(bytes.data(), bytes.size());
    if (read <= 0) return read == 0;
    if (target.write(bytes.data(), read) != read) return false;
  }
}

bool BeginsLikeADatabase(QFile& file) {
  return file.peek(16) == QByteArray("SQLite format 3\0", 16);
}

std::string Path(const QString& path) { return path.toStdString(); }

}  // namespace

StoreBackup::StoreBackup(const QString& file, const QString& store)
    : file_(Itself(file)), store_(Itself(store)) {}

StoreBackup::~StoreBackup() {
  if (!copy_) return;
  // The checking of what is damaged may have left some.
  for (const char* side : {"-wal", "-shm", "-journal"}) QFile::remove(Copy() + side);
}

std::optional<Notice> StoreBackup::Prepare() {
  if (const auto refusal = MakeCopy()) return refusal;
  try {
    if (const auto refusal = CheckCopy()) return refusal;
  } catch (const SqlError& error) {
    return DamagedBackupNotice(Path(file_), error.what());
  }
  if (!SyncToDisk(Copy())) return Failed("the copy cannot be written to the disk");
  return std::nullopt;
}

std::optional<Notice> StoreBackup::MakeCopy() {
  if (QFileInfo::exists(store_) && IdentityOf(file_) == IdentityOf(store_)) {
    return PresentStoreNotice(Path(file_));
  }
  QFile backup(file_);
  if (!QFileInfo(file_).isFile()) return NoBackupNotice(Path(file_));
  if (!backup.open(QIODevice::ReadOnly)) return Failed(backup.errorString());
  if (!BeginsLikeADatabase(backup)) return NoBackupNotice(Path(file_));
  copy_ = std::make_unique<QTemporaryFile>(store_ + ".restore-XXXXXX");
  if (!copy_->open() || !AppendTo(*copy_, backup)) return Failed(copy_->errorString());
  for (const char* log : kLogs) {
    QFile source(file_ + log);
    if (!source.exists()) continue;
    QFile target(Copy() + log);
    if (!source.open(QIODevice::ReadOnly)) return Failed(source.errorString());
    if (!target.open(QIODevice::WriteOnly) || !AppendTo(target, source)) {
      return Failed(target.errorString());
    }
  }
  copy_->close();
  return std::nullopt;
}

std::optional<Notice> StoreBackup::CheckCopy() const {
  SqliteConnection connection(Copy());
  connection.Open(kWaitForOthersMs);
  // First of all: of a damaged file the version may be anything.
  const SqlResult check = connection.Run(QStringLiteral("PRAGMA integrity_check(1)"));
  const QString finding = check.rows.isEmpty() ? QString() : check.rows[0][0].toString();
  if (finding != "ok") return DamagedBackupNotice(Path(file_), finding.toStdString());
  const std::optional<StoreTables::Facts> facts =
      StoreTables(connection).LookInto("", "", StoreTables::AlsoUsers::kNo);
  if (!facts) return NoBackupNotice(Path(file_));
  if (facts->version > kStoreVersion) return NewerBackupNotice(Path(file_));
  for (const char* table : kTables) {
    if (!connection.HasTable(table)) return NoBackupNotice(Path(file_));
  }
  connection.KeepToOneFile();
  return std::nullopt;
}

std::optional<Notice> StoreBackup::PutInPlace(const DateTime& now) {
  if (!QFileInfo::exists(store_)) return Exchange(now);
  if (!IsWritableStore(store_)) return Failed("the store is read-only");
  SqliteConnection present(store_);
  try {
    present.Open(kWaitForOthersMs);
    // It goes through for the only one who has the file open, who then has nothing beside it.
    present.KeepToOneFile();
    std::optional<Notice> refusal;
    present.Alone([&] { refusal = Exchange(now); });
    return refusal;
  } catch (const SqlError& error) {
    if (error.failure() == SqlFailure::kLocked) return StoreInUseNotice(Path(store_));
    // What nobody can open is put aside as it is.
    if (error.failure() == SqlFailure::kBroken) return Exchange(now);
    return Failed(QString::fromStdString(error.what()));
  }
}

std::optional<Notice> StoreBackup::Exchange(const DateTime& now) {
  QFile::setPermissions(Copy(), QFileInfo::exists(store_)
                                    ? QFile::permissions(store_)
                                    : QFileDevice::ReadOwner | QFileDevice::WriteOwner);
  if (QFileInfo::exists(store_)) {
    aside_ = KeepAlsoAside(store_, now);
    if (aside_.isEmpty()) return Failed("the store cannot be put aside");
  }
  if (std::rename(QFile::encodeName(Copy()).constData(), QFile::encodeName(store_).constData()) !=
      0) {
    const QString reason = qt_error_string(errno);
    if (!aside_.isEmpty()) QFile::remove(aside_);
    return Failed(reason);
  }
  copy_->setAutoRemove(false);
  SyncToDisk(QFileInfo(store_).absolutePath());
  return std::nullopt;
}

Notice StoreBackup::Failed(const QString& reason) const {
  return BackupNotRestoredNotice(Path(file_), reason.toStdString());
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/store_backup.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <array>
#include <cerrno>
#include <cstdio>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

#include "store/sqlite_connection.h"
#include "store/store_file.h"
#include "store/store_notices.h"
#include "store/store_tables.h"

namespace vmod17 {
namespace {

// What SQLite needs beside a file to read it whole. The third side file is made anew.
constexpr std::array<const char*, 2> kLogs = {"-wal", "-journal"};
constexpr std::array<const char*, 4> kTables = {"melvado_meta", "melvado_record", "melvado_setting",
                                                "melvado_log"};
constexpr int kWaitForOthersMs = 500;

/// The file itself, where the name is a link to it: side files lie beside that. A link may also
/// lead to a file that is not there any more.
QString Itself(const QString& path) {
  const QFileInfo info(path);
  const QString itself = info.canonicalFilePath();
  if (!itself.isEmpty()) return itself;
  return info.isSymLink() ? info.symLinkTarget() : path;
}

/// Appends all of a file, out of our hands: what a full disk does not take must show here, for a
/// log that is cut is a whole one of fewer transactions. Returns why it cannot be done, or "".
QString AppendTo(QFile& target, QFile& source) {
  std::array<char, 1 << 16> bytes;
  for (;;) {
    const qint64 read = source.read(bytes.data(), bytes.size());
    if (read < 0) return source.errorString();
    if (read == 0) return target.flush() ? QString() : target.errorString();
    if (target.write(bytes.data(), read) != read) return target.errorString();
  }
}

/// Names of the copies, beside the store.
QString CopiesOf(const QString& store) { return store + ".restore-"; }

/// A restoring that was killed leaves its copy, with the names of people in it.
void RemoveOldCopies(const QString& store) {
  constexpr qint64 kNobodyTakesThatLong = 3600;
  const QFileInfo info(store);
  const QString begin = QFileInfo(CopiesOf(store)).fileName();
  const QDateTime now = QDateTime::currentDateTimeUtc();
  for (const QFileInfo& file : info.absoluteDir().entryInfoList(QDir::Files | QDir::Hidden)) {
    const bool is_old = file.lastModified().secsTo(now) > kNobodyTakesThatLong;
    if (is_old && file.fileName().startsWith(begin)) QFile::remove(file.filePath());
  }
}

/// Gives a file the owner's mode and, where that is allowed, the group of another.
void TakeAfter(const QString& path, const QString& other) {
  const QFileInfo model(other);
  if (!model.exists()) {
    QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    return;
  }
#ifdef Q_OS_UNIX
  constexpr uid_t kSameOwner = static_cast<uid_t>(-1);
  // Not being allowed to is no reason to restore nothing.
  static_cast<void>(!::chown(QFile::encodeName(path).constData(), kSameOwner, model.groupId()));
#endif
  QFile::setPermissions(path, model.permissions());
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
  for (const char* side : kSideFiles) QFile::remove(Copy() + side);
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
  RemoveOldCopies(store_);
  copy_ = std::make_unique<QTemporaryFile>(CopiesOf(store_) + "XXXXXX");
  if (!copy_->open()) return Failed(copy_->errorString());
  if (const QString why = AppendTo(*copy_, backup); !why.isEmpty()) return Failed(why);
  for (const char* log : kLogs) {
    QFile source(file_ + log);
    if (!source.exists()) continue;
    QFile target(Copy() + log);
    if (!source.open(QIODevice::ReadOnly)) return Failed(source.errorString());
    if (!target.open(QIODevice::WriteOnly)) return Failed(target.errorString());
    if (const QString why = AppendTo(target, source); !why.isEmpty()) return Failed(why);
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
  std::optional<Notice> refusal;
  if (!QFileInfo::exists(store_)) {
    beside_ = FreeAside(store_, now);
    refusal = Exchange();
  } else if (!IsWritableStore(store_)) {
    return Failed("the store is read-only");
  } else {
    refusal = ReplaceStore(now);
  }
  if (refusal) Undo();
  return refusal;
}

std::optional<Notice> StoreBackup::ReplaceStore(const DateTime& now) {
  SqliteConnection present(store_);
  try {
    present.Open(kWaitForOthersMs);
    // It goes through for the only one who has the file open, who then has nothing beside it.
    present.KeepToOneFile();
    const qlonglong version = present.DataVersion();
    if (!KeepStore(now)) return Failed("the store cannot be put aside");
    std::optional<Notice> refusal;
    present.Alone([&] {
      // Between the two somebody may have come and gone.
      const bool is_same = present.DataVersion() == version && present.IsInOneFile();
      refusal = is_same ? Exchange() : StoreInUseNotice(Path(store_));
    });
    return refusal;
  } catch (const SqlError& error) {
    if (error.failure() == SqlFailure::kLocked) return StoreInUseNotice(Path(store_));
    if (error.failure() != SqlFailure::kBroken) return Failed(QString::fromUtf8(error.what()));
  }
  // What nobody can open is put aside as it is.
  if (!KeepStore(now)) return Failed("the store cannot be put aside");
  return Exchange();
}

bool StoreBackup::KeepStore(const DateTime& now) {
  if (aside_.isEmpty()) aside_ = beside_ = KeepAlsoAside(store_, now);
  return !aside_.isEmpty() && SyncToDisk(QFileInfo(store_).absolutePath());
}

std::optional<Notice> StoreBackup::Exchange() {
  // The side files first: the copy would be read with whatever lies beside it.
  for (const char* side : kSideFiles) {
    if (!QFileInfo::exists(store_ + side)) continue;
    if (!QFile::rename(store_ + side, beside_ + side)) {
      return Failed("what lies beside the store cannot be put aside");
    }
    moved_.push_back(side);
  }
  TakeAfter(Copy(), store_);
  if (std::rename(QFile::encodeName(Copy()).constData(), QFile::encodeName(store_).constData()) !=
      0) {
    return Failed(qt_error_string(errno));
  }
  copy_->setAutoRemove(false);
  if (aside_.isEmpty() && !moved_.empty()) aside_ = beside_ + moved_.front();
  SyncToDisk(QFileInfo(store_).absolutePath());
  return std::nullopt;
}

/// All is as it was.
void StoreBackup::Undo() {
  for (const char* side : moved_) QFile::rename(beside_ + side, store_ + side);
  if (!aside_.isEmpty()) QFile::remove(aside_);
  moved_.clear();
  aside_.clear();
}

Notice StoreBackup::Failed(const QString& reason) const {
  return BackupNotRestoredNotice(Path(file_), reason.toStdString());
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QTemporaryFile>
#include <memory>
#include <optional>
#include <vector>

#include "base/notice.h"
#include "ports/event_loop.h"

namespace vmod17 {

/// A backup on its way into the place of a store that is a file.
class StoreBackup {
 public:
  /// `file` is the backup, `store` the path of the store. Nothing is done yet.
  StoreBackup(const QString& file, const QString& store);
  ~StoreBackup();
  StoreBackup(const StoreBackup&) = delete;
  StoreBackup& operator=(const StoreBackup&) = delete;

  /// Copies the backup to the folder of the store and looks whether the copy is a sound store of a
  /// version that can be read. The backup itself is only read; what lies in side files beside it
  /// belongs to it, and nothing of it is left to side files in the copy. Returns why it cannot be
  /// restored.
  std::optional<Notice> Prepare();
  /// Puts the copy in the place of the store and the store aside, under a name that is free. At
  /// each moment one of the two lies whole in that place. Returns why it cannot be done, as when
  /// another process has the store open; then all is as it was.
  std::optional<Notice> PutInPlace(const DateTime& now);
  /// Where the store is now that was there before, or what was left of one; "" for none.
  QString aside() const { return aside_; }

 private:
  QString Copy() const { return copy_->fileName(); }
  std::optional<Notice> MakeCopy();
  std::optional<Notice> CheckCopy() const;
  std::optional<Notice> ReplaceStore(const DateTime& now);
  [[nodiscard]] bool KeepStore(const DateTime& now);
  std::optional<Notice> Exchange();
  void Undo();
  Notice Failed(const QString& reason) const;

  QString file_;
  QString store_;
  std::unique_ptr<QTemporaryFile> copy_;
  QString aside_;
  QString beside_;                  // to whose name the endings of side files go
  std::vector<const char*> moved_;  // of side files, by their endings
};

}  // namespace vmod17

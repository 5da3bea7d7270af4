// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/tagged_value.h"
#include "ports/event_loop.h"

namespace vmod17 {

class SqliteConnection;

struct OutboxEntry {
  std::string kind;
  TaggedValue content;
};

/// Entries that belong together.
struct OutboxPiece {
  std::int64_t number = 0;
  std::string at;              ///< date and time at which it was added, "YYYY-MM-DD hh:mm:ss"
  bool is_of_another = false;  ///< of a process that is still at work, and will see to it
  std::vector<OutboxEntry> entries;
};

/// What a far store has not taken yet, in a file of this machine that only its owner can read: a
/// list of pieces in the order in which they came, each of one or more entries.
/// It knows nothing of what its entries mean. A piece is on the disk when it has been added, and
/// stays until it is removed; several processes may work on one file. No member throws: a
/// file that cannot be written takes nothing, and one that cannot be read has nothing.
class Outbox {
 public:
  /// Is told the new path of a file.
  using PutAsideHandler = std::function<void(const QString& aside)>;

  /// The file need not exist. One that is damaged or of another version is put aside, under a name
  /// that bears the date.
  Outbox(QString path, std::function<DateTime()> clock, PutAsideHandler put_aside = {});
  ~Outbox();

  /// Whether it is there to be written, and has taken the last piece; makes it where it is not.
  bool IsReady() { return !has_refused_ && Open(); }
  /// Adds one piece. Returns its number, or none when it could not be written.
  std::optional<std::int64_t> Add(const std::vector<OutboxEntry>& entries);
  /// The oldest first. An entry that is damaged is left out.
  std::vector<OutboxPiece> Pieces();
  void Remove(std::int64_t piece);

  const QString& Path() const { return path_; }

 private:
  [[nodiscard]] bool Open();
  void OpenAnew();
  bool PutAside();

  QString path_;
  std::function<DateTime()> clock_;
  PutAsideHandler put_aside_;
  std::unique_ptr<SqliteConnection> connection_;
  bool has_refused_ = false;  // the last piece
};

}  // namespace vmod17

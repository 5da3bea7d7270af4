// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/notice.h"
#include "store/outbox.h"
#include "store/store_address.h"
#include "store/store_connection.h"
#include "store/store_options.h"
#include "store/store_tables.h"
#include "store/store_user.h"
#include "store/trouble_report.h"

namespace vmod17 {

/// The outbox of a server and the way from there to the server: pieces are posted before the server
/// is asked, and forwarded in their order. For a store that is a file there is no outbox, and
/// nothing is ever posted.
class OutboxForwarder {
 public:
  /// What is passed by reference outlives the forwarder. `look_later` is called when something
  /// stays that has to be tried again.
  OutboxForwarder(const StoreOptions& options, const StoreAddress& address, std::string seat,
                  StoreConnection& connection, TroubleReport& trouble,
                  std::function<void()> look_later);
  ~OutboxForwarder();

  /// Whether there is an outbox.
  bool IsThere() const { return outbox_ != nullptr; }
  /// Whether it takes what is posted, as far as is known.
  bool CanKeep() const { return outbox_ && outbox_->IsReady(); }

  /// Puts the entries into the outbox as one piece, and returns its number. None where there is no
  /// outbox, or where the store would never take them.
  std::optional<std::int64_t> Post(const std::vector<OutboxEntry>& entries);
  /// The same for records: each goes with what this process has seen of its key.
  std::optional<std::int64_t> Post(const Records& records);
  void Remove(std::int64_t piece) { outbox_->Remove(piece); }

  std::vector<OutboxPiece> Pieces() const;
  /// The entries of all pieces, the oldest first.
  std::vector<OutboxEntry> Entries() const;
  std::optional<std::string> Find(const RecordKey& key) const;
  /// Whether anything waits that is this process's to bring, and that a "STORE" could overtake.
  bool HoldsBack() const;

  /// Brings the store what stands in the outbox, as far as there is time. Returns whether nothing
  /// is left but what another process at work will bring, and lines of the log. Errors: SqlError
  /// kUnreachable.
  bool Forward();

  /// This process has read this from the store, or goes on with it.
  void SetSeen(const RecordKey& key, const std::optional<std::string>& value);
  void SetSeen(const Records& records);
  /// Whether the store holds a record of another machine's that this process goes past.
  bool GoesPastAnother(const Records& records) const;

  /// From now on nobody can be told: notices go into the outbox, for the next process.
  void EndTelling() { is_ending_ = true; }

 private:
  bool BringPieces(const std::vector<OutboxPiece>& pieces);
  bool BringPiece(const OutboxPiece& piece);
  std::vector<Notice> Bring(StoreTables& tables, const OutboxPiece& piece);
  std::optional<Notice> BringNewUser(StoreTables& tables, const TaggedValue& content);
  void BringLines(StoreTables& tables, const std::vector<LogEntry>& lines);
  std::string SeenOf(const RecordKey& key) const;
  bool CanTell() const { return trouble_.CanTell() && !is_ending_; }
  void TellOrPost(const Notice& notice);

  const StoreOptions& options_;
  const StoreAddress& address_;
  const std::string seat_;
  StoreConnection& connection_;
  TroubleReport& trouble_;
  const std::function<void()> look_later_;
  std::unique_ptr<Outbox> outbox_;
  // Fingerprints of what the server holds, as far as this process knows; "" where it holds another
  // one than the one with which this process goes on.
  std::map<RecordKey, std::string> seen_;
  bool is_ending_ = false;
};

}  // namespace vmod17

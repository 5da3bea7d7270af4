// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/tagged_value.h"
#include "ports/host_service.h"
#include "store/log_entry.h"
#include "store/pending_writes.h"
#include "store/seat_settings.h"
#include "store/store_connection.h"
#include "store/store_options.h"
#include "store/store_tables.h"
#include "store/trouble_report.h"

namespace vmod17 {

class HostStore;

/// The host's commands by name, as the screens give them. Each is one `StoreConnection::Call`; its
/// arguments are checked first, and what is read is looked for in `PendingWrites` before the store.
class StoreCommands : public HostService {
 public:
  /// All that is passed outlives the commands.
  StoreCommands(HostStore& store, const StoreOptions& options, StoreConnection& connection,
                PendingWrites& pending, SeatSettings& settings, TroubleReport& trouble);

  bool Action(std::string_view command, const TaggedValue& args, TaggedValue& result) override;
  void Together(const std::function<void()>& stores) override;

 private:
  using Patience = StoreConnection::Patience;

  bool Midi(TaggedValue& result);
  bool Read(const TaggedValue& args, TaggedValue& result);
  bool Store(const TaggedValue& args);
  bool Login(TaggedValue& result);
  bool Lang(TaggedValue& result);
  bool Menue();
  bool AppendLog(LogEntry entry);
  RecordKey KeyOf(const TaggedValue& args, Patience patience);
  std::optional<std::string> Find(const RecordKey& key);
  void PutAside(const RecordKey& key, const std::string& value);

  HostStore& store_;
  const StoreOptions& options_;
  StoreConnection& connection_;
  PendingWrites& pending_;
  SeatSettings& settings_;
  TroubleReport& trouble_;
};

}  // namespace vmod17

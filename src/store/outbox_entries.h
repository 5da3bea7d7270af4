// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>
#include <vector>

#include "base/notice.h"
#include "base/tagged_value.h"
#include "store/log_entry.h"
#include "store/outbox.h"
#include "store/store_tables.h"
#include "store/store_user.h"

namespace vmod17 {

/// What the entries of an outbox mean. A new kind is a line here, its two functions, and a line in
/// `OutboxForwarder::Bring`:
///
/// | kind     | content                                                            |
/// |----------|--------------------------------------------------------------------|
/// | record   | user, program, key, value, what was seen (`LateRecord::seen`)      |
/// | setting  | name, value                                                        |
/// | user     | number, name, first name, and the two names with which he was added |
/// | new user | the same                                                            |
/// | user gone| number                                                              |
/// | log      | the members of a line                                              |
/// | notice   | number of the text, text, and what stands in it                    |
inline constexpr const char* kRecordKind = "record";
inline constexpr const char* kSettingKind = "setting";
inline constexpr const char* kUserKind = "user";
inline constexpr const char* kNewUserKind = "new user";
inline constexpr const char* kUserGoneKind = "user gone";
inline constexpr const char* kLogKind = "log";
inline constexpr const char* kNoticeKind = "notice";

OutboxEntry RecordEntry(const RecordKey& key, const LateRecord& record);
OutboxEntry SettingEntry(const std::string& name, const std::string& value);
OutboxEntry UserEntry(const StoreUser& user);
/// `first` is the user as he was when he was added.
OutboxEntry NewUserEntry(const StoreUser& user, const StoreUser& first);
OutboxEntry UserGoneEntry(const std::string& id);
OutboxEntry LogLineEntry(const LogEntry& line);
OutboxEntry NoticeEntry(const Notice& notice);

/// What stands in the content of an entry, of the kind that has it.
RecordKey KeyIn(const TaggedValue& content);
LateRecord RecordIn(const TaggedValue& content);
StoreUser UserIn(const TaggedValue& content);
StoreUser FirstNamesIn(const TaggedValue& content);
LogEntry LineIn(const TaggedValue& content);
Notice NoticeIn(const TaggedValue& content);

bool IsUserKind(const std::string& kind);
bool IsOfLog(const OutboxPiece& piece);
bool IsNotice(const OutboxPiece& piece);
/// What it is that the entries change: of two pieces that have one in common the later holds.
std::vector<RecordKey> SubjectsIn(const OutboxPiece& piece);

}  // namespace vmod17

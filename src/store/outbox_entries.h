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

// Kinds of what stands in an outbox.
inline constexpr const char* kRecordKind = "record";     // user, program, key, value, what was seen
inline constexpr const char* kSettingKind = "setting";   // name, value
inline constexpr const char* kUserKind = "user";         // number, name, first name
inline constexpr const char* kNewUserKind = "new user";  // and the names with which he was added
inline constexpr const char* kUserGoneKind = "user gone";  // number
inline constexpr const char* kLogKind = "log";             // the members of a line
inline constexpr const char* kNoticeKind =
    "notice";  // number of the text, text, and what stands in it

TaggedValue ContentOf(const LogEntry& line);

LogEntry LineIn(const TaggedValue& content);

StoreUser UserIn(const TaggedValue& content);

bool IsUserKind(const std::string& kind);

TaggedValue ContentOf(const Notice& notice);

Notice NoticeIn(const TaggedValue& content);

/// One who was added, as he was then.
StoreUser FirstNamesIn(const TaggedValue& content);

RecordKey KeyIn(const TaggedValue& content);

bool IsOfLog(const OutboxPiece& piece);

bool IsNotice(const OutboxPiece& piece);

/// What it is that the entries change: of two pieces that have one in common the later holds.
std::vector<RecordKey> SubjectsIn(const OutboxPiece& piece);

}  // namespace vmod17

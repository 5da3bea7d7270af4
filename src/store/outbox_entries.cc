// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/outbox_entries.h"

#include <algorithm>

namespace vmod17 {

TaggedValue ContentOf(const LogEntry& line) {
  return TaggedValue::Array{line.kind == LogEntry::Kind::kError ? 1 : 0,
                            line.at,
                            line.user,
                            line.place,
                            line.number,
                            line.text,
                            line.source};
}

LogEntry LineIn(const TaggedValue& content) {
  LogEntry line;
  line.kind = content[0].Integer() == 1 ? LogEntry::Kind::kError : LogEntry::Kind::kMessage;
  line.at = content[1].String();
  line.user = content[2].String();
  line.place = content[3].String();
  line.number = content[4].Integer();
  line.text = content[5].String();
  line.source = content[6].String();
  return line;
}

StoreUser UserIn(const TaggedValue& content) {
  return {content[0].String(), content[1].String(), content[2].String()};
}

bool IsUserKind(const std::string& kind) {
  return kind == kUserKind || kind == kNewUserKind || kind == kUserGoneKind;
}

TaggedValue ContentOf(const Notice& notice) {
  TaggedValue::Array content = {notice.text_id, notice.english};
  content.insert(content.end(), notice.details.begin(), notice.details.end());
  return content;
}

Notice NoticeIn(const TaggedValue& content) {
  Notice notice{static_cast<int>(content[0].Integer()), content[1].String(), {}};
  for (std::size_t i = 2; i < content.Elements().size(); ++i) {
    notice.details.push_back(content[i].String());
  }
  return notice;
}

StoreUser FirstNamesIn(const TaggedValue& content) {
  return {content[0].String(), content[3].String(), content[4].String()};
}

RecordKey KeyIn(const TaggedValue& content) {
  return {content[0].String(), content[1].String(), content[2].String()};
}

bool IsOfLog(const OutboxPiece& piece) {
  return std::any_of(piece.entries.begin(), piece.entries.end(),
                     [](const OutboxEntry& entry) { return entry.kind == kLogKind; });
}

bool IsNotice(const OutboxPiece& piece) {
  return !piece.entries.empty() && piece.entries[0].kind == kNoticeKind;
}

std::vector<RecordKey> SubjectsIn(const OutboxPiece& piece) {
  std::vector<RecordKey> subjects;
  for (const auto& [kind, content] : piece.entries) {
    if (kind == kRecordKind) subjects.push_back(KeyIn(content));
    if (kind == kSettingKind) subjects.push_back({"", kind, content[0].String()});
    if (IsUserKind(kind)) subjects.push_back({"", kUserKind, content[0].String()});
  }
  return subjects;
}

}  // namespace vmod17

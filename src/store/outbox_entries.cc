// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/outbox_entries.h"

#include <algorithm>
#include <cstddef>

namespace vmod17 {

OutboxEntry RecordEntry(const RecordKey& key, const LateRecord& record) {
  return {kRecordKind,
          TaggedValue::Array{key.user, key.program, key.key, record.value, record.seen}};
}

OutboxEntry SettingEntry(const std::string& name, const std::string& value) {
  return {kSettingKind, TaggedValue::Array{name, value}};
}

OutboxEntry UserEntry(const StoreUser& user) {
  return {kUserKind, NewUserEntry(user, user).content};
}

OutboxEntry NewUserEntry(const StoreUser& user, const StoreUser& first) {
  return {kNewUserKind,
          TaggedValue::Array{user.id, user.name, user.first_name, first.name, first.first_name}};
}

OutboxEntry UserGoneEntry(const std::string& id) { return {kUserGoneKind, TaggedValue::Array{id}}; }

OutboxEntry LogLineEntry(const LogEntry& line) {
  return {kLogKind, TaggedValue::Array{line.kind == LogEntry::Kind::kError ? 1 : 0, line.at,
                                       line.user, line.place, line.number, line.text, line.source}};
}

OutboxEntry NoticeEntry(const Notice& notice) {
  TaggedValue::Array content = {notice.text_id, notice.english};
  content.insert(content.end(), notice.details.begin(), notice.details.end());
  return {kNoticeKind, content};
}

RecordKey KeyIn(const TaggedValue& content) {
  return {content[0].String(), content[1].String(), content[2].String()};
}

LateRecord RecordIn(const TaggedValue& content) {
  return {content[3].String(), content[4].String()};
}

StoreUser UserIn(const TaggedValue& content) {
  return {content[0].String(), content[1].String(), content[2].String()};
}

StoreUser FirstNamesIn(const TaggedValue& content) {
  return {content[0].String(), content[3].String(), content[4].String()};
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

Notice NoticeIn(const TaggedValue& content) {
  Notice notice{static_cast<int>(content[0].Integer()), content[1].String(), {}};
  for (std::size_t i = 2; i < content.Elements().size(); ++i) {
    notice.details.push_back(content[i].String());
  }
  return notice;
}

bool IsUserKind(const std::string& kind) {
  return kind == kUserKind || kind == kNewUserKind || kind == kUserGoneKind;
}

bool IsOfLog(const OutboxPiece& piece) {
  return std::ranges::any_of(piece.entries,
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

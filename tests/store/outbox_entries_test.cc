// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/outbox_entries.h"

#include <gtest/gtest.h>

namespace vmod17 {
namespace {

const StoreUser kAnna{"4711", "Berg", "Anna"};
const RecordKey kKey{"4711", "vmod17", "E1"};

TEST(OutboxEntries, GiveARecordBackAsItWas) {
  const OutboxEntry entry = RecordEntry(kKey, {std::string("\0\xFF", 2), "seen"});
  EXPECT_EQ(entry.kind, kRecordKind);
  EXPECT_EQ(KeyIn(entry.content), kKey);
  EXPECT_EQ(RecordIn(entry.content).value, std::string("\0\xFF", 2));
  EXPECT_EQ(RecordIn(entry.content).seen, "seen");
}

TEST(OutboxEntries, GiveAUserBackAsHeIsAndAsHeWasAdded) {
  const StoreUser renamed{"4711", "Thal", "Anna"};
  const OutboxEntry entry = NewUserEntry(renamed, kAnna);
  EXPECT_EQ(entry.kind, kNewUserKind);
  EXPECT_EQ(UserIn(entry.content), renamed);
  EXPECT_EQ(FirstNamesIn(entry.content), kAnna);
  EXPECT_EQ(UserEntry(renamed).kind, kUserKind);
  EXPECT_EQ(UserIn(UserEntry(renamed).content), renamed);
}

TEST(OutboxEntries, GiveALineOfTheLogBackWithAllItsMembers) {
  LogEntry line;
  line.kind = LogEntry::Kind::kError;
  line.at = "2026-03-09 08:05:01";
  line.user = "4711";
  line.place = "place";
  line.number = -2147483648LL;
  line.text = "text";
  line.source = "source";
  const LogEntry back = LineIn(LogLineEntry(line).content);
  EXPECT_EQ(back.kind, LogEntry::Kind::kError);
  EXPECT_EQ(back.at, line.at);
  EXPECT_EQ(back.user, line.user);
  EXPECT_EQ(back.place, line.place);
  EXPECT_EQ(back.number, line.number);
  EXPECT_EQ(back.text, line.text);
  EXPECT_EQ(back.source, line.source);
  line.kind = LogEntry::Kind::kMessage;
  EXPECT_EQ(LineIn(LogLineEntry(line).content).kind, LogEntry::Kind::kMessage);
}

TEST(OutboxEntries, GiveANoticeBackWithItsDetails) {
  for (const std::vector<std::string>& details :
       {std::vector<std::string>{}, std::vector<std::string>{"one", "two"}}) {
    const Notice back = NoticeIn(NoticeEntry({9101, "text", details}).content);
    EXPECT_EQ(back.text_id, 9101);
    EXPECT_EQ(back.english, "text");
    EXPECT_EQ(back.details, details);
  }
}

TEST(OutboxEntries, AreOfOneSubjectWhereALaterOneHolds) {
  const OutboxPiece piece{1,
                          "",
                          false,
                          {RecordEntry(kKey, {"a", ""}), SettingEntry("language", "English"),
                           UserGoneEntry("4711"), LogLineEntry({}), NoticeEntry({1, "", {}})}};
  const std::vector<RecordKey> subjects = SubjectsIn(piece);
  ASSERT_EQ(subjects.size(), 3u);
  EXPECT_EQ(subjects[0], kKey);
  for (const OutboxEntry& entry :
       {UserEntry(kAnna), NewUserEntry(kAnna, kAnna), UserGoneEntry("4711")}) {
    EXPECT_TRUE(IsUserKind(entry.kind));
    EXPECT_EQ(SubjectsIn({2, "", false, {entry}}), std::vector<RecordKey>{subjects[2]});
  }
  EXPECT_NE(SubjectsIn({3, "", false, {SettingEntry("midi_device", "")}})[0], subjects[1]);
}

TEST(OutboxEntries, TellAPieceOfTheLogAndANoticeFromTheRest) {
  const OutboxPiece record{1, "", false, {RecordEntry(kKey, {"a", ""})}};
  const OutboxPiece line{2, "", false, {LogLineEntry({})}};
  const OutboxPiece notice{3, "", false, {NoticeEntry({1, "", {}})}};
  EXPECT_TRUE(IsOfLog(line));
  EXPECT_FALSE(IsOfLog(record) || IsOfLog(notice));
  EXPECT_TRUE(IsNotice(notice));
  EXPECT_FALSE(IsNotice(record) || IsNotice(line) || IsNotice({}));
}

}  // namespace
}  // namespace vmod17

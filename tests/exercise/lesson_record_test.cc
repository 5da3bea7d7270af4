// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "exercise/lesson_record.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>

#include "worksheet/stage.h"

namespace vmod17 {
namespace {

class Sheet : public Form {
 public:
  Sheet() : Form("arbeitsblatt1") { WaitMeldung.visible = false; }
  Frame WaitMeldung{*this, "WaitMeldung"};
  void Form_Close() override {}
};

class LessonRecordTest : public ::testing::Test, protected ShellHarness {
 protected:
  LessonRecordTest() {
    host.user = {"4711", "Berg", "Anna"};
    board[1] = {3, 1, 0, 1};
    board[2] = {4, 13, 7, 23};
    board[3] = {8, 64, 5, 134};
    board.akk_zahl = 3;
  }

  MemoryXmlNode& root() { return *documents.Latest().root; }
  void Task(std::initializer_list<int> entries) {
    TaskAsked task;
    for (const int e : entries) task.akkorde.push_back({e, board[e], 60});
    record.LessonAufgabe(task);
  }
  void End(const TaggedValue::Array& list = {"0"}) {
    record.LessonEnde(sheet, sheet.WaitMeldung, list);
  }

  MemoryXmlLibrary documents;
  ChordTable table;
  ChordBoard board{table};
  Sheet sheet;
  LessonRecord record{shell, documents.Factory(), [] { return std::string("bestimmen"); }};
};

/// A click in slot 1, after which the run stands as `danach` says.
AnswerGiven Click(bool richtig, LaufStatus danach) {
  AnswerGiven answer;
  answer.slot = 1;
  answer.antw_lfd = 1;
  answer.richtig = richtig;
  answer.danach = danach;
  return answer;
}
const AnswerGiven kOpenStill = Click(false, LaufStatus::kWeitererVersuch);
const AnswerGiven kLastSlot = Click(true, LaufStatus::kAufgabeFertig);

template <typename Call>
int ErrorOf(const Call& call) {
  try {
    call();
    return 0;
  } catch (const RunTimeError& error) {
    return error.number();
  }
}

TEST_F(LessonRecordTest, BeginsWithTheTreeDownToTheEmptyLessons) {
  record.LessonNeu();
  EXPECT_EQ(root().Outline(),
            "exercise\n"
            "  properties\n"
            "    programm: VMOD17\n"
            "    ukey: 4711\n"
            "  settings\n"
            "  lessons\n");
  EXPECT_EQ(host.Sent("LOGIN"), 1);
  EXPECT_EQ(documents.Latest().saves, 0);
}

TEST_F(LessonRecordTest, NamesAnUnknownUserAsTheHostDoes) {
  host.user.reset();
  record.LessonNeu();
  EXPECT_EQ(root().Find("properties/ukey")->text, "unbekannt");
  host.Raise("LOGIN");
  record.LessonNeu();
  EXPECT_EQ(root().Find("properties/ukey")->text, "Unbekannt");
}

TEST_F(LessonRecordTest, NamesItsFileFromFolderPrefixAndTime) {
  loop.date = {2026, 11, 21, 14, 3, 22};
  record.LessonNeu();
  EXPECT_EQ(documents.Latest().file_name, "/tmp\\MVX261121140322.xml");
  loop.date = {2003, 1, 2, 3, 4, 5};
  record.LessonNeu();
  EXPECT_EQ(documents.Latest().file_name, "/tmp\\MVX030102030405.xml");
}

TEST_F(LessonRecordTest, DoublesABackslashAtTheEndOfTheFolder) {
  system.environment = {{"temp", "C:\\TEMP\\"}};
  record.LessonNeu();
  EXPECT_EQ(documents.Latest().file_name, "C:\\TEMP\\\\MVX261121140322.xml");
}

TEST_F(LessonRecordTest, TakesTheFolderFromTheFirstVariableThatNamesOne) {
  system.environment = {{"temp", "/a"}, {"TEMP", "/b"}, {"TMPDIR", "/c"}};
  system.temporary_folder = "/d";
  EXPECT_EQ(LessonRecord::TempOrdner(system), "/a");
  system.environment.erase("temp");
  EXPECT_EQ(LessonRecord::TempOrdner(system), "/b");
  system.environment["TEMP"] = "";
  EXPECT_EQ(LessonRecord::TempOrdner(system), "/c");
  system.environment.erase("TMPDIR");
  EXPECT_EQ(LessonRecord::TempOrdner(system), "/d");
}

TEST_F(LessonRecordTest, GivesTwoRecordsOfOneSecondTheSameName) {
  record.LessonNeu();
  record.LessonNeu();
  ASSERT_EQ(documents.documents.size(), 2u);
  EXPECT_EQ(documents.documents[0]->file_name, documents.documents[1]->file_name);
}

TEST_F(LessonRecordTest, EntersTheChordsOfATaskAndItsFirstAnswer) {
  record.LessonNeu();
  Task({3, 1, 2});
  EXPECT_EQ(root().Find("lessons")->Outline(),
            "lessons\n"
            "  lesson\n"
            "    properties\n"
            "      property number=\"1\"\n"
            "        AkkTyp: 8\n"
            "        AkklNr: 64\n"
            "        GrpNr: 5\n"
            "        GeslNr: 134\n"
            "      property number=\"2\"\n"
            "        AkkTyp: 3\n"
            "        AkklNr: 1\n"
            "        GrpNr: 0\n"
            "        GeslNr: 1\n"
            "      property number=\"3\"\n"
            "        AkkTyp: 4\n"
            "        AkklNr: 13\n"
            "        GrpNr: 7\n"
            "        GeslNr: 23\n"
            "    answers\n"
            "      answer lfd=\"1\" Akk=\"1\"\n");
}

TEST_F(LessonRecordTest, EntersAsManyChordsAsTheTaskHas) {
  record.LessonNeu();
  for (const auto& entries : {std::initializer_list<int>{1}, {1, 2}, {1, 2, 3}, {1, 2, 3, 1}}) {
    Task(entries);
    const auto& lesson = *root().Find("lessons")->children.back();
    EXPECT_EQ(lesson.Find("properties")->children.size(), entries.size());
    EXPECT_EQ(lesson.Find("answers")->children.size(), 1u);
  }
}

TEST_F(LessonRecordTest, AppendsAnswersToTheLatestLesson) {
  record.LessonNeu();
  Task({1});
  Task({2});
  record.LessonAntwort(kOpenStill);
  const auto lessons = root().Find("lessons")->All("lesson");
  ASSERT_EQ(lessons.size(), 2u);
  EXPECT_EQ(lessons[0]->Find("answers")->children.size(), 1u);
  EXPECT_EQ(lessons[1]->Find("answers")->Outline(),
            "answers\n"
            "  answer lfd=\"1\" Akk=\"1\"\n"
            "    property\n"
            "      key: Dauer Antwort\n"
            "      value: 0\n"
            "    property\n"
            "      key: Anz Whlg\n"
            "      value: 0\n"
            "    property\n"
            "      key: Antwort\n"
            "      value: false\n"
            "  answer lfd=\"2\" Akkord=\"1\"\n");
}

TEST_F(LessonRecordTest, EntersTimeRepeatsAndJudgementInTheLastAnswer) {
  record.LessonNeu();
  Task({1});
  record.LessonAntwort(kOpenStill);
  AnswerGiven answer = kLastSlot;
  answer.antw_lfd = 2;
  answer.antw_dauer = 23;
  answer.anz_whlg = 4;
  record.LessonAntwort(answer);
  EXPECT_EQ(root().Find("lessons/lesson/answers")->children.back()->Outline(),
            "answer lfd=\"2\" Akkord=\"1\"\n"
            "  property\n"
            "    key: Dauer Antwort\n"
            "    value: 23\n"
            "  property\n"
            "    key: Anz Whlg\n"
            "    value: 4\n"
            "  property\n"
            "    key: Antwort\n"
            "    value: true\n");
}

TEST_F(LessonRecordTest, BeginsTheAnswerThatIsWaitedForNext) {
  struct Case {
    int slot, antw_lfd;
    bool richtig;
    LaufStatus danach;
    const char* next;  // none after the last slot
  };
  for (const Case& c : {
           Case{1, 1, false, LaufStatus::kWeitererVersuch, "answer lfd=\"2\" Akkord=\"1\"\n"},
           Case{3, 2, false, LaufStatus::kWeitererVersuch, "answer lfd=\"3\" Akkord=\"3\"\n"},
           Case{1, 1, true, LaufStatus::kNaechsterSlot, "answer lfd=\"1\" interval=\"2\"\n"},
           Case{2, 4, false, LaufStatus::kNaechsterSlot, "answer lfd=\"1\" interval=\"3\"\n"},
           Case{1, 1, true, LaufStatus::kAufgabeFertig, nullptr},
           Case{4, 4, false, LaufStatus::kAufgabeFertig, nullptr},
       }) {
    record.LessonNeu();
    Task({1, 2, 3, 1});
    AnswerGiven answer = Click(c.richtig, c.danach);
    answer.slot = c.slot;
    answer.antw_lfd = c.antw_lfd;
    record.LessonAntwort(answer);
    const auto& answers = root().Find("lessons/lesson/answers")->children;
    ASSERT_EQ(answers.size(), c.next == nullptr ? 1u : 2u) << c.slot;
    if (c.next == nullptr) continue;
    EXPECT_EQ(answers.back()->Outline(), c.next) << c.slot;
  }
}

TEST_F(LessonRecordTest, WritesASingleWithAFullStop) {
  record.LessonNeu();
  Task({1});
  AnswerGiven answer = kLastSlot;
  answer.antw_dauer = 2.5f;
  record.LessonAntwort(answer);
  EXPECT_EQ(root().Find("lessons/lesson/answers/answer/property/value")->text, "2.5");
}

TEST_F(LessonRecordTest, KeepsAnEmptyValueAsAnElementWithoutText) {
  record.LessonNeu();
  End({"2", "Abfolge", ""});
  EXPECT_EQ(root().Find("settings")->Outline(),
            "settings\n"
            "  setting\n"
            "    key: Abfolge\n"
            "    value\n");
}

TEST_F(LessonRecordTest, CompletesTheRecordAndSavesItAtTheEnd) {
  loop.date = {2026, 11, 21, 14, 3, 22};
  record.LessonNeu();
  Task({1});
  loop.date = {2026, 11, 21, 15, 4, 9};
  End({"4", "Tempo", " 40 (Largo)      ", "Abfolge", "manuell"});
  EXPECT_EQ(documents.Latest().saved,
            "exercise description=\"Untersuchung: [348s]\"\n"
            "  properties\n"
            "    programm: VMOD17\n"
            "    ukey: 4711\n"
            "    exercise: bestimmen\n"
            "    timestamp: 21.11.2026 15:04:09\n"
            "  settings\n"
            "    setting\n"
            "      key: Tempo\n"
            "      value:  40 (Largo)      \n"
            "    setting\n"
            "      key: Abfolge\n"
            "      value: manuell\n"
            "  lessons\n"
            "    lesson\n"
            "      properties\n"
            "        property number=\"1\"\n"
            "          AkkTyp: 3\n"
            "          AkklNr: 1\n"
            "          GrpNr: 0\n"
            "          GeslNr: 1\n"
            "      answers\n"
            "        answer lfd=\"1\" Akk=\"1\"\n");
  EXPECT_EQ(documents.Latest().saves, 1);
  EXPECT_EQ(documents.Latest().file_name, "/tmp\\MVX261121140322.xml");
}

TEST_F(LessonRecordTest, RoundsHalfTheUpperBoundOfTheSettingsToEven) {
  record.LessonNeu();
  End({"5", "a", "1", "b", "2", "c"});
  EXPECT_EQ(root().Find("settings")->children.size(), 2u);
  record.LessonNeu();
  End({"0"});
  EXPECT_TRUE(root().Find("settings")->children.empty());
}

TEST_F(LessonRecordTest, ShowsItsNoticeOnADisabledFormWhileItWorks) {
  record.LessonNeu();
  int seen = 0;
  loop.meanwhile = [&] {
    ++seen;
    EXPECT_FALSE(sheet.enabled);
    EXPECT_EQ(sheet.pointer, Form::Pointer::kHourglass);
    EXPECT_TRUE(sheet.WaitMeldung.visible);
    EXPECT_EQ(documents.Latest().saves, 0);
  };
  End();
  EXPECT_EQ(seen, 1);
  EXPECT_FALSE(sheet.enabled);
  EXPECT_EQ(sheet.pointer, Form::Pointer::kDefault);
  EXPECT_FALSE(sheet.WaitMeldung.visible);
}

TEST_F(LessonRecordTest, AppendsASecondTimeWhenItIsEndedTwice) {
  record.LessonNeu();
  End({"2", "Tempo", "x"});
  End({"2", "Tempo", "x"});
  EXPECT_EQ(documents.Latest().saves, 2);
  EXPECT_EQ(root().Find("properties")->All("exercise").size(), 2u);
  EXPECT_EQ(root().Find("properties")->All("timestamp").size(), 2u);
  EXPECT_EQ(root().Find("settings")->All("setting").size(), 2u);
}

TEST_F(LessonRecordTest, DoesNotLookAtWhetherTheSavingWorked) {
  documents.saving_works = false;
  record.LessonNeu();
  EXPECT_NO_THROW(End());
  EXPECT_EQ(documents.Latest().saves, 0);
  EXPECT_FALSE(sheet.WaitMeldung.visible);
}

TEST_F(LessonRecordTest, RaisesForACallBeforeTheFirstRecord) {
  EXPECT_EQ(ErrorOf([&] { record.LessonAntwort(kLastSlot); }), ErrorNumber::kInvalidCall);
  EXPECT_EQ(ErrorOf([&] { End(); }), ErrorNumber::kInvalidCall);
  EXPECT_TRUE(documents.documents.empty());
}

TEST_F(LessonRecordTest, RaisesForAnAnswerBeforeTheFirstLesson) {
  record.LessonNeu();
  EXPECT_EQ(ErrorOf([&] { record.LessonAntwort(kLastSlot); }), ErrorNumber::kInvalidCall);
}

TEST_F(LessonRecordTest, ForgetsTheLessonOfTheRecordBefore) {
  record.LessonNeu();
  Task({1});
  record.LessonNeu();
  EXPECT_EQ(ErrorOf([&] { record.LessonAntwort(kOpenStill); }), ErrorNumber::kInvalidCall);
  EXPECT_EQ(documents.documents[0]->root->Find("lessons/lesson/answers")->children.size(), 1u);
}

TEST_F(LessonRecordTest, PassesSilentlyOverAnErrorInATask) {
  EXPECT_NO_THROW(Task({1})) << "before the first record";
  record.LessonNeu();
  root().children.back()->nodes_left = std::make_shared<int>(9);
  EXPECT_NO_THROW(Task({1, 2})) << "a document that takes one chord and no more";
  EXPECT_EQ(root().Find("lessons")->Outline(),
            "lessons\n"
            "  lesson\n"
            "    properties\n"
            "      property number=\"1\"\n"
            "        AkkTyp: 3\n"
            "        AkklNr: 1\n"
            "        GrpNr: 0\n"
            "        GeslNr: 1\n"
            "    answers\n");
  root().children.clear();
  EXPECT_NO_THROW(Task({1})) << "a document without its elements";
  EXPECT_TRUE(messages.warnings.empty());
  EXPECT_TRUE(host.errors.empty());
}

TEST_F(LessonRecordTest, MarksEachLossOfTheSoundWithItsTimeAndTheTaskBeforeIt) {
  record.LessonNeu();
  record.LessonOhneKlang();
  Task({2});
  loop.date = {2026, 11, 21, 14, 5, 7};
  record.LessonOhneKlang();
  EXPECT_EQ(root().Find("properties")->Outline(),
            "properties\n"
            "  programm: VMOD17\n"
            "  ukey: 4711\n"
            "  sound_lost lesson=\"0\": 21.11.2026 14:03:22\n"
            "  sound_lost lesson=\"1\": 21.11.2026 14:05:07\n");
}

TEST_F(LessonRecordTest, LeavesTheRunAloneWhenALossCannotBeMarked) {
  EXPECT_NO_THROW(record.LessonOhneKlang());
}

TEST_F(LessonRecordTest, LeavesTheFirstRecordAsItIsWhenASecondBegins) {
  record.LessonNeu();
  Task({1});
  End();
  const std::string first = documents.documents[0]->saved;
  record.LessonNeu();
  Task({2});
  End();
  EXPECT_EQ(documents.documents[0]->root->Outline(), first);
  EXPECT_EQ(documents.documents[0]->saves, 1);
  EXPECT_EQ(documents.documents[1]->saves, 1);
}

}  // namespace
}  // namespace vmod17

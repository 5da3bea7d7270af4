// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/error_report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "base/run_time_error.h"
#include "shell/shell_fixture.h"

namespace vmod17 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class ErrorReportTest : public ::testing::Test, protected ShellFixture {
 protected:
  ErrorReportTest() {
    server.HostVerbinden();
    texts.SprachenLaden();
    texts.SpracheWaehlen("Deutsch");
  }
  void Guard(const std::string& tag, const std::function<void()>& body) {
    errors.Guard(tag, form_, body, [this] { ++recoveries_; });
  }
  static void Throw() { throw RunTimeError(1004, "nothing can be drawn", "vmod17.mat_wahl"); }

  PlainScreen form_{"arbeitsblatt1"};
  int recoveries_ = 0;
};

TEST_F(ErrorReportTest, IsSilentWhenNothingGoesWrong) {
  int runs = 0;
  Guard("mat_wahl.", [&] { ++runs; });
  EXPECT_EQ(runs, 1);
  EXPECT_EQ(recoveries_, 0);
  EXPECT_THAT(host.errors, IsEmpty());
  EXPECT_THAT(messages.warnings, IsEmpty());
}

TEST_F(ErrorReportTest, LogsPlaceNumberTextAndSource) {
  Guard("spieltimer_timer.", Throw);
  EXPECT_THAT(host.errors,
              ElementsAre(MemoryHost::Error{"spieltimer_timer.arbeitsblatt1.vmod17", 1004,
                                            "nothing can be drawn", "vmod17.mat_wahl"}));
}

TEST_F(ErrorReportTest, LetsATagWithoutAStopTouchTheName) {
  Guard("EinstDatSave", Throw);
  ASSERT_THAT(host.errors, SizeIs(1));
  EXPECT_EQ(host.errors[0].place, "EinstDatSavearbeitsblatt1.vmod17");
}

TEST_F(ErrorReportTest, ShowsFourLinesUnderAFixedTitle) {
  languages.languages[0].second.words = {{"720s", "Ein Fehler ist aufgetreten."},
                                         {"721s", "Er steht im Protokoll."},
                                         {"722s", "Die Übung wird beendet."},
                                         {"723s", "Bitte melden Sie ihn."}};
  Guard("mat_wahl.", Throw);
  EXPECT_THAT(
      messages.warnings,
      ElementsAre(ScriptedMessageBox::Shown{
          "Ein Fehler ist aufgetreten.\nEr steht im Protokoll.\nDie Übung wird beendet.\nBitte "
          "melden Sie ihn.",
          "Melvado 2000"}));
}

TEST_F(ErrorReportTest, LogsThenShowsThenRecovers) {
  std::vector<std::string> trace;
  messages.meanwhile = [&] {
    trace.push_back("message after " + std::to_string(host.errors.size()) + " log entry");
  };
  errors.Guard("mat_wahl.", form_, Throw, [&] { trace.emplace_back("recovery"); });
  EXPECT_THAT(trace, ElementsAre("message after 1 log entry", "recovery"));
}

TEST_F(ErrorReportTest, LogsAnExceptionThatIsNoErrorOfOurs) {
  Guard("mat_wahl.", [] { throw std::out_of_range("array::at"); });
  ASSERT_THAT(host.errors, SizeIs(1));
  EXPECT_EQ(host.errors[0].number, ErrorNumber::kForeign);
  EXPECT_EQ(host.errors[0].text, "array::at");
  EXPECT_EQ(recoveries_, 1);
}

TEST_F(ErrorReportTest, LogsWhatIsNoExceptionAtAll) {
  Guard("mat_wahl.", [] { throw 42; });
  ASSERT_THAT(host.errors, SizeIs(1));
  EXPECT_EQ(host.errors[0].number, ErrorNumber::kForeign);
  EXPECT_THAT(messages.warnings, SizeIs(1));
  EXPECT_EQ(recoveries_, 1);
}

TEST_F(ErrorReportTest, DoesNotMindALogWithoutAnAnswer) {
  host.Fail("LOGERR");
  Guard("mat_wahl.", Throw);
  EXPECT_THAT(messages.warnings, SizeIs(1));
  EXPECT_EQ(recoveries_, 1);
}

TEST_F(ErrorReportTest, PassesOnWhatTheLogRaisesWithoutAMessageOfItsOwn) {
  host.Raise("LOGERR", ErrorNumber::kStore);
  EXPECT_THROW(Guard("mat_wahl.", Throw), RunTimeError);
  EXPECT_THAT(messages.warnings, IsEmpty());
}

TEST_F(ErrorReportTest, DoesNotCatchAnErrorOfTheRecovery) {
  EXPECT_THROW(errors.Guard("mat_wahl.", form_, Throw, Throw), RunTimeError);
  EXPECT_THAT(host.errors, SizeIs(1));
}

TEST_F(ErrorReportTest, KeepsTheErrorsOfAnInnerRoutineFromTheOuterOne) {
  int inner = 0;
  Guard("cmdOK_click.", [&] { errors.Guard("EinstDatSave", form_, Throw, [&] { ++inner; }); });
  EXPECT_EQ(inner, 1);
  EXPECT_EQ(recoveries_, 0);
  EXPECT_THAT(host.errors, SizeIs(1));
}

TEST_F(ErrorReportTest, PointsToTheLogWhenItIsAskedTo) {
  errors.LogFehler(RunTimeError(5, "text", "source"), "mat_wahl.arbeitsblatt1",
                   ErrorReport::Zeigen::kJa);
  EXPECT_THAT(host.errors,
              ElementsAre(MemoryHost::Error{"mat_wahl.arbeitsblatt1.vmod17", 5, "text", "source"}));
  EXPECT_THAT(messages.warnings,
              ElementsAre(ScriptedMessageBox::Shown{
                  "Es ist ein Fehler aufgetreten!\nWeitere Informationen befinden sich im LogFile",
                  "Warnung"}));
}

TEST_F(ErrorReportTest, OnlyLogsWhenItIsNotAskedToShow) {
  errors.LogFehler(RunTimeError(5, "text", "source"), "mat_wahl.arbeitsblatt1",
                   ErrorReport::Zeigen::kNein);
  EXPECT_THAT(host.errors, SizeIs(1));
  EXPECT_THAT(messages.warnings, IsEmpty());
}

TEST(ErrorReportWithoutALanguage, SaysVoidFourTimesAndKeepsTheTitle) {
  ShellFixture f;
  f.server.HostVerbinden();
  PlainScreen form("einstellung1");
  f.errors.Guard(
      "start_timer.", form, [] { throw std::runtime_error("no"); }, [] {});
  EXPECT_THAT(f.messages.warnings,
              ElementsAre(ScriptedMessageBox::Shown{"VOID\nVOID\nVOID\nVOID", "Melvado 2000"}));
}

}  // namespace
}  // namespace vmod17

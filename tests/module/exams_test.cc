// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The exams from the choice of their number to the settings screen again: to their last task,
// and out of time.

#include "settings/exams.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <tuple>

#include "worksheet/mode_fixture.h"

namespace vmod17 {
namespace {

/// What an exam asks for.
struct Exam {
  int smallest;  ///< Klangtyp
  int greatest;
  int best_art;
  int entries;  ///< of its board
};
constexpr Exam kExams[] = {{},           {3, 3, 0, 10}, {4, 5, 0, 24}, {6, 7, 0, 20}, {8, 8, 0, 16},
                           {8, 8, 1, 16}};
static_assert(std::size(kExams) == kPruefungen.size() + 1, "each exam is run here");

class AnExam : public ::testing::TestWithParam<std::tuple<int, int>> {
 protected:
  int number() const { return std::get<0>(GetParam()); }
  int chords() const { return std::get<1>(GetParam()); }

  void Begin() {
    p_.host.user = {"4711", "Berg", "Anna"};
    p_.ToSettings();
    Einstellung1& e = p_.settings_screen();
    ASSERT_TRUE(e.training_Combo.Choose(kPruefung));
    ASSERT_TRUE(e.prfnr_Comb.Choose(number() - 1));
    ASSERT_TRUE(e.akkzahl_cmb.Choose(chords() - 1));
    ASSERT_TRUE(e.cmdOK.Reachable());
    p_.StartRun();
    ASSERT_NE(p_.program.arbeitsblatt1(), nullptr);
  }

  void ExpectItsMaterial() {
    const Exam& exam = kExams[number()];
    EXPECT_EQ(p_.program.board().akk_zahl, exam.entries);
    for (int e = 1; e <= p_.program.board().akk_zahl; ++e) {
      EXPECT_GE(p_.program.board()[e].klangtyp, exam.smallest);
      EXPECT_LE(p_.program.board()[e].klangtyp, exam.greatest);
    }
    EXPECT_EQ(p_.settings().best_art, exam.best_art);
    EXPECT_EQ(p_.settings().abfolge, 1);
    EXPECT_EQ(p_.settings().akk_anzahl, chords());
    EXPECT_EQ(p_.run().test.test_aufgaben % 2, 0);
  }

  /// Sees both faces of the results, prints them, and goes back to the settings.
  void PassBothFaces() {
    p_.loop.Advance(300);
    Testergebnis& r = p_.results();
    ASSERT_TRUE(r.visible);
    if (r.zeit_um.visible) p_.loop.Advance(r.schonfrist.interval);
    EXPECT_TRUE(r.cmdPrint[0].Press());
    EXPECT_TRUE(r.cmdOK[0].Press());
    EXPECT_EQ(r.einst_Inh[0].caption, "[438s] [426s] " + std::to_string(number()));
    EXPECT_EQ(r.einst_Inh[4].caption, " " + std::to_string(chords()));
    EXPECT_EQ(r.g_einst_inh[3].caption, " Berg");
    EXPECT_TRUE(r.cmdPrint[1].Press());
    EXPECT_EQ(p_.printer.pages.size(), 2u);
    EXPECT_TRUE(r.cmdOK[1].Press());
    EXPECT_TRUE(p_.settings_screen().visible);
    EXPECT_EQ(p_.program.arbeitsblatt1(), nullptr);
  }

  void ExpectItsRecord(int lessons) {
    EXPECT_EQ(p_.documents.Latest().saves, 1);
    EXPECT_EQ(p_.Lessons(), lessons);
    std::string exam;
    for (const auto& setting : p_.record().Find("settings")->children) {
      if (setting->Find("key")->text == "Nr.:") exam = setting->Find("value")->text;
    }
    EXPECT_EQ(exam, "[426s] " + std::to_string(number()));
    EXPECT_EQ(p_.host.Sent("STORE"), 0) << "an exam is never stored";
    EXPECT_TRUE(p_.host.errors.empty());
    EXPECT_TRUE(p_.messages.warnings.empty());
    EXPECT_TRUE(p_.messages.questions.empty());
  }

  ModeFixture p_;
};

TEST_P(AnExam, GoesToItsLastTask) {
  Begin();
  ExpectItsMaterial();
  p_.FinishTest();
  const int tasks = p_.run().test.test_aufgaben;
  EXPECT_EQ(p_.worksheet().zaehler[0].caption, std::to_string(tasks * chords()));
  EXPECT_EQ(p_.worksheet().zaehler[1].caption, "0");
  EXPECT_EQ(p_.documents.Latest().saves, 0);
  EXPECT_TRUE(p_.worksheet().zurueck.Press());
  p_.loop.Advance(300);
  EXPECT_EQ(p_.results().ergebnis[0].caption, "100.0%");
  EXPECT_EQ(p_.results().ergebnis[0].back_color, Bgr(0x80FF80));
  PassBothFaces();
  ExpectItsRecord(tasks);
}

TEST_P(AnExam, RunsOutOfTime) {
  Begin();
  const double end = p_.loop.Elapsed() + p_.run().test.rest_sek * 1000.0;
  const int tasks = 1 + p_.run().test.test_aufgaben / 4;
  for (int i = 1; i < tasks; ++i) {
    p_.PlayTask();
    p_.FinishTask();
  }
  p_.PlayTask();
  const int answered = p_.run().count.richtig;
  EXPECT_EQ(answered, (tasks - 1) * chords());
  p_.loop.Advance(end - p_.loop.Elapsed() - 1000);
  EXPECT_EQ(p_.program.testergebnis(), nullptr);
  EXPECT_EQ(p_.documents.Latest().saves, 0);
  p_.loop.Advance(1000);
  ASSERT_NE(p_.program.testergebnis(), nullptr);
  EXPECT_EQ(p_.documents.Latest().saves, 1) << "before the results";
  EXPECT_FALSE(p_.worksheet().zurueck.Reachable());
  p_.loop.Advance(300);
  const std::string total = p_.results().ergebnis[0].caption;
  EXPECT_NE(total, "100.0%");
  EXPECT_NE(total, "0.0 %");
  PassBothFaces();
  ExpectItsRecord(tasks);
}

TEST_P(AnExam, CanBeTakenAgainAtOnce) {
  Begin();
  p_.FinishTest();
  EXPECT_TRUE(p_.worksheet().zurueck.Press());
  PassBothFaces();
  p_.StartRun();
  ASSERT_NE(p_.program.arbeitsblatt1(), nullptr);
  ExpectItsMaterial();
  p_.PlayTask();
  EXPECT_NE(p_.Right(), 0);
  EXPECT_EQ(p_.documents.documents.size(), 2u);
}

INSTANTIATE_TEST_SUITE_P(Numbers, AnExam,
                         ::testing::Combine(::testing::Range(1,
                                                             static_cast<int>(std::size(kExams))),
                                            ::testing::Values(1, 4)),
                         [](const auto& test) {
                           return std::to_string(std::get<0>(test.param)) + "With" +
                                  std::to_string(std::get<1>(test.param)) + "ChordsATask";
                         });

}  // namespace
}  // namespace vmod17

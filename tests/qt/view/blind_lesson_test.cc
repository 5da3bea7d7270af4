// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// A lesson without a look at the screen: what the student does follows from what a reader of the
// screen speaks, and from what he hears of the chords.

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <string>
#include <vector>

#include "qt/desk/qt_event_loop.h"
#include "qt/pictures/chord_pictures.h"
#include "qt/screen_reader.h"
#include "qt/spoken_program.h"
#include "qt/view/page.h"
#include "qt/view/qt_view.h"

namespace vmod17 {
namespace {

bool Has(const std::string& spoken, const std::string& words) {
  return spoken.find(words) != std::string::npos;
}

/// The German program in a window, with a student at the keyboard.
class BlindLesson : public testing::Test {
 protected:
  BlindLesson() {
    p_.view.shown_by = &view_;
    p_.loop.after_event = [this] { view_.Refresh(); };
    qt_loop_.after_event = [this] { view_.Refresh(); };
  }
  ~BlindLesson() override {
    p_.view.shown_by = nullptr;
    for (Form* form : p_.view.forms) view_.Detach(*form);
  }

  /// Presses a key and tells what is spoken of it.
  std::string Key(int key) {
    QWidget* const focus = view_.Window()->focusWidget();
    QTest::keyClick(focus != nullptr ? focus : view_.Window(), static_cast<Qt::Key>(key));
    return reader_.Spoken();
  }
  /// To the first screen, in a window that has the keyboard.
  void Start() {
    p_.ToFirstScreen();
    QApplication::processEvents();
    reader_.Spoken();
  }
  void ToSettings() {
    Key(Qt::Key_Return);
    p_.loop.Advance(200);
  }
  /// From the start of the program to the worksheet of a level.
  void Begin(int level) {
    Start();
    ToSettings();
    p_.settings_screen().training_Combo.Choose(level);
    p_.StartRun();
    reader_.Spoken();
  }
  /// Lets a playing that has begun come to its end. Not a word comes in it.
  std::string Listen(const std::string& before) {
    // The last that is spoken is a blank, which ends whatever was being spoken.
    EXPECT_TRUE(before.ends_with(" ")) << before;
    constexpr double kPauses = 150;
    p_.loop.Advance(p_.PlayingTime() - kPauses);
    EXPECT_EQ(reader_.Spoken(), "");
    p_.loop.Advance(2 * kPauses);
    return reader_.Spoken();
  }
  /// Calls the next task, or waits for it, and listens to it.
  std::string NextTask() {
    if (p_.settings().abfolge == 0) return Listen(Key(Qt::Key_N));
    p_.loop.Advance(p_.worksheet().WahlAutomat.interval);
    return Listen(reader_.Spoken());
  }
  /// What the ear tells: the chord that sounded in the open slot, by its symbol.
  std::string Heard() { return p_.worksheet().jz_kl[p_.Asked(p_.run().akk_nr)].caption; }
  /// Goes from tile to tile until one is called by this chord, or by another one.
  bool GoTo(const std::string& chord, bool right) {
    constexpr int kMostSteps = 60;
    std::string name = Key(Qt::Key_Tab);
    for (int i = 0; i < kMostSteps; ++i, name = Key(Qt::Key_Tab)) {
      const std::string symbol = name.substr(0, name.find(", "));
      if ((symbol == chord) == right && IsAChord(symbol)) return true;
    }
    return false;
  }
  bool IsAChord(const std::string& symbol) {
    for (int e = 1; e <= p_.program.board().akk_zahl; ++e) {
      if (p_.worksheet().jz_kl[e].caption == symbol) return true;
    }
    return false;
  }
  /// Answers the open slot; `wrong`: with another chord first. Returns the last that is spoken.
  std::string Answer(bool wrong) {
    if (wrong) {
      EXPECT_TRUE(GoTo(Heard(), false));
      const std::string verdict = Key(Qt::Key_Return);
      EXPECT_EQ(verdict.rfind("falsch", 0), 0u) << verdict;
    }
    const std::string chord = Heard();
    EXPECT_TRUE(GoTo(chord, true));
    const std::string verdict = Key(Qt::Key_Return);
    EXPECT_EQ(verdict.rfind("Richtig: " + chord, 0), 0u) << verdict;
    return verdict;
  }
  /// Does tasks until one of them is said to have been the last. Returns what was said of it.
  std::string DoTasks(const std::string& end) {
    constexpr int kMostTasks = 200;
    for (int task = 1; task <= kMostTasks; ++task) {
      const std::string ready = NextTask();
      EXPECT_EQ(ready.rfind("Bitte antworten", 0), 0u) << ready;
      std::string verdict;
      do {
        verdict = Answer(task == 2);
      } while (Has(verdict, "Akkord "));
      EXPECT_TRUE(Has(verdict, "Ende der Aufgabe")) << verdict;
      if (testing::Test::HasFailure() || Has(verdict, end)) return verdict;
    }
    return "";
  }
  void LeaveToResults() {
    Key(Qt::Key_Escape);
    p_.loop.Advance(300);
    const std::string results = reader_.Spoken();
    EXPECT_EQ(results.rfind("Jazz-Akkorde bestimmen: Ergebnis. Gesamtergebnis: ", 0), 0u)
        << results;
  }

  ScreenReader reader_;
  QtEventLoop qt_loop_;
  ChordPictures pictures_;
  QtView view_{qt_loop_, pictures_};
  SpokenProgram p_{"de_DE"};
};

TEST_F(BlindLesson, TellsEachScreenByItsTitle) {
  Start();
  ToSettings();
  EXPECT_EQ(reader_.Spoken(), "Jazz-Akkorde bestimmen: Grundeinstellung. OK");
  Key(Qt::Key_Return);
  p_.loop.Advance(200);
  EXPECT_EQ(reader_.Spoken(), "Jazz-Akkorde bestimmen. Aufgabe 1");
}

TEST_F(BlindLesson, TellsEachEntryThatAKeyChoosesInAClosedList) {
  Start();
  ToSettings();
  const ItemList& levels = p_.settings_screen().training_Combo;
  view_.page()->findChild<QWidget*>("training_Combo")->setFocus();
  reader_.Spoken();
  for (const int key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up}) {
    const int before = levels.list_index();
    const std::string spoken = Key(key);
    EXPECT_NE(levels.list_index(), before);
    EXPECT_EQ(spoken.rfind(levels.text(), 0), 0u) << spoken;
  }
}

TEST_F(BlindLesson, LeadsThroughATrainingToItsEnd) {
  Begin(1);
  const std::string last = DoTasks("Ende des Trainings");
  EXPECT_TRUE(Has(last, "Ende des Trainings: Aufgabe gelöst")) << last;
  LeaveToResults();
}

TEST_F(BlindLesson, LeadsThroughATestToItsResults) {
  Begin(3);
  const std::string last = DoTasks("Ende des Tests");
  EXPECT_TRUE(Has(last, "Ende des Tests")) << last;
  LeaveToResults();
}

TEST_F(BlindLesson, TellsThatTheTimeOfATestIsUp) {
  Begin(3);
  NextTask();
  p_.loop.Advance(1000.0 * (p_.run().test.rest_sek + 20));
  const std::string results = reader_.Spoken();
  EXPECT_TRUE(Has(results, "Die Zeit ist um")) << results;
  EXPECT_TRUE(Has(results, "Ergebnis")) << results;
}

TEST_F(BlindLesson, IsSilentInARepeatAndAsksForAnswersAgain) {
  Begin(0);
  NextTask();
  const std::string ready = Listen(Key(Qt::Key_R));
  EXPECT_EQ(ready.rfind("Bitte antworten", 0), 0u) << ready;
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/narrator.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>

#include "qt/screen_reader.h"

namespace vmod17 {
namespace {

class NarratorTest : public testing::Test {
 protected:
  NarratorTest() {
    one_.setText("One");
    two_.setText("Two");
    two_.setGeometry(0, 50, 100, 30);
    window_.show();
    window_.activateWindow();
    QApplication::processEvents();
    one_.setFocus();
    reader_.Spoken();
  }

  /// What the program changes in one go.
  template <typename Act>
  void Change(bool listening, const std::vector<std::string>& said, const Act& change) {
    narrator_.Begin(listening);
    change();
    narrator_.End(said);
  }
  void Say(const std::vector<std::string>& said) {
    Change(false, said, [] {});
  }

  ScreenReader reader_;
  QWidget window_;
  QPushButton one_{&window_};
  QPushButton two_{&window_};
  Narrator narrator_{window_};
};

TEST_F(NarratorTest, HasTheReaderSpeakWhatIsSaid) {
  Say({"Right"});
  EXPECT_EQ(reader_.Spoken(), "Right");
  Say({"Right"});
  EXPECT_EQ(reader_.Spoken(), "Right");
}

TEST_F(NarratorTest, SpeaksWhatComesInOneGoAsSentences) {
  Say({"Right: C7", "too hard !!", "C9(b5)", "", "No. 2"});
  EXPECT_EQ(reader_.Spoken(), "Right: C7. too hard !! C9(b5). No. 2");
}

TEST_F(NarratorTest, SaysFirstWhatIsSaidWhereTheProgramMovesTheFocus) {
  Change(false, {"Wrong"}, [this] { one_.setEnabled(false); });
  ASSERT_TRUE(two_.hasFocus());
  EXPECT_EQ(reader_.Spoken(), "Wrong. Two");
}

TEST_F(NarratorTest, NamesAPageOnceThatHasTheFocusItself) {
  QWidget page(&window_);
  page.setAccessibleName("Settings");
  page.setFocusPolicy(Qt::StrongFocus);
  page.show();
  Change(false, {"Settings"}, [&] { page.setFocus(); });
  EXPECT_EQ(reader_.Spoken(), "Settings");
}

TEST_F(NarratorTest, TellsTheValueOfWhatTheFocusCameTo) {
  QSlider loudness(Qt::Horizontal, &window_);
  loudness.setAccessibleName("Loudness");
  loudness.setFocusPolicy(Qt::StrongFocus);
  loudness.setValue(40);
  loudness.show();
  Change(false, {"Settings"}, [&] { loudness.setFocus(); });
  EXPECT_EQ(reader_.Spoken(), "Settings. Loudness. 40");
}

TEST_F(NarratorTest, TellsTheEntryThatTheUserChoosesInAClosedListBeforeWhatFollows) {
  QComboBox list(&window_);
  list.addItems({"Training", "Test"});
  list.show();
  list.setFocus();
  reader_.Spoken();
  list.setCurrentIndex(1);
  Say({"20 tasks"});
  EXPECT_EQ(reader_.Spoken(), "Test | 20 tasks");
}

TEST_F(NarratorTest, TellsTheEntryThatTheProgramPutsInItsPlace) {
  QComboBox list(&window_);
  list.addItems({"Training", "Test"});
  list.show();
  list.setFocus();
  reader_.Spoken();
  list.setCurrentIndex(1);
  Change(false, {"None is saved"}, [&] { list.setCurrentIndex(0); });
  EXPECT_EQ(reader_.Spoken(), "Test | Training. None is saved");
}

TEST_F(NarratorTest, LeavesOutTheEntriesOfListsWithoutTheFocus) {
  QComboBox list(&window_);
  list.addItems({"Training", "Test"});
  list.show();
  Change(false, {}, [&] { list.setCurrentIndex(1); });
  EXPECT_EQ(reader_.Spoken(), "");
}

TEST_F(NarratorTest, CutsNothingOffByTellingTheFocusLater) {
  Change(false, {"Wrong"}, [this] { one_.setEnabled(false); });
  reader_.Spoken();
  Change(false, {}, [] {});
  EXPECT_EQ(reader_.Spoken(), "");
}

TEST_F(NarratorTest, TellsTheFocusAloneWhereNothingIsSaid) {
  Change(false, {}, [this] { two_.setFocus(); });
  EXPECT_EQ(reader_.Spoken(), "Two");
}

TEST_F(NarratorTest, TellsTheFocusItselfWhereAllThatIsSaidIsEmpty) {
  Change(false, {""}, [this] { two_.setFocus(); });
  reader_.Spoken();
  two_.setAccessibleName("of its own");  // heard only of what has the reader's focus
  EXPECT_EQ(reader_.Spoken(), "of its own");
}

TEST_F(NarratorTest, LeavesTheFocusThatTheUserMovesToTheReader) {
  Change(false, {"Wrong"}, [this] { one_.setEnabled(false); });
  reader_.Spoken();
  one_.setEnabled(true);
  one_.setFocus();
  EXPECT_EQ(reader_.Spoken(), "One");
}

TEST_F(NarratorTest, IsSilentFromTheStartOfAPlaybackToItsEnd) {
  Change(true, {}, [this] { one_.setEnabled(false); });
  EXPECT_EQ(reader_.Spoken(), " ");  // which ends what was being spoken
  Change(true, {"Said early"}, [this] {
    two_.setEnabled(false);
    two_.setAccessibleDescription("locked");
  });
  EXPECT_TRUE(reader_.Silent());
  Change(false, {"Answer now"}, [this] {
    two_.setEnabled(true);
    two_.setFocus();
  });
  EXPECT_EQ(reader_.Spoken(), "Said early. Answer now. Two");
}

TEST_F(NarratorTest, TellsTheFocusAfterAPlaybackAlsoWhereItDidNotMove) {
  Change(true, {}, [] {});
  reader_.Spoken();
  Change(false, {}, [] {});
  EXPECT_EQ(reader_.Spoken(), "One");
}

TEST_F(NarratorTest, TellsTheUserWhereHeGoesDuringAPlayback) {
  Change(true, {}, [] {});
  reader_.Spoken();
  two_.setFocus();
  EXPECT_EQ(reader_.Spoken(), "Two");
  Change(false, {"Answer now"}, [] {});
  EXPECT_EQ(reader_.Spoken(), "Answer now");
}

TEST_F(NarratorTest, IsSilentWhereNoReaderRuns) {
  QAccessible::setActive(false);
  Change(true, {"Said early"}, [] {});
  Change(false, {"Right"}, [this] { two_.setFocus(); });
  QAccessible::setActive(true);
  EXPECT_TRUE(reader_.Silent());
  Say({"Now"});
  EXPECT_EQ(reader_.Spoken(), "Now");
}

TEST_F(NarratorTest, DoesNotTakeAnEntryForTheFocusWhereItsListHasNone) {
  QListWidget list(&window_);
  list.show();
  Change(false, {}, [&] {
    list.addItems({"First", "Second"});
    list.setCurrentRow(1);
  });
  EXPECT_EQ(reader_.Spoken(), "");
}

TEST_F(NarratorTest, LeavesOutTheStepsOfAGauge) {
  QProgressBar gauge(&window_);
  gauge.show();
  Change(false, {}, [&] { gauge.setValue(45); });
  EXPECT_EQ(reader_.Spoken(), "");
}

TEST_F(NarratorTest, LetsAllOtherEventsThrough) {
  Change(false, {}, [this] { one_.setAccessibleName("of its own"); });
  EXPECT_EQ(reader_.Spoken(), "of its own");
}

}  // namespace
}  // namespace vmod17

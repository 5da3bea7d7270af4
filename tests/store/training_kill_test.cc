// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <random>
#include <string>
#include <vector>

#include "numbered_training.h"
#include "shell/mod_server.h"
#include "store/host_store.h"
#include "store_process.h"
#include "store_testing.h"

namespace vmod17 {
namespace {

// A program that saves trainings is killed, and the next one looks at what it finds.
class KilledSaving : public ::testing::Test {
 protected:
  // What a program said before it died: the last save that returned, and whether it was in another.
  struct LastWords {
    int saved = 0;
    bool in_a_save = false;
  };

  QString Path() const { return folder_ / "store.sqlite"; }

  StoreProcess Saver(int count, const QStringList& death = {}) const {
    return StoreProcess(
        QStringLiteral(TRAINING_SAVER),
        QStringList{Path(), QString::number(found_ + 1), QString::number(count)} + death);
  }

  void Note(const QString& said, LastWords& words) {
    for (const QString& line : said.split('\n', Qt::SkipEmptyParts)) {
      ASSERT_FALSE(line.startsWith("notice")) << line.toStdString();
      words.in_a_save = line.startsWith("begin");
      if (!words.in_a_save) words.saved = line.section(' ', 1).toInt();
    }
  }

  // Looks at the store as the next start of the program does.
  void ExpectAWholePair(const LastWords& words) {
    ++kills_;
    if (words.in_a_save) ++kills_in_a_save_;
    HostStore store(TestOptions(Path().toStdString(), &notices_));
    ModServer server([&] { return store.Service(); }, {"vmod17", 1, 0, 0});
    const bool has_settings = server.LeseEinstellung("E1");
    ASSERT_EQ(server.LeseAblage("A1"), has_settings);
    ASSERT_EQ(Ids(notices_), std::vector<int>());
    const int last = std::max(words.saved, found_);
    if (!has_settings) {
      ASSERT_EQ(last, 0);
      return;
    }
    found_ = std::stoi(server.einst_satz.at(0).String());
    ASSERT_EQ(server.einst_satz, NumberedSettings(found_));
    ASSERT_EQ(server.ablage_ar, NumberedState(found_));
    // One more than was said can be stored only by a save that was still to say so.
    ASSERT_GE(found_, last);
    ASSERT_LE(found_, last + (words.in_a_save ? 1 : 0));
  }

  void KillAtRandomMoments(int rounds, int most_saves) {
    std::mt19937 random(20260309);
    std::uniform_int_distribution<int> lines(0, 2 * most_saves);
    std::uniform_int_distribution<unsigned> turns(0, 400'000);
    for (int round = 0; round < rounds; ++round) {
      StoreProcess saver = Saver(1'000'000);
      LastWords words;
      for (int heard = lines(random); heard > 0; --heard) Note(saver.Hear(), words);
      // Somewhere between two lines, at no moment of the store's choosing.
      random.discard(turns(random));
      Note(saver.Kill(), words);
      ASSERT_NO_FATAL_FAILURE(ExpectAWholePair(words)) << "round " << round;
    }
  }

  // Lets savers of some trainings die before each of their writing calls in turn, until one lives
  // through all of them.
  void KillBeforeEveryWrite() {
    constexpr int kSaves = 10;
    for (int write = 0;; ++write) {
      StoreProcess saver = Saver(kSaves, {"write", QString::number(write)});
      LastWords words;
      Note(saver.HearTheRest(), words);
      if (!saver.WasKilled()) {
        EXPECT_EQ(words.saved, found_ + kSaves);
        found_ = words.saved;
        return;
      }
      ASSERT_NO_FATAL_FAILURE(ExpectAWholePair(words)) << "before write " << write;
    }
  }

  void RecordFigures() {
    RecordProperty("kills", kills_);
    RecordProperty("kills_in_a_save", kills_in_a_save_);
    std::cout << kills_ << " kills, " << kills_in_a_save_ << " of them in a save, " << found_
              << " trainings saved\n";
  }

  ScratchFolder folder_;
  std::vector<Notice> notices_;
  int found_ = 0;  // the number of the training in the store
  int kills_ = 0;
  int kills_in_a_save_ = 0;
};

TEST_F(KilledSaving, LeavesAWholePairAtAnyMoment) {
  KillAtRandomMoments(300, 8);
  EXPECT_GE(kills_in_a_save_, 100);
  RecordFigures();
}

// With another program at the store the log of what was written is never tidied up at the end of a
// process. It grows until one of the savers does it in the middle of its work.
TEST_F(KilledSaving, LeavesAWholePairInAStoreThatAnotherProgramHoldsOpen) {
  HostStore other(TestOptions(Path().toStdString(), &notices_));
  EXPECT_EQ(ReadValue(other, "E1"), NothingStored());
  KillAtRandomMoments(60, 40);
  EXPECT_GE(kills_in_a_save_, 20);
  RecordFigures();
}

TEST_F(KilledSaving, LeavesThePairBeforeItBetweenTheTwoRecords) {
  for (int round = 0; round < 20; ++round) {
    const int before = found_;
    const int last = before + round % 3;
    StoreProcess saver = Saver(100, {"between", QString::number(last + 1)});
    LastWords words;
    Note(saver.HearTheRest(), words);
    ASSERT_TRUE(saver.WasKilled());
    ASSERT_TRUE(words.in_a_save);
    ASSERT_NO_FATAL_FAILURE(ExpectAWholePair(words));
    ASSERT_EQ(found_, last);
  }
  RecordFigures();
}

TEST_F(KilledSaving, LeavesAWholePairBeforeEveryWriteOfASave) {
  // Once from the making of the store on.
  KillBeforeEveryWrite();
  EXPECT_GE(kills_in_a_save_, 10);
  // And once more with a store that is there, while another program holds it open.
  HostStore other(TestOptions(Path().toStdString(), &notices_));
  ReadValue(other, "E1");
  KillBeforeEveryWrite();
  EXPECT_GE(kills_in_a_save_, 20);
  RecordFigures();
}

}  // namespace
}  // namespace vmod17

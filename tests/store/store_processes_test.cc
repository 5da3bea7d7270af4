// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include <QFileInfo>
#include <memory>
#include <random>
#include <vector>

#include "shared_contract.h"
#include "shared_log.h"
#include "store/host_store.h"
#include "store_process.h"
#include "store_testing.h"

namespace vmod17 {
namespace {

using Array = TaggedValue::Array;

class SharedStore : public ::testing::Test {
 protected:
  QString Path() const { return folder_ / "store.sqlite"; }

  ScratchFolder folder_;
  std::vector<Notice> notices_;
};

TEST_F(SharedStore, ShowsEachOfTwoProcessesWhatTheOtherStores) {
  StoreProcess first;
  StoreProcess second;
  first.Ask("open " + Path() + " 5000");
  second.Ask("open " + Path() + " 5000");
  for (int round = 1; round <= 20; ++round) {
    const QString number = QString::number(round);
    EXPECT_EQ(first.Ask("store E1 first" + number + " 1"), "stored");
    EXPECT_EQ(second.Ask("read E1"), "first" + number + " 1");
    EXPECT_EQ(second.Ask("store E1 second" + number + " 2"), "stored");
    EXPECT_EQ(first.Ask("read E1"), "second" + number + " 2");
  }
  EXPECT_EQ(first.Ask("notices"), "");
  EXPECT_EQ(second.Ask("notices"), "");
}

TEST_F(SharedStore, KeepsToTheContractInTwoProcessesAtOnce) {
  TwoProcessContract(Path().toStdString()).ExpectThatBothKeepToIt();
}

TEST_F(SharedStore, TakesEverythingFromProcessesThatStartAndWriteAtOnce) {
  std::vector<std::unique_ptr<StoreProcess>> processes;
  for (int i = 0; i < 4; ++i) processes.push_back(std::make_unique<StoreProcess>());
  // Everything is said before anything is heard: they make the store and write at the same time.
  for (int i = 0; i < 4; ++i) {
    processes[i]->Say("open " + Path() + " 30000");
    for (int n = 0; n < 20; ++n) {
      processes[i]->Say(QString("store K%1-%2 text%2 10").arg(i).arg(n));
      processes[i]->Say("log line");
    }
    processes[i]->Say("notices");
  }
  for (const auto& process : processes) {
    EXPECT_EQ(process->Hear(), "open");
    for (int n = 0; n < 20; ++n) {
      EXPECT_EQ(process->Hear(), "stored");
      EXPECT_EQ(process->Hear(), "kept");
    }
    EXPECT_EQ(process->Hear(), "");
  }
  HostStore store(TestOptions(Path().toStdString(), &notices_));
  for (int i = 0; i < 4; ++i) {
    for (int n = 0; n < 20; ++n) {
      EXPECT_EQ(ReadValue(store, 'K' + std::to_string(i) + '-' + std::to_string(n)),
                TaggedValue(Array(10, TaggedValue("text" + std::to_string(n)))));
    }
  }
  EXPECT_EQ(store.Log(1000).size(), 80u);
  EXPECT_TRUE(notices_.empty());
}

TEST_F(SharedStore, GivesANumberToOneOfTwoProcessesOnly) {
  StoreProcess first;
  StoreProcess second;
  for (StoreProcess* process : {&first, &second}) {
    process->Say("open " + Path() + " 30000");
    for (int n = 0; n < 10; ++n) process->Say(QString("add %1 Berg").arg(n));
  }
  first.Hear();
  second.Hear();
  for (int n = 0; n < 10; ++n) {
    const QStringList answers = {first.Hear(), second.Hear()};
    EXPECT_EQ(answers.count("added"), 1) << n;
    EXPECT_EQ(answers.count("taken"), 1) << n;
  }
  EXPECT_EQ(first.Ask("users"), second.Ask("users"));
}

TEST_F(SharedStore, KeepsALogBelowItsSizeThatTwoProcessesFillAtOnce) {
  ExpectALogOfTwoProcessesThatStaysSmall(Path().toStdString(), 40'000, 100);
  EXPECT_LT(QFileInfo(Path()).size(), 10'000'000);
}

TEST_F(SharedStore, HoldsAWholeValueWheneverTheProcessIsKilled) {
  std::mt19937 random(20260309);
  std::uniform_int_distribution<int> lines(0, 6);
  std::uniform_int_distribution<unsigned> turns(0, 400'000);
  int said = 0;
  for (int round = 0; round < 50; ++round) {
    StoreProcess process;
    process.Ask("open " + Path() + " 5000");
    process.Say("loop E1 " + QString::number(said));
    for (int heard = lines(random); heard >= 0; --heard) said = process.Hear().toInt();
    // Somewhere between two lines, at no moment of the store's choosing.
    random.discard(turns(random));
    const QStringList rest = process.Kill().split('\n', Qt::SkipEmptyParts);
    if (!rest.isEmpty()) said = rest.last().toInt();

    HostStore store(TestOptions(Path().toStdString(), &notices_));
    const std::optional<TaggedValue> value = ReadValue(store, "E1");
    ASSERT_TRUE(value.has_value() && value->IsArray());
    ASSERT_EQ(value->Elements().size(), 2000u);
    const int stored = std::stoi((*value)[0].String());
    // The one that was said last, or the next, which was stored and could not be said any more.
    ASSERT_TRUE(stored == said || stored == said + 1) << stored << " after " << said;
    for (const TaggedValue& element : value->Elements()) ASSERT_EQ(element, (*value)[0]);
    said = stored;
  }
  EXPECT_TRUE(notices_.empty());
}

}  // namespace
}  // namespace vmod17

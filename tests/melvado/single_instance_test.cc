// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/qt/single_instance.h"

#include <signal.h>
#include <sys/stat.h>

#include <QFile>
#include <QProcess>
#include <QThread>
#include <filesystem>

#include "melvado_testing.h"

namespace vmod17 {
namespace {

using std::chrono::milliseconds;
using Claimed = SingleInstance::Claimed;

constexpr const char* kKey = "key";
/// Of a test that waits in vain.
constexpr milliseconds kShort{50};
/// Of a test that waits for what comes.
constexpr milliseconds kLong{30'000};

class SingleInstanceTest : public testing::Test {
 protected:
  ~SingleInstanceTest() override {
    other_.kill();
    other_.waitForFinished();
  }

  /// Starts another process with the key, and returns what came of its claim.
  QByteArray Start(const QStringList& manner = {}) {
    other_.start(FAKE_INSTANCE, QStringList{kKey} + manner);
    return Line(other_);
  }
  static QByteArray Line(QProcess& process) {
    while (!process.canReadLine() && process.waitForReadyRead(30'000)) {
    }
    return process.readLine().trimmed();
  }
  void Signal(int number) const { kill(static_cast<pid_t>(other_.processId()), number); }

  /// What comes of a claim during which the other process hangs, until it gets a signal once it has
  /// been called.
  Claimed ClaimWith(int signal) {
    Signal(SIGSTOP);
    Claimed claimed = Claimed::kSilent;
    const std::unique_ptr<QThread> thread(
        QThread::create([&] { claimed = SingleInstance(kKey, kLong).Claim(); }));
    thread->start();
    EXPECT_TRUE(ServeUntil([this] { return Sockets() == 2; }));
    Signal(signal);
    thread->wait();
    return claimed;
  }

  /// The system's list has the socket of the first process, and one for each call in its queue.
  qsizetype Sockets() const {
    QFile list("/proc/net/unix");
    return list.open(QIODevice::ReadOnly) ? list.readAll().count(folder_.path().toUtf8()) : 0;
  }

  QTemporaryDir folder_;
  Surrounding runtime_{"XDG_RUNTIME_DIR", folder_.path().toUtf8()};
  QProcess other_;
};

TEST_F(SingleInstanceTest, AsksTheFirstToComeToTheFront) {
  EXPECT_FALSE(SingleInstance::BringToFront(kKey));
  EXPECT_EQ(Start(), "FIRST");
  EXPECT_EQ(SingleInstance(kKey, kLong).Claim(), Claimed::kAnswered);
  EXPECT_EQ(Line(other_), "FRONT");
  EXPECT_TRUE(SingleInstance::BringToFront(kKey));
  EXPECT_EQ(Line(other_), "FRONT");
  SingleInstance another("another key");
  EXPECT_EQ(another.Claim(), Claimed::kFirst);
}

TEST_F(SingleInstanceTest, LetsTheNextOneBeTheFirstWhenItReleases) {
  SingleInstance first(kKey);
  EXPECT_EQ(first.Claim(), Claimed::kFirst);
  first.Release();
  EXPECT_EQ(Start(), "FIRST");
}

TEST_F(SingleInstanceTest, IsTheFirstAfterOneThatWasKilled) {
  EXPECT_EQ(Start(), "FIRST");
  other_.kill();
  other_.waitForFinished();
  EXPECT_EQ(SingleInstance(kKey, kLong).Claim(), Claimed::kFirst);
}

TEST_F(SingleInstanceTest, TakesNoQueuedCallForAnAnswer) {
  EXPECT_EQ(Start(), "FIRST");
  Signal(SIGSTOP);
  for (int start = 0; start < 3; ++start) {
    EXPECT_EQ(SingleInstance(kKey, kShort).Claim(), Claimed::kSilent);
  }
  EXPECT_EQ(other_.state(), QProcess::Running);
}

TEST_F(SingleInstanceTest, TakesALateAnswerForAnAnswer) {
  EXPECT_EQ(Start(), "FIRST");
  EXPECT_EQ(ClaimWith(SIGCONT), Claimed::kAnswered);
  EXPECT_EQ(Line(other_), "FRONT");
}

TEST_F(SingleInstanceTest, IsTheFirstAfterOneThatDiesInsteadOfAnswering) {
  EXPECT_EQ(Start(), "FIRST");
  EXPECT_EQ(ClaimWith(SIGKILL), Claimed::kFirst);
}

TEST_F(SingleInstanceTest, EndsAStoppedProcessByItsOwnWayOut) {
  EXPECT_EQ(Start(), "FIRST");
  Signal(SIGSTOP);
  SingleInstance next(kKey, kShort);
  ASSERT_EQ(next.Claim(), Claimed::kSilent);
  EXPECT_EQ(next.EndOther(kLong), Claimed::kFirst);
  EXPECT_EQ(Line(other_), "LEFT");
}

TEST_F(SingleInstanceTest, EndsAProcessThatPaysNoHeed) {
  EXPECT_EQ(Start({"deaf"}), "FIRST");
  Signal(SIGSTOP);
  SingleInstance next(kKey, kShort);
  ASSERT_EQ(next.Claim(), Claimed::kSilent);
  EXPECT_EQ(next.EndOther(kShort), Claimed::kFirst);
  other_.waitForFinished();
  EXPECT_EQ(other_.exitStatus(), QProcess::CrashExit);
}

TEST_F(SingleInstanceTest, EndsNoProcessThatHasAnsweredMeanwhile) {
  EXPECT_EQ(Start(), "FIRST");
  Signal(SIGSTOP);
  SingleInstance next(kKey, kShort);
  ASSERT_EQ(next.Claim(), Claimed::kSilent);
  Signal(SIGCONT);
  EXPECT_EQ(Line(other_), "FRONT");
  EXPECT_EQ(next.EndOther(), Claimed::kAnswered);
  EXPECT_EQ(other_.state(), QProcess::Running);
}

TEST_F(SingleInstanceTest, EndsAProcessOnTheUsersYesAlone) {
  EXPECT_EQ(Start(), "FIRST");
  Signal(SIGSTOP);
  SingleInstance next(kKey, kShort);
  ScriptedMessageBox messages;
  const Notice question{9257, "It does not answer. End it?", {}};
  const auto say = [](const Notice& notice) { return notice.english; };
  messages.answer = MessageBox::Answer::kNo;
  EXPECT_EQ(ClaimOrAsk(next, messages, question, say), Claimed::kSilent);
  EXPECT_EQ(other_.state(), QProcess::Running);
  messages.answer = MessageBox::Answer::kYes;
  EXPECT_EQ(ClaimOrAsk(next, messages, question, say), Claimed::kFirst);
  ASSERT_EQ(messages.questions.size(), 2u);
  EXPECT_EQ(messages.questions[0].text, question.english);
  EXPECT_EQ(messages.preselected, MessageBox::Answer::kNo);
}

TEST_F(SingleInstanceTest, MayLieInAFolderWhoseNameIsNotUtf8) {
  const QByteArray folder = folder_.path().toUtf8() + "/Sch\xfcler";
  ASSERT_EQ(mkdir(folder, 0700), 0);
  const Surrounding runtime("XDG_RUNTIME_DIR", folder);
  EXPECT_EQ(Start(), "FIRST");
  EXPECT_TRUE(SingleInstance::BringToFront(kKey));
  std::filesystem::remove_all(folder.toStdString());
}

TEST(SingleInstance, LetsEveryProcessBeTheFirstWhereThereIsNoFolder) {
  const QTemporaryDir folder;
  QFile(folder.filePath("file")).open(QIODevice::WriteOnly);
  const Surrounding runtime("XDG_RUNTIME_DIR", "/nowhere/at/all");
  const Surrounding temporary("TMPDIR", folder.filePath("file").toUtf8());
  SingleInstance first(kKey);
  EXPECT_EQ(first.Claim(), Claimed::kFirst);
  SingleInstance second(kKey);
  EXPECT_EQ(second.Claim(), Claimed::kFirst);
}

}  // namespace
}  // namespace vmod17

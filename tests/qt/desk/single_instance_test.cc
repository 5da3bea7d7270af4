// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/desk/single_instance.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <filesystem>

#include "qt/surroundings.h"
#include "support/fake_platform.h"

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

  static int OpenSockets() {
    int sockets = 0;
    for (const auto& each : std::filesystem::directory_iterator("/proc/self/fd")) {
      std::error_code closed_meanwhile;
      const auto what = std::filesystem::read_symlink(each, closed_meanwhile).string();
      sockets += what.starts_with("socket:");
    }
    return sockets;
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

TEST_F(SingleInstanceTest, WaitsForAPlaceInAFullQueue) {
  SingleInstance(kKey).Claim();
  const QString lock = QDir(folder_.path()).entryInfoList({"*.lock"}).at(0).filePath();
  // One call fills the queue of this one.
  const std::string name = lock.chopped(5).toStdString();
  sockaddr_un address{AF_UNIX, {}};
  name.copy(address.sun_path, sizeof address.sun_path);
  const auto* const generic = reinterpret_cast<const sockaddr*>(&address);
  const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0);
  ASSERT_EQ(bind(listener, generic, sizeof address), 0);
  ASSERT_EQ(listen(listener, 0), 0);
  const int first_call = socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_EQ(connect(first_call, generic, sizeof address), 0);
  EXPECT_EQ(SingleInstance(kKey, kShort).Claim(), Claimed::kSilent);

  Claimed claimed = Claimed::kFirst;
  const int opened_before = OpenSockets();
  SingleInstance next(kKey, kLong);
  const std::unique_ptr<QThread> thread(QThread::create([&] { claimed = next.Claim(); }));
  thread->start();
  EXPECT_TRUE(ServeUntil([&] { return OpenSockets() > opened_before; }));
  // It is held until the first attempt has been made.
  const int held = open(lock.toUtf8(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(flock(held, LOCK_EX), 0);
  close(held);
  int answered = 0;
  EXPECT_TRUE(ServeUntil([&] {
    const int call = accept(listener, nullptr, nullptr);
    if (call >= 0) close(call);
    answered += call >= 0;
    return thread->isFinished();
  }));
  EXPECT_EQ(answered, 2);
  thread->wait();
  EXPECT_EQ(claimed, Claimed::kAnswered);
  close(first_call);
  close(listener);
}

TEST_F(SingleInstanceTest, RestsWhereTheNameOfTheFolderIsTooLongForASocket) {
  const QByteArray folder = folder_.path().toUtf8() + '/' + QByteArray(100, 'x');
  ASSERT_EQ(mkdir(folder, 0700), 0);
  const Surrounding runtime("XDG_RUNTIME_DIR", folder);
  {
    SingleInstance first(kKey);
    EXPECT_EQ(first.Claim(), Claimed::kFirst);
    // What does not end.
    Serve();
    EXPECT_FALSE(QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents));
    // A file of the name that it could not bind is another's.
    const QString lock = QDir(folder).entryInfoList({"*.lock"}).at(0).filePath();
    ASSERT_TRUE(QFile(lock.chopped(5)).open(QIODevice::WriteOnly));
  }
  EXPECT_EQ(QDir(folder).entryList(QDir::Files).size(), 2);
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

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The two programs as processes: the second start, the kill, and what the module says to its host.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>

#include <QDir>
#include <QLocalServer>
#include <QProcess>
#include <QTemporaryDir>
#include <array>
#include <memory>
#include <set>
#include <string>

#include "programs/shared/end_on_signal.h"
#include "programs/shared/places.h"
#include "qt/desk/application_setup.h"
#include "qt/desk/single_instance.h"
#include "qt/surroundings.h"
#include "store/host_store.h"

namespace vmod17 {
namespace {

class Programs : public testing::Test {
 protected:
  std::string Store() const { return folder_.filePath("store.sqlite").toStdString(); }

  QProcessEnvironment Surroundings() const {
    QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
    surroundings.insert("MELVADO_STORE", QString::fromStdString(Store()));
    surroundings.insert("MELVADO_HOST", "1");
    surroundings.insert("XDG_DATA_HOME", folder_.path());
    return surroundings;
  }
  std::unique_ptr<QProcess> Start(const char* program) const {
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(Surroundings());
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(program, QStringList());
    EXPECT_TRUE(process->waitForStarted());
    return process;
  }
  static QByteArray Line(QProcess& process) {
    while (!process.canReadLine() && process.waitForReadyRead(30'000)) {
    }
    return process.readLine().trimmed();
  }
  static int Status(QProcess& process) {
    if (process.state() != QProcess::NotRunning) process.waitForFinished(30'000);
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
  }
  static void End(QProcess& process) {
    process.terminate();
    EXPECT_EQ(Status(process), 0);
  }

  QTemporaryDir folder_;
  Surrounding runtime_{"XDG_RUNTIME_DIR", folder_.path().toUtf8()};
};

TEST_F(Programs, TheModuleTellsItsHostThatItIsShownAndThatItEnds) {
  const auto module = Start(MODULE_PROGRAM);
  EXPECT_EQ(Line(*module), "SHOWN");
  module->terminate();
  EXPECT_EQ(Line(*module), "MENUE");
  EXPECT_EQ(Status(*module), 0);
}

TEST_F(Programs, ASecondModuleOfOneUserEndsAtOnceWithStatus0) {
  const auto first = Start(MODULE_PROGRAM);
  EXPECT_EQ(Line(*first), "SHOWN");
  const auto second = Start(MODULE_PROGRAM);
  EXPECT_EQ(Line(*second), "OPEN");
  EXPECT_EQ(Status(*second), 0);
  EXPECT_EQ(first->state(), QProcess::Running);
  End(*first);
}

/// A sound server that takes every connection and never says a word.
class HungSoundServer {
 public:
  explicit HungSoundServer(const QString& path)
      : variable_("PULSE_SERVER", ("unix:" + path).toUtf8()) {
    server_.listen(path);
  }
  /// Waits until a program has come to it, which then waits for its word.
  bool Holds() { return server_.hasPendingConnections() || server_.waitForNewConnection(30'000); }

 private:
  const Surrounding variable_;
  QLocalServer server_;
};

TEST_F(Programs, TheModuleGivesControlBackAndEndsThoughTheSoundServerHangs) {
  HungSoundServer server(folder_.filePath("pulse"));
  const auto module = Start(MODULE_PROGRAM);
  EXPECT_EQ(Line(*module), "SHOWN");
  ASSERT_TRUE(server.Holds());
  module->terminate();
  EXPECT_EQ(Line(*module), "MENUE");
  // At once for the next one; the former process may still be there.
  const auto next = Start(MODULE_PROGRAM);
  EXPECT_EQ(Line(*next), "SHOWN");
  EXPECT_EQ(Status(*module), 0);
  End(*next);
}

TEST_F(Programs, AnotherUserMayRunAModuleOfHisOwn) {
  const auto nobodys = Start(MODULE_PROGRAM);
  EXPECT_EQ(Line(*nobodys), "SHOWN");
  StoreOptions options;
  options.address = Store();
  HostStore(std::move(options)).SetUser({"4711", "Berg", "Anna"});
  const auto annas = Start(MODULE_PROGRAM);
  EXPECT_EQ(Line(*annas), "SHOWN");
  End(*annas);
  End(*nobodys);
}

TEST_F(Programs, AModuleStartsAgainAfterItWasKilled) {
  const auto killed = Start(MODULE_PROGRAM);
  EXPECT_EQ(Line(*killed), "SHOWN");
  killed->kill();
  killed->waitForFinished();
  const auto next = Start(MODULE_PROGRAM);
  EXPECT_EQ(Line(*next), "SHOWN");
  End(*next);
}

TEST_F(Programs, AModuleOutlivesAHostThatListensNoMore) {
  const auto module = Start(MODULE_PROGRAM);
  EXPECT_EQ(Line(*module), "SHOWN");
  module->closeReadChannel(QProcess::StandardOutput);
  End(*module);
}

TEST_F(Programs, ASecondHostEndsAtOnceWithStatus0) {
  const auto first = Start(MELVADO_PROGRAM);
  ASSERT_TRUE(ServeUntil([this] { return SingleInstance::BringToFront(HostKey(Store())); }));
  const auto second = Start(MELVADO_PROGRAM);
  EXPECT_EQ(Status(*second), 0);
  EXPECT_EQ(first->state(), QProcess::Running);
  End(*first);
}

TEST_F(Programs, SayInOneLineWhyTheyCannotBeShown) {
  const std::vector<std::array<QString, 3>> places = {
      {"", "", ""}, {"", ":4711", ""}, {"", "", "nowhere"}, {"nonsense", "", ""}};
  for (const char* program : {MELVADO_PROGRAM, MODULE_PROGRAM}) {
    for (const auto& [platform, display, wayland] : places) {
      QProcessEnvironment surroundings = Surroundings();
      surroundings.insert("QT_QPA_PLATFORM", platform);
      surroundings.insert("DISPLAY", display);
      surroundings.insert("WAYLAND_DISPLAY", wayland);
      QProcess process;
      process.setProcessEnvironment(surroundings);
      process.start(program, QStringList());
      EXPECT_EQ(Status(process), kStatusNotShown);
      const QByteArray said = process.readAllStandardError();
      EXPECT_TRUE(said.startsWith("The program cannot be shown here")) << said.toStdString();
      EXPECT_TRUE(said.contains((platform + display + wayland).toUtf8())) << said.toStdString();
      // In the toolkit's own words: a display is not all that may be missing.
      EXPECT_TRUE(said.contains("platform plugin \"" + platform.toUtf8())) << said.toStdString();
      EXPECT_EQ(said.count('\n'), 1) << said.toStdString();
    }
  }
}

/// The descriptors of this process that a program which it starts would have too.
std::set<int> Inherited() {
  std::set<int> inherited;
  for (int number = 3; number < 1024; ++number) {
    const int flags = fcntl(number, F_GETFD);
    if (flags >= 0 && (flags & FD_CLOEXEC) == 0) inherited.insert(number);
  }
  return inherited;
}

TEST(EndOnSignal, LeavesNothingOpenForProgramsThatAreStarted) {
  const std::set<int> before = Inherited();
  const EndOnSignal end_on_signal([] {});
  EXPECT_EQ(Inherited(), before);
}

TEST_F(Programs, OneStoreHasOneKeyHoweverItIsNamed) {
  const QString twisted =
      folder_.path() + "/./../" + QDir(folder_.path()).dirName() + "/store.sqlite";
  EXPECT_EQ(HostKey(twisted.toStdString()), HostKey(Store()));
  EXPECT_NE(ModuleKey(Store(), ""), ModuleKey(Store(), "4711"));
}

}  // namespace
}  // namespace vmod17

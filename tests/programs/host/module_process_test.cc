// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/module_process.h"

#include <signal.h>

#include <QFile>

#include "melvado_testing.h"

namespace melvado {
namespace {

using vmod17::StoreOptions;

using Kind = ModuleEnd::Kind;

class ModuleProcessTest : public testing::Test {
 protected:
  ModuleProcessTest() {
    process_.on_shown = [this] { ++shown_; };
    process_.on_back = [this] { ++back_; };
    process_.on_end = [this](const ModuleEnd& end) { ends_.push_back(end); };
  }

  ModuleEnd Run(const QByteArray& script) {
    const Surrounding fake("FAKE_MODULE", script);
    process_.Start(FAKE_MODULE, "", "");
    EXPECT_TRUE(ServeUntil([this] { return !ends_.empty(); }));
    EXPECT_FALSE(process_.runs());
    return ends_.empty() ? ModuleEnd() : ends_[0];
  }

  ModuleProcess process_;
  int shown_ = 0;
  int back_ = 0;
  std::vector<ModuleEnd> ends_;
};

TEST_F(ModuleProcessTest, TellsThatTheModuleIsShownAndGivesControlBack) {
  EXPECT_EQ(Run("SHOWN MENUE 0").kind, Kind::kMenu);
  EXPECT_EQ(shown_, 1);
  EXPECT_EQ(ends_.size(), 1u);
}

TEST_F(ModuleProcessTest, TakesAnEndWithoutAWordForBroken) {
  const ModuleEnd end = Run("SHOWN 0");
  EXPECT_EQ(end.kind, Kind::kBroken);
  EXPECT_FALSE(end.crashed);
  EXPECT_EQ(end.code, 0);
}

TEST_F(ModuleProcessTest, TellsTheStatusOfABrokenModule) {
  const ModuleEnd end = Run("3");
  EXPECT_EQ(end.kind, Kind::kBroken);
  EXPECT_EQ(end.code, 3);
}

TEST_F(ModuleProcessTest, TellsACrashByItsSignal) {
  const ModuleEnd end = Run("SHOWN abort");
  EXPECT_EQ(end.kind, Kind::kBroken);
  EXPECT_TRUE(end.crashed);
  EXPECT_EQ(end.code, SIGABRT);
}

TEST_F(ModuleProcessTest, TakesACrashOnTheWayOutForACrash) {
  const ModuleEnd end = Run("SHOWN MENUE abort");
  EXPECT_EQ(end.kind, Kind::kBroken);
  EXPECT_TRUE(end.crashed);
  EXPECT_EQ(end.code, SIGABRT);
}

TEST(ModuleProcess, GivesItsModuleMoreTimeToSaveThanTheStoreTakesForAWrite) {
  EXPECT_GE(kTimeToEndMs, 2 * StoreOptions().busy_timeout_ms);
}

TEST_F(ModuleProcessTest, TellsThatTheModuleWasOpenBefore) {
  EXPECT_EQ(Run("OPEN 0").kind, Kind::kOpenBefore);
  EXPECT_EQ(shown_, 0);
}

TEST_F(ModuleProcessTest, IgnoresLinesThatItDoesNotKnow) {
  EXPECT_EQ(Run("NEWS menue 0").kind, Kind::kBroken);
}

TEST_F(ModuleProcessTest, TellsWhyAModuleDoesNotStart) {
  process_.Start("/nowhere/vmod17", "", "");
  ASSERT_TRUE(ServeUntil([this] { return !ends_.empty(); }));
  EXPECT_EQ(ends_[0].kind, Kind::kNotStarted);
  EXPECT_FALSE(ends_[0].reason.isEmpty());
  EXPECT_FALSE(process_.runs());
}

TEST_F(ModuleProcessTest, EndsASilentModuleByItsOwnWayOut) {
  const Surrounding fake("FAKE_MODULE", "SHOWN wait MENUE 0");
  process_.Start(FAKE_MODULE, "", "");
  ASSERT_TRUE(ServeUntil([this] { return shown_ == 1; }));
  kill(static_cast<pid_t>(process_.process_id()), SIGSTOP);
  process_.EndSilent(30'000);
  ASSERT_TRUE(ServeUntil([this] { return !ends_.empty(); }));
  EXPECT_EQ(ends_[0].kind, Kind::kMenu);
}

TEST_F(ModuleProcessTest, EndsASilentModuleThatPaysNoHeedByForce) {
  const Surrounding fake("FAKE_MODULE", "SHOWN wait wait wait");
  process_.Start(FAKE_MODULE, "", "");
  ASSERT_TRUE(ServeUntil([this] { return shown_ == 1; }));
  process_.EndSilent(50);
  ASSERT_TRUE(ServeUntil([this] { return !ends_.empty(); }));
  EXPECT_EQ(ends_[0].kind, Kind::kEnded);
  EXPECT_FALSE(process_.runs());
}

TEST_F(ModuleProcessTest, TakesNoEndThatItsUserWantedForACrash) {
  for (const char* script : {"SHOWN wait hang", "SHOWN mortal"}) {
    ends_.clear();
    shown_ = 0;
    const Surrounding fake("FAKE_MODULE", script);
    process_.Start(FAKE_MODULE, "", "");
    ASSERT_TRUE(ServeUntil([this] { return shown_ == 1; }));
    process_.EndSilent(50);
    ASSERT_TRUE(ServeUntil([this] { return !ends_.empty(); }));
    EXPECT_EQ(ends_[0].kind, Kind::kEnded) << script;
    EXPECT_FALSE(ends_[0].crashed) << script;
  }
}

TEST_F(ModuleProcessTest, TellsACrashOfAModuleThatItsUserWantedToEnd) {
  const Surrounding fake("FAKE_MODULE", "SHOWN wait abort");
  process_.Start(FAKE_MODULE, "", "");
  ASSERT_TRUE(ServeUntil([this] { return shown_ == 1; }));
  process_.EndSilent(30'000);
  ASSERT_TRUE(ServeUntil([this] { return !ends_.empty(); }));
  EXPECT_EQ(ends_[0].kind, Kind::kEnded);
  EXPECT_TRUE(ends_[0].crashed);
  EXPECT_EQ(ends_[0].code, SIGABRT);
}

TEST_F(ModuleProcessTest, RunsOneModuleAtATime) {
  const Surrounding fake("FAKE_MODULE", "SHOWN wait MENUE 0");
  process_.Start(FAKE_MODULE, "", "");
  ASSERT_TRUE(ServeUntil([this] { return shown_ == 1; }));
  const qint64 first = process_.process_id();
  process_.Start(FAKE_MODULE, "", "");
  EXPECT_EQ(process_.process_id(), first);
  kill(static_cast<pid_t>(first), SIGTERM);
  ASSERT_TRUE(ServeUntil([this] { return !ends_.empty(); }));
  EXPECT_EQ(ends_[0].kind, Kind::kMenu);
}

TEST_F(ModuleProcessTest, HandsOnStoreAndSessionAndKeepsTheOutputThatItHasTakenOver) {
  const QTemporaryDir folder;
  const QString notes = folder.filePath("notes");
  const Surrounding file("FAKE_MODULE_NOTES", notes.toUtf8());
  const Surrounding output("MELVADO_MIDI", "Piano");
  const Surrounding fake("FAKE_MODULE", "MENUE");
  process_.Start(FAKE_MODULE, "/some/store", "what was chosen");
  ASSERT_TRUE(ServeUntil([this] { return !ends_.empty(); }));
  QFile written(notes);
  ASSERT_TRUE(written.open(QIODevice::ReadOnly));
  EXPECT_EQ(written.readAll(),
            "MELVADO_HOST=1\nMELVADO_STORE=/some/store\n"
            "MELVADO_SESSION=what was chosen\nMELVADO_MIDI=none\n");
}

TEST_F(ModuleProcessTest, IsBackOnceForAModuleThatEndsAtOnceAfterItsWord) {
  EXPECT_EQ(Run("SHOWN MENUE MENUE 0").kind, Kind::kMenu);
  EXPECT_EQ(back_, 1);
  EXPECT_EQ(process_.leaving(), 0);
}

TEST_F(ModuleProcessTest, IsNotBackFromAModuleThatBreaks) {
  EXPECT_EQ(Run("SHOWN 3").kind, Kind::kBroken);
  EXPECT_EQ(back_, 0);
}

/// A process that stays after its module has given control back.
class LeavingModule : public testing::Test {
 protected:
  void Start(ModuleProcess& process, const QByteArray& script) {
    process.on_back = [this] { ++back_; };
    process.on_end = [this](const ModuleEnd& end) { ends_.push_back(end); };
    const Surrounding fake("FAKE_MODULE", script);
    process.Start(FAKE_MODULE, "", "");
    id_ = static_cast<pid_t>(process.process_id());
  }
  bool IsAlive() const { return kill(id_, 0) == 0; }

  int back_ = 0;
  std::vector<ModuleEnd> ends_;
  pid_t id_ = 0;
};

TEST_F(LeavingModule, IsOverForTheUserAtItsWord) {
  ModuleProcess process;
  Start(process, "SHOWN MENUE wait 0");
  ASSERT_TRUE(ServeUntil([this] { return back_ == 1; }));
  EXPECT_FALSE(process.runs());
  EXPECT_EQ(process.process_id(), 0);
  EXPECT_EQ(process.leaving(), 1);
  EXPECT_TRUE(IsAlive());
  EXPECT_TRUE(ends_.empty());
  kill(id_, SIGTERM);
  ASSERT_TRUE(ServeUntil([this] { return !ends_.empty(); }));
  EXPECT_EQ(ends_[0].kind, Kind::kMenu);
  EXPECT_EQ(process.leaving(), 0);
}

TEST_F(LeavingModule, IsInNobodysWayWhenTheNextOneIsStarted) {
  ModuleProcess process;
  Start(process, "MENUE wait 0");
  ASSERT_TRUE(ServeUntil([this] { return back_ == 1; }));
  const pid_t first = id_;
  Start(process, "MENUE 0");
  EXPECT_NE(id_, 0);
  EXPECT_NE(id_, first);
  ASSERT_TRUE(ServeUntil([this] { return back_ == 2 && ends_.size() == 1; }));
  EXPECT_EQ(process.leaving(), 1);
  kill(first, SIGTERM);
  ASSERT_TRUE(ServeUntil([this] { return ends_.size() == 2; }));
  EXPECT_EQ(ends_[1].kind, Kind::kMenu);
}

TEST_F(LeavingModule, IsKilledWhenItStays) {
  ModuleProcess process(50);
  Start(process, "MENUE hang");
  ASSERT_TRUE(ServeUntil([this] { return !ends_.empty(); }));
  EXPECT_EQ(ends_[0].kind, Kind::kHung);
  EXPECT_FALSE(ends_[0].crashed);
  EXPECT_FALSE(IsAlive());
}

TEST_F(LeavingModule, HasItsTimeToLeaveAlsoWhereItsUserHadItEnded) {
  ModuleProcess process(2000);
  bool shown = false;
  process.on_shown = [&] { shown = true; };
  Start(process, "SHOWN wait MENUE hang");
  ASSERT_TRUE(ServeUntil([&] { return shown; }));
  process.EndSilent(1000);
  ASSERT_TRUE(ServeUntil([this] { return !ends_.empty(); }));
  EXPECT_EQ(back_, 1);
  EXPECT_EQ(ends_[0].kind, Kind::kHung) << "what it has saved is whole";
  EXPECT_FALSE(ends_[0].crashed);
}

TEST_F(LeavingModule, IsKilledWhenTheHostGoesAndItStays) {
  {
    ModuleProcess process(50);
    Start(process, "MENUE hang");
    ASSERT_TRUE(ServeUntil([this] { return back_ == 1; }));
  }
  EXPECT_FALSE(IsAlive());
  EXPECT_TRUE(ends_.empty());
}

TEST_F(ModuleProcessTest, StartsTheModuleWithoutASessionThatNoProgramCanBeGiven) {
  const QTemporaryDir folder;
  const QString notes = folder.filePath("notes");
  const Surrounding file("FAKE_MODULE_NOTES", notes.toUtf8());
  const Surrounding fake("FAKE_MODULE", "MENUE 0");
  process_.Start(FAKE_MODULE, "", QString(300'000, 'x'));
  ASSERT_TRUE(ServeUntil([this] { return !ends_.empty(); }));
  EXPECT_EQ(ends_[0].kind, Kind::kMenu);
  QFile written(notes);
  ASSERT_TRUE(written.open(QIODevice::ReadOnly));
  EXPECT_TRUE(written.readAll().contains("MELVADO_SESSION=none\n"));
}

TEST(ModuleProcess, EndsItsModuleByTheModulesOwnWayWhenTheHostGoes) {
  const QTemporaryDir folder;
  const Surrounding fake("FAKE_MODULE", "SHOWN wait MENUE 0");
  qint64 id = 0;
  {
    ModuleProcess process;
    bool shown = false;
    process.on_shown = [&] { shown = true; };
    process.Start(FAKE_MODULE, "", "");
    ASSERT_TRUE(ServeUntil([&] { return shown; }));
    id = process.process_id();
  }
  EXPECT_NE(kill(static_cast<pid_t>(id), 0), 0);
}

}  // namespace
}  // namespace melvado

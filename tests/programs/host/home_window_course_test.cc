// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// What happens between the home window, the module and the sound test.

#include <signal.h>

#include <QEventLoop>
#include <QTableWidget>
#include <QTest>
#include <QThread>
#include <atomic>
#include <semaphore>

#include "melvado_testing.h"
#include "programs/host/log_window.h"
#include "programs/shared/places.h"
#include "qt/desk/single_instance.h"

namespace melvado {
namespace {

using vmod17::MessageBox;
using vmod17::ModuleKey;
using vmod17::SingleInstance;

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class HomeWindowCourse : public HostStage {
 protected:
  /// Starts a module that runs until `EndModule`, and waits until it is shown.
  void ShowModule() {
    const Surrounding fake("FAKE_MODULE", "SHOWN wait MENUE 0");
    Press("start");
    ASSERT_TRUE(ServeUntil([this] { return !window_->isVisible(); }));
  }
  void EndModule() {
    kill(static_cast<pid_t>(host_->module_process()), SIGTERM);
    ASSERT_TRUE(ServeUntil([this] { return !host_->ModuleRuns(); }));
  }
  std::string KeyOfModule() { return ModuleKey(At("store.sqlite").toStdString(), ""); }
};

/// Another process that works under a key, in a thread of its own.
class Another {
 public:
  explicit Another(const std::string& key)
      : thread_(QThread::create([this, key] {
          SingleInstance instance(key);
          instance.come_to_front = [this] { ++asked_; };
          EXPECT_EQ(instance.Claim(), SingleInstance::Claimed::kFirst);
          claimed_.release();
          QEventLoop().exec();
        })) {
    thread_->start();
    claimed_.acquire();
  }
  ~Another() {
    thread_->quit();
    thread_->wait();
  }
  int asked() const { return asked_; }

 private:
  std::atomic<int> asked_ = 0;
  std::binary_semaphore claimed_{0};
  const std::unique_ptr<QThread> thread_;
};

// ---- The sound test

TEST_F(HomeWindowCourse, EndsATestWithoutAVerdictWhenAnotherOutputIsChosen) {
  ports_->Plug({"Piano", "Expander"});
  Open();
  const QString before = Caption("verdict");
  Choose("output", 0);
  Press("test");
  ASSERT_TRUE(ServeUntil([this] { return !ports_->Got().empty(); }));
  Choose("output", 1);
  EXPECT_FALSE(host_->TestRuns());
  EXPECT_EQ(Caption("verdict"), before);
  EXPECT_TRUE(Find<QWidget>("test")->isEnabled());
}

TEST_F(HomeWindowCourse, EndsATestWithoutAVerdictWhenAnotherSoundfontIsChosen) {
  ports_->Plug({"Piano"});
  Open();
  Choose("output", 0);
  Press("test");
  EXPECT_EQ(host_->ChooseSoundfont(""), std::nullopt);
  EXPECT_FALSE(host_->TestRuns());
  EXPECT_FALSE(host_->verdict().has_value());
}

// ---- The module

TEST_F(HomeWindowCourse, BringsAModuleThatWasOpenToTheFrontAfterItsMessage) {
  Open();
  const Another module(KeyOfModule());
  int asked_before = -1;
  messages_.meanwhile = [&] { asked_before = module.asked(); };
  RunModule("OPEN 0");
  ASSERT_THAT(messages_.warnings, SizeIs(1));
  EXPECT_EQ(asked_before, 0);
  EXPECT_TRUE(ServeUntil([&] { return module.asked() == 1; }));
}

TEST_F(HomeWindowCourse, SaysThatAModuleHasCrashedOnItsWayOut) {
  Open();
  RunModule("SHOWN MENUE abort");
  ASSERT_THAT(messages_.questions, SizeIs(1));
  EXPECT_THAT(messages_.questions[0].text, HasSubstr("unerwartet"));
  EXPECT_THAT(host_->Log().back().text, HasSubstr("signal 6"));
}

TEST_F(HomeWindowCourse, IsBackAtTheWordOfAModuleWhoseProcessHangs) {
  Open();
  const Surrounding fake("FAKE_MODULE", "SHOWN MENUE wait 0");
  Press("start");
  const auto hung = static_cast<pid_t>(host_->module_process());
  ASSERT_TRUE(ServeUntil([this] { return host_->ModulesThatLeave() == 1; }));
  Serve();
  EXPECT_TRUE(window_->isVisible());
  EXPECT_EQ(Caption("start"), "Jazz-Akkorde bestimmen");
  EXPECT_TRUE(Find<QWidget>("test")->isEnabled());
  EXPECT_EQ(kill(hung, 0), 0);

  ShowModule();
  kill(hung, SIGTERM);
  ASSERT_TRUE(ServeUntil([this] { return host_->ModulesThatLeave() == 0; }));
  Serve();
  EXPECT_FALSE(window_->isVisible()) << "the user is at work in the next one";
  EndModule();
}

TEST_F(HomeWindowCourse, LeavesTheFocusWhereItIsWhenTheProcessEnds) {
  Open();
  const Surrounding fake("FAKE_MODULE", "SHOWN MENUE wait 0");
  Press("start");
  const auto leaving = static_cast<pid_t>(host_->module_process());
  ASSERT_TRUE(ServeUntil([this] { return host_->ModulesThatLeave() == 1; }));
  Serve();
  EXPECT_EQ(window_->focusWidget(), Find<QWidget>("start"));
  Find<QWidget>("language")->setFocus();
  kill(leaving, SIGTERM);
  ASSERT_TRUE(ServeUntil([this] { return host_->ModulesThatLeave() == 0; }));
  Serve();
  EXPECT_EQ(window_->focusWidget(), Find<QWidget>("language"));
  EXPECT_THAT(messages_.questions, IsEmpty());
}

TEST_F(HomeWindowCourse, LogsButDoesNotAskAboutACrashOnTheWayOutWhileTheNextOneRuns) {
  Open();
  {
    const Surrounding fake("FAKE_MODULE", "SHOWN MENUE wait abort");
    Press("start");
  }
  const auto crashing = static_cast<pid_t>(host_->module_process());
  ASSERT_TRUE(ServeUntil([this] { return host_->ModulesThatLeave() == 1; }));
  Serve();
  ShowModule();
  kill(crashing, SIGTERM);
  ASSERT_TRUE(ServeUntil([this] { return host_->ModulesThatLeave() == 0; }));
  Serve();
  EXPECT_THAT(messages_.questions, IsEmpty());
  EXPECT_FALSE(window_->isVisible());
  EXPECT_THAT(host_->Log().back().text, HasSubstr("signal 6"));
  EndModule();
}

TEST_F(HomeWindowCourse, BringsTheModuleToTheFrontForASecondStart) {
  Open();
  ShowModule();
  const Another module(KeyOfModule());
  window_->ComeToFront();
  EXPECT_TRUE(ServeUntil([&] { return module.asked() == 1; }));
  EXPECT_FALSE(window_->isVisible());
  EndModule();
}

TEST_F(HomeWindowCourse, AsksAtEachStartWhetherToEndAModuleThatDoesNotAnswer) {
  Open();
  ShowModule();
  messages_.answer = MessageBox::Answer::kNo;
  messages_.while_asked = [this] {
    window_->ComeToFront();  // the question stands already
    Serve();
  };
  for (const std::size_t questions : {1, 2}) {
    window_->ComeToFront();
    EXPECT_TRUE(window_->isVisible());
    Serve();
    EXPECT_THAT(messages_.questions, SizeIs(questions));
    EXPECT_EQ(messages_.preselected, MessageBox::Answer::kNo);
    EXPECT_TRUE(host_->ModuleRuns());
  }
  EndModule();
  EXPECT_TRUE(window_->isVisible());
}

TEST_F(HomeWindowCourse, GivesWayToAModuleThatAnswersAgain) {
  Open();
  ShowModule();
  messages_.answer = MessageBox::Answer::kNo;
  window_->ComeToFront();
  Serve();
  EXPECT_TRUE(window_->isVisible());
  const Another module(KeyOfModule());
  window_->ComeToFront();
  EXPECT_FALSE(window_->isVisible());
  Serve();
  EXPECT_THAT(messages_.questions, SizeIs(1));
  EndModule();
}

TEST_F(HomeWindowCourse, AsksAboutAModuleThatIsNotShownOnlyOnceItTakesTooLong) {
  const Surrounding fake("FAKE_MODULE", "wait MENUE 0");
  for (const int time_to_start_ms : {3'600'000, 0}) {
    HostSetup setup = HostOfTest();
    setup.time_to_start_ms = time_to_start_ms;
    Open(setup);
    Press("start");
    window_->ComeToFront();
    Serve();
    EXPECT_THAT(messages_.questions, SizeIs(time_to_start_ms == 0 ? 1 : 0));
    Close();  // ends the module
  }
}

TEST_F(HomeWindowCourse, WithdrawsItsQuestionWhenTheModuleGivesControlBack) {
  Open();
  ShowModule();
  messages_.while_asked = [this] { EndModule(); };
  window_->ComeToFront();
  ASSERT_TRUE(ServeUntil([this] { return messages_.withdrawn == 1; }));
  EXPECT_TRUE(Find<QWidget>("language")->isEnabled());
}

TEST_F(HomeWindowCourse, EndsAModuleThatDoesNotAnswerOnTheUsersYes) {
  Open();
  ShowModule();
  messages_.answer = MessageBox::Answer::kYes;
  window_->ComeToFront();
  ASSERT_TRUE(ServeUntil([this] { return !host_->ModuleRuns(); }));
  Serve();
  EXPECT_THAT(messages_.questions, SizeIs(1));
  EXPECT_TRUE(window_->isVisible());
  EXPECT_TRUE(Find<QWidget>("language")->isEnabled());
}

TEST_F(HomeWindowCourse, LogsThatItsUserHadASilentModuleEnded) {
  Open();
  const Surrounding fake("FAKE_MODULE", "SHOWN wait hang");
  Press("start");
  ASSERT_TRUE(ServeUntil([this] { return !window_->isVisible(); }));
  host_->EndModule(50);
  ASSERT_TRUE(ServeUntil([this] { return !host_->ModuleRuns(); }));
  Serve();
  EXPECT_THAT(messages_.questions, IsEmpty());
  EXPECT_THAT(host_->Log().back().text, HasSubstr("its user had it ended"));
}

TEST_F(HomeWindowCourse, TellsAModuleThatHangsFromOneThatAnswers) {
  // It listens, but nothing serves its events while this waits.
  SingleInstance hanging(KeyOfModule());
  ASSERT_EQ(hanging.Claim(), SingleInstance::Claimed::kFirst);
  EXPECT_FALSE(SingleInstance::BringToFront(KeyOfModule()));
}

TEST_F(HomeWindowCourse, PutsTheFocusOnTheStartAlsoAfterAModuleThatWasNeverShown) {
  Open();
  Find<QWidget>("language")->setFocus();
  const Surrounding fake("FAKE_MODULE", "3");
  QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  ASSERT_TRUE(ServeUntil([this] { return !host_->ModuleRuns(); }));
  Serve();
  EXPECT_EQ(window_->focusWidget(), Find<QWidget>("start"));
}

TEST_F(HomeWindowCourse, FillsTheScreenAtFirstAndKeepsTheSizeThatTheUserGivesIt) {
  Open();
  EXPECT_TRUE(window_->isMaximized());
  RunModule("SHOWN MENUE 0");
  EXPECT_TRUE(window_->isMaximized());
  window_->showNormal();
  window_->resize(900, 640);
  Serve();
  RunModule("SHOWN MENUE 0");
  EXPECT_TRUE(window_->isVisible());
  EXPECT_FALSE(window_->isMaximized());
  EXPECT_EQ(window_->size(), QSize(900, 640));
}

TEST_F(HomeWindowCourse, IsThereAgainAfterItWasMinimisedWhileTheModuleStarted) {
  Open();
  window_->showMinimized();
  RunModule("SHOWN MENUE 0");
  EXPECT_TRUE(window_->isVisible());
  EXPECT_FALSE(window_->isMinimized());
}

TEST_F(HomeWindowCourse, LeavesNothingOnTheDesktopWhenTheModuleIsShown) {
  Open();
  Press("log");
  int shown = 0;
  window_->on_module_shown = [&] { ++shown; };
  ShowModule();
  EXPECT_EQ(shown, 1);
  EXPECT_FALSE(window_->log_window()->isVisible());
  EndModule();
}

// ---- The log

TEST_F(HomeWindowCourse, ShowsEveryLineOfALongLog) {
  Open();
  RunOnStore(
      "WITH RECURSIVE line(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM line WHERE i < 5000) "
      "INSERT INTO melvado_log (at, user_id, kind, place, number, text, source, total) "
      "SELECT '2026-03-09 08:05:01', '', 'ERR', 'form', i, 'text', 'source', 0 FROM line");
  Press("log");
  const auto* lines = window_->log_window()->findChild<QTableWidget*>("lines");
  ASSERT_EQ(lines->rowCount(), 5001);  // the first is the host's start
  EXPECT_EQ(lines->item(1, 2)->text(), "1");
  EXPECT_EQ(lines->item(5000, 2)->text(), "5000");
  EXPECT_EQ(lines->item(5000, 0)->text(), "09.03.26 08:05:01");
  EXPECT_EQ(lines->currentRow(), 5000);
}

}  // namespace
}  // namespace melvado

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/module/desktop.h"

#include <gmock/gmock.h>
#include <signal.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QIcon>
#include <QMessageBox>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <utility>

#include "base/run_time_error.h"
#include "qt/desk/application_setup.h"
#include "qt/surroundings.h"
#include "store/host_store.h"

namespace vmod17 {
namespace {

/// Notes whether the program had its icon when its first window was painted.
class FirstPaint : public QObject {
 public:
  FirstPaint() { qApp->installEventFilter(this); }

  bool came = false;
  bool had_icon = false;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Paint || came || !watched->isWidgetType()) return false;
    came = true;
    had_icon = !QApplication::windowIcon().isNull();
    return false;
  }
};

TEST(Desktop, TakesItsIconOnlyOnceTheFirstScreenStands) {
  const QTemporaryDir folder;
  const Surrounding runtime("XDG_RUNTIME_DIR", folder.path().toUtf8());
  const Surrounding data("XDG_DATA_HOME", folder.path().toUtf8());
  const Surrounding store("MELVADO_STORE", folder.filePath("store.sqlite").toUtf8());
  const QLocale before;
  QApplication::setWindowIcon(QIcon());
  FirstPaint first_paint;
  Desktop desktop;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &look, [&] {
    if (!QApplication::windowIcon().isNull()) desktop.Leave();
  });
  QTimer::singleShot(30'000, &look, [&] { desktop.Leave(); });
  look.start(5);
  EXPECT_EQ(desktop.Run(), 0);
  EXPECT_TRUE(first_paint.came);
  EXPECT_FALSE(first_paint.had_icon);
  EXPECT_FALSE(QApplication::windowIcon().isNull());
  QLocale::setDefault(before);  // the program speaks as its language
}

/// Closes each message as soon as it stands, and keeps what it said.
class MessageReader {
 public:
  explicit MessageReader(std::function<void()> otherwise) : otherwise_(std::move(otherwise)) {
    QObject::connect(&look_, &QTimer::timeout, &look_, [this] { Look(); });
    look_.start(5);
  }
  const QStringList& said() const { return said_; }

 private:
  void Look() {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return otherwise_();
    said_ << box->text();
    box->accept();
  }

  QTimer look_;
  std::function<void()> otherwise_;
  QStringList said_;
};

/// Presses a button of each question as soon as it stands.
class Answerer {
 public:
  explicit Answerer(QMessageBox::StandardButton button) {
    QObject::connect(&look_, &QTimer::timeout, &look_, [this, button] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      said_ << box->text();
      box->button(button)->click();
    });
    look_.start(5);
  }
  const QStringList& said() const { return said_; }

 private:
  QTimer look_;
  QStringList said_;
};

TEST(Desktop, AsksBeforeItEndsAnExerciseThatHangs) {
  const QTemporaryDir folder;
  const Surrounding runtime("XDG_RUNTIME_DIR", folder.path().toUtf8());
  const Surrounding data("XDG_DATA_HOME", folder.path().toUtf8());
  const Surrounding address("MELVADO_STORE", folder.filePath("store.sqlite").toUtf8());
  StoreOptions options;
  options.address = folder.filePath("store.sqlite").toStdString();
  HostStore(options).SetLanguage("Deutsch");
  const QLocale before;
  QProcess hangs;
  {
    const Surrounding host("MELVADO_HOST", "1");
    hangs.start(MODULE_PROGRAM, QStringList());
  }
  ASSERT_TRUE(ServeUntil([&] { return hangs.canReadLine(); }));
  kill(static_cast<pid_t>(hangs.processId()), SIGSTOP);
  {
    const Answerer no(QMessageBox::No);
    EXPECT_EQ(Desktop().Run(), kStatusNotShown);
    ASSERT_EQ(no.said().size(), 1);
    EXPECT_TRUE(no.said()[0].startsWith("Die Übung ist schon geöffnet"));
    EXPECT_EQ(hangs.state(), QProcess::Running);
  }
  const Answerer yes(QMessageBox::Yes);
  QApplication::setWindowIcon(QIcon());
  Desktop desktop;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &look, [&] {
    if (!QApplication::windowIcon().isNull()) desktop.Leave();
  });
  look.start(5);
  EXPECT_EQ(desktop.Run(), 0);
  EXPECT_EQ(yes.said().size(), 1);
  hangs.waitForFinished();
  EXPECT_TRUE(hangs.readAll().endsWith("MENUE\n"));
  QLocale::setDefault(before);
}

TEST(Desktop, IsCutOffWhileItAsksWhetherToEndAnExerciseThatHangs) {
  const QTemporaryDir folder;
  const Surrounding runtime("XDG_RUNTIME_DIR", folder.path().toUtf8());
  const Surrounding data("XDG_DATA_HOME", folder.path().toUtf8());
  const Surrounding address("MELVADO_STORE", folder.filePath("store.sqlite").toUtf8());
  QProcess hangs;
  {
    const Surrounding host("MELVADO_HOST", "1");
    hangs.start(MODULE_PROGRAM, QStringList());
  }
  ASSERT_TRUE(ServeUntil([&] { return hangs.canReadLine(); }));
  kill(static_cast<pid_t>(hangs.processId()), SIGSTOP);
  Desktop desktop;
  QTimer look;
  int looks = 0;
  QObject::connect(&look, &QTimer::timeout, &look, [&] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    if (++looks == 1) return desktop.Leave();
    ADD_FAILURE() << "the question still stands";
    box->button(QMessageBox::No)->click();
  });
  look.start(5);
  EXPECT_EQ(desktop.Run(), kStatusNotShown);
  EXPECT_EQ(looks, 1);
  EXPECT_EQ(hangs.state(), QProcess::Running);
}

TEST(Desktop, LogsAndTellsAnErrorThatNothingDealtWithAndEndsWithStatusOne) {
  const QTemporaryDir folder;
  const Surrounding runtime("XDG_RUNTIME_DIR", folder.path().toUtf8());
  const Surrounding data("XDG_DATA_HOME", folder.path().toUtf8());
  const Surrounding address("MELVADO_STORE", folder.filePath("store.sqlite").toUtf8());
  const QLocale before;
  QApplication::setWindowIcon(QIcon());
  {
    Desktop desktop;
    const QObject scope;
    bool raised = false;
    const MessageReader reader([&] {
      if (QApplication::windowIcon().isNull() || std::exchange(raised, true)) return;
      // Not from within the reader's own timer, which would not fire again meanwhile.
      QTimer::singleShot(0, &scope, [&] {
        desktop.RunTimeReport(std::make_exception_ptr(RunTimeError(340, "no control 9", "a test")));
      });
    });
    QTimer::singleShot(30'000, &scope, [&] { desktop.Leave(); });
    EXPECT_EQ(desktop.Run(), 1);
    ASSERT_EQ(reader.said().size(), 1);
    EXPECT_TRUE(reader.said()[0].endsWith("no control 9 (340, a test)"))
        << reader.said()[0].toStdString();
  }
  QLocale::setDefault(before);
  StoreOptions options;
  options.address = folder.filePath("store.sqlite").toStdString();
  const std::vector<LogEntry> log = HostStore(options).Log(1);
  ASSERT_EQ(log.size(), 1U);
  EXPECT_EQ(log[0].kind, LogEntry::Kind::kError);
  EXPECT_EQ(log[0].place, "run_time.melvado_tests");
  EXPECT_EQ(log[0].number, 340);
  EXPECT_EQ(log[0].text, "no control 9");
  EXPECT_EQ(log[0].source, "a test");
}

/// A student at the real program: begins and leaves as many runs as are wanted, answers what is
/// asked and ends the program.
class Student {
 public:
  /// `answer` gives the word of the button to be pressed in a question, "" to let it stand
  Student(int runs, std::function<QString(int asked)> answer)
      : runs_(runs), answer_(std::move(answer)) {
    QObject::connect(&look_, &QTimer::timeout, &look_, [this] { Look(); });
    look_.start(10);
  }
  int asked() const { return asked_; }

 private:
  void Look() {
    if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      return Answer(*box);
    }
    // Not from within this timer, which would not fire again while a question stands.
    if (!busy_) QTimer::singleShot(0, &look_, [this] { Go(); });
  }

  void Go() {
    QWidget* const ready = Ready();
    if (ready == nullptr || std::exchange(busy_, true)) return;
    if (ready->objectName() == "zurueck") {
      --runs_;
      QTest::keyClick(ready->window(), Qt::Key_Escape);
    } else if (runs_ > 0) {
      QTest::keyClick(ready->window(), Qt::Key_Return);
    } else {
      ready->window()->close();
    }
    busy_ = false;
  }

  /// The button that leads on, or out of a run.
  static QWidget* Ready() {
    for (QWidget* const widget : QApplication::allWidgets()) {
      const QString name = widget->objectName();
      if ((name == "zurueck" || name == "cmdOK") && widget->isVisible() && widget->isEnabled()) {
        return widget;
      }
    }
    return nullptr;
  }

  void Answer(QMessageBox& box) {
    if (&box == let_stand_) return;
    const QString word = box.buttons().size() == 1 ? box.buttons()[0]->text() : answer_(++asked_);
    for (QAbstractButton* const button : box.buttons()) {
      if (button->text() == word) return button->click();
    }
    let_stand_ = &box;
  }

  QTimer look_;
  int runs_;
  std::function<QString(int)> answer_;
  int asked_ = 0;
  bool busy_ = false;  // what was done last goes on
  const QMessageBox* let_stand_ = nullptr;
};

/// The program with its folders for records on a place that takes nothing, until there is room.
class FullDisk : public testing::Test {
 protected:
  FullDisk() {
    QFile file(folder_.filePath("disk"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  }
  ~FullDisk() override { QLocale::setDefault(before_); }

  void MakeRoom() {
    QFile::remove(folder_.filePath("disk"));
    EXPECT_TRUE(QDir().mkpath(folder_.filePath("disk/temp")));
  }
  QStringList Records() const { return QDir(folder_.filePath("disk/temp")).entryList({"*.xml"}); }

  const QLocale before_;
  const QObject scope_;  // of what is still to come
  const QTemporaryDir folder_;
  const Surrounding runtime_{"XDG_RUNTIME_DIR", folder_.path().toUtf8()};
  const Surrounding data_{"XDG_DATA_HOME", folder_.filePath("disk/data").toUtf8()};
  const Surrounding temp_{"temp", folder_.filePath("disk/temp").toUtf8()};
  const Surrounding store_{"MELVADO_STORE", folder_.filePath("store.sqlite").toUtf8()};
};

TEST_F(FullDisk, LosesNoRecordOfSeveralRunsWithoutTheStudentsWord) {
  Desktop desktop;
  Student student(3, [&](int asked) {
    if (asked == 3) MakeRoom();
    return asked == 1 ? "Give the record up" : "Try again";
  });
  QTimer::singleShot(60'000, &scope_, [&] { desktop.Leave(); });
  EXPECT_EQ(desktop.Run(), 0);
  // The second record is asked for twice; for the third there is room.
  EXPECT_EQ(student.asked(), 3);
  EXPECT_EQ(Records().size(), 2);
}

TEST_F(FullDisk, EndsWithoutWaitingForAFolderWhenItIsCutOff) {
  Desktop desktop;
  Student student(1, [](int) { return "Another folder…"; });
  QTimer look;
  int looks = 0;
  QObject::connect(&look, &QTimer::timeout, &look, [&] {
    auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    if (++looks > 1) {
      ADD_FAILURE() << "the dialog still stands";
      dialog->reject();
    }
    MakeRoom();
    desktop.Leave();
  });
  look.start(5);
  EXPECT_EQ(desktop.Run(), 0);
  EXPECT_EQ(student.asked(), 1);
  EXPECT_EQ(looks, 1);
  EXPECT_EQ(Records().size(), 1);
}

TEST_F(FullDisk, EndsWithoutWaitingForAnAnswerWhenItIsCutOff) {
  Desktop desktop;
  Student student(1, [&](int) {
    QTimer::singleShot(0, &scope_, [&] {
      MakeRoom();
      desktop.Leave();
    });
    return "";
  });
  QTimer::singleShot(60'000, &scope_, [&] { FAIL(); });
  EXPECT_EQ(desktop.Run(), 0);
  EXPECT_EQ(student.asked(), 1);
  EXPECT_EQ(Records().size(), 1);
}

}  // namespace
}  // namespace vmod17

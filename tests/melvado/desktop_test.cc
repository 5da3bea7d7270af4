// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "app/desktop.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <utility>

#include "melvado_testing.h"
#include "platform/run_time_error.h"
#include "platform/store/host_store.h"

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

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "app/desktop.h"

#include <QApplication>
#include <QIcon>

#include "melvado_testing.h"

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

}  // namespace
}  // namespace vmod17

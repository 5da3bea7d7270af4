// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/desk/qt_system.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <vector>

namespace vmod17 {
namespace {

class KeyTaker : public QWidget {
 public:
  std::vector<int> pressed;
  std::vector<int> released;

 protected:
  void keyPressEvent(QKeyEvent* event) override { pressed.push_back(event->key()); }
  void keyReleaseEvent(QKeyEvent* event) override { released.push_back(event->key()); }
};

TEST(QtSystem, TellsVariablesApartFromOnesThatAreUnset) {
  qputenv("VMOD17_TEST_WORD", "Übung");
  qputenv("VMOD17_TEST_EMPTY", "");
  const QtSystem system;
  EXPECT_EQ(system.Environment("VMOD17_TEST_WORD"), "Übung");
  EXPECT_EQ(system.Environment("VMOD17_TEST_EMPTY"), "");
  EXPECT_EQ(system.Environment("VMOD17_TEST_UNSET"), std::nullopt);
}

TEST(QtSystem, KnowsTheComputerAndAFolderForTemporaryFiles) {
  EXPECT_NE(QtSystem().ComputerName(), "");
  EXPECT_NE(QtSystem().TemporaryFolder(), "");
}

TEST(QtSystem, TakesNamesForTheBytesThatTheyAre) {
  const QByteArray before = qgetenv("TMPDIR");
  qputenv("TMPDIR", "/tmp/Sch\xfcler");
  EXPECT_EQ(QtSystem().Environment("TMPDIR"), "/tmp/Sch\xfcler");
  EXPECT_EQ(QtSystem().TemporaryFolder(), "/tmp/Sch\xfcler");
  qputenv("TMPDIR", "");
  EXPECT_EQ(QtSystem().TemporaryFolder(), "/tmp");
  qputenv("TMPDIR", before);
}

TEST(QtSystem, SendsAKeystrokeToTheWindowInFront) {
  KeyTaker window;
  window.show();
  window.activateWindow();
  QtSystem().SendKeys("{F1}");
  QtSystem().SendKeys("{ENTER}");
  QCoreApplication::processEvents();
  EXPECT_EQ(window.pressed, std::vector<int>{Qt::Key_F1});
  EXPECT_EQ(window.released, std::vector<int>{Qt::Key_F1});
}

}  // namespace
}  // namespace vmod17

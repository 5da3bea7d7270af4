// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QWindow>

#include "melvado_testing.h"
#include "programs/host/log_window.h"
#include "programs/host/user_dialog.h"
#include "qt/desk/qt_message_box.h"
#include "qt/kit/help_window.h"

namespace melvado {
namespace {

using vmod17::HelpWindow;
using vmod17::MessageBox;
using vmod17::QtMessageBox;

using ::testing::ElementsAre;

/// The home window with the help behind the key.
class HostHelpTest : public HostStage {
 protected:
  void OpenWithHelp() {
    Open();
    help_.owner = [this] { return window_.get(); };
    window_->on_help = [this](const std::string& page) {
      asked_.push_back(page);
      help_.Show(page, "de");
    };
  }
  std::string Page() const { return help_.Page().stem().string(); }
  /// What the user does in the dialog that the next press opens.
  static void Then(const std::function<void(QDialog&)>& act) {
    QTimer::singleShot(0, [act] {
      auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      act(*dialog);
      if (dialog->isVisible()) dialog->reject();
    });
  }
  QWidget* LogLines() const { return window_->log_window()->findChild<QTableWidget*>("lines"); }

  HelpWindow help_{{std::filesystem::path(PROGRAM_HELP)}};
  std::vector<std::string> asked_;
};

TEST_F(HostHelpTest, OpensThePageOfTheWindowInFront) {
  OpenWithHelp();
  QTest::keyClick(window_->focusWidget(), Qt::Key_F1);
  EXPECT_EQ(Page(), "melvado");
  Press("log");
  QTest::keyClick(LogLines(), Qt::Key_F1);
  EXPECT_EQ(Page(), "log");
  Then([this](QDialog& dialog) {
    QTest::keyClick(&dialog, Qt::Key_F1);
    EXPECT_EQ(Page(), "user");
  });
  Press("add_user");
  Press("help");
  EXPECT_EQ(Page(), "melvado");
  EXPECT_THAT(asked_, ElementsAre("melvado", "log", "user", "melvado"));
}

TEST_F(HostHelpTest, HasAPageForEachWindowInBothLanguages) {
  for (const char* page : {"melvado", "log", "user"}) {
    for (const char* language : {"de", "en"}) {
      help_.Show(page, language);
      EXPECT_EQ(help_.Page(),
                std::filesystem::path(PROGRAM_HELP) / language / (std::string(page) + ".html"));
    }
  }
}

TEST_F(HostHelpTest, CanBeReadInTheMiddleOfAddingAUser) {
  OpenWithHelp();
  Then([this](QDialog& dialog) {
    dialog.findChild<QLineEdit*>("number")->setText("4711");
    QTest::keyClick(&dialog, Qt::Key_F1);
    ASSERT_TRUE(help_.isVisible());
    // Through the window system, as the user's keys come.
    QTest::mouseClick(help_.windowHandle(), Qt::LeftButton, {},
                      help_.findChild<QWidget*>("help_contents")->geometry().center());
    EXPECT_EQ(Page(), "index");
    QTest::keyClick(help_.windowHandle(), Qt::Key_F1);
    EXPECT_EQ(Page(), "user");
    QTest::keyClick(help_.windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(help_.isVisible());
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(QApplication::activeWindow(), &dialog);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
  });
  Press("add_user");
  EXPECT_EQ(host_->ChosenUser(), "4711");
}

TEST_F(HostHelpTest, StaysOpenWhenTheDialogIsLeft) {
  OpenWithHelp();
  Then([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_F1); });
  Press("add_user");
  Serve();
  EXPECT_TRUE(help_.isVisible());
  EXPECT_EQ(help_.windowHandle()->transientParent(), nullptr);
  EXPECT_EQ(QApplication::activeWindow(), window_.get());
  QTest::keyClick(help_.windowHandle(), Qt::Key_Escape);
  EXPECT_FALSE(help_.isVisible());
}

TEST_F(HostHelpTest, ShowsThePageOfTheHomeWindowUnderAMessage) {
  OpenWithHelp();
  QtMessageBox messages([this] { return window_.get(); });
  Then([this](QDialog& box) {
    QTest::keyClick(&box, Qt::Key_F1);
    EXPECT_EQ(Page(), "melvado");
    QTest::keyClick(help_.windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(help_.isVisible());
    EXPECT_EQ(QApplication::activeWindow(), &box);
    QTest::keyClick(box.windowHandle(), Qt::Key_Return);
  });
  EXPECT_EQ(messages.Ask("?", "Melvado", MessageBox::Answer::kYes), MessageBox::Answer::kYes);
}

TEST_F(HostHelpTest, KeepsItsOwnPageForItsOwnKey) {
  OpenWithHelp();
  Press("log");
  QTest::keyClick(LogLines(), Qt::Key_F1);
  QTest::mouseClick(help_.windowHandle(), Qt::LeftButton, {},
                    help_.findChild<QWidget*>("help_contents")->geometry().center());
  ASSERT_EQ(Page(), "index");
  QTest::keyClick(help_.windowHandle(), Qt::Key_F1);
  EXPECT_EQ(Page(), "log");
}

}  // namespace
}  // namespace melvado

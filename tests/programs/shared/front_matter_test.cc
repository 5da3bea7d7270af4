// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/shared/front_matter.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include "qt/desk/application_setup.h"

namespace vmod17 {
namespace {

using Claimed = SingleInstance::Claimed;

class FrontMatterTest : public testing::Test {
 protected:
  static HelpWindow* Help() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (auto* const help = dynamic_cast<HelpWindow*>(widget)) return help;
    }
    return nullptr;
  }

  QWidget window_;
  std::string before_ = "1 ";
  FrontMatter front_{[this] { return &window_; },
                     [this](const Notice& notice) { return before_ + InEnglish(notice); }};
};

TEST_F(FrontMatterTest, WarnsInTheProgramsWordsAndWindow) {
  QTimer::singleShot(0, [this] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->windowTitle(), "Melvado");
    EXPECT_EQ(box->text(), "1 The disk is full: a.");
    EXPECT_EQ(box->button(QMessageBox::Ok)->text(), "1 OK");
    EXPECT_EQ(box->parentWidget(), &window_);
    box->accept();
  });
  front_.Warn({9105, "The disk is full: %1.", {"a"}});
}

TEST_F(FrontMatterTest, MakesTheHelpWhenItIsAskedForAndSpeaksTheLanguageOfThatMoment) {
  front_.HideHelp();
  EXPECT_EQ(Help(), nullptr);
  front_.ShowHelp("melvado", "en");
  ASSERT_NE(Help(), nullptr);
  EXPECT_EQ(Help()->windowTitle(), "1 Help");
  before_ = "2 ";
  front_.ShowHelp("melvado", "en");
  EXPECT_EQ(Help()->windowTitle(), "2 Help");
  front_.HideHelp();
  EXPECT_FALSE(Help()->isVisible());
}

TEST_F(FrontMatterTest, StartsOnlyTheProcessThatIsTheFirst) {
  EXPECT_EQ(FrontMatter::StatusWithoutStart(Claimed::kFirst), std::nullopt);
  EXPECT_EQ(FrontMatter::StatusWithoutStart(Claimed::kAnswered), 0);
  EXPECT_EQ(FrontMatter::StatusWithoutStart(Claimed::kSilent), kStatusNotShown);
}

}  // namespace
}  // namespace vmod17

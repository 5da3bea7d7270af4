// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/message_form.h"

#include <gtest/gtest.h>

#include "shell/loaded_screens.h"

namespace vmod17 {
namespace {

class MessageFormTest : public ::testing::Test {
 protected:
  MessageFormTest() {
    screens_.Load(form_);
    form_.visible = true;
  }

  LoadedScreens screens_;
  FrmMessage form_{screens_};
};

TEST_F(MessageFormTest, ShowsATitleAndAText) {
  form_.Message("Hinweis", "Die Übung beginnt.");
  EXPECT_EQ(form_.lblTitel.caption, "Hinweis");
  EXPECT_EQ(form_.txtPrompt.caption, "Die Übung beginnt.");
}

TEST_F(MessageFormTest, IsUnloadedByItsButton) {
  EXPECT_TRUE(form_.cmdOK.Press());
  EXPECT_TRUE(screens_.empty());
  EXPECT_FALSE(form_.loaded());
}

TEST_F(MessageFormTest, IsUnloadedWhenItsWindowIsClosed) {
  form_.Form_Close();
  EXPECT_TRUE(screens_.empty());
}

TEST_F(MessageFormTest, FitsTheTitleIntoTheBar) {
  form_.picTitel_Resize(400);
  EXPECT_EQ(form_.lblTitel.left, 5);
  EXPECT_EQ(form_.lblTitel.top, 30);
  EXPECT_EQ(form_.lblTitel.width, 390);
  EXPECT_EQ(form_.picTitel.width, 400);
}

}  // namespace
}  // namespace vmod17

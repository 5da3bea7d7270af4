// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "sound/wait_sign.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/frame.h"
#include "sound/sound_words.h"
#include "support/fake_platform.h"

namespace vmod17 {
namespace {

class Screen : public Form {
 public:
  Screen() : Form("screen") {
    box.visible = false;
    listening = true;
  }
  Frame box{*this, "box"};
  Label words{*this, "words"};
  void Form_Close() override {}
};

class WaitSignTest : public ::testing::Test {
 protected:
  WaitSignTest() {
    texts.SprachenLaden();
    texts.SpracheWaehlen("Deutsch");
    screen.words.caption = "[366s]";
  }

  FakeLanguages languages;
  FakeSystem system;
  TextLookup texts{languages.Factory(), system};
  Screen screen;
  WaitSign sign{screen, texts, screen.words, 366};
  WaitSign boxed{screen, texts, screen.words, 366, &screen.box};
};

TEST_F(WaitSignTest, ShowsAndSaysThatThePlayingIsWaitedFor) {
  sign.ZeigeWarten();
  EXPECT_EQ(screen.words.caption, "[9531s]");
  EXPECT_EQ(screen.TakeSaid(), std::vector<std::string>{"[9531s]"});
  EXPECT_EQ(screen.pointer, Form::Pointer::kHourglass);
  EXPECT_FALSE(screen.listening);
  EXPECT_FALSE(screen.box.visible);
}

TEST_F(WaitSignTest, GivesTheCaptionAndThePointerBack) {
  sign.ZeigeWarten();
  screen.TakeSaid();
  sign.Beende();
  EXPECT_EQ(screen.words.caption, "[366s]");
  EXPECT_EQ(screen.pointer, Form::Pointer::kDefault);
  EXPECT_TRUE(screen.TakeSaid().empty());
}

TEST_F(WaitSignTest, ShowsItsFrameOnlyMeanwhile) {
  boxed.ZeigeWarten();
  EXPECT_TRUE(screen.box.visible);
  boxed.Beende();
  EXPECT_FALSE(screen.box.visible);
}

TEST_F(WaitSignTest, SaysInTheSamePlaceWhyNothingSounds) {
  boxed.Zeige(kKlangVerloren);
  EXPECT_EQ(screen.words.caption, "[9306s]");
  EXPECT_EQ(screen.TakeSaid(), std::vector<std::string>{"[9306s]"});
  EXPECT_TRUE(screen.box.visible);
  EXPECT_EQ(screen.pointer, Form::Pointer::kDefault) << "nothing is being done";
  EXPECT_TRUE(screen.listening);
}

}  // namespace
}  // namespace vmod17

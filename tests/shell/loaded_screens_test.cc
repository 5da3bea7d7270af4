// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/loaded_screens.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/run_time_error.h"
#include "shell/shell_fixture.h"

namespace vmod17 {
namespace {

using ::testing::ElementsAre;

TEST(LoadedScreens, AreEmptyAtFirst) {
  const LoadedScreens screens;
  EXPECT_TRUE(screens.empty());
  EXPECT_EQ(screens.count(), 0);
  EXPECT_EQ(screens.top(), nullptr);
}

TEST(LoadedScreens, HoldAScreenAlreadyWhileItIsLoaded) {
  LoadedScreens screens;
  PlainScreen screen("grd_einst");
  const Form* top = nullptr;
  screen.on_load = [&] { top = screens.top(); };
  screens.Load(screen);
  EXPECT_EQ(top, &screen);
}

TEST(LoadedScreens, HaveTheLastLoadedOneOnTop) {
  LoadedScreens screens;
  PlainScreen first("grd_einst");
  PlainScreen second("einstellung1");
  screens.Load(first);
  screens.Load(second);
  EXPECT_EQ(screens.count(), 2);
  EXPECT_EQ(screens.top(), &second);
  screens.Unload(first);
  EXPECT_EQ(screens.top(), &second);
}

TEST(LoadedScreens, PutAnUnloadedScreenOutOfReach) {
  LoadedScreens screens;
  PlainScreen screen("einstellung1");
  Button button(screen, "cmdOK");
  screens.Load(screen);
  screen.visible = true;
  ASSERT_TRUE(button.Reachable());
  screens.Unload(screen);
  EXPECT_FALSE(screen.loaded());
  EXPECT_FALSE(screen.visible);
  EXPECT_FALSE(button.Press());
}

TEST(LoadedScreens, TellOfAScreenOnceItIsGone) {
  LoadedScreens screens;
  PlainScreen screen("einstellung1");
  screens.Load(screen);
  std::vector<std::string> trace;
  screen.on_unload = [&] { trace.push_back("Unload"); };
  screens.Unloaded = [&](Form& form) {
    trace.push_back(form.name() + (screens.empty() ? " gone" : " there"));
  };
  screens.Unload(screen);
  EXPECT_THAT(trace, ElementsAre("Unload", "einstellung1 gone"));
}

TEST(LoadedScreens, LeaveAScreenAloneThatIsNotLoaded) {
  LoadedScreens screens;
  PlainScreen screen("einstellung1");
  int unloads = 0;
  screen.on_unload = [&] { ++unloads; };
  screens.Unload(screen);
  EXPECT_EQ(unloads, 0);
  EXPECT_TRUE(screen.loaded());
}

TEST(LoadedScreens, UnloadAScreenOnlyOnceEvenFromItsOwnUnload) {
  LoadedScreens screens;
  PlainScreen screen("arbeitsblatt1");
  screens.Load(screen);
  int unloads = 0;
  screen.on_unload = [&] {
    ++unloads;
    screens.Unload(screen);
  };
  screens.Unload(screen);
  EXPECT_EQ(unloads, 1);
}

TEST(LoadedScreens, LetGoOfAScreenWhoseUnloadFails) {
  LoadedScreens screens;
  PlainScreen screen("arbeitsblatt1");
  screens.Load(screen);
  int told = 0;
  screens.Unloaded = [&](Form&) { ++told; };
  screen.on_unload = [] { throw RunTimeError(ErrorNumber::kDevice, "no", "test"); };
  EXPECT_THROW(screens.Unload(screen), RunTimeError);
  EXPECT_TRUE(screens.empty());
  EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace vmod17

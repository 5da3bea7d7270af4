// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "forms/layout.h"

#include <gtest/gtest.h>

#include "forms/controls.h"
#include "support/even_measure.h"

namespace vmod17 {
namespace {

class Plain : public Form {
 public:
  Plain() : Form("plain") {}
  void Form_Close() override {}

  Frame frame{*this, "frame"};
  Label label{*this, "label"};
  ControlArray<Button> buttons{*this, "buttons", {1, 3}};
};

TEST(Rect, IsMovedAndGrown) {
  const Rect rect{10, 20, 30, 40};
  EXPECT_EQ(rect.right(), 40);
  EXPECT_EQ(rect.bottom(), 60);
  EXPECT_EQ(rect.center().x, 25);
  EXPECT_EQ(rect.center().y, 40);
  EXPECT_EQ(rect.Moved({1, 2}), (Rect{11, 22, 30, 40}));
  EXPECT_EQ(rect.Adjusted(1, 2, 3, 5), (Rect{11, 22, 32, 43}));
  EXPECT_EQ(rect.Grown({1, 2, 3, 4}), (Rect{9, 18, 34, 46}));
}

TEST(Rect, IsUnitedWithAnother) {
  const Rect rect{10, 20, 30, 40};
  EXPECT_EQ(rect.United({0, 50, 20, 20}), (Rect{0, 20, 40, 50}));
  EXPECT_EQ(rect.United({}), rect);
  EXPECT_EQ(Rect{}.United(rect), rect);
}

TEST(Layout, IsEmptyForAFormThatLaysNothingOut) {
  EXPECT_TRUE(Plain().LayOut({1024, 768}, EvenMeasure()).places.empty());
}

TEST(Layout, PlacesAControlWhereItWasLaidOut) {
  Plain form;
  Layout layout;
  layout.places[&form.label] = {.rect = {1, 2, 3, 4}};
  EXPECT_EQ(layout.PlaceOf(form.label), (Rect{1, 2, 3, 4}));
}

TEST(Layout, PrefersWhatTheProgramSays) {
  Plain form;
  Layout layout;
  layout.places[&form.label] = {.rect = {1, 2, 3, 4}};
  form.label.left = 50;
  form.label.height = 60;
  EXPECT_EQ(layout.PlaceOf(form.label), (Rect{50, 2, 3, 60}));
}

TEST(Layout, CountsWhatTheProgramSaysFromTheContainerBelowItsHead) {
  Plain form;
  Layout layout;
  layout.places[&form.frame] = {.rect = {100, 200, 300, 400}, .head = 30};
  layout.places[&form.label] = {.rect = {1, 2, 3, 4}};
  form.label.container = &form.frame;
  form.label.left = 5;
  form.label.top = 7;
  EXPECT_EQ(layout.PlaceOf(form.label), (Rect{105, 237, 3, 4}));
}

TEST(Layout, WidensAboutItsMiddleWhatIsTooNarrowForWords) {
  Plain form;
  Layout layout;
  layout.places[&form.label] = {.rect = {10, 0, 20, 4}, .least_width = 50};
  EXPECT_EQ(layout.PlaceOf(form.label), (Rect{-5, 0, 50, 4}));
  form.label.width = 60;
  EXPECT_EQ(layout.PlaceOf(form.label), (Rect{10, 0, 60, 4}));
}

TEST(Each, TakesTheControlsOfAnArrayAndNoGap) {
  const Plain form;
  EXPECT_EQ(Each(form.buttons), (Controls{&form.buttons[1], &form.buttons[3]}));
}

}  // namespace
}  // namespace vmod17

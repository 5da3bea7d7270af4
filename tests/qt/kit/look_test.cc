// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/look.h"

#include <gtest/gtest.h>

#include <string>

namespace vmod17::look {
namespace {

class EachPalette : public testing::TestWithParam<const Palette*> {
 protected:
  const Palette& colors() const { return *GetParam(); }
  static void ExpectContrast(const QColor& text, const QColor& ground, double least) {
    EXPECT_GE(Contrast(text, ground), least)
        << text.name().toStdString() << " on " << ground.name().toStdString();
  }
};

TEST_P(EachPalette, HasTextsThatCanBeReadOnEachOfItsGrounds) {
  const Palette& p = colors();
  const QColor grounds[] = {p.page, p.section, p.card,  p.locked_card, p.slot,
                            p.good, p.bad,     p.hover, p.button,      p.disabled_fill};
  for (const QColor& ground : grounds) {
    for (const QColor& text :
         {p.text, p.quiet_text, p.accent, p.hint, p.solved_text, p.too_hard_text}) {
      ExpectContrast(text, ground, 4.5);
    }
  }
  ExpectContrast(p.text, p.pressed, 4.5);
  ExpectContrast(p.accent, p.pressed, 4.5);
}

TEST_P(EachPalette, HasButtonsThatCanBeRead) {
  const Palette& p = colors();
  for (const QColor& fill : {p.accent, p.accent_hover}) ExpectContrast(TextOn(fill), fill, 4.5);
}

TEST_P(EachPalette, ShowsWhatIsLockedFaintButNotLost) {
  const Palette& p = colors();
  for (const QColor& ground : {p.page, p.section, p.card, p.locked_card, p.disabled_fill}) {
    ExpectContrast(p.disabled_text, ground, 3);
  }
}

TEST_P(EachPalette, ShowsTheFocusOnEachGround) {
  const Palette& p = colors();
  for (const QColor& ground : {p.page, p.section, p.card, p.button, p.focus_inside}) {
    ExpectContrast(p.focus, ground, 3);
  }
}

TEST_P(EachPalette, GivesTheToolkitColoursThatCanBeRead) {
  const QPalette palette = ForToolkit(colors());
  const auto expect = [&](QPalette::ColorRole text, QPalette::ColorRole ground) {
    ExpectContrast(palette.color(QPalette::Active, text), palette.color(QPalette::Active, ground),
                   4.5);
    ExpectContrast(palette.color(QPalette::Disabled, text),
                   palette.color(QPalette::Disabled, ground), 3);
  };
  expect(QPalette::WindowText, QPalette::Window);
  expect(QPalette::Text, QPalette::Base);
  expect(QPalette::Text, QPalette::AlternateBase);
  expect(QPalette::ButtonText, QPalette::Button);
  expect(QPalette::ToolTipText, QPalette::ToolTipBase);
  expect(QPalette::PlaceholderText, QPalette::Base);
  expect(QPalette::HighlightedText, QPalette::Highlight);
  expect(QPalette::Link, QPalette::Base);
}

INSTANTIATE_TEST_SUITE_P(Look, EachPalette, testing::Values(&kLight, &kDark), [](const auto& test) {
  return std::string(test.param == &kLight ? "Light" : "Dark");
});

TEST(Look, HasABannerOnWhichWhiteCanBeRead) {
  EXPECT_GE(Contrast(Qt::white, kBannerBegin), 4.5);
  EXPECT_GE(Contrast(Qt::white, kBannerEnd), 4.5);
}

TEST(Contrast, IsThatOfTheGuidelines) {
  EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 0.001);
  EXPECT_NEAR(Contrast(Qt::white, Qt::black), 21, 0.001);
  EXPECT_NEAR(Contrast(Qt::red, Qt::red), 1, 0.001);
  EXPECT_NEAR(Contrast(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
  EXPECT_NEAR(Contrast(Qt::red, Qt::yellow), 3.72, 0.01);
}

TEST(Readable, KeepsAColourThatCanBeReadAndTheHueOfOneThatCannot) {
  EXPECT_EQ(Readable(Qt::blue, Qt::white), QColor(Qt::blue));
  const QColor on_dark = Readable(Qt::blue, kDark.button);
  EXPECT_GE(Contrast(on_dark, kDark.button), 4.5);
  EXPECT_NEAR(on_dark.hslHue(), QColor(Qt::blue).hslHue(), 1);
  const QColor yellow = Readable(Qt::yellow, Qt::white);
  EXPECT_GE(Contrast(yellow, Qt::white), 4.5);
  EXPECT_NEAR(yellow.hslHue(), QColor(Qt::yellow).hslHue(), 1);
}

}  // namespace
}  // namespace vmod17::look

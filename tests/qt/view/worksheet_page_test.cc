// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include <QAccessible>
#include <QAccessibleInterface>
#include <QImage>

#include "qt/kit/look.h"
#include "qt/shown_page.h"
#include "qt/spoken_program.h"

namespace vmod17 {
namespace {

/// Pixels of about this colour.
int Count(const QImage& image, const QColor& color) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QColor pixel = image.pixelColor(x, y);
      const bool near = std::abs(pixel.red() - color.red()) < 24 &&
                        std::abs(pixel.green() - color.green()) < 24 &&
                        std::abs(pixel.blue() - color.blue()) < 24;
      count += near ? 1 : 0;
    }
  }
  return count;
}

/// The header of a worksheet in a mode of practice.
class Header : public testing::TestWithParam<std::string> {
 protected:
  void Start(int mode) {
    p_.ToSettings();
    p_.settings_screen().training_Combo.Select(mode);
    p_.StartRun();
  }
  Arbeitsblatt1& sheet() { return p_.worksheet(); }

  SpokenProgram p_{GetParam()};
};

TEST_P(Header, ShowsATrainingWholeInEachOfItsStates) {
  Start(1);
  ASSERT_TRUE(sheet().matboxanz.visible);
  for (const int percent : {0, 1, 38, 50, 99, 100}) {
    sheet().matboxanz.percent = percent;
    ExpectWellLaidOut(sheet());
  }
  for (const int state : {1, 2}) {
    for (int i = 0; i < 3; ++i) sheet().ergebnis_anz[i].visible = i == state;
    sheet().zurueck.back_color = Colors::kYellow;
    sheet().zurueck.fore_color = Colors::kRed;
    sheet().zurueck.caption = p_.program.texts().Sprachtext(625);
    ExpectWellLaidOut(sheet());
  }
}

TEST_P(Header, ShowsATestWholeWithTheLongestTimeAndNumber) {
  Start(3);
  ASSERT_TRUE(sheet().stop_uhr.visible);
  ExpectWellLaidOut(sheet());
  const TextLookup& texts = p_.program.texts();
  sheet().stop_uhr.caption =
      texts.Sprachtext(461) + " 88 " + texts.Sprachtext(394) + " 58 " + texts.Sprachtext(480);
  sheet().lab_aufgaben.caption = texts.Sprachtext(462) + "  188";
  ExpectWellLaidOut(sheet());
  EXPECT_TRUE(sheet().cmd_test_aus.Press());
  ExpectWellLaidOut(sheet());
  EXPECT_TRUE(sheet().cmd_test_ein.Press());
  ExpectWellLaidOut(sheet());
}

TEST_P(Header, ShowsFreePracticeWithItsTitleInTheMiddle) {
  Start(0);
  ExpectWellLaidOut(sheet());
  const Layout layout = sheet().LayOut({1024, 768}, FontMeasure());
  EXPECT_NEAR(layout.title.center().x, 512, 1);
}

TEST_P(Header, SaysTheGaugeWithItsValueAndWhatItsEndsMean) {
  Start(1);
  sheet().matboxanz.percent = 38;
  Shown shown(sheet(), kSmall);
  QAccessibleInterface* const gauge = QAccessible::queryAccessibleInterface(&shown.At("matboxanz"));
  ASSERT_NE(gauge, nullptr);
  EXPECT_EQ(gauge->role(), QAccessible::ProgressBar);
  EXPECT_EQ(gauge->text(QAccessible::Name).toStdString(), sheet().ergebnis_anz[0].caption);
  ASSERT_NE(gauge->valueInterface(), nullptr);
  EXPECT_EQ(gauge->valueInterface()->currentValue().toInt(), 38);
  const std::string ends = gauge->text(QAccessible::Description).toStdString();
  EXPECT_NE(ends.find(sheet().ergebnis_anz[1].caption), std::string::npos);
  EXPECT_NE(ends.find(sheet().ergebnis_anz[2].caption), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Languages, Header, testing::ValuesIn(LocalesOfTheProgram()),
                         [](const auto& test) { return InTestName(test.param); });

TEST(Gauge, StandsUprightWithItsValueAtItsMark) {
  ProgramFixture p;
  p.ToSettings();
  p.settings_screen().training_Combo.Select(1);
  p.StartRun();
  const auto mark = [&](int percent) {  // its place, as a share of the gauge from its bottom on
    p.worksheet().matboxanz.percent = percent;
    const Shown shown(p.worksheet(), kSmall);
    const QImage image = shown.At("matboxanz").grab().toImage();
    int top = image.height();
    int bottom = 0;
    for (int y = 0; y < image.height(); ++y) {
      if (image.pixelColor(image.width() / 2 - 22, y) != look::kLight.text) continue;
      top = std::min(top, y);
      bottom = std::max(bottom, y);
    }
    return 1 - (top + bottom) / 2.0 / image.height();
  };
  EXPECT_NEAR(mark(50), 0.5, 0.01);
  EXPECT_LT(mark(0), 0.2);
  EXPECT_GT(mark(100), 0.8);
  EXPECT_NEAR(mark(100) - mark(50), mark(50) - mark(0), 0.01);
  EXPECT_LT(mark(38), mark(39));
}

TEST(Gauge, KeepsItsDistanceFromTheEdgesOfItsCardAndFromTheTiles) {
  ProgramFixture p;
  p.ToSettings();
  p.settings_screen().training_Combo.Select(1);
  p.StartRun();
  const Shown shown(p.worksheet(), kSmall);
  const QRect answers = shown.OnPage(shown.At("jzakk_box(0)"));
  const QRect gauge = shown.OnPage(shown.At("matboxanz"));
  constexpr int kBeyond = 8;  // by which the card stands out above and below, and stays back beside
  EXPECT_EQ(answers.right() - kBeyond - gauge.right(), gauge.top() - (answers.top() - kBeyond));
  EXPECT_GE(gauge.left() - shown.OnPage(shown.At("klang_pan(6)")).right(), kBeyond);
}

TEST(SymbolsOfTheTiles, CanBeReadOnALightAndOnADarkDesktop) {
  ProgramFixture p;
  p.ToWorksheet();
  for (const bool dark : {false, true}) {
    const ForcedPalette desktop(dark);
    Shown shown(p.worksheet(), kSmall);
    const QRect place = shown.OnPage(shown.At("Akkbez(1)"));
    const QImage image = shown.page().grab(place).toImage();
    const QColor ground = image.pixelColor(image.rect().bottomRight());
    int inked = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        inked += look::Contrast(image.pixelColor(x, y), ground) >= 4.5 ? 1 : 0;
      }
    }
    EXPECT_GT(inked, 12) << dark;
  }
}

TEST(Gauge, GoesFromGreenAtTheBottomToRedAtTheTop) {
  ProgramFixture p;
  p.ToSettings();
  p.settings_screen().training_Combo.Select(1);
  p.StartRun();
  const Shown shown(p.worksheet(), kSmall);
  QWidget& gauge = shown.At("matboxanz");
  EXPECT_GT(gauge.height(), 4 * gauge.width());
  const QImage scale = gauge.grab().toImage();
  const QRect middle(scale.width() / 2 - 8, 0, 16, scale.height() / 4);
  const QImage high = scale.copy(middle);
  const QImage low = scale.copy(middle.translated(0, scale.height() - middle.height()));
  EXPECT_GT(Count(low, look::kLight.solved), 50);
  EXPECT_EQ(Count(low, look::kLight.too_hard), 0);
  EXPECT_GT(Count(high, look::kLight.too_hard), 50);
  EXPECT_EQ(Count(high, look::kLight.solved), 0);
}

TEST(HeaderSign, TellsTrainingAndTestApart) {
  for (const int mode : {1, 3}) {
    ProgramFixture p;
    p.ToSettings();
    p.settings_screen().training_Combo.Select(mode);
    p.StartRun();
    const Shown shown(p.worksheet(), kSmall);
    const QImage sign = shown.At(mode == 1 ? "PicUetyp(0)" : "PicUetyp(1)").grab().toImage();
    EXPECT_GT(Count(sign, look::kLight.accent), 100) << mode;
  }
}

}  // namespace
}  // namespace vmod17

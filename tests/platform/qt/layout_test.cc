// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/qt/layout.h"

#include <gtest/gtest.h>

#include <QImage>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "platform/qt/page.h"
#include "platform/qt/qt_event_loop.h"
#include "spoken_program.h"

namespace vmod17 {
namespace {

const QSize kSmall(1024, 768);
const QSize kLarge(2560, 1440);

/// A page of the program in a language, at a size.
class Shown {
 public:
  Shown(Form& form, const QSize& size) : page_(form, loop_, pictures_, nullptr) {
    page_.resize(size);
    page_.Arrange(size);
    page_.Refresh();
  }
  Page& page() { return page_; }
  std::vector<const Binding*> Visible() const {
    std::vector<const Binding*> visible;
    for (const auto& binding : page_.bindings()) {
      if (binding->widget().isVisibleTo(&page_)) visible.push_back(binding.get());
    }
    return visible;
  }
  QWidget& At(const std::string& id) const {
    return *page_.findChild<QWidget*>(QString::fromStdString(id));
  }
  QRect OnPage(const QWidget& widget) const {
    return QRect(widget.mapTo(&page_, QPoint(0, 0)), widget.size());
  }

 private:
  QtEventLoop loop_;
  PictureSource pictures_;
  Page page_;
};

/// The solution of a slot lies on the slot's mark.
bool MayCover(const Control& one, const Control& other) {
  return (one.name() == "erg" && other.name() == "ergebnis") ||
         (one.name() == "ergebnis" && other.name() == "erg");
}

/// An area is there to have others stand in it.
bool StandsIn(const Shown& shown, const Binding& inner, const Binding& area) {
  return dynamic_cast<const PlateWidget*>(&area.widget()) != nullptr &&
         shown.OnPage(area.widget()).contains(shown.OnPage(inner.widget()));
}

void ExpectNothingCoversAnother(const Shown& shown) {
  const auto visible = shown.Visible();
  for (std::size_t i = 0; i < visible.size(); ++i) {
    for (std::size_t j = i + 1; j < visible.size(); ++j) {
      const Binding& one = *visible[i];
      const Binding& other = *visible[j];
      if (StandsIn(shown, one, other) || StandsIn(shown, other, one) ||
          MayCover(one.control(), other.control())) {
        continue;
      }
      EXPECT_FALSE(shown.OnPage(one.widget()).intersects(shown.OnPage(other.widget())))
          << one.control().Id() << " and " << other.control().Id();
    }
  }
}

void ExpectAllIsOnThePage(Shown& shown) {
  for (const Binding* binding : shown.Visible()) {
    EXPECT_TRUE(shown.page().rect().contains(shown.OnPage(binding->widget())))
        << binding->control().Id();
    EXPECT_FALSE(binding->widget().size().isEmpty()) << binding->control().Id();
  }
}

void ExpectNoCaptionIsCut(Shown& shown) {
  EXPECT_TRUE(shown.page().TitleFits());
  for (const auto& binding : shown.page().bindings()) {
    if (dynamic_cast<const Picture*>(&binding->control()) != nullptr) continue;
    EXPECT_TRUE(binding->dressed().CaptionFits())
        << binding->control().Id() << ": " << binding->dressed().caption().toStdString();
  }
}

void ExpectWellLaidOut(Form& form) {
  for (const QSize& size : {kSmall, kLarge}) {
    Shown shown(form, size);
    ExpectAllIsOnThePage(shown);
    ExpectNothingCoversAnother(shown);
    ExpectNoCaptionIsCut(shown);
  }
}

class LayoutIn : public testing::TestWithParam<std::string> {};

TEST_P(LayoutIn, ShowsTheFirstScreenWhole) {
  SpokenProgram p(GetParam());
  p.ToFirstScreen();
  ExpectWellLaidOut(p.first());
}

TEST_P(LayoutIn, ShowsTheSettingsWholeWithEveryEntryOfTheLists) {
  SpokenProgram p(GetParam());
  p.ToSettings();
  p.settings_screen().arpeg_cmb.Select(0);
  ExpectWellLaidOut(p.settings_screen());
  for (ItemList* list : {&p.settings_screen().temp_Combo, &p.settings_screen().arpeg_cmb,
                         &p.settings_screen().cmb_arpTmp, &p.settings_screen().oktav_cmb,
                         &p.settings_screen().Combo_tonraum}) {
    for (int i = 0; i < list->count(); ++i) {
      list->Select(i);
      Shown shown(p.settings_screen(), kSmall);
      ExpectNoCaptionIsCut(shown);
    }
  }
}

TEST_P(LayoutIn, ShowsTheWorksheetWholeBeforeAndAfterATask) {
  SpokenProgram p(GetParam());
  p.ToSettings();
  p.settings_screen().akkzahl_cmb.Select(3);
  p.StartRun();
  ExpectWellLaidOut(p.worksheet());
  p.PlayTask();
  for (int slot = 1; slot <= 4; ++slot) {
    EXPECT_TRUE(p.ClickWrong());
    ExpectWellLaidOut(p.worksheet());
    EXPECT_TRUE(p.ClickRight());
  }
  ExpectWellLaidOut(p.worksheet());
}

TEST_P(LayoutIn, ShowsGroupButtonsInPlaceOfTheTiles) {
  SpokenProgram p(GetParam());
  p.ToSettings();
  p.settings_screen().akkzahl_cmb.Select(3);
  p.StartRun();
  Arbeitsblatt1& sheet = p.worksheet();
  sheet.jzakk_box[0].visible = false;
  sheet.jzakk_box[1].visible = true;
  sheet.jzakk_box[1].height = 545;
  sheet.jzakk_box[1].width = 670;
  sheet.aktionsbox.width = 313;
  for (int g = 1; g <= 8; ++g) {
    sheet.akk_group[g].visible = true;
    sheet.akk_group[g].caption = p.program.texts().grp_name_ar.at(g);
  }
  for (int slot = 1; slot <= 4; ++slot) {
    sheet.ergebnis[slot].width = 169;
    sheet.ergebnis[slot].height = 41;
    sheet.ergebnis[slot].caption = p.program.texts().grp_name_ar.at(slot);
  }
  ExpectWellLaidOut(sheet);
  Shown shown(sheet, kSmall);
  EXPECT_EQ(shown.At("ergebnis(1)").size(), QSize(169, 41));
}

INSTANTIATE_TEST_SUITE_P(Languages, LayoutIn, testing::Values("Deutsch", "English"),
                         [](const auto& test) { return test.param; });

TEST(Layout, GrowsWithTheWindowAndNeverShrinksBelowItsUnits) {
  ProgramFixture p;
  p.ToFirstScreen();
  EXPECT_EQ(Shown(p.first(), kSmall).page().factor(), 1.0);
  EXPECT_DOUBLE_EQ(Shown(p.first(), kLarge).page().factor(), 1440 / 730.0);
  EXPECT_EQ(Shown(p.first(), QSize(640, 480)).page().factor(), 1.0);
}

TEST(Layout, KeepsTheStepsOfTheTileRows) {
  ProgramFixture p;
  p.ToWorksheet();
  const Shown shown(p.worksheet(), kSmall);
  const QRect first = shown.OnPage(shown.At("klang_pan(1)"));
  const QRect seventh = shown.OnPage(shown.At("klang_pan(7)"));
  EXPECT_EQ(first.height(), 84);
  EXPECT_EQ(seventh.top() - first.top(), 136);
  EXPECT_EQ(seventh.left(), first.left());
  EXPECT_EQ(first.top() - shown.OnPage(shown.At("Akkbez(1)")).top(), 40);
  EXPECT_EQ(shown.At("aktionsbox").size(), QSize(193, 545));
}

TEST(Layout, AlignsTheHeaderWithWhatStandsUnderIt) {
  ProgramFixture p;
  p.ToWorksheet();
  for (const QSize& size : {kSmall, kLarge}) {
    const Shown shown(p.worksheet(), size);
    const QRect header = shown.OnPage(shown.At("PicUebTyp"));
    const QRect answers = shown.OnPage(shown.At("jzakk_box(0)"));
    const QRect actions = shown.OnPage(shown.At("aktionsbox"));
    EXPECT_EQ(header.left(), answers.left());
    EXPECT_EQ(answers.right() + 1, actions.left());
    EXPECT_EQ(header.right(), actions.right());
    EXPECT_LE(std::abs(header.left() - (size.width() - 1 - header.right())), 1);
  }
}

TEST(Layout, ShowsATilesStateInTheColoursOfTheProgram) {
  ProgramFixture p;
  p.ToWorksheet();
  Shown shown(p.worksheet(), kSmall);
  const auto colors = [&] {
    shown.page().Refresh();
    const QImage image = shown.page().grab().toImage();
    const QRect tile = shown.OnPage(shown.At("klang_pan(1)"));
    return std::pair(image.pixelColor(tile.left() + 2, tile.center().y()),
                     image.pixelColor(tile.left() + 6, tile.top() + 6));
  };
  EXPECT_EQ(colors(), std::pair(QColor(255, 0, 0), QColor(192, 192, 192)));
  p.PlayTask();
  EXPECT_EQ(colors(), std::pair(QColor(128, 255, 128), QColor(255, 255, 255)));
}

TEST(Layout, LeavesAFormThatItDoesNotKnowWithoutPlaces) {
  class Unknown : public Form {
   public:
    Unknown() : Form("unknown") {}
    void Form_Close() override {}
  };
  EXPECT_TRUE(LayoutOf(Unknown(), QSizeF(1024, 730)).places.empty());
}

}  // namespace
}  // namespace vmod17

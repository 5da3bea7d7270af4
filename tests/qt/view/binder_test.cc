// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/view/binder.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QButtonGroup>
#include <QCoreApplication>
#include <QPixmap>
#include <QTest>
#include <memory>

#include "qt/kit/drop_down_widget.h"
#include "qt/kit/gauge_widget.h"
#include "qt/kit/list_widget.h"
#include "qt/kit/option_widget.h"
#include "qt/kit/press_widget.h"
#include "qt/kit/slider_widget.h"
#include "qt/kit/text_widget.h"

namespace vmod17 {
namespace {

class TestForm : public Form {
 public:
  TestForm() : Form("test") { visible = true; }
  void Form_Close() override {}
  Button button{*this, "button"};
  Panel panel{*this, "panel"};
  Panel mark{*this, "mark", 2};
  Label label{*this, "label"};
  OptionGroup options{*this, "options", 1, 2, 1};
  ItemList list{*this, "list"};
  ItemList box{*this, "box", Control::kNoIndex, ItemList::Shape::kBox};
  Slider slider{*this, "slider", 0, 100};
  Gauge gauge{*this, "gauge"};
  Frame frame{*this, "frame"};
};

class Binder : public testing::Test {
 protected:
  Binder() {
    site_.deliver = [this](const EventLoop::Handler& handler) {
      ++delivered_;
      handler();
    };
    site_.move_focus = [](const Control&, int) { return false; };
    site_.option_group = [this](const OptionGroup&) { return &group_; };
    window_.resize(400, 300);
  }

  template <typename Widget>
  Widget& Show(Control& control, Dress dress = Dress::kPlain) {
    Placement place;
    place.dress = dress;
    bindings_.push_back(Bind(control, place, site_, &window_));
    QWidget& widget = bindings_.back()->widget();
    widget.setGeometry(10, 10 + 40 * static_cast<int>(bindings_.size()), 200, 34);
    Refresh();
    window_.show();
    return dynamic_cast<Widget&>(widget);
  }
  void Refresh() {
    for (const auto& binding : bindings_) binding->Refresh();
  }
  static QColor Middle(QWidget& widget) {
    return widget.grab().toImage().pixelColor(widget.width() / 2, widget.height() / 2);
  }

  TestForm form_;
  PageStyle style_;
  BindingSite site_{style_, {}, {}, {}, {}};
  QButtonGroup group_;
  QWidget window_;
  std::vector<std::unique_ptr<Binding>> bindings_;
  int delivered_ = 0;
};

TEST_F(Binder, BringsAClickAndTheKeysThatPressToTheHandler) {
  int pressed = 0;
  form_.button.Click = [&] { ++pressed; };
  auto& widget = Show<PressWidget>(form_.button);
  QTest::mouseClick(&widget, Qt::LeftButton);
  EXPECT_EQ(pressed, 1);
  QTest::keyClick(&widget, Qt::Key_Space);
  EXPECT_EQ(pressed, 2);
  QTest::keyClick(&widget, Qt::Key_Return);
  QTest::keyClick(&widget, Qt::Key_Enter);
  EXPECT_EQ(pressed, 4);
  EXPECT_EQ(delivered_, 4);
}

TEST_F(Binder, BringsNoClickOfAButtonThatIsDisabled) {
  int pressed = 0;
  form_.button.Click = [&] { ++pressed; };
  form_.button.enabled = false;
  auto& widget = Show<PressWidget>(form_.button);
  EXPECT_FALSE(widget.isEnabled());
  QTest::mouseClick(&widget, Qt::LeftButton);
  EXPECT_EQ(pressed, 0);
}

TEST_F(Binder, ShowsAPanelAsAButtonOnlyWhenItHasAHandler) {
  form_.panel.Click = [] {};
  EXPECT_NE(dynamic_cast<QAbstractButton*>(&Show<QWidget>(form_.panel)), nullptr);
  EXPECT_EQ(dynamic_cast<QAbstractButton*>(&Show<QWidget>(form_.mark, Dress::kMark)), nullptr);
}

TEST_F(Binder, NamesAWidgetForTheProgramAndForTheReaderOfAScreen) {
  form_.mark.caption = "  falsch ";
  form_.mark.description = "Platz 2";
  auto& widget = Show<QWidget>(form_.mark, Dress::kMark);
  EXPECT_EQ(widget.objectName(), "mark(2)");
  EXPECT_EQ(widget.accessibleName(), "falsch");
  EXPECT_EQ(widget.accessibleDescription(), "Platz 2");
  form_.mark.caption = "richtig";
  Refresh();
  EXPECT_EQ(widget.accessibleName(), "richtig");
}

TEST_F(Binder, ShowsAndSaysACaptionWithoutTheBlanksThatArePartOfIt) {
  form_.label.caption = "Akkord- Anzahl ";
  auto& label = Show<TextWidget>(form_.label);
  auto& list = Show<DropDownWidget>(form_.list);
  bindings_.back()->NameBy(&form_.label);
  Refresh();
  EXPECT_EQ(label.caption(), "Akkord-Anzahl");
  EXPECT_EQ(label.accessibleName(), "Akkord-Anzahl");
  EXPECT_EQ(list.accessibleName(), "Akkord-Anzahl");
}

TEST_F(Binder, BeginsWhatHeadsSomethingWithACapital) {
  Placement heading;
  heading.capital = true;
  form_.label.caption = "übungsart";
  bindings_.push_back(Bind(form_.label, heading, site_, &window_));
  Refresh();
  EXPECT_EQ(bindings_.back()->dressed().caption(), "Übungsart");
  form_.mark.caption = "bestimmen";
  EXPECT_EQ(Show<TextWidget>(form_.mark, Dress::kMark).caption(), "bestimmen");
}

TEST_F(Binder, NamesAListByTheLabelThatBelongsToIt) {
  form_.label.caption = "Tempo";
  auto& widget = Show<DropDownWidget>(form_.list);
  bindings_.back()->NameBy(&form_.label);
  Refresh();
  EXPECT_EQ(widget.accessibleName(), "Tempo");
}

TEST_F(Binder, ExplainsAFigureByTheLabelThatBelongsToIt) {
  form_.label.caption = "Richtig";
  form_.mark.caption = "3";
  auto& widget = Show<QWidget>(form_.mark, Dress::kMark);
  bindings_.back()->NameBy(&form_.label);
  Refresh();
  EXPECT_EQ(widget.accessibleName(), "3");
  EXPECT_EQ(widget.accessibleDescription(), "Richtig");
}

TEST_F(Binder, TellsTheKeyOfAButtonInItsToolTip) {
  form_.button.caption = "nächste Aufgabe";
  auto& widget = Show<PressWidget>(form_.button);
  bindings_.back()->SetKey("N");
  form_.button.caption = "Aufgabe 1";
  Refresh();
  EXPECT_EQ(widget.toolTip(), "Aufgabe 1 (N)");
}

TEST_F(Binder, ShowsTheColoursThatTheProgramSets) {
  form_.mark.back_color = Colors::kRed;
  auto& widget = Show<QWidget>(form_.mark, Dress::kMark);
  EXPECT_EQ(Middle(widget), QColor(255, 0, 0));
  form_.mark.back_color = Rgb(0, 192, 0);
  Refresh();
  EXPECT_EQ(Middle(widget), QColor(0, 192, 0));
}

TEST_F(Binder, DrawsTicksAndCrossesOnWhatWasPressed) {
  form_.panel.Click = [] {};
  for (const Dress dress : {Dress::kTile, Dress::kLarge}) {
    auto& widget = Show<PressWidget>(form_.panel, dress);
    const auto pixels = [&widget](const QColor& color) {
      const QImage image = widget.grab().toImage();
      int found = 0;
      for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) found += image.pixelColor(x, y) == color ? 1 : 0;
      }
      return found;
    };
    EXPECT_EQ(pixels(look::kTick) + pixels(look::kCross), 0);
    form_.panel.marks = {{AnswerMark::Kind::kTick, 0}};
    Refresh();
    EXPECT_GT(pixels(look::kTick), 30);
    EXPECT_EQ(pixels(look::kCross), 0);
    form_.panel.marks = {{AnswerMark::Kind::kCross, 1}, {AnswerMark::Kind::kTick, 2}};
    Refresh();
    EXPECT_GT(pixels(look::kTick), 30);
    EXPECT_GT(pixels(look::kCross), 30);
    form_.panel.marks.clear();
    Refresh();
    EXPECT_EQ(pixels(look::kTick) + pixels(look::kCross), 0);
    bindings_.clear();
  }
}

TEST_F(Binder, WritesItsNumberOnATile) {
  form_.panel.Click = [] {};
  form_.panel.back_color = Colors::kGrey;
  auto& widget = Show<PressWidget>(form_.panel, Dress::kTile);
  const QImage bare = widget.grab().toImage();
  form_.panel.number = 17;
  Refresh();
  const QImage numbered = widget.grab().toImage();
  EXPECT_NE(bare, numbered);
  const QRect middle = numbered.rect().adjusted(20, 0, 0, -16);
  EXPECT_EQ(bare.copy(middle), numbered.copy(middle)) << "in its corner";
}

TEST_F(Binder, GoesPastEmptyEntriesByTheArrowKeysAndTakesThemByMouse) {
  form_.list.Add("eins", 1);
  form_.list.AddEmpty("---", 2);
  form_.list.Add("drei", 3);
  form_.list.Select(0);
  auto& combo = Show<DropDownWidget>(form_.list);
  const auto press = [&](Qt::Key key) {
    QTest::keyClick(&combo, key);
    Refresh();
    return form_.list.list_index();
  };
  EXPECT_EQ(press(Qt::Key_Down), 2);
  EXPECT_EQ(combo.currentIndex(), 2);
  EXPECT_EQ(press(Qt::Key_Down), 2);
  EXPECT_EQ(press(Qt::Key_Up), 0);
  EXPECT_EQ(press(Qt::Key_Up), 0);
  emit combo.activated(1);
  EXPECT_EQ(form_.list.list_index(), 1);
}

TEST_F(Binder, HidesAndShowsAsTheProgramSays) {
  auto& widget = Show<QWidget>(form_.label);
  EXPECT_TRUE(widget.isVisible());
  form_.label.visible = false;
  Refresh();
  EXPECT_FALSE(widget.isVisible());
}

TEST_F(Binder, SaysWhenAPlaceOrTheVisibilityHasChanged) {
  Show<QWidget>(form_.label);
  EXPECT_FALSE(bindings_.back()->Refresh());
  form_.label.top = 12;
  EXPECT_TRUE(bindings_.back()->Refresh());
  form_.label.visible = false;
  EXPECT_TRUE(bindings_.back()->Refresh());
  EXPECT_FALSE(bindings_.back()->Refresh());
}

TEST_F(Binder, ChecksAnOptionThroughItsGroupAndShowsWhatTheGroupSays) {
  std::vector<int> checked;
  form_.options.Click = [&](int index) { checked.push_back(index); };
  auto& first = Show<OptionWidget>(form_.options[1]);
  auto& second = Show<OptionWidget>(form_.options[2]);
  EXPECT_TRUE(first.isChecked());
  QTest::mouseClick(&second, Qt::LeftButton);
  Refresh();
  EXPECT_EQ(checked, std::vector{2});
  EXPECT_TRUE(second.isChecked());
  form_.options.Check(1);
  Refresh();
  EXPECT_TRUE(first.isChecked());
  EXPECT_FALSE(second.isChecked());
  EXPECT_EQ(checked, (std::vector{2, 1}));
}

TEST_F(Binder, ChoosesInADropDownListByKeyAndFollowsTheProgram) {
  form_.list.Add("eins", 1);
  form_.list.Add("zwei", 2);
  int chosen = 0;
  auto& combo = Show<DropDownWidget>(form_.list);
  EXPECT_EQ(combo.currentIndex(), -1);
  form_.list.Click = [&] { ++chosen; };
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_EQ(form_.list.list_index(), 0);
  EXPECT_EQ(chosen, 1);
  form_.list.Select(1);
  Refresh();
  EXPECT_EQ(combo.currentText(), "zwei");
  EXPECT_EQ(combo.caption(), "zwei");
  EXPECT_EQ(chosen, 2);
  form_.list.Clear();
  Refresh();
  EXPECT_EQ(combo.count(), 0);
}

TEST_F(Binder, ChoosesInAListBoxByClickAndByKey) {
  form_.box.Add("eins", 1);
  form_.box.Add("zwei", 2);
  std::vector<int> chosen;
  form_.box.Click = [&] { chosen.push_back(form_.box.list_index()); };
  auto& list = Show<ListWidget>(form_.box);
  list.resize(200, 120);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                    list.visualItemRect(list.item(1)).center());
  EXPECT_EQ(chosen, std::vector{1});
  list.setCurrentRow(0);
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_EQ(chosen, (std::vector{1, 0}));
}

TEST_F(Binder, SlidesByKeyAndFollowsTheProgramWithoutAnEvent) {
  int slid = 0;
  form_.slider.Set(50);
  form_.slider.Change = [&] { ++slid; };
  auto& slider = Show<SliderWidget>(form_.slider);
  EXPECT_EQ(slider.value(), 50);
  QTest::keyClick(&slider, Qt::Key_Right);
  EXPECT_EQ(form_.slider.value(), 51);
  EXPECT_EQ(slid, 1);
  form_.slider.Set(10);
  Refresh();
  EXPECT_EQ(slider.value(), 10);
  EXPECT_EQ(slid, 2);
}

TEST_F(Binder, ShowsTheShareOfAGauge) {
  form_.gauge.percent = 40;
  auto& gauge = Show<GaugeWidget>(form_.gauge);
  EXPECT_EQ(gauge.value(), 40);
}

TEST_F(Binder, TellsAReaderOfTheScreenWhatEachControlIs) {
  const auto role = [](QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget)->role();
  };
  form_.panel.Click = [] {};
  EXPECT_EQ(role(Show<QWidget>(form_.button)), QAccessible::Button);
  EXPECT_EQ(role(Show<QWidget>(form_.panel)), QAccessible::Button);
  EXPECT_EQ(role(Show<QWidget>(form_.mark, Dress::kMark)), QAccessible::StaticText);
  EXPECT_EQ(role(Show<QWidget>(form_.label)), QAccessible::StaticText);
  EXPECT_EQ(role(Show<QWidget>(form_.options[1])), QAccessible::RadioButton);
  EXPECT_EQ(role(Show<QWidget>(form_.list)), QAccessible::ComboBox);
  EXPECT_EQ(role(Show<QWidget>(form_.box)), QAccessible::List);
  EXPECT_EQ(role(Show<QWidget>(form_.slider)), QAccessible::Slider);
  EXPECT_EQ(role(Show<QWidget>(form_.gauge)), QAccessible::ProgressBar);
  EXPECT_EQ(role(Show<QWidget>(form_.frame, Dress::kCard)), QAccessible::Grouping);
}

TEST_F(Binder, LetsAnAssistiveTechnologyPressAButton) {
  int pressed = 0;
  form_.button.Click = [&] { ++pressed; };
  form_.button.caption = "OK";
  auto& widget = Show<PressWidget>(form_.button);
  QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(&widget);
  EXPECT_EQ(accessible->text(QAccessible::Name), "OK");
  ASSERT_NE(accessible->actionInterface(), nullptr);
  accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  for (int i = 0; i < 1000 && pressed == 0; ++i) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  EXPECT_EQ(pressed, 1);
}

}  // namespace
}  // namespace vmod17

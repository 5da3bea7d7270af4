// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/accessible.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QRadioButton>
#include <map>
#include <set>

#include "ports/timer.h"
#include "qt/accessible_tree.h"
#include "qt/finished_test.h"
#include "qt/pictures/chord_pictures.h"
#include "qt/shown_page.h"
#include "qt/view/qt_view.h"

namespace vmod17 {
namespace {

using Actions = QAccessibleActionInterface;

QAccessibleInterface& Of(QObject& object) {
  return *QAccessible::queryAccessibleInterface(&object);
}

bool Offers(QAccessibleInterface& element, const QString& action) {
  Actions* const actions = element.actionInterface();
  return actions != nullptr && actions->actionNames().contains(action);
}

/// A screen of the program, all of whose controls are to be seen and reached, and whose handlers
/// only tell that they were run.
class Opened {
 public:
  Opened(Form& form, bool enabled) : form_(form) {
    for (Control* control : form.controls()) {
      if (dynamic_cast<Timer*>(control) != nullptr) continue;
      control->visible = true;
      control->enabled = enabled || control->container == nullptr;
      Listen(*control);
    }
    view_.Attach(form);
    loop_.after_event = [this] { view_.Refresh(); };
    view_.Refresh();
  }
  ~Opened() { view_.Detach(form_); }

  const std::vector<std::unique_ptr<Binding>>& bindings() { return view_.page()->bindings(); }
  QtView& view() { return view_; }
  /// How often the handler of a control was run, by its Id.
  std::map<std::string, int> ran;

 private:
  void Listen(Control& control) {
    const auto count = [this, id = control.Id()] { ++ran[id]; };
    if (auto* button = dynamic_cast<Pressable*>(&control)) {
      if (button->Click) button->Click = count;
    } else if (auto* list = dynamic_cast<ItemList*>(&control)) {
      list->Click = count;
      if (list->count() == 0) list->Add("one", 1);
      list->Add("another", 2);
    } else if (auto* slider = dynamic_cast<Slider*>(&control)) {
      slider->Change = count;
    } else if (auto* option = dynamic_cast<Option*>(&control)) {
      OptionGroup& group = option->group();
      group.Click = [this, &group](int index) { ++ran[group[index].Id()]; };
    } else if (auto* frame = dynamic_cast<Frame*>(&control)) {
      if (frame->MenuAsked) frame->MenuAsked = count;
    }
  }

  Form& form_;
  QtEventLoop loop_;
  ChordPictures pictures_;
  QtView view_{loop_, pictures_};
};

/// Acts on a widget in each way that it offers to an assistive technology, but for the focus.
/// Returns the number of times that the handler of its control is to be run.
int ActOn(Binding& binding) {
  QAccessibleInterface& element = Of(binding.widget());
  Control& control = binding.control();
  int acts = 0;
  if (auto* slider = dynamic_cast<Slider*>(&control)) {
    for (const int value : {slider->low() + 3, slider->high() - 5}) {
      element.valueInterface()->setCurrentValue(value);
      ++acts;
    }
    return acts;
  }
  if (auto* list = dynamic_cast<ItemList*>(&control)) {
    const bool closed = list->shape() == ItemList::Shape::kDropDown;
    QAccessibleInterface& entries = closed ? *element.child(0) : element;
    for (int row = 0; row < list->count(); ++row) {
      entries.child(row)->actionInterface()->doAction(Actions::pressAction());
      ++acts;
    }
    return acts;
  }
  if (element.actionInterface() == nullptr) return 0;
  for (const QString& action : element.actionInterface()->actionNames()) {
    if (action == Actions::setFocusAction()) continue;
    element.actionInterface()->doAction(action);
    // An option that stands checked stays so.
    ++acts;
  }
  return acts;
}

bool TakesActions(const Control& control) {
  if (const auto* button = dynamic_cast<const Pressable*>(&control))
    return button->Click != nullptr;
  if (const auto* frame = dynamic_cast<const Frame*>(&control)) return frame->MenuAsked != nullptr;
  return dynamic_cast<const ItemList*>(&control) != nullptr ||
         dynamic_cast<const Slider*>(&control) != nullptr ||
         dynamic_cast<const Option*>(&control) != nullptr;
}

class EachScreen : public testing::TestWithParam<const char*> {
 protected:
  Form& Screen() {
    const std::string name = GetParam();
    if (name == "First") {
      p_.ToFirstScreen();
      return p_.first();
    }
    p_.ToSettings();
    if (name == "Settings") return p_.settings_screen();
    if (name == "Worksheet") {
      p_.StartRun();
      return p_.worksheet();
    }
    ToResults(p_);
    return p_.results();
  }

  const HeardEvents reader_;  // one that runs from the beginning on
  ProgramFixture p_;
};

TEST_P(EachScreen, TakesEachActionOfEachControlAsItTakesAClick) {
  Opened screen(Screen(), true);
  std::map<std::string, int> expected;
  for (const auto& binding : screen.bindings()) {
    const auto* const option = dynamic_cast<const Option*>(&binding->control());
    const bool stands = option != nullptr && option->group().chosen() == option->index();
    const int acts = ActOn(*binding);
    EXPECT_EQ(acts > 0, TakesActions(binding->control())) << binding->control().Id();
    if (acts > 0 && !stands) expected[binding->control().Id()] = acts;
    if (option != nullptr) {
      EXPECT_EQ(option->group().chosen(), option->index()) << option->Id();
      EXPECT_TRUE(Of(binding->widget()).state().checked) << option->Id();
    }
  }
  EXPECT_FALSE(expected.empty());
  // A button acts a moment after it was pressed.
  for (int i = 0; i < 1000 && screen.ran != expected; ++i) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  EXPECT_EQ(screen.ran, expected);
}

TEST_P(EachScreen, TakesNoActionOfAControlThatIsLocked) {
  Opened screen(Screen(), false);
  const auto shown = [&] {
    std::map<std::string, int> values;
    for (const auto& binding : screen.bindings()) {
      if (const auto* bar = qobject_cast<QAbstractSlider*>(&binding->widget())) {
        values[binding->control().Id()] = bar->value();
      } else if (const auto* dot = qobject_cast<QRadioButton*>(&binding->widget())) {
        values[binding->control().Id()] = dot->isChecked();
      }
    }
    return values;
  };
  const auto before = shown();
  for (const auto& binding : screen.bindings()) {
    if (!binding->widget().isEnabled() && dynamic_cast<Frame*>(&binding->control()) == nullptr) {
      ActOn(*binding);
    }
  }
  QCoreApplication::processEvents();
  EXPECT_EQ(screen.ran, (std::map<std::string, int>()));
  EXPECT_EQ(shown(), before);
}

TEST_P(EachScreen, GivesTheFocusToEachControlThatIsAskedToTakeIt) {
  Opened screen(Screen(), true);
  int taken = 0;
  for (const auto& binding : screen.bindings()) {
    if (!TakesActions(binding->control())) continue;
    if (dynamic_cast<Frame*>(&binding->control()) != nullptr) continue;
    QAccessibleInterface& element = Of(binding->widget());
    ASSERT_TRUE(Offers(element, Actions::setFocusAction())) << binding->control().Id();
    element.actionInterface()->doAction(Actions::setFocusAction());
    EXPECT_EQ(screen.view().Window()->focusWidget(), &binding->widget()) << binding->control().Id();
    ++taken;
  }
  EXPECT_GT(taken, 0);
}

TEST_P(EachScreen, NamesEachControlThatTakesActions) {
  const Shown shown(Screen(), kSmall);
  for (const Binding* binding : shown.Visible()) {
    if (!TakesActions(binding->control())) continue;
    if (dynamic_cast<const Frame*>(&binding->control()) != nullptr) continue;
    const QString name = Of(binding->widget()).text(QAccessible::Name);
    EXPECT_GT(name.size(), 1) << binding->control().Id() << ": " << name.toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(All, EachScreen,
                         testing::Values("First", "Settings", "Worksheet", "Results"),
                         [](const auto& test) { return test.param; });

/// The settings screen as it is.
class AccessibleSettings : public testing::Test {
 protected:
  AccessibleSettings() {
    loop_.after_event = [this] { view_.Refresh(); };
    p_.ToSettings();
    view_.Attach(p_.settings_screen());
    view_.Refresh();
  }
  ~AccessibleSettings() override { view_.Detach(p_.settings_screen()); }
  QAccessibleInterface& At(const QString& name) {
    return Of(*view_.page()->findChild<QWidget*>(name));
  }

  const HeardEvents reader_;
  ProgramFixture p_;
  QtEventLoop loop_;
  ChordPictures pictures_;
  QtView view_{loop_, pictures_};
};

TEST_F(AccessibleSettings, PlayVoicingsOnceTheirOptionIsToggled) {
  At("aus_w(1)").actionInterface()->doAction(Actions::toggleAction());
  EXPECT_EQ(p_.settings().akk_form, 1);
  EXPECT_FALSE(p_.settings_screen().grdeinst[11].visible);
}

TEST_F(AccessibleSettings, MoveAnEntryAndTellItsNeighboursAnew) {
  QAccessibleInterface& list = At("klanglst(0)");
  const QString second = list.child(1)->text(QAccessible::Name);
  list.child(0)->actionInterface()->doAction(Actions::pressAction());
  EXPECT_EQ(p_.settings_screen().klanglst[1].count(), 2);
  EXPECT_EQ(list.childCount(), p_.settings_screen().klanglst[0].count());
  EXPECT_EQ(list.child(0)->text(QAccessible::Name), second);
}

TEST_F(AccessibleSettings, CallAListByItsLabelAndTellWhatIsChosen) {
  QAccessibleInterface& list = At("temp_Combo");
  EXPECT_EQ(list.role(), QAccessible::ComboBox);
  EXPECT_EQ(list.text(QAccessible::Name).toStdString(), p_.settings_screen().lb15[0].caption);
  EXPECT_EQ(list.text(QAccessible::Value).toStdString(), p_.settings_screen().temp_Combo.text());
  EXPECT_EQ(list.text(QAccessible::Description), list.text(QAccessible::Value));
  QAccessibleInterface& entries = *list.child(0);
  EXPECT_EQ(entries.parent(), &list);
  EXPECT_EQ(entries.childCount(), p_.settings_screen().temp_Combo.count());
  for (int row = 0; row < entries.childCount(); ++row) {
    const bool chosen = row == p_.settings_screen().temp_Combo.list_index();
    EXPECT_EQ(entries.child(row)->state().selected, chosen) << row;
    EXPECT_EQ(entries.indexOfChild(entries.child(row)), row);
  }
}

TEST_F(AccessibleSettings, OpenAListThatDropsDownAndTakeAnEntryOfIt) {
  QAccessibleInterface& list = At("ComboPatch");
  EXPECT_FALSE(list.state().expanded);
  list.actionInterface()->doAction(Actions::showMenuAction());
  EXPECT_TRUE(list.state().expanded);
  list.child(0)->child(7)->actionInterface()->doAction(Actions::pressAction());
  EXPECT_EQ(p_.settings_screen().ComboPatch.list_index(), 7);
  EXPECT_FALSE(list.state().expanded);
}

TEST_F(AccessibleSettings, OpenTheMenuOfAFrameThatIsLocked) {
  p_.settings_screen().grdeinst[4].enabled = false;
  view_.Refresh();
  At("grdeinst(4)").actionInterface()->doAction(Actions::showMenuAction());
  EXPECT_EQ(p_.settings_screen().popPruefung.open_at, &p_.settings_screen().grdeinst[4]);
}

}  // namespace
}  // namespace vmod17

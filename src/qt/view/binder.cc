// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/view/binder.h"

#include <QButtonGroup>
#include <QSignalBlocker>
#include <algorithm>

#include "forms/caption.h"
#include "qt/kit/drop_down_widget.h"
#include "qt/kit/gauge_widget.h"
#include "qt/kit/list_widget.h"
#include "qt/kit/option_widget.h"
#include "qt/kit/plate_widget.h"
#include "qt/kit/press_widget.h"
#include "qt/kit/slider_widget.h"
#include "qt/kit/text_widget.h"

namespace vmod17 {
namespace {

QString Text(const std::string& text) { return QString::fromStdString(text); }

/// A tool tip has no format that it could be given: what looks like markup is written as such.
QString AsToolTip(const QString& text) {
  return Qt::mightBeRichText(text) ? "<qt>" + text.toHtmlEscaped() + "</qt>" : text;
}

class PressBinding : public Binding {
 public:
  /// `picture` is the control itself if it is one, else null.
  PressBinding(Pressable& control, const Picture* picture, PressWidget& widget,
               const BindingSite& site)
      : Binding(control, widget, widget), control_(control), press_(widget), picture_(picture) {
    widget.move_focus = [&control, move = site.move_focus](int key) { return move(control, key); };
    QObject::connect(
        &widget, &QAbstractButton::clicked, &widget,
        [&control, deliver = site.deliver] { deliver([&control] { control.Press(); }); });
  }

 protected:
  void RefreshKind() override {
    if (control_.number != number_) press_.SetNumber(number_ = control_.number);
    if (control_.marks != marks_) press_.SetMarks(marks_ = control_.marks);
    if (picture_ == nullptr) return;
    if (picture_->image != image_) press_.SetImage(image_ = picture_->image);
    if (picture_->sign != sign_) press_.SetSign(sign_ = picture_->sign);
  }
  void WithdrawKind() override {
    press_.SetImage(image_ = {});
    press_.SetSign(sign_ = Sign::kNone);
  }

 private:
  const Pressable& control_;
  PressWidget& press_;
  const Picture* picture_;
  PictureId image_;
  Sign sign_ = Sign::kNone;
  int number_ = 0;
  std::vector<AnswerMark> marks_;
};

class TextBinding : public Binding {
 public:
  /// `picture` is the control itself if it is one, else null.
  TextBinding(Control& control, const Picture* picture, TextWidget& widget)
      : Binding(control, widget, widget), text_(widget), picture_(picture) {}

 protected:
  void RefreshKind() override {
    if (picture_ == nullptr) return;
    if (picture_->image != image_) text_.SetImage(image_ = picture_->image);
    if (picture_->sign != sign_) text_.SetSign(sign_ = picture_->sign);
  }
  void WithdrawKind() override {
    text_.SetImage(image_ = {});
    text_.SetSign(sign_ = Sign::kNone);
  }

 private:
  TextWidget& text_;
  const Picture* picture_;
  PictureId image_;
  Sign sign_ = Sign::kNone;
};

class OptionBinding : public Binding {
 public:
  OptionBinding(Option& option, OptionWidget& widget, const BindingSite& site)
      : Binding(option, widget, widget), option_(option), radio_(widget) {
    group_ = site.option_group(option.group());
    group_->addButton(&widget);
    QObject::connect(&widget, &QAbstractButton::clicked, &widget,
                     [&option, deliver = site.deliver] {
                       deliver([&option] { option.group().Choose(option.index()); });
                     });
  }

 protected:
  void RefreshKind() override {
    const bool checked = option_.group().chosen() == option_.index();
    if (radio_.isChecked() == checked) return;
    // The program alone decides; for a moment none or two may be checked.
    group_->setExclusive(false);
    radio_.setChecked(checked);
    group_->setExclusive(true);
  }

 private:
  Option& option_;
  OptionWidget& radio_;
  QButtonGroup* group_;
};

/// Keeps a toolkit's list in step with an `ItemList`.
class EntriesShown {
 public:
  explicit EntriesShown(const ItemList& list) : list_(list) {}
  /// Returns whether the entries differ from the last time, which is asked for with each refresh.
  bool Changed() {
    if (known_ && list_.entries() == shown_) return false;
    known_ = true;
    shown_ = list_.entries();
    return true;
  }
  void Forget() { known_ = false; }

 private:
  const ItemList& list_;
  std::vector<ItemList::Entry> shown_;
  bool known_ = false;
};

class DropDownBinding : public Binding {
 public:
  DropDownBinding(ItemList& list, DropDownWidget& widget, const BindingSite& site)
      : Binding(list, widget, widget), list_(list), combo_(widget), entries_(list) {
    QObject::connect(
        &widget, &QComboBox::activated, &widget,
        [&list, deliver = site.deliver](int row) { deliver([&list, row] { list.Choose(row); }); });
    widget.step = [&list, deliver = site.deliver](int way) {
      deliver([&list, way] { list.Step(way); });
    };
  }

 protected:
  bool OwnCaption() const override { return true; }
  void RefreshKind() override {
    const QSignalBlocker quiet(&combo_);
    if (entries_.Changed()) {
      combo_.clear();
      for (const ItemList::Entry& entry : list_.entries()) combo_.addItem(Text(entry.text));
      combo_.setCurrentIndex(-1);
    }
    if (combo_.currentIndex() != list_.list_index()) combo_.setCurrentIndex(list_.list_index());
    if (combo_.caption() != combo_.currentText()) combo_.SetCaption(combo_.currentText());
  }
  void WithdrawKind() override {
    const QSignalBlocker quiet(&combo_);
    combo_.clear();
    entries_.Forget();
  }

 private:
  ItemList& list_;
  DropDownWidget& combo_;
  EntriesShown entries_;
};

class ListBinding : public Binding {
 public:
  ListBinding(ItemList& list, ListWidget& widget, const BindingSite& site)
      : Binding(list, widget, widget), list_(list), box_(widget), entries_(list) {
    widget.choose = [&list, deliver = site.deliver](int row) {
      deliver([&list, row] { list.Choose(row); });
    };
  }

 protected:
  void RefreshKind() override {
    const QSignalBlocker quiet(&box_);
    if (entries_.Changed()) {
      const int row = box_.currentRow();
      box_.clear();
      for (const ItemList::Entry& entry : list_.entries()) box_.addItem(Text(entry.text));
      // Entries come and go under the user's hand: the keyboard stays where it was.
      if (list_.count() > 0) box_.setCurrentRow(std::clamp(row, 0, list_.count() - 1));
      selected_ = -1;
    }
    if (selected_ == list_.list_index()) return;
    selected_ = list_.list_index();
    if (selected_ >= 0) box_.setCurrentRow(selected_);
  }
  void WithdrawKind() override {
    const QSignalBlocker quiet(&box_);
    box_.clear();
    entries_.Forget();
  }

 private:
  ItemList& list_;
  ListWidget& box_;
  EntriesShown entries_;
  int selected_ = -1;
};

class SliderBinding : public Binding {
 public:
  SliderBinding(Slider& slider, SliderWidget& widget, const BindingSite& site)
      : Binding(slider, widget, widget), slider_(slider), shown_(widget) {
    shown_.setRange(slider.low(), slider.high());
    QObject::connect(&widget, &QSlider::valueChanged, &widget,
                     [&slider, deliver = site.deliver](int value) {
                       deliver([&slider, value] { slider.Slide(value); });
                     });
  }

 protected:
  void RefreshKind() override {
    const QSignalBlocker quiet(&shown_);
    if (shown_.value() != slider_.value()) shown_.setValue(slider_.value());
    shown_.update();
  }

 private:
  Slider& slider_;
  SliderWidget& shown_;
};

class GaugeBinding : public Binding {
 public:
  GaugeBinding(Gauge& gauge, GaugeWidget& widget)
      : Binding(gauge, widget, widget), gauge_(gauge), bar_(widget) {}
  void NameEnds(const Control* low, const Control* high) override {
    low_ = low;
    high_ = high;
  }

 protected:
  void RefreshKind() override {
    if (bar_.value() != gauge_.percent) bar_.setValue(gauge_.percent);
    if (low_ == nullptr || high_ == nullptr) return;
    const QString low = Text(low_->caption);
    const QString high = Text(high_->caption);
    if (!bar_.SetEnds(low, high)) return;
    bar_.setAccessibleDescription(QString("0% %1, 100% %2").arg(low, high));
  }
  void WithdrawKind() override {
    bar_.SetEnds({}, {});
    bar_.setAccessibleDescription({});
  }

 private:
  const Control* low_ = nullptr;
  const Control* high_ = nullptr;
  Gauge& gauge_;
  GaugeWidget& bar_;
};

class PlateBinding : public Binding {
 public:
  /// `frame` is the control itself if it is one, else null.
  PlateBinding(Control& control, Frame* frame, PlateWidget& widget, const BindingSite& site)
      : Binding(control, widget, widget) {
    widget.move_focus = [&control, move = site.move_focus](int key) { return move(control, key); };
    if (frame == nullptr || !frame->MenuAsked) return;
    widget.ask_menu = [frame, ask = site.ask_menu] { ask(*frame); };
  }
};

/// Whether the screen it belongs to shows it.
bool IsShown(const Control& control) {
  for (const Control* c = &control; c != nullptr; c = c->container) {
    if (!c->visible) return false;
  }
  return true;
}

std::unique_ptr<Binding> BindList(ItemList& list, const Placement& place, const BindingSite& site,
                                  QWidget* parent) {
  switch (list.shape()) {
    case ItemList::Shape::kDropDown:
      return std::make_unique<DropDownBinding>(list, *new DropDownWidget(parent, site.style, place),
                                               site);
    case ItemList::Shape::kBox:
      return std::make_unique<ListBinding>(list, *new ListWidget(parent, site.style, place), site);
  }
  return nullptr;
}

}  // namespace

Binding::Binding(Control& control, QWidget& widget, Dressed& dressed)
    : control_(control), widget_(widget), dressed_(dressed) {
  widget.setObjectName(Text(control.Id()));
}

void Binding::Withdraw() {
  if (withdrawn_ || IsShown(control_)) return;
  withdrawn_ = true;
  caption_.reset();
  dressed_.SetCaption({});
  WriteName({});
  WriteDescription({});
  WithdrawKind();
}

bool Binding::Refresh() {
  const bool moved = RefreshPlace();
  if (IsShown(control_)) {
    withdrawn_ = false;
    RefreshTexts();
    RefreshKind();
    RefreshLook();
  }
  return moved;
}

void Binding::RefreshLook() {
  if (control_.back_color != back_color_ || control_.fore_color != fore_color_) {
    back_color_ = control_.back_color;
    fore_color_ = control_.fore_color;
    dressed_.SetColors(back_color_, fore_color_);
  }
  if (control_.enabled != enabled_) {
    enabled_ = control_.enabled;
    widget_.setEnabled(enabled_);
  }
}

void Binding::RefreshTexts() {
  if (caption_ != control_.caption) {
    caption_ = control_.caption;
    if (!OwnCaption()) dressed_.SetCaption(Text(ShownCaption(control_.caption)));
  }
  // What has words of its own is called by them, and the label that belongs to it explains them.
  const std::string& own = control_.spoken.empty() ? control_.caption : control_.spoken;
  const bool own_words = named_by_ == nullptr || !own.empty();
  WriteName(own_words ? own : named_by_->caption);
  const bool explained = own_words && named_by_ != nullptr && control_.description.empty();
  WriteDescription(explained ? named_by_->caption : control_.description);
}

void Binding::WriteDescription(const std::string& description) {
  if (description_ == description) return;
  description_ = description;
  widget_.setAccessibleDescription(Text(ShownCaption(description)));
}

void Binding::WriteName(const std::string& name) {
  if (name_ == name) return;
  name_ = name;
  const QString said = Text(ShownCaption(name)).simplified();
  widget_.setAccessibleName(said);
  if (key_.isEmpty()) return;
  widget_.setToolTip(said.isEmpty() ? QString() : AsToolTip(QString("%1 (%2)").arg(said, key_)));
}

bool Binding::RefreshPlace() {
  const SetPlace place{control_.left, control_.top, control_.width, control_.height};
  const bool same = place == set_place_ && control_.visible == visible_;
  set_place_ = place;
  if (control_.visible != visible_) {
    visible_ = control_.visible;
    widget_.setVisible(visible_);
  }
  return !same;
}

std::unique_ptr<Binding> Bind(Control& control, const Placement& place, const BindingSite& site,
                              QWidget* parent) {
  const auto press = [&](Pressable& pressable, const Picture* picture = nullptr) {
    return std::make_unique<PressBinding>(pressable, picture,
                                          *new PressWidget(parent, site.style, place), site);
  };
  const auto plate = [&](Frame* frame = nullptr) {
    return std::make_unique<PlateBinding>(control, frame,
                                          *new PlateWidget(parent, site.style, place), site);
  };
  const auto text = [&](const Picture* picture = nullptr) {
    return std::make_unique<TextBinding>(control, picture,
                                         *new TextWidget(parent, site.style, place));
  };
  switch (control.kind()) {
    case Control::Kind::kLabel:
      return text();
    case Control::Kind::kButton:
      return press(static_cast<Button&>(control));
    // A panel or picture without a handler only shows; it is no button then.
    case Control::Kind::kPanel: {
      auto& panel = static_cast<Panel&>(control);
      if (panel.Click) return press(panel);
      if (place.dress == Dress::kMark) return text();
      return plate();
    }
    case Control::Kind::kPicture: {
      auto& picture = static_cast<Picture&>(control);
      if (picture.Click) return press(picture, &picture);
      return text(&picture);
    }
    case Control::Kind::kFrame:
      return plate(static_cast<Frame*>(&control));
    case Control::Kind::kOption:
      return std::make_unique<OptionBinding>(static_cast<Option&>(control),
                                             *new OptionWidget(parent, site.style, place), site);
    case Control::Kind::kItemList:
      return BindList(static_cast<ItemList&>(control), place, site, parent);
    case Control::Kind::kSlider:
      return std::make_unique<SliderBinding>(static_cast<Slider&>(control),
                                             *new SliderWidget(parent, site.style, place), site);
    case Control::Kind::kGauge:
      return std::make_unique<GaugeBinding>(static_cast<Gauge&>(control),
                                            *new GaugeWidget(parent, site.style, place));
    case Control::Kind::kPopupMenu:  // the page's own
    case Control::Kind::kUnseen:
      return nullptr;
  }
  return nullptr;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/view/page.h"

#include <QButtonGroup>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

#include "qt/desk/qt_event_loop.h"
#include "qt/kit/look.h"
#include "qt/kit/signs.h"

namespace vmod17 {
namespace {

/// How far `to` lies above or below `from`, as the key says; infinite when it lies elsewhere.
double Distance(const Point& from, const Point& to, int key) {
  const double ahead = key == Qt::Key_Down ? to.y - from.y : from.y - to.y;
  if (ahead < 1) return std::numeric_limits<double>::infinity();
  return ahead + 3 * std::abs(to.x - from.x);
}

/// The control as a frame; null if it is none.
Frame* AsFrame(const Binding& binding) {
  Control& control = binding.control();
  return control.kind() == Control::Kind::kFrame ? static_cast<Frame*>(&control) : nullptr;
}

QKeySequence ToQ(const Key& key) {
  const int sign = key.sign == Key::kEscape ? static_cast<int>(Qt::Key_Escape) : key.sign;
  return QKeySequence(key.with == Key::With::kControl ? sign | Qt::CTRL : sign);
}

}  // namespace

Page::Page(Form& form, QtEventLoop& loop, PictureSource& pictures, QWidget* parent)
    : QWidget(parent),
      form_(&form),
      loop_(loop),
      style_{&pictures},
      site_{style_, {}, {}, {}, {}},
      menu_(*this, [this](const EventLoop::Handler& handler) { Deliver(handler); }) {
  setObjectName(QString::fromStdString(form.name()));
  setFocusPolicy(Qt::ClickFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  site_.deliver = [this](const EventLoop::Handler& handler) { Deliver(handler); };
  site_.move_focus = [this](const Control& from, int key) { return MoveFocus(from, key); };
  site_.ask_menu = [this](Frame& frame) { AskMenuOf(&frame, QPoint(-1, -1)); };
  site_.option_group = [this](const OptionGroup& options) {
    QButtonGroup*& group = option_groups_[&options];
    if (group == nullptr) group = new QButtonGroup(this);
    return group;
  };
  Build();
}

void Page::Build() {
  layout_ = form_->LayOut(Layout{}.canvas, measure_);
  for (Control* control : form_->controls()) BindControl(*control);
  NameAndKeys();
  for (const auto& binding : bindings_) binding->Refresh();
  OrderTabs();
}

void Page::BindControl(Control& control) {
  const auto place = layout_.places.find(&control);
  if (place == layout_.places.end() || by_control_.contains(&control)) return;
  QWidget* parent = this;
  if (control.container != nullptr) {
    BindControl(*control.container);
    const auto container = by_control_.find(control.container);
    if (container == by_control_.end()) return;  // what it stands in is not shown
    parent = &container->second->widget();
  }
  std::unique_ptr<Binding> binding = Bind(control, place->second, site_, parent);
  if (binding == nullptr) return;
  by_control_[&control] = binding.get();
  bindings_.push_back(std::move(binding));
}

void Page::NameAndKeys() {
  for (const auto& binding : bindings_) {
    const Placement& place = layout_.places[&binding->control()];
    binding->NameBy(place.named_by);
    binding->NameEnds(place.ends[0], place.ends[1]);
  }
  for (const KeyBinding& key : layout_.keys) {
    for (const Pressable* control : key.controls) {
      if (Binding* binding = BindingOf(control)) {
        binding->SetKey(ToQ(key.key).toString(QKeySequence::NativeText));
      }
    }
  }
}

void Page::Refresh() {
  if (form_ == nullptr) return;
  QWidget* const before = window()->focusWidget();
  bool moved = false;
  for (const auto& binding : bindings_) binding->Withdraw();
  for (const auto& binding : bindings_) moved |= binding->Refresh();
  if (moved) Place();
  if (title_ != form_->caption || ground_ != form_->back_color) {
    title_ = form_->caption;
    // The focus rests here while nothing can be done.
    setAccessibleName(QString::fromStdString(title_));
    ground_ = form_->back_color;
    update();
  }
  KeepFocus(before);
  constexpr double kMenuText = 15;
  menu_.Refresh(
      *form_, [this](const Control& control) { return MenuPlace(control); },
      kMenuText * style_.factor);
}

QSize Page::LeastSize() const {
  return (QSizeF(layout_.content.width, layout_.content.height) * kLeastFactor).toSize();
}

void Page::Arrange(const QSize& size) {
  size_ = size;
  const double fitting =
      std::min(size.width() / layout_.canvas.width, size.height() / layout_.canvas.height);
  style_.factor = std::max(kLeastFactor, fitting);
  if (form_ != nullptr) Place();
}

void Page::Place() {
  if (size_.isEmpty()) return;
  const QSizeF room = QSizeF(size_) / style_.factor;
  layout_ = form_->LayOut({room.width(), room.height()}, measure_);
  for (const auto& binding : bindings_) {
    const Control& control = binding->control();
    QRect rect = PixelsOf(control);
    if (control.container != nullptr) {
      rect.translate(-PixelsOf(*control.container).topLeft());
    }
    if (binding->widget().geometry() != rect) binding->widget().setGeometry(rect);
    if (layout_.places[&control].dress == Dress::kNotice) binding->widget().raise();
  }
  PlaceBackdrops();
}

void Page::PlaceBackdrops() {
  std::vector<Card> cards;
  for (const Backdrop& backdrop : layout_.backdrops) {
    const Control& control = *backdrop.control;
    if (!control.visible) continue;
    cards.push_back({Pixels(layout_.PlaceOf(control).Grown(backdrop.beyond)), control.back_color});
  }
  std::vector<QRect> vacancies;
  for (const Control* control : layout_.vacancies) {
    if (!control->visible) vacancies.push_back(PixelsOf(*control));
  }
  const QRect title_place = Pixels(layout_.title);
  if (cards == cards_ && vacancies == vacancies_ && title_place == title_place_) return;
  cards_ = std::move(cards);
  vacancies_ = std::move(vacancies);
  title_place_ = title_place;
  update();
}

QRect Page::Pixels(const Rect& units) const {
  const double f = style_.factor;
  return QRect(QPoint(qRound(units.left * f), qRound(units.top * f)),
               QPoint(qRound(units.right() * f) - 1, qRound(units.bottom() * f) - 1));
}

void Page::OrderTabs() {
  std::vector<QWidget*> order;
  CollectTabs(nullptr, order);
  for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
}

void Page::CollectTabs(const Control* container, std::vector<QWidget*>& order) const {
  std::vector<const Binding*> columns;
  std::vector<const Binding*> rows;
  for (const auto& binding : bindings_) {
    if (binding->control().container != container) continue;
    const bool frame = AsFrame(*binding) != nullptr;
    (layout_.tab_by_column && frame ? columns : rows).push_back(binding.get());
  }
  std::stable_sort(columns.begin(), columns.end(), [this](const Binding* a, const Binding* b) {
    const Rect one = layout_.PlaceOf(a->control());
    const Rect other = layout_.PlaceOf(b->control());
    return std::tie(one.left, one.top) < std::tie(other.left, other.top);
  });
  for (const std::vector<const Binding*>& part : {columns, RowByRow(std::move(rows))}) {
    for (const Binding* binding : part) {
      if (binding->widget().focusPolicy() != Qt::NoFocus) order.push_back(&binding->widget());
      CollectTabs(&binding->control(), order);
    }
  }
}

/// As one reads: what stands beside the highest one of those that are left is of its row, also
/// where it is lower or begins deeper.
std::vector<const Binding*> Page::RowByRow(std::vector<const Binding*> bindings) const {
  const auto place = [this](const Binding* binding) { return layout_.PlaceOf(binding->control()); };
  std::stable_sort(bindings.begin(), bindings.end(),
                   [&](auto* a, auto* b) { return place(a).top < place(b).top; });
  auto row = bindings.begin();
  while (row != bindings.end()) {
    const double bottom = place(*row).bottom();
    const auto next = std::stable_partition(
        row, bindings.end(), [&](auto* one) { return place(one).center().y < bottom; });
    std::stable_sort(row, next, [&](auto* a, auto* b) { return place(a).left < place(b).left; });
    row = next;
  }
  return bindings;
}

void Page::Deliver(const EventLoop::Handler& handler) {
  if (form_ != nullptr) loop_.Deliver(handler);
}

void Page::Release() {
  menu_.Close();
  form_ = nullptr;
  bindings_.clear();
  by_control_.clear();
}

Binding* Page::BindingOf(const Control* control) const {
  const auto found = by_control_.find(control);
  return found == by_control_.end() ? nullptr : found->second;
}

/// The control that a key means now; null for none.
Pressable* Page::ReachableOf(const KeyBinding& key) const {
  for (const Pressable* control : key.controls) {
    Binding* const binding = BindingOf(control);
    if (binding != nullptr && control->Reachable()) {
      return static_cast<Pressable*>(&binding->control());
    }
  }
  return nullptr;
}

bool Page::HandleKey(const QKeyEvent& event) {
  if (event.key() == Qt::Key_F1) return true;
  if (form_ == nullptr || !form_->visible || event.isAutoRepeat()) return false;
  const bool menu_key = event.key() == Qt::Key_Menu ||
                        (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
  if (menu_key) return AskMenuOf(FrameWithFocus(), QPoint(-1, -1));
  KeyBinding meant;
  const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  if (enter) meant.controls = {layout_.default_control};
  const QKeySequence pressed(event.key() |
                             static_cast<int>(event.modifiers().toInt() & ~Qt::KeypadModifier));
  for (const KeyBinding& key : layout_.keys) {
    if (ToQ(key.key) == pressed) meant = key;
  }
  Pressable* const control = ReachableOf(meant);
  if (control == nullptr) return false;
  if (meant.closes) {
    Deliver([form = form_] { form->Form_Close(); });
  } else {
    Deliver([control] { control->Press(); });
  }
  return true;
}

void Page::keyPressEvent(QKeyEvent* event) {
  if (!HandleKey(*event)) event->ignore();
}

// --- the menu of a frame

void Page::contextMenuEvent(QContextMenuEvent* event) {
  const bool by_key = event->reason() == QContextMenuEvent::Keyboard;
  Frame* const frame = by_key ? FrameWithFocus() : FrameAt(event->pos());
  if (!AskMenuOf(frame, by_key ? QPoint(-1, -1) : event->pos())) event->ignore();
}

/// Goes by places and not by widgets, since a widget that is locked takes no events.
Frame* Page::FrameAt(const QPoint& point) const {
  for (const auto& binding : bindings_) {
    Frame* const frame = AsFrame(*binding);
    if (frame == nullptr || !frame->visible || !frame->MenuAsked) continue;
    if (PixelsOf(*frame).contains(point)) return frame;
  }
  return nullptr;
}

Frame* Page::FrameWithFocus() const {
  const QWidget* const focus = window()->focusWidget();
  for (const auto& binding : bindings_) {
    Frame* const frame = AsFrame(*binding);
    if (frame != nullptr && frame->MenuAsked && binding->widget().isAncestorOf(focus)) return frame;
  }
  return nullptr;
}

bool Page::AskMenuOf(Frame* frame, const QPoint& at) {
  if (form_ == nullptr || frame == nullptr) return false;
  menu_at_ = at;
  menu_.Close();  // the one before it
  Deliver([frame] { frame->AskMenu(); });
  return true;
}

/// Under the pointer, or under the head of the frame.
QPoint Page::MenuPlace(const Control& control) const {
  const QRect place = PixelsOf(control);
  if (place.contains(menu_at_)) return menu_at_;
  const double f = style_.factor;
  return place.topLeft() + QPoint(qRound(12 * f), qRound(kSmallCardHead * f));
}

// --- the focus

void Page::SetKeyboard(bool keyboard) {
  if (style_.keyboard == keyboard) return;
  style_.keyboard = keyboard;
  if (QWidget* focus = window()->focusWidget()) focus->update();
}

bool Page::CanFocus(const QWidget& widget) const {
  return widget.isEnabled() && widget.isVisibleTo(this);
}

bool Page::MoveFocus(const Control& from, int key) {
  if (form_ == nullptr || from.index() == Control::kNoIndex) return false;
  std::vector<const Binding*> array;  // row after row
  for (const auto& binding : bindings_) {
    const bool one_of_them = binding->control().name() == from.name();
    if (one_of_them && CanFocus(binding->widget())) array.push_back(binding.get());
  }
  const auto at = std::find_if(array.begin(), array.end(),
                               [&from](const Binding* b) { return &b->control() == &from; });
  if (at == array.end()) return true;
  const Binding* to = *at;
  switch (key) {
    case Qt::Key_Home:
      to = array.front();
      break;
    case Qt::Key_End:
      to = array.back();
      break;
    case Qt::Key_Left:
      to = at == array.begin() ? array.back() : *(at - 1);
      break;
    case Qt::Key_Right:
      to = *at == array.back() ? array.front() : *(at + 1);
      break;
    default:
      to = Nearest(**at, array, key);
  }
  to->widget().setFocus(Qt::OtherFocusReason);
  return true;
}

/// The nearest one above or below; `from` where there is none.
const Binding* Page::Nearest(const Binding& from, const std::vector<const Binding*>& among,
                             int key) const {
  const Point start = layout_.PlaceOf(from.control()).center();
  const Binding* best = &from;
  double best_distance = std::numeric_limits<double>::infinity();
  for (const Binding* binding : among) {
    const double distance = Distance(start, layout_.PlaceOf(binding->control()).center(), key);
    if (distance >= best_distance) continue;
    best = binding;
    best_distance = distance;
  }
  return best;
}

/// The first control of a refuge that can have the focus, counted from the one that had it last.
QWidget* Page::RefugeIn(std::size_t i) const {
  const Controls& refuge = layout_.refuge[i];
  const auto last = last_in_refuge_.find(i);
  const std::size_t from = last == last_in_refuge_.end() ? 0 : last->second;
  QWidget* lowest = nullptr;
  for (std::size_t at = 0; at < refuge.size(); ++at) {
    Binding* const binding = BindingOf(refuge[at]);
    if (binding == nullptr || !CanFocus(binding->widget())) continue;
    if (at >= from) return &binding->widget();
    if (lowest == nullptr) lowest = &binding->widget();
  }
  return lowest;
}

QWidget* Page::Refuge() const {
  for (std::size_t i = 0; i < layout_.refuge.size(); ++i) {
    if (QWidget* widget = RefugeIn(i)) return widget;
  }
  return nullptr;
}

/// A control that is switched off hands the focus on to whatever comes next in the order of tabs,
/// which may well be the way out. So it goes to where the user goes on, or waits on the page until
/// there is such a place.
void Page::KeepFocus(QWidget* before) {
  if (form_ == nullptr || !form_->visible || !isVisible()) return;
  const bool waiting = before == nullptr || before == this;
  if (!waiting) {
    if (!isAncestorOf(before)) return;
    RememberFocus(before);
    if (CanFocus(*before)) return;
  }
  QWidget* const refuge = Refuge();
  QWidget* const target = refuge != nullptr ? refuge : this;
  if (target != window()->focusWidget()) target->setFocus(Qt::OtherFocusReason);
}

void Page::RememberFocus(QWidget* focus) {
  if (focus == last_focus_) return;
  last_focus_ = focus;
  for (std::size_t i = 0; i < layout_.refuge.size(); ++i) {
    const Controls& refuge = layout_.refuge[i];
    for (std::size_t at = 0; at < refuge.size(); ++at) {
      Binding* const binding = BindingOf(refuge[at]);
      if (binding != nullptr && &binding->widget() == focus) last_in_refuge_[i] = at;
    }
  }
}

void Page::TakeFocus() {
  if (form_ == nullptr) return;
  QWidget* target = last_focus_;
  if (target == nullptr || !CanFocus(*target)) {
    Binding* const first = BindingOf(layout_.focus_first);
    target = first != nullptr && CanFocus(first->widget()) ? &first->widget() : Refuge();
  }
  if (target == nullptr) target = this;
  target->setFocus(Qt::OtherFocusReason);
}

// --- painting

bool Page::TitleFits() const {
  return layout_.title.empty() ||
         look::SetText(QString::fromStdString(title_), Pixels(layout_.title).size(),
                       layout_.title_text * style_.factor, look::Weight::kBold)
             .fits;
}

void Page::PaintBanner(QPainter& painter) const {
  if (layout_.banner.empty()) return;
  const QRectF banner(Pixels(layout_.banner));
  const double radius = look::kCardRadius * style_.factor;
  QPainterPath path;  // round above, where the card is
  path.setFillRule(Qt::WindingFill);
  path.addRoundedRect(banner, radius, radius);
  path.addRect(banner.adjusted(0, radius, 0, 0));
  look::DrawBanner(painter, banner, path);
}

/// What stands behind all cards.
void Page::PaintGround(QPainter& painter) const {
  const double radius = (look::kCardRadius + 4) * style_.factor;
  for (const Rect& section : layout_.sections) {
    look::DrawPlate(painter, QRectF(Pixels(section)), style_.colors().section, {}, radius, 0);
  }
  for (const QRect& slot : vacancies_)
    look::DrawSlot(painter, QRectF(slot), style_.colors(), style_.factor);
}

/// A screen with a ground of its own is to be printed: its cards are bare lines then.
void Page::PaintCards(QPainter& painter) const {
  const double f = style_.factor;
  const look::Palette& colors = style_.colors();
  for (const Card& card : cards_) {
    const QColor fill = card.fill ? look::ToQ(*card.fill) : colors.card;
    if (ground_) {
      look::DrawPlate(painter, QRectF(card.rect), fill, colors.line, look::kCardRadius * f, f);
    } else {
      look::DrawCard(painter, QRectF(card.rect), colors, fill, f);
    }
  }
}

void Page::PaintTitle(QPainter& painter) const {
  if (layout_.title.empty()) return;
  const QString title = QString::fromStdString(title_);
  const QRectF box(Pixels(layout_.title));
  look::DrawText(
      painter, box, title,
      look::SetText(title, box.size(), layout_.title_text * style_.factor, look::Weight::kBold),
      layout_.banner.empty() ? style_.colors().text : QColor(Qt::white),
      look::ToQ(layout_.title_align));
}

void Page::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), ground_ ? look::ToQ(*ground_) : style_.colors().page);
  PaintGround(painter);
  PaintCards(painter);
  PaintBanner(painter);
  PaintTitle(painter);
}

void Page::PrintOn(QPainter& painter, const QSize& paper) {
  style_.paper = true;
  resize(paper);
  Arrange(paper);
  Refresh();
  Place();
  PaintCards(painter);
  PaintTitle(painter);
  for (const auto& binding : bindings_) {
    QWidget& widget = binding->widget();
    if (!widget.isVisibleTo(this)) continue;
    const QPoint corner = widget.mapTo(this, QPoint(0, 0));
    painter.save();
    painter.translate(corner);
    binding->dressed().Paint(painter);
    painter.restore();
  }
}

}  // namespace vmod17

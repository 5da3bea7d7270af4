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
double Distance(const QPointF& from, const QPointF& to, int key) {
  const QPointF way = to - from;
  const double ahead = key == Qt::Key_Down ? way.y() : -way.y();
  if (ahead < 1) return std::numeric_limits<double>::infinity();
  return ahead + 3 * std::abs(way.x());
}

}  // namespace

Page::Page(Form& form, QtEventLoop& loop, PictureSource& pictures, QWidget* parent)
    : QWidget(parent),
      form_(&form),
      loop_(loop),
      style_{pictures},
      site_{style_, {}, {}, {}, {}},
      menu_(*this, [this](const EventLoop::Handler& handler) { Deliver(handler); }) {
  setObjectName(QString::fromStdString(form.name()));
  setFocusPolicy(Qt::ClickFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  site_.deliver = [this](const EventLoop::Handler& handler) { Deliver(handler); };
  site_.move_focus = [this](const Control& from, int key) { return MoveFocus(from, key); };
  site_.ask_menu = [this](Frame& frame) { AskMenuOf(&frame, QPoint(-1, -1)); };
  site_.option_group = [this](const std::string& name) {
    QButtonGroup*& group = option_groups_[name];
    if (group == nullptr) group = new QButtonGroup(this);
    return group;
  };
  Build();
}

void Page::Build() {
  layout_ = LayoutOf(*form_, Layout{}.canvas);
  for (Control* control : form_->controls()) BindControl(*control);
  NameAndKeys();
  for (const auto& binding : bindings_) binding->Refresh();
  OrderTabs();
}

void Page::BindControl(Control& control) {
  const auto place = layout_.places.find(control.Id());
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
    const Placement& place = layout_.places[binding->control().Id()];
    if (!place.named_by.empty()) binding->NameBy(FindControl(*form_, place.named_by));
    if (!place.ends[0].empty()) {
      binding->NameEnds(FindControl(*form_, place.ends[0]), FindControl(*form_, place.ends[1]));
    }
  }
  for (const KeyBinding& key : layout_.keys) {
    for (const std::string& id : key.controls) {
      if (Binding* binding = BindingOf(id)) {
        binding->SetKey(key.keys.toString(QKeySequence::NativeText));
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

void Page::Arrange(const QSize& size) {
  size_ = size;
  const double fitting =
      std::min(size.width() / layout_.canvas.width(), size.height() / layout_.canvas.height());
  style_.factor = std::max(kLeastFactor, fitting);
  if (form_ != nullptr) Place();
}

void Page::Place() {
  if (size_.isEmpty()) return;
  layout_ = LayoutOf(*form_, QSizeF(size_) / style_.factor);
  for (const auto& binding : bindings_) {
    const Control& control = binding->control();
    QRect rect = Pixels(PlaceOf(control));
    if (control.container != nullptr) {
      rect.translate(-Pixels(PlaceOf(*control.container)).topLeft());
    }
    if (binding->widget().geometry() != rect) binding->widget().setGeometry(rect);
    if (layout_.places[control.Id()].dress == Dress::kNotice) binding->widget().raise();
  }
  PlaceBackdrops();
}

void Page::PlaceBackdrops() {
  std::vector<Card> cards;
  for (const Backdrop& backdrop : layout_.backdrops) {
    const Control* const control = FindControl(*form_, backdrop.control);
    if (control == nullptr || !control->visible) continue;
    const QRectF place = PlaceOf(*control).marginsAdded(backdrop.beyond);
    cards.push_back({Pixels(place), control->back_color});
  }
  std::vector<QRect> vacancies;
  for (const std::string& id : layout_.vacancies) {
    const Control* const control = FindControl(*form_, id);
    if (control != nullptr && !control->visible) vacancies.push_back(Pixels(PlaceOf(*control)));
  }
  const QRect title_place = Pixels(layout_.title);
  if (cards == cards_ && vacancies == vacancies_ && title_place == title_place_) return;
  cards_ = std::move(cards);
  vacancies_ = std::move(vacancies);
  title_place_ = title_place;
  update();
}

/// Where a control stands on the page: what the program sets counts before the layout's choice.
QRectF Page::PlaceOf(const Control& control) const {
  const auto place = layout_.places.find(control.Id());
  QRectF rect = place == layout_.places.end() ? QRectF() : place->second.rect;
  const QPointF origin = control.container != nullptr ? OriginIn(*control.container) : QPointF();
  if (control.left) rect.moveLeft(origin.x() + *control.left);
  if (control.top) rect.moveTop(origin.y() + *control.top);
  if (control.width) rect.setWidth(*control.width);
  if (control.height) rect.setHeight(*control.height);
  if (place == layout_.places.end()) return rect;
  const double beyond = std::max(0.0, place->second.least_width - rect.width()) / 2;
  return rect.adjusted(-beyond, 0, beyond, 0);
}

/// Where a container begins what the program places in it.
QPointF Page::OriginIn(const Control& container) const {
  const auto place = layout_.places.find(container.Id());
  const double head = place == layout_.places.end() ? 0 : place->second.head;
  return PlaceOf(container).topLeft() + QPointF(0, head);
}

QRect Page::Pixels(const QRectF& units) const {
  const double f = style_.factor;
  return QRect(QPoint(qRound(units.left() * f), qRound(units.top() * f)),
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
    const bool frame = dynamic_cast<const Frame*>(&binding->control()) != nullptr;
    (layout_.tab_by_column && frame ? columns : rows).push_back(binding.get());
  }
  std::stable_sort(columns.begin(), columns.end(), [this](const Binding* a, const Binding* b) {
    const QRectF one = PlaceOf(a->control());
    const QRectF other = PlaceOf(b->control());
    return std::tuple(one.left(), one.top()) < std::tuple(other.left(), other.top());
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
  const auto place = [this](const Binding* binding) { return PlaceOf(binding->control()); };
  std::stable_sort(bindings.begin(), bindings.end(),
                   [&](auto* a, auto* b) { return place(a).top() < place(b).top(); });
  auto row = bindings.begin();
  while (row != bindings.end()) {
    const double bottom = place(*row).bottom();
    const auto next = std::stable_partition(
        row, bindings.end(), [&](auto* one) { return place(one).center().y() < bottom; });
    std::stable_sort(row, next,
                     [&](auto* a, auto* b) { return place(a).left() < place(b).left(); });
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

Binding* Page::BindingOf(const std::string& id) const {
  if (form_ == nullptr) return nullptr;
  const auto found = by_control_.find(FindControl(*form_, id));
  return found == by_control_.end() ? nullptr : found->second;
}

Pressable* Page::PressableOf(const std::string& id) const {
  Binding* const binding = BindingOf(id);
  return binding == nullptr ? nullptr : dynamic_cast<Pressable*>(&binding->control());
}

bool Page::HandleKey(const QKeyEvent& event) {
  if (event.key() == Qt::Key_F1) return true;
  if (form_ == nullptr || !form_->visible || event.isAutoRepeat()) return false;
  const bool menu_key = event.key() == Qt::Key_Menu ||
                        (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
  if (menu_key) return AskMenuOf(FrameWithFocus(), QPoint(-1, -1));
  KeyBinding meant;
  const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  if (enter && !layout_.default_control.empty()) {
    meant.controls = {layout_.default_control};
  }
  const QKeySequence pressed(event.key() |
                             static_cast<int>(event.modifiers().toInt() & ~Qt::KeypadModifier));
  for (const KeyBinding& key : layout_.keys) {
    if (key.keys == pressed) meant = key;
  }
  for (const std::string& id : meant.controls) {
    Pressable* const control = PressableOf(id);
    if (control == nullptr || !control->Reachable()) continue;
    if (meant.closes) {
      Deliver([form = form_] { form->Form_Close(); });
    } else {
      Deliver([control] { control->Press(); });
    }
    return true;
  }
  return false;
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
    auto* const frame = dynamic_cast<Frame*>(&binding->control());
    if (frame == nullptr || !frame->visible || !frame->MenuAsked) continue;
    if (Pixels(PlaceOf(*frame)).contains(point)) return frame;
  }
  return nullptr;
}

Frame* Page::FrameWithFocus() const {
  const QWidget* const focus = window()->focusWidget();
  for (const auto& binding : bindings_) {
    auto* const frame = dynamic_cast<Frame*>(&binding->control());
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
  const QRect place = Pixels(PlaceOf(control));
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
  const QPointF start = PlaceOf(from.control()).center();
  const Binding* best = &from;
  double best_distance = std::numeric_limits<double>::infinity();
  for (const Binding* binding : among) {
    const double distance = Distance(start, PlaceOf(binding->control()).center(), key);
    if (distance >= best_distance) continue;
    best = binding;
    best_distance = distance;
  }
  return best;
}

/// The first control of an array that can have the focus, counted from the one that had it last.
QWidget* Page::RefugeIn(const std::string& name) const {
  const auto last = last_index_.find(name);
  const int from = last == last_index_.end() ? 0 : last->second;
  QWidget* lowest = nullptr;
  for (const auto& binding : bindings_) {
    if (binding->control().name() != name || !CanFocus(binding->widget())) continue;
    if (binding->control().index() >= from) return &binding->widget();
    if (lowest == nullptr) lowest = &binding->widget();
  }
  return lowest;
}

QWidget* Page::Refuge() const {
  for (const std::string& name : layout_.refuge) {
    if (QWidget* widget = RefugeIn(name)) return widget;
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
  for (const auto& binding : bindings_) {
    if (&binding->widget() != focus) continue;
    last_index_[binding->control().name()] = binding->control().index();
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
  return layout_.title.isEmpty() ||
         look::SetText(QString::fromStdString(title_), Pixels(layout_.title).size(),
                       layout_.title_text * style_.factor, look::Weight::kBold)
             .fits;
}

void Page::PaintBanner(QPainter& painter) const {
  if (layout_.banner.isEmpty()) return;
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
  for (const QRectF& section : layout_.sections) {
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
  if (layout_.title.isEmpty()) return;
  const QString title = QString::fromStdString(title_);
  const QRectF box(Pixels(layout_.title));
  look::DrawText(
      painter, box, title,
      look::SetText(title, box.size(), layout_.title_text * style_.factor, look::Weight::kBold),
      layout_.banner.isEmpty() ? style_.colors().text : QColor(Qt::white), layout_.title_align);
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

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/drop_down_widget.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>

#include "qt/kit/entry_list.h"
#include "qt/kit/keys.h"

namespace vmod17 {

DropDownWidget::DropDownWidget(QWidget* parent, const PageStyle& style, const Placement& place)
    : QComboBox(parent), Dressed(*this, style, place) {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  setMaxVisibleItems(15);
  // Some styles would show all entries at once, from one edge of the screen to the other.
  setStyleSheet("combobox-popup: 0");
  setView(new DropDownEntries(*this));
  setItemDelegate(new DropDownDelegate(this));
}

/// Within the edge and the ring of the focus, which would cut what is as high as the list.
QSizeF DropDownWidget::TextBox() const { return QSizeF(width() - Px(34), height() - Px(6)); }

void DropDownWidget::showPopup() {
  const QFont font = look::Type(Px(place_.text), look::Weight::kNormal);
  view()->setFont(font);
  // Long entries show whole, beyond the closed list's width.
  view()->setMinimumWidth(std::max(width(), view()->sizeHintForColumn(0) + qRound(Px(28))));
  QComboBox::showPopup();
}

QColor DropDownWidget::Ground() const {
  if (!isEnabled()) return colors().disabled_fill;
  return underMouse() ? colors().hover : back_.value_or(colors().button);
}

void DropDownWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRectF box(rect());
  const QColor edge = isEnabled() ? colors().button_line : colors().line;
  look::DrawPlate(painter, box, Ground(), edge, Px(6), Px(1.2));
  look::DrawText(painter, box.adjusted(Px(10), 0, -Px(24), 0), caption(), Set(), Ink(),
                 Qt::AlignLeft | Qt::AlignVCenter);
  const QColor arrow = isEnabled() ? colors().quiet_text : colors().disabled_text;
  painter.setPen(QPen(arrow, Px(1.8), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QPointF tip(width() - Px(14), height() / 2.0 + Px(2.5));
  painter.drawPolyline(
      QPolygonF{{tip + QPointF(-Px(5), -Px(5)), tip, tip + QPointF(Px(5), -Px(5))}});
  if (ShowsFocus()) look::DrawFocusRing(painter, box, colors(), Px(6), style_.factor);
}

void DropDownWidget::keyPressEvent(QKeyEvent* event) {
  if (IsEnter(event)) {
    event->ignore();
    return;
  }
  const bool up = event->key() == Qt::Key_Up;
  const bool along = up || event->key() == Qt::Key_Down;
  if (along && step && !event->modifiers().testFlag(Qt::AltModifier)) return step(up ? -1 : 1);
  QComboBox::keyPressEvent(event);
}

/// A wheel over a closed list would change the exercise by accident.
void DropDownWidget::wheelEvent(QWheelEvent* event) { event->ignore(); }

}  // namespace vmod17

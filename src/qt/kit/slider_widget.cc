// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/slider_widget.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace vmod17 {

SliderWidget::SliderWidget(QWidget* parent, const PageStyle& style, const Placement& place)
    : QSlider(Qt::Horizontal, parent), Dressed(*this, style, place) {
  setFocusPolicy(Qt::StrongFocus);
}

void SliderWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const double knob = Px(9);
  const double range = std::max(1, maximum() - minimum());
  const double x = knob + (width() - 2 * knob) * (value() - minimum()) / range;
  QRectF groove(knob, height() / 2.0 - Px(3), width() - 2 * knob, Px(6));
  look::DrawPlate(painter, groove, colors().line, {}, Px(3), 0);
  groove.setRight(x);
  const QColor color = isEnabled() ? colors().accent : colors().disabled_text;
  look::DrawPlate(painter, groove, color, {}, Px(3), 0);
  painter.setPen(QPen(colors().card, Px(2)));
  painter.setBrush(color);
  painter.drawEllipse(QPointF(x, height() / 2.0), knob - Px(1), knob - Px(1));
  if (ShowsFocus()) look::DrawFocusRing(painter, QRectF(rect()), colors(), Px(6), style_.factor);
}

void SliderWidget::GoTo(double x) {
  const double knob = Px(9);
  const double share = std::clamp((x - knob) / std::max(1.0, width() - 2 * knob), 0.0, 1.0);
  setValue(minimum() + qRound(share * (maximum() - minimum())));
}

void SliderWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) GoTo(event->position().x());
}

void SliderWidget::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons().testFlag(Qt::LeftButton)) GoTo(event->position().x());
}

}  // namespace vmod17

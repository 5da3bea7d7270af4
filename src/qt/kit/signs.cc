// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/signs.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>

#include "qt/kit/look.h"

namespace vmod17 {
namespace {

QRectF Square(const QRectF& box) {
  const double side = std::min(box.width(), box.height());
  return QRectF(box.center().x() - side / 2, box.center().y() - side / 2, side, side);
}

/// Bars that rise: practice that adds up.
void DrawBars(QPainter& painter, const QRectF& box, const QColor& color) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  const double unit = box.width() / 10;
  for (int i = 0; i < 3; ++i) {
    const double height = unit * (3.2 + 2.4 * i);
    painter.drawRoundedRect(
        QRectF(box.left() + unit * (1 + 2.9 * i), box.bottom() - unit - height, unit * 2.2, height),
        unit * 0.5, unit * 0.5);
  }
}

void DrawStopWatch(QPainter& painter, const QRectF& box, const QColor& color) {
  const double unit = box.width() / 10;
  const QPointF centre(box.center().x(), box.center().y() + unit * 0.6);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(color, unit, Qt::SolidLine, Qt::RoundCap));
  painter.drawEllipse(centre, unit * 3.4, unit * 3.4);
  painter.drawLine(centre, centre + QPointF(unit * 1.3, -unit * 1.5));
  painter.drawLine(QPointF(centre.x() - unit, box.top() + unit * 0.8),
                   QPointF(centre.x() + unit, box.top() + unit * 0.8));
}

}  // namespace

void DrawSign(QPainter& painter, Sign sign, const QRectF& box, const QColor& color) {
  painter.setRenderHint(QPainter::Antialiasing);
  switch (sign) {
    case Sign::kRisingBars:
      return DrawBars(painter, Square(box), color);
    case Sign::kStopWatch:
      return DrawStopWatch(painter, Square(box), color);
    case Sign::kNone:
      return;
  }
}

void DrawAnswerMark(QPainter& painter, const QRectF& box, const AnswerMark& mark) {
  const bool tick = mark.kind == AnswerMark::Kind::kTick;
  const double height = box.height();
  look::DrawPlate(painter, box, tick ? look::kTick : look::kCross, Qt::white, height / 2,
                  height / 12);
  const QRectF sign(box.right() - height, box.top(), height, height);
  if (mark.slot > 0) {
    painter.setFont(
        look::Type(std::max(height * 0.72, look::kSmallestPixels), look::Weight::kBold));
    painter.setPen(Qt::white);
    painter.drawText(QRectF(box.topLeft(), sign.bottomLeft()).adjusted(height * 0.25, 0, 0, 0),
                     Qt::AlignCenter, QString::number(mark.slot));
  }
  const double unit = height / 10;
  const QPointF c = sign.center();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Qt::white, 1.5 * unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  if (tick) {
    painter.drawPolyline(QPolygonF{{c + QPointF(-2.2, 0.2) * unit, c + QPointF(-0.5, 1.9) * unit,
                                    c + QPointF(2.3, -1.8) * unit}});
  } else {
    const QPointF down = QPointF(1.8, 1.8) * unit;
    const QPointF up = QPointF(1.8, -1.8) * unit;
    painter.drawLine(c - down, c + down);
    painter.drawLine(c - up, c + up);
  }
}

void DrawLock(QPainter& painter, const QRectF& box, const QColor& color) {
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF square = Square(box);
  const double unit = square.width() / 10;
  const QPointF corner = square.topLeft();
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  painter.drawRoundedRect(QRectF(corner + QPointF(1.4, 4.6) * unit, QSizeF(7.2, 5.2) * unit), unit,
                          unit);
  QPainterPath shackle(corner + QPointF(3, 5) * unit);
  shackle.arcTo(QRectF(corner + QPointF(3, 0.9) * unit, QSizeF(4, 4) * unit), 180, -180);
  shackle.lineTo(corner + QPointF(7, 5) * unit);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(color, 1.3 * unit));
  painter.drawPath(shackle);
}

void DrawStaff(QPainter& painter, const QRectF& box, const QColor& color) {
  painter.setRenderHint(QPainter::Antialiasing);
  const double gap = box.height() / 8;
  const double first = box.top() + 2 * gap;
  QColor clear = color;
  clear.setAlpha(0);
  QLinearGradient fade(box.topLeft(), box.topRight());
  fade.setColorAt(0.35, clear);
  fade.setColorAt(0.75, color);
  painter.setPen(QPen(fade, gap * 0.10));
  for (int line = 0; line < 5; ++line) {
    painter.drawLine(QPointF(box.left(), first + line * gap),
                     QPointF(box.right(), first + line * gap));
  }
  // Three chords, each as steps above the lowest line.
  constexpr std::array<std::array<int, 4>, 3> kChords{{{-1, 1, 3, 5}, {0, 2, 4, 7}, {1, 3, 5, 7}}};
  painter.setPen(QPen(color, gap * 0.2));
  painter.setBrush(Qt::NoBrush);
  for (std::size_t chord = 0; chord < kChords.size(); ++chord) {
    const double x = box.left() + box.width() * (0.76 + 0.085 * static_cast<double>(chord));
    for (const int step : kChords[chord]) {
      painter.save();
      painter.translate(x, first + (4 - step / 2.0) * gap);
      painter.rotate(-18);
      painter.drawEllipse(QPointF(0, 0), gap * 0.62, gap * 0.40);
      painter.restore();
    }
  }
}

}  // namespace vmod17

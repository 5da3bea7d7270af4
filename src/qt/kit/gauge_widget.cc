// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/gauge_widget.h"

#include <QPainter>
#include <algorithm>

namespace vmod17 {
namespace {

constexpr double kGaugeEnd = 84;  // height of the words at an end of the gauge
constexpr QSizeF kGaugeMark{52, 24};

}  // namespace

GaugeWidget::GaugeWidget(QWidget* parent, const PageStyle& style, const Placement& place)
    : QProgressBar(parent), Dressed(*this, style, place) {
  setRange(0, 100);
}

bool GaugeWidget::SetEnds(const QString& low, const QString& high) {
  if (low_ == low && high_ == high) return false;
  low_ = low;
  high_ = high;
  update();
  return true;
}

/// The words stand above and under the scale, and the mark reaches beyond both its ends.
QRectF GaugeWidget::Track() const {
  const double wide = Px(14);
  const double end = Px(kGaugeEnd) + Px(kGaugeMark.height()) / 2;
  return QRectF((width() - wide) / 2, end, wide, height() - 2 * end);
}

QRectF GaugeWidget::PlaceOfEnd(bool high) const {
  const double side = Px(3);
  const double edge = Px(8);
  const double tall = Px(kGaugeEnd) - 2 * edge;
  return QRectF(side, high ? edge : height() - edge - tall, width() - 2 * side, tall);
}

bool GaugeWidget::EndsFit() const {
  const QSizeF box = PlaceOfEnd(false).size();
  const double size = Px(place_.text);
  return look::SetText(low_, box, size, look::Weight::kBold).fits &&
         look::SetText(high_, box, size, look::Weight::kBold).fits;
}

/// From green at the bottom to red at the top.
void GaugeWidget::PaintScale(QPainter& painter) const {
  const QRectF track = Track();
  QLinearGradient ground(track.bottomLeft(), track.topLeft());
  ground.setColorAt(0, colors().solved);
  ground.setColorAt(0.5, colors().half_way);
  ground.setColorAt(1, colors().too_hard);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ground);
  painter.drawRoundedRect(track, track.width() / 2, track.width() / 2);
  painter.setPen(QPen(colors().card, Px(1)));
  for (int tenth = 1; tenth < 10; ++tenth) {
    const double y = track.bottom() - track.height() * tenth / 10;
    const double inset = tenth == 5 ? 0 : track.width() * 0.3;
    painter.drawLine(QPointF(track.left() + inset, y), QPointF(track.right() - inset, y));
  }
}

/// Where the training stands, with the number.
void GaugeWidget::PaintMark(QPainter& painter) const {
  const QRectF track = Track();
  const double share = std::clamp(value(), 0, 100) / 100.0;
  QRectF mark(QPointF(), kGaugeMark * style_.factor);
  mark.moveCenter(QPointF(track.center().x(), track.bottom() - track.height() * share));
  look::DrawPlate(painter, mark, colors().text, colors().card, mark.height() / 2, Px(2));
  const QString percent = QString("%1%").arg(value());
  look::DrawText(painter, mark, percent,
                 look::SetText(percent, mark.size(), Px(place_.text), look::Weight::kBold),
                 colors().card, Qt::AlignCenter);
}

void GaugeWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  look::DrawPlate(painter, QRectF(rect()), colors().section, {}, Px(look::kRadius), 0);
  PaintScale(painter);
  const auto write = [&](bool high, const QString& text, const QColor& color) {
    const QRectF box = PlaceOfEnd(high);
    look::DrawText(painter, box, text,
                   look::SetText(text, box.size(), Px(place_.text), look::Weight::kBold), color,
                   Qt::AlignCenter);
  };
  write(true, high_, colors().too_hard_text);
  write(false, low_, colors().solved_text);
  PaintMark(painter);
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/qt/look.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace vmod17::look {
namespace {

constexpr double kSmallest = 0.6;

/// Relative luminance as in WCAG 2.1.
double Luminance(const QColor& color) {
  const auto part = [](double c) {
    return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}

bool Holds(const QSizeF& box, const QFont& font, const QString& text, bool wrap) {
  const QFontMetricsF metrics(font);
  if (!wrap) {
    return metrics.horizontalAdvance(text) <= box.width() && metrics.height() <= box.height() + 2;
  }
  const QRectF used = metrics.boundingRect(QRectF(0, 0, box.width(), 10000),
                                           Qt::TextWordWrap | Qt::AlignLeft, text);
  return used.width() <= box.width() + 0.5 && used.height() <= box.height() + 2;
}

}  // namespace

QColor ToQ(const Color& color) { return QColor(color.red, color.green, color.blue); }

QColor TextOn(const QColor& ground) {
  const double l = Luminance(ground);
  return (1.05 / (l + 0.05)) > ((l + 0.05) / 0.05) ? QColor(Qt::white) : QColor(Qt::black);
}

QFont Type(double pixels, Weight weight) {
  QFont font("Noto Sans");
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(pixels))));
  font.setBold(weight == Weight::kBold);
  return font;
}

Setting SetText(const QString& text, const QSizeF& box, double pixels, Weight weight) {
  Setting setting{Type(pixels, weight), false, true};
  if (text.isEmpty()) return setting;
  const bool has_lines = text.contains('\n');
  for (double size = pixels; size >= pixels * kSmallest; size -= 1) {
    setting.font = Type(size, weight);
    setting.wrap = has_lines;
    if (Holds(box, setting.font, text, has_lines)) return setting;
    setting.wrap = true;
    if (Holds(box, setting.font, text, true)) return setting;
  }
  setting.fits = false;
  return setting;
}

void DrawText(QPainter& painter, const QRectF& box, const QString& text, const Setting& setting,
              const QColor& color, Qt::Alignment align) {
  if (text.isEmpty()) return;
  painter.setFont(setting.font);
  painter.setPen(color);
  const int flags = setting.wrap ? Qt::TextWordWrap : Qt::TextSingleLine;
  painter.drawText(box.adjusted(0, -1, 0, 1), static_cast<int>(align) | flags, text);
}

void DrawPlate(QPainter& painter, const QRectF& box, const QColor& fill, const QColor& edge,
               double radius, double edge_width) {
  painter.setRenderHint(QPainter::Antialiasing);
  const double half = edge_width / 2;
  painter.setBrush(fill);
  painter.setPen(edge_width > 0 ? QPen(edge, edge_width) : QPen(Qt::NoPen));
  painter.drawRoundedRect(box.adjusted(half, half, -half, -half), radius, radius);
}

void DrawCard(QPainter& painter, const QRectF& box, const QColor& fill, double factor) {
  const double radius = kCardRadius * factor;
  DrawPlate(painter, box.adjusted(0, 2 * factor, 0, 0), QColor(0x1E, 0x26, 0x33, 14), {}, radius,
            0);
  DrawPlate(painter, box.adjusted(0, 0, 0, -2 * factor), fill, kLine, radius, factor);
}

void DrawCardHead(QPainter& painter, const QRectF& box, double height, const QColor& fill,
                  double factor) {
  const double radius = kCardRadius * factor - factor;
  const QRectF head(box.left() + factor, box.top() + factor, box.width() - 2 * factor, height);
  QPainterPath path;  // round above, where the card is
  path.setFillRule(Qt::WindingFill);
  path.addRoundedRect(head, radius, radius);
  path.addRect(head.adjusted(0, radius, 0, 0));
  painter.fillPath(path, fill);
}

void DrawSlot(QPainter& painter, const QRectF& box, double factor) {
  painter.setRenderHint(QPainter::Antialiasing);
  QPen pen(kSlotLine, factor);
  pen.setDashPattern({5, 4});
  painter.setPen(pen);
  painter.setBrush(kSlot);
  const double half = factor / 2;
  painter.drawRoundedRect(box.adjusted(half, half, -half, -half - 2 * factor), kCardRadius * factor,
                          kCardRadius * factor);
}

void DrawFocusRing(QPainter& painter, const QRectF& box, double radius, double factor) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  const double wide = 3 * factor;
  const QRectF ring = box.adjusted(wide / 2, wide / 2, -wide / 2, -wide / 2);
  painter.setPen(QPen(kFocus, wide));
  painter.drawRoundedRect(ring, radius, radius);
  // A light line inside keeps the ring apart from a dark or blue ground.
  const double inner = 2 * factor;
  painter.setPen(QPen(Qt::white, 1.2 * factor));
  painter.drawRoundedRect(ring.adjusted(inner, inner, -inner, -inner), radius * 0.75,
                          radius * 0.75);
}

}  // namespace vmod17::look

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/look.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "qt/kit/signs.h"

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

/// The parts of `color` and `other` mixed, the more of `other` the larger the share.
QColor Mixed(const QColor& color, const QColor& other, double share) {
  const auto mix = [share](double a, double b) { return a + (b - a) * share; };
  return QColor::fromRgbF(static_cast<float>(mix(color.redF(), other.redF())),
                          static_cast<float>(mix(color.greenF(), other.greenF())),
                          static_cast<float>(mix(color.blueF(), other.blueF())));
}

}  // namespace

const Palette kLight{.page{0xF2, 0xF4, 0xF8},
                     .section{0xE4, 0xE9, 0xF2},
                     .card{0xFF, 0xFF, 0xFF},
                     .locked_card{0xF4, 0xF2, 0xF4},
                     .slot{0xE9, 0xED, 0xF5},
                     .slot_line{0xCB, 0xD4, 0xE2},
                     .line{0xD9, 0xDF, 0xE8},
                     .shadow{0x1E, 0x26, 0x33, 14},
                     .text{0x1E, 0x26, 0x33},
                     .quiet_text{0x56, 0x60, 0x70},
                     .disabled_text{0x7A, 0x84, 0x92},
                     .hint{0xC0, 0x10, 0x20},
                     .button{0xFF, 0xFF, 0xFF},
                     .button_line{0xB9, 0xC3, 0xD2},
                     .disabled_fill{0xEC, 0xEF, 0xF4},
                     .hover{0xEA, 0xF0, 0xFB},
                     .pressed{0xD5, 0xE1, 0xF6},
                     .accent{0x2B, 0x5C, 0xB8},
                     .accent_hover{0x1F, 0x46, 0x90},
                     .focus{0x12, 0x4B, 0xC4},
                     .focus_inside{0xFF, 0xFF, 0xFF},
                     .good{0xE4, 0xF3, 0xE8},
                     .bad{0xFC, 0xE6, 0xE6},
                     .solved{0x3F, 0xA9, 0x5F},
                     .half_way{0xF0, 0xCE, 0x6A},
                     .too_hard{0xDB, 0x54, 0x54},
                     .solved_text{0x1F, 0x6E, 0x38},
                     .too_hard_text{0xA8, 0x2E, 0x2E}};

const Palette kDark{.page{0x14, 0x18, 0x1F},
                    .section{0x1A, 0x20, 0x29},
                    .card{0x21, 0x28, 0x33},
                    .locked_card{0x2A, 0x27, 0x32},
                    .slot{0x17, 0x1C, 0x24},
                    .slot_line{0x3E, 0x49, 0x59},
                    .line{0x3A, 0x45, 0x54},
                    .shadow{0x00, 0x00, 0x00, 70},
                    .text{0xE8, 0xEC, 0xF2},
                    .quiet_text{0xA9, 0xB4, 0xC4},
                    .disabled_text{0x7C, 0x87, 0x98},
                    .hint{0xFF, 0x8F, 0x8F},
                    .button{0x2B, 0x34, 0x42},
                    .button_line{0x5A, 0x67, 0x79},
                    .disabled_fill{0x26, 0x2D, 0x38},
                    .hover{0x36, 0x43, 0x58},
                    .pressed{0x33, 0x44, 0x60},
                    .accent{0x8D, 0xB4, 0xFA},
                    .accent_hover{0xAD, 0xC9, 0xFD},
                    .focus{0x8D, 0xB4, 0xFA},
                    .focus_inside{0x14, 0x18, 0x1F},
                    .good{0x1E, 0x3A, 0x29},
                    .bad{0x47, 0x26, 0x2A},
                    .solved{0x3F, 0xA9, 0x5F},
                    .half_way{0xF0, 0xCE, 0x6A},
                    .too_hard{0xDB, 0x54, 0x54},
                    .solved_text{0x7A, 0xD4, 0x94},
                    .too_hard_text{0xFF, 0x9C, 0x9C}};

const Palette& PresentColors() {
  const QPalette palette = QGuiApplication::palette();
  const double ground = Luminance(palette.color(QPalette::Active, QPalette::Window));
  const double text = Luminance(palette.color(QPalette::Active, QPalette::WindowText));
  return ground < text ? kDark : kLight;
}

QPalette ForToolkit(const Palette& colors) {
  QPalette palette(colors.button, colors.page);
  palette.setColor(QPalette::Base, colors.card);
  palette.setColor(QPalette::AlternateBase, colors.section);
  palette.setColor(QPalette::ToolTipBase, colors.card);
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    palette.setColor(role, colors.text);
    palette.setColor(QPalette::Disabled, role, colors.disabled_text);
  }
  palette.setColor(QPalette::PlaceholderText, colors.quiet_text);
  palette.setColor(QPalette::BrightText, colors.hint);
  palette.setColor(QPalette::Link, colors.accent);
  palette.setColor(QPalette::LinkVisited, colors.accent);
  palette.setColor(QPalette::Highlight, colors.accent);
  palette.setColor(QPalette::HighlightedText, TextOn(colors.accent));
  palette.setColor(QPalette::Disabled, QPalette::Highlight, colors.button_line);
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText, TextOn(colors.button_line));
  return palette;
}

QColor ToQ(const Color& color) { return QColor(color.red, color.green, color.blue); }

QRectF ToQ(const Rect& rect) { return QRectF(rect.left, rect.top, rect.width, rect.height); }

Qt::Alignment ToQ(Align align) {
  switch (align) {
    case Align::kLeft:
      return Qt::AlignLeft | Qt::AlignVCenter;
    case Align::kCenter:
      return Qt::AlignCenter;
    case Align::kRight:
      return Qt::AlignRight | Qt::AlignVCenter;
    case Align::kTopLeft:
      return Qt::AlignLeft | Qt::AlignTop;
  }
  return {};
}

double Contrast(const QColor& one, const QColor& other) {
  const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

bool IsReadable(const QColor& text, const QColor& ground) {
  constexpr double kLeast = 4.5;
  return Contrast(text, ground) >= kLeast;
}

QColor TextOn(const QColor& ground) {
  const QColor white(Qt::white);
  const QColor black(Qt::black);
  return Contrast(white, ground) > Contrast(black, ground) ? white : black;
}

QColor Readable(const QColor& color, const QColor& ground) {
  constexpr double kStep = 0.05;
  const QColor far = TextOn(ground);
  QColor readable = color;
  for (double share = kStep; !IsReadable(readable, ground); share += kStep) {
    readable = Mixed(color, far, share);
  }
  return readable;
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
  const double smallest = std::min(pixels, std::max(kSmallestPixels, pixels * kSmallest));
  for (double size = pixels;; size = std::max(size - 1, smallest)) {
    setting.font = Type(size, weight);
    setting.wrap = has_lines;
    if (Holds(box, setting.font, text, has_lines)) return setting;
    setting.wrap = true;
    if (Holds(box, setting.font, text, true)) return setting;
    if (size <= smallest) break;
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

void DrawCard(QPainter& painter, const QRectF& box, const Palette& colors, const QColor& fill,
              double factor) {
  const double radius = kCardRadius * factor;
  DrawPlate(painter, box.adjusted(0, 2 * factor, 0, 0), colors.shadow, {}, radius, 0);
  DrawPlate(painter, box.adjusted(0, 0, 0, -2 * factor), fill, colors.line, radius, factor);
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

void DrawBanner(QPainter& painter, const QRectF& box, const QPainterPath& shape) {
  QLinearGradient ground(box.topLeft(), box.bottomRight());
  ground.setColorAt(0, kBannerBegin);
  ground.setColorAt(1, kBannerEnd);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillPath(shape, ground);
  painter.setClipPath(shape);
  DrawStaff(painter, box, QColor(255, 255, 255, 46));
  painter.restore();
}

void DrawSlot(QPainter& painter, const QRectF& box, const Palette& colors, double factor) {
  painter.setRenderHint(QPainter::Antialiasing);
  QPen pen(colors.slot_line, factor);
  pen.setDashPattern({5, 4});
  painter.setPen(pen);
  painter.setBrush(colors.slot);
  const double half = factor / 2;
  painter.drawRoundedRect(box.adjusted(half, half, -half, -half - 2 * factor), kCardRadius * factor,
                          kCardRadius * factor);
}

void DrawFocusRing(QPainter& painter, const QRectF& box, const Palette& colors, double radius,
                   double factor) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  const double wide = 3 * factor;
  const QRectF ring = box.adjusted(wide / 2, wide / 2, -wide / 2, -wide / 2);
  painter.setPen(QPen(colors.focus, wide));
  painter.drawRoundedRect(ring, radius, radius);
  const double inner = 2 * factor;
  painter.setPen(QPen(colors.focus_inside, 1.2 * factor));
  painter.drawRoundedRect(ring.adjusted(inner, inner, -inner, -inner), radius * 0.75,
                          radius * 0.75);
}

}  // namespace vmod17::look

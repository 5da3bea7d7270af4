// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QRectF>
#include <QString>
#include <optional>

#include "forms/color.h"
#include "forms/layout.h"
#include "forms/text_measure.h"

class QPainter;
class QPainterPath;

// The program's look: its colours, its type, and the few shapes that all widgets are drawn with.
// Lengths are in units; `factor` is the number of pixels of a unit.

namespace vmod17::look {

/// The colours of all for which the program names none.
struct Palette {
  QColor page;
  QColor section;  ///< ground on which cards stand that belong together
  QColor card;
  QColor locked_card;
  QColor slot;  ///< place of a card that is not there
  QColor slot_line;
  QColor line;
  QColor shadow;
  QColor text;
  QColor quiet_text;
  QColor disabled_text;
  QColor hint;
  QColor button;
  QColor button_line;
  QColor disabled_fill;
  QColor hover;
  QColor pressed;
  QColor accent;
  QColor accent_hover;
  QColor focus;
  QColor focus_inside;  ///< keeps the ring of the focus apart from what it goes around
  QColor good;          ///< grounds of a verdict
  QColor bad;
  QColor solved;  ///< the gauge from its bottom to its top
  QColor half_way;
  QColor too_hard;
  QColor solved_text;
  QColor too_hard_text;
};

extern const Palette kLight;
extern const Palette kDark;

// The banner is the same in both, and what is written on it is white.
inline constexpr QColor kBannerBegin{0x19, 0x38, 0x73};
inline constexpr QColor kBannerEnd{0x2B, 0x5C, 0xB8};

// A mark has a ground of its own on whatever it stands, and its sign is white.
inline constexpr QColor kTick{0x1B, 0x7A, 0x3C};
inline constexpr QColor kCross{0xB7, 0x1C, 0x2B};

/// The colours for the application's palette as it is now: dark where its windows are.
const Palette& PresentColors();
/// The same colours for what the toolkit draws by itself: message boxes, menus, tool tips.
QPalette ForToolkit(const Palette& colors);

/// No text on the screen is smaller, in pixels.
inline constexpr double kSmallestPixels = 11;
inline constexpr double kRadius = 8;
inline constexpr double kCardRadius = 12;

QColor ToQ(const Color& color);
QRectF ToQ(const Rect& rect);
Qt::Alignment ToQ(Align align);
/// How far two colours stand apart, from 1 to 21, as in WCAG 2. Text wants 4.5.
double Contrast(const QColor& one, const QColor& other);
bool IsReadable(const QColor& text, const QColor& ground);
/// Black or white, whichever reads better on a ground.
QColor TextOn(const QColor& ground);
/// A colour as it can be read on a ground: itself, or as much lighter or darker as it takes.
QColor Readable(const QColor& color, const QColor& ground);

using vmod17::Weight;

/// The program's font at a size in pixels.
QFont Type(double pixels, Weight weight);

/// How a text is set into a box.
struct Setting {
  QFont font;
  bool wrap = false;
  bool fits = true;  ///< false: it stays too large even at the smallest size
};

/// Sets a text at `pixels`; one that is too long is wrapped between words where there is height
/// for it, else made smaller, down to three fifths and not below 11 pixels.
Setting SetText(const QString& text, const QSizeF& box, double pixels, Weight weight);

void DrawText(QPainter& painter, const QRectF& box, const QString& text, const Setting& setting,
              const QColor& color, Qt::Alignment align);

/// A rounded area with a thin edge, the edge within `box`.
void DrawPlate(QPainter& painter, const QRectF& box, const QColor& fill, const QColor& edge,
               double radius, double edge_width);
/// A card: a plate with a hint of shadow under it.
void DrawCard(QPainter& painter, const QRectF& box, const Palette& colors, const QColor& fill,
              double factor);
/// The upper part of a card in a colour of its own; `box` is the card's.
void DrawCardHead(QPainter& painter, const QRectF& box, double height, const QColor& fill,
                  double factor);
/// Where a card would stand that is not there.
void DrawSlot(QPainter& painter, const QRectF& box, const Palette& colors, double factor);
/// The band with the program's name.
void DrawBanner(QPainter& painter, const QRectF& box, const QPainterPath& shape);
/// The ring around what has the keyboard's focus, within `box`.
void DrawFocusRing(QPainter& painter, const QRectF& box, const Palette& colors, double radius,
                   double factor);

}  // namespace vmod17::look

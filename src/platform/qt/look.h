// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>
#include <optional>

#include "platform/controls.h"

class QPainter;

// The program's look: its colours, its type, and the few shapes that all widgets are drawn with.
// Lengths are in units; `factor` is the number of pixels of a unit.

namespace vmod17::look {

inline const QColor kPage{0xF2, 0xF4, 0xF8};
inline const QColor kCard{0xFF, 0xFF, 0xFF};
inline const QColor kSection{0xE4, 0xE9, 0xF2};
inline const QColor kSlot{0xE9, 0xED, 0xF5};
inline const QColor kSlotLine{0xCB, 0xD4, 0xE2};
inline const QColor kLockedCard{0xF4, 0xF2, 0xF4};
inline const QColor kHint{0xC0, 0x10, 0x20};
inline const QColor kLine{0xD9, 0xDF, 0xE8};
inline const QColor kText{0x1E, 0x26, 0x33};
inline const QColor kQuietText{0x5A, 0x65, 0x75};
inline const QColor kDisabledText{0xA2, 0xAB, 0xB8};
inline const QColor kDisabledFill{0xEC, 0xEF, 0xF4};
inline const QColor kButton{0xFF, 0xFF, 0xFF};
inline const QColor kButtonLine{0xB9, 0xC3, 0xD2};
inline const QColor kHover{0xEA, 0xF0, 0xFB};
inline const QColor kPressed{0xD5, 0xE1, 0xF6};
inline const QColor kAccent{0x2B, 0x5C, 0xB8};
inline const QColor kAccentDark{0x1F, 0x46, 0x90};
inline const QColor kSolved{0x3F, 0xA9, 0x5F};
inline const QColor kHalfWay{0xF0, 0xCE, 0x6A};
inline const QColor kTooHard{0xDB, 0x54, 0x54};
inline const QColor kFocus{0x12, 0x4B, 0xC4};

inline constexpr double kRadius = 8;
inline constexpr double kCardRadius = 12;

QColor ToQ(const Color& color);
/// Black or white, whichever reads better on a ground.
QColor TextOn(const QColor& ground);

enum class Weight { kNormal, kBold };

/// The program's font at a size in pixels.
QFont Type(double pixels, Weight weight);

/// How a text is set into a box.
struct Setting {
  QFont font;
  bool wrap = false;
  bool fits = true;  ///< false: it stays too large even at the smallest size
};

/// Sets a text at `pixels`; one that is too long is wrapped between words where there is height
/// for it, else made smaller, down to three fifths.
Setting SetText(const QString& text, const QSizeF& box, double pixels, Weight weight);

void DrawText(QPainter& painter, const QRectF& box, const QString& text, const Setting& setting,
              const QColor& color, Qt::Alignment align);

/// A rounded area with a thin edge, the edge within `box`.
void DrawPlate(QPainter& painter, const QRectF& box, const QColor& fill, const QColor& edge,
               double radius, double edge_width);
/// A card: a plate with a hint of shadow under it.
void DrawCard(QPainter& painter, const QRectF& box, const QColor& fill, double factor);
/// The upper part of a card in a colour of its own; `box` is the card's.
void DrawCardHead(QPainter& painter, const QRectF& box, double height, const QColor& fill,
                  double factor);
/// Where a card would stand that is not there.
void DrawSlot(QPainter& painter, const QRectF& box, double factor);
/// The ring around what has the keyboard's focus, within `box`.
void DrawFocusRing(QPainter& painter, const QRectF& box, double radius, double factor);

}  // namespace vmod17::look

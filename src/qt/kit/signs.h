// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QColor>
#include <QRectF>

#include "forms/pressable.h"

class QPainter;

namespace vmod17 {

/// Draws a sign as large as the box allows.
void DrawSign(QPainter& painter, Sign sign, const QRectF& box, const QColor& color);

/// A tick or a cross on a ground of its own, so that it is seen on whatever it stands on; in a wide
/// box with the slot before it.
void DrawAnswerMark(QPainter& painter, const QRectF& box, const AnswerMark& mark);

/// A closed padlock.
void DrawLock(QPainter& painter, const QRectF& box, const QColor& color);

/// A quiet ornament: five lines of a staff that come forth from the left, with a few chords on
/// them.
void DrawStaff(QPainter& painter, const QRectF& box, const QColor& color);

}  // namespace vmod17

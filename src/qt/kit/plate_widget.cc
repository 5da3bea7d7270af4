// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/plate_widget.h"

#include <QKeyEvent>
#include <QPainter>

#include "qt/kit/keys.h"
#include "qt/kit/signs.h"

namespace vmod17 {

PlateWidget::PlateWidget(QWidget* parent, const PageStyle& style, const Placement& place)
    : QGroupBox(parent), Dressed(*this, style, place) {
  setFlat(true);
  if (place.dress == Dress::kCell) setFocusPolicy(Qt::StrongFocus);
}

void PlateWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  Paint(painter);
}

void PlateWidget::Paint(QPainter& painter) {
  const QRectF box(rect());
  switch (place_.dress) {
    case Dress::kTile:
      if (back_) look::DrawPlate(painter, box, *back_, {}, Px(4), 0);
      return;
    case Dress::kCard:
      look::DrawCard(painter, box, colors(), colors().card, style_.factor);
      if (back_) look::DrawCardHead(painter, box, Px(kCardHead), *back_, style_.factor);
      return;
    case Dress::kSmallCard:
      return PaintSmallCard(painter);
    case Dress::kCell:
      return PaintCell(painter);
    case Dress::kNotice:
      look::DrawPlate(painter, box, back_.value_or(colors().card), colors().accent,
                      Px(look::kCardRadius), Px(2));
      return;
    case Dress::kPlain:
    case Dress::kHeading:
    case Dress::kHint:
    case Dress::kQuiet:
    case Dress::kPrimary:
    case Dress::kLarge:
    case Dress::kMark:
    case Dress::kOnBanner:
      return;
  }
}

QColor PlateWidget::GroundAt(const QPoint& point) const {
  switch (place_.dress) {
    case Dress::kTile:
      return back_.value_or(GroundBelow());
    case Dress::kCard:
      return back_ && point.y() < Px(kCardHead) ? *back_ : colors().card;
    case Dress::kSmallCard:
      if (back_ && point.y() < Px(kSmallCardHead)) return *back_;
      return isEnabled() ? colors().card : colors().locked_card;
    case Dress::kCell:
      return Qt::white;
    case Dress::kNotice:
      return back_.value_or(colors().card);
    default:
      return GroundBelow();
  }
}

void PlateWidget::PaintSmallCard(QPainter& painter) {
  const QRectF box(rect());
  look::DrawCard(painter, box, colors(), isEnabled() ? colors().card : colors().locked_card,
                 style_.factor);
  if (back_) look::DrawCardHead(painter, box, Px(kSmallCardHead), *back_, style_.factor);
  if (isEnabled()) return;
  const double side = Px(15);
  DrawLock(painter, QRectF(width() - side - Px(9), (Px(kSmallCardHead) - side) / 2, side, side),
           back_ ? look::TextOn(*back_) : colors().text);
}

void PlateWidget::PaintCell(QPainter& painter) {
  const QRectF box(rect());
  const bool bare = !back_ || *back_ == QColor(Qt::white);
  look::DrawPlate(painter, box, Qt::white, bare ? colors().button_line : *back_, Px(6),
                  Px(bare ? 1 : 2.5));
  if (ShowsFocus() && !style_.paper) {
    look::DrawFocusRing(painter, box, colors(), Px(6), style_.factor);
  }
}

void PlateWidget::keyPressEvent(QKeyEvent* event) {
  const bool moves = place_.dress == Dress::kCell && LeadsOn(event) && move_focus;
  if (!moves || !move_focus(event->key())) event->ignore();
}

void PlateWidget::changeEvent(QEvent* event) {
  QGroupBox::changeEvent(event);
  if (event->type() == QEvent::EnabledChange) update();
}

}  // namespace vmod17

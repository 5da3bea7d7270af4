// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/press_widget.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "qt/kit/keys.h"
#include "qt/kit/signs.h"

namespace vmod17 {
namespace {

constexpr double kNumberText = 11;  // of a tile's number
constexpr double kTileMark = 14;    // of a mark on a tile
constexpr double kLargeMark = 20;   // the same on a button

}  // namespace

PressWidget::PressWidget(QWidget* parent, const PageStyle& style, const Placement& place)
    : QAbstractButton(parent), Dressed(*this, style, place) {
  setFocusPolicy(Qt::StrongFocus);
}

void PressWidget::SetImage(const PictureId& image) {
  image_ = image;
  update();
}

void PressWidget::SetSign(Sign sign) {
  sign_ = sign;
  update();
}

void PressWidget::SetNumber(int number) {
  number_ = number;
  update();
}

void PressWidget::SetMarks(const std::vector<AnswerMark>& marks) {
  marks_ = marks;
  update();
}

QSizeF PressWidget::TextBox() const {
  const double side = place_.dress == Dress::kTile ? 4 : 20;
  return QSizeF(width() - Px(side), height() - Px(6));
}

QColor PressWidget::Ground() const {
  if (place_.dress == Dress::kTile) return back_.value_or(QColor(Qt::white));
  if (back_) return isDown() ? back_->darker(112) : underMouse() ? back_->darker(104) : *back_;
  if (!isEnabled()) return colors().disabled_fill;
  if (place_.dress == Dress::kPrimary) {
    return isDown() || underMouse() ? colors().accent_hover : colors().accent;
  }
  if (isDown()) return colors().pressed;
  return underMouse() ? colors().hover : colors().button;
}

QColor PressWidget::Edge() const {
  if (back_) return back_->darker(130);
  if (!isEnabled()) return colors().line;
  return place_.dress == Dress::kPrimary ? Ground() : colors().button_line;
}

QColor PressWidget::Ink() const {
  if (back_) return fore_.value_or(look::TextOn(*back_));
  if (place_.dress == Dress::kTile) return Qt::black;
  return InkOn(Ground(), place_.dress == Dress::kQuiet ? colors().accent : colors().text);
}

void PressWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (place_.dress == Dress::kTile) {
    PaintTile(painter);
  } else {
    PaintButton(painter);
  }
}

void PressWidget::PaintTile(QPainter& painter) {
  painter.fillRect(rect(), Ground());
  const QPixmap picture = style_.Picture(image_, devicePixelRatioF());
  if (picture.isNull()) {
    look::DrawText(painter, QRectF(rect()), caption(), Set(), Ink(), Qt::AlignCenter);
  } else {
    const QSizeF size = picture.deviceIndependentSize();
    const QPoint corner(qRound((width() - size.width()) / 2),
                        qRound((height() - size.height()) / 2));
    // White of the picture takes the colour of the ground, black stays black.
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    painter.drawPixmap(corner, picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  }
  PaintNumber(painter);
  if (isEnabled() && (isDown() || underMouse())) {
    painter.fillRect(rect(), QColor(0x2B, 0x5C, 0xB8, isDown() ? 60 : 22));
  }
  PaintMarks(painter);
  if (ShowsFocus()) look::DrawFocusRing(painter, QRectF(rect()), colors(), Px(2), style_.factor);
}

/// In the corner that the pictures leave free.
void PressWidget::PaintNumber(QPainter& painter) {
  if (number_ == 0) return;
  const QRectF box = QRectF(rect()).adjusted(Px(3), 0, 0, -Px(1));
  painter.setFont(
      look::Type(std::max(Px(kNumberText), look::kSmallestPixels), look::Weight::kNormal));
  painter.setPen(Ink());
  painter.drawText(box, Qt::AlignLeft | Qt::AlignBottom, QString::number(number_));
}

/// From the lower right corner upwards, and further to the left when the column is full.
void PressWidget::PaintMarks(QPainter& painter) {
  const bool tile = place_.dress == Dress::kTile;
  const double height = Px(tile ? kTileMark : kLargeMark);
  const double gap = Px(1);
  const double margin = Px(tile ? 2 : 8);
  double right = width() - margin;
  double bottom = this->height() - margin;
  for (const AnswerMark& mark : marks_) {
    const double wide = mark.slot == 0 ? height : 1.7 * height;
    if (bottom - height < 0) {
      right -= wide + gap;
      bottom = this->height() - margin;
    }
    DrawAnswerMark(painter, QRectF(right - wide, bottom - height, wide, height), mark);
    bottom -= height + gap;
  }
}

void PressWidget::PaintButton(QPainter& painter) {
  const QRectF box(rect());
  const bool round = place_.dress == Dress::kQuiet;
  const double radius = round ? box.height() / 2 : Px(look::kRadius);
  look::DrawPlate(painter, box, Ground(), Edge(), radius, Px(1.2));
  const QRectF inside = box.adjusted(Px(10), Px(3), -Px(10), -Px(3));
  if (sign_ == Sign::kNone) {
    look::DrawText(painter, inside, caption(), Set(), Ink(), look::ToQ(place_.align));
  } else {
    DrawSign(painter, sign_, box, Ink());
  }
  PaintMarks(painter);
  if (ShowsFocus()) look::DrawFocusRing(painter, box, colors(), radius, style_.factor);
}

void PressWidget::keyPressEvent(QKeyEvent* event) {
  if (IsEnter(event)) {
    if (!event->isAutoRepeat()) click();
    return;
  }
  if (LeadsOn(event)) {
    if (!move_focus || !move_focus(event->key())) event->ignore();
    return;
  }
  if (event->key() == Qt::Key_Escape) {  // the base class would only release a held button
    event->ignore();
    return;
  }
  QAbstractButton::keyPressEvent(event);
}

void PressWidget::enterEvent(QEnterEvent* event) {
  QAbstractButton::enterEvent(event);
  update();
}

void PressWidget::leaveEvent(QEvent* event) {
  QAbstractButton::leaveEvent(event);
  update();
}

}  // namespace vmod17

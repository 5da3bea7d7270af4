// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/text_widget.h"

#include <QImage>
#include <QPainter>

#include "qt/kit/signs.h"

namespace vmod17 {
namespace {

/// A picture with a place of its own has a white ground there; another stands on what is below it.
bool BringsItsWhite(Dress dress) { return dress == Dress::kMark || dress == Dress::kTile; }

/// A picture without its white, its black in another colour.
QImage InInk(const QPixmap& picture, const QColor& ink) {
  QImage drawn(picture.size(), QImage::Format_ARGB32_Premultiplied);
  drawn.setDevicePixelRatio(picture.devicePixelRatio());
  drawn.fill(ink);
  QImage share = picture.toImage().convertToFormat(QImage::Format_Grayscale8);
  share.invertPixels();
  drawn.setAlphaChannel(share);
  return drawn;
}

}  // namespace

TextWidget::TextWidget(QWidget* parent, const PageStyle& style, const Placement& place)
    : QLabel(parent), Dressed(*this, style, place) {
  setTextFormat(Qt::PlainText);
}

void TextWidget::SetImage(const PictureId& image) {
  image_ = image;
  update();
}

void TextWidget::SetSign(Sign sign) {
  sign_ = sign;
  update();
}

QSizeF TextWidget::TextBox() const {
  const double side = place_.dress == Dress::kMark || HasGround() ? 6 : 0;
  return QSizeF(width() - Px(side), height());
}

/// White under a plain label is that of the paper.
bool TextWidget::HasGround() const {
  return back_ && (place_.dress == Dress::kMark || *back_ != QColor(Qt::white));
}

QColor TextWidget::Ground() const {
  if (image_ != PictureId())
    return BringsItsWhite(place_.dress) ? QColor(Qt::white) : GroundBelow();
  if (HasGround()) return *back_;
  if (place_.dress == Dress::kOnBanner) return look::kBannerEnd;
  return place_.dress == Dress::kPrimary ? colors().hover : GroundBelow();
}

QColor TextWidget::Ink() const {
  const QColor ground = Ground();
  const auto usual = [&](const QColor& color) { return InkOn(ground, color); };
  // What a locked frame is about is still to be read, and what is missing or came out as well.
  const auto always = [&](const QColor& color) {
    return isEnabled()                       ? usual(color)
           : look::IsReadable(color, ground) ? color
                                             : look::TextOn(ground);
  };
  switch (place_.dress) {
    case Dress::kMark:
      if (back_) return fore_.value_or(look::TextOn(ground));
      return usual(colors().text);
    case Dress::kHeading:
      return always(colors().text);
    case Dress::kHint:
      return always(colors().hint);
    case Dress::kPrimary:
      return usual(colors().accent);
    case Dress::kQuiet:
      return usual(colors().quiet_text);
    case Dress::kOnBanner:
      return Qt::white;
    default:
      return usual(colors().text);
  }
}

/// The largest drawing, brought to its size by the printer itself.
void TextWidget::PaintImageOnPaper(QPainter& painter) {
  if (style_.pictures == nullptr) return;
  const PictureSource::OnPaper drawn = style_.pictures->ForPaper(image_);
  const QSizeF size = drawn.size * style_.factor;
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  const QPointF corner((width() - size.width()) / 2, (height() - size.height()) / 2);
  painter.drawImage(QRectF(corner, size), drawn.image);
}

void TextWidget::PaintImage(QPainter& painter) {
  if (style_.paper) return PaintImageOnPaper(painter);
  const QPixmap picture = style_.Picture(image_, devicePixelRatioF());
  if (picture.isNull()) {
    DrawSign(painter, sign_, QRectF(rect()), colors().accent);
    if (place_.dress == Dress::kMark) painter.fillRect(rect(), Ground());
    look::DrawText(painter, QRectF(rect()), caption(), Set(), Ink(), look::ToQ(place_.align));
    return;
  }
  const QSizeF size = picture.deviceIndependentSize();
  const double free = width() - size.width();
  const bool white = BringsItsWhite(place_.dress);
  const QPointF corner(white ? qRound(free / 2) : 0, qRound((height() - size.height()) / 2));
  if (!white) return painter.drawImage(corner, InInk(picture, Ink()));
  painter.fillRect(rect(), Qt::white);
  painter.drawPixmap(corner, picture);
}

void TextWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  Paint(painter);
}

void TextWidget::Paint(QPainter& painter) {
  if (image_ != PictureId() || sign_ != Sign::kNone) return PaintImage(painter);
  QRectF box(rect());
  if (HasGround()) {
    const bool mark = place_.dress == Dress::kMark;
    look::DrawPlate(painter, box, *back_, back_->darker(120), Px(mark ? 3 : look::kRadius), Px(1));
    box.adjust(Px(4), 0, -Px(4), 0);
  } else if (place_.dress == Dress::kPrimary) {
    look::DrawPlate(painter, box, colors().hover, colors().accent, Px(look::kRadius), Px(1.2));
    box.adjust(Px(4), 0, -Px(4), 0);
  }
  look::DrawText(painter, box, caption(), Set(), Ink(), look::ToQ(place_.align));
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/dressed.h"

#include <QAccessible>

#include "qt/kit/accessible.h"
#include "qt/kit/plate_widget.h"

namespace vmod17 {
namespace {

std::optional<QColor> Optional(const std::optional<Color>& color) {
  if (!color) return std::nullopt;
  return look::ToQ(*color);
}

}  // namespace

Dressed::Dressed(QWidget& self, const PageStyle& style, const Placement& place)
    : self_(self), style_(style), place_(place) {
  QAccessible::installFactory(&MakeAccessible);  // more than once does no harm
}

void Dressed::SetCaption(const QString& caption) {
  caption_ = caption.trimmed();
  if (place_.capital && !caption_.isEmpty()) caption_[0] = caption_[0].toUpper();
  self_.update();
}

void Dressed::SetColors(const std::optional<Color>& back, const std::optional<Color>& fore) {
  back_ = Optional(back);
  fore_ = Optional(fore);
  self_.update();
}

look::Setting Dressed::SetInto(const QString& caption, const QSizeF& box) const {
  return look::SetText(caption, box, Px(place_.text),
                       place_.bold ? look::Weight::kBold : look::Weight::kNormal);
}

bool Dressed::Fits(const QString& caption) const {
  return caption.trimmed().isEmpty() || SetInto(caption.trimmed(), TextBox()).fits;
}

const look::Setting& Dressed::Set() {
  const QSizeF box = TextBox();
  const double pixels = Px(place_.text);
  if (set_pixels_ != pixels || set_box_ != box || set_caption_ != caption_) {
    setting_ = SetInto(caption_, box);
    set_pixels_ = pixels;
    set_box_ = box;
    set_caption_ = caption_;
  }
  return setting_;
}

QColor Dressed::GroundBelow() const {
  const auto* const frame = dynamic_cast<const PlateWidget*>(self_.parentWidget());
  return frame == nullptr ? colors().card : frame->GroundAt(self_.geometry().center());
}

QColor Dressed::InkOn(const QColor& ground, const QColor& usual) const {
  if (!self_.isEnabled()) return colors().disabled_text;
  // Where the program sets both, it knows how they go together.
  if (fore_) return back_ ? *fore_ : look::Readable(*fore_, ground);
  return look::IsReadable(usual, ground) ? usual : look::TextOn(ground);
}

}  // namespace vmod17

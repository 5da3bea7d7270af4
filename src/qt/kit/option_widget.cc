// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/option_widget.h"

#include <QPainter>

namespace vmod17 {

OptionWidget::OptionWidget(QWidget* parent, const PageStyle& style, const Placement& place)
    : QRadioButton(parent), Dressed(*this, style, place) {
  setAttribute(Qt::WA_Hover);
}

QSizeF OptionWidget::TextBox() const { return QSizeF(width() - Px(34), height()); }

void OptionWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF box(rect());
  if (isEnabled() && (underMouse() || isDown())) {
    look::DrawPlate(painter, box, isDown() ? colors().pressed : colors().hover, {}, Px(6), 0);
  }
  const double side = Px(18);
  const QRectF circle(Px(6), (height() - side) / 2, side, side);
  const look::Palette& tones = colors();
  const QColor line = !isEnabled() ? tones.line : isChecked() ? tones.accent : tones.button_line;
  painter.setPen(QPen(line, Px(isChecked() ? 2 : 1.5)));
  painter.setBrush(isEnabled() ? colors().button : colors().disabled_fill);
  painter.drawEllipse(circle.adjusted(Px(1), Px(1), -Px(1), -Px(1)));
  if (isChecked()) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(isEnabled() ? colors().accent : colors().disabled_text);
    painter.drawEllipse(circle.center(), Px(4.5), Px(4.5));
  }
  look::DrawText(painter, box.adjusted(Px(32), 0, -Px(2), 0), caption(), Set(), Ink(),
                 Qt::AlignLeft | Qt::AlignVCenter);
  if (ShowsFocus()) look::DrawFocusRing(painter, box, colors(), Px(6), style_.factor);
}

}  // namespace vmod17

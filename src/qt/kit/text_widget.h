// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QLabel>

#include "forms/controls.h"
#include "qt/kit/dressed.h"

namespace vmod17 {

/// A label, or a panel that shows a result.
class TextWidget : public QLabel, public Dressed {
 public:
  TextWidget(QWidget* parent, const PageStyle& style, const Placement& place);
  void SetImage(const PictureId& image);
  void SetSign(Sign sign);
  void Paint(QPainter& painter) override;
  QColor Ground() const override;
  QColor Ink() const override;

 protected:
  QSizeF TextBox() const override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool HasGround() const;
  void PaintImage(QPainter& painter);
  void PaintImageOnPaper(QPainter& painter);

  PictureId image_;
  Sign sign_ = Sign::kNone;
};

}  // namespace vmod17

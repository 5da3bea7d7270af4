// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QAbstractButton>
#include <functional>
#include <vector>

#include "forms/controls.h"
#include "qt/kit/dressed.h"

namespace vmod17 {

/// A control that is pressed: by mouse, Space, Enter or an assistive technology.
class PressWidget : public QAbstractButton, public Dressed {
 public:
  PressWidget(QWidget* parent, const PageStyle& style, const Placement& place);

  /// Moves the focus from this widget as an arrow key, Home or End says; returns whether it could.
  std::function<bool(int key)> move_focus;

  void SetImage(const PictureId& image);
  void SetSign(Sign sign);
  void SetNumber(int number);
  void SetMarks(const std::vector<AnswerMark>& marks);
  QColor Ground() const override;
  QColor Ink() const override;

 protected:
  QSizeF TextBox() const override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  void PaintTile(QPainter& painter);
  void PaintButton(QPainter& painter);
  void PaintNumber(QPainter& painter);
  void PaintMarks(QPainter& painter);
  QColor Edge() const;

  PictureId image_;
  Sign sign_ = Sign::kNone;
  int number_ = 0;
  std::vector<AnswerMark> marks_;
};

}  // namespace vmod17

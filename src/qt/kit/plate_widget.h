// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QGroupBox>
#include <functional>

#include "qt/kit/dressed.h"

namespace vmod17 {

/// An area that other controls stand in; as a cell it can have the focus.
class PlateWidget : public QGroupBox, public Dressed {
 public:
  PlateWidget(QWidget* parent, const PageStyle& style, const Placement& place);
  void Paint(QPainter& painter) override;
  /// The colour at a place of it.
  QColor GroundAt(const QPoint& point) const;

  /// Moves the focus from this widget as an arrow key, Home or End says; returns whether it could.
  std::function<bool(int key)> move_focus;
  /// Asks for the menu of the frame; none if it has none.
  std::function<void()> ask_menu;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void PaintSmallCard(QPainter& painter);
  void PaintCell(QPainter& painter);
};

}  // namespace vmod17

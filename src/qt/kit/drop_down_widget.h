// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QComboBox>
#include <functional>

#include "qt/kit/dressed.h"

namespace vmod17 {

class DropDownWidget : public QComboBox, public Dressed {
 public:
  DropDownWidget(QWidget* parent, const PageStyle& style, const Placement& place);
  /// The user goes one entry down, 1, or up, -1, while the list is closed.
  std::function<void(int way)> step;
  void showPopup() override;
  QColor Ground() const override;

 protected:
  QSizeF TextBox() const override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
};

}  // namespace vmod17

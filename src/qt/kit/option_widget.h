// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QRadioButton>

#include "qt/kit/dressed.h"

namespace vmod17 {

class OptionWidget : public QRadioButton, public Dressed {
 public:
  OptionWidget(QWidget* parent, const PageStyle& style, const Placement& place);

 protected:
  QSizeF TextBox() const override;
  void paintEvent(QPaintEvent* event) override;
  bool hitButton(const QPoint& point) const override { return rect().contains(point); }
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QSlider>

#include "qt/kit/dressed.h"

namespace vmod17 {

class SliderWidget : public QSlider, public Dressed {
 public:
  SliderWidget(QWidget* parent, const PageStyle& style, const Placement& place);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void GoTo(double x);
};

}  // namespace vmod17

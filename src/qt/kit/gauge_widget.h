// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QProgressBar>

#include "qt/kit/dressed.h"

namespace vmod17 {

/// Stands upright: nothing is left to learn at the bottom, it was too much at the top.
class GaugeWidget : public QProgressBar, public Dressed {
 public:
  GaugeWidget(QWidget* parent, const PageStyle& style, const Placement& place);

  /// What 0 and 100 per cent mean. Returns whether that differs from what was set.
  bool SetEnds(const QString& low, const QString& high);
  /// False when the two words are larger than their places allow.
  bool EndsFit() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QRectF Track() const;
  QRectF PlaceOfEnd(bool high) const;
  void PaintScale(QPainter& painter) const;
  void PaintMark(QPainter& painter) const;

  QString low_;
  QString high_;
};

}  // namespace vmod17

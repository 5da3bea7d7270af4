// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/font_measure.h"

#include <QFontMetricsF>
#include <QString>

#include "qt/kit/look.h"

namespace vmod17 {

double FontMeasure::Width(const std::string& text, double type, Weight weight) const {
  const QFontMetricsF metrics(look::Type(type, weight));
  return metrics.horizontalAdvance(QString::fromStdString(text).trimmed());
}

double FontMeasure::Height(const std::string& text, double type, double width) const {
  constexpr double kNoLimit = 10000;
  const QFontMetricsF metrics(look::Type(type, Weight::kNormal));
  return metrics
      .boundingRect(QRectF(0, 0, width, kNoLimit), Qt::TextWordWrap | Qt::AlignLeft,
                    QString::fromStdString(text))
      .height();
}

}  // namespace vmod17

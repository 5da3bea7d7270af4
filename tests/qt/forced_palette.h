// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QApplication>
#include <QPalette>
#include <QToolTip>

namespace vmod17 {

/// A light or dark desktop for the time of a test.
class ForcedPalette {
 public:
  explicit ForcedPalette(bool dark) { Force(dark); }
  ~ForcedPalette() {
    QApplication::setPalette(QPalette());
    QToolTip::setPalette(QPalette());
  }
  ForcedPalette(const ForcedPalette&) = delete;
  ForcedPalette& operator=(const ForcedPalette&) = delete;

  static void Force(bool dark) {
    const QColor ground = dark ? QColor(40, 42, 44) : QColor(240, 240, 240);
    QApplication::setPalette(QPalette(ground, ground));
  }
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QImage>
#include <QPixmap>
#include <QSizeF>

#include "forms/pressable.h"

namespace vmod17 {

/// Where the widgets have the pictures from that their controls show.
class PictureSource {
 public:
  /// A picture as finely as it was drawn.
  struct OnPaper {
    QImage image;  ///< black and grey on white; null for a picture that does not exist
    QSizeF size;   ///< in units
  };

  virtual ~PictureSource() = default;

  /// The picture at `factor` pixels of the screen per unit, `ratio` of which make one of the
  /// toolkit's. Null for a picture that does not exist.
  virtual QPixmap Get(const PictureId& id, double factor, double ratio) = 0;
  virtual OnPaper ForPaper(const PictureId& id) = 0;
};

}  // namespace vmod17

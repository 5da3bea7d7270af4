// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QHash>
#include <QPixmap>

#include "platform/controls.h"

namespace vmod17 {

/// The chord pictures, at any size. They are compiled in at 1, 2 and 3 times; what lies between is
/// made from the next larger one and kept.
class PictureSource {
 public:
  PictureSource();

  /// The picture at `factor` pixels of the screen per pixel of the drawing, `ratio` of which make
  /// one of the toolkit's. Null for a picture that does not exist.
  QPixmap Get(const PictureId& id, double factor, double ratio);

 private:
  QHash<quint64, QPixmap> made_;
};

}  // namespace vmod17

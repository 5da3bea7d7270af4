// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QImage>
#include <QPixmap>
#include <map>
#include <string_view>
#include <tuple>

#include "forms/controls.h"

namespace vmod17 {

/// The chord pictures, at any size. They are compiled in at 1, 2 and 3 times; what lies between is
/// made from the next larger one and kept. For paper there is one more, much larger.
class PictureSource {
 public:
  PictureSource();

  /// The picture at `factor` pixels of the screen per pixel of the drawing, `ratio` of which make
  /// one of the toolkit's. Null for a picture that does not exist.
  QPixmap Get(const PictureId& id, double factor, double ratio);

  /// The picture as large as it was drawn, black and grey on white. Null for one that does not
  /// exist.
  static QImage ForPaper(const PictureId& id);
  /// The size of such a picture in units.
  static QSizeF SizeOnPaper(const QImage& picture);

 private:
  using Key = std::tuple<std::string_view, int, long>;  // set, number, size in thousandths

  std::map<Key, QPixmap> made_;
};

}  // namespace vmod17

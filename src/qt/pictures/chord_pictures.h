// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <map>
#include <string_view>
#include <tuple>

#include "qt/kit/picture_source.h"

namespace vmod17 {

/// The chord pictures, at any size. They are compiled in at 1, 2 and 3 times; what lies between is
/// made from the next larger one and kept. For paper there is one more, much larger.
class ChordPictures : public PictureSource {
 public:
  ChordPictures();

  QPixmap Get(const PictureId& id, double factor, double ratio) override;
  OnPaper ForPaper(const PictureId& id) override;

 private:
  using Key = std::tuple<std::string_view, int, long>;  // set, number, size in thousandths

  std::map<Key, QPixmap> made_;
};

}  // namespace vmod17

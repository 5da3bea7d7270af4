// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/pictures/chord_pictures.h"

#include <QString>
#include <cmath>

// Keeps the pictures in a program that links this library; must stand outside of any namespace.
static void RegisterChordPictures() { Q_INIT_RESOURCE(chord_pictures); }

namespace vmod17 {
namespace {

constexpr int kLargest = 3;  // of those for the screen
constexpr int kPaper = 8;

QImage Load(const PictureId& id, int size) {
  const QLatin1StringView set(id.set.data(), static_cast<qsizetype>(id.set.size()));
  return QImage(QString(":/pictures/%1x/%2%3.png").arg(size).arg(set).arg(id.number));
}

QPixmap Make(const PictureId& id, double factor) {
  int size = 1;
  while (size < kLargest && size < factor) ++size;
  const QImage drawn = Load(id, size);
  if (drawn.isNull() || size == factor) return QPixmap::fromImage(drawn);
  const QSize wanted(qRound(drawn.width() * factor / size), qRound(drawn.height() * factor / size));
  return QPixmap::fromImage(drawn.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

}  // namespace

ChordPictures::ChordPictures() { RegisterChordPictures(); }

PictureSource::OnPaper ChordPictures::ForPaper(const PictureId& id) {
  if (id.set.empty()) return {};
  // Without colour the file that is printed is smaller.
  const QImage image = Load(id, kPaper).convertToFormat(QImage::Format_Grayscale8);
  return {image, QSizeF(image.size()) / kPaper};
}

QPixmap ChordPictures::Get(const PictureId& id, double factor, double ratio) {
  if (id.set.empty()) return {};
  const double wanted = factor * ratio;
  const Key key(id.set, id.number, std::lround(wanted * 1000));
  const auto found = made_.find(key);
  if (found != made_.end()) return found->second;
  QPixmap picture = Make(id, wanted);
  picture.setDevicePixelRatio(ratio);
  // A window that is being resized asks for a new size at each step.
  constexpr int kKept = 600;
  if (made_.size() >= kKept) made_.clear();
  made_.emplace(key, picture);
  return picture;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/picture_source.h"

#include <QString>
#include <cmath>

// Keeps the pictures in a program that links this library; must stand outside of any namespace.
static void RegisterChordPictures() { Q_INIT_RESOURCE(chord_pictures); }

namespace vmod17 {
namespace {

constexpr int kLargest = 3;  // of those for the screen
constexpr int kPaper = 8;

/// The signs of training and test are no pictures but drawn where they stand.
bool IsDrawn(const PictureId& id) {
  return id.kind == PictureId::Kind::kNotation || id.kind == PictureId::Kind::kSymbol;
}

QImage Load(const PictureId& id, int size) {
  const char* name = id.kind == PictureId::Kind::kNotation ? "jakk" : "jbez";
  return QImage(QString(":/pictures/%1x/%2%3.png").arg(size).arg(name).arg(id.klang));
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

PictureSource::PictureSource() { RegisterChordPictures(); }

QImage PictureSource::ForPaper(const PictureId& id) {
  if (!IsDrawn(id)) return {};
  // Without colour the file that is printed is smaller.
  return Load(id, kPaper).convertToFormat(QImage::Format_Grayscale8);
}

QSizeF PictureSource::SizeOnPaper(const QImage& picture) { return QSizeF(picture.size()) / kPaper; }

QPixmap PictureSource::Get(const PictureId& id, double factor, double ratio) {
  if (!IsDrawn(id)) return {};
  const double wanted = factor * ratio;
  const auto key = static_cast<quint64>(std::lround(wanted * 1000)) << 16 |
                   static_cast<quint64>(id.kind) << 12 | static_cast<quint64>(id.klang);
  const auto found = made_.constFind(key);
  if (found != made_.constEnd()) return *found;
  QPixmap picture = Make(id, wanted);
  picture.setDevicePixelRatio(ratio);
  // A window that is being resized asks for a new size at each step.
  constexpr int kKept = 600;
  if (made_.size() >= kKept) made_.clear();
  made_.insert(key, picture);
  return picture;
}

}  // namespace vmod17

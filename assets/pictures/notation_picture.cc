// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "pictures/notation_picture.h"

#include <QPainter>

namespace vmod17 {
namespace {

char32_t CharacterOf(Glyph glyph) {
  switch (glyph) {
    case Glyph::kHead:
      return U'\U0001D157';
    case Glyph::kFlat:
      return U'♭';
    case Glyph::kSharp:
      return U'♯';
    case Glyph::kDoubleFlat:
      return U'\U0001D12B';
  }
  return 0;
}

void DrawPixels(const PlacedGlyph& glyph, QImage& image) {
  const GlyphShape shape = ShapeOf(glyph.glyph, glyph.middle2);
  for (int y = 0; y < shape.Height(); ++y) {
    for (int x = 0; x < shape.Width(); ++x) {
      if (shape.rows[y][x] == '#') image.setPixel(glyph.left + x, glyph.Top() + y, qRgb(0, 0, 0));
    }
  }
}

/// Where the outline goes, in pixels of the smallest size: the place of the pixel shape, but with
/// the middle exactly in the middle of a line or space.
QRectF BoxOf(const PlacedGlyph& glyph) {
  constexpr double kHeadHeight = 7.5;  // a staff space: heads a third apart just meet
  const GlyphShape shape = ShapeOf(glyph.glyph, glyph.middle2);
  const double middle = (glyph.middle2 + 1) / 2.0;
  if (glyph.glyph == Glyph::kHead) {
    return {glyph.left + 0.0, middle - kHeadHeight / 2, shape.Width() + 0.0, kHeadHeight};
  }
  return {glyph.left + 0.0, middle - 0.5 - shape.above, shape.Width() + 0.0, shape.Height() + 0.0};
}

// The font's sharp is much wider than ours. Made as narrow, its bars would stand too steep, so they
// are laid flatter first; the uprights stay upright.
QPainterPath PathOf(Glyph glyph, const OutlineFont& music) {
  constexpr double kFlatterBars = 0.18;
  const QPainterPath path = music.OutlineOf(CharacterOf(glyph)).path;
  return glyph == Glyph::kSharp ? QTransform().shear(0, kFlatterBars).map(path) : path;
}

void DrawOutline(const PlacedGlyph& glyph, const OutlineFont& music, QPainter& painter) {
  // The flats' strokes are thin beside the lines of the staff.
  constexpr double kFlatPen = 0.25;
  const QPainterPath path = PathOf(glyph.glyph, music);
  const bool flat = glyph.glyph == Glyph::kFlat || glyph.glyph == Glyph::kDoubleFlat;
  const double pen = flat ? kFlatPen : 0;
  const QRectF from = path.boundingRect();
  const QRectF to = BoxOf(glyph).adjusted(pen / 2, pen / 2, -pen / 2, -pen / 2);
  QTransform fit = QTransform::fromTranslate(to.left(), to.top());
  fit.scale(to.width() / from.width(), to.height() / from.height());
  fit.translate(-from.left(), -from.top());
  const QPainterPath placed = fit.map(path);
  painter.fillPath(placed, Qt::black);
  if (flat) painter.strokePath(placed, QPen(Qt::black, pen));
}

}  // namespace

QImage DrawNotation(const NotationLayout& layout, int scale, const OutlineFont& music) {
  QImage image(kNotationWidth * scale, layout.height * scale, QImage::Format_RGB888);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.scale(scale, scale);
  for (const int row : layout.staff_rows) painter.fillRect(0, row, kNotationWidth, 1, Qt::black);
  for (const LedgerLine& line : layout.ledger_lines) {
    painter.fillRect(line.left, line.row, line.right - line.left, 1, Qt::black);
  }
  painter.setRenderHint(QPainter::Antialiasing);
  for (const std::vector<PlacedGlyph>& glyphs : {layout.heads, layout.accidentals}) {
    for (const PlacedGlyph& glyph : glyphs) {
      if (scale == 1) {
        DrawPixels(glyph, image);
      } else {
        DrawOutline(glyph, music, painter);
      }
    }
  }
  return image;
}

}  // namespace vmod17

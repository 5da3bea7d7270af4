// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "pictures/fonts.h"

#include <QTransform>
#include <stdexcept>

namespace vmod17 {
namespace {

constexpr double kUnits = 1000;  // both fonts are drawn on a grid of a thousandth of an em

}  // namespace

OutlineFont::OutlineFont(const QString& file) : font_(file, kUnits, QFont::PreferNoHinting) {
  if (!font_.isValid()) throw std::runtime_error("not a font: " + file.toStdString());
}

Outline OutlineFont::OutlineOf(char32_t character) const {
  const QList<quint32> glyphs = font_.glyphIndexesForString(QString::fromUcs4(&character, 1));
  if (glyphs.isEmpty() || glyphs[0] == 0) {
    throw std::runtime_error("the font " + font_.familyName().toStdString() +
                             " lacks the character " + std::to_string(character));
  }
  const QTransform to_em = QTransform::fromScale(1 / kUnits, 1 / kUnits);
  return {to_em.map(font_.pathForGlyph(glyphs[0])),
          font_.advancesForGlyphIndexes(glyphs)[0].x() / kUnits};
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QPainterPath>
#include <QRawFont>
#include <QString>

namespace vmod17 {

/// Height of a capital in Noto Sans, in ems.
inline constexpr double kCapitalHeight = 0.714;

/// A character's outline with its base line at y 0, and where the next character begins.
struct Outline {
  QPainterPath path;
  double advance;
};

/// The outlines of one font file, free of the hints of any screen size.
class OutlineFont {
 public:
  /// Errors: std::runtime_error when the file is no font.
  explicit OutlineFont(const QString& file);

  /// The outline for an em of 1. Errors: std::runtime_error when the font lacks the character.
  Outline OutlineOf(char32_t character) const;

 private:
  QRawFont font_;
};

/// What the pictures are set in.
struct Fonts {
  OutlineFont music;
  OutlineFont text;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QSizeF>
#include <QString>
#include <QWidget>
#include <optional>

#include "forms/color.h"
#include "forms/layout.h"
#include "qt/kit/look.h"
#include "qt/kit/picture_source.h"

// The widgets that the controls are shown with. They paint themselves; what a reader of the screen
// is told comes from the toolkit's classes that they derive from. None of them has signals or slots
// of its own, so that they are to the toolkit what their base class is.

namespace vmod17 {

/// What the widgets of one page share.
struct PageStyle {
  PictureSource* pictures = nullptr;  ///< none where no control shows one
  double factor = 1;                  ///< pixels of a unit
  bool keyboard = true;               ///< the user works by keyboard: the focus is shown
  bool paper = false;                 ///< drawn for a printer, whose pixels are many and small

  /// Null for a picture that does not exist.
  QPixmap Picture(const PictureId& id, double ratio) const {
    return pictures == nullptr ? QPixmap() : pictures->Get(id, factor, ratio);
  }
  const look::Palette& colors() const { return paper ? look::kLight : look::PresentColors(); }
};

/// What all widgets have: a caption, colours that the program sets, and a dress.
class Dressed {
 public:
  Dressed(QWidget& self, const PageStyle& style, const Placement& place);
  virtual ~Dressed() = default;

  void SetCaption(const QString& caption);
  void SetColors(const std::optional<Color>& back, const std::optional<Color>& fore);
  const QString& caption() const { return caption_; }
  /// Draws the control with its upper left corner at the origin, on whatever the painter draws on.
  /// What only serves to be pressed has nothing to draw on paper.
  virtual void Paint(QPainter&) {}
  /// False when a caption would be larger than the place allows.
  bool Fits(const QString& caption) const;
  bool CaptionFits() const { return Fits(caption_); }
  /// The caption's type, made smaller where its place is narrow.
  const QFont& Type() { return Set().font; }
  /// What the caption stands on, and its own colour.
  virtual QColor Ground() const { return GroundBelow(); }
  virtual QColor Ink() const { return InkOn(Ground(), colors().text); }

 protected:
  virtual QSizeF TextBox() const { return self_.size(); }
  double Px(double units) const { return units * style_.factor; }
  const look::Palette& colors() const { return style_.colors(); }
  bool ShowsFocus() const { return style_.keyboard && self_.hasFocus(); }
  /// The caption as it is set into its box, kept until one of the two changes.
  const look::Setting& Set();
  look::Setting SetInto(const QString& caption, const QSizeF& box) const;
  /// The ground of the frame that the control stands in.
  QColor GroundBelow() const;
  /// The usual colour on a ground, unless the control is locked, the program has set another one,
  /// or it could not be read there.
  QColor InkOn(const QColor& ground, const QColor& usual) const;

  QWidget& self_;
  const PageStyle& style_;
  const Placement place_;
  std::optional<QColor> back_;
  std::optional<QColor> fore_;

 private:
  QString caption_;
  look::Setting setting_;
  QString set_caption_;
  QSizeF set_box_;
  double set_pixels_ = 0;
};

}  // namespace vmod17

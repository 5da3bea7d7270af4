// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QRadioButton>
#include <QSlider>
#include <functional>
#include <optional>
#include <vector>

#include "forms/controls.h"
#include "qt/kit/accessible.h"
#include "qt/kit/entry_list.h"
#include "qt/kit/look.h"
#include "qt/kit/picture_source.h"
#include "qt/view/layout.h"

// The widgets that the controls are shown with. They paint themselves; what a reader of the screen
// is told comes from the toolkit's classes that they derive from. None of them has signals or slots
// of its own, so that they are to the toolkit what their base class is.

namespace vmod17 {

/// What the widgets of one page share.
struct PageStyle {
  PictureSource& pictures;
  double factor = 1;     ///< pixels of a unit
  bool keyboard = true;  ///< the user works by keyboard: the focus is shown
  bool paper = false;    ///< drawn for a printer, whose pixels are many and small

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

/// A control that is pressed: by mouse, Space, Enter or an assistive technology.
class PressWidget : public QAbstractButton, public Dressed {
 public:
  PressWidget(QWidget* parent, const PageStyle& style, const Placement& place);

  /// Moves the focus from this widget as an arrow key, Home or End says; returns whether it could.
  std::function<bool(int key)> move_focus;

  void SetImage(const PictureId& image);
  void SetNumber(int number);
  void SetMarks(const std::vector<AnswerMark>& marks);
  QColor Ground() const override;
  QColor Ink() const override;

 protected:
  QSizeF TextBox() const override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  void PaintTile(QPainter& painter);
  void PaintButton(QPainter& painter);
  void PaintNumber(QPainter& painter);
  void PaintMarks(QPainter& painter);
  QColor Edge() const;

  PictureId image_;
  int number_ = 0;
  std::vector<AnswerMark> marks_;
};

/// A label, or a panel that shows a result.
class TextWidget : public QLabel, public Dressed {
 public:
  TextWidget(QWidget* parent, const PageStyle& style, const Placement& place);
  void SetImage(const PictureId& image);
  void Paint(QPainter& painter) override;
  QColor Ground() const override;
  QColor Ink() const override;

 protected:
  QSizeF TextBox() const override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool HasGround() const;
  void PaintImage(QPainter& painter);
  void PaintImageOnPaper(QPainter& painter);

  PictureId image_;
};

/// An area that other controls stand in; as a cell it can have the focus.
class PlateWidget : public QGroupBox, public Dressed {
 public:
  PlateWidget(QWidget* parent, const PageStyle& style, const Placement& place);
  void Paint(QPainter& painter) override;
  /// The colour at a place of it.
  QColor GroundAt(const QPoint& point) const;

  /// Moves the focus from this widget as an arrow key, Home or End says; returns whether it could.
  std::function<bool(int key)> move_focus;
  /// Asks for the menu of the frame; none if it has none.
  std::function<void()> ask_menu;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void PaintSmallCard(QPainter& painter);
  void PaintCell(QPainter& painter);
};

class OptionWidget : public QRadioButton, public Dressed {
 public:
  OptionWidget(QWidget* parent, const PageStyle& style, const Placement& place);

 protected:
  QSizeF TextBox() const override;
  void paintEvent(QPaintEvent* event) override;
  bool hitButton(const QPoint& point) const override { return rect().contains(point); }
};

class DropDownWidget : public QComboBox, public Dressed {
 public:
  DropDownWidget(QWidget* parent, const PageStyle& style, const Placement& place);
  /// The user goes one entry down, 1, or up, -1, while the list is closed.
  std::function<void(int way)> step;
  void showPopup() override;
  QColor Ground() const override;

 protected:
  QSizeF TextBox() const override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
};

/// A list box. The cursor is where the keyboard is; nothing in it stays chosen.
class ListWidget : public QListWidget, public Dressed, public TakesEntries {
 public:
  ListWidget(QWidget* parent, const PageStyle& style, const Placement& place);
  /// The user means this entry.
  std::function<void(int row)> choose;
  void keyboardSearch(const QString& text) override;
  void TakeEntry(int row) override;
  int ChosenEntry() const override { return -1; }
  /// False when an entry is longer than its row allows.
  bool EntriesFit() const;
  QColor Ground() const override;
  QColor Ink() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  /// Does nothing: the first click of the two has moved the entry, and the second would meet the
  /// one that has come up in its place.
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  class Delegate;
  QFont EntryType() const;
  double RowWidth() const;

  TypedSearch search_;
};

/// Stands upright: nothing is left to learn at the bottom, it was too much at the top.
class GaugeWidget : public QProgressBar, public Dressed {
 public:
  GaugeWidget(QWidget* parent, const PageStyle& style, const Placement& place);

  /// What 0 and 100 per cent mean. Returns whether that differs from what was set.
  bool SetEnds(const QString& low, const QString& high);
  /// False when the two words are larger than their places allow.
  bool EndsFit() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QRectF Track() const;
  QRectF PlaceOfEnd(bool high) const;
  void PaintScale(QPainter& painter) const;
  void PaintMark(QPainter& painter) const;

  QString low_;
  QString high_;
};

class SliderWidget : public QSlider, public Dressed {
 public:
  SliderWidget(QWidget* parent, const PageStyle& style, const Placement& place);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void GoTo(double x);
};

}  // namespace vmod17

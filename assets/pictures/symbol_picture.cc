// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "pictures/symbol_picture.h"

#include <QPainter>
#include <cmath>
#include <stdexcept>

namespace vmod17 {
namespace {

// All in pixels of the smallest size. Base lines and heights are whole, so that the letters'
// horizontal strokes stay sharp there.
constexpr double kLeftEdge = 2;
constexpr double kRootCapital = 11;
constexpr double kRootBase = 27;
constexpr double kQualityCapital = 9.325;  // which makes the small letters 7 high
constexpr double kRaisedCapital = 8;
constexpr double kRaisedBase = 20;
constexpr double kStackCapital = 8;
constexpr double kUpperBase = 14;
constexpr double kLowerBase = 25;

/// A line of type: the height of its capitals and where it stands.
struct Line {
  double capital;
  double base;
};

constexpr Line kRoot = {kRootCapital, kRootBase};
constexpr Line kQuality = {kQualityCapital, kRootBase};
constexpr Line kRaised = {kRaisedCapital, kRaisedBase};
constexpr Line kUpper = {kStackCapital, kUpperBase};
constexpr Line kLower = {kStackCapital, kLowerBase};

/// The shift, at most half a pixel, with which a shape covers whole pixels best at the smallest
/// size: upright strokes then come out black instead of twice as wide and grey.
double SharpestShift(const QPainterPath& path) {
  const QRect box = path.boundingRect().toAlignedRect().adjusted(-1, -1, 1, 1);
  double best_shift = 0;
  qint64 best = 0;
  for (const double shift : {0.0, 0.25, -0.25, 0.5}) {
    QImage image(box.size(), QImage::Format_Grayscale8);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(shift - box.left(), -box.top());
    painter.fillPath(path, Qt::black);
    qint64 blackness = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const qint64 black = 255 - image.constScanLine(y)[x];
        blackness += black * black;
      }
    }
    if (blackness > best) {
      best = blackness;
      best_shift = shift;
    }
  }
  return best_shift;
}

/// A circle, with a bar through it or without, as the stroker of the smallest size makes it: the
/// pixels there are the ones that have always been shown. Larger, its straight lines would be seen.
QPainterPath CircleInStraightLines(const QRectF& circle, const QLineF& bar, bool with_bar,
                                   double pen) {
  QPainterPath shape;
  shape.addEllipse(circle);
  if (with_bar) {
    shape.moveTo(bar.p1());
    shape.lineTo(bar.p2());
  }
  QPainterPathStroker stroker;
  stroker.setWidth(pen);
  return stroker.createStroke(shape).simplified();
}

// The ring and the bar of the larger sizes run clockwise around what is black, so that they can lie
// on each other.

QPainterPath Ring(const QRectF& middle, double pen) {
  const double half = pen / 2;
  QPainterPath inside;
  inside.addEllipse(middle.adjusted(half, half, -half, -half));
  QPainterPath ring;
  ring.addEllipse(middle.adjusted(-half, -half, half, half));
  ring.addPath(inside.toReversed());
  return ring;
}

/// A straight stroke that reaches half its width beyond its ends.
QPainterPath Bar(const QLineF& axis, double pen) {
  const QPointF along = (axis.p2() - axis.p1()) / axis.length() * pen / 2;
  const QPointF aside(along.y(), -along.x());
  const QPointF first = axis.p1() - along;
  const QPointF last = axis.p2() + along;
  QPainterPath bar;
  bar.addPolygon(QPolygonF({first + aside, last + aside, last - aside, first - aside}));
  bar.closeSubpath();
  return bar;
}

/// Sets characters from the left to the right.
class Setter {
 public:
  Setter(const Fonts& fonts, int scale) : fonts_(fonts), scale_(scale) {}

  double x() const { return x_; }
  void MoveTo(double x) { x_ = x; }
  void Skip(double width) { x_ += width; }
  const QPainterPath& path() const { return path_; }

  void Set(const std::string& text, Line line) {
    for (const char32_t character : QString::fromStdString(text).toUcs4()) {
      SetCharacter(character, line);
    }
  }

  /// A parenthesis from `top` to `bottom`.
  void SetParenthesis(char32_t character, double top, double bottom) {
    constexpr double kWidth = 2.6;
    SetInBox(fonts_.text.OutlineOf(character).path, {x_ + 0.6, top, kWidth, bottom - top});
    x_ += kWidth + 1.2;
  }

 private:
  void SetCharacter(char32_t character, Line line) {
    const double h = line.capital;
    switch (character) {
      case U'♭':
        return SetSign(character, 0.58 * h, line.base - 1.3 * h, line.base + 0.5, 0.35);
      case U'♯':
        return SetSign(character, 0.76 * h, line.base - 1.15 * h, line.base + 0.15 * h, 0.1);
      case U'♮':
        return SetSign(character, 0.6 * h, line.base - 1.2 * h, line.base + 0.2 * h, 0.1);
      case U'°':
      case U'ø':
        return SetCircle(character == U'ø', line);
      default:
        SetLetter(character, line);
    }
  }

  void SetLetter(char32_t character, Line line) {
    const double em = line.capital / kCapitalHeight;
    const Outline outline = fonts_.text.OutlineOf(character);
    QTransform place = QTransform::fromTranslate(x_, line.base);
    place.scale(em, em);
    Add(place.map(outline.path));
    x_ += outline.advance * em;
  }

  // `pen` thickens the outline: the music font is made for larger sizes than its letters' here.
  void SetSign(char32_t character, double width, double top, double bottom, double pen) {
    const double gap = (bottom - top) / 16;
    SetInBox(fonts_.music.OutlineOf(character).path, {x_ + gap, top, width, bottom - top}, pen);
    x_ += width + 2 * gap;
  }

  // Diminished and half-diminished are one circle, without and with its stroke. Neither font has
  // the pair in one size.
  void SetCircle(bool half, Line line) {
    constexpr double kPen = 1.2;
    const double size = line.capital - kPen;
    const QRectF circle(x_ + 1.2, line.base - line.capital + kPen / 2, size, size);
    const QLineF bar(circle.bottomLeft() + QPointF(-0.6, 0.6),
                     circle.topRight() + QPointF(0.6, -0.6));
    if (scale_ == 1) {
      path_.addPath(CircleInStraightLines(circle, bar, half, kPen));
    } else {
      path_.addPath(Ring(circle, kPen));
      if (half) path_.addPath(Bar(bar, kPen));
    }
    x_ = circle.right() + 1.6;
  }

  void Add(const QPainterPath& path) {
    path_.addPath(scale_ == 1 ? path.translated(SharpestShift(path), 0) : path);
  }

  void SetInBox(const QPainterPath& path, const QRectF& to, double pen = 0) {
    const QRectF from = path.boundingRect();
    QTransform fit = QTransform::fromTranslate(to.left(), to.top());
    fit.scale(to.width() / from.width(), to.height() / from.height());
    fit.translate(-from.left(), -from.top());
    QPainterPath shape = fit.map(path);
    if (pen > 0) {
      QPainterPathStroker stroker;
      stroker.setWidth(pen);
      stroker.setJoinStyle(Qt::MiterJoin);
      shape = shape.united(stroker.createStroke(shape));
    }
    Add(shape);
  }

  const Fonts& fonts_;
  const int scale_;
  QPainterPath path_;
  double x_ = kLeftEdge;
};

/// Two texts one above the other.
void SetStack(const std::string& above, const std::string& below, Setter& setter) {
  const double left = setter.x();
  setter.Set(above, kUpper);
  const double right = setter.x();
  setter.MoveTo(left);
  setter.Set(below, kLower);
  setter.MoveTo(std::max(setter.x(), right));
}

void SetAlterations(const std::vector<std::string>& lines, Setter& setter) {
  if (lines.empty()) return;
  const bool stack = lines.size() == 2;
  const double top = stack ? kUpperBase - kStackCapital - 2 : kRaisedBase - kRaisedCapital - 2;
  const double bottom = stack ? kLowerBase + 2 : kRaisedBase + 2;
  setter.SetParenthesis(U'(', top, bottom);
  if (stack) {
    SetStack(lines[0], lines[1], setter);
  } else {
    setter.Set(lines[0], kRaised);
  }
  setter.SetParenthesis(U')', top, bottom);
}

QPainterPath SetSymbol(const SymbolParts& parts, int scale, const Fonts& fonts) {
  Setter setter(fonts, scale);
  setter.Set(parts.root, kRoot);
  if (!parts.quality.empty()) setter.Skip(0.5);
  setter.Set(parts.quality, kQuality);
  if (parts.six_nine) SetStack("6", "9", setter);
  setter.Set(parts.extension, kRaised);
  SetAlterations(parts.alterations, setter);
  if (!parts.bass.empty()) setter.Set("/" + parts.bass, kRoot);
  return setter.path();
}

}  // namespace

QImage DrawSymbol(const SymbolParts& parts, int width, int scale, const Fonts& fonts) {
  const QPainterPath path = SetSymbol(parts, scale, fonts);
  if (!QRectF(1, 1, width - 2, kSymbolHeight - 2).contains(path.boundingRect())) {
    throw std::logic_error("a chord symbol does not fit its picture: " + parts.root +
                           parts.quality + parts.extension);
  }
  QImage image(width * scale, kSymbolHeight * scale, QImage::Format_RGB888);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale, scale);
  QPainterPath winding = path;
  winding.setFillRule(Qt::WindingFill);  // strokes that cross stay black
  painter.fillPath(winding, Qt::black);
  return image;
}

}  // namespace vmod17

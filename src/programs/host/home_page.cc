// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/home_page.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "qt/kit/look.h"
#include "qt/kit/window_factor.h"

namespace melvado {
namespace {

namespace look = vmod17::look;
using vmod17::Align;
using vmod17::Dress;
using vmod17::DropDownWidget;
using vmod17::Placement;
using vmod17::PressWidget;
using vmod17::Rect;
using vmod17::TextWidget;

// All lengths in units, counted from the upper left corner of the canvas.
constexpr QSizeF kCanvas{1024, 700};
constexpr double kLeft = 72;
constexpr double kWidth = 880;
constexpr double kGap = 20;
constexpr double kColumn = (kWidth - kGap) / 2;
constexpr double kRight = kLeft + kColumn + kGap;
constexpr double kPadding = 24;
constexpr double kField = kColumn - 2 * kPadding;
constexpr Rect kBanner{kLeft, 14, kWidth, 112};
constexpr Rect kUserCard{kLeft, 142, kColumn, 272};
constexpr Rect kSoundCard{kRight, 142, kColumn, 272};
constexpr Rect kVerdictCard{kLeft, 428, kWidth, 108};
constexpr Rect kStart{kLeft, 552, kWidth, 78};
constexpr double kFooter = 646;
constexpr double kSmallest = 0.85;  // pixels of a unit in the smallest window
constexpr double kTextOfLists = 16;
constexpr double kWidestEntry = 560;

}  // namespace

HomePage::HomePage(QWidget& window) : window_(window) {
  MakeBanner();
  MakeUsers();
  MakeSound();
  MakeStart();
  MakeFooter();
  OrderTabs();
}

// --- Making

template <typename Widget>
Widget* HomePage::Make(const char* name, const Placement& place) {
  auto* const widget = new Widget(&window_, style, place);
  widget->setObjectName(name);
  parts_.push_back({widget, widget, place.rect});
  return widget;
}

PressWidget* HomePage::MakeButton(const char* name, const Rect& rect, double text) {
  return Make<PressWidget>(name, {.rect = rect, .text = text, .align = Align::kCenter});
}

DropDownWidget* HomePage::MakeList(const char* name, const Rect& rect) {
  return Make<DropDownWidget>(name, {.rect = rect, .text = kTextOfLists});
}

TextWidget* HomePage::MakeHeading(const char* name, const Rect& rect) {
  return Make<TextWidget>(name, {.rect = rect, .dress = Dress::kHeading, .text = 17, .bold = true});
}

void HomePage::MakeBanner() {
  title = Make<TextWidget>(
      "title",
      {.rect = {kLeft + 36, 30, 560, 44}, .dress = Dress::kOnBanner, .text = 32, .bold = true});
  subtitle = Make<TextWidget>(
      "subtitle", {.rect = {kLeft + 36, 76, 560, 30}, .dress = Dress::kOnBanner, .text = 17});
}

void HomePage::MakeUsers() {
  const double x = kUserCard.left + kPadding;
  const double y = kUserCard.top + 16;
  const double third = (kField - 2 * 10) / 3;
  user_heading = MakeHeading("user_heading", {x, y, kField, 28});
  user = MakeList("user", {x, y + 34, kField, 40});
  add_user = MakeButton("add_user", {x, y + 86, third, 38}, 15);
  change_user = MakeButton("change_user", {x + third + 10, y + 86, third, 38}, 15);
  remove_user = MakeButton("remove_user", {x + 2 * (third + 10), y + 86, third, 38}, 15);
  language_heading = MakeHeading("language_heading", {x, y + 158, kField, 28});
  language = MakeList("language", {x, y + 192, kField, 40});
}

void HomePage::MakeSound() {
  const double x = kSoundCard.left + kPadding;
  const double y = kSoundCard.top + 16;
  const double half = (kField - 10) / 2;
  output_heading = MakeHeading("output_heading", {x, y, kField, 28});
  output = MakeList("output", {x, y + 34, kField, 40});
  output_note = Make<TextWidget>(
      "output_note", {.rect = {x, y + 78, kField, 44}, .dress = Dress::kHint, .text = 14});
  test = MakeButton("test", {x, y + 128, kField, 42}, 16);
  soundfont = MakeButton("soundfont", {x, y + 180, half, 36}, 14);
  usual_soundfont = MakeButton("usual_soundfont", {x + half + 10, y + 180, half, 36}, 14);
  soundfont_note = Make<TextWidget>(
      "soundfont_note", {.rect = {x, y + 218, kField, 30}, .dress = Dress::kQuiet, .text = 13});
  verdict = Make<TextWidget>(
      "verdict", {.rect = kVerdictCard.Adjusted(kPadding, 8, -kPadding, -10), .text = 16});
}

void HomePage::MakeStart() {
  start = Make<PressWidget>("start", {.rect = kStart,
                                      .dress = Dress::kPrimary,
                                      .text = 26,
                                      .align = Align::kCenter,
                                      .bold = true});
}

void HomePage::MakeFooter() {
  const auto quiet = [this](const char* name, double x, double width) {
    return Make<PressWidget>(name, {.rect = {x, kFooter, width, 40},
                                    .dress = Dress::kQuiet,
                                    .text = 15,
                                    .align = Align::kCenter});
  };
  help = quiet("help", kLeft, 150);
  log = quiet("log", kLeft + 162, 150);
  restore = quiet("restore", kLeft + 324, 240);
  quit = quiet("quit", kLeft + kWidth - 150, 150);
  version = Make<TextWidget>("version", {.rect = {kLeft + 576, kFooter + 4, 142, 32},
                                         .dress = Dress::kQuiet,
                                         .text = 13,
                                         .align = Align::kCenter});
}

/// From the button that most users need only, then down the columns.
void HomePage::OrderTabs() {
  const QList<QWidget*> order = {start,    user,   add_user, change_user, remove_user,
                                 language, output, test,     soundfont,   usual_soundfont,
                                 help,     log,    restore,  quit};
  for (qsizetype i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

// --- Showing

QSize HomePage::LeastSize() { return (kCanvas * kSmallest).toSize(); }

void HomePage::Fill(DropDownWidget& list, const QStringList& entries, int chosen) const {
  const QFontMetricsF metrics(look::Type(kTextOfLists, look::Weight::kNormal));
  QStringList shown;
  for (const QString& entry : entries) {
    shown << metrics.elidedText(entry, Qt::ElideRight, kWidestEntry);
  }
  QStringList present;
  for (int i = 0; i < list.count(); ++i) present << list.itemText(i);
  if (present != shown) {
    list.clear();
    list.addItems(shown);
  }
  if (list.currentIndex() != chosen) list.setCurrentIndex(chosen);
  // The closed list is narrower than the open one.
  list.SetCaption(metrics.elidedText(list.currentText(), Qt::ElideRight, kField - 40));
}

std::vector<std::string> HomePage::CaptionsThatDoNotFit() const {
  std::vector<std::string> names;
  for (const Part& part : parts_) {
    if (!part.dress->CaptionFits()) names.push_back(part.widget->objectName().toStdString());
  }
  return names;
}

QRectF HomePage::Canvas() const {
  const QSizeF size = kCanvas * style.factor;
  return {(window_.width() - size.width()) / 2, (window_.height() - size.height()) / 2,
          size.width(), size.height()};
}

QRectF HomePage::Pixels(const Rect& units) const {
  const double f = style.factor;
  const QRectF place = look::ToQ(units);
  return QRectF(place.topLeft() * f + Canvas().topLeft(), place.size() * f);
}

void HomePage::Arrange() {
  style.factor = std::max(
      kSmallest, std::min(window_.width() / kCanvas.width(), window_.height() / kCanvas.height()));
  for (const Part& part : parts_) {
    part.widget->setGeometry(Pixels(part.rect).toRect());
    part.widget->update();
  }
  vmod17::SetFactor(window_, style.factor);
}

void HomePage::Paint(QPainter& painter, std::optional<bool> verdict_is_good) const {
  const look::Palette& colors = style.colors();
  painter.fillRect(window_.rect(), colors.page);
  painter.setRenderHint(QPainter::Antialiasing);
  const double radius = look::kCardRadius * style.factor;
  const QRectF banner = Pixels(kBanner);
  QPainterPath path;
  path.addRoundedRect(banner, radius, radius);
  look::DrawBanner(painter, banner, path);
  const auto card = [&](const Rect& units, const QColor& fill) {
    look::DrawCard(painter, Pixels(units), colors, fill, style.factor);
  };
  card(kUserCard, colors.card);
  card(kSoundCard, colors.card);
  card(kVerdictCard, !verdict_is_good ? colors.card : *verdict_is_good ? colors.good : colors.bad);
}

}  // namespace melvado

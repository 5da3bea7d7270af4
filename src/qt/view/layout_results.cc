// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <QFontMetricsF>
#include <algorithm>
#include <vector>

#include "forms/caption.h"
#include "qt/kit/look.h"
#include "qt/view/layout.h"

namespace vmod17 {
namespace {

constexpr double kWidth = 1000;
constexpr double kTop = 10;
constexpr double kHeader = 60;
constexpr double kGap = 8;
constexpr double kStrip = 56;  // the buttons at the bottom
constexpr double kEdge = 24;   // of a card's inside

constexpr int kCells = 24;
constexpr int kCellsInRow = 8;
constexpr double kColumn = 120;
constexpr double kCellWidth = 96;
constexpr double kGridEdge = 10;  // least room above and below the grid in its card

constexpr int kSettings = 15;
constexpr int kUserLines = 6;
constexpr double kUserCard = 384;
constexpr double kBetween = 16;
constexpr double kUserType = 15;
constexpr double kUserLine = 36;
constexpr double kUserNames = 120;  // the column of names, at least and at most
constexpr double kWidestUserNames = 150;
constexpr double kHeadline = 58;

/// The parts of the page that both faces share.
struct Sheet {
  double left;
  QRectF page;
  QRectF header;
  QRectF body;
  QRectF strip;
};

Sheet SheetOf(const QSizeF& page) {
  const double left = (page.width() - kWidth) / 2;
  const double body = kTop + kHeader + kGap;
  const double strip = page.height() - kStrip;
  return {left, QRectF(QPointF(), page), QRectF(left, kTop, kWidth, kHeader),
          QRectF(left, body, kWidth, strip - body), QRectF(left, strip, kWidth, kStrip)};
}

bool Visible(const Form& form, const std::string& id) {
  const Control* const control = FindControl(form, id);
  return control != nullptr && control->visible;
}

QString CaptionOf(const Form& form, const std::string& id) {
  const Control* const control = FindControl(form, id);
  return control == nullptr ? QString() : QString::fromStdString(ShownCaption(control->caption));
}

/// A card within a frame.
Backdrop CardIn(const std::string& control, const QRectF& frame, const QRectF& card) {
  return {control, QMarginsF(frame.left() - card.left(), frame.top() - card.top(),
                             card.right() - frame.right(), card.bottom() - frame.bottom())};
}

void FillHeader(Layout& layout, const Form& form, const Sheet& sheet) {
  const bool dated = Visible(form, "erg_cont") && Visible(form, "datum");
  const bool time_up = Visible(form, "zeit_um");
  const bool two_lines = dated || (Visible(form, "erg_cont") && time_up);
  const QRectF inside = sheet.header.adjusted(kEdge, 0, -kEdge, 0);
  layout.title =
      QRectF(inside.left(), inside.top() + (two_lines ? 4 : 0), 600, two_lines ? 34 : kHeader);
  layout.title_text = 20;
  layout.title_align = Qt::AlignLeft | Qt::AlignVCenter;
  layout.places["datum"] = {
      .rect = QRectF(inside.left(), inside.top() + 36, time_up ? 250 : 600, 18),
      .dress = Dress::kQuiet,
      .text = 13};
  layout.places["zeit_um"] = {
      .rect = QRectF(inside.left() + (dated ? 260 : 0), inside.top() + 35, dated ? 340 : 600, 20),
      .dress = Dress::kHint,
      .text = 15,
      .bold = true};
  layout.places["lab_ges"] = {
      .rect = QRectF(inside.right() - 130 - 14 - 200, inside.top(), 200, kHeader),
      .text = 17,
      .align = Qt::AlignRight | Qt::AlignVCenter,
      .bold = true};
  layout.places["ergebnis(0)"] = {.rect = QRectF(inside.right() - 130, inside.top() + 9, 130, 42),
                                  .dress = Dress::kMark,
                                  .text = 24,
                                  .align = Qt::AlignCenter,
                                  .bold = true,
                                  .named_by = "lab_ges"};
}

/// The lower edge of the grid, counted from its first row; the program says where its parts stand.
double GridHeight(const Form& form) {
  double height = 0;
  for (int e = 1; e <= kCells; ++e) {
    const Control* const mark = FindControl(form, IdOf("ergebnis", e));
    if (mark == nullptr || !Visible(form, IdOf("klang_pan", e))) continue;
    height = std::max<double>(height, mark->top.value_or(0) + mark->height.value_or(20));
  }
  return height;
}

void FillCell(Layout& layout, const Form& form, int e, double left, double top) {
  const double x = left + (kColumn - kCellWidth) / 2;
  auto& places = layout.places;
  places[IdOf("Akkbez", e)] = {.rect = QRectF(x + (kCellWidth - 88) / 2, top, 88, 36),
                               .dress = Dress::kTile,
                               .text = 15,
                               .align = Qt::AlignCenter};
  QRectF panel(x, top, kCellWidth, 80);
  if (const Control* control = FindControl(form, IdOf("klang_pan", e))) {
    panel.moveTop(top + control->top.value_or(36));
    panel.setHeight(control->height.value_or(80));
  }
  places[IdOf("klang_pan", e)] = {.rect = panel, .dress = Dress::kCell};
  places[IdOf("jz_kl", e)] = {.rect = panel.adjusted(4, 4, -4, -4),
                              .dress = Dress::kTile,
                              .text = 15,
                              .align = Qt::AlignCenter};
  places[IdOf("akk_group", e)] = {.rect = QRectF(x, top, 96, 20),
                                  .text = 12,
                                  .align = Qt::AlignCenter,
                                  .least_width = kColumn - 2};
  places[IdOf("ergebnis", e)] = {.rect = QRectF(x, top, kCellWidth, 20),
                                 .dress = Dress::kMark,
                                 .text = 14,
                                 .align = Qt::AlignCenter,
                                 .bold = true};
}

void FillGrid(Layout& layout, const Form& form, const Sheet& sheet) {
  const double free = sheet.body.height() - GridHeight(form);
  const double top = sheet.body.top() + std::max(kGridEdge, free / 2);
  layout.places["erg_cont"] = {.rect = sheet.page, .head = top};
  const double left = sheet.body.left() + (kWidth - kCellsInRow * kColumn) / 2;
  for (int e = 1; e <= kCells; ++e) {
    FillCell(layout, form, e, left + (e - 1) % kCellsInRow * kColumn, top);
  }
}

/// A list of names and values.
struct Table {
  QRectF box;
  double names;  ///< width of the column of names
  std::vector<std::pair<std::string, std::string>> rows;
};

double WidthOf(const QString& text, double size) {
  return QFontMetricsF(look::Type(size, look::Weight::kNormal)).horizontalAdvance(text) * 1.03 + 2;
}

double HeightOf(const QString& text, double width, double size) {
  // A little narrower, since type does not grow quite evenly with the page.
  const QRectF used =
      QFontMetricsF(look::Type(size, look::Weight::kNormal))
          .boundingRect(QRectF(0, 0, width * 0.96, 10000), Qt::TextWordWrap | Qt::AlignLeft, text);
  return used.height();
}

std::vector<double> RowHeights(const Form& form, const Table& table, double size) {
  std::vector<double> heights;
  for (const auto& [name, value] : table.rows) {
    heights.push_back(std::max(
        HeightOf(CaptionOf(form, name), table.names, size),
        HeightOf(CaptionOf(form, value), table.box.width() - table.names - kBetween, size)));
  }
  return heights;
}

/// In the largest type in which all rows find their place.
void FillTable(Layout& layout, const Form& form, const Table& table) {
  constexpr double kLargestType = 15;
  constexpr double kSmallestType = 12.5;  // 11 pixels where the page is smallest
  double size = kLargestType;
  std::vector<double> heights;
  double gap = 0;
  for (;; size = std::max(size - 1, kSmallestType)) {
    heights = RowHeights(form, table, size);
    double sum = 0;
    for (const double height : heights) sum += height;
    const auto rows = static_cast<double>(heights.size());
    gap = std::min(size * 0.9, (table.box.height() - sum) / std::max(1.0, rows));
    if (gap >= size * 0.3 || size <= kSmallestType) break;
  }
  double y = table.box.top();
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    const auto& [name, value] = table.rows[i];
    const QRectF row(table.box.left(), y, table.box.width(), heights[i]);
    layout.places[name] = {.rect = QRectF(row.topLeft(), QSizeF(table.names, heights[i])),
                           .dress = Dress::kQuiet,
                           .text = size,
                           .align = Qt::AlignLeft | Qt::AlignTop,
                           .capital = true};
    layout.places[value] = {.rect = row.adjusted(table.names + kBetween, 0, 0, 0),
                            .text = size,
                            .align = Qt::AlignLeft | Qt::AlignTop,
                            .named_by = name};
    y += heights[i] + std::max(0.0, gap);
  }
}

Placement Headline(const QRectF& card) {
  return {.rect = QRectF(card.left() + kEdge, card.top() + 8, card.width() - 2 * kEdge, 42),
          .dress = Dress::kHeading,
          .text = 18,
          .bold = true};
}

QRectF BelowHeadline(const QRectF& card) { return card.adjusted(kEdge, kHeadline, -kEdge, -12); }

void FillSettings(Layout& layout, const Form& form, const Sheet& sheet, const QRectF& card) {
  const QRectF frame(card.topLeft(), QPointF(card.right(), sheet.page.bottom()));
  layout.places["einst_cont"] = {.rect = frame, .named_by = "einst_head"};
  layout.places["einst_head"] = Headline(card);
  layout.backdrops.push_back(CardIn("einst_cont", frame, card));
  Table table{BelowHeadline(card), 190, {}};
  for (int k = 0; k < kSettings; ++k) {
    const std::string name = IdOf("einst_lab", k);
    if (Visible(form, name)) table.rows.emplace_back(name, IdOf("einst_Inh", k));
    // The others have a place too, where they are shown once they are there.
    const Placement unused{.rect = QRectF(card.topLeft(), QSizeF(1, 1))};
    layout.places[name] = layout.places[IdOf("einst_Inh", k)] = unused;
  }
  FillTable(layout, form, table);
}

/// Without a user there are two lines, each set in the middle.
void CentreUserLine(Layout& layout, const Form& form, const QRectF& room, int k, double y) {
  constexpr double kApart = 6;
  const std::string name = IdOf("g_einst_lab", k);
  const std::string value = IdOf("g_einst_inh", k);
  const double names = WidthOf(CaptionOf(form, name), kUserType) + kApart;
  const double values = std::min(WidthOf(CaptionOf(form, value), kUserType), room.width() - names);
  const double left = room.left() + (room.width() - names - values) / 2;
  const double height = HeightOf(CaptionOf(form, value), values * 1.05, kUserType);
  layout.places[name] = {.rect = QRectF(left, y, names, height),
                         .dress = Dress::kQuiet,
                         .text = kUserType,
                         .align = Qt::AlignLeft | Qt::AlignTop};
  layout.places[value] = {.rect = QRectF(left + names, y, values, height),
                          .text = kUserType,
                          .align = Qt::AlignLeft | Qt::AlignTop,
                          .named_by = name};
}

/// As low as its lines are few.
QRectF UserCard(const Form& form, const Sheet& sheet) {
  const int lines = Visible(form, "g_einst_lab(2)") ? kUserLines : 2;
  return QRectF(sheet.body.topLeft(), QSizeF(kUserCard, kHeadline + lines * kUserLine + 12));
}

/// As wide as its longest name.
double UserNames(const Form& form) {
  double widest = 0;
  for (int k = 0; k < kUserLines; ++k) {
    widest = std::max(widest, WidthOf(CaptionOf(form, IdOf("g_einst_lab", k)), kUserType));
  }
  return std::clamp(widest * 1.05, kUserNames, kWidestUserNames);
}

void FillUser(Layout& layout, const Form& form, const QRectF& card) {
  layout.places["gr_einst"] = {.rect = card, .named_by = "grd_einst_head"};
  layout.places["grd_einst_head"] = Headline(card);
  layout.backdrops.push_back(CardIn("gr_einst", card, card));
  const QRectF room = BelowHeadline(card);
  Table table{room, UserNames(form), {}};
  for (int k = 0; k < kUserLines; ++k) {
    table.rows.emplace_back(IdOf("g_einst_lab", k), IdOf("g_einst_inh", k));
  }
  FillTable(layout, form, table);
  if (Visible(form, "g_einst_lab(2)")) return;
  CentreUserLine(layout, form, room, 0, room.top());
  CentreUserLine(layout, form, room, 1, room.top() + kUserLine);
}

void FillButtons(Layout& layout, const Sheet& sheet) {
  auto& places = layout.places;
  const double y = sheet.strip.top() + 9;
  const double right = sheet.strip.right();
  for (int i = 0; i < 2; ++i) {
    places[IdOf("PicSchalt", i)] = {.rect = QRectF(right - 344, y - 2, 344, 42)};
    places[IdOf("cmdPrint", i)] = {
        .rect = QRectF(right - 342, y, 150, 38), .text = 15, .align = Qt::AlignCenter};
    places[IdOf("cmdOK", i)] = {.rect = QRectF(right - 180, y, 178, 38),
                                .dress = Dress::kPrimary,
                                .text = 16,
                                .align = Qt::AlignCenter,
                                .bold = true};
  }
  places["cmdHilfe"] = {.rect = QRectF(sheet.left, y - 1, 40, 40),
                        .dress = Dress::kQuiet,
                        .text = 19,
                        .align = Qt::AlignCenter};
}

void FillKeys(Layout& layout, const Form& form) {
  layout.keys = {{QKeySequence(Qt::CTRL | Qt::Key_P), {"cmdPrint(0)", "cmdPrint(1)"}},
                 {QKeySequence(Qt::Key_Escape), {"cmdOK(0)", "cmdOK(1)"}}};
  layout.default_control = Visible(form, "erg_cont") ? "cmdOK(0)" : "cmdOK(1)";
  layout.focus_first = layout.default_control;
  layout.refuge = {"cmdOK"};
}

}  // namespace

Layout LayoutResults(const Form& form, const QSizeF& page) {
  Layout layout;
  const double needed = kTop + kHeader + kGap + GridHeight(form) + 2 * kGridEdge + kStrip;
  layout.canvas.setHeight(std::max(layout.canvas.height(), needed));
  layout.content.setHeight(std::max(layout.content.height(), needed));
  const Sheet sheet = SheetOf(page.expandedTo(layout.content));

  FillHeader(layout, form, sheet);
  FillGrid(layout, form, sheet);
  layout.backdrops = {CardIn("erg_cont", sheet.page, sheet.header),
                      CardIn("erg_cont", sheet.page, sheet.body)};
  const double settings = kWidth - kUserCard - kBetween;
  FillUser(layout, form, UserCard(form, sheet));
  const QRectF card(sheet.body.right() - settings, sheet.body.top(), settings, sheet.body.height());
  FillSettings(layout, form, sheet, card);
  layout.backdrops.push_back(CardIn("einst_cont", layout.places["einst_cont"].rect, sheet.header));
  FillButtons(layout, sheet);
  FillKeys(layout, form);
  return layout;
}

}  // namespace vmod17

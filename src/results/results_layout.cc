// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

#include "forms/caption.h"
#include "forms/layout.h"
#include "forms/text_measure.h"
#include "results/results_screen.h"

namespace vmod17 {
namespace {

constexpr double kWidth = 1000;
constexpr double kTop = 10;
constexpr double kHeader = 60;
constexpr double kGap = 8;
constexpr double kStrip = 56;  // the buttons at the bottom
constexpr double kEdge = 24;   // of a card's inside

constexpr int kCellsInRow = 8;
constexpr double kColumn = 120;
constexpr double kCellWidth = 96;
constexpr double kGridEdge = 10;  // least room above and below the grid in its card

constexpr double kUserCard = 384;
constexpr double kBetween = 16;
constexpr double kUserType = 15;
constexpr double kUserLine = 36;
constexpr double kUserNames = 120;  // the column of names, at least and at most
constexpr double kWidestUserNames = 150;
constexpr double kHeadline = 58;

using Screen = Testergebnis;

/// The parts of the page that both faces share.
struct Sheet {
  double left;
  Rect page;
  Rect header;
  Rect body;
  Rect strip;
};

Sheet SheetOf(const Size& page) {
  const double left = (page.width - kWidth) / 2;
  const double body = kTop + kHeader + kGap;
  const double strip = page.height - kStrip;
  return {left,
          {0, 0, page.width, page.height},
          {left, kTop, kWidth, kHeader},
          {left, body, kWidth, strip - body},
          {left, strip, kWidth, kStrip}};
}

/// A card within a frame.
Backdrop CardIn(const Frame& control, const Rect& frame, const Rect& card) {
  return {&control,
          {frame.left - card.left, frame.top - card.top, card.right() - frame.right(),
           card.bottom() - frame.bottom()}};
}

void FillHeader(Layout& layout, const Screen& screen, const Sheet& sheet) {
  const bool dated = screen.erg_cont.visible && screen.datum.visible;
  const bool time_up = screen.zeit_um.visible;
  const bool two_lines = dated || (screen.erg_cont.visible && time_up);
  const Rect inside = sheet.header.Adjusted(kEdge, 0, -kEdge, 0);
  layout.title = {inside.left, inside.top + (two_lines ? 4 : 0), 600, two_lines ? 34 : kHeader};
  layout.title_text = 20;
  layout.title_align = Align::kLeft;
  layout.places[&screen.datum] = {
      .rect = {inside.left, inside.top + 36, time_up ? 250.0 : 600.0, 18},
      .dress = Dress::kQuiet,
      .text = 13};
  layout.places[&screen.zeit_um] = {
      .rect = {inside.left + (dated ? 260 : 0), inside.top + 35, dated ? 340.0 : 600.0, 20},
      .dress = Dress::kHint,
      .text = 15,
      .bold = true};
  layout.places[&screen.lab_ges] = {
      .rect = {inside.right() - 130 - 14 - 200, inside.top, 200, kHeader},
      .text = 17,
      .align = Align::kRight,
      .bold = true};
  layout.places[&screen.ergebnis[0]] = {.rect = {inside.right() - 130, inside.top + 9, 130, 42},
                                        .dress = Dress::kMark,
                                        .text = 24,
                                        .align = Align::kCenter,
                                        .bold = true,
                                        .named_by = &screen.lab_ges};
}

/// The lower edge of the grid, counted from its first row; the program says where its parts stand.
double GridHeight(const Screen& screen) {
  double height = 0;
  for (const int e : screen.klang_pan.indexes()) {
    if (!screen.klang_pan[e].visible) continue;
    const Label& mark = screen.ergebnis[e];
    height = std::max<double>(height, mark.top.value_or(0) + mark.height.value_or(20));
  }
  return height;
}

void FillCell(Layout& layout, const Screen& screen, int e, double left, double top) {
  const double x = left + (kColumn - kCellWidth) / 2;
  auto& places = layout.places;
  places[&screen.Akkbez[e]] = {.rect = {x + (kCellWidth - 88) / 2, top, 88, 36},
                               .dress = Dress::kTile,
                               .text = 15,
                               .align = Align::kCenter};
  const Panel& cell = screen.klang_pan[e];
  const Rect panel{x, top + cell.top.value_or(36), kCellWidth,
                   static_cast<double>(cell.height.value_or(80))};
  places[&cell] = {.rect = panel, .dress = Dress::kCell};
  places[&screen.jz_kl[e]] = {.rect = panel.Adjusted(4, 4, -4, -4),
                              .dress = Dress::kTile,
                              .text = 15,
                              .align = Align::kCenter};
  places[&screen.akk_group[e]] = {
      .rect = {x, top, 96, 20}, .text = 12, .align = Align::kCenter, .least_width = kColumn - 2};
  places[&screen.ergebnis[e]] = {.rect = {x, top, kCellWidth, 20},
                                 .dress = Dress::kMark,
                                 .text = 14,
                                 .align = Align::kCenter,
                                 .bold = true};
}

void FillGrid(Layout& layout, const Screen& screen, const Sheet& sheet) {
  const double free = sheet.body.height - GridHeight(screen);
  const double top = sheet.body.top + std::max(kGridEdge, free / 2);
  layout.places[&screen.erg_cont] = {.rect = sheet.page, .head = top};
  const double left = sheet.body.left + (kWidth - kCellsInRow * kColumn) / 2;
  for (const int e : screen.klang_pan.indexes()) {
    FillCell(layout, screen, e, left + (e - 1) % kCellsInRow * kColumn, top);
  }
}

/// A list of names and values.
struct Table {
  Rect box;
  double names;  ///< width of the column of names
  std::vector<std::pair<const Label*, const Label*>> rows;
};

double WidthOf(const Label& label, const TextMeasure& measure) {
  return measure.Width(ShownCaption(label.caption), kUserType, Weight::kNormal) * 1.03 + 2;
}

double HeightOf(const Label& label, double width, double type, const TextMeasure& measure) {
  // A little narrower, since type does not grow quite evenly with the page.
  return measure.Height(ShownCaption(label.caption), type, width * 0.96);
}

std::vector<double> RowHeights(const Table& table, double type, const TextMeasure& measure) {
  const double values = table.box.width - table.names - kBetween;
  std::vector<double> heights;
  for (const auto& [name, value] : table.rows) {
    heights.push_back(std::max(HeightOf(*name, table.names, type, measure),
                               HeightOf(*value, values, type, measure)));
  }
  return heights;
}

/// In the largest type in which all rows find their place.
void FillTable(Layout& layout, const Table& table, const TextMeasure& measure) {
  constexpr double kLargestType = 15;
  constexpr double kSmallestType = 12.5;  // 11 pixels where the page is smallest
  double type = kLargestType;
  std::vector<double> heights;
  double gap = 0;
  for (;; type = std::max(type - 1, kSmallestType)) {
    heights = RowHeights(table, type, measure);
    const double sum = std::accumulate(heights.begin(), heights.end(), 0.0);
    const auto rows = static_cast<double>(heights.size());
    gap = std::min(type * 0.9, (table.box.height - sum) / std::max(1.0, rows));
    if (gap >= type * 0.3 || type <= kSmallestType) break;
  }
  double y = table.box.top;
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    const auto& [name, value] = table.rows[i];
    const Rect row{table.box.left, y, table.box.width, heights[i]};
    layout.places[name] = {.rect = {row.left, row.top, table.names, row.height},
                           .dress = Dress::kQuiet,
                           .text = type,
                           .align = Align::kTopLeft,
                           .capital = true};
    layout.places[value] = {.rect = row.Adjusted(table.names + kBetween, 0, 0, 0),
                            .text = type,
                            .align = Align::kTopLeft,
                            .named_by = name};
    y += heights[i] + std::max(0.0, gap);
  }
}

Placement Headline(const Rect& card) {
  return {.rect = {card.left + kEdge, card.top + 8, card.width - 2 * kEdge, 42},
          .dress = Dress::kHeading,
          .text = 18,
          .bold = true};
}

Rect BelowHeadline(const Rect& card) { return card.Adjusted(kEdge, kHeadline, -kEdge, -12); }

void FillSettings(Layout& layout, const Screen& screen, const Sheet& sheet, const Rect& card,
                  const TextMeasure& measure) {
  const Rect frame{card.left, card.top, card.width, sheet.page.bottom() - card.top};
  layout.places[&screen.einst_cont] = {.rect = frame, .named_by = &screen.einst_head};
  layout.places[&screen.einst_head] = Headline(card);
  layout.backdrops.push_back(CardIn(screen.einst_cont, frame, card));
  layout.backdrops.push_back(CardIn(screen.einst_cont, frame, sheet.header));
  Table table{BelowHeadline(card), 190, {}};
  for (const int k : screen.einst_lab.indexes()) {
    const Label& name = screen.einst_lab[k];
    const Label& value = screen.einst_Inh[k];
    if (name.visible) table.rows.emplace_back(&name, &value);
    // The others have a place too, where they are shown once they are there.
    const Placement unused{.rect = {card.left, card.top, 1, 1}};
    layout.places[&name] = layout.places[&value] = unused;
  }
  FillTable(layout, table, measure);
}

/// Without a user there are two lines, each set in the middle.
void CentreUserLine(Layout& layout, const Screen& screen, const Rect& room, int k,
                    const TextMeasure& measure) {
  constexpr double kApart = 6;
  const Label& name = screen.g_einst_lab[k];
  const Label& value = screen.g_einst_inh[k];
  const double y = room.top + k * kUserLine;
  const double names = WidthOf(name, measure) + kApart;
  const double values = std::min(WidthOf(value, measure), room.width - names);
  const double left = room.left + (room.width - names - values) / 2;
  const double height = HeightOf(value, values * 1.05, kUserType, measure);
  layout.places[&name] = {.rect = {left, y, names, height},
                          .dress = Dress::kQuiet,
                          .text = kUserType,
                          .align = Align::kTopLeft};
  layout.places[&value] = {.rect = {left + names, y, values, height},
                           .text = kUserType,
                           .align = Align::kTopLeft,
                           .named_by = &name};
}

bool ShowsUser(const Screen& screen) { return screen.g_einst_lab[2].visible; }

/// As low as its lines are few.
Rect UserCard(const Screen& screen, const Sheet& sheet) {
  const int lines = ShowsUser(screen) ? Screen::kGrundZeilen : 2;
  return {sheet.body.left, sheet.body.top, kUserCard, kHeadline + lines * kUserLine + 12};
}

/// As wide as its longest name.
double UserNames(const Screen& screen, const TextMeasure& measure) {
  double widest = 0;
  for (const int k : screen.g_einst_lab.indexes()) {
    widest = std::max(widest, WidthOf(screen.g_einst_lab[k], measure));
  }
  return std::clamp(widest * 1.05, kUserNames, kWidestUserNames);
}

void FillUser(Layout& layout, const Screen& screen, const Rect& card, const TextMeasure& measure) {
  layout.places[&screen.gr_einst] = {.rect = card, .named_by = &screen.grd_einst_head};
  layout.places[&screen.grd_einst_head] = Headline(card);
  layout.backdrops.push_back(CardIn(screen.gr_einst, card, card));
  const Rect room = BelowHeadline(card);
  Table table{room, UserNames(screen, measure), {}};
  for (const int k : screen.g_einst_lab.indexes()) {
    table.rows.emplace_back(&screen.g_einst_lab[k], &screen.g_einst_inh[k]);
  }
  FillTable(layout, table, measure);
  if (ShowsUser(screen)) return;
  for (const int k : {0, 1}) CentreUserLine(layout, screen, room, k, measure);
}

void FillButtons(Layout& layout, const Screen& screen, const Sheet& sheet) {
  auto& places = layout.places;
  const double y = sheet.strip.top + 9;
  const double right = sheet.strip.right();
  for (const int i : screen.PicSchalt.indexes()) {
    places[&screen.PicSchalt[i]] = {.rect = {right - 344, y - 2, 344, 42}};
    places[&screen.cmdPrint[i]] = {
        .rect = {right - 342, y, 150, 38}, .text = 15, .align = Align::kCenter};
    places[&screen.cmdOK[i]] = {.rect = {right - 180, y, 178, 38},
                                .dress = Dress::kPrimary,
                                .text = 16,
                                .align = Align::kCenter,
                                .bold = true};
  }
  places[&screen.cmdHilfe] = {.rect = {sheet.left, y - 1, 40, 40},
                              .dress = Dress::kQuiet,
                              .text = 19,
                              .align = Align::kCenter};
}

void FillKeys(Layout& layout, const Screen& screen) {
  layout.keys = {{{'P', Key::With::kControl}, {&screen.cmdPrint[0], &screen.cmdPrint[1]}},
                 {{Key::kEscape}, {&screen.cmdOK[0], &screen.cmdOK[1]}}};
  layout.default_control = &screen.cmdOK[screen.erg_cont.visible ? 0 : 1];
  layout.focus_first = layout.default_control;
  layout.refuge = {Each(screen.cmdOK)};
}

}  // namespace

Layout Testergebnis::LayOut(Size page, const TextMeasure& measure) const {
  Layout layout;
  const double needed = kTop + kHeader + kGap + GridHeight(*this) + 2 * kGridEdge + kStrip;
  layout.canvas.height = std::max(layout.canvas.height, needed);
  layout.content.height = std::max(layout.content.height, needed);
  const Sheet sheet = SheetOf(
      {std::max(page.width, layout.content.width), std::max(page.height, layout.content.height)});

  FillHeader(layout, *this, sheet);
  FillGrid(layout, *this, sheet);
  layout.backdrops = {CardIn(erg_cont, sheet.page, sheet.header),
                      CardIn(erg_cont, sheet.page, sheet.body)};
  const double settings = kWidth - kUserCard - kBetween;
  FillUser(layout, *this, UserCard(*this, sheet), measure);
  const Rect card{sheet.body.right() - settings, sheet.body.top, settings, sheet.body.height};
  FillSettings(layout, *this, sheet, card, measure);
  FillButtons(layout, *this, sheet);
  FillKeys(layout, *this);
  return layout;
}

}  // namespace vmod17

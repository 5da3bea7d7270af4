// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <algorithm>
#include <string_view>

#include "forms/layout.h"
#include "worksheet/worksheet_screen.h"

namespace vmod17 {
namespace {

constexpr double kWidth = 983;  // answer area and action box together
constexpr double kStrip = 56;
constexpr double kHighestStrip = 84;
constexpr double kBoxHeight = 545;
constexpr double kBeyond = 8;  // by which the cards stand out above and below
constexpr double kHalfGap = 8;
constexpr double kGauge = 84;

constexpr int kTilesInRow = 6;
constexpr double kTileWidth = 100;
constexpr double kTileGap = 28;
constexpr double kTileGapAtGauge = 11;
constexpr double kTileMargin = 21;
constexpr double kTileEdge = 5;  // of the coloured frame around the picture
constexpr double kSymbolHeight = 40;

using Sheet = Arbeitsblatt1;

void FillStrip(Layout& layout, const Sheet& sheet, const Rect& strip) {
  auto& places = layout.places;
  const double middle = strip.center().x;
  const auto in_row = [&strip](double left, double width, double height) {
    return Rect{left, strip.center().y - height / 2, width, height};
  };
  const double right = middle + 36;  // of the sign in the middle
  places[&sheet.PicUebTyp] = {.rect = strip};
  places[&sheet.cmdHilfe] = {.rect = in_row(strip.left + 10, 40, 40),
                             .dress = Dress::kQuiet,
                             .text = 19,
                             .align = Align::kCenter};
  for (const Control* sign : Each(sheet.PicUetyp)) {
    places[sign] = {.rect = in_row(middle - 22, 44, 44)};
  }
  for (const Control* stop : {&sheet.cmd_test_aus, &sheet.cmd_test_ein}) {
    places[stop] = {
        .rect = in_row(middle - 36 - 196, 196, 36), .text = 14, .align = Align::kCenter};
  }
  for (const int i : sheet.ergebnis_anz.indexes()) {
    places[&sheet.ergebnis_anz[i]] = {.rect = in_row(right, 320, 44),
                                      .dress = i == 2 ? Dress::kHint : Dress::kPlain,
                                      .text = 18,
                                      .bold = true};
  }
  places[&sheet.stop_uhr] = {.rect = in_row(right, 172, 44), .text = 15};
  places[&sheet.lab_aufgaben] = {.rect = in_row(right + 182, 176, 44), .text = 15};
  places[&sheet.Uhr] = {.rect = in_row(strip.right() - 92, 76, 36),
                        .dress = Dress::kQuiet,
                        .text = 17,
                        .align = Align::kRight};
  if (sheet.PicUetyp[0].visible) {
    layout.title = in_row(strip.left + 64, middle - 36 - strip.left - 64, kStrip);
  } else if (sheet.PicUetyp[1].visible) {
    layout.title = in_row(strip.left + 64, 180, kStrip);
  } else {
    layout.title = in_row(middle - 210, 420, kStrip);
  }
  const bool centred = layout.title.center().x == middle;
  layout.title_text = layout.title.width < 200 ? 15 : 19;
  if (!centred) layout.title_align = Align::kLeft;
}

/// The gauge stands at the end of the answer area, next to the actions.
void FillGauge(Layout& layout, const Sheet& sheet, const Rect& box) {
  layout.places[&sheet.matboxanz] = {
      .rect = {box.right() - kHalfGap - kBeyond - kGauge, box.top, kGauge, kBoxHeight},
      .text = 13,
      .named_by = &sheet.ergebnis_anz[0],
      .ends = {&sheet.ergebnis_anz[1], &sheet.ergebnis_anz[2]}};
}

/// The answer area without the gauge.
Rect RoomForAnswers(const Sheet& sheet, const Rect& box) {
  return sheet.matboxanz.visible ? box.Adjusted(0, 0, -kGauge - kHalfGap, 0) : box;
}

/// Tops and heights of tiles and symbols are the program's; here is where they stand in a row.
void FillTiles(Layout& layout, const Sheet& sheet, const Rect& box) {
  const double gap = sheet.matboxanz.visible ? kTileGapAtGauge : kTileGap;
  for (const int i : sheet.klang_pan.indexes()) {
    const int column = (i - 1) % kTilesInRow;
    const int row = (i - 1) / kTilesInRow;
    const double x = box.left + kTileMargin + column * (kTileWidth + gap);
    const double y = box.top + row * 136;
    layout.places[&sheet.klang_pan[i]] = {.rect = {x, y + kSymbolHeight, kTileWidth, 84},
                                          .dress = Dress::kTile};
    layout.places[&sheet.Akkbez[i]] = {.rect = {x + 3, y, 94, kSymbolHeight}, .text = 15};
  }
}

/// The pictures fill their tiles but for the coloured edge.
void FillPictures(Layout& layout, const Sheet& sheet, const Rect& box) {
  for (const int i : sheet.jz_kl.indexes()) {
    const Panel& panel = sheet.klang_pan[i];
    Rect rect = layout.places[&panel].rect;
    if (panel.top) rect.top = box.top + *panel.top;
    if (panel.height) rect.height = *panel.height;
    layout.places[&sheet.jz_kl[i]] = {
        .rect = rect.Adjusted(kTileEdge, kTileEdge, -kTileEdge, -kTileEdge),
        .dress = Dress::kTile,
        .text = 15,
        .align = Align::kCenter};
  }
}

void FillGroups(Layout& layout, const Sheet& sheet, const Rect& box) {
  layout.places[&sheet.LbAkkGrp] = {
      .rect = {box.left + 28, box.top + 14, box.width - 56 - kHalfGap, 48},
      .dress = Dress::kHeading,
      .text = 18,
      .bold = true};
  const double gap = 20;
  const double width = (box.width - 56 - kHalfGap - gap) / 2;
  const double height = 92;
  for (const int g : sheet.akk_group.indexes()) {
    const int row = (g - 1) / 2;
    const int column = (g - 1) % 2;
    layout.places[&sheet.akk_group[g]] = {
        .rect = {box.left + 28 + column * (width + gap), box.top + 82 + row * (height + gap), width,
                 height},
        .dress = Dress::kLarge,
        .text = 21,
        .align = Align::kCenter};
  }
}

void FillSlots(Layout& layout, const Sheet& sheet, const Rect& box) {
  const double right = box.right() - 14;
  const double left = box.left + kHalfGap + 8;
  const double step = box.height < kBoxHeight ? 50 : 58;
  layout.places[&sheet.nrakk[0]] = {.rect = {left, box.top + 8, right - left, 24},
                                    .dress = Dress::kHeading,
                                    .text = 15,
                                    .bold = true};
  for (const int i : sheet.ergebnis.indexes()) {
    const double width = sheet.ergebnis[i].width.value_or(95);
    const double height = sheet.ergebnis[i].height.value_or(46);
    const double y = box.top + 38 + (i - 1) * step;
    const double label = right - width - 4 - left;
    const bool alone = sheet.jzakk_box[1].visible;  // nothing will stand under the slot's label
    layout.places[&sheet.nrakk[i]] = {
        .rect = {left, alone ? y : y + 2, label, alone ? height : 22}, .text = 15, .bold = true};
    layout.places[&sheet.akk_lfdnr[i]] = {
        .rect = {left, y + 25, label, 18}, .dress = Dress::kQuiet, .text = 12};
    layout.places[&sheet.ergebnis[i]] = {.rect = {right - width, y, width, height},
                                         .dress = Dress::kMark,
                                         .text = 16,
                                         .align = Align::kCenter,
                                         .bold = true};
    layout.places[&sheet.erg[i]] = {.rect = {right - width / 2 - 44, y + 3, 88, 40},
                                    .dress = Dress::kMark,
                                    .text = 15,
                                    .align = Align::kCenter};
  }
}

void FillCounters(Layout& layout, const Sheet& sheet, const Rect& box, double middle) {
  const double y = box.bottom() - 262;
  for (const int i : sheet.zaehler.indexes()) {
    const double left = i == 0 ? middle - 6 - 74 : middle + 6;
    layout.places[&sheet.true_false[i]] = {.rect = {left, y, 74, 20},
                                           .dress = Dress::kQuiet,
                                           .text = 14,
                                           .align = Align::kCenter,
                                           .capital = true};
    layout.places[&sheet.zaehler[i]] = {.rect = {left, y + 20, 74, 32},
                                        .text = 24,
                                        .align = Align::kCenter,
                                        .bold = true,
                                        .named_by = &sheet.true_false[i]};
  }
}

void FillButtons(Layout& layout, const Sheet& sheet, const Rect& box, double middle) {
  const double width = std::min(box.width - 2 * kHalfGap - 22, 220.0);
  const auto row = [&](double from_bottom, double height) {
    return Rect{middle - width / 2, box.bottom() - from_bottom, width, height};
  };
  for (const Control* next : {static_cast<const Control*>(&sheet.CmdNextAufg),
                              static_cast<const Control*>(&sheet.LbNextAufg)}) {
    layout.places[next] = {.rect = row(198, 52),
                           .dress = Dress::kPrimary,
                           .text = 15,
                           .align = Align::kCenter,
                           .bold = true};
  }
  for (const Control* again : {&sheet.wieder, &sheet.wieder2}) {
    layout.places[again] = {.rect = row(134, 42), .text = 15, .align = Align::kCenter};
  }
  layout.places[&sheet.whlgzaehler] = {.rect = row(90, 22),
                                       .dress = Dress::kQuiet,
                                       .text = 14,
                                       .align = Align::kCenter,
                                       .named_by = &sheet.wieder};
  // The red of its signal reads well on the yellow only in large and bold type.
  layout.places[&sheet.zurueck] = {
      .rect = row(50, 42), .text = 20, .align = Align::kCenter, .bold = true};
}

/// The keys that answer, by tile or group. The letters that are missing do something else.
constexpr std::string_view kAnswerKeys = "123456789ABCDEFGHIJLMOPQ";
static_assert(kAnswerKeys.size() == kBrettGroesse);

void FillKeys(Layout& layout, const Sheet& sheet) {
  layout.keys = {{{'N'}, {&sheet.CmdNextAufg}},
                 {{'R'}, {&sheet.wieder}},
                 {{'K'}, {&sheet.wieder2}},
                 {{Key::kEscape}, {&sheet.zurueck}, true}};
  for (const int i : sheet.jz_kl.indexes()) {
    KeyBinding answer{{kAnswerKeys[static_cast<std::size_t>(i - 1)]}, {&sheet.jz_kl[i]}};
    if (i <= sheet.akk_group.last()) answer.controls.push_back(&sheet.akk_group[i]);
    layout.keys.push_back(answer);
  }
  layout.focus_first = &sheet.CmdNextAufg;
  layout.refuge = {
      Each(sheet.jz_kl), Each(sheet.akk_group), {&sheet.CmdNextAufg}, {&sheet.wieder2}};
}

}  // namespace

Layout Arbeitsblatt1::LayOut(Size page, const TextMeasure&) const {
  Layout layout;
  const Frame& box = jzakk_box[1].visible ? jzakk_box[1] : jzakk_box[0];
  const double action_width = aktionsbox.width.value_or(193);
  const double action_height = aktionsbox.height ? *aktionsbox.height : kBoxHeight;
  const double answer_width = box.width ? *box.width : kWidth - action_width;
  const double width = answer_width + action_width;
  const double x = (page.width - width) / 2;
  // The header takes some of the height that is left, and stands close above its cards; what is
  // left then is above and below.
  const double cards = kBoxHeight + 2 * kBeyond;
  const double between = 2 * kHalfGap;
  const double strip = std::clamp(page.height - cards - 3 * between, kStrip, kHighestStrip);
  const double above = (page.height - cards - between - strip) / 2;
  FillStrip(layout, *this, {x, above, width, strip});
  const double y = above + strip + between + kBeyond;
  const Rect action{x + answer_width, y, action_width, action_height};
  const Rect answers{x, y, answer_width, kBoxHeight};
  layout.places[&jzakk_box[0]] = {.rect = answers};
  layout.places[&jzakk_box[1]] = {.rect = answers, .named_by = &LbAkkGrp};
  layout.places[&aktionsbox] = {.rect = action};
  layout.backdrops = {{&PicUebTyp},
                      {&jzakk_box[0], {0, kBeyond, -kHalfGap, kBeyond}},
                      {&jzakk_box[1], {0, kBeyond, -kHalfGap, kBeyond}},
                      {&aktionsbox, {-kHalfGap, kBeyond, 0, kBeyond}}};

  FillGauge(layout, *this, answers);
  FillTiles(layout, *this, answers);
  FillPictures(layout, *this, answers);
  FillGroups(layout, *this, RoomForAnswers(*this, answers));
  const double middle = action.center().x + kHalfGap / 2;
  FillSlots(layout, *this, action);
  FillCounters(layout, *this, action, middle);
  FillButtons(layout, *this, action, middle);
  const Point centre{page.width / 2, page.height / 2};
  // Room for what is said of lost sound in the longest language.
  layout.places[&WaitMeldung] = {.rect = {centre.x - 270, centre.y - 110, 540, 220},
                                 .dress = Dress::kNotice,
                                 .named_by = &WaitMeld};
  layout.places[&WaitMeld] = {
      .rect = {centre.x - 246, centre.y - 94, 492, 188}, .text = 20, .align = Align::kCenter};
  FillKeys(layout, *this);
  return layout;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <algorithm>
#include <string_view>

#include "platform/qt/layout.h"
#include "platform/qt/look.h"

namespace vmod17 {
namespace {

constexpr double kWidth = 983;  // answer area and action box together
constexpr double kTop = 10;
constexpr double kStrip = 56;
constexpr double kBoxHeight = 545;
constexpr double kBeyond = 8;  // by which the cards stand out above and below
constexpr double kHalfGap = 8;

constexpr int kTiles = 24;
constexpr int kTilesInRow = 6;
constexpr int kGroups = 8;
constexpr int kSlots = 4;

constexpr double kTileWidth = 100;
constexpr double kTileGap = 28;
constexpr double kTileMargin = 21;
constexpr double kTileEdge = 5;  // of the coloured frame around the picture
constexpr double kSymbolHeight = 40;

double WidthOf(const Form& form, const std::string& id, double otherwise) {
  const Control* control = FindControl(form, id);
  return control != nullptr && control->width ? *control->width : otherwise;
}

double HeightOf(const Form& form, const std::string& id, double otherwise) {
  const Control* control = FindControl(form, id);
  return control != nullptr && control->height ? *control->height : otherwise;
}

bool Visible(const Form& form, const std::string& id) {
  const Control* control = FindControl(form, id);
  return control != nullptr && control->visible;
}

void FillStrip(Layout& layout, const Form& form, const QRectF& strip) {
  auto& places = layout.places;
  const double middle = strip.center().x();
  const double y = strip.top();
  places["PicUebTyp"] = {.rect = strip};
  places["cmdHilfe"] = {.rect = QRectF(strip.left() + 10, y + 8, 40, 40),
                        .look = Look::kQuiet,
                        .text = 19,
                        .align = Qt::AlignCenter};
  for (int i = 0; i < 2; ++i) {
    places[IdOf("PicUetyp", i)] = {.rect = QRectF(middle - 22, y + 6, 44, 44)};
  }
  for (const char* id : {"cmd_test_aus", "cmd_test_ein"}) {
    places[id] = {
        .rect = QRectF(middle - 36 - 196, y + 10, 196, 36), .text = 14, .align = Qt::AlignCenter};
  }
  for (int i = 0; i < 3; ++i) {
    places[IdOf("ergebnis_anz", i)] = {.rect = QRectF(middle - 36 - 196, y + 6, 196, 44),
                                       .look = i == 2 ? Look::kHint : Look::kPlain,
                                       .text = 16,
                                       .align = Qt::AlignRight | Qt::AlignVCenter,
                                       .bold = true};
  }
  places["matboxanz"] = {.rect = QRectF(middle + 36, y + 7, 340, 43),
                         .text = 12.5,
                         .named_by = "ergebnis_anz(0)",
                         .ends = {"ergebnis_anz(1)", "ergebnis_anz(2)"}};
  places["stop_uhr"] = {.rect = QRectF(middle + 36, y + 6, 172, 44), .text = 15};
  places["lab_aufgaben"] = {.rect = QRectF(middle + 218, y + 6, 176, 44), .text = 15};
  places["Uhr"] = {.rect = QRectF(strip.right() - 92, y + 10, 76, 36),
                   .look = Look::kQuiet,
                   .text = 17,
                   .align = Qt::AlignRight | Qt::AlignVCenter};
  const bool counted = Visible(form, "PicUetyp(0)") || Visible(form, "PicUetyp(1)");
  layout.title = counted ? QRectF(strip.left() + 64, y, 180, strip.height())
                         : QRectF(middle - 210, y, 420, strip.height());
  layout.title_text = counted ? 15 : 19;
  if (counted) layout.title_align = Qt::AlignLeft | Qt::AlignVCenter;
}

/// Tops and heights of tiles and symbols are the program's; here is where they stand in a row.
void FillTiles(Layout& layout, const QRectF& box) {
  for (int i = 1; i <= kTiles; ++i) {
    const int column = (i - 1) % kTilesInRow;
    const int row = (i - 1) / kTilesInRow;
    const double x = box.left() + kTileMargin + column * (kTileWidth + kTileGap);
    const double y = box.top() + row * 136;
    layout.places[IdOf("klang_pan", i)] = {.rect = QRectF(x, y + kSymbolHeight, kTileWidth, 84),
                                           .look = Look::kTile};
    layout.places[IdOf("Akkbez", i)] = {.rect = QRectF(x + 3, y, 94, kSymbolHeight), .text = 15};
  }
}

/// The pictures fill their tiles but for the coloured edge.
void FillPictures(Layout& layout, const Form& form) {
  for (int i = 1; i <= kTiles; ++i) {
    const Placement& tile = layout.places[IdOf("klang_pan", i)];
    const Control* const panel = FindControl(form, IdOf("klang_pan", i));
    QRectF rect = tile.rect;
    if (panel != nullptr && panel->top) {
      rect.moveTop(layout.places["jzakk_box(0)"].rect.top() + *panel->top);
    }
    if (panel != nullptr && panel->height) rect.setHeight(*panel->height);
    layout.places[IdOf("jz_kl", i)] = {
        .rect = rect.adjusted(kTileEdge, kTileEdge, -kTileEdge, -kTileEdge),
        .look = Look::kTile,
        .text = 15,
        .align = Qt::AlignCenter};
  }
}

void FillGroups(Layout& layout, const QRectF& box) {
  layout.places["LbAkkGrp"] = {
      .rect = QRectF(box.left() + 28, box.top() + 14, box.width() - 56 - kHalfGap, 48),
      .look = Look::kHeading,
      .text = 18,
      .bold = true};
  const double gap = 20;
  const double width = (box.width() - 56 - kHalfGap - gap) / 2;
  const double height = 92;
  for (int g = 1; g <= kGroups; ++g) {
    const int row = (g - 1) / 2;
    const int column = (g - 1) % 2;
    layout.places[IdOf("akk_group", g)] = {
        .rect = QRectF(box.left() + 28 + column * (width + gap),
                       box.top() + 82 + row * (height + gap), width, height),
        .look = Look::kLarge,
        .text = 21,
        .align = Qt::AlignCenter};
  }
}

void FillSlots(Layout& layout, const QRectF& box, const Form& form) {
  const double right = box.right() - 14;
  const double left = box.left() + kHalfGap + 14;
  const double step = box.height() < kBoxHeight ? 50 : 58;
  layout.places["nrakk(0)"] = {.rect = QRectF(left, box.top() + 8, right - left, 24),
                               .look = Look::kHeading,
                               .text = 15,
                               .bold = true};
  for (int i = 1; i <= kSlots; ++i) {
    const double width = WidthOf(form, IdOf("ergebnis", i), 95);
    const double height = HeightOf(form, IdOf("ergebnis", i), 46);
    const double y = box.top() + 38 + (i - 1) * step;
    const double label = right - width - 6 - left;
    const bool alone = Visible(form, "jzakk_box(1)");  // nothing will stand under the slot's label
    layout.places[IdOf("nrakk", i)] = {
        .rect = QRectF(left, alone ? y : y + 2, label, alone ? height : 22),
        .text = 15,
        .bold = true};
    layout.places[IdOf("akk_lfdnr", i)] = {
        .rect = QRectF(left, y + 25, label, 18), .look = Look::kQuiet, .text = 12};
    layout.places[IdOf("ergebnis", i)] = {.rect = QRectF(right - width, y, width, height),
                                          .look = Look::kMark,
                                          .text = 16,
                                          .align = Qt::AlignCenter,
                                          .bold = true};
    layout.places[IdOf("erg", i)] = {.rect = QRectF(right - width / 2 - 44, y + 3, 88, 40),
                                     .look = Look::kMark,
                                     .text = 15,
                                     .align = Qt::AlignCenter};
  }
}

void FillCounters(Layout& layout, const QRectF& box, double middle) {
  const double y = box.bottom() - 262;
  for (int i = 0; i < 2; ++i) {
    const double left = i == 0 ? middle - 6 - 74 : middle + 6;
    layout.places[IdOf("true_false", i)] = {.rect = QRectF(left, y, 74, 20),
                                            .look = Look::kQuiet,
                                            .text = 14,
                                            .align = Qt::AlignCenter,
                                            .capital = true};
    layout.places[IdOf("zaehler", i)] = {.rect = QRectF(left, y + 20, 74, 32),
                                         .text = 24,
                                         .align = Qt::AlignCenter,
                                         .bold = true,
                                         .named_by = IdOf("true_false", i)};
  }
}

void FillButtons(Layout& layout, const QRectF& box, double middle) {
  const double width = std::min(box.width() - 2 * kHalfGap - 22, 220.0);
  const auto row = [&](double from_bottom, double height) {
    return QRectF(middle - width / 2, box.bottom() - from_bottom, width, height);
  };
  for (const char* id : {"CmdNextAufg", "LbNextAufg"}) {
    layout.places[id] = {.rect = row(198, 52),
                         .look = Look::kPrimary,
                         .text = 15,
                         .align = Qt::AlignCenter,
                         .bold = true};
  }
  for (const char* id : {"wieder", "wieder2"}) {
    layout.places[id] = {.rect = row(134, 42), .text = 15, .align = Qt::AlignCenter};
  }
  layout.places["whlgzaehler"] = {.rect = row(90, 22),
                                  .look = Look::kQuiet,
                                  .text = 14,
                                  .align = Qt::AlignCenter,
                                  .named_by = "wieder"};
  // The red of its signal reads well on the yellow only in large and bold type.
  layout.places["zurueck"] = {
      .rect = row(50, 42), .text = 20, .align = Qt::AlignCenter, .bold = true};
}

/// The keys that answer, by tile or group. The letters that are missing do something else.
constexpr std::string_view kAnswerKeys = "123456789ABCDEFGHIJLMOPQ";

void FillKeys(Layout& layout) {
  layout.keys = {{QKeySequence(Qt::Key_N), {"CmdNextAufg"}},
                 {QKeySequence(Qt::Key_R), {"wieder"}},
                 {QKeySequence(Qt::Key_K), {"wieder2"}},
                 {QKeySequence(Qt::Key_Escape), {"zurueck"}}};
  for (int i = 1; i <= kTiles; ++i) {
    layout.keys.push_back({QKeySequence(kAnswerKeys[static_cast<std::size_t>(i - 1)]),
                           {IdOf("jz_kl", i), IdOf("akk_group", i)}});
  }
  layout.focus_first = "CmdNextAufg";
  layout.refuge = {"jz_kl", "akk_group", "CmdNextAufg", "wieder2"};
}

}  // namespace

Layout LayoutWorksheet(const Form& form, const QSizeF& page) {
  Layout layout;
  const std::string box = Visible(form, "jzakk_box(1)") ? "jzakk_box(1)" : "jzakk_box(0)";
  const double action_width = WidthOf(form, "aktionsbox", 193);
  const double action_height = HeightOf(form, "aktionsbox", kBoxHeight);
  const double answer_width = WidthOf(form, box, kWidth - action_width);
  const double width = answer_width + action_width;
  const double x = (page.width() - width) / 2;
  FillStrip(layout, form, QRectF(x, kTop, width, kStrip));

  const double below = kTop + kStrip;
  const double y = below + (page.height() - below - kBoxHeight) / 2;
  const QRectF action(x + answer_width, y, action_width, action_height);
  const QRectF answers(x, y, answer_width, kBoxHeight);
  layout.places["jzakk_box(0)"] = {.rect = answers};
  layout.places["jzakk_box(1)"] = {.rect = answers, .named_by = "LbAkkGrp"};
  layout.places["aktionsbox"] = {.rect = action};
  layout.backdrops = {{"PicUebTyp", QMarginsF()},
                      {"jzakk_box(0)", QMarginsF(0, kBeyond, -kHalfGap, kBeyond)},
                      {"jzakk_box(1)", QMarginsF(0, kBeyond, -kHalfGap, kBeyond)},
                      {"aktionsbox", QMarginsF(-kHalfGap, kBeyond, 0, kBeyond)}};

  FillTiles(layout, answers);
  FillPictures(layout, form);
  FillGroups(layout, answers);
  const double middle = action.center().x() + kHalfGap / 2;
  FillSlots(layout, action, form);
  FillCounters(layout, action, middle);
  FillButtons(layout, action, middle);
  const QPointF centre(page.width() / 2, page.height() / 2);
  layout.places["WaitMeldung"] = {.rect = QRectF(centre.x() - 200, centre.y() - 60, 400, 120),
                                  .look = Look::kNotice,
                                  .named_by = "WaitMeld"};
  layout.places["WaitMeld"] = {.rect = QRectF(centre.x() - 176, centre.y() - 40, 352, 80),
                               .text = 20,
                               .align = Qt::AlignCenter};
  FillKeys(layout);
  return layout;
}

}  // namespace vmod17

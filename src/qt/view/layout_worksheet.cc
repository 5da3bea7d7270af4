// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <algorithm>
#include <string_view>

#include "qt/kit/look.h"
#include "qt/view/layout.h"

namespace vmod17 {
namespace {

constexpr double kWidth = 983;  // answer area and action box together
constexpr double kStrip = 56;
constexpr double kHighestStrip = 84;
constexpr double kBoxHeight = 545;
constexpr double kBeyond = 8;  // by which the cards stand out above and below
constexpr double kHalfGap = 8;
constexpr double kGauge = 84;

constexpr int kTiles = 24;
constexpr int kTilesInRow = 6;
constexpr int kGroups = 8;
constexpr int kSlots = 4;

constexpr double kTileWidth = 100;
constexpr double kTileGap = 28;
constexpr double kTileGapAtGauge = 11;
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
  const auto in_row = [&strip](double left, double width, double height) {
    return QRectF(left, strip.center().y() - height / 2, width, height);
  };
  const double right = middle + 36;  // of the sign in the middle
  places["PicUebTyp"] = {.rect = strip};
  places["cmdHilfe"] = {.rect = in_row(strip.left() + 10, 40, 40),
                        .dress = Dress::kQuiet,
                        .text = 19,
                        .align = Qt::AlignCenter};
  for (int i = 0; i < 2; ++i) {
    places[IdOf("PicUetyp", i)] = {.rect = in_row(middle - 22, 44, 44)};
  }
  for (const char* id : {"cmd_test_aus", "cmd_test_ein"}) {
    places[id] = {.rect = in_row(middle - 36 - 196, 196, 36), .text = 14, .align = Qt::AlignCenter};
  }
  for (int i = 0; i < 3; ++i) {
    places[IdOf("ergebnis_anz", i)] = {.rect = in_row(right, 320, 44),
                                       .dress = i == 2 ? Dress::kHint : Dress::kPlain,
                                       .text = 18,
                                       .bold = true};
  }
  places["stop_uhr"] = {.rect = in_row(right, 172, 44), .text = 15};
  places["lab_aufgaben"] = {.rect = in_row(right + 182, 176, 44), .text = 15};
  places["Uhr"] = {.rect = in_row(strip.right() - 92, 76, 36),
                   .dress = Dress::kQuiet,
                   .text = 17,
                   .align = Qt::AlignRight | Qt::AlignVCenter};
  if (Visible(form, "PicUetyp(0)")) {
    layout.title = in_row(strip.left() + 64, middle - 36 - strip.left() - 64, kStrip);
  } else if (Visible(form, "PicUetyp(1)")) {
    layout.title = in_row(strip.left() + 64, 180, kStrip);
  } else {
    layout.title = in_row(middle - 210, 420, kStrip);
  }
  const bool centred = layout.title.center().x() == middle;
  layout.title_text = layout.title.width() < 200 ? 15 : 19;
  if (!centred) layout.title_align = Qt::AlignLeft | Qt::AlignVCenter;
}

/// The gauge stands at the end of the answer area, next to the actions.
void FillGauge(Layout& layout, const QRectF& box) {
  layout.places["matboxanz"] = {
      .rect = QRectF(box.right() - kHalfGap - kBeyond - kGauge, box.top(), kGauge, kBoxHeight),
      .text = 13,
      .named_by = "ergebnis_anz(0)",
      .ends = {"ergebnis_anz(1)", "ergebnis_anz(2)"}};
}

/// The answer area without the gauge.
QRectF RoomForAnswers(const Form& form, const QRectF& box) {
  const bool gauge = Visible(form, "matboxanz");
  return gauge ? box.adjusted(0, 0, -kGauge - kHalfGap, 0) : box;
}

/// Tops and heights of tiles and symbols are the program's; here is where they stand in a row.
void FillTiles(Layout& layout, const Form& form, const QRectF& box) {
  const double gap = Visible(form, "matboxanz") ? kTileGapAtGauge : kTileGap;
  for (int i = 1; i <= kTiles; ++i) {
    const int column = (i - 1) % kTilesInRow;
    const int row = (i - 1) / kTilesInRow;
    const double x = box.left() + kTileMargin + column * (kTileWidth + gap);
    const double y = box.top() + row * 136;
    layout.places[IdOf("klang_pan", i)] = {.rect = QRectF(x, y + kSymbolHeight, kTileWidth, 84),
                                           .dress = Dress::kTile};
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
        .dress = Dress::kTile,
        .text = 15,
        .align = Qt::AlignCenter};
  }
}

void FillGroups(Layout& layout, const QRectF& box) {
  layout.places["LbAkkGrp"] = {
      .rect = QRectF(box.left() + 28, box.top() + 14, box.width() - 56 - kHalfGap, 48),
      .dress = Dress::kHeading,
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
        .dress = Dress::kLarge,
        .text = 21,
        .align = Qt::AlignCenter};
  }
}

void FillSlots(Layout& layout, const QRectF& box, const Form& form) {
  const double right = box.right() - 14;
  const double left = box.left() + kHalfGap + 8;
  const double step = box.height() < kBoxHeight ? 50 : 58;
  layout.places["nrakk(0)"] = {.rect = QRectF(left, box.top() + 8, right - left, 24),
                               .dress = Dress::kHeading,
                               .text = 15,
                               .bold = true};
  for (int i = 1; i <= kSlots; ++i) {
    const double width = WidthOf(form, IdOf("ergebnis", i), 95);
    const double height = HeightOf(form, IdOf("ergebnis", i), 46);
    const double y = box.top() + 38 + (i - 1) * step;
    const double label = right - width - 4 - left;
    const bool alone = Visible(form, "jzakk_box(1)");  // nothing will stand under the slot's label
    layout.places[IdOf("nrakk", i)] = {
        .rect = QRectF(left, alone ? y : y + 2, label, alone ? height : 22),
        .text = 15,
        .bold = true};
    layout.places[IdOf("akk_lfdnr", i)] = {
        .rect = QRectF(left, y + 25, label, 18), .dress = Dress::kQuiet, .text = 12};
    layout.places[IdOf("ergebnis", i)] = {.rect = QRectF(right - width, y, width, height),
                                          .dress = Dress::kMark,
                                          .text = 16,
                                          .align = Qt::AlignCenter,
                                          .bold = true};
    layout.places[IdOf("erg", i)] = {.rect = QRectF(right - width / 2 - 44, y + 3, 88, 40),
                                     .dress = Dress::kMark,
                                     .text = 15,
                                     .align = Qt::AlignCenter};
  }
}

void FillCounters(Layout& layout, const QRectF& box, double middle) {
  const double y = box.bottom() - 262;
  for (int i = 0; i < 2; ++i) {
    const double left = i == 0 ? middle - 6 - 74 : middle + 6;
    layout.places[IdOf("true_false", i)] = {.rect = QRectF(left, y, 74, 20),
                                            .dress = Dress::kQuiet,
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
                         .dress = Dress::kPrimary,
                         .text = 15,
                         .align = Qt::AlignCenter,
                         .bold = true};
  }
  for (const char* id : {"wieder", "wieder2"}) {
    layout.places[id] = {.rect = row(134, 42), .text = 15, .align = Qt::AlignCenter};
  }
  layout.places["whlgzaehler"] = {.rect = row(90, 22),
                                  .dress = Dress::kQuiet,
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
                 {QKeySequence(Qt::Key_Escape), {"zurueck"}, true}};
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
  // The header takes some of the height that is left, and stands close above its cards; what is
  // left then is above and below.
  const double cards = kBoxHeight + 2 * kBeyond;
  const double between = 2 * kHalfGap;
  const double strip = std::clamp(page.height() - cards - 3 * between, kStrip, kHighestStrip);
  const double above = (page.height() - cards - between - strip) / 2;
  FillStrip(layout, form, QRectF(x, above, width, strip));
  const double y = above + strip + between + kBeyond;
  const QRectF action(x + answer_width, y, action_width, action_height);
  const QRectF answers(x, y, answer_width, kBoxHeight);
  layout.places["jzakk_box(0)"] = {.rect = answers};
  layout.places["jzakk_box(1)"] = {.rect = answers, .named_by = "LbAkkGrp"};
  layout.places["aktionsbox"] = {.rect = action};
  layout.backdrops = {{"PicUebTyp", QMarginsF()},
                      {"jzakk_box(0)", QMarginsF(0, kBeyond, -kHalfGap, kBeyond)},
                      {"jzakk_box(1)", QMarginsF(0, kBeyond, -kHalfGap, kBeyond)},
                      {"aktionsbox", QMarginsF(-kHalfGap, kBeyond, 0, kBeyond)}};

  FillGauge(layout, answers);
  FillTiles(layout, form, answers);
  FillPictures(layout, form);
  FillGroups(layout, RoomForAnswers(form, answers));
  const double middle = action.center().x() + kHalfGap / 2;
  FillSlots(layout, action, form);
  FillCounters(layout, action, middle);
  FillButtons(layout, action, middle);
  const QPointF centre(page.width() / 2, page.height() / 2);
  // Room for what is said of lost sound in the longest language.
  layout.places["WaitMeldung"] = {.rect = QRectF(centre.x() - 270, centre.y() - 110, 540, 220),
                                  .dress = Dress::kNotice,
                                  .named_by = "WaitMeld"};
  layout.places["WaitMeld"] = {.rect = QRectF(centre.x() - 246, centre.y() - 94, 492, 188),
                               .text = 20,
                               .align = Qt::AlignCenter};
  FillKeys(layout);
  return layout;
}

}  // namespace vmod17

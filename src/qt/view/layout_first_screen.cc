// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/look.h"
#include "qt/view/layout.h"

namespace vmod17 {
namespace {

constexpr double kWidth = 520;
constexpr double kBanner = 132;
constexpr double kHeight = 440;  // the panel, with the banner as its head
constexpr double kMargin = 40;
constexpr double kOrnament = 100;  // right of the title

}  // namespace

Layout LayoutFirstScreen(const Form&, const QSizeF& page) {
  Layout layout;
  const double x = (page.width() - kWidth) / 2;
  const double y = (page.height() - kHeight) / 3;
  const double inside = kWidth - 2 * kMargin;

  layout.banner = QRectF(x, y, kWidth, kBanner);
  layout.title = QRectF(x + kMargin, y + 12, inside - kOrnament, kBanner - 24);
  layout.title_text = 25;
  layout.title_align = Qt::AlignLeft | Qt::AlignVCenter;

  auto& places = layout.places;
  places["PicAktion"] = {.rect = QRectF(x, y, kWidth, kHeight)};
  layout.backdrops = {{"PicAktion", QMarginsF()}};
  places["grdeinst(0)"] = {.rect = QRectF(x + kMargin, y + kBanner + 24, inside, 164),
                           .named_by = "grdeinst_lb(0)"};
  const double choice = y + kBanner + 24;
  places["grdeinst_lb(0)"] = {.rect = QRectF(x + kMargin, choice, inside, 28),
                              .dress = Dress::kHeading,
                              .text = 17,
                              .bold = true};
  for (int i = 1; i <= 3; ++i) {
    places[IdOf("ueb_typ", i)] = {
        .rect = QRectF(x + kMargin, choice + 38 + (i - 1) * 42, inside, 36), .text = 17};
  }
  const double bottom = y + kHeight - 32 - 48;
  places["cmdHilfe"] = {.rect = QRectF(x + kMargin, bottom + 2, 44, 44),
                        .dress = Dress::kQuiet,
                        .text = 20,
                        .align = Qt::AlignCenter};
  places["cmdEnde"] = {.rect = QRectF(x + kWidth - kMargin - 180 - 16 - 120, bottom, 120, 48),
                       .text = 16,
                       .align = Qt::AlignCenter};
  places["cmdOK"] = {.rect = QRectF(x + kWidth - kMargin - 180, bottom, 180, 48),
                     .dress = Dress::kPrimary,
                     .text = 19,
                     .align = Qt::AlignCenter,
                     .bold = true};
  places["versionszeile"] = {.rect = QRectF(x, y + kHeight + 16, kWidth, 22),
                             .dress = Dress::kQuiet,
                             .text = 13,
                             .align = Qt::AlignCenter};

  layout.keys = {{QKeySequence(Qt::CTRL | Qt::Key_Q), {"cmdEnde"}}};
  layout.default_control = "cmdOK";
  layout.focus_first = "cmdOK";
  layout.refuge = {"cmdOK", "cmdEnde"};
  return layout;
}

}  // namespace vmod17

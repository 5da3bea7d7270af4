// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "forms/layout.h"
#include "shell/first_screen.h"

namespace vmod17 {
namespace {

constexpr double kWidth = 520;
constexpr double kBanner = 132;
constexpr double kHeight = 440;  // the panel, with the banner as its head
constexpr double kMargin = 40;
constexpr double kOrnament = 100;  // right of the title

}  // namespace

Layout GrdEinst::LayOut(Size page, const TextMeasure&) const {
  Layout layout;
  const double x = (page.width - kWidth) / 2;
  const double y = (page.height - kHeight) / 3;
  const double inside = kWidth - 2 * kMargin;

  layout.banner = {x, y, kWidth, kBanner};
  layout.title = {x + kMargin, y + 12, inside - kOrnament, kBanner - 24};
  layout.title_text = 25;
  layout.title_align = Align::kLeft;

  auto& places = layout.places;
  places[&PicAktion] = {.rect = {x, y, kWidth, kHeight}};
  layout.backdrops = {{&PicAktion}};
  places[&grdeinst[0]] = {.rect = {x + kMargin, y + kBanner + 24, inside, 164},
                          .named_by = &grdeinst_lb[0]};
  const double choice = y + kBanner + 24;
  places[&grdeinst_lb[0]] = {.rect = {x + kMargin, choice, inside, 28},
                             .dress = Dress::kHeading,
                             .text = 17,
                             .bold = true};
  for (int i = ueb_typ.first(); i <= ueb_typ.last(); ++i) {
    const int row = i - ueb_typ.first();
    places[&ueb_typ[i]] = {.rect = {x + kMargin, choice + 38 + row * 42, inside, 36}, .text = 17};
  }
  const double bottom = y + kHeight - 32 - 48;
  places[&cmdHilfe] = {.rect = {x + kMargin, bottom + 2, 44, 44},
                       .dress = Dress::kQuiet,
                       .text = 20,
                       .align = Align::kCenter};
  places[&cmdEnde] = {.rect = {x + kWidth - kMargin - 180 - 16 - 120, bottom, 120, 48},
                      .text = 16,
                      .align = Align::kCenter};
  places[&cmdOK] = {.rect = {x + kWidth - kMargin - 180, bottom, 180, 48},
                    .dress = Dress::kPrimary,
                    .text = 19,
                    .align = Align::kCenter,
                    .bold = true};
  places[&versionszeile] = {.rect = {x, y + kHeight + 16, kWidth, 22},
                            .dress = Dress::kQuiet,
                            .text = 13,
                            .align = Align::kCenter};

  layout.keys = {{{'Q', Key::With::kControl}, {&cmdEnde}}};
  layout.default_control = &cmdOK;
  layout.focus_first = &cmdOK;
  layout.refuge = {{&cmdOK}, {&cmdEnde}};
  return layout;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "forms/controls.h"
#include "forms/layout.h"
#include "support/even_measure.h"

// What is true of the layout of every screen.

namespace vmod17 {

/// Pages in units, as they come of screens of 1024 by 768, 1280 by 680, 1008 by 640 and 2560 by
/// 1440 pixels.
inline const std::vector<Size> kPages = {{1024, 768}, {1242, 660}, {1040, 660}, {1173, 660}};

inline Layout LaidOut(const Form& form, const Size& page) {
  return form.LayOut(page, EvenMeasure());
}

inline bool IsShown(const Control& control) {
  for (const Control* c = &control; c != nullptr; c = c->container) {
    if (!c->visible) return false;
  }
  return true;
}

inline Controls ShownIn(const Form& form, const Layout& layout) {
  Controls shown;
  for (const Control* control : form.controls()) {
    if (layout.places.contains(control) && IsShown(*control)) shown.push_back(control);
  }
  return shown;
}

/// Half a unit is no step outside.
inline bool Holds(const Rect& outer, const Rect& inner) {
  constexpr double kSlack = 0.5;
  return inner.left >= outer.left - kSlack && inner.top >= outer.top - kSlack &&
         inner.right() <= outer.right() + kSlack && inner.bottom() <= outer.bottom() + kSlack;
}

inline bool Meet(const Rect& one, const Rect& other) {
  constexpr double kSlack = 0.5;
  return std::min(one.right(), other.right()) - std::max(one.left, other.left) > kSlack &&
         std::min(one.bottom(), other.bottom()) - std::max(one.top, other.top) > kSlack;
}

/// Only what is there to hold others may have them on it; and the solution of a slot lies on the
/// slot's mark.
inline bool MayLieOn(const Layout& layout, const Control& inner, const Control& area) {
  if (inner.name() == "erg" && area.name() == "ergebnis") return true;
  const Dress dress = layout.places.at(&area).dress;
  const bool holds =
      area.kind() == Control::Kind::kFrame || inner.container == &area ||
      (area.kind() == Control::Kind::kPanel && dress != Dress::kMark && dress != Dress::kLarge);
  return holds && Holds(layout.PlaceOf(area), layout.PlaceOf(inner));
}

inline void ExpectNothingCoversAnother(const Form& form, const Layout& layout) {
  const Controls shown = ShownIn(form, layout);
  for (std::size_t i = 0; i < shown.size(); ++i) {
    for (std::size_t j = i + 1; j < shown.size(); ++j) {
      const Control& one = *shown[i];
      const Control& other = *shown[j];
      if (MayLieOn(layout, one, other) || MayLieOn(layout, other, one)) continue;
      EXPECT_FALSE(Meet(layout.PlaceOf(one), layout.PlaceOf(other)))
          << one.Id() << " and " << other.Id();
    }
  }
}

inline void ExpectAllIsOnThePage(const Form& form, const Layout& layout, const Size& page) {
  for (const Control* control : ShownIn(form, layout)) {
    const Rect place = layout.PlaceOf(*control);
    EXPECT_FALSE(place.empty()) << control->Id();
    EXPECT_TRUE(Holds({0, 0, page.width, page.height}, place)) << control->Id();
  }
}

/// Only what works by itself, and menus, are without a place, and those that are named here.
inline void ExpectAPlaceForEachBut(const Controls& without, const Form& form) {
  const Layout layout = LaidOut(form, kPages[0]);
  for (const Control* control : form.controls()) {
    const bool never = control->kind() == Control::Kind::kUnseen ||
                       control->kind() == Control::Kind::kPopupMenu ||
                       std::ranges::find(without, control) != without.end();
    EXPECT_EQ(layout.places.contains(control), !never) << control->Id();
  }
  for (const auto& [control, place] : layout.places) {
    EXPECT_TRUE(std::ranges::find(form.controls(), control) != form.controls().end());
  }
}

/// Whatever the layout speaks of has a place in it.
inline void ExpectNoneIsSpokenOfWithoutAPlace(const Form& form) {
  const Layout layout = LaidOut(form, kPages[0]);
  const auto expect = [&layout](const Control* control) {
    if (control == nullptr) return;
    EXPECT_TRUE(layout.places.contains(control)) << control->Id();
  };
  for (const auto& [control, place] : layout.places) {
    expect(place.named_by);
    expect(place.ends[0]);
    expect(place.ends[1]);
  }
  for (const KeyBinding& key : layout.keys) {
    for (const Control* control : key.controls) expect(control);
  }
  for (const Backdrop& backdrop : layout.backdrops) expect(backdrop.control);
  for (const Control* frame : layout.vacancies) expect(frame);
  for (const Controls& refuge : layout.refuge) {
    for (const Control* control : refuge) expect(control);
  }
  expect(layout.default_control);
  expect(layout.focus_first);
}

inline void ExpectNoKeyHasTwoThingsToDo(const Form& form) {
  std::set<std::pair<char, Key::With>> keys;
  for (const KeyBinding& binding : LaidOut(form, kPages[0]).keys) {
    EXPECT_TRUE(keys.emplace(binding.key.sign, binding.key.with).second) << binding.key.sign;
  }
}

/// As it is now, on each of the pages.
inline void ExpectASoundLayout(const Form& form, const std::vector<Size>& pages = kPages) {
  ExpectNoneIsSpokenOfWithoutAPlace(form);
  ExpectNoKeyHasTwoThingsToDo(form);
  for (const Size& page : pages) {
    const Layout layout = LaidOut(form, page);
    ExpectAllIsOnThePage(form, layout, page);
    ExpectNothingCoversAnother(form, layout);
  }
}

}  // namespace vmod17

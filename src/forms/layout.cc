// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "forms/layout.h"

#include "forms/control.h"

namespace vmod17 {

Rect Layout::PlaceOf(const Control& control) const {
  const auto found = places.find(&control);
  const Placement place = found == places.end() ? Placement{} : found->second;
  Point origin;  // of what the program places in the container
  if (control.container != nullptr) {
    const Rect container = PlaceOf(*control.container);
    const auto frame = places.find(control.container);
    const double head = frame == places.end() ? 0 : frame->second.head;
    origin = {container.left, container.top + head};
  }
  Rect rect = place.rect;
  if (control.left) rect.left = origin.x + *control.left;
  if (control.top) rect.top = origin.y + *control.top;
  if (control.width) rect.width = *control.width;
  if (control.height) rect.height = *control.height;
  const double beyond = std::max(0.0, place.least_width - rect.width) / 2;
  return rect.Adjusted(-beyond, 0, beyond, 0);
}

}  // namespace vmod17

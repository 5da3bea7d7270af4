// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <QAccessible>

// The toolkit tells of no event where the platform has no assistive technology, and the platform of
// the tests has none. These stand in for the toolkit's own in the test program: once it is set
// active, a handler that is installed hears all that an assistive technology would be told.

namespace {

bool active = false;

}  // namespace

void QAccessible::setActive(bool on) { active = on; }

bool QAccessible::isActive() { return active; }

void QAccessible::updateAccessibility(QAccessibleEvent* event) {
  if (!active || event->accessibleInterface() == nullptr) return;
  const UpdateHandler handler = installUpdateHandler(nullptr);
  installUpdateHandler(handler);
  if (handler != nullptr) handler(event);
}

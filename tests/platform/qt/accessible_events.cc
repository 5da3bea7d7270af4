// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <QAccessible>

// The toolkit tells of no event where the platform has no assistive technology, and the platform of
// the tests has none. These two stand in for the toolkit's own in the test program: a handler that
// is installed hears all that an assistive technology would be told.

namespace {

QAccessible::UpdateHandler Handler() {
  const QAccessible::UpdateHandler handler = QAccessible::installUpdateHandler(nullptr);
  QAccessible::installUpdateHandler(handler);
  return handler;
}

}  // namespace

bool QAccessible::isActive() { return Handler() != nullptr; }

void QAccessible::updateAccessibility(QAccessibleEvent* event) {
  const UpdateHandler handler = Handler();
  if (handler != nullptr && event->accessibleInterface() != nullptr) handler(event);
}

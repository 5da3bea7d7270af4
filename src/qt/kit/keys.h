// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QKeyEvent>

namespace vmod17 {

inline bool IsEnter(const QKeyEvent* event) {
  return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

/// Whether a key leads from one control of an array to another.
inline bool LeadsOn(const QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
      return true;
    default:
      return false;
  }
}

}  // namespace vmod17

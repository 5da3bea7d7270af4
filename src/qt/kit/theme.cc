// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/theme.h"

#include <QApplication>
#include <QEvent>
#include <QToolTip>

#include "qt/kit/look.h"

namespace vmod17 {

Theme::Theme() {
  Follow();
  qApp->installEventFilter(this);
}

void Theme::Follow() {
  busy_ = true;
  own_ = look::ForToolkit(look::PresentColors());
  QApplication::setPalette(own_);
  own_ = QApplication::palette();
  QToolTip::setPalette(own_);
  busy_ = false;
}

bool Theme::eventFilter(QObject*, QEvent* event) {
  if (busy_) return false;
  if (event->type() == QEvent::ApplicationPaletteChange && QApplication::palette() != own_) {
    Follow();
  } else if (event->type() == QEvent::ThemeChange) {
    // With a palette of its own the application does not look at the desktop's.
    busy_ = true;
    QApplication::setPalette(QPalette());
    Follow();
  }
  return false;
}

}  // namespace vmod17

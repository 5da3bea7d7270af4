// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/desk/raise_window.h"

#include <QApplication>
#include <QWidget>

namespace vmod17 {

void RaiseWindow(QWidget* window) {
  for (QWidget* each : {window, QApplication::activeModalWidget()}) {
    if (each == nullptr || !each->isVisible()) continue;
    each->setWindowState(each->windowState() & ~Qt::WindowMinimized);
    each->raise();
    each->activateWindow();
  }
}

}  // namespace vmod17

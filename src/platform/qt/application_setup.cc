// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/qt/application_setup.h"

#include <QApplication>

namespace vmod17 {

void SetUpApplication() {
  QApplication::setDesktopFileName("melvado");
  QApplication::setQuitOnLastWindowClosed(false);
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QWidget;

// A window bears its factor, the number of pixels of a unit, in its type: messages, dialogs and the
// help, which stand in front of it, take their size from there.

namespace vmod17 {

/// Returns whether the window had another one.
bool SetFactor(QWidget& window, double factor);

/// That of a window of which it was set.
double FactorOf(const QWidget& window);

}  // namespace vmod17

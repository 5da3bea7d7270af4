// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QWidget;

namespace vmod17 {

/// Brings a window and the dialog that waits for an answer to the front, minimised ones as well;
/// one that is hidden stays so.
///
/// `window`  may be null
void RaiseWindow(QWidget* window);

}  // namespace vmod17

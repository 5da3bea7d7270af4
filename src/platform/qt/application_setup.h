// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

namespace vmod17 {

/// What both programs tell the desktop of themselves. Call it once, before the first window.
///
/// They have no display name: the toolkit would append it to the title of every window and dialog.
void SetUpApplication();

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QApplication>
#include <memory>

namespace vmod17 {

/// The exit status of a program that could show its user nothing of its work: there is no display,
/// or another process of it hangs and is not to be ended.
inline constexpr int kStatusNotShown = 2;

/// The application of either program, which has told the desktop what both tell of themselves. They
/// have no display name: the toolkit would append it to the title of every window and dialog.
///
/// Without a display says so in one line and ends the process with `kStatusNotShown`, where the
/// toolkit would end it by a signal.
///
/// `argc`  outlives the application, like `argv`
std::unique_ptr<QApplication> MakeApplication(int& argc, char* argv[]);

/// What the desktop is told.
void SetUpApplication();

}  // namespace vmod17

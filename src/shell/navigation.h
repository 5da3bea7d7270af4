// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <string>

namespace vmod17 {

/// How a run came to its results.
enum class RunEnd {
  kLeft,   ///< the student went to them
  kTimeUp  ///< they came by themselves
};

/// The way from screen to screen. A screen is opened in two moves: the opener hides itself and asks
/// for the next one, which is loaded hidden and shows itself when it has built itself.
class Navigation {
 public:
  virtual ~Navigation() = default;

  /// Asks the settings screen to hide, which loads it if it is not loaded.
  virtual void OpenSettings() = 0;
  /// The same for the worksheet.
  virtual void OpenWorksheet() = 0;
  /// Opens the results screen in front of the worksheet. `closed` is told when it has gone, with
  /// its verdict on itself: "OK", or another word when a part of it could not be shown.
  virtual void OpenResults(RunEnd end, std::function<void(const std::string& tag)> closed) = 0;
  /// Show a screen that waits hidden.
  virtual void ShowFirstScreen() = 0;
  virtual void ShowSettings() = 0;
};

}  // namespace vmod17

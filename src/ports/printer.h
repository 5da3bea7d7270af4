// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <optional>

#include "base/notice.h"
#include "forms/controls.h"

namespace vmod17 {

/// What became of a print.
struct [[nodiscard]] PrintResult {
  bool printed = false;          ///< it went to the printer or stands in a file
  std::optional<Notice> notice;  ///< what the user has to know of it
};

/// The system's default printer. Where there is none, a file takes its place.
class Printer {
 public:
  enum class Orientation { kPortrait = 1, kLandscape = 2 };

  virtual ~Printer() = default;

  /// Holds for all prints from now on.
  virtual void SetOrientation(Orientation orientation) = 0;
  /// Puts the form on one page as it says of itself at this moment. Errors: none; a print that
  /// failed is told in the result.
  virtual PrintResult PrintForm(Form& form) = 0;
};

}  // namespace vmod17

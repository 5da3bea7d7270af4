// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <optional>
#include <string>

#include "ports/event_loop.h"

namespace vmod17 {

/// What the program asks of the operating system besides time.
class System {
 public:
  virtual ~System() = default;

  virtual std::string ComputerName() const = 0;
  /// The value of an environment variable, UTF-8; none when it is unset.
  virtual std::optional<std::string> Environment(const std::string& name) const = 0;
  /// The folder for temporary files where no variable names one, UTF-8.
  virtual std::string TemporaryFolder() const = 0;
  /// What stands between the whole part and the fraction of a number that the user reads, UTF-8.
  virtual std::string DecimalPoint() const = 0;
  /// Date and time of day as the user reads them, in the short form of the place, UTF-8.
  virtual std::string DateTimeText(const DateTime& time) const = 0;
  /// Sends a keystroke to the window in front, in the form "{F1}".
  virtual void SendKeys(const std::string& keys) = 0;
};

}  // namespace vmod17

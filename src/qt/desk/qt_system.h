// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ports/system.h"

namespace vmod17 {

/// The operating system, asked through Qt. Numbers and dates have the form of the default QLocale.
/// Variables and folders are the bytes that the system has, UTF-8 or not.
class QtSystem : public System {
 public:
  std::string ComputerName() const override;
  std::optional<std::string> Environment(const std::string& name) const override;
  std::string TemporaryFolder() const override;
  std::string DecimalPoint() const override;
  std::string DateTimeText(const DateTime& time) const override;
  /// Knows the keys "{F1}" to "{F12}"; other texts send nothing.
  void SendKeys(const std::string& keys) override;
};

}  // namespace vmod17

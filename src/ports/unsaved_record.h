// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "base/notice.h"

namespace vmod17 {

/// A record that no folder has taken, kept in memory until one does or the user gives it up.
class UnsavedRecord {
 public:
  virtual ~UnsavedRecord() = default;

  /// Its base name, with the extension.
  virtual std::string Name() const = 0;
  /// Why it stands in no file, as the user is told it.
  virtual Notice Trouble() const = 0;
  /// Tries all folders again. True when it stands in a file.
  virtual bool Save() = 0;
  /// Writes it to `path`, in place of what is there. Returns why it cannot be done.
  [[nodiscard]] virtual std::optional<Notice> SaveAs(const std::string& path) = 0;
};

using KeepUnsaved = std::function<void(std::shared_ptr<UnsavedRecord>)>;

}  // namespace vmod17

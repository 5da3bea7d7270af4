// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <optional>
#include <string>

namespace vmod17 {

/// Asks the user for a file. Names are UTF-8 paths; none when the user gives up.
class FileDialog {
 public:
  virtual ~FileDialog() = default;

  /// Asks where to write. `proposal` is a base name with its extension; the answer has the
  /// extension too, and the user has agreed to overwrite what is there.
  virtual std::optional<std::string> AskToSave(const std::string& title,
                                               const std::string& proposal) = 0;
  /// Asks what to read, an existing file of the extension, which comes without the full stop. The
  /// dialog begins in `folder`, or with "" in the usual one.
  virtual std::optional<std::string> AskToOpen(const std::string& title,
                                               const std::string& extension,
                                               const std::string& folder) = 0;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>

#include "ports/settings_file.h"

namespace vmod17 {

/// Test files on the disk. They are written in ISO-8859-1, with a character reference for what that
/// encoding does not have; a file in UTF-8 is read as well.
///
/// A character that XML 1.0 forbids is written as U+FFFD; all else comes back as it was. The value
/// of a control without a value of its own is written as True, whatever its kind.
///
/// Errors, all of them SettingsFileError:
/// - with the place: text that is not well-formed, another root than `test`, an element or an
///   attribute that is missing, a word where a number belongs (the place is the element's), a byte
///   that the encoding does not have
/// - without a place: a file that cannot be opened, that is none, or that is larger than
///   `kMaxBytes`
class PugiSettingsFiles : public SettingsFiles {
 public:
  /// Largest file that is read or written, in bytes. A test of all controls has about 5,000.
  static constexpr int kMaxBytes = 1 << 20;

  void Write(const std::string& file, const FixedSettings& document) override;
  FixedSettings Read(const std::string& file) override;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/notice.h"
#include "base/run_time_error.h"

namespace vmod17 {

/// One control of a test. Texts are UTF-8.
struct FixedControl {
  std::string title;         ///< caption of its frame, for whoever reads the file
  std::string text;          ///< the control's key
  std::string cname;         ///< the control's name
  int index = 0;             ///< the chosen option, or the place in the list
  std::optional<int> value;  ///< of a list whose entries have values of their own
  std::string words;         ///< the chosen entry or option in words, for whoever reads the file

  bool operator==(const FixedControl&) const = default;
};

/// What a teacher has fixed for a test.
struct FixedSettings {
  std::string modul;
  std::string type;
  std::string description;
  std::vector<FixedControl> controls;

  bool operator==(const FixedSettings&) const = default;
};

/// A test file that cannot be read or written. Lines and columns count from 1; 0 where there is no
/// such place.
class SettingsFileError : public RunTimeError {
 public:
  SettingsFileError(const Notice& reason, int line, int column)
      : RunTimeError(ErrorNumber::kFile, WithDetails(reason.english, reason.details),
                     "vmod17.TestFile"),
        reason_(reason),
        line_(line),
        column_(column) {}

  /// The reason as the user is told it, in one sentence.
  const Notice& reason() const { return reason_; }
  int line() const { return line_; }
  int column() const { return column_; }

 private:
  Notice reason_;
  int line_;
  int column_;
};

/// Writes and reads `<test>` documents:
///
///     <?xml version="1.0" encoding="ISO-8859-1" ?>
///     <test>
///       <basic>
///         <modul>vmod17</modul>
///         <type>bestimmen</type>
///         <description>...</description>
///       </basic>
///       <setting>
///         <control title="Bestimmen" text="Bestimmen">
///           <cname>akk_grp</cname>
///           <index>1</index>
///           <value text="Gruppe">True</value>
///         </control>
///       </setting>
///     </test>
///
/// The content of `value` is a list entry's own value, or True where the index says it all.
class SettingsFiles {
 public:
  virtual ~SettingsFiles() = default;

  /// Writes the whole document, or nothing. Errors: SettingsFileError.
  virtual void Write(const std::string& file, const FixedSettings& document) = 0;
  /// Errors: SettingsFileError with the place of what is wrong.
  virtual FixedSettings Read(const std::string& file) = 0;
};

}  // namespace vmod17

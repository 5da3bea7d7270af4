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
struct TestControl {
  std::string title;         ///< caption of its frame, for whoever reads the file
  std::string text;          ///< the control's key
  std::string cname;         ///< the control's name
  int index = 0;             ///< the chosen option, or the place in the list
  std::optional<int> value;  ///< of a list whose entries have values of their own
  std::string words;         ///< the chosen entry or option in words, for whoever reads the file

  bool operator==(const TestControl&) const = default;
};

/// What a teacher has fixed for a test.
struct TestDocument {
  std::string modul;
  std::string type;
  std::string description;
  std::vector<TestControl> controls;

  bool operator==(const TestDocument&) const = default;
};

/// A test file that cannot be read or written. Lines and columns count from 1; 0 where there is no
/// such place.
class TestFileError : public RunTimeError {
 public:
  TestFileError(const Notice& reason, int line, int column)
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
class TestFiles {
 public:
  virtual ~TestFiles() = default;

  /// Writes the whole document, or nothing. Errors: TestFileError.
  virtual void Write(const std::string& file, const TestDocument& document) = 0;
  /// Errors: TestFileError with the place of what is wrong.
  virtual TestDocument Read(const std::string& file) = 0;
};

}  // namespace vmod17

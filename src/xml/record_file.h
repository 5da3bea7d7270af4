// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>
#include <string_view>

namespace vmod17 {

/// The file of one record, which takes a name of its own when it is first written and keeps it.
class RecordFile {
 public:
  /// `name`             a folder, a backslash, a base name (see `XmlDocument::SetFileName`)
  /// `fallback_folder`  for when the named one does not take the file; made if it is missing, for
  ///                    its owner alone
  RecordFile(const std::string& name, std::string fallback_folder);

  enum class Saved { kWhereItBelongs, kElsewhere, kNowhere };
  /// Writes the record as a whole. Under a name that is taken lies somebody else's: "-2" and so on
  /// goes before the extension then. What was saved before is replaced.
  [[nodiscard]] Saved Save(std::string_view bytes);
  /// Writes it to `path`, in place of what is there, and from now on there. Returns 0 or the
  /// system's error number.
  [[nodiscard]] int SaveAs(const std::string& path, std::string_view bytes);

  const std::string& folder() const { return folder_; }
  const std::string& base() const { return base_; }
  /// Where it is; "" before it is saved.
  const std::string& path() const { return path_; }
  /// Why the folder did not take it the last time.
  const std::string& refusal() const { return refusal_; }

 private:
  int SaveIn(const std::string& folder, std::string_view bytes);

  std::string folder_;
  std::string base_;
  std::string fallback_folder_;
  std::string path_;
  std::string refusal_;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "base/notice.h"
#include "ports/language.h"
#include "qt/desk/language_file.h"

namespace vmod17 {

/// The languages that lie as translation files in folders: "Deutsch.qm" is the language "Deutsch".
/// The files are looked up by message id; the keys are the ids.
class QtLanguageList : public LanguageList {
 public:
  /// Reads the folders in their order; one that does not exist is passed over. Within a folder the
  /// files stand by name. A file of a later folder takes the place of one with the same name, so
  /// that a user can improve on a language that came with the program; one with a fault is left
  /// out. A language stays as it was read, whatever becomes of its file. Errors: none; see
  /// `problems`.
  explicit QtLanguageList(const std::vector<std::filesystem::path>& folders);

  std::vector<LanguageColumn> Table() const override;
  std::unique_ptr<Language> Create(const std::string& class_name) const override;

  struct Problem {
    std::string path;  ///< UTF-8
    LanguageFault fault;
  };
  /// Files that are not listed because of a fault.
  const std::vector<Problem>& problems() const { return problems_; }
  /// What the user should be told of them: of the first ones by name, and how many more there are.
  std::vector<Notice> Notices() const;

  /// The name of the installed language that the desktop's user would want first; English if he
  /// wants none of them, and none if that is not installed.
  std::optional<std::string> DesktopLanguage() const;
  /// The same for a given order of wishes, as locale names such as "de-AT".
  std::optional<std::string> BestFor(const std::vector<std::string>& locales) const;

 private:
  struct File {
    std::string name;
    std::string locale;
    QByteArray bytes;
  };

  void ReadFolder(const std::filesystem::path& folder);
  void ReadFile(const std::filesystem::path& path);
  void Enter(File file);

  std::vector<File> files_;
  std::vector<Problem> problems_;
};

}  // namespace vmod17

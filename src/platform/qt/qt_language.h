// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/language.h"
#include "platform/notice.h"

namespace vmod17 {

/// The languages that lie as translation files in folders: "Deutsch.qm" is the language "Deutsch".
/// The files are looked up by message id; the keys are the ids.
class QtLanguageList : public LanguageList {
 public:
  /// Reads the folders in their order; one that does not exist is passed over. Within a folder the
  /// files stand by name. A file of a later folder takes the place of one with the same name, so
  /// that a user can improve on a language that came with the program. Errors: none; see
  /// `problems`.
  explicit QtLanguageList(const std::vector<std::filesystem::path>& folders);

  std::vector<LanguageColumn> Table() const override;
  std::unique_ptr<Language> Create(const std::string& class_name) const override;

  /// Files that are no readable translation and therefore not listed: their paths, UTF-8.
  const std::vector<std::string>& problems() const { return problems_; }
  /// What the user should be told of them.
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
    QString path;
  };

  void ReadFolder(const std::filesystem::path& folder);
  void Enter(File file);

  std::vector<File> files_;
  std::vector<std::string> problems_;
};

}  // namespace vmod17

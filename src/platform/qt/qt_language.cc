// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/qt/qt_language.h"

#include <QDir>
#include <QLocale>
#include <QTranslator>
#include <algorithm>

#include "platform/run_time_error.h"

namespace vmod17 {
namespace {

constexpr std::string_view kClassPrefix = "melvadolang.";

class QtLanguage : public Language {
 public:
  explicit QtLanguage(std::unique_ptr<QTranslator> words) : words_(std::move(words)) {}

  std::string Wort(const std::string& key) const override {
    const QString word = words_->translate("", key.c_str());
    if (word.isNull()) {
      throw RunTimeError(ErrorNumber::kUnknownText, "no word for " + key, "vmod17.QtLanguage");
    }
    return word.toStdString();
  }

 private:
  std::unique_ptr<QTranslator> words_;
};

/// The language of a locale, without country: "de" of "de_AT" and of "de-AT".
std::string LanguageCode(const std::string& locale) {
  return locale.substr(0, locale.find_first_of("_-"));
}

}  // namespace

QtLanguageList::QtLanguageList(const std::vector<std::filesystem::path>& folders) {
  for (const std::filesystem::path& folder : folders) ReadFolder(folder);
}

void QtLanguageList::ReadFolder(const std::filesystem::path& folder) {
  const QDir dir(QString::fromStdString(folder.string()));
  for (const QFileInfo& info : dir.entryInfoList({"*.qm"}, QDir::Files, QDir::Name)) {
    QTranslator words;
    if (!words.load(info.absoluteFilePath())) {
      problems_.push_back(info.absoluteFilePath().toStdString());
      continue;
    }
    Enter({info.completeBaseName().toStdString(), words.language().toStdString(),
           info.absoluteFilePath()});
  }
}

void QtLanguageList::Enter(File file) {
  const auto same = std::find_if(files_.begin(), files_.end(),
                                 [&](const File& f) { return f.name == file.name; });
  if (same == files_.end()) {
    files_.push_back(std::move(file));
  } else {
    *same = std::move(file);
  }
}

std::vector<LanguageColumn> QtLanguageList::Table() const {
  std::vector<LanguageColumn> table;
  for (const File& file : files_) table.push_back({file.locale, file.name});
  return table;
}

std::unique_ptr<Language> QtLanguageList::Create(const std::string& class_name) const {
  for (const File& file : files_) {
    if (std::string(kClassPrefix) + file.name != class_name) continue;
    auto words = std::make_unique<QTranslator>();
    if (!words->load(file.path)) break;
    return std::make_unique<QtLanguage>(std::move(words));
  }
  throw RunTimeError(ErrorNumber::kCannotCreate, "cannot create " + class_name,
                     "vmod17.QtLanguageList");
}

std::vector<Notice> QtLanguageList::Notices() const {
  std::vector<Notice> notices;
  for (const std::string& file : problems_) {
    notices.push_back({9251,
                       "The language file %1 cannot be read and is left out. If it came with the "
                       "program, install the program again.",
                       {file}});
  }
  return notices;
}

std::optional<std::string> QtLanguageList::DesktopLanguage() const {
  std::vector<std::string> locales;
  for (const QString& locale : QLocale::system().uiLanguages()) {
    locales.push_back(locale.toStdString());
  }
  return BestFor(locales);
}

std::optional<std::string> QtLanguageList::BestFor(const std::vector<std::string>& locales) const {
  std::vector<std::string> wishes = locales;
  wishes.emplace_back("en");
  for (const std::string& locale : wishes) {
    for (const File& file : files_) {
      if (LanguageCode(file.locale) == LanguageCode(locale)) return file.name;
    }
  }
  return std::nullopt;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/desk/qt_language.h"

#include <QLocale>
#include <QTranslator>
#include <algorithm>
#include <set>
#include <utility>
#include <variant>

#include "base/language_code.h"
#include "base/run_time_error.h"
#include "base/text_ids.h"

namespace vmod17 {
namespace {

constexpr std::string_view kClassPrefix = "melvadolang.";
constexpr std::size_t kMostNotices = 3;

/// What can be shown of a path, which need not be UTF-8.
std::string Shown(const std::filesystem::path& path) {
  return QString::fromStdString(path.string()).toStdString();
}

bool IsLanguageFile(const std::filesystem::path& path) {
  const std::string extension = path.extension().string();
  return !path.filename().string().starts_with('.') && (extension == ".qm" || extension == ".QM");
}

Notice NoticeOf(LanguageFault fault, const std::string& path) {
  switch (fault) {
    case LanguageFault::kTooLarge:
      return {text_id::kLanguageTooLarge,
              "The language file %1 is larger than any language is (%2 KB at the most) and is left "
              "out.",
              {path, std::to_string(kLargestLanguageFile / 1024)}};
    case LanguageFault::kDependent:
      return {
          text_id::kLanguageAsksForFiles,
          "The language file %1 asks for further files and is left out. All words of a language "
          "must be in one file.",
          {path}};
    case LanguageFault::kDamaged:
      return {text_id::kLanguageDamaged,
              "The language file %1 is damaged and is left out. Make it again from its source, or "
              "take it out of its folder.",
              {path}};
    case LanguageFault::kUnreadable:
      break;
  }
  return {text_id::kLanguageUnreadable,
          "The language file %1 cannot be read and is left out. If it came with the program, "
          "install the program again.",
          {path}};
}

/// `bytes`  outlive the words, which stay where they are
bool Load(QTranslator& words, const QByteArray& bytes) {
  return words.load(reinterpret_cast<const uchar*>(bytes.constData()),
                    static_cast<int>(bytes.size()));
}

class QtLanguage : public Language {
 public:
  explicit QtLanguage(QByteArray bytes) : bytes_(std::move(bytes)) { Load(words_, bytes_); }

  std::string Wort(const std::string& key) const override {
    const QString word = words_.translate("", key.c_str());
    if (word.isNull()) {
      throw RunTimeError(ErrorNumber::kUnknownText, "no word for " + key, "vmod17.QtLanguage");
    }
    return word.toStdString();
  }

 private:
  const QByteArray bytes_;
  QTranslator words_;
};

}  // namespace

QtLanguageList::QtLanguageList(const std::vector<std::filesystem::path>& folders) {
  for (const std::filesystem::path& folder : folders) ReadFolder(folder);
}

void QtLanguageList::ReadFolder(const std::filesystem::path& folder) {
  std::error_code unreadable;
  std::set<std::filesystem::path> paths;
  for (std::filesystem::directory_iterator entry(folder, unreadable), end; entry != end;
       entry.increment(unreadable)) {
    if (IsLanguageFile(entry->path())) paths.insert(entry->path());
  }
  for (const std::filesystem::path& path : paths) ReadFile(path);
}

void QtLanguageList::ReadFile(const std::filesystem::path& path) {
  std::variant<QByteArray, LanguageFault> read = ReadLanguageFile(path);
  if (const auto* fault = std::get_if<LanguageFault>(&read)) {
    problems_.push_back({Shown(path), *fault});
    return;
  }
  auto& bytes = std::get<QByteArray>(read);
  QTranslator words;
  if (!Load(words, bytes)) {
    problems_.push_back({Shown(path), LanguageFault::kDamaged});
    return;
  }
  Enter({Shown(path.stem()), words.language().toStdString(), std::move(bytes)});
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
    if (std::string(kClassPrefix) + file.name == class_name) {
      return std::make_unique<QtLanguage>(file.bytes);
    }
  }
  throw RunTimeError(ErrorNumber::kCannotCreate, "cannot create " + class_name,
                     "vmod17.QtLanguageList");
}

std::vector<Notice> QtLanguageList::Notices() const {
  std::vector<Notice> notices;
  for (const Problem& problem : problems_) {
    if (notices.size() == kMostNotices) {
      notices.push_back({text_id::kMoreLanguagesFaulty,
                         "Further language files have faults and are left out too: %1.",
                         {std::to_string(problems_.size() - kMostNotices)}});
      break;
    }
    notices.push_back(NoticeOf(problem.fault, problem.path));
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

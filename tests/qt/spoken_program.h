// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cctype>
#include <string>
#include <vector>

#include "qt/desk/qt_language.h"
#include "support/program_fixture.h"

namespace vmod17 {

inline QtLanguageList LanguagesOfTheProgram() {
  return QtLanguageList({std::filesystem::path(PROGRAM_LANGUAGES)});
}

/// The locales of the languages that come with the program, such as "de_DE". They are read from
/// the folder, so that a new language is tested by being there.
inline std::vector<std::string> LocalesOfTheProgram() {
  std::vector<std::string> locales;
  for (const LanguageColumn& column : LanguagesOfTheProgram().Table()) {
    locales.push_back(column[0]);
  }
  return locales;
}

/// A locale as part of a test's name.
inline std::string InTestName(const std::string& locale) {
  std::string name;
  for (const char c : locale) {
    if (std::isalnum(static_cast<unsigned char>(c)) != 0) name += c;
  }
  return name;
}

/// The program on fakes, but with the words of the installed language of a locale.
class SpokenProgram : public ProgramFixture {
 public:
  explicit SpokenProgram(const std::string& locale) {
    const QtLanguageList list = LanguagesOfTheProgram();
    const auto words = list.Create("melvadolang." + NameOf(list, locale));
    FakeLanguages::Words known;
    for (const int thousand : {0, 9000}) {  // no other ids are in use
      for (int id = thousand + 1; id < thousand + 1000; ++id) {
        const std::string key = std::to_string(id) + "s";
        try {
          known.words[key] = words->Wort(key);
        } catch (const RunTimeError&) {
          known.missing.insert(key);
        }
      }
    }
    // Under the name that the host asks for.
    languages.languages = {{"Deutsch", known}};
  }

 private:
  static std::string NameOf(const LanguageList& list, const std::string& locale) {
    for (const LanguageColumn& column : list.Table()) {
      if (column[0] == locale) return column[1];
    }
    return "";
  }
};

}  // namespace vmod17

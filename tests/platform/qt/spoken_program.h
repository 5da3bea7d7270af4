// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>

#include "platform/qt/qt_language.h"
#include "support/program_fixture.h"

namespace vmod17 {

/// The program on fakes, but with the words of an installed language.
class SpokenProgram : public ProgramFixture {
 public:
  explicit SpokenProgram(const std::string& language) {
    const QtLanguageList list({std::filesystem::path(PROGRAM_LANGUAGES)});
    const auto words = list.Create("melvadolang." + language);
    FakeLanguages::Words known;
    for (int id = 1; id < 1000; ++id) {
      const std::string key = std::to_string(id) + "s";
      try {
        known.words[key] = words->Wort(key);
      } catch (const RunTimeError&) {
        known.missing.insert(key);
      }
    }
    // Under the name that the host asks for.
    languages.languages = {{"Deutsch", known}};
  }
};

}  // namespace vmod17

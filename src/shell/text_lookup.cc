// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/text_lookup.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "base/text_ids.h"
#include "shell/words_of.h"

namespace vmod17 {
namespace {

constexpr std::size_t kLocaleInColumn = 0;
constexpr std::size_t kNameInColumn = 1;

}  // namespace

TextLookup::TextLookup(LanguageListFactory make_list, const System& system)
    : make_list_(std::move(make_list)), system_(system) {}

void TextLookup::SprachenLaden() {
  try {
    languageList = make_list_();
    languageListOk = languageList != nullptr;
  } catch (const std::exception&) {
    languageListOk = false;
  }
  if (languageListOk) languageTable = languageList->Table();
}

void TextLookup::SpracheWaehlen(const std::string& name) {
  if (!languageListOk) return;
  const auto column =
      std::find_if(languageTable.begin(), languageTable.end(), [&](const LanguageColumn& c) {
        return c.size() > kNameInColumn && c[kNameInColumn] == name;
      });
  if (column != languageTable.end()) {
    SpracheErzeugen(static_cast<int>(column - languageTable.begin()));
  }
}

void TextLookup::SpracheErzeugen(int column) {
  const LanguageColumn& language = languageTable.at(column);
  languageTexts = languageList->Create("melvadolang." + language.at(kNameInColumn));
  gebietsschema_ = language.at(kLocaleInColumn);
}

std::string TextLookup::Sprachtext(int id) const { return WordOf(languageTexts.get(), id); }

std::string TextLookup::SprachtextOder(int id, const std::string& eigenes) const {
  const std::string text = Sprachtext(id);
  return Fehlt(text) ? eigenes : text;
}

std::string TextLookup::Words(const Notice& notice) const {
  return WordsOf(languageTexts.get(), notice);
}

void TextLookup::TexteLaden() {
  modul_titel = Sprachtext(text_id::kModuleTitle);
  titel_ar = {Sprachtext(text_id::kStartTitle), Sprachtext(text_id::kSettingsTitle),
              Sprachtext(text_id::kResultsTitle)};
  ueb_typ_name_ar[1] = Sprachtext(text_id::kExerciseName);
  if (WeitereTexte) WeitereTexte(*this);
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/text_lookup.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "base/numbers.h"
#include "base/run_time_error.h"

namespace vmod17 {
namespace {

constexpr std::size_t kLocaleInColumn = 0;
constexpr std::size_t kNameInColumn = 1;

}  // namespace

const std::array<std::string, 10> TextLookup::tempo_name_ar = {
    " 30              ", " 40 (Largo)      ", " 60 (Larghetto)  ", " 80 (Adagio)     ",
    "100 (Andante)    ", "120 (Moderato)   ", "140 (Allegro)    ", "160 (Vivace)     ",
    "180 (Presto)     ", "200 (Prestissimo)"};

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

std::string TextLookup::Sprachtext(int id) const {
  if (!languageTexts) return kOhneWort;
  try {
    return languageTexts->Wort(DecimalText(id) + "s");
  } catch (const std::exception&) {
    return kOhneWort;
  }
}

std::string TextLookup::SprachtextOder(int id, const std::string& eigenes) const {
  const std::string text = Sprachtext(id);
  return Fehlt(text) ? eigenes : text;
}

std::string TextLookup::Words(const Notice& notice) const {
  return WithDetails(SprachtextOder(notice.text_id, notice.english), notice.details);
}

void TextLookup::TexteLaden() {
  // In this order, and each id as often as it stands here: two tables share id 51, two id 400.
  const auto fill = [this](auto& table, std::initializer_list<std::pair<int, int>> ids) {
    for (const auto& [slot, id] : ids) table[slot] = Sprachtext(id);
  };
  modul_titel = Sprachtext(347);
  fill(titel_ar, {{0, 287}, {1, 221}, {2, 224}});
  fill(ueb_typ_name_ar, {{1, 348}});
  fill(grp_name_ar, {{0, 51},
                     {1, 379},
                     {2, 380},
                     {3, 409},
                     {4, 200},
                     {5, 201},
                     {6, 410},
                     {7, 312},
                     {8, 609},
                     {10, 199}});
  fill(klang_name_ar, {{3, 51}, {4, 57}, {5, 60}, {6, 62}, {7, 64}});
  fill(modus_name_ar, {{0, 136}, {1, 564}, {2, 565}, {3, 550}, {4, 438}});
  fill(arp_richtung_name_ar, {{0, 133}, {1, 84}, {2, 624}, {3, 278}});
  fill(arp_tempo_name_ar, {{0, 477}, {1, 371}, {2, 400}, {3, 470}, {4, 479}});
  fill(art_name_ar, {{0, 194}, {1, 141}});
  fill(frei_name_ar, {{0, 478}, {1, 424}, {2, 400}, {3, 319}, {4, 476}});
}

}  // namespace vmod17

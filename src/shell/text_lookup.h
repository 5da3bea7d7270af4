// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/notice.h"
#include "ports/language.h"
#include "ports/system.h"

namespace vmod17 {

/// Makes the list of the installed languages. Errors: any exception when it cannot be made.
using LanguageListFactory = std::function<std::unique_ptr<LanguageList>()>;

/// All texts of the program, by text id, in the language of the process.
class TextLookup {
 public:
  /// What stands in the place of a text that nobody knows.
  static constexpr const char* kOhneWort = "VOID";

  TextLookup(LanguageListFactory make_list, const System& system);

  /// Reads the installed languages. Without a list all texts are "VOID".
  void SprachenLaden();
  bool SprachenDa() const { return languageListOk; }
  /// Takes the language of exactly this name; an unknown name leaves all texts "VOID".
  /// Errors: RunTimeError kCannotCreate when a listed language cannot be made.
  void SpracheWaehlen(const std::string& name);
  void SpracheErzeugen(int column);

  /// The word for a text id in the language in use, asked anew each time; "VOID" without one.
  std::string Sprachtext(int id) const;
  /// The same, but `eigenes` where the language in use has no word or an empty one.
  std::string SprachtextOder(int id, const std::string& eigenes) const;
  /// Whether a text tells nothing: no word was found for it, or for a part of it.
  static bool Fehlt(const std::string& text) {
    return text.find_first_not_of(' ') == std::string::npos ||
           text.find(kOhneWort) != std::string::npos;
  }
  /// The words of a notice, its details in their places; its English ones where the language in use
  /// has none.
  std::string Words(const Notice& notice) const;
  /// The locale of the language in use, such as "de_DE"; "" without one.
  const std::string& Gebietsschema() const { return gebietsschema_; }

  /// Fills the tables below, then `WeitereTexte`. Must run after `SpracheWaehlen`.
  void TexteLaden();
  /// Fills the tables of those that stand above.
  std::function<void(const TextLookup&)> WeitereTexte;

  std::string Rechnername() const { return system_.ComputerName(); }

  // Tables of names, filled by `TexteLaden`. Entries that are not named stay empty.
  std::string modul_titel;
  std::array<std::string, 3> titel_ar;         ///< captions of first, settings, results screen
  std::array<std::string, 4> ueb_typ_name_ar;  ///< by `uebTyp`, from 1

 private:
  LanguageListFactory make_list_;
  const System& system_;
  std::unique_ptr<LanguageList> languageList;
  bool languageListOk = false;
  std::vector<LanguageColumn> languageTable;
  std::unique_ptr<Language> languageTexts;
  std::string gebietsschema_;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/words_of.h"

#include <exception>

#include "base/numbers.h"
#include "base/wording.h"
#include "shell/text_lookup.h"

namespace vmod17 {

std::string WordOf(const Language* language, int id) {
  if (language == nullptr) return TextLookup::kOhneWort;
  try {
    return language->Wort(DecimalText(id) + "s");
  } catch (const std::exception&) {
    return TextLookup::kOhneWort;
  }
}

std::string WordsOf(const Language* language, const Notice& notice) {
  const std::string word = WordOf(language, notice.text_id);
  return TextLookup::Fehlt(word) ? InEnglish(notice) : WithDetails(word, notice.details);
}

}  // namespace vmod17

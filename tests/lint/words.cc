// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "lint/words.h"

#include <optional>

namespace vmod17::lint {
namespace {

/// What must not stand in a line; all but the marks are compared without regard to case.
std::optional<std::string> ForbiddenWord(std::string_view line) {
  static constexpr Pieces kMarks[] = {{"TO", "DO"}, {"FIX", "ME"}, {"XX", "X"}, {"HA", "CK"}};
  static constexpr Pieces kWords[] = {
      {"the sp", "ec"},       {"as speci", "fied"}, {"sp", "ec.md"},        {"/wo", "rk/"},
      {"py", "pi.org"},       {"python", "hosted"}, {"registry.", "npmjs"}, {"crates", ".io"},
      {"deb.debian", ".org"}, {"proxy.", "golang"}};
  for (const Pieces& mark : kMarks) {
    if (HasWord(line, mark.Whole())) return mark.Whole();
  }
  const std::string lower = Lower(line);
  for (const Pieces& word : kWords) {
    if (HasWord(lower, word.Whole())) return word.Whole();
  }
  return std::nullopt;
}

/// The document that describes a language by its standard may be named, no other.
bool NamesDocument(std::string_view line) {
  static const std::string kDocument = Pieces{"specifi", "cation"}.Whole();
  static const std::string kLanguage = "c++ ";
  const std::string lower = Lower(line);
  for (std::size_t at = lower.find(kDocument); at != lower.npos;
       at = lower.find(kDocument, at + 1)) {
    const bool of_language = at >= kLanguage.size() &&
                             lower.compare(at - kLanguage.size(), kLanguage.size(), kLanguage) == 0;
    if (!of_language) return true;
  }
  return false;
}

/// A numbered section of such a document.
bool NamesSection(std::string_view line) {
  static const std::string kStarts[] = {Pieces{"Pa", "rt "}.Whole(), Pieces{"Pa", "rts "}.Whole()};
  for (const std::string& start : kStarts) {
    for (std::size_t at = line.find(start); at != line.npos; at = line.find(start, at + 1)) {
      const std::string_view number = line.substr(at + start.size());
      if (number.size() >= 3 && IsDigit(number[0]) && number[1] == '.' && IsDigit(number[2]) &&
          StandsAlone(line, at, start)) {
        return true;
      }
    }
  }
  return false;
}

}  // namespace

Faults WordFaults(const Tree& tree) {
  Faults faults;
  for (const auto& [path, text] : tree) {
    for (const Line& line : Lines(text)) {
      if (const auto word = ForbiddenWord(line.text)) {
        faults.push_back(Fault(path, line.number, "has \"" + *word + "\""));
      }
      if (NamesDocument(line.text) || NamesSection(line.text)) {
        faults.push_back(Fault(path, line.number, "names a document that is not in the tree"));
      }
    }
  }
  return faults;
}

Faults SleepFaults(const Tree& tree) {
  static constexpr Pieces kWaits[] = {{"sleep", "_for"}, {"sleep", "_until"}, {"q", "Wait"},
                                      {"q", "Sleep"},    {"u", "sleep"},      {"nano", "sleep"},
                                      {"m", "sleep"},    {":", ":sleep"},     {"sl", "eep("}};
  Faults faults;
  for (const auto& [path, text] : tree) {
    if (!path.starts_with("tests/")) continue;
    for (const Line& line : Lines(text)) {
      for (const Pieces& wait : kWaits) {
        if (HasWord(line.text, wait.Whole())) {
          faults.push_back(Fault(path, line.number, "waits for the real clock: " + wait.Whole()));
          break;
        }
      }
    }
  }
  return faults;
}

}  // namespace vmod17::lint

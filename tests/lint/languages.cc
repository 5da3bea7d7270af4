// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "lint/languages.h"

#include <algorithm>
#include <cctype>
#include <optional>
#include <regex>
#include <string_view>
#include <utility>

namespace vmod17::lint {
namespace {

constexpr std::string_view kLanguages = "assets/languages/";

/// The whole number that `text` starts with, if it ends before a letter.
std::optional<int> LeadingNumber(std::string_view text) {
  std::size_t length = 0;
  while (length < text.size() && IsDigit(text[length])) ++length;
  if (length == 0 || length > 6 || (length < text.size() && IsWordLetter(text[length]))) {
    return std::nullopt;
  }
  return std::stoi(std::string(text.substr(0, length)));
}

/// The number at `at`, unless it is the rest of a word or of a broken number.
std::optional<int> NumberAt(std::string_view text, std::size_t at) {
  if (at > 0 && (IsWordLetter(text[at - 1]) || text[at - 1] == '.')) return std::nullopt;
  return LeadingNumber(text.substr(at));
}

/// Where the bracket closes that was opened before `text`.
std::size_t ClosingBracket(std::string_view text) {
  int open = 1;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '(') ++open;
    if (text[at] == ')' && --open == 0) return at;
  }
  return text.size();
}

/// Adds the numbers in the argument of each call of `routine`, such as both of (ok ? 432 : 139).
void AddNumbersInCalls(std::string_view text, const std::string& routine, std::set<int>& ids) {
  const std::string call = routine + "(";
  for (std::size_t at = text.find(call); at != text.npos; at = text.find(call, at + 1)) {
    if (!StandsAlone(text, at, call)) continue;
    const std::string_view rest = text.substr(at + call.size());
    const std::string_view argument = rest.substr(0, ClosingBracket(rest));
    for (std::size_t i = 0; i < argument.size(); ++i) {
      if (const auto id = NumberAt(argument, i)) ids.insert(*id);
    }
  }
}

/// Adds the second numbers of all pairs, written {slot, id}. Ids of one digit stand in no table.
void AddSecondOfPairs(std::string_view text, std::set<int>& ids) {
  constexpr int kLeast = 10;
  for (std::size_t at = text.find('{'); at != text.npos; at = text.find('{', at + 1)) {
    const std::string_view rest = text.substr(at + 1);
    const std::size_t comma = rest.find(", ");
    if (comma == rest.npos || !LeadingNumber(rest.substr(0, comma))) continue;
    const auto id = LeadingNumber(rest.substr(comma + 2));
    if (id && *id >= kLeast) ids.insert(*id);
  }
}

// The text ids of the notices, which are ours.
constexpr int kFirstNotice = 9001;
constexpr int kLastNotice = 9499;

/// The literals that `text` starts with, one behind the other, as one; nothing without one.
std::optional<std::string> LeadingLiteral(std::string_view text) {
  std::optional<std::string> literal;
  bool inside = false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '"') {
      inside = !inside;
      if (!literal) literal.emplace();
    } else if (inside) {
      if (text[at] == '\\') ++at;
      *literal += text[at];
    } else if (!std::isspace(static_cast<unsigned char>(text[at]))) {
      break;
    }
  }
  return literal;
}

/// The notices of a source: their text ids, each with the English text that stands behind it, which
/// is empty where none does.
std::map<int, std::string> Notices(std::string_view text) {
  std::map<int, std::string> notices;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (!IsDigit(text[at])) continue;
    const auto id = NumberAt(text, at);
    if (!id || *id < kFirstNotice || *id > kLastNotice) continue;
    const std::string_view rest = text.substr(at + std::to_string(*id).size());
    notices[*id] =
        rest.starts_with(',') ? LeadingLiteral(rest.substr(1)).value_or("") : std::string();
  }
  return notices;
}

/// What stands between `before` and `after`, or nothing.
std::optional<std::string> Between(std::string_view text, std::string_view before,
                                   std::string_view after) {
  const std::size_t start = text.find(before);
  if (start == text.npos) return std::nullopt;
  const std::size_t end = text.find(after, start + before.size());
  if (end == text.npos) return std::nullopt;
  return std::string(text.substr(start + before.size(), end - start - before.size()));
}

/// A text of an XML file as it is meant.
std::string Unescaped(std::string text) {
  static constexpr std::pair<std::string_view, std::string_view> kEntities[] = {
      {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&apos;", "'"}, {"&amp;", "&"}};
  for (const auto& [entity, letter] : kEntities) {
    for (std::size_t at = text.find(entity); at != text.npos;
         at = text.find(entity, at + letter.size())) {
      text.replace(at, entity.size(), letter);
    }
  }
  return text;
}

bool IsKey(const std::string& key) {
  return key.size() > 1 && key.back() == 's' && std::all_of(key.begin(), key.end() - 1, IsDigit);
}

/// The places for details in a word.
std::set<std::string> Places(const std::string& word) {
  std::set<std::string> places;
  for (std::size_t at = word.find('%'); at != word.npos; at = word.find('%', at + 1)) {
    if (at + 1 < word.size() && IsDigit(word[at + 1])) places.insert(word.substr(at, 2));
  }
  return places;
}

using Words = std::map<std::string, std::string>;

/// How the words of one language differ from those of the first.
void AddDifferences(const std::string& path, const Words& first, const Words& words,
                    Faults& faults) {
  for (const auto& [key, word] : first) {
    const auto own = words.find(key);
    if (own == words.end()) {
      faults.push_back(Fault(path, 1, "has no word for " + key + ", as another language has"));
    } else if (Places(own->second) != Places(word)) {
      faults.push_back(Fault(path, 1,
                             "the word for " + key +
                                 " has other details than in another "
                                 "language"));
    }
  }
  for (const auto& [key, word] : words) {
    if (!first.contains(key)) {
      faults.push_back(Fault(path, 1, "has a word for " + key + ", which another language lacks"));
    }
  }
}

/// Whether every byte is part of a character; overlong ones are let pass.
bool IsUtf8(std::string_view text) {
  int to_come = 0;
  for (const unsigned char byte : text) {
    if ((byte & 0xC0) == 0x80) {
      if (to_come-- == 0) return false;
      continue;
    }
    if (to_come != 0 || byte > 0xF4) return false;
    to_come = byte >= 0xF0 ? 3 : byte >= 0xE0 ? 2 : byte >= 0xC0 ? 1 : 0;
  }
  return to_come == 0;
}

}  // namespace

std::set<int> UsedTextIds(const Tree& tree) {
  std::set<int> ids;
  for (const auto& [file, text] : SourceFiles(tree)) {
    AddNumbersInCalls(*text, "Sprachtext", ids);
    for (const auto& [id, english] : Notices(*text)) ids.insert(id);
    // Where texts are looked up there may be short forms of the look-up, and tables of ids.
    if (text->find("Sprachtext(") == text->npos) continue;
    AddNumbersInCalls(*text, "text", ids);
    AddNumbersInCalls(*text, "Texte", ids);
    AddSecondOfPairs(*text, ids);
  }
  return ids;
}

std::map<std::string, std::string> ReadLanguage(const std::string& path, const std::string& text,
                                                Faults& faults) {
  constexpr std::string_view kMessage = "<message ";
  Words words;
  std::size_t at = text.find(kMessage);
  while (at != text.npos) {
    const std::size_t next = text.find(kMessage, at + 1);
    const std::string_view message = std::string_view(text).substr(at, next - at);
    const int line = 1 + static_cast<int>(std::count(text.begin(), text.begin() + at, '\n'));
    at = next;
    const std::string key = Between(message, " id=\"", "\"").value_or("");
    const auto word = Between(message, "<translation>", "</translation>");
    if (!IsKey(key)) faults.push_back(Fault(path, line, "\"" + key + "\" is no key of a text id"));
    if (!word || word->empty()) faults.push_back(Fault(path, line, "no word for " + key));
    if (!words.emplace(key, Unescaped(word.value_or(""))).second) {
      faults.push_back(Fault(path, line, "a second word for " + key));
    }
  }
  if (words.empty()) faults.push_back(Fault(path, 1, "has no words"));
  if (!IsUtf8(text)) faults.push_back(Fault(path, 1, "is not in UTF-8"));
  return words;
}

Faults LanguageFaults(const Tree& tree) {
  Faults faults;
  const std::set<int> ids = UsedTextIds(tree);
  std::optional<Words> first;
  for (const auto& [path, text] : tree) {
    if (!path.starts_with(kLanguages) || !path.ends_with(".ts")) continue;
    const Words words = ReadLanguage(path, text, faults);
    for (const int id : ids) {
      if (!words.contains(std::to_string(id) + "s")) {
        faults.push_back(Fault(path, 1, "has no word for text id " + std::to_string(id)));
      }
    }
    if (first) AddDifferences(path, *first, words, faults);
    if (!first) first = words;
  }
  if (!first) faults.emplace_back("assets/languages has no language");
  return faults;
}

Faults MannerFaults(const Tree& tree) {
  static const struct {
    const char* language;
    std::regex strange;
    const char* reason;
  } kManners[] = {
      {"Français.ts", std::regex("[A-Za-z]'"), "its apostrophe is ’"},
      {"Italiano.ts", std::regex("[A-Za-z]'"), "its apostrophe is ’"},
      {"Nederlands.ts", std::regex("\\b[Uu]w?\\b"), "its reader is je"},
  };
  Faults faults;
  for (const auto& [language, strange, reason] : kManners) {
    const std::string path = std::string(kLanguages) + language;
    const auto file = tree.find(path);
    if (file == tree.end()) continue;
    for (const auto& [key, word] : ReadLanguage(path, file->second, faults)) {
      if (std::regex_search(word, strange)) {
        faults.push_back(path + ": " + key + ": " + reason);
      }
    }
  }
  return faults;
}

Faults NoticeFaults(const Tree& tree) {
  const std::string english_path = std::string(kLanguages) + "English.ts";
  const auto english = tree.find(english_path);
  if (english == tree.end()) return {english_path + " is missing"};
  Faults faults;
  const Words words = ReadLanguage(english_path, english->second, faults);
  for (const auto& [file, text] : SourceFiles(tree)) {
    for (const auto& [id, said] : Notices(*text)) {
      const auto word = words.find(std::to_string(id) + "s");
      if (!said.empty() && word != words.end() && word->second != said) {
        faults.push_back(Fault(std::string(kSources) + file, 1,
                               "the notice " + std::to_string(id) + " differs from English.ts"));
      }
    }
  }
  return faults;
}

}  // namespace vmod17::lint

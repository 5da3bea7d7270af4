// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "lint/languages.h"

#include <algorithm>
#include <optional>
#include <regex>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

namespace vmod17::lint {
namespace {

constexpr std::string_view kLanguages = "assets/languages/";
constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kName = "text_id::";

// The text ids of the notices. No other number of the sources is among them.
constexpr int kFirstNotice = 9001;
constexpr int kLastNotice = 9999;

std::string_view WithoutBlanksBehind(std::string_view text) {
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

std::string_view WithoutBlanksBefore(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of(kBlanks), text.size()));
}

/// Where the literal or comment ends that begins at `at`; `at` where none does.
std::size_t EndOfUnspoken(std::string_view text, std::size_t at) {
  const std::string_view rest = text.substr(at);
  const auto behind = [&](std::string_view end, std::size_t from) {
    const std::size_t found = text.find(end, from);
    return found == text.npos ? text.size() : found + end.size();
  };
  if (rest.starts_with("//")) return std::min(text.find('\n', at), text.size());
  if (rest.starts_with("/*")) return behind("*/", at + 2);
  if (rest.starts_with("R\"(")) return behind(")\"", at + 3);
  const bool separates = rest.starts_with('\'') && at > 0 && IsDigit(text[at - 1]);
  if (!(rest.starts_with('"') || rest.starts_with('\'')) || separates) return at;
  std::size_t end = at + 1;
  while (end < text.size() && text[end] != rest.front()) end += text[end] == '\\' ? 2 : 1;
  return std::min(end + 1, text.size());
}

/// A source with blanks for its comments, and for what stands in its literals. All else keeps its
/// place.
std::string Code(std::string_view text) {
  std::string code(text);
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = EndOfUnspoken(text, at);
    const bool is_literal = text[at] == '"';
    for (std::size_t i = at; i < end; ++i) {
      const bool is_quote = is_literal && (i == at || i + 1 == end);
      if (text[i] != '\n' && !is_quote) code[i] = ' ';
    }
    at = std::max(end, at + 1);
  }
  return code;
}

/// How long the whole number at `at` is; 0 where none begins.
std::size_t NumberLength(std::string_view code, std::size_t at) {
  const auto is_part = [](char c) { return IsWordLetter(c) || c == '.' || c == '\''; };
  if (at > 0 && is_part(code[at - 1])) return 0;
  std::size_t end = at;
  while (end < code.size() && IsDigit(code[end])) ++end;
  constexpr std::size_t kLongest = 6;
  const bool goes_on = end < code.size() && is_part(code[end]);
  return goes_on || end - at > kLongest ? 0 : end - at;
}

int NumberAt(std::string_view code, std::size_t at) {
  return std::stoi(std::string(code.substr(at, NumberLength(code, at))));
}

/// Adds where numbers stand in the list that begins at `at`, up to the bracket that closes it, and
/// not within further brackets. 0 is no text id.
void AddNumbersOfList(std::string_view code, std::size_t at, std::set<std::size_t>& places) {
  for (int open = 0; at < code.size(); ++at) {
    if (code[at] == '(' || code[at] == '[' || code[at] == '{') ++open;
    if ((code[at] == ')' || code[at] == ']' || code[at] == '}') && --open < 0) return;
    const std::size_t length = open == 0 ? NumberLength(code, at) : 0;
    if (length == 0 || NumberAt(code, at) == 0) continue;
    const bool is_template_argument = code.substr(at + length).starts_with('>');
    if (!is_template_argument) places.insert(at);
  }
}

/// Adds where numbers are given as text ids to what begins with `opening`, such as both of
/// Sprachtext(ok ? 432 : 139).
void AddNumbersBehind(std::string_view code, const std::string& opening,
                      std::set<std::size_t>& places) {
  for (std::size_t at = code.find(opening); at != code.npos; at = code.find(opening, at + 1)) {
    if (StandsAlone(code, at, opening)) AddNumbersOfList(code, at + opening.size(), places);
  }
}

/// Whether the number at `at` begins a notice or an own word, {9101, "Not there.", {}}.
bool BeginsWords(std::string_view code, std::size_t at) {
  if (!WithoutBlanksBehind(code.substr(0, at)).ends_with('{')) return false;
  std::string_view rest = WithoutBlanksBefore(code.substr(at + NumberLength(code, at)));
  if (!rest.starts_with(',')) return false;
  rest = WithoutBlanksBefore(rest.substr(1));
  return rest.starts_with('"');
}

/// Whether the number at `at` is the second of a row, {slot, id}. Ids of one digit stand in no
/// table, and no slot has more than two.
bool IsSecondOfRow(std::string_view code, std::size_t at) {
  constexpr int kLeast = 10;
  std::string_view before = WithoutBlanksBehind(code.substr(0, at));
  if (!before.ends_with(',') || NumberAt(code, at) < kLeast) return false;
  before = before.substr(0, before.size() - 1);
  const std::size_t slot = before.find_last_not_of("0123456789") + 1;
  const std::size_t digits = before.size() - slot;
  return digits > 0 && digits <= 2 && before.substr(0, slot).ends_with('{');
}

/// Where a source says a bare number in the place of a text id.
std::set<std::size_t> BareTextIds(std::string_view code) {
  std::set<std::size_t> places;
  for (const char* opening :
       {"Sprachtext(", "SprachtextOder(", "EigenesWort(", "Wort(", "Ueberschrift(", "Gesehen(",
        ".Say(", "->Say(", "Texte(", "warten_(", "ids = {"}) {
    AddNumbersBehind(code, opening, places);
  }
  // Where texts are looked up there may be short forms of the look-up, and tables of ids.
  const bool looks_up = code.find("Sprachtext(") != code.npos || code.find(kName) != code.npos;
  if (looks_up) AddNumbersBehind(code, "text(", places);
  for (std::size_t at = 0; at < code.size(); ++at) {
    if (!IsDigit(code[at]) || NumberLength(code, at) == 0) continue;
    const int number = NumberAt(code, at);
    if ((number >= kFirstNotice && number <= kLastNotice) || BeginsWords(code, at) ||
        (looks_up && IsSecondOfRow(code, at))) {
      places.insert(at);
    }
  }
  return places;
}

/// The name of a text id that `text` begins with, such as kBack.
std::string LeadingName(std::string_view text) {
  std::size_t length = 0;
  while (length < text.size() && IsWordLetter(text[length])) ++length;
  return std::string(text.substr(0, length));
}

/// Adds the names of text ids that a source uses.
void AddUsedNames(std::string_view code, std::set<std::string>& names) {
  for (std::size_t at = code.find(kName); at != code.npos; at = code.find(kName, at + 1)) {
    names.insert(LeadingName(code.substr(at + kName.size())));
  }
}

int LineOf(std::string_view text, std::size_t at) {
  return 1 + static_cast<int>(std::count(text.begin(), text.begin() + at, '\n'));
}

/// The literals that `text` starts with, one behind the other, as one; nothing without one. They
/// are taken from `text`.
std::optional<std::string> TakeLiteral(std::string_view& text) {
  std::optional<std::string> literal;
  for (text = WithoutBlanksBefore(text); text.starts_with('"'); text = WithoutBlanksBefore(text)) {
    const std::size_t end = EndOfUnspoken(text, 0);
    if (!literal) literal.emplace();
    for (std::size_t at = 1; at + 1 < end; ++at) {
      if (text[at] == '\\') ++at;
      *literal += text[at];
    }
    text.remove_prefix(end);
  }
  return literal;
}

/// The notices of a source: the names of their text ids, each with the English text behind it, as
/// in {text_id::kYes, "Yes", {}} or Say(text_id::kYes, "Yes").
std::vector<std::pair<std::string, std::string>> Notices(std::string_view text) {
  std::vector<std::pair<std::string, std::string>> notices;
  for (std::size_t at = text.find(kName); at != text.npos; at = text.find(kName, at + 1)) {
    const std::string name = LeadingName(text.substr(at + kName.size()));
    const std::string_view before = WithoutBlanksBehind(text.substr(0, at));
    std::string_view rest = text.substr(at + kName.size() + name.size());
    if (!rest.starts_with(',')) continue;
    rest.remove_prefix(1);
    const std::optional<std::string> english = TakeLiteral(rest);
    // Without details behind it, it is a row of own words in another language.
    const bool is_notice = before.ends_with('{') && rest.starts_with(',');
    if (english && (is_notice || before.ends_with("Say("))) notices.emplace_back(name, *english);
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

std::map<std::string, int> NamedTextIds(const Tree& tree, Faults& faults) {
  static const std::regex kRow("inline constexpr int (k[A-Za-z0-9]+) = ([0-9]{1,6});");
  std::map<std::string, int> ids;
  const auto file = tree.find(std::string(kTextIds));
  if (file == tree.end()) {
    faults.push_back(std::string(kTextIds) + " is missing");
    return ids;
  }
  int last = 0;
  for (const auto& [number, text] : Lines(file->second)) {
    if (text.find("constexpr") == text.npos) continue;
    const std::string line(text);
    std::smatch row;
    if (!std::regex_match(line, row, kRow)) {
      faults.push_back(Fault(file->first, number, "is not the name of a text id"));
      continue;
    }
    const int id = std::stoi(row[2]);
    if (id == last) faults.push_back(Fault(file->first, number, "names an id a second time"));
    if (id < last) faults.push_back(Fault(file->first, number, "does not ascend"));
    last = id;
    ids.emplace(row[1], id);
  }
  return ids;
}

Faults TextIdFaults(const Tree& tree) {
  Faults faults;
  std::set<std::string> used;
  for (const auto& [file, text] : SourceFiles(tree)) {
    const std::string path = std::string(kSources) + file;
    if (path == kTextIds) continue;
    const std::string code = Code(*text);
    AddUsedNames(code, used);
    for (const std::size_t at : BareTextIds(code)) {
      faults.push_back(Fault(path, LineOf(code, at),
                             std::to_string(NumberAt(code, at)) + " is a text id without a name"));
    }
  }
  for (const auto& [name, id] : NamedTextIds(tree, faults)) {
    if (!used.contains(name)) faults.push_back(std::string(kTextIds) + ": nobody uses " + name);
  }
  return faults;
}

std::map<std::string, std::string> ReadLanguage(const std::string& path, const std::string& text,
                                                Faults& faults) {
  constexpr std::string_view kMessage = "<message ";
  Words words;
  std::size_t at = text.find(kMessage);
  while (at != text.npos) {
    const std::size_t next = text.find(kMessage, at + 1);
    const std::string_view message = std::string_view(text).substr(at, next - at);
    const int line = LineOf(text, at);
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
  std::map<std::string, std::string> names;  // by key
  for (const auto& [name, id] : NamedTextIds(tree, faults)) names[std::to_string(id) + 's'] = name;
  std::optional<Words> first;
  for (const auto& [path, text] : tree) {
    if (!path.starts_with(kLanguages) || !path.ends_with(".ts")) continue;
    const Words words = ReadLanguage(path, text, faults);
    for (const auto& [key, name] : names) {
      if (!words.contains(key)) faults.push_back(Fault(path, 1, "has no word for " + name));
    }
    for (const auto& [key, word] : words) {
      if (!names.contains(key))
        faults.push_back(Fault(path, 1, key + " is the word of no text id"));
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
  const std::map<std::string, int> ids = NamedTextIds(tree, faults);
  for (const auto& [file, text] : SourceFiles(tree)) {
    for (const auto& [name, said] : Notices(*text)) {
      const auto id = ids.find(name);
      if (id == ids.end() || id->second < kFirstNotice) continue;
      const auto word = words.find(std::to_string(id->second) + 's');
      if (word != words.end() && word->second != said) {
        faults.push_back(Fault(std::string(kSources) + file, 1,
                               "the notice " + name + " differs from English.ts"));
      }
    }
  }
  return faults;
}

}  // namespace vmod17::lint

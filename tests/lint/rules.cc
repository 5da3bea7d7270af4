// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "lint/rules.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <optional>
#include <regex>
#include <sstream>
#include <string_view>
#include <utility>

namespace vmod17::lint {
namespace {

constexpr std::string_view kSources = "src/";
constexpr std::string_view kLanguages = "assets/languages/";

struct Line {
  int number;
  std::string_view text;
};

std::vector<Line> Lines(std::string_view text) {
  std::vector<Line> lines;
  for (int number = 1; !text.empty(); ++number) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.push_back({number, text.substr(0, end)});
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

std::string Fault(const std::string& path, int line, const std::string& reason) {
  return path + ":" + std::to_string(line) + ": " + reason;
}

bool IsWordLetter(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// Whether `text` has `word` at `at` with no letter of a word on either side.
bool StandsAlone(std::string_view text, std::size_t at, std::string_view word) {
  const std::size_t after = at + word.size();
  return (at == 0 || !IsWordLetter(text[at - 1]) || !IsWordLetter(word.front())) &&
         (after == text.size() || !IsWordLetter(text[after]) || !IsWordLetter(word.back()));
}

bool HasWord(std::string_view text, std::string_view word) {
  for (std::size_t at = text.find(word); at != text.npos; at = text.find(word, at + 1)) {
    if (StandsAlone(text, at, word)) return true;
  }
  return false;
}

std::string Lower(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return lower;
}

struct Include {
  int line;
  bool own;  ///< in quotation marks, so a file of the project
  std::string name;
};

std::vector<Include> Includes(std::string_view text) {
  std::vector<Include> includes;
  for (const Line& line : Lines(text)) {
    std::string_view rest = line.text;
    const auto skip_blanks = [&] {
      rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
    };
    skip_blanks();
    if (!rest.starts_with('#')) continue;
    rest.remove_prefix(1);
    skip_blanks();
    if (!rest.starts_with("include")) continue;
    rest.remove_prefix(7);
    skip_blanks();
    if (rest.empty()) continue;
    const bool own = rest.front() == '"';
    rest.remove_prefix(1);
    includes.push_back({line.number, own, std::string(rest.substr(0, rest.find_first_of("\">")))});
  }
  return includes;
}

// The floors, from the ground up.
enum Floor {
  kBase,
  kForms,
  kCatalogue,
  kShell,
  kExercise,
  kSound,
  kSettings,
  kResults,
  kWorksheet,
  kModule,
  kLibraries,
  kPrograms,
};

/// The floor of a file of src/, named from there.
std::optional<Floor> FloorOf(std::string_view file) {
  static constexpr std::pair<std::string_view, Floor> kTable[] = {
      {"base/", kBase},           {"forms/", kForms},       {"ports/", kForms},
      {"catalogue/", kCatalogue}, {"shell/", kShell},       {"exercise/", kExercise},
      {"sound/", kSound},         {"settings/", kSettings}, {"results/", kResults},
      {"worksheet/", kWorksheet}, {"module/", kModule},     {"midi/", kLibraries},
      {"qt/", kLibraries},        {"store/", kLibraries},   {"xml/", kLibraries},
      {"programs/", kPrograms},
  };
  for (const auto& [start, floor] : kTable) {
    if (file.starts_with(start)) return floor;
  }
  return std::nullopt;
}

bool IsCode(std::string_view path) { return path.ends_with(".h") || path.ends_with(".cc"); }

/// The files of src/ that are compiled, named from there.
std::map<std::string, const std::string*> SourceFiles(const Tree& tree) {
  std::map<std::string, const std::string*> files;
  for (const auto& [path, text] : tree) {
    if (path.starts_with(kSources) && IsCode(path)) files[path.substr(kSources.size())] = &text;
  }
  return files;
}

std::string_view Folder(std::string_view file) { return file.substr(0, file.find('/')); }

bool MayInclude(const std::string& file, Floor floor, const std::string& other, Floor below) {
  if (below > floor) return false;
  return below != kLibraries || floor != kLibraries || Folder(file) == Folder(other);
}

bool IsPlainStandardHeader(const std::string& name) {
  // Left out are threads, clocks, streams and files: the platform has them, not the core.
  static const std::set<std::string> kPlain = {
      "algorithm",     "any",           "array",    "bit",       "bitset",
      "cassert",       "cctype",        "cfloat",   "charconv",  "cinttypes",
      "climits",       "cmath",         "compare",  "concepts",  "cstddef",
      "cstdint",       "cstdlib",       "cstring",  "deque",     "exception",
      "forward_list",  "functional",    "iterator", "limits",    "initializer_list",
      "list",          "map",           "memory",   "new",       "numbers",
      "numeric",       "optional",      "queue",    "random",    "ranges",
      "ratio",         "set",           "span",     "stack",     "stdexcept",
      "string",        "string_view",   "tuple",    "typeindex", "type_traits",
      "typeinfo",      "unordered_map", "utility",  "variant",   "vector",
      "unordered_set", "version"};
  return kPlain.contains(name);
}

/// Walks the includes from `file` on. `way` is how it was come to.
void WalkForCircles(const std::map<std::string, const std::string*>& files, const std::string& file,
                    std::vector<std::string>& way, std::set<std::string>& done, Faults& faults) {
  const auto seen = std::find(way.begin(), way.end(), file);
  if (seen != way.end()) {
    std::string circle;
    for (auto step = seen; step != way.end(); ++step) circle += *step + " -> ";
    faults.push_back(Fault(std::string(kSources) + file, 1, "includes itself: " + circle + file));
    return;
  }
  const auto found = files.find(file);
  if (found == files.end() || done.contains(file)) return;
  way.push_back(file);
  for (const Include& include : Includes(*found->second)) {
    if (include.own) WalkForCircles(files, include.name, way, done, faults);
  }
  way.pop_back();
  done.insert(file);
}

/// A word in two pieces, for this file must not hold it as a whole.
struct Pieces {
  const char* first;
  const char* second;

  std::string Whole() const { return std::string(first) + second; }
};

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

bool IsSource(std::string_view path) {
  const std::string_view name = path.substr(path.rfind('/') + 1);
  return IsCode(path) || path.ends_with(".cmake") || path.ends_with(".sh") ||
         path.ends_with(".ts") || name == "CMakeLists.txt" || name == "run" || name == "test";
}

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

Tree ReadTree(const std::filesystem::path& root) {
  namespace fs = std::filesystem;
  static const std::set<std::string> kNotOurs = {".git", ".cache", "build"};
  constexpr std::uintmax_t kLargest = 4 << 20;
  Tree tree;
  for (auto entry = fs::recursive_directory_iterator(root); entry != fs::end(entry); ++entry) {
    if (entry->is_directory()) {
      if (kNotOurs.contains(entry->path().filename().string())) entry.disable_recursion_pending();
      continue;
    }
    if (!entry->is_regular_file() || entry->file_size() > kLargest) continue;
    std::ifstream file(entry->path(), std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    const bool is_text = text.find('\0') == text.npos;
    if (is_text) tree[entry->path().lexically_relative(root).generic_string()] = std::move(text);
  }
  return tree;
}

Faults FloorFaults(const Tree& tree) {
  Faults faults;
  const auto files = SourceFiles(tree);
  for (const auto& [file, text] : files) {
    const std::string path = std::string(kSources) + file;
    const auto floor = FloorOf(file);
    if (!floor) {
      faults.push_back(Fault(path, 1, "stands on no floor"));
      continue;
    }
    for (const Include& include : Includes(*text)) {
      const auto below = FloorOf(include.name);
      if (!include.own || !below) continue;
      if (!MayInclude(file, *floor, include.name, *below)) {
        faults.push_back(Fault(path, include.line, "must not include " + include.name));
      }
    }
  }
  return faults;
}

Faults CircleFaults(const Tree& tree) {
  Faults faults;
  const auto files = SourceFiles(tree);
  std::set<std::string> done;
  for (const auto& [file, text] : files) {
    std::vector<std::string> way;
    WalkForCircles(files, file, way, done, faults);
  }
  return faults;
}

Faults CoreIncludeFaults(const Tree& tree) {
  Faults faults;
  const auto files = SourceFiles(tree);
  for (const auto& [file, text] : files) {
    if (FloorOf(file).value_or(kPrograms) >= kLibraries) continue;
    for (const Include& include : Includes(*text)) {
      const bool allowed =
          include.own ? files.contains(include.name) : IsPlainStandardHeader(include.name);
      if (!allowed) {
        faults.push_back(Fault(std::string(kSources) + file, include.line,
                               "the core must not include " + include.name));
      }
    }
  }
  return faults;
}

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

Faults HeadFaults(const Tree& tree) {
  constexpr std::size_t kHead = 5;
  Faults faults;
  for (const auto& [path, text] : tree) {
    if (!IsSource(path)) continue;
    bool copyright = false;
    bool licence = false;
    bool once = false;
    const std::vector<Line> lines = Lines(text);
    for (std::size_t i = 0; i < lines.size(); ++i) {
      const std::string_view line = lines[i].text;
      if (i < kHead) {
        copyright |= line.find("SPDX-FileCopyrightText: 2026 The Melvado authors") != line.npos;
        licence |= line.find("SPDX-License-Identifier: Apache-2.0") != line.npos;
      }
      once |= line == "#pragma once";
    }
    if (!copyright) faults.push_back(Fault(path, 1, "does not say whose it is"));
    if (!licence) faults.push_back(Fault(path, 1, "does not name its licence"));
    if (path.ends_with(".h") && !once) faults.push_back(Fault(path, 1, "lacks #pragma once"));
  }
  return faults;
}

Faults TypeFaults(const Tree& tree) {
  static const std::regex kNamespace("namespace ([A-Za-z0-9_:]+) \\{.*");
  static const std::regex kType(
      "(?:class|struct|enum class|enum) ([A-Za-z0-9_]+)(?: [^;(]*)?\\{.*");
  Faults faults;
  std::map<std::string, std::string> homes;
  for (const auto& [path, text] : tree) {
    if (!path.starts_with("src/") || !path.ends_with(".h")) continue;
    std::string space;
    for (const Line& line : Lines(text)) {
      const std::string code(line.text);
      std::smatch found;
      if (std::regex_match(code, found, kNamespace)) space = found[1];
      if (!std::regex_match(code, found, kType)) continue;
      const auto [home, is_new] = homes.try_emplace(space + "::" + found[1].str(), path);
      if (!is_new) {
        faults.push_back(Fault(path, line.number, home->first + " is also in " + home->second));
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

std::set<int> UsedTextIds(const Tree& tree) {
  std::set<int> ids;
  for (const auto& [file, text] : SourceFiles(tree)) {
    AddNumbersInCalls(*text, "Sprachtext", ids);
    for (const auto& [id, english] : Notices(*text)) ids.insert(id);
    // Where texts are looked up there may be short forms of the look-up, and tables of ids.
    if (text->find("Sprachtext(") == text->npos) continue;
    AddNumbersInCalls(*text, "text", ids);
    AddNumbersInCalls(*text, "options", ids);
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

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "lint/includes.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace vmod17::lint {
namespace {

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

}  // namespace

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

}  // namespace vmod17::lint

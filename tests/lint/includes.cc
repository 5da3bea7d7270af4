// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "lint/includes.h"

#include <algorithm>
#include <functional>

namespace vmod17::lint {
namespace {

struct Include {
  int line;
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
    rest.remove_prefix(1);
    includes.push_back({line.number, std::string(rest.substr(0, rest.find_first_of("\">")))});
  }
  return includes;
}

/// The folder of a file of src/, named from there.
std::string FolderOf(std::string_view file) {
  return std::string(file.substr(0, std::min(file.rfind('/'), file.size())));
}

// --- Foreign headers

/// What a name in the table's last column stands for: headers, and starts of headers.
struct Library {
  std::set<std::string, std::less<>> headers;
  std::string start{};
  std::string but_not{};  // what begins so is another library's

  bool Has(std::string_view header) const {
    if (headers.contains(header)) return true;
    return !start.empty() && header.starts_with(start) &&
           (but_not.empty() || !header.starts_with(but_not));
  }
};

std::map<std::string, Library> MakeLibraries() {
  std::map<std::string, Library> libraries = {
      // Left out are threads, clocks, streams and files: the platform has them, not the core.
      {"plain standard library",
       {{"algorithm",     "any",           "array",    "bit",       "bitset",
         "cassert",       "cctype",        "cfloat",   "charconv",  "cinttypes",
         "climits",       "cmath",         "compare",  "concepts",  "cstddef",
         "cstdint",       "cstdlib",       "cstring",  "deque",     "exception",
         "forward_list",  "functional",    "iterator", "limits",    "initializer_list",
         "list",          "map",           "memory",   "new",       "numbers",
         "numeric",       "optional",      "queue",    "random",    "ranges",
         "ratio",         "set",           "span",     "stack",     "stdexcept",
         "string",        "string_view",   "tuple",    "typeindex", "type_traits",
         "typeinfo",      "unordered_map", "utility",  "variant",   "vector",
         "unordered_set", "version"}}},
      {"threads",
       {{"atomic", "barrier", "condition_variable", "future", "latch", "mutex", "semaphore",
         "shared_mutex", "stop_token", "thread"}}},
      {"POSIX", {{"dlfcn.h", "fcntl.h", "poll.h", "signal.h", "stdlib.h", "unistd.h"}, "sys/"}},
      {"Qt", {{}, "Q", "QSql"}},
      {"Qt Core",
       {{"QByteArray",
         "QByteArrayView",
         "QCoreApplication",
         "QCryptographicHash",
         "QDateTime",
         "QDir",
         "QFile",
         "QFileInfo",
         "QLibrary",
         "QList",
         "QLockFile",
         "QObject",
         "QRegularExpression",
         "QSocketNotifier",
         "QString",
         "QStringList",
         "QSysInfo",
         "QTemporaryFile",
         "QTimer",
         "QUrl",
         "QUrlQuery",
         "QUuid",
         "QVariant",
         "QVariantList"}}},
      {"Qt SQL", {{}, "QSql"}},
      {"pugixml", {{"pugixml.hpp"}}},
      {"FluidSynth", {{"fluidsynth.h"}}},
      {"RtMidi", {{"rtmidi/RtMidi.h"}}},
  };
  Library& standard = libraries["standard library"] = libraries["plain standard library"];
  standard.headers.insert({"cerrno", "chrono", "clocale", "csignal", "cstdio", "ctime",
                           "filesystem", "fstream", "iomanip", "ios", "iosfwd", "iostream",
                           "istream", "locale", "ostream", "sstream", "system_error"});
  return libraries;
}

const std::map<std::string, Library>& Libraries() {
  static const std::map<std::string, Library> libraries = MakeLibraries();
  return libraries;
}

// --- The table

/// A row: what the files of a folder may include.
struct Row {
  int line;
  std::string folder;
  std::string target;
  std::vector<std::string> folders;
  std::vector<std::string> libraries;
};

std::string Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" `");
  if (first == text.npos) return "";
  return std::string(text.substr(first, text.find_last_not_of(" `") - first + 1));
}

std::vector<std::string> Parts(std::string_view text, char between) {
  std::vector<std::string> parts;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(between), text.size());
    if (const std::string part = Trimmed(text.substr(0, end)); !part.empty()) parts.push_back(part);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return parts;
}

/// What stands between the strokes of a row of a table; nothing for another line.
std::vector<std::string> Cells(std::string_view line) {
  std::vector<std::string> cells;
  if (!line.starts_with('|')) return cells;
  line.remove_prefix(1);
  for (std::size_t end = line.find('|'); end != line.npos; end = line.find('|')) {
    cells.push_back(Trimmed(line.substr(0, end)));
    line.remove_prefix(end + 1);
  }
  return cells;
}

/// The rows of the page's table, from the ground up; none without such a table.
std::vector<Row> ReadTable(const Tree& tree) {
  static const std::vector<std::string> kHead = {"folder", "target", "holds", "includes",
                                                 "foreign headers"};
  std::vector<Row> rows;
  const auto page = tree.find(std::string(kFloorPage));
  if (page == tree.end()) return rows;
  bool inside = false;
  for (const Line& line : Lines(page->second)) {
    const std::vector<std::string> cells = Cells(line.text);
    if (!inside) {
      inside = cells == kHead;
      continue;
    }
    if (cells.size() != kHead.size()) break;
    if (cells[0].starts_with("---")) continue;
    rows.push_back({line.number, cells[0], cells[1], Parts(cells[3], ' '), Parts(cells[4], ',')});
  }
  return rows;
}

const Row* RowOf(const std::vector<Row>& rows, std::string_view folder) {
  const auto found =
      std::find_if(rows.begin(), rows.end(), [&](const Row& row) { return row.folder == folder; });
  return found == rows.end() ? nullptr : &*found;
}

bool Grants(const Row& row, const std::vector<Row>& rows, const std::string& header) {
  const std::string folder = FolderOf(header);
  if (folder == row.folder) return true;
  if (RowOf(rows, folder) != nullptr) {
    return std::find(row.folders.begin(), row.folders.end(), folder) != row.folders.end();
  }
  return std::any_of(row.libraries.begin(), row.libraries.end(), [&](const std::string& name) {
    const auto library = Libraries().find(name);
    return library != Libraries().end() && library->second.Has(header);
  });
}

bool IsMade(const Tree& tree, const std::string& target) {
  return std::any_of(tree.begin(), tree.end(), [&](const auto& file) {
    const auto& [path, text] = file;
    if (!path.starts_with(kSources) || !path.ends_with("CMakeLists.txt")) return false;
    std::string flat = text;
    std::replace(flat.begin(), flat.end(), '\n', ' ');
    for (const std::string start : {"add_library(", "add_executable("}) {
      for (std::size_t at = flat.find(start); at != flat.npos; at = flat.find(start, at + 1)) {
        const std::size_t name = flat.find_first_not_of(' ', at + start.size());
        if (name != flat.npos && StandsAlone(flat, name, target) &&
            flat.compare(name, target.size(), target) == 0) {
          return true;
        }
      }
    }
    return false;
  });
}

// --- Circles

/// What each file or folder includes.
using Graph = std::map<std::string, std::set<std::string>>;

/// Walks the includes from `place` on. `way` is how it was come to.
void WalkForCircles(const Graph& graph, const std::string& place, std::vector<std::string>& way,
                    std::set<std::string>& done, Faults& faults) {
  const auto seen = std::find(way.begin(), way.end(), place);
  if (seen != way.end()) {
    std::string circle;
    for (auto step = seen; step != way.end(); ++step) circle += *step + " -> ";
    faults.push_back(Fault(std::string(kSources) + place, 1, "includes itself: " + circle + place));
    return;
  }
  const auto found = graph.find(place);
  if (found == graph.end() || done.contains(place)) return;
  way.push_back(place);
  for (const std::string& next : found->second) WalkForCircles(graph, next, way, done, faults);
  way.pop_back();
  done.insert(place);
}

void AddCircles(const Graph& graph, Faults& faults) {
  std::set<std::string> done;
  for (const auto& [place, includes] : graph) {
    std::vector<std::string> way;
    WalkForCircles(graph, place, way, done, faults);
  }
}

}  // namespace

Faults TableFaults(const Tree& tree) {
  const std::string page(kFloorPage);
  const std::vector<Row> rows = ReadTable(tree);
  if (rows.empty()) return {Fault(page, 1, "has no table of folders")};
  Faults faults;
  std::set<std::string> folders;
  for (const auto& [file, text] : SourceFiles(tree)) folders.insert(FolderOf(file));
  for (const std::string& folder : folders) {
    if (RowOf(rows, folder) != nullptr) continue;
    faults.push_back(Fault(page, rows.front().line, "has no row for " + folder));
  }
  for (const Row& row : rows) {
    const auto add = [&](const std::string& reason) {
      faults.push_back(Fault(page, row.line, row.folder + ": " + reason));
    };
    if (RowOf(rows, row.folder) != &row) add("has a second row");
    if (!folders.contains(row.folder)) add("there is no such folder");
    if (!IsMade(tree, row.target)) add("nothing makes the target " + row.target);
    for (const std::string& folder : row.folders) {
      const Row* const below = RowOf(rows, folder);
      if (below == nullptr || below >= &row) add(folder + " stands in no row above");
    }
    for (const std::string& library : row.libraries) {
      if (!Libraries().contains(library)) add("the lint knows no headers of " + library);
    }
  }
  return faults;
}

Faults FloorFaults(const Tree& tree) {
  Faults faults;
  const std::vector<Row> rows = ReadTable(tree);
  for (const auto& [file, text] : SourceFiles(tree)) {
    const std::string path = std::string(kSources) + file;
    const Row* const row = RowOf(rows, FolderOf(file));
    if (row == nullptr) {
      faults.push_back(Fault(path, 1, "stands in a folder without a row"));
      continue;
    }
    for (const Include& include : Includes(*text)) {
      if (Grants(*row, rows, include.name)) continue;
      faults.push_back(Fault(path, include.line, "must not include " + include.name));
    }
  }
  return faults;
}

Faults CircleFaults(const Tree& tree) {
  Graph by_file;
  Graph by_folder;
  const auto files = SourceFiles(tree);
  for (const auto& [file, text] : files) {
    for (const Include& include : Includes(*text)) {
      if (!files.contains(include.name)) continue;
      by_file[file].insert(include.name);
      const std::string folder = FolderOf(file);
      const std::string other = FolderOf(include.name);
      if (folder != other) by_folder[folder].insert(other);
    }
  }
  Faults faults;
  AddCircles(by_file, faults);
  AddCircles(by_folder, faults);
  return faults;
}

}  // namespace vmod17::lint

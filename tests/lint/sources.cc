// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "lint/sources.h"

#include <regex>

namespace vmod17::lint {
namespace {

bool IsSource(std::string_view path) {
  const std::string_view name = path.substr(path.rfind('/') + 1);
  return IsCode(path) || path.ends_with(".cmake") || path.ends_with(".sh") ||
         path.ends_with(".ts") || name == "CMakeLists.txt" || name == "run" || name == "test";
}

}  // namespace

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

}  // namespace vmod17::lint

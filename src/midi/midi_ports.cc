// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "midi/midi_ports.h"

#include <algorithm>

namespace vmod17 {

std::string LastingPortName(const std::string& name) {
  static constexpr const char* kDigits = "0123456789";
  const std::size_t blank = name.rfind(' ');
  if (blank == std::string::npos || blank == 0) return name;
  const std::size_t colon = name.find_first_not_of(kDigits, blank + 1);
  const bool is_address = colon != std::string::npos && colon > blank + 1 && name[colon] == ':' &&
                          colon + 1 < name.size() &&
                          name.find_first_not_of(kDigits, colon + 1) == std::string::npos;
  return is_address ? name.substr(0, blank) : name;
}

std::optional<int> FindDevice(const std::vector<std::string>& names, const std::string& part) {
  // A name may have been noted with its address.
  const std::string lasting = LastingPortName(part);
  auto found = std::ranges::find(names, lasting);
  if (found == names.end()) {
    found = std::ranges::find_if(
        names, [&](const std::string& name) { return name.find(lasting) != std::string::npos; });
  }
  if (found == names.end()) return std::nullopt;
  return static_cast<int>(found - names.begin());
}

}  // namespace vmod17

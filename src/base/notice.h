// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace vmod17 {

/// Something that the user should be told in plain words while the program goes on.
struct Notice {
  int text_id;                       ///< id of the text, in which %1, %2 stand for the details
  std::string english;               ///< the same text, for a language that has no word for the id
  std::vector<std::string> details;  ///< UTF-8: names, folders, what the system said
};

/// A text with the details in the places of %1, %2.
inline std::string WithDetails(std::string text, const std::vector<std::string>& details) {
  // From the last placeholder down: a detail may hold what looks like one.
  for (std::size_t i = details.size(); i > 0; --i) {
    const std::string placeholder = "%" + std::to_string(i);
    const std::size_t at = text.find(placeholder);
    if (at != std::string::npos) text.replace(at, placeholder.size(), details[i - 1]);
  }
  return text;
}

/// Takes a notice on the program's thread; a call never blocks. Who calls sees to it that a trouble
/// that goes on is told once, and a new one again.
using Notify = std::function<void(const Notice&)>;

}  // namespace vmod17

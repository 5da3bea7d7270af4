// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <string>
#include <vector>

namespace vmod17 {

/// Something that the user should be told once, in plain words, while the program goes on.
struct Notice {
  int text_id;                       ///< id of the text, in which %1, %2 stand for the details
  std::string english;               ///< the same text, for a language that has no word for the id
  std::vector<std::string> details;  ///< UTF-8: names, folders, what the system said
};

/// Takes a notice on the program's thread. The same notice, by id and details, is shown once in a
/// process; a call never blocks.
using Notify = std::function<void(const Notice&)>;

}  // namespace vmod17

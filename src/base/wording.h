// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <string>

#include "base/notice.h"

namespace vmod17 {

/// Says a notice in the words of a language.
using Wording = std::function<std::string(const Notice&)>;

/// The wording of who knows no language.
inline std::string InEnglish(const Notice& notice) {
  return WithDetails(notice.english, notice.details);
}

}  // namespace vmod17

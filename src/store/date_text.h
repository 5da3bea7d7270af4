// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <cstdio>
#include <string>

#include "ports/event_loop.h"

namespace vmod17 {

/// "YYYY-MM-DD hh:mm:ss"
inline std::string TextOf(const DateTime& time) {
  std::array<char, 96> text;
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", time.year, time.month,
                time.day, time.hour, time.minute, time.second);
  return text.data();
}

}  // namespace vmod17

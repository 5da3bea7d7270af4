// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <algorithm>
#include <string>

namespace vmod17 {

/// The language of a locale, without country: "de" of "de_AT" and of "de-AT". Letters only, since
/// it becomes the name of a folder.
inline std::string LanguageCode(const std::string& locale) {
  const auto is_letter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
  return {locale.begin(), std::find_if_not(locale.begin(), locale.end(), is_letter)};
}

}  // namespace vmod17

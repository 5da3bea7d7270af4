// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>

#include "base/notice.h"
#include "ports/language.h"

// How a language is asked. Null stands for no language, which has no word.

namespace vmod17 {

/// The word for a text id, `TextLookup::kOhneWort` without one.
std::string WordOf(const Language* language, int id);

/// The words of a notice, its details in their places; its English ones where the language has
/// none.
std::string WordsOf(const Language* language, const Notice& notice);

}  // namespace vmod17

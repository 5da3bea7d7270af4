// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <string_view>

#include "forms/controls.h"

namespace vmod17 {

/// The 128 instruments by program number, from 0: the General MIDI sound set (GM 1), in its order
/// and in our own wording. The names are the same in all languages.
extern const std::array<std::string_view, 128> kInstrumente;

/// Adds the instruments to a list, so that the place in the list is the program number.
void KlangNamen(ItemList& combo);

}  // namespace vmod17

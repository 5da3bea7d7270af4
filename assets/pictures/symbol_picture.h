// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QImage>

#include "pictures/fonts.h"
#include "pictures/symbol_parts.h"

namespace vmod17 {

inline constexpr int kSymbolHeight = 40;

/// Draws a chord symbol on white, `scale` times as large as the smallest size.
///
/// `width`  of the picture at the smallest size
/// Errors: std::logic_error when the symbol does not fit.
QImage DrawSymbol(const SymbolParts& parts, int width, int scale, const Fonts& fonts);

}  // namespace vmod17

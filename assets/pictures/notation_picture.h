// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QImage>

#include "pictures/fonts.h"
#include "pictures/notation_layout.h"

namespace vmod17 {

/// Draws a layout, `scale` times as large. At scale 1 each pixel is black or white; larger pictures
/// have the font's outlines with smooth edges, in the same places, on lines as sharp.
QImage DrawNotation(const NotationLayout& layout, int scale, const OutlineFont& music);

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>
#include <string_view>

namespace vmod17 {

/// `text` as it may stand in an XML 1.0 document: each byte that is no UTF-8 and each character
/// that XML 1.0 forbids (all below U+0020 but tab, line feed and carriage return; U+FFFE, U+FFFF)
/// becomes U+FFFD.
std::string XmlText(std::string_view text);

/// True for a name that an element or attribute may have: a letter, "_" or any character beyond
/// ASCII, then also digits, "-", "." and ":".
bool IsXmlName(std::string_view name);

}  // namespace vmod17

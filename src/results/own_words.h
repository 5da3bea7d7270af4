// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>

#include "shell/text_lookup.h"

namespace vmod17 {

/// The results screen's own word for a text id: the German one, for a language that has none. What
/// a student takes home on paper is to be read in any case. "" for an id that it does not show.
std::string EigenesWort(int id);

/// A text that was looked up elsewhere, or `eigenes` where it tells nothing.
inline std::string Oder(const std::string& gesehen, const std::string& eigenes) {
  return TextLookup::Fehlt(gesehen) ? eigenes : gesehen;
}
/// The names of a group, 1 to 8 or 10 for the short form of 5, and of a Klangtyp, 3 to 7.
std::string EigenerGruppenName(int i);
std::string EigenerKlangName(int klangtyp);

}  // namespace vmod17

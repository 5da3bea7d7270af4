// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace vmod17 {

/// What the tags of a page ask of the toolkit. Each number is at least what the toolkit makes of
/// the page, however broken that is: an end tag ends an element only where one of its name is open.
struct HtmlTags {
  int depth = 0;  ///< of elements in elements, but for those that many leave open, such as `p`
  int cells = 0;  ///< of all tables, with what they span, and their rows
};

HtmlTags TagsOf(const QString& page);

/// What the toolkit has read in a page.
struct HtmlTables {
  int depth = 0;      ///< of tables in tables
  qint64 places = 0;  ///< rows times columns of all tables, which a few cells may have many of
};

/// `page`  whose tags are within bounds: reading takes room and time for each of them
HtmlTables TablesOf(const QString& page);

/// Whether a page is read and laid out in about a second.
bool CanBeLaidOut(const QString& page);

}  // namespace vmod17

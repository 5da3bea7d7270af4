// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>

#include "base/notice.h"
#include "ports/unsaved_record.h"
#include "ports/xml_document.h"

namespace vmod17 {

/// Makes documents that are saved as UTF-8 with a declaration, indented.
///
/// Text that may not stand in a document is replaced as `XmlText` tells, so that every saved file
/// can be read. A list by name shows what is in the tree at the time of the call, and adds to the
/// same parent. Beyond the errors of the interface: RunTimeError kInvalidCall for a name that XML
/// does not allow, and for adding to the lists of an attribute. An attribute that is added under
/// the name of another takes its place, since an element has each name once.
///
/// `Save` raises nothing, and replaces no file but the document's own: where its name is taken,
/// "-2" and so on goes before the extension. When the named folder does not take the file, it goes
/// under its own name to `fallback_folder` (UTF-8, made if it is missing, for its owner alone), and
/// `notify` tells where it is. When that fails too, what was to be written goes to `keep`.
XmlDocumentFactory PugiDocumentFactory(std::string fallback_folder, Notify notify,
                                       KeepUnsaved keep);

}  // namespace vmod17

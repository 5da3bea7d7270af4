// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "base/notice.h"
#include "base/text_ids.h"

// What stands in several places.

namespace vmod17 {

inline const Notice kHelpWord{text_id::kHelp, "Help", {}};

// The buttons of messages and dialogs.
inline const Notice kOkWord{text_id::kOk, "OK", {}};
inline const Notice kYesWord{text_id::kYes, "Yes", {}};
inline const Notice kNoWord{text_id::kNo, "No", {}};

}  // namespace vmod17

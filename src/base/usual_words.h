// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "base/notice.h"

// What stands in several places.

namespace vmod17 {

inline const Notice kHelpWord{9421, "Help", {}};

// The buttons of messages and dialogs.
inline const Notice kOkWord{432, "OK", {}};
inline const Notice kYesWord{9001, "Yes", {}};
inline const Notice kNoWord{9002, "No", {}};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

// The controls of the screens, as plain values. A view reads them after each delivered event and at
// each yield, and shows what differs; a user's action comes back through `Press`, `Choose` and
// `Slide`, which do nothing for a control that cannot be reached. Code uses `Check`, `Select` and
// `Set`, which run the same handlers whether the control can be reached or not.

#include "forms/color.h"
#include "forms/control.h"
#include "forms/control_array.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "forms/item_list.h"
#include "forms/option_group.h"
#include "forms/pressable.h"
#include "forms/slider.h"

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <vector>

#include "base/tagged_value.h"
#include "dice.h"
#include "saved_trainings.h"

namespace vmod17 {

/// What is put into the store in place of a saved training.
struct MutatedTraining {
  int origin = 0;  ///< index of the training it was made from
  TaggedValue e1;
  TaggedValue a1;
  bool e1_changed = false;
  std::vector<const char*> mutations;  ///< names of what was done to it, in this order
};

/// Damages one of `trainings`, of which there is one at the least. One case in fifty stays whole.
MutatedTraining Mutate(const std::vector<SavedTraining>& trainings, Dice& dice);

}  // namespace vmod17

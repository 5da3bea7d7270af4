// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "forms/controls.h"

namespace vmod17 {

/// Shows the screens. It is told of each screen once it is made and before it is destroyed, and
/// reads all else from the screen itself.
class FormView {
 public:
  virtual ~FormView() = default;
  virtual void Attach(Form& form) = 0;
  virtual void Detach(Form& form) = 0;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "forms/form.h"

#include "forms/control.h"

namespace vmod17 {

void Form::Unload() {
  if (!loaded_) return;
  loaded_ = false;
  visible = false;
  for (Control* control : controls_) control->OutOfReach();
  Form_Unload();
}

}  // namespace vmod17

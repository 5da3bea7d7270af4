// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "forms/form.h"

#include "forms/control.h"
#include "forms/layout.h"

namespace vmod17 {

Layout Form::LayOut(Size, const TextMeasure&) const { return {}; }

void Form::Unload() {
  if (!loaded_) return;
  loaded_ = false;
  visible = false;
  for (Control* control : controls_) control->OutOfReach();
  Form_Unload();
}

}  // namespace vmod17

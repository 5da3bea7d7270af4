// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/loaded_screens.h"

#include <algorithm>

namespace vmod17 {

void LoadedScreens::Load(Form& form) {
  forms_.push_back(&form);
  form.Form_Load();
}

void LoadedScreens::Unload(Form& form) {
  const auto found = std::find(forms_.begin(), forms_.end(), &form);
  if (found == forms_.end()) return;
  // Taken from the list first: what fails in the form's own Unload must not keep it loaded.
  forms_.erase(found);
  struct Report {
    LoadedScreens& screens;
    Form& form;
    ~Report() {
      if (screens.Unloaded) screens.Unloaded(form);
    }
  } report{*this, form};
  form.Unload();
}

}  // namespace vmod17

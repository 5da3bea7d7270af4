// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <vector>

#include "forms/controls.h"

namespace vmod17 {

/// The screens that are loaded, in the order of their loading.
class LoadedScreens {
 public:
  /// Told of a screen after it was unloaded and taken from the list.
  std::function<void(Form&)> Unloaded;

  bool empty() const { return forms_.empty(); }
  int count() const { return static_cast<int>(forms_.size()); }
  /// The last one in the list, the top screen; null when none is loaded.
  Form* top() const { return forms_.empty() ? nullptr : forms_.back(); }

  /// Enters a new screen and runs its Load.
  void Load(Form& form);
  /// Unloads a screen; one that is not in the list is left alone.
  void Unload(Form& form);

 private:
  std::vector<Form*> forms_;
};

}  // namespace vmod17

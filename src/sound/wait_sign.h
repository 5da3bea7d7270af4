// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "base/notice.h"
#include "forms/control.h"
#include "forms/form.h"
#include "shell/text_lookup.h"

namespace vmod17 {

/// Tells on a screen what a playing waits for.
class WaitSign {
 public:
  /// The words stand in `wort`, which has the caption of text `text_id` otherwise. `rahmen`, if
  /// any, shows only with them.
  WaitSign(Form& form, const TextLookup& texts, Control& wort, int text_id,
           Control* rahmen = nullptr);

  /// The output is not ready yet: nobody listens so far.
  void ZeigeWarten();
  /// Says in the same place why nothing sounds.
  void Zeige(const Notice& grund);
  void Beende();

 private:
  Form& form_;
  const TextLookup& texts_;
  Control& wort_;
  int text_id_;
  Control* rahmen_;
};

}  // namespace vmod17

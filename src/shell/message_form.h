// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>

#include "shell/shell.h"

namespace vmod17 {

/// `frmMessage`, a small form for a titled message. It is there for all screens; the errors of the
/// program are told by the system's own message box.
class FrmMessage : public Form {
 public:
  explicit FrmMessage(LoadedScreens& screens);

  Panel picTitel{*this, "picTitel"};
  Label lblTitel{*this, "lblTitel"};
  Label txtPrompt{*this, "txtPrompt"};
  Button cmdOK{*this, "cmdOK"};

  void Message(const std::string& titel, const std::string& text);

  void Form_Close() override { cmdOK_Click(); }
  void cmdOK_Click();
  /// Called with a new width of the title bar, in units.
  void picTitel_Resize(int width);

 private:
  LoadedScreens& screens_;
};

}  // namespace vmod17

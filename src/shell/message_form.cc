// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/message_form.h"

namespace vmod17 {

FrmMessage::FrmMessage(LoadedScreens& screens) : Form("frmMessage"), screens_(screens) {
  lblTitel.container = &picTitel;
  cmdOK.caption = "OK";
  cmdOK.Click = [this] { cmdOK_Click(); };
}

void FrmMessage::Message(const std::string& titel, const std::string& text) {
  lblTitel.caption = titel;
  txtPrompt.caption = text;
}

void FrmMessage::cmdOK_Click() { screens_.Unload(*this); }

void FrmMessage::picTitel_Resize(int width) {
  picTitel.width = width;
  lblTitel.left = 5;
  lblTitel.top = 30;
  lblTitel.width = width - 10;
}

}  // namespace vmod17

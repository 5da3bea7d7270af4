// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "sound/wait_sign.h"

#include "sound/sound_words.h"

namespace vmod17 {

WaitSign::WaitSign(Form& form, const TextLookup& texts, Control& wort, int text_id, Control* rahmen)
    : form_(form), texts_(texts), wort_(wort), text_id_(text_id), rahmen_(rahmen) {}

void WaitSign::ZeigeWarten() {
  form_.listening = false;
  form_.pointer = Form::Pointer::kHourglass;
  Zeige(kKlangKommt);
}

void WaitSign::Zeige(const Notice& grund) {
  wort_.caption = texts_.Words(grund);
  if (rahmen_ != nullptr) rahmen_->visible = true;
  form_.Say(wort_.caption);
}

void WaitSign::Beende() {
  form_.pointer = Form::Pointer::kDefault;
  if (rahmen_ != nullptr) rahmen_->visible = false;
  wort_.caption = texts_.Sprachtext(text_id_);
}

}  // namespace vmod17

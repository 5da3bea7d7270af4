// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ports/timer.h"
#include "shell/shell.h"

namespace vmod17 {

/// `grd_einst`, the first screen: the choice of the exercise type, and the way out of the program.
class GrdEinst : public Form {
 public:
  explicit GrdEinst(Shell& shell);

  Panel PicAktion{*this, "PicAktion"};
  ControlArray<Frame> grdeinst{*this, "grdeinst", 0, 0};
  ControlArray<Label> grdeinst_lb{*this, "grdeinst_lb", 0, 0};
  OptionGroup ueb_typ{*this, "ueb_typ", 1, 3, 0};
  Button cmdOK{*this, "cmdOK"};
  Button cmdEnde{*this, "cmdEnde"};
  Button cmdHilfe{*this, "cmdHilfe"};
  Label versionszeile{*this, "versionszeile"};
  Label Kontrolle{*this, "Kontrolle"};
  Timer start;

  void Form_Load() override;
  void Form_Close() override { cmdEnde_Click(); }
  Layout LayOut(Size page, const TextMeasure& measure) const override;

  void start_Timer();
  void ueb_typ_Click(int index);
  void cmdOK_Click();
  void cmdEnde_Click();
  void cmdHilfe_Click();

 private:
  void SetzeTexte();

  Shell& shell_;
};

}  // namespace vmod17

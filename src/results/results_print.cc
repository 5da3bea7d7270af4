// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The print of a face: the face itself, made fit for paper.

#include "results/results_screen.h"

namespace vmod17 {

void Testergebnis::cmdPrint_Click(int index) {
  cmdPrint[index].enabled = false;
  PicSchalt[index].visible = false;
  back_color = Colors::kWhite;
  if (index == 0) {
    MacheGitterWeiss();
  } else {
    MacheEinstellungenWeiss();
  }
  Printer& printer = parts_.printer;
  printer.SetOrientation(Printer::Orientation::kLandscape);
  const PrintResult result = printer.PrintForm(*this);
  printer.SetOrientation(Printer::Orientation::kPortrait);
  PicSchalt[index].back_color = Colors::kWhite;
  PicSchalt[index].visible = true;
  // Each face is printed once; one that never came out may be tried again.
  cmdPrint[index].enabled = !result.printed;
  if (result.notice) shell_.messages.Warn(shell_.texts.Words(*result.notice), "Melvado");
}

void Testergebnis::MacheGitterWeiss() {
  datum.visible = true;
  for (int e = 1; e <= parts_.board.akk_zahl; ++e) {
    akk_group[e].back_color = Colors::kWhite;
    ergebnis[e].back_color = Colors::kWhite;
    klang_pan[e].back_color = Colors::kWhite;
  }
}

void Testergebnis::MacheEinstellungenWeiss() {
  for (int k = 0; k < kGrundZeilen; ++k) {
    g_einst_lab[k].back_color = g_einst_inh[k].back_color = Colors::kWhite;
  }
  for (int k = 0; k < kEinstZeilen; ++k) {
    einst_lab[k].back_color = einst_Inh[k].back_color = Colors::kWhite;
  }
}

}  // namespace vmod17

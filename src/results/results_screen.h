// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <string>

#include "catalogue/chord_board.h"
#include "catalogue/picture_store.h"
#include "exercise/counters.h"
#include "exercise/exercise_names.h"
#include "exercise/settings_record.h"
#include "ports/printer.h"
#include "ports/timer.h"
#include "results/percentages.h"
#include "settings/settings_screen.h"
#include "shell/first_screen.h"
#include "shell/navigation.h"
#include "shell/shell.h"

namespace vmod17 {

/// `testergebnis`, the end of a run. Its first face is the board with a percentage for each chord
/// and the total, the second the settings in force and the user's data. There is no way back from
/// the second to the first.
class Testergebnis : public Form {
 public:
  /// Lines of the two tables of the second face.
  static constexpr int kEinstZeilen = 15;
  static constexpr int kGrundZeilen = 6;

  /// What the screen works on.
  struct Parts {
    const ExerciseSettings& settings;
    const ExerciseNames& names;
    const ChordBoard& board;
    PictureStores& pictures;
    const RunCounters& counters;
    const Einstellung1& einstellung1;
    const GrdEinst& grd_einst;
    Printer& printer;
  };

  /// `closed` is told when the screen has gone, with the tag of `cmdOK(1)`: "OK" when all went
  /// well.
  Testergebnis(Shell& shell, const Parts& parts, RunEnd end,
               std::function<void(const std::string&)> closed);

  Frame erg_cont{*this, "erg_cont"};
  ControlArray<Picture> Akkbez{*this, "Akkbez", 1, kBrettGroesse};
  ControlArray<Panel> klang_pan{*this, "klang_pan", 1, kBrettGroesse};
  ControlArray<Picture> jz_kl{*this, "jz_kl", 1, kBrettGroesse};
  ControlArray<Label> akk_group{*this, "akk_group", 1, kBrettGroesse};
  Label lab_ges{*this, "lab_ges"};
  ControlArray<Label> ergebnis{*this, "ergebnis", 0, kBrettGroesse};
  Label datum{*this, "datum"};
  Label zeit_um{*this, "zeit_um"};
  Frame gr_einst{*this, "gr_einst"};
  Label grd_einst_head{*this, "grd_einst_head"};
  ControlArray<Label> g_einst_lab{*this, "g_einst_lab", 0, kGrundZeilen - 1};
  ControlArray<Label> g_einst_inh{*this, "g_einst_inh", 0, kGrundZeilen - 1};
  Frame einst_cont{*this, "einst_cont"};
  Label einst_head{*this, "einst_head"};
  ControlArray<Label> einst_lab{*this, "einst_lab", 0, kEinstZeilen - 1};
  ControlArray<Label> einst_Inh{*this, "einst_Inh", 0, kEinstZeilen - 1};
  ControlArray<Picture> PicSchalt{*this, "PicSchalt", 0, 1};
  ControlArray<Button> cmdPrint{*this, "cmdPrint", 0, 1};
  ControlArray<Button> cmdOK{*this, "cmdOK", 0, 1};
  Button cmdHilfe{*this, "cmdHilfe"};
  Timer start;
  Timer testtimer;
  Timer schonfrist;  ///< while it runs nothing leaves the first face

  void Form_Load() override;
  void Form_Unload() override;
  void Form_Close() override {
    if (!schonfrist.enabled) cmdOK_Click(1);
  }
  Layout LayOut(Size page, const TextMeasure& measure) const override;

  void start_Timer();
  void testtimer_Timer();
  void schonfrist_Timer();
  void cmdOK_Click(int index);
  void cmdPrint_Click(int index);
  void cmdHilfe_Click();

 private:
  void StelleInRahmen();
  void Verdrahte();
  void BaueAuf();
  void MeldeZeitUm();

  void BaueRaster();
  void BaueZelle(int e);
  void ZeigeErgebnisse();
  void SetzeTexte();
  /// The word for a text id, or the screen's own where the language in use has none.
  std::string Wort(int id) const;
  /// The same with the colon behind it.
  std::string Ueberschrift(int id) const;

  // results_pages.cc
  void LbGrdEinst();
  void LbEinst();
  std::string ModusMitNummer() const;
  void KlangfarbenZeile();
  void SchliesseMitFehler();
  void ZeigeZeile(int k, const std::string& name, const std::string& wert);
  void ZeigeGrundZeile(int k, const std::string& name, const std::string& wert);

  // results_print.cc
  void MacheGitterWeiss();
  void MacheEinstellungenWeiss();

  Shell& shell_;
  Parts parts_;
  RunEnd end_;
  std::function<void(const std::string&)> closed_;
};

}  // namespace vmod17

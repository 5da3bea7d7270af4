// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <string>
#include <vector>

#include "results/counters.h"
#include "results/lesson_record.h"
#include "settings/settings_record.h"
#include "shell/shell.h"
#include "sound/mod_midi.h"

namespace vmod17 {

/// `einstellung1`, the settings screen: what a run is made of and how it sounds. It opens
/// the output for the whole program, and waits hidden while a run goes on.
class Einstellung1 : public Form {
 public:
  /// What the screen works on.
  struct Parts {
    ExerciseSettings& settings;
    ModMIDI& midi;
    MidiOutput& output;
    RunCounters& counters;
    LessonRecord& record;
  };

  Einstellung1(Shell& shell, const Parts& parts);

  // The frames, by number:
  //  0 tuning      1 Tonraum       2 groups       3 what is named  4 chords a task  5 sequence
  //  7 material    8 level         9 root        10 direction     11 kinds         12 display
  // 14 loudness   15 timbre, tempo               17 accent
  Panel aktionsbox{*this, "aktionsbox"};
  ControlArray<Frame> grdeinst{
      *this, "grdeinst", {0, 1, 2, 3, 4, 5, 7, 8, 9, 10, 11, 12, 14, 15, 17}};
  ControlArray<Label> geinst_lb{
      *this, "geinst_lb", {0, 1, 2, 3, 4, 5, 7, 8, 9, 10, 11, 12, 15, 17}};

  ItemList training_Combo{*this, "training_Combo"};
  ItemList prfnr_Comb{*this, "prfnr_Comb"};
  OptionGroup akk_grp{*this, "akk_grp", 0, 1, 0};
  OptionGroup aus_w{*this, "aus_w", 0, 1, 0};
  OptionGroup akk_anzg{*this, "akk_anzg", 0, 1, 0};
  ControlArray<ItemList> klanglst{*this, "klanglst", 0, 1, ItemList::Look::kBox};
  ControlArray<Label> lb11{*this, "lb11", 0, 2};
  ControlArray<ItemList> grplst{*this, "grplst", 0, 1, ItemList::Look::kBox};
  ControlArray<Label> lb2{*this, "lb2", 0, 3};
  ItemList akkzahl_cmb{*this, "akkzahl_cmb"};
  ItemList oktav_cmb{*this, "oktav_cmb"};
  Label lb1{*this, "lb1"};
  ItemList Combo_tonraum{*this, "Combo_tonraum"};
  OptionGroup Tonart{*this, "Tonart", 0, 1, 0};
  OptionGroup betonung{*this, "betonung", 0, 1, 0};
  OptionGroup frequenz{*this, "frequenz", 0, 1, 0};
  ItemList arpeg_cmb{*this, "arpeg_cmb"};
  Label lb10{*this, "lb10"};
  ItemList cmb_arpTmp{*this, "cmb_arpTmp"};
  OptionGroup abfrage{*this, "abfrage", 0, 1, 0};
  OptionGroup kl_farb{*this, "kl_farb", 0, 1, 0};
  ItemList Channel_Combo{*this, "Channel_Combo"};
  ItemList ComboPatch{*this, "ComboPatch"};
  ItemList temp_Combo{*this, "temp_Combo"};
  ControlArray<Label> lb15{*this, "lb15", 0, 2};
  Button klang_contr{*this, "klang_contr"};
  Slider HSliderVolume{*this, "HSliderVolume", 0, ModMIDI::kHoechsteStaerke};
  ControlArray<Label> lb14{*this, "lb14", 0, 1};
  Button cmdOK{*this, "cmdOK"};
  Button cmdZurueck{*this, "cmdZurueck"};
  Button cmdHilfe{*this, "cmdHilfe"};
  Timer start;
  Timer testtimer;

  void Form_Load() override;
  void Form_Unload() override;
  void Form_Close() override { cmdZurueck_Click(); }

  void start_Timer();
  void cmdOK_Click();
  void cmdZurueck_Click();
  void cmdHilfe_Click();
  void arpeg_cmb_Click();
  void temp_Combo_Click();
  void cmb_arpTmp_Click();
  void oktav_cmb_Click();
  void ComboPatch_Click();
  void klanglst_Click(int index);
  void HSliderVolume_Change();
  void MIDI_QueueEmpty();

  /// Builds the settings in words.
  void EinstDatSave();
  /// Waits, and stops early when the screen is being left.
  void Delay(float ms);
  void SetzeKlangfarbe(int patch, int kanal) { parts_.midi.SetzeKlangfarbe(patch, kanal); }

 private:
  enum class Bereitschaft { kBereit, kGesperrt };

  void Verdrahte();
  void StelleInRahmen();
  void SetzeTexte();
  void BaueAuf();
  void FuelleKlangListen();
  void FuelleAuswahlListen();
  void FuelleTraining();
  void SetzeOk(Bereitschaft zustand);
  void SichereAuswahl();
  void BaueEinstSatz();
  void EinstEintrag(const std::string& key, const std::string& value);
  void TrageKlangfarbenEin();
  void TrageAuswahlEin();

  Shell& shell_;
  Parts parts_;
  bool form_bereit = false;
  bool delay_abbruch = false;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <string>
#include <vector>

#include "exercise/counters.h"
#include "exercise/exercise_names.h"
#include "exercise/lesson_record.h"
#include "exercise/settings_record.h"
#include "ports/file_dialog.h"
#include "ports/random.h"
#include "ports/settings_file.h"
#include "ports/timer.h"
#include "settings/settings_frames.h"
#include "shell/shell.h"
#include "sound/mod_midi.h"
#include "sound/wait_sign.h"

namespace vmod17 {

struct Merkmal;

/// `einstellung1`, the settings screen: what a run is made of and how it sounds. It opens
/// the output for the whole program, and waits hidden while a run goes on.
class Einstellung1 : public Form {
 public:
  /// What the screen works on.
  struct Parts {
    ExerciseSettings& settings;
    const ExerciseNames& names;
    ModMIDI& midi;
    MidiOutput& output;
    RunCounters& counters;
    LessonRecord& record;
    Random& random;
    FileDialog& dialog;
    SettingsFiles& settings_files;
  };

  Einstellung1(Shell& shell, const Parts& parts);

  Panel aktionsbox{*this, "aktionsbox"};
  ControlArray<Frame> grdeinst{*this, "grdeinst", RahmenNummern()};
  ControlArray<Label> geinst_lb{*this, "geinst_lb", RahmenMitTitel()};

  ItemList training_Combo{*this, "training_Combo"};
  ItemList prfnr_Comb{*this, "prfnr_Comb"};
  OptionGroup akk_grp{*this, "akk_grp", 0, 1, 0};
  OptionGroup aus_w{*this, "aus_w", 0, 1, 0};
  OptionGroup akk_anzg{*this, "akk_anzg", 0, 1, 0};
  ControlArray<ItemList> klanglst{*this, "klanglst", 0, 1, ItemList::Shape::kBox};
  ControlArray<Label> lb11{*this, "lb11", 0, 2};
  ControlArray<ItemList> grplst{*this, "grplst", 0, 1, ItemList::Shape::kBox};
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
  ControlArray<Button> klang_alle{*this, "klang_alle", 0, 1};
  ControlArray<Button> grp_alle{*this, "grp_alle", 0, 1};
  Button klang_contr{*this, "klang_contr"};
  Slider HSliderVolume{*this, "HSliderVolume", 0, ModMIDI::kHoechsteStaerke};
  ControlArray<Label> lb14{*this, "lb14", 0, 1};
  Label ausblick{*this, "ausblick"};
  Button cmdOK{*this, "cmdOK"};
  Button cmdZurueck{*this, "cmdZurueck"};
  Button cmdHilfe{*this, "cmdHilfe"};
  Button cmdOptionSave{*this, "cmdOptionSave"};
  Button cmdOptionRead{*this, "cmdOptionRead"};
  PopupMenu popPruefung{*this, "popPruefung"};
  Timer start;
  Timer testtimer;
  Timer klangprobe;  ///< takes the sound check as over when the output does not say so

  void Form_Load() override;
  void Form_Unload() override;
  void Form_Close() override { cmdZurueck_Click(); }
  Layout LayOut(Size page, const TextMeasure& measure) const override;

  void start_Timer();
  void cmdOK_Click();
  void cmdZurueck_Click();
  void cmdHilfe_Click();
  void arpeg_cmb_Click();
  void temp_Combo_Click();
  void cmb_arpTmp_Click();
  void oktav_cmb_Click();
  void MIDI_QueueEmpty();
  void MIDI_KlangWechsel();

  // settings_selection.cc
  void klanglst_Click(int index);
  void grplst_Click(int index);
  void klang_alle_Click(int index);
  void grp_alle_Click(int index);
  void akk_grp_Click(int index);
  void aus_w_Click(int index);

  // settings_levels.cc
  void training_Combo_Click();
  void prfnr_Comb_Click();
  void grdeinst_RechteTaste(int rahmen);
  void popExamToggle_Click();

  // sound_check.cc
  void kl_farb_Click(int index);
  void Channel_Combo_Click();
  void ComboPatch_Click();
  void HSliderVolume_Change();
  void klang_contr_Click();

  // fixed_settings.cc
  void cmdOptionSave_Click();
  void cmdOptionRead_Click();

  /// Whether a training is stored that can be taken up again.
  enum class Fortsetzung { kKeine, kVorhanden };
  /// Fills `training_Combo` anew.
  void FuelleTraining(Fortsetzung fortsetzung);

  /// Whether a training can be taken up again, as the list says.
  bool BietetFortsetzung() const;

  /// Builds the settings in words.
  void EinstDatSave();
  /// Waits, and stops early when the screen is being left.
  void Delay(float ms);
  void SetzeKlangfarbe(int patch, int kanal) { parts_.midi.SetzeKlangfarbe(patch, kanal); }

 private:
  static constexpr Color kGesperrterRahmen = Bgr(0xC0C0FF);
  static constexpr Color kBereitFarbe = Bgr(0x80FF80);
  static constexpr Color kTempoFarbe = Bgr(0xFF0000);
  /// The tag of a frame that is marked for a test.
  static constexpr const char* kMarke = "Prüfung";

  void StelleInRahmen();
  void BindeMerkmale();
  void Verdrahte();
  void SetzeTexte();
  void BaueAuf();
  void FuelleKlangListen();
  void FuelleAuswahlListen();
  void FuelleOktaven(int von);

  void ZeigeAusblick();
  std::string AusblickAufLauf() const;
  std::string WasFehlt() const;
  std::string WarumKeineProbe() const;

  void ok_bereit();
  void ok_gesperrt();
  void SetzeOk(bool vollstaendig);
  void VerlangeGruppen(int hinweis);
  void WerteGruppen(bool genug);
  void LeereKlaenge();
  void LeereGruppen();
  void FuelleKlaenge(int list);
  void FuelleGruppen(int list);
  int KleinsterKlangtypMitGruppe() const;
  void SichereAuswahl();

  Fortsetzung GespeichertesTraining();
  void GibRahmenFrei();
  void GibVomTestFrei();
  void SperreRahmen(int uebmodus);
  bool HaeltLevel(const Control& control) const;
  class Aufnahme;
  void StelleWiederHer();
  void SetzePruefung();

  void SpieleProbe();
  int ProbenNoten() const;
  bool ProbeGilt() const;
  void SendeKlangfarben();
  void ErlaubeProbe(bool erlaubt);
  void BeendeProbe();

  std::vector<FixedControl> SammleMarkierte();
  std::string RahmenTitel(const Control& rahmen) const;
  void EinlesenTest();
  void WendeAn(const FixedSettings& dokument);
  Control* SucheTagged(const FixedControl& eintrag);
  enum class Angewandt { kJa, kGehalten, kNein };
  Angewandt Setze(Control& control, const FixedControl& eintrag);
  std::string InWorten(const Control& control);
  static void SperreVomTest(Control& control);

  void BaueEinstSatz();
  void EinstEintrag(const std::string& key, const std::string& value);
  void TrageEin(const Merkmal& merkmal);
  void TrageKlangfarbenEin();
  void TrageAuswahlEin();

  Shell& shell_;
  Parts parts_;
  WaitSign warten_;
  bool form_bereit = false;
  bool delay_abbruch = false;
  int popup_rahmen = 0;
  bool auswahl_vollstaendig_ = false;
  bool probe_laeuft_ = false;
  bool probe_erlaubt_ = false;
};

}  // namespace vmod17

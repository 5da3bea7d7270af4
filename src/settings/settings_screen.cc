// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "settings/settings_screen.h"

#include <functional>
#include <initializer_list>
#include <utility>

#include "base/numbers.h"
#include "base/text_ids.h"
#include "base/usual_words.h"
#include "catalogue/chord_table.h"
#include "settings/exams.h"
#include "settings/settings_table.h"
#include "shell/delay.h"
#include "sound/instrument_list.h"

namespace vmod17 {
namespace {

constexpr int kStartIntervall = 200;
constexpr int kTestIntervall = 2000;
constexpr int kBestimmen = 1;
constexpr int kLautstaerke = 100;

void SetzeContainer(Control& frame, std::initializer_list<Control*> controls) {
  for (Control* control : controls) control->container = &frame;
}

}  // namespace

Einstellung1::Einstellung1(Shell& shell, const Parts& parts)
    : Form("einstellung1"),
      start(*this, shell.loop, "start", kStartIntervall),
      testtimer(*this, shell.loop, "testtimer", kTestIntervall),
      klangprobe(*this, shell.loop, "klangprobe", 0),
      shell_(shell),
      parts_(parts),
      warten_(*this, shell.texts, klang_contr, text_id::kSoundCheck) {
  caption = "Grundeinstellung : Jazz-Akkorde bestimmen";
  StelleInRahmen();
  BindeMerkmale();
  Verdrahte();
  cmdHilfe.caption = "?";
  prfnr_Comb.enabled = false;
  Channel_Combo.visible = false;
  lb15[2].visible = false;
}

void Einstellung1::StelleInRahmen() {
  for (const Rahmen& rahmen : kRahmen) {
    grdeinst[rahmen.nummer].container = &aktionsbox;
    grdeinst[rahmen.nummer].back_color = rahmen.farbe;
    if (rahmen.titel != 0) geinst_lb[rahmen.nummer].container = &grdeinst[rahmen.nummer];
  }
  SetzeContainer(grdeinst[1], {&lb1});
  SetzeContainer(grdeinst[2], {&grplst[0], &grplst[1], &lb2[0], &lb2[1], &lb2[2], &lb2[3],
                               &grp_alle[0], &grp_alle[1]});
  SetzeContainer(grdeinst[8], {&training_Combo, &prfnr_Comb});
  SetzeContainer(grdeinst[10], {&lb10});
  SetzeContainer(grdeinst[11], {&klanglst[0], &klanglst[1], &lb11[0], &lb11[1], &lb11[2],
                                &klang_alle[0], &klang_alle[1]});
  SetzeContainer(grdeinst[14], {&klang_contr, &HSliderVolume, &lb14[0], &lb14[1]});
  SetzeContainer(grdeinst[15], {&Channel_Combo, &ComboPatch, &lb15[0], &lb15[1], &lb15[2]});
}

/// Puts the controls of the settings into their frames, and gives them the keys under which they
/// stand in a test. An option sets its field.
void Einstellung1::BindeMerkmale() {
  for (const Merkmal& merkmal : kMerkmale) {
    const auto binde = [&](Control& control) {
      control.container = &grdeinst[merkmal.rahmen];
      control.tag = merkmal.marke;
    };
    if (merkmal.liste != nullptr) {
      binde(this->*merkmal.liste);
      continue;
    }
    OptionGroup& gruppe = this->*merkmal.gruppe;
    for (int i = gruppe.first(); i <= gruppe.last(); ++i) binde(gruppe[i]);
    int& feld = parts_.settings.*merkmal.feld;
    gruppe.field = &feld;
    gruppe.Click = [&feld](int index) { feld = index; };
  }
  // The first option of the timbres stands for both. What it chooses from has no field.
  kl_farb[1].tag.clear();
  Channel_Combo.tag = "channel#var";
  ComboPatch.tag = "cmbPatch#var";
}

void Einstellung1::Verdrahte() {
  ExerciseSettings& settings = parts_.settings;
  start.Fire = [this] { start_Timer(); };
  testtimer.Fire = [this] {
    testtimer.Disable();
    cmdOK_Click();
  };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdZurueck.Click = [this] { cmdZurueck_Click(); };
  cmdHilfe.Click = [this] { cmdHilfe_Click(); };
  arpeg_cmb.Click = [this] { arpeg_cmb_Click(); };
  temp_Combo.Click = [this] { temp_Combo_Click(); };
  cmb_arpTmp.Click = [this] { cmb_arpTmp_Click(); };
  oktav_cmb.Click = [this] { oktav_cmb_Click(); };
  Combo_tonraum.Click = [&] { settings.SetzeTonraum(Combo_tonraum.list_index()); };
  akkzahl_cmb.Click = [&] { settings.akk_anzahl = akkzahl_cmb.list_index() + 1; };
  akk_grp.Click = [this](int index) { akk_grp_Click(index); };
  aus_w.Click = [this](int index) { aus_w_Click(index); };
  kl_farb.Click = [this](int index) { kl_farb_Click(index); };
  training_Combo.Click = [this] { training_Combo_Click(); };
  prfnr_Comb.Click = [this] { prfnr_Comb_Click(); };
  Channel_Combo.Click = [this] { Channel_Combo_Click(); };
  ComboPatch.Click = [this] { ComboPatch_Click(); };
  HSliderVolume.Change = [this] { HSliderVolume_Change(); };
  klang_contr.Click = [this] { klang_contr_Click(); };
  klangprobe.Fire = [this] { BeendeProbe(); };
  cmdOptionSave.Click = [this] { cmdOptionSave_Click(); };
  cmdOptionRead.Click = [this] { cmdOptionRead_Click(); };
  popPruefung.Click = [this] { popExamToggle_Click(); };
  for (int i : {0, 1}) {
    klanglst[i].Click = [this, i] { klanglst_Click(i); };
    grplst[i].Click = [this, i] { grplst_Click(i); };
    klang_alle[i].Click = [this, i] { klang_alle_Click(i); };
    grp_alle[i].Click = [this, i] { grp_alle_Click(i); };
  }
  // What a run will be may change with each of these. To a user who does not see it that is told,
  // behind the move itself, but not what one event does in other controls one by one.
  const auto dann_ausblick = [this](auto& event, std::function<std::string()> bewegung = {}) {
    event = [this, was = std::move(bewegung), handler = std::move(event)](auto... index) {
      const std::string vorher = ausblick.caption;
      const std::string bewegt = was && form_bereit ? was() : "";
      handler(index...);
      ZeigeAusblick();
      TakeSaid();
      if (!visible) return;
      if (!bewegt.empty()) Say(bewegt);
      if (ausblick.caption != vorher) Say(ausblick.caption);
    };
  };
  for (ItemList* list : {&training_Combo, &prfnr_Comb, &akkzahl_cmb, &temp_Combo}) {
    dann_ausblick(list->Click);
  }
  for (OptionGroup* group : {&akk_grp, &aus_w}) dann_ausblick(group->Click);
  const TextLookup& texts = shell_.texts;
  for (const auto& [listen, alle] : {std::pair(&klanglst, &klang_alle), {&grplst, &grp_alle}}) {
    for (int i : {0, 1}) {
      const ItemList& von = (*listen)[i];
      const ItemList& nach = (*listen)[1 - i];
      dann_ausblick((*listen)[i].Click, [&] {
        return texts.Words(
            {text_id::kMoveFromTo, "%1: from “%2” to “%3”", {von.text(), von.spoken, nach.spoken}});
      });
      dann_ausblick((*alle)[i].Click, [&] {
        return texts.Words(
            {text_id::kMoveAllFromTo, "all from “%1” to “%2”", {von.spoken, nach.spoken}});
      });
    }
  }
  for (const int i : grdeinst.indexes()) {
    grdeinst[i].MenuAsked = [this, i] { grdeinst_RechteTaste(i); };
  }
}

void Einstellung1::Form_Load() {
  visible = false;
  parts_.output.QueueEmpty = [this] { MIDI_QueueEmpty(); };
  parts_.output.KlangWechsel = [this] { MIDI_KlangWechsel(); };
  start.Enable();
}

void Einstellung1::Form_Unload() {
  delay_abbruch = true;
  parts_.output.QueueEmpty = nullptr;
  parts_.output.KlangWechsel = nullptr;
  parts_.output.Set(MidiMember::Befehl, static_cast<int>(MidiBefehl::kSchliessen));
}

void Einstellung1::start_Timer() {
  start.Disable();
  shell_.errors.Guard(
      "start_timer.", *this, [this] { BaueAuf(); }, [this] { cmdZurueck_Click(); });
}

void Einstellung1::BaueAuf() {
  ExerciseSettings& settings = parts_.settings;
  const TextLookup& texts = shell_.texts;
  caption = texts.ueb_typ_name_ar.at(shell_.state.uebTyp) + texts.Sprachtext(text_id::kColon) +
            texts.titel_ar[1];
  SetzeTexte();
  visible = true;
  form_bereit = false;
  delay_abbruch = false;
  RunCounters& counters = parts_.counters;
  if (!counters.ergebnis_obj.allocated()) counters.ergebnis_obj.init_arr(kBrettGroesse);
  if (!counters.auswertung_obj.allocated()) counters.auswertung_obj.init_arr(kBrettGroesse, 3);
  parts_.midi.MidiGeraeteListe(parts_.output);
  parts_.midi.MidiOeffnen(parts_.output);
  KlangNamen(ComboPatch);
  settings.tempo_idx = 1;
  settings.uebmodus = 0;
  for (const Merkmal& merkmal : kMerkmale) {
    if (merkmal.beim_oeffnen == Merkmal::BeimOeffnen::kNull) settings.*merkmal.feld = 0;
  }
  FuelleKlangListen();
  FuelleAuswahlListen();
  form_bereit = true;
  ZeigeAusblick();
}

/// Fills the lists that tell how a run sounds. Each selection runs the list's event, and the fields
/// get their defaults from these.
void Einstellung1::FuelleKlangListen() {
  const TextLookup& texts = shell_.texts;
  const auto fill = [](ItemList& list, const auto& names) {
    for (const std::string& name : names) list.Add(name, ItemList::kValueIsIndex);
  };
  fill(temp_Combo, ExerciseNames::tempo_name_ar);
  temp_Combo.Select(1);
  HSliderVolume.Set(kLautstaerke);
  fill(arpeg_cmb, parts_.names.arp_richtung_name_ar);
  arpeg_cmb.Select(kArpOhne);
  fill(cmb_arpTmp, parts_.names.arp_tempo_name_ar);
  cmb_arpTmp.Select(2);
  FuelleTraining(GespeichertesTraining());
  training_Combo.Select(0);
  parts_.settings.klang_kanal = 0;
  parts_.settings.patch_ar = kPatchVorgabe;
  for (int i = 1; i < ModMIDI::kKanaele; ++i) {
    Channel_Combo.Add(texts.Sprachtext(text_id::kVoice) + " " + SignedText(i),
                      ItemList::kValueIsIndex);
  }
  for (int i = 0; i < ModMIDI::kKanaele; ++i) SetzeKlangfarbe(parts_.settings.patch_ar[i], i);
  ComboPatch.Select(parts_.settings.patch_ar[0]);
}

/// Fills the lists that tell what a run is made of.
void Einstellung1::FuelleAuswahlListen() {
  const TextLookup& texts = shell_.texts;
  for (int i : {0, 1}) klanglst[i].Clear();
  for (int k = kTriade; k < kVoicing; ++k) klanglst[0].Add(parts_.names.klang_name_ar[k], k);
  klanglst[0].Select(0);
  for (const Pruefung& pruefung : kPruefungen) {
    prfnr_Comb.Add(texts.Sprachtext(text_id::kNumber) + SignedText(pruefung.nummer),
                   ItemList::kValueIsIndex);
  }
  prfnr_Comb.Select(0);
  grdeinst[2].visible = false;
  for (int i = 1; i <= 4; ++i) akkzahl_cmb.Add(SignedText(i), i);
  akkzahl_cmb.Select(0);
  FuelleOktaven(2);
}

/// Offers the widths of the Tonraum from `von` to 5 octaves, and selects the first.
void Einstellung1::FuelleOktaven(int von) {
  oktav_cmb.Clear();
  for (int n = von; n <= 5; ++n) {
    oktav_cmb.Add(SignedText(n) + " " + shell_.texts.Sprachtext(text_id::kOctaves), n - 2);
  }
  oktav_cmb.Select(0);
}

void Einstellung1::SetzeTexte() {
  const auto text = [this](int id) { return shell_.texts.Sprachtext(id); };
  for (const Rahmen& rahmen : kRahmen) {
    if (rahmen.titel != 0) geinst_lb[rahmen.nummer].caption = text(rahmen.titel);
  }
  for (const Merkmal& merkmal : kMerkmale) {
    if (merkmal.gruppe == nullptr) continue;
    for (const int i : {0, 1}) (this->*merkmal.gruppe)[i].caption = text(merkmal.texte[i]);
  }
  lb1.caption = text(text_id::kRegister);
  lb10.caption = text(text_id::kArpeggioSpeed);
  lb11[0].caption = lb2[0].caption = text(text_id::kSelect);
  lb11[1].caption = lb2[1].caption = text(text_id::kSelected);
  lb11[2].caption = text(text_id::kAtLeastOne);
  lb2[2].caption = text(text_id::kAtLeastTwo);
  lb2[3].caption = text(text_id::kForFourNotesAndMore);
  klanglst[0].spoken = shell_.texts.SprachtextOder(text_id::kChooseChordSize, "Klangtyp wählen");
  klanglst[1].spoken = shell_.texts.SprachtextOder(text_id::kChosenChordSizes, "Klangtyp gewählt");
  grplst[0].spoken = shell_.texts.SprachtextOder(text_id::kChooseChordGroup, "Gruppe wählen");
  grplst[1].spoken = shell_.texts.SprachtextOder(text_id::kChosenChordGroups, "Gruppe gewählt");
  cmdOK.caption = text(text_id::kSelectionIncomplete);
  cmdZurueck.caption = text(text_id::kBack);
  cmdHilfe.spoken = shell_.texts.Words(kHelpWord);
  klang_contr.caption = text(text_id::kSoundCheck);
  lb14[0].caption = text(text_id::kVolume);
  lb14[1].caption = DecimalText(kLautstaerke);
  lb15[0].caption = text(text_id::kTempo);
  lb15[1].caption = "=MM";
  lb15[2].caption = text(text_id::kFromTheBottomUp);
  cmdOptionRead.caption = shell_.texts.SprachtextOder(text_id::kReadTest, "Einlesen Test");
  cmdOptionSave.caption =
      shell_.texts.SprachtextOder(text_id::kSaveSettings, "Einstellungen Speichern");
  popPruefung.caption = shell_.texts.SprachtextOder(text_id::kExamMark, kMarke);
  for (const ControlArray<Button>* alle : {&klang_alle, &grp_alle}) {
    (*alle)[0].caption = "»";
    (*alle)[0].spoken = text(text_id::kSelectAll);
    (*alle)[1].caption = "«";
    (*alle)[1].spoken = text(text_id::kTakeAllBack);
  }
}

void Einstellung1::arpeg_cmb_Click() {
  parts_.settings.arp_richtung = arpeg_cmb.list_index();
  cmb_arpTmp.visible = lb10.visible = parts_.settings.arp_richtung < kArpOhne;
}

void Einstellung1::temp_Combo_Click() {
  parts_.settings.tempo_idx = temp_Combo.list_index();
  parts_.settings.RechneArpDauer(shell_.state);
}

void Einstellung1::cmb_arpTmp_Click() {
  parts_.settings.arp_tempo_idx = cmb_arpTmp.list_index();
  parts_.settings.RechneArpDauer(shell_.state);
}

void Einstellung1::oktav_cmb_Click() {
  ExerciseSettings& settings = parts_.settings;
  settings.oktav_ber = oktav_cmb.entry(oktav_cmb.list_index()).item_data;
  const TextLookup& texts = shell_.texts;
  Combo_tonraum.Clear();
  for (int j = 0; j <= 3 - settings.oktav_ber; ++j) {
    Combo_tonraum.Add(texts.Sprachtext(text_id::kC2 + j) + " " + texts.Sprachtext(text_id::kTo) +
                          " " + texts.Sprachtext(text_id::kC4 + settings.oktav_ber + j),
                      ItemList::kValueIsIndex);
  }
  Combo_tonraum.Select(settings.oktav_ber == 3 ? 0 : 1);
}

void Einstellung1::cmdOK_Click() {
  shell_.errors.Guard(
      "cmdOK_click.", *this,
      [this] {
        BeendeProbe();
        cmdOK.enabled = false;
        parts_.record.LessonNeu();
        SichereAuswahl();
        parts_.settings.klangfarb_felder = parts_.settings.klangfarb_art != 0 ? 8 : 2;
        EinstDatSave();
        // Saving that failed has led back to the first screen by itself.
        if (!loaded()) return;
        if (parts_.settings.uebmodus == kModusNeuesTraining && shell_.state.uebTyp == kBestimmen) {
          BaueEinstSatz();
        } else if (parts_.settings.uebmodus == kModusTest) {
          abfrage.Check(1);
        }
        pointer = Pointer::kHourglass;
        shell_.loop.Yield();
        if (!loaded()) return;  // left in the meantime
        cmdOK.enabled = true;
        visible = false;
        shell_.navigation.OpenWorksheet();
      },
      [this] { cmdZurueck_Click(); });
}

void Einstellung1::cmdZurueck_Click() {
  if (!loaded()) return;
  delay_abbruch = true;
  cmdZurueck.enabled = false;
  parts_.midi.MidiReset();
  shell_.navigation.ShowFirstScreen();
  shell_.screens.Unload(*this);
}

void Einstellung1::cmdHilfe_Click() { shell_.system.SendKeys("{F1}"); }

void Einstellung1::Delay(float ms) { vmod17::Delay(shell_.loop, ms, delay_abbruch); }

}  // namespace vmod17

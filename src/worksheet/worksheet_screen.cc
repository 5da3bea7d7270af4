// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "worksheet/worksheet_screen.h"

#include <array>
#include <map>

#include "base/numbers.h"
#include "base/text_ids.h"
#include "base/usual_words.h"
#include "catalogue/chord_spelling.h"

namespace vmod17 {
namespace {

constexpr int kStartIntervall = 200;
constexpr int kSpielIntervall = 3000;  // until a run sets its own
constexpr int kUhrIntervall = 10000;
constexpr int kTestIntervall = 2000;
constexpr int kSuchIntervall = 2000;

constexpr int kKachelnJeZeile = 6;
constexpr int kSymbolHoehe = 40;
constexpr int kFeldHoehe = 545;
constexpr int kFeldHoeheFortsetzung = 497;

/// The captions that the group buttons are made with.
constexpr std::array<const char*, kGruppen + 1> kGruppenNamen = {"",
                                                                 "Major-Sept",
                                                                 "Major-Sept, alt.",
                                                                 "Moll-Sept",
                                                                 "Dominant-Sept",
                                                                 "Dominant-Sept, alt.",
                                                                 "Moll-Tonika ",
                                                                 "Halbvermindert",
                                                                 "vermindert"};

/// Heights in the grid of tiles, which follow the pictures.
struct Raster {
  int zeilenschritt;
  int kachelhoehe;
};

Raster RasterFuer(int letzter_klangtyp, int akk_anzeige) {
  const bool voicing = letzter_klangtyp == kVoicing;
  const int hoehe_mit_noten = voicing ? 129 : 84;
  return {voicing ? 176 : 136, akk_anzeige == 0 ? hoehe_mit_noten : 50};
}

}  // namespace

Arbeitsblatt1::Arbeitsblatt1(Shell& shell, const Parts& parts)
    : Form("arbeitsblatt1"),
      start(*this, shell.loop, "start", kStartIntervall),
      spieltimer(*this, shell.loop, "spieltimer", kSpielIntervall),
      WahlAutomat(*this, shell.loop, "WahlAutomat", kWahlPause),
      Uhrzeit(*this, shell.loop, "Uhrzeit", kUhrIntervall),
      testtimer(*this, shell.loop, "testtimer", kTestIntervall),
      tonart_Timer(*this, shell.loop, "tonart_Timer", 0),
      klangsuche(*this, shell.loop, "klangsuche", kSuchIntervall),
      shell_(shell),
      parts_(parts),
      selection_(parts.settings, parts.board, parts.random),
      playback_(shell.loop, parts.midi, shell.state, parts.settings, parts.board),
      judging_(parts.settings, parts.board, parts.counters.auswertung_obj, parts.random),
      antwortfeld_(parts.settings, parts.board, klang_pan, jz_kl, akk_group),
      warten_(*this, shell.texts, WaitMeld, text_id::kOneMoment, &WaitMeldung) {
  StelleInRahmen();
  Verdrahte();
  cmdHilfe.caption = "?";
  wieder.visible = false;
  wieder2.visible = false;
  CmdNextAufg.visible = false;
  LbNextAufg.visible = false;
  PicUetyp[0].sign = Sign::kRisingBars;
  PicUetyp[1].sign = Sign::kStopWatch;
  for (Control* control : std::initializer_list<Control*>{
           &PicUetyp[0], &PicUetyp[1], &matboxanz, &ergebnis_anz[0], &ergebnis_anz[1],
           &ergebnis_anz[2], &stop_uhr, &lab_aufgaben, &cmd_test_aus, &cmd_test_ein}) {
    control->visible = false;
  }
  for (int g = akk_group.first(); g <= akk_group.last(); ++g) {
    akk_group[g].enabled = false;
    akk_group[g].caption = kGruppenNamen.at(g);
  }
}

void Arbeitsblatt1::StelleInRahmen() {
  for (Control* control : std::initializer_list<Control*>{
           &PicUetyp[0], &PicUetyp[1], &cmdHilfe, &Uhr, &ergebnis_anz[0], &ergebnis_anz[1],
           &ergebnis_anz[2], &stop_uhr, &lab_aufgaben, &cmd_test_aus, &cmd_test_ein}) {
    control->container = &PicUebTyp;
  }
  for (int e = 1; e <= kBrettGroesse; ++e) {
    klang_pan[e].container = &jzakk_box[0];
    Akkbez[e].container = &jzakk_box[0];
    jz_kl[e].container = &klang_pan[e];
  }
  LbAkkGrp.container = &jzakk_box[1];
  for (int g = 1; g <= kGruppen; ++g) akk_group[g].container = &jzakk_box[1];
  nrakk[0].container = &aktionsbox;
  for (int i = 1; i <= kSlots; ++i) {
    nrakk[i].container = &aktionsbox;
    ergebnis[i].container = &aktionsbox;
    akk_lfdnr[i].container = &aktionsbox;
    erg[i].container = &ergebnis[i];
    erg[i].visible = false;
  }
  for (Control* control : std::initializer_list<Control*>{
           &true_false[0], &true_false[1], &zaehler[0], &zaehler[1], &CmdNextAufg, &LbNextAufg,
           &wieder, &wieder2, &whlgzaehler, &zurueck}) {
    control->container = &aktionsbox;
  }
  WaitMeld.container = &WaitMeldung;
}

void Arbeitsblatt1::Verdrahte() {
  start.Fire = [this] { start_Timer(); };
  spieltimer.Fire = [this] { spieltimer_Timer(); };
  WahlAutomat.Fire = [this] { WahlAutomat_Timer(); };
  Uhrzeit.Fire = [this] { Uhrzeit_Timer(); };
  testtimer.Fire = [this] { testtimer_Timer(); };
  klangsuche.Fire = [this] { klangsuche_Timer(); };
  for (int e = 1; e <= kBrettGroesse; ++e) jz_kl[e].Click = [this, e] { akk_antw(e); };
  for (int g = 1; g <= kGruppen; ++g) akk_group[g].Click = [this, g] { akk_antw(g); };
  CmdNextAufg.Click = [this] { CmdNextAufg_Click(); };
  wieder.Click = [this] { wieder_Click(); };
  wieder2.Click = [this] { wieder2_Click(); };
  zurueck.Click = [this] { zurueck_Click(); };
  cmdHilfe.Click = [this] { cmdHilfe_Click(); };
  cmd_test_aus.Click = [this] { cmd_test_aus_Click(); };
  cmd_test_ein.Click = [this] { cmd_test_ein_Click(); };
}

void Arbeitsblatt1::Form_Load() {
  visible = false;
  if (!run_.abbruch) start.Enable();
}

void Arbeitsblatt1::Form_Unload() {
  run_.phase = Phase::kVerlassen;
  run_.abbruch = true;
  parts_.midi.KlangWechsel = nullptr;
  parts_.midi.MidiReset();
  const int letzter = parts_.settings.klangfarb_art == 0 ? 0 : ModMIDI::kKanaele - 1;
  for (int kanal = 0; kanal <= letzter; ++kanal) {
    parts_.settings.klang_kanal = kanal;
    if (kanal == 0) {
      parts_.einstellung1.SetzeKlangfarbe(parts_.settings.patch_ar[0], 0);
    } else {
      // Sends the timbre of the voice, and shows that it is the one that is edited.
      parts_.einstellung1.Channel_Combo.Select(kanal - 1);
    }
  }
  BeendeAufzeichnung();
}

void Arbeitsblatt1::Form_Close() {
  if (!zurueck.enabled || (TestLaeuft() && !WillTestBeenden())) return;
  zurueck_Click();
}

void Arbeitsblatt1::start_Timer() {
  start.Disable();
  zurueck.tag = "OK";
  pointer = Pointer::kHourglass;
  Bewache("start_timer.", [this] {
    BaueAuf();
    pointer = Pointer::kDefault;
  });
}

void Arbeitsblatt1::BaueAuf() {
  const ExerciseSettings& settings = parts_.settings;
  midi_ereignis = std::make_unique<MidiEvent>();
  midi_ereignis->QueueEmpty = [this] { midi_QueueEmpty(); };
  parts_.midi.KlangWechsel = [this] { KlangWechsel(); };
  run_ = RunState();
  MerkeKlang();
  caption = shell_.texts.ueb_typ_name_ar.at(shell_.state.uebTyp);
  TexteSetzen();
  visible = true;
  selection_.Saeen(shell_.loop.Clock());
  parts_.counters.auswertung_obj.Clear();
  parts_.counters.ergebnis_obj.Clear();
  parts_.table.SetzeKlangZahlen();
  if (IstFortsetzung()) {
    NimmTrainingAuf();
  } else {
    parts_.board.SetzeAkkTab(Auswahl(), parts_.random);
    // What can be asked needs a button, and only groups with a flag have one.
    parts_.board.MeldeGruppen();
  }
  BaueAntwortfeld();
  BereiteSlotsVor();
  PicUebTyp.width = *jzakk_box[NachAkkorden() ? 0 : 1].width + *aktionsbox.width;
  run_.clock.antw_frei = 20;
  selection_.BereiteVor(run_);
  run_.material.mat_posten = parts_.board.akk_zahl;
  wieder.enabled = false;
  zurueck.enabled = true;
  spieltimer.interval = settings.SpielDauer(shell_.state);
  WahlAutomat.interval = kWahlPause;
  ZeigeZaehler();
  Uhrzeit.Enable();
  ZeigeUhrzeit();
  BereiteModusVor();
  parts_.pictures.For(settings.akk_form).Unload();
  WaitMeldung.visible = false;
  BieteErsteAufgabeAn();
}

BoardSelection Arbeitsblatt1::Auswahl() const {
  const ExerciseSettings& settings = parts_.settings;
  return {settings.Klangtypen(), settings.Gruppen(), settings.akk_form, settings.best_art};
}

void Arbeitsblatt1::BereiteModusVor() {
  if (parts_.settings.uebmodus != kModusFrei && parts_.board.akk_zahl < 1) {
    throw RunTimeError(ErrorNumber::kNothingToDraw, "the board holds no chord",
                       "vmod17.start_timer");
  }
  if (IstFortsetzung()) {
    SetzeTrainingFort();
  } else if (IstTraining()) {
    BeginneTraining();
  } else if (IstTest()) {
    BeginneTest();
  }
}

void Arbeitsblatt1::TexteSetzen() {
  const TextLookup& texts = shell_.texts;
  const auto text = [&](int id) { return texts.Sprachtext(id); };
  cmdHilfe.spoken = texts.Words(kHelpWord);
  LbAkkGrp.caption = text(text_id::kNameTheChordGroup);
  nrakk[0].caption = text(text_id::kChordHeading) + text(text_id::kColon);
  for (int i = 1; i <= kSlots; ++i) {
    nrakk[i].caption = text(text_id::kNumber) + " " + DecimalText(i);
    akk_lfdnr[i].caption = text(text_id::kTileNumber);
  }
  true_false[0].caption = text(text_id::kRight);
  true_false[1].caption = text(text_id::kWrong);
  wieder.caption = text(text_id::kRepeat);
  wieder2.caption = text(text_id::kRepeatCheck);
  CmdNextAufg.caption = LbNextAufg.caption = text(text_id::kTask) + " 1";
  zurueck.caption = text(text_id::kBack);
  ergebnis_anz[0].caption = text(text_id::kTrainingProgress);
  ergebnis_anz[1].caption = text(text_id::kTrainingCompleted);
  ergebnis_anz[2].caption = text(text_id::kTooHard);
  cmd_test_aus.caption = text(text_id::kHideTestStatus);
  cmd_test_ein.caption = text(text_id::kShowTestStatus);
  WaitMeld.caption = text(text_id::kOneMoment);
}

void Arbeitsblatt1::BaueAntwortfeld() {
  const bool akkorde = NachAkkorden();
  aktionsbox.width = akkorde ? 193 : 313;
  aktionsbox.height = !akkorde && IstFortsetzung() ? kFeldHoeheFortsetzung : kFeldHoehe;
  jzakk_box[0].width = 790;
  jzakk_box[1].width = 670;
  jzakk_box[akkorde ? 0 : 1].height = kFeldHoehe;
  jzakk_box[0].visible = akkorde;
  jzakk_box[1].visible = !akkorde;
  for (int i = 1; i <= kSlots; ++i) {
    ergebnis[i].width = akkorde ? 95 : 169;
    ergebnis[i].height = akkorde ? 46 : 41;
  }
  if (akkorde) {
    BaueKacheln();
  } else {
    BaueGruppen();
  }
  antwortfeld_.Sperre();
}

void Arbeitsblatt1::BaueKacheln() {
  const ExerciseSettings& settings = parts_.settings;
  PictureStore& store = parts_.pictures.For(settings.akk_form);
  const Raster raster = RasterFuer(settings.LetzterKlangtyp(), settings.akk_anzeige);
  for (int e = 1; e <= kBrettGroesse; ++e) {
    const bool belegt = e <= parts_.board.akk_zahl;
    klang_pan[e].visible = belegt;
    Akkbez[e].visible = belegt && settings.akk_anzeige == 0;
    if (!belegt) continue;
    const int zeile = (e - 1) / kKachelnJeZeile;
    klang_pan[e].top = zeile * raster.zeilenschritt + kSymbolHoehe;
    klang_pan[e].height = raster.kachelhoehe;
    Akkbez[e].top = zeile * raster.zeilenschritt;

    const int n = parts_.board.KlangNummer(e);
    jz_kl[e].image = settings.akk_anzeige == 0 ? store.jakk(n) : store.jbez(n);
    if (settings.akk_anzeige == 0) Akkbez[e].image = store.jbez(n);
    jz_kl[e].caption = Akkbez[e].caption = ChordOfKlang(n).symbol;
    jz_kl[e].number = e;
    jz_kl[e].description = shell_.texts.Sprachtext(text_id::kTileNumber) + " " + DecimalText(e);
  }
  BenenneKacheln();
}

/// What a reader of the screen calls the tiles: by what they show, and twins also by their number.
void Arbeitsblatt1::BenenneKacheln() {
  std::map<std::string, int> gleiche;
  for (int e = 1; e <= parts_.board.akk_zahl; ++e) {
    const Chord& chord = ChordOfKlang(parts_.board.KlangNummer(e));
    std::string& name = jz_kl[e].spoken = chord.symbol;
    if (parts_.settings.akk_anzeige == 0) {
      if (chord.klangtyp == kVoicing) {
        name += ", " + shell_.texts.Words({text_id::kVoicing, "voicing", {}});
      }
      name += ", " + NoteNames(chord);
    }
    ++gleiche[name];
  }
  for (int e = 1; e <= parts_.board.akk_zahl; ++e) {
    if (gleiche[jz_kl[e].spoken] > 1) jz_kl[e].spoken += ", " + DecimalText(e);
  }
}

void Arbeitsblatt1::BaueGruppen() {
  for (int g = 1; g <= kGruppen; ++g) {
    akk_group[g].visible = parts_.board.grp_aktiv_ar[g] == 1;
    // A continued training has always shown the form's own names, and keeps to it.
    if (akk_group[g].visible && !IstFortsetzung()) {
      akk_group[g].caption = parts_.names.grp_name_ar[g];
    }
  }
  // The record tells the chord of a task by its Klang number, also where no tile shows it.
  for (int e = 1; e <= parts_.board.akk_zahl; ++e) parts_.board.KlangNummer(e);
}

void Arbeitsblatt1::BereiteSlotsVor() {
  for (int i = 1; i <= kSlots; ++i) {
    const bool belegt = i <= parts_.settings.akk_anzahl;
    nrakk[i].visible = belegt;
    nrakk[i].enabled = false;
    ergebnis[i].visible = belegt;
    ergebnis[i].spoken = nrakk[i].caption;
    ergebnis[i].back_color = Colors::kBlack;
    erg[i].visible = false;
    akk_lfdnr[i].visible = false;
  }
}

void Arbeitsblatt1::ZeigeUhrzeit() {
  const DateTime now = shell_.loop.Now();
  Uhr.caption = PaddedText(now.hour, 2) + ":" + PaddedText(now.minute, 2);
}

void Arbeitsblatt1::cmdHilfe_Click() { shell_.system.SendKeys("{F1}"); }

void Arbeitsblatt1::cmd_test_aus_Click() { ZeigeTeststand(false); }

void Arbeitsblatt1::cmd_test_ein_Click() { ZeigeTeststand(true); }

void Arbeitsblatt1::ZeigeTeststand(bool sichtbar) {
  stop_uhr.visible = sichtbar;
  lab_aufgaben.visible = sichtbar;
  cmd_test_aus.visible = sichtbar;
  cmd_test_ein.visible = !sichtbar;
}

}  // namespace vmod17

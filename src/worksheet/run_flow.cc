// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// From task to task: drawing, playing, repeating, and leaving.

#include <utility>

#include "base/numbers.h"
#include "base/text_ids.h"
#include "shell/delay.h"
#include "sound/sound_words.h"
#include "worksheet/worksheet_screen.h"

namespace vmod17 {
namespace {

constexpr float kRuheVorWiederholung = 50;  // ms

}  // namespace

void Arbeitsblatt1::Bewache(const std::string& tag, const std::function<void()>& body) {
  const auto angehalten = [&] {
    try {
      body();
    } catch (...) {
      // Timers are served while the message stands, and the run is over.
      Uhrzeit.Disable();
      spieltimer.Disable();
      WahlAutomat.Disable();
      klangsuche.Disable();
      listening = false;
      throw;
    }
  };
  shell_.errors.Guard(tag, *this, angehalten, [this] {
    pointer = Pointer::kDefault;
    Scheitere();
    zurueck_Click();
  });
}

void Arbeitsblatt1::Scheitere() {
  run_.gescheitert = true;
  zurueck.tag = "ERROR";
}

void Arbeitsblatt1::ZeigeZaehler() {
  zaehler[0].caption = DecimalText(run_.count.richtig);
  zaehler[1].caption = DecimalText(run_.count.falsch);
  whlgzaehler.caption = DecimalText(run_.count.wiederholt);
}

void Arbeitsblatt1::BieteErsteAufgabeAn() {
  run_.phase = Phase::kAngebot;
  const bool automatisch = parts_.settings.abfolge == 1;
  CmdNextAufg.visible = !automatisch;
  CmdNextAufg.enabled = !automatisch;
  LbNextAufg.visible = automatisch;
  if (automatisch) {
    WahlAutomat.Enable();
  } else {
    WahlAutomat.Disable();
  }
}

void Arbeitsblatt1::NaechsteAufgabeAnbieten() {
  run_.schalter_zaehler = 1;
  CmdNextAufg.caption = LbNextAufg.caption = shell_.texts.Sprachtext(text_id::kNextTask);
  CmdNextAufg.visible = parts_.settings.abfolge == 0;
  BieteWeiterAn();
}

void Arbeitsblatt1::BieteWeiterAn() {
  run_.phase = Phase::kAngebot;
  if (parts_.settings.abfolge == 1) {
    LbNextAufg.visible = true;
    WahlAutomat.Enable();
  } else {
    CmdNextAufg.enabled = true;
  }
}

void Arbeitsblatt1::BieteKontrolleAn() {
  wieder.visible = false;
  wieder.enabled = false;
  wieder2.visible = true;
}

void Arbeitsblatt1::NimmAngebotZurueck() {
  if (parts_.settings.abfolge == 1) {
    WahlAutomat.Disable();
    LbNextAufg.visible = false;
  } else {
    CmdNextAufg.enabled = false;
  }
}

void Arbeitsblatt1::CmdNextAufg_Click() {
  CmdNextAufg.enabled = false;
  if (run_.phase == Phase::kUngehoert) {
    SpieleUngehoerte();
  } else {
    mat_wahl();
  }
}

void Arbeitsblatt1::WahlAutomat_Timer() {
  if (!WahlAutomat.enabled) return;
  WahlAutomat.Disable();
  LbNextAufg.visible = false;
  mat_wahl();
}

void Arbeitsblatt1::mat_wahl() {
  Bewache("mat_wahl.", [this] {
    selection_.Ziehe(run_);
    const TaskAsked aufgabe = judging_.AufgabeStellen(run_);
    ZeigeAufgabe();
    parts_.record.LessonAufgabe(aufgabe);
    if (parts_.settings.frequenz_art == 1) {
      ChordPlayback::TonhoeheWuerfeln(run_.task, parts_.random);
    }
    if (!Spiele(SpielArt::kAufgabe)) BieteUngehoerteAn();
  });
}

void Arbeitsblatt1::SpieleUngehoerte() {
  Bewache("mat_wahl.", [this] {
    CmdNextAufg.visible = parts_.settings.abfolge == 0;
    if (!Spiele(SpielArt::kAufgabe)) BieteUngehoerteAn();
  });
}

/// By the button in every sequence: what the student has to mend takes its time. Where the sound
/// was lost, its return is waited for.
void Arbeitsblatt1::BieteUngehoerteAn() {
  if (KlangIstVerloren()) return VerliereKlang(KlangVerlust::kSpiel);
  run_.phase = Phase::kUngehoert;
  CmdNextAufg.visible = true;
  CmdNextAufg.enabled = true;
}

void Arbeitsblatt1::ZeigeAufgabe() {
  for (int slot = 1; slot <= parts_.settings.akk_anzahl; ++slot) LegeLoesungBereit(slot);
  antwortfeld_.LoescheMarken();
  nrakk[1].enabled = true;
  CmdNextAufg.enabled = false;
  wieder2.visible = false;
  wieder.visible = true;
  wieder.enabled = false;
}

void Arbeitsblatt1::LegeLoesungBereit(int slot) {
  const int e = run_.task.aufg_akk_ar[slot];
  erg[slot].visible = false;
  akk_lfdnr[slot].visible = false;
  ergebnis[slot].caption.clear();
  ergebnis[slot].back_color = Colors::kBlack;
  ergebnis[slot].description.clear();
  BenenneSlot(slot, {text_id::kTileOpen, "%1: open", {}});
  if (!NachAkkorden()) return;
  akk_lfdnr[slot].caption = shell_.texts.Sprachtext(text_id::kTileNumber) + " " + DecimalText(e);
  erg[slot].image = parts_.settings.akk_anzeige == 0 ? Akkbez[e].image : jz_kl[e].image;
  erg[slot].caption = jz_kl[e].caption;
}

bool Arbeitsblatt1::Spiele(SpielArt art) {
  run_.spiel_art = art;
  const float seit = shell_.loop.Clock();
  const Spielstand beginn = BeginneSpiel([&] {
    run_.test.HalteAn(seit);
    warten_.ZeigeWarten();
  });
  if (beginn == Spielstand::kStumm) {
    warten_.Beende();
    run_.test.HalteAn(seit);
    if (!KlangIstVerloren()) MeldeStumm();
    return run_.abbruch;
  }
  if (beginn == Spielstand::kKlingt) run_.test.SetzeFort(shell_.loop.Clock());
  return true;
}

Spielstand Arbeitsblatt1::BeginneSpiel(const std::function<void()>& dauert) {
  run_.phase = Phase::kUebergang;
  listening = true;
  const Spielstand beginn = playback_.SpieleAufgabe(run_.task, run_.abbruch, dauert);
  if (beginn == Spielstand::kAbgebrochen) return beginn;
  listening = beginn == Spielstand::kKlingt;
  if (!listening) return beginn;
  warten_.Beende();
  run_.phase = Phase::kSpiel;
  run_.spiel_start = shell_.loop.Clock();
  spieltimer.Enable();
  return beginn;
}

void Arbeitsblatt1::MeldeStumm() { shell_.messages.Warn(shell_.texts.Words(kKlangFehlt), caption); }

void Arbeitsblatt1::spieltimer_Timer() {
  Bewache("spieltimer_timer.", [this] {
    spieltimer.Disable();
    if (run_.abbruch) return;
    run_.phase = Phase::kUebergang;
    // What has not sounded to its end by now is late, or was cut off.
    switch (parts_.midi.WarteAufEnde([this] { return run_.abbruch; })) {
      case Spielstand::kKlingt:
        return BeendeSpiel();
      case Spielstand::kStumm:
        return VerliereSpiel();
      case Spielstand::kAbgebrochen:
        return;
    }
  });
}

void Arbeitsblatt1::BeendeSpiel() {
  listening = false;
  run_.stockte = false;
  run_.verlust.reset();
  const bool kontrolle = run_.spiel_art == SpielArt::kKontrolle;
  if (!kontrolle) run_.clock.antw_start = shell_.loop.Clock();
  if (KlangIstVerloren()) {
    return VerliereKlang(kontrolle ? KlangVerlust::kAngebot : KlangVerlust::kAntwort);
  }
  run_.test.SetzeFort(shell_.loop.Clock());
  if (kontrolle) return BieteWiederAn();
  run_.phase = Phase::kAntwort;
  antwortfeld_.AntwortenFreigeben(run_.aus_ar);
  wieder.enabled = true;
  SageAntwortbereit();
}

void Arbeitsblatt1::BieteWiederAn() {
  wieder2.enabled = true;
  if (IstZuEnde()) {
    run_.phase = Phase::kZuEnde;
  } else {
    BieteWeiterAn();
  }
}

// The repeats are no routines of weight: an error in them goes to the run-time report, since what
// they play has sounded before.
void Arbeitsblatt1::wieder_Click() {
  run_.phase = Phase::kUebergang;
  wieder.enabled = false;
  // The tiles close before the pause and not after it: an answer that came in the pause would end
  // the task that is about to be repeated.
  antwortfeld_.Sperre();
  listening = true;
  run_.spiel_art = SpielArt::kWiederholung;
  parts_.midi.MidiReset();
  Delay(shell_.loop, kRuheVorWiederholung, run_.abbruch);
  if (run_.abbruch) return;
  const RunCount zuvor = run_.count;
  RunCount::Erhoehe(run_.count.wiederholt);
  ZeigeZaehler();
  ++run_.answers.whlg_ar.at(run_.akk_nr);
  ++run_.clock.anz_whlg;
  run_.clock.antw_ende = shell_.loop.Clock();
  run_.clock.antw_dauer += ClockDifference(run_.clock.antw_start, run_.clock.antw_ende);
  if (Spiele(SpielArt::kWiederholung)) return;
  // Nothing was heard again, so nothing counts.
  run_.count = zuvor;
  ZeigeZaehler();
  --run_.answers.whlg_ar.at(run_.akk_nr);
  --run_.clock.anz_whlg;
  BeendeSpiel();
}

void Arbeitsblatt1::wieder2_Click() {
  run_.phase = Phase::kUebergang;
  wieder2.enabled = false;
  // Withdrawn before the pause for the same reason: the next task must not begin in it.
  NimmAngebotZurueck();
  listening = true;
  run_.spiel_art = SpielArt::kKontrolle;
  parts_.midi.MidiReset();
  Delay(shell_.loop, kRuheVorWiederholung, run_.abbruch);
  if (run_.abbruch) return;
  if (Spiele(SpielArt::kKontrolle)) return;
  BeendeSpiel();
}

void Arbeitsblatt1::Uhrzeit_Timer() {
  if (!Uhrzeit.enabled) return;
  ZeigeUhrzeit();
  if (IstTest()) ZaehleTestzeit();
}

void Arbeitsblatt1::testtimer_Timer() {
  testtimer.Disable();
  zurueck_Click();
}

void Arbeitsblatt1::zurueck_Click() {
  // Left once: an error's way out may come after the user or the system has taken it already, and a
  // record that is completed twice is none.
  if (!loaded() || run_.abbruch) return;
  HalteAn();
  if (IstZuEnde()) {
    wieder2.enabled = false;
    zurueck.back_color = Colors::kMagenta;
    zurueck.fore_color = Colors::kBlack;
    zurueck.caption = shell_.texts.Sprachtext(text_id::kBack);
    OeffneErgebnisse(RunEnd::kLeft);
    return;
  }
  if (IstZuSichern()) BieteSichernAn();
  Verlasse();
}

/// Ends the run: nothing sounds or happens by itself any more.
void Arbeitsblatt1::HalteAn() {
  zurueck.enabled = false;
  run_.phase = Phase::kVerlassen;
  run_.abbruch = true;
  warten_.Beende();
  Uhrzeit.Disable();
  spieltimer.Disable();
  WahlAutomat.Disable();
  klangsuche.Disable();
  listening = false;
  parts_.midi.MidiReset();
  if (frage_ == Frage::kTestende) shell_.messages.Withdraw();
}

/// The results stand in front of the worksheet, which is out of reach meanwhile and leaves with
/// them.
void Arbeitsblatt1::OeffneErgebnisse(RunEnd end) {
  enabled = false;
  shell_.navigation.OpenResults(end, [this](const std::string& tag) {
    if (tag != "OK") Scheitere();
    Verlasse();
  });
}

void Arbeitsblatt1::Verlasse() {
  BeendeAufzeichnung();
  if (!loaded()) return;
  shell_.navigation.ShowSettings();
  shell_.screens.Unload(*this);
}

/// Completes and saves the record, once for each run.
void Arbeitsblatt1::BeendeAufzeichnung() {
  if (std::exchange(run_.aufgezeichnet, true)) return;
  parts_.record.LessonEnde(*this, WaitMeldung, parts_.settings.einst_liste);
}

/// The way out tells that the run is over and waits for the click.
void Arbeitsblatt1::MeldeEnde() {
  run_.phase = Phase::kZuEnde;
  zurueck.back_color = Colors::kYellow;
  zurueck.fore_color = Colors::kRed;
  zurueck.caption = shell_.texts.Sprachtext(text_id::kContinue);
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// A run whose sound is lost: what stands still meanwhile, and how it goes on.

#include <utility>

#include "sound/sound_words.h"
#include "worksheet/worksheet_screen.h"

namespace vmod17 {

void Arbeitsblatt1::KlangWechsel() {
  if (!loaded() || run_.abbruch) return;
  MerkeKlang();
  Bewache("spieltimer_timer.", [this] {
    if (KlangIstVerloren()) {
      if (const auto bei = WasLaeuft(run_)) VerliereKlang(*bei);
    } else if (parts_.midi.KlangStand() == MidiKlangStand::kDa && run_.phase == Phase::kOhneKlang) {
      NimmWiederAuf();
    }
  });
}

void Arbeitsblatt1::MerkeKlang() {
  if (parts_.midi.KlangStand() == MidiKlangStand::kDa) run_.klang_war_da = true;
}

void Arbeitsblatt1::VerliereKlang(KlangVerlust bei) {
  // What has to be done once more costs no time of a test.
  switch (bei) {
    case KlangVerlust::kSpiel:
      run_.test.HalteAn(run_.spiel_start);
      break;
    case KlangVerlust::kAntwort:
      run_.test.HalteAn(run_.clock.antw_start);
      break;
    case KlangVerlust::kAngebot:
      run_.test.HalteAn(shell_.loop.Clock());
      break;
  }
  spieltimer.Disable();
  listening = false;
  antwortfeld_.Sperre();
  wieder.enabled = false;
  wieder2.enabled = false;
  NimmAngebotZurueck();
  parts_.record.LessonOhneKlang();
  warten_.Zeige(kKlangVerloren);
  SucheKlang(bei);
}

/// What stands still on an output that says that all is well is tried once more. The second time
/// the student is told, and goes on by hand.
void Arbeitsblatt1::VerliereSpiel() {
  const bool erneut = std::exchange(run_.stockte, !KlangIstVerloren());
  if (!erneut || KlangIstVerloren()) return VerliereKlang(VerlustDesSpiels(run_));
  run_.stockte = false;
  run_.verlust.reset();
  listening = false;
  run_.test.HalteAn(run_.spiel_start);
  MeldeStumm();
  if (run_.abbruch) return;
  if (run_.spiel_art == SpielArt::kKontrolle) return BeendeSpiel();
  BieteUngehoerteAn();
}

void Arbeitsblatt1::SucheKlang(KlangVerlust bei) {
  run_.phase = Phase::kOhneKlang;
  run_.verlust = bei;
  klangsuche.Enable();
}

void Arbeitsblatt1::klangsuche_Timer() {
  switch (parts_.midi.KlangStand()) {
    case MidiKlangStand::kUnbekannt:
      return;  // what is found out is told by itself
    case MidiKlangStand::kWeg:
      return parts_.midi.MidiReset();
    case MidiKlangStand::kDa:
      // Nothing is known against an output that has let a playing down.
      return KlangWechsel();
  }
}

void Arbeitsblatt1::NimmWiederAuf() {
  klangsuche.Disable();
  if (run_.verlust != KlangVerlust::kAngebot) return SpieleNach(*run_.verlust);
  run_.verlust.reset();
  warten_.Beende();
  run_.test.SetzeFort(shell_.loop.Clock());
  BieteWiederAn();
  // Seen at once, and heard by nobody: nothing else tells that there is sound again.
  Say(parts_.settings.abfolge == 1 ? LbNextAufg.caption : CmdNextAufg.caption);
}

/// The task from its beginning, with the answers that it has already. As after every playing the
/// clock of the open answer starts at its end, so that what it had gathered since the last one does
/// not count.
void Arbeitsblatt1::SpieleNach(KlangVerlust bei) {
  // What was told holds until it sounds.
  switch (BeginneSpiel([] {})) {
    case Spielstand::kKlingt:
      // It is heard for the first time, or once more than the time of a test reckons with.
      if (bei == KlangVerlust::kSpiel) run_.test.SetzeFort(shell_.loop.Clock());
      return;
    case Spielstand::kStumm:
      return SucheKlang(bei);
    case Spielstand::kAbgebrochen:
      return;
  }
}

}  // namespace vmod17

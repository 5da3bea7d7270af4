// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// A test and an exam: a fixed number of tasks in a limited time.

#include <string>

#include "base/numbers.h"
#include "base/text_ids.h"
#include "worksheet/worksheet_screen.h"

namespace vmod17 {
namespace {

constexpr int kSekundenJeTakt = 10;  // between two firings of `Uhrzeit`

}  // namespace

void Arbeitsblatt1::BeginneTest() {
  run_.test = BemissTest({run_.material.mat_posten, parts_.settings.akk_anzahl, spieltimer.interval,
                          WahlAutomat.interval});
  selection_.BeginneTest(run_, parts_.counters.auswertung_obj);
  ZeigeRestzeit();
  lab_aufgaben.caption =
      shell_.texts.Sprachtext(text_id::kTasksLeft) + SignedText(run_.test.rest_aufgaben);
  PicUetyp[1].visible = true;
  ZeigeTeststand(true);
}

void Arbeitsblatt1::ZeigeRestaufgaben() {
  lab_aufgaben.caption =
      shell_.texts.Sprachtext(text_id::kTasksLeft) + " " + SignedText(run_.test.rest_aufgaben);
}

void Arbeitsblatt1::BeendeTest() {
  Uhrzeit.Disable();
  WahlAutomat.Disable();
  CmdNextAufg.enabled = false;
  MeldeEnde();
}

void Arbeitsblatt1::ZaehleTestzeit() {
  if (!run_.test.Zaehle(kSekundenJeTakt)) return;
  ZeigeRestzeit();
  if (run_.test.rest_sek <= 0) BeendeTestNachZeit();
}

void Arbeitsblatt1::ZeigeRestzeit() {
  const TextLookup& texts = shell_.texts;
  const int sekunden = run_.test.rest_sek;
  stop_uhr.caption = texts.Sprachtext(text_id::kTimeLeft) + SignedText(sekunden / 60) + " " +
                     texts.Sprachtext(text_id::kMinutes) + SignedText(sekunden % 60) + " " +
                     texts.Sprachtext(text_id::kSeconds);
}

void Arbeitsblatt1::BeendeTestNachZeit() {
  HalteAn();
  wieder.enabled = false;
  wieder2.enabled = false;
  Say(shell_.texts.Words({text_id::kTimeIsUp, "Time is up", {}}));
  BeendeAufzeichnung();
  // Events are served while the record is saved: the program may have been ended in them.
  if (loaded()) OeffneErgebnisse(RunEnd::kTimeUp);
}

bool Arbeitsblatt1::TestLaeuft() const {
  return visible && IstTest() && run_.lauf_status != LaufStatus::kTestZuEnde;
}

/// A key or the window's cross is pressed by mistake more easily than a button, and a test that is
/// left has no results. The time goes on meanwhile.
bool Arbeitsblatt1::WillTestBeenden() {
  if (frage_ != Frage::kKeine) return false;
  frage_ = Frage::kTestende;
  const std::string frage = shell_.texts.Words(
      {text_id::kEndTestQuestion, "The test is not over yet. End it without results?", {}});
  const MessageBox::Answer answer = shell_.messages.Ask(frage, caption, MessageBox::Answer::kNo);
  frage_ = Frage::kKeine;
  return answer == MessageBox::Answer::kYes;
}

}  // namespace vmod17

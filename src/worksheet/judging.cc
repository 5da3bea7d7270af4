// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "worksheet/judging.h"

#include <cmath>

#include "ports/event_loop.h"

namespace vmod17 {

Judging::Judging(const ExerciseSettings& settings, const ChordBoard& board, Auswertung& auswertung,
                 Random& random)
    : settings_(settings),
      board_(board),
      auswertung_(auswertung),
      random_(random),
      scoring_(settings, board, auswertung) {}

TaskAsked Judging::AufgabeStellen(RunState& run) const {
  run.answers = TaskAnswers();
  run.akk_nr = 1;
  run.clock.anz_whlg = 0;
  run.clock.antw_dauer = 0;
  run.clock.antw_lfd = 1;
  TaskAsked aufgabe;
  for (int slot = 1; slot <= settings_.akk_anzahl; ++slot) {
    // A chord stands on its root.
    aufgabe.akkorde.push_back(
        {run.task.aufg_akk_ar.at(slot), Gefragt(run, slot), run.task.akk_ton_ar.at(slot).front()});
  }
  return aufgabe;
}

int Judging::RichtigeWahl(const RunState& run, int slot) const {
  return NachAkkorden() ? run.task.aufg_akk_ar.at(slot) : Gefragt(run, slot).group;
}

AnswerGiven Judging::AntwortSetzen(RunState& run, int gewaehlt, float uhr) const {
  const int slot = run.akk_nr;
  AnswerClock& clock = run.clock;
  clock.antw_ende = uhr;
  const float sekunden = ClockDifference(clock.antw_start, clock.antw_ende) + clock.antw_dauer;
  clock.antw_dauer = std::floor(sekunden * 10 + 0.5f);

  AnswerGiven antwort;
  antwort.slot = slot;
  antwort.antw_lfd = clock.antw_lfd;
  antwort.gefragt = RichtigeWahl(run, slot);
  antwort.gewaehlt = gewaehlt;
  antwort.gefragter_akkord = Gefragt(run, slot);
  antwort.gewaehlter_akkord = NachAkkorden() ? board_[gewaehlt] : BoardEntry{.group = gewaehlt};
  antwort.richtig = gewaehlt == antwort.gefragt;
  antwort.antw_dauer = clock.antw_dauer;
  antwort.anz_whlg = clock.anz_whlg;

  if (antwort.richtig) {
    Richtig(run);
  } else {
    Falsch(run, gewaehlt);
  }
  antwort.punkte = run.answers.fehl_ar[slot];
  if (antwort.richtig || IstVerloren(run, slot)) {
    NaechsterAkkord(run, uhr);
  } else {
    WeitererVersuch(run, gewaehlt, uhr);
  }
  antwort.danach = run.lauf_status;
  return antwort;
}

void Judging::Richtig(RunState& run) const {
  ++run.answers.geloest;
  RunCount::Erhoehe(run.count.richtig);
  float& punkte = run.answers.fehl_ar.at(run.akk_nr);
  if (punkte != 0 || settings_.uebmodus == kModusFrei) return;
  run.answers.zeit_ar.at(run.akk_nr) = ZeitZuschlag(run.clock.antw_dauer, run.clock.antw_frei);
  punkte = kErsterKlickRichtig;
}

void Judging::Falsch(RunState& run, int gewaehlt) const {
  RunCount::Erhoehe(run.count.falsch);
  float& punkte = run.answers.fehl_ar.at(run.akk_nr);
  punkte += SlotLimits::kFehlSchritt;
  if (!NachAkkorden()) return;
  const int klick = static_cast<int>(punkte) / SlotLimits::kFehlSchritt;
  run.answers.falsch_ar.at(run.akk_nr).at(klick) = gewaehlt;
}

bool Judging::IstVerloren(const RunState& run, int slot) const {
  return run.answers.fehl_ar.at(slot) == static_cast<float>(board_.limits.fehl_max);
}

void Judging::WeitererVersuch(RunState& run, int gewaehlt, float uhr) {
  run.lauf_status = LaufStatus::kWeitererVersuch;
  run.aus_ar.at(gewaehlt) = 1;
  run.clock.anz_whlg = 0;
  run.clock.antw_dauer = 0;
  run.clock.antw_start = uhr;
  ++run.clock.antw_lfd;
}

void Judging::NaechsterAkkord(RunState& run, float uhr) const {
  ++run.akk_nr;
  run.aus_ar.fill(0);
  if (run.akk_nr > settings_.akk_anzahl) {
    run.lauf_status = LaufStatus::kAufgabeFertig;
    return;
  }
  run.lauf_status = LaufStatus::kNaechsterSlot;
  run.clock.anz_whlg = 0;
  run.clock.antw_dauer = 0;
  run.clock.antw_start = uhr;
  run.clock.antw_lfd = 1;
}

TaskClosed Judging::AufgabeBeenden(RunState& run) {
  TaskClosed ende;
  if (settings_.uebmodus != kModusFrei) scoring_.AufgabeWerten(run, run.akk_nr);
  if (settings_.IstTraining()) ende.training = WerteTraining(run);
  if (settings_.IstTest()) ZaehleTestaufgabe(run);
  ende.geloest = run.answers.geloest;
  const auto& punkte = run.answers.fehl_ar;
  ende.punkte.assign(punkte.begin() + 1, punkte.begin() + run.akk_nr);
  ende.danach = run.lauf_status;
  return ende;
}

TrainingStand Judging::WerteTraining(RunState& run) const {
  const TrainingStand stand = PruefeTraining(run.material);
  if (stand != TrainingStand::kGehtWeiter) run.lauf_status = LaufStatus::kTrainingZuEnde;
  return stand;
}

void Judging::ZaehleTestaufgabe(RunState& run) {
  TestRest& test = run.test;
  --test.rest_aufgaben;
  if (test.rest_aufgaben == 0) {
    run.lauf_status = LaufStatus::kTestZuEnde;
  } else if (test.rest_aufgaben == test.test_aufgaben / 2) {
    run.material.MaterialTest(auswertung_, random_);
  }
}

}  // namespace vmod17

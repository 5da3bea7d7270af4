// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "worksheet/task_selection.h"

#include <cmath>

#include "base/numbers.h"
#include "base/run_time_error.h"

namespace vmod17 {
namespace {

constexpr int kHalbtoene = 12;
constexpr int kMitte = 50;  // per cent of the gauge at the start of a training

[[noreturn]] void NichtsZuZiehen(const char* what) {
  throw RunTimeError(ErrorNumber::kNothingToDraw, what, "vmod17.mat_wahl");
}

}  // namespace

TaskSelection::TaskSelection(const ExerciseSettings& settings, const ChordBoard& board,
                             Random& random)
    : settings_(settings), board_(board), random_(random) {}

void TaskSelection::Saeen(float clock) {
  if (settings_.uebmodus < kModusPruefung || settings_.pruef_seed == 0) {
    random_.SeedFromClock(clock);
  } else {
    random_.Restart(-settings_.pruef_seed);
  }
}

void TaskSelection::BereiteVor(RunState& run) {
  run.oktav_ar = {2, 3, 4, 5};
  run.ton_bereich = run.oktav_ar.at(settings_.oktav_ber) * kHalbtoene -
                    board_.table().klang_spanne_ar.at(settings_.LetzterKlangtyp());
  if (settings_.grundton_art == 1) ZieheGrundton(run);
}

void TaskSelection::BeginneTest(RunState& run, Auswertung& auswertung) {
  run.material.BeginneTest(RoundHalfEven(run.test.test_aufgaben * settings_.akk_anzahl / 2.0));
  run.material.MaterialTest(auswertung, random_);
}

void TaskSelection::Ziehe(RunState& run) {
  if (board_.akk_zahl < 1) NichtsZuZiehen("the board holds no chord");
  for (int slot = 1; slot <= settings_.akk_anzahl; ++slot) ZieheSlot(run, slot);
  const BoardEntry& erster = board_[run.task.aufg_akk_ar[1]];
  run.letzt_akk = {erster.klangtyp, erster.row};
  run.letzt_ton = run.task.akk_ton_ar[1][0];
}

void TaskSelection::ZieheSlot(RunState& run, int slot) {
  bool gewichtet = settings_.uebmodus > 0;
  int versuche = 0;
  int& eintrag = run.task.aufg_akk_ar[slot];
  do {
    if (++versuche > kVersuche) NichtsZuZiehen("no chord but the last one can be drawn");
    // What is left in the bag may all be refused; then the whole board has its turn.
    if (versuche >= run.material.mat_anzahl) gewichtet = false;
    eintrag = ZieheEintrag(run, gewichtet);
    if (settings_.grundton_art == 0) ZieheGrundton(run);
    BaueKlang(run, slot);
    if (settings_.arp_richtung == kArpZufall) {
      ChordPlayback::ArpeggioMischen(run.task, slot, board_.LetzteNote(eintrag), random_);
    }
  } while (IstWiederholung(run, slot));
  if (settings_.IstTest()) run.material.NimmHeraus(eintrag);
}

int TaskSelection::ZieheEintrag(RunState& run, bool gewichtet) {
  Material& material = run.material;
  if (!gewichtet) return Wuerfle(board_.akk_zahl);
  material.mat_index = settings_.IstTest() ? ZieheAusDerTasche(material) : ZieheGewichtet(material);
  return material.mat_ar.at(material.mat_index);
}

int TaskSelection::ZieheAusDerTasche(Material& material) {
  for (int versuche = 0; versuche < kVersuche; ++versuche) {
    const int index = Wuerfle(material.mat_anzahl);
    if (material.mat_ar.at(index) != 0) return index;
  }
  NichtsZuZiehen("the material of the test is used up");
}

/// Near its end a training turns to the front of the bag, where the weak chords stand: the nearer,
/// the more often, and to the smaller a part of it.
int TaskSelection::ZieheGewichtet(const Material& material) {
  const int a = kMitte - material.Prozent();
  const int b = a - 20;
  const int c = a * 2;
  const bool vorn = a > 30 && static_cast<int>(random_.Rnd() * 100) <= b;
  return Wuerfle(vorn ? material.mat_anzahl * (100 - c) / 100.0 : material.mat_anzahl);
}

int TaskSelection::Wuerfle(double n) {
  return static_cast<int>(std::floor(static_cast<double>(random_.Rnd()) * n)) + 1;
}

void TaskSelection::ZieheGrundton(RunState& run) {
  // No root is a C.
  int versuche = 0;
  do {
    if (++versuche > kVersuche) NichtsZuZiehen("no root lies in the range of the notes");
    const float abstand = static_cast<float>(run.ton_bereich + 1) * random_.Rnd();
    run.grundton = static_cast<int>(std::floor(abstand)) + settings_.ton_unten;
  } while (run.grundton % kHalbtoene == 0);
}

void TaskSelection::BaueKlang(RunState& run, int slot) {
  const BoardEntry& entry = board_[run.task.aufg_akk_ar[slot]];
  const auto& struktur = board_.table().akk_struktur_ar[entry.klangtyp][entry.row];
  const int letzte = board_.table().stimmen_ar[entry.klangtyp];
  for (int v = 0; v <= letzte; ++v) {
    run.task.akk_ton_ar[slot][v] = struktur[v] + run.grundton;
  }
}

bool TaskSelection::IstWiederholung(const RunState& run, int slot) const {
  const BoardEntry& entry = board_[run.task.aufg_akk_ar[slot]];
  const int ton = run.task.akk_ton_ar[slot][0];
  if (slot > 1) {
    const BoardEntry& voriger = board_[run.task.aufg_akk_ar[slot - 1]];
    return ton == run.task.akk_ton_ar[slot - 1][0] && entry.klangtyp == voriger.klangtyp &&
           entry.row == voriger.row;
  }
  return settings_.akk_anzahl == 1 && ton == run.letzt_ton &&
         entry.klangtyp == run.letzt_akk.klangtyp && entry.row == run.letzt_akk.row;
}

}  // namespace vmod17

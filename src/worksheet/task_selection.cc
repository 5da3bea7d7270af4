// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "worksheet/task_selection.h"

#include <cmath>

#include "platform/run_time_error.h"

namespace vmod17 {
namespace {

constexpr int kPruefung = 4;
constexpr int kHalbtoene = 12;

[[noreturn]] void NichtsZuZiehen(const char* what) {
  throw RunTimeError(ErrorNumber::kNothingToDraw, what, "vmod17.mat_wahl");
}

}  // namespace

TaskSelection::TaskSelection(const ExerciseSettings& settings, const ChordBoard& board,
                             Random& random)
    : settings_(settings), board_(board), random_(random) {}

void TaskSelection::Saeen(float clock) {
  if (settings_.uebmodus < kPruefung || settings_.pruef_seed == 0) {
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

void TaskSelection::Ziehe(RunState& run) {
  if (board_.akk_zahl < 1) NichtsZuZiehen("the board holds no chord");
  for (int slot = 1; slot <= settings_.akk_anzahl; ++slot) {
    int versuche = 0;
    do {
      if (++versuche > kVersuche) NichtsZuZiehen("no chord but the last one can be drawn");
      run.task.aufg_akk_ar[slot] =
          static_cast<int>(random_.Rnd() * static_cast<float>(board_.akk_zahl)) + 1;
      if (settings_.grundton_art == 0) ZieheGrundton(run);
      BaueKlang(run, slot);
      if (settings_.arp_richtung == kArpZufall) {
        ChordPlayback::ArpeggioMischen(run.task, slot,
                                       board_.LetzteNote(run.task.aufg_akk_ar[slot]), random_);
      }
    } while (IstWiederholung(run, slot));
  }
  const BoardEntry& erster = board_[run.task.aufg_akk_ar[1]];
  run.letzt_akk = {erster.klangtyp, erster.row};
  run.letzt_ton = run.task.akk_ton_ar[1][0];
}

void TaskSelection::ZieheGrundton(RunState& run) {
  // A chord on C would be the chord of the tile to the letter; no root is ever a C.
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

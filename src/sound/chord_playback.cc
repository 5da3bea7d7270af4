// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "sound/chord_playback.h"

#include <algorithm>
#include <string>

#include "base/run_time_error.h"
#include "shell/delay.h"

namespace vmod17 {
namespace {

constexpr float kRuheVorDemEinreihen = 50;  // ms
constexpr float kRuheVorDemStart = 100;     // ms
constexpr int kAkzent = 20;                 // velocity added to an accented root
constexpr int kStimmungen = 16;             // detunings 0 to 15 in each direction
constexpr int kMarken = 7;                  // first column of the marks in arp_folge_ar
constexpr int kVersuche = 100000;

}  // namespace

ChordPlayback::ChordPlayback(EventLoop& loop, ModMIDI& midi, const AppState& state,
                             const ExerciseSettings& settings, const ChordBoard& board)
    : loop_(loop),
      midi_(midi),
      settings_(settings),
      board_(board),
      queue_(midi, state, settings, kAkzent) {}

Spielstand ChordPlayback::SpieleAufgabe(PlaybackTask& task, const bool& abbruch,
                                        const std::function<void()>& dauert) {
  midi_.MidiReset();
  Delay(loop_, kRuheVorDemEinreihen, abbruch);
  if (abbruch) return Spielstand::kAbgebrochen;
  if (settings_.frequenz_art == 1) {
    for (int kanal = 0; kanal < ModMIDI::kKanaele; ++kanal) {
      midi_.MidiTonhoehe(task.ton_stimmung + ModMIDI::kTonhoeheMitte, kanal);
    }
  }
  if (settings_.klangfarb_art == 0) task.kanal = 0;
  for (int slot = 1; slot <= settings_.akk_anzahl; ++slot) {
    const auto noten = static_cast<std::size_t>(board_.LetzteNote(task.aufg_akk_ar.at(slot))) + 1;
    queue_.ReiheEin(slot, std::span(task.akk_ton_ar[slot]).first(noten), task.arp_folge_ar[slot],
                    task.kanal);
  }
  Delay(loop_, kRuheVorDemStart, abbruch);
  if (abbruch) return Spielstand::kAbgebrochen;
  midi_.MidiStart();
  return midi_.WarteAufBeginn([&] { return abbruch; }, dauert);
}

void ChordPlayback::TonhoeheWuerfeln(PlaybackTask& task, Random& random) {
  task.ton_stimmung_vz = random.Rnd() < 0.5f ? -1 : 1;
  task.ton_stimmung = static_cast<int>(kStimmungen * random.Rnd()) * task.ton_stimmung_vz;
}

void ChordPlayback::ArpeggioMischen(PlaybackTask& task, int slot, int letzte_note, Random& random) {
  auto& folge = task.arp_folge_ar.at(slot);
  folge.fill(0);
  for (int p = 0; p <= letzte_note; ++p) {
    int r = 0;
    int versuche = 0;
    do {
      if (++versuche > kVersuche) {
        throw RunTimeError(ErrorNumber::kNothingToDraw, "no order of the notes can be drawn",
                           "vmod17.ArpeggioMischen");
      }
      r = static_cast<int>(random.Rnd() * static_cast<float>(letzte_note + 1));
    } while (std::find(folge.begin(), folge.begin() + p, r) != folge.begin() + p);
    folge.at(kMarken + p) = 1;
    folge.at(p) = r;
  }
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "sound/note_queue.h"

#include <algorithm>

namespace vmod17 {

NoteQueue::NoteQueue(ModMIDI& midi, const AppState& state, const ExerciseSettings& settings,
                     int akzent)
    : midi_(midi), state_(state), settings_(settings), akzent_(akzent) {}

void NoteQueue::ReiheEin(int slot, std::span<const int> noten, std::span<const int> folge,
                         int& kanal) {
  const int n = static_cast<int>(noten.size()) - 1;
  for (int k = 0; k <= n; ++k) {
    int j = k;
    switch (settings_.arp_richtung) {
      case kArpAufwaerts:
      case kArpOhne:
        break;
      case kArpAbwaerts:
        j = n - k;
        break;
      case kArpZufall:
        j = folge[k];
        break;
      default:
        return;
    }
    // Each note of a chord keeps its channel, and through it its timbre, in every order.
    if (settings_.klangfarb_art != 0) kanal = j + 1;
    ReiheNoteEin(slot, noten[j], j, k, kanal);
  }
}

/// Queues the note of index `j`, the `k`-th to sound, both from 0.
void NoteQueue::ReiheNoteEin(int slot, int note, int j, int k, int kanal) {
  const int laenge = state_.tempo_dauer_ar.at(settings_.tempo_idx);
  const int versatz = settings_.arp_richtung == kArpOhne ? 0 : settings_.arp_dauer * k;
  const double dauer = laenge - versatz - 0.1 * laenge;

  const int staerke = midi_.midiVelocity;
  if (settings_.grundton_betont == 1 && j == 0) {
    midi_.midiVelocity = std::min(staerke + akzent_, ModMIDI::kHoechsteStaerke);
  }
  midi_.MidiNote(note, laenge * (slot - 1) + versatz, dauer, kanal, 0);
  midi_.midiVelocity = staerke;
}

}  // namespace vmod17

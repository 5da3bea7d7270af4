// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Timbre, loudness, and a sample of the present settings before the run.

#include <algorithm>
#include <array>

#include "base/numbers.h"
#include "settings/settings_screen.h"
#include "sound/sample_playback.h"
#include "sound/sound_words.h"

namespace vmod17 {
namespace {

constexpr int kVoicingNoten = 5;
constexpr float kRuheNachReset = 50;     // ms
constexpr float kRuheVorDemStart = 100;  // ms
constexpr int kNachfrist = 500;          // ms after the sample's end until it is taken as over

}  // namespace

void Einstellung1::kl_farb_Click(int index) {
  ExerciseSettings& settings = parts_.settings;
  settings.klangfarb_art = index;
  Channel_Combo.visible = lb15[2].visible = index == 1;
  if (index == 1) {
    Channel_Combo.Select(0);
  } else {
    settings.klang_kanal = 0;
    ComboPatch.Select(settings.patch_ar[0]);
  }
}

void Einstellung1::Channel_Combo_Click() {
  parts_.settings.klang_kanal = Channel_Combo.list_index() + 1;
  ComboPatch.Select(parts_.settings.patch_ar.at(parts_.settings.klang_kanal));
}

void Einstellung1::ComboPatch_Click() {
  ExerciseSettings& settings = parts_.settings;
  settings.patch_ar.at(settings.klang_kanal) = ComboPatch.list_index();
  SetzeKlangfarbe(ComboPatch.list_index(), settings.klang_kanal);
}

void Einstellung1::HSliderVolume_Change() {
  parts_.midi.midiVelocity = HSliderVolume.value();
  lb14[1].caption = DecimalText(HSliderVolume.value());
}

void Einstellung1::klang_contr_Click() {
  klang_contr.enabled = false;
  cmdOK.enabled = false;
  probe_laeuft_ = true;
  listening = true;
  ZeigeAusblick();
  try {
    SpieleProbe();
  } catch (...) {
    BeendeProbe();
    throw;
  }
}

void Einstellung1::SpieleProbe() {
  ExerciseSettings& settings = parts_.settings;
  SamplePlayback probe(parts_.midi, shell_.state, settings, parts_.random);
  probe.Baue(ProbenNoten());
  parts_.midi.MidiReset();
  Delay(kRuheNachReset);
  if (!ProbeGilt()) return;
  SendeKlangfarben();
  parts_.midi.MidiAusblenden();
  if (!ProbeGilt()) return;
  probe.ReiheEin();
  Delay(kRuheVorDemStart);
  if (!ProbeGilt()) return;
  parts_.midi.MidiStart();
  const Spielstand beginn = parts_.midi.WarteAufBeginn([this] { return !ProbeGilt(); },
                                                       [this] { warten_.ZeigeWarten(); });
  if (!ProbeGilt()) return;
  warten_.Beende();
  if (beginn == Spielstand::kStumm) {
    BeendeProbe();
    shell_.messages.Warn(shell_.texts.Words(kKlangFehlt), caption);
    return;
  }
  listening = true;
  // Should the output never tell that its queue is empty, the buttons come back all the same.
  klangprobe.interval = settings.SpielDauer(shell_.state) + kNachfrist;
  klangprobe.Enable();
}

/// Notes of a sample chord: as many as the largest chosen kind has.
int Einstellung1::ProbenNoten() const {
  const ItemList& gewaehlt = klanglst[1];
  return gewaehlt.count() == 0 ? kVoicingNoten : gewaehlt.entry(gewaehlt.count() - 1).item_data;
}

/// False once the screen is being left, by one way or the other.
bool Einstellung1::ProbeGilt() const { return !delay_abbruch && visible && probe_laeuft_; }

void Einstellung1::SendeKlangfarben() {
  const int art = parts_.settings.klangfarb_art;
  for (int i = ErsterKanal(art); i <= LetzterKanal(art); ++i) {
    SetzeKlangfarbe(parts_.settings.patch_ar[i], i);
  }
}

/// What the rules of the selection say of the sound check. While the sample plays its button stays
/// off all the same.
void Einstellung1::ErlaubeProbe(bool erlaubt) {
  probe_erlaubt_ = erlaubt;
  klang_contr.enabled = erlaubt && !probe_laeuft_;
}

void Einstellung1::BeendeProbe() {
  if (!probe_laeuft_) return;
  probe_laeuft_ = false;
  listening = false;
  warten_.Beende();
  klangprobe.Disable();
  // Both come back in the state that the selection has by now.
  cmdOK.enabled = auswahl_vollstaendig_;
  klang_contr.enabled = probe_erlaubt_;
  ZeigeAusblick();
}

/// The screen holds the output. What it tells is for the one that plays.
void Einstellung1::MIDI_KlangWechsel() {
  if (parts_.midi.KlangWechsel) parts_.midi.KlangWechsel();
  // A sample that has yet to begin learns it from its queue.
  if (!klangprobe.enabled || parts_.midi.KlangStand() != MidiKlangStand::kWeg) return;
  parts_.midi.MidiReset();
  BeendeProbe();
  shell_.messages.Warn(shell_.texts.Words(kKlangFehlt), caption);
}

void Einstellung1::MIDI_QueueEmpty() {
  const Form* top = shell_.screens.top();
  if (top == nullptr || top->caption != caption) return;
  BeendeProbe();
}

}  // namespace vmod17

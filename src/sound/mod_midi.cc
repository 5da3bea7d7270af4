// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "sound/mod_midi.h"

#include <algorithm>
#include <utility>

namespace vmod17 {
namespace {

// Status bytes of MIDI 1.0, for channel 0.
constexpr int kNoteAus = 128;
constexpr int kNoteAn = 144;
constexpr int kProgramm = 192;
constexpr int kTonhoehe = 224;

constexpr int kMarkeNoteAus = 1000000;
constexpr int kStandardStaerke = 100;

constexpr float kUnbemerkt = 300;    // ms that a wait may last before it is shown
constexpr float kGeduld = 20000;     // ms until an output that only loads counts as none
constexpr float kVerspaetet = 5000;  // ms until a queue that comes no further counts as cut off
constexpr float kHinsehen = 250;     // ms between two looks at how far it is

}  // namespace

std::map<int, MidiGeraet> ModMIDI::MidiGeraeteListe(MidiOutput& control) {
  std::map<int, MidiGeraet> liste;
  const int zahl = static_cast<int>(control.Get(MidiMember::GeraeteZahl));
  for (int nr = -1; nr < zahl; ++nr) {
    control.Set(MidiMember::GeraetNr, nr);
    liste[nr] = {control.Get(MidiMember::GeraetKennung), control.GeraetName()};
  }
  const int vom_host = server_.HostMidiGeraet();
  midiDeviceNumber = vom_host == ModServer::kKeinGeraet ? zahl - 1 : vom_host;
  return liste;
}

void ModMIDI::MidiOeffnen(MidiOutput& control) {
  midiPort = &control;
  midiChannel = 0;
  midiVelocity = kStandardStaerke;
  if (control.Get(MidiMember::OffenStand) >= 1 || control.Get(MidiMember::GeraetNr) == -1) {
    Befehl(MidiBefehl::kSchliessen);
  }
  control.Set(MidiMember::GeraetNr, midiDeviceNumber);
  Befehl(MidiBefehl::kOeffnen);
  midiVolumeLeft = kVollausschlag;
  midiVolumeRight = kVollausschlag;
}

void ModMIDI::MidiReset() {
  if (midiPort == nullptr) return;  // nothing sounds before an output is opened
  Befehl(MidiBefehl::kStopp);
  Befehl(MidiBefehl::kSchliessen);
  Befehl(MidiBefehl::kOeffnen);
}

void ModMIDI::MidiNote(int note, double start, double dauer, int kanal, int marke,
                       std::optional<int> staerke) {
  Port().Set(MidiMember::Status, kNoteAn + kanal);
  Port().Set(MidiMember::Daten2, staerke.value_or(midiVelocity));
  Port().Set(MidiMember::Daten1, note);
  Port().Set(MidiMember::Zeit, start);
  Port().Set(MidiMember::Marke, marke);
  Befehl(MidiBefehl::kEinreihen);
  Port().Set(MidiMember::Status, kNoteAus + kanal);
  Port().Set(MidiMember::Daten1, note);
  Port().Set(MidiMember::Zeit, start + dauer);
  Port().Set(MidiMember::Marke, marke + kMarkeNoteAus);
  Befehl(MidiBefehl::kEinreihen);
}

void ModMIDI::MidiTonhoehe(int wert, int kanal) { Sende(kTonhoehe + kanal, 0, wert); }

void ModMIDI::SetzeKlangfarbe(int patch, int kanal) { Sende(kProgramm + kanal, patch, 0); }

void ModMIDI::MidiStart() {
  Befehl(MidiBefehl::kStart);
  if (midiVolumeLeft <= 0) return;
  for (int lautstaerke = 0; lautstaerke <= midiVolumeLeft; lautstaerke += kRampenschritt) {
    SetzeLautstaerken(lautstaerke, lautstaerke);
    loop_.Yield();
  }
  SetzeLautstaerken(midiVolumeLeft, midiVolumeRight);
}

Spielstand ModMIDI::WarteAufBeginn(const std::function<bool()>& verlassen,
                                   const std::function<void()>& dauert) {
  const float start = loop_.Clock();
  bool gezeigt = false;
  while (!verlassen() && QueueStand() == MidiQueueStand::kWartet) {
    const float gewartet = ClockDifference(start, loop_.Clock()) * 1000;
    if (gewartet >= kGeduld) break;
    if (gewartet >= kUnbemerkt && !std::exchange(gezeigt, true)) dauert();
    loop_.WaitForEvent((gezeigt ? kGeduld : kUnbemerkt) - gewartet);
  }
  return NachDem(MidiQueueStand::kWartet, verlassen);
}

Spielstand ModMIDI::WarteAufEnde(const std::function<bool()>& verlassen) {
  float seit = loop_.Clock();
  float stillstand = 0;
  double zeit = Port().Get(MidiMember::QueueZeit);
  while (!verlassen() && QueueStand() == MidiQueueStand::kLaeuft && stillstand < kVerspaetet) {
    loop_.WaitForEvent(kHinsehen);
    const float jetzt = loop_.Clock();
    // A process that is stopped misses nothing: only what it has seen counts.
    stillstand += std::min(ClockDifference(seit, jetzt) * 1000, kHinsehen);
    seit = jetzt;
    const double zuvor = std::exchange(zeit, Port().Get(MidiMember::QueueZeit));
    if (zeit != zuvor) stillstand = 0;
  }
  return NachDem(MidiQueueStand::kLaeuft, verlassen);
}

Spielstand ModMIDI::NachDem(MidiQueueStand stand, const std::function<bool()>& verlassen) {
  if (verlassen()) return Spielstand::kAbgebrochen;
  if (QueueStand() != stand && QueueStand() != MidiQueueStand::kStumm) return Spielstand::kKlingt;
  MidiReset();
  return Spielstand::kStumm;
}

MidiKlangStand ModMIDI::KlangStand() {
  return static_cast<MidiKlangStand>(static_cast<int>(Port().Get(MidiMember::KlangStand)));
}

void ModMIDI::MidiAusblenden() {
  Befehl(MidiBefehl::kStopp);
  const int links = static_cast<int>(Port().Get(MidiMember::VolumeLinks));
  if (links <= 0) return;
  midiVolumeLeft = links;
  midiVolumeRight = static_cast<int>(Port().Get(MidiMember::VolumeRechts));
  for (int lautstaerke = links; lautstaerke >= 0; lautstaerke -= kRampenschritt) {
    SetzeLautstaerken(lautstaerke, lautstaerke);
    loop_.Yield();
  }
  SetzeLautstaerken(0, 0);
}

MidiOutput& ModMIDI::Port() {
  if (midiPort == nullptr) {
    throw RunTimeError(ErrorNumber::kInvalidCall, "no output was opened", "vmod17.modMIDI");
  }
  return *midiPort;
}

void ModMIDI::Befehl(MidiBefehl befehl) {
  Port().Set(MidiMember::Befehl, static_cast<int>(befehl));
}

MidiQueueStand ModMIDI::QueueStand() {
  return static_cast<MidiQueueStand>(static_cast<int>(Port().Get(MidiMember::QueueStand)));
}

void ModMIDI::SetzeLautstaerken(int links, int rechts) {
  Port().Set(MidiMember::VolumeLinks, links);
  Port().Set(MidiMember::VolumeRechts, rechts);
}

void ModMIDI::Sende(int status, int daten1, int daten2) {
  Port().Set(MidiMember::Status, status);
  Port().Set(MidiMember::Daten1, daten1);
  Port().Set(MidiMember::Daten2, daten2);
  Port().Set(MidiMember::Zeit, 0);
  Befehl(MidiBefehl::kSenden);
}

}  // namespace vmod17

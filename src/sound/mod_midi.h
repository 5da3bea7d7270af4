// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>

#include "ports/event_loop.h"
#include "ports/midi_output.h"
#include "shell/mod_server.h"

namespace vmod17 {

/// A device of the list: what it is known by.
struct MidiGeraet {
  double kennung = 0;
  std::string name;
};

/// How a queue that was started fares.
enum class Spielstand {
  kKlingt,       ///< it sounds, or has sounded to its end
  kStumm,        ///< its output cannot be heard; the queue was dropped
  kAbgebrochen,  ///< the screen was left before
};

/// `modMIDI`, the thin layer over the output object. It keeps no notes: a playing is a queue of
/// timed messages that the output runs by itself.
class ModMIDI {
 public:
  static constexpr int kHoechsteStaerke = 127;
  static constexpr int kVollausschlag = 65535;
  static constexpr int kRampenschritt = 500;
  static constexpr int kKanaele = 8;         ///< channels in use, 0 to 7
  static constexpr int kTonhoeheMitte = 64;  ///< upper seven bits of a centred pitch bend

  ModMIDI(EventLoop& loop, const ModServer& server) : loop_(loop), server_(server) {}

  /// The devices by number, from -1, and the choice of the one to open: the host's, or the last.
  std::map<int, MidiGeraet> MidiGeraeteListe(MidiOutput& control);
  /// Takes the control for all further sound and opens the chosen device.
  void MidiOeffnen(MidiOutput& control);
  /// Stop, close, open: all sound dies at once.
  void MidiReset();
  /// Queues a note as its two messages. `start` and `dauer` in ms, the velocity `midiVelocity`
  /// unless given.
  void MidiNote(int note, double start, double dauer, int kanal, int marke,
                std::optional<int> staerke = std::nullopt);
  /// Bends a channel at once; `wert` 0 to 127, 64 the centre.
  void MidiTonhoehe(int wert, int kanal);
  /// Gives a channel its program (General MIDI, from 0) at once.
  void SetzeKlangfarbe(int patch, int kanal);
  /// Starts the queue, then lets the volume rise, serving events meanwhile.
  void MidiStart();
  /// Waits, serving events, until the queue that was started has begun, or cannot be heard, or has
  /// waited for its output so long that this is as good as the same. Not at all where the output
  /// was ready. `verlassen` tells that nobody waits any more; `dauert` is called once, when it
  /// takes so long that the user should see why.
  Spielstand WarteAufBeginn(const std::function<bool()>& verlassen,
                            const std::function<void()>& dauert);
  /// The same until the queue that has begun is at its end, however late it is, as long as it comes
  /// on.
  Spielstand WarteAufEnde(const std::function<bool()>& verlassen);
  /// Whether what is played can be heard.
  MidiKlangStand KlangStand();
  /// Stops the queue and lets the volume fall, serving events meanwhile.
  void MidiAusblenden();

  int midiChannel = 0;
  int midiVelocity = 0;
  int midiDeviceNumber = 0;
  int midiVolumeLeft = 0;
  int midiVolumeRight = 0;

  /// Raised when `KlangStand` has changed, for the screen that plays.
  std::function<void()> KlangWechsel;

 private:
  /// The output in use. Errors: kInvalidCall before `MidiOeffnen`.
  MidiOutput& Port();
  void Befehl(MidiBefehl befehl);
  MidiQueueStand QueueStand();
  /// How the wait for the end of `stand` came out. A queue that is still there is dropped.
  Spielstand NachDem(MidiQueueStand stand, const std::function<bool()>& verlassen);
  void SetzeLautstaerken(int links, int rechts);
  void Sende(int status, int daten1, int daten2);

  EventLoop& loop_;
  const ModServer& server_;
  MidiOutput* midiPort = nullptr;
};

/// `MidiEvent`: raises QueueEmpty for whoever listens. The worksheet holds one; nothing in the
/// program raises its event.
class MidiEvent {
 public:
  std::function<void()> QueueEmpty;
  void SendQueueEmpty() {
    if (QueueEmpty) QueueEmpty();
  }
};

}  // namespace vmod17

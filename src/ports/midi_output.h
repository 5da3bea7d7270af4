// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <string>

namespace vmod17 {

/// The members of the output object, by their numbers.
enum class MidiMember {
  Befehl = 1,         ///< write: a `MidiBefehl`
  GeraetNr = 2,       ///< read, write: the device, 0 to GeraeteZahl - 1; -1 is the default mapper
  GeraetName = 6,     ///< read (`GeraetName()`): name of the device in GeraetNr
  GeraetKennung = 7,  ///< read: a number that identifies that device
  VolumeLinks = 13,   ///< read, write: 0 to 65535
  VolumeRechts = 14,  ///< read, write: 0 to 65535
  Status = 15,        ///< write: first byte of the message, kind + channel
  Daten1 = 16,        ///< write: second byte
  Daten2 = 17,        ///< write: third byte
  Zeit = 18,          ///< write: milliseconds from the start of the queue, may have a fraction
  GeraeteZahl = 20,   ///< read: number of output devices
  OffenStand = 21,    ///< read: 1 or more while the device is open
  Marke = 22,         ///< write: a number that travels with a queued message
  QueueStand = 23,    ///< read: a `MidiQueueStand`
  KlangStand = 24,    ///< read: a `MidiKlangStand`
  QueueZeit = 25,     ///< read: milliseconds of the queue that was started last that have passed
};

/// How the queue that was started last fares.
enum class MidiQueueStand {
  kRuht = 0,    ///< none was started, or it has run out or was dropped
  kWartet = 1,  ///< for the device, which is not ready yet; nothing has left and no time is lost
  kLaeuft = 2,  ///< its first messages have left
  kStumm = 3,   ///< it keeps time, but its device cannot be heard
};

/// Whether what is played can be heard, as far as the system tells.
enum class MidiKlangStand {
  kUnbekannt = 0,  ///< nothing was opened yet, or it is being found out
  kDa = 1,
  kWeg = 2,  ///< the device is gone, has died or was not to be had; kOeffnen tries again
};

/// What a write to `MidiMember::Befehl` does.
enum class MidiBefehl {
  kOeffnen = 1,     ///< open the device in GeraetNr; centres the pitch bend of all channels
  kSchliessen = 2,  ///< close it; notes that hang fall silent
  kStart = 4,       ///< run the queue from time 0
  kStopp = 5,       ///< stop, and drop what is queued
  kEinreihen = 6,   ///< put the message of Status, Daten1, Daten2, Zeit, Marke in the queue
  kSenden = 7,      ///< send the message of Status, Daten1, Daten2 now
};

/// A MIDI output with a time-stamped queue that is filled while it rests, started as a whole and
/// plays by itself. All calls come from the program's one thread and none blocks for longer than a
/// millisecond or two.
///
/// The programs (timbres) that were sent survive kSchliessen and kOeffnen. Messages of one time
/// leave together. A device that is gone, or a number that names none, plays nothing and keeps
/// time: no member raises an error.
///
/// A queue begins when its device is ready, however long that takes, and QueueStand tells when it
/// does: inside kStart, or by an event that is delivered to the program (`WaitForEvent` returns).
class MidiOutput {
 public:
  virtual ~MidiOutput() = default;

  virtual void Set(MidiMember member, double value) = 0;
  virtual double Get(MidiMember member) const = 0;
  virtual std::string GeraetName() const = 0;

  /// Raised on the program's thread after the last message of a queue has left; never for a queue
  /// that was dropped.
  std::function<void()> QueueEmpty;
  /// Raised on the program's thread when KlangStand has changed. A device that is open is watched
  /// whether or not it plays. A loss is told to whoever listens here, else by a notice.
  std::function<void()> KlangWechsel;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "ports/host_service.h"
#include "shell/app_state.h"
#include "shell/loaded_screens.h"

namespace vmod17 {

/// The program's side of its host: every command it sends, and what it does when an answer fails.
/// `HostVerbinden` comes first, once; `HostBeenden` last, once.
class ModServer {
 public:
  /// The number of the MIDI device when the host names none.
  static constexpr int kKeinGeraet = -9;

  ModServer(HostServiceFactory make_service, ProgramIdentity identity);

  const ProgramIdentity& identity() const { return identity_; }

  /// Creates the service, asks for the MIDI device and logs the start.
  void HostVerbinden();
  HostService* HostObjekt() const { return hostService.get(); }
  int HostMidiGeraet() const { return hostMidiDevice; }
  /// The name of the language to use; "Deutsch" when the host has no answer.
  std::string HostSprache();
  /// The answer of "LOGIN": matriculation number, name, first name; one element "unbekannt" when
  /// nobody is known, one element "Unbekannt" when the call failed. Callers test only for the
  /// lower-case word.
  TaggedValue LoginDaten();
  /// Read a stored array into `ablage_ar` or `einst_satz`. Return false, and leave the target as it
  /// was, when nothing is stored or the read failed. Errors: none.
  bool LeseAblage(const std::string& key);
  bool LeseEinstellung(const std::string& key);
  /// Stores a value under a key. Errors: what the host raises.
  void Speichere(const std::string& key, const TaggedValue& value);
  /// Stores a training that can be continued: `einst_satz` under "E" and `ablage` under "A", each
  /// with `typ` behind it, both or none of them. Errors: what the host raises.
  void SpeichereTraining(const std::string& typ, const TaggedValue::Array& ablage);
  void LogMeldung(const std::string& text);
  /// Logs an error: its place, number, description and source. Errors: what the host raises.
  void LogFehler(const std::string& place, const RunTimeError& error);
  /// Unloads all screens, last first, sends `befehl` and releases the host. Errors: none.
  void HostBeenden(const std::string& befehl, LoadedScreens& screens);

  TaggedValue::Array ablage_ar;   ///< the stored training state last read
  TaggedValue::Array einst_satz;  ///< the stored settings last read or built

 private:
  /// Errors: kInvalidCall while no host is connected.
  HostService& Host() const;
  int FrageMidiGeraet();
  bool Lese(const std::string& key, TaggedValue::Array& target);
  /// Sends a command whose answer nobody reads.
  void Send(std::string_view command, const TaggedValue& args);

  HostServiceFactory make_service_;
  ProgramIdentity identity_;
  std::unique_ptr<HostService> hostService;
  TaggedValue hostResult;
  TaggedValue storeArgs;
  int hostMidiDevice = kKeinGeraet;
};

}  // namespace vmod17

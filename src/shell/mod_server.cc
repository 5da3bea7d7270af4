// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/mod_server.h"

#include <exception>
#include <utility>

#include "base/numbers.h"

namespace vmod17 {
namespace {

constexpr const char* kNichtsAbgelegt = "NIL";

}  // namespace

ModServer::ModServer(HostServiceFactory make_service, ProgramIdentity identity)
    : make_service_(std::move(make_service)), identity_(std::move(identity)) {}

void ModServer::HostVerbinden() {
  hostService = make_service_();
  hostMidiDevice = FrageMidiGeraet();
  try {
    LogMeldung(identity_.name + " " + identity_.VersionText());
  } catch (const std::exception&) {
    // A log that cannot be written is no reason not to begin.
  }
}

int ModServer::FrageMidiGeraet() {
  try {
    TaggedValue answer = "";
    // An answer without digits is device 0; only a host without an answer gives kKeinGeraet.
    if (!Host().Action("MIDI", TaggedValue(), answer)) return kKeinGeraet;
    return LeadingNumber(answer.String());
  } catch (const std::exception&) {
    return kKeinGeraet;
  }
}

std::string ModServer::HostSprache() {
  hostResult = "Deutsch";
  try {
    Host().Action("LANG", "", hostResult);
    return hostResult.String();
  } catch (const std::exception&) {
    return "Deutsch";
  }
}

TaggedValue ModServer::LoginDaten() {
  TaggedValue answer = TaggedValue::Array{"unbekannt"};
  try {
    Host().Action("LOGIN", "", answer);
    answer[0].String();
    return answer;
  } catch (const std::exception&) {
    return TaggedValue::Array{"Unbekannt"};
  }
}

bool ModServer::LeseAblage(const std::string& key) { return Lese(key, ablage_ar); }

bool ModServer::LeseEinstellung(const std::string& key) { return Lese(key, einst_satz); }

bool ModServer::Lese(const std::string& key, TaggedValue::Array& target) {
  try {
    const auto service = make_service_();
    TaggedValue answer;
    if (!service->Action("READ", TaggedValue::Array{identity_.name, key}, answer)) return false;
    if (answer[0] == TaggedValue(kNichtsAbgelegt)) return false;
    target = answer.Elements();
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

void ModServer::Speichere(const std::string& key, const TaggedValue& value) {
  storeArgs = TaggedValue::Array{identity_.name, key, value};
  Send("STORE", storeArgs);
}

void ModServer::SpeichereTraining(const std::string& typ, const TaggedValue::Array& ablage) {
  Host().Together([&] {
    Speichere("E" + typ, einst_satz);
    Speichere("A" + typ, ablage);
  });
}

void ModServer::LogMeldung(const std::string& text) { Send("LOGMESS", text); }

void ModServer::LogFehler(const std::string& place, const RunTimeError& error) {
  Send("LOGERR", TaggedValue::Array{place, error.number(), error.what(), error.source()});
}

void ModServer::HostBeenden(const std::string& befehl, LoadedScreens& screens) {
  // On the way out nothing may stand in the way: each step goes on past the errors of the others.
  while (!screens.empty()) {
    try {
      screens.Unload(*screens.top());
    } catch (const std::exception&) {
    }
  }
  try {
    if (hostService) Send(befehl, "");
  } catch (const std::exception&) {
  }
  hostService.reset();
}

HostService& ModServer::Host() const {
  if (!hostService) {
    throw RunTimeError(ErrorNumber::kInvalidCall, "the host is not connected", "vmod17.ModServer");
  }
  return *hostService;
}

void ModServer::Send(std::string_view command, const TaggedValue& args) {
  Host().Action(command, args, hostResult);
}

}  // namespace vmod17

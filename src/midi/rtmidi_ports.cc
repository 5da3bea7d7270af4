// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <rtmidi/RtMidi.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <future>
#include <mutex>
#include <thread>
#include <utility>

#include "midi/midi_ports.h"
#include "midi/system_audio.h"

namespace vmod17 {
namespace {

constexpr const char* kClientName = "Melvado";

/// RtMidi writes to the terminal what no callback takes.
void DropError(RtMidiError::Type, const std::string&, void*) {}

/// A connection to one of the systems that know ports.
struct Connection {
  std::unique_ptr<JackServer> jack;  // null for the other systems
  std::unique_ptr<RtMidiOut> out;

  Connection(std::unique_ptr<JackServer> server, std::unique_ptr<RtMidiOut> midi_out)
      : jack(std::move(server)), out(std::move(midi_out)) {}
  ~Connection() {
    // To close a client of a JACK server that is gone crashes in its library.
    if (!IsAlive()) static_cast<void>(out.release());
  }

  bool IsAlive() const { return !jack || jack->Runs(); }
};

std::unique_ptr<Connection> ConnectTo(RtMidi::Api api, std::unique_ptr<JackServer> jack) {
  try {
    auto out = std::make_unique<RtMidiOut>(api, kClientName);
    out->setErrorCallback(&DropError);
    return std::make_unique<Connection>(std::move(jack), std::move(out));
  } catch (const RtMidiError&) {
    return nullptr;
  }
}

/// Null when no system knows ports. Both systems of Linux are looked at before RtMidi is: it
/// reports a missing one on the terminal.
std::unique_ptr<Connection> Connect() {
  std::vector<RtMidi::Api> compiled;
  RtMidi::getCompiledApi(compiled);
  const auto has = [&](RtMidi::Api api) {
    return std::ranges::find(compiled, api) != compiled.end();
  };
  std::error_code error;
  if (has(RtMidi::LINUX_ALSA) && std::filesystem::exists("/dev/snd/seq", error)) {
    return ConnectTo(RtMidi::LINUX_ALSA, nullptr);
  }
  if (has(RtMidi::UNIX_JACK)) {
    if (auto jack = JackServer::Find()) return ConnectTo(RtMidi::UNIX_JACK, std::move(jack));
  }
  if (has(RtMidi::WINDOWS_MM)) return ConnectTo(RtMidi::WINDOWS_MM, nullptr);
  if (has(RtMidi::MACOSX_CORE)) return ConnectTo(RtMidi::MACOSX_CORE, nullptr);
  return nullptr;
}

std::vector<std::string> NamesOf(const Connection& connection) {
  std::vector<std::string> names;
  if (!connection.IsAlive()) return names;
  try {
    const unsigned int count = connection.out->getPortCount();
    for (unsigned int i = 0; i < count; ++i) names.push_back(connection.out->getPortName(i));
  } catch (const RtMidiError&) {
    names.clear();
  }
  return names;
}

/// Names for people and for finding a port again: of two that are called the same the second gets a
/// number.
std::vector<std::string> Distinct(const std::vector<std::string>& names) {
  std::vector<std::string> distinct;
  for (const std::string& full_name : names) {
    const std::string name = LastingPortName(full_name);
    std::string candidate = name;
    for (int number = 2; std::ranges::find(distinct, candidate) != distinct.end(); ++number) {
      candidate = name + " (" + std::to_string(number) + ")";
    }
    distinct.push_back(candidate);
  }
  return distinct;
}

class RtMidiPort : public MidiPort {
 public:
  RtMidiPort(std::unique_ptr<Connection> connection, std::string name)
      : connection_(std::move(connection)), name_(std::move(name)) {
    connection_->out->setErrorCallback(&NoteError, this);
  }

  bool Send(const MidiBytes& message) override {
    const std::array<unsigned char, 3> bytes = {static_cast<unsigned char>(message.status),
                                                static_cast<unsigned char>(message.data1),
                                                static_cast<unsigned char>(message.data2)};
    // RtMidi would wait for ever for a dead JACK server to make room.
    if (!connection_->IsAlive()) return false;
    try {
      connection_->out->sendMessage(bytes.data(), message.size());
    } catch (const RtMidiError&) {
      failed_ = true;
    }
    return !failed_;
  }

  bool IsThere() override {
    if (failed_) return false;
    const std::vector<std::string> names = Distinct(NamesOf(*connection_));
    return std::ranges::find(names, name_) != names.end();
  }

 private:
  static void NoteError(RtMidiError::Type type, const std::string&, void* self) {
    if (type == RtMidiError::WARNING || type == RtMidiError::DEBUG_WARNING) return;
    static_cast<RtMidiPort*>(self)->failed_ = true;
  }

  std::unique_ptr<Connection> connection_;
  const std::string name_;
  bool failed_ = false;
};

class RtMidiPorts : public MidiPorts {
 public:
  void Prepare() override {
    const std::lock_guard lock(mutex_);
    TakeLister(std::chrono::milliseconds(0));
  }

  void Await() override {
    const std::lock_guard lock(mutex_);
    TakeLister(std::chrono::milliseconds(500));
  }

  std::vector<std::string> Names() override {
    const std::lock_guard lock(mutex_);
    if (lister_ && !lister_->IsAlive()) lister_.reset();
    TakeLister(std::chrono::milliseconds(1));
    if (!lister_) return {};
    return Distinct(NamesOf(*lister_));
  }

  std::unique_ptr<MidiPort> Open(const std::string& name) override {
    std::unique_ptr<Connection> connection = Connect();
    if (!connection) return nullptr;
    const std::vector<std::string> names = Distinct(NamesOf(*connection));
    const auto found = std::ranges::find(names, name);
    if (found == names.end()) return nullptr;
    try {
      connection->out->openPort(static_cast<unsigned int>(found - names.begin()), "out");
    } catch (const RtMidiError&) {
      return nullptr;
    }
    return std::make_unique<RtMidiPort>(std::move(connection), name);
  }

 private:
  /// To find out that no JACK server runs takes up to 10 ms, to connect to one ten times as much.
  void TakeLister(std::chrono::milliseconds patience) {
    if (lister_) return;
    if (!connecting_.valid()) {
      // Not `std::async`, whose future waits for a server that hangs when it goes.
      std::packaged_task<std::unique_ptr<Connection>()> connect(&Connect);
      connecting_ = connect.get_future();
      std::thread(std::move(connect)).detach();
    }
    if (connecting_.wait_for(patience) == std::future_status::ready) lister_ = connecting_.get();
  }

  std::mutex mutex_;
  std::unique_ptr<Connection> lister_;
  std::future<std::unique_ptr<Connection>> connecting_;
};

}  // namespace

std::unique_ptr<MidiPorts> MakeSystemMidiPorts() {
  SilenceSoundLibraries();
  return std::make_unique<RtMidiPorts>();
}

}  // namespace vmod17

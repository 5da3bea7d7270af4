// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "midi/midi_ports.h"

namespace vmod17 {

/// MIDI ports that the test plugs in and pulls out, and that remember what they got.
class FakePorts : public MidiPorts {
 public:
  struct Got {
    std::string port;
    MidiBytes message;
  };

  std::vector<std::string> names;
  std::vector<Got> got;
  int opened = 0;
  bool known = true;  ///< false for a system that has not answered yet; `Await` waits for it

  void Await() override { known = true; }
  std::vector<std::string> Names() override { return known ? names : std::vector<std::string>(); }

  std::unique_ptr<MidiPort> Open(const std::string& name) override {
    if (!Has(name)) return nullptr;
    ++opened;
    return std::make_unique<Port>(*this, name);
  }

  bool Has(const std::string& name) const { return std::ranges::find(names, name) != names.end(); }

  /// The messages of one kind that `port` got.
  std::vector<MidiBytes> Of(const std::string& port, int kind) const {
    std::vector<MidiBytes> found;
    for (const Got& one : got) {
      if (one.port == port && one.message.kind() == kind) found.push_back(one.message);
    }
    return found;
  }

 private:
  class Port : public MidiPort {
   public:
    Port(FakePorts& ports, std::string name) : ports_(ports), name_(std::move(name)) {}
    bool Send(const MidiBytes& message) override {
      if (!IsThere()) return false;
      ports_.got.push_back({name_, message});
      return true;
    }
    bool IsThere() override { return ports_.Has(name_); }

   private:
    FakePorts& ports_;
    const std::string name_;
  };
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/outputs.h"

#include "midi/midi_ports.h"

namespace melvado {

using vmod17::FindDevice;
using vmod17::LastingPortName;

OutputChoice ListOutputs(const std::vector<std::string>& ports, const std::string& remembered) {
  OutputChoice choice;
  for (const std::string& port : ports) choice.outputs.push_back({port, true});
  choice.outputs.push_back({"", true});
  choice.chosen = static_cast<int>(ports.size());
  if (remembered.empty()) return choice;
  if (const auto found = FindDevice(ports, remembered)) {
    choice.chosen = *found;
  } else {
    choice.outputs.insert(choice.outputs.begin(), {LastingPortName(remembered), false});
    choice.chosen = 0;
  }
  return choice;
}

}  // namespace melvado

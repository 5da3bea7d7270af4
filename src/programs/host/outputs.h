// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>
#include <vector>

namespace melvado {

/// A sound output that can be chosen.
struct Output {
  std::string name;      ///< as it is remembered; "" for the built-in synthesiser
  bool is_there = true;  ///< false for one that is remembered but not connected

  bool operator==(const Output&) const = default;
};

struct OutputChoice {
  std::vector<Output> outputs;  ///< the synthesiser last, and always there
  int chosen = 0;               ///< the one that is remembered

  bool operator==(const OutputChoice&) const = default;
};

/// The outputs of a system with these MIDI ports.
///
/// `remembered`  name or part of a name of a port, "" for the synthesiser. One that is not there is
///               listed first, and stays chosen.
OutputChoice ListOutputs(const std::vector<std::string>& ports, const std::string& remembered);

}  // namespace melvado

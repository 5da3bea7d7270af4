// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <string>

namespace vmod17 {

/// Who the running program is.
struct ProgramIdentity {
  std::string name;  ///< base name of the running file, without extension
  int major = 0;
  int minor = 0;
  int revision = 0;

  /// "1.0.0000": the revision has four digits.
  std::string VersionText() const;
};

/// What lives as long as the process and is no setting of an exercise.
struct AppState {
  /// Fills the two constant tables.
  void FillTables();

  bool loginKnown = false;               ///< the login name differs from "unbekannt"
  int uebTyp = 0;                        ///< the exercise type; 1 is "bestimmen", the only one
  std::array<int, 10> tempo_dauer_ar{};  ///< length of a chord in ms, by tempo
  std::array<float, 5> arp_teiler_ar{};  ///< divisors of a chord's length, by arpeggio tempo
};

}  // namespace vmod17

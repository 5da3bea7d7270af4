// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/app_state.h"

#include "base/numbers.h"

namespace vmod17 {

std::string ProgramIdentity::VersionText() const {
  return DecimalText(major) + "." + DecimalText(minor) + "." + PaddedText(revision, 4);
}

void AppState::FillTables() {
  // Two beats at 30, 40, 60, ... 200 beats a minute. 856 and 666 are entered by hand, not computed.
  tempo_dauer_ar = {4000, 3000, 2000, 1500, 1200, 1000, 856, 750, 666, 600};
  arp_teiler_ar = {8.0f, 12.0f, 16.0f, 24.0f, 32.0f};
}

}  // namespace vmod17

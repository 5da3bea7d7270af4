// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "exercise/settings_record.h"

#include "base/numbers.h"

namespace vmod17 {

void ExerciseSettings::RechneArpDauer(const AppState& state) {
  const auto dauer = static_cast<float>(state.tempo_dauer_ar.at(tempo_idx));
  arp_dauer = RoundHalfEven(dauer / state.arp_teiler_ar.at(arp_tempo_idx));
}

void ExerciseSettings::SetzeTonraum(int j) {
  tonraum_idx = j;
  ton_unten = 36 + 12 * j;
  ton_oben = ton_unten + 24 + 12 * oktav_ber;
}

}  // namespace vmod17

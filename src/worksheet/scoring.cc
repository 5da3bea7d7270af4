// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "worksheet/scoring.h"

#include <algorithm>

#include "base/numbers.h"

namespace vmod17 {
float ZeitZuschlag(float t, int frei) {
  if (t <= static_cast<float>(frei)) return 0;
  const int x = RoundHalfEven(t - static_cast<float>(frei));
  const int y = x / 2;
  return static_cast<float>(y) / 10.0f + 1.0f;
}

void Scoring::AufgabeWerten(RunState& run, int count) {
  for (int i = 1; i < count; ++i) {
    const int e = run.task.aufg_akk_ar.at(i);
    float s = Endpunkte(run.answers, i);
    if (s != 0 && settings_.IstTraining()) {
      if (int* gewicht = run.material.Gewicht(e)) {
        *gewicht = RoundHalfEven(static_cast<float>(*gewicht) + s);
      }
    }
    // Twice the praise for what is posted, once for the weight.
    if (s < 0) s *= 2;
    run.answers.fehl_ar[i] = s;
    TrefferBuchen(run, e, i);
    if (s > 0) Verwechselt(run, i);
  }
  if (settings_.IstTraining()) run.material.MaterialOrdnen();
}

float Scoring::Endpunkte(const TaskAnswers& answers, int slot) const {
  const float s = answers.fehl_ar.at(slot);
  const auto wiederholt = static_cast<float>(answers.whlg_ar.at(slot));
  if (s < 0) return std::min(0.0f, wiederholt + s + answers.zeit_ar.at(slot));
  if (s > 0) return std::min(wiederholt + s, static_cast<float>(board_.limits.fehl_max));
  return 0;
}

void Scoring::Verwechselt(RunState& run, int slot) {
  for (int k = 1; k <= board_.limits.fehl_stufen; ++k) {
    const int w = run.answers.falsch_ar.at(slot).at(k);
    if (w == 0) return;
    auswertung_.Increment(w, kFalschGewaehlt);
    if (!settings_.IstTraining()) continue;
    if (int* gewicht = run.material.Gewicht(w)) ++*gewicht;
  }
}

void Scoring::TrefferBuchen(const RunState& run, int entry, int slot) {
  const float v = run.answers.fehl_ar.at(slot) - kNotenAbzug;
  if (settings_.IstTraining()) {
    auswertung_.Increment(entry, kGefragt);
    auswertung_.Add(entry, v);
  } else if (settings_.IstTest()) {
    auswertung_.SaveBest(entry, v);
  }
}

TrainingStand PruefeTraining(Material& material) {
  if (material.mat_rest < 1) {
    material.mat_rest = 1;
    return TrainingStand::kGeloest;
  }
  if (material.mat_rest > material.Grenze() - 1) {
    material.mat_rest = material.Grenze();
    return TrainingStand::kZuSchwer;
  }
  return TrainingStand::kGehtWeiter;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "worksheet/run_state.h"

namespace vmod17 {

bool Wartet(const RunState& run, const ExerciseSettings& settings) {
  switch (run.phase) {
    case Phase::kAufbau:
    case Phase::kUngehoert:
    case Phase::kZuEnde:
      return true;
    case Phase::kAngebot:
      return settings.abfolge == 0 && !settings.IstTest();
    case Phase::kOhneKlang:
    case Phase::kVerlassen:
      return run.akk_nr < 1 || run.akk_nr > settings.akk_anzahl;
    case Phase::kUebergang:
    case Phase::kSpiel:
    case Phase::kAntwort:
      break;
  }
  return false;
}

std::optional<KlangVerlust> WasLaeuft(const RunState& run) {
  switch (run.phase) {
    case Phase::kSpiel:
      return VerlustDesSpiels(run);
    case Phase::kAntwort:
      return KlangVerlust::kAntwort;
    case Phase::kAngebot:
      return KlangVerlust::kAngebot;
    case Phase::kAufbau:
    case Phase::kUebergang:
    case Phase::kUngehoert:
    case Phase::kOhneKlang:
    case Phase::kZuEnde:
    case Phase::kVerlassen:
      break;
  }
  return std::nullopt;
}

KlangVerlust VerlustDesSpiels(const RunState& run) {
  return run.verlust.value_or(KlangVerlust::kSpiel);
}

}  // namespace vmod17

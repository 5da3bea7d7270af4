// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <optional>

namespace vmod17 {

/// Milliseconds before a task that follows by itself.
inline constexpr int kWahlPause = 1800;

/// What is left of a test.
struct TestRest {
  int test_aufgaben = 0;  ///< tasks of the test, even
  int rest_aufgaben = 0;
  int rest_sek = 0;  ///< seconds, a multiple of 10

  std::optional<float> halt_seit{};  ///< clock since which the time stands, for want of sound
  float gutschrift = 0;              ///< seconds that it is still to stand for what was lost so

  /// The time stands since `uhr`, as from `EventLoop::Clock`; if it does already, since then.
  void HalteAn(float uhr);
  /// The time goes on at `uhr`, and what it has stood is given back.
  void SetzeFort(float uhr);
  /// A beat of `sekunden` has passed. Returns whether it counts: none does while the time stands,
  /// and as many as were lost do not afterwards, a broken one in the student's favour.
  bool Zaehle(int sekunden);
};

/// What the length of a test depends on.
struct TestVorgabe {
  int mat_posten = 0;  ///< chords on the board
  int akk_anzahl = 1;  ///< chords a task
  int spiel_ms = 0;    ///< a task's playing time
  int wahl_ms = 0;     ///< the pause before a task
};

/// Seconds for so many tasks, rounded up to a multiple of 10.
int TestdauerRechnen(const TestVorgabe& vorgabe, int test_aufgaben);

/// The length of a test in which every chord is heard about four times. A test of more than 600
/// seconds is shortened once, one of less than 180 lengthened once; the result may still lie
/// outside.
TestRest BemissTest(const TestVorgabe& vorgabe);

}  // namespace vmod17
